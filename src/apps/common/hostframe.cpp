#include "hostframe.h"

#include "layoutwarnings.h"

#include <windowtitle.h>

#include <QChildEvent>
#include <QCloseEvent>
#include <QGuiApplication>
#include <QLabel>
#include <QMouseEvent>
#include <QPushButton>
#include <QScreen>

namespace
{

// Around the content the frame itself stays bare: it takes the pointer at the edges there.
constexpr int edge = 6;
constexpr int titleHeight = 30;
constexpr int titleInset = 10; // the title is narrower than the frame by this
constexpr QPoint logoPlace(10, 6);
constexpr QSize logoSize(18, 18);
constexpr int logoGap = 8;
constexpr int roomAround = 80; // of the screen, beside or above and below the normal size

QRect screenRect()
{
    return QGuiApplication::primaryScreen()->availableGeometry();
}

QSize cutNormalSize(const QSize &normalSize, const QSize &smallestSize)
{
    const QSize room = screenRect().size() - QSize(roomAround, roomAround);
    return normalSize.boundedTo(room.expandedTo(smallestSize)).boundedTo(screenRect().size());
}

} // namespace

HostFrame::HostFrame(const QSize &normalSize, const QSize &smallestSize, QWidget *parent)
    : HostFrame(LayoutWarningsMuted(), normalSize, smallestSize, parent)
{
}

HostFrame::HostFrame(const LayoutWarningsMuted & /*muted*/, const QSize &normalSize,
                     const QSize &smallestSize, QWidget *parent)
    : WindowFrame(screenRect().size(), screenRect().size(), cutNormalSize(normalSize, smallestSize),
                  parent)
{
    // The frame has noted the size to go back to and takes this one for its edges from now on.
    SetFrameMinSize(smallestSize.boundedTo(screenRect().size()));
    setContentsMargins(edge, titleHeight, edge, edge);
    WindowTitle *title = GetTitleWidget();
    title->move(edge, 0);
    title->SetMinBtnToolTip("Minimise");
    title->SetMaxBtnToolTip("Maximise or restore");
    title->SetCloseBtnToolTip("Close");
    title->SetLogoGroupVisable(false);
    for (auto signal :
         {&WindowTitle::signal_maxMainForm, &WindowTitle::signal_mouseDoubleClickIntitle}) {
        disconnect(title, signal, this, &WindowFrame::slot_showMaximized);
        connect(title, signal, this, &HostFrame::slot_showMaximized);
    }

    move(screenRect().topLeft());
    connect(QGuiApplication::primaryScreen(), &QScreen::availableGeometryChanged, this,
            &HostFrame::followScreen);
}

void HostFrame::setLogo(const QString &picturePath, const QString &text)
{
    m_logoText = text;
    WindowTitle *title = GetTitleWidget();
    title->SetLogoImageSize(logoSize);
    title->SetLogoImagePath(picturePath);
    title->SetLogoTextStyleSheet("QLabel{color:rgb(210,210,210);}");
    title->SetLogoGroupVisable(true);
    // The library leaves the places of picture and text to the host, in this order.
    const QList<QLabel *> labels = title->findChildren<QLabel *>();
    labels.value(0)->move(logoPlace);
    labels.value(1)->move(logoPlace.x() + logoSize.width() + logoGap, logoPlace.y());
    fitLogoText();
}

void HostFrame::fitLogoText()
{
    WindowTitle *title = GetTitleWidget();
    int room = width() - titleInset - logoPlace.x() - logoSize.width() - 2 * logoGap;
    const QList<QPushButton *> buttons = title->findChildren<QPushButton *>();
    for (const QPushButton *button : buttons)
        room -= button->width() + logoGap;
    const QString text = fontMetrics().elidedText(m_logoText, Qt::ElideMiddle, room);
    const int textWidth = fontMetrics().horizontalAdvance(text) + 2 * logoGap;
    title->SetLogoTextSize(QSize(textWidth, logoSize.height()));
    title->SetLogoTextValue(text);
}

bool HostFrame::isMaximizedFrame() const
{
    return m_isMaximized;
}

void HostFrame::resizeFrame(const QSize &size)
{
    if (m_isMaximized)
        slot_showMaximized();
    SetFrameCurSize(size);
    rebuildUI();
}

void HostFrame::slot_showMaximized()
{
    WindowFrame::slot_showMaximized();
    m_isMaximized = !m_isMaximized;
    move(pos() + screenRect().topLeft());
}

bool HostFrame::mayClose()
{
    return true;
}

void HostFrame::childEvent(QChildEvent *event)
{
    WindowFrame::childEvent(event);
    if (!event->polished()) // a child that is leaving may be half destroyed
        return;
    // The frame's cursor is the one of the edge that the pointer came over; the content has none of
    // its own and would go on showing it.
    auto *child = qobject_cast<QWidget *>(event->child());
    if (child && child != GetTitleWidget() && !child->testAttribute(Qt::WA_SetCursor))
        child->setCursor(Qt::ArrowCursor);
}

void HostFrame::closeEvent(QCloseEvent *event)
{
    // The title's close button calls this with a null event.
    if (!event)
        close();
    else
        event->setAccepted(mayClose());
}

void HostFrame::mousePressEvent(QMouseEvent *event)
{
    QCursor cursor;
    if (m_isMaximized) {
        ReSetCurDragDirect();
    } else if (event->button() == Qt::LeftButton && IsInDragRect(event->localPos(), cursor)) {
        beginResize(*event); // the frame would take it for a move of its outline
        return;
    }
    WindowFrame::mousePressEvent(event);
}

void HostFrame::beginResize(const QMouseEvent &event)
{
    m_isResizing = true;
    m_rectAtPress = geometry();
    const QPoint place = event.pos();
    m_grip = QPoint(place.x() < width() / 2 ? 0 : width(), place.y() < height() / 2 ? 0 : height())
        - place;
}

void HostFrame::mouseMoveEvent(QMouseEvent *event)
{
    if (m_isResizing) {
        // From where it was at the press, as the window system may be late in telling where it is.
        SetFrameCurSize(m_rectAtPress.size());
        const QRect target =
            GetNewWindowRect(m_rectAtPress.topLeft(), event->globalPos() + m_grip).toRect();
        resizeFrame(target.size());
        move(target.topLeft());
    } else if (m_isMaximized && event->buttons() == Qt::NoButton) {
        ReSetCurDragDirect(); // no edge to take hold of
    } else {
        WindowFrame::mouseMoveEvent(event);
    }
}

void HostFrame::mouseReleaseEvent(QMouseEvent *event)
{
    if (m_isResizing && event->button() == Qt::LeftButton) {
        m_isResizing = false;
        ReSetCurDragDirect();
        return;
    }
    WindowFrame::mouseReleaseEvent(event);
}

void HostFrame::resizeEvent(QResizeEvent *event)
{
    WindowFrame::resizeEvent(event);
    fitLogoText();
}

void HostFrame::followScreen()
{
    SetFrameMaxSize(screenRect().size());
    if (!m_isMaximized)
        return;
    SetFrameCurSize(screenRect().size());
    rebuildUI();
    move(screenRect().topLeft());
}
