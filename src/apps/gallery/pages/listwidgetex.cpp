#include "lists.h"
#include "page.h"

#include <customlistwidgetitem.h>
#include <listwidgetex.h>

#include <QCoreApplication>
#include <QHoverEvent>

namespace
{

constexpr int pointedRow = 1;

Sample makeList(QWidget *parent, int rows, QSize size)
{
    auto *list = new ListWidgetEx;
    list->setFixedSize(size);
    list->setFrameShape(QFrame::NoFrame);
    lists::addProjects(list, rows);
    return Sample(lists::makeLightWindow(parent, list), list, list);
}

void addLooks(Page &page)
{
    constexpr QSize size(164, 3 * 34);
    page.look("Default", [size](QWidget *parent) { return makeList(parent, 3, size); });
    page.look("Own colours", [size](QWidget *parent) {
        const Sample sample = makeList(parent, 3, size);
        auto *list = qobject_cast<ListWidgetEx *>(sample.target.data());
        list->setBgNormalColor(QColor(255, 255, 255));
        list->setBgHoverColor(QColor(226, 238, 253));
        list->setBgPressedColor(QColor(186, 214, 250));
        return sample;
    });
}

/// The row that the pointer is over; the list hears of the pointer too, as it does in a window.
QWidget *hoveredRow(QWidget *window)
{
    auto *list = window->findChild<ListWidgetEx *>();
    const QPointF position(list->visualItemRect(list->item(pointedRow)).center());
    QHoverEvent hover(QEvent::HoverMove, position, QPointF(-1, -1));
    QCoreApplication::sendEvent(list->viewport(), &hover);
    return list->itemWidget(list->item(pointedRow));
}

QWidget *hoveredTrash(QWidget *window)
{
    return lists::trashButton(hoveredRow(window));
}

QWidget *selectedRow(QWidget *window)
{
    auto *list = window->findChild<ListWidgetEx *>();
    list->setCurrentRow(pointedRow);
    return list->itemWidget(list->item(pointedRow));
}

} // namespace

GALLERY_PAGE(ListWidgetEx)
{
    page.setPurpose("A list of projects: a press on a row asks for its project, and the trash "
                    "button asks for its removal.");

    page.setStates({
        {"Normal", State::Normal},
        {"Hover", State::Hover, {}, hoveredRow},
        {"Hover on trash", State::Hover, {}, hoveredTrash},
    });
    addLooks(page);
    page.setStates({{"Selected", State::Normal, {}, selectedRow}, {"Disabled", State::Disabled}},
                   "More states");
    addLooks(page);

    using W = ListWidgetEx;
    const Sample tried = makeList(nullptr, 5, {260, 6 * 34});
    page.tryIt(tried);
    auto *list = qobject_cast<W *>(tried.target.data());
    theme::styleScrollBars(list);
    page.event(list, "signal_notifyProjectPath", &W::signal_notifyProjectPath);
    page.event(list, "signal_notifydeleteItem", &W::signal_notifydeleteItem);
    // To delete is the host's.
    QObject::connect(list, &W::signal_notifydeleteItem, list,
                     [](W *list, CustomListWidgetItem *, int index) { list->deleteItem(index); });

    page.color<W>("setBgNormalColor", &W::bgNormalColor, &W::setBgNormalColor);
    page.color<W>("setBgHoverColor", &W::bgHoverColor, &W::setBgHoverColor);
    page.color<W>("setBgPressedColor", &W::bgPressedColor, &W::setBgPressedColor);
    page.color<W>("setFontColor", &W::fontColor, &W::setFontColor);
    page.action<W>(
        "addCustomItem()", [](W *list) { lists::addProjects(list, 1); }, Reach::TryIt);
    page.action<W>(
        "deleteItem(0)", [](W *list) { list->deleteItem(0); }, Reach::TryIt);
    page.action<W>("clearAllItems()", &W::clearAllItems, Reach::TryIt);
}
