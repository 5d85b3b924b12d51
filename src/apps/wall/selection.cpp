#include "selection.h"

namespace wall
{

Selection::Selection(Project *project, QObject *parent)
    : QObject(parent)
    , m_project(project)
{
    connect(project, &Project::wasReset, this, [this] {
        clear();
        setPort(PortRef());
    });
    connect(project, &Project::cabinetsRemoved, this, &Selection::dropUnknown);
    connect(project, &Project::senderRemoved, this, [this](const QString &senderId) {
        if (m_port.senderId == senderId)
            setPort(PortRef());
    });
}

CabinetIds Selection::cabinets() const
{
    return CabinetIds(m_cabinets.cbegin(), m_cabinets.cend());
}

bool Selection::isEmpty() const
{
    return m_cabinets.isEmpty();
}

bool Selection::contains(CabinetId id) const
{
    return m_cabinets.contains(id);
}

void Selection::setCabinets(const CabinetIds &ids)
{
    QSet<CabinetId> cabinets;
    cabinets.reserve(ids.size());
    for (CabinetId id : ids) {
        if (m_project->cabinet(id))
            cabinets.insert(id);
    }
    if (cabinets == m_cabinets)
        return;
    m_cabinets = cabinets;
    Q_EMIT cabinetsChanged();
}

void Selection::clear()
{
    setCabinets({});
}

PortRef Selection::port() const
{
    return m_port;
}

void Selection::setPort(const PortRef &port)
{
    const PortRef known = m_project->port(port) ? port : PortRef();
    if (known == m_port)
        return;
    m_port = known;
    Q_EMIT portChanged();
}

void Selection::dropUnknown()
{
    setCabinets(cabinets());
}

} // namespace wall
