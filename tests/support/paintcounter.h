#ifndef ORVANE_TESTS_PAINTCOUNTER_H
#define ORVANE_TESTS_PAINTCOUNTER_H

#include <QCoreApplication>
#include <QEvent>
#include <QObject>
#include <QWidget>

/// Counts how often a shown widget is painted from now on, what is due already apart.
class PaintCounter : public QObject
{
public:
    explicit PaintCounter(QWidget *widget)
    {
        QCoreApplication::processEvents();
        widget->installEventFilter(this);
    }

    int count = 0;

    bool eventFilter(QObject *, QEvent *event) override
    {
        if (event->type() == QEvent::Paint)
            ++count;
        return false;
    }
};

#endif // ORVANE_TESTS_PAINTCOUNTER_H
