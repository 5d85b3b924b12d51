#include "sliderexmouse.h"

#include <QMouseEvent>
#include <QPointer>

#include <cmath>
#include <limits>

SliderExMouse::SliderExMouse(QWidget *parent, Qt::Orientation orientation)
    : SliderEx(parent, orientation)
{
    setPageStep(0);
    setSingleStep(0);
}

void SliderExMouse::mouseMoveEvent(QMouseEvent *event)
{
    // QSlider never sees the release and would go on dragging its handle with no button down.
    if (event->buttons() & Qt::LeftButton)
        SliderEx::mouseMoveEvent(event);
    else
        event->ignore();
}

void SliderExMouse::mouseReleaseEvent(QMouseEvent *event)
{
    // The press on the groove began to repeat a page step, which only the base's handler would end.
    setRepeatAction(SliderNoAction);
    if (event->button() != Qt::LeftButton || width() <= 0)
        return;

    // All in double: a position may lie far outside the slider, and the range may be all of int.
    double x = std::floor(event->localPos().x() + 0.5);
    // From right to left the values grow toward the left, unless the host has turned them round.
    if (orientation() == Qt::Horizontal && isRightToLeft() && !invertedAppearance())
        x = width() - x;
    const double low = minimum();
    const double high = maximum();
    const double exact = low + (high - low) * (x / width());
    constexpr double leastInt = std::numeric_limits<int>::min();
    constexpr double greatestInt = std::numeric_limits<int>::max();
    const int value = static_cast<int>(qBound(leastInt, exact, greatestInt));
    if (value == sliderPosition())
        return;

    const QPointer<SliderExMouse> self(this);
    setValue(value);
    if (self)
        Q_EMIT sliderMouseRealse();
}
