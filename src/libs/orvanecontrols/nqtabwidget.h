#ifndef NQTABWIDGET_H
#define NQTABWIDGET_H

#include "orvanecontrolsglobal.h"
#include "tabbarrd.h"

#include <QColor>
#include <QFrame>
#include <QIcon>
#include <QString>

class NQTabBar;
class QStackedWidget;

/**
 * Pages behind tabs: an NQTabBar above a stack of pages, one page for each tab.
 *
 * The last tab cannot be closed by its button. A removed page is not deleted: it stays a hidden
 * child of the stack, for the host to delete or to add again. A page is to be removed before it is
 * deleted.
 *
 * The functions that carry the name of one of QTabBar do what that does with the bar. A new tab
 * becomes the current one.
 */
class ORVANECONTROLS_EXPORT NQTabWidget : public QFrame
{
    Q_OBJECT

public:
    /// Builds a tab widget without tabs, owned by \a parent.
    explicit NQTabWidget(QWidget *parent = nullptr);

    /// Adds \a page, which the stack owns from now on, with a tab at the end, makes both the
    /// current ones and returns the index. A null page is ignored (the result is -1); one that is
    /// here already moves. The same holds for insertTab().
    int addTab(QWidget *page, const QString &text);
    /// The same with an icon.
    int addTab(QWidget *page, const QIcon &icon, const QString &text);
    /// The same before \a index, at the end when there is no such tab.
    int insertTab(int index, QWidget *page, const QString &text);
    /// The same with an icon.
    int insertTab(int index, QWidget *page, const QIcon &icon, const QString &text);
    /// Removes the tab at \a index and its page, without deleting the page. An index without a tab
    /// is ignored.
    void removeTab(int index);

    /// Sets the text of the tab at \a index. When the tab, without its close button, is narrower
    /// than the text at this time, the text becomes its tool tip too; otherwise the tool tip goes.
    /// An index without a tab is ignored.
    void setTabText(int index, const QString &text);
    /// Shows the page at \a index. An index without a tab is ignored.
    void setCurrentIndex(int index);
    /// Shows \a page. A widget that is no page is ignored.
    void setCurrentWidget(QWidget *page);
    /// Gives the tabs close buttons, or takes them away (default false).
    void setTabsClosable(bool closable);

    /// Sets how wide the tabs are, see NQTabBar::setTabBarType(). \see getTabBarType()
    void setTabBarType(TabBarRd::TabBarType type);
    /// Sets the minimum width of the bar in pixels; a negative one counts as 0.
    /// \see getTabMinWidth()
    void setTabMinWidth(int width);
    /// Sets the maximum width of the bar in pixels; a negative one is ignored. The next resize sets
    /// it to the width of the widget. \see getTabMaxWidth()
    void setTabMaxWidth(int width);
    /// Sets the ground of those pages that are a QWidget and no subclass (default white).
    void setStackedWidgetColor(QColor color);
    /// Gives the widget a fixed size in pixels; a negative one counts as 0.
    void setWidgetSize(int width, int height);

    /// The stack of pages, which the widget owns.
    QStackedWidget *getStackWidget() const;
    /// The row of tabs, which the widget owns.
    NQTabBar *getTabBar() const;
    /// How wide the tabs are. \see setTabBarType()
    TabBarRd::TabBarType getTabBarType() const;
    /// The minimum width last set, 0 until then. \see setTabMinWidth()
    int getTabMinWidth() const;
    /// The maximum width last set, 0 until then. \see setTabMaxWidth()
    int getTabMaxWidth() const;

    // What follows does what the bar's function of that name does.
    /// As QTabBar::isTabEnabled().
    bool isTabEnabled(int index) const;
    /// As QTabBar::setTabEnabled().
    void setTabEnabled(int index, bool enabled);
    /// As QTabBar::tabText().
    QString tabText(int index) const;
    /// As QTabBar::tabIcon().
    QIcon tabIcon(int index) const;
    /// As QTabBar::setTabIcon().
    void setTabIcon(int index, const QIcon &icon);
    /// As QTabBar::setTabToolTip().
    void setTabToolTip(int index, const QString &tip);
    /// As QTabBar::tabToolTip().
    QString tabToolTip(int index) const;
    /// As QTabBar::currentIndex().
    int currentIndex() const;
    /// As QTabBar::count().
    int count() const;
    /// As QTabBar::tabsClosable().
    bool tabsClosable() const;
    /// As QTabBar::autoHide().
    bool autoHide() const;
    /// As QTabBar::setAutoHide().
    void setAutoHide(bool hide);
    /// As QTabBar::isMovable().
    bool isMovable() const;
    /// As QTabBar::setMovable().
    void setMovable(bool movable);
    /// As QTabBar::elideMode().
    Qt::TextElideMode elideMode() const;
    /// As QTabBar::setElideMode().
    void setElideMode(Qt::TextElideMode mode);
    /// As QTabBar::iconSize().
    QSize iconSize() const;
    /// As QTabBar::setIconSize().
    void setIconSize(const QSize &size);
    /// As QTabBar::usesScrollButtons().
    bool usesScrollButtons() const;
    /// As QTabBar::setUsesScrollButtons().
    void setUsesScrollButtons(bool useButtons);

    /// The page that is shown, null when there is none.
    QWidget *currentWidget() const;
    /// The page at \a index, null when there is none.
    QWidget *widget(int index) const;
    /// The index of \a page, -1 when it is no page.
    int indexOf(QWidget *page) const;

    /// The text of a colour in a sheet: "#rrggbb", "#aarrggbb" when translucent, "#000000" when
    /// invalid.
    QString fromColorToStr(QColor color);

public Q_SLOTS:
    /// Shows the page at \a index; the bar stays as it is. An index without a page is ignored.
    void slot_currentShow(int index);
    /// Removes the tab at \a index and its page, unless it is the last one. An index without a tab
    /// is ignored.
    void slot_tabCloseRequested(int index);

protected:
    /// Gives the tab bar the new width as its maximum. The bar takes what its tabs need up to that,
    /// so beside widgets in its places, or inside a frame, tabs that do not fit make the widget
    /// wider, step by step, until they do. setWidgetSize() keeps it from that.
    void resizeEvent(QResizeEvent *event) override;

private:
    void creatUi();
    void connectFun();
    void movePage(int from, int to);

    NQTabBar *m_tabBar = nullptr;
    QStackedWidget *m_stack = nullptr;
    QColor m_stackColor{255, 255, 255};
    int m_tabMaxWidth = 0;
    int m_tabMinWidth = 0;
    TabBarRd::TabBarType m_tabBarType = TabBarRd::TabsByContent;
    bool m_tabsClosable = false;
    int m_closeButtonReserve = 20;
};

#endif // NQTABWIDGET_H
