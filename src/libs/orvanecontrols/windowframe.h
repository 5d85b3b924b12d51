#ifndef WINDOWFRAME_H
#define WINDOWFRAME_H

#include "orvanecontrolsglobal.h"

#include <QCursor>
#include <QMainWindow>
#include <QPointer>
#include <QPointF>
#include <QRect>
#include <QRectF>
#include <QSizeF>
#include <QString>

#include <array>

class QDialog;
class QLayout;
class QVBoxLayout;
class WindowTitle;

/// What is shown while a WindowFrame is dragged. Hosts pass the raw values.
enum RubberBandShape : int {
    OutlineRubberBand = 0, ///< A window of its own that is an outline with rounded corners.
    ChildRubberBand = 1, ///< A child of the frame, which is seen inside it only.
};

/**
 * A frameless main window with a title bar of its own, which a host derives its window from.
 *
 * The frame has two sizes and is fixed to the one that it shows. It starts maximised, at the
 * maximum size, whatever its current size was; slot_showMaximized() restores it to the minimum
 * size, in the middle of the area that the maximum size covers from the screen's top-left corner,
 * and from then on toggles between the two. The sizes are the host's: give the size of the screen's
 * available area as the maximum, and call SetFrameMaxSize() when that changes.
 *
 * Dragged by the title, the frame stays where it is; an outline shows where it comes to when the
 * button is released. The frame cannot be resized by the mouse: along its edges the cursor changes,
 * in a band of 8 pixels, but a drag from there resizes nothing.
 *
 * Its content is the central widget, as in every QMainWindow. The title lies over the frame's
 * top-left corner, 10 pixels narrower than the frame and 30 pixels high, and is in no layout that
 * is in force: leave room for it by setContentsMargins(). The frame's ground and its white border
 * of one pixel depend on the object name "WindowFrame".
 *
 * The close button calls closeEvent() with a null pointer, and does not close the window: a host
 * overrides closeEvent(), accepts a null event there and calls close(), or quits, if it wants to.
 *
 * The construction makes Qt print three warnings about layouts, two of them the title's; they can
 * be ignored.
 */
class ORVANECONTROLS_EXPORT WindowFrame : public QMainWindow
{
    Q_OBJECT

public:
    /// Builds a main window without title, rubber band and look, owned by \a parent. rebuildUI()
    /// and slot_showMaximized() must not be called on it; the other functions that need the title
    /// or the rubber band do nothing.
    explicit WindowFrame(QWidget *parent = nullptr);
    /// Builds the frame, owned by \a parent, with sizes in pixels that are rounded when they are
    /// applied. It is fixed to \a maxSize, which replaces \a curSize, and restored to \a minSize.
    /// \a flags is ignored.
    WindowFrame(const QSizeF &curSize, const QSizeF &maxSize, const QSizeF &minSize,
                QWidget *parent = nullptr, Qt::WindowFlags flags = Qt::WindowFlags());
    ~WindowFrame() override;

    /// Records the current size in pixels; rebuildUI() applies it. Hover and drags go by it at
    /// once. Any size is recorded, here and in the next two; one that no widget can have is applied
    /// as the nearest.
    void SetFrameCurSize(const QSizeF &size);
    /// Records the maximum size in pixels, which slot_showMaximized() applies the next time it
    /// maximises.
    void SetFrameMaxSize(const QSizeF &size);
    /// Records the smallest size in pixels, a limit of GetNewWindowRect(). The size that the frame
    /// is restored to stays.
    void SetFrameMinSize(const QSizeF &size);
    /// Fixes the frame to its current size and fits the title to it.
    void rebuildUI();

    /// Does nothing. \see QMainWindow::setCentralWidget()
    void SetWidget(QWidget *widget);
    /// Shows or hides the title.
    void SetTitleBarVisable(bool isVisible);
    /// The title, which the frame owns; null if there is none.
    WindowTitle *GetTitleWidget() const;
    /// A layout, owned by the frame, that holds the title and a stretch; null if the frame was
    /// built without them. It is not in force, as a main window has a layout of its own: what is
    /// added becomes a child of the frame, and is placed by the host.
    QVBoxLayout *GetBaseFrameLayout() const;
    /// Null: the frame has no second layout.
    QLayout *GetBaseFrameHHHLayout() const;

    /// The drag region that the pointer was over last: 0 to 7 clockwise from the top-left corner, 8
    /// for none. \see ReSetCurDragDirect()
    int GetCurDragDirect() const;
    /// Forgets the drag region and brings the arrow cursor back. \see GetCurDragDirect()
    void ReSetCurDragDirect();

    /// Gives the rubber band its shape. Any other value is written to the debug log and changes
    /// nothing.
    void SetRubberBandShape(RubberBandShape shape);
    /// Sets the style sheet of the rubber band, until SetRubberBandShape() sets the outline's.
    void SetRubberBandLineStyle(const QString &styleSheet);

    /// Computes the eight drag regions anew, in pixels, from the current size that is recorded: 16
    /// pixels wide, half inside and half outside the frame.
    void CreateDragRectListEx();
    /// The same as CreateDragRectListEx().
    void CreateDragRectList();
    /// True if \a pos, in the frame's coordinates, lies in a drag region, which is then
    /// GetCurDragDirect(); \a cursor becomes that region's. Otherwise GetCurDragDirect() becomes 8
    /// and \a cursor Qt::SizeAllCursor.
    bool IsInDragRect(const QPointF &pos, QCursor &cursor);
    /// The rectangle of the current size at \a start with those edges moved to \a current that
    /// GetCurDragDirect() names, but never smaller than the minimum size: an edge that would pass
    /// it stops there. A helper for hosts; the frame does not call it.
    QRectF GetNewWindowRect(const QPointF &start, const QPointF &current) const;
    /// \a pos, in the frame's coordinates, in those of its parent: for a window the screen's. A
    /// helper for hosts; the frame does not call it.
    QPointF GetItemInParentScenePos(const QPointF &pos) const;

    /// Builds look, rubber band and title. The constructor calls it, once.
    void BuildUI();
    /// Connects the title to the slots. The constructor calls it, once.
    void ConenctSignal();

Q_SIGNALS:
    /// For hosts; the frame does not emit it.
    void WindowPositionChange(QSizeF size);

public Q_SLOTS:
    /// Calls closeEvent() with a null pointer. The window stays open, unless the host's
    /// closeEvent() closes it; it may delete the frame, too.
    void slot_close();
    /// Minimises the window, if it is not minimised.
    void slot_showMinimized();
    /// Maximises the frame if it is restored, and restores it if it is maximised.
    void slot_showMaximized();

protected:
    /// Accepts a null event, which slot_close() passes.
    void closeEvent(QCloseEvent *event) override;
    /// Does nothing.
    void enterEvent(QEvent *event) override;
    /// Does nothing of its own.
    void leaveEvent(QEvent *event) override;
    /// Does nothing: rebuildUI() fits the title.
    void resizeEvent(QResizeEvent *event) override;
    /// Starts a drag with the left button, of the frame if the press lies in the title.
    void mousePressEvent(QMouseEvent *event) override;
    /// Shows the cursor of the drag region under the pointer or, while the frame is dragged by its
    /// title, the rubber band where it would come to.
    void mouseMoveEvent(QMouseEvent *event) override;
    /// Moves the frame to where it was dragged by its title, and hides the rubber band.
    void mouseReleaseEvent(QMouseEvent *event) override;

private:
    struct DragRegion {
        QCursor cursor;
        QRectF rect;
    };

    QPoint dragTarget(const QMouseEvent *event) const;
    void showRubberBand();
    void updateTitleSize();

    QSizeF m_currentSize;
    QSizeF m_maximumSize;
    QSizeF m_minimumSize;
    int m_dragDirection = 8;
    std::array<DragRegion, 8> m_dragRegions;
    int m_borderWidth = 16;
    QPointer<QDialog> m_rubberBand;
    QRect m_rubberBandGeometry;
    bool m_isPressed = false;
    QPointer<WindowTitle> m_title;
    int m_titleWidth = -1;
    int m_titleHeight = -1;
    bool m_isNormal = false;
    QSizeF m_restoreSize;
    QPointF m_pressOffset;
    QPointer<QVBoxLayout> m_baseFrameLayout;
    QLayout *m_secondLayout = nullptr;
    bool m_isPressedInTitle = false;
};

#endif // WINDOWFRAME_H
