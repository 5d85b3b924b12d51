#include "support/cabinetrecord.h"
#include "support/pointer.h"
#include "support/testcase.h"
#include "support/windowmouse.h"

#include <drawer.h>
#include <draweritem.h>
#include <draweritemcontent.h>
#include <rowlineitem.h>
#include <toolbuttonex.h>

namespace
{

/// The header of \a item and the button that expands and collapses it.
QFrame *header(const DrawerItem *item)
{
    return item->findChild<QFrame *>("FrameRight");
}

QToolButton *shrinkButton(const DrawerItem *item)
{
    return header(item)->parentWidget()->findChild<QToolButton *>(QString(),
                                                                  Qt::FindDirectChildrenOnly);
}

QToolButton *portButton(const RowLineItem *row)
{
    return row->findChild<QToolButton *>(QString(), Qt::FindDirectChildrenOnly);
}

/// A drawer with \a count items, each with a body.
struct Filled {
    explicit Filled(int count)
    {
        drawer->resize(500, 600);
        for (int i = 0; i < count; ++i) {
            auto *item = new DrawerItem(nullptr);
            item->setDeviceName(QString("Device %1").arg(i));
            auto *body = new QWidget;
            body->resize(300, 50);
            item->addItem(body);
            item->setScrollAreaHeight(50);
            drawer->addDrawerItem(item);
            items.append(item);
        }
    }

    /// Which items are expanded, and which are selected: one letter an item.
    QString expanded() const
    {
        QString text;
        for (DrawerItem *item : drawer->drawerItemList())
            text += item->getWorkSpaceIsShow() ? 'x' : '.';
        return text;
    }

    QString selected() const
    {
        QString text;
        for (DrawerItem *item : drawer->drawerItemList())
            text += item->getItemPressed() ? 'x' : '.';
        return text;
    }

    std::unique_ptr<Drawer> drawer = std::make_unique<Drawer>(nullptr);
    QList<QPointer<DrawerItem>> items;
};

/// What arrives at a host that names signals and slots by their signatures.
class SignatureHost : public QObject
{
    Q_OBJECT

public:
    QStringList events;

public Q_SLOTS:
    void onRow(RowLineItem *row) { events += QString("row %1").arg(row->portIndex()); }
    void onContentRow(RowLineItem *row) { events += QString("content %1").arg(row->portIndex()); }
    void onItemRow(DrawerItem *item, RowLineItem *row)
    {
        events += QString("item %1 %2").arg(item->getDeviceName()).arg(row->portIndex());
    }
    void onRowTaken(StructCabinet info) { add("row taken", info); }
    void onRowChanged(StructCabinet info) { add("row changed", info); }
    void onContentTaken(StructCabinet info) { add("content taken", info); }
    void onContentChanged(StructCabinet info) { add("content changed", info); }
    void onShrink(DrawerItem *item) { events += "shrink " + item->getDeviceName(); }
    void onSelected(DrawerItem *item) { events += "selected " + item->getDeviceName(); }
    void onNotify(DrawerItem *item)
    {
        events +=
            QString("drawer %1 %2").arg(item->getDeviceName()).arg(item->getWorkSpaceIsShow());
    }

private:
    void add(const QString &name, const StructCabinet &info)
    {
        events += name + ": " + cabinetFields(info).join(',');
    }
};

} // namespace

class TestDrawer : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void hasDefaults()
    {
        Drawer drawer(nullptr);
        QVERIFY(drawer.drawerItemList().isEmpty());
        QCOMPARE(drawer.getSelectItem(), -1);
        QVBoxLayout *layout = drawer.pVBoxlayout();
        QVERIFY(layout);
        QCOMPARE(drawer.layout(), layout);
        QCOMPARE(layout->spacing(), 10);
        QCOMPARE(layout->count(), 1);
        QVERIFY(layout->itemAt(0)->spacerItem());
        QCOMPARE(layout->stretch(0), 0);
    }

    void declaresItsSignalAndItsSlot()
    {
        const QMetaObject &meta = Drawer::staticMetaObject;
        QCOMPARE(meta.superClass(), &QWidget::staticMetaObject);
        QStringList methods;
        for (int i = meta.methodOffset(); i < meta.methodCount(); ++i) {
            methods += QString::fromLatin1(meta.method(i).methodSignature());
            QCOMPARE(meta.method(i).access(), QMetaMethod::Public);
        }
        QCOMPARE(methods,
                 (QStringList{"signal_notifyItem(DrawerItem*)", "on_notifyIsShrink(DrawerItem*)"}));
    }

    void itemsAreAddedAboveTheStretch()
    {
        Filled filled(3);
        QVBoxLayout *layout = filled.drawer->pVBoxlayout();
        QCOMPARE(layout->count(), 4);
        for (int i = 0; i < 3; ++i) {
            QCOMPARE(layout->itemAt(i)->widget(), filled.items.at(i).data());
            QCOMPARE(filled.items.at(i)->parentWidget(), filled.drawer.get());
            QCOMPARE(filled.drawer->drawerItemList().at(i), filled.items.at(i).data());
            QCOMPARE(filled.drawer->getItemIndexByDrawerItem(filled.items.at(i)), i);
        }
        QVERIFY(layout->itemAt(3)->spacerItem());
        DrawerItem stranger;
        QCOMPARE(filled.drawer->getItemIndexByDrawerItem(&stranger), -1);
        QCOMPARE(filled.drawer->getItemIndexByDrawerItem(nullptr), -1);

        QVERIFY(pointer::showAndWait(filled.drawer.get()));
        QCOMPARE(filled.items.at(1)->y(), filled.items.at(0)->geometry().bottom() + 11);
        QCOMPARE(filled.items.at(2)->height(), 42);
    }

    void aNullItemChangesNothing()
    {
        Filled filled(1);
        filled.drawer->addDrawerItem(nullptr);
        filled.drawer->removeDrawerItem(static_cast<DrawerItem *>(nullptr));
        QCOMPARE(filled.drawer->pVBoxlayout()->count(), 2);
        QCOMPARE(filled.drawer->drawerItemList().size(), 1);
        QVERIFY(filled.items.at(0));
    }

    void clicksExpandAndCollapse()
    {
        Filled filled(3);
        QVERIFY(pointer::showAndWait(filled.drawer.get()));
        QSignalSpy spy(filled.drawer.get(), &Drawer::signal_notifyItem);
        // The drawer has done its step when it reports.
        QString atSignal;
        connect(filled.drawer.get(), &Drawer::signal_notifyItem, this,
                [&] { atSignal = filled.expanded(); });
        const auto check = [&](int item, const QString &expected, int count) {
            QCOMPARE(filled.expanded(), expected);
            QCOMPARE(atSignal, expected);
            QCOMPARE(spy.count(), count);
            QCOMPARE(spy.last().at(0).value<DrawerItem *>(), filled.items.at(item).data());
            for (DrawerItem *each : filled.drawer->drawerItemList())
                QCOMPARE(each->scrollArea()->isVisible(), each->getWorkSpaceIsShow());
        };
        windowmouse::click(header(filled.items.at(0)));
        check(0, "x..", 1);
        QCoreApplication::processEvents();
        windowmouse::click(header(filled.items.at(2)));
        check(2, "..x", 2);
        QCoreApplication::processEvents();
        windowmouse::click(shrinkButton(filled.items.at(1)));
        check(1, ".x.", 3);
        QCoreApplication::processEvents();
        windowmouse::click(header(filled.items.at(1)));
        check(1, "...", 4);
        QCOMPARE(filled.selected(), QString("..."));
    }

    void setDrawerItemContentShowIsTheStepAlone()
    {
        Filled filled(3);
        QSignalSpy spy(filled.drawer.get(), &Drawer::signal_notifyItem);
        filled.items.at(1)->setDrawItemPressed(true);
        filled.drawer->setDrawerItemContentShow(filled.items.at(0));
        QCOMPARE(filled.expanded(), QString("x.."));
        filled.drawer->setDrawerItemContentShow(filled.items.at(0));
        QCOMPARE(filled.expanded(), QString("..."));
        // Several that the host has expanded itself.
        filled.items.at(0)->setWorkSpaceisShow(true);
        filled.items.at(2)->setWorkSpaceisShow(true);
        filled.drawer->setDrawerItemContentShow(filled.items.at(2));
        QCOMPARE(filled.expanded(), QString("..."));
        filled.items.at(0)->setWorkSpaceisShow(true);
        DrawerItem stranger;
        stranger.setWorkSpaceisShow(true);
        filled.drawer->setDrawerItemContentShow(&stranger);
        QCOMPARE(filled.expanded(), QString("..."));
        QVERIFY(stranger.getWorkSpaceIsShow());
        filled.items.at(0)->setWorkSpaceisShow(true);
        filled.drawer->setDrawerItemContentShow(nullptr);
        QCOMPARE(filled.expanded(), QString("..."));
        QCOMPARE(filled.selected(), QString(".x."));
        QCOMPARE(spy.count(), 0);
    }

    void theSlotReportsTheItem()
    {
        Filled filled(2);
        QSignalSpy spy(filled.drawer.get(), &Drawer::signal_notifyItem);
        filled.drawer->on_notifyIsShrink(filled.items.at(1));
        QCOMPARE(filled.expanded(), QString(".x"));
        QCOMPARE(spy.count(), 1);
        QCOMPARE(spy.at(0).at(0).value<DrawerItem *>(), filled.items.at(1).data());
    }

    void selectsByIndex()
    {
        Filled filled(3);
        QSignalSpy spy(filled.drawer.get(), &Drawer::signal_notifyItem);
        filled.items.at(0)->setWorkSpaceisShow(true);
        filled.items.at(2)->setDrawItemPressed(true);
        filled.drawer->setSelectItemByIndex(1);
        QCOMPARE(filled.drawer->getSelectItem(), 1);
        QCOMPARE(filled.expanded(), QString(".x."));
        QCOMPARE(filled.selected(), QString(".x."));
        // The selected item again: it does not collapse.
        filled.drawer->setSelectItemByIndex(1);
        QCOMPARE(filled.expanded(), QString(".x."));
        filled.drawer->setSelectItemByIndex(0);
        QCOMPARE(filled.expanded(), QString("x.."));
        QCOMPARE(filled.selected(), QString("x.."));
        QCOMPARE(spy.count(), 0);
    }

    void anIndexOutsideSelectsNone_data()
    {
        QTest::addColumn<int>("index");
        QTest::newRow("behind") << 3;
        QTest::newRow("negative") << -1;
        QTest::newRow("far") << std::numeric_limits<int>::max();
    }

    void anIndexOutsideSelectsNone()
    {
        QFETCH(int, index);
        Filled filled(3);
        filled.drawer->setSelectItemByIndex(1);
        filled.drawer->setSelectItemByIndex(index);
        QCOMPARE(filled.drawer->getSelectItem(), -1);
        QCOMPARE(filled.expanded(), QString("..."));
        Drawer empty;
        empty.setSelectItemByIndex(index);
        QCOMPARE(empty.getSelectItem(), -1);
    }

    void theSelectedItemIsTheFirstPressedOne()
    {
        Filled filled(3);
        filled.items.at(2)->setDrawItemPressed(true);
        QCOMPARE(filled.drawer->getSelectItem(), 2);
        filled.items.at(1)->setDrawItemPressed(true);
        QCOMPARE(filled.drawer->getSelectItem(), 1);
        filled.items.at(1)->setDrawItemPressed(false);
        filled.items.at(2)->setDrawItemPressed(false);
        QCOMPARE(filled.drawer->getSelectItem(), -1);
    }

    void removesByIndex()
    {
        Filled filled(5);
        QVERIFY(pointer::showAndWait(filled.drawer.get()));
        QSignalSpy spy(filled.drawer.get(), &Drawer::signal_notifyItem);
        filled.drawer->setSelectItemByIndex(2);
        for (const int index : {5, 6, -1}) {
            filled.drawer->removeDrawerItem(index);
            QCOMPARE(filled.drawer->drawerItemList().size(), 5);
        }
        filled.drawer->removeDrawerItem(2);
        QCOMPARE(filled.drawer->drawerItemList().size(), 4);
        QCOMPARE(filled.drawer->getItemIndexByDrawerItem(filled.items.at(3)), 2);
        QCOMPARE(filled.drawer->getSelectItem(), -1);
        // The item lives on until the event loop runs, and is not listened to any more.
        QVERIFY(filled.items.at(2));
        filled.items.at(0)->setWorkSpaceisShow(true);
        Q_EMIT filled.items.at(2)->notifyIsShrink(filled.items.at(2));
        QCOMPARE(spy.count(), 0);
        QCOMPARE(filled.expanded(), QString("x..."));
        QTRY_VERIFY(filled.items.at(2).isNull());
        QCOMPARE(filled.drawer->pVBoxlayout()->count(), 5);
    }

    void removesByPointer()
    {
        Filled filled(3);
        QSignalSpy spy(filled.drawer.get(), &Drawer::signal_notifyItem);
        filled.drawer->setSelectItemByIndex(1);
        filled.drawer->removeDrawerItem(filled.items.at(1).data());
        QCOMPARE(filled.drawer->getSelectItem(), -1);
        QCOMPARE(filled.drawer->drawerItemList(),
                 (QList<DrawerItem *>{filled.items.at(0), filled.items.at(2)}));
        // Its signal still arrives until it is deleted.
        Q_EMIT filled.items.at(1)->notifyIsShrink(filled.items.at(1));
        QCOMPARE(spy.count(), 1);
        QTRY_VERIFY(filled.items.at(1).isNull());

        QPointer<DrawerItem> stranger = new DrawerItem;
        filled.drawer->removeDrawerItem(stranger.data());
        QCOMPARE(filled.drawer->drawerItemList().size(), 2);
        QTRY_VERIFY(stranger.isNull());
    }

    void clearRemovesAll()
    {
        Filled filled(3);
        filled.drawer->setSelectItemByIndex(1);
        filled.drawer->clearDrawerItems();
        QVERIFY(filled.drawer->drawerItemList().isEmpty());
        QCOMPARE(filled.drawer->getSelectItem(), -1);
        for (const auto &item : filled.items)
            QVERIFY(item);
        QTRY_COMPARE(filled.drawer->pVBoxlayout()->count(), 1);
        for (const auto &item : filled.items)
            QVERIFY(item.isNull());
        filled.drawer->clearDrawerItems();
        QVERIFY(filled.drawer->drawerItemList().isEmpty());
        // And it can be filled again.
        auto *item = new DrawerItem;
        filled.drawer->addDrawerItem(item);
        QCOMPARE(filled.drawer->pVBoxlayout()->itemAt(0)->widget(), item);
    }

    void theListIsThatOfTheHost()
    {
        Filled filled(3);
        QVERIFY(pointer::showAndWait(filled.drawer.get()));
        const auto list = filled.drawer->drawerItemList();
        filled.drawer->setDrawerItemList(list);
        QCOMPARE(filled.drawer->drawerItemList(), list);
        windowmouse::click(header(list.at(1)));
        QCOMPARE(filled.expanded(), QString(".x.")); // connected once, as before
        QCoreApplication::processEvents();

        // An item that is not listed is still connected and laid out.
        filled.drawer->setDrawerItemList({list.at(2), list.at(0)});
        QCOMPARE(filled.drawer->getItemIndexByDrawerItem(list.at(0)), 1);
        QCOMPARE(filled.drawer->getItemIndexByDrawerItem(list.at(1)), -1);
        QCOMPARE(filled.drawer->pVBoxlayout()->count(), 4);
        QVERIFY(list.at(1)->getWorkSpaceIsShow());
        list.at(0)->setWorkSpaceisShow(true);
        QSignalSpy spy(filled.drawer.get(), &Drawer::signal_notifyItem);
        windowmouse::click(header(list.at(1)));
        QCOMPARE(spy.count(), 1);
        QCOMPARE(filled.expanded(), QString(".."));
        QVERIFY(list.at(1)->getWorkSpaceIsShow());
    }

    void theLayoutIsThatOfTheHost()
    {
        Drawer drawer;
        QPointer<QVBoxLayout> own = drawer.pVBoxlayout();
        drawer.setPVBoxlayout(nullptr);
        QVERIFY(!drawer.pVBoxlayout());
        QWidget elsewhere;
        auto *item = new DrawerItem(&elsewhere);
        drawer.addDrawerItem(item);
        QCOMPARE(item->parentWidget(), &elsewhere);
        QCOMPARE(drawer.drawerItemList(), QList<DrawerItem *>{item});
        QCOMPARE(own->count(), 1);
        QSignalSpy spy(&drawer, &Drawer::signal_notifyItem);
        Q_EMIT item->notifyIsShrink(item);
        QCOMPARE(spy.count(), 1);

        auto *other = new QVBoxLayout(&elsewhere);
        drawer.setPVBoxlayout(other);
        QCOMPARE(drawer.pVBoxlayout(), other);
        QCOMPARE(drawer.layout(), own.data());
        auto *second = new DrawerItem;
        drawer.addDrawerItem(second); // the layout is empty
        auto *third = new DrawerItem;
        drawer.addDrawerItem(third);
        QCOMPARE(second->parentWidget(), &elsewhere);
        QCOMPARE(other->indexOf(third), 0); // above the last, as above a stretch
        QCOMPARE(other->indexOf(second), 1);
    }

    void theDrawerDeletesTheLayoutThatItHas()
    {
        QWidget elsewhere;
        QPointer<QVBoxLayout> other = new QVBoxLayout(&elsewhere);
        QPointer<QVBoxLayout> own;
        {
            Drawer drawer;
            own = drawer.pVBoxlayout();
            drawer.setPVBoxlayout(other);
        }
        QVERIFY(other.isNull());
        QVERIFY(own.isNull());
        QVERIFY(!elsewhere.layout());
        Drawer drawer;
        delete drawer.pVBoxlayout();
        QVERIFY(!drawer.pVBoxlayout());
    }

    void thePressTravelsFromTheRowToTheHost_data()
    {
        QTest::addColumn<bool>("bySignature");
        QTest::newRow("signature texts") << true;
        QTest::newRow("member pointers") << false;
    }

    // Record in, then a press on a cabinet, on a port button and on the header: at each level the
    // host hears of it, whichever way it is connected.
    void thePressTravelsFromTheRowToTheHost()
    {
        QFETCH(bool, bySignature);
        Drawer drawer;
        drawer.resize(500, 500);
        auto *item = new DrawerItem(&drawer);
        item->setDeviceName("S1");
        auto *content = new DrawerItemContent(nullptr);
        content->addRowLineItem(1, PortItem, {cabinetRecord(1)});
        content->addRowLineItem(2, CoaxialItem, {cabinetRecord(2), cabinetRecord(3)});
        item->addItem(content);
        item->setScrollAreaHeight(content->height());
        drawer.addDrawerItem(item);
        RowLineItem *row = content->lsRowLineItems().at(1);
        QVERIFY(connect(content, SIGNAL(signal_ItemContentPortItemPressed(RowLineItem *)), item,
                        SLOT(on_itemContentPortItemPressed(RowLineItem *))));

        SignatureHost host;
        if (bySignature) {
            const auto link = [&](const QObject *sender, const char *signal, const char *slot) {
                QVERIFY2(connect(sender, signal, &host, slot), signal);
            };
            link(row, SIGNAL(signal_portItemPressed(RowLineItem *)), SLOT(onRow(RowLineItem *)));
            link(row, SIGNAL(signal_notifyAddBeenTakenCabinetModel(StructCabinet)),
                 SLOT(onRowTaken(StructCabinet)));
            link(row, SIGNAL(signal_notifyChangedPortInfo(StructCabinet)),
                 SLOT(onRowChanged(StructCabinet)));
            link(content, SIGNAL(signal_ItemContentPortItemPressed(RowLineItem *)),
                 SLOT(onContentRow(RowLineItem *)));
            link(content, SIGNAL(signal_notifyAddBeenTakenCabinetModel(StructCabinet)),
                 SLOT(onContentTaken(StructCabinet)));
            link(content, SIGNAL(signal_notifyChangedPortInfo(StructCabinet)),
                 SLOT(onContentChanged(StructCabinet)));
            link(item, SIGNAL(signal_ItemContentPortItemPressed(DrawerItem *, RowLineItem *)),
                 SLOT(onItemRow(DrawerItem *, RowLineItem *)));
            link(item, SIGNAL(notifyIsShrink(DrawerItem *)), SLOT(onShrink(DrawerItem *)));
            link(item, SIGNAL(signals_selectedCurrentItem(DrawerItem *)),
                 SLOT(onSelected(DrawerItem *)));
            link(&drawer, SIGNAL(signal_notifyItem(DrawerItem *)), SLOT(onNotify(DrawerItem *)));
        } else {
            using Host = SignatureHost;
            connect(row, &RowLineItem::signal_portItemPressed, &host, &Host::onRow);
            connect(row, &RowLineItem::signal_notifyAddBeenTakenCabinetModel, &host,
                    &Host::onRowTaken);
            connect(row, &RowLineItem::signal_notifyChangedPortInfo, &host, &Host::onRowChanged);
            connect(content, &DrawerItemContent::signal_ItemContentPortItemPressed, &host,
                    &Host::onContentRow);
            connect(content, &DrawerItemContent::signal_notifyAddBeenTakenCabinetModel, &host,
                    &Host::onContentTaken);
            connect(content, &DrawerItemContent::signal_notifyChangedPortInfo, &host,
                    &Host::onContentChanged);
            connect(item, &DrawerItem::signal_ItemContentPortItemPressed, &host, &Host::onItemRow);
            connect(item, &DrawerItem::notifyIsShrink, &host, &Host::onShrink);
            connect(item, &DrawerItem::signals_selectedCurrentItem, &host, &Host::onSelected);
            connect(&drawer, &Drawer::signal_notifyItem, &host, &Host::onNotify);
        }
        const auto take = [&] {
            QStringList events;
            events.swap(host.events);
            return events;
        };

        QVERIFY(pointer::showAndWait(&drawer));
        QVERIFY(!row->isVisible());
        // The drawer listens since the item was added, the host since after that.
        windowmouse::click(header(item));
        QCOMPARE(take(), (QStringList{"drawer S1 1", "shrink S1", "selected S1"}));
        QTRY_VERIFY(row->isVisible());
        QCoreApplication::processEvents();

        // The item was connected to the body before the host was.
        windowmouse::press(portButton(row));
        QCOMPARE(take(), (QStringList{"item S1 2", "content 2", "row 2"}));
        windowmouse::release(portButton(row));
        QCOMPARE(take(), QStringList());

        ToolButtonEx *cabinet = row->cabinetButtonList().at(1);
        const QString pressed = cabinetFields(cabinetRecord(3)).join(',');
        windowmouse::press(cabinet);
        QCOMPARE(take(), (QStringList{"content changed: " + pressed, "row changed: " + pressed}));
        StructCabinet record = cabinetRecord(3);
        record.cabinetweight = cabinet->getCabinetweight();
        const QString released = cabinetFields(record).join(',');
        windowmouse::release(cabinet);
        QCOMPARE(take(), (QStringList{"content taken: " + released, "row taken: " + released}));

        windowmouse::click(shrinkButton(item));
        QCOMPARE(take(), (QStringList{"drawer S1 0", "shrink S1", "selected S1"}));
        QVERIFY(!row->isVisible());
    }

    void deletedItemsLeaveTheList()
    {
        Filled filled(3);
        filled.drawer->setSelectItemByIndex(2);
        delete filled.items.at(0);
        QCOMPARE(filled.drawer->getSelectItem(), 1);
        QCOMPARE(filled.drawer->getItemIndexByDrawerItem(filled.items.at(2)), 1);
        QCOMPARE(filled.drawer->drawerItemList().size(), 2);
        filled.drawer->setDrawerItemContentShow(filled.items.at(1));
        QCOMPARE(filled.expanded(), QString("x."));
        delete filled.items.at(1);
        filled.drawer->setSelectItemByIndex(0);
        QVERIFY(filled.items.at(2)->getItemPressed());
        delete filled.items.at(2);
        filled.drawer->clearDrawerItems();
        QCOMPARE(filled.drawer->getSelectItem(), -1);
    }

    void itemsAndDrawerCanGoInTheNotifications_data()
    {
        QTest::addColumn<QString>("signal");
        QTest::addColumn<QString>("action");
        for (const auto *signal : {"shrink", "selected", "notify"}) {
            for (const auto *action :
                 {"delete item", "delete drawer", "delete all items", "remove by index",
                  "remove by pointer", "clear", "replace the list"})
                QTest::addRow("%s in %s", action, signal) << signal << action;
        }
    }

    void itemsAndDrawerCanGoInTheNotifications()
    {
        QFETCH(QString, signal);
        QFETCH(QString, action);
        for (const bool byHeader : {true, false}) {
            Filled filled(3);
            Drawer *drawer = filled.drawer.get();
            filled.drawer->setSelectItemByIndex(2);
            QVERIFY(pointer::showAndWait(drawer));
            const QPointer<DrawerItem> clicked = filled.items.at(1);
            int calls = 0;
            const auto act = [&] {
                ++calls;
                if (action == "delete item")
                    delete clicked;
                else if (action == "delete drawer")
                    filled.drawer.reset();
                else if (action == "delete all items")
                    qDeleteAll(drawer->drawerItemList());
                else if (action == "remove by index")
                    drawer->removeDrawerItem(1);
                else if (action == "remove by pointer")
                    drawer->removeDrawerItem(clicked.data());
                else if (action == "clear")
                    drawer->clearDrawerItems();
                else
                    drawer->setDrawerItemList(drawer->drawerItemList());
            };
            if (signal == "shrink")
                connect(clicked, &DrawerItem::notifyIsShrink, this, act);
            else if (signal == "selected")
                connect(clicked, &DrawerItem::signals_selectedCurrentItem, this, act);
            else
                connect(drawer, &Drawer::signal_notifyItem, this, act);

            windowmouse::click(byHeader ? static_cast<QWidget *>(header(clicked))
                                        : shrinkButton(clicked));
            QCOMPARE(calls, 1);
            QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
            const int gone = action == "replace the list" ? 0
                : action == "delete drawer" || action == "delete all items" || action == "clear"
                ? 3
                : 1;
            int deleted = 0;
            for (const auto &item : filled.items)
                deleted += item.isNull() ? 1 : 0;
            QCOMPARE(deleted, gone);
            QCOMPARE(clicked.isNull(), gone > 0);
            QCOMPARE(filled.drawer == nullptr, action == "delete drawer");
            if (filled.drawer)
                QCOMPARE(filled.drawer->drawerItemList().size(), 3 - gone);
        }
    }

    void bodiesMayDeleteOtherItemsWhenShownAndHidden_data()
    {
        QTest::addColumn<int>("victim");
        QTest::newRow("the clicked one") << 2;
        QTest::newRow("one that comes later") << 1;
        QTest::newRow("one that was before") << 0;
    }

    void bodiesMayDeleteOtherItemsWhenShownAndHidden()
    {
        QFETCH(int, victim);
        struct Body : QWidget {
            std::function<void()> onHide;
            void hideEvent(QHideEvent *) override
            {
                if (onHide)
                    onHide();
            }
        };
        Filled filled(4);
        auto *body = new Body;
        body->resize(300, 50);
        // The second item is expanded; collapsing it deletes another one.
        filled.items.at(1)->addItem(body);
        const QPointer<DrawerItem> target = filled.items.at(victim == 2 ? 3 : victim == 1 ? 2 : 0);
        const QPointer<DrawerItem> clicked = filled.items.at(3);
        filled.drawer->setDrawerItemContentShow(filled.items.at(1));
        QVERIFY(pointer::showAndWait(filled.drawer.get()));
        QSignalSpy spy(filled.drawer.get(), &Drawer::signal_notifyItem);
        body->onHide = [&] { delete target; };
        filled.drawer->on_notifyIsShrink(clicked);
        QVERIFY(target.isNull());
        body->onHide = nullptr;
        QCOMPARE(filled.drawer->drawerItemList().size(), 3);
        QCOMPARE(filled.expanded(), clicked ? QString("..x") : QString("..."));
        // A deleted item is not reported.
        QCOMPARE(spy.count(), clicked ? 1 : 0);
    }

    void nothingOfADrawerOutlivesIt_data()
    {
        QTest::addColumn<bool>("hasParent");
        QTest::addColumn<bool>("isShown");
        QTest::newRow("alone") << false << false;
        QTest::newRow("alone, shown") << false << true;
        QTest::newRow("with its parent") << true << false;
        QTest::newRow("with its parent, shown") << true << true;
    }

    void nothingOfADrawerOutlivesIt()
    {
        QFETCH(bool, hasParent);
        QFETCH(bool, isShown);
        auto window = std::make_unique<QWidget>();
        Filled filled(3);
        if (hasParent)
            filled.drawer->setParent(window.get());
        for (const auto &item : filled.items)
            item->setWorkSpaceisShow(true);
        if (isShown)
            QVERIFY(pointer::showAndWait(filled.drawer.get()));
        filled.drawer->removeDrawerItem(0); // still waiting for the event loop
        QList<QPointer<QObject>> parts;
        for (QObject *part : filled.drawer->findChildren<QObject *>())
            parts.append(part);
        if (hasParent) {
            filled.drawer.release(); // the window's
            window.reset();
        } else {
            filled.drawer.reset();
        }
        // Without an event loop, too.
        for (const QPointer<QObject> &part : parts)
            QVERIFY(part.isNull());
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }
};

ORVANE_TEST_MAIN(TestDrawer)
#include "tst_drawer.moc"
