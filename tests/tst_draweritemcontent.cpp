#include "support/cabinetrecord.h"
#include "support/pointer.h"
#include "support/testcase.h"
#include "support/windowmouse.h"

#include <draweritemcontent.h>
#include <rowlineitem.h>
#include <toolbuttonex.h>

#include <limits>

namespace
{

ToolButtonEx *portButton(const RowLineItem *row)
{
    return row->findChild<ToolButtonEx *>(QString(), Qt::FindDirectChildrenOnly);
}

QString numberText(const RowLineItem *row)
{
    return row->findChild<QLabel *>(QString(), Qt::FindDirectChildrenOnly)->text();
}

/// What arrives at a host that names signals and slots by their signatures.
class SignatureHost : public QObject
{
    Q_OBJECT

public:
    QList<StructCabinet> taken;
    QList<StructCabinet> changed;
    QList<RowLineItem *> pressed;

public Q_SLOTS:
    void onTaken(StructCabinet info) { taken.append(info); }
    void onChanged(StructCabinet info) { changed.append(info); }
    void onPressed(RowLineItem *row) { pressed.append(row); }
};

} // namespace

class TestDrawerItemContent : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void hasDefaults()
    {
        DrawerItemContent content(nullptr);
        QCOMPARE(content.index(), 0);
        QVERIFY(content.lsRowLineItems().isEmpty());
        QCOMPARE(content.objectName(), QString());
        auto *layout = qobject_cast<QVBoxLayout *>(content.layout());
        QVERIFY(layout);
        QCOMPARE(layout->spacing(), 0);
        QCOMPARE(layout->contentsMargins(), QMargins());
        QCOMPARE(layout->count(), 0);
        QCOMPARE(content.styleSheet(),
                 QString("QWidget#DrawerItemContent{background:rgb(69,69,69);}"
                         "QToolTip{background-color:rgb(56,56,56);color:rgb(178,178,178);"
                         "font:SimSun Arial;border:1px solid rgb(128,128,128);}"));
    }

    void declaresItsSignalsAndItsSlots()
    {
        const QMetaObject &meta = DrawerItemContent::staticMetaObject;
        QCOMPARE(meta.superClass(), &QWidget::staticMetaObject);
        QStringList methods;
        for (int i = meta.methodOffset(); i < meta.methodCount(); ++i) {
            methods += QString::fromLatin1(meta.method(i).methodSignature());
            QCOMPARE(meta.method(i).access(),
                     i < meta.methodOffset() + 3 ? QMetaMethod::Public : QMetaMethod::Private);
        }
        QCOMPARE(methods,
                 (QStringList{"signal_notifyAddBeenTakenCabinetModel(StructCabinet)",
                              "signal_notifyChangedPortInfo(StructCabinet)",
                              "signal_ItemContentPortItemPressed(RowLineItem*)",
                              "notifyAddBeenTakenCabinetModel(StructCabinet)",
                              "on_portItemPressed(RowLineItem*)",
                              "on_notifyChangedPortInfo(StructCabinet)"}));
    }

    void theBackgroundIsThatOfANamedBody_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QColor>("expected");
        QTest::newRow("named") << "DrawerItemContent" << QColor(69, 69, 69);
        QTest::newRow("not named") << "" << QColor(255, 0, 0);
    }

    void theBackgroundIsThatOfANamedBody()
    {
        QFETCH(QString, name);
        QFETCH(QColor, expected);
        QWidget panel;
        QPalette palette;
        palette.setColor(QPalette::Window, Qt::red);
        panel.setPalette(palette);
        panel.resize(300, 200);
        DrawerItemContent content(&panel);
        content.setObjectName(name);
        content.setGeometry(10, 10, 200, 100);
        QVERIFY(pointer::showAndWait(&panel));
        QCOMPARE(pointer::colorAt(&panel, QPoint(50, 50)), expected);
    }

    void rowsAreAddedAtTheBottom()
    {
        DrawerItemContent content;
        content.addRowLineItem(4, PortItem, {cabinetRecord(1), cabinetRecord(2)});
        QCOMPARE(content.height(), 74);
        content.addRowLineItem(2, CoaxialItem, {});
        QCOMPARE(content.height(), 148);
        content.addRowLineItem(9, PortItem, {cabinetRecord(3)});
        QCOMPARE(content.height(), 222);
        QCOMPARE(content.minimumHeight(), 222);
        QCOMPARE(content.maximumHeight(), 222);
        QCOMPARE(content.index(), 3);

        const auto rows = content.lsRowLineItems();
        QCOMPARE(rows.size(), 3);
        QCOMPARE(content.layout()->count(), 3);
        const QList<int> ports{4, 2, 9};
        const QList<int> cabinets{2, 0, 1};
        const QStringList kinds{"Port_normal_4", "coaxial_normal_2", "Port_normal_9"};
        for (int i = 0; i < 3; ++i) {
            QCOMPARE(rows.at(i)->parentWidget(), &content);
            QCOMPARE(content.layout()->itemAt(i)->widget(), rows.at(i));
            QCOMPARE(rows.at(i)->portIndex(), ports.at(i));
            QCOMPARE(numberText(rows.at(i)), QString::number(ports.at(i)));
            QCOMPARE(rows.at(i)->cabinetButtonList().size(), cabinets.at(i));
            QVERIFY(portButton(rows.at(i))->styleSheet().contains(kinds.at(i)));
        }
        QCOMPARE(cabinetFields(rows.at(0)->cabinetButtonList().at(1)->getCabnetInfo()),
                 cabinetFields(cabinetRecord(2)));

        QVERIFY(pointer::showAndWait(&content));
        for (int i = 0; i < 3; ++i) {
            QCOMPARE(rows.at(i)->geometry(), QRect(0, 74 * i, content.width(), 74));
            for (const ToolButtonEx *button : rows.at(i)->cabinetButtonList())
                QVERIFY(button->isVisible());
        }
    }

    void aRowAddedToAShownBodyIsShown()
    {
        DrawerItemContent content;
        content.addRowLineItem(1, PortItem, {});
        QVERIFY(pointer::showAndWait(&content));
        content.addRowLineItem(2, PortItem, {cabinetRecord(1)});
        const RowLineItem *row = content.lsRowLineItems().at(1);
        QTRY_VERIFY(row->isVisible());
        QVERIFY(row->cabinetButtonList().at(0)->isVisible());
        QTRY_COMPARE(row->y(), 74);
    }

    void theIndexCountsOnFromWhatWasSet()
    {
        DrawerItemContent content;
        content.setIndex(10);
        QCOMPARE(content.index(), 10);
        content.addRowLineItem(1, PortItem, {});
        QCOMPARE(content.index(), 11);
        QCOMPARE(content.height(), 74);
    }

    void theIndexStaysAtTheLastNumber()
    {
        DrawerItemContent body;
        body.setIndex(std::numeric_limits<int>::max());
        body.addRowLineItem(1, PortItem, {});
        QCOMPARE(body.index(), std::numeric_limits<int>::max());
    }

    void theListIsThatOfTheHost()
    {
        DrawerItemContent content;
        for (int i = 1; i <= 3; ++i)
            content.addRowLineItem(i, PortItem, {});
        const auto rows = content.lsRowLineItems();
        content.setLsRowLineItems(rows);
        QCOMPARE(content.lsRowLineItems(), rows);
        content.setLsRowLineItems({rows.at(1)});
        QCOMPARE(content.lsRowLineItems(), (QList<RowLineItem *>{rows.at(1)}));
        QCOMPARE(content.height(), 222);
        QCOMPARE(content.layout()->count(), 3);
        QCOMPARE(rows.at(0)->parentWidget(), &content);
        // The height follows the list at the next row.
        content.addRowLineItem(4, PortItem, {});
        QCOMPARE(content.height(), 148);
    }

    void toolTipTextsAndHoverDoNothing()
    {
        DrawerItemContent content;
        content.addRowLineItem(1, PortItem, {});
        const QString sheet = content.styleSheet();
        content.setToolTipText("ports");
        QCOMPARE(content.toolTip(), QString());
        QEvent enter(QEvent::Enter);
        content.enterEvent(&enter);
        QEvent leave(QEvent::Leave);
        content.leaveEvent(&leave);
        QCOMPARE(content.styleSheet(), sheet);
    }

    void pressesReachSpies()
    {
        DrawerItemContent content;
        QSignalSpy pressed(&content, &DrawerItemContent::signal_ItemContentPortItemPressed);
        content.addRowLineItem(1, PortItem, {});
        RowLineItem *row = content.lsRowLineItems().at(0);
        portButton(row)->click();
        QCOMPARE(pressed.size(), 1);
        QCOMPARE(pressed.at(0).at(0).value<RowLineItem *>(), row);
    }

    void pressesArePassedOn()
    {
        DrawerItemContent content;
        content.addRowLineItem(1, PortItem, {cabinetRecord(1)});
        content.addRowLineItem(2, PortItem, {cabinetRecord(2), cabinetRecord(3)});
        QVERIFY(pointer::showAndWait(&content));

        SignatureHost host;
        QVERIFY(connect(&content, SIGNAL(signal_notifyAddBeenTakenCabinetModel(StructCabinet)),
                        &host, SLOT(onTaken(StructCabinet))));
        QVERIFY(connect(&content, SIGNAL(signal_notifyChangedPortInfo(StructCabinet)), &host,
                        SLOT(onChanged(StructCabinet))));
        QVERIFY(connect(&content, SIGNAL(signal_ItemContentPortItemPressed(RowLineItem *)), &host,
                        SLOT(onPressed(RowLineItem *))));
        QList<StructCabinet> taken;
        QList<StructCabinet> changed;
        QList<RowLineItem *> pressed;
        connect(&content, &DrawerItemContent::signal_notifyAddBeenTakenCabinetModel, this,
                [&](const StructCabinet &info) { taken.append(info); });
        connect(&content, &DrawerItemContent::signal_notifyChangedPortInfo, this,
                [&](const StructCabinet &info) { changed.append(info); });
        connect(&content, &DrawerItemContent::signal_ItemContentPortItemPressed, this,
                [&](RowLineItem *row) { pressed.append(row); });

        RowLineItem *second = content.lsRowLineItems().at(1);
        windowmouse::click(portButton(second));
        QCOMPARE(pressed, QList<RowLineItem *>{second});
        QCOMPARE(host.pressed, pressed);

        windowmouse::press(second->cabinetButtonList().at(1));
        QCOMPARE(changed.size(), 1);
        QCOMPARE(cabinetFields(changed.at(0)), cabinetFields(cabinetRecord(3)));
        QVERIFY(taken.isEmpty());
        windowmouse::release(second->cabinetButtonList().at(1));
        QCOMPARE(changed.size(), 1);
        QCOMPARE(taken.size(), 1);
        StructCabinet expected = cabinetRecord(3);
        expected.cabinetweight = 5; // the button's own
        QCOMPARE(cabinetFields(taken.at(0)), cabinetFields(expected));
        QCOMPARE(host.changed.size(), 1);
        QCOMPARE(cabinetFields(host.changed.at(0)), cabinetFields(changed.at(0)));
        QCOMPARE(host.taken.size(), 1);
        QCOMPARE(cabinetFields(host.taken.at(0)), cabinetFields(taken.at(0)));
    }

    void deletedRowsLeaveTheList()
    {
        DrawerItemContent content;
        for (int i = 1; i <= 3; ++i)
            content.addRowLineItem(i, PortItem, {cabinetRecord(i)});
        const auto rows = content.lsRowLineItems();
        delete rows.at(1);
        QCOMPARE(content.lsRowLineItems(), (QList<RowLineItem *>{rows.at(0), rows.at(2)}));
        QCOMPARE(content.index(), 3);
        content.addRowLineItem(4, PortItem, {});
        QCOMPARE(content.height(), 222);
        QCOMPARE(content.index(), 4);
    }

    void senderAndBodyCanBeDeletedInTheSignals_data()
    {
        QTest::addColumn<QString>("signal");
        QTest::addColumn<QString>("victim");
        for (const auto *signal : {"port", "changed", "taken"}) {
            for (const auto *victim : {"cabinet", "row", "body"})
                QTest::addRow("%s in %s", victim, signal) << signal << victim;
        }
    }

    void senderAndBodyCanBeDeletedInTheSignals()
    {
        QFETCH(QString, signal);
        QFETCH(QString, victim);
        QPointer<QWidget> window = new QWidget;
        window->resize(400, 300);
        QPointer<DrawerItemContent> content = new DrawerItemContent(window);
        content->addRowLineItem(1, PortItem, {cabinetRecord(1)});
        content->addRowLineItem(2, PortItem, {cabinetRecord(2)});
        QPointer<RowLineItem> row = content->lsRowLineItems().at(1);
        QPointer<ToolButtonEx> cabinet = row->cabinetButtonList().at(0);
        QVERIFY(pointer::showAndWait(window));
        int calls = 0;
        const auto destroy = [&] {
            ++calls;
            if (victim == "cabinet")
                delete cabinet;
            else if (victim == "row")
                delete row;
            else
                delete content;
        };
        if (signal == "port")
            connect(content, &DrawerItemContent::signal_ItemContentPortItemPressed, this, destroy);
        else if (signal == "changed")
            connect(content, &DrawerItemContent::signal_notifyChangedPortInfo, this, destroy);
        else
            connect(content, &DrawerItemContent::signal_notifyAddBeenTakenCabinetModel, this,
                    destroy);

        const QPointer<ToolButtonEx> button = signal == "port" ? portButton(row) : cabinet.data();
        windowmouse::press(button);
        if (button)
            windowmouse::release(button);
        QCOMPARE(calls, 1);
        QVERIFY(cabinet.isNull());
        QCOMPARE(row.isNull(), victim != "cabinet");
        QCOMPARE(content.isNull(), victim == "body");
        if (content) {
            QCOMPARE(content->lsRowLineItems().size(), victim == "row" ? 1 : 2);
            content->addRowLineItem(3, PortItem, {});
        }
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        delete window;
    }

    void nothingOfABodyOutlivesIt_data()
    {
        QTest::addColumn<bool>("hasParent");
        QTest::newRow("alone") << false;
        QTest::newRow("with its parent") << true;
    }

    void nothingOfABodyOutlivesIt()
    {
        QFETCH(bool, hasParent);
        auto parent = std::make_unique<QWidget>();
        auto *content = new DrawerItemContent(hasParent ? parent.get() : nullptr);
        content->addRowLineItem(1, PortItem, {cabinetRecord(1)});
        content->addRowLineItem(2, PortItem, {});
        QList<QPointer<QObject>> parts{content, content->layout()};
        for (RowLineItem *row : content->lsRowLineItems())
            parts.append(row);
        content->setLsRowLineItems(content->lsRowLineItems().mid(1));
        if (!hasParent)
            delete content;
        parent.reset();
        for (const QPointer<QObject> &part : parts)
            QVERIFY(part.isNull());
    }

    void rowsOfTheListThatLieElsewhereAreDeletedLater()
    {
        QWidget elsewhere;
        QPointer<RowLineItem> listed = new RowLineItem(&elsewhere);
        QPointer<RowLineItem> moved;
        {
            DrawerItemContent content;
            content.addRowLineItem(1, PortItem, {cabinetRecord(1)});
            moved = content.lsRowLineItems().constFirst();
            moved->setParent(&elsewhere);
            content.setLsRowLineItems({moved, listed, listed, nullptr});
        }
        QVERIFY(listed && moved);
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        QVERIFY(!listed && !moved);
    }
};

ORVANE_TEST_MAIN(TestDrawerItemContent)
#include "tst_draweritemcontent.moc"
