#ifndef WALL_LAYOUTSCENE_H
#define WALL_LAYOUTSCENE_H

#include "layout/cabinetindex.h"
#include "model/project.h"

#include <QColor>
#include <QGraphicsScene>
#include <QVector>

namespace wall
{

class Selection;

/// What the fill of a cabinet tells.
enum class ViewMode {
    ModelColors, ///< Which model it is.
    PortColors, ///< Which port it hangs on.
    DataLines, ///< Nothing: all are grey, and the data lines show in any case.
};

/// Whose data lines are drawn.
enum class LineDisplay { None, CurrentPort, AllPorts };

/// A placed cabinet as it is drawn.
struct CabinetShape {
    QRect bounds; ///< \see cabinetBounds()
    QPoint position;
    QSize size;
    int rotation = 0;
    int model = 0; ///< \see LayoutScene::models()
    int line = 0; ///< \see LayoutScene::lines()
    int place = 0; ///< In the data line, from 0.

    QPointF center() const;
    QPolygonF outline() const;
};

/// A model as its cabinets show it.
struct ModelLook {
    QString id;
    QString name;
    QSize size;
    QColor fill;
};

/// The data line of a port.
struct PortLine {
    PortRef port;
    QColor fill; ///< Of its cabinets.
    QColor color; ///< Of the line itself.
    CabinetIds cabinets;
    QVector<QPointF> points; ///< The centres of the cabinets.
    QRectF bounds; ///< Around the points, or larger.
};

/**
 * The wall in a graphics scene: the cabinets, the data lines and the ghost of a cabinet that is
 * about to be placed. Coordinates are pixels of the wall.
 *
 * Thousands of cabinets are drawn by one item, which asks the scene for those of the exposed area;
 * an item each would cost more than the drawing. The scene follows the project and the selection,
 * and repaints no more than what changed.
 */
class LayoutScene : public QGraphicsScene
{
    Q_OBJECT

public:
    LayoutScene(Project *project, Selection *selection, QObject *parent = nullptr);
    ~LayoutScene() override;

    // What there is
    const CabinetShape *shape(CabinetId id) const;
    /// The cabinets whose bounds meet \a area, the lowest first.
    CabinetIds cabinetsNear(const QRectF &area) const;
    /// The cabinets that \a area touches, rotation counted, the lowest first.
    CabinetIds cabinetsIn(const QRectF &area) const;
    /// The topmost cabinet at a place, 0 for none.
    CabinetId cabinetAt(const QPointF &place) const;
    const QVector<ModelLook> &models() const;
    const QVector<PortLine> &lines() const;
    /// The line of a port, null if no cabinet was ever placed on it.
    const PortLine *lineOf(const PortRef &port) const;

    // How it is drawn
    ViewMode viewMode() const;
    void setViewMode(ViewMode mode);
    LineDisplay lineDisplay() const;
    void setLineDisplay(LineDisplay display);
    /// Whether cabinets and lines of other ports than the current one stand back.
    bool isCurrentPortEmphasized() const;
    void setCurrentPortEmphasized(bool emphasized);
    bool isSelected(CabinetId id) const;
    PortRef currentPort() const;
    /// Whether \a line belongs to the port that is emphasised, or none is.
    bool isProminent(const PortLine &line) const;

    /// How many pixels of the screen a pixel of the wall is; marks keep their size on the screen.
    void setZoom(double zoom);

    // What is about to happen
    /// Shows the first cabinets of a new order of the current port's line; empty for none.
    void setPickedOrder(const CabinetIds &picked, bool isPicking);
    CabinetIds pickedOrder() const;
    bool isPicking() const;
    /// Shows where a cabinet would be placed, and whether it may be.
    void showGhost(const QRect &bounds, bool isPossible);
    void hideGhost();
    /// Where the ghost is, null while it is hidden.
    QRect ghostBounds() const;

private:
    void rebuild();
    void recolorLines();
    int modelSlot(const QString &modelId);
    int lineSlot(const PortRef &port);
    CabinetShape makeShape(const PlacedCabinet &cabinet);
    void insertCabinets(const CabinetIds &ids);
    void removeCabinets(const CabinetIds &ids);
    void updateCabinets(const CabinetIds &ids);
    void updateLine(const PortRef &port);
    void updateModel(const QString &modelId);
    void updateSelection();
    void addLineArea(const CabinetShape &shape, QVector<QRectF> *areas) const;
    void repaint(const QVector<QRectF> &areas);

    Project *m_project;
    Selection *m_selection;
    QGraphicsItem *m_ghost = nullptr;

    QHash<CabinetId, CabinetShape> m_shapes;
    CabinetIndex m_index;
    QVector<ModelLook> m_models;
    QHash<QString, int> m_modelSlots;
    QVector<PortLine> m_lines;
    QHash<PortRef, int> m_lineSlots;

    QSet<CabinetId> m_selected;
    PortRef m_currentPort;
    ViewMode m_viewMode = ViewMode::ModelColors;
    LineDisplay m_lineDisplay = LineDisplay::AllPorts;
    bool m_isCurrentPortEmphasized = false;
    double m_zoom = 1.0;
    CabinetIds m_pickedOrder;
    bool m_isPicking = false;
};

} // namespace wall

#endif // WALL_LAYOUTSCENE_H
