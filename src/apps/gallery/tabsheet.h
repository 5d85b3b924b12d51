#ifndef GALLERY_TABSHEET_H
#define GALLERY_TABSHEET_H

#include <QWidget>

/// The close buttons of the tab bars in \a widget as a host of the dark look draws them: Qt's own
/// are black.
inline void brightenCloseButtons(QWidget *widget)
{
    const QString images = "url(:/Resource/Images/globalResource/tabwidget/tab_closed_";
    widget->setStyleSheet("QTabBar::close-button{image:" + images
                          + "normal.png);}"
                            "QTabBar::close-button:hover{image:"
                          + images
                          + "hover.png);}"
                            "QTabBar::close-button:pressed{image:"
                          + images + "pressed.png);}");
}

#endif // GALLERY_TABSHEET_H
