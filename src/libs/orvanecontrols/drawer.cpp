#include "drawer.h"

#include "draweritem.h"
#include "internal/livelist.h"

Drawer::Drawer(QWidget *parent)
    : QWidget(parent)
    , m_layout(new QVBoxLayout(this))
{
    // Signal spies and queued connections look the type up by name.
    qRegisterMetaType<DrawerItem *>();
    m_layout->setSpacing(10);
    m_layout->addStretch(0);
}

Drawer::~Drawer()
{
    delete m_layout;
}

void Drawer::addDrawerItem(DrawerItem *item)
{
    if (!item)
        return;
    if (m_layout)
        m_layout->insertWidget(m_layout->count() - 1, item); // above the stretch
    connect(item, &DrawerItem::notifyIsShrink, this, &Drawer::on_notifyIsShrink);
    m_items.append(item);
}

void Drawer::removeDrawerItem(int index)
{
    orvane::dropDeleted(m_items);
    if (index < 0 || index >= m_items.size())
        return;
    DrawerItem *item = m_items.takeAt(index);
    disconnect(item, &DrawerItem::notifyIsShrink, this, &Drawer::on_notifyIsShrink);
    item->deleteLater();
}

void Drawer::removeDrawerItem(DrawerItem *item)
{
    if (!item)
        return;
    m_items.removeOne(item);
    item->deleteLater();
}

void Drawer::clearDrawerItems()
{
    orvane::deleteAllLater(m_items);
    m_items.clear();
}

void Drawer::setDrawerItemContentShow(DrawerItem *item)
{
    // Bodies that are shown and hidden run code of the host's, which may change the list and
    // delete other items.
    const auto items = m_items;
    for (const QPointer<DrawerItem> &other : items) {
        if (other)
            other->setWorkSpaceisShow(other == item && !other->getWorkSpaceIsShow());
    }
}

void Drawer::setSelectItemByIndex(int index)
{
    orvane::dropDeleted(m_items);
    const auto items = m_items;
    for (const QPointer<DrawerItem> &item : items) {
        if (item)
            item->setWorkSpaceisShow(false);
        if (item)
            item->setDrawItemPressed(false);
    }
    if (index < 0 || index >= items.size())
        return;
    const QPointer<DrawerItem> &selected = items.at(index);
    if (selected)
        selected->setWorkSpaceisShow(true);
    if (selected)
        selected->setDrawItemPressed(true);
}

int Drawer::getSelectItem()
{
    orvane::dropDeleted(m_items);
    for (int i = 0; i < m_items.size(); ++i) {
        if (m_items.at(i)->getItemPressed())
            return i;
    }
    return -1;
}

int Drawer::getItemIndexByDrawerItem(DrawerItem *item)
{
    orvane::dropDeleted(m_items);
    return item ? m_items.indexOf(item) : -1;
}

QList<DrawerItem *> Drawer::drawerItemList() const
{
    return orvane::liveWidgets(m_items);
}

void Drawer::setDrawerItemList(const QList<DrawerItem *> &items)
{
    m_items = orvane::liveList(items);
}

QVBoxLayout *Drawer::pVBoxlayout() const
{
    return m_layout;
}

void Drawer::setPVBoxlayout(QVBoxLayout *layout)
{
    m_layout = layout;
}

void Drawer::on_notifyIsShrink(DrawerItem *item)
{
    const QPointer<DrawerItem> clicked(item);
    setDrawerItemContentShow(item);
    if (clicked == item)
        Q_EMIT signal_notifyItem(item);
}
