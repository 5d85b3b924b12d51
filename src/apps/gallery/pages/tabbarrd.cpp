#include "page.h"
#include "tabsheet.h"

#include <tabbarrd.h>

namespace
{

TabBarRd *makeBar(QWidget *parent, TabBarRd::TabBarType type, int width,
                  const QStringList &texts = {"Screen", "Senders", "Wall"})
{
    auto *bar = new TabBarRd(parent);
    bar->setTabBarType(type);
    bar->setFixedSize(width, theme::controlHeight);
    brightenCloseButtons(bar);
    for (const QString &text : texts)
        bar->addTab(text);
    return bar;
}

} // namespace

GALLERY_PAGE(TabBarRd)
{
    page.setPurpose("A tab bar whose tabs can share its width equally; the last one also gets the "
                    "pixels that do not divide. The look is Qt's own.");

    page.setStates({{"Normal", State::Normal}, {"Disabled", State::Disabled}});
    page.look("By content", [](QWidget *parent) {
        TabBarRd *bar = makeBar(parent, TabBarRd::TabsByContent, 228);
        bar->setExpanding(false);
        return bar;
    });
    page.look("Equal widths",
              [](QWidget *parent) { return makeBar(parent, TabBarRd::TabsOfEqualWidth, 228); });
    page.look("  closable", [](QWidget *parent) {
        TabBarRd *bar = makeBar(parent, TabBarRd::TabsOfEqualWidth, 228, {"Screen", "Senders"});
        bar->setTabsClosable(true);
        return bar;
    });
    page.look("  one tab", [](QWidget *parent) {
        return makeBar(parent, TabBarRd::TabsOfEqualWidth, 228, {"Screen"});
    });
    page.look("  Chinese", [](QWidget *parent) {
        return makeBar(parent, TabBarRd::TabsOfEqualWidth, 228, {"屏幕", "发送器", "亮度"});
    });

    TabBarRd *bar = page.tryHere("Try it", makeBar(nullptr, TabBarRd::TabsOfEqualWidth, 480));
    page.event(bar, "currentChanged", &TabBarRd::currentChanged);

    using W = TabBarRd;
    page.choice<W>("setTabBarType", {"By content", "Equal widths"}, &W::getTabBarType,
                   [](W *bar, int type) {
                       bar->setTabBarType(static_cast<W::TabBarType>(type));
                       // Only stored: the tabs are laid out anew at the next resize.
                       bar->resize(bar->width() - 1, bar->height());
                       bar->resize(bar->width() + 1, bar->height());
                   });
    page.action<W>(
        "addTab()", [](W *bar) { bar->addTab(QString("Tab %1").arg(bar->count() + 1)); },
        Reach::TryIt);
    page.action<W>(
        "removeTab(0)", [](W *bar) { bar->removeTab(0); }, Reach::TryIt);
}
