#include "support/layoutcheck.h"
#include "support/pointer.h"
#include "support/testcase.h"
#include "support/windowmouse.h"

#include "document.h"
#include "model/commands.h"
#include "model/sampleprojects.h"
#include "pages/backupplan.h"
#include "pages/devicequery.h"
#include "pages/devicespage.h"
#include "pages/porttable.h"
#include "selection.h"

#include <customlistwidgetmulitem.h>
#include <equiplistwidget.h>
#include <labelex.h>
#include <listwidgetex.h>
#include <pushbuttonex.h>
#include <tablewidgetcustom.h>
#include <tablewidgetex.h>

#include <QtWidgets>

using namespace wall;

namespace
{

/// The page over the demo project, shown. Devices answer at once.
struct Fixture {
    Document document;
    QScopedPointer<Selection> selection;
    QScopedPointer<DevicesPage> page;

    explicit Fixture(const ProjectData &data = demoProject())
    {
        document.reset(data, QString());
        selection.reset(new Selection(document.project()));
        page.reset(new DevicesPage(&document, selection.data()));
        page->deviceQuery()->setDelay(1);
        page->portTest()->setDelay(1);
        page->resize(1100, 640);
        QVERIFY(pointer::showAndWait(page.data()));
    }

    Project *project() const { return document.project(); }
    int steps() const { return document.undoStack()->count(); }
    EquipListWidget *devices() const { return page->findChild<EquipListWidget *>(); }
    TableWidgetEx *tables() const { return page->findChild<TableWidgetEx *>(); }
    TableWidgetCustom *backups() const { return page->findChild<TableWidgetCustom *>(); }
    PushButtonEx *button(const QString &text) const
    {
        const QList<PushButtonEx *> buttons = page->findChildren<PushButtonEx *>();
        for (PushButtonEx *button : buttons) {
            if (button->text() == text)
                return button;
        }
        return nullptr;
    }
    /// What the rows of the devices say, their columns divided by "|".
    QStringList deviceRows() const
    {
        QStringList rows;
        const QList<CustomListWidgetMulItem *> items = devices()->getItems();
        for (const CustomListWidgetMulItem *item : items) {
            QStringList texts;
            const QList<LabelEx *> labels = item->getLabelList();
            for (const LabelEx *label : labels)
                texts.append(label->text());
            rows.append(texts.join('|'));
        }
        return rows;
    }
    /// The picture that moves while devices are looked for, null while it does not.
    QMovie *animation() const
    {
        const QList<QLabel *> labels = devices()->findChildren<QLabel *>();
        for (const QLabel *label : labels) {
            if (label->movie() && label->isVisible())
                return label->movie();
        }
        return nullptr;
    }
    QStringList tabs() const
    {
        QStringList texts;
        for (int index = 0; index < tables()->count(); ++index)
            texts.append(tables()->tabText(index));
        return texts;
    }
    void closeTab(int index) const
    {
        windowmouse::click(tables()->tabBar()->tabButton(index, QTabBar::RightSide));
    }
    QStringList portRow(const QString &senderId, int row) const
    {
        return rowTexts(page->table(senderId), row);
    }
    QStringList backupRow(int row) const { return rowTexts(backups(), row); }
    static QStringList rowTexts(const QTableWidget *table, int row)
    {
        QStringList texts;
        for (int column = 0; column < table->columnCount(); ++column) {
            if (const QTableWidgetItem *item = table->item(row, column))
                texts.append(item->text());
        }
        return texts;
    }
    QCheckBox *box(const QString &senderId, int row) const
    {
        return qobject_cast<QCheckBox *>(page->table(senderId)->cellWidget(row, 0));
    }
    bool shows(const QString &text) const
    {
        const QList<QLabel *> labels = page->findChildren<QLabel *>();
        for (const QLabel *label : labels) {
            if (label->isVisible() && label->text() == text)
                return true;
        }
        return false;
    }
};

const QStringList demoRows{"Main left|COM3|8|Online", "Main right|COM4|8|Online",
                           "Frame|COM5|6|Online", "Side right|COM7|4|Offline"};

Sender makeSender(const QString &id, const QString &name)
{
    Sender sender;
    sender.id = id;
    sender.name = name;
    Port port;
    port.number = 4;
    sender.ports.append(port);
    return sender;
}

} // namespace

class tst_WallDevices : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void queryAsksOneAfterTheOther();
    void queryOfNothingEnds();
    void queryCanBeCancelled();
    void queryMayBeChangedInItsSignals();

    void devicesAreListed();
    void queryAnimatesAndFinds();
    void queryCanBeCancelledOnThePage();
    void resultIsUsedAsOneStep();
    void silentDeviceIsTold();
    void devicesFollowTheProject();
    void anotherProjectEndsTheQuery();
    void pageMayGoWhileItAsks();

    void eachSenderHasATable();
    void tablesCloseAndOpen();
    void lastTableLeavesAHint();
    void doubleClickOpensATable();
    void returnOpensATable();
    void portRowsTellWhatHangsThere();
    void portRowsAreLive();
    void portFollowsTheTable();
    void tableFollowsThePort();

    void checkedPortsAreTested();
    void offlinePortsDoNotAnswer();
    void headerChecksAllPorts();
    void testCanBeStopped();
    void tableMayCloseWhileItIsTested();

    void backupsOfTheDemo();
    void backupsAreLive();
    void backupPrefersAnotherSender();

    void nothingIsCut_data();
    void nothingIsCut();
};

void tst_WallDevices::queryAsksOneAfterTheOther()
{
    DeviceQuery query([](const QString &id) { return id != "b"; }, 1);
    QStringList heard;
    connect(&query, &DeviceQuery::started, &query, [&] { heard.append("started"); });
    connect(&query, &DeviceQuery::answered, &query,
            [&](const QString &id, bool isThere) { heard.append(id + (isThere ? "+" : "-")); });
    connect(&query, &DeviceQuery::ended, &query,
            [&](bool isComplete) { heard.append(isComplete ? "complete" : "cancelled"); });
    query.start({"a", "b", "c"});
    QVERIFY(query.isRunning());
    QCOMPARE(heard, QStringList("started"));
    QTRY_VERIFY(!query.isRunning());
    QCOMPARE(heard, QStringList({"started", "a+", "b-", "c+", "complete"}));
    query.cancel();
    QCOMPARE(heard.size(), 5);
}

void tst_WallDevices::queryOfNothingEnds()
{
    DeviceQuery query([](const QString &) { return true; }, 1);
    QSignalSpy ended(&query, &DeviceQuery::ended);
    QSignalSpy answered(&query, &DeviceQuery::answered);
    query.start({});
    QTRY_COMPARE(ended.count(), 1);
    QCOMPARE(ended.at(0).at(0).toBool(), true);
    QCOMPARE(answered.count(), 0);
}

void tst_WallDevices::queryCanBeCancelled()
{
    DeviceQuery query([](const QString &) { return true; }, 1);
    QSignalSpy ended(&query, &DeviceQuery::ended);
    QSignalSpy answered(&query, &DeviceQuery::answered);
    query.start({"a"});
    query.cancel();
    QVERIFY(!query.isRunning());
    QCOMPARE(ended.count(), 1);
    QCOMPARE(ended.at(0).at(0).toBool(), false);
    query.start({"c"});
    QTRY_COMPARE(ended.count(), 2);
    QCOMPARE(answered.count(), 1);
    QCOMPARE(answered.at(0).at(0).toString(), QString("c"));
}

void tst_WallDevices::queryMayBeChangedInItsSignals()
{
    auto *query = new DeviceQuery([](const QString &) { return true; }, 1);
    QStringList heard;
    connect(query, &DeviceQuery::answered, this, [&](const QString &id) {
        heard.append(id);
        if (id == "a")
            query->start({"x", "y"});
        else if (id == "x")
            query->cancel();
    });
    QSignalSpy ended(query, &DeviceQuery::ended);
    query->start({"a", "b"});
    QTRY_COMPARE(ended.count(), 2); // two times cancelled
    QCOMPARE(heard, QStringList({"a", "x"}));

    const QPointer<DeviceQuery> watched(query);
    connect(query, &DeviceQuery::answered, this, [&](const QString &id) {
        if (id == "gone")
            delete query;
    });
    query->start({"gone", "b"});
    QTRY_VERIFY(!watched);
    QCOMPARE(heard.last(), QString("gone"));
}

void tst_WallDevices::devicesAreListed()
{
    Fixture f;
    QCOMPARE(f.deviceRows(), demoRows);
    QCOMPARE(f.devices()->getListWidget()->item(2)->data(Qt::AccessibleTextRole).toString(),
             QString("Frame"));
    QVERIFY(!f.animation());
    QVERIFY(!f.button("Cancel")->isEnabled());
    QVERIFY(!f.button("Use in project")->isEnabled());
}

void tst_WallDevices::queryAnimatesAndFinds()
{
    Fixture f;
    QSignalSpy answered(f.page->deviceQuery(), &DeviceQuery::answered);
    windowmouse::click(f.button("Query devices"));
    QVERIFY(f.page->deviceQuery()->isRunning());
    QVERIFY(f.animation());
    QCOMPARE(f.animation()->state(), QMovie::Running);
    QCOMPARE(f.deviceRows(), QStringList());
    QVERIFY(!f.button("Query devices")->isEnabled());
    QVERIFY(f.button("Cancel")->isEnabled());

    QTRY_VERIFY(!f.page->deviceQuery()->isRunning());
    QCOMPARE(answered.count(), 4);
    QVERIFY(!f.animation());
    QStringList rows = demoRows;
    rows[3] = "Side right|COM7|4|Answers";
    QCOMPARE(f.deviceRows(), rows);
    QVERIFY(f.shows("4 of 4 devices answered."));
    QVERIFY(f.button("Query devices")->isEnabled());
    QVERIFY(!f.button("Cancel")->isEnabled());
    // A look at the devices is no change of the project.
    QCOMPARE(f.steps(), 0);
    QVERIFY(!f.project()->sender("s4")->isOnline);
}

void tst_WallDevices::queryCanBeCancelledOnThePage()
{
    Fixture f;
    f.page->deviceQuery()->setDelay(100000);
    windowmouse::click(f.button("Query devices"));
    QVERIFY(f.animation());
    windowmouse::click(f.button("Cancel"));
    QVERIFY(!f.page->deviceQuery()->isRunning());
    QVERIFY(!f.animation());
    QCOMPARE(f.deviceRows(), demoRows);
    QVERIFY(f.shows("Cancelled; 0 of 0 devices answered."));
    QVERIFY(!f.button("Use in project")->isEnabled());
}

void tst_WallDevices::resultIsUsedAsOneStep()
{
    Fixture f;
    windowmouse::click(f.button("Query devices"));
    QTRY_VERIFY(f.button("Use in project")->isEnabled());
    windowmouse::click(f.button("Use in project"));
    QVERIFY(f.project()->sender("s4")->isOnline);
    QCOMPARE(f.steps(), 1);
    QCOMPARE(f.deviceRows().at(3), QString("Side right|COM7|4|Online"));
    QVERIFY(!f.button("Use in project")->isEnabled());
    f.document.undoStack()->undo();
    QVERIFY(!f.project()->sender("s4")->isOnline);
    QCOMPARE(f.deviceRows().at(3), QString("Side right|COM7|4|Answers"));
    QVERIFY(f.button("Use in project")->isEnabled());
}

void tst_WallDevices::silentDeviceIsTold()
{
    ProjectData data = demoProject();
    data.senders[0].connection.clear();
    Fixture f(data);
    windowmouse::click(f.button("Query devices"));
    QTRY_COMPARE(f.deviceRows().value(0), QString("Main left||8|No answer"));
    QVERIFY(f.shows("3 of 4 devices answered."));
    windowmouse::click(f.button("Use in project"));
    QVERIFY(!f.project()->sender("s1")->isOnline);
    QVERIFY(f.project()->sender("s4")->isOnline);
    QCOMPARE(f.steps(), 1);
}

void tst_WallDevices::devicesFollowTheProject()
{
    Fixture f;
    const QList<CustomListWidgetMulItem *> rows = f.devices()->getItems();
    f.document.push(new ChangeSenderCommand(f.project(), "s2", "Centre"));
    QCOMPARE(f.deviceRows().at(1), QString("Centre|COM4|8|Online"));
    QCOMPARE(f.devices()->getItems(), rows); // no row was made anew
    QCOMPARE(f.tabs().at(1), QString("Centre"));

    f.document.push(new AddSenderCommand(f.project(), makeSender("new", "Fifth"), 1));
    QCOMPARE(f.deviceRows().at(1), QString("Fifth||1|Online"));
    QCOMPARE(f.deviceRows().size(), 5);
    QCOMPARE(f.tabs().last(), QString("Fifth"));
    f.document.push(new RemoveSenderCommand(f.project(), "s1"));
    QCOMPARE(f.deviceRows().first(), QString("Fifth||1|Online"));
    QCOMPARE(f.tabs(), QStringList({"Centre", "Frame", "Side right", "Fifth"}));
    while (f.document.undoStack()->canUndo())
        f.document.undoStack()->undo();
    QCOMPARE(f.deviceRows(), demoRows);
    QVERIFY(!f.page->table("new"));
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

void tst_WallDevices::anotherProjectEndsTheQuery()
{
    Fixture f;
    f.page->deviceQuery()->setDelay(100000);
    windowmouse::click(f.button("Query devices"));
    f.document.reset(*generateProject(1300), QString()); // 33 ports, 3 senders
    QVERIFY(!f.page->deviceQuery()->isRunning());
    QVERIFY(!f.animation());
    QVERIFY(f.shows("Not queried yet."));
    QCOMPARE(f.deviceRows().size(), f.project()->senderIds().size());
    QCOMPARE(f.tabs(), QStringList({"Sender 1", "Sender 2", "Sender 3"}));
    f.document.reset(ProjectData(), QString());
    QCOMPARE(f.deviceRows(), QStringList());
    QVERIFY(!f.button("Query devices")->isEnabled());
    QCOMPARE(f.backups()->rowCount(), 0);
}

void tst_WallDevices::pageMayGoWhileItAsks()
{
    Fixture f;
    windowmouse::click(f.button("Query devices"));
    f.page.reset();
    QCoreApplication::processEvents();
    f.document.push(new ChangeSenderCommand(f.project(), "s2", "Centre"));
    QCOMPARE(f.steps(), 1);
}

void tst_WallDevices::eachSenderHasATable()
{
    Fixture f;
    QCOMPARE(f.tabs(), QStringList({"Main left", "Main right", "Frame", "Side right"}));
    QCOMPARE(f.tables()->currentIndex(), 0);
    QVERIFY(!f.button("Open all tables")->isEnabled());

    Fixture large(*generateProject(5000)); // 8 senders
    QCOMPARE(large.tabs().size(), 4);
    QVERIFY(large.button("Open all tables")->isEnabled());
    windowmouse::click(large.button("Open all tables"));
    QCOMPARE(large.tabs().size(), large.project()->senderIds().size());
    QVERIFY(!large.button("Open all tables")->isEnabled());
}

void tst_WallDevices::tablesCloseAndOpen()
{
    Fixture f;
    const QPointer<PortTable> closed(f.page->table("s2"));
    QWidget *add = f.tables()->cornerWidget(Qt::TopRightCorner);
    QVERIFY(!add->isVisible());
    f.closeTab(1);
    QCOMPARE(f.tabs(), QStringList({"Main left", "Frame", "Side right"}));
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QVERIFY(!closed);
    QVERIFY(add->isVisible());
    QCoreApplication::processEvents();
    windowmouse::click(add);
    QCOMPARE(f.tabs(), QStringList({"Main left", "Frame", "Side right", "Main right"}));
    QCOMPARE(f.tables()->currentIndex(), 3);
    QVERIFY(!add->isVisible());
    QCOMPARE(f.steps(), 0);
}

void tst_WallDevices::lastTableLeavesAHint()
{
    Fixture f;
    while (f.tables()->count() > 0)
        f.closeTab(0);
    QVERIFY(!f.tables()->isVisible());
    QVERIFY(f.shows("No table is open. Double-click a device, or open the tables of all."));
    QVERIFY(!f.button("Test checked ports")->isEnabled());
    windowmouse::click(f.button("Open all tables"));
    QCOMPARE(f.tabs().size(), 4);
    QVERIFY(f.tables()->isVisible());
}

void tst_WallDevices::doubleClickOpensATable()
{
    Fixture f;
    f.closeTab(2);
    QCOMPARE(f.tabs().size(), 3);
    CustomListWidgetMulItem *row = f.devices()->getItems().at(2);
    QTest::mouseDClick(f.page->windowHandle(), Qt::LeftButton, Qt::NoModifier,
                       windowmouse::inWindow(row, QPoint(-1, -1)));
    QCOMPARE(f.tabs().last(), QString("Frame"));
    QCOMPARE(f.tables()->currentIndex(), 3);
    // One that is open comes to the front.
    row = f.devices()->getItems().at(0);
    QTest::mouseDClick(f.page->windowHandle(), Qt::LeftButton, Qt::NoModifier,
                       windowmouse::inWindow(row, QPoint(-1, -1)));
    QCOMPARE(f.tabs().size(), 4);
    QCOMPARE(f.tables()->currentIndex(), 0);
}

void tst_WallDevices::returnOpensATable()
{
    Fixture f;
    ListWidgetEx *list = f.devices()->getListWidget();
    list->setFocus();
    list->setCurrentRow(2);
    QTest::keyClick(list, Qt::Key_Down);
    QTest::keyClick(list, Qt::Key_Return);
    QCOMPARE(f.tables()->tabText(f.tables()->currentIndex()), QString("Side right"));
}

void tst_WallDevices::portRowsTellWhatHangsThere()
{
    Fixture f;
    QCOMPARE(f.page->table("s1")->rowCount(), 8);
    QCOMPARE(f.portRow("s1", 0), QStringList({"1", "Network", "15", "1", "1 × Stage 2.6", ""}));
    QCOMPARE(f.portRow("s1", 3), QStringList({"4", "Network", "15", "0", "", ""}));
    QCOMPARE(f.portRow("s3", 5),
             QStringList({"6", "Network", "0", "11",
                          "6 × Stage 2.6, 3 × Stage 2.6 half, 2 × Banner 5.2", ""}));
    QCOMPARE(f.portRow("s4", 0), QStringList({"1", "Coaxial", "40", "0", "", ""}));
}

void tst_WallDevices::portRowsAreLive()
{
    Fixture f;
    const PortRef port{"s1", 1};
    f.document.push(new RemoveCabinetsCommand(f.project(), f.project()->line(port).mid(0, 4)));
    QCOMPARE(f.portRow("s1", 0), QStringList({"1", "Network", "11", "5", "5 × Stage 2.6", ""}));
    CabinetModel model = *f.project()->model("stage-26");
    model.name = "Panel";
    f.document.push(new ChangeModelCommand(f.project(), model));
    QCOMPARE(f.portRow("s1", 0), QStringList({"1", "Network", "11", "5", "5 × Panel", ""}));
    f.document.push(new ChangeStockCommand(f.project(), port, "cube-39", 2));
    QCOMPARE(f.portRow("s1", 0).at(4), QString("5 × Panel, 2 × Cube 3.9"));
    while (f.document.undoStack()->canUndo())
        f.document.undoStack()->undo();
    QCOMPARE(f.portRow("s1", 0).at(4), QString("1 × Stage 2.6"));
}

void tst_WallDevices::portFollowsTheTable()
{
    Fixture f;
    PortTable *table = f.page->table("s1");
    const QRect cell = table->visualItemRect(table->item(4, PortTable::PortColumn));
    windowmouse::click(table->viewport(), Qt::LeftButton, cell.center());
    QVERIFY(f.selection->port() == (PortRef{"s1", 5}));
    table->setFocus();
    QTest::keyClick(table, Qt::Key_Down);
    QVERIFY(f.selection->port() == (PortRef{"s1", 6}));
}

void tst_WallDevices::tableFollowsThePort()
{
    Fixture f;
    f.selection->setPort({"s1", 3});
    QCOMPARE(f.page->table("s1")->currentRow(), 2);
    f.selection->setPort({"s3", 6});
    QCOMPARE(f.page->table("s1")->currentRow(), -1);
    QCOMPARE(f.page->table("s3")->currentRow(), 5);
    QVERIFY(f.selection->port() == (PortRef{"s3", 6}));
    f.selection->setPort({});
    QCOMPARE(f.page->table("s3")->currentRow(), -1);
    QVERIFY(f.page->table("s3")->selectedItems().isEmpty());
}

void tst_WallDevices::checkedPortsAreTested()
{
    Fixture f;
    PushButtonEx *test = f.button("Test checked ports");
    QVERIFY(!test->isEnabled());
    windowmouse::click(f.box("s1", 1));
    f.box("s1", 3)->setFocus();
    QTest::keyClick(f.box("s1", 3), Qt::Key_Space);
    QVERIFY(test->isEnabled());
    QCOMPARE(f.page->table("s1")->checkedPorts(), (QVector<PortRef>{{"s1", 2}, {"s1", 4}}));
    windowmouse::click(test);
    QCOMPARE(f.portRow("s1", 1).last(), QString("Waiting"));
    QCOMPARE(test->text(), QString("Stop the test"));
    QTRY_VERIFY(!f.page->portTest()->isRunning());
    QCOMPARE(test->text(), QString("Test checked ports"));
    QCOMPARE(f.portRow("s1", 1).last(), QString("Passed"));
    QCOMPARE(f.portRow("s1", 3).last(), QString("Passed"));
    QCOMPARE(f.portRow("s1", 0).last(), QString());
    QVERIFY(f.shows("2 ports tested."));
    windowmouse::click(f.box("s1", 1));
    windowmouse::click(f.box("s1", 3));
    QVERIFY(!test->isEnabled());
}

void tst_WallDevices::offlinePortsDoNotAnswer()
{
    Fixture f;
    f.tables()->setCurrentIndex(3);
    windowmouse::click(f.box("s4", 0));
    windowmouse::click(f.button("Test checked ports"));
    QTRY_COMPARE(f.portRow("s4", 0).last(), QString("No answer"));
}

void tst_WallDevices::headerChecksAllPorts()
{
    Fixture f;
    auto *all = f.page->table("s1")->findChild<QCheckBox *>(QString(), Qt::FindDirectChildrenOnly);
    QVERIFY(all);
    QCOMPARE(all->accessibleName(), QString("All ports"));
    windowmouse::click(all, Qt::LeftButton, QPoint(14, all->height() / 2));
    QCOMPARE(f.page->table("s1")->checkedPorts().size(), 8);
    QVERIFY(f.button("Test checked ports")->isEnabled());
    windowmouse::click(all, Qt::LeftButton, QPoint(14, all->height() / 2));
    QCOMPARE(f.page->table("s1")->checkedPorts().size(), 0);
}

void tst_WallDevices::testCanBeStopped()
{
    Fixture f;
    f.page->portTest()->setDelay(100000);
    windowmouse::click(f.box("s1", 0));
    windowmouse::click(f.button("Test checked ports"));
    windowmouse::click(f.button("Stop the test"));
    QVERIFY(!f.page->portTest()->isRunning());
    QVERIFY(f.shows("Test stopped."));
    QCOMPARE(f.portRow("s1", 0).last(), QString());
}

void tst_WallDevices::tableMayCloseWhileItIsTested()
{
    Fixture f;
    f.page->portTest()->setDelay(100000);
    windowmouse::click(f.box("s1", 0));
    windowmouse::click(f.button("Test checked ports"));
    f.closeTab(0);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QVERIFY(f.page->portTest()->isRunning());
    f.page->portTest()->setDelay(1);
    QTRY_VERIFY(!f.page->portTest()->isRunning());
    QVERIFY(!f.page->table("s1"));
    QVERIFY(!f.button("Test checked ports")->isEnabled());
}

void tst_WallDevices::backupsOfTheDemo()
{
    Fixture f;
    QCOMPARE(f.backups()->rowCount(), 22); // 8, 8, 5 and 1 ports feed cabinets
    QCOMPARE(f.backupRow(0), QStringList({"Main left / 1", "Frame / 6", "Network", "Ready"}));
    QCOMPARE(f.backupRow(1), QStringList({"Main left / 2", "", "Network", "No free port"}));
    QCOMPARE(f.backupRow(21),
             QStringList({"Side right / 1", "Side right / 2", "Coaxial", "Offline"}));
    QCOMPARE(f.backups()->rowHeight(0), 40);
}

void tst_WallDevices::backupsAreLive()
{
    Fixture f;
    f.document.push(new RemoveCabinetsCommand(f.project(), f.project()->line({"s2", 8})));
    QTRY_COMPARE(f.backups()->rowCount(), 21);
    QCOMPARE(f.backupRow(0).at(1), QString("Main right / 8"));
    QCOMPARE(f.backupRow(1).at(1), QString("Frame / 6"));
    f.document.push(new ChangeSenderCommand(f.project(), "s2", "Centre", "COM4", false));
    QTRY_COMPARE(f.backupRow(0),
                 QStringList({"Main left / 1", "Centre / 8", "Network", "Offline"}));
    f.document.undoStack()->undo();
    f.document.undoStack()->undo();
    QTRY_COMPARE(f.backups()->rowCount(), 22);
    QCOMPARE(f.backupRow(0).at(1), QString("Frame / 6"));
}

void tst_WallDevices::backupPrefersAnotherSender()
{
    Project project;
    ProjectData data;
    data.models.append(CabinetModel{"m", "F", "M", QSize(10, 10), 1, 1, 1, 1, {}});
    for (const char *id : {"a", "b"}) {
        Sender sender;
        sender.id = sender.name = id;
        for (int number = 1; number <= 2; ++number) {
            Port port;
            port.number = number;
            port.stock.append({"m", 1, {}});
            sender.ports.append(port);
        }
        data.senders.append(sender);
    }
    PlacedCabinet cabinet;
    cabinet.modelId = "m";
    cabinet.port = {"a", 1};
    data.cabinets.append(cabinet);
    cabinet.port = {"b", 1};
    cabinet.position = QPoint(10, 0);
    data.cabinets.append(cabinet);
    project.reset(data);
    const QList<BackUpParam> records = backupPlan(project);
    QCOMPARE(records.size(), 2);
    QCOMPARE(records.at(0).firstText, QString("a / 1"));
    QCOMPARE(records.at(0).secondText, QString("b / 2"));
    QCOMPARE(records.at(1).firstText, QString("b / 1"));
    QCOMPARE(records.at(1).secondText, QString("a / 2"));
    QCOMPARE(records.at(1).fourthText, QString("Ready"));
}

void tst_WallDevices::nothingIsCut_data()
{
    QTest::addColumn<QSize>("size");
    QTest::newRow("smallest") << QSize(1100, 640);
    QTest::newRow("full HD") << QSize(1920, 1080);
    QTest::newRow("very large") << QSize(3840, 2160);
}

void tst_WallDevices::nothingIsCut()
{
    QFETCH(QSize, size);
    Fixture f;
    f.page->resize(size);
    QCOMPARE(cutTexts(f.page.data()).join("; "), QString());
    QCOMPARE(f.page->size(), size);
    QVERIFY(f.page->minimumSizeHint().width() <= 1100);
    QVERIFY(f.page->minimumSizeHint().height() <= 640);
    for (int column = 0; column < f.backups()->columnCount(); ++column)
        QVERIFY(f.backups()->columnWidth(column)
                >= f.backups()->fontMetrics().horizontalAdvance("Main right / 8"));
}

ORVANE_TEST_MAIN(tst_WallDevices)
#include "tst_walldevices.moc"
