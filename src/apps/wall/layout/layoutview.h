#ifndef WALL_LAYOUTVIEW_H
#define WALL_LAYOUTVIEW_H

#include "layout/layoutscene.h"

#include <QGraphicsView>
#include <QSet>

#include <memory>

class QMimeData;
class QRubberBand;

namespace wall
{

class Document;
struct RecordMeaning;

/**
 * The wall to scale, where cabinets are selected, moved, placed, removed and put in the order of
 * their data lines.
 *
 * Pointer
 * - A click selects a cabinet, with Control it adds or takes one away, with Shift it adds. A drag
 *   from the ground selects what a rubber band touches. A drag from a cabinet moves what is
 *   selected; Control held while moving suspends the snapping.
 * - The wheel zooms around the pointer, with and without Control. With Shift, and a sideways wheel,
 *   it scrolls sideways. A drag with the middle button, or with Space held, moves the wall under
 *   the pointer.
 * - A cabinet that is dragged in from a row or the controller board is placed where it is dropped;
 *   one of the board belongs to no port and goes to the current one.
 *
 * Keys
 * - The arrows move the selected cabinets by the grid if they snap to it, otherwise by a pixel;
 *   with Shift always by a pixel. Control and an arrow select the next cabinet in that direction,
 *   with Shift in addition. Without a selection the arrows scroll.
 * - Delete removes the selected cabinets, Control+A selects all, Plus and Minus zoom. Control with
 *   Page Up and Page Down moves the selected cabinet a place forward or back in its data line.
 * - Escape gives up a drag or the new order; otherwise it selects nothing.
 *
 * A new order of a data line: setOrdering() begins with the current port, or with that of the first
 * cabinet that is clicked. Each click, and a drag across cabinets, takes the next one; on the
 * keyboard Control and an arrow walk and Space takes. Backspace gives the last one back. The order
 * is put in force as one step when all are taken, by Return, or when ordering is switched off;
 * cabinets that were not taken follow in the order that they had.
 */
class LayoutView : public QGraphicsView
{
    Q_OBJECT

public:
    static constexpr double minZoom = 0.00001;
    static constexpr double maxZoom = 8.0;
    static constexpr double zoomStep = 1.25;
    static constexpr int mostZoomLevel = 100;

    LayoutView(Document *document, Selection *selection, QWidget *parent = nullptr);
    ~LayoutView() override;

    /// How many pixels of the screen a pixel of the wall is.
    double zoom() const;
    /// The zoom for a slider: 0 to mostZoomLevel, in equal ratios.
    int zoomLevel() const;
    bool isGridVisible() const;
    /// The distance of the grid's lines in pixels of the wall.
    int gridSize() const;
    bool snapsToGrid() const;
    bool snapsToCabinets() const;
    ViewMode viewMode() const;
    /// Lines are drawn in the mode ViewMode::DataLines even if this is LineDisplay::None.
    LineDisplay lineDisplay() const;
    bool isCurrentPortEmphasized() const;
    bool isOrdering() const;
    /// The cabinets that have been taken for a new order so far.
    CabinetIds pickedOrder() const;
    /// The place that a cabinet dragged over the view would take, null while there is none.
    QRect ghostBounds() const;
    /// The part of the wall that is in sight.
    QRectF visibleArea() const;

    /// Places a cabinet of a model as the next one of a port's line, beside the last one or on the
    /// next free place, selects it and brings it into sight. False, with a message, if none is left
    /// or there is no place.
    bool placeNext(const PortRef &port, const QString &modelId);

Q_SIGNALS:
    void zoomChanged(double zoom);
    void gridVisibleChanged(bool visible);
    void gridSizeChanged(int size);
    void snapsToGridChanged(bool snaps);
    void snapsToCabinetsChanged(bool snaps);
    void viewModeChanged(wall::ViewMode mode);
    void lineDisplayChanged(wall::LineDisplay display);
    void currentPortEmphasizedChanged(bool emphasized);
    void orderingChanged(bool ordering);
    /// One sentence for the user: why something was refused, or what can be done now.
    void messageRequested(const QString &message);
    /// The pointer is over this pixel of the wall.
    void cursorMoved(QPoint position);
    void cursorLeft();

public Q_SLOTS:
    /// Zooms around the middle of the view, from minZoom to maxZoom.
    void setZoom(double zoom);
    void setZoomLevel(int level);
    void zoomIn();
    void zoomOut();
    /// Shows the whole wall, and goes on doing so when the view is resized until it is zoomed or
    /// scrolled.
    void zoomToFit();
    void setGridVisible(bool visible);
    /// Sets the distance of the grid's lines, at least 1.
    void setGridSize(int size);
    void setSnapsToGrid(bool snaps);
    void setSnapsToCabinets(bool snaps);
    void setViewMode(wall::ViewMode mode);
    void setLineDisplay(wall::LineDisplay display);
    void setCurrentPortEmphasized(bool emphasized);
    /// Begins a new order of a data line, or puts the one that was begun in force.
    void setOrdering(bool ordering);
    /// Leaves the line as it is.
    void abandonOrdering();
    void selectAll();
    void removeSelected();
    /// Moves the one selected cabinet by \a steps places in its data line.
    void moveInLine(int steps);

protected:
    void drawBackground(QPainter *painter, const QRectF &exposed) override;
    void showEvent(QShowEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void focusOutEvent(QFocusEvent *event) override;
    bool event(QEvent *event) override;
    bool viewportEvent(QEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void keyReleaseEvent(QKeyEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void mouseDoubleClickEvent(QMouseEvent *event) override;
    void wheelEvent(QWheelEvent *event) override;
    void dragEnterEvent(QDragEnterEvent *event) override;
    void dragMoveEvent(QDragMoveEvent *event) override;
    void dragLeaveEvent(QDragLeaveEvent *event) override;
    void dropEvent(QDropEvent *event) override;

private:
    /// What the pointer does between a press and a release.
    enum class Gesture { None, Press, Move, RubberBand, Pan, Pick };

    // Showing
    void applyZoom(double zoom, const QPointF &fixedInView);
    void updateSceneRect();
    void scrollBy(QPoint delta);
    QPointF toWall(const QPointF &inView) const;
    QRectF wallBounds() const;
    void updateCursor();
    void showToolTip(QPoint place, QPoint globalPlace);

    // Gestures
    void pressOn(CabinetId id, const QMouseEvent &event);
    void followPointer(QPoint place);
    void beginMove();
    void continueMove(QPoint place, bool isSnapping);
    void beginRubberBand(QPoint place, bool isAdding);
    void continueRubberBand(QPoint place);
    void endGesture();
    void cancelGesture();
    void moveBy(QPoint step, int gesture);
    bool handleArrow(QKeyEvent *event);
    void selectNext(QPoint direction, bool isAdding);
    QPoint snapped(const QRect &bounds, QPoint delta, const QSet<CabinetId> &moved) const;

    // Ordering
    void pick(CabinetId id);
    void takeBack();
    void finishOrdering();
    void leaveOrdering();
    void keepOrderPossible();

    // Placing
    bool isCabinetDrag(const QDropEvent &event) const;
    PlacedCabinet droppedCabinet(const QDropEvent &event) const;
    bool place(const PlacedCabinet &cabinet);

    Document *m_document;
    Project *m_project;
    Selection *m_selection;
    LayoutScene *m_scene;
    QRubberBand *m_rubberBand;

    bool m_isGridVisible = true;
    int m_gridSize = 32;
    bool m_snapsToGrid = true;
    bool m_snapsToCabinets = true;
    bool m_isOrdering = false;
    bool m_isFitted = true; ///< The whole wall is kept in sight.

    Gesture m_gesture = Gesture::None;
    QPoint m_pressPlace; ///< In the view.
    QPointF m_pressOnWall;
    QPoint m_lastPlace;
    CabinetId m_pressedCabinet = 0;
    bool m_isSpaceHeld = false;
    CabinetIds m_selectionBefore; ///< What a rubber band adds to.

    // A move by the pointer.
    int m_moveGesture = 0;
    CabinetIds m_movedCabinets;
    QSet<CabinetId> m_movedSet;
    QRect m_movedBounds; ///< Where they were.
    QPoint m_anchorStart; ///< Where the first of them was.

    // A series of moves by keys is one step until something else is done.
    int m_keyGesture = 0;
    int m_keyIndex = 0; ///< Of the undo stack after the last one.

    std::unique_ptr<RecordMeaning> m_dragged; ///< What is dragged over the view.
};

} // namespace wall

Q_DECLARE_METATYPE(wall::ViewMode)
Q_DECLARE_METATYPE(wall::LineDisplay)

#endif // WALL_LAYOUTVIEW_H
