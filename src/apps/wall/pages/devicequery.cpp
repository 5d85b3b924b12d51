#include "devicequery.h"

#include <QPointer>
#include <QTimer>

namespace wall
{

DeviceQuery::DeviceQuery(const Answer &answer, int delay, QObject *parent)
    : QObject(parent)
    , m_answer(answer)
    , m_timer(new QTimer(this))
{
    setDelay(delay);
    connect(m_timer, &QTimer::timeout, this, &DeviceQuery::askNext);
}

void DeviceQuery::setDelay(int delay)
{
    m_timer->setInterval(qMax(0, delay));
}

void DeviceQuery::start(const QStringList &ids)
{
    cancel();
    m_waiting = ids;
    m_timer->start();
    Q_EMIT started();
}

void DeviceQuery::cancel()
{
    if (!isRunning())
        return;
    m_timer->stop();
    m_waiting.clear();
    Q_EMIT ended(false);
}

bool DeviceQuery::isRunning() const
{
    return m_timer->isActive();
}

void DeviceQuery::askNext()
{
    if (!m_waiting.isEmpty()) {
        const QPointer<DeviceQuery> self(this);
        const QString id = m_waiting.takeFirst();
        Q_EMIT answered(id, m_answer(id));
        // Whoever hears of it may cancel, start anew or delete the query.
        if (!self || !isRunning())
            return;
    }
    if (m_waiting.isEmpty()) {
        m_timer->stop();
        Q_EMIT ended(true);
    }
}

} // namespace wall
