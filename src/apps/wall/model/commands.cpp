#include "commands.h"

#include <QSet>

#include <algorithm>

namespace wall
{

namespace
{

/// What tells mergeable commands apart.
enum CommandId { MoveId = 1, RotateId, ChangeModelId };

/// "Place cabinet", "Place 3 cabinets".
QString commandText(const QString &verb, int count)
{
    return count == 1 ? verb + QStringLiteral(" cabinet")
                      : QStringLiteral("%1 %2 cabinets").arg(verb).arg(count);
}

QString quoted(const QString &text)
{
    return QLatin1Char('"') + text + QLatin1Char('"');
}

QString portText(const Project &project, const PortRef &port)
{
    const Sender *sender = project.sender(port.senderId);
    return QStringLiteral("port %1 of %2")
        .arg(port.number)
        .arg(quoted(sender ? sender->name : port.senderId));
}

QString unknownModel(const QString &modelId)
{
    return QStringLiteral("There is no model %1.").arg(quoted(modelId));
}

QString unknownPort(const Project &project, const PortRef &port)
{
    if (!project.sender(port.senderId))
        return QStringLiteral("There is no sender %1.").arg(quoted(port.senderId));
    return QStringLiteral("There is no %1.").arg(portText(project, port));
}

bool isCoordinate(int coordinate)
{
    return coordinate >= -maxCoordinate && coordinate <= maxCoordinate;
}

bool isPosition(QPoint position)
{
    return isCoordinate(position.x()) && isCoordinate(position.y());
}

bool isLength(int length)
{
    return length >= minCabinetLength && length <= maxCabinetLength;
}

QString rangeProblem(const QString &what, double value, double maximum, const QString &unit)
{
    // Also true for what is no number.
    if (!(value >= 0.0 && value <= maximum)) {
        return QStringLiteral("%1 has to be from 0 to %2 %3.")
            .arg(what, QString::number(maximum, 'f', 0), unit);
    }
    return {};
}

QString stockCountProblem(int count)
{
    if (count < 0 || count > maxStock) {
        return QStringLiteral("From 0 to %1 cabinets of a model can hang on a port.").arg(maxStock);
    }
    return {};
}

/// Whether two commands of one gesture are about the same things.
template <class Target> bool sameIds(const QVector<Target> &a, const QVector<Target> &b)
{
    return std::equal(a.cbegin(), a.cend(), b.cbegin(), b.cend(),
                      [](const Target &left, const Target &right) { return left.id == right.id; });
}

bool sameTargets(const QVector<CabinetPosition> &a, const QVector<CabinetPosition> &b)
{
    return std::equal(a.cbegin(), a.cend(), b.cbegin(), b.cend(),
                      [](const CabinetPosition &left, const CabinetPosition &right) {
                          return left.position == right.position;
                      });
}

bool sameTargets(const QVector<CabinetRotation> &a, const QVector<CabinetRotation> &b)
{
    return std::equal(a.cbegin(), a.cend(), b.cbegin(), b.cend(),
                      [](const CabinetRotation &left, const CabinetRotation &right) {
                          return left.rotation == right.rotation;
                      });
}

QVector<CabinetPosition> movedBy(const Project &project, const CabinetIds &ids, QPoint delta)
{
    QVector<CabinetPosition> targets;
    targets.reserve(ids.size());
    for (const CabinetId id : ids) {
        if (const PlacedCabinet *cabinet = project.cabinet(id))
            targets.append({id, cabinet->position + delta});
    }
    return targets;
}

QVector<CabinetRotation> rotatedTo(const CabinetIds &ids, int rotation)
{
    QVector<CabinetRotation> targets;
    targets.reserve(ids.size());
    for (const CabinetId id : ids)
        targets.append({id, rotation});
    return targets;
}

} // namespace

int newGesture()
{
    static int last = 0;
    return ++last;
}

QString placementProblem(const Project &project, const QVector<PlacedCabinet> &cabinets)
{
    if (cabinets.size() > maxCabinets - project.cabinetCount())
        return QStringLiteral("A project has at most %1 cabinets.").arg(maxCabinets);
    QHash<QPair<PortRef, QString>, int> needed;
    for (const PlacedCabinet &cabinet : cabinets) {
        const CabinetModel *model = project.model(cabinet.modelId);
        if (!model)
            return unknownModel(cabinet.modelId);
        if (!project.port(cabinet.port))
            return unknownPort(project, cabinet.port);
        if (!isPosition(cabinet.position)) {
            return QStringLiteral("A position has to be from -%1 to %1.").arg(maxCoordinate);
        }
        if (cabinet.rotation != normalizedRotation(cabinet.rotation))
            return QStringLiteral("A rotation has to be from 0 to 359 degrees.");
        const int left = project.leftCount(cabinet.port, cabinet.modelId);
        if (++needed[{cabinet.port, cabinet.modelId}] > left) {
            const QString name = quoted(model->name);
            const QString port = portText(project, cabinet.port);
            if (left == 0)
                return QStringLiteral("No %1 is left on %2.").arg(name, port);
            return QStringLiteral("Only %1 of %2 left on %3.").arg(left).arg(name, port);
        }
    }
    return {};
}

QString modelProblem(const Project &project, const CabinetModel &model)
{
    if (!project.model(model.id))
        return unknownModel(model.id);
    if (!isLength(model.size.width()) || !isLength(model.size.height())) {
        return QStringLiteral("Width and height have to be from %1 to %2 pixels.")
            .arg(minCabinetLength)
            .arg(maxCabinetLength);
    }
    if (!(model.pitch > 0.0 && model.pitch <= maxPitch)) {
        return QStringLiteral("The pitch has to be greater than 0 and at most %1 mm.")
            .arg(maxPitch);
    }
    QString problem =
        rangeProblem(QStringLiteral("The weight"), model.weight, maxWeight, QStringLiteral("kg"));
    if (problem.isEmpty()) {
        problem =
            rangeProblem(QStringLiteral("The power"), model.power, maxPower, QStringLiteral("W"));
    }
    if (problem.isEmpty()) {
        problem = rangeProblem(QStringLiteral("The voltage"), model.voltage, maxVoltage,
                               QStringLiteral("V"));
    }
    return problem;
}

QString senderProblem(const Project &project, const Sender &sender)
{
    if (sender.id.isEmpty())
        return QStringLiteral("A sender has to have an id.");
    if (project.sender(sender.id))
        return QStringLiteral("There is a sender %1 already.").arg(quoted(sender.id));
    QSet<int> numbers;
    for (const Port &port : sender.ports) {
        if (port.number < minPortNumber || port.number > maxPortNumber) {
            return QStringLiteral("A port number has to be from %1 to %2.")
                .arg(minPortNumber)
                .arg(maxPortNumber);
        }
        if (numbers.contains(port.number))
            return QStringLiteral("Port %1 occurs twice.").arg(port.number);
        numbers.insert(port.number);
        QSet<QString> modelIds;
        for (const StockEntry &entry : port.stock) {
            if (!project.model(entry.modelId))
                return unknownModel(entry.modelId);
            if (modelIds.contains(entry.modelId)) {
                return QStringLiteral("Model %1 occurs twice in the stock of port %2.")
                    .arg(quoted(entry.modelId))
                    .arg(port.number);
            }
            modelIds.insert(entry.modelId);
            QString problem = stockCountProblem(entry.count);
            if (!problem.isEmpty())
                return problem;
        }
    }
    return {};
}

QString stockProblem(const Project &project, const PortRef &port, const QString &modelId, int count)
{
    if (!project.port(port))
        return unknownPort(project, port);
    if (!project.model(modelId))
        return unknownModel(modelId);
    const int placed = project.placedCount(port, modelId);
    if (count >= 0 && count < placed) {
        return QStringLiteral("%1 of %2 on %3 are placed.")
            .arg(placed)
            .arg(quoted(project.model(modelId)->name), portText(project, port));
    }
    return stockCountProblem(count);
}

QString lineProblem(const Project &project, const PortRef &port, const CabinetIds &order)
{
    if (!project.port(port))
        return unknownPort(project, port);
    CabinetIds wanted = order;
    CabinetIds present = project.line(port);
    std::sort(wanted.begin(), wanted.end());
    std::sort(present.begin(), present.end());
    if (wanted != present) {
        return QStringLiteral("The data line of %1 has other cabinets.")
            .arg(portText(project, port));
    }
    return {};
}

QPoint possibleMove(const Project &project, const CabinetIds &ids, QPoint delta)
{
    qint64 x = delta.x();
    qint64 y = delta.y();
    for (const CabinetId id : ids) {
        if (const PlacedCabinet *cabinet = project.cabinet(id)) {
            const QPoint position = cabinet->position;
            x = qBound<qint64>(-maxCoordinate - position.x(), x, maxCoordinate - position.x());
            y = qBound<qint64>(-maxCoordinate - position.y(), y, maxCoordinate - position.y());
        }
    }
    return QPoint(int(x), int(y));
}

PlaceCabinetsCommand::PlaceCabinetsCommand(Project *project, const QVector<PlacedCabinet> &cabinets,
                                           QUndoCommand *parent)
    : QUndoCommand(commandText(QStringLiteral("Place"), cabinets.size()), parent)
    , m_project(project)
{
    m_places.reserve(cabinets.size());
    for (const PlacedCabinet &cabinet : cabinets) {
        m_places.append({cabinet, -1});
        m_places.last().cabinet.id = project->takeCabinetId();
    }
    setObsolete(m_places.isEmpty());
}

CabinetIds PlaceCabinetsCommand::ids() const
{
    CabinetIds ids;
    ids.reserve(m_places.size());
    for (const LinePlace &place : m_places)
        ids.append(place.cabinet.id);
    return ids;
}

void PlaceCabinetsCommand::redo()
{
    // Only now is it known how long the lines are: commands before this one may change them.
    QHash<PortRef, int> lengths;
    for (LinePlace &place : m_places) {
        const PortRef &port = place.cabinet.port;
        auto length = lengths.find(port);
        if (length == lengths.end())
            length = lengths.insert(port, m_project->line(port).size());
        place.index = (*length)++;
    }
    m_project->insertCabinets(m_places);
}

void PlaceCabinetsCommand::undo()
{
    m_project->removeCabinets(ids());
}

RemoveCabinetsCommand::RemoveCabinetsCommand(Project *project, const CabinetIds &ids,
                                             QUndoCommand *parent)
    : QUndoCommand(parent)
    , m_project(project)
{
    for (const CabinetId id : ids) {
        if (project->cabinet(id))
            m_ids.append(id);
    }
    setText(commandText(QStringLiteral("Remove"), m_ids.size()));
    setObsolete(m_ids.isEmpty());
}

void RemoveCabinetsCommand::redo()
{
    m_places = m_project->removeCabinets(m_ids);
}

void RemoveCabinetsCommand::undo()
{
    m_project->insertCabinets(m_places);
}

MoveCabinetsCommand::MoveCabinetsCommand(Project *project, const CabinetIds &ids, QPoint delta,
                                         int gesture, QUndoCommand *parent)
    : MoveCabinetsCommand(project, movedBy(*project, ids, delta), gesture, parent)
{
}

MoveCabinetsCommand::MoveCabinetsCommand(Project *project, const QVector<CabinetPosition> &targets,
                                         int gesture, QUndoCommand *parent)
    : QUndoCommand(commandText(QStringLiteral("Move"), targets.size()), parent)
    , m_project(project)
    , m_gesture(gesture)
{
    for (const CabinetPosition &target : targets) {
        Q_ASSERT(isPosition(target.position));
        if (const PlacedCabinet *cabinet = project->cabinet(target.id)) {
            m_before.append({target.id, cabinet->position});
            m_after.append(target);
        }
    }
    setObsolete(sameTargets(m_before, m_after));
}

int MoveCabinetsCommand::id() const
{
    return MoveId;
}

bool MoveCabinetsCommand::mergeWith(const QUndoCommand *other)
{
    const auto *next = static_cast<const MoveCabinetsCommand *>(other);
    if (m_gesture == 0 || next->m_gesture != m_gesture || next->m_project != m_project
        || !sameIds(m_after, next->m_after))
        return false;
    m_after = next->m_after;
    setObsolete(sameTargets(m_before, m_after));
    return true;
}

void MoveCabinetsCommand::redo()
{
    m_project->setPositions(m_after);
}

void MoveCabinetsCommand::undo()
{
    m_project->setPositions(m_before);
}

RotateCabinetsCommand::RotateCabinetsCommand(Project *project, const CabinetIds &ids, int rotation,
                                             int gesture, QUndoCommand *parent)
    : RotateCabinetsCommand(project, rotatedTo(ids, rotation), gesture, parent)
{
}

RotateCabinetsCommand::RotateCabinetsCommand(Project *project,
                                             const QVector<CabinetRotation> &targets, int gesture,
                                             QUndoCommand *parent)
    : QUndoCommand(commandText(QStringLiteral("Rotate"), targets.size()), parent)
    , m_project(project)
    , m_gesture(gesture)
{
    for (const CabinetRotation &target : targets) {
        if (const PlacedCabinet *cabinet = project->cabinet(target.id)) {
            m_before.append({target.id, cabinet->rotation});
            m_after.append({target.id, normalizedRotation(target.rotation)});
        }
    }
    setObsolete(sameTargets(m_before, m_after));
}

int RotateCabinetsCommand::id() const
{
    return RotateId;
}

bool RotateCabinetsCommand::mergeWith(const QUndoCommand *other)
{
    const auto *next = static_cast<const RotateCabinetsCommand *>(other);
    if (m_gesture == 0 || next->m_gesture != m_gesture || next->m_project != m_project
        || !sameIds(m_after, next->m_after))
        return false;
    m_after = next->m_after;
    setObsolete(sameTargets(m_before, m_after));
    return true;
}

void RotateCabinetsCommand::redo()
{
    m_project->setRotations(m_after);
}

void RotateCabinetsCommand::undo()
{
    m_project->setRotations(m_before);
}

ReorderLineCommand::ReorderLineCommand(Project *project, const PortRef &port,
                                       const CabinetIds &order, QUndoCommand *parent)
    : QUndoCommand(QStringLiteral("Reorder data line"), parent)
    , m_project(project)
    , m_port(port)
    , m_before(project->line(port))
    , m_after(order)
{
    setObsolete(m_before == m_after);
}

void ReorderLineCommand::redo()
{
    m_project->setLine(m_port, m_after);
}

void ReorderLineCommand::undo()
{
    m_project->setLine(m_port, m_before);
}

ChangeModelCommand::ChangeModelCommand(Project *project, const CabinetModel &model, int gesture,
                                       QUndoCommand *parent)
    : QUndoCommand(QStringLiteral("Change model"), parent)
    , m_project(project)
    , m_before(*project->model(model.id))
    , m_after(model)
    , m_gesture(gesture)
{
    setObsolete(m_before == m_after);
}

int ChangeModelCommand::id() const
{
    return ChangeModelId;
}

bool ChangeModelCommand::mergeWith(const QUndoCommand *other)
{
    const auto *next = static_cast<const ChangeModelCommand *>(other);
    if (m_gesture == 0 || next->m_gesture != m_gesture || next->m_project != m_project
        || next->m_after.id != m_after.id)
        return false;
    m_after = next->m_after;
    setObsolete(m_before == m_after);
    return true;
}

void ChangeModelCommand::redo()
{
    m_project->setModel(m_after);
}

void ChangeModelCommand::undo()
{
    m_project->setModel(m_before);
}

AddSenderCommand::AddSenderCommand(Project *project, const Sender &sender, int index,
                                   QUndoCommand *parent)
    : QUndoCommand(QStringLiteral("Add sender"), parent)
    , m_project(project)
    , m_sender(sender)
    , m_index(index)
{
}

void AddSenderCommand::redo()
{
    const int end = m_project->senderIds().size();
    m_project->insertSender(m_index < 0 || m_index > end ? end : m_index, m_sender);
}

void AddSenderCommand::undo()
{
    m_project->removeSender(m_sender.id);
}

RemoveSenderCommand::RemoveSenderCommand(Project *project, const QString &senderId,
                                         QUndoCommand *parent)
    : QUndoCommand(QStringLiteral("Remove sender"), parent)
    , m_project(project)
    , m_senderId(senderId)
{
}

void RemoveSenderCommand::redo()
{
    // Commands before this one may change the sender, so it is looked at only now.
    m_sender = *m_project->sender(m_senderId);
    m_index = m_project->senderIndex(m_senderId);
    CabinetIds ids;
    const QVector<PortRef> ports = m_project->portsOf(m_senderId);
    for (const PortRef &port : ports)
        ids += m_project->line(port);
    m_places = m_project->removeCabinets(ids);
    m_project->removeSender(m_senderId);
}

void RemoveSenderCommand::undo()
{
    m_project->insertSender(m_index, m_sender);
    m_project->insertCabinets(m_places);
}

ChangeSenderCommand::ChangeSenderCommand(Project *project, const QString &senderId,
                                         const QString &name, const QString &connection,
                                         bool isOnline, QUndoCommand *parent)
    : QUndoCommand(QStringLiteral("Change sender"), parent)
    , m_project(project)
    , m_senderId(senderId)
    , m_after{name, connection, isOnline}
{
    const Sender *sender = project->sender(senderId);
    m_before = {sender->name, sender->connection, sender->isOnline};
    setObsolete(m_before.name == name && m_before.connection == connection
                && m_before.isOnline == isOnline);
}

ChangeSenderCommand::ChangeSenderCommand(Project *project, const QString &senderId,
                                         const QString &name, QUndoCommand *parent)
    : ChangeSenderCommand(project, senderId, name, project->sender(senderId)->connection,
                          project->sender(senderId)->isOnline, parent)
{
    setText(QStringLiteral("Rename sender"));
}

void ChangeSenderCommand::redo()
{
    apply(m_after);
}

void ChangeSenderCommand::undo()
{
    apply(m_before);
}

void ChangeSenderCommand::apply(const Properties &properties)
{
    m_project->setSenderProperties(m_senderId, properties.name, properties.connection,
                                   properties.isOnline);
}

RenameProjectCommand::RenameProjectCommand(Project *project, const QString &name,
                                           QUndoCommand *parent)
    : QUndoCommand(QStringLiteral("Rename project"), parent)
    , m_project(project)
    , m_before(project->name())
    , m_after(name)
{
    setObsolete(m_before == m_after);
}

void RenameProjectCommand::redo()
{
    m_project->setName(m_after);
}

void RenameProjectCommand::undo()
{
    m_project->setName(m_before);
}

ChangeStockCommand::ChangeStockCommand(Project *project, const PortRef &port,
                                       const QString &modelId, int count, QUndoCommand *parent)
    : QUndoCommand(QStringLiteral("Change stock"), parent)
    , m_project(project)
    , m_port(port)
    , m_before(project->port(port)->stock)
    , m_after(m_before)
{
    const auto entry =
        std::find_if(m_after.begin(), m_after.end(),
                     [&modelId](const StockEntry &each) { return each.modelId == modelId; });
    if (entry != m_after.end())
        entry->count = count;
    else
        m_after.append({modelId, count, {}});
    setObsolete(m_after == m_before);
}

void ChangeStockCommand::redo()
{
    m_project->setStock(m_port, m_after);
}

void ChangeStockCommand::undo()
{
    m_project->setStock(m_port, m_before);
}

} // namespace wall
