#ifndef EXAMPLES_ONCE_H
#define EXAMPLES_ONCE_H

#include <QApplication>
#include <QTimer>
#include <QWidget>
#include <QWindow>

/// With the option --once an example ends by itself, with 0, as soon as \a isReached says that it
/// has come as far as it should. Tests start it so.
template <class Reached> void quitOnce(const Reached &isReached)
{
    if (!QApplication::arguments().contains(QStringLiteral("--once")))
        return;
    auto *timer = new QTimer(qApp);
    QObject::connect(timer, &QTimer::timeout, qApp, [isReached] {
        if (isReached())
            QApplication::quit();
    });
    timer->start(10);
}

/// Whether \a window is on the screen.
inline bool isOnScreen(const QWidget *window)
{
    return window && window->windowHandle() && window->windowHandle()->isExposed();
}

#endif // EXAMPLES_ONCE_H
