#include "lists.h"
#include "page.h"

#include <customlistwidgetmulitem.h>
#include <equiplistwidget.h>
#include <listwidgetex.h>

#include <QLabel>
#include <QMovie>

namespace
{

Sample makeList(QWidget *parent, int rows, int columns)
{
    auto *list = new EquipListWidget("Devices");
    list->setFixedWidth(500);
    list->getListWidget()->setFrameShape(QFrame::NoFrame);
    theme::styleScrollBars(list->getListWidget());
    list->setRefLabelText("Looking for devices …");
    lists::addDevices(list, rows, columns);
    return Sample(lists::makeLightWindow(parent, list), list, list);
}

EquipListWidget *listOf(const Sample &sample)
{
    return qobject_cast<EquipListWidget *>(sample.target.data());
}

Sample makeRefreshing(QWidget *parent)
{
    const Sample sample = makeList(parent, 0, 4);
    listOf(sample)->slot_ShowRefAnimation();
    // Held at its first picture, so that the page looks the same each time it is rendered.
    for (QLabel *label : sample.widget->findChildren<QLabel *>()) {
        if (label->movie())
            label->movie()->setPaused(true);
    }
    return sample;
}

} // namespace

GALLERY_PAGE(EquipListWidget)
{
    page.setPurpose("A list of devices under a title that folds it, with an animation over the "
                    "list while the host looks for devices.");

    page.setStates({{"Normal", State::Normal}});
    page.look("Two columns", [](QWidget *parent) { return makeList(parent, 3, 2); });
    page.look("Four columns", [](QWidget *parent) { return makeList(parent, 3, 4); });
    page.look("More rows", [](QWidget *parent) { return makeList(parent, 6, 3); });
    page.look("Refreshing", makeRefreshing);
    page.look("Folded", [](QWidget *parent) {
        const Sample sample = makeList(parent, 3, 4);
        listOf(sample)->slot_ShowList(false);
        return sample;
    });
    page.setStates({{"Disabled", State::Disabled}}, "Disabled");
    page.look("Four columns", [](QWidget *parent) { return makeList(parent, 3, 4); });

    using W = EquipListWidget;
    const Sample tried = makeList(nullptr, 4, 4);
    page.tryHere("Try it: fold, double-click rows, refresh", tried);
    W *list = listOf(tried);
    page.event(list, "signal_RefEquipInfo", &W::signal_RefEquipInfo);
    page.event(list, "signal_Setting", &W::signal_Setting);
    page.event(list, "signal_everySetting", &W::signal_everySetting);
    page.event(list, "signal_itemDoubleClicked", &W::signal_itemDoubleClicked);
    QObject::connect(list, &W::signal_RefEquipInfo, list, [list] {
        list->clearAllCustomItems();
        list->slot_ShowRefAnimation();
    });

    page.text<W>("setTitle", Page::withoutGetter(QString("Devices")), &W::setTitle);
    page.text<W>("setRefLabelText", Page::withoutGetter(QString("Looking for devices …")),
                 &W::setRefLabelText);
    page.flag<W>("setTitleVisiable", Page::withoutGetter(true), &W::setTitleVisiable);
    page.flag<W>("setIconVisible", Page::withoutGetter(false), &W::setIconVisible);
    page.flag<W>("slot_ShowList", Page::withoutGetter(true), &W::slot_ShowList);
    page.action<W>("slot_ShowRefAnimation()", &W::slot_ShowRefAnimation, Reach::TryIt);
    page.action<W>(
        "slot_StopRefAnimation()",
        [](W *list) {
            list->slot_StopRefAnimation();
            if (list->getItems().isEmpty())
                lists::addDevices(list, 4, 4);
        },
        Reach::TryIt);
    page.action<W>(
        "addCustomItem()", [](W *list) { lists::addDevices(list, 1, 4); }, Reach::TryIt);
    page.action<W>(
        "removeCustomItem(0)", [](W *list) { list->removeCustomItem(0); }, Reach::TryIt);
    page.action<W>("clearAllCustomItems()", &W::clearAllCustomItems, Reach::TryIt);
}
