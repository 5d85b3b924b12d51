#include "hostframe.h"

#include "layoutwarnings.h"

#include <windowtitle.h>

#include <QCloseEvent>
#include <QGuiApplication>
#include <QLabel>
#include <QMouseEvent>
#include <QScreen>

namespace
{

// Around the content the frame itself stays bare: it takes the pointer at the edges there.
constexpr int edge = 6;
constexpr int titleHeight = 30;
constexpr QPoint logoPlace(10, 6);
constexpr int logoGap = 8;

QSize screenSize()
{
    return QGuiApplication::primaryScreen()->availableSize();
}

} // namespace

HostFrame::HostFrame(const QSize &normalSize, const QSize &smallestSize, QWidget *parent)
    : HostFrame(LayoutWarningsMuted(), normalSize, smallestSize, parent)
{
}

HostFrame::HostFrame(const LayoutWarningsMuted & /*muted*/, const QSize &normalSize,
                     const QSize &smallestSize, QWidget *parent)
    : WindowFrame(screenSize(), screenSize(), normalSize.boundedTo(screenSize()), parent)
    , m_maximumSize(screenSize())
{
    SetFrameMinSize(smallestSize.boundedTo(screenSize())); // it keeps the size to go back to
    setContentsMargins(edge, titleHeight, edge, edge);
    WindowTitle *title = GetTitleWidget();
    title->move(edge, 0); // the title is 10 pixels narrower than the frame
    title->SetMinBtnToolTip("Minimise");
    title->SetMaxBtnToolTip("Maximise or restore");
    title->SetCloseBtnToolTip("Close");
    title->SetLogoGroupVisable(false);

    const QScreen *screen = QGuiApplication::primaryScreen();
    move(screen->availableGeometry().topLeft());
    connect(screen, &QScreen::availableGeometryChanged, this, &HostFrame::followScreen);
}

void HostFrame::setLogo(const QString &picturePath, const QString &text)
{
    WindowTitle *title = GetTitleWidget();
    const QSize pictureSize(18, 18);
    title->SetLogoImageSize(pictureSize);
    title->SetLogoImagePath(picturePath);
    const int textWidth = fontMetrics().horizontalAdvance(text) + 2 * logoGap;
    title->SetLogoTextSize(QSize(textWidth, pictureSize.height()));
    title->SetLogoTextStyleSheet("QLabel{color:rgb(210,210,210);}");
    title->SetLogoTextValue(text);
    title->SetLogoGroupVisable(true);
    // The library leaves the places of picture and text to the host, in this order.
    const QList<QLabel *> labels = title->findChildren<QLabel *>();
    labels.value(0)->move(logoPlace);
    labels.value(1)->move(logoPlace.x() + pictureSize.width() + logoGap, logoPlace.y());
}

bool HostFrame::isMaximizedFrame() const
{
    return size() == m_maximumSize;
}

void HostFrame::resizeFrame(const QSize &size)
{
    SetFrameCurSize(size);
    rebuildUI();
}

bool HostFrame::mayClose()
{
    return true;
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
    m_isResizing = event->button() == Qt::LeftButton && !isMaximizedFrame()
        && IsInDragRect(event->localPos(), cursor);
    // The frame takes a drag from its edge for a move of its outline.
    if (!m_isResizing)
        WindowFrame::mousePressEvent(event);
}

void HostFrame::mouseMoveEvent(QMouseEvent *event)
{
    if (!m_isResizing) {
        WindowFrame::mouseMoveEvent(event);
        return;
    }
    const QRect target = GetNewWindowRect(pos(), event->globalPos()).toRect();
    resizeFrame(target.size());
    move(target.topLeft());
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

void HostFrame::followScreen()
{
    const bool wasMaximized = isMaximizedFrame();
    m_maximumSize = screenSize();
    SetFrameMaxSize(m_maximumSize);
    if (wasMaximized)
        resizeFrame(m_maximumSize);
}
