#include "layoutview.h"

#include "document.h"
#include "layout/freeplace.h"
#include "layout/layoutcolors.h"
#include "layout/snapping.h"
#include "model/cabinetrecord.h"
#include "model/commands.h"
#include "selection.h"

#include <theme.h>

#include <QApplication>
#include <QDragEnterEvent>
#include <QKeyEvent>
#include <QMimeData>
#include <QPainter>
#include <QRubberBand>
#include <QScrollBar>
#include <QToolTip>
#include <QUndoStack>
#include <QWheelEvent>

#include <cmath>
#include <cstring>

namespace wall
{

namespace
{

const QString cabinetFormat = QStringLiteral("CabinetInfo");
constexpr QRect emptyWall(0, 0, 1920, 1080); ///< What is shown of a wall without cabinets.
constexpr double fitMargin = 24.0; ///< Around a wall that is fitted, in pixels of the screen.
constexpr double largestFit = 2.0;
constexpr int snapReach = 8; ///< In pixels of the screen.
constexpr int neighbourReach = 200; ///< How far cabinets are that edges snap to, likewise.
constexpr double leastGridDistance = 12.0; ///< Of its lines on the screen.
constexpr int mainLineEvery = 4;
constexpr double wheelNotch = 120.0;
constexpr int mostScrollStep = 40; ///< Of a pointer that is dragged outside.
constexpr double leastLevelZoom = 0.01; ///< Of level 0; a slider need not go farther.

/// The drag's bytes are those of a record that is still alive: copying it shares its texts.
StructCabinet recordIn(const QByteArray &bytes)
{
    alignas(StructCabinet) char image[sizeof(StructCabinet)];
    std::memcpy(image, bytes.constData(), sizeof image);
    return *reinterpret_cast<const StructCabinet *>(image);
}

QPoint arrowDirection(int key)
{
    switch (key) {
    case Qt::Key_Left:
        return QPoint(-1, 0);
    case Qt::Key_Right:
        return QPoint(1, 0);
    case Qt::Key_Up:
        return QPoint(0, -1);
    case Qt::Key_Down:
        return QPoint(0, 1);
    default:
        return QPoint();
    }
}

/// The distance at which grid lines are drawn: every one of them, or every second, fourth, ...
double drawnGridDistance(int gridSize, double zoom)
{
    double distance = gridSize;
    while (distance * zoom < leastGridDistance)
        distance *= 2;
    return distance;
}

} // namespace

LayoutView::LayoutView(Document *document, Selection *selection, QWidget *parent)
    : QGraphicsView(parent)
    , m_document(document)
    , m_project(document->project())
    , m_selection(selection)
    , m_scene(new LayoutScene(m_project, selection, this))
    , m_rubberBand(new QRubberBand(QRubberBand::Rectangle, viewport()))
{
    setScene(m_scene);
    setAccessibleName(QStringLiteral("Wall layout"));
    setFrameShape(QFrame::NoFrame);
    setFocusPolicy(Qt::StrongFocus);
    setMouseTracking(true);
    viewport()->setMouseTracking(true);
    setAcceptDrops(true);
    setInteractive(false); // the items are pictures only
    // The view scrolls and zooms by itself, around the pointer.
    setTransformationAnchor(NoAnchor);
    setResizeAnchor(NoAnchor);
    setAlignment(Qt::AlignLeft | Qt::AlignTop);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
    setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
    theme::styleScrollBars(this);
    auto *corner = new QWidget;
    corner->setPalette(QPalette(theme::ground));
    corner->setAutoFillBackground(true);
    setCornerWidget(corner);
    // Only what changed is painted, and the layers restore the painter themselves.
    setViewportUpdateMode(MinimalViewportUpdate);
    setOptimizationFlags(DontSavePainterState | DontAdjustForAntialiasing);

    connect(m_project, &Project::boundsChanged, this, &LayoutView::updateSceneRect);
    connect(m_project, &Project::wasReset, this, [this] {
        cancelGesture();
        abandonOrdering();
        zoomToFit();
    });
    connect(m_project, &Project::cabinetsRemoved, this, [this] {
        if (m_gesture == Gesture::Move || m_gesture == Gesture::Press)
            endGesture(); // what is moved may be gone
    });
    connect(m_project, &Project::lineChanged, this, &LayoutView::keepOrderPossible);
    connect(m_selection, &Selection::cabinetsChanged, this, [this] { m_keyGesture = 0; });
    connect(m_selection, &Selection::portChanged, this, [this] {
        if (m_isOrdering && !m_scene->pickedOrder().isEmpty())
            m_scene->setPickedOrder({}, true);
    });
    zoomToFit();
}

LayoutView::~LayoutView() = default;

double LayoutView::zoom() const
{
    return transform().m11();
}

int LayoutView::zoomLevel() const
{
    const double share = std::log(zoom() / leastLevelZoom) / std::log(maxZoom / leastLevelZoom);
    return qBound(0, qRound(share * mostZoomLevel), mostZoomLevel);
}

bool LayoutView::isGridVisible() const
{
    return m_isGridVisible;
}

int LayoutView::gridSize() const
{
    return m_gridSize;
}

bool LayoutView::snapsToGrid() const
{
    return m_snapsToGrid;
}

bool LayoutView::snapsToCabinets() const
{
    return m_snapsToCabinets;
}

ViewMode LayoutView::viewMode() const
{
    return m_scene->viewMode();
}

LineDisplay LayoutView::lineDisplay() const
{
    return m_scene->lineDisplay();
}

bool LayoutView::isCurrentPortEmphasized() const
{
    return m_scene->isCurrentPortEmphasized();
}

bool LayoutView::isOrdering() const
{
    return m_isOrdering;
}

CabinetIds LayoutView::pickedOrder() const
{
    return m_scene->pickedOrder();
}

QRect LayoutView::ghostBounds() const
{
    return m_scene->ghostBounds();
}

QRectF LayoutView::visibleArea() const
{
    return viewportTransform().inverted().mapRect(QRectF(viewport()->rect()));
}

bool LayoutView::placeNext(const PortRef &port, const QString &modelId)
{
    PlacedCabinet cabinet;
    cabinet.modelId = modelId;
    cabinet.port = port;
    const QString problem = placementProblem(*m_project, {cabinet});
    if (!problem.isEmpty()) {
        Q_EMIT messageRequested(problem);
        return false;
    }

    const QSize size = m_project->model(modelId)->size;
    const IsFree isFree = [this](const QRect &place) {
        return qAbs(place.x()) <= maxCoordinate && qAbs(place.y()) <= maxCoordinate
            && m_scene->cabinetsNear(place).isEmpty();
    };
    QVector<QRect> line;
    const CabinetIds ids = m_project->line(port);
    for (const CabinetId id : ids.mid(qMax(0, ids.size() - 2)))
        line.append(m_project->boundsOf(id));
    std::optional<QPoint> position = nextPlace(line, size, isFree);
    if (line.isEmpty()) {
        const QPoint middle = visibleArea().center().toPoint() - QRect(QPoint(), size).center();
        const QPoint start = snapped(QRect(middle, size), QPoint(), {}) + middle;
        position = freePlaceNear(start, size, isFree);
    }
    if (!position) {
        Q_EMIT messageRequested(QStringLiteral("There is no free place near the data line."));
        return false;
    }
    cabinet.position = *position;
    return place(cabinet);
}

void LayoutView::setZoom(double zoom)
{
    m_isFitted = false;
    applyZoom(zoom, QRectF(viewport()->rect()).center());
}

void LayoutView::setZoomLevel(int level)
{
    // A slider that follows the zoom hands its rounded value back, which is no wish for another.
    if (level == zoomLevel())
        return;
    const double share = double(qBound(0, level, mostZoomLevel)) / mostZoomLevel;
    setZoom(leastLevelZoom * std::pow(maxZoom / leastLevelZoom, share));
}

void LayoutView::zoomIn()
{
    setZoom(zoom() * zoomStep);
}

void LayoutView::zoomOut()
{
    setZoom(zoom() / zoomStep);
}

void LayoutView::zoomToFit()
{
    m_isFitted = true;
    const QRectF bounds = wallBounds();
    const QSizeF room = QSizeF(viewport()->size()) - QSizeF(2 * fitMargin, 2 * fitMargin);
    const double fit =
        qMin(qMax(1.0, room.width()) / bounds.width(), qMax(1.0, room.height()) / bounds.height());
    applyZoom(qMin(fit, largestFit), QPointF());
    const QPointF middle = viewportTransform().map(bounds.center());
    scrollBy((middle - QRectF(viewport()->rect()).center()).toPoint());
}

void LayoutView::setGridVisible(bool visible)
{
    if (visible == m_isGridVisible)
        return;
    m_isGridVisible = visible;
    viewport()->update();
    Q_EMIT gridVisibleChanged(visible);
}

void LayoutView::setGridSize(int size)
{
    size = qMax(1, size);
    if (size == m_gridSize)
        return;
    m_gridSize = size;
    viewport()->update();
    Q_EMIT gridSizeChanged(size);
}

void LayoutView::setSnapsToGrid(bool snaps)
{
    if (snaps == m_snapsToGrid)
        return;
    m_snapsToGrid = snaps;
    Q_EMIT snapsToGridChanged(snaps);
}

void LayoutView::setSnapsToCabinets(bool snaps)
{
    if (snaps == m_snapsToCabinets)
        return;
    m_snapsToCabinets = snaps;
    Q_EMIT snapsToCabinetsChanged(snaps);
}

void LayoutView::setViewMode(ViewMode mode)
{
    if (mode == m_scene->viewMode())
        return;
    m_scene->setViewMode(mode);
    Q_EMIT viewModeChanged(mode);
}

void LayoutView::setLineDisplay(LineDisplay display)
{
    if (display == m_scene->lineDisplay())
        return;
    m_scene->setLineDisplay(display);
    Q_EMIT lineDisplayChanged(display);
}

void LayoutView::setCurrentPortEmphasized(bool emphasized)
{
    if (emphasized == m_scene->isCurrentPortEmphasized())
        return;
    m_scene->setCurrentPortEmphasized(emphasized);
    Q_EMIT currentPortEmphasizedChanged(emphasized);
}

void LayoutView::setOrdering(bool ordering)
{
    if (ordering == m_isOrdering)
        return;
    if (!ordering) {
        finishOrdering();
        return;
    }
    cancelGesture();
    m_isOrdering = true;
    m_scene->setPickedOrder({}, true);
    updateCursor();
    Q_EMIT orderingChanged(true);
    const bool hasPort = m_selection->port().number != 0;
    Q_EMIT messageRequested(hasPort
                                ? QStringLiteral("Click the cabinets of the port in their new "
                                                 "order. Return ends, Escape gives up.")
                                : QStringLiteral("Click the cabinets of a port in their new order. "
                                                 "Return ends, Escape gives up."));
}

void LayoutView::abandonOrdering()
{
    if (m_isOrdering)
        leaveOrdering();
}

void LayoutView::selectAll()
{
    m_selection->setCabinets(m_project->cabinetIds());
}

void LayoutView::removeSelected()
{
    const CabinetIds ids = m_selection->cabinets();
    if (!ids.isEmpty())
        m_document->push(new RemoveCabinetsCommand(m_project, ids));
}

void LayoutView::moveInLine(int steps)
{
    const CabinetIds selected = m_selection->cabinets();
    if (selected.size() != 1) {
        Q_EMIT messageRequested(QStringLiteral("Select one cabinet to move it in its data line."));
        return;
    }
    const CabinetShape &shape = *m_scene->shape(selected.constFirst());
    const PortRef port = m_scene->lines().at(shape.line).port;
    CabinetIds order = m_project->line(port);
    const int target = qBound(0, shape.place + steps, order.size() - 1);
    if (target == shape.place)
        return;
    order.move(shape.place, target);
    m_document->push(new ReorderLineCommand(m_project, port, order));
}

void LayoutView::drawBackground(QPainter *painter, const QRectF &exposed)
{
    painter->fillRect(exposed, layoutcolors::ground);
    if (!m_isGridVisible)
        return;
    const double distance = drawnGridDistance(m_gridSize, zoom());
    const auto pen = [](const QColor &color) {
        QPen line(color, 1);
        line.setCosmetic(true);
        return line;
    };
    QVector<QLineF> lines;
    QVector<QLineF> mainLines;
    const auto add = [&](qint64 number, const QLineF &line) {
        (number % mainLineEvery == 0 ? mainLines : lines).append(line);
    };
    for (auto column = qint64(std::floor(exposed.left() / distance));
         column * distance <= exposed.right(); ++column) {
        const double x = column * distance;
        add(column, QLineF(x, exposed.top(), x, exposed.bottom()));
    }
    for (auto row = qint64(std::floor(exposed.top() / distance));
         row * distance <= exposed.bottom(); ++row) {
        const double y = row * distance;
        add(row, QLineF(exposed.left(), y, exposed.right(), y));
    }
    painter->setRenderHint(QPainter::Antialiasing, false);
    painter->setPen(pen(layoutcolors::gridLine));
    painter->drawLines(lines);
    painter->setPen(pen(layoutcolors::mainGridLine));
    painter->drawLines(mainLines);
    painter->setPen(pen(layoutcolors::axis));
    painter->drawLine(QLineF(exposed.left(), 0, exposed.right(), 0));
    painter->drawLine(QLineF(0, exposed.top(), 0, exposed.bottom()));
}

void LayoutView::showEvent(QShowEvent *event)
{
    QGraphicsView::showEvent(event);
    if (m_isFitted)
        zoomToFit();
}

void LayoutView::resizeEvent(QResizeEvent *event)
{
    QGraphicsView::resizeEvent(event);
    if (m_isFitted)
        zoomToFit();
    else
        updateSceneRect();
}

void LayoutView::focusOutEvent(QFocusEvent *event)
{
    m_isSpaceHeld = false;
    m_keyGesture = 0;
    updateCursor();
    QGraphicsView::focusOutEvent(event);
}

bool LayoutView::event(QEvent *event)
{
    // While something can be given up, Escape is for the view and not for a shortcut of the window.
    if (event->type() == QEvent::ShortcutOverride) {
        const bool isBusy = m_isOrdering || m_gesture != Gesture::None;
        if (isBusy && static_cast<QKeyEvent *>(event)->key() == Qt::Key_Escape)
            event->accept();
    }
    return QGraphicsView::event(event);
}

bool LayoutView::viewportEvent(QEvent *event)
{
    switch (event->type()) {
    case QEvent::Leave:
        Q_EMIT cursorLeft();
        break;
    case QEvent::ToolTip: {
        const auto *help = static_cast<QHelpEvent *>(event);
        showToolTip(help->pos(), help->globalPos());
        return true;
    }
    default:
        break;
    }
    return QGraphicsView::viewportEvent(event);
}

void LayoutView::keyPressEvent(QKeyEvent *event)
{
    const bool isControl = event->modifiers().testFlag(Qt::ControlModifier);
    event->accept();
    switch (event->key()) {
    case Qt::Key_Escape:
        if (m_gesture != Gesture::None)
            cancelGesture();
        else if (m_isOrdering)
            abandonOrdering();
        else if (!m_selection->cabinets().isEmpty())
            m_selection->clear();
        else
            event->ignore();
        return;
    case Qt::Key_Delete:
        removeSelected();
        return;
    case Qt::Key_Plus:
        zoomIn();
        return;
    case Qt::Key_Minus:
        zoomOut();
        return;
    case Qt::Key_Space:
        if (m_isOrdering) {
            const CabinetIds selected = m_selection->cabinets();
            if (selected.size() == 1 && !event->isAutoRepeat())
                pick(selected.constFirst());
        } else if (!event->isAutoRepeat()) {
            m_isSpaceHeld = true;
            updateCursor();
        }
        return;
    case Qt::Key_Return:
    case Qt::Key_Enter:
        if (m_isOrdering)
            finishOrdering();
        else
            event->ignore();
        return;
    case Qt::Key_Backspace:
        if (m_isOrdering)
            takeBack();
        else
            event->ignore();
        return;
    case Qt::Key_PageUp:
    case Qt::Key_PageDown:
        if (isControl)
            moveInLine(event->key() == Qt::Key_PageUp ? -1 : 1);
        else
            QGraphicsView::keyPressEvent(event);
        return;
    default:
        break;
    }
    if (event->matches(QKeySequence::SelectAll))
        selectAll();
    else if (!handleArrow(event))
        QGraphicsView::keyPressEvent(event);
}

void LayoutView::keyReleaseEvent(QKeyEvent *event)
{
    if (event->key() == Qt::Key_Space && !event->isAutoRepeat()) {
        m_isSpaceHeld = false;
        updateCursor();
    }
    QGraphicsView::keyReleaseEvent(event);
}

void LayoutView::mousePressEvent(QMouseEvent *event)
{
    m_keyGesture = 0;
    if (m_gesture != Gesture::None) // another button while one is held
        return;
    m_pressPlace = event->pos();
    m_lastPlace = event->pos();
    m_pressOnWall = toWall(event->localPos());
    if (event->button() == Qt::MiddleButton
        || (event->button() == Qt::LeftButton && m_isSpaceHeld)) {
        m_gesture = Gesture::Pan;
        updateCursor();
        return;
    }
    if (event->button() != Qt::LeftButton) {
        event->ignore();
        return;
    }
    const CabinetId id = m_scene->cabinetAt(m_pressOnWall);
    if (m_isOrdering) {
        m_gesture = Gesture::Pick;
        if (id)
            pick(id);
    } else if (id) {
        pressOn(id, *event);
    } else {
        beginRubberBand(event->pos(),
                        event->modifiers() & (Qt::ControlModifier | Qt::ShiftModifier));
    }
}

void LayoutView::mouseMoveEvent(QMouseEvent *event)
{
    const QPointF onWall = toWall(event->localPos());
    Q_EMIT cursorMoved(QPoint(int(std::floor(onWall.x())), int(std::floor(onWall.y()))));
    const QPoint place = event->pos();
    switch (m_gesture) {
    case Gesture::None:
        break;
    case Gesture::Press:
        if ((place - m_pressPlace).manhattanLength() < QApplication::startDragDistance())
            break;
        beginMove();
        if (m_gesture != Gesture::Move)
            break;
        Q_FALLTHROUGH();
    case Gesture::Move:
        followPointer(place);
        continueMove(place, !event->modifiers().testFlag(Qt::ControlModifier));
        break;
    case Gesture::RubberBand:
        followPointer(place);
        continueRubberBand(place);
        break;
    case Gesture::Pan:
        m_isFitted = false;
        scrollBy(m_lastPlace - place);
        break;
    case Gesture::Pick:
        if (const CabinetId id = m_scene->cabinetAt(onWall)) {
            if (!m_scene->pickedOrder().contains(id))
                pick(id);
        }
        break;
    }
    m_lastPlace = place;
}

void LayoutView::mouseReleaseEvent(QMouseEvent *event)
{
    const Qt::MouseButton button = event->button();
    if (m_gesture == Gesture::None
        || (button != Qt::LeftButton && !(button == Qt::MiddleButton && m_gesture == Gesture::Pan)))
        return;
    // A click on one of several selected cabinets that were not moved selects it alone.
    const bool isPlainClick = m_gesture == Gesture::Press
        && !(event->modifiers() & (Qt::ControlModifier | Qt::ShiftModifier));
    const CabinetId clicked = m_pressedCabinet;
    endGesture();
    if (isPlainClick)
        m_selection->setCabinets({clicked});
}

void LayoutView::mouseDoubleClickEvent(QMouseEvent *event)
{
    mousePressEvent(event); // two quick clicks are two clicks
}

void LayoutView::wheelEvent(QWheelEvent *event)
{
    const QPoint turn = event->angleDelta();
    const bool isSideways = turn.y() == 0 || event->modifiers().testFlag(Qt::ShiftModifier);
    event->accept();
    m_isFitted = false;
    if (isSideways) {
        const int delta = turn.x() != 0 ? turn.x() : turn.y();
        scrollBy(QPoint(-delta, 0));
        return;
    }
    applyZoom(zoom() * std::pow(zoomStep, turn.y() / wheelNotch), event->position());
}

void LayoutView::dragEnterEvent(QDragEnterEvent *event)
{
    m_dragged.reset();
    if (isCabinetDrag(*event)) {
        const auto meaning = recordMeaning(recordIn(event->mimeData()->data(cabinetFormat)));
        if (meaning)
            m_dragged = std::make_unique<RecordMeaning>(*meaning);
    }
    if (m_dragged && m_project->model(m_dragged->modelId)) {
        cancelGesture();
        event->acceptProposedAction();
    } else {
        m_dragged.reset();
        event->ignore();
    }
}

void LayoutView::dragMoveEvent(QDragMoveEvent *event)
{
    if (!m_dragged || !m_project->model(m_dragged->modelId)) {
        event->ignore();
        return;
    }
    const PlacedCabinet cabinet = droppedCabinet(*event);
    const QSize size = m_project->model(cabinet.modelId)->size;
    m_scene->showGhost(QRect(cabinet.position, size),
                       placementProblem(*m_project, {cabinet}).isEmpty());
    // One that cannot be placed is taken, too: only its drop can say why.
    event->acceptProposedAction();
}

void LayoutView::dragLeaveEvent(QDragLeaveEvent *)
{
    m_dragged.reset();
    m_scene->hideGhost();
}

void LayoutView::dropEvent(QDropEvent *event)
{
    m_scene->hideGhost();
    if (!m_dragged || !m_project->model(m_dragged->modelId)) {
        m_dragged.reset();
        event->ignore();
        return;
    }
    const PlacedCabinet cabinet = droppedCabinet(*event);
    m_dragged.reset();
    if (cabinet.port.number == 0) {
        Q_EMIT messageRequested(QStringLiteral("Choose a port for the cabinet first."));
        event->ignore();
    } else if (place(cabinet)) {
        setFocus();
        event->acceptProposedAction();
    } else {
        event->ignore();
    }
}

void LayoutView::applyZoom(double zoom, const QPointF &fixedInView)
{
    const double before = this->zoom();
    const double bounded = qBound(minZoom, zoom, maxZoom);
    const QPointF fixedOnWall = toWall(fixedInView);
    m_scene->setZoom(bounded);
    setTransform(QTransform::fromScale(bounded, bounded));
    updateSceneRect();
    const QPointF after = viewportTransform().map(fixedOnWall);
    scrollBy((after - fixedInView).toPoint());
    if (bounded != before)
        Q_EMIT zoomChanged(bounded);
}

void LayoutView::updateSceneRect()
{
    // The wall can be scrolled until only its edge is in sight, and what is in sight never jumps
    // because the wall became smaller.
    const QSizeF inSight = QSizeF(viewport()->size()) / zoom();
    const QRectF reachable = wallBounds().adjusted(-inSight.width(), -inSight.height(),
                                                   inSight.width(), inSight.height());
    setSceneRect(reachable | visibleArea());
}

void LayoutView::scrollBy(QPoint delta)
{
    horizontalScrollBar()->setValue(horizontalScrollBar()->value() + delta.x());
    verticalScrollBar()->setValue(verticalScrollBar()->value() + delta.y());
}

QPointF LayoutView::toWall(const QPointF &inView) const
{
    return viewportTransform().inverted().map(inView);
}

QRectF LayoutView::wallBounds() const
{
    return m_project->bounds().isEmpty() ? emptyWall : m_project->bounds();
}

void LayoutView::updateCursor()
{
    if (m_gesture == Gesture::Pan)
        viewport()->setCursor(Qt::ClosedHandCursor);
    else if (m_isSpaceHeld)
        viewport()->setCursor(Qt::OpenHandCursor);
    else if (m_isOrdering)
        viewport()->setCursor(Qt::PointingHandCursor);
    else
        viewport()->unsetCursor();
}

void LayoutView::showToolTip(QPoint place, QPoint globalPlace)
{
    const CabinetId id = m_scene->cabinetAt(toWall(place));
    if (!id) {
        QToolTip::hideText();
        return;
    }
    const CabinetShape &shape = *m_scene->shape(id);
    const ModelLook &model = m_scene->models().at(shape.model);
    const PortLine &line = m_scene->lines().at(shape.line);
    const Sender *sender = m_project->sender(line.port.senderId);
    QString text = QStringLiteral("%1, %2 × %3\n%4, port %5, cabinet %6 of %7")
                       .arg(model.name)
                       .arg(shape.size.width())
                       .arg(shape.size.height())
                       .arg(sender ? sender->name : line.port.senderId)
                       .arg(line.port.number)
                       .arg(shape.place + 1)
                       .arg(line.cabinets.size());
    text += QStringLiteral("\nAt %1, %2").arg(shape.position.x()).arg(shape.position.y());
    if (shape.rotation != 0)
        text += QStringLiteral(", rotated by %1°").arg(shape.rotation);
    QToolTip::showText(globalPlace, text, viewport());
}

void LayoutView::pressOn(CabinetId id, const QMouseEvent &event)
{
    const bool isSelected = m_selection->contains(id);
    m_pressedCabinet = id;
    m_gesture = Gesture::Press;
    if (event.modifiers().testFlag(Qt::ControlModifier) && isSelected) {
        CabinetIds ids = m_selection->cabinets();
        ids.removeOne(id);
        m_gesture = Gesture::None; // there is nothing under the pointer to be moved
        m_selection->setCabinets(ids);
    } else if (event.modifiers() & (Qt::ControlModifier | Qt::ShiftModifier)) {
        m_selection->setCabinets(m_selection->cabinets() << id);
    } else if (!isSelected) {
        m_selection->setCabinets({id});
    }
}

void LayoutView::followPointer(QPoint place)
{
    // Each step of the pointer outside scrolls a little, the more the farther it is.
    const QRect inside = viewport()->rect();
    const auto beyond = [](int value, int least, int most) {
        return qBound(-mostScrollStep, value - qBound(least, value, most), mostScrollStep);
    };
    const QPoint step(beyond(place.x(), inside.left(), inside.right()),
                      beyond(place.y(), inside.top(), inside.bottom()));
    if (!step.isNull()) {
        m_isFitted = false;
        scrollBy(step);
    }
}

void LayoutView::beginMove()
{
    m_movedCabinets = m_selection->cabinets();
    if (m_movedCabinets.isEmpty()) { // another view has taken the selection away meanwhile
        endGesture();
        return;
    }
    m_gesture = Gesture::Move;
    m_moveGesture = newGesture();
    m_movedSet = QSet<CabinetId>(m_movedCabinets.cbegin(), m_movedCabinets.cend());
    m_movedBounds = QRect();
    for (const CabinetId id : qAsConst(m_movedCabinets))
        m_movedBounds |= m_project->boundsOf(id);
    m_anchorStart = m_project->cabinet(m_movedCabinets.constFirst())->position;
}

void LayoutView::continueMove(QPoint place, bool isSnapping)
{
    QPoint delta = (toWall(place) - m_pressOnWall).toPoint();
    if (isSnapping)
        delta = snapped(m_movedBounds, delta, m_movedSet);
    // From where it is now, which an undo in between may have changed.
    const PlacedCabinet *anchor = m_project->cabinet(m_movedCabinets.constFirst());
    const QPoint step =
        possibleMove(*m_project, m_movedCabinets, m_anchorStart + delta - anchor->position);
    if (!step.isNull()) {
        m_document->push(new MoveCabinetsCommand(m_project, m_movedCabinets, step, m_moveGesture));
    }
}

void LayoutView::beginRubberBand(QPoint place, bool isAdding)
{
    m_gesture = Gesture::RubberBand;
    m_selectionBefore = isAdding ? m_selection->cabinets() : CabinetIds();
    m_selection->setCabinets(m_selectionBefore);
    m_rubberBand->setGeometry(QRect(place, QSize()));
}

void LayoutView::continueRubberBand(QPoint place)
{
    // From the place on the wall, so that it stays when the view is scrolled meanwhile.
    const QPointF start = viewportTransform().map(m_pressOnWall);
    const QRect band = QRect(start.toPoint(), place).normalized();
    m_rubberBand->setGeometry(band);
    m_rubberBand->show();
    m_selection->setCabinets(
        m_selectionBefore + m_scene->cabinetsIn(QRectF(m_pressOnWall, toWall(place)).normalized()));
}

void LayoutView::endGesture()
{
    m_gesture = Gesture::None;
    m_rubberBand->hide();
    m_pressedCabinet = 0;
    updateCursor();
}

void LayoutView::cancelGesture()
{
    const Gesture gesture = m_gesture;
    endGesture();
    if (gesture == Gesture::Move) {
        const PlacedCabinet *anchor = m_project->cabinet(m_movedCabinets.constFirst());
        if (anchor && anchor->position != m_anchorStart) {
            m_document->push(new MoveCabinetsCommand(
                m_project, m_movedCabinets, m_anchorStart - anchor->position, m_moveGesture));
        }
    } else if (gesture == Gesture::RubberBand) {
        m_selection->setCabinets(m_selectionBefore);
    }
}

void LayoutView::moveBy(QPoint step, int gesture)
{
    const CabinetIds ids = m_selection->cabinets();
    const QPoint possible = possibleMove(*m_project, ids, step);
    if (!possible.isNull())
        m_document->push(new MoveCabinetsCommand(m_project, ids, possible, gesture));
}

bool LayoutView::handleArrow(QKeyEvent *event)
{
    const QPoint direction = arrowDirection(event->key());
    if (direction.isNull())
        return false;
    const bool isShift = event->modifiers().testFlag(Qt::ShiftModifier);
    if (event->modifiers().testFlag(Qt::ControlModifier)) {
        selectNext(direction, isShift && !m_isOrdering);
        return true;
    }
    if (m_selection->cabinets().isEmpty() || m_isOrdering || m_gesture != Gesture::None)
        return false;
    if (m_keyGesture == 0 || m_document->undoStack()->index() != m_keyIndex)
        m_keyGesture = newGesture();
    moveBy(direction * (m_snapsToGrid && !isShift ? m_gridSize : 1), m_keyGesture);
    m_keyIndex = m_document->undoStack()->index();
    return true;
}

void LayoutView::selectNext(QPoint direction, bool isAdding)
{
    // From the selected cabinet that lies farthest in the direction, or from the middle of the
    // view.
    const auto along = [direction](const QPointF &point) {
        return QPointF::dotProduct(point, direction);
    };
    const CabinetIds selected = m_selection->cabinets();
    std::optional<QPointF> start;
    for (const CabinetId id : selected) {
        const QPointF center = m_scene->shape(id)->center();
        if (!start || along(center) > along(*start))
            start = center;
    }

    // What lies aside counts double, so that the walk stays in its row or column.
    CabinetId nearest = 0;
    double nearestDistance = 0;
    const CabinetIds all = m_project->cabinetIds();
    for (const CabinetId id : all) {
        const QPointF step = m_scene->shape(id)->center() - start.value_or(visibleArea().center());
        const double ahead = along(step);
        if (start && (ahead <= 0 || m_selection->contains(id)))
            continue;
        const double aside = qAbs(step.x() * direction.y()) + qAbs(step.y() * direction.x());
        const double distance = qAbs(ahead) + 2 * aside;
        if (!nearest || distance < nearestDistance) {
            nearest = id;
            nearestDistance = distance;
        }
    }
    if (!nearest)
        return;
    m_selection->setCabinets(isAdding ? selected + CabinetIds{nearest} : CabinetIds{nearest});
    const QRect bounds = m_scene->shape(nearest)->bounds;
    if (!visibleArea().contains(bounds)) {
        m_isFitted = false;
        ensureVisible(bounds);
    }
}

QPoint LayoutView::snapped(const QRect &bounds, QPoint delta, const QSet<CabinetId> &moved) const
{
    SnapTargets targets;
    targets.gridSize = m_snapsToGrid ? m_gridSize : 0;
    if (m_snapsToCabinets) {
        targets.tolerance = qMax(1, int(snapReach / zoom()));
        const int reach = qMax(1, int(neighbourReach / zoom()));
        const QRect around = bounds.translated(delta).adjusted(-reach, -reach, reach, reach);
        const CabinetIds near = m_scene->cabinetsNear(around);
        for (const CabinetId id : near) {
            if (!moved.contains(id))
                targets.neighbours.append(m_scene->shape(id)->bounds);
        }
    }
    return snappedMove(bounds, delta, targets);
}

void LayoutView::pick(CabinetId id)
{
    CabinetIds picked = m_scene->pickedOrder();
    const PortRef port = m_project->cabinet(id)->port;
    if (picked.isEmpty())
        m_selection->setPort(port);
    if (port != m_selection->port()) {
        Q_EMIT messageRequested(QStringLiteral("This cabinet hangs on another port."));
        return;
    }
    if (picked.contains(id)) {
        Q_EMIT messageRequested(QStringLiteral("This cabinet has its place already."));
        return;
    }
    picked.append(id);
    m_scene->setPickedOrder(picked, true);
    if (picked.size() == m_project->line(port).size())
        finishOrdering();
}

void LayoutView::takeBack()
{
    CabinetIds picked = m_scene->pickedOrder();
    if (picked.isEmpty())
        return;
    picked.removeLast();
    m_scene->setPickedOrder(picked, true);
}

void LayoutView::finishOrdering()
{
    const PortRef port = m_selection->port();
    CabinetIds order = m_scene->pickedOrder();
    const QSet<CabinetId> picked(order.cbegin(), order.cend());
    const CabinetIds line = m_project->line(port);
    for (const CabinetId id : line) {
        if (!picked.contains(id))
            order.append(id);
    }
    leaveOrdering();
    if (!picked.isEmpty() && order != line)
        m_document->push(new ReorderLineCommand(m_project, port, order));
}

void LayoutView::leaveOrdering()
{
    m_isOrdering = false;
    m_scene->setPickedOrder({}, false);
    endGesture();
    Q_EMIT orderingChanged(false);
}

void LayoutView::keepOrderPossible()
{
    // Cabinets that were taken may have left the wall.
    const CabinetIds picked = m_scene->pickedOrder();
    CabinetIds kept;
    for (const CabinetId id : picked) {
        if (m_project->cabinet(id))
            kept.append(id);
    }
    if (kept.size() != picked.size())
        m_scene->setPickedOrder(kept, true);
}

bool LayoutView::isCabinetDrag(const QDropEvent &event) const
{
    // From another process the texts of the record would be addresses into its memory.
    return event.source() && event.mimeData()->data(cabinetFormat).size() == sizeof(StructCabinet);
}

PlacedCabinet LayoutView::droppedCabinet(const QDropEvent &event) const
{
    PlacedCabinet cabinet;
    cabinet.modelId = m_dragged->modelId;
    cabinet.port = m_dragged->port.number != 0 ? m_dragged->port : m_selection->port();
    const QSize size = m_project->model(cabinet.modelId)->size;
    QRect bounds(QPoint(), size);
    bounds.moveCenter(toWall(event.posF()).toPoint());
    cabinet.position = bounds.topLeft() + snapped(bounds, QPoint(), {});
    return cabinet;
}

bool LayoutView::place(const PlacedCabinet &cabinet)
{
    const QString problem = placementProblem(*m_project, {cabinet});
    if (!problem.isEmpty()) {
        Q_EMIT messageRequested(problem);
        return false;
    }
    auto *command = new PlaceCabinetsCommand(m_project, {cabinet});
    const CabinetIds ids = command->ids();
    m_document->push(command);
    m_selection->setCabinets(ids);
    const QRect bounds = m_scene->shape(ids.constFirst())->bounds;
    if (!visibleArea().contains(bounds)) {
        m_isFitted = false;
        ensureVisible(bounds);
    }
    return true;
}

} // namespace wall
