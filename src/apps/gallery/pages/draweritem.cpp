#include "cabinets.h"
#include "devices.h"
#include "page.h"
#include "pointers.h"

#include <draweritem.h>
#include <drawitemcontentnew.h>

namespace
{

constexpr int itemWidth = 258;
constexpr int checkItemWidth = 290;

DrawerItem *makeHeader(QWidget *parent, bool isOnline, bool isSelected, int width = itemWidth)
{
    DrawerItem *item =
        devices::makeItem("Sender A7", isOnline ? "COM3" : "last seen at COM3", isOnline, parent);
    item->setDrawItemPressed(isSelected);
    item->setFixedWidth(width);
    return item;
}

DrawerItem *makeCheckHeader(QWidget *parent, checkStateEx state)
{
    DrawerItem *item = makeHeader(parent, true, false, checkItemWidth);
    item->setCheckAllVisible(true);
    item->setCheckAllStyle(state);
    return item;
}

} // namespace

GALLERY_PAGE(DrawerItem)
{
    page.setPurpose(
        "One collapsible entry of a drawer: the header of a device and, below it, a "
        "work space. It reports clicks; the drawer expands it and the host selects it.");

    page.setStates({{"Normal", State::Normal},
                    {"Hover", State::Hover, pointers::onCentre,
                     [](QWidget *item) { return item->findChild<QWidget *>("FrameRight"); }}},
                   "Headers");
    page.look("Online", [](QWidget *parent) { return makeHeader(parent, true, false); });
    page.look("Selected", [](QWidget *parent) { return makeHeader(parent, true, true); });
    page.look("Offline", [](QWidget *parent) { return makeHeader(parent, false, false); });
    page.look("  selected", [](QWidget *parent) { return makeHeader(parent, false, true); });
    page.look("No button", [](QWidget *parent) {
        DrawerItem *item = makeHeader(parent, true, false);
        item->setWidgetVisible(false);
        return item;
    });

    page.setStates({{"Normal", State::Normal}}, "Check-all box and count");
    page.look("None", [](QWidget *parent) { return makeCheckHeader(parent, NoneChecked); });
    page.look("Part", [](QWidget *parent) { return makeCheckHeader(parent, PartChecked); });
    page.look("All", [](QWidget *parent) { return makeCheckHeader(parent, AllChecked); });
    page.look("Count", [](QWidget *parent) {
        DrawerItem *item = makeHeader(parent, true, false, checkItemWidth);
        item->setWidgetVisible(false);
        item->setDeviceCount("3 / 16");
        item->setDeviceCountVisible(true);
        return item;
    });

    using W = DrawerItem;
    W *item = devices::makeCheckItem("Sender B2", 1);
    item->setFixedWidth(checkItemWidth);
    item->setWorkSpaceisShow(true);
    page.tryHere("Try it", item);
    page.event(item, "notifyIsShrink", &W::notifyIsShrink);
    page.event(item, "signals_selectedCurrentItem", &W::signals_selectedCurrentItem);
    page.event(item, "signal_notifySettings", &W::signal_notifySettings);
    page.event(item, "signal_deleteItem", &W::signal_deleteItem);
    page.event(item, "signal_currentCheckBoxCheck", &W::signal_currentCheckBoxCheck);
    page.event(item, "signal_checkAllItemContent", &W::signal_checkAllItemContent);
    page.event(item, "signal_checkAllHasClicked", &W::signal_checkAllHasClicked);
    page.event(item, "signal_drawItemContentStateChandged",
               &W::signal_drawItemContentStateChandged);
    QObject::connect(item, &W::notifyIsShrink, &page,
                     [](W *item) { item->setWorkSpaceisShow(!item->getWorkSpaceIsShow()); });

    page.text<W>("setDeviceName", &W::getDeviceName, &W::setDeviceName);
    page.text<W>("setDevicePortName", &W::getDevicePortName,
                 [](W *item, const QString &name) { item->setDevicePortName(name, true); });
    page.text<W>("setDeviceCount", &W::deviceCount, &W::setDeviceCount);
    page.flag<W>("setDeviceCountVisible", Page::withoutGetter(false), &W::setDeviceCountVisible);
    page.flag<W>("setWidgetVisible", Page::withoutGetter(true), &W::setWidgetVisible);
    page.flag<W>("setBOnline", &W::getBOnline, &W::setBOnline);
    page.flag<W>("setDrawItemPressed", &W::getItemPressed, &W::setDrawItemPressed);
    page.flag<W>("setWorkSpaceisShow", &W::getWorkSpaceIsShow, &W::setWorkSpaceisShow);
    page.flag<W>("setIsInEditMode", &W::getIsInEditMode, &W::setIsInEditMode);
    page.flag<W>("setCheckAllVisible", Page::withoutGetter(true), &W::setCheckAllVisible);
    page.flag<W>("setCheckAllIsCheck", Page::withoutGetter(false), &W::setCheckAllIsCheck);
    page.choice<W>("setCheckAllStyle", {"AllChecked", "NoneChecked", "PartChecked"},
                   Page::withoutGetter(int(PartChecked)), [](W *item, int state) {
                       item->setCheckAllStyle(static_cast<checkStateEx>(state));
                   });
    page.flag<W>("setIsVisibleScrollBar", Page::withoutGetter(false), &W::setIsVisibleScrollBar);
    page.number<W>(
        "setScrollAreaHeight", [](W *item) { return item->getItem()->height(); },
        &W::setScrollAreaHeight, 40, 400, Reach::TryIt);
}
