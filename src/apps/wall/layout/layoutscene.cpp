#include "layoutscene.h"

#include "layout/cabinetlayer.h"
#include "layout/ghostitem.h"
#include "layout/layoutcolors.h"
#include "layout/linelayer.h"
#include "selection.h"

namespace wall
{

namespace
{

// How far marks on a line and outlines reach beyond what they mark, in pixels of the screen.
constexpr double markReach = 16.0;
// A region of more rectangles costs more than the area that it saves.
constexpr int mostAreas = 48;

QRectF boundsOf(const QVector<QPointF> &points)
{
    // Not QRectF::united(): a line of one cabinet has no area and would be lost.
    return QPolygonF(points).boundingRect();
}

} // namespace

QPointF CabinetShape::center() const
{
    return QPointF(position) + QPointF(size.width(), size.height()) / 2;
}

QPolygonF CabinetShape::outline() const
{
    return cabinetOutline(position, size, rotation);
}

LayoutScene::LayoutScene(Project *project, Selection *selection, QObject *parent)
    : QGraphicsScene(parent)
    , m_project(project)
    , m_selection(selection)
    , m_ghost(new GhostItem)
    , m_currentPort(selection->port())
{
    setItemIndexMethod(NoIndex);
    addItem(new CabinetLayer(this));
    addItem(new LineLayer(this));
    addItem(m_ghost);

    connect(project, &Project::wasReset, this, &LayoutScene::rebuild);
    connect(project, &Project::cabinetsInserted, this, &LayoutScene::insertCabinets);
    connect(project, &Project::cabinetsRemoved, this, &LayoutScene::removeCabinets);
    connect(project, &Project::cabinetsChanged, this, &LayoutScene::updateCabinets);
    connect(project, &Project::lineChanged, this, &LayoutScene::updateLine);
    connect(project, &Project::modelChanged, this, &LayoutScene::updateModel);
    // The colours of ports go by their place in the project.
    connect(project, &Project::senderInserted, this, &LayoutScene::recolorLines);
    connect(project, &Project::senderRemoved, this, &LayoutScene::recolorLines);
    connect(selection, &Selection::cabinetsChanged, this, &LayoutScene::updateSelection);
    connect(selection, &Selection::portChanged, this, [this] {
        m_currentPort = m_selection->port();
        update();
    });
    rebuild();
    updateSelection();
}

LayoutScene::~LayoutScene() = default;

const CabinetShape *LayoutScene::shape(CabinetId id) const
{
    const auto found = m_shapes.constFind(id);
    return found == m_shapes.cend() ? nullptr : &found.value();
}

CabinetIds LayoutScene::cabinetsNear(const QRectF &area) const
{
    return m_index.in(area.toAlignedRect());
}

CabinetIds LayoutScene::cabinetsIn(const QRectF &area) const
{
    CabinetIds ids;
    const CabinetIds near = cabinetsNear(area);
    for (const CabinetId id : near) {
        const CabinetShape &each = *shape(id);
        const bool isTouched = each.rotation == 0 ? area.intersects(QRectF(each.bounds))
                                                  : each.outline().intersects(QPolygonF(area));
        if (isTouched)
            ids.append(id);
    }
    return ids;
}

CabinetId LayoutScene::cabinetAt(const QPointF &place) const
{
    const CabinetIds near = cabinetsNear(QRectF(place, QSizeF(1, 1)));
    for (auto id = near.crbegin(); id != near.crend(); ++id) {
        const CabinetShape &each = *shape(*id);
        const bool isHit = each.rotation == 0
            ? QRectF(each.bounds).contains(place)
            : each.outline().containsPoint(place, Qt::OddEvenFill);
        if (isHit)
            return *id;
    }
    return 0;
}

const QVector<ModelLook> &LayoutScene::models() const
{
    return m_models;
}

const QVector<PortLine> &LayoutScene::lines() const
{
    return m_lines;
}

const PortLine *LayoutScene::lineOf(const PortRef &port) const
{
    const auto slot = m_lineSlots.constFind(port);
    return slot == m_lineSlots.cend() ? nullptr : &m_lines.at(*slot);
}

ViewMode LayoutScene::viewMode() const
{
    return m_viewMode;
}

void LayoutScene::setViewMode(ViewMode mode)
{
    m_viewMode = mode;
    update();
}

LineDisplay LayoutScene::lineDisplay() const
{
    return m_lineDisplay;
}

void LayoutScene::setLineDisplay(LineDisplay display)
{
    m_lineDisplay = display;
    update();
}

bool LayoutScene::isCurrentPortEmphasized() const
{
    return m_isCurrentPortEmphasized;
}

void LayoutScene::setCurrentPortEmphasized(bool emphasized)
{
    m_isCurrentPortEmphasized = emphasized;
    update();
}

bool LayoutScene::isSelected(CabinetId id) const
{
    return m_selected.contains(id);
}

PortRef LayoutScene::currentPort() const
{
    return m_currentPort;
}

bool LayoutScene::isProminent(const PortLine &line) const
{
    const bool isOneInQuestion = m_isPicking || m_isCurrentPortEmphasized;
    return !isOneInQuestion || m_currentPort.number == 0 || line.port == m_currentPort;
}

void LayoutScene::setZoom(double zoom)
{
    m_zoom = zoom;
}

void LayoutScene::setPickedOrder(const CabinetIds &picked, bool isPicking)
{
    m_pickedOrder = picked;
    m_isPicking = isPicking;
    update();
}

CabinetIds LayoutScene::pickedOrder() const
{
    return m_pickedOrder;
}

bool LayoutScene::isPicking() const
{
    return m_isPicking;
}

void LayoutScene::showGhost(const QRect &bounds, bool isPossible)
{
    static_cast<GhostItem *>(m_ghost)->setGhost(bounds, isPossible);
    m_ghost->show();
}

void LayoutScene::hideGhost()
{
    m_ghost->hide();
}

QRect LayoutScene::ghostBounds() const
{
    return m_ghost->isVisible() ? static_cast<GhostItem *>(m_ghost)->ghostBounds() : QRect();
}

void LayoutScene::rebuild()
{
    m_shapes.clear();
    m_index.clear();
    m_models.clear();
    m_modelSlots.clear();
    m_lines.clear();
    m_lineSlots.clear();
    m_pickedOrder.clear();
    hideGhost();

    const QStringList modelIds = m_project->modelIds();
    for (const QString &modelId : modelIds)
        modelSlot(modelId);
    m_shapes.reserve(m_project->cabinetCount());
    insertCabinets(m_project->cabinetIds());
    for (const PortLine &line : qAsConst(m_lines))
        updateLine(line.port);
    update();
}

void LayoutScene::recolorLines()
{
    for (PortLine &line : m_lines) {
        const int index = m_project->senderIndex(line.port.senderId) * maxPortNumber
            + line.port.number - minPortNumber;
        line.fill = layoutcolors::ofPort(qMax(0, index));
        line.color = layoutcolors::ofLine(qMax(0, index));
    }
    update();
}

int LayoutScene::modelSlot(const QString &modelId)
{
    const auto known = m_modelSlots.constFind(modelId);
    if (known != m_modelSlots.cend())
        return *known;
    const int slot = m_models.size();
    const CabinetModel &model = *m_project->model(modelId);
    m_models.append({modelId, model.name, model.size, layoutcolors::ofModel(slot)});
    m_modelSlots.insert(modelId, slot);
    return slot;
}

int LayoutScene::lineSlot(const PortRef &port)
{
    const auto known = m_lineSlots.constFind(port);
    if (known != m_lineSlots.cend())
        return *known;
    const int slot = m_lines.size();
    PortLine line;
    line.port = port;
    m_lines.append(line);
    m_lineSlots.insert(port, slot);
    const int index =
        m_project->senderIndex(port.senderId) * maxPortNumber + port.number - minPortNumber;
    m_lines[slot].fill = layoutcolors::ofPort(index);
    m_lines[slot].color = layoutcolors::ofLine(index);
    return slot;
}

CabinetShape LayoutScene::makeShape(const PlacedCabinet &cabinet)
{
    CabinetShape shape;
    shape.model = modelSlot(cabinet.modelId);
    shape.line = lineSlot(cabinet.port);
    shape.position = cabinet.position;
    shape.size = m_models.at(shape.model).size;
    shape.rotation = cabinet.rotation;
    shape.bounds = cabinetBounds(shape.position, shape.size, shape.rotation);
    return shape;
}

void LayoutScene::insertCabinets(const CabinetIds &ids)
{
    QVector<QRectF> areas;
    areas.reserve(ids.size());
    for (const CabinetId id : ids) {
        const CabinetShape shape = makeShape(*m_project->cabinet(id));
        m_index.insert(id, shape.bounds);
        m_shapes.insert(id, shape);
        areas.append(shape.bounds);
    }
    repaint(areas);
}

void LayoutScene::removeCabinets(const CabinetIds &ids)
{
    QVector<QRectF> areas;
    areas.reserve(ids.size());
    for (const CabinetId id : ids) {
        const CabinetShape shape = m_shapes.take(id);
        m_index.remove(id, shape.bounds);
        areas.append(shape.bounds);
    }
    repaint(areas);
}

void LayoutScene::updateCabinets(const CabinetIds &ids)
{
    QVector<QRectF> areas;
    areas.reserve(ids.size() * 4);
    for (const CabinetId id : ids) {
        CabinetShape &shape = m_shapes[id];
        areas.append(shape.bounds);
        addLineArea(shape, &areas);
        m_index.remove(id, shape.bounds);
        const int place = shape.place;
        shape = makeShape(*m_project->cabinet(id));
        shape.place = place;
        m_index.insert(id, shape.bounds);

        PortLine &line = m_lines[shape.line];
        const QPointF center = shape.center();
        line.points[place] = center;
        // It may stay too large, which costs little; the next change of the line mends it.
        line.bounds.setLeft(qMin(line.bounds.left(), center.x()));
        line.bounds.setRight(qMax(line.bounds.right(), center.x()));
        line.bounds.setTop(qMin(line.bounds.top(), center.y()));
        line.bounds.setBottom(qMax(line.bounds.bottom(), center.y()));
        areas.append(shape.bounds);
        addLineArea(shape, &areas);
    }
    repaint(areas);
}

void LayoutScene::updateLine(const PortRef &port)
{
    PortLine &line = m_lines[lineSlot(port)];
    QVector<QRectF> areas = {line.bounds};
    line.cabinets = m_project->line(port);
    line.points.clear();
    line.points.reserve(line.cabinets.size());
    for (int i = 0; i < line.cabinets.size(); ++i) {
        CabinetShape &shape = m_shapes[line.cabinets.at(i)];
        shape.place = i;
        line.points.append(shape.center());
    }
    line.bounds = boundsOf(line.points);
    areas.append(line.bounds);
    repaint(areas);
}

void LayoutScene::updateModel(const QString &modelId)
{
    const CabinetModel &model = *m_project->model(modelId);
    ModelLook &look = m_models[modelSlot(modelId)];
    look.name = model.name;
    look.size = model.size;
    updateCabinets(m_project->cabinetsOfModel(modelId));
}

void LayoutScene::updateSelection()
{
    const CabinetIds ids = m_selection->cabinets();
    const QSet<CabinetId> before = m_selected;
    m_selected = QSet<CabinetId>(ids.cbegin(), ids.cend());
    QVector<QRectF> areas;
    const auto addChanged = [&](const QSet<CabinetId> &some, const QSet<CabinetId> &others) {
        for (const CabinetId id : some) {
            const CabinetShape *each = others.contains(id) ? nullptr : shape(id);
            if (each)
                areas.append(each->bounds);
        }
    };
    addChanged(before, m_selected);
    addChanged(m_selected, before);
    repaint(areas);
}

void LayoutScene::addLineArea(const CabinetShape &shape, QVector<QRectF> *areas) const
{
    const QVector<QPointF> &points = m_lines.at(shape.line).points;
    const int first = qMax(0, shape.place - 1);
    areas->append(boundsOf(points.mid(first, shape.place + 2 - first)));
}

void LayoutScene::repaint(const QVector<QRectF> &areas)
{
    const double reach = markReach / m_zoom;
    const auto withMarks = [reach](const QRectF &area) {
        return area.adjusted(-reach, -reach, reach, reach);
    };
    if (areas.size() <= mostAreas) {
        for (const QRectF &area : areas)
            update(withMarks(area));
        return;
    }
    QRectF around;
    for (const QRectF &area : areas)
        around |= area;
    update(withMarks(around));
}

} // namespace wall
