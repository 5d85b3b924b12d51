#include "support/pointer.h"
#include "support/righttoleft.h"
#include "support/sheetimages.h"
#include "support/testcase.h"
#include "support/windowmouse.h"

#include <tablewidgetex.h>

#include <limits>

namespace
{

/// What a sheet's values read as, by default the defaults.
struct Values {
    QString workspace = "#454545";
    QString font = "#d2d2d2";
    QString pressedFont = "#d2d2d2";
    QString normal = "#343434";
    QString hover = "#505050";
    QString selected = "#454545";
    QString width = "100";
    QString height = "30";
    QString left = "0";
    QString top = "0";
};

/// The sheet, written out by hand, with the values in angle brackets.
QString sheetWith(const Values &v)
{
    QString sheet = "QTabWidget::pane{border:none;background-color:<WORKSPACE>;}"
                    "QTabWidget::tab-bar{left:0px;}"
                    "QTabBar::tab{background-color:<NORMAL>;color:<FONT>;font: SimSun Arial;"
                    "width:<WIDTH>px;height:<HEIGHT>px;margin-left: <LEFT>;margin-top: <TOP>;;"
                    "border-right:1px solid rgb(69,69,69);}"
                    "QTabBar::tab:hover{background-color:<HOVER>;color:<FONT>;}"
                    "QTabBar::tab:selected{background-color:<SELECTED>;color:<PRESSED>;}"
                    "QTabBar::tab:!enabled{width:0px; height:0px;}"
                    "QTabBar::close-button {image: url(:/Resource/Images/globalResource/tabwidget/"
                    "tab_closed_normal.png);} "
                    "QTabBar::close-button:hover {image: url(:/Resource/Images/globalResource/"
                    "tabwidget/tab_closed_hover.png);}"
                    "QTabBar::close-button:pressed {image: url(:/Resource/Images/globalResource/"
                    "tabwidget/tab_closed_pressed.png);}"
                    "QTabBar QToolButton{border:none;}"
                    "QTabBar QToolButton::right-arrow {background-color: rgba(0,0,0,1);"
                    "border-image: url(:/Resource/Images/globalResource/tabwidget/"
                    "tab_right_normal.png);}"
                    "QTabBar QToolButton::left-arrow {background-color: rgba(0,0,0,1);"
                    "border-image: url(:/Resource/Images/globalResource/tabwidget/"
                    "tab_left_normal.png);}"
                    "QTabBar::tear{background:transparent;}";
    const QList<QPair<QString, QString>> values = {
        {"WORKSPACE", v.workspace}, {"FONT", v.font},
        {"PRESSED", v.pressedFont}, {"NORMAL", v.normal},
        {"HOVER", v.hover},         {"SELECTED", v.selected},
        {"WIDTH", v.width},         {"HEIGHT", v.height},
        {"LEFT", v.left},           {"TOP", v.top}};
    for (const auto &value : values)
        sheet.replace("<" + value.first + ">", value.second);
    return sheet;
}

const QString addButtonSheet = "QToolButton{border-image: "
                               "url(:/Resource/Images/globalResource/tabwidget/add_normal.png);}"
                               "QToolButton:hover{border-image: "
                               "url(:/Resource/Images/globalResource/tabwidget/add_hover.png);}"
                               "QToolButton:pressed{border-image: "
                               "url(:/Resource/Images/globalResource/tabwidget/add_pressed.png);}";

const QString verticalBarSheet =
    "QScrollBar:vertical{width:12px;background:#454545;padding-top:12px;padding-bottom:12px;"
    "border:none;}"
    "QScrollBar::handle:vertical{background:#383838;border-radius:3px;width:6px;margin-left:2;"
    "margin-right:2;min-height:20px;}"
    "QScrollBar::handle:vertical:hover{background:#1f1f1f;border-radius:3px;min-height:20px;}"
    "QScrollBar::add-line:vertical{height:16px;width:16px;"
    "border-image:url(:/Resource/Images/globalResource/scrollbar/down_normal.png);"
    "subcontrol-position:bottom;}"
    "QScrollBar::add-page:vertical{background:#454545;}"
    "QScrollBar::sub-page:vertical{background:#454545;}"
    "QScrollBar::add-line:vertical:pressed{height:16px;width:16px;"
    "border-image:url(:/Resource/Images/globalResource/scrollbar/down_pressed.png);"
    "subcontrol-position:bottom;}"
    "QScrollBar::sub-line:vertical{height:16px;width:16px;"
    "border-image:url(:/Resource/Images/globalResource/scrollbar/up_normal.png);"
    "subcontrol-position:top;}"
    "QScrollBar::sub-line:vertical:pressed{height:16px;width:16px;"
    "border-image:url(:/Resource/Images/globalResource/scrollbar/up_pressed.png);"
    "subcontrol-position:top;}";

const QString horizontalBarSheet =
    "QScrollBar:horizontal{height:12px;background:#454545;padding-left:12px;padding-right:12px;}"
    "QScrollBar::handle:horizontal{background:#383838;border-radius:3px; height:6px;margin-top:2;"
    "margin-bottom:2; min-width:20px;}"
    "QScrollBar::handle:horizontal:hover{background:#1f1f1f;border-radius:3px;min-height:20px;}"
    "QScrollBar::add-line:horizontal{width:16px;height:16px;"
    "border-image:url(:/Resource/Images/globalResource/scrollbar/right_normal.png);"
    "subcontrol-position:right;}"
    "QScrollBar::add-page:horizontal{background:#454545;}"
    "QScrollBar::sub-page:horizontal{background:#454545;}"
    "QScrollBar::add-line:horizontal:pressed{width:16px;height:16px;"
    "border-image:url(:/Resource/Images/globalResource/scrollbar/right_pressed.png);"
    "subcontrol-position:right;}"
    "QScrollBar::sub-line:horizontal{width:16px;height:16px;"
    "border-image:url(:/Resource/Images/globalResource/scrollbar/left_normal.png);"
    "subcontrol-position:left;}"
    "QScrollBar::sub-line:horizontal:pressed{width:16px;height:16px;"
    "border-image:url(:/Resource/Images/globalResource/scrollbar/left_pressed.png);"
    "subcontrol-position:left;}";

using ColorGetter = QColor (TableWidgetEx::*)() const;
using ColorSetter = void (TableWidgetEx::*)(const QColor &);
using NumberGetter = int (TableWidgetEx::*)() const;
using NumberSetter = void (TableWidgetEx::*)(int);

struct ColorProperty {
    const char *name;
    ColorGetter get;
    ColorSetter set;
    QColor defaultColor;
    QString Values::*inSheet; ///< Null for a colour that is in no rule.
};

const ColorProperty colorProperties[] = {
    {"tabWorkSpaceColor", &TableWidgetEx::tabWorkSpaceColor, &TableWidgetEx::setTabWorkSpaceColor,
     QColor(69, 69, 69), &Values::workspace},
    {"fontColor", &TableWidgetEx::fontColor, &TableWidgetEx::setFontColor, QColor(210, 210, 210),
     &Values::font},
    {"fontHoverColor", &TableWidgetEx::fontHoverColor, &TableWidgetEx::setFontHoverColor,
     QColor(210, 210, 210), nullptr},
    {"fontPressedColor", &TableWidgetEx::fontPressedColor, &TableWidgetEx::setFontPressedColor,
     QColor(210, 210, 210), &Values::pressedFont},
    {"tabNomalColor", &TableWidgetEx::tabNomalColor, &TableWidgetEx::setTabNomalColor,
     QColor(52, 52, 52), &Values::normal},
    {"tabHoverColor", &TableWidgetEx::tabHoverColor, &TableWidgetEx::setTabHoverColor,
     QColor(80, 80, 80), &Values::hover},
    {"tabSelectedColor", &TableWidgetEx::tabSelectedColor, &TableWidgetEx::setTabSelectedColor,
     QColor(69, 69, 69), &Values::selected},
};

struct NumberProperty {
    const char *name;
    NumberGetter get;
    NumberSetter set;
    int defaultValue;
    QString Values::*inSheet;
};

const NumberProperty numberProperties[] = {
    {"tabPanelWidth", &TableWidgetEx::tabPanelWidth, &TableWidgetEx::setTabPanelWidth, 100,
     &Values::width},
    {"tabPanelHeight", &TableWidgetEx::tabPanelHeight, &TableWidgetEx::setTabPanelHeight, 30,
     &Values::height},
    {"leftMargin", &TableWidgetEx::leftMargin, &TableWidgetEx::setLeftMargin, 0, &Values::left},
    {"topMargin", &TableWidgetEx::topMargin, &TableWidgetEx::setTopMargin, 0, &Values::top},
};

QToolButton *addButton(const TableWidgetEx &tabs)
{
    return qobject_cast<QToolButton *>(tabs.cornerWidget(Qt::TopRightCorner));
}

/// The close button that Qt puts on a tab, on whichever side the style has it.
QWidget *closeButton(const TableWidgetEx &tabs, int index)
{
    QWidget *button = tabs.tabBar()->tabButton(index, QTabBar::RightSide);
    return button ? button : tabs.tabBar()->tabButton(index, QTabBar::LeftSide);
}

QStringList tabTexts(const TableWidgetEx &tabs)
{
    QStringList texts;
    for (int i = 0; i < tabs.count(); ++i)
        texts += tabs.tabText(i);
    return texts;
}

/// The scroll area that a wrapped page lies in.
QScrollArea *scrollAreaOf(QWidget *page)
{
    return qobject_cast<QScrollArea *>(page->parentWidget()->parentWidget());
}

} // namespace

class TestTableWidgetEx : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void startsWithDefaults()
    {
        TableWidgetEx tabs(nullptr, PlainTable, "Table");
        QCOMPARE(tabs.count(), 0);
        QCOMPARE(tabs.index(), 0);
        QCOMPARE(tabs.titleText(), QString("Table"));
        for (const ColorProperty &property : colorProperties)
            QCOMPARE((tabs.*property.get)(), property.defaultColor);
        for (const NumberProperty &property : numberProperties)
            QCOMPARE((tabs.*property.get)(), property.defaultValue);
        QVERIFY(!tabs.bMovedCornerButton());
        QVERIFY(!tabs.bNeedScrollBar());
        QCOMPARE(tabs.mainLayout(), nullptr);
        QCOMPARE(tabs.elideMode(), Qt::ElideRight);
        QCOMPARE(tabs.styleSheet(), sheetWith(Values()));
        QVERIFY(TableWidgetEx::staticMetaObject.superClass() == &QTabWidget::staticMetaObject);
    }

    void onlyTheSecondKindIsEditable_data()
    {
        QTest::addColumn<int>("type");
        QTest::addColumn<bool>("isEditable");
        QTest::newRow("plain") << int(PlainTable) << false;
        QTest::newRow("editable") << int(EditableTable) << true;
        QTest::newRow("2") << 2 << false;
        QTest::newRow("-1") << -1 << false;
        QTest::newRow("257") << 257 << false;
    }

    void onlyTheSecondKindIsEditable()
    {
        QFETCH(int, type);
        QFETCH(bool, isEditable);
        QCOMPARE(int(EditableTable), 1);
        TableWidgetEx tabs(nullptr, static_cast<TableWidgetType>(type), "T");
        QCOMPARE(tabs.tabsClosable(), isEditable);
        QCOMPARE(addButton(tabs) != nullptr, isEditable);
        QCOMPARE(tabs.elideMode(), Qt::ElideRight);

        TableWidgetEx other(nullptr, PlainTable, "T");
        other.initCornerWidget(static_cast<TableWidgetType>(type));
        QCOMPARE(other.tabsClosable(), isEditable);
        QCOMPARE(addButton(other) != nullptr, isEditable);
    }

    void theEditableKindHasAnAddButton()
    {
        TableWidgetEx tabs(nullptr, EditableTable, "T");
        tabs.setUsesScrollButtons(false);
        tabs.setIsLoadCornerWidget(true);
        QVERIFY(tabs.usesScrollButtons());
        QToolButton *button = addButton(tabs);
        QVERIFY(button);
        QCOMPARE(button->parentWidget(), &tabs);
        QCOMPARE(button->minimumSize(), QSize(20, 20));
        QCOMPARE(button->maximumSize(), QSize(20, 20));
        QCOMPARE(button->styleSheet(), addButtonSheet);
        tabs.resize(400, 200);
        tabs.addTable(true);
        QVERIFY(pointer::showAndWait(&tabs));
        QVERIFY(button->isVisible());
        // Qt lays it out a pixel further to the right than it could.
        QVERIFY(qAbs(button->geometry().right() - tabs.rect().right()) <= 1);
    }

    void declaresSignalsAndSlotsInOrder()
    {
        const QMetaObject &meta = TableWidgetEx::staticMetaObject;
        QStringList methods;
        for (int i = meta.methodOffset(); i < meta.methodCount(); ++i) {
            const QMetaMethod method = meta.method(i);
            methods += QString::fromLatin1(method.methodSignature());
            QCOMPARE(method.access(),
                     method.name() == "on_rangeChanged" ? QMetaMethod::Private
                                                        : QMetaMethod::Public);
        }
        QCOMPARE(methods,
                 (QStringList{"notifyAddTable(int)", "signals_removeTable(int)", "on_addTable()",
                              "on_removeTable(int)", "on_rangeChanged(int,int)"}));
        QCOMPARE(meta.propertyCount(), meta.propertyOffset());
    }

    void colorsAreStoredAndInTheSheet_data()
    {
        QTest::addColumn<int>("row");
        QTest::addColumn<QColor>("color");
        QTest::addColumn<QString>("text");
        int row = 0;
        for (const ColorProperty &property : colorProperties) {
            QTest::addRow("%s opaque", property.name) << row << QColor(1, 171, 205) << "#01abcd";
            QTest::addRow("%s translucent", property.name)
                << row << QColor(255, 0, 0, 128) << "#80ff0000";
            QTest::addRow("%s invalid", property.name) << row << QColor() << "#000000";
            ++row;
        }
    }

    void colorsAreStoredAndInTheSheet()
    {
        QFETCH(int, row);
        QFETCH(QColor, color);
        QFETCH(QString, text);
        const ColorProperty &property = colorProperties[row];
        TableWidgetEx tabs(nullptr, PlainTable, "T");
        (tabs.*property.set)(color);
        QCOMPARE((tabs.*property.get)(), color);
        for (const ColorProperty &other : colorProperties) {
            if (other.get != property.get)
                QCOMPARE((tabs.*other.get)(), other.defaultColor);
        }
        Values values;
        if (property.inSheet)
            values.*property.inSheet = text;
        QCOMPARE(tabs.styleSheet(), sheetWith(values));

        tabs.initStyle();
        QCOMPARE((tabs.*property.get)(), property.defaultColor);
        QCOMPARE(tabs.styleSheet(), sheetWith(Values()));
    }

    void numbersAreStoredAndInTheSheet_data()
    {
        QTest::addColumn<int>("row");
        QTest::addColumn<int>("value");
        QTest::addColumn<QString>("text");
        int row = 0;
        for (const NumberProperty &property : numberProperties) {
            QTest::addRow("%s 57", property.name) << row << 57 << "57";
            QTest::addRow("%s 0", property.name) << row << 0 << "0";
            QTest::addRow("%s -3", property.name) << row << -3 << "-3";
            ++row;
        }
    }

    void numbersAreStoredAndInTheSheet()
    {
        QFETCH(int, row);
        QFETCH(int, value);
        QFETCH(QString, text);
        const NumberProperty &property = numberProperties[row];
        TableWidgetEx tabs(nullptr, EditableTable, "T");
        (tabs.*property.set)(value);
        QCOMPARE((tabs.*property.get)(), value);
        for (const NumberProperty &other : numberProperties) {
            if (other.get != property.get)
                QCOMPARE((tabs.*other.get)(), other.defaultValue);
        }
        Values values;
        values.*property.inSheet = text;
        QCOMPARE(tabs.styleSheet(), sheetWith(values));

        tabs.initStyle();
        QCOMPARE((tabs.*property.get)(), property.defaultValue);
        QCOMPARE(tabs.styleSheet(), sheetWith(Values()));
    }

    void settersRestoreASheetThatAHostReplaced()
    {
        TableWidgetEx tabs(nullptr, PlainTable, "T");
        tabs.setStyleSheet("QTabBar{}");
        tabs.setFontHoverColor(Qt::red); // in no rule, but composes as the others do
        QCOMPARE(tabs.styleSheet(), sheetWith(Values()));
        tabs.setStyleSheet("QTabBar{}");
        tabs.setTitleText("U");
        tabs.setIndex(3);
        tabs.setBNeedScrollBar(true);
        tabs.setBMovedCornerButton(true);
        QCOMPARE(tabs.styleSheet(), QString("QTabBar{}"));
        tabs.setTableWidgetStyle();
        QCOMPARE(tabs.styleSheet(), sheetWith(Values()));
    }

    void colorsBecomeText()
    {
        TableWidgetEx tabs(nullptr, PlainTable, "T");
        QCOMPARE(tabs.fromColorToStr(QColor(255, 0, 0)), QString("#ff0000"));
        QCOMPARE(tabs.fromColorToStr(QColor(255, 0, 0, 128)), QString("#80ff0000"));
        QCOMPARE(tabs.fromColorToStr(QColor()), QString("#000000"));
    }

    void everyPictureOfTheSheetsExists()
    {
        const QStringList paths = imagePaths(sheetWith(Values())) + imagePaths(addButtonSheet)
            + imagePaths(verticalBarSheet) + imagePaths(horizontalBarSheet);
        QCOMPARE(paths.size(), 5 + 3 + 4 + 4);
        for (const QString &path : paths)
            QVERIFY2(!QPixmap(path).isNull(), qPrintable(path));
    }

    void addTableNumbersItsPages()
    {
        TableWidgetEx tabs(nullptr, PlainTable, "T");
        tabs.addTable(true);
        QCOMPARE(tabTexts(tabs), QStringList{"T 1"});
        QCOMPARE(tabs.index(), 1);
        tabs.addTable(false);
        QCOMPARE(tabTexts(tabs), (QStringList{"T 1", "T 2"}));
        QCOMPARE(tabs.index(), 2);
        QCOMPARE(tabs.currentIndex(), 1);
        tabs.setCurrentIndex(0);
        tabs.addTable(true);
        QCOMPARE(tabTexts(tabs), (QStringList{"T 1", "T 2", "T 1"}));
        QCOMPARE(tabs.index(), 3);
        QCOMPARE(tabs.currentIndex(), 2);

        tabs.setTitleText(QString());
        QCOMPARE(tabs.titleText(), QString());
        tabs.setIndex(-5);
        QCOMPARE(tabs.index(), -5);
        tabs.addTable(false);
        QCOMPARE(tabTexts(tabs).last(), QString(" -4"));
        QCOMPARE(tabs.index(), -4);

        // Taken tabs are still counted.
        tabs.setIndex(4);
        tabs.removeTab(0);
        QCOMPARE(tabs.index(), 4);
        tabs.setTitleText("U");
        tabs.addTable(false);
        QCOMPARE(tabTexts(tabs), (QStringList{"T 2", "T 1", " -4", "U 5"}));
        QVERIFY(tabs.widget(3)->metaObject() == &QWidget::staticMetaObject);
        QCOMPARE(tabs.tabToolTip(3), QString());
    }

    void addedTablesAreWrappedIfWanted()
    {
        TableWidgetEx tabs(nullptr, EditableTable, "T");
        tabs.setBNeedScrollBar(true);
        tabs.addTable(true);
        QVERIFY(tabs.mainLayout());
        QCOMPARE(scrollAreaOf(tabs.mainLayout()->parentWidget())->parentWidget(), tabs.widget(0));
        QCOMPARE(tabs.tabText(0), QString("T 1"));
    }

    void theAddButtonAsksOnlyWhileThereIsATab()
    {
        TableWidgetEx tabs(nullptr, EditableTable, "T");
        tabs.resize(400, 200);
        QVERIFY(pointer::showAndWait(&tabs));
        QSignalSpy spy(&tabs, &TableWidgetEx::notifyAddTable);
        addButton(tabs)->click();
        tabs.on_addTable();
        QCOMPARE(spy.count(), 0);

        tabs.addTable(true);
        QTRY_VERIFY(addButton(tabs)->isVisible());
        windowmouse::click(addButton(tabs));
        QCOMPARE(spy.count(), 1);
        QCOMPARE(spy.at(0).at(0).toInt(), 1);
        QCOMPARE(tabs.count(), 1); // the host's answer is what adds a page
        QCOMPARE(tabs.index(), 1);

        tabs.setIndex(17);
        tabs.on_addTable();
        QCOMPARE(spy.last().at(0).toInt(), 17);
    }

    void hostsAnswerTheAddButton()
    {
        TableWidgetEx tabs(nullptr, EditableTable, "T");
        tabs.resize(600, 200);
        connect(&tabs, &TableWidgetEx::notifyAddTable, &tabs, [&] { tabs.addTable(false); });
        tabs.addTable(true);
        QVERIFY(pointer::showAndWait(&tabs));
        for (int i = 0; i < 3; ++i)
            windowmouse::click(addButton(tabs));
        QCOMPARE(tabTexts(tabs), (QStringList{"T 1", "T 2", "T 3", "T 4"}));
        QCOMPARE(tabs.currentIndex(), 3);
    }

    void aClickOnACloseButtonAsksAndLeavesTheTab()
    {
        TableWidgetEx tabs(nullptr, EditableTable, "T");
        tabs.resize(600, 200);
        for (int i = 0; i < 3; ++i)
            tabs.addTable(i == 0);
        QVERIFY(pointer::showAndWait(&tabs));
        QSignalSpy spy(&tabs, &TableWidgetEx::signals_removeTable);
        QVERIFY(closeButton(tabs, 1));
        windowmouse::click(closeButton(tabs, 1));
        QCOMPARE(spy.count(), 1);
        QCOMPARE(spy.at(0).at(0).toInt(), 1);
        QCOMPARE(tabTexts(tabs), (QStringList{"T 1", "T 2", "T 3"}));

        tabs.on_removeTable(99);
        QCOMPARE(spy.last().at(0).toInt(), 99);
    }

    void hostsAnswerTheCloseButtons()
    {
        TableWidgetEx tabs(nullptr, EditableTable, "T");
        tabs.resize(600, 200);
        tabs.setBNeedScrollBar(true);
        connect(&tabs, &TableWidgetEx::signals_removeTable, &tabs, [&](int index) {
            QWidget *page = tabs.widget(index);
            tabs.removeTab(index);
            delete page;
        });
        for (int i = 0; i < 3; ++i)
            tabs.addTable(i == 0);
        QVERIFY(pointer::showAndWait(&tabs));
        windowmouse::click(closeButton(tabs, 1));
        QCOMPARE(tabTexts(tabs), (QStringList{"T 1", "T 3"}));
        QVERIFY(tabs.mainLayout()); // the newest page is still there
        windowmouse::click(closeButton(tabs, 1));
        QCOMPARE(tabTexts(tabs), (QStringList{"T 1"}));
        QCOMPARE(tabs.mainLayout(), nullptr);
        tabs.setScrollStyle();
        windowmouse::click(closeButton(tabs, 0));
        QCOMPARE(tabs.count(), 0);
    }

    void addTabAddsThePageItself()
    {
        TableWidgetEx tabs(nullptr, PlainTable, "T");
        auto *page = new QLabel("Page");
        QCOMPARE(tabs.addTab(page, "First"), 0);
        QCOMPARE(tabs.addTab(new QWidget, "Second"), 1);
        QCOMPARE(tabs.widget(0), page);
        QCOMPARE(tabs.indexOf(page), 0);
        QCOMPARE(tabTexts(tabs), (QStringList{"First", "Second"}));
        QCOMPARE(tabs.currentIndex(), 0);
        QCOMPARE(tabs.index(), 0);
        QCOMPARE(page->layout(), nullptr);
        QCOMPARE(tabs.mainLayout(), nullptr);
    }

    void noPageIsNoTab()
    {
        TableWidgetEx tabs(nullptr, PlainTable, "T");
        QCOMPARE(tabs.addTab(nullptr, "None"), -1);
        tabs.setBNeedScrollBar(true);
        QCOMPARE(tabs.addTab(nullptr, "None"), -1);
        QCOMPARE(tabs.count(), 0);
        QCOMPARE(tabs.mainLayout(), nullptr);
        tabs.removeTab(0);
        tabs.removeTab(-1);
    }

    void customAddTabMakesAPage()
    {
        TableWidgetEx tabs(nullptr, PlainTable, "T");
        QCOMPARE(tabs.customAddTab("A"), 0);
        QCOMPARE(tabs.customAddTab("B"), 1);
        QVERIFY(tabs.widget(1)->metaObject() == &QWidget::staticMetaObject);
        QCOMPARE(tabTexts(tabs), (QStringList{"A", "B"}));
        QCOMPARE(tabs.index(), 0);
        tabs.setBNeedScrollBar(true);
        QVERIFY(tabs.bNeedScrollBar());
        QCOMPARE(tabs.customAddTab("C"), 2);
        QVERIFY(tabs.mainLayout());
        QVERIFY(tabs.widget(2)->isAncestorOf(tabs.mainLayout()->parentWidget()));
    }

    void wrappedPagesLieInAScrollAreaOfTheirOwn()
    {
        TableWidgetEx tabs(nullptr, PlainTable, "T");
        tabs.setBNeedScrollBar(true);
        auto *page = new QWidget;
        QCOMPARE(tabs.addTab(page, "First"), 0);
        QWidget *holder = tabs.widget(0);
        QVERIFY(holder != page);
        QCOMPARE(holder->styleSheet(), QString("background:transparent;border:0;"));
        QVERIFY(qobject_cast<QVBoxLayout *>(holder->layout()));
        QCOMPARE(holder->layout()->count(), 1);
        QCOMPARE(holder->layout()->spacing(), 0);
        QCOMPARE(holder->layout()->contentsMargins(), QMargins());
        auto *area = qobject_cast<QScrollArea *>(holder->layout()->itemAt(0)->widget());
        QVERIFY(area);
        QCOMPARE(area->widget(), page);
        QCOMPARE(area->frameShape(), QFrame::NoFrame);
        QCOMPARE(area->backgroundRole(), QPalette::Base);
        QVERIFY(area->widgetResizable());
        QCOMPARE(area->verticalScrollBar()->styleSheet(), verticalBarSheet);
        QCOMPARE(area->horizontalScrollBar()->styleSheet(), horizontalBarSheet);
        QVBoxLayout *layout = tabs.mainLayout();
        QVERIFY(layout);
        QCOMPARE(page->layout(), layout);
        QCOMPARE(layout->spacing(), 0);
        QCOMPARE(layout->contentsMargins(), QMargins());

        // The members belong to the newest page.
        auto *second = new QWidget;
        QCOMPARE(tabs.addTab(second, "Second"), 1);
        QCOMPARE(tabs.mainLayout(), second->layout());
        QVERIFY(tabs.mainLayout() != layout);
        QCOMPARE(page->layout(), layout);
        QVERIFY(scrollAreaOf(second) && scrollAreaOf(second) != area);
        area->verticalScrollBar()->setStyleSheet(QString());
        scrollAreaOf(second)->verticalScrollBar()->setStyleSheet(QString());
        scrollAreaOf(second)->horizontalScrollBar()->setStyleSheet("QScrollBar{}");
        tabs.setScrollStyle();
        QCOMPARE(area->verticalScrollBar()->styleSheet(), QString());
        QCOMPARE(scrollAreaOf(second)->verticalScrollBar()->styleSheet(), verticalBarSheet);
        QCOMPARE(scrollAreaOf(second)->horizontalScrollBar()->styleSheet(), horizontalBarSheet);
        QCOMPARE(scrollAreaOf(second)->verticalScrollBar()->contextMenuPolicy(), Qt::NoContextMenu);

        // A page that is not wrapped leaves them as they are.
        tabs.setBNeedScrollBar(false);
        tabs.customAddTab("Third");
        QCOMPARE(tabs.mainLayout(), second->layout());
    }

    void aPageKeepsTheLayoutThatItHas()
    {
        TableWidgetEx tabs(nullptr, PlainTable, "T");
        tabs.setBNeedScrollBar(true);
        auto *vertical = new QWidget;
        auto *verticalLayout = new QVBoxLayout(vertical);
        verticalLayout->addWidget(new QLabel("Label"));
        tabs.addTab(vertical, "Vertical");
        QCOMPARE(tabs.mainLayout(), verticalLayout);
        QCOMPARE(vertical->layout(), verticalLayout);
        auto *grid = new QWidget;
        auto *gridLayout = new QGridLayout(grid);
        tabs.addTab(grid, "Grid");
        QCOMPARE(tabs.mainLayout(), nullptr);
        QCOMPARE(grid->layout(), gridLayout);
    }

    void theMainLayoutIsWhatAHostMakesIt()
    {
        TableWidgetEx tabs(nullptr, PlainTable, "T");
        QWidget other;
        auto *layout = new QVBoxLayout(&other);
        tabs.setMainLayout(layout);
        QCOMPARE(tabs.mainLayout(), layout);
        QCOMPARE(other.layout(), layout);
        delete layout;
        QCOMPARE(tabs.mainLayout(), nullptr);
        tabs.setMainLayout(nullptr);
        QCOMPARE(tabs.mainLayout(), nullptr);
    }

    void scrollStyleNeedsAScrollArea()
    {
        TableWidgetEx tabs(nullptr, PlainTable, "T");
        tabs.setScrollStyle();
        tabs.setBNeedScrollBar(true);
        tabs.customAddTab("A");
        delete tabs.widget(0);
        QCOMPARE(tabs.count(), 0);
        tabs.setScrollStyle();
        QVERIFY(QMetaObject::invokeMethod(&tabs, "on_rangeChanged", Q_ARG(int, 0), Q_ARG(int, 9)));
        QCOMPARE(tabs.mainLayout(), nullptr);
    }

    void theNewestPageCanBeKeptAtItsEnd()
    {
        TableWidgetEx tabs(nullptr, PlainTable, "T");
        tabs.resize(300, 200);
        tabs.setBNeedScrollBar(true);
        auto *page = new QWidget;
        tabs.addTab(page, "A");
        QVERIFY(pointer::showAndWait(&tabs));
        QScrollBar *bar = scrollAreaOf(page)->verticalScrollBar();
        page->setMinimumHeight(1000);
        QTRY_VERIFY(bar->maximum() > 700);
        QCOMPARE(bar->value(), 0); // not by itself

        QVERIFY(
            connect(bar, SIGNAL(rangeChanged(int, int)), &tabs, SLOT(on_rangeChanged(int, int))));
        page->setMinimumHeight(2000);
        QTRY_VERIFY(bar->maximum() > 1700);
        QCOMPARE(bar->value(), bar->maximum());
    }

    void aTallPageScrollsByTheWheel()
    {
        TableWidgetEx tabs(nullptr, PlainTable, "T");
        tabs.resize(300, 200);
        tabs.setBNeedScrollBar(true);
        auto *page = new QWidget;
        page->setMinimumHeight(1000);
        tabs.addTab(page, "A");
        QVERIFY(pointer::showAndWait(&tabs));
        QScrollBar *bar = scrollAreaOf(page)->verticalScrollBar();
        QTRY_VERIFY(bar->isVisible());
        QCOMPARE(bar->width(), 12);
        pointer::turnWheel(scrollAreaOf(page)->viewport(), -1);
        QVERIFY(bar->value() > 0);
    }

    void longTabTextsGetToolTips_data()
    {
        QTest::addColumn<int>("type");
        QTest::addColumn<int>("position");
        QTest::addColumn<int>("width"); // of the panel, beyond the text's
        QTest::addColumn<int>("height");
        QTest::addColumn<bool>("hasToolTip");
        const int plain = PlainTable;
        const int editable = EditableTable;
        QTest::newRow("fits exactly") << plain << int(QTabWidget::North) << 0 << -20 << false;
        QTest::newRow("a pixel short") << plain << int(QTabWidget::North) << -1 << 20 << true;
        QTest::newRow("editable fits exactly")
            << editable << int(QTabWidget::North) << 20 << -20 << false;
        QTest::newRow("editable a pixel short")
            << editable << int(QTabWidget::North) << 19 << 20 << true;
        QTest::newRow("below the pages") << editable << int(QTabWidget::South) << 19 << 20 << true;
        QTest::newRow("at the right") << editable << int(QTabWidget::East) << 20 << -20 << false;
        QTest::newRow("at the left fits exactly")
            << plain << int(QTabWidget::West) << -20 << 0 << false;
        QTest::newRow("at the left a pixel short")
            << plain << int(QTabWidget::West) << 20 << -1 << true;
        QTest::newRow("editable at the left fits exactly")
            << editable << int(QTabWidget::West) << -20 << 0 << false;
        QTest::newRow("editable at the left a pixel short")
            << editable << int(QTabWidget::West) << 40 << -1 << true;
    }

    void longTabTextsGetToolTips()
    {
        QFETCH(int, type);
        QFETCH(int, position);
        QFETCH(int, width);
        QFETCH(int, height);
        QFETCH(bool, hasToolTip);
        TableWidgetEx tabs(nullptr, static_cast<TableWidgetType>(type), "T");
        QFont font = tabs.font();
        font.setPixelSize(19); // so that it differs from the tab bar's own
        tabs.setFont(font);
        tabs.setTabPosition(static_cast<QTabWidget::TabPosition>(position));
        tabs.customAddTab("A");
        tabs.customAddTab("B");
        tabs.setTabToolTip(0, "other");
        tabs.setTabToolTip(1, "other");
        const QString text = "A table with a long name";
        const int textWidth = QFontMetrics(tabs.font()).horizontalAdvance(text);
        tabs.setTabPanelWidth(textWidth + width);
        tabs.setTabPanelHeight(textWidth + height);
        tabs.setTabText(1, text);
        QCOMPARE(tabs.tabText(1), text);
        QCOMPARE(tabs.tabToolTip(1), hasToolTip ? text : QString());
        QCOMPARE(tabs.tabToolTip(0), QString("other"));
        QCOMPARE(tabs.tabText(0), QString("A"));

        tabs.setTabText(1, QString());
        QCOMPARE(tabs.tabText(1), QString());
        QCOMPARE(tabs.tabToolTip(1), QString());
    }

    void aClosableTabHasRoomForEightyPixels()
    {
        TableWidgetEx tabs(nullptr, EditableTable, "T");
        tabs.addTable(true);
        const QFontMetrics metrics(tabs.font());
        QString text = "i";
        while (metrics.horizontalAdvance(text + "i") <= 80)
            text += "i";
        tabs.setTabText(0, text);
        QCOMPARE(tabs.tabToolTip(0), QString());
        text += "i";
        tabs.setTabText(0, text);
        QCOMPARE(tabs.tabToolTip(0), text);
        // The close buttons take their room away even where the host has taken them off.
        tabs.setTabsClosable(false);
        tabs.setTabText(0, text);
        QCOMPARE(tabs.tabToolTip(0), text);
    }

    void theLeastPanelWidthIsTooShort()
    {
        TableWidgetEx tabs(nullptr, EditableTable, "T");
        tabs.addTable(true);
        tabs.setTabPanelWidth(std::numeric_limits<int>::min());
        tabs.setTabText(0, "A");
        QCOMPARE(tabs.tabToolTip(0), QString("A"));
    }

    void aTabTextWithoutATabIsIgnored()
    {
        TableWidgetEx tabs(nullptr, PlainTable, "T");
        tabs.setTabText(0, "A");
        tabs.setTabText(-1, "A");
        tabs.addTable(true);
        tabs.setTabText(1, "A");
        QCOMPARE(tabTexts(tabs), QStringList{"T 1"});
    }

    void baseFunctionsAreForwarded()
    {
        TableWidgetEx tabs(nullptr, PlainTable, "T");
        tabs.setTabsClosable(true);
        QVERIFY(tabs.tabsClosable());
        QCOMPARE(addButton(tabs), nullptr);
        tabs.setTabsClosable(false);
        QVERIFY(!tabs.tabsClosable());
        auto *left = new QLabel("Left");
        tabs.setCornerWidget(left, Qt::TopLeftCorner);
        QCOMPARE(tabs.cornerWidget(Qt::TopLeftCorner), left);
        auto *right = new QLabel("Right");
        tabs.setCornerWidget(right);
        QCOMPARE(tabs.cornerWidget(Qt::TopRightCorner), right);
        tabs.addTable(true);
        tabs.addTable(false);
        QWidget *page = tabs.widget(0);
        tabs.removeTab(0);
        QCOMPARE(tabTexts(tabs), QStringList{"T 2"});
        QVERIFY(!page->isVisible());
        delete page;
    }

    void closeButtonsOfAPlainWidgetReportNothing()
    {
        TableWidgetEx tabs(nullptr, PlainTable, "T");
        tabs.resize(400, 200);
        tabs.setTabsClosable(true);
        tabs.addTable(true);
        QVERIFY(pointer::showAndWait(&tabs));
        QSignalSpy removals(&tabs, &TableWidgetEx::signals_removeTable);
        QSignalSpy requests(&tabs, &QTabWidget::tabCloseRequested);
        windowmouse::click(closeButton(tabs, 0));
        QCOMPARE(requests.count(), 1);
        QCOMPARE(removals.count(), 0);
    }

    void theAddButtonCanBeHidden()
    {
        TableWidgetEx plain(nullptr, PlainTable, "T");
        plain.setIsShowAddButton(true); // has none
        QCOMPARE(addButton(plain), nullptr);

        TableWidgetEx tabs(nullptr, EditableTable, "T");
        tabs.resize(400, 200);
        tabs.addTable(true);
        tabs.setIsShowAddButton(false);
        QVERIFY(pointer::showAndWait(&tabs));
        QVERIFY(!addButton(tabs)->isVisible());
        tabs.setIsShowAddButton(true);
        QVERIFY(addButton(tabs)->isVisible());
        tabs.setIsShowAddButton(false);
        QVERIFY(!addButton(tabs)->isVisible());
    }

    void aShownWidgetBecomesEditable()
    {
        TableWidgetEx tabs(nullptr, PlainTable, "T");
        tabs.resize(400, 200);
        tabs.addTable(true);
        QVERIFY(pointer::showAndWait(&tabs));
        tabs.setIsLoadCornerWidget(false);
        QVERIFY(!tabs.tabsClosable());
        tabs.setIsLoadCornerWidget(true);
        QVERIFY(tabs.tabsClosable());
        QVERIFY(addButton(tabs)->isVisible());
        QSignalSpy additions(&tabs, &TableWidgetEx::notifyAddTable);
        QSignalSpy removals(&tabs, &TableWidgetEx::signals_removeTable);
        windowmouse::click(addButton(tabs));
        QCOMPARE(additions.count(), 1);
        windowmouse::click(closeButton(tabs, 0));
        QCOMPARE(removals.count(), 1);

        // Once more makes no second button and reports nothing twice.
        QToolButton *button = addButton(tabs);
        tabs.setIsLoadCornerWidget(true);
        tabs.initCornerWidget(EditableTable);
        QCOMPARE(addButton(tabs), button);
        QVERIFY(button->isVisible());
        windowmouse::click(button);
        QCOMPARE(additions.count(), 2);
        windowmouse::click(closeButton(tabs, 0));
        QCOMPARE(removals.count(), 2);
        tabs.setIsLoadCornerWidget(false);
        QVERIFY(tabs.tabsClosable());
    }

    void theAddButtonMovesBehindTheLastTab()
    {
        TableWidgetEx tabs(nullptr, EditableTable, "T");
        tabs.resize(500, 200);
        tabs.addTable(true);
        tabs.setBMovedCornerButton(true);
        QVERIFY(tabs.bMovedCornerButton());
        QVERIFY(pointer::showAndWait(&tabs));
        QToolButton *button = addButton(tabs);
        const auto tabsEnd = [&] {
            const QRect tab = tabs.tabBar()->tabRect(tabs.count() - 1);
            return tabs.tabBar()->mapTo(&tabs, tab.topRight()).x() + 1;
        };
        QTRY_COMPARE(button->x(), tabsEnd());
        const QRect bar = tabs.tabBar()->geometry();
        QVERIFY(qAbs((button->y() + button->height() / 2) - bar.center().y()) <= 1);

        // It goes with the last tab, and can be clicked there.
        const int first = button->x();
        connect(&tabs, &TableWidgetEx::notifyAddTable, &tabs, [&] { tabs.addTable(false); });
        windowmouse::click(button);
        QCOMPARE(tabs.count(), 2);
        QTRY_COMPARE(button->x(), tabsEnd());
        QVERIFY(button->x() > first + 90);
        tabs.removeTab(1);
        QTRY_COMPARE(button->x(), first);
        tabs.resize(450, 200);
        QTRY_COMPARE(button->x(), first);

        // With tabs up to the edge it stays in the corner, fully seen.
        for (int i = 0; i < 5; ++i)
            tabs.addTable(false);
        QTRY_VERIFY(button->x() > first + 200);
        QTRY_VERIFY(qAbs(button->geometry().right() - tabs.rect().right()) <= 1);

        while (tabs.count() > 1)
            tabs.removeTab(1);
        QTRY_COMPARE(button->x(), first);
        tabs.setBMovedCornerButton(false);
        QVERIFY(!tabs.bMovedCornerButton());
        QTRY_VERIFY(qAbs(button->geometry().right() - tabs.rect().right()) <= 1);
    }

    void theMovedAddButtonStaysInItsCornerWithoutRoom()
    {
        TableWidgetEx tabs(nullptr, EditableTable, "T");
        tabs.resize(15, 200);
        tabs.addTable(true);
        QVERIFY(pointer::showAndWait(&tabs));
        const QToolButton *button = addButton(tabs);
        const int corner = button->x();
        const int tabsEnd = tabs.tabBar()->geometry().right() + 1;
        QVERIFY(corner != tabsEnd);
        // Behind the tabs it would reach beyond the edge.
        QVERIFY(tabsEnd + button->width() > tabs.width());
        tabs.setBMovedCornerButton(true);
        tabs.grab();
        QCOMPARE(button->x(), corner);
    }

    void movingWithoutAnAddButtonPaintsAsUsual()
    {
        TableWidgetEx tabs(nullptr, PlainTable, "T");
        tabs.setBMovedCornerButton(true);
        tabs.resize(300, 200);
        tabs.setTabWorkSpaceColor(QColor(10, 20, 30));
        tabs.addTable(true);
        QVERIFY(pointer::showAndWait(&tabs));
        QCOMPARE(pointer::colorAt(&tabs, QPoint(150, 120)), QColor(10, 20, 30));
    }

    void tabsHaveThePanelSize()
    {
        TableWidgetEx tabs(nullptr, EditableTable, "T");
        tabs.resize(500, 200);
        tabs.addTable(true);
        tabs.addTable(false);
        QVERIFY(pointer::showAndWait(&tabs));
        constexpr int border = 1; // at the right
        QCOMPARE(tabs.tabBar()->tabRect(0).size(), QSize(100 + border, 30));
        tabs.setTabPanelWidth(140);
        tabs.setTabPanelHeight(44);
        QTRY_COMPARE(tabs.tabBar()->tabRect(1).size(), QSize(140 + border, 44));
        tabs.setLeftMargin(6);
        tabs.setTopMargin(4);
        QTRY_COMPARE(tabs.tabBar()->tabRect(1).size(), QSize(146 + border, 48));
    }

    void colorsAreSeenWhetherSetBeforeOrAfterTheFirstShow()
    {
        TableWidgetEx tabs(nullptr, EditableTable, "T");
        tabs.resize(500, 200);
        tabs.addTable(true);
        tabs.addTable(false);
        tabs.addTable(false);
        tabs.setTabWorkSpaceColor(QColor(10, 20, 30));
        tabs.setTabNomalColor(QColor(40, 50, 60));
        tabs.setTabHoverColor(QColor(70, 80, 90));
        tabs.setTabSelectedColor(QColor(100, 110, 120));
        QVERIFY(pointer::showAndWait(&tabs));
        pointer::moveAway(&tabs);
        // Near the left edge of a tab, above its text.
        const auto onTab = [&](int index) {
            return tabs.tabBar()->mapTo(&tabs, tabs.tabBar()->tabRect(index).topLeft())
                + QPoint(4, 4);
        };
        const QPoint onPage(250, 120);
        QCOMPARE(pointer::colorAt(&tabs, onPage), QColor(10, 20, 30));
        QCOMPARE(pointer::colorAt(&tabs, onTab(0)), QColor(40, 50, 60));
        QCOMPARE(pointer::colorAt(&tabs, onTab(2)), QColor(100, 110, 120));
        pointer::moveTo(tabs.tabBar(), tabs.tabBar()->tabRect(1).center());
        QCOMPARE(pointer::colorAt(&tabs, onTab(1)), QColor(70, 80, 90));
        QCOMPARE(pointer::colorAt(&tabs, onTab(0)), QColor(40, 50, 60));

        tabs.setTabWorkSpaceColor(QColor(11, 21, 31));
        tabs.setTabNomalColor(QColor(41, 51, 61));
        tabs.setTabHoverColor(QColor(71, 81, 91));
        tabs.setTabSelectedColor(QColor(101, 111, 121));
        QCOMPARE(pointer::colorAt(&tabs, onPage), QColor(11, 21, 31));
        QCOMPARE(pointer::colorAt(&tabs, onTab(0)), QColor(41, 51, 61));
        QCOMPARE(pointer::colorAt(&tabs, onTab(1)), QColor(71, 81, 91));
        QCOMPARE(pointer::colorAt(&tabs, onTab(2)), QColor(101, 111, 121));
    }

    void wrappedPagesShowTheWorkspaceColor()
    {
        TableWidgetEx tabs(nullptr, PlainTable, "T");
        tabs.resize(300, 200);
        tabs.setBNeedScrollBar(true);
        tabs.addTable(true);
        tabs.setTabWorkSpaceColor(QColor(10, 20, 30));
        QVERIFY(pointer::showAndWait(&tabs));
        QCOMPARE(pointer::colorAt(&tabs, QPoint(150, 120)), QColor(10, 20, 30));
    }

    void manyTabsAreReachedByArrows()
    {
        TableWidgetEx tabs(nullptr, EditableTable, "T");
        tabs.resize(300, 200);
        for (int i = 0; i < 8; ++i)
            tabs.addTable(i == 0);
        tabs.setCurrentIndex(0);
        QVERIFY(pointer::showAndWait(&tabs));
        const QList<QToolButton *> arrows =
            tabs.tabBar()->findChildren<QToolButton *>(QString(), Qt::FindDirectChildrenOnly);
        QCOMPARE(arrows.size(), 2);
        QToolButton *right = arrows.at(0)->x() > arrows.at(1)->x() ? arrows.at(0) : arrows.at(1);
        QTRY_VERIFY(right->isVisible() && right->isEnabled());
        QVERIFY(!tabs.tabBar()->geometry().intersects(addButton(tabs)->geometry()));
        const int before = tabs.tabBar()->tabRect(0).x();
        windowmouse::click(right);
        QVERIFY(tabs.tabBar()->tabRect(0).x() < before);
    }

    void survivesItsDeletionInItsSignals_data()
    {
        QTest::addColumn<QString>("button");
        QTest::addColumn<QString>("victim");
        for (const auto *button : {"add", "close", "space key"}) {
            for (const auto *victim : {"widget", "page", "all tabs"})
                QTest::addRow("%s in a press of %s", victim, button) << button << victim;
        }
    }

    void survivesItsDeletionInItsSignals()
    {
        QFETCH(QString, button);
        QFETCH(QString, victim);
        QWidget window;
        window.resize(500, 300);
        QPointer<TableWidgetEx> tabs = new TableWidgetEx(&window, EditableTable, "T");
        tabs->resize(500, 300);
        tabs->setBNeedScrollBar(true);
        for (int i = 0; i < 3; ++i)
            tabs->addTable(i == 0);
        int count = 0;
        const auto answer = [&] {
            ++count;
            if (victim == "widget") {
                delete tabs;
            } else if (victim == "page") {
                delete tabs->widget(1);
            } else {
                while (tabs->count() > 0)
                    tabs->removeTab(0);
            }
        };
        connect(tabs, &TableWidgetEx::notifyAddTable, this, answer);
        connect(tabs, &TableWidgetEx::signals_removeTable, this, answer);
        QVERIFY(pointer::showAndWait(&window));
        if (button == "add")
            windowmouse::click(addButton(*tabs));
        else if (button == "close")
            windowmouse::click(closeButton(*tabs, 1));
        else
            QTest::keyClick(addButton(*tabs), Qt::Key_Space);
        QCOMPARE(count, 1);
        QCOMPARE(tabs.isNull(), victim == "widget");
        if (victim == "page")
            QCOMPARE(tabTexts(*tabs), (QStringList{"T 1", "T 3"}));
        if (victim == "all tabs")
            QCOMPARE(tabs->count(), 0);
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }

    void anAddButtonThatAHostReplacedMayGo()
    {
        TableWidgetEx tabs(nullptr, EditableTable, "T");
        tabs.resize(400, 200);
        tabs.addTable(true);
        QVERIFY(pointer::showAndWait(&tabs));
        QPointer<QToolButton> button = addButton(tabs);
        auto *label = new QLabel("Host's");
        tabs.setCornerWidget(label);
        QVERIFY(!button->isVisible());
        delete button;
        tabs.setIsShowAddButton(true);
        tabs.setBMovedCornerButton(true);
        tabs.grab();
        QCOMPARE(tabs.cornerWidget(Qt::TopRightCorner), label);
        tabs.setIsLoadCornerWidget(true);
        QVERIFY(addButton(tabs) && addButton(tabs)->isVisible());
        QSignalSpy spy(&tabs, &TableWidgetEx::notifyAddTable);
        addButton(tabs)->click();
        QCOMPARE(spy.count(), 1);
    }

    void goesWithItsParent()
    {
        auto *window = new QWidget;
        QPointer<TableWidgetEx> tabs = new TableWidgetEx(window, EditableTable, "T");
        tabs->setBNeedScrollBar(true);
        tabs->addTable(true);
        const QPointer<QToolButton> button = addButton(*tabs);
        const QPointer<QWidget> holder = tabs->widget(0);
        delete window;
        QVERIFY(tabs.isNull());
        QVERIFY(button.isNull());
        QVERIFY(holder.isNull());
    }

    void pagesOutliveTheirTabs()
    {
        auto *tabs = new TableWidgetEx(nullptr, EditableTable, "T");
        tabs->setBNeedScrollBar(true);
        auto *page = new QWidget;
        tabs->addTab(page, "A");
        QVBoxLayout *layout = tabs->mainLayout();
        QPointer<QWidget> guarded = page;
        page->setParent(nullptr); // the host takes it back out of its scroll area
        delete tabs;
        QVERIFY(guarded);
        QCOMPARE(page->layout(), layout);
        delete page;
    }

    void addButtonFollowsTheTabsFromRightToLeft()
    {
        const MirroredApplication application;
        TableWidgetEx table(nullptr, EditableTable, "Screen");
        table.resize(500, 200);
        table.addTable(true);
        table.addTable(false);
        table.setBMovedCornerButton(true);
        QVERIFY(pointer::showAndWait(&table));
        table.grab();
        const QAbstractButton *add = buttonNamed(&table, "Add tab");
        const QTabBar *bar = table.findChild<QTabBar *>();
        QCOMPARE(bar->geometry().right(), 499);
        QCOMPARE(add->geometry().right(), bar->geometry().left() - 1);
        // The first tab, and the close button on it, are at the right.
        QVERIFY(bar->tabRect(0).left() > bar->tabRect(1).left());
    }
};

ORVANE_TEST_MAIN(TestTableWidgetEx)
#include "tst_tablewidgetex.moc"
