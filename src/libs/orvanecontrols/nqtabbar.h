#ifndef NQTABBAR_H
#define NQTABBAR_H

#include "orvanecontrolsglobal.h"
#include "tabbarrd.h"

#include <QColor>
#include <QFrame>
#include <QIcon>
#include <QPointer>
#include <QString>
#include <QVariant>
#include <QVector>

class QHBoxLayout;
class QSpacerItem;

/**
 * A row with a tab bar and places for a host's own widgets: left of the tabs, right behind them
 * (the centre, for one widget, such as a button that adds a tab), and at the right end.
 *
 * The functions that carry the name of one of QTabBar do what that does with the bar. A new tab
 * becomes the current one.
 */
class ORVANECONTROLS_EXPORT NQTabBar : public QFrame
{
    Q_OBJECT

public:
    /// Builds a row without tabs and without widgets, owned by \a parent.
    explicit NQTabBar(QWidget *parent = nullptr);

    /// Sets how wide the tabs are. With TabBarRd::TabsOfEqualWidth the bar also takes all the width
    /// that the places leave, and keeps doing so under another type. \see getTabBarType()
    void setTabBarType(TabBarRd::TabBarType type);
    /// Sets the minimum width of the bar in pixels; a negative one counts as 0.
    /// \see getTabMinWidth()
    void setTabMinWidth(int width);
    /// Sets the maximum width of the bar in pixels; a negative one is ignored.
    /// \see getTabMaxWidth()
    void setTabMaxWidth(int width);
    /// How wide the tabs are. \see setTabBarType()
    TabBarRd::TabBarType getTabBarType() const;
    /// The minimum width last set, 0 until then. \see setTabMinWidth()
    int getTabMinWidth() const;
    /// The maximum width last set, 0 until then. \see setTabMaxWidth()
    int getTabMaxWidth() const;
    /// The bar itself, which the row owns.
    TabBarRd *getTabBar() const;

    /// Gives the row a fixed size in pixels; a negative one counts as 0.
    void setWidgetFixedSize(int width, int height);
    /// Keeps a colour; nothing is painted with it.
    void setWidgetColor(QColor color);
    /// Sets the gap between the widgets at the left in pixels. Here and in the two functions below
    /// a negative one stands for the style's.
    void setLeftHLayoutSpace(int space);
    /// Sets the gap between the widgets at the right in pixels.
    void setRightHLayoutSpace(int space);
    /// Sets the gap that the centre's layout keeps between widgets, of which it has one at most.
    void setCenterHLayoutSpace(int space);
    /// Adds \a widget, which the row owns from now on, to the place at the left. Here and in the
    /// two functions below a null pointer is ignored.
    void addLeftWidget(QWidget *widget);
    /// The same at the right end.
    void addRightWidget(QWidget *widget);
    /// The same in the centre, which holds one widget: while that exists, others are ignored and
    /// keep their owner.
    void addCenterWidget(QWidget *widget);

    /// Inserts a tab before \a index, at the end when there is no such tab, makes it the current
    /// one and returns its index.
    int insertTab(int index, const QString &text);
    /// The same with an icon.
    int insertTab(int index, const QIcon &icon, const QString &text);
    /// Adds a tab at the end, makes it the current one and returns its index.
    int addTab(const QString &text);
    /// The same with an icon.
    int addTab(const QIcon &icon, const QString &text);

    // What follows does what the bar's function of that name does.
    /// As QTabBar::removeTab().
    void removeTab(int index);
    /// As QTabBar::moveTab().
    void moveTab(int from, int to);
    /// As QTabBar::isTabEnabled().
    bool isTabEnabled(int index) const;
    /// As QTabBar::setTabEnabled().
    void setTabEnabled(int index, bool enabled);
    /// As QTabBar::tabText().
    QString tabText(int index) const;
    /// As QTabBar::setTabText().
    void setTabText(int index, const QString &text);
    /// As QTabBar::tabTextColor().
    QColor tabTextColor(int index) const;
    /// As QTabBar::setTabTextColor().
    void setTabTextColor(int index, const QColor &color);
    /// As QTabBar::tabIcon().
    QIcon tabIcon(int index) const;
    /// As QTabBar::setTabIcon().
    void setTabIcon(int index, const QIcon &icon);
    /// As QTabBar::elideMode().
    Qt::TextElideMode elideMode() const;
    /// As QTabBar::setElideMode().
    void setElideMode(Qt::TextElideMode mode);
    /// As QTabBar::setTabToolTip().
    void setTabToolTip(int index, const QString &tip);
    /// As QTabBar::tabToolTip().
    QString tabToolTip(int index) const;
    /// As QTabBar::setTabData().
    void setTabData(int index, const QVariant &data);
    /// As QTabBar::tabData().
    QVariant tabData(int index) const;
    /// As QTabBar::tabRect().
    QRect tabRect(int index) const;
    /// As QTabBar::tabAt().
    int tabAt(const QPoint &pos) const;
    /// As QTabBar::currentIndex().
    int currentIndex() const;
    /// As QTabBar::count().
    int count() const;
    /// As QTabBar::iconSize().
    QSize iconSize() const;
    /// As QTabBar::setIconSize().
    void setIconSize(const QSize &size);
    /// As QTabBar::tabsClosable().
    bool tabsClosable() const;
    /// As QTabBar::setTabsClosable().
    void setTabsClosable(bool closable);
    /// As QTabBar::setTabButton().
    void setTabButton(int index, QTabBar::ButtonPosition position, QWidget *widget);
    /// As QTabBar::tabButton().
    QWidget *tabButton(int index, QTabBar::ButtonPosition position) const;
    /// As QTabBar::expanding().
    bool expanding() const;
    /// As QTabBar::setExpanding().
    void setExpanding(bool enabled);
    /// As QTabBar::autoHide().
    bool autoHide() const;
    /// As QTabBar::setAutoHide().
    void setAutoHide(bool hide);
    /// As QTabBar::isMovable().
    bool isMovable() const;
    /// As QTabBar::setMovable().
    void setMovable(bool movable);
    /// As QTabBar::usesScrollButtons().
    bool usesScrollButtons() const;
    /// As QTabBar::setUsesScrollButtons().
    void setUsesScrollButtons(bool useButtons);
    /// As QTabBar::setCurrentIndex().
    void setCurrentIndex(int index);

    /// The text of a colour in a sheet: "#rrggbb", "#aarrggbb" when translucent, "#000000" when
    /// invalid.
    QString fromColorToStr(QColor color);

Q_SIGNALS:
    /// The bar's: another tab is the current one, -1 when there is none left. While a tab is
    /// removed, the bar reports this before it is done, with the tab no longer counted; to delete
    /// the bar here, use deleteLater().
    void currentChanged(int index);
    /// The bar's: the close button of the tab at \a index was clicked.
    void tabCloseRequested(int index);

private Q_SLOTS:
    void slot_currIndexChanged(int index);
    void slot_tabClosed(int index);

private:
    void initUi();
    void orderTabStops();

    TabBarRd *m_tabBar = nullptr;
    QVector<QPointer<QWidget>> m_leftWidgets;
    QVector<QPointer<QWidget>> m_rightWidgets;
    QVector<QPointer<QWidget>> m_centerWidgets;
    QHBoxLayout *m_leftLayout = nullptr;
    QHBoxLayout *m_rightLayout = nullptr;
    QHBoxLayout *m_centerLayout = nullptr;
    QSpacerItem *m_spacer = nullptr;
    QColor m_widgetColor;
    int m_tabMaxWidth = 0;
    int m_tabMinWidth = 0;
    TabBarRd::TabBarType m_tabBarType = TabBarRd::TabsByContent;
};

#endif // NQTABBAR_H
