#ifndef ORVANE_TESTS_POINTERSCRIPT_H
#define ORVANE_TESTS_POINTERSCRIPT_H

#include <QCursor>
#include <QDrag>
#include <QElapsedTimer>
#include <QProcess>
#include <QTimer>
#include <QtTest>

#include <functional>

/// Drives the real pointer of a display through xdotool: a sequence of deeds and of conditions to
/// wait for. It goes on inside the event loop of a drag, where the test function itself is held up,
/// and gives up on a condition that is not met in time.
class PointerScript : public QObject
{
public:
    PointerScript()
    {
        connect(&m_timer, &QTimer::timeout, this, &PointerScript::goOn);
        connect(&m_xdotool, &QProcess::errorOccurred, this,
                [this] { giveUp("xdotool: " + m_xdotool.errorString()); });
    }

    void act(std::function<void()> deed)
    {
        m_steps << Step{QString(), [deed] {
                            deed();
                            return true;
                        }};
    }
    void wait(const QString &what, std::function<bool()> condition)
    {
        m_steps << Step{what, std::move(condition)};
    }
    /// Moves the pointer to \a place on the screen.
    void move(QPoint place)
    {
        xdotool({"mousemove", QString::number(place.x()), QString::number(place.y())});
        wait("the pointer is there", [place] { return QCursor::pos() == place; });
    }
    void press() { xdotool({"mousedown", "1"}); }
    void release() { xdotool({"mouseup", "1"}); }

    /// Runs all steps; what went wrong, or nothing.
    QString run()
    {
        QObject watch; // over a drag that does not end, and so never lets this function go on
        QTimer::singleShot(60000, &watch, [] { qFatal("a drag does not end"); });
        m_timer.start(1);
        m_patience.start();
        while (m_timer.isActive())
            QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
        return m_failure;
    }

private:
    struct Step {
        QString what;
        std::function<bool()> isDone;
    };

    void xdotool(const QStringList &arguments)
    {
        act([this, arguments] { m_xdotool.start("xdotool", arguments); });
        wait("xdotool " + arguments.join(' '), [this] {
            return m_xdotool.state() == QProcess::NotRunning
                && m_xdotool.exitStatus() == QProcess::NormalExit && m_xdotool.exitCode() == 0;
        });
    }

    void goOn()
    {
        if (m_isBusy) // a deed has an event loop of its own
            return;
        m_isBusy = true;
        while (m_next < m_steps.size() && m_timer.isActive() && m_steps.at(m_next).isDone()) {
            ++m_next;
            m_patience.restart();
        }
        m_isBusy = false;
        if (m_next == m_steps.size())
            m_timer.stop();
        else if (m_patience.hasExpired(20000))
            giveUp("waited in vain: " + m_steps.at(m_next).what);
    }

    void giveUp(const QString &why)
    {
        m_failure = why;
        m_timer.stop();
        QDrag::cancel(); // ends a drag that holds up the test function
    }

    QTimer m_timer;
    QProcess m_xdotool;
    QElapsedTimer m_patience;
    QList<Step> m_steps;
    int m_next = 0;
    bool m_isBusy = false;
    QString m_failure;
};

#endif // ORVANE_TESTS_POINTERSCRIPT_H
