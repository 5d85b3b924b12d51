#include "cabinets.h"
#include "devices.h"
#include "droparea.h"
#include "page.h"

#include <drawer.h>
#include <draweritem.h>
#include <draweritemcontent.h>
#include <offlineportitemframe.h>
#include <rowlineitem.h>

namespace
{

void select(Drawer *drawer, DrawerItem *selected)
{
    for (DrawerItem *item : drawer->drawerItemList())
        item->setDrawItemPressed(item == selected);
}

void addItem(Page &page, Drawer *drawer, DrawerItem *item)
{
    drawer->addDrawerItem(item);
    using W = DrawerItem;
    page.event(item, "signal_notifySettings", &W::signal_notifySettings);
    page.event(item, "signal_deleteItem", &W::signal_deleteItem);
    page.event(item, "signal_ItemContentPortItemPressed", &W::signal_ItemContentPortItemPressed);
    page.event(item, "signal_offlineItemContentPortItemPressed",
               &W::signal_offlineItemContentPortItemPressed);
    page.event(item, "signal_checkAllItemContent", &W::signal_checkAllItemContent);
    if (auto *content = item->findChild<DrawerItemContent *>()) {
        page.event(content, "signal_notifyChangedPortInfo",
                   &DrawerItemContent::signal_notifyChangedPortInfo);
        page.event(content, "signal_notifyAddBeenTakenCabinetModel",
                   &DrawerItemContent::signal_notifyAddBeenTakenCabinetModel);
    }
    // What is the host's: to select, to tidy up after a check-all box, which expands its item by
    // itself, and to delete.
    QObject::connect(item, &W::signals_selectedCurrentItem, drawer,
                     [drawer](W *selected) { select(drawer, selected); });
    QObject::connect(item, &W::signal_checkAllHasClicked, drawer, [drawer](W *clicked) {
        select(drawer, clicked);
        for (W *other : drawer->drawerItemList())
            other->setWorkSpaceisShow(other == clicked);
    });
    QObject::connect(item, &W::signal_deleteItem, drawer,
                     [drawer](W *deleted) { drawer->removeDrawerItem(deleted); });
}

} // namespace

GALLERY_PAGE(Drawer)
{
    page.setPurpose("A stack of drawer items, one for each device, of which at most one is "
                    "expanded: a click on a header expands it and collapses the others.");

    using W = Drawer;
    auto *drawer = new Drawer;
    drawer->setFixedSize(320, 640);
    addItem(page, drawer, devices::makePortsItem("Sender A7", 4));
    addItem(page, drawer, devices::makeCheckItem("Sender B2", 0));
    addItem(page, drawer, devices::makeCheckItem("Sender B3", 2));
    addItem(page, drawer, devices::makeCheckItem("Sender B4", 4));
    addItem(page, drawer, devices::makeOfflineItem("Sender C1", 16, false));
    addItem(page, drawer, devices::makeOfflineItem("Sender C2", 6, true));
    drawer->setSelectItemByIndex(0);

    auto *dropArea = new DropArea;
    page.tryHere("Try it: drag cabinets out of the rows", drawer, dropArea);
    page.event(drawer, "signal_notifyItem", &W::signal_notifyItem);
    page.event(dropArea, "cabinetArrived", &DropArea::cabinetArrived);

    page.number<W>(
        "setSelectItemByIndex", &W::getSelectItem,
        [](W *drawer, int index) {
            if (index < drawer->drawerItemList().size())
                drawer->setSelectItemByIndex(index);
        },
        0, 20, Reach::TryIt);
    page.action<W>(
        "addDrawerItem() online",
        [&page](W *drawer) { addItem(page, drawer, devices::makePortsItem("Sender E1", 2)); },
        Reach::TryIt);
    page.action<W>(
        "addDrawerItem() offline",
        [&page](W *drawer) {
            addItem(page, drawer, devices::makeOfflineItem("Sender E2", 8, false));
        },
        Reach::TryIt);
    page.action<W>(
        "removeDrawerItem(0)", [](W *drawer) { drawer->removeDrawerItem(0); }, Reach::TryIt);
    page.action<W>("clearDrawerItems()", &W::clearDrawerItems, Reach::TryIt);
}
