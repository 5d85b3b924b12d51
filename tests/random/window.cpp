#include "custommegbox.h"
#include "custommessagebox.h"
#include "customwidget.h"
#include "objects.h"
#include "table.h"
#include "windowframe.h"
#include "windowtitle.h"

#include <QCursor>

namespace randomuse
{

namespace
{

Entry windowTitle()
{
    return Table<WindowTitle>(
               "WindowTitle",
               [](Life &life) { return new WindowTitle(life.value<QSize>(), life.parentOrNone()); })
        .call(NAMED(WindowTitle, rebuildUI))
        .call(NAMED(WindowTitle, setBtnMax))
        .call(NAMED(WindowTitle, SetLogoImageSize))
        .call(NAMED(WindowTitle, SetLogoImagePath))
        .call(NAMED(WindowTitle, SetLogoTextSize))
        .call(NAMED(WindowTitle, SetLogoTextStyleSheet))
        .call(NAMED(WindowTitle, SetLogoTextValue))
        .call(NAMED(WindowTitle, SetBtnGroupVisable))
        .call(NAMED(WindowTitle, SetLogoGroupVisable))
        .call(NAMED(WindowTitle, SetMinBtnToolTip))
        .call(NAMED(WindowTitle, SetMaxBtnToolTip))
        .call(NAMED(WindowTitle, SetCloseBtnToolTip));
}

Entry windowFrame()
{
    return Table<WindowFrame>("WindowFrame",
                              [](Life &life) {
                                  return new WindowFrame(life.value<QSizeF>(), life.value<QSizeF>(),
                                                         life.value<QSizeF>(), life.parentOrNone());
                              })
        .call(NAMED(WindowFrame, SetFrameCurSize))
        .call(NAMED(WindowFrame, SetFrameMaxSize))
        .call(NAMED(WindowFrame, SetFrameMinSize))
        .call(NAMED(WindowFrame, rebuildUI))
        .call(NAMED(WindowFrame, SetWidget))
        .call(NAMED(WindowFrame, SetTitleBarVisable))
        .call(NAMED(WindowFrame, GetTitleWidget))
        .call(NAMED(WindowFrame, GetBaseFrameLayout))
        .call(NAMED(WindowFrame, GetBaseFrameHHHLayout))
        .call(NAMED(WindowFrame, GetCurDragDirect))
        .call(NAMED(WindowFrame, ReSetCurDragDirect))
        .call(NAMED(WindowFrame, SetRubberBandShape))
        .call(NAMED(WindowFrame, SetRubberBandLineStyle))
        .call(NAMED(WindowFrame, CreateDragRectListEx))
        .call(NAMED(WindowFrame, CreateDragRectList))
        .act("IsInDragRect",
             [](Life &life, WindowFrame *subject) {
                 QCursor cursor;
                 subject->IsInDragRect(life.value<QPointF>(), cursor);
             })
        .call(NAMED(WindowFrame, GetNewWindowRect))
        .call(NAMED(WindowFrame, GetItemInParentScenePos))
        // For the constructor, once: what it builds again lies over what there is.
        .call(NAMED(WindowFrame, BuildUI), Again::Grows)
        .call(NAMED(WindowFrame, ConenctSignal))
        .call(NAMED(WindowFrame, slot_close))
        .call(NAMED(WindowFrame, slot_showMinimized))
        .call(NAMED(WindowFrame, slot_showMaximized));
}

Entry customMessageBox()
{
    return Table<CustomMessageBox>(
               "CustomMessageBox",
               [](Life &life) { return new CustomMessageBox(life.parentOrNone()); })
        .call(NAMED(CustomMessageBox, setBoxInformation))
        .call(NAMED(CustomMessageBox, setCloseBtnIsVisible))
        .act("setAppltBtnSize",
             [](Life &life, CustomMessageBox *subject) {
                 const int width = life.small();
                 subject->setAppltBtnSize(width, life.small());
             })
        .act("setOkBtnSize",
             [](Life &life, CustomMessageBox *subject) {
                 const int width = life.small();
                 subject->setOkBtnSize(width, life.small());
             })
        .act("setCancleBtnSize",
             [](Life &life, CustomMessageBox *subject) {
                 const int width = life.small();
                 subject->setCancleBtnSize(width, life.small());
             })
        .call(NAMED(CustomMessageBox, moveWindow))
        .call(NAMED(CustomMessageBox, createControls))
        .call(NAMED(CustomMessageBox, on_handleOkClicked))
        .call(NAMED(CustomMessageBox, on_handleCancelClicked))
        .call(NAMED(CustomMessageBox, on_handleApplyClicked))
        .call(NAMED(CustomMessageBox, slot_closeBtnClicked));
}

/// The class has static functions alone, which run a box to its end: any object will do.
Entry customMegBox()
{
    return Table<QObject>("CustomMegBox", [](Life &) { return new QObject; })
        .act("informationMessageBox",
             [](Life &life, QObject *) {
                 QWidget *parent = anyObject<QWidget>(life);
                 CustomMegBox::informationMessageBox(parent, life.value<QString>(),
                                                     life.value<QString>(), life.value<QString>());
             })
        .act("waringMessageBox",
             [](Life &life, QObject *) {
                 QWidget *parent = anyObject<QWidget>(life);
                 CustomMegBox::waringMessageBox(parent, life.value<QString>(),
                                                life.value<QString>(), life.value<QString>());
             })
        .act("criticalMessageBox",
             [](Life &life, QObject *) {
                 QWidget *parent = anyObject<QWidget>(life);
                 CustomMegBox::criticalMessageBox(parent, life.value<QString>(),
                                                  life.value<QString>(), life.value<QString>());
             })
        .act("questionMessageBox",
             [](Life &life, QObject *) {
                 QWidget *parent = anyObject<QWidget>(life);
                 CustomMegBox::questionMessageBox(parent, life.value<QString>(),
                                                  life.value<QString>(), life.value<QString>(),
                                                  life.value<QString>());
             })
        .act("questionMessageBox",
             [](Life &life, QObject *) {
                 QWidget *parent = anyObject<QWidget>(life);
                 CustomMegBox::questionMessageBox(
                     parent, life.value<QString>(), life.value<QString>(), life.value<bool>(),
                     life.value<QString>(), life.value<QString>(), life.value<QString>());
             })
        .act("tipMessageBox",
             [](Life &life, QObject *) {
                 QWidget *parent = anyObject<QWidget>(life);
                 CustomMegBox::tipMessageBox(
                     parent, life.value<QString>(), life.value<QString>(), life.value<bool>(),
                     life.value<QString>(), life.value<QString>(), life.value<QString>(),
                     life.value<bool>(), life.small(), life.small(), life.small());
             })
        .share(3);
}

Entry customWidget()
{
    return Table<CustomWidget>("CustomWidget",
                               [](Life &life) { return new CustomWidget(life.parentOrNone()); });
}

} // namespace

QVector<Entry> windowEntries()
{
    return {windowTitle(), windowFrame(), customMessageBox(), customMegBox(), customWidget()};
}

} // namespace randomuse
