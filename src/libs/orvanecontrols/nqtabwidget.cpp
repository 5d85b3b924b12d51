#include "nqtabwidget.h"

#include "internal/stylesheet.h"
#include "nqtabbar.h"

#include <QFontMetrics>
#include <QPointer>
#include <QSignalBlocker>
#include <QStackedWidget>
#include <QVBoxLayout>

NQTabWidget::NQTabWidget(QWidget *parent)
    : QFrame(parent)
{
    creatUi();
    connectFun();
}

void NQTabWidget::creatUi()
{
    m_tabBar = new NQTabBar(this);
    m_stack = new QStackedWidget(this);
    auto *layout = new QVBoxLayout(this);
    layout->setSpacing(0);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_tabBar);
    layout->addWidget(m_stack);
    // A page is polished when it is added, and takes the sheet that Qt has parsed for the stack by
    // then: only a polished stack forgets the one before.
    m_stack->ensurePolished();
    setStackedWidgetColor(m_stackColor);
}

void NQTabWidget::connectFun()
{
    connect(m_tabBar, &NQTabBar::currentChanged, this, &NQTabWidget::slot_currentShow);
    connect(m_tabBar, &NQTabBar::tabCloseRequested, this, &NQTabWidget::slot_tabCloseRequested);
    connect(m_tabBar->getTabBar(), &TabBarRd::tabMoved, this, &NQTabWidget::movePage);
}

int NQTabWidget::addTab(QWidget *page, const QString &text)
{
    return addTab(page, QIcon(), text);
}

int NQTabWidget::addTab(QWidget *page, const QIcon &icon, const QString &text)
{
    return insertTab(-1, page, icon, text);
}

int NQTabWidget::insertTab(int index, QWidget *page, const QString &text)
{
    return insertTab(index, page, QIcon(), text);
}

int NQTabWidget::insertTab(int index, QWidget *page, const QIcon &icon, const QString &text)
{
    if (!page)
        return -1;
    removeTab(indexOf(page));
    // The page first: the bar reports the new tab at once.
    m_stack->insertWidget(index, page);
    return m_tabBar->insertTab(index, icon, text);
}

void NQTabWidget::removeTab(int index)
{
    const QPointer<QWidget> page(widget(index));
    m_tabBar->removeTab(index);
    if (page)
        m_stack->removeWidget(page);
    // The bar has reported its current tab as it counted before the page was gone.
    m_stack->setCurrentIndex(currentIndex());
}

void NQTabWidget::setTabText(int index, const QString &text)
{
    const int tabWidth = m_tabBar->tabRect(index).width();
    const int room = m_tabsClosable ? tabWidth - m_closeButtonReserve : tabWidth;
    const bool fits = QFontMetrics(font()).horizontalAdvance(text) <= room;
    m_tabBar->setTabToolTip(index, fits ? QString() : text);
    m_tabBar->setTabText(index, text);
}

void NQTabWidget::setCurrentIndex(int index)
{
    m_tabBar->setCurrentIndex(index);
    m_stack->setCurrentIndex(index);
}

void NQTabWidget::setCurrentWidget(QWidget *page)
{
    if (indexOf(page) < 0)
        return;
    m_stack->setCurrentWidget(page);
    m_tabBar->setCurrentIndex(m_stack->currentIndex());
}

void NQTabWidget::setTabsClosable(bool closable)
{
    m_tabsClosable = closable;
    m_tabBar->setTabsClosable(closable);
}

void NQTabWidget::setTabBarType(TabBarRd::TabBarType type)
{
    m_tabBarType = type;
    m_tabBar->setTabBarType(type);
}

void NQTabWidget::setTabMinWidth(int width)
{
    m_tabMinWidth = width;
    m_tabBar->setTabMinWidth(width);
}

void NQTabWidget::setTabMaxWidth(int width)
{
    if (width < 0)
        return;
    m_tabMaxWidth = width;
    m_tabBar->setTabMaxWidth(width);
}

void NQTabWidget::setStackedWidgetColor(QColor color)
{
    m_stackColor = color;
    orvane::applyStyleSheet(m_stack,
                            orvane::SheetText() << u".QWidget{background-color:" << color << u";}");
}

void NQTabWidget::setWidgetSize(int width, int height)
{
    setFixedSize(width, height);
}

QStackedWidget *NQTabWidget::getStackWidget() const
{
    return m_stack;
}

NQTabBar *NQTabWidget::getTabBar() const
{
    return m_tabBar;
}

TabBarRd::TabBarType NQTabWidget::getTabBarType() const
{
    return m_tabBarType;
}

int NQTabWidget::getTabMinWidth() const
{
    return m_tabMinWidth;
}

int NQTabWidget::getTabMaxWidth() const
{
    return m_tabMaxWidth;
}

bool NQTabWidget::isTabEnabled(int index) const
{
    return m_tabBar->isTabEnabled(index);
}

void NQTabWidget::setTabEnabled(int index, bool enabled)
{
    m_tabBar->setTabEnabled(index, enabled);
}

QString NQTabWidget::tabText(int index) const
{
    return m_tabBar->tabText(index);
}

QIcon NQTabWidget::tabIcon(int index) const
{
    return m_tabBar->tabIcon(index);
}

void NQTabWidget::setTabIcon(int index, const QIcon &icon)
{
    m_tabBar->setTabIcon(index, icon);
}

void NQTabWidget::setTabToolTip(int index, const QString &tip)
{
    m_tabBar->setTabToolTip(index, tip);
}

QString NQTabWidget::tabToolTip(int index) const
{
    return m_tabBar->tabToolTip(index);
}

int NQTabWidget::currentIndex() const
{
    return m_tabBar->currentIndex();
}

int NQTabWidget::count() const
{
    return m_tabBar->count();
}

bool NQTabWidget::tabsClosable() const
{
    return m_tabBar->tabsClosable();
}

bool NQTabWidget::autoHide() const
{
    return m_tabBar->autoHide();
}

void NQTabWidget::setAutoHide(bool hide)
{
    m_tabBar->setAutoHide(hide);
}

bool NQTabWidget::isMovable() const
{
    return m_tabBar->isMovable();
}

void NQTabWidget::setMovable(bool movable)
{
    m_tabBar->setMovable(movable);
}

Qt::TextElideMode NQTabWidget::elideMode() const
{
    return m_tabBar->elideMode();
}

void NQTabWidget::setElideMode(Qt::TextElideMode mode)
{
    m_tabBar->setElideMode(mode);
}

QSize NQTabWidget::iconSize() const
{
    return m_tabBar->iconSize();
}

void NQTabWidget::setIconSize(const QSize &size)
{
    m_tabBar->setIconSize(size);
}

bool NQTabWidget::usesScrollButtons() const
{
    return m_tabBar->usesScrollButtons();
}

void NQTabWidget::setUsesScrollButtons(bool useButtons)
{
    m_tabBar->setUsesScrollButtons(useButtons);
}

QWidget *NQTabWidget::currentWidget() const
{
    return m_stack->currentWidget();
}

QWidget *NQTabWidget::widget(int index) const
{
    return m_stack->widget(index);
}

int NQTabWidget::indexOf(QWidget *page) const
{
    return m_stack->indexOf(page);
}

QString NQTabWidget::fromColorToStr(QColor color)
{
    return orvane::colorText(color);
}

void NQTabWidget::slot_currentShow(int index)
{
    m_stack->setCurrentIndex(index);
}

void NQTabWidget::slot_tabCloseRequested(int index)
{
    if (m_tabBar->count() >= 2)
        removeTab(index);
}

void NQTabWidget::resizeEvent(QResizeEvent *event)
{
    QFrame::resizeEvent(event);
    m_tabBar->setTabMaxWidth(width());
}

void NQTabWidget::movePage(int from, int to)
{
    QWidget *page = m_stack->widget(from);
    if (!page)
        return;
    {
        const QSignalBlocker blocker(m_stack); // the page that is shown does not change
        m_stack->removeWidget(page);
        m_stack->insertWidget(to, page);
    }
    m_stack->setCurrentIndex(currentIndex());
}
