#include "controls.h"

#include "bareqt.h"
#include "buttongroupex.h"
#include "cabinetrecords.h"
#include "checkboxex.h"
#include "comboboxex.h"
#include "comboboxitem.h"
#include "customlistwidgetitem.h"
#include "customlistwidgetmulitem.h"
#include "custommessagebox.h"
#include "doublespinboxex.h"
#include "drawer.h"
#include "draweritem.h"
#include "draweritemcontent.h"
#include "equiplistwidget.h"
#include "labelex.h"
#include "lineeditex.h"
#include "listwidgetex.h"
#include "listwidgettitle.h"
#include "mutexbuttonex.h"
#include "newtablewidget.h"
#include "nqtabbar.h"
#include "nqtabwidget.h"
#include "nqtoolbutton.h"
#include "offlineportitemcontentframe.h"
#include "offlineportitemframe.h"
#include "pushbuttonex.h"
#include "radiobuttonex.h"
#include "rowlineitem.h"
#include "scrollbarex.h"
#include "shapewidget.h"
#include "sliderex.h"
#include "sliderexmouse.h"
#include "spinboxex.h"
#include "tabbarrd.h"
#include "tablewidgetcustom.h"
#include "tablewidgetex.h"
#include "toolbarex.h"
#include "toolbuttonex.h"
#include "treeitem.h"
#include "treeviewex.h"
#include "widgetboard.h"
#include "widgetcontrollboard.h"
#include "widgetwithscrollex.h"
#include "windowtitle.h"

#include <QHeaderView>
#include <QLabel>
#include <QScrollBar>

namespace
{

constexpr QSize lineSize(120, 24);
constexpr QSize panelSize(240, 120);
constexpr int cabinetSide = 69;

constexpr int manyControls = 16;
constexpr int someControls = 6;
constexpr int fewControls = 2;

const QString images = QStringLiteral(":/Resource/Images/globalResource/");

template <typename Widget> Widget *sized(Widget *widget, QSize size = lineSize)
{
    widget->setFixedSize(size);
    return widget;
}

/// One of two colours in turns.
QColor colour(int value)
{
    return value == 0 ? QColor(69, 69, 69) : QColor(66, 145, 240);
}

/// A setter of a colour, as a restyling.
template <typename Widget, typename Argument>
std::function<void(QWidget *, int)> by(void (Widget::*set)(Argument))
{
    return
        [set](QWidget *widget, int value) { (static_cast<Widget *>(widget)->*set)(colour(value)); };
}

ToolButtonEx *newToolButton(QWidget *parent, ButtonType type, QSize size)
{
    auto *button = new ToolButtonEx(parent, type, "Screen 1", "1920 x 1080");
    button->setFixedSize(size);
    return button;
}

ToolButtonEx *newPictureButton(QWidget *parent)
{
    ToolButtonEx *button = newToolButton(parent, LeftToRightType, {120, 40});
    button->setStrLeftImgPathNormal(images + "drawer/netport.png");
    button->setStrLeftImgPathPressed(images + "drawer/netport.png");
    button->setStrRightText("Port 1");
    button->setStrRightBottomText("online");
    return button;
}

ToolButtonEx *newCommand(QWidget *parent, ButtonType type)
{
    ToolButtonEx *button = newToolButton(parent, type, lineSize);
    button->setText("Send");
    return button;
}

ToolButtonEx *newCabinet(QWidget *parent, ButtonType type)
{
    const StructCabinet record = cabinetRecord(0);
    ToolButtonEx *button = new ToolButtonEx(parent, type, QString(), QString());
    button->setFixedSize(cabinetSide, cabinetSide);
    button->setCabinetSize(record.cabinetSize.width(), record.cabinetSize.height());
    button->setIsDrawCabinetCount(true);
    button->setCabinetCount(record.cabinetCount);
    button->setCabnetInfo(record);
    return button;
}

QWidget *newMutexButton(QWidget *parent)
{
    auto *strip = new MutexButtonEx(parent);
    strip->setButtonWidth(60); // room for the texts
    for (const char *text : {"50%", "100%", "200%"}) {
        auto *button = new ToolButtonEx(strip, DefaultType, QString(), QString());
        strip->addButton(button);
        button->setText(text);
    }
    return sized(strip, {180, 26});
}

QWidget *newToolBar(QWidget *parent)
{
    auto *bar = new ToolBarEx(parent);
    for (int i = 0; i < 4; ++i)
        bar->addButton(new ToolButtonEx(bar, DefaultType, QString(), QString()), LeftPos);
    bar->addSeparator();
    bar->addButton(new ToolButtonEx(bar, DefaultType, QString(), QString()), RightPos);
    bar->setFixedWidth(panelSize.width());
    return bar;
}

QWidget *newStripContent(QWidget *parent)
{
    auto *content = new QWidget(parent);
    for (int i = 0; i < 4; ++i)
        newCabinet(content, CabinetType)->move(i * cabinetSide, 0);
    content->setFixedSize(4 * cabinetSide, cabinetSide);
    return content;
}

template <typename Strip> QWidget *newStrip(QWidget *parent)
{
    auto *strip = new Strip(parent);
    strip->addWidget(newStripContent(nullptr));
    return sized(strip, {240, 74});
}

QWidget *newBareStrip(QWidget *parent)
{
    auto *strip = new bareqt::Strip(
        QStringLiteral("#WidgetWithScrollEx{border:none; background-color:RGB(69, 69, 69);}"),
        parent);
    strip->setObjectName(QStringLiteral("WidgetWithScrollEx"));
    auto *content = new QWidget;
    for (int i = 0; i < 4; ++i)
        (new bareqt::CabinetButton(content, cabinetRecord(0)))->move(i * cabinetSide, 0);
    content->setFixedSize(4 * cabinetSide, cabinetSide);
    strip->setContent(content);
    return sized(strip, {240, 74});
}

QWidget *newRow(QWidget *parent)
{
    auto *row = new RowLineItem(parent);
    row->setLineItemType(1, PortItem);
    for (const StructCabinet &record : cabinetRecords(4))
        row->AddLineItem(record);
    row->addScrollWidget();
    row->setFixedWidth(300);
    return row;
}

DrawerItem *newDrawerItem(QWidget *parent)
{
    auto *item = new DrawerItem(parent);
    item->setDeviceName("Sender 1");
    item->setDevicePortName("192.168.0.1", true);
    item->setBOnline(true);
    return item;
}

QWidget *newDrawer(QWidget *parent)
{
    auto *drawer = new Drawer(parent);
    for (int i = 0; i < 4; ++i)
        drawer->addDrawerItem(newDrawerItem(nullptr));
    return sized(drawer, {300, 240});
}

QWidget *newBoard(QWidget *parent)
{
    auto *board = new WidgetControllBoard(parent);
    board->setFixedSize(board->sizeHint());
    board->setButtonGroupExLabelText("Cabinet models");
    board->setIsAddCabient(true);
    QList<QWidget *> models;
    for (int i = 0; i < 3; ++i)
        models += newCabinet(nullptr, CabinetModelType);
    board->setLsWidget(models);
    return board;
}

QWidget *newMessageBox(QWidget *parent)
{
    auto *box = new CustomMessageBox(parent);
    box->setBoxInformation("Layout", "Send the layout to all screens?",
                           QPixmap(images + "messageBox/question.png"), false, false, false, false,
                           "Apply", "OK", "Cancel");
    box->setParent(parent, Qt::Widget);
    return sized(box, box->size());
}

QWidget *newTitle(QWidget *parent)
{
    auto *title = new WindowTitle(QSize(520, 30), parent);
    title->SetLogoTextValue("LED wall");
    return title;
}

NQToolButton *newNqButton(QWidget *parent, ToolButtonType type)
{
    auto *button = new NQToolButton(parent, type);
    if (type == ImageAboveCaption) {
        button->setFixedSize(60, 76);
        button->setUpLabelSize(40, 40);
        button->setUpLabelImg(images + "addBtn/ADD_normal.png",
                              images + "addBtn/box-add_disableDouble.png");
        button->setStrDownText("Add");
    } else {
        button->setFixedSize(72, 36);
        button->setLeftLabelImg(images + "addBtn/ADD_normal.png");
        button->setRightLabelImg(images + "messageBox/information.png");
    }
    return button;
}

QWidget *newTabs(QWidget *parent)
{
    auto *tabs = new NQTabWidget(parent);
    tabs->setWidgetSize(panelSize.width(), panelSize.height());
    for (const char *text : {"Screen", "Senders", "Wall"})
        tabs->addTab(new QLabel(text), text);
    tabs->setCurrentIndex(0);
    return tabs;
}

QWidget *newTabBar(QWidget *parent)
{
    auto *bar = new NQTabBar(parent);
    bar->setWidgetFixedSize(panelSize.width(), lineSize.height());
    for (const char *text : {"Screen", "Senders", "Wall"})
        bar->addTab(text);
    return bar;
}

QWidget *newPlainTabBar(QWidget *parent)
{
    auto *bar = new TabBarRd(parent);
    for (const char *text : {"Screen", "Senders", "Wall"})
        bar->addTab(text);
    return sized(bar, {panelSize.width(), lineSize.height()});
}

QWidget *newList(QWidget *parent)
{
    auto *list = new ListWidgetEx(parent);
    for (int i = 1; i <= 4; ++i)
        list->addCustomItem("Project " + QString::number(i), "/projects/hall.wall");
    return sized(list, panelSize);
}

QWidget *newEquipList(QWidget *parent)
{
    auto *list = new EquipListWidget("Devices", parent);
    for (int i = 1; i <= 4; ++i)
        list->addCustomItem({"COM" + QString::number(i), "Sender", "4", "online"}, false);
    return sized(list, {500, 200});
}

QWidget *newTree(QWidget *parent)
{
    auto *tree = new TreeViewEx(parent);
    auto *family = new QTreeWidgetItem(tree, {"Models"});
    for (int i = 1; i <= 4; ++i) {
        tree->addTreeItem(family, "Model " + QString::number(i), QSize(128, 96), nullptr,
                          Qt::Checked);
    }
    family->setExpanded(true);
    return sized(tree, {240, 240});
}

QWidget *newTableTabs(QWidget *parent)
{
    auto *tabs = new TableWidgetEx(parent, EditableTable, "Screen");
    tabs->setFixedSize(panelSize);
    tabs->addTab(new QLabel("Cabinets"), "Screen 1");
    tabs->addTab(new QLabel("Cabinets"), "Screen 2");
    return tabs;
}

QWidget *newBackupTable(QWidget *parent)
{
    QList<BackUpParam> records;
    for (int i = 1; i <= 4; ++i)
        records += {"Sender " + QString::number(i), "1", "Sender 9", "2", false};
    return sized(new TableWidgetCustom(records, {"Sender", "Port", "Backup", "Port"}, 4, 4, parent),
                 {400, 242});
}

QWidget *newTable(QWidget *parent)
{
    auto *table = new NewTableWidget(parent);
    table->setColumnCount(3);
    table->setHorizontalHeaderLabels({"Receiver", "Firmware", "State"});
    table->setRowCount(4);
    for (int row = 0; row < 4; ++row) {
        for (int column = 0; column < 3; ++column)
            table->setItem(row, column, new QTableWidgetItem("R" + QString::number(row)));
    }
    return sized(table, panelSize);
}

QWidget *newComboBox(QWidget *parent)
{
    auto *box = new ComboBoxEx(parent);
    box->addItems({"Screen 1", "Screen 2", "Screen 3"});
    return sized(box);
}

QWidget *newScrollBar(QWidget *parent)
{
    auto *bar = new QScrollBar(Qt::Vertical, parent);
    bar->setFixedSize(16, 100);
    auto *style = new ScrollBarEx(bar, true);
    style->setParent(bar);
    style->hide();
    return bar;
}

} // namespace

const std::vector<Control> &allControls()
{
    static const std::vector<Control> controls{
        // Basic controls
        {"CheckBoxEx",
         manyControls,
         [](QWidget *parent) {
             auto *box = sized(new CheckBoxEx(parent));
             box->setText("Mirror");
             return box;
         },
         by(&CheckBoxEx::setFontColor),
         {}},
        {"RadioButtonEx",
         manyControls,
         [](QWidget *parent) {
             auto *button = sized(new RadioButtonEx(parent));
             button->setText("Mirror");
             return button;
         },
         by(&RadioButtonEx::setFontColor),
         {}},
        {"LabelEx",
         manyControls,
         [](QWidget *parent) {
             auto *label = sized(new LabelEx(parent));
             label->setText("Brightness");
             return label;
         },
         by(&LabelEx::setFontColor),
         {}},
        {"ScrollBarEx and its bar",
         manyControls,
         newScrollBar,
         [](QWidget *bar, int value) {
             bar->findChild<ScrollBarEx *>()->setScrollColor(colour(value));
         },
         {}},
        {"PushButtonEx, activated",
         manyControls,
         [](QWidget *parent) {
             auto *button = sized(new PushButtonEx(parent, ActivatedBtn));
             button->setText("Send");
             return button;
         },
         {},
         {}},
        {"PushButtonEx, not activated",
         manyControls,
         [](QWidget *parent) {
             auto *button = sized(new PushButtonEx(parent, NoActivatedBtn));
             button->setText("Send");
             return button;
         },
         {},
         {}},
        {"SpinBoxEx",
         manyControls,
         [](QWidget *parent) { return sized(new SpinBoxEx(parent)); },
         by(&SpinBoxEx::setBackgroundColor),
         {}},
        {"DoubleSpinBoxEx",
         manyControls,
         [](QWidget *parent) { return sized(new DoubleSpinBoxEx(parent)); },
         by(&DoubleSpinBoxEx::setBackgroundColor),
         {}},
        {"LineEditEx, framed",
         manyControls,
         [](QWidget *parent) { return sized(new LineEditEx(parent, NormalLineEdit)); },
         by(&LineEditEx::setBackgroundColor),
         {}},
        {"LineEditEx, underlined",
         manyControls,
         [](QWidget *parent) { return sized(new LineEditEx(parent, UnderlineLineEdit)); },
         {},
         {}},
        {"SliderEx",
         manyControls,
         [](QWidget *parent) { return sized(new SliderEx(parent, Qt::Horizontal)); },
         by(&SliderEx::setHandleColor),
         {}},
        {"SliderExMouse",
         manyControls,
         [](QWidget *parent) { return sized(new SliderExMouse(parent, Qt::Horizontal)); },
         by(&SliderEx::setHandleColor),
         {}},
        {"ComboboxItem",
         manyControls,
         [](QWidget *parent) {
             static const QPixmap port(images + "drawer/netport.png"); // the host's own
             return sized(new ComboboxItem(parent, port, "Port", 0));
         },
         by(&ComboboxItem::setFontColor),
         {}},
        {"ComboBoxEx", manyControls, newComboBox, by(&ComboBoxEx::setBorderNormalColor), {}},
        // Tool buttons
        {"ToolButtonEx, picture and texts",
         manyControls,
         newPictureButton,
         by(&ToolButtonEx::setLeftToRightNormalBgColor),
         {}},
        {"ToolButtonEx, two texts",
         manyControls,
         [](QWidget *parent) {
             return newToolButton(parent, TopToBottomType, {80, 48});
         },
         by(&ToolButtonEx::setTopToBottomNormalBgColor),
         {}},
        {"ToolButtonEx, cabinet", manyControls,
         [](QWidget *parent) { return newCabinet(parent, CabinetType); },
         by(&ToolButtonEx::setCabinetNormalBgColor),
         [](QWidget *parent) { return new bareqt::CabinetButton(parent, cabinetRecord(0)); }},
        {"ToolButtonEx, cabinet model",
         manyControls,
         [](QWidget *parent) { return newCabinet(parent, CabinetModelType); },
         by(&ToolButtonEx::setCabinetNormalBgColor),
         {}},
        {"ToolButtonEx, adding",
         manyControls,
         [](QWidget *parent) {
             return newToolButton(parent, AddCabinetType, {40, 40});
         },
         {},
         {}},
        {"ToolButtonEx, activated",
         manyControls,
         [](QWidget *parent) { return newCommand(parent, ActivatedType); },
         by(&ToolButtonEx::setActivatedNormalBgColor),
         {}},
        {"ToolButtonEx, not activated",
         manyControls,
         [](QWidget *parent) { return newCommand(parent, NoActivatedType); },
         by(&ToolButtonEx::setNoActivatedNormalBgColor),
         {}},
        {"ToolButtonEx, plain",
         manyControls,
         [](QWidget *parent) { return newCommand(parent, DefaultType); },
         {},
         {}},
        {"MutexButtonEx, 3 buttons", manyControls, newMutexButton, {}, {}},
        {"ToolBarEx, 5 buttons",
         someControls,
         newToolBar,
         {},
         [](QWidget *parent) {
             QFrame *bar = bareqt::newToolBar(4, parent);
             bar->setFixedWidth(panelSize.width());
             return bar;
         }},
        // Strips, rows and drawers
        {"WidgetWithScrollEx", someControls, newStrip<WidgetWithScrollEx>, {}, newBareStrip},
        {"ButtonGroupEx", someControls, newStrip<ButtonGroupEx>, {}, {}},
        {"OfflinePortItemFrame",
         manyControls,
         [](QWidget *parent) {
             auto *port = new OfflinePortItemFrame(parent);
             port->setLineItemType(1, PortItem);
             return port;
         },
         [](QWidget *widget, int value) {
             auto *port = static_cast<OfflinePortItemFrame *>(widget);
             if (value == 0)
                 port->setItemReleased();
             else
                 port->setItemPressed();
         },
         {}},
        {"OfflinePortItemContentFrame, 8 ports",
         fewControls,
         [](QWidget *parent) {
             auto *ports = new OfflinePortItemContentFrame(parent);
             ports->addPortItem(8, PortItem);
             return ports;
         },
         {},
         {}},
        {"RowLineItem, 4 cabinets", someControls, newRow,
         [](QWidget *widget, int value) {
             auto *row = static_cast<RowLineItem *>(widget);
             if (value == 0)
                 row->setItemReleased();
             else
                 row->setItemPressed();
         },
         [](QWidget *parent) {
             auto *row = new bareqt::Row(1, parent);
             for (const StructCabinet &record : cabinetRecords(4))
                 row->addCabinet(record);
             row->finish();
             row->setFixedWidth(300);
             return row;
         }},
        {"DrawerItem",
         someControls,
         newDrawerItem,
         [](QWidget *widget, int value) {
             static_cast<DrawerItem *>(widget)->setDrawItemPressed(value != 0);
         },
         {}},
        {"Drawer, 4 items",
         fewControls,
         newDrawer,
         [](QWidget *widget, int value) {
             static_cast<Drawer *>(widget)->setSelectItemByIndex(value);
         },
         {}},
        // Controller board
        {"ShapeWidget",
         someControls,
         [](QWidget *parent) {
             auto *panel = new ShapeWidget(parent);
             panel->addWidget(newStripContent(nullptr));
             return sized(panel, panelSize);
         },
         {},
         {}},
        {"WidgetBoard",
         someControls,
         [](QWidget *parent) {
             auto *board = new WidgetBoard(parent);
             board->addWidget(newStripContent(nullptr));
             return sized(board, panelSize);
         },
         {},
         {}},
        {"WidgetControllBoard, 3 models", fewControls, newBoard, {}, {}},
        // Window and dialogs
        {"WindowTitle", someControls, newTitle, {}, {}},
        {"CustomMessageBox", fewControls, newMessageBox, {}, {}},
        // Tabs
        {"NQToolButton, caption",
         manyControls,
         [](QWidget *parent) { return newNqButton(parent, ImageAboveCaption); },
         by(&NQToolButton::setTopToBottomNormalBtnColor),
         {}},
        {"NQToolButton, two pictures",
         manyControls,
         [](QWidget *parent) { return newNqButton(parent, ImageBesideImage); },
         {},
         {}},
        {"TabBarRd, 3 tabs", someControls, newPlainTabBar, {}, {}},
        {"NQTabBar, 3 tabs", someControls, newTabBar, {}, {}},
        {"NQTabWidget, 3 pages", fewControls, newTabs, {}, {}},
        // Lists, tables and trees
        {"ListWidgetEx, 4 rows", fewControls, newList, by(&ListWidgetEx::setBgNormalColor), {}},
        {"ListWidgetTitle",
         someControls,
         [](QWidget *parent) {
             return sized(new ListWidgetTitle("Devices", parent), {panelSize.width(), 40});
         },
         {},
         {}},
        {"EquipListWidget, 4 rows", fewControls, newEquipList, {}, {}},
        {"TreeItem",
         manyControls,
         [](QWidget *parent) { return new TreeItem("Model", QSize(128, 96), parent); },
         {},
         {}},
        {"TreeViewEx, 4 models", fewControls, newTree, {}, {}},
        {"TableWidgetEx, 2 tabs",
         fewControls,
         newTableTabs,
         by(&TableWidgetEx::setTabNomalColor),
         {}},
        {"TableWidgetCustom, 4 x 4 cells", fewControls, newBackupTable, {}, {}},
        {"NewTableWidget, 4 x 3 cells", fewControls, newTable, {}, {}},
    };
    return controls;
}
