#ifndef GALLERY_RECENTPANE_H
#define GALLERY_RECENTPANE_H

#include <QWidget>

class ListWidgetEx;

/// The pages seen last, the newest first. A press on a row shows the page again, its trash button
/// forgets it.
class RecentPane : public QWidget
{
    Q_OBJECT

public:
    explicit RecentPane(QWidget *parent = nullptr);

    /// Puts a page to the top.
    void add(const QString &pageName);

Q_SIGNALS:
    void pageChosen(const QString &pageName);

private:
    void fill();

    ListWidgetEx *m_list;
    QStringList m_names;
};

#endif // GALLERY_RECENTPANE_H
