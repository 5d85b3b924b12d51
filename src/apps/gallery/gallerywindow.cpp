#include "gallerywindow.h"

#include "galleryview.h"

#include <QIcon>

namespace
{

constexpr char logoPath[] = ":/Resource/Image/logo.png";
constexpr QSize normalSize(1280, 800);
constexpr QSize smallestSize(900, 560);

} // namespace

GalleryWindow::GalleryWindow(QWidget *parent)
    : HostFrame(normalSize, smallestSize, parent)
    , m_view(new GalleryView(this))
{
    setWindowTitle("OrvaneControls Gallery");
    setWindowIcon(QIcon(logoPath));
    setLogo(logoPath, windowTitle());
    setCentralWidget(m_view);
}

GalleryView *GalleryWindow::view() const
{
    return m_view;
}
