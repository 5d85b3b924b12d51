#ifndef ORVANE_TESTS_WINDOWMOUSE_H
#define ORVANE_TESTS_WINDOWMOUSE_H

#include <QPoint>
#include <QtTest>
#include <QWidget>
#include <QWindow>

/// Mouse buttons over a shown widget, sent through its window, so that Qt itself finds the widget
/// that receives them and passes on what that one ignores. The positions are the widget's, by
/// default its centre.
namespace windowmouse
{

inline QPoint inWindow(const QWidget *widget, QPoint position)
{
    if (position == QPoint(-1, -1))
        position = widget->rect().center();
    return widget->mapTo(widget->window(), position);
}

inline void press(QWidget *widget, Qt::MouseButton button = Qt::LeftButton,
                  QPoint position = QPoint(-1, -1))
{
    QTest::mousePress(widget->window()->windowHandle(), button, Qt::NoModifier,
                      inWindow(widget, position));
}

inline void release(QWidget *widget, Qt::MouseButton button = Qt::LeftButton,
                    QPoint position = QPoint(-1, -1))
{
    QTest::mouseRelease(widget->window()->windowHandle(), button, Qt::NoModifier,
                        inWindow(widget, position));
}

/// A press and a release. The widget may be gone after the press.
inline void click(QWidget *widget, Qt::MouseButton button = Qt::LeftButton,
                  QPoint position = QPoint(-1, -1))
{
    QTest::mouseClick(widget->window()->windowHandle(), button, Qt::NoModifier,
                      inWindow(widget, position));
}

} // namespace windowmouse

#endif // ORVANE_TESTS_WINDOWMOUSE_H
