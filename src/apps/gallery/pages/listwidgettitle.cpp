#include "lists.h"
#include "page.h"

#include <listwidgettitle.h>

#include <QLayout>

namespace
{

Sample makeTitle(QWidget *parent, const QString &text,
                 const std::function<void(ListWidgetTitle *)> &change = {})
{
    auto *title = new ListWidgetTitle(text);
    title->setFixedWidth(164);
    if (change)
        change(title);
    return Sample(lists::makeLightWindow(parent, title), title, title);
}

void addLooks(Page &page)
{
    page.look("List shown", [](QWidget *parent) { return makeTitle(parent, "Projects"); });
    page.look("List folded", [](QWidget *parent) {
        return makeTitle(parent, "Projects",
                         [](ListWidgetTitle *title) { title->changeDropDownBtn(false); });
    });
    page.look("No refresh", [](QWidget *parent) {
        return makeTitle(parent, "设备", [](ListWidgetTitle *title) { title->hideRefIcon(); });
    });
    // The settings button stands over the corner of the title.
    page.look("All buttons", [](QWidget *parent) {
        return makeTitle(parent, "   Devices",
                         [](ListWidgetTitle *title) { title->setIconVisible(true); });
    });
}

template <int index> QWidget *button(QWidget *window)
{
    return window->findChild<ListWidgetTitle *>()->layout()->itemAt(index)->widget();
}
constexpr int refresh = 2;
constexpr int dropDown = 3;

} // namespace

GALLERY_PAGE(ListWidgetTitle)
{
    page.setPurpose("The header of a list: its title, a refresh button, and a button that folds "
                    "and unfolds the list.");

    page.setStates({
        {"Normal", State::Normal},
        {"Hover on refresh", State::Hover, {}, button<refresh>},
        {"Hover on fold", State::Hover, {}, button<dropDown>},
    });
    addLooks(page);
    page.setStates(
        {{"Pressed fold", State::Pressed, {}, button<dropDown>}, {"Disabled", State::Disabled}},
        "More states");
    addLooks(page);

    using W = ListWidgetTitle;
    const Sample tried = makeTitle(nullptr, "Devices");
    page.tryIt(tried);
    auto *title = qobject_cast<W *>(tried.target.data());
    page.event(title, "signal_Refresh", &W::signal_Refresh);
    page.event(title, "signal_Setting", &W::signal_Setting);
    page.event(title, "signal_HideShow", &W::signal_HideShow);
    QObject::connect(title, &W::signal_HideShow, title, &W::changeDropDownBtn);

    page.text<W>("setTitle", Page::withoutGetter(QString("Devices")), &W::setTitle);
    page.flag<W>("changeDropDownBtn", Page::withoutGetter(true), &W::changeDropDownBtn);
    page.flag<W>("setIconVisible", Page::withoutGetter(false), &W::setIconVisible);
    page.action<W>("hideRefIcon()", &W::hideRefIcon, Reach::TryIt);
}
