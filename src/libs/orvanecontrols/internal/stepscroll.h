#ifndef ORVANE_INTERNAL_STEPSCROLL_H
#define ORVANE_INTERNAL_STEPSCROLL_H

class QAbstractSlider;
class QWidget;

namespace orvane
{

/// Makes \a child as large as its parent is now.
void fillParent(QWidget *child);

/// Shows \a arrow and hides \a placeholder, or the other way round: one of the two keeps the place.
void setArrowVisible(QWidget *arrow, QWidget *placeholder, bool visible);

/// A click on the left arrow: moves \a position, the strip's own record of where it stands, a step
/// toward \a minimum, by no more than the slider is away from it, and the slider to the record.
/// True when that was the last step.
bool stepLeft(QAbstractSlider *slider, int &position, int minimum, int step);

/// A click on the right arrow: the same toward \a maximum.
bool stepRight(QAbstractSlider *slider, int &position, int maximum, int step);

} // namespace orvane

#endif // ORVANE_INTERNAL_STEPSCROLL_H
