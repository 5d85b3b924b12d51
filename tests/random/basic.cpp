#include "checkboxex.h"
#include "comboboxex.h"
#include "comboboxitem.h"
#include "definecommondata.h"
#include "doublespinboxex.h"
#include "handlers.h"
#include "labelex.h"
#include "lineeditex.h"
#include "pushbuttonex.h"
#include "radiobuttonex.h"
#include "scrollbarex.h"
#include "sliderex.h"
#include "sliderexmouse.h"
#include "spinboxex.h"
#include "stylesheetbatch.h"
#include "table.h"

#include <QListWidget>
#include <QPointer>
#include <QScrollBar>

#include <deque>

namespace randomuse
{

namespace
{

/// The class has static functions alone: any object will do.
Entry defineCommonData()
{
    return Table<QObject>("DefineCommonData", [](Life &) { return new QObject; })
        .act("getNormalFont", [](Life &, QObject *) { DefineCommonData::getNormalFont(); })
        .act("getBigFont", [](Life &, QObject *) { DefineCommonData::getBigFont(); })
        .act("getBiggerFont", [](Life &, QObject *) { DefineCommonData::getBiggerFont(); })
        .share(1);
}

/// Batches of sheets that begin and end in any order, over a line edit that may die before them.
struct Batches : QObject {
    QPointer<LineEditEx> edit;
    std::deque<StyleSheetBatch> all;
};

Entry styleSheetBatch()
{
    return Table<Batches>("StyleSheetBatch",
                          [](Life &life) {
                              auto *batches = new Batches;
                              batches->edit = life.keep(new LineEditEx(life.parentOrNone()));
                              return batches;
                          })
        .act("begin", [](Life &, Batches *batches) { batches->all.emplace_back(batches->edit); })
        .act("endFirst",
             [](Life &, Batches *batches) {
                 if (!batches->all.empty())
                     batches->all.pop_front();
             })
        .act("endLast",
             [](Life &, Batches *batches) {
                 if (!batches->all.empty())
                     batches->all.pop_back();
             })
        .act("setInside",
             [](Life &life, Batches *batches) {
                 if (batches->edit)
                     batches->edit->setBackgroundColor(life.value<QColor>());
             })
        .act("deleteInside", [](Life &, Batches *batches) { delete batches->edit; })
        .share(2);
}

Entry checkBoxEx()
{
    return Table<CheckBoxEx>("CheckBoxEx",
                             [](Life &life) { return new CheckBoxEx(life.parentOrNone()); })
        .call(NAMED(CheckBoxEx, initStyle))
        .call(NAMED(CheckBoxEx, setCheckBoxStyle))
        .call(NAMED(CheckBoxEx, setSpacing))
        .call(NAMED(CheckBoxEx, spacing))
        .call(NAMED(CheckBoxEx, setIndicatorWidth))
        .call(NAMED(CheckBoxEx, indicatorWidth))
        .call(NAMED(CheckBoxEx, setIndicatorHeight))
        .call(NAMED(CheckBoxEx, indicatorHeight))
        .call(NAMED(CheckBoxEx, setFontColor))
        .call(NAMED(CheckBoxEx, fontColor))
        .call(NAMED(CheckBoxEx, setDisabledFontColor))
        .call(NAMED(CheckBoxEx, disabledFontColor))
        .call(NAMED(CheckBoxEx, setHoverFontColor))
        .call(NAMED(CheckBoxEx, hoverFontColor))
        .call(NAMED(CheckBoxEx, setCheckedColor))
        .call(NAMED(CheckBoxEx, setText))
        .call(NAMED(CheckBoxEx, text))
        .call(NAMED(CheckBoxEx, setData))
        .call(NAMED(CheckBoxEx, data))
        .call(NAMED(CheckBoxEx, SetIsLastSelectd))
        .call(NAMED(CheckBoxEx, isLastSelectd))
        .call(NAMED(CheckBoxEx, fromColorToStr));
}

Entry radioButtonEx()
{
    return Table<RadioButtonEx>("RadioButtonEx",
                                [](Life &life) { return new RadioButtonEx(life.parentOrNone()); })
        .call(NAMED(RadioButtonEx, init))
        .call(NAMED(RadioButtonEx, setStyle))
        .call(NAMED(RadioButtonEx, setSpace))
        .call(NAMED(RadioButtonEx, space))
        .call(NAMED(RadioButtonEx, setIndicatorWidth))
        .call(NAMED(RadioButtonEx, indicatorWidth))
        .call(NAMED(RadioButtonEx, setIndicatorHeight))
        .call(NAMED(RadioButtonEx, indicatorHeight))
        .call(NAMED(RadioButtonEx, setFontColor))
        .call(NAMED(RadioButtonEx, fontColor))
        .call(NAMED(RadioButtonEx, setDisabledFontColor))
        .call(NAMED(RadioButtonEx, disabledFontColor))
        .call(NAMED(RadioButtonEx, setText))
        .call(NAMED(RadioButtonEx, textChange))
        .call(NAMED(RadioButtonEx, text))
        .call(NAMED(RadioButtonEx, fromColorToStr));
}

Entry labelEx()
{
    return Table<LabelEx>("LabelEx", [](Life &life) { return new LabelEx(life.parentOrNone()); })
        .call(NAMED(LabelEx, setFontColor))
        .call(NAMED(LabelEx, setText))
        .call(NAMED(LabelEx, text))
        .call(NAMED(LabelEx, fromColorToStr));
}

Entry scrollBarEx()
{
    return Table<ScrollBarEx>("ScrollBarEx",
                              [](Life &life) {
                                  // The bar stays as long as the controller is used, as the
                                  // contract asks.
                                  auto *bar = new QScrollBar(life.value<bool>() ? Qt::Horizontal
                                                                                : Qt::Vertical,
                                                             life.room());
                                  return new ScrollBarEx(bar, life.value<bool>());
                              })
        .call(NAMED(ScrollBarEx, initParameter))
        .call(NAMED(ScrollBarEx, setVerticalStyle))
        .call(NAMED(ScrollBarEx, setHorizontalStyle))
        .call(NAMED(ScrollBarEx, setScrollWidth))
        .call(NAMED(ScrollBarEx, scrollWidth))
        .call(NAMED(ScrollBarEx, setScrollHeight))
        .call(NAMED(ScrollBarEx, scrollHeight))
        .call(NAMED(ScrollBarEx, setScrollBarWidth))
        .call(NAMED(ScrollBarEx, scrollBarWidth))
        .call(NAMED(ScrollBarEx, setScrollBarHeight))
        .call(NAMED(ScrollBarEx, scrollBarHeight))
        .call(NAMED(ScrollBarEx, setScrollBarMargin))
        .call(NAMED(ScrollBarEx, scrollBarMargin))
        .call(NAMED(ScrollBarEx, setIconWidth))
        .call(NAMED(ScrollBarEx, iconWidth))
        .call(NAMED(ScrollBarEx, setIconHeight))
        .call(NAMED(ScrollBarEx, iconHeight))
        .call(NAMED(ScrollBarEx, setBorderRadius))
        .call(NAMED(ScrollBarEx, borderRadius))
        .call(NAMED(ScrollBarEx, setHanderMinHeight))
        .call(NAMED(ScrollBarEx, handerMinHeight))
        .call(NAMED(ScrollBarEx, setHanderMinWidth))
        .call(NAMED(ScrollBarEx, handerMinWidth))
        .call(NAMED(ScrollBarEx, setScrollColor))
        .call(NAMED(ScrollBarEx, scrollColor))
        .call(NAMED(ScrollBarEx, setScrollHandleColor))
        .call(NAMED(ScrollBarEx, scrollHandleColor))
        .call(NAMED(ScrollBarEx, setScrollHandlePressedColor))
        .call(NAMED(ScrollBarEx, scrollHandlePressedColor))
        .call(NAMED(ScrollBarEx, setIsLoadImg))
        .call(NAMED(ScrollBarEx, isLoadImg))
        .call(NAMED(ScrollBarEx, fromColorToStr));
}

Entry pushButtonEx()
{
    return Table<PushButtonEx>("PushButtonEx",
                               [](Life &life) {
                                   return new PushButtonEx(life.parentOrNone(),
                                                           life.value<BtnType>());
                               })
        .call(NAMED(PushButtonEx, createButtonByType))
        .call(NAMED(PushButtonEx, initActivatedButtonParam))
        .call(NAMED(PushButtonEx, initNoActivatedButtonParam))
        .call(NAMED(PushButtonEx, setActivatedStyle))
        .call(NAMED(PushButtonEx, setNoActivatedStyle))
        .call(NAMED(PushButtonEx, setText))
        .call(NAMED(PushButtonEx, text))
        .call(NAMED(PushButtonEx, fromColorToStr));
}

Entry spinBoxEx()
{
    return Table<SpinBoxEx>("SpinBoxEx",
                            [](Life &life) { return new SpinBoxEx(life.parentOrNone()); })
        .call(NAMED(SpinBoxEx, initStyle))
        .call(NAMED(SpinBoxEx, setSpinBoxStyle))
        .call(NAMED(SpinBoxEx, setBackgroundColor))
        .call(NAMED(SpinBoxEx, backgroundColor))
        .call(NAMED(SpinBoxEx, setBordColor))
        .call(NAMED(SpinBoxEx, bordColor))
        .call(NAMED(SpinBoxEx, setFontColor))
        .call(NAMED(SpinBoxEx, fontColor))
        .call(NAMED(SpinBoxEx, setDisabledFontColor))
        .call(NAMED(SpinBoxEx, disabledFontColor))
        .call(NAMED(SpinBoxEx, setShowValue))
        .call(NAMED(SpinBoxEx, showValue))
        .call(NAMED(SpinBoxEx, setFocusOutEvent))
        .act("focusOutEvent", [](Life &, SpinBoxEx *subject) { subject->focusOutEvent(); })
        .call(NAMED(SpinBoxEx, textFromValue))
        .call(NAMED(SpinBoxEx, valueFromText))
        .call(NAMED(SpinBoxEx, fromColorToStr));
}

Entry doubleSpinBoxEx()
{
    return Table<DoubleSpinBoxEx>(
               "DoubleSpinBoxEx",
               [](Life &life) { return new DoubleSpinBoxEx(life.parentOrNone()); })
        .call(NAMED(DoubleSpinBoxEx, initStyle))
        .call(NAMED(DoubleSpinBoxEx, setSpinBoxStyle))
        .call(NAMED(DoubleSpinBoxEx, setBackgroundColor))
        .call(NAMED(DoubleSpinBoxEx, backgroundColor))
        .call(NAMED(DoubleSpinBoxEx, setBordColor))
        .call(NAMED(DoubleSpinBoxEx, bordColor))
        .call(NAMED(DoubleSpinBoxEx, setFontColor))
        .call(NAMED(DoubleSpinBoxEx, fontColor))
        .call(NAMED(DoubleSpinBoxEx, setDisabledFontColor))
        .call(NAMED(DoubleSpinBoxEx, disabledFontColor))
        .call(NAMED(DoubleSpinBoxEx, setShowValue))
        .call(NAMED(DoubleSpinBoxEx, showValue))
        .call(NAMED(DoubleSpinBoxEx, textFromValue))
        .call(NAMED(DoubleSpinBoxEx, valueFromText))
        .call(NAMED(DoubleSpinBoxEx, fromColorToStr));
}

Entry lineEditEx()
{
    return Table<LineEditEx>("LineEditEx",
                             [](Life &life) {
                                 return new LineEditEx(life.parentOrNone(),
                                                       life.value<LineEditType>());
                             })
        .call(NAMED(LineEditEx, initStyle))
        .call(NAMED(LineEditEx, setNormalLineEditStyle))
        .call(NAMED(LineEditEx, setBorderWidth))
        .call(NAMED(LineEditEx, borderWidth))
        .call(NAMED(LineEditEx, setBorderColor))
        .call(NAMED(LineEditEx, borderColor))
        .call(NAMED(LineEditEx, setBackgroundColor))
        .call(NAMED(LineEditEx, backgroundColor))
        .call(NAMED(LineEditEx, setBFouceOut))
        .call(NAMED(LineEditEx, bFouceOut))
        .call(NAMED(LineEditEx, setStrToolTips))
        .call(NAMED(LineEditEx, fromColorToStr));
}

Entry sliderEx()
{
    return Table<SliderEx>("SliderEx",
                           [](Life &life) {
                               return new SliderEx(life.parentOrNone(),
                                                   life.dice().chance(50) ? Qt::Horizontal
                                                                          : Qt::Vertical);
                           })
        .call(NAMED(SliderEx, initSliderStyle))
        .call(NAMED(SliderEx, setSliderStyle))
        .call(NAMED(SliderEx, setAddPageColor))
        .call(NAMED(SliderEx, addPageColor))
        .call(NAMED(SliderEx, setSubPageColor))
        .call(NAMED(SliderEx, subPageColor))
        .call(NAMED(SliderEx, setHandleColor))
        .call(NAMED(SliderEx, handleColor))
        .call(NAMED(SliderEx, setHandleHoverColor))
        .call(NAMED(SliderEx, handleHoverColor))
        .call(NAMED(SliderEx, setGrooveWidth))
        .call(NAMED(SliderEx, grooveWidth))
        .call(NAMED(SliderEx, setGrooveHeight))
        .call(NAMED(SliderEx, grooveHeight))
        .call(NAMED(SliderEx, setHandleWidth))
        .call(NAMED(SliderEx, handleWidth))
        .call(NAMED(SliderEx, setHandleHeight))
        .call(NAMED(SliderEx, handleHeight))
        .call(NAMED(SliderEx, setWheelEventEffective))
        .act("eventFilter", filterEvent<SliderEx>)
        .call(NAMED(SliderEx, fromColorToStr));
}

Entry sliderExMouse()
{
    return Table<SliderExMouse>("SliderExMouse", [](Life &life) {
        return new SliderExMouse(life.parentOrNone(),
                                 life.dice().chance(50) ? Qt::Horizontal : Qt::Vertical);
    });
}

Entry comboboxItem()
{
    return Table<ComboboxItem>("ComboboxItem",
                               [](Life &life) {
                                   return new ComboboxItem(
                                       life.parentOrNone(), life.value<QPixmap>(),
                                       life.value<QString>(), life.value<int>());
                               })
        .call(NAMED(ComboboxItem, setTextStyle))
        .call(NAMED(ComboboxItem, setFontColor))
        .call(NAMED(ComboboxItem, fontColor))
        .call(NAMED(ComboboxItem, setText))
        .call(NAMED(ComboboxItem, text))
        .call(NAMED(ComboboxItem, setPixMap))
        .call(NAMED(ComboboxItem, pixMap))
        .call(NAMED(ComboboxItem, setIndex))
        .call(NAMED(ComboboxItem, index))
        .call(NAMED(ComboboxItem, fromColorToStr));
}

Entry comboBoxEx()
{
    return Table<ComboBoxEx>("ComboBoxEx",
                             [](Life &life) { return new ComboBoxEx(life.parentOrNone()); })
        .call(NAMED(ComboBoxEx, setControlStyleSheet))
        .call(NAMED(ComboBoxEx, addImageItem), Again::Grows)
        .call(NAMED(ComboBoxEx, setCurrentIndex))
        .call(NAMED(ComboBoxEx, setComboxEnabled))
        .call(NAMED(ComboBoxEx, setNormalAndDisabledPixMap))
        .call(NAMED(ComboBoxEx, getItemText))
        .call(NAMED(ComboBoxEx, removeItem))
        .call(NAMED(ComboBoxEx, clear))
        .call(NAMED(ComboBoxEx, setIsChangeImg))
        .call(NAMED(ComboBoxEx, setDefaultPixMap))
        .call(NAMED(ComboBoxEx, setBgCurrentItemColor))
        .call(NAMED(ComboBoxEx, getBgCurrentItemColor))
        .call(NAMED(ComboBoxEx, setBgHoverItemColor))
        .call(NAMED(ComboBoxEx, getBgHoverItemColor))
        .call(NAMED(ComboBoxEx, setBgPressedItemColor))
        .call(NAMED(ComboBoxEx, setBorderPressedColor))
        .call(NAMED(ComboBoxEx, setBorderNormalColor))
        .call(NAMED(ComboBoxEx, setBorderHoverColor))
        .call(NAMED(ComboBoxEx, getBorderHoverColor))
        .call(NAMED(ComboBoxEx, setFontColor))
        .call(NAMED(ComboBoxEx, getFontColor))
        .call(NAMED(ComboBoxEx, setDisabledFontColor))
        .call(NAMED(ComboBoxEx, getDisabledFontColor))
        .call(NAMED(ComboBoxEx, setSelectionBgColor))
        .call(NAMED(ComboBoxEx, getSelectionBgColor))
        .call(NAMED(ComboBoxEx, setItemHeight))
        .call(NAMED(ComboBoxEx, getItemHeight))
        .call(NAMED(ComboBoxEx, setItemWidth))
        .call(NAMED(ComboBoxEx, getItemWidth))
        .call(NAMED(ComboBoxEx, setListViewWidth))
        .call(NAMED(ComboBoxEx, getListViewWidth))
        .call(NAMED(ComboBoxEx, setBorderWidth))
        .call(NAMED(ComboBoxEx, getBorderWidth))
        .call(NAMED(ComboBoxEx, setBorderHoverWidth))
        .call(NAMED(ComboBoxEx, getBorderHoverWidth))
        .call(NAMED(ComboBoxEx, setBorderPressedWidth))
        .call(NAMED(ComboBoxEx, getBorderPressedWidth))
        .call(NAMED(ComboBoxEx, setBorderRadius))
        .call(NAMED(ComboBoxEx, setPListWidget))
        .call(NAMED(ComboBoxEx, getPListWidget))
        .call(NAMED(ComboBoxEx, getText))
        .act("setWidgetItemList",
             [](Life &life, ComboBoxEx *subject) {
                 // Items are the list widget's: the box only looks them up.
                 QList<QListWidgetItem *> items = subject->getWidgetItemList();
                 if (!items.isEmpty())
                     items.removeAt(life.dice().below(items.size()));
                 subject->setWidgetItemList(items);
             })
        .call(NAMED(ComboBoxEx, getWidgetItemList))
        .call(NAMED(ComboBoxEx, setIsDrawText))
        .call(NAMED(ComboBoxEx, getIsDrawText))
        .call(NAMED(ComboBoxEx, fromColorToStr));
}

} // namespace

QVector<Entry> basicEntries()
{
    return {defineCommonData(), styleSheetBatch(), checkBoxEx(),   radioButtonEx(),   labelEx(),
            scrollBarEx(),      pushButtonEx(),    spinBoxEx(),    doubleSpinBoxEx(), lineEditEx(),
            sliderEx(),         sliderExMouse(),   comboboxItem(), comboBoxEx()};
}

} // namespace randomuse
