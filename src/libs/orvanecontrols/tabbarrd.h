#ifndef TABBARRD_H
#define TABBARRD_H

#include "orvanecontrolsglobal.h"

#include <QTabBar>

/**
 * A tab bar whose tabs can share its width equally.
 *
 * The last tab also gets the pixels that do not divide, so the tabs fill the bar exactly. All else
 * is QTabBar's own.
 */
class ORVANECONTROLS_EXPORT TabBarRd : public QTabBar
{
    Q_OBJECT

public:
    /// How wide the tabs are. Any other value is taken for TabsByContent.
    enum TabBarType : int {
        TabsByContent = 0, ///< Each as QTabBar has it.
        TabsOfEqualWidth = 1, ///< All alike; together as wide as the bar.
    };

    /// Builds a bar without tabs, owned by \a parent, with tabs as wide as their contents.
    explicit TabBarRd(QWidget *parent = nullptr);

    /// Sets how wide the tabs are. The bar lays them out anew when it is next resized or its tabs
    /// change. \see getTabBarType()
    void setTabBarType(TabBarType type);
    /// Sets the minimum width of the bar, not of a tab, in pixels (default 0). A negative one
    /// counts as 0. \see getTabMinWidth()
    void setTabMinWidth(int width);
    /// Sets the maximum width of the bar, not of a tab, in pixels. A negative one counts as 0.
    /// \see getTabMaxWidth()
    void setTabMaxWidth(int width);

    /// How wide the tabs are. \see setTabBarType()
    TabBarType getTabBarType() const;
    /// The minimum width last set, 0 until then. \see setTabMinWidth()
    int getTabMinWidth() const;
    /// The maximum width last set, 0 until then. \see setTabMaxWidth()
    int getTabMaxWidth() const;

protected:
    /// The size of the tab at \a index in pixels. Tabs of equal width share that of the bar, and
    /// the last one takes the rest; all others have QTabBar's size.
    QSize tabSizeHint(int index) const override;
    /// Places the tabs anew, and repaints them.
    void resizeEvent(QResizeEvent *event) override;
    /// Gives the close buttons of the tabs their spoken name.
    void tabLayoutChange() override;

private:
    TabBarType m_tabBarType = TabsByContent;
    int m_tabMinWidth = 0;
    int m_tabMaxWidth = 0;
};

#endif // TABBARRD_H
