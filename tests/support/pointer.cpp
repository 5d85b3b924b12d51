#include "pointer.h"

#include <QApplication>
#include <QtTest>
#include <QWheelEvent>
#include <QWidget>
#include <QWindow>

namespace pointer
{

bool showAndWait(QWidget *widget)
{
    widget->window()->show();
    return QTest::qWaitForWindowExposed(widget->window());
}

void moveTo(QWidget *widget, QPoint position)
{
    if (position == QPoint(-1, -1))
        position = widget->rect().center();
    QWidget *window = widget->window();
    const QPoint inWindow = widget->mapTo(window, position);
    // Qt drops a move to where the pointer is already, so it comes from one pixel beside.
    QTest::mouseMove(window->windowHandle(), inWindow - QPoint(1, 0));
    QTest::mouseMove(window->windowHandle(), inWindow);
    QCoreApplication::processEvents();
}

void moveAway(QWidget *widget)
{
    QCursor::setPos(widget->window()->frameGeometry().bottomRight() + QPoint(40, 40));
    QCoreApplication::processEvents();
}

void turnWheel(QWidget *widget, int steps)
{
    constexpr int notch = 120; // eighths of a degree, as Qt counts them
    QWidget *window = widget->window();
    const QPoint inWidget = widget->rect().center();
    QWheelEvent event(widget->mapTo(window, inWidget), widget->mapToGlobal(inWidget), QPoint(),
                      QPoint(0, steps * notch), Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase,
                      false);
    // Marked as the window system's own: only such an event goes on to the parent of a widget that
    // ignores it.
    QSpontaneKeyEvent::setSpontaneous(&event);
    qApp->notify(window->windowHandle(), &event);
}

QColor colorAt(QWidget *widget, QPoint position)
{
    const QImage image = widget->grab().toImage();
    return image.pixelColor(position * image.devicePixelRatio());
}

} // namespace pointer
