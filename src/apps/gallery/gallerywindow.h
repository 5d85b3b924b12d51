#ifndef GALLERY_GALLERYWINDOW_H
#define GALLERY_GALLERYWINDOW_H

#include <QHash>
#include <QWidget>

class EventPane;
class Navigation;
class Page;
class QSplitter;
class QStackedWidget;
class SheetPane;

/// The window: the list of pages, the page with its panel, and the panes for sheet and events.
class GalleryWindow : public QWidget
{
    Q_OBJECT

public:
    explicit GalleryWindow(QWidget *parent = nullptr);

    /// Shows the page of that name, building it if it has not been seen before.
    Page *showPage(const QString &name);
    Page *currentPage() const;

protected:
    void showEvent(QShowEvent *event) override;

private:
    Page *page(const QString &name);
    void updateSheet();
    void goToNextRegion(int direction);

    Navigation *m_navigation;
    QStackedWidget *m_pages;
    SheetPane *m_sheetPane;
    EventPane *m_eventPane;
    QHash<QString, Page *> m_built;
};

#endif // GALLERY_GALLERYWINDOW_H
