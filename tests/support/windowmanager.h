#ifndef TESTS_WINDOWMANAGER_H
#define TESTS_WINDOWMANAGER_H

#include <QGuiApplication>
#include <QProcess>
#include <QTemporaryDir>
#include <QtTest>
#include <QWidget>

inline constexpr int patience = 20000; // milliseconds

/// Runs xdotool to its end; true if it did what it was asked for.
inline bool xdotool(const QStringList &arguments)
{
    QProcess process;
    process.setProcessChannelMode(QProcess::MergedChannels);
    process.start("xdotool", arguments);
    return process.waitForFinished(patience) && process.exitStatus() == QProcess::NormalExit
        && process.exitCode() == 0;
}

/// True when \a window is active, for Qt and for the window manager, which gives it keys.
inline bool waitUntilActive(QWidget *window)
{
    const auto isActiveOnDisplay = [window] {
        QProcess process;
        process.start("xdotool", {"getactivewindow"});
        return process.waitForFinished(patience)
            && process.readAllStandardOutput().trimmed().toULongLong() == window->winId();
    };
    return QTest::qWaitForWindowActive(window, patience)
        && QTest::qWaitFor(isActiveOnDisplay, patience);
}

/// A window manager with none of the settings of whoever runs the test.
class WindowManager
{
public:
    ~WindowManager() { stop(); }

    /// Starts it and waits until it announces itself on the display; what went wrong, or nothing.
    QString start()
    {
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        for (const char *name : {"HOME", "XDG_CONFIG_HOME", "XDG_CACHE_HOME", "XDG_DATA_HOME"})
            environment.insert(name, m_home.path());
        m_process.setProcessEnvironment(environment);
        m_process.setProcessChannelMode(QProcess::MergedChannels);
        m_process.start("openbox", {"--sm-disable"});
        if (!m_process.waitForStarted(patience))
            return "openbox: " + m_process.errorString();
        // Only a window manager has desktops.
        const bool isThere = QTest::qWaitFor(
            [this] {
                return m_process.state() == QProcess::NotRunning || xdotool({"get_num_desktops"});
            },
            patience);
        if (m_process.state() == QProcess::NotRunning)
            return "openbox ended: " + QString::fromLocal8Bit(m_process.readAll());
        return isThere ? QString() : "openbox does not announce itself";
    }

    void stop()
    {
        if (m_process.state() == QProcess::NotRunning)
            return;
        m_process.terminate();
        if (!m_process.waitForFinished(patience)) {
            m_process.kill();
            m_process.waitForFinished();
        }
    }

    bool isRunning() const { return m_process.state() == QProcess::Running; }

private:
    QTemporaryDir m_home;
    QProcess m_process;
};

#endif // TESTS_WINDOWMANAGER_H
