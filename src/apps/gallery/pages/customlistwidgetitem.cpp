#include "lists.h"
#include "page.h"

#include <customlistwidgetitem.h>

namespace
{

Sample makeRow(QWidget *parent, int width, const QString &text, const QString &path, bool isWarned)
{
    auto *row = new CustomListWidgetItem;
    row->setFixedSize(width, 34);
    row->setDisplayInfo(text);
    row->setValueInfo(path);
    row->setValidIcon(isWarned);
    return Sample(lists::makeLightWindow(parent, row), row, row);
}

void addLooks(Page &page)
{
    page.look("Path found", [](QWidget *parent) {
        return makeRow(parent, 164, "Lobby ceiling", "/projects/lobby/ceiling.wall", false);
    });
    page.look("Path missing", [](QWidget *parent) {
        return makeRow(parent, 164, "Studio", "/media/old-disk/studio.wall", true);
    });
}

QWidget *trashButton(QWidget *ground)
{
    return lists::trashButton(firstPart<CustomListWidgetItem>(ground));
}

} // namespace

GALLERY_PAGE(CustomListWidgetItem)
{
    page.setPurpose("A row of a project list: a warning when the project is not where it was, its "
                    "name, and a trash button while the pointer is over the row.");

    page.setStates({
        {"Normal", State::Normal},
        {"Hover", State::Hover, {}, firstPart<CustomListWidgetItem>},
        {"Disabled", State::Disabled},
    });
    addLooks(page);
    page.setStates(
        {{"Hover", State::Hover, {}, trashButton}, {"Pressed", State::Pressed, {}, trashButton}},
        "The trash button");
    addLooks(page);

    using W = CustomListWidgetItem;
    const Sample tried = makeRow(nullptr, 260, "Roof banner", "/projects/roof/banner.wall", true);
    page.tryIt(tried);
    auto *row = qobject_cast<W *>(tried.target.data());
    page.event(row, "signal_notifyProjectPath", &W::signal_notifyProjectPath);
    page.event(row, "signal_notifyDeleteItem", &W::signal_notifyDeleteItem);

    page.text<W>("setDisplayInfo", Page::withoutGetter(QString("Roof banner")), &W::setDisplayInfo);
    page.text<W>("setValueInfo", &W::getProjectPath, &W::setValueInfo);
    page.flag<W>("setValidIcon", Page::withoutGetter(true), &W::setValidIcon);
    page.action<W>("slot_deleteItem()", &W::slot_deleteItem, Reach::TryIt);
}
