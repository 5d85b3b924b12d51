#include "page.h"
#include "tabsheet.h"

#include <nqtabbar.h>
#include <nqtabwidget.h>

#include <QLabel>
#include <QVBoxLayout>

namespace
{

const QColor pageColor(69, 69, 69);

QWidget *makePage(const QString &text)
{
    auto *content = new QWidget;
    auto *layout = new QVBoxLayout(content);
    auto *label = new QLabel(text, content);
    label->setAlignment(Qt::AlignCenter);
    layout->addWidget(label);
    return content;
}

NQTabWidget *makeTabs(QWidget *parent, QSize size,
                      const QStringList &texts = {"Screen", "Senders", "Wall"})
{
    auto *tabs = new NQTabWidget(parent);
    tabs->setWidgetSize(size.width(), size.height());
    tabs->setStackedWidgetColor(pageColor);
    for (const QString &text : texts)
        tabs->addTab(makePage(text), text);
    tabs->setCurrentIndex(0);
    brightenCloseButtons(tabs->getTabBar());
    return tabs;
}

} // namespace

GALLERY_PAGE(NQTabWidget)
{
    page.setPurpose("Pages behind tabs: a tab bar above a stack of pages, kept in step. The last "
                    "tab cannot be closed.");

    constexpr QSize size(256, 104);
    page.setStates({{"Normal", State::Normal}, {"Disabled", State::Disabled}});
    page.look("By content", [=](QWidget *parent) { return makeTabs(parent, size); });
    page.look("Equal widths", [=](QWidget *parent) {
        NQTabWidget *tabs = makeTabs(parent, size);
        tabs->setTabBarType(TabBarRd::TabsOfEqualWidth);
        return tabs;
    });
    page.look("Closable", [=](QWidget *parent) {
        NQTabWidget *tabs = makeTabs(parent, size, {"Screen", "Senders"});
        tabs->setTabsClosable(true);
        return tabs;
    });
    page.look("Many tabs", [=](QWidget *parent) {
        QStringList texts;
        for (int i = 1; i <= 8; ++i)
            texts.append(QString("Screen %1").arg(i));
        return makeTabs(parent, size, texts);
    });

    NQTabWidget *tabs = page.tryHere("Try it", makeTabs(nullptr, QSize(560, 200)));
    page.event(tabs->getTabBar(), "currentChanged", &NQTabBar::currentChanged);
    page.event(tabs->getTabBar(), "tabCloseRequested", &NQTabBar::tabCloseRequested);

    using W = NQTabWidget;
    page.action<W>(
        "addTab()",
        [](W *tabs) {
            const QString text = QString("Tab %1").arg(tabs->count() + 1);
            tabs->addTab(makePage(text), text);
        },
        Reach::TryIt);
    page.action<W>(
        "insertTab(1)", [](W *tabs) { tabs->insertTab(1, makePage("Inserted"), "Inserted"); },
        Reach::TryIt);
    page.action<W>(
        "removeTab(currentIndex())", [](W *tabs) { tabs->removeTab(tabs->currentIndex()); },
        Reach::TryIt);
    page.number<W>("setCurrentIndex", &W::currentIndex, &W::setCurrentIndex, 0, 20, Reach::TryIt);
    page.text<W>(
        "setTabText(currentIndex())", [](W *tabs) { return tabs->tabText(tabs->currentIndex()); },
        [](W *tabs, const QString &text) { tabs->setTabText(tabs->currentIndex(), text); });
    page.choice<W>(
        "setTabBarType", {"By content", "Equal widths"}, &W::getTabBarType,
        [](W *tabs, int type) { tabs->setTabBarType(static_cast<TabBarRd::TabBarType>(type)); });
    page.flag<W>("setTabsClosable", &W::tabsClosable, &W::setTabsClosable);
    page.flag<W>("setMovable", &W::isMovable, &W::setMovable);
    page.flag<W>("setAutoHide", &W::autoHide, &W::setAutoHide);
    page.color<W>("setStackedWidgetColor", Page::withoutGetter(pageColor),
                  &W::setStackedWidgetColor);
}
