#include "windowframe.h"

#include "internal/stylesheet.h"
#include "windowtitle.h"

#include <QDebug>
#include <QDialog>
#include <QMouseEvent>
#include <QVBoxLayout>

namespace
{

/// The drag regions, clockwise.
enum Direction {
    TopLeft,
    Top,
    TopRight,
    Right,
    BottomRight,
    Bottom,
    BottomLeft,
    Left,
    NoDirection
};

constexpr int titleHeight = 30;
constexpr int titleInset = 10;
constexpr int frameMargin = 5;
constexpr double childOpacity = 0.1;

QPoint globalPosition(const QMouseEvent *event)
{
    return event->screenPos().toPoint();
}

} // namespace

WindowFrame::WindowFrame(QWidget *parent)
    : QMainWindow(parent)
{
}

WindowFrame::WindowFrame(const QSizeF &curSize, const QSizeF &maxSize, const QSizeF &minSize,
                         QWidget *parent, Qt::WindowFlags /*flags*/)
    : QMainWindow(parent)
    , m_currentSize(curSize)
    , m_maximumSize(maxSize)
    , m_minimumSize(minSize)
{
    BuildUI();
    ConenctSignal();
    setCursor(Qt::ArrowCursor);
    setAttribute(Qt::WA_MouseTracking);
}

WindowFrame::~WindowFrame() = default;

void WindowFrame::SetFrameCurSize(const QSizeF &size)
{
    m_currentSize = size;
}

void WindowFrame::SetFrameMaxSize(const QSizeF &size)
{
    m_maximumSize = size;
}

void WindowFrame::SetFrameMinSize(const QSizeF &size)
{
    m_minimumSize = size;
}

void WindowFrame::rebuildUI()
{
    setFixedSize(m_currentSize.toSize());
    updateTitleSize();
    m_title->rebuildUI(QSize(m_titleWidth, m_titleHeight));
}

void WindowFrame::SetWidget(QWidget * /*widget*/) { }

void WindowFrame::SetTitleBarVisable(bool isVisible)
{
    if (m_title)
        m_title->setVisible(isVisible);
}

WindowTitle *WindowFrame::GetTitleWidget() const
{
    return m_title;
}

QVBoxLayout *WindowFrame::GetBaseFrameLayout() const
{
    return m_baseFrameLayout;
}

QLayout *WindowFrame::GetBaseFrameHHHLayout() const
{
    return m_secondLayout;
}

int WindowFrame::GetCurDragDirect() const
{
    return m_dragDirection;
}

void WindowFrame::ReSetCurDragDirect()
{
    m_dragDirection = NoDirection;
    setCursor(Qt::ArrowCursor);
}

void WindowFrame::SetRubberBandShape(RubberBandShape shape)
{
    if (!m_rubberBand)
        return;
    switch (shape) {
    case OutlineRubberBand:
        m_rubberBand->setWindowFlags(Qt::Dialog | Qt::FramelessWindowHint);
        m_rubberBand->setAttribute(Qt::WA_TranslucentBackground);
        // Translucent windows have no background unless this is taken back; without one the sheet
        // would draw no border.
        m_rubberBand->setAttribute(Qt::WA_NoSystemBackground, false);
        orvane::applyStyleSheet(m_rubberBand,
                                QStringLiteral("QDialog {border: 2px solid rgb(255,255,255);"
                                               "border-radius:3px; "
                                               "background-color: transparent;}"));
        break;
    case ChildRubberBand:
        m_rubberBand->setWindowFlags(Qt::FramelessWindowHint);
        m_rubberBand->setWindowOpacity(childOpacity);
        break;
    default:
        // Hosts look for this line in their logs, place and all.
        qDebug() << R"(..\..\..\..\code\src\libs\orvanecontrols\windowframe)" << 673
                 << "SetRubberBandShape"
                 << "RubberBandShape set error!";
    }
}

void WindowFrame::SetRubberBandLineStyle(const QString &styleSheet)
{
    if (m_rubberBand)
        orvane::applyStyleSheet(m_rubberBand, styleSheet);
}

void WindowFrame::CreateDragRectListEx()
{
    const int border = m_borderWidth;
    const int half = border / 2;
    const double width = m_currentSize.width();
    const double height = m_currentSize.height();
    const int rightX = int(width - half);
    const int bottomY = int(height - half);
    const int edgeWidth = int(width - border);
    const int edgeHeight = int(height - border);

    m_dragRegions[TopLeft] = {Qt::SizeFDiagCursor, QRectF(-half, -half, border, border)};
    m_dragRegions[Top] = {Qt::SizeVerCursor, QRectF(half, -half, edgeWidth, border)};
    m_dragRegions[TopRight] = {Qt::SizeBDiagCursor, QRectF(rightX, -half, border, border)};
    m_dragRegions[Right] = {Qt::SizeHorCursor, QRectF(rightX, half, border, edgeHeight)};
    m_dragRegions[BottomRight] = {Qt::SizeFDiagCursor, QRectF(rightX, bottomY, border, border)};
    m_dragRegions[Bottom] = {Qt::SizeVerCursor, QRectF(half, bottomY, edgeWidth, border)};
    m_dragRegions[BottomLeft] = {Qt::SizeBDiagCursor, QRectF(-half, bottomY, border, border)};
    m_dragRegions[Left] = {Qt::SizeHorCursor, QRectF(-half, half, border, edgeHeight)};
}

void WindowFrame::CreateDragRectList()
{
    CreateDragRectListEx();
}

bool WindowFrame::IsInDragRect(const QPointF &pos, QCursor &cursor)
{
    CreateDragRectListEx();
    m_dragDirection = NoDirection;
    cursor = Qt::SizeAllCursor;
    for (int direction = TopLeft; direction < NoDirection; ++direction) {
        const DragRegion &region = m_dragRegions[direction];
        if (region.rect.contains(pos)) {
            m_dragDirection = direction;
            cursor = region.cursor;
            return true;
        }
    }
    return false;
}

QRectF WindowFrame::GetNewWindowRect(const QPointF &start, const QPointF &current) const
{
    const auto moves = [this](Direction corner, Direction edge, Direction otherCorner) {
        return m_dragDirection == corner || m_dragDirection == edge
            || m_dragDirection == otherCorner;
    };
    QRectF rect(start, m_currentSize);
    if (moves(BottomLeft, Left, TopLeft))
        rect.setLeft(qMin(current.x(), rect.right() - m_minimumSize.width()));
    else if (moves(TopRight, Right, BottomRight))
        rect.setRight(qMax(current.x(), rect.left() + m_minimumSize.width()));
    if (moves(TopLeft, Top, TopRight))
        rect.setTop(qMin(current.y(), rect.bottom() - m_minimumSize.height()));
    else if (moves(BottomRight, Bottom, BottomLeft))
        rect.setBottom(qMax(current.y(), rect.top() + m_minimumSize.height()));
    return rect;
}

QPointF WindowFrame::GetItemInParentScenePos(const QPointF &pos) const
{
    return pos + geometry().topLeft();
}

void WindowFrame::BuildUI()
{
    orvane::applyStyleSheet(this,
                            QStringLiteral("#WindowFrame{background-color:rgb(69, 69, 69);"
                                           "border-radius:0px; border-style: solid; "
                                           "border-color:rgb(255,255,255); "
                                           "border-width: 1px 1px 1px 1px;}"));
    setObjectName(QStringLiteral("WindowFrame"));

    m_rubberBand = new QDialog(this);
    m_rubberBand->hide(); // as a child it would come up with the frame
    SetRubberBandShape(OutlineRubberBand);

    setWindowFlags((windowFlags() | Qt::FramelessWindowHint | Qt::WindowMinimizeButtonHint)
                   ^ Qt::WindowSystemMenuHint);
    setAttribute(Qt::WA_AlwaysShowToolTips);
    setAttribute(Qt::WA_MouseTracking);
    setCursor(Qt::ArrowCursor);

    setMinimumSize(m_minimumSize.toSize());
    setMaximumSize(m_currentSize.toSize());
    // Hosts rely on a frame that starts at its maximum size, whatever its current size was.
    m_currentSize = m_maximumSize;
    setFixedSize(m_currentSize.toSize());
    m_isNormal = m_currentSize != m_maximumSize;
    m_restoreSize = m_isNormal ? m_currentSize : m_minimumSize;

    updateTitleSize();
    m_title = new WindowTitle(QSize(m_titleWidth, m_titleHeight), this);

    // Qt refuses this layout, as a main window has one of its own, and leaves it without a parent;
    // as a child of the main window's it is owned, and what is added becomes a child of the frame.
    m_baseFrameLayout = new QVBoxLayout(this);
    m_baseFrameLayout->setParent(layout());
    m_baseFrameLayout->setContentsMargins(frameMargin, 0, frameMargin, 0);
    m_baseFrameLayout->setSpacing(0);
    m_baseFrameLayout->addWidget(m_title);
    m_baseFrameLayout->addStretch();

    m_title->setBtnMax(!m_isNormal);
}

void WindowFrame::ConenctSignal()
{
    if (!m_title)
        return;
    connect(m_title, &WindowTitle::signal_minimizeMainForm, this, &WindowFrame::slot_showMinimized);
    connect(m_title, &WindowTitle::signal_maxMainForm, this, &WindowFrame::slot_showMaximized);
    connect(m_title, &WindowTitle::signal_closeMainForm, this, &WindowFrame::slot_close);
    connect(m_title, &WindowTitle::signal_mouseDoubleClickIntitle, this,
            &WindowFrame::slot_showMaximized);
}

void WindowFrame::slot_close()
{
    closeEvent(nullptr); // hosts rely on it: they know their own close button by it
}

void WindowFrame::slot_showMinimized()
{
    if (windowState() != Qt::WindowMinimized)
        setWindowState(Qt::WindowMinimized);
}

void WindowFrame::slot_showMaximized()
{
    if (m_isNormal) {
        setWindowState(Qt::WindowMaximized);
        m_restoreSize = m_currentSize;
        m_currentSize = m_maximumSize;
        move(0, 0);
        m_isNormal = false;
    } else {
        setWindowState(Qt::WindowNoState);
        m_isNormal = true;
        const QSizeF room = m_currentSize - m_restoreSize;
        move(int(room.width() / 2), int(room.height() / 2));
        m_currentSize = m_restoreSize;
    }
    m_title->setBtnMax(!m_isNormal);
    rebuildUI();
}

void WindowFrame::closeEvent(QCloseEvent *event)
{
    if (event)
        QMainWindow::closeEvent(event);
}

void WindowFrame::enterEvent(QEvent * /*event*/) { }

void WindowFrame::leaveEvent(QEvent *event)
{
    QMainWindow::leaveEvent(event);
}

void WindowFrame::resizeEvent(QResizeEvent * /*event*/) { }

void WindowFrame::mousePressEvent(QMouseEvent *event)
{
    m_isPressedInTitle = false;
    if (event->button() == Qt::LeftButton) {
        m_isPressed = true;
        m_pressOffset = globalPosition(event) - frameGeometry().topLeft();
        m_isPressedInTitle =
            QRect(0, 0, m_titleWidth, m_titleHeight).contains(event->localPos().toPoint());
    }
    QMainWindow::mousePressEvent(event);
}

void WindowFrame::mouseMoveEvent(QMouseEvent *event)
{
    if (!m_isPressed) {
        QCursor cursor;
        const bool isInRegion = IsInDragRect(mapFromGlobal(globalPosition(event)), cursor);
        setCursor(isInRegion ? cursor : QCursor(Qt::ArrowCursor));
    } else if (m_dragDirection != NoDirection) {
        // The outline of the last move, if there was one: a drag from an edge resizes nothing.
        showRubberBand();
    } else if ((event->buttons() & Qt::LeftButton) && m_isPressedInTitle) {
        m_rubberBandGeometry = geometry();
        m_rubberBandGeometry.moveTopLeft(dragTarget(event));
        showRubberBand();
    }
    QMainWindow::mouseMoveEvent(event);
}

void WindowFrame::mouseReleaseEvent(QMouseEvent *event)
{
    setCursor(Qt::ArrowCursor);
    if (m_rubberBand)
        m_rubberBand->hide();
    if (event->button() == Qt::LeftButton) {
        const bool isResize = m_isPressed && m_dragDirection != NoDirection;
        if (m_isPressedInTitle && !isResize)
            move(dragTarget(event));
        m_dragDirection = NoDirection;
        m_isPressed = false;
    }
    m_isPressedInTitle = false;
    QMainWindow::mouseReleaseEvent(event);
}

/// Where the frame's top-left corner comes to, with the pointer as far from it as at the press.
QPoint WindowFrame::dragTarget(const QMouseEvent *event) const
{
    return globalPosition(event) - m_pressOffset.toPoint();
}

void WindowFrame::showRubberBand()
{
    if (!m_rubberBand || !m_rubberBandGeometry.isValid())
        return;
    m_rubberBand->setGeometry(m_rubberBandGeometry);
    m_rubberBand->show();
}

void WindowFrame::updateTitleSize()
{
    m_titleWidth = int(m_currentSize.width() - titleInset);
    m_titleHeight = titleHeight;
}
