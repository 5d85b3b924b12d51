#include "handlers.h"
#include "shapewidget.h"
#include "shapewidgetcontent.h"
#include "table.h"
#include "toolbuttonex.h"
#include "widgetboard.h"
#include "widgetcontent.h"
#include "widgetcontrollboard.h"
#include "widgetinfo.h"

#include <QPushButton>
#include <QToolButton>

namespace randomuse
{

namespace
{

/// The contract asks for widgets with a signal clicked().
template <class T> void setButtons(Life &life, T *subject)
{
    QList<QWidget *> buttons;
    for (int left = life.dice().below(7); left > 0; --left) {
        if (life.dice().chance(50))
            buttons.append(anyObject<QPushButton>(life));
        else
            buttons.append(anyObject<ToolButtonEx>(life));
    }
    subject->setLsWidget(buttons);
}

Entry shapeWidget()
{
    return Table<ShapeWidget>("ShapeWidget",
                              [](Life &life) { return new ShapeWidget(life.parentOrNone()); })
        .call(NAMED(ShapeWidget, createTriggleBtn), Again::Grows)
        .call(NAMED(ShapeWidget, initStyle))
        .call(NAMED(ShapeWidget, setScrollBarStyle))
        .call(NAMED(ShapeWidget, addWidget), Again::Grows)
        .space(NAMED(ShapeWidget, setTriggleBtnPos))
        .call(NAMED(ShapeWidget, setTriggleBtnWidth))
        .call(NAMED(ShapeWidget, triggleBtnWidth))
        .call(NAMED(ShapeWidget, setTriggleBtnHeight))
        .call(NAMED(ShapeWidget, triggleBtnHeight));
}

Entry shapeWidgetContent()
{
    return Table<ShapeWidgetContent>(
               "ShapeWidgetContent",
               [](Life &life) { return new ShapeWidgetContent(life.parentOrNone()); })
        .act("setLsWidget", setButtons<ShapeWidgetContent>, Again::Grows)
        .call(NAMED(ShapeWidgetContent, lsWidget))
        .call(NAMED(ShapeWidgetContent, setColumn))
        .call(NAMED(ShapeWidgetContent, column))
        .call(NAMED(ShapeWidgetContent, createWidgetLayout));
}

Entry widgetBoard()
{
    return Table<WidgetBoard>("WidgetBoard",
                              [](Life &life) { return new WidgetBoard(life.parentOrNone()); })
        .call(NAMED(WidgetBoard, addWidget), Again::Grows)
        .call(NAMED(WidgetBoard, dropDownBtn))
        .call(NAMED(WidgetBoard, setShapeWidgetVisible))
        .call(NAMED(WidgetBoard, shapeWidgetVisible))
        .call(NAMED(WidgetBoard, setDropButoonVisible))
        .call(NAMED(WidgetBoard, dropDownButtonVisible))
        .space(NAMED(WidgetBoard, setDropDownBtnPos))
        .space(NAMED(WidgetBoard, setTriggleBtnPos))
        .call(NAMED(WidgetBoard, setTriggleBtnWidth))
        .call(NAMED(WidgetBoard, triggleBtnWidth))
        .call(NAMED(WidgetBoard, setTriggleBtnHeight))
        .call(NAMED(WidgetBoard, triggleBtnHeight))
        .call(NAMED(WidgetBoard, setDropDownBtnWidth))
        .call(NAMED(WidgetBoard, dropDownBtnWidth))
        .call(NAMED(WidgetBoard, setDropDownBtnHeight))
        .call(NAMED(WidgetBoard, dropDownBtnHeight))
        .call(NAMED(WidgetBoard, on_dropDownClicked));
}

Entry widgetContent()
{
    return Table<WidgetContent>("WidgetContent",
                                [](Life &life) { return new WidgetContent(life.parentOrNone()); })
        .call(NAMED(WidgetContent, addItem), Again::Grows)
        .call(NAMED(WidgetContent, removeItem))
        .call(NAMED(WidgetContent, removeAll))
        .act("setLsWidget", setButtons<WidgetContent>, Again::Grows)
        .call(NAMED(WidgetContent, lsWidget))
        .call(NAMED(WidgetContent, on_buttonClicked));
}

Entry widgetControllBoard()
{
    return Table<WidgetControllBoard>(
               "WidgetControllBoard",
               [](Life &life) { return new WidgetControllBoard(life.parentOrNone()); })
        .act("setLsWidget", setButtons<WidgetControllBoard>, Again::Grows)
        .call(NAMED(WidgetControllBoard, lsWidget))
        .act(
            "addWidgetContent",
            [](Life &life, WidgetControllBoard *subject) {
                const QString picture = life.value<QString>();
                WidgetInfo info{picture, life.value<QString>(), life.value<QString>()};
                subject->addWidgetContent(&info);
            },
            Again::Grows)
        .call(NAMED(WidgetControllBoard, removeAllWidget))
        .call(NAMED(WidgetControllBoard, setWidgetIsEnabled))
        .call(NAMED(WidgetControllBoard, setIsAddCabient))
        .call(NAMED(WidgetControllBoard, setButtonGroupExLabelText))
        .call(NAMED(WidgetControllBoard, setAddButtonTooltip))
        .call(NAMED(WidgetControllBoard, setAddRowCabinetTooTip))
        .call(NAMED(WidgetControllBoard, setButtonGroupExAddCabnicate))
        .call(NAMED(WidgetControllBoard, setButtonGroupExAddRowCabnicate))
        .call(NAMED(WidgetControllBoard, setDropButtonVisible))
        .call(NAMED(WidgetControllBoard, sizeHint))
        .call(NAMED(WidgetControllBoard, minimumSizeHint))
        .act("eventFilter", filterEvent<WidgetControllBoard>);
}

} // namespace

QVector<Entry> boardEntries()
{
    return {shapeWidget(), shapeWidgetContent(), widgetBoard(), widgetContent(),
            widgetControllBoard()};
}

} // namespace randomuse
