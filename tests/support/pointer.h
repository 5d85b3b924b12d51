#ifndef ORVANE_TESTS_POINTER_H
#define ORVANE_TESTS_POINTER_H

#include <QPoint>

class QColor;
class QWidget;

/// What a person does with pointer and wheel, sent through the window so that Qt itself finds the
/// receiving widget and makes enter, leave and hover events of it.
namespace pointer
{

/// Shows \a widget's window and waits until it is exposed; false if that never happens.
bool showAndWait(QWidget *widget);

/// Moves the pointer over \a widget, by default over its centre.
void moveTo(QWidget *widget, QPoint position = QPoint(-1, -1));
/// Moves the pointer outside the window of \a widget.
void moveAway(QWidget *widget);
/// Turns the wheel by \a steps notches (positive: away from the user) over \a widget's centre.
void turnWheel(QWidget *widget, int steps);

/// The colour that \a widget, children included, paints at \a position.
QColor colorAt(QWidget *widget, QPoint position);

} // namespace pointer

#endif // ORVANE_TESTS_POINTER_H
