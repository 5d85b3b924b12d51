#ifndef GALLERY_GALLERYWINDOW_H
#define GALLERY_GALLERYWINDOW_H

#include <hostframe.h>

class GalleryView;

/// The gallery's main window, a host of the library's frame.
class GalleryWindow : public HostFrame
{
    Q_OBJECT

public:
    explicit GalleryWindow(QWidget *parent = nullptr);

    GalleryView *view() const;

private:
    GalleryView *m_view;
};

#endif // GALLERY_GALLERYWINDOW_H
