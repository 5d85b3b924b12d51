#include "support/cabinetrecord.h"
#include "support/everywidget.h"
#include "support/pointer.h"
#include "support/testcase.h"

#include <widgetinfo.h>

#include <QAccessible>

namespace
{

QString spokenName(QWidget *widget)
{
    QAccessibleInterface *interface = QAccessible::queryAccessibleInterface(widget);
    return interface ? interface->text(QAccessible::Name) : QString("no interface");
}

QList<QAbstractButton *> buttonsOf(QWidget *widget)
{
    QList<QAbstractButton *> buttons = widget->findChildren<QAbstractButton *>();
    if (auto *button = qobject_cast<QAbstractButton *>(widget))
        buttons.prepend(button);
    return buttons;
}

/// What a screen reader speaks for each button in \a widget, in alphabetical order.
QStringList buttonNames(QWidget *widget)
{
    QStringList names;
    const QList<QAbstractButton *> buttons = buttonsOf(widget);
    for (QAbstractButton *button : buttons)
        names.append(spokenName(button));
    names.sort();
    return names;
}

QAbstractButton *buttonNamed(QWidget *widget, const QString &name)
{
    const QList<QAbstractButton *> buttons = buttonsOf(widget);
    for (QAbstractButton *button : buttons) {
        if (spokenName(button) == name)
            return button;
    }
    return nullptr;
}

/// Every text that \a widget shows, or can show as a tool tip or in the frame of a window.
QStringList shownTexts(QWidget *root)
{
    QStringList texts;
    QList<QWidget *> widgets = root->findChildren<QWidget *>();
    widgets.prepend(root);
    for (const QWidget *widget : qAsConst(widgets)) {
        texts << widget->toolTip() << widget->statusTip() << widget->whatsThis()
              << widget->windowTitle();
        if (const auto *label = qobject_cast<const QLabel *>(widget))
            texts << label->text();
        if (const auto *button = qobject_cast<const QAbstractButton *>(widget))
            texts << button->text();
        if (const auto *edit = qobject_cast<const QLineEdit *>(widget))
            texts << edit->text() << edit->placeholderText();
        if (const auto *box = qobject_cast<const QAbstractSpinBox *>(widget))
            texts << box->specialValueText();
        if (const auto *box = qobject_cast<const QSpinBox *>(widget))
            texts << box->prefix() << box->suffix();
        if (const auto *box = qobject_cast<const QComboBox *>(widget))
            texts << box->currentText();
    }
    texts.removeAll(QString());
    texts.removeDuplicates();
    texts.sort();
    return texts;
}

/// What stands for \a widget in a list of tab stops.
QString stopName(QWidget *widget)
{
    const bool isButton = qobject_cast<QAbstractButton *>(widget);
    for (const QString &name : {isButton ? spokenName(widget) : widget->accessibleName(),
                                widget->objectName(), widget->property("text").toString()}) {
        if (!name.isEmpty())
            return name;
    }
    return widget->metaObject()->className();
}

/// Where the tab key goes in \a window, from the widget that has the focus until it is there again.
QStringList tabStops(QWidget *window, Qt::Key key = Qt::Key_Tab)
{
    constexpr int patience = 40;
    QStringList stops;
    const QWidget *first = QApplication::focusWidget();
    for (int i = 0; i < patience && QApplication::focusWidget(); ++i) {
        stops.append(stopName(QApplication::focusWidget()));
        QTest::keyClick(window->windowHandle(), key);
        if (QApplication::focusWidget() == first)
            return stops;
    }
    return stops << "no way back";
}

/// Shows \a widget as the active window, with the focus on \a first.
bool showWithFocus(QWidget *widget, QWidget *first)
{
    if (!pointer::showAndWait(widget))
        return false;
    QApplication::setActiveWindow(widget);
    first->setFocus();
    return QApplication::focusWidget() == first;
}

QPushButton *hostButton(const QString &text)
{
    auto *button = new QPushButton(text);
    button->resize(60, 30);
    return button;
}

/// A content with two buttons that is wider than any strip.
QWidget *wideContent()
{
    auto *content = new QWidget;
    content->resize(600, 40);
    for (const char *text : {"a", "b"})
        hostButton(text)->setParent(content);
    return content;
}

DrawerItem *drawerItem()
{
    auto *item = new DrawerItem;
    auto *rows = new DrawerItemContent;
    rows->addRowLineItem(1, PortItem, {cabinetRecord(1), cabinetRecord(2), cabinetRecord(3)});
    rows->addRowLineItem(2, CoaxialItem, {});
    item->addItem(rows);
    item->setBOnline(true);
    item->setWorkSpaceisShow(true);
    return item;
}

/// Puts the context in front of every text.
class ContextTranslator : public QTranslator
{
public:
    QString translate(const char *context, const char *text, const char * /*disambiguation*/,
                      int /*n*/) const override
    {
        return QLatin1String(context) + ": " + QLatin1String(text);
    }
    bool isEmpty() const override { return false; }
};

/// Makes a language the one of the application, as long as it lives.
class DefaultLocale
{
public:
    explicit DefaultLocale(const QLocale &locale) { QLocale::setDefault(locale); }
    ~DefaultLocale() { QLocale::setDefault(m_previous); }
    Q_DISABLE_COPY_MOVE(DefaultLocale)

private:
    QLocale m_previous;
};

} // namespace

class TestAccessibility : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void everyButtonIsNamed_data()
    {
        QTest::addColumn<int>("widget");
        QTest::addColumn<QStringList>("names");
        // An empty name is one that the host has to set, or belongs to what does nothing.
        const QStringList unnamed{""};
        const QMap<QByteArray, QStringList> names = {
            // Their text is the host's.
            {"CheckBoxEx", unnamed},
            {"RadioButtonEx", unnamed},
            {"PushButtonEx", unnamed},
            {"ToolButtonEx, left to right", unnamed},
            {"ToolButtonEx, top to bottom", unnamed},
            {"NQToolButton, caption", unnamed},
            {"NQToolButton, pictures", unnamed},
            // They show nothing yet: no cabinet, no port, no warning.
            {"ToolButtonEx, cabinet", unnamed},
            {"ToolButtonEx, model", unnamed},
            {"RowLineItem", {"", "Scroll left", "Scroll right"}},
            {"OfflinePortItemFrame", unnamed},
            {"CustomListWidgetItem", {"", "Delete"}},
            // An arrow that points at the button the panel belongs to; a click does nothing.
            {"ShapeWidget", unnamed},
            {"WidgetBoard", {"", "Show all"}},
            // A bare part, for the host to fill.
            {"CustomWidget", unnamed},

            {"WidgetWithScrollEx", {"Scroll left", "Scroll right"}},
            {"ButtonGroupEx",
             {"Add cabinets", "Add row of cabinets", "Scroll left", "Scroll right"}},
            {"WidgetControllBoard",
             {"Add cabinets", "Add row of cabinets", "Scroll left", "Scroll right"}},
            {"DrawerItem", {"Expand", "Offline", "Select all", "Settings"}},
            {"WindowTitle", {"Close", "Maximise", "Minimise"}},
            // The frame begins as large as it gets.
            {"WindowFrame", {"Close", "Minimise", "Restore"}},
            // The buttons below the message get their texts with it.
            {"CustomMessageBox", {"", "", "", "Close"}},
            // Qt's own, for tabs that do not fit.
            {"TabBarRd", {"Scroll Left", "Scroll Right"}},
            {"NQTabBar", {"Scroll Left", "Scroll Right"}},
            {"NQTabWidget", {"Scroll Left", "Scroll Right"}},
            {"TableWidgetEx", {"Add tab", "Scroll Left", "Scroll Right"}},
            {"ListWidgetTitle", {"Fold", "Refresh", "Settings"}},
            {"EquipListWidget", {"Fold", "Refresh", "Settings"}},
            // Qt's own, where the headers of tables meet, behind the header that is hidden.
            {"TableWidgetCustom", unnamed},
            {"NewTableWidget", unnamed},
        };
        const QList<NewWidget> widgets = everyWidget();
        for (int i = 0; i < widgets.size(); ++i)
            QTest::newRow(widgets.at(i).name) << i << names.value(widgets.at(i).name);
    }
    void everyButtonIsNamed()
    {
        QFETCH(int, widget);
        QFETCH(QStringList, names);
        const NewWidget made = everyWidget().at(widget);
        for (const QString &warning : made.warnings)
            expectWarning(warning);
        const std::unique_ptr<QWidget> root(made.make());
        QCOMPARE(buttonNames(root.get()), names);
    }

    void namesFollowWhatButtonsDo()
    {
        DrawerItem item;
        item.setWorkSpaceisShow(true);
        QVERIFY(buttonNamed(&item, "Collapse"));
        item.setWorkSpaceisShow(false);
        QVERIFY(buttonNamed(&item, "Expand"));
        item.setBOnline(true);
        QCOMPARE(buttonNames(&item), (QStringList{"Expand", "Online", "Select all", "Settings"}));
        item.setBOnline(false);
        QCOMPARE(buttonNames(&item), (QStringList{"Delete", "Expand", "Offline", "Select all"}));

        ListWidgetTitle title("Devices");
        title.changeDropDownBtn(false);
        QCOMPARE(buttonNames(&title), (QStringList{"Refresh", "Settings", "Unfold"}));

        CustomListWidgetItem row;
        row.setValidIcon(true);
        QCOMPARE(buttonNames(&row), (QStringList{"Delete", "Not found"}));
        row.setValidIcon(false);
        QCOMPARE(buttonNames(&row), (QStringList{"", "Delete"}));
    }

    void portsAreNamedByTheirNumber()
    {
        RowLineItem row;
        row.setLineItemType(3, PortItem);
        QVERIFY(buttonNamed(&row, "Port 3"));
        row.setPortIndex(5); // stored only
        QVERIFY(buttonNamed(&row, "Port 3"));
        row.setLineItemType(12, CoaxialItem);
        QVERIFY(buttonNamed(&row, "Port 12"));

        OfflinePortItemFrame frame;
        frame.setLineItemType(4, PortItem);
        QCOMPARE(buttonNames(&frame), QStringList("Port 4"));
        frame.setPortIndex(8); // counts from zero
        QCOMPARE(buttonNames(&frame), QStringList("Port 9"));
    }

    void aCabinetIsAButtonForAScreenReader()
    {
        ToolButtonEx cabinet(nullptr, CabinetType, {}, {});
        QAccessibleInterface *accessible = QAccessible::queryAccessibleInterface(&cabinet);
        QVERIFY(accessible);
        QCOMPARE(accessible->role(), QAccessible::Button);
        QVERIFY(!accessible->state().checkable);
        QVERIFY(!accessible->state().pressed);
        cabinet.setDown(true);
        QVERIFY(accessible->state().pressed);
        cabinet.setDown(false);

        QAccessibleActionInterface *actions = accessible->actionInterface();
        QVERIFY(actions);
        QCOMPARE(actions->actionNames().value(0), QAccessibleActionInterface::pressAction());
        const QSignalSpy clicks(&cabinet, &QAbstractButton::clicked);
        actions->doAction(QAccessibleActionInterface::pressAction());
        QCOMPARE(clicks.count(), 1);

        cabinet.setCheckable(true);
        QCOMPARE(accessible->role(), QAccessible::CheckBox);
        QVERIFY(accessible->state().checkable);
        QVERIFY(!accessible->state().checked);
        QCOMPARE(actions->actionNames().value(0), QAccessibleActionInterface::toggleAction());
        actions->doAction(QAccessibleActionInterface::pressAction()); // no longer its own
        QCOMPARE(clicks.count(), 1);
        actions->doAction(QAccessibleActionInterface::toggleAction());
        QCOMPARE(clicks.count(), 2);
        QVERIFY(accessible->state().checked);

        cabinet.setEnabled(false);
        QVERIFY(!actions->actionNames().contains(QAccessibleActionInterface::toggleAction()));
        actions->doAction(QAccessibleActionInterface::toggleAction());
        QCOMPARE(clicks.count(), 2);
    }

    void toolButtonsSpeakWhatTheyShow()
    {
        ToolButtonEx wide(nullptr, LeftToRightType, {}, {});
        wide.setStrRightText("Port 1");
        QCOMPARE(spokenName(&wide), QString("Port 1"));
        ToolButtonEx tall(nullptr, TopToBottomType, "Screen 1", "1920 x 1080");
        QCOMPARE(spokenName(&tall), QString("Screen 1 1920 x 1080"));
        tall.setStrDownText("off");
        QCOMPARE(spokenName(&tall), QString("Screen 1 off"));
        ToolButtonEx cabinet(nullptr, CabinetType, {}, {});
        cabinet.setCabinetSize(128, 64);
        QCOMPARE(spokenName(&cabinet), QString("128x64"));
        cabinet.setCabinetSize(320, 160);
        QCOMPARE(spokenName(&cabinet), QString("320x160"));
        cabinet.setButtonType(ActivatedType);
        cabinet.resize(200, 30);
        cabinet.setText("Send");
        QCOMPARE(spokenName(&cabinet), QString("Send"));
        ToolButtonEx command(nullptr, ActivatedType, {}, {});
        command.resize(200, 30);
        command.setText("Send");
        QCOMPARE(spokenName(&command), QString("Send"));

        NQToolButton captioned(nullptr, ImageAboveCaption);
        captioned.setStrDownText("A caption that is cut with dots behind it");
        QVERIFY(captioned.strDownText().endsWith("..."));
        QCOMPARE(spokenName(&captioned), QString("A caption that is cut with dots behind it"));
        captioned.setStrDownText("Wall");
        QCOMPARE(spokenName(&captioned), QString("Wall"));
    }

    void boardNamesItsPicturesByTheirToolTips()
    {
        WidgetControllBoard board;
        WidgetInfo first;
        first.toolTip = "Sender";
        board.addWidgetContent(&first);
        WidgetInfo second;
        second.toolTip = "Receiver";
        board.addWidgetContent(&second);
        QCOMPARE(board.lsWidget().size(), 2);
        QCOMPARE(spokenName(board.lsWidget().at(0)), QString("Sender"));
        QCOMPARE(spokenName(board.lsWidget().at(1)), QString("Receiver"));
    }

    void tabsAndBoxesAreNamed()
    {
        TableWidgetEx table(nullptr, EditableTable, "Screen");
        table.addTable(true);
        table.addTable(false);
        QCOMPARE(buttonNames(&table),
                 (QStringList{"Add tab", "Close tab", "Close tab", "Scroll Left", "Scroll Right"}));

        NQTabBar bar;
        bar.addTab("one");
        bar.setTabsClosable(true);
        bar.addTab("two");
        QCOMPARE(buttonNames(&bar),
                 (QStringList{"Close tab", "Close tab", "Scroll Left", "Scroll Right"}));

        NewTableWidget rows;
        rows.setColumnCount(1);
        rows.setRowCount(2);
        rows.setAddCheckBoxVisible(true);
        QCOMPARE(buttonNames(&rows),
                 (QStringList{"", "Select all rows", "Select row", "Select row"}));
    }

    void namesOfTheHostStay()
    {
        for (const QString &warning : framewarnings::ofTitle())
            expectWarning(warning);
        WindowTitle title(QSize(400, 30));
        buttonNamed(&title, "Maximise")->setAccessibleName("Full size");
        title.setBtnMax(true);
        title.setBtnMax(false);
        QCOMPARE(buttonNames(&title), (QStringList{"Close", "Full size", "Minimise"}));

        DrawerItem item;
        buttonNamed(&item, "Expand")->setAccessibleName("Ports");
        buttonNamed(&item, "Settings")->setAccessibleName("Options");
        buttonNamed(&item, "Offline")->setAccessibleName("State");
        item.setWorkSpaceisShow(true);
        item.setBOnline(true);
        item.setBOnline(false);
        QCOMPARE(buttonNames(&item), (QStringList{"Options", "Ports", "Select all", "State"}));

        RowLineItem row;
        row.setLineItemType(1, PortItem);
        buttonNamed(&row, "Port 1")->setAccessibleName("Output");
        row.setLineItemType(2, PortItem);
        QVERIFY(buttonNamed(&row, "Output"));

        NewTableWidget table;
        table.setColumnCount(1);
        table.setAddCheckBoxVisible(true);
        buttonNamed(&table, "Select all rows")->setAccessibleName("All");
        table.resize(500, 300);
        QVERIFY(buttonNamed(&table, "All"));

        TableWidgetEx tabs(nullptr, EditableTable, "Screen");
        tabs.addTable(true);
        buttonNamed(&tabs, "Close tab")->setAccessibleName("Remove");
        tabs.addTable(false);
        QVERIFY(buttonNamed(&tabs, "Remove"));
        QVERIFY(buttonNamed(&tabs, "Close tab"));
    }

    void namesAreTranslatedByClass()
    {
        for (const QString &warning : framewarnings::ofTitle())
            expectWarning(warning);
        ContextTranslator translator;
        QVERIFY(QCoreApplication::installTranslator(&translator));
        WindowTitle title(QSize(400, 30));
        title.setBtnMax(true);
        DrawerItem item;
        item.setWorkSpaceisShow(true);
        ButtonGroupEx strip;
        RowLineItem row;
        row.setLineItemType(2, PortItem);
        row.setLineItemType(3, PortItem);
        CustomMessageBox box;
        QCoreApplication::removeTranslator(&translator);

        QCOMPARE(
            buttonNames(&title),
            (QStringList{"WindowTitle: Close", "WindowTitle: Minimise", "WindowTitle: Restore"}));
        QVERIFY(buttonNamed(&item, "DrawerItem: Collapse"));
        QVERIFY(buttonNamed(&strip, "ButtonGroupEx: Add row of cabinets"));
        QVERIFY(buttonNamed(&row, "RowLineItem: Port 3"));
        QVERIFY(buttonNamed(&row, "WidgetWithScrollEx: Scroll left"));
        QVERIFY(buttonNamed(&box, "CustomMessageBox: Close"));
        // What is shown is no matter of languages.
        QCOMPARE(shownTexts(&strip), (QStringList{"Frame", "Title"}));
        QCOMPARE(shownTexts(&box), (QStringList{"MyMessageBox", "Title"}));
    }

    void checkAllBoxTellsItsState()
    {
        DrawerItem item;
        item.setCheckAllVisible(true);
        QAccessibleInterface *box =
            QAccessible::queryAccessibleInterface(buttonNamed(&item, "Select all"));
        QCOMPARE(box->role(), QAccessible::CheckBox);
        item.setCheckAllStyle(AllChecked);
        QVERIFY(box->state().checked);
        item.setCheckAllStyle(NoneChecked);
        QVERIFY(!box->state().checked);
    }

    void widgetsShowNoTextsOfTheirOwn_data()
    {
        QTest::addColumn<int>("widget");
        QTest::addColumn<QStringList>("texts");
        const QMap<QByteArray, QStringList> texts = {
            {"SpinBoxEx", {"0"}},
            {"DoubleSpinBoxEx", {"0.00"}},
            // The forms' window titles, which no window of theirs shows, and the title that every
            // host replaces.
            {"WidgetWithScrollEx", {"Frame"}},
            {"RowLineItem", {"Frame"}},
            {"ButtonGroupEx", {"Frame", "Title"}},
            {"WidgetControllBoard", {"Frame", "Title"}},
            {"OfflinePortItemFrame", {"16", "Frame"}},
            {"OfflinePortItemContentFrame", {"Frame"}},
            {"CustomMessageBox", {"MyMessageBox", "Title"}},
            {"CustomWidget", {"unknow"}},
            {"TreeItem", {"64x32"}},
            {"ShapeWidget", {"Form"}},
            {"WidgetBoard", {"Form"}},
        };
        const QList<NewWidget> widgets = everyWidget();
        for (int i = 0; i < widgets.size(); ++i)
            QTest::newRow(widgets.at(i).name) << i << texts.value(widgets.at(i).name);
    }
    void widgetsShowNoTextsOfTheirOwn()
    {
        QFETCH(int, widget);
        QFETCH(QStringList, texts);
        const NewWidget made = everyWidget().at(widget);
        for (const QString &warning : made.warnings)
            expectWarning(warning);
        const std::unique_ptr<QWidget> root(made.make());
        QCOMPARE(shownTexts(root.get()), texts);
    }

    void tabKeyGoesThroughTheStrips()
    {
        WidgetWithScrollEx strip;
        strip.addWidget(wideContent());
        strip.setLeftButtonVisible(true);
        QVERIFY(showWithFocus(&strip, buttonNamed(&strip, "Scroll left")));
        QCOMPARE(tabStops(&strip), (QStringList{"Scroll left", "a", "b", "Scroll right"}));
        QCOMPARE(tabStops(&strip, Qt::Key_Backtab),
                 (QStringList{"Scroll left", "Scroll right", "b", "a"}));

        ButtonGroupEx group;
        group.resize(230, 70);
        group.addWidget(wideContent());
        QVERIFY(showWithFocus(&group, buttonNamed(&group, "Add cabinets")));
        QCOMPARE(tabStops(&group),
                 (QStringList{"Add cabinets", "Add row of cabinets", "a", "b", "Scroll right"}));
    }

    void tabKeyGoesThroughTheDrawer()
    {
        Drawer drawer;
        drawer.resize(320, 500);
        DrawerItem *item = drawerItem();
        item->setCheckAllVisible(true);
        drawer.addDrawerItem(item);
        auto *last = new DrawerItem;
        last->setBOnline(true);
        drawer.addDrawerItem(last);
        QVERIFY(showWithFocus(&drawer, buttonNamed(item, "Collapse")));
        QCOMPARE(
            tabStops(&drawer),
            (QStringList{"Collapse", "Select all", "Settings", "QScrollArea", "Port 1", "101x201",
                         "102x202", "103x203", "Scroll right", "Port 2", "Expand", "Settings"}));
    }

    void tabKeyGoesThroughTheMessageBox()
    {
        CustomMessageBox box;
        box.setBoxInformation("Title", "Text", QPixmap(), false, false, false, false, "Apply", "OK",
                              "Cancel");
        box.setCloseBtnIsVisible(true);
        QVERIFY(pointer::showAndWait(&box));
        QApplication::setActiveWindow(&box);
        QCOMPARE(tabStops(&box), (QStringList{"OK", "Apply", "Cancel", "Close"}));
    }

    void tabKeyGoesThroughTitlesAndTabs()
    {
        for (const QString &warning : framewarnings::ofTitle())
            expectWarning(warning);
        WindowTitle title(QSize(400, 30));
        QVERIFY(showWithFocus(&title, buttonNamed(&title, "Minimise")));
        QCOMPARE(tabStops(&title), (QStringList{"Minimise", "Maximise", "Close"}));

        ListWidgetTitle header("Devices");
        header.setIconVisible(true);
        QVERIFY(showWithFocus(&header, buttonNamed(&header, "Settings")));
        QCOMPARE(tabStops(&header), (QStringList{"Settings", "Refresh", "Fold"}));

        NQTabBar bar;
        bar.addTab("one");
        bar.addRightWidget(hostButton("right"));
        bar.addCenterWidget(hostButton("behind"));
        QPushButton *left = hostButton("left");
        bar.addLeftWidget(left);
        bar.addLeftWidget(hostButton("second"));
        QVERIFY(showWithFocus(&bar, left));
        QCOMPARE(tabStops(&bar), (QStringList{"left", "second", "TabBarRd", "behind", "right"}));
    }

    void tabKeyGoesThroughTables()
    {
        NewTableWidget table;
        table.setColumnCount(2);
        table.setRowCount(2);
        table.setAddCheckBoxVisible(true);
        QVERIFY(showWithFocus(&table, buttonNamed(&table, "Select all rows")));
        QCOMPARE(tabStops(&table), (QStringList{"Select all rows", "Select row", "Select row"}));
    }

    void decorationsTakeNoFocus()
    {
        DrawerItem item;
        QCOMPARE(buttonNamed(&item, "Offline")->focusPolicy(), Qt::NoFocus);
        ShapeWidget panel;
        QCOMPARE(buttonsOf(&panel).first()->focusPolicy(), Qt::NoFocus);
    }

    void numbersAreTheSameInEveryLanguage_data()
    {
        QTest::addColumn<QLocale>("locale");
        QTest::newRow("German") << QLocale(QLocale::German, QLocale::Germany);
        QTest::newRow("Arabic") << QLocale(QLocale::Arabic, QLocale::Egypt);
    }
    void numbersAreTheSameInEveryLanguage()
    {
        QFETCH(QLocale, locale);
        const DefaultLocale language(locale);
        SpinBoxEx box;
        box.setRange(0, 100000);
        box.setGroupSeparatorShown(true);
        box.setValue(12345);
        QCOMPARE(box.text(), QString("12345"));
        auto *edit = box.findChild<QLineEdit *>();
        edit->clear();
        QTest::keyClicks(edit, "90");
        QTest::keyClick(edit, Qt::Key_Return);
        QCOMPARE(box.value(), 90);
        QCOMPARE(edit->text(), QString("90"));
        // Neither the point of a German thousand nor Arabic digits are read as a number, so neither
        // is taken.
        edit->clear();
        QTest::keyClicks(edit, QString("1.2"));
        QCOMPARE(edit->text(), QString("12"));
        edit->clear();
        const QString arabicNine = QChar(0x0669);
        QKeyEvent arabic(QEvent::KeyPress, Qt::Key_9, Qt::NoModifier, arabicNine);
        QCoreApplication::sendEvent(edit, &arabic);
        QCOMPARE(edit->text(), QString());

        DoubleSpinBoxEx exact;
        exact.setRange(0, 100000);
        exact.setValue(1234.5);
        QCOMPARE(exact.text(), QString("1234.50"));

        TreeItem item("A", QSize(1500, 2000));
        QVERIFY(shownTexts(&item).contains("1500x2000"));
        RowLineItem row;
        row.setLineItemType(1000, PortItem);
        QVERIFY(shownTexts(&row).contains("1000"));
        QVERIFY(buttonNamed(&row, "Port 1000"));
    }
};

ORVANE_TEST_MAIN(TestAccessibility)
#include "tst_accessibility.moc"
