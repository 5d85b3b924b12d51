#include "page.h"
#include "pointers.h"

#include <tablewidgetex.h>

#include <QLabel>
#include <QTabBar>

namespace
{

/// A page as a host fills it: lines of text, more than fit where the page is to scroll.
QWidget *makeTable(int lines)
{
    auto *page = new QWidget;
    auto *layout = new QVBoxLayout(page);
    layout->setContentsMargins(theme::margin, theme::margin, theme::margin, theme::margin);
    layout->setSpacing(theme::gap);
    for (int i = 1; i <= lines; ++i)
        layout->addWidget(new QLabel(QString("Cabinet %1").arg(i)));
    layout->addStretch(1);
    return page;
}

TableWidgetEx *makeTabs(QWidget *parent, TableWidgetType type, QSize size, bool isScrolling = false)
{
    auto *tabs = new TableWidgetEx(parent, type, "Screen");
    tabs->setFixedSize(size);
    tabs->setBNeedScrollBar(isScrolling);
    tabs->addTab(makeTable(isScrolling ? 12 : 2), "Screen 1");
    tabs->addTab(makeTable(3), "Screen 2");
    tabs->setIndex(2);
    return tabs;
}

QWidget *tabBar(QWidget *tabs)
{
    return static_cast<TableWidgetEx *>(tabs)->tabBar();
}

QPoint onSecondTab(QWidget *bar)
{
    return static_cast<QTabBar *>(bar)->tabRect(1).center();
}

QWidget *closeButton(QWidget *tabs)
{
    auto *bar = static_cast<QTabBar *>(tabBar(tabs));
    QWidget *button = bar->tabButton(1, QTabBar::RightSide);
    return button ? button : bar->tabButton(1, QTabBar::LeftSide);
}

QWidget *addButton(QWidget *tabs)
{
    return static_cast<TableWidgetEx *>(tabs)->cornerWidget(Qt::TopRightCorner);
}

} // namespace

GALLERY_PAGE(TableWidgetEx)
{
    page.setPurpose("A tab widget of numbered pages. The editable kind asks its host for new pages "
                    "with an add button, and for the removal of pages with a close button on every "
                    "tab.");

    using W = TableWidgetEx;
    W *tabs = page.tryHere("Try it", makeTabs(nullptr, EditableTable, QSize(600, 220), true));
    page.event(tabs, "notifyAddTable", &W::notifyAddTable);
    page.event(tabs, "signals_removeTable", &W::signals_removeTable);
    // What is the host's: to add and to remove.
    QObject::connect(tabs, &W::notifyAddTable, tabs, [tabs](int index) {
        tabs->addTab(makeTable(12), QString("%1 %2").arg(tabs->titleText()).arg(index + 1));
        tabs->setIndex(index + 1);
        tabs->setCurrentIndex(tabs->count() - 1);
    });
    QObject::connect(tabs, &W::signals_removeTable, tabs, [tabs](int index) {
        QWidget *table = tabs->widget(index);
        tabs->removeTab(index);
        table->deleteLater();
    });

    const QSize size(240, 108);
    page.setStates({{"Normal", State::Normal}, {"Tab hovered", State::Hover, onSecondTab, tabBar}});
    page.look("Plain", [size](QWidget *parent) { return makeTabs(parent, PlainTable, size); });
    page.look("Scrolling",
              [size](QWidget *parent) { return makeTabs(parent, PlainTable, size, true); });

    const auto makeEditable = [size](QWidget *parent) {
        return makeTabs(parent, EditableTable, size);
    };
    const auto makeMoved = [size](QWidget *parent) {
        W *tabs = makeTabs(parent, EditableTable, size);
        tabs->setTabPanelWidth(84);
        tabs->setBMovedCornerButton(true);
        return tabs;
    };
    const auto makeMany = [size](QWidget *parent) {
        W *tabs = makeTabs(parent, EditableTable, size);
        tabs->customAddTab("Screen 3");
        return tabs;
    };
    page.setStates({{"Close hovered", State::Hover, pointers::onCentre, closeButton},
                    {"Close pressed", State::Pressed, pointers::onCentre, closeButton}},
                   "Editable: close buttons");
    page.look("Add in corner", makeEditable);
    page.look("Add moved", makeMoved);
    page.setStates({{"Add hovered", State::Hover, pointers::onCentre, addButton},
                    {"Add pressed", State::Pressed, pointers::onCentre, addButton}},
                   "Editable: add button");
    page.look("Add in corner", makeEditable);
    page.look("Add moved", makeMoved);
    page.setStates({{"Normal", State::Normal}, {"Disabled", State::Disabled}}, "More states");
    page.look("Many tabs", makeMany);
    page.look("Add in corner", makeEditable);
    page.look("Add moved", makeMoved);

    page.color<W>("setTabWorkSpaceColor", &W::tabWorkSpaceColor, &W::setTabWorkSpaceColor);
    page.color<W>("setFontColor", &W::fontColor, &W::setFontColor);
    page.color<W>("setFontHoverColor", &W::fontHoverColor, &W::setFontHoverColor);
    page.color<W>("setFontPressedColor", &W::fontPressedColor, &W::setFontPressedColor);
    page.color<W>("setTabNomalColor", &W::tabNomalColor, &W::setTabNomalColor);
    page.color<W>("setTabHoverColor", &W::tabHoverColor, &W::setTabHoverColor);
    page.color<W>("setTabSelectedColor", &W::tabSelectedColor, &W::setTabSelectedColor);
    page.number<W>("setTabPanelWidth", &W::tabPanelWidth, &W::setTabPanelWidth, 20, 300,
                   Reach::TryIt);
    page.number<W>("setTabPanelHeight", &W::tabPanelHeight, &W::setTabPanelHeight, 10, 60,
                   Reach::TryIt);
    page.number<W>("setLeftMargin", &W::leftMargin, &W::setLeftMargin, 0, 20, Reach::TryIt);
    page.number<W>("setTopMargin", &W::topMargin, &W::setTopMargin, 0, 20, Reach::TryIt);
    page.number<W>("setIndex", &W::index, &W::setIndex, 0, 99, Reach::TryIt);
    page.text<W>("setTitleText", &W::titleText, &W::setTitleText);
    page.text<W>(
        "setTabText(current)", [](const W *tabs) { return tabs->tabText(tabs->currentIndex()); },
        [](W *tabs, const QString &text) { tabs->setTabText(tabs->currentIndex(), text); });
    page.flag<W>("setBMovedCornerButton", &W::bMovedCornerButton, &W::setBMovedCornerButton);
    page.flag<W>("setBNeedScrollBar", &W::bNeedScrollBar, &W::setBNeedScrollBar);
    page.flag<W>("setIsShowAddButton", Page::withoutGetter(true), &W::setIsShowAddButton);
    page.action<W>(
        "addTable(true)", [](W *tabs) { tabs->addTable(true); }, Reach::TryIt);
    page.action<W>(
        "addTable(false)", [](W *tabs) { tabs->addTable(false); }, Reach::TryIt);
    page.action<W>("initStyle()", &W::initStyle);
}
