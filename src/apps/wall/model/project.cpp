#include "project.h"

#include <algorithm>

namespace wall
{

namespace
{

void count(std::map<int, int> *edges, int edge)
{
    ++(*edges)[edge];
}

void uncount(std::map<int, int> *edges, int edge)
{
    const auto found = edges->find(edge);
    Q_ASSERT(found != edges->end());
    if (--found->second == 0)
        edges->erase(found);
}

/// Those of \a ids that \a others have too, in the order of \a ids.
QStringList common(const QStringList &ids, const QSet<QString> &others)
{
    QStringList both;
    for (const QString &id : ids) {
        if (others.contains(id))
            both.append(id);
    }
    return both;
}

QStringList modelIdsOf(const QVector<StockEntry> &stock)
{
    QStringList ids;
    for (const StockEntry &entry : stock)
        ids.append(entry.modelId);
    return ids;
}

QSet<QString> asSet(const QStringList &ids)
{
    return QSet<QString>(ids.cbegin(), ids.cend());
}

} // namespace

/// What a change has to tell when it is through, each thing once and in the order in which it came.
struct Project::Change {
    explicit Change(const Project &project)
        : boundsBefore(project.bounds())
    {
    }

    void addLine(const PortRef &port)
    {
        if (!knownLines.contains(port)) {
            knownLines.insert(port);
            lines.append(port);
        }
    }

    void addStock(const PortRef &port, const QString &modelId)
    {
        const QPair<PortRef, QString> stock(port, modelId);
        if (!knownStocks.contains(stock)) {
            knownStocks.insert(stock);
            stocks.append(stock);
        }
    }

    QRect boundsBefore;
    CabinetIds inserted;
    CabinetIds removed;
    CabinetIds changed;
    QVector<PortRef> lines;
    QVector<QPair<PortRef, QString>> stocks;
    bool isTotalsChanged = false;

private:
    QSet<PortRef> knownLines;
    QSet<QPair<PortRef, QString>> knownStocks;
};

Project::Project(QObject *parent)
    : QObject(parent)
{
    qRegisterMetaType<PortRef>("wall::PortRef");
    qRegisterMetaType<CabinetIds>("wall::CabinetIds");
}

Project::~Project() = default;

ProjectData Project::data() const
{
    ProjectData data;
    data.name = m_name;
    data.extra = m_extra;
    for (const QString &modelId : m_modelIds)
        data.models.append(m_models.value(modelId).model);
    for (const QString &senderId : m_senderIds)
        data.senders.append(m_senders.value(senderId));
    const CabinetIds ids = cabinetIds();
    data.cabinets.reserve(ids.size());
    for (const CabinetId id : ids) {
        data.cabinets.append(m_cabinets.value(id));
        data.cabinets.last().id = 0;
    }
    return data;
}

QString Project::name() const
{
    return m_name;
}

QStringList Project::modelIds() const
{
    return m_modelIds;
}

const CabinetModel *Project::model(const QString &modelId) const
{
    const auto found = m_models.constFind(modelId);
    return found == m_models.cend() ? nullptr : &found->model;
}

CabinetIds Project::cabinetsOfModel(const QString &modelId) const
{
    const auto found = m_models.constFind(modelId);
    if (found == m_models.cend())
        return {};
    return CabinetIds(found->cabinets.cbegin(), found->cabinets.cend());
}

QStringList Project::senderIds() const
{
    return m_senderIds;
}

const Sender *Project::sender(const QString &senderId) const
{
    const auto found = m_senders.constFind(senderId);
    return found == m_senders.cend() ? nullptr : &found.value();
}

int Project::senderIndex(const QString &senderId) const
{
    return m_senderIds.indexOf(senderId);
}

const Port *Project::port(const PortRef &port) const
{
    const auto found = m_ports.constFind(port);
    if (found == m_ports.cend())
        return nullptr;
    return &m_senders.constFind(port.senderId)->ports.at(found->index);
}

QVector<PortRef> Project::portsOf(const QString &senderId) const
{
    QVector<PortRef> ports;
    if (const Sender *owner = sender(senderId)) {
        for (const Port &port : owner->ports)
            ports.append({owner->id, port.number});
    }
    return ports;
}

int Project::cabinetCount() const
{
    return m_cabinets.size();
}

const PlacedCabinet *Project::cabinet(CabinetId id) const
{
    const auto found = m_cabinets.constFind(id);
    return found == m_cabinets.cend() ? nullptr : &found.value();
}

CabinetIds Project::cabinetIds() const
{
    CabinetIds ids;
    ids.reserve(m_cabinets.size());
    for (const QString &senderId : m_senderIds) {
        const QVector<PortRef> ports = portsOf(senderId);
        for (const PortRef &port : ports)
            ids += line(port);
    }
    return ids;
}

QRect Project::boundsOf(CabinetId id) const
{
    const PlacedCabinet *placed = cabinet(id);
    return placed ? boundsOf(*placed) : QRect();
}

CabinetIds Project::line(const PortRef &port) const
{
    const auto found = m_ports.constFind(port);
    return found == m_ports.cend() ? CabinetIds() : found->line;
}

int Project::stockCount(const PortRef &port, const QString &modelId) const
{
    const auto found = m_ports.constFind(port);
    return found == m_ports.cend() ? 0 : found->hanging.value(modelId);
}

int Project::placedCount(const PortRef &port, const QString &modelId) const
{
    const auto found = m_ports.constFind(port);
    return found == m_ports.cend() ? 0 : found->placed.value(modelId);
}

int Project::leftCount(const PortRef &port, const QString &modelId) const
{
    return stockCount(port, modelId) - placedCount(port, modelId);
}

Totals Project::totals() const
{
    // Summed up by model, so that no rounding errors pile up while cabinets come and go.
    Totals totals;
    for (const QString &modelId : m_modelIds) {
        const ModelState &state = *m_models.constFind(modelId);
        const int placed = state.cabinets.size();
        const QSize size = state.model.size;
        totals.cabinets += placed;
        totals.pixels += qint64(placed) * size.width() * size.height();
        totals.weight += placed * state.model.weight;
        totals.power += placed * state.model.power;
    }
    return totals;
}

QRect Project::bounds() const
{
    if (m_edges.left.empty())
        return {};
    const int left = m_edges.left.cbegin()->first;
    const int top = m_edges.top.cbegin()->first;
    const int right = m_edges.right.crbegin()->first;
    const int bottom = m_edges.bottom.crbegin()->first;
    return QRect(left, top, right - left, bottom - top);
}

CabinetId Project::takeCabinetId()
{
    return ++m_lastCabinetId;
}

qint64 Project::workDone() const
{
    return m_workDone;
}

void Project::reset(const ProjectData &data)
{
    m_name = data.name;
    m_extra = data.extra;
    m_modelIds.clear();
    m_models.clear();
    m_senderIds.clear();
    m_senders.clear();
    m_ports.clear();
    m_cabinets.clear();
    m_edges = Edges();

    for (const CabinetModel &model : data.models) {
        m_modelIds.append(model.id);
        m_models.insert(model.id, {model, {}});
    }
    for (const Sender &sender : data.senders) {
        m_senderIds.append(sender.id);
        m_senders.insert(sender.id, sender);
        addPorts(sender);
    }
    m_cabinets.reserve(data.cabinets.size());
    for (PlacedCabinet cabinet : data.cabinets) {
        cabinet.id = takeCabinetId();
        enter(cabinet);
        m_ports[cabinet.port].line.append(cabinet.id);
    }
    Q_EMIT wasReset();
}

void Project::setName(const QString &name)
{
    if (name == m_name)
        return;
    m_name = name;
    Q_EMIT nameChanged();
}

void Project::insertCabinets(const QVector<LinePlace> &places)
{
    Change change(*this);
    change.isTotalsChanged = !places.isEmpty();
    change.inserted.reserve(places.size());
    QHash<PortRef, QVector<LinePlace>> placesOfPort;
    for (const LinePlace &place : places) {
        const PlacedCabinet &cabinet = place.cabinet;
        Q_ASSERT(cabinet.id > 0 && !m_cabinets.contains(cabinet.id));
        enter(cabinet);
        placesOfPort[cabinet.port].append(place);
        change.inserted.append(cabinet.id);
        change.addLine(cabinet.port);
        change.addStock(cabinet.port, cabinet.modelId);
    }
    for (const PortRef &port : qAsConst(change.lines)) {
        const QVector<LinePlace> added = placesOfPort.value(port);
        CabinetIds &line = m_ports[port].line;
        CabinetIds merged;
        merged.reserve(line.size() + added.size());
        auto rest = line.cbegin();
        for (const LinePlace &place : added) {
            while (merged.size() < place.index && rest != line.cend())
                merged.append(*rest++);
            merged.append(place.cabinet.id);
        }
        std::copy(rest, line.cend(), std::back_inserter(merged));
        m_workDone += merged.size();
        line = merged;
    }
    tell(change);
}

QVector<LinePlace> Project::removeCabinets(const CabinetIds &ids)
{
    Change change(*this);
    QHash<PortRef, QSet<CabinetId>> idsOfPort;
    for (const CabinetId id : ids) {
        if (const PlacedCabinet *placed = cabinet(id)) {
            idsOfPort[placed->port].insert(id);
            change.addLine(placed->port);
        }
    }

    QVector<LinePlace> places;
    places.reserve(ids.size());
    for (const PortRef &port : qAsConst(change.lines)) {
        const QSet<CabinetId> leaving = idsOfPort.value(port);
        PortState &state = m_ports[port];
        CabinetIds kept;
        kept.reserve(state.line.size());
        for (int i = 0; i < state.line.size(); ++i) {
            const CabinetId id = state.line.at(i);
            if (!leaving.contains(id)) {
                kept.append(id);
                continue;
            }
            const PlacedCabinet cabinet = m_cabinets.take(id);
            removeBounds(boundsOf(cabinet));
            m_models[cabinet.modelId].cabinets.remove(id);
            --state.placed[cabinet.modelId];
            change.removed.append(id);
            change.addStock(port, cabinet.modelId);
            places.append({cabinet, i});
        }
        m_workDone += state.line.size();
        state.line = kept;
    }
    change.isTotalsChanged = !places.isEmpty();
    tell(change);
    return places;
}

void Project::setPositions(const QVector<CabinetPosition> &positions)
{
    Change change(*this);
    for (const CabinetPosition &target : positions) {
        ++m_workDone;
        const auto found = m_cabinets.find(target.id);
        if (found == m_cabinets.end() || found->position == target.position)
            continue;
        removeBounds(boundsOf(*found));
        found->position = target.position;
        addBounds(boundsOf(*found));
        change.changed.append(target.id);
    }
    tell(change);
}

void Project::setRotations(const QVector<CabinetRotation> &rotations)
{
    Change change(*this);
    for (const CabinetRotation &target : rotations) {
        ++m_workDone;
        const auto found = m_cabinets.find(target.id);
        if (found == m_cabinets.end() || found->rotation == target.rotation)
            continue;
        removeBounds(boundsOf(*found));
        found->rotation = target.rotation;
        addBounds(boundsOf(*found));
        change.changed.append(target.id);
    }
    tell(change);
}

void Project::setLine(const PortRef &port, const CabinetIds &ids)
{
    const auto found = m_ports.find(port);
    Q_ASSERT(found != m_ports.end());
    Q_ASSERT(
        std::is_permutation(ids.cbegin(), ids.cend(), found->line.cbegin(), found->line.cend()));
    if (found->line == ids)
        return;
    m_workDone += ids.size();
    found->line = ids;
    Q_EMIT lineChanged(port);
}

void Project::setModel(const CabinetModel &model)
{
    const auto found = m_models.find(model.id);
    Q_ASSERT(found != m_models.end());
    const CabinetModel before = found->model;
    if (model == before)
        return;
    Change change(*this);
    const bool isResized = model.size != before.size;
    if (isResized) {
        for (const CabinetId id : qAsConst(found->cabinets)) {
            const PlacedCabinet &cabinet = *m_cabinets.constFind(id);
            ++m_workDone;
            removeBounds(cabinetBounds(cabinet.position, before.size, cabinet.rotation));
            addBounds(cabinetBounds(cabinet.position, model.size, cabinet.rotation));
        }
    }
    found->model = model;
    change.isTotalsChanged = !found->cabinets.isEmpty()
        && (isResized || model.weight != before.weight || model.power != before.power);
    Q_EMIT modelChanged(model.id);
    tell(change);
}

void Project::insertSender(int index, const Sender &sender)
{
    Q_ASSERT(!m_senders.contains(sender.id));
    m_senderIds.insert(qBound(0, index, m_senderIds.size()), sender.id);
    m_senders.insert(sender.id, sender);
    addPorts(sender);
    Q_EMIT senderInserted(sender.id);
}

void Project::removeSender(const QString &senderId)
{
    if (!m_senders.contains(senderId))
        return;
    const Sender sender = m_senders.take(senderId);
    m_senderIds.removeOne(senderId);
    removePorts(sender);
    Q_EMIT senderRemoved(sender.id);
}

void Project::setSenderProperties(const QString &senderId, const QString &name,
                                  const QString &connection, bool isOnline)
{
    const auto found = m_senders.find(senderId);
    Q_ASSERT(found != m_senders.end());
    if (found->name == name && found->connection == connection && found->isOnline == isOnline)
        return;
    found->name = name;
    found->connection = connection;
    found->isOnline = isOnline;
    Q_EMIT senderChanged(found->id);
}

void Project::setStock(const PortRef &port, const QVector<StockEntry> &stock)
{
    const auto state = m_ports.find(port);
    Q_ASSERT(state != m_ports.end());
    QVector<StockEntry> &present = m_senders[port.senderId].ports[state->index].stock;
    const QStringList before = modelIdsOf(present);
    const QStringList after = modelIdsOf(stock);
    const QSet<QString> setBefore = asSet(before);
    const QSet<QString> setAfter = asSet(after);
    const bool isReordered = common(before, setAfter) != common(after, setBefore);

    Change change(*this);
    for (const QString &modelId : before) {
        if (!setAfter.contains(modelId)) {
            Q_ASSERT(state->placed.value(modelId) == 0);
            state->hanging.remove(modelId);
            change.addStock(port, modelId);
        }
    }
    for (const StockEntry &entry : stock) {
        ++m_workDone;
        Q_ASSERT(entry.count >= state->placed.value(entry.modelId));
        const bool isNew = !setBefore.contains(entry.modelId);
        if (isNew || isReordered || state->hanging.value(entry.modelId) != entry.count)
            change.addStock(port, entry.modelId);
        state->hanging.insert(entry.modelId, entry.count);
    }
    present = stock;
    tell(change);
}

void Project::addPorts(const Sender &sender)
{
    for (int i = 0; i < sender.ports.size(); ++i) {
        const Port &port = sender.ports.at(i);
        PortState state;
        state.index = i;
        for (const StockEntry &entry : port.stock)
            state.hanging.insert(entry.modelId, entry.count);
        m_ports.insert({sender.id, port.number}, state);
        m_workDone += 1 + port.stock.size();
    }
}

void Project::removePorts(const Sender &sender)
{
    for (const Port &port : sender.ports) {
        const PortState state = m_ports.take({sender.id, port.number});
        Q_ASSERT(state.line.isEmpty());
        m_workDone += 1 + port.stock.size();
    }
}

/// Makes a cabinet known everywhere but in its data line.
void Project::enter(const PlacedCabinet &cabinet)
{
    Q_ASSERT(m_ports.contains(cabinet.port) && m_models.contains(cabinet.modelId));
    ++m_workDone;
    m_cabinets.insert(cabinet.id, cabinet);
    m_models[cabinet.modelId].cabinets.insert(cabinet.id);
    ++m_ports[cabinet.port].placed[cabinet.modelId];
    addBounds(boundsOf(cabinet));
}

QRect Project::boundsOf(const PlacedCabinet &cabinet) const
{
    const CabinetModel &model = m_models.constFind(cabinet.modelId)->model;
    return cabinetBounds(cabinet.position, model.size, cabinet.rotation);
}

void Project::addBounds(const QRect &bounds)
{
    count(&m_edges.left, bounds.x());
    count(&m_edges.top, bounds.y());
    count(&m_edges.right, bounds.x() + bounds.width());
    count(&m_edges.bottom, bounds.y() + bounds.height());
}

void Project::removeBounds(const QRect &bounds)
{
    uncount(&m_edges.left, bounds.x());
    uncount(&m_edges.top, bounds.y());
    uncount(&m_edges.right, bounds.x() + bounds.width());
    uncount(&m_edges.bottom, bounds.y() + bounds.height());
}

void Project::tell(const Change &change)
{
    if (!change.inserted.isEmpty())
        Q_EMIT cabinetsInserted(change.inserted);
    if (!change.removed.isEmpty())
        Q_EMIT cabinetsRemoved(change.removed);
    if (!change.changed.isEmpty())
        Q_EMIT cabinetsChanged(change.changed);
    for (const PortRef &port : change.lines)
        Q_EMIT lineChanged(port);
    for (const auto &stock : change.stocks)
        Q_EMIT stockChanged(stock.first, stock.second);
    if (change.isTotalsChanged)
        Q_EMIT totalsChanged();
    if (bounds() != change.boundsBefore)
        Q_EMIT boundsChanged();
}

} // namespace wall
