#include "stepscroll.h"

#include <QAbstractSlider>
#include <QWidget>

namespace orvane
{

void fillParent(QWidget *child)
{
    child->setGeometry(child->parentWidget()->rect());
}

void setArrowVisible(QWidget *arrow, QWidget *placeholder, bool visible)
{
    arrow->setVisible(visible);
    // What has never been hidden appears with its parent; showing it earlier would only cost.
    if (visible || placeholder->testAttribute(Qt::WA_WState_ExplicitShowHide))
        placeholder->setVisible(!visible);
}

// The distance is the slider's, the position moved is the strip's record: hosts rely on a click
// going on from the record after the content was scrolled by other means.

bool stepLeft(QAbstractSlider *slider, int &position, int minimum, int step)
{
    const int distance = slider->sliderPosition() - minimum;
    position -= qMin(distance, step);
    slider->setSliderPosition(position);
    return distance <= step;
}

bool stepRight(QAbstractSlider *slider, int &position, int maximum, int step)
{
    const int distance = maximum - slider->sliderPosition();
    position += qMin(distance, step);
    slider->setSliderPosition(position);
    return distance <= step;
}

} // namespace orvane
