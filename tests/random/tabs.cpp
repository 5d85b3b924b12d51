#include "nqtabbar.h"
#include "nqtabwidget.h"
#include "nqtoolbutton.h"
#include "tabbarrd.h"
#include "table.h"

#include <QPushButton>
#include <QStackedWidget>

namespace randomuse
{

namespace
{

QTabBar::ButtonPosition buttonPosition(Life &life)
{
    return life.value<bool>() ? QTabBar::LeftSide : QTabBar::RightSide;
}

Entry nQToolButton()
{
    return Table<NQToolButton>("NQToolButton",
                               [](Life &life) {
                                   return new NQToolButton(life.parentOrNone(),
                                                           life.value<ToolButtonType>());
                               })
        .call(NAMED(NQToolButton, createButtonByType))
        .call(NAMED(NQToolButton, setText))
        .call(NAMED(NQToolButton, text))
        .call(NAMED(NQToolButton, setStrDownText))
        .call(NAMED(NQToolButton, strDownText))
        .call(NAMED(NQToolButton, setUpLabelImg))
        .call(NAMED(NQToolButton, setBtnEnabled))
        .call(NAMED(NQToolButton, setLeftLabelImg))
        .call(NAMED(NQToolButton, setRightLabelImg))
        .call(NAMED(NQToolButton, setUpLabelSize))
        .call(NAMED(NQToolButton, setDownLabelSize))
        .call(NAMED(NQToolButton, setDownLabelHeight))
        .call(NAMED(NQToolButton, setDownLabelTextColor))
        .call(NAMED(NQToolButton, setTopToBottomNormalBtnColor))
        .call(NAMED(NQToolButton, setTopToBottomHoverBtnColor))
        .call(NAMED(NQToolButton, setTopToBottomPressedBtnColor))
        .call(NAMED(NQToolButton, setTopToBottomDisabledBtnColor))
        .call(NAMED(NQToolButton, setTopToBottomHoverBtnBorderColor))
        .call(NAMED(NQToolButton, setTopToBottomPressedBtnBorderColor))
        .call(NAMED(NQToolButton, setTopToBottomBorderRadius))
        .space(NAMED(NQToolButton, setTopToBottomBtnVlayoutSpace))
        .space(NAMED(NQToolButton, setTopToBottomBtnVlayoutMargins))
        .call(NAMED(NQToolButton, setTopToBottomBtnMaxWidth))
        .call(NAMED(NQToolButton, setTopToBottomBtnMinWidth))
        .call(NAMED(NQToolButton, setTopToBottomBtnBorderWidth))
        .call(NAMED(NQToolButton, downLabelTextColor))
        .call(NAMED(NQToolButton, topToBottomNormalBtnColor))
        .call(NAMED(NQToolButton, topToBottomHoverBtnColor))
        .call(NAMED(NQToolButton, topToBottomPressedBtnColor))
        .call(NAMED(NQToolButton, topToBottomDisabledBtnColor))
        .call(NAMED(NQToolButton, topToBottomBorderRadius))
        .call(NAMED(NQToolButton, topToBottomHoverBtnBorderColor))
        .call(NAMED(NQToolButton, topToBottomPressedBtnBorderColor))
        .call(NAMED(NQToolButton, getLabelRight))
        .call(NAMED(NQToolButton, setLabelRightIsVisible))
        .call(NAMED(NQToolButton, fromColorToStr));
}

Entry tabBarRd()
{
    return Table<TabBarRd>("TabBarRd", [](Life &life) { return new TabBarRd(life.parentOrNone()); })
        .call(NAMED(TabBarRd, setTabBarType))
        .call(NAMED(TabBarRd, setTabMinWidth))
        .call(NAMED(TabBarRd, setTabMaxWidth))
        .call(NAMED(TabBarRd, getTabBarType))
        .call(NAMED(TabBarRd, getTabMinWidth))
        .call(NAMED(TabBarRd, getTabMaxWidth));
}

Entry nQTabBar()
{
    return Table<NQTabBar>("NQTabBar", [](Life &life) { return new NQTabBar(life.parentOrNone()); })
        .call(NAMED(NQTabBar, setTabBarType))
        .call(NAMED(NQTabBar, setTabMinWidth))
        .call(NAMED(NQTabBar, setTabMaxWidth))
        .call(NAMED(NQTabBar, getTabBarType))
        .call(NAMED(NQTabBar, getTabMinWidth))
        .call(NAMED(NQTabBar, getTabMaxWidth))
        .call(NAMED(NQTabBar, getTabBar))
        .call(NAMED(NQTabBar, setWidgetFixedSize))
        .call(NAMED(NQTabBar, setWidgetColor))
        .space(NAMED(NQTabBar, setLeftHLayoutSpace))
        .space(NAMED(NQTabBar, setRightHLayoutSpace))
        .space(NAMED(NQTabBar, setCenterHLayoutSpace))
        .call(NAMED(NQTabBar, addLeftWidget), Again::Grows)
        .call(NAMED(NQTabBar, addRightWidget), Again::Grows)
        .call(NAMED(NQTabBar, addCenterWidget), Again::Grows)
        .call("insertTab", qOverload<int, const QString &>(&NQTabBar::insertTab), Again::Grows)
        .call("insertTab", qOverload<int, const QIcon &, const QString &>(&NQTabBar::insertTab),
              Again::Grows)
        .call("addTab", qOverload<const QString &>(&NQTabBar::addTab), Again::Grows)
        .call("addTab", qOverload<const QIcon &, const QString &>(&NQTabBar::addTab), Again::Grows)
        .call(NAMED(NQTabBar, removeTab))
        .call(NAMED(NQTabBar, moveTab))
        .call(NAMED(NQTabBar, isTabEnabled))
        .call(NAMED(NQTabBar, setTabEnabled))
        .call(NAMED(NQTabBar, tabText))
        .call(NAMED(NQTabBar, setTabText))
        .call(NAMED(NQTabBar, tabTextColor))
        .call(NAMED(NQTabBar, setTabTextColor))
        .call(NAMED(NQTabBar, tabIcon))
        .call(NAMED(NQTabBar, setTabIcon))
        .call(NAMED(NQTabBar, elideMode))
        .call(NAMED(NQTabBar, setElideMode))
        .call(NAMED(NQTabBar, setTabToolTip))
        .call(NAMED(NQTabBar, tabToolTip))
        .call(NAMED(NQTabBar, setTabData))
        .call(NAMED(NQTabBar, tabData))
        .call(NAMED(NQTabBar, tabRect))
        .call(NAMED(NQTabBar, tabAt))
        .call(NAMED(NQTabBar, currentIndex))
        .call(NAMED(NQTabBar, count))
        .call(NAMED(NQTabBar, iconSize))
        .call(NAMED(NQTabBar, setIconSize))
        .call(NAMED(NQTabBar, tabsClosable))
        .call(NAMED(NQTabBar, setTabsClosable))
        .act(
            "setTabButton",
            [](Life &life, NQTabBar *subject) {
                const int index = life.index(subject->count());
                // Qt keeps the widget without watching it: one of the tab's own.
                subject->setTabButton(index, buttonPosition(life),
                                      life.dice().chance(20) ? nullptr
                                                             : life.keep(new QPushButton("x")));
            },
            Again::Grows)
        .act("tabButton",
             [](Life &life, NQTabBar *subject) {
                 const int index = life.index(subject->count());
                 subject->tabButton(index, buttonPosition(life));
             })
        .call(NAMED(NQTabBar, expanding))
        .call(NAMED(NQTabBar, setExpanding))
        .call(NAMED(NQTabBar, autoHide))
        .call(NAMED(NQTabBar, setAutoHide))
        .call(NAMED(NQTabBar, isMovable))
        .call(NAMED(NQTabBar, setMovable))
        .call(NAMED(NQTabBar, usesScrollButtons))
        .call(NAMED(NQTabBar, setUsesScrollButtons))
        .call(NAMED(NQTabBar, setCurrentIndex))
        .call(NAMED(NQTabBar, fromColorToStr));
}

Entry nQTabWidget()
{
    return Table<NQTabWidget>("NQTabWidget",
                              [](Life &life) { return new NQTabWidget(life.parentOrNone()); })
        .call("addTab", qOverload<QWidget *, const QString &>(&NQTabWidget::addTab), Again::Grows)
        .call("addTab", qOverload<QWidget *, const QIcon &, const QString &>(&NQTabWidget::addTab),
              Again::Grows)
        .call("insertTab", qOverload<int, QWidget *, const QString &>(&NQTabWidget::insertTab),
              Again::Grows)
        .call("insertTab",
              qOverload<int, QWidget *, const QIcon &, const QString &>(&NQTabWidget::insertTab),
              Again::Grows)
        .call(NAMED(NQTabWidget, removeTab))
        .call(NAMED(NQTabWidget, setTabText))
        .call(NAMED(NQTabWidget, setCurrentIndex))
        .call(NAMED(NQTabWidget, setCurrentWidget))
        .call(NAMED(NQTabWidget, setTabsClosable))
        .call(NAMED(NQTabWidget, setTabBarType))
        .call(NAMED(NQTabWidget, setTabMinWidth))
        .call(NAMED(NQTabWidget, setTabMaxWidth))
        .call(NAMED(NQTabWidget, setStackedWidgetColor))
        .call(NAMED(NQTabWidget, setWidgetSize))
        .call(NAMED(NQTabWidget, getStackWidget))
        .call(NAMED(NQTabWidget, getTabBar))
        .call(NAMED(NQTabWidget, getTabBarType))
        .call(NAMED(NQTabWidget, getTabMinWidth))
        .call(NAMED(NQTabWidget, getTabMaxWidth))
        .call(NAMED(NQTabWidget, isTabEnabled))
        .call(NAMED(NQTabWidget, setTabEnabled))
        .call(NAMED(NQTabWidget, tabText))
        .call(NAMED(NQTabWidget, tabIcon))
        .call(NAMED(NQTabWidget, setTabIcon))
        .call(NAMED(NQTabWidget, setTabToolTip))
        .call(NAMED(NQTabWidget, tabToolTip))
        .call(NAMED(NQTabWidget, currentIndex))
        .call(NAMED(NQTabWidget, count))
        .call(NAMED(NQTabWidget, tabsClosable))
        .call(NAMED(NQTabWidget, autoHide))
        .call(NAMED(NQTabWidget, setAutoHide))
        .call(NAMED(NQTabWidget, isMovable))
        .call(NAMED(NQTabWidget, setMovable))
        .call(NAMED(NQTabWidget, elideMode))
        .call(NAMED(NQTabWidget, setElideMode))
        .call(NAMED(NQTabWidget, iconSize))
        .call(NAMED(NQTabWidget, setIconSize))
        .call(NAMED(NQTabWidget, usesScrollButtons))
        .call(NAMED(NQTabWidget, setUsesScrollButtons))
        .call(NAMED(NQTabWidget, currentWidget))
        .call(NAMED(NQTabWidget, widget))
        .call(NAMED(NQTabWidget, indexOf))
        .call(NAMED(NQTabWidget, fromColorToStr))
        .call(NAMED(NQTabWidget, slot_currentShow))
        .call(NAMED(NQTabWidget, slot_tabCloseRequested));
}

} // namespace

QVector<Entry> tabEntries()
{
    return {nQToolButton(), tabBarRd(), nQTabBar(), nQTabWidget()};
}

} // namespace randomuse
