#ifndef TABLEWIDGETEX_H
#define TABLEWIDGETEX_H

#include "orvanecontrolsglobal.h"

#include <QColor>
#include <QPointer>
#include <QScrollArea>
#include <QString>
#include <QTabWidget>
#include <QToolButton>
#include <QVBoxLayout>

/// The kind of a TableWidgetEx. Any value but EditableTable is the plain kind.
enum TableWidgetType : int {
    PlainTable = 0, ///< Tabs only.
    EditableTable = 1, ///< An add button beside the tabs, and a close button on every tab.
};

/**
 * A tab widget of numbered pages, which hosts call its tables.
 *
 * The editable kind shows an add button in the top right corner and a close button on every tab.
 * Both only report what the user wants: the host answers notifyAddTable() by adding a page, as a
 * rule with addTable(), and signals_removeTable() by removeTab(). The widget, its pages and its
 * tabs may be deleted in both signals.
 *
 * With bNeedScrollBar() every new page is wrapped: the tab's widget(), which indexOf() looks for
 * too, is then a holder with a scroll area, and the page lies in that. Deleting the holder deletes
 * the page. A host that wants the newest scroll area to stay at its end while its page grows
 * connects the rangeChanged(int,int) of that area's vertical bar to the private slot
 * on_rangeChanged(int,int) by its signature.
 *
 * The setters of colours, sizes and margins apply the whole sheet at once. Sizes and margins are
 * pixels; any value is written into the sheet as it is.
 */
class ORVANECONTROLS_EXPORT TableWidgetEx : public QTabWidget
{
    Q_OBJECT

public:
    /// Builds a widget of kind \a type without pages, owned by \a parent. \a title is what the
    /// names that addTable() makes begin with.
    TableWidgetEx(QWidget *parent, TableWidgetType type, QString title);

    /// Sets every colour, size and margin to its default and applies the sheet.
    void initStyle();
    /// Composes the sheet and applies it. Every setter of a colour, size or margin calls it.
    void setTableWidgetStyle();

    /// Makes the widget editable: close buttons on the tabs and, in the top right corner, the add
    /// button. With false nothing happens. A second time makes no second add button.
    void setIsLoadCornerWidget(bool isLoad);
    /// setIsLoadCornerWidget() with whether \a type is EditableTable.
    void initCornerWidget(TableWidgetType type);
    /// Shows or hides the add button. Nothing happens without one.
    void setIsShowAddButton(bool isShow);

    /// QTabWidget::setTabsClosable(). The room for texts in setTabText() stays that of the kind.
    void setTabsClosable(bool closable);
    /// QTabWidget::setCornerWidget(): \a widget, which this one owns from now on, stands in that
    /// corner, null for none. The one so far is hidden, and not deleted.
    void setCornerWidget(QWidget *widget, Qt::Corner corner = Qt::TopRightCorner);
    /// QTabWidget::removeTab(): takes the tab away and leaves its page to the caller. An index
    /// without a tab is ignored.
    void removeTab(int index);

    /// Adds an empty page, makes it current and raises index() by one. The tab's name is
    /// titleText(), a blank, and 1 when \a first is true, else index() + 1.
    void addTable(bool first);
    /// Adds \a page, which this widget owns from now on, under \a text and returns its index, -1
    /// for a null pointer. With bNeedScrollBar() the page gets a layout and a scroll area, which
    /// mainLayout() and setScrollStyle() refer to from then on. A page that has a layout keeps
    /// it: mainLayout() is that one, or null if it is no QVBoxLayout.
    int addTab(QWidget *page, const QString &text);
    /// addTab() with a new empty page.
    int customAddTab(const QString &text);
    /// Sets the text of a tab; an index without a tab is ignored. A text that is wider, in this
    /// widget's font, than the tab has room becomes the tab's tool tip, too; otherwise the tool
    /// tip is empty. The room is tabPanelWidth(), 20 less in the editable kind; with the tabs at
    /// QTabWidget::West it is tabPanelHeight().
    void setTabText(int index, const QString &text);

    /// Gives both bars of the newest scroll area the library's look. Nothing happens without one.
    void setScrollStyle();

    /// How many tables addTable() has added (default 0). \see setIndex()
    int index() const;
    /// Sets the count, any number, that notifyAddTable() reports and addTable() counts on from.
    /// \see index()
    void setIndex(int index);

    /// What the names of added tables begin with. \see setTitleText()
    QString titleText() const;
    /// Sets what the names of added tables begin with; those of older ones stay.
    /// \see titleText()
    void setTitleText(const QString &text);

    /// Whether the add button stands right behind the last tab (default false).
    /// \see setBMovedCornerButton()
    bool bMovedCornerButton() const;
    /// Puts the add button right behind the last tab, or back into the corner. For tabs above or
    /// below the pages. \see bMovedCornerButton()
    void setBMovedCornerButton(bool isMoved);

    /// Whether new pages are wrapped in a scroll area (default false). \see setBNeedScrollBar()
    bool bNeedScrollBar() const;
    /// Sets whether new pages are wrapped in a scroll area; older pages stay as they are.
    /// \see bNeedScrollBar()
    void setBNeedScrollBar(bool isNeeded);

    /// The layout of the page that was wrapped last, null if there is none or it is gone.
    /// \see setMainLayout()
    QVBoxLayout *mainLayout() const;
    /// Makes \a layout, null for none, the one that mainLayout() returns; it is not installed and
    /// not taken over. \see mainLayout()
    void setMainLayout(QVBoxLayout *layout);

    /// The background of the pages (default 69,69,69). \see setTabWorkSpaceColor()
    QColor tabWorkSpaceColor() const;
    /// Sets the background of the pages. \see tabWorkSpaceColor()
    void setTabWorkSpaceColor(const QColor &color);

    /// The text colour of a tab, hovered or not (default 210,210,210). \see setFontColor()
    QColor fontColor() const;
    /// Sets the text colour of a tab, hovered or not. \see fontColor()
    void setFontColor(const QColor &color);

    /// The colour that setFontHoverColor() set (default 210,210,210).
    QColor fontHoverColor() const;
    /// Keeps a colour for hosts. A hovered tab's text has fontColor(). \see fontHoverColor()
    void setFontHoverColor(const QColor &color);

    /// The text colour of the selected tab (default 210,210,210). \see setFontPressedColor()
    QColor fontPressedColor() const;
    /// Sets the text colour of the selected tab. \see fontPressedColor()
    void setFontPressedColor(const QColor &color);

    /// The background of a tab (default 52,52,52). \see setTabNomalColor()
    QColor tabNomalColor() const;
    /// Sets the background of a tab. \see tabNomalColor()
    void setTabNomalColor(const QColor &color);

    /// The background of a hovered tab (default 80,80,80). \see setTabHoverColor()
    QColor tabHoverColor() const;
    /// Sets the background of a hovered tab. \see tabHoverColor()
    void setTabHoverColor(const QColor &color);

    /// The background of the selected tab (default 69,69,69). \see setTabSelectedColor()
    QColor tabSelectedColor() const;
    /// Sets the background of the selected tab. \see tabSelectedColor()
    void setTabSelectedColor(const QColor &color);

    /// The width of every tab (default 100). \see setTabPanelWidth()
    int tabPanelWidth() const;
    /// Sets the width of every tab. Tool tips of tabs stay as setTabText() made them.
    /// \see tabPanelWidth()
    void setTabPanelWidth(int width);

    /// The height of every tab (default 30). \see setTabPanelHeight()
    int tabPanelHeight() const;
    /// Sets the height of every tab. \see tabPanelHeight()
    void setTabPanelHeight(int height);

    /// The margin at the left of every tab (default 0). \see setLeftMargin()
    int leftMargin() const;
    /// Sets the margin at the left of every tab. The sheet names no unit, which Qt reads as
    /// pixels. \see leftMargin()
    void setLeftMargin(int margin);

    /// The margin above every tab (default 0). \see setTopMargin()
    int topMargin() const;
    /// Sets the margin above every tab. The sheet names no unit, which Qt reads as pixels.
    /// \see topMargin()
    void setTopMargin(int margin);

    /// The text of a colour in a sheet: "#rrggbb", "#aarrggbb" when translucent, "#000000" when
    /// invalid.
    QString fromColorToStr(QColor color);

Q_SIGNALS:
    /// The add button was clicked while there is a tab. \a index is index().
    void notifyAddTable(int index);
    /// The close button of the tab at \a index was clicked. The tab is still there.
    void signals_removeTable(int index);

public Q_SLOTS:
    /// What a click on the add button does: notifyAddTable(), unless there is no tab.
    void on_addTable();
    /// What a click on a close button does: signals_removeTable().
    void on_removeTable(int index);

protected:
    /// Paints the tabs, and moves the add button beside the last one if it is to follow them.
    void paintEvent(QPaintEvent *event) override;
    /// Gives the close button of the new tab its spoken name.
    void tabInserted(int index) override;

private Q_SLOTS:
    void on_rangeChanged(int min, int max);

private:
    void wrapPage(QWidget *page, QWidget *holder);

    int m_index = 0;
    QString m_titleText;
    QColor m_tabWorkSpaceColor;
    QColor m_fontColor;
    QColor m_fontHoverColor;
    QColor m_fontPressedColor;
    QColor m_tabNomalColor;
    QColor m_tabHoverColor;
    QColor m_tabSelectedColor;
    int m_tabPanelWidth{};
    int m_tabPanelHeight{};
    QPointer<QToolButton> m_addButton;
    int m_leftMargin{};
    int m_topMargin{};
    bool m_isMovedCornerButton = false;
    QPointer<QScrollArea> m_scrollArea;
    QPointer<QVBoxLayout> m_mainLayout;
    bool m_isScrollBarNeeded = false;
    bool m_isClosable = false;
};

#endif // TABLEWIDGETEX_H
