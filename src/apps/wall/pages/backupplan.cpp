#include "backupplan.h"

#include <QCoreApplication>

#include <algorithm>

namespace wall
{

namespace
{

QString tr(const char *text)
{
    return QCoreApplication::translate("wall::BackupPlan", text);
}

/// Takes the port that backs up \a port out of the free ones; number 0 if there is none.
PortRef takeBackup(QVector<PortRef> *freePorts, const PortRef &port)
{
    const auto isElsewhere = [&port](const PortRef &other) {
        return other.senderId != port.senderId;
    };
    auto backup = std::find_if(freePorts->begin(), freePorts->end(), isElsewhere);
    if (backup == freePorts->end())
        backup = freePorts->begin();
    if (backup == freePorts->end())
        return {};
    const PortRef taken = *backup;
    freePorts->erase(backup);
    return taken;
}

QString stateText(const Project &project, const PortRef &port, const PortRef &backup)
{
    if (backup.number == 0)
        return tr("No free port");
    const bool isReady =
        project.sender(port.senderId)->isOnline && project.sender(backup.senderId)->isOnline;
    return isReady ? tr("Ready") : tr("Offline");
}

} // namespace

QString portName(const Project &project, const PortRef &port)
{
    const Sender *sender = project.sender(port.senderId);
    return sender ? tr("%1 / %2").arg(sender->name).arg(port.number) : QString();
}

QString portKindName(PortKind kind)
{
    return kind == PortKind::Coaxial ? tr("Coaxial") : tr("Network");
}

QList<BackUpParam> backupPlan(const Project &project)
{
    QVector<PortRef> used;
    QVector<PortRef> freeNetwork;
    QVector<PortRef> freeCoaxial;
    const auto freePorts = [&](const PortRef &port) {
        return project.port(port)->kind == PortKind::Coaxial ? &freeCoaxial : &freeNetwork;
    };
    const QStringList senderIds = project.senderIds();
    for (const QString &senderId : senderIds) {
        const QVector<PortRef> ports = project.portsOf(senderId);
        for (const PortRef &port : ports) {
            if (project.line(port).isEmpty())
                freePorts(port)->append(port);
            else
                used.append(port);
        }
    }

    QList<BackUpParam> records;
    for (const PortRef &port : qAsConst(used)) {
        const PortRef backup = takeBackup(freePorts(port), port);
        BackUpParam record;
        record.firstText = portName(project, port);
        record.secondText = backup.number == 0 ? QString() : portName(project, backup);
        record.thirdText = portKindName(project.port(port)->kind);
        record.fourthText = stateText(project, port, backup);
        records.append(record);
    }
    return records;
}

} // namespace wall
