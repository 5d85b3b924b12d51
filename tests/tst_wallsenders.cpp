#include "model/cabinetrecord.h"
#include "model/commands.h"
#include "support/pointer.h"
#include "support/testcase.h"
#include "support/wallhost.h"
#include "support/windowmouse.h"
#include "wallpage/senderdialog.h"
#include "wallpage/senderpanel.h"

#include <checkboxex.h>
#include <drawer.h>
#include <draweritem.h>
#include <draweritemcontent.h>
#include <labelex.h>
#include <lineeditex.h>
#include <offlineportitemcontentframe.h>
#include <offlineportitemframe.h>
#include <rowlineitem.h>
#include <spinboxex.h>
#include <toolbuttonex.h>

#include <QCheckBox>
#include <QScrollArea>
#include <QScrollBar>
#include <QSignalSpy>
#include <QUndoStack>

using namespace wall;

namespace
{

// What the demo project has: a sender with rows of several models, and one that is offline.
const QString mainLeft = QStringLiteral("s1");
const QString frame = QStringLiteral("s3");
const QString sideRight = QStringLiteral("s4");
constexpr int frameIndex = 2;
constexpr int sideRightIndex = 3;

QFrame *header(const DrawerItem *item)
{
    return item->findChild<QFrame *>("FrameRight");
}

QToolButton *shrinkButton(const DrawerItem *item)
{
    return item->findChildren<QToolButton *>().at(0);
}

/// The button for settings or deletion.
QToolButton *rightButton(const DrawerItem *item)
{
    return item->findChildren<QToolButton *>().at(2);
}

QCheckBox *checkBox(const DrawerItem *item)
{
    return item->findChild<QCheckBox *>();
}

QString countText(const DrawerItem *item)
{
    return item->findChildren<LabelEx *>().constFirst()->text();
}

QToolButton *portButton(const QWidget *row)
{
    return row->findChild<QToolButton *>(QString(), Qt::FindDirectChildrenOnly);
}

PlacedCabinet cabinetAt(const QString &modelId, const PortRef &port, QPoint position)
{
    PlacedCabinet cabinet;
    cabinet.modelId = modelId;
    cabinet.port = port;
    cabinet.position = position;
    return cabinet;
}

class PaintCounter : public QObject
{
public:
    explicit PaintCounter(QWidget *widget) { widget->installEventFilter(this); }

    bool eventFilter(QObject *, QEvent *event) override
    {
        count += event->type() == QEvent::Paint ? 1 : 0;
        return false;
    }

    int count = 0;
};

/// The panel over the demo project, shown.
struct Shown : DemoHost {
    Shown()
    {
        panel->resize(panel->sizeHint().width(), 900);
        pointer::showAndWait(panel.get());
        panel->activateWindow();
    }

    Drawer *drawer() const { return panel->findChild<Drawer *>(); }
    DrawerItem *item(int index) const { return drawer()->drawerItemList().at(index); }

    void expand(int index) const
    {
        windowmouse::click(header(item(index)), Qt::LeftButton, QPoint(20, 20));
        // The drawer is laid out anew before anything in the body can be clicked.
        QTRY_VERIFY(item(index)->getItem() && item(index)->getItem()->isVisible());
        QTRY_VERIFY(item(index)->height() > item(index)->getItem()->height());
    }

    RowLineItem *row(int index, int port) const
    {
        auto *content = qobject_cast<DrawerItemContent *>(item(index)->getItem());
        return content ? content->lsRowLineItems().value(port - 1) : nullptr;
    }

    ToolButtonEx *cabinet(int index, int port, int place) const
    {
        return row(index, port)->cabinetButtonList().value(place);
    }

    void place(const QString &modelId, const PortRef &port)
    {
        document.push(
            new PlaceCabinetsCommand(project(), {cabinetAt(modelId, port, QPoint(9000, 9000))}));
    }

    CabinetIds cabinetsOf(const QString &senderId) const
    {
        CabinetIds ids;
        for (const PortRef &port : project()->portsOf(senderId))
            ids += project()->line(port);
        return ids;
    }

    std::unique_ptr<SenderPanel> panel = std::make_unique<SenderPanel>(&document, &selection);
};

QSet<CabinetId> asSet(const CabinetIds &ids)
{
    return QSet<CabinetId>(ids.cbegin(), ids.cend());
}

} // namespace

class TestWallSenders : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void showsAnItemForEverySender()
    {
        Shown host;
        QStringList names;
        QString online;
        for (DrawerItem *item : host.drawer()->drawerItemList()) {
            names += item->getDeviceName();
            online += item->getBOnline() ? 'x' : '.';
        }
        QCOMPARE(names, QStringList({"Main left", "Main right", "Frame", "Side right"}));
        QCOMPARE(online, QString("xxx."));
        QCOMPARE(host.item(0)->getDevicePortName(), QString("COM3"));
        QCOMPARE(countText(host.item(0)), QString("COM3 · 120 of 132 placed"));
        QCOMPARE(countText(host.item(3)), QString("COM7 · 40 of 52 placed"));
        QCOMPARE(host.panel->currentSender(), mainLeft);
        QVERIFY(host.item(0)->getItemPressed());
    }

    void headersFitTheDrawer()
    {
        Shown host;
        const auto *area = host.panel->findChild<QScrollArea *>();
        for (const int height : {900, 250}) { // without and with a scroll bar
            host.panel->resize(host.panel->width(), height);
            for (const bool isEditing : {false, true}) {
                host.panel->setEditing(isEditing);
                QTRY_COMPARE(host.item(0)->width(), area->viewport()->width());
                const QWidget *names = header(host.item(0));
                QTRY_VERIFY(names->minimumSizeHint().width() <= names->width());
            }
        }
        QVERIFY(area->verticalScrollBar()->isVisible());
    }

    void buildsBodiesWhenTheyAreNeeded()
    {
        Shown host;
        for (DrawerItem *item : host.drawer()->drawerItemList())
            QVERIFY(!item->getItem());
        host.expand(0);
        QWidget *body = host.item(0)->getItem();
        QVERIFY(!host.item(1)->getItem());
        QCOMPARE(qobject_cast<DrawerItemContent *>(body)->lsRowLineItems().size(), 8);

        host.expand(1);
        QVERIFY(!host.item(0)->getWorkSpaceIsShow());
        QVERIFY(!body->isVisible());
        QVERIFY(host.item(1)->getItemPressed());
        QVERIFY(!host.item(0)->getItemPressed());
        QCOMPARE(host.panel->currentSender(), QString("s2"));
        host.expand(0);
        QCOMPARE(host.item(0)->getItem(), body);
    }

    void rowsHoldTheStockOfTheirPorts()
    {
        Shown host;
        host.expand(frameIndex);
        QCOMPARE(host.row(frameIndex, 5)->portIndex(), 5);
        const QList<ToolButtonEx *> fifth = host.row(frameIndex, 5)->cabinetButtonList();
        QCOMPARE(fifth.size(), 2);
        QCOMPARE(fifth.at(0)->cabinetCount(), 0);
        QVERIFY(!fifth.at(0)->isEnabled());
        QCOMPARE(fifth.at(1)->cabinetCount(), 2);
        QVERIFY(fifth.at(1)->isEnabled());
        QCOMPARE(fifth.at(1)->accessibleName(), QString("Stage 2.6 half, 2 left"));
        const auto meaning = recordMeaning(fifth.at(1)->getCabnetInfo());
        QVERIFY(meaning.has_value());
        QCOMPARE(meaning->modelId, QString("stage-26-half"));
        QVERIFY(meaning->port == PortRef({frame, 5}));
        QCOMPARE(fifth.at(1)->getCabinetweight(), 4);
        QCOMPARE(host.row(frameIndex, 6)->cabinetButtonList().size(), 3);
    }

    void offlineSendersShowAGridOfPorts()
    {
        Shown host;
        host.expand(sideRightIndex);
        auto *grid = qobject_cast<OfflinePortItemContentFrame *>(host.item(3)->getItem());
        QVERIFY(grid);
        const QList<OfflinePortItemFrame *> ports = grid->lsOfflinePortItems();
        QCOMPARE(ports.size(), 4);
        windowmouse::press(portButton(ports.at(1)));
        QVERIFY(host.selection.port() == PortRef({sideRight, 2}));
        windowmouse::release(portButton(ports.at(1)));
        QVERIFY(portButton(ports.at(1))->styleSheet().contains("btn_coaxial_pressed_2.png"));
        QVERIFY(portButton(ports.at(0))->styleSheet().contains("btn_coaxial_normal_1.png"));
    }

    void gridsTakeTheNumbersAndKindsOfTheirPorts()
    {
        Shown host;
        Sender sender;
        sender.id = "odd";
        sender.name = "Odd";
        sender.isOnline = false;
        Port port;
        port.number = 7;
        sender.ports.append(port);
        port.number = 3;
        port.kind = PortKind::Coaxial;
        sender.ports.append(port);
        host.document.push(new AddSenderCommand(host.project(), sender));
        host.expand(4);
        const auto *grid = qobject_cast<OfflinePortItemContentFrame *>(host.item(4)->getItem());
        QCOMPARE(grid->lsOfflinePortItems().at(0)->portIndex(), 7);
        QCOMPARE(grid->lsOfflinePortItems().at(1)->portIndex(), 3);
        QVERIFY(portButton(grid->lsOfflinePortItems().at(0))
                    ->styleSheet()
                    .contains("btn_Port_normal_7.png"));
        QVERIFY(portButton(grid->lsOfflinePortItems().at(1))
                    ->styleSheet()
                    .contains("btn_coaxial_normal_3.png"));
    }

    void aSenderWithoutPortsSaysSo()
    {
        Shown host;
        Sender sender;
        sender.id = "bare";
        host.document.push(new AddSenderCommand(host.project(), sender));
        host.expand(4);
        QCOMPARE(qobject_cast<QLabel *>(host.item(4)->getItem())->text(),
                 QString("This sender has no ports."));
    }

    void aPortPressMarksItsRowAlone()
    {
        Shown host;
        host.expand(0);
        windowmouse::press(portButton(host.row(0, 2)));
        QVERIFY(host.selection.port() == PortRef({mainLeft, 2}));
        QVERIFY(host.row(0, 2)->bPressed());
        windowmouse::release(portButton(host.row(0, 2)));
        windowmouse::click(portButton(host.row(0, 4)));
        QVERIFY(host.selection.port() == PortRef({mainLeft, 4}));
        QVERIFY(host.row(0, 4)->bPressed());
        QVERIFY(!host.row(0, 2)->bPressed());

        host.expand(1);
        windowmouse::click(portButton(host.row(1, 1)));
        QVERIFY(host.row(1, 1)->bPressed());
        QVERIFY(!host.row(0, 4)->bPressed());
        host.selection.setPort({});
        QVERIFY(!host.row(1, 1)->bPressed());
    }

    void aPortChosenElsewhereIsMarked()
    {
        Shown host;
        host.selection.setPort({frame, 3});
        QCOMPARE(host.panel->currentSender(), frame);
        QVERIFY(host.item(frameIndex)->getItemPressed());
        host.expand(frameIndex);
        QVERIFY(host.row(frameIndex, 3)->bPressed());
        host.selection.setPort({frame, 1});
        QVERIFY(host.row(frameIndex, 1)->bPressed());
        QVERIFY(!host.row(frameIndex, 3)->bPressed());
    }

    void countsFollowWhatIsPlaced()
    {
        Shown host;
        host.expand(frameIndex);
        const PortRef port{frame, 5};
        ToolButtonEx *button = host.cabinet(frameIndex, 5, 1);
        host.place("stage-26-half", port);
        QCOMPARE(button->cabinetCount(), 1);
        QCOMPARE(button->getCabnetInfo().cabinetCount, 1);
        QVERIFY(button->isEnabled());
        QCOMPARE(countText(host.item(frameIndex)), QString("COM5 · 124 of 145 placed"));
        host.place("stage-26-half", port);
        QCOMPARE(button->cabinetCount(), 0);
        QVERIFY(!button->isEnabled());

        host.document.undoStack()->undo();
        QVERIFY(button->isEnabled());
        QCOMPARE(button->cabinetCount(), 1);
        QCOMPARE(button->accessibleName(), QString("Stage 2.6 half, 1 left"));
        host.document.push(new RemoveCabinetsCommand(host.project(), host.project()->line(port)));
        QCOMPARE(button->cabinetCount(), 2);
        QCOMPARE(host.cabinet(frameIndex, 5, 0)->cabinetCount(), 40);
        QVERIFY(host.cabinet(frameIndex, 5, 0)->isEnabled());
    }

    void aNewCountIsPainted()
    {
        Shown host;
        host.expand(frameIndex);
        ToolButtonEx *button = host.cabinet(frameIndex, 6, 0);
        QCoreApplication::processEvents();
        PaintCounter paints(button);
        host.place("stage-26", {frame, 6});
        QTRY_VERIFY(paints.count > 0);
    }

    void aClickOnACabinetAsksForIt()
    {
        Shown host;
        host.expand(frameIndex);
        QSignalSpy spy(host.panel.get(), &SenderPanel::placeRequested);
        windowmouse::press(host.cabinet(frameIndex, 6, 1));
        QVERIFY(host.selection.port() == PortRef({frame, 6}));
        QVERIFY(host.row(frameIndex, 6)->bPressed());
        QCOMPARE(spy.size(), 0);
        windowmouse::release(host.cabinet(frameIndex, 6, 1));
        QCOMPARE(spy.size(), 1);
        QVERIFY(spy.at(0).at(0).value<PortRef>() == PortRef({frame, 6}));
        QCOMPARE(spy.at(0).at(1).toString(), QString("stage-26-half"));
    }

    void theLastCabinetCanBePlacedInsideItsClick()
    {
        Shown host;
        host.expand(frameIndex);
        connect(
            host.panel.get(), &SenderPanel::placeRequested, this,
            [&host](const PortRef &port, const QString &modelId) { host.place(modelId, port); });
        ToolButtonEx *button = host.cabinet(frameIndex, 1, 0);
        QCOMPARE(button->cabinetCount(), 1);
        windowmouse::click(button);
        QCOMPARE(button->cabinetCount(), 0);
        QVERIFY(!button->isEnabled());
        windowmouse::click(button);
        QCOMPARE(host.project()->placedCount({frame, 1}, "banner-52"), 16);
    }

    void aPressThatEndsElsewhereAsksForNothing()
    {
        Shown host;
        host.expand(frameIndex);
        QSignalSpy spy(host.panel.get(), &SenderPanel::placeRequested);
        ToolButtonEx *button = host.cabinet(frameIndex, 6, 0);
        windowmouse::press(button, Qt::LeftButton, QPoint(5, 5));
        windowmouse::release(button, Qt::LeftButton, QPoint(-6, 5));
        QCOMPARE(spy.size(), 0);
        windowmouse::click(button, Qt::RightButton);
        QCOMPARE(spy.size(), 0);
        windowmouse::click(button);
        QCOMPARE(spy.size(), 1);
    }

    void keysChooseCabinetsAndPorts()
    {
        Shown host;
        host.expand(frameIndex);
        QSignalSpy spy(host.panel.get(), &SenderPanel::placeRequested);
        ToolButtonEx *button = host.cabinet(frameIndex, 6, 0);
        button->setFocus();
        QTRY_VERIFY(button->hasFocus());
        QTest::keyClick(host.panel->window()->windowHandle(), Qt::Key_Space);
        QCOMPARE(spy.size(), 1);
        QTest::keyClick(host.panel->window()->windowHandle(), Qt::Key_Return);
        QCOMPARE(spy.size(), 2);
        QVERIFY(host.selection.port() == PortRef({frame, 6}));
        QTest::keyClick(host.panel->window()->windowHandle(), Qt::Key_Tab);
        QCOMPARE(QApplication::focusWidget(), host.cabinet(frameIndex, 6, 1));

        portButton(host.row(frameIndex, 2))->setFocus();
        QTest::keyClick(host.panel->window()->windowHandle(), Qt::Key_Return);
        QVERIFY(host.selection.port() == PortRef({frame, 2}));
        portButton(host.row(frameIndex, 3))->setFocus();
        QTest::keyClick(host.panel->window()->windowHandle(), Qt::Key_Space);
        QVERIFY(host.selection.port() == PortRef({frame, 3}));

        shrinkButton(host.item(frameIndex))->setFocus();
        QTest::keyClick(host.panel->window()->windowHandle(), Qt::Key_Return);
        QVERIFY(!host.item(frameIndex)->getWorkSpaceIsShow());
        QTest::keyClick(host.panel->window()->windowHandle(), Qt::Key_Space);
        QVERIFY(host.item(frameIndex)->getWorkSpaceIsShow());
    }

    void checkBoxesStandForTheSelection()
    {
        Shown host;
        const CabinetIds ids = host.cabinetsOf(mainLeft);
        const auto look = [&host](int index) {
            const QCheckBox *box = checkBox(host.item(index));
            if (!box->isChecked())
                return QString("none");
            return QString(box->styleSheet().contains("partCheck") ? "part" : "all");
        };
        QCOMPARE(look(0), QString("none"));
        host.selection.setCabinets(ids.mid(0, 3));
        QCOMPARE(look(0), QString("part"));
        QCOMPARE(host.item(0)->deviceCount(), QString("3/120"));
        QCOMPARE(look(1), QString("none"));
        host.selection.setCabinets(ids);
        QCOMPARE(look(0), QString("all"));
        host.selection.setCabinets(host.project()->cabinetIds());
        QCOMPARE(look(3), QString("all"));
        host.selection.clear();
        QCOMPARE(look(0), QString("none"));

        // What is placed or removed counts, too.
        host.selection.setCabinets(ids);
        host.place("stage-26", {mainLeft, 1});
        QCOMPARE(look(0), QString("part"));
        host.document.undoStack()->undo();
        QCOMPARE(look(0), QString("all"));
        host.document.push(new RemoveCabinetsCommand(host.project(), ids.mid(0, 10)));
        QCOMPARE(look(0), QString("all"));
        QCOMPARE(host.item(0)->deviceCount(), QString("110/110"));
    }

    void checkingSelectsTheCabinetsOfTheSender()
    {
        Shown host;
        host.expand(1);
        host.panel->setEditing(true);
        const CabinetIds own = host.cabinetsOf(mainLeft);
        const CabinetIds other = host.cabinetsOf(frame).mid(0, 5);
        host.selection.setCabinets(other);
        windowmouse::click(checkBox(host.item(0)));
        QCOMPARE(asSet(host.selection.cabinets()), asSet(own + other));
        QVERIFY(!host.item(0)->getWorkSpaceIsShow());
        QVERIFY(host.item(1)->getWorkSpaceIsShow());
        QCOMPARE(host.panel->currentSender(), mainLeft);
        QVERIFY(!host.item(1)->getItemPressed());

        windowmouse::click(checkBox(host.item(0)));
        QCOMPARE(asSet(host.selection.cabinets()), asSet(other));

        host.document.push(new RemoveCabinetsCommand(host.project(), own));
        windowmouse::click(checkBox(host.item(0)));
        QVERIFY(!checkBox(host.item(0))->isChecked()); // there is nothing to select
    }

    void editingShowsBoxesAndKeepsHeadersStill()
    {
        Shown host;
        PushButtonEx *button = buttonNamed(host.panel.get(), "Select");
        QVERIFY(!checkBox(host.item(0))->isVisible());
        QVERIFY(rightButton(host.item(0))->isVisible());
        windowmouse::click(button);
        QVERIFY(host.panel->isEditing());
        QCOMPARE(button->text(), QString("Done"));
        QVERIFY(checkBox(host.item(0))->isVisible());
        QVERIFY(!rightButton(host.item(3))->isVisible());
        windowmouse::click(header(host.item(0)), Qt::LeftButton, QPoint(20, 20));
        QVERIFY(!host.item(0)->getWorkSpaceIsShow());

        Sender sender;
        sender.id = "new";
        host.document.push(new AddSenderCommand(host.project(), sender));
        QVERIFY(checkBox(host.item(4))->isVisible());
        button->setFocus();
        QTest::keyClick(host.panel->window()->windowHandle(), Qt::Key_Escape);
        QVERIFY(!host.panel->isEditing());
        QVERIFY(!checkBox(host.item(0))->isVisible());
        host.expand(0);
    }

    void followsSendersThatComeAndGo()
    {
        Shown host;
        host.expand(1);
        const auto names = [&host] {
            QStringList list;
            for (DrawerItem *item : host.drawer()->drawerItemList())
                list += item->getDeviceName();
            return list;
        };
        const QPointer<DrawerItem> removed = host.item(1);
        host.document.push(new RemoveSenderCommand(host.project(), "s2"));
        QCOMPARE(names(), QStringList({"Main left", "Frame", "Side right"}));
        QVERIFY(!removed->isVisible());
        QTRY_VERIFY(!removed);
        host.document.undoStack()->undo();
        QCOMPARE(names(), QStringList({"Main left", "Main right", "Frame", "Side right"}));
        QTRY_VERIFY(host.item(1)->y() > host.item(0)->y());
        QTRY_VERIFY(host.item(2)->y() > host.item(1)->y());
        host.expand(1);
        QVERIFY(!host.item(2)->getWorkSpaceIsShow());

        host.document.push(new ChangeSenderCommand(host.project(), "s2", "Renamed", "COM9", false));
        QCOMPARE(host.item(1)->getDeviceName(), QString("Renamed"));
        QCOMPARE(host.item(1)->getDevicePortName(), QString("COM9"));
        QVERIFY(!host.item(1)->getBOnline());
        QVERIFY(qobject_cast<OfflinePortItemContentFrame *>(host.item(1)->getItem()));
        QTRY_VERIFY(host.item(1)->getItem()->isVisible());
        host.document.undoStack()->undo();
        QVERIFY(qobject_cast<DrawerItemContent *>(host.item(1)->getItem()));
    }

    void followsAReset()
    {
        Shown host;
        host.expand(0);
        host.panel->setEditing(true);
        host.selection.setCabinets(host.project()->cabinetIds());
        host.document.reset(*generateProject(1500), QString());
        QCOMPARE(host.drawer()->drawerItemList().size(), host.project()->senderIds().size());
        QCOMPARE(host.drawer()->drawerItemList().size(), 3);
        QVERIFY(!checkBox(host.item(0))->isChecked());
        QVERIFY(checkBox(host.item(0))->isVisible());
        host.panel->setEditing(false);
        host.expand(2);
        host.document.reset(ProjectData(), QString());
        QVERIFY(host.drawer()->drawerItemList().isEmpty());
        QVERIFY(!buttonNamed(host.panel.get(), "Settings")->isEnabled());
    }

    void aModelNewToAPortComesIntoItsRow()
    {
        Shown host;
        host.expand(0);
        host.selection.setPort({mainLeft, 2});
        host.document.push(new ChangeStockCommand(host.project(), {mainLeft, 2}, "cube-39", 6));
        QCOMPARE(host.row(0, 2)->cabinetButtonList().size(), 2);
        QCOMPARE(host.cabinet(0, 2, 1)->cabinetCount(), 6);
        QVERIFY(host.row(0, 2)->bPressed());
        QTRY_VERIFY(host.cabinet(0, 2, 1)->isVisible());
        host.document.push(new ChangeStockCommand(host.project(), {mainLeft, 2}, "cube-39", 9));
        QCOMPARE(host.cabinet(0, 2, 1)->cabinetCount(), 9);
        host.document.undoStack()->undo();
        host.document.undoStack()->undo();
        QCOMPARE(host.row(0, 2)->cabinetButtonList().size(), 1);
    }

    void showsChangesOfModels()
    {
        Shown host;
        host.expand(frameIndex);
        CabinetModel model = *host.project()->model("stage-26-half");
        model.name = "Half panel";
        model.size = QSize(200, 100);
        model.weight = 9.6;
        host.document.push(new ChangeModelCommand(host.project(), model));
        const ToolButtonEx *button = host.cabinet(frameIndex, 6, 1);
        QCOMPARE(button->cabinetWidth(), 200);
        QCOMPARE(button->cabinetHeight(), 100);
        QCOMPARE(button->getCabinetweight(), 10);
        QCOMPARE(button->getCabnetInfo().extraText1, QString("Half panel"));
        QCOMPARE(button->cabinetCount(), 3);
    }

    void settingsChangeASender()
    {
        Shown host;
        const DialogAnswer answer([](QDialog *dialog) {
            const QList<LineEditEx *> edits = dialog->findChildren<LineEditEx *>();
            QCOMPARE(edits.at(0)->text(), QString("Main left"));
            QCOMPARE(edits.at(1)->text(), QString("COM3"));
            QVERIFY(dialog->findChildren<SpinBoxEx *>().isEmpty());
            edits.at(0)->setText("  Left ");
            edits.at(1)->setText("COM8");
            QTest::keyClick(edits.at(1), Qt::Key_Return);
        });
        windowmouse::click(rightButton(host.item(0)));
        QVERIFY(answer.wasAsked());
        QCOMPARE(host.project()->sender(mainLeft)->name, QString("Left"));
        QCOMPARE(host.project()->sender(mainLeft)->connection, QString("COM8"));
        QCOMPARE(host.item(0)->getDeviceName(), QString("Left"));
        host.document.undoStack()->undo();
        QCOMPARE(host.item(0)->getDeviceName(), QString("Main left"));
    }

    void settingsLeaveASenderThatIsNotChanged()
    {
        Shown host;
        const DialogAnswer unchanged("Apply");
        host.panel->changeSender(mainLeft);
        QVERIFY(unchanged.wasAsked());
        const DialogAnswer cancelled([](QDialog *dialog) {
            dialog->findChild<LineEditEx *>()->setText("Other");
            QTest::keyClick(dialog, Qt::Key_Escape);
        });
        host.panel->changeSender(mainLeft);
        QVERIFY(cancelled.wasAsked());
        QVERIFY(!host.document.isModified());
    }

    void anOfflineSenderIsBroughtBackByItsSettings()
    {
        Shown host;
        host.expand(sideRightIndex);
        const DialogAnswer answer([](QDialog *dialog) {
            dialog->findChild<CheckBoxEx *>()->setChecked(true);
            buttonNamed(dialog, "Apply")->click();
        });
        windowmouse::click(buttonNamed(host.panel.get(), "Settings"));
        QVERIFY(answer.wasAsked());
        QVERIFY(host.project()->sender(sideRight)->isOnline);
        QVERIFY(qobject_cast<DrawerItemContent *>(host.item(3)->getItem()));
    }

    void deletingAsksFirst()
    {
        Shown host;
        QFrame *place = header(host.item(3));
        QCursor::setPos(place->mapToGlobal(place->rect().center()));
        QTRY_VERIFY(rightButton(host.item(3))->isEnabled());
        const DialogAnswer no("Cancel");
        windowmouse::click(rightButton(host.item(3)));
        QVERIFY(no.wasAsked());
        QVERIFY(host.project()->sender(sideRight));

        shrinkButton(host.item(3))->setFocus();
        const DialogAnswer yes("Delete");
        QTest::keyClick(host.panel->window()->windowHandle(), Qt::Key_Delete);
        QVERIFY(yes.wasAsked());
        QVERIFY(!host.project()->sender(sideRight));
        QCOMPARE(host.drawer()->drawerItemList().size(), 3);
        QCOMPARE(host.project()->cabinetCount(), 363);
        host.document.undoStack()->undo();
        QCOMPARE(host.drawer()->drawerItemList().size(), 4);
    }

    void anOnlineSenderIsNotDeletedByAKey()
    {
        Shown host;
        shrinkButton(host.item(0))->setFocus();
        QTest::keyClick(host.panel->window()->windowHandle(), Qt::Key_Delete);
        QCOMPARE(host.project()->senderIds().size(), 4);
        QVERIFY(!QApplication::activeModalWidget());
    }

    void addsSenders()
    {
        Shown host;
        const DialogAnswer answer([](QDialog *dialog) {
            QCOMPARE(dialog->findChild<LineEditEx *>()->text(), QString("Sender 5"));
            dialog->findChild<SpinBoxEx *>()->setValue(2);
            buttonNamed(dialog, "Add")->click();
        });
        windowmouse::click(buttonNamed(host.panel.get(), "Add sender"));
        QVERIFY(answer.wasAsked());
        QCOMPARE(host.project()->senderIds().size(), 5);
        const Sender *sender = host.project()->sender("s5");
        QVERIFY(sender);
        QCOMPARE(sender->ports.size(), 2);
        QCOMPARE(sender->ports.at(1).number, 2);
        host.document.undoStack()->undo();
        QCOMPARE(host.drawer()->drawerItemList().size(), 4);

        const DialogAnswer cancelled("Cancel");
        host.panel->addSender();
        QVERIFY(cancelled.wasAsked());
        QCOMPARE(host.project()->senderIds().size(), 4);
    }

    void changesAfterThePanelIsGoneDoNoHarm()
    {
        Shown host;
        host.expand(frameIndex);
        host.panel.reset();
        host.place("stage-26", {frame, 6});
        host.selection.setPort({frame, 1});
        host.document.push(new RemoveSenderCommand(host.project(), frame));
        QCOMPARE(host.project()->senderIds().size(), 3);
    }
};

ORVANE_TEST_MAIN(TestWallSenders)
#include "tst_wallsenders.moc"
