#include "nqtabbar.h"

#include "internal/livelist.h"
#include "internal/stylesheet.h"
#include "internal/taborder.h"

#include <QHBoxLayout>
#include <QSpacerItem>

namespace
{

void addToPlace(QVector<QPointer<QWidget>> &widgets, QHBoxLayout *layout, QWidget *widget)
{
    if (!widget)
        return;
    widgets.append(widget);
    layout->addWidget(widget, 0, Qt::AlignRight | Qt::AlignBottom);
}

} // namespace

NQTabBar::NQTabBar(QWidget *parent)
    : QFrame(parent)
{
    initUi();
}

void NQTabBar::initUi()
{
    m_tabBar = new TabBarRd(this);
    m_tabBar->setDrawBase(false);
    m_tabBar->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Preferred);

    m_leftLayout = new QHBoxLayout;
    m_rightLayout = new QHBoxLayout;
    m_centerLayout = new QHBoxLayout;
    m_spacer = new QSpacerItem(0, 0, QSizePolicy::Expanding, QSizePolicy::Minimum);

    auto *row = new QHBoxLayout(this);
    row->setSpacing(0);
    row->setContentsMargins(0, 0, 0, 0);
    row->addLayout(m_leftLayout);
    row->addWidget(m_tabBar);
    row->addLayout(m_centerLayout);
    row->addItem(m_spacer);
    row->addLayout(m_rightLayout);

    connect(m_tabBar, &TabBarRd::currentChanged, this, &NQTabBar::slot_currIndexChanged);
    connect(m_tabBar, &TabBarRd::tabCloseRequested, this, &NQTabBar::slot_tabClosed);
}

void NQTabBar::setTabBarType(TabBarRd::TabBarType type)
{
    if (type == TabBarRd::TabsOfEqualWidth) {
        m_tabBar->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Preferred);
        m_spacer->changeSize(0, 0, QSizePolicy::Fixed, QSizePolicy::Preferred);
        layout()->invalidate();
    }
    m_tabBarType = type;
    m_tabBar->setTabBarType(type);
}

void NQTabBar::setTabMinWidth(int width)
{
    m_tabMinWidth = width;
    m_tabBar->setTabMinWidth(width);
}

void NQTabBar::setTabMaxWidth(int width)
{
    if (width < 0)
        return;
    m_tabMaxWidth = width;
    m_tabBar->setTabMaxWidth(width);
}

TabBarRd::TabBarType NQTabBar::getTabBarType() const
{
    return m_tabBarType;
}

int NQTabBar::getTabMinWidth() const
{
    return m_tabMinWidth;
}

int NQTabBar::getTabMaxWidth() const
{
    return m_tabMaxWidth;
}

TabBarRd *NQTabBar::getTabBar() const
{
    return m_tabBar;
}

void NQTabBar::setWidgetFixedSize(int width, int height)
{
    setFixedSize(width, height);
}

void NQTabBar::setWidgetColor(QColor color)
{
    m_widgetColor = color;
}

void NQTabBar::setLeftHLayoutSpace(int space)
{
    m_leftLayout->setSpacing(space);
}

void NQTabBar::setRightHLayoutSpace(int space)
{
    m_rightLayout->setSpacing(space);
}

void NQTabBar::setCenterHLayoutSpace(int space)
{
    m_centerLayout->setSpacing(space);
}

void NQTabBar::addLeftWidget(QWidget *widget)
{
    addToPlace(m_leftWidgets, m_leftLayout, widget);
    orderTabStops();
}

void NQTabBar::addRightWidget(QWidget *widget)
{
    addToPlace(m_rightWidgets, m_rightLayout, widget);
    orderTabStops();
}

void NQTabBar::addCenterWidget(QWidget *widget)
{
    orvane::dropDeleted(m_centerWidgets);
    if (m_centerWidgets.isEmpty())
        addToPlace(m_centerWidgets, m_centerLayout, widget);
    orderTabStops();
}

void NQTabBar::orderTabStops()
{
    QList<QWidget *> stops;
    const auto addStopsIn = [this, &stops](const QVector<QPointer<QWidget>> &widgets) {
        for (const QPointer<QWidget> &widget : widgets) {
            if (widget && isAncestorOf(widget)) // a host may have moved it elsewhere
                stops += orvane::tabStops(widget);
        }
    };
    addStopsIn(m_leftWidgets);
    stops.append(m_tabBar);
    addStopsIn(m_centerWidgets);
    addStopsIn(m_rightWidgets);
    orvane::tabInOrder(stops);
}

int NQTabBar::insertTab(int index, const QString &text)
{
    return insertTab(index, QIcon(), text);
}

int NQTabBar::insertTab(int index, const QIcon &icon, const QString &text)
{
    const int inserted = m_tabBar->insertTab(index, icon, text);
    m_tabBar->setCurrentIndex(inserted);
    return inserted;
}

int NQTabBar::addTab(const QString &text)
{
    return insertTab(-1, text);
}

int NQTabBar::addTab(const QIcon &icon, const QString &text)
{
    return insertTab(-1, icon, text);
}

void NQTabBar::removeTab(int index)
{
    m_tabBar->removeTab(index);
}

void NQTabBar::moveTab(int from, int to)
{
    m_tabBar->moveTab(from, to);
}

bool NQTabBar::isTabEnabled(int index) const
{
    return m_tabBar->isTabEnabled(index);
}

void NQTabBar::setTabEnabled(int index, bool enabled)
{
    m_tabBar->setTabEnabled(index, enabled);
}

QString NQTabBar::tabText(int index) const
{
    return m_tabBar->tabText(index);
}

void NQTabBar::setTabText(int index, const QString &text)
{
    m_tabBar->setTabText(index, text);
}

QColor NQTabBar::tabTextColor(int index) const
{
    return m_tabBar->tabTextColor(index);
}

void NQTabBar::setTabTextColor(int index, const QColor &color)
{
    m_tabBar->setTabTextColor(index, color);
}

QIcon NQTabBar::tabIcon(int index) const
{
    return m_tabBar->tabIcon(index);
}

void NQTabBar::setTabIcon(int index, const QIcon &icon)
{
    m_tabBar->setTabIcon(index, icon);
}

Qt::TextElideMode NQTabBar::elideMode() const
{
    return m_tabBar->elideMode();
}

void NQTabBar::setElideMode(Qt::TextElideMode mode)
{
    m_tabBar->setElideMode(mode);
}

void NQTabBar::setTabToolTip(int index, const QString &tip)
{
    m_tabBar->setTabToolTip(index, tip);
}

QString NQTabBar::tabToolTip(int index) const
{
    return m_tabBar->tabToolTip(index);
}

void NQTabBar::setTabData(int index, const QVariant &data)
{
    m_tabBar->setTabData(index, data);
}

QVariant NQTabBar::tabData(int index) const
{
    return m_tabBar->tabData(index);
}

QRect NQTabBar::tabRect(int index) const
{
    return m_tabBar->tabRect(index);
}

int NQTabBar::tabAt(const QPoint &pos) const
{
    return m_tabBar->tabAt(pos);
}

int NQTabBar::currentIndex() const
{
    return m_tabBar->currentIndex();
}

int NQTabBar::count() const
{
    return m_tabBar->count();
}

QSize NQTabBar::iconSize() const
{
    return m_tabBar->iconSize();
}

void NQTabBar::setIconSize(const QSize &size)
{
    m_tabBar->setIconSize(size);
}

bool NQTabBar::tabsClosable() const
{
    return m_tabBar->tabsClosable();
}

void NQTabBar::setTabsClosable(bool closable)
{
    m_tabBar->setTabsClosable(closable);
}

void NQTabBar::setTabButton(int index, QTabBar::ButtonPosition position, QWidget *widget)
{
    m_tabBar->setTabButton(index, position, widget);
}

QWidget *NQTabBar::tabButton(int index, QTabBar::ButtonPosition position) const
{
    return m_tabBar->tabButton(index, position);
}

bool NQTabBar::expanding() const
{
    return m_tabBar->expanding();
}

void NQTabBar::setExpanding(bool enabled)
{
    m_tabBar->setExpanding(enabled);
}

bool NQTabBar::autoHide() const
{
    return m_tabBar->autoHide();
}

void NQTabBar::setAutoHide(bool hide)
{
    m_tabBar->setAutoHide(hide);
}

bool NQTabBar::isMovable() const
{
    return m_tabBar->isMovable();
}

void NQTabBar::setMovable(bool movable)
{
    m_tabBar->setMovable(movable);
}

bool NQTabBar::usesScrollButtons() const
{
    return m_tabBar->usesScrollButtons();
}

void NQTabBar::setUsesScrollButtons(bool useButtons)
{
    m_tabBar->setUsesScrollButtons(useButtons);
}

void NQTabBar::setCurrentIndex(int index)
{
    m_tabBar->setCurrentIndex(index);
}

QString NQTabBar::fromColorToStr(QColor color)
{
    return orvane::colorText(color);
}

void NQTabBar::slot_currIndexChanged(int index)
{
    Q_EMIT currentChanged(index);
}

void NQTabBar::slot_tabClosed(int index)
{
    Q_EMIT tabCloseRequested(index);
}
