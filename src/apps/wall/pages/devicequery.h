#ifndef WALL_DEVICEQUERY_H
#define WALL_DEVICEQUERY_H

#include <QObject>
#include <QStringList>

#include <functional>

class QTimer;

namespace wall
{

/**
 * Asks devices, one after the other, whether they are there.
 *
 * It is simulated: a function given by its owner answers in the devices' place, after the delay
 * that a device takes. A program for real devices puts its protocol here and keeps the signals.
 */
class DeviceQuery : public QObject
{
    Q_OBJECT

public:
    /// Whether the device \a id answers.
    using Answer = std::function<bool(const QString &id)>;

    DeviceQuery(const Answer &answer, int delay, QObject *parent = nullptr);

    /// How long a device takes to answer, in milliseconds.
    void setDelay(int delay);
    /// Begins to ask these devices. What is running is cancelled. Without devices it has finished
    /// as soon as the event loop runs.
    void start(const QStringList &ids);
    /// Stops asking; nothing happens when it is not running.
    void cancel();
    bool isRunning() const;

Q_SIGNALS:
    void started();
    /// The device \a id answered, or did not in its time.
    void answered(const QString &id, bool isThere);
    /// The query ended: all devices have been asked, or it was cancelled.
    void ended(bool isComplete);

private:
    void askNext();

    Answer m_answer;
    QTimer *m_timer;
    QStringList m_waiting;
};

} // namespace wall

#endif // WALL_DEVICEQUERY_H
