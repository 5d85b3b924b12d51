#include "page.h"
#include "tabsheet.h"

#include <nqtabbar.h>

namespace
{

NQTabBar *makeBar(QWidget *parent, int width,
                  const QStringList &texts = {"Screen", "Senders", "Wall"})
{
    auto *bar = new NQTabBar(parent);
    bar->setWidgetFixedSize(width, theme::controlHeight);
    for (const QString &text : texts)
        bar->addTab(text);
    bar->setCurrentIndex(0);
    brightenCloseButtons(bar);
    return bar;
}

QWidget *makeWidget(const QString &text)
{
    PushButtonEx *button = makeButton(text, NoActivatedBtn, nullptr);
    button->setFixedHeight(24);
    return button;
}

} // namespace

GALLERY_PAGE(NQTabBar)
{
    page.setPurpose("A row with a tab bar and places for a host's widgets: at the left, behind the "
                    "tabs, and at the right end.");

    page.setStates({{"Normal", State::Normal}, {"Disabled", State::Disabled}});
    page.look("Tabs only", [](QWidget *parent) { return makeBar(parent, 264); });
    page.look("With widgets", [](QWidget *parent) {
        NQTabBar *bar = makeBar(parent, 264, {"Wall", "Log"});
        bar->addLeftWidget(makeWidget("Home"));
        bar->addCenterWidget(makeWidget("+"));
        bar->addRightWidget(makeWidget("Help"));
        return bar;
    });
    page.look("Equal widths", [](QWidget *parent) {
        NQTabBar *bar = makeBar(parent, 264);
        bar->setTabBarType(TabBarRd::TabsOfEqualWidth);
        return bar;
    });
    page.look("Closable", [](QWidget *parent) {
        NQTabBar *bar = makeBar(parent, 264, {"Screen", "Senders"});
        bar->setTabsClosable(true);
        return bar;
    });

    NQTabBar *bar = page.tryHere("Try it", makeBar(nullptr, 560));
    page.event(bar, "currentChanged", &NQTabBar::currentChanged);
    page.event(bar, "tabCloseRequested", &NQTabBar::tabCloseRequested);

    using W = NQTabBar;
    page.action<W>(
        "addTab()", [](W *bar) { bar->addTab(QString("Tab %1").arg(bar->count() + 1)); },
        Reach::TryIt);
    page.action<W>(
        "insertTab(0)", [](W *bar) { bar->insertTab(0, "Inserted"); }, Reach::TryIt);
    page.action<W>(
        "removeTab(currentIndex())", [](W *bar) { bar->removeTab(bar->currentIndex()); },
        Reach::TryIt);
    page.action<W>(
        "addLeftWidget()", [](W *bar) { bar->addLeftWidget(makeWidget("Left")); }, Reach::TryIt);
    page.action<W>(
        "addCenterWidget()",
        [](W *bar) {
            auto *widget = makeWidget("+");
            bar->addCenterWidget(widget);
            if (!widget->parentWidget())
                delete widget; // the centre was taken
        },
        Reach::TryIt);
    page.action<W>(
        "addRightWidget()", [](W *bar) { bar->addRightWidget(makeWidget("Right")); }, Reach::TryIt);
    page.choice<W>(
        "setTabBarType", {"By content", "Equal widths"}, &W::getTabBarType,
        [](W *bar, int type) { bar->setTabBarType(static_cast<TabBarRd::TabBarType>(type)); });
    page.number<W>("setTabMaxWidth", Page::withoutGetter(560), &W::setTabMaxWidth, 0, 1000,
                   Reach::TryIt);
    page.flag<W>("setTabsClosable", &W::tabsClosable, &W::setTabsClosable);
    page.flag<W>("setMovable", &W::isMovable, &W::setMovable);
    page.flag<W>("setAutoHide", &W::autoHide, &W::setAutoHide);
}
