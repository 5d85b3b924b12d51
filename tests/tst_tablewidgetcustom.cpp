#include "support/pointer.h"
#include "support/sheetimages.h"
#include "support/testcase.h"
#include "support/windowmouse.h"

#include <tablewidgetcustom.h>

#include <limits>

namespace
{

const QString tableSheet =
    "QCheckBox::indicator:enabled:checked{"
    "image:url(:/Resource/Images/globalResource/tableWidget/check.png);}"
    "QCheckBox::indicator:enabled:unchecked{"
    "image:url(:/Resource/Images/globalResource/tableWidget/unchecked.png);}"
    "QCheckBox{margin-left:6px;width:16px;height:16px;background-color:transparent;}"
    "QTableWidget{background-color:rgb(56,56,56);border:1px solid rgb(56,56,56);"
    "color:rgb(210,210,210);font:9pt \"微软雅黑\" ;gridline-color:rgb(69,69,69);"
    "text-align:center;}"
    "QTableWidget:item:hover{background-color:rgb(128,128,128);}"
    "QTableWidget:item:selected{background-color:rgb(45,46,48);color:white;}"
    "QHeaderView::section{background-color:rgb(52,52,52);color:rgb(210,210,210);"
    "font:9pt \"微软雅黑\" ;border:1px solid #454545;}";

const QString verticalBarSheet =
    "QScrollBar:vertical{width:16px;background:#4f4f4f;padding-top:16px;padding-bottom:16px;"
    "border:none;}"
    "QScrollBar::handle:vertical{background:#383838;border-radius:5px;width:12px;margin-left:2;"
    "margin-right:2;min-height:20px;}"
    "QScrollBar::handle:vertical:hover{background:#1f1f1f;border-radius:5px;min-height:20px;}"
    "QScrollBar::add-line:vertical{height:16px;width:16px;subcontrol-position:bottom;}"
    "QScrollBar::add-page:vertical{background:#4f4f4f;}"
    "QScrollBar::sub-page:vertical{background:#4f4f4f;}"
    "QScrollBar::add-line:vertical:pressed{height:16px;width:16px;subcontrol-position:bottom;}"
    "QScrollBar::sub-line:vertical{height:16px;width:16px;subcontrol-position:top;}"
    "QScrollBar::sub-line:vertical:pressed{height:16px;width:16px;subcontrol-position:top;}";

const QString horizontalBarSheet =
    "QScrollBar:horizontal{height:16px;background:#4f4f4f;padding-left:16px;padding-right:16px;}"
    "QScrollBar::handle:horizontal{background:#383838;border-radius:5px; height:8px;margin-top:2;"
    "margin-bottom:2; min-width:20px;}"
    "QScrollBar::handle:horizontal:hover{background:#1f1f1f;border-radius:5px;min-height:20px;}"
    "QScrollBar::add-line:horizontal{width:16px;height:16px;subcontrol-position:right;}"
    "QScrollBar::add-page:horizontal{background:#4f4f4f;}"
    "QScrollBar::sub-page:horizontal{background:#4f4f4f;}"
    "QScrollBar::add-line:horizontal:pressed{width:16px;height:16px;subcontrol-position:right;}"
    "QScrollBar::sub-line:horizontal{width:16px;height:16px;subcontrol-position:left;}"
    "QScrollBar::sub-line:horizontal:pressed{width:16px;height:16px;subcontrol-position:left;}";

const QStringList headers = {"Sender", "Port", "Backup", "State"};

BackUpParam backup(const QString &name)
{
    BackUpParam record;
    record.firstText = name + "1";
    record.secondText = name + "2";
    record.thirdText = name + "3";
    record.fourthText = name + "4";
    record.flag = true;
    return record;
}

/// Records named a, b, c ...
QList<BackUpParam> records(int count, char first = 'a')
{
    QList<BackUpParam> list;
    for (int i = 0; i < count; ++i)
        list += backup(QChar::fromLatin1(char(first + i)));
    return list;
}

/// The texts of a row, "-" for a cell without an item.
QString rowText(const QTableWidget &table, int row)
{
    QStringList texts;
    for (int column = 0; column < table.columnCount(); ++column)
        texts += table.item(row, column) ? table.item(row, column)->text() : QString("-");
    return texts.join(' ');
}

QStringList rowTexts(const QTableWidget &table)
{
    QStringList texts;
    for (int row = 0; row < table.rowCount(); ++row)
        texts += rowText(table, row);
    return texts;
}

/// Keeps from a widget the events by which Qt shows and hides its tool tips.
class ToolTipEventEater : public QObject
{
public:
    bool eventFilter(QObject *, QEvent *event) override { return event->type() == QEvent::ToolTip; }
};

QPoint cellCentre(const QTableWidget &table, int row, int column)
{
    return table.visualRect(table.model()->index(row, column)).center();
}

} // namespace

class TestTableWidgetCustom : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void startsAsBuilt()
    {
        TableWidgetCustom table(records(3), headers, 3, 4);
        QVERIFY(TableWidgetCustom::staticMetaObject.superClass()
                == &QTableWidget::staticMetaObject);
        QCOMPARE(table.TableRowCount(), 3);
        QCOMPARE(table.TableColumnCount(), 4);
        QCOMPARE(table.TableHeaderList(), headers);
        QCOMPARE(table.rowCount(), 3);
        QCOMPARE(table.columnCount(), 4);
        for (int column = 0; column < 4; ++column)
            QCOMPARE(table.horizontalHeaderItem(column)->text(), headers.at(column));
        QVERIFY(table.verticalHeader()->isHidden());
        QCOMPARE(table.selectionMode(), QAbstractItemView::ExtendedSelection);
        QCOMPARE(table.selectionBehavior(), QAbstractItemView::SelectRows);
        QCOMPARE(table.focusPolicy(), Qt::NoFocus);
        QCOMPARE(table.frameShape(), QFrame::NoFrame);
        QHeaderView *header = table.horizontalHeader();
        QVERIFY(!header->highlightSections());
        QCOMPARE(header->focusPolicy(), Qt::NoFocus);
        for (int column = 0; column < 4; ++column)
            QCOMPARE(header->sectionResizeMode(column), QHeaderView::Stretch);
        QCOMPARE(header->minimumHeight(), 40);
        QVERIFY(!header->isEnabled());
        QVERIFY(table.testAttribute(Qt::WA_MouseTracking));
        QVERIFY(table.viewport()->hasMouseTracking());
        QCOMPARE(table.styleSheet(), tableSheet);
        QCOMPARE(table.verticalScrollBar()->styleSheet(), verticalBarSheet);
        QCOMPARE(table.horizontalScrollBar()->styleSheet(), horizontalBarSheet);
        QCOMPARE(rowTexts(table), (QStringList{"a1 a2 a3 a4", "b1 b2 b3 b4", "c1 c2 c3 c4"}));
    }

    void declaresOneSlot()
    {
        const QMetaObject &meta = TableWidgetCustom::staticMetaObject;
        QCOMPARE(meta.methodCount() - meta.methodOffset(), 1);
        const QMetaMethod method = meta.method(meta.methodOffset());
        QCOMPARE(method.methodSignature(), QByteArray("on_itemEntered(QTableWidgetItem*)"));
        QCOMPARE(method.methodType(), QMetaMethod::Slot);
        QCOMPARE(method.access(), QMetaMethod::Public);
        QCOMPARE(meta.propertyCount(), meta.propertyOffset());
    }

    void everyPictureOfTheSheetExists()
    {
        const QStringList paths = imagePaths(tableSheet);
        QCOMPARE(paths.size(), 2);
        for (const QString &path : paths)
            QVERIFY2(!QPixmap(path).isNull(), qPrintable(path));
    }

    void aRecordStartsEmpty()
    {
        const BackUpParam record;
        QVERIFY(record.firstText.isEmpty() && record.secondText.isEmpty()
                && record.thirdText.isEmpty() && record.fourthText.isEmpty());
        QVERIFY(!record.flag);
    }

    void columnsShareTheWidthAndRowsAreFortyHigh_data()
    {
        QTest::addColumn<int>("rows");
        QTest::addColumn<int>("columns");
        QTest::addColumn<int>("width");
        QTest::newRow("three rows, 400 wide") << 3 << 4 << 400;
        QTest::newRow("a width that does not divide") << 3 << 4 << 403;
        QTest::newRow("one column") << 2 << 1 << 300;
        QTest::newRow("seven columns") << 2 << 7 << 700;
        QTest::newRow("with a scroll bar") << 20 << 4 << 400;
    }

    void columnsShareTheWidthAndRowsAreFortyHigh()
    {
        QFETCH(int, rows);
        QFETCH(int, columns);
        QFETCH(int, width);
        TableWidgetCustom table(records(rows), headers, rows, columns);
        table.resize(width, 300);
        QVERIFY(pointer::showAndWait(&table));
        constexpr int border = 1;
        const auto check = [&] {
            const int bar =
                table.verticalScrollBar()->isVisible() ? table.verticalScrollBar()->width() : 0;
            QCOMPARE(bar > 0, rows > 10);
            // What the border and the scroll bar leave, to a pixel.
            const int room = table.width() - 2 * border - bar;
            for (int column = 0; column < columns; ++column) {
                QVERIFY(qAbs(table.columnWidth(column) - room / columns) <= 1);
                QCOMPARE(table.horizontalHeader()->sectionSize(column), table.columnWidth(column));
                if (bar == 0)
                    QVERIFY(qAbs(table.columnWidth(column) - table.width() / columns) <= 2);
            }
            QCOMPARE(table.horizontalHeader()->length(), room);
            QVERIFY(!table.horizontalScrollBar()->isVisible());
            for (int row = 0; row < rows; ++row)
                QCOMPARE(table.rowHeight(row), 40);
            QCOMPARE(table.horizontalHeader()->height(), 40);
        };
        check();
        table.resize(width * 2, 300);
        check();
        table.setRowHeight(0, 77);
        table.resize(width, 310);
        check();
    }

    void resizingSharesTheWidthWithoutTheStretch()
    {
        TableWidgetCustom table(records(2), headers, 2, 4);
        table.resize(400, 300);
        QVERIFY(pointer::showAndWait(&table));
        table.horizontalHeader()->setSectionResizeMode(QHeaderView::Interactive);
        table.resize(802, 300);
        for (int column = 0; column < 4; ++column) {
            QTRY_COMPARE(table.columnWidth(column), 200);
            QCOMPARE(table.horizontalHeader()->sectionSize(column), 200);
        }
        table.setTableColumnCount(8); // kept only
        table.resize(602, 300);
        for (int column = 0; column < 4; ++column)
            QTRY_COMPARE(table.columnWidth(column), 150);
    }

    void textsAreCentred()
    {
        TableWidgetCustom table(records(3), headers, 3, 4);
        for (int row = 0; row < 3; ++row) {
            for (int column = 0; column < 4; ++column)
                QCOMPARE(table.item(row, column)->textAlignment(), int(Qt::AlignCenter));
        }
        table.item(1, 1)->setTextAlignment(Qt::AlignLeft);
        table.item(2, 3)->setTextAlignment(Qt::AlignLeft);
        table.setTableRowCount(2);
        table.setTableContentCenter();
        QCOMPARE(table.item(1, 1)->textAlignment(), int(Qt::AlignCenter));
        QCOMPARE(table.item(2, 3)->textAlignment(), int(Qt::AlignLeft));
        table.setTableRowCount(3);
        table.setTableColumnCount(3);
        table.setTableContentCenter();
        QCOMPARE(table.item(2, 3)->textAlignment(), int(Qt::AlignLeft));
    }

    void updateUiReplacesTheTexts()
    {
        TableWidgetCustom table(records(3), headers, 3, 4);
        table.setRowHeight(1, 90);
        table.updateUi(records(3, 'x'));
        QCOMPARE(rowTexts(table), (QStringList{"x1 x2 x3 x4", "y1 y2 y3 y4", "z1 z2 z3 z4"}));
        QCOMPARE(table.item(2, 0)->textAlignment(), int(Qt::AlignCenter));
        QCOMPARE(table.rowHeight(1), 40);

        // The row count bounds what is seen.
        table.updateUi(records(5));
        QCOMPARE(table.rowCount(), 3);
        QCOMPARE(rowText(table, 2), QString("c1 c2 c3 c4"));
        table.setTableRowCount(2);
        QCOMPARE(table.TableRowCount(), 2);
        table.updateUi(records(3, 'x'));
        QCOMPARE(rowTexts(table), (QStringList{"x1 x2 x3 x4", "y1 y2 y3 y4", "c1 c2 c3 c4"}));
    }

    void rowsWithoutARecordStayAsTheyAre()
    {
        TableWidgetCustom table(records(1), headers, 3, 4);
        table.resize(400, 300);
        QCOMPARE(rowTexts(table), (QStringList{"a1 a2 a3 a4", "- - - -", "- - - -"}));
        QCOMPARE(table.rowHeight(2), 40);
        table.updateUi(records(3));
        table.updateUi(records(1, 'x'));
        QCOMPARE(rowTexts(table), (QStringList{"x1 x2 x3 x4", "b1 b2 b3 b4", "c1 c2 c3 c4"}));
        table.updateUi({});
        QCOMPARE(rowText(table, 0), QString("x1 x2 x3 x4"));
        QVERIFY(pointer::showAndWait(&table));
        table.resize(500, 300);
    }

    void countsBeyondTheTableAreSafe()
    {
        TableWidgetCustom table(records(2), headers, 2, 4);
        table.resize(400, 300);
        QVERIFY(pointer::showAndWait(&table));
        table.setTableRowCount(50);
        table.setTableColumnCount(50);
        QCOMPARE(table.TableRowCount(), 50);
        QCOMPARE(table.TableColumnCount(), 50);
        QCOMPARE(table.rowCount(), 2);
        QCOMPARE(table.columnCount(), 4);
        table.updateUi(records(20));
        table.setTableContentCenter();
        table.insertHotBackUpInfo(backup("x")); // above a last row that is not there
        table.resize(500, 300);
        QCOMPARE(rowTexts(table), (QStringList{"a1 a2 a3 a4", "b1 b2 b3 b4"}));
        table.setTableRowCount(-7);
        table.setTableColumnCount(-7);
        table.updateUi(records(2, 'x'));
        table.insertHotBackUpInfo(backup("x"));
        table.setTableContentCenter();
        table.resize(400, 300);
        QCOMPARE(rowTexts(table), (QStringList{"a1 a2 a3 a4", "b1 b2 b3 b4"}));
    }

    void countsBeyondTheTableCostNothing()
    {
        TableWidgetCustom table({}, {"one"}, 2, 1);
        table.setTableRowCount(std::numeric_limits<int>::max());
        table.setTableColumnCount(std::numeric_limits<int>::max());
        QElapsedTimer clock;
        clock.start();
        table.updateUi({});
        table.setTableContentCenter();
        // Cell by cell it would take hours.
        QVERIFY2(clock.elapsed() < 10000, qPrintable(QString::number(clock.elapsed())));
    }

    // The sanitizers tell of a row before the first number.
    void leastCountMakesNoRow()
    {
        TableWidgetCustom table({}, {"one"}, 2, 1);
        table.setTableRowCount(std::numeric_limits<int>::min());
        table.insertHotBackUpInfo(BackUpParam());
        QCOMPARE(table.rowCount(), 2);
    }

    void fewerOrMoreColumnsThanTexts_data()
    {
        QTest::addColumn<int>("columns");
        QTest::addColumn<QStringList>("texts");
        QTest::addColumn<QString>("inserted");
        QTest::newRow("one") << 1 << QStringList{"a1", "b1"} << "x1";
        QTest::newRow("two") << 2 << QStringList{"a1 a2", "b1 b2"} << "x1 x2";
        QTest::newRow("three") << 3 << QStringList{"a1 a2 a3", "b1 b2 b3"} << "x1 x2 x3";
        QTest::newRow("six") << 6 << QStringList{"a1 a2 a3 a4 - -", "b1 b2 b3 b4 - -"}
                             << "x1 x2 x3 x4 - -";
    }

    void fewerOrMoreColumnsThanTexts()
    {
        QFETCH(int, columns);
        QFETCH(QStringList, texts);
        QFETCH(QString, inserted);
        TableWidgetCustom table(records(2), headers, 2, columns);
        QCOMPARE(rowTexts(table), texts);
        table.updateUi(records(2));
        QCOMPARE(rowTexts(table), texts);
        table.insertHotBackUpInfo(backup("x"));
        QCOMPARE(rowTexts(table), (QStringList{texts.at(0), inserted, texts.at(1)}));
    }

    void emptyTablesAreSafe_data()
    {
        QTest::addColumn<int>("rows");
        QTest::addColumn<int>("columns");
        QTest::newRow("nothing") << 0 << 0;
        QTest::newRow("no rows") << 0 << 4;
        QTest::newRow("no columns") << 3 << 0;
        QTest::newRow("negative") << -1 << -1;
        QTest::newRow("negative rows") << -5 << 4;
        QTest::newRow("negative columns") << 3 << -5;
    }

    void emptyTablesAreSafe()
    {
        QFETCH(int, rows);
        QFETCH(int, columns);
        TableWidgetCustom table({}, {}, rows, columns);
        QCOMPARE(table.TableRowCount(), rows);
        QCOMPARE(table.TableColumnCount(), columns);
        QCOMPARE(table.rowCount(), qMax(0, rows));
        QCOMPARE(table.columnCount(), qMax(0, columns));
        // Only a table with columns gets its header set up.
        QCOMPARE(table.horizontalHeader()->isEnabled(), columns < 1);
        QCOMPARE(table.horizontalHeader()->minimumHeight() == 40, columns >= 1);
        table.resize(300, 200);
        QVERIFY(pointer::showAndWait(&table));
        table.resize(400, 200);
        table.updateUi(records(3));
        table.insertHotBackUpInfo(backup("x"));
        table.setTableContentCenter();
        table.setToolTipMsg("Tip");
        pointer::moveTo(table.viewport());
        windowmouse::click(table.viewport());
        QCOMPARE(table.rowCount(), rows > 0 ? rows + 1 : 0);
        QCOMPARE(table.styleSheet(), tableSheet);
    }

    void aRecordIsInsertedAboveTheLastRow()
    {
        TableWidgetCustom table(records(2), headers, 2, 4);
        table.resize(400, 300);
        QVERIFY(pointer::showAndWait(&table));
        table.insertHotBackUpInfo(backup("x"));
        QCOMPARE(rowTexts(table), (QStringList{"a1 a2 a3 a4", "x1 x2 x3 x4", "b1 b2 b3 b4"}));
        QCOMPARE(table.TableRowCount(), 2);
        for (int column = 0; column < 4; ++column)
            QCOMPARE(table.item(1, column)->textAlignment(), int(Qt::AlignCenter));
        for (int row = 0; row < 3; ++row)
            QCOMPARE(table.rowHeight(row), 40);

        // The count stays, so the next one comes above it.
        table.insertHotBackUpInfo(backup("y"));
        QCOMPARE(rowTexts(table),
                 (QStringList{"a1 a2 a3 a4", "y1 y2 y3 y4", "x1 x2 x3 x4", "b1 b2 b3 b4"}));
        table.setTableRowCount(4);
        table.insertHotBackUpInfo(backup("z"));
        QCOMPARE(rowText(table, 3), QString("z1 z2 z3 z4"));
        QCOMPARE(rowText(table, 4), QString("b1 b2 b3 b4"));
    }

    void insertedIntoOneRowARecordComesFirst()
    {
        TableWidgetCustom table(records(1), headers, 1, 4);
        table.insertHotBackUpInfo(backup("x"));
        QCOMPARE(rowTexts(table), (QStringList{"x1 x2 x3 x4", "a1 a2 a3 a4"}));
    }

    void aCountOneAboveTheRowsAppends()
    {
        TableWidgetCustom table(records(2), headers, 2, 4);
        table.setTableRowCount(3);
        table.insertHotBackUpInfo(backup("x"));
        QCOMPARE(rowTexts(table), (QStringList{"a1 a2 a3 a4", "b1 b2 b3 b4", "x1 x2 x3 x4"}));
        QCOMPARE(table.item(2, 3)->textAlignment(), int(Qt::AlignCenter));
        QCOMPARE(table.rowHeight(2), 40);
        table.setTableRowCount(5);
        table.insertHotBackUpInfo(backup("y"));
        QCOMPARE(table.rowCount(), 3);
    }

    void theHostsRecordsKeepTheirFlags()
    {
        QList<BackUpParam> mine = records(2);
        TableWidgetCustom table(mine, headers, 2, 4);
        table.updateUi(mine);
        table.insertHotBackUpInfo(mine.at(0));
        QVERIFY(mine.at(0).flag && mine.at(1).flag);
    }

    void headerTextsAreThoseOfConstruction()
    {
        TableWidgetCustom table(records(1), {"A", "B"}, 1, 4);
        QCOMPARE(table.horizontalHeaderItem(1)->text(), QString("B"));
        table.setTableHeaderList(headers);
        QCOMPARE(table.TableHeaderList(), headers);
        QCOMPARE(table.horizontalHeaderItem(0)->text(), QString("A"));
        TableWidgetCustom narrow(records(1), headers, 1, 2);
        QCOMPARE(narrow.columnCount(), 2);
        QCOMPARE(narrow.TableHeaderList(), headers);
    }

    void setSelectAllDoesNothing()
    {
        TableWidgetCustom table(records(3), headers, 3, 4);
        table.selectRow(1);
        table.setSelectAll(true);
        QCOMPARE(table.selectionModel()->selectedRows().size(), 1);
        table.setSelectAll(false);
        QCOMPARE(table.selectionModel()->selectedRows().size(), 1);
    }

    void colorsBecomeText()
    {
        TableWidgetCustom table({}, {}, 0, 0);
        QColor opaque(255, 0, 0);
        QColor translucent(255, 0, 0, 128);
        QColor invalid;
        QCOMPARE(table.formColorToString(opaque), QString("#ff0000"));
        QCOMPARE(table.formColorToString(translucent), QString("#80ff0000"));
        QCOMPARE(table.formColorToString(invalid), QString("#000000"));
    }

    void enteredCellsGetTheToolTip()
    {
        TableWidgetCustom table(records(3), headers, 3, 4);
        table.resize(400, 300);
        QVERIFY(pointer::showAndWait(&table));
        table.setToolTipMsg("Switch over");
        QCOMPARE(table.item(1, 2)->toolTip(), QString());
        pointer::moveTo(table.viewport(), cellCentre(table, 1, 2));
        QCOMPARE(table.item(1, 2)->toolTip(), QString("Switch over"));
        QCOMPARE(table.item(0, 0)->toolTip(), QString());
        pointer::moveTo(table.viewport(), cellCentre(table, 0, 0));
        QCOMPARE(table.item(0, 0)->toolTip(), QString("Switch over"));

        table.setToolTipMsg(QString());
        QCOMPARE(table.item(0, 0)->toolTip(), QString("Switch over"));
        pointer::moveTo(table.viewport(), cellCentre(table, 0, 1));
        pointer::moveTo(table.viewport(), cellCentre(table, 0, 0));
        QCOMPARE(table.item(0, 0)->toolTip(), QString());

        table.setToolTipMsg("Direct");
        table.on_itemEntered(table.item(2, 2));
        QCOMPARE(table.item(2, 2)->toolTip(), QString("Direct"));
        table.on_itemEntered(nullptr);
    }

    void aMoveHidesTheToolTip()
    {
        TableWidgetCustom table(records(3), headers, 3, 4);
        table.resize(400, 300);
        QVERIFY(pointer::showAndWait(&table));
        // Within a cell, where nothing is entered or left: Qt hides a tool tip on that by itself.
        const QPoint centre = cellCentre(table, 2, 2);
        pointer::moveTo(table.viewport(), centre);
        ToolTipEventEater eater;
        table.viewport()->installEventFilter(&eater);
        QToolTip::showText(table.mapToGlobal(QPoint(10, 10)), "Tip", &table);
        QTRY_VERIFY(QToolTip::isVisible());
        pointer::moveTo(table.viewport(), centre + QPoint(5, 3));
        QTRY_VERIFY(!QToolTip::isVisible());
    }

    void theFirstPressMakesTheTableTakeFocus()
    {
        QWidget window;
        window.resize(400, 350);
        auto *edit = new QLineEdit(&window);
        TableWidgetCustom table(records(3), headers, 3, 4, &window);
        table.setGeometry(0, 40, 400, 300);
        QVERIFY(pointer::showAndWait(&window));
        window.activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&window));
        edit->setFocus();
        QTRY_VERIFY(edit->hasFocus());
        windowmouse::press(table.viewport(), Qt::LeftButton, cellCentre(table, 1, 1));
        QCOMPARE(table.focusPolicy(), Qt::ClickFocus);
        windowmouse::release(table.viewport(), Qt::LeftButton, cellCentre(table, 1, 1));
        QVERIFY(edit->hasFocus());
        // The press is the table's own, too.
        QCOMPARE(table.selectionModel()->selectedRows().size(), 1);
        QCOMPARE(table.selectionModel()->selectedRows().first().row(), 1);
        windowmouse::click(table.viewport(), Qt::LeftButton, cellCentre(table, 0, 1));
        QTRY_VERIFY(table.hasFocus());
    }

    void rowsAreSelectedAsAWhole()
    {
        TableWidgetCustom table(records(3), headers, 3, 4);
        table.resize(400, 300);
        QVERIFY(pointer::showAndWait(&table));
        windowmouse::click(table.viewport(), Qt::LeftButton, cellCentre(table, 0, 2));
        QCOMPARE(table.selectedItems().size(), 4);
        QTest::mouseClick(table.windowHandle(), Qt::LeftButton, Qt::ControlModifier,
                          table.viewport()->mapTo(&table, cellCentre(table, 2, 0)));
        QCOMPARE(table.selectedItems().size(), 8);
    }

    void theDisabledHeaderSelectsNothing()
    {
        TableWidgetCustom table(records(3), headers, 3, 4);
        table.resize(400, 300);
        QVERIFY(pointer::showAndWait(&table));
        windowmouse::click(table.horizontalHeader()->viewport(), Qt::LeftButton, QPoint(50, 20));
        QVERIFY(table.selectedItems().isEmpty());
    }

    void theSheetIsSeen()
    {
        TableWidgetCustom table(records(3), headers, 3, 4);
        table.resize(400, 300);
        QVERIFY(pointer::showAndWait(&table));
        pointer::moveAway(&table);
        QCOMPARE(pointer::colorAt(&table, QPoint(200, 250)), QColor(56, 56, 56)); // below the rows
        QCOMPARE(pointer::colorAt(&table, QPoint(0, 150)), QColor(56, 56, 56)); // border
        QCOMPARE(pointer::colorAt(&table, QPoint(8, 10)), QColor(52, 52, 52)); // header
        const QPoint beside(6, 6); // in a cell, off its text
        const auto cellColor = [&](int row, int column) {
            const QPoint corner = table.visualRect(table.model()->index(row, column)).topLeft();
            return pointer::colorAt(&table, table.viewport()->mapTo(&table, corner + beside));
        };
        QCOMPARE(cellColor(0, 0), QColor(56, 56, 56));
        pointer::moveTo(table.viewport(), cellCentre(table, 1, 1));
        QCOMPARE(cellColor(1, 1), QColor(128, 128, 128)); // the hovered cell, not its row
        QCOMPARE(cellColor(1, 2), QColor(56, 56, 56));
        windowmouse::click(table.viewport(), Qt::LeftButton, cellCentre(table, 1, 1));
        QCOMPARE(cellColor(1, 2), QColor(45, 46, 48)); // the selected row
        const QRect cell = table.visualRect(table.model()->index(0, 0));
        QCOMPARE(pointer::colorAt(
                     &table, table.viewport()->mapTo(&table, cell.bottomRight()) + QPoint(1, -5)),
                 QColor(69, 69, 69)); // grid line
    }

    void manyRowsScroll()
    {
        TableWidgetCustom table(records(20), headers, 20, 4);
        table.resize(400, 240);
        QVERIFY(pointer::showAndWait(&table));
        QTRY_VERIFY(table.verticalScrollBar()->isVisible());
        QCOMPARE(table.verticalScrollBar()->width(), 16);
        pointer::turnWheel(table.viewport(), -1);
        QVERIFY(table.verticalScrollBar()->value() > 0);
        QVERIFY(!table.horizontalScrollBar()->isVisible());
    }

    void survivesItsDeletionInItsSignals_data()
    {
        QTest::addColumn<QString>("victim");
        for (const auto *victim : {"rows", "records", "item"})
            QTest::newRow(victim) << victim;
    }

    void survivesItsDeletionInItsSignals()
    {
        QFETCH(QString, victim);
        TableWidgetCustom table(records(3), headers, 3, 4);
        table.resize(400, 300);
        QVERIFY(pointer::showAndWait(&table));
        table.setToolTipMsg("Tip");
        int count = 0;
        // The tool tip that a cell gets is a change, in which hosts do what they like.
        connect(&table, &QTableWidget::itemChanged, this, [&](QTableWidgetItem *item) {
            if (count++ > 0)
                return;
            if (victim == "rows")
                table.setRowCount(0);
            else if (victim == "records")
                table.updateUi(records(3, 'x'));
            else
                delete item;
        });
        pointer::moveTo(table.viewport(), cellCentre(table, 1, 1));
        QVERIFY(count > 0);
        if (victim == "rows")
            QCOMPARE(table.rowCount(), 0);
        else if (victim == "records")
            QCOMPARE(rowText(table, 1), QString("y1 y2 y3 y4"));
        else
            QCOMPARE(rowText(table, 1), QString("b1 - b3 b4"));
        table.resize(420, 300);
        table.updateUi(records(3));
    }

    void survivesChangesWhileItIsFilled_data()
    {
        QTest::addColumn<QString>("change");
        for (const auto *change : {"no records", "no rows", "fewer columns"})
            QTest::newRow(change) << change;
    }

    void survivesChangesWhileItIsFilled()
    {
        QFETCH(QString, change);
        TableWidgetCustom table(records(3), headers, 3, 4);
        int count = 0;
        connect(&table, &QTableWidget::cellChanged, this, [&] {
            if (count++ > 0)
                return;
            if (change == "no records")
                table.updateUi({});
            else if (change == "no rows")
                table.setRowCount(0);
            else
                table.setColumnCount(2);
        });
        table.updateUi(records(3, 'x'));
        QVERIFY(count > 0);
        if (change == "no records")
            QCOMPARE(rowTexts(table), (QStringList{"x1 x2 x3 x4", "b1 b2 b3 b4", "c1 c2 c3 c4"}));
        else if (change == "no rows")
            QCOMPARE(table.rowCount(), 0);
        else
            QCOMPARE(rowTexts(table), (QStringList{"x1 x2", "y1 y2", "z1 z2"}));
    }

    void canBeDeletedWhenACellIsEntered()
    {
        QWidget window;
        window.resize(400, 300);
        QPointer<TableWidgetCustom> table =
            new TableWidgetCustom(records(3), headers, 3, 4, &window);
        table->resize(400, 300);
        table->setToolTipMsg("Tip");
        QVERIFY(pointer::showAndWait(&window));
        // Qt itself goes on using a table after its signals, so hosts delete it a moment later.
        connect(table, &QTableWidget::itemEntered, table, &QObject::deleteLater);
        pointer::moveTo(table->viewport(), cellCentre(*table, 1, 1));
        QTRY_VERIFY(table.isNull());
    }

    void goesWithItsParent()
    {
        auto *window = new QWidget;
        const QPointer<TableWidgetCustom> table =
            new TableWidgetCustom(records(3), headers, 3, 4, window);
        QCOMPARE(table->parentWidget(), window);
        delete window;
        QVERIFY(table.isNull());
        auto *alone = new TableWidgetCustom(records(3), headers, 3, 4);
        QCOMPARE(alone->parentWidget(), nullptr);
        delete alone;
    }
};

ORVANE_TEST_MAIN(TestTableWidgetCustom)
#include "tst_tablewidgetcustom.moc"
