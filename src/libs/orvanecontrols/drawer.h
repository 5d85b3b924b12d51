#ifndef DRAWER_H
#define DRAWER_H

#include "orvanecontrolsglobal.h"

#include <QList>
#include <QPointer>
#include <QVBoxLayout>
#include <QVector>
#include <QWidget>

class DrawerItem;

/**
 * A stack of drawer items of which at most one is expanded: a click on an item's header expands it
 * and collapses the others, or collapses it if it was expanded.
 *
 * The selection is the items' own: the selected item is the first one whose getItemPressed() is
 * true. Clicks do not change it, and the removal of the selected item selects no other.
 *
 * Items, the drawer included, may be deleted and removed in every signal of an item and of the
 * drawer. A removed item is deleted by the event loop; until then it is still seen.
 */
class ORVANECONTROLS_EXPORT Drawer : public QWidget
{
    Q_OBJECT

public:
    /// Builds an empty drawer, owned by \a parent.
    explicit Drawer(QWidget *parent = nullptr);
    ~Drawer() override;

    /// Adds \a item, which the drawer owns from now on, below the others. A null pointer is
    /// ignored. Add an item once: it stands in the list, and answers a click, as often as it is
    /// added.
    void addDrawerItem(DrawerItem *item);
    /// Removes the item at \a index and schedules its deletion. An index outside the list is
    /// ignored.
    void removeDrawerItem(int index);
    /// Removes \a item and schedules its deletion, whether it was in the list or not. A null
    /// pointer is ignored.
    void removeDrawerItem(DrawerItem *item);
    /// Removes all items and schedules their deletion.
    void clearDrawerItems();

    /// Expands \a item, or collapses it if it is expanded, and collapses all others. For an item
    /// that is not in the list, or null, it only collapses the others.
    void setDrawerItemContentShow(DrawerItem *item);
    /// Expands and selects the item at \a index, and collapses and deselects all others. With an
    /// index outside the list no item is selected. \see getSelectItem()
    void setSelectItemByIndex(int index);
    /// The index of the selected item, -1 if there is none. \see setSelectItemByIndex()
    int getSelectItem();
    /// The index of \a item, -1 if it is null or not in the list.
    int getItemIndexByDrawerItem(DrawerItem *item);

    /// The items from top to bottom, without deleted ones. \see setDrawerItemList()
    QList<DrawerItem *> drawerItemList() const;
    /// Replaces the list of items, without null pointers; no layout, no connection and no owner
    /// changes. \see drawerItemList()
    void setDrawerItemList(const QList<DrawerItem *> &items);

    /// The layout that new items are added to, null if there is none. \see setPVBoxlayout()
    QVBoxLayout *pVBoxlayout() const;
    /// Puts \a layout, null for none, in the place of pVBoxlayout(); it is not installed. It should
    /// stand in a widget: like any layout of Qt's, one that stands in none is not told when its
    /// items are deleted. Without a layout new items keep their parent. The drawer deletes the
    /// layout that it has when it is destroyed.
    void setPVBoxlayout(QVBoxLayout *layout);

Q_SIGNALS:
    /// The header of \a item, or its shrink button, was clicked, and the items have been expanded
    /// and collapsed.
    void signal_notifyItem(DrawerItem *item);

public Q_SLOTS:
    /// What a click on the header of \a item does: setDrawerItemContentShow() and, if the item
    /// still exists, signal_notifyItem(). A null pointer is handed on.
    void on_notifyIsShrink(DrawerItem *item);

private:
    QVector<QPointer<DrawerItem>> m_items;
    QPointer<QVBoxLayout> m_layout;
};

#endif // DRAWER_H
