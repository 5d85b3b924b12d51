#ifndef GALLERY_GALLERYVIEW_H
#define GALLERY_GALLERYVIEW_H

#include <QHash>
#include <QWidget>

class EventPane;
class Navigation;
class NQTabWidget;
class Page;
class QStackedWidget;
class RecentPane;
class SheetPane;

/// What the window holds: the tree of pages, the page with its panel, and behind tabs below it the
/// sheet in force, the events and the pages seen last.
class GalleryView : public QWidget
{
    Q_OBJECT

public:
    explicit GalleryView(QWidget *parent = nullptr);

    /// Shows the page of that name, building it if it has not been seen before.
    Page *showPage(const QString &name);
    Page *currentPage() const;

protected:
    void showEvent(QShowEvent *event) override;

private:
    Page *page(const QString &name);
    void updateSheet();
    void goToNextRegion(int direction);
    void showAbout();

    Navigation *m_navigation;
    QStackedWidget *m_pages;
    SheetPane *m_sheetPane;
    EventPane *m_eventPane;
    RecentPane *m_recentPane;
    NQTabWidget *m_panes;
    QHash<QString, Page *> m_built;
};

#endif // GALLERY_GALLERYVIEW_H
