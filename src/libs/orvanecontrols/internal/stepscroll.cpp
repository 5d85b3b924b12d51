#include "stepscroll.h"

#include <QAbstractSlider>
#include <QWidget>

#include <limits>

namespace orvane
{

namespace
{

/// Any step is taken: the record stops at the ends of its type.
int recordAt(qint64 position)
{
    using Limits = std::numeric_limits<int>;
    return int(qBound<qint64>(Limits::min(), position, Limits::max()));
}

} // namespace

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
    const qint64 distance = qint64(slider->sliderPosition()) - minimum;
    position = recordAt(position - qMin<qint64>(distance, step));
    slider->setSliderPosition(position);
    return distance <= step;
}

bool stepRight(QAbstractSlider *slider, int &position, int maximum, int step)
{
    const qint64 distance = qint64(maximum) - slider->sliderPosition();
    position = recordAt(position + qMin<qint64>(distance, step));
    slider->setSliderPosition(position);
    return distance <= step;
}

} // namespace orvane
