#include "tabbarrd.h"

#include "internal/spokenname.h"

TabBarRd::TabBarRd(QWidget *parent)
    : QTabBar(parent)
{
}

void TabBarRd::setTabBarType(TabBarType type)
{
    m_tabBarType = type;
}

void TabBarRd::setTabMinWidth(int width)
{
    m_tabMinWidth = width;
    setMinimumWidth(width);
}

void TabBarRd::setTabMaxWidth(int width)
{
    m_tabMaxWidth = width;
    setMaximumWidth(width);
}

TabBarRd::TabBarType TabBarRd::getTabBarType() const
{
    return m_tabBarType;
}

int TabBarRd::getTabMinWidth() const
{
    return m_tabMinWidth;
}

int TabBarRd::getTabMaxWidth() const
{
    return m_tabMaxWidth;
}

QSize TabBarRd::tabSizeHint(int index) const
{
    if (m_tabBarType != TabsOfEqualWidth || count() == 0)
        return QTabBar::tabSizeHint(index);
    const int share = width() / count();
    const bool isLast = index == count() - 1;
    return {isLast ? share + width() % count() : share, height()};
}

void TabBarRd::resizeEvent(QResizeEvent *event)
{
    QTabBar::resizeEvent(event);
    update();
}

void TabBarRd::tabLayoutChange()
{
    QTabBar::tabLayoutChange();
    orvane::nameCloseButtons(this, tr("Close tab"));
}
