#include "support/pointer.h"
#include "support/righttoleft.h"
#include "support/sheetimages.h"
#include "support/testcase.h"
#include "support/windowmouse.h"

#include <newtablewidget.h>

namespace
{

const QString tableSheet =
    "QCheckBox::indicator:enabled:checked{"
    "image:url(:/Resource/Images/globalResource/tableWidget/check.png);}"
    "QCheckBox::indicator:enabled:unchecked{"
    "image:url(:/Resource/Images/globalResource/tableWidget/unchecked.png);}"
    "QCheckBox{margin-left:6px;width:16px;height:16px;background-color:transparent;}"
    "QTableWidget{background-color:rgb(56,56,56);color:rgb(210,210,210);font: SimSun Arial;"
    "gridline-color:rgb(69,69,69);text-align:center;}"
    "QTableWidget:item:hover{background-color:rgb(128,128,128);}"
    "QTableWidget:item:selected{background-color:rgb(45,46,48);color:white;}"
    "QHeaderView::section{background-color:rgb(52,52,52);color:rgb(210,210,210);"
    "font: SimSun Arial;border:1px solid #454545;}";

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
    "QScrollBar:horizontal{height:12px;background:#4f4f4f;padding-left:12px;padding-right:12px;}"
    "QScrollBar::handle:horizontal{background:#383838;border-radius:5px; height:8px;margin-top:2;"
    "margin-bottom:2; min-width:20px;}"
    "QScrollBar::handle:horizontal:hover{background:#1f1f1f;border-radius:5px;min-height:20px;}"
    "QScrollBar::add-line:horizontal{width:16px;height:16px;subcontrol-position:right;}"
    "QScrollBar::add-page:horizontal{background:#4f4f4f;}"
    "QScrollBar::sub-page:horizontal{background:#4f4f4f;}"
    "QScrollBar::add-line:horizontal:pressed{width:16px;height:16px;subcontrol-position:right;}"
    "QScrollBar::sub-line:horizontal{width:16px;height:16px;subcontrol-position:left;}"
    "QScrollBar::sub-line:horizontal:pressed{width:16px;height:16px;subcontrol-position:left;}";

/// The header box: a child of the table itself, where the rows' boxes are the viewport's.
QCheckBox *headerBox(const QTableWidget &table)
{
    const auto boxes = table.findChildren<QCheckBox *>(QString(), Qt::FindDirectChildrenOnly);
    return boxes.size() == 1 ? boxes.first() : nullptr;
}

QCheckBox *rowBox(const QTableWidget &table, int row, int column = 0)
{
    return qobject_cast<QCheckBox *>(table.cellWidget(row, column));
}

/// The rows' boxes as text: "x" checked, "." not, "-" none.
QString checks(const QTableWidget &table)
{
    QString text;
    for (int row = 0; row < table.rowCount(); ++row)
        text += !rowBox(table, row) ? '-' : rowBox(table, row)->isChecked() ? 'x' : '.';
    return text;
}

/// A click on the picture of a box, which is the part of it that people aim at.
void clickBox(QCheckBox *box)
{
    windowmouse::click(box, Qt::LeftButton, QPoint(14, box->height() / 2));
}

void fill(QTableWidget &table, int rows, int columns)
{
    table.setColumnCount(columns);
    table.setRowCount(rows);
    for (int row = 0; row < rows; ++row) {
        for (int column = 0; column < columns; ++column)
            table.setItem(row, column, new QTableWidgetItem(QString("%1.%2").arg(row).arg(column)));
    }
}

void sendDeferredDeletes()
{
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

} // namespace

Q_DECLARE_METATYPE(Qt::FocusPolicy)

class TestNewTableWidget : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void startsAsBuilt()
    {
        NewTableWidget table;
        QVERIFY(NewTableWidget::staticMetaObject.superClass() == &QTableWidget::staticMetaObject);
        QCOMPARE(table.rowCount(), 0);
        QCOMPARE(table.columnCount(), 0);
        QVERIFY(table.verticalHeader()->isHidden());
        QCOMPARE(table.selectionMode(), QAbstractItemView::ExtendedSelection);
        QCOMPARE(table.selectionBehavior(), QAbstractItemView::SelectRows);
        QCOMPARE(table.focusPolicy(), Qt::NoFocus);
        QCOMPARE(table.editTriggers(), QAbstractItemView::NoEditTriggers);
        QCOMPARE(table.frameShape(), QFrame::NoFrame);
        QVERIFY(!table.horizontalHeader()->highlightSections());
        QVERIFY(!table.horizontalHeader()->isEnabled());
        QVERIFY(table.horizontalHeader()->stretchLastSection());
        QVERIFY(!table.horizontalScrollBar()->isEnabled());
        QCOMPARE(table.horizontalScrollBarPolicy(), Qt::ScrollBarAlwaysOff);
        QCOMPARE(table.styleSheet(), tableSheet);
        QCOMPARE(table.verticalScrollBar()->styleSheet(), verticalBarSheet);
        QCOMPARE(table.horizontalScrollBar()->styleSheet(), horizontalBarSheet);
        QVERIFY(table.findChildren<QCheckBox *>().isEmpty());
        table.setColumnCount(3);
        for (int column = 0; column < 3; ++column)
            QCOMPARE(table.horizontalHeader()->sectionResizeMode(column), QHeaderView::Stretch);
    }

    void declaresItsSlots()
    {
        const QMetaObject &meta = NewTableWidget::staticMetaObject;
        QStringList methods;
        for (int i = meta.methodOffset(); i < meta.methodCount(); ++i) {
            methods += QString::fromLatin1(meta.method(i).methodSignature());
            QCOMPARE(meta.method(i).methodType(), QMetaMethod::Slot);
            QCOMPARE(meta.method(i).access(), QMetaMethod::Public);
        }
        QCOMPARE(methods, (QStringList{"on_notifyStateChange(int)", "on_valueChange(int)"}));
        QCOMPARE(meta.propertyCount(), meta.propertyOffset());
    }

    void everyPictureOfTheSheetExists()
    {
        const QStringList paths = imagePaths(tableSheet);
        QCOMPARE(paths.size(), 2);
        for (const QString &path : paths)
            QVERIFY2(!QPixmap(path).isNull(), qPrintable(path));
    }

    void theLookCanBeAppliedAnew()
    {
        NewTableWidget table;
        table.setStyleSheet(QString());
        table.setEditTriggers(QAbstractItemView::AllEditTriggers);
        table.verticalScrollBar()->setStyleSheet(QString());
        table.initTableStyle();
        QCOMPARE(table.styleSheet(), tableSheet);
        table.initTable();
        QCOMPARE(table.editTriggers(), QAbstractItemView::NoEditTriggers);
        QCOMPARE(table.verticalScrollBar()->styleSheet(), verticalBarSheet);
    }

    void columnsFillTheTable_data()
    {
        QTest::addColumn<int>("columns");
        QTest::addColumn<int>("rows");
        QTest::addColumn<bool>("withBoxes");
        QTest::addColumn<bool>("isLastHidden");
        QTest::newRow("four") << 4 << 3 << false << false;
        QTest::newRow("one") << 1 << 3 << false << false;
        QTest::newRow("boxes and four") << 4 << 3 << true << false;
        QTest::newRow("boxes and seven, without rows") << 7 << 0 << true << false;
        QTest::newRow("with a scroll bar") << 4 << 40 << true << false;
        QTest::newRow("with a hidden column at the end") << 4 << 3 << true << true;
    }

    void columnsFillTheTable()
    {
        QFETCH(int, columns);
        QFETCH(int, rows);
        QFETCH(bool, withBoxes);
        QFETCH(bool, isLastHidden);
        NewTableWidget table;
        fill(table, rows, columns);
        if (withBoxes)
            table.setAddCheckBoxVisible(true);
        if (isLastHidden)
            table.setColumnHidden(columns, true);
        table.resize(640, 300);
        QVERIFY(pointer::showAndWait(&table));
        // Wider and narrower: a stretched column must not keep a width that it had.
        for (const int width : {640, 400, 803, 350}) {
            table.resize(width, 300);
            const int bar =
                table.verticalScrollBar()->isVisible() ? table.verticalScrollBar()->width() : 0;
            QCOMPARE(bar, rows > 10 ? 16 : 0);
            QCOMPARE(table.horizontalHeader()->length(), width - bar);
            QCOMPARE(table.horizontalScrollBar()->maximum(), 0);
            const int first = withBoxes ? 1 : 0;
            if (withBoxes)
                QCOMPARE(table.columnWidth(0), 30);
            const int shared = isLastHidden ? columns - 1 : columns;
            const int share = (width - bar - 30 * first) / shared;
            for (int column = first; column < first + shared; ++column)
                QVERIFY(qAbs(table.columnWidth(column) - share) <= 1);
        }
    }

    void widthsThatAHostSetsStay()
    {
        NewTableWidget table;
        fill(table, 2, 3);
        table.horizontalHeader()->setSectionResizeMode(QHeaderView::Interactive);
        table.resize(400, 300);
        QVERIFY(pointer::showAndWait(&table));
        table.horizontalHeader()->setStretchLastSection(false);
        table.setColumnWidth(0, 123);
        table.setColumnWidth(2, 77);
        table.resize(500, 300);
        table.resize(300, 300);
        QCOMPARE(table.columnWidth(0), 123);
        QCOMPARE(table.columnWidth(2), 77);
    }

    void theTableIsReadOnly()
    {
        NewTableWidget table;
        fill(table, 2, 2);
        table.resize(400, 300);
        QVERIFY(pointer::showAndWait(&table));
        const QPoint centre = table.visualRect(table.model()->index(0, 0)).center();
        QTest::mouseDClick(table.viewport(), Qt::LeftButton, Qt::NoModifier, centre);
        QVERIFY(table.findChildren<QLineEdit *>().isEmpty());
    }

    void tabKeyGoesThroughTheCellsOfATableWithTheFocus()
    {
        QWidget window;
        NewTableWidget table(&window);
        const QPushButton behind(&window);
        fill(table, 2, 2);
        QVERIFY(pointer::showAndWait(&window));
        QApplication::setActiveWindow(&window);
        table.setFocusPolicy(Qt::StrongFocus); // the host's choice
        table.setFocus();
        table.setCurrentCell(0, 0);
        QTest::keyClick(&table, Qt::Key_Tab);
        QVERIFY(table.hasFocus());
        QCOMPARE(table.currentColumn(), 1);
    }

    void tabKeyGoesFromTheCellsToTheBoxes()
    {
        QWidget window;
        NewTableWidget table(&window);
        fill(table, 3, 2);
        table.setAddCheckBoxVisible(true);
        const QPushButton behind(&window);
        QVERIFY(pointer::showAndWait(&window));
        QApplication::setActiveWindow(&window);
        table.setFocusPolicy(Qt::StrongFocus); // the host's choice
        table.setCurrentCell(0, 1);
        table.setFocus();
        QVERIFY(table.hasFocus());
        QTest::keyClick(&table, Qt::Key_Tab);
        QVERIFY(table.hasFocus());
        QCOMPARE(table.currentColumn(), 2);
        QTest::keyClick(&table, Qt::Key_Tab);
        QVERIFY(rowBox(table, 1)->hasFocus());
        QTest::keyClick(rowBox(table, 1), Qt::Key_Tab);
        QVERIFY(rowBox(table, 2)->hasFocus());
        QTest::keyClick(rowBox(table, 2), Qt::Key_Tab);
        QVERIFY(behind.hasFocus());
    }

    void boxesFollowTheTableInTheTabOrder_data()
    {
        QTest::addColumn<Qt::FocusPolicy>("policy");
        QTest::newRow("a table without focus") << Qt::NoFocus;
        QTest::newRow("a table that is a stop itself") << Qt::StrongFocus;
    }

    void boxesFollowTheTableInTheTabOrder()
    {
        QFETCH(Qt::FocusPolicy, policy);
        QWidget window;
        QPushButton before(&window);
        NewTableWidget table(&window);
        const QPushButton behind(&window);
        fill(table, 2, 1);
        table.setFocusPolicy(policy);
        table.setTabKeyNavigation(false);
        QVERIFY(pointer::showAndWait(&window));
        QApplication::setActiveWindow(&window);
        for (int i = 0; i < 2; ++i) {
            table.setAddCheckBoxVisible(true);
            QCOMPARE(table.focusPolicy(), policy);
            table.setCurrentCell(0, 1); // else the table hands the focus to the first box
            before.setFocus();
            QList<const QWidget *> stops = {headerBox(table), rowBox(table, 0), rowBox(table, 1),
                                            &behind, &before};
            if (policy != Qt::NoFocus)
                stops.prepend(&table);
            for (const QWidget *stop : qAsConst(stops)) {
                QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
                QCOMPARE(QApplication::focusWidget(), stop);
            }
            table.setAddCheckBoxVisible(false);
            sendDeferredDeletes();
            table.removeColumn(0);
        }
    }

    void theFirstBoxGetsTheFocusOfATableWithoutACurrentCell()
    {
        NewTableWidget table;
        fill(table, 3, 2);
        table.setAddCheckBoxVisible(true);
        QVERIFY(pointer::showAndWait(&table));
        QApplication::setActiveWindow(&table);
        table.setFocus();
        QVERIFY(rowBox(table, 0)->hasFocus());
        table.setCurrentCell(0, 1); // leaves it there, so that the tab key goes to the next box
        QVERIFY(rowBox(table, 0)->hasFocus());
        QTest::keyClick(rowBox(table, 0), Qt::Key_Tab);
        QVERIFY(rowBox(table, 1)->hasFocus());
    }

    void theCheckBoxColumnComesFirst()
    {
        NewTableWidget table;
        fill(table, 3, 2);
        table.setHorizontalHeaderLabels({"A", "B"});
        table.resize(400, 300);
        table.setAddCheckBoxVisible(true);
        QVERIFY(pointer::showAndWait(&table));
        QCOMPARE(table.columnCount(), 3);
        QCOMPARE(table.columnWidth(0), 30);
        QCOMPARE(table.item(1, 1)->text(), QString("1.0"));
        QCOMPARE(table.horizontalHeaderItem(1)->text(), QString("A"));
        QCOMPARE(table.horizontalHeaderItem(0)->text(), QString()); // no number under the box
        QCOMPARE(checks(table), QString("..."));
        QCheckBox *header = headerBox(table);
        QVERIFY(header);
        QCOMPARE(header->geometry(), QRect(0, 10, 26, 26));
        QVERIFY(header->testAttribute(Qt::WA_TranslucentBackground));
        QVERIFY(header->isVisible());
        QVERIFY(!header->isChecked());
        QVERIFY(!header->isTristate());
        for (int row = 0; row < 3; ++row) {
            QVERIFY(rowBox(table, row)->testAttribute(Qt::WA_TranslucentBackground));
            QVERIFY(rowBox(table, row)->isVisible());
            QCOMPARE(rowBox(table, row)->x(), 0);
        }
        QCOMPARE(table.findChildren<QCheckBox *>().size(), 4);
    }

    void theColumnComesIntoAShownTable()
    {
        NewTableWidget table;
        fill(table, 3, 2);
        table.resize(400, 300);
        QVERIFY(pointer::showAndWait(&table));
        table.createCheckBoxColumn();
        QVERIFY(headerBox(table) && headerBox(table)->isVisible());
        QVERIFY(rowBox(table, 2)->isVisible());
        QCOMPARE(headerBox(table)->geometry(), QRect(0, 10, 26, 26));
        QCOMPARE(table.columnWidth(0), 30);
        clickBox(headerBox(table));
        QCOMPARE(checks(table), QString("xxx"));
        table.setAddCheckBoxVisible(false);
        QCOMPARE(checks(table), QString("---"));
    }

    void theHeaderBoxChecksTheRows()
    {
        NewTableWidget table;
        fill(table, 3, 2);
        table.setAddCheckBoxVisible(true);
        table.horizontalHeader()->setMinimumHeight(40);
        table.resize(400, 300);
        QVERIFY(pointer::showAndWait(&table));
        clickBox(headerBox(table));
        QVERIFY(headerBox(table)->isChecked());
        QCOMPARE(checks(table), QString("xxx"));
        clickBox(headerBox(table));
        QCOMPARE(checks(table), QString("..."));

        // Rows are clicked one by one, and the header box does not follow them.
        clickBox(rowBox(table, 1));
        QCOMPARE(checks(table), QString(".x."));
        QVERIFY(!headerBox(table)->isChecked());
        clickBox(headerBox(table));
        QCOMPARE(checks(table), QString("xxx"));
        clickBox(rowBox(table, 0));
        QCOMPARE(checks(table), QString(".xx"));
        QVERIFY(headerBox(table)->isChecked());
        clickBox(headerBox(table));
        QCOMPARE(checks(table), QString("..."));
    }

    void onlyTheTwoWholeStatesCount_data()
    {
        QTest::addColumn<int>("state");
        QTest::addColumn<QString>("after");
        QTest::newRow("unchecked") << 0 << "...";
        QTest::newRow("partly") << 1 << ".x.";
        QTest::newRow("checked") << 2 << "xxx";
        QTest::newRow("3") << 3 << ".x.";
        QTest::newRow("-1") << -1 << ".x.";
    }

    void onlyTheTwoWholeStatesCount()
    {
        QFETCH(int, state);
        QFETCH(QString, after);
        NewTableWidget table;
        fill(table, 3, 2);
        table.setAddCheckBoxVisible(true);
        rowBox(table, 1)->setChecked(true);
        table.on_notifyStateChange(state);
        QCOMPARE(checks(table), after);
    }

    void aPartlyCheckedHeaderBoxLeavesTheRows()
    {
        NewTableWidget table;
        fill(table, 3, 2);
        table.setAddCheckBoxVisible(true);
        rowBox(table, 1)->setChecked(true);
        headerBox(table)->setTristate(true);
        headerBox(table)->setCheckState(Qt::PartiallyChecked);
        QCOMPARE(checks(table), QString(".x."));
        headerBox(table)->setCheckState(Qt::Checked);
        QCOMPARE(checks(table), QString("xxx"));
    }

    void rowsAddedLaterGetNoBox()
    {
        NewTableWidget table;
        fill(table, 2, 2);
        table.setAddCheckBoxVisible(true);
        table.resize(400, 300);
        QVERIFY(pointer::showAndWait(&table));
        table.setRowCount(3);
        table.insertRow(1);
        QCOMPARE(checks(table), QString(".-.-"));
        clickBox(headerBox(table));
        QCOMPARE(checks(table), QString("x-x-"));
        table.removeRow(0);
        clickBox(headerBox(table));
        QCOMPARE(checks(table), QString("-.-"));
        // The first row has no box now.
        table.resize(300, 300);
        QCOMPARE(headerBox(table)->geometry(), QRect(0, 10, 26, 26));
    }

    void theHeaderBoxStaysOverItsColumn_data()
    {
        QTest::addColumn<bool>("hasFirstBox");
        QTest::addColumn<bool>("perPixel");
        QTest::newRow("column by column") << true << false;
        QTest::newRow("pixel by pixel") << true << true;
        QTest::newRow("with a first row without a box") << false << false;
        QTest::newRow("the same, pixel by pixel") << false << true;
    }

    void theHeaderBoxStaysOverItsColumn()
    {
        QFETCH(bool, hasFirstBox);
        QFETCH(bool, perPixel);
        NewTableWidget table;
        fill(table, 30, 20);
        table.setAddCheckBoxVisible(true);
        if (!hasFirstBox)
            table.insertRow(0);
        if (perPixel)
            table.setHorizontalScrollMode(QAbstractItemView::ScrollPerPixel);
        table.resize(240, 200);
        QVERIFY(pointer::showAndWait(&table));
        QScrollBar *bar = table.horizontalScrollBar();
        QTRY_VERIFY(bar->maximum() > 5);
        const QCheckBox *box = headerBox(table);
        const QRect home(0, 10, 26, 26);
        QCOMPARE(box->geometry(), home);
        const auto isOverItsColumn = [&] {
            return box->geometry().translated(-table.columnViewportPosition(0), 0) == home
                && box->x() == rowBox(table, 1)->x();
        };

        // Down: it is not moved.
        table.verticalScrollBar()->setValue(10);
        QCOMPARE(box->geometry(), home);
        pointer::turnWheel(table.viewport(), -1);
        QCOMPARE(box->geometry(), home);

        // To the right, by its range, and by what a host and a person do.
        bar->setValue(2);
        QVERIFY(table.columnViewportPosition(0) < 0);
        QVERIFY(isOverItsColumn());
        table.scrollToItem(table.item(20, 20));
        QVERIFY(table.columnViewportPosition(0) < -200);
        QVERIFY(isOverItsColumn());
        QVERIFY(!table.rect().intersects(box->geometry()));
        bar->setValue(bar->maximum());
        QVERIFY(isOverItsColumn());
        table.resize(300, 200);
        QCOMPARE(bar->isVisible(), false);
        QVERIFY(isOverItsColumn());
        table.resize(900, 200); // everything fits
        QTRY_COMPARE(bar->value(), 0);
        QCOMPARE(box->geometry(), home);
        table.resize(240, 200);
        bar->setValue(3);
        QVERIFY(isOverItsColumn());
        bar->setValue(0);
        QCOMPARE(box->geometry(), home);
    }

    void aScrolledHeaderBoxIsStillClicked()
    {
        NewTableWidget table;
        fill(table, 3, 20);
        table.setAddCheckBoxVisible(true);
        table.resize(240, 200);
        table.setHorizontalScrollMode(QAbstractItemView::ScrollPerPixel);
        QVERIFY(pointer::showAndWait(&table));
        table.horizontalScrollBar()->setValue(8);
        QCOMPARE(headerBox(table)->x(), -8);
        clickBox(headerBox(table));
        QCOMPARE(checks(table), QString("xxx"));
    }

    void withoutRowsTheHeaderBoxStays()
    {
        NewTableWidget table;
        table.setColumnCount(20);
        table.setAddCheckBoxVisible(true);
        table.resize(240, 200);
        QVERIFY(pointer::showAndWait(&table));
        QScrollBar *bar = table.horizontalScrollBar();
        QTRY_VERIFY(bar->maximum() > 5);
        const QRect home(0, 10, 26, 26);
        bar->setValue(4);
        QVERIFY(table.columnViewportPosition(0) < 0);
        QCOMPARE(headerBox(table)->geometry(), home);
        table.resize(260, 200);
        QCOMPARE(headerBox(table)->geometry(), home);
        table.on_valueChange(5);
        QCOMPARE(headerBox(table)->geometry(), home);
        clickBox(headerBox(table));
        QVERIFY(headerBox(table)->isChecked());
        table.setRowCount(2);
        table.on_notifyStateChange(Qt::Checked);
        QCOMPARE(checks(table), QString("--"));
        table.on_valueChange(4);
        QCOMPARE(headerBox(table)->x(), table.columnViewportPosition(0));
    }

    void withoutTheColumnScrollingIsSafe()
    {
        NewTableWidget table;
        fill(table, 3, 20);
        table.resize(240, 200);
        QVERIFY(pointer::showAndWait(&table));
        table.horizontalScrollBar()->setValue(3);
        table.on_valueChange(3);
        table.on_notifyStateChange(Qt::Checked);
        table.resize(260, 200);
        QCOMPARE(headerBox(table), nullptr);
    }

    void emptyTablesAreSafe()
    {
        NewTableWidget table;
        table.resize(240, 200);
        table.setAddCheckBoxVisible(false);
        QCOMPARE(table.columnCount(), 0);
        table.on_notifyStateChange(Qt::Checked);
        table.on_valueChange(1);
        QVERIFY(pointer::showAndWait(&table));
        table.resize(300, 200);
        table.setAddCheckBoxVisible(true);
        QCOMPARE(table.columnCount(), 1);
        QCOMPARE(headerBox(table)->geometry(), QRect(0, 10, 26, 26));
        clickBox(headerBox(table));
        table.setColumnCount(3); // behind the check box column
        table.resize(330, 200);
        QCOMPARE(table.columnWidth(0), 30);
        QCOMPARE(table.columnWidth(1), 150);
        table.setColumnCount(0);
        table.on_notifyStateChange(Qt::Unchecked);
        table.resize(200, 200);
        table.setAddCheckBoxVisible(false);
        sendDeferredDeletes();
        QVERIFY(table.findChildren<QCheckBox *>().isEmpty());
    }

    void hidingTakesTheBoxesAwayAndLeavesTheColumn()
    {
        NewTableWidget table;
        fill(table, 3, 2);
        table.resize(400, 300);
        table.setAddCheckBoxVisible(true);
        QVERIFY(pointer::showAndWait(&table));
        const QPointer<QCheckBox> header = headerBox(table);
        const QPointer<QCheckBox> first = rowBox(table, 0);
        QCheckBox *hosts = new QCheckBox("Host's");
        table.setCellWidget(1, 1, hosts);
        table.setAddCheckBoxVisible(false);
        QVERIFY(!header || !header->isVisible());
        QCOMPARE(checks(table), QString("---"));
        sendDeferredDeletes();
        QVERIFY(header.isNull());
        QVERIFY(first.isNull());
        QCOMPARE(table.columnCount(), 3);
        QCOMPARE(table.columnWidth(0), 30);
        QCOMPARE(table.findChildren<QCheckBox *>(), QList<QCheckBox *>{hosts});
        QCOMPARE(table.item(0, 1)->text(), QString("0.0"));
        table.resize(300, 300);
        table.on_valueChange(0);
        table.on_notifyStateChange(Qt::Checked);
        QVERIFY(!hosts->isChecked());
        // There is nothing left to take away.
        table.setCellWidget(0, 0, new QCheckBox("Host's"));
        table.setAddCheckBoxVisible(false);
        sendDeferredDeletes();
        QVERIFY(rowBox(table, 0));
    }

    void otherWidgetsOfTheHostStay()
    {
        NewTableWidget table;
        fill(table, 3, 2);
        table.setAddCheckBoxVisible(true);
        const QPointer<QLabel> label = new QLabel("Host's");
        table.setCellWidget(1, 0, label);
        table.on_notifyStateChange(Qt::Checked);
        QCOMPARE(checks(table), QString("x-x"));
        table.setAddCheckBoxVisible(false);
        sendDeferredDeletes();
        QVERIFY(label);
        QCOMPARE(table.cellWidget(1, 0), label.data());
    }

    void shownAgainTheColumnIsANewOne()
    {
        NewTableWidget table;
        fill(table, 3, 2);
        table.resize(400, 300);
        QVERIFY(pointer::showAndWait(&table));
        table.setAddCheckBoxVisible(true);
        table.setAddCheckBoxVisible(false);
        table.removeColumn(0); // what a host does with the empty one
        table.setAddCheckBoxVisible(true);
        sendDeferredDeletes();
        QCOMPARE(table.columnCount(), 3);
        QVERIFY(headerBox(table) && headerBox(table)->isVisible());
        clickBox(headerBox(table));
        QCOMPARE(checks(table), QString("xxx"));

        // A second column while the first is there takes over.
        table.setAddCheckBoxVisible(true);
        sendDeferredDeletes();
        QCOMPARE(table.columnCount(), 4);
        QVERIFY(headerBox(table));
        QCOMPARE(checks(table), QString("..."));
        QVERIFY(rowBox(table, 0, 1)->isChecked());
        clickBox(headerBox(table));
        QCOMPARE(checks(table), QString("xxx"));
        clickBox(headerBox(table));
        QVERIFY(rowBox(table, 0, 1)->isChecked());
    }

    void boxesShowTheirPictures()
    {
        NewTableWidget table;
        fill(table, 2, 2);
        table.setAddCheckBoxVisible(true);
        table.horizontalHeader()->setMinimumHeight(40);
        table.resize(400, 300);
        QVERIFY(pointer::showAndWait(&table));
        clickBox(rowBox(table, 1));
        pointer::moveAway(&table);
        const auto picture = [](QCheckBox *box) {
            return box->window()
                ->grab(QRect(box->mapTo(box->window(), QPoint()), box->size()))
                .toImage();
        };
        const auto hasBlue = [](const QImage &image) {
            for (int y = 0; y < image.height(); ++y) {
                for (int x = 0; x < image.width(); ++x) {
                    const QColor color = image.pixelColor(x, y);
                    if (color.blue() > color.red() + 60)
                        return true;
                }
            }
            return false;
        };
        QVERIFY(!hasBlue(picture(rowBox(table, 0))));
        QVERIFY(hasBlue(picture(rowBox(table, 1))));
        QVERIFY(!hasBlue(picture(headerBox(table))));
        clickBox(headerBox(table));
        QVERIFY(hasBlue(picture(headerBox(table))));
    }

    void theSheetIsSeen()
    {
        NewTableWidget table;
        fill(table, 2, 2);
        table.resize(400, 300);
        QVERIFY(pointer::showAndWait(&table));
        QCOMPARE(pointer::colorAt(&table, QPoint(200, 250)), QColor(56, 56, 56));
        QCOMPARE(pointer::colorAt(&table, QPoint(0, 250)), QColor(56, 56, 56)); // no border
        QCOMPARE(pointer::colorAt(&table, QPoint(8, 6)), QColor(52, 52, 52)); // header
        const QRect cell = table.visualRect(table.model()->index(1, 0));
        pointer::moveTo(table.viewport(), cell.center());
        const auto cellColor = [&](int column) {
            const QPoint corner = table.visualRect(table.model()->index(1, column)).topLeft();
            return pointer::colorAt(&table, table.viewport()->mapTo(&table, corner + QPoint(3, 3)));
        };
        QCOMPARE(cellColor(0), QColor(128, 128, 128)); // the hovered cell, not its row
        QCOMPARE(cellColor(1), QColor(56, 56, 56));
        windowmouse::click(table.viewport(), Qt::LeftButton, cell.center());
        QCOMPARE(cellColor(1), QColor(45, 46, 48)); // the selected row
        QVERIFY(pointer::colorAt(&table, QPoint(table.columnWidth(0) - 1, 40))
                == QColor(69, 69, 69)); // grid line
    }

    void theHeaderBoxMakesTheRowsReport()
    {
        NewTableWidget table;
        fill(table, 3, 2);
        table.setAddCheckBoxVisible(true);
        rowBox(table, 1)->setChecked(true);
        rowBox(table, 2)->setTristate(true);
        rowBox(table, 2)->setCheckState(Qt::PartiallyChecked);
        QStringList reports;
        for (int row = 0; row < 3; ++row) {
            connect(rowBox(table, row), &QCheckBox::stateChanged, this,
                    [&, row](int state) { reports += QString("%1: %2").arg(row).arg(state); });
            connect(rowBox(table, row), &QCheckBox::toggled, this, [&, row](bool isChecked) {
                reports += QString("%1 %2").arg(row).arg(isChecked ? "on" : "off");
            });
        }
        table.on_notifyStateChange(Qt::Checked);
        QCOMPARE(reports, (QStringList{"0: 2", "0 on", "2: 2"}));
        reports.clear();
        rowBox(table, 1)->blockSignals(true);
        table.on_notifyStateChange(Qt::Unchecked);
        QCOMPARE(reports, (QStringList{"0: 0", "0 off", "2: 0", "2 off"}));
        QCOMPARE(checks(table), QString("..."));
        QVERIFY(rowBox(table, 1)->signalsBlocked());
    }

    void survivesDeletionsInTheMiddle_data()
    {
        QTest::addColumn<QString>("clicked");
        QTest::addColumn<QString>("signal");
        QTest::addColumn<QString>("victim");
        for (const auto *clicked : {"header", "row"}) {
            for (const auto *signal : {"toggled", "stateChanged"}) {
                for (const auto *victim :
                     {"table", "rows", "next row", "boxes", "header box", "column", "own row"}) {
                    // In this one Qt itself goes on using a box that is clicked.
                    if (clicked == QString("row") && signal == QString("toggled")
                        && victim == QString("table"))
                        continue;
                    QTest::addRow("%s in %s after a click on a %s box", victim, signal, clicked)
                        << clicked << signal << victim;
                }
            }
        }
    }

    void survivesDeletionsInTheMiddle()
    {
        QFETCH(QString, clicked);
        QFETCH(QString, signal);
        QFETCH(QString, victim);
        QWidget window;
        window.resize(400, 300);
        QPointer<NewTableWidget> table = new NewTableWidget(&window);
        table->resize(400, 300);
        fill(*table, 4, 2);
        table->setAddCheckBoxVisible(true);
        QVERIFY(pointer::showAndWait(&window));
        const QPointer<QCheckBox> header = headerBox(*table);
        int count = 0;
        const auto answer = [&] {
            if (++count > 1)
                return;
            if (victim == "table")
                delete table;
            else if (victim == "rows")
                table->setRowCount(0);
            else if (victim == "next row")
                table->removeRow(2);
            else if (victim == "own row")
                table->removeRow(1);
            else if (victim == "boxes")
                table->setAddCheckBoxVisible(false);
            else if (victim == "header box")
                header->deleteLater(); // Qt goes on using a box that is clicked
            else
                table->removeColumn(0);
        };
        if (signal == "toggled")
            connect(rowBox(*table, 1), &QCheckBox::toggled, this, answer);
        else
            connect(rowBox(*table, 1), &QCheckBox::stateChanged, this, answer);
        clickBox(clicked == "header" ? header.data() : rowBox(*table, 1));
        QCOMPARE(count, 1);
        QCOMPARE(table.isNull(), victim == "table");
        if (!table)
            return;
        const bool all = clicked == "header";
        if (victim == "next row")
            QCOMPARE(checks(*table), QString(all ? "xxx" : ".x."));
        if (victim == "own row")
            QCOMPARE(checks(*table), QString(all ? "xxx" : "..."));
        if (victim == "header box")
            QCOMPARE(checks(*table), QString(all ? "xxxx" : ".x.."));
        if (victim == "boxes")
            QCOMPARE(checks(*table), QString("----"));
        sendDeferredDeletes();
        QCOMPARE(header.isNull(), victim == "boxes" || victim == "header box");
        table->resize(300, 300);
        table->on_valueChange(0);
        table->on_notifyStateChange(Qt::Unchecked);
        table->setAddCheckBoxVisible(false);
        sendDeferredDeletes();
    }

    void canBeDeletedInTheHeaderBoxsClick_data()
    {
        QTest::addColumn<QString>("signal");
        // Not in toggled: Qt itself goes on using a box that is clicked.
        for (const auto *signal : {"stateChanged", "clicked"})
            QTest::newRow(signal) << signal;
    }

    void canBeDeletedInTheHeaderBoxsClick()
    {
        QFETCH(QString, signal);
        QWidget window;
        window.resize(400, 300);
        QPointer<NewTableWidget> table = new NewTableWidget(&window);
        table->resize(400, 300);
        fill(*table, 4, 2);
        table->setAddCheckBoxVisible(true);
        QVERIFY(pointer::showAndWait(&window));
        QCheckBox *header = headerBox(*table);
        const auto remove = [&] { delete table; };
        if (signal == "stateChanged")
            connect(header, &QCheckBox::stateChanged, this, remove);
        else
            connect(header, &QCheckBox::clicked, this, remove);
        clickBox(header);
        QVERIFY(table.isNull());
    }

    void goesWithItsParent()
    {
        auto *window = new QWidget;
        const QPointer<NewTableWidget> table = new NewTableWidget(window);
        fill(*table, 3, 2);
        table->setAddCheckBoxVisible(true);
        const QPointer<QCheckBox> header = headerBox(*table);
        const QPointer<QCheckBox> row = rowBox(*table, 0);
        delete window;
        QVERIFY(table.isNull() && header.isNull() && row.isNull());
        auto *alone = new NewTableWidget;
        alone->setAddCheckBoxVisible(true);
        delete alone;
    }

    void headerBoxStandsAboveItsColumnFromRightToLeft_data()
    {
        QTest::addColumn<int>("rows");
        QTest::newRow("no rows") << 0;
        QTest::newRow("all rows seen") << 2;
        QTest::newRow("a scroll bar at the left") << 20;
    }
    void headerBoxStandsAboveItsColumnFromRightToLeft()
    {
        QFETCH(int, rows);
        const MirroredApplication application;
        NewTableWidget table;
        table.resize(400, 200);
        table.horizontalHeader()->setMinimumHeight(40);
        table.setColumnCount(3);
        table.setRowCount(rows);
        table.setAddCheckBoxVisible(true);
        QVERIFY(pointer::showAndWait(&table));

        // The column of 30 pixels is the last one, and the box as far right as it goes.
        QAbstractButton *header = buttonNamed(&table, "Select all rows");
        QCOMPARE(header->geometry(), QRect(374, 10, 26, 26));
        table.resize(500, 200);
        QCoreApplication::processEvents();
        QCOMPARE(header->geometry(), QRect(474, 10, 26, 26));
        if (rows == 0)
            return;
        auto *first = qobject_cast<QCheckBox *>(table.cellWidget(0, 0));
        QVERIFY(first->mapTo(&table, QPoint(0, 0)).x() >= 470);
        // The marks of both stand at the right ends, where the eye looks for them.
        windowmouse::click(header, Qt::LeftButton, QPoint(18, 13));
        QVERIFY(first->isChecked());
    }
};

ORVANE_TEST_MAIN(TestNewTableWidget)
#include "tst_newtablewidget.moc"
