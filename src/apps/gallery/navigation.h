#ifndef GALLERY_NAVIGATION_H
#define GALLERY_NAVIGATION_H

#include <QList>
#include <QWidget>

class QTreeWidgetItem;
class TextField;
class TreeViewEx;

/// The tree of pages by group, with a filter above it.
class Navigation : public QWidget
{
    Q_OBJECT

public:
    explicit Navigation(QWidget *parent = nullptr);

    void setCurrentPage(const QString &name);
    /// Goes to the next (1) or the previous (-1) page that the filter leaves.
    void step(int direction);
    void focusFilter();

Q_SIGNALS:
    void pageChosen(const QString &name);
    void aboutAsked();

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void applyFilter(const QString &text);
    QList<QTreeWidgetItem *> pages() const;

    TextField *m_filter;
    TreeViewEx *m_tree;
};

#endif // GALLERY_NAVIGATION_H
