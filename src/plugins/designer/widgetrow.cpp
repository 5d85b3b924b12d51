#include "widgetrow.h"

#include <orvanecontrols/buttongroupex.h>
#include <orvanecontrols/checkboxex.h>
#include <orvanecontrols/comboboxex.h>
#include <orvanecontrols/comboboxitem.h>
#include <orvanecontrols/customlistwidgetitem.h>
#include <orvanecontrols/customlistwidgetmulitem.h>
#include <orvanecontrols/customwidget.h>
#include <orvanecontrols/doublespinboxex.h>
#include <orvanecontrols/drawer.h>
#include <orvanecontrols/draweritem.h>
#include <orvanecontrols/draweritemcontent.h>
#include <orvanecontrols/drawitemcontentnew.h>
#include <orvanecontrols/equiplistwidget.h>
#include <orvanecontrols/labelex.h>
#include <orvanecontrols/lineeditex.h>
#include <orvanecontrols/listwidgetex.h>
#include <orvanecontrols/listwidgettitle.h>
#include <orvanecontrols/mutexbuttonex.h>
#include <orvanecontrols/newtablewidget.h>
#include <orvanecontrols/nqtabbar.h>
#include <orvanecontrols/nqtabwidget.h>
#include <orvanecontrols/nqtoolbutton.h>
#include <orvanecontrols/offlineportitemcontentframe.h>
#include <orvanecontrols/offlineportitemframe.h>
#include <orvanecontrols/pushbuttonex.h>
#include <orvanecontrols/radiobuttonex.h>
#include <orvanecontrols/rowlineitem.h>
#include <orvanecontrols/shapewidget.h>
#include <orvanecontrols/shapewidgetcontent.h>
#include <orvanecontrols/sliderex.h>
#include <orvanecontrols/sliderexmouse.h>
#include <orvanecontrols/spinboxex.h>
#include <orvanecontrols/tabbarrd.h>
#include <orvanecontrols/tablewidgetcustom.h>
#include <orvanecontrols/tablewidgetex.h>
#include <orvanecontrols/toolbarex.h>
#include <orvanecontrols/toolbuttonex.h>
#include <orvanecontrols/treeitem.h>
#include <orvanecontrols/treeviewex.h>
#include <orvanecontrols/widgetcontent.h>
#include <orvanecontrols/widgetcontrollboard.h>
#include <orvanecontrols/widgetwithscrollex.h>
#include <orvanecontrols/windowtitle.h>

#include <QPixmap>

// How a class is built whose constructor takes more than the parent: the function, and its text.
#define BUILT_AS(...)                                                                              \
    {                                                                                              \
        [](QWidget *parent) -> QWidget * { return new __VA_ARGS__; }, QStringLiteral(#__VA_ARGS__) \
    }

namespace
{

struct Construction {
    QWidget *(*create)(QWidget *parent);
    QString text;
};

template <typename Widget> Construction fromParent()
{
    return {[](QWidget *parent) -> QWidget * { return new Widget(parent); }, QString()};
}

/// The rows of one heading of the widget box.
class Group
{
public:
    Group(QVector<WidgetRow> &rows, const QString &name)
        : m_rows(rows)
        , m_name(name)
    {
    }

    template <typename Widget>
    WidgetRow &add(QSize size, const char *purpose, const char *filling = "",
                   const Construction &construction = fromParent<Widget>())
    {
        m_rows.append({&Widget::staticMetaObject, construction.create, construction.text, m_name,
                       QString::fromLatin1(purpose), QString::fromLatin1(filling), size, QString(),
                       false});
        return m_rows.last();
    }

private:
    QVector<WidgetRow> &m_rows;
    QString m_name;
};

QString text(const char *value)
{
    return QStringLiteral("<property name=\"text\"><string>%1</string></property>")
        .arg(QLatin1String(value));
}

QString page(const char *name, const char *title)
{
    return QStringLiteral("<widget class=\"QWidget\" name=\"%1\">"
                          "<attribute name=\"title\"><string>%2</string></attribute></widget>")
        .arg(QLatin1String(name), QLatin1String(title));
}

void addBasicControls(QVector<WidgetRow> &rows)
{
    Group group(rows, QStringLiteral("Orvane Basic Controls"));
    group.add<CheckBoxEx>({140, 24}, "A check box with image indicators").content =
        text("Check box");
    group.add<RadioButtonEx>({140, 24}, "A radio button with image indicators").content =
        text("Radio button");
    group.add<LabelEx>({100, 24}, "A text label that reports the mouse").content = text("Label");
    group
        .add<PushButtonEx>({90, 30}, "A command button in the accented or the grey look", "",
                           BUILT_AS(PushButtonEx(parent, ActivatedBtn)))
        .content = text("Button");
    group.add<SpinBoxEx>({90, 26}, "A spin box for values that wrap between 359 and 0");
    group.add<DoubleSpinBoxEx>({90, 26}, "A spin box for numbers with decimals");
    group.add<LineEditEx>({140, 26},
                          "A line edit that can warn of characters not fit for file names",
                          "The underlined look is a matter of its constructor");
    group.add<SliderEx>({160, 24}, "A slider that leaves the mouse wheel alone",
                        "A vertical one needs a constructor of its own",
                        BUILT_AS(SliderEx(parent, Qt::Horizontal)));
    group.add<SliderExMouse>({160, 24}, "A slider that goes to where the button is released",
                             "A vertical one needs a constructor of its own",
                             BUILT_AS(SliderExMouse(parent, Qt::Horizontal)));
    group.add<ComboBoxEx>({120, 26}, "A drop-down of texts, or of images with texts",
                          "Images come by addImageItem()");
    group.add<ComboboxItem>({120, 30}, "A row of a ComboBoxEx: an image and a text",
                            "Fill it by setText(); its image is fixed at construction",
                            BUILT_AS(ComboboxItem(parent, QPixmap(), QString("Item"), 0)));
}

void addCabinets(QVector<WidgetRow> &rows)
{
    Group group(rows, QStringLiteral("Orvane Cabinets"));
    group
        .add<ToolButtonEx>({120, 30}, "A tool button with eight looks",
                           "Another look is a matter of its constructor",
                           BUILT_AS(ToolButtonEx(parent, DefaultType, QString(), QString())))
        .content = text("Tool button");
    group.add<MutexButtonEx>({156, 26}, "A strip of buttons of which one is checked",
                             "Fill it by addButton(), which sets its size");
    group.add<ToolBarEx>({320, 40}, "A tool bar with a group of buttons at either end",
                         "Fill it by addButton(), addWidget() and addSeparator()");
    group.add<WidgetWithScrollEx>({180, 80}, "A strip that scrolls a wide widget by arrows",
                                  "Fill it by addWidget()");
    group.add<ButtonGroupEx>({230, 70}, "A titled strip of buttons that scrolls by arrows",
                             "Fill it by addWidget() and setLabelText()");
    group.add<WidgetControllBoard>({230, 70},
                                   "A strip of buttons that shows in a popup what has no room",
                                   "Fill it by setLsWidget() and setButtonGroupExLabelText()");
    group.add<WidgetContent>({200, 60}, "The row of buttons inside a controller board's strip",
                             "Fill it by setLsWidget()");
    group.add<ShapeWidget>({200, 140}, "A bordered panel under an arrow, for one widget",
                           "Fill it by addWidget()");
    group.add<ShapeWidgetContent>({160, 120}, "A grid of buttons with a fixed number of columns",
                                  "Fill it by setColumn() and then setLsWidget()");
    group.add<Drawer>({260, 240}, "A stack of items of which one at most is expanded",
                      "Fill it by addDrawerItem()");
    group.add<DrawerItem>({260, 60}, "A device in a drawer: a header and a work space",
                          "Fill it by its setters");
    group.add<DrawerItemContent>({260, 120}, "The body of a drawer item: a row for each port",
                                 "Fill it by addRowLineItem()");
    group.add<DrawItemContentNew>({260, 120}, "The body of a drawer item: check boxes",
                                  "Put the boxes into its layout and hand them to setLsCheckbox()");
    group.add<RowLineItem>({278, 74}, "A port of a sender and the cabinets that hang on it",
                           "Fill it by setLineItemType(), AddLineItem() and addScrollWidget()");
    group.add<OfflinePortItemFrame>({53, 32}, "A port of a device that is offline",
                                    "Fill it by setLineItemType()");
    group.add<OfflinePortItemContentFrame>({240, 80}, "The ports of a device that is offline",
                                           "Fill it by addPortItem(), which sets its size");
}

void addWindow(QVector<WidgetRow> &rows)
{
    Group group(rows, QStringLiteral("Orvane Window and Dialogs"));
    group.add<WindowTitle>({400, 30}, "The title bar of a frameless window",
                           "Its size is fixed: rebuildUI() sets another one",
                           BUILT_AS(WindowTitle(QSize(400, 30), parent)));
    group.add<CustomWidget>({200, 30}, "A row of a dark block, a blue label and a tool button",
                            "Its parts are found among its children");
}

void addTabs(QVector<WidgetRow> &rows)
{
    Group group(rows, QStringLiteral("Orvane Tabs"));
    group.add<NQTabWidget>({300, 200}, "Pages behind tabs", "Add pages by addTab()");
    group.add<NQTabBar>({300, 30}, "A row of tabs with places for widgets of the host",
                        "Fill it by addTab()");
    group.add<TabBarRd>({300, 30}, "A tab bar whose tabs can share its width equally",
                        "Fill it by addTab()");
    group
        .add<NQToolButton>({80, 70}, "A tool button with a picture above a caption",
                           "Fill it by its setters; two pictures side by side are a matter of its "
                           "constructor",
                           BUILT_AS(NQToolButton(parent, ImageAboveCaption)))
        .content = text("Button");
}

void addLists(QVector<WidgetRow> &rows)
{
    Group group(rows, QStringLiteral("Orvane Lists, Tables and Trees"));
    group.add<ListWidgetEx>({240, 160}, "A list of projects whose rows are widgets",
                            "Fill it by addCustomItem()");
    group.add<CustomListWidgetItem>({240, 34}, "A row of a project list",
                                    "Fill it by setDisplayInfo() and setValueInfo()");
    group.add<ListWidgetTitle>({240, 32}, "The header of a list, which folds it",
                               "Fill it by setTitle()",
                               BUILT_AS(ListWidgetTitle(QString("Title"), parent)));
    group.add<EquipListWidget>({480, 135}, "A list of devices under a title that folds it",
                               "Fill it by setTitle() and addCustomItem()",
                               BUILT_AS(EquipListWidget(QString("Devices"), parent)));
    group.add<CustomListWidgetMulItem>(
        {480, 34}, "A row of a list of devices: texts in columns",
        "Its texts are fixed at construction; their labels come by getLabelList()",
        BUILT_AS(CustomListWidgetMulItem({"COM3", "Sender", "4", "online"}, parent, false)));
    group.add<TreeViewEx>({220, 200}, "A tree of cabinet models", "Fill it by addTreeItem()");
    group.add<TreeItem>({120, 50}, "A row of a tree of cabinet models: a name above a size",
                        "Fill it by setCabinetName(); the size is fixed at construction",
                        BUILT_AS(TreeItem(QString("Cabinet"), QSize(500, 500), parent)));
    WidgetRow &tabs = group.add<TableWidgetEx>(
        {300, 200}, "Numbered pages behind tabs",
        "Tabs that the user adds and closes are a matter of its constructor",
        BUILT_AS(TableWidgetEx(parent, PlainTable, QString("Screen"))));
    tabs.content = page("screen1", "Screen 1") + page("screen2", "Screen 2");
    tabs.isContainer = true;
    group.add<TableWidgetCustom>(
        {400, 160}, "A table of backup records",
        "Rows and columns are fixed at construction; updateUi() fills them",
        BUILT_AS(TableWidgetCustom({}, {"Sender", "Port", "Backup", "State"}, 0, 4, parent)));
    group.add<NewTableWidget>({320, 160}, "A read-only table that can begin with check boxes",
                              "The column of check boxes comes by a setter");
}

QVector<WidgetRow> makeRows()
{
    QVector<WidgetRow> rows;
    addBasicControls(rows);
    addCabinets(rows);
    addWindow(rows);
    addTabs(rows);
    addLists(rows);
    return rows;
}

} // namespace

const QVector<WidgetRow> &widgetRows()
{
    static const QVector<WidgetRow> rows = makeRows();
    return rows;
}
