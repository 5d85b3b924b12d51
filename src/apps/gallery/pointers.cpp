#include "pointers.h"

#include <QAbstractSlider>
#include <QScrollBar>
#include <QSpinBox>
#include <QStyle>
#include <QStyleOptionSlider>
#include <QStyleOptionSpinBox>

namespace
{

QPoint onArrow(QWidget *widget, QStyle::SubControl arrow)
{
    QStyleOptionSpinBox option;
    option.initFrom(widget);
    option.subControls = QStyle::SC_All;
    option.buttonSymbols = QAbstractSpinBox::UpDownArrows;
    option.frame = qobject_cast<QAbstractSpinBox *>(widget)->hasFrame();
    return widget->style()->subControlRect(QStyle::CC_SpinBox, &option, arrow, widget).center();
}

QPoint onPart(QWidget *widget, QStyle::SubControl sliderPart, QStyle::SubControl scrollBarPart)
{
    const auto *slider = qobject_cast<QAbstractSlider *>(widget);
    QStyleOptionSlider option;
    option.initFrom(widget);
    option.subControls = QStyle::SC_All;
    option.orientation = slider->orientation();
    if (option.orientation == Qt::Horizontal)
        option.state |= QStyle::State_Horizontal;
    option.minimum = slider->minimum();
    option.maximum = slider->maximum();
    option.sliderPosition = slider->sliderPosition();
    option.sliderValue = slider->value();
    option.singleStep = slider->singleStep();
    option.pageStep = slider->pageStep();
    if (qobject_cast<QScrollBar *>(widget)) {
        option.upsideDown = slider->invertedAppearance();
        return widget->style()
            ->subControlRect(QStyle::CC_ScrollBar, &option, scrollBarPart, widget)
            .center();
    }
    // A vertical slider's minimum is at its lower end.
    option.upsideDown = (option.orientation == Qt::Vertical) != slider->invertedAppearance();
    return widget->style()->subControlRect(QStyle::CC_Slider, &option, sliderPart, widget).center();
}

} // namespace

namespace pointers
{

QPoint onCentre(QWidget *widget)
{
    return widget->rect().center();
}

QPoint onUpArrow(QWidget *spinBox)
{
    return onArrow(spinBox, QStyle::SC_SpinBoxUp);
}

QPoint onDownArrow(QWidget *spinBox)
{
    return onArrow(spinBox, QStyle::SC_SpinBoxDown);
}

QPoint onHandle(QWidget *sliderOrScrollBar)
{
    return onPart(sliderOrScrollBar, QStyle::SC_SliderHandle, QStyle::SC_ScrollBarSlider);
}

QPoint onEndArrow(QWidget *scrollBar)
{
    return onPart(scrollBar, QStyle::SC_None, QStyle::SC_ScrollBarAddLine);
}

} // namespace pointers
