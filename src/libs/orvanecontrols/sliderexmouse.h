#ifndef SLIDEREXMOUSE_H
#define SLIDEREXMOUSE_H

#include "sliderex.h"

/**
 * A slider that jumps to the point where the left mouse button is released.
 *
 * The point is always taken along the x axis, for a vertical slider too, and from the right end in
 * a horizontal slider that is laid out from right to left. Page and single step are 0, so neither
 * keys nor clicks on the groove move the slider by steps. The release goes no further:
 * QAbstractSlider::sliderReleased() is never emitted and isSliderDown() stays true after the handle
 * was dragged.
 *
 * sliderMouseRealse() is a signal of this class, beside the one of the same name in SliderEx, which
 * a SliderExMouse never emits. Connect to &SliderExMouse::sliderMouseRealse or to
 * SIGNAL(sliderMouseRealse()), which finds the signal of this class; &SliderEx::sliderMouseRealse
 * receives nothing.
 */
class ORVANECONTROLS_EXPORT SliderExMouse : public SliderEx
{
    Q_OBJECT

public:
    /// Builds a slider without steps, owned by \a parent, with the default look of \a orientation.
    SliderExMouse(QWidget *parent, Qt::Orientation orientation);

Q_SIGNALS:
    /// A release of the left button has set a new value. The slider may be deleted here.
    void sliderMouseRealse(); // clazy:exclude=overridden-signal

protected:
    /// Drags the handle while the left button is held; ignores every other move.
    void mouseMoveEvent(QMouseEvent *event) override;
    /// Sets the value at the pointer's place along the width when the left button goes up, and
    /// emits sliderMouseRealse() if that is a new one. The event goes no further.
    void mouseReleaseEvent(QMouseEvent *event) override;
};

#endif // SLIDEREXMOUSE_H
