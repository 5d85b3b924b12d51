#include "support/cabinetrecord.h"
#include "support/pointer.h"
#include "support/testcase.h"
#include "support/windowmouse.h"

#include <rowlineitem.h>
#include <toolbuttonex.h>
#include <widgetwithscrollex.h>

namespace
{

QString image(const QString &name)
{
    return "{border-image: url(:/Resource/Images/globalResource/drawer/" + name + ".png);}";
}

QString normalSheet(const QString &kind, int number)
{
    const QString n = QString::number(number);
    return "QToolButton" + image("btn_" + kind + "_normal_" + n) + "QToolButton:hover"
        + image("btn_" + kind + "_hover_" + n);
}

QString pressedSheet(const QString &kind, int number)
{
    return "QToolButton" + image("btn_" + kind + "_pressed_" + QString::number(number));
}

QString disabledSheet(const QString &kind, int number)
{
    return "QToolButton" + image("btn_" + kind + "_disabled_" + QString::number(number));
}

QLabel *label(const RowLineItem &row)
{
    return row.findChild<QLabel *>(QString(), Qt::FindDirectChildrenOnly);
}

ToolButtonEx *portButton(const RowLineItem &row)
{
    return row.findChild<ToolButtonEx *>(QString(), Qt::FindDirectChildrenOnly);
}

WidgetWithScrollEx *strip(const RowLineItem &row)
{
    return row.findChild<WidgetWithScrollEx *>(QString(), Qt::FindDirectChildrenOnly);
}

QWidget *content(const RowLineItem &row)
{
    return row.cabinetButtonList().constFirst()->parentWidget();
}

using Change = std::function<void(RowLineItem &, ItemType)>;

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

Q_DECLARE_METATYPE(Change)

class TestRowLineItem : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void isBuiltFromItsParts()
    {
        RowLineItem row(nullptr);
        QCOMPARE(row.minimumHeight(), 74);
        QCOMPARE(row.maximumHeight(), 74);
        QCOMPARE(row.portIndex(), -1);
        QVERIFY(!row.bPressed());
        QVERIFY(row.getItemIsEnabled());
        QVERIFY(row.cabinetButtonList().isEmpty());
        QCOMPARE(row.styleSheet(), QString());

        auto *grid = qobject_cast<QGridLayout *>(row.layout());
        QVERIFY(grid);
        QCOMPARE(grid->contentsMargins(), QMargins());
        QCOMPARE(grid->horizontalSpacing(), 0);
        QCOMPARE(grid->verticalSpacing(), 0);
        QCOMPARE(grid->count(), 2);
        auto *line = qobject_cast<QHBoxLayout *>(grid->itemAtPosition(0, 0)->layout());
        QVERIFY(line);
        QCOMPARE(line->spacing(), 6);
        QCOMPARE(line->contentsMargins(), QMargins());
        QCOMPARE(line->count(), 3);
        QCOMPARE(line->itemAt(0)->widget(), label(row));
        QCOMPARE(line->itemAt(1)->widget(), portButton(row));
        QCOMPARE(line->itemAt(2)->widget(), strip(row));
        QSpacerItem *spacer = grid->itemAtPosition(0, 1)->spacerItem();
        QVERIFY(spacer);
        QCOMPARE(spacer->sizeHint(), QSize(40, 0));
        QCOMPARE(spacer->sizePolicy().horizontalPolicy(), QSizePolicy::Expanding);
        QCOMPARE(spacer->sizePolicy().verticalPolicy(), QSizePolicy::Expanding);

        QCOMPARE(label(row)->minimumSize(), QSize(16, 20));
        QCOMPARE(label(row)->maximumSize(), QSize(16, 20));
        QCOMPARE(label(row)->styleSheet(),
                 QString("QLabel{background:rgb(69,69,69); color:rgb(210,210,210);}"));
        QCOMPARE(label(row)->text(), QString());
        QCOMPARE(portButton(row)->buttonType(), DefaultType);
        QCOMPARE(portButton(row)->minimumSize(), QSize(30, 30));
        QCOMPARE(portButton(row)->maximumSize(), QSize(30, 30));
        QCOMPARE(portButton(row)->styleSheet(), QString());
        QCOMPARE(strip(row)->minimumSize(), QSize(180, 74));
        QCOMPARE(strip(row)->maximumSize(), QSize(180, 74));
        QCOMPARE(strip(row)->styleSheet(), QString("background:rgb(69,69,69);"));
    }

    void liesFromLeftToRight()
    {
        QWidget panel;
        RowLineItem row(&panel);
        row.resize(400, 74);
        row.setLineItemType(1, PortItem);
        row.AddLineItem(cabinetRecord(1));
        row.addScrollWidget();
        panel.resize(400, 100);
        QVERIFY(pointer::showAndWait(&panel));
        QCOMPARE(label(row)->geometry(), QRect(0, 27, 16, 20));
        QCOMPARE(portButton(row)->geometry(), QRect(22, 22, 30, 30));
        QCOMPARE(strip(row)->geometry(), QRect(58, 0, 180, 74));
        row.resize(600, 74);
        QCOMPARE(strip(row)->geometry(), QRect(58, 0, 180, 74));
    }

    void declaresItsSignalsAndItsSlots()
    {
        const QMetaObject &meta = RowLineItem::staticMetaObject;
        QCOMPARE(meta.superClass(), &QWidget::staticMetaObject);
        QStringList methods;
        for (int i = meta.methodOffset(); i < meta.methodCount(); ++i) {
            methods += QString::fromLatin1(meta.method(i).methodSignature());
            QCOMPARE(meta.method(i).access(),
                     i < meta.methodOffset() + 3 ? QMetaMethod::Public : QMetaMethod::Private);
        }
        QCOMPARE(
            methods,
            (QStringList{"signal_notifyAddBeenTakenCabinetModel(StructCabinet)",
                         "signal_portItemPressed(RowLineItem*)",
                         "signal_notifyChangedPortInfo(StructCabinet)",
                         "on_notifyAddBeenTakenCabinetModel(StructCabinet)", "on_itemPressed()",
                         "on_itemReleased()", "on_notifyChangedPortInfo(StructCabinet)"}));
    }

    void thePortButtonFollowsTheTable_data()
    {
        QTest::addColumn<Change>("change");
        QTest::addColumn<bool>("isEnabledBefore");
        QTest::addColumn<QString>("state");
        QTest::addColumn<bool>("isEnabledAfter");
        QTest::addColumn<bool>("isPressedAfter");
        // The row is pressed before, except where a change presses it.
        const Change setType = [](RowLineItem &row, ItemType type) {
            row.setLineItemType(4, type);
        };
        const Change press = [](RowLineItem &row, ItemType) {
            row.setItemReleased();
            row.setItemPressed();
        };
        const Change release = [](RowLineItem &row, ItemType) { row.setItemReleased(); };
        const Change disable = [](RowLineItem &row, ItemType) { row.setItemDisabled(true); };
        const Change enable = [](RowLineItem &row, ItemType) { row.setItemDisabled(false); };
        QTest::newRow("type, disabled") << setType << false << "disabled" << false << true;
        QTest::newRow("type, enabled") << setType << true << "normal" << true << true;
        QTest::newRow("pressed, disabled") << press << false << "disabled" << false << true;
        QTest::newRow("pressed, enabled") << press << true << "pressed" << true << true;
        QTest::newRow("released, disabled") << release << false << "disabled" << false << false;
        QTest::newRow("released, enabled") << release << true << "normal" << true << false;
        QTest::newRow("disabling, disabled") << disable << false << "disabled" << false << true;
        QTest::newRow("disabling, enabled") << disable << true << "disabled" << false << true;
        QTest::newRow("enabling, disabled") << enable << false << "normal" << true << true;
        QTest::newRow("enabling, enabled") << enable << true << "normal" << true << true;
    }

    void thePortButtonFollowsTheTable()
    {
        QFETCH(Change, change);
        QFETCH(bool, isEnabledBefore);
        QFETCH(QString, state);
        QFETCH(bool, isEnabledAfter);
        QFETCH(bool, isPressedAfter);
        for (const ItemType type : {PortItem, CoaxialItem}) {
            const QString kind = type == PortItem ? "Port" : "coaxial";
            RowLineItem row;
            row.setLineItemType(4, type);
            row.setItemDisabled(!isEnabledBefore);
            row.setItemPressed();
            change(row, type);
            QCOMPARE(portButton(row)->styleSheet(),
                     state == "normal"        ? normalSheet(kind, 4)
                         : state == "pressed" ? pressedSheet(kind, 4)
                                              : disabledSheet(kind, 4));
            QCOMPARE(row.getItemIsEnabled(), isEnabledAfter);
            QCOMPARE(portButton(row)->isEnabled(), isEnabledAfter);
            QCOMPARE(row.bPressed(), isPressedAfter);
        }
    }

    void anUnknownTypeKeepsTheSheet()
    {
        RowLineItem row;
        row.setLineItemType(3, CoaxialItem);
        const QString before = portButton(row)->styleSheet();
        row.setLineItemType(5, static_cast<ItemType>(2));
        QCOMPARE(label(row)->text(), QString("5"));
        QCOMPARE(row.portIndex(), 5);
        QCOMPARE(portButton(row)->styleSheet(), before);
        row.setItemPressed();
        QVERIFY(row.bPressed());
        QCOMPARE(portButton(row)->styleSheet(), before);
        row.setItemReleased();
        QVERIFY(!row.bPressed());
        row.setItemDisabled(true);
        QVERIFY(!row.getItemIsEnabled());
        row.setItemDisabled(false);
        QVERIFY(row.getItemIsEnabled());
        QCOMPARE(portButton(row)->styleSheet(), before);
    }

    void aRowInADisabledWidgetShowsTheDisabledPicture()
    {
        QWidget panel;
        RowLineItem row(&panel);
        panel.setEnabled(false);
        row.setLineItemType(3, PortItem);
        QVERIFY(!row.getItemIsEnabled());
        QCOMPARE(portButton(row)->styleSheet(), disabledSheet("Port", 3));
    }

    void setPortIndexWaitsForTheNextRestyling()
    {
        RowLineItem row;
        row.setLineItemType(3, PortItem);
        row.setPortIndex(5);
        QCOMPARE(row.portIndex(), 5);
        QCOMPARE(label(row)->text(), QString("3"));
        QCOMPARE(portButton(row)->styleSheet(), normalSheet("Port", 3));
        row.setItemPressed();
        QCOMPARE(label(row)->text(), QString("3"));
        QCOMPARE(portButton(row)->styleSheet(), pressedSheet("Port", 5));
    }

    void aNumberWithoutPicturesShowsNone()
    {
        RowLineItem row;
        row.setLineItemType(17, PortItem);
        QCOMPARE(label(row)->text(), QString("17"));
        QCOMPARE(portButton(row)->styleSheet(), normalSheet("Port", 17));
        QVERIFY(pointer::showAndWait(&row));
        const QImage without = portButton(row)->grab().toImage();
        row.setLineItemType(0, CoaxialItem);
        QCOMPARE(portButton(row)->grab().toImage(), without);
        row.setLineItemType(16, PortItem);
        QVERIFY(portButton(row)->grab().toImage() != without);
    }

    void cabinetsLieSideBySide()
    {
        RowLineItem row;
        row.setLineItemType(1, PortItem);
        for (int i = 0; i < 3; ++i)
            row.AddLineItem(cabinetRecord(i));
        const auto buttons = row.cabinetButtonList();
        QCOMPARE(buttons.size(), 3);
        for (int i = 0; i < 3; ++i) {
            QCOMPARE(buttons.at(i)->geometry(), QRect(69 * i, 0, 69, 69));
            QCOMPARE(buttons.at(i)->minimumSize(), QSize(69, 69));
            QCOMPARE(buttons.at(i)->maximumSize(), QSize(69, 69));
            QCOMPARE(buttons.at(i)->buttonType(), CabinetType);
            QVERIFY(!buttons.at(i)->isVisible());
        }
        QCOMPARE(content(row)->size(), QSize(207, 69));
        QCOMPARE(content(row)->minimumSize(), QSize(207, 69));
        QCOMPARE(content(row)->maximumSize(), QSize(207, 69));
        QVERIFY(!content(row)->parentWidget());

        row.addScrollWidget();
        QVERIFY(strip(row)->isAncestorOf(content(row)));
        QVERIFY(pointer::showAndWait(&row));
        for (const ToolButtonEx *button : buttons)
            QVERIFY(button->isVisible());
        QVERIFY(strip(row)->isVisible());
        QCOMPARE(strip(row)->styleSheet(), QString("background:rgb(69,69,69);"));
    }

    void theStripScrollsToTheLastCabinet()
    {
        RowLineItem row;
        for (int i = 0; i < 5; ++i)
            row.AddLineItem(cabinetRecord(i));
        row.addScrollWidget();
        QVERIFY(pointer::showAndWait(&row));
        auto *area = strip(row)->findChild<QScrollArea *>("scrollArea");
        auto *right = strip(row)
                          ->findChild<QWidget *>("rightBtnFrame")
                          ->findChild<QToolButton *>(QString(), Qt::FindDirectChildrenOnly);
        QVERIFY(right->isVisible());
        int clicks = 0;
        for (; right->isVisible() && clicks < 10; ++clicks)
            windowmouse::click(right);
        QCOMPARE(clicks, 3); // 207 pixels in steps of 74
        QCOMPARE(area->horizontalScrollBar()->value(), 69 * 5 - 138);
    }

    void theRecordReachesTheButton()
    {
        StructCabinet record = cabinetRecord(7);
        RowLineItem row;
        row.AddLineItem(record);
        ToolButtonEx *button = row.cabinetButtonList().constFirst();
        QCOMPARE(button->cabinetWidth(), 107);
        QCOMPARE(button->cabinetHeight(), 207);
        QVERIFY(button->isDrawCabinetCount());
        QCOMPARE(button->cabinetCount(), 307);
        QCOMPARE(button->getCabinetInitCount(), 307);
        QCOMPARE(button->getCabinetuisize(), 507);
        QCOMPARE(button->getCabinetuiHsize(), 607);
        QCOMPARE(button->getCabinetpower(), 7.5F);
        QCOMPARE(button->getCabinetPointspace(), 707);
        QCOMPARE(button->getCabinetVoltage(), 7.25F);
        QCOMPARE(button->getCabinetweight(), 5); // the weight stays the button's own
        QCOMPARE(cabinetFields(button->getCabnetInfo()), cabinetFields(record));
        QVERIFY(button->isEnabled());

        record.cabinetCount = 0;
        row.AddLineItem(record);
        QVERIFY(!row.cabinetButtonList().at(1)->isEnabled());
        record.cabinetCount = -4;
        row.AddLineItem(record);
        QCOMPARE(row.cabinetButtonList().at(2)->cabinetCount(), 0);
        QCOMPARE(row.cabinetButtonList().at(2)->getCabinetInitCount(), -4);
        QVERIFY(!row.cabinetButtonList().at(2)->isEnabled());
    }

    void aRowWithoutCabinetsShowsAnEmptyStrip()
    {
        RowLineItem row;
        row.setLineItemType(2, PortItem);
        row.addScrollWidget();
        QVERIFY(pointer::showAndWait(&row));
        QVERIFY(strip(row)->isVisible());
        QWidget *placed = strip(row)->findChild<QScrollArea *>("scrollArea")->widget();
        QVERIFY(placed);
        QCOMPARE(placed->minimumSize(), QSize(0, 0));
        QCOMPARE(placed->maximumSize(), QSize(QWIDGETSIZE_MAX, QWIDGETSIZE_MAX));
        QVERIFY(placed->findChildren<ToolButtonEx *>().isEmpty());
    }

    void theListIsThatOfTheHost()
    {
        RowLineItem row;
        for (int i = 0; i < 3; ++i)
            row.AddLineItem(cabinetRecord(i));
        const auto buttons = row.cabinetButtonList();
        row.setCabinetButtonList(buttons);
        QCOMPARE(row.cabinetButtonList(), buttons);
        row.setCabinetButtonList({buttons.at(2)});
        QCOMPARE(row.cabinetButtonList(), (QList<ToolButtonEx *>{buttons.at(2)}));
        QCOMPARE(buttons.at(0)->geometry(), QRect(0, 0, 69, 69));
        QCOMPARE(buttons.at(2)->geometry(), QRect(138, 0, 69, 69));
        // The next cabinet is placed by the list.
        row.AddLineItem(cabinetRecord(9));
        QCOMPARE(row.cabinetButtonList().at(1)->pos(), QPoint(69, 0));
        QCOMPARE(content(row)->size(), QSize(138, 69));
    }

    void pressesAreReported()
    {
        RowLineItem row;
        row.setLineItemType(3, PortItem);
        row.AddLineItem(cabinetRecord(1));
        row.AddLineItem(cabinetRecord(2));
        row.addScrollWidget();
        QVERIFY(pointer::showAndWait(&row));

        SignatureHost host;
        QVERIFY(connect(&row, SIGNAL(signal_notifyAddBeenTakenCabinetModel(StructCabinet)), &host,
                        SLOT(onTaken(StructCabinet))));
        QVERIFY(connect(&row, SIGNAL(signal_notifyChangedPortInfo(StructCabinet)), &host,
                        SLOT(onChanged(StructCabinet))));
        QVERIFY(connect(&row, SIGNAL(signal_portItemPressed(RowLineItem *)), &host,
                        SLOT(onPressed(RowLineItem *))));
        QList<StructCabinet> taken;
        QList<StructCabinet> changed;
        QList<RowLineItem *> pressed;
        connect(&row, &RowLineItem::signal_notifyAddBeenTakenCabinetModel, this,
                [&](const StructCabinet &info) { taken.append(info); });
        connect(&row, &RowLineItem::signal_notifyChangedPortInfo, this,
                [&](const StructCabinet &info) { changed.append(info); });
        connect(&row, &RowLineItem::signal_portItemPressed, this,
                [&](RowLineItem *item) { pressed.append(item); });

        windowmouse::press(portButton(row));
        QCOMPARE(pressed, QList<RowLineItem *>{&row});
        windowmouse::release(portButton(row));
        QCOMPARE(pressed.size(), 1);
        // The row changes neither its look nor its flag: that is the host's part.
        QCOMPARE(portButton(row)->styleSheet(), normalSheet("Port", 3));
        QVERIFY(!row.bPressed());

        ToolButtonEx *second = row.cabinetButtonList().at(1);
        windowmouse::press(second);
        QCOMPARE(changed.size(), 1);
        QCOMPARE(cabinetFields(changed.at(0)), cabinetFields(cabinetRecord(2)));
        QCOMPARE(taken.size(), 0);
        windowmouse::release(second);
        QCOMPARE(changed.size(), 1);
        QCOMPARE(taken.size(), 1);
        StructCabinet expected = cabinetRecord(2);
        expected.cabinetweight = 5; // the button's own
        QCOMPARE(cabinetFields(taken.at(0)), cabinetFields(expected));

        QCOMPARE(host.pressed, pressed);
        QCOMPARE(host.changed.size(), 1);
        QCOMPARE(cabinetFields(host.changed.at(0)), cabinetFields(changed.at(0)));
        QCOMPARE(host.taken.size(), 1);
        QCOMPARE(cabinetFields(host.taken.at(0)), cabinetFields(taken.at(0)));

        row.setItemDisabled(true);
        windowmouse::click(portButton(row));
        windowmouse::click(second, Qt::RightButton);
        windowmouse::click(label(row));
        QCOMPARE(pressed.size(), 1);
        QCOMPARE(changed.size(), 1);
        QCOMPARE(taken.size(), 1);
    }

    void deletedCabinetsLeaveTheList()
    {
        RowLineItem row;
        for (int i = 0; i < 3; ++i)
            row.AddLineItem(cabinetRecord(i));
        const auto buttons = row.cabinetButtonList();
        delete buttons.at(0);
        QCOMPARE(row.cabinetButtonList(), buttons.mid(1));
        row.AddLineItem(cabinetRecord(3));
        QCOMPARE(row.cabinetButtonList().size(), 3);
        QCOMPARE(row.cabinetButtonList().at(2)->x(), 138);
    }

    void theContentCanBeTakenAway()
    {
        RowLineItem row;
        row.AddLineItem(cabinetRecord(1));
        row.addScrollWidget();
        strip(row)->removeWidget();
        QVERIFY(row.cabinetButtonList().isEmpty());
        row.addScrollWidget();
        row.AddLineItem(cabinetRecord(2));
        row.addScrollWidget();
        row.addScrollWidget();
        QCOMPARE(row.cabinetButtonList().size(), 1);
        QVERIFY(strip(row)->isAncestorOf(row.cabinetButtonList().constFirst()));
    }

    void senderAndRowCanBeDeletedInTheSignals_data()
    {
        QTest::addColumn<QString>("signal");
        QTest::addColumn<QString>("victim");
        for (const auto *signal : {"port", "changed", "taken"}) {
            for (const auto *victim : {"button", "row", "window"})
                QTest::addRow("%s in %s", victim, signal) << signal << victim;
        }
    }

    void senderAndRowCanBeDeletedInTheSignals()
    {
        QFETCH(QString, signal);
        QFETCH(QString, victim);
        QPointer<QWidget> window = new QWidget;
        window->resize(400, 100);
        QPointer<RowLineItem> row = new RowLineItem(window);
        row->setLineItemType(1, PortItem);
        for (int i = 0; i < 3; ++i)
            row->AddLineItem(cabinetRecord(i));
        row->addScrollWidget();
        QVERIFY(pointer::showAndWait(window));
        const QPointer<ToolButtonEx> button =
            signal == "port" ? portButton(*row) : row->cabinetButtonList().at(1);
        int calls = 0;
        const auto destroy = [&] {
            ++calls;
            if (victim == "button")
                delete button;
            else if (victim == "row")
                delete row;
            else
                delete window;
        };
        if (signal == "port")
            connect(row, &RowLineItem::signal_portItemPressed, this, destroy);
        else if (signal == "changed")
            connect(row, &RowLineItem::signal_notifyChangedPortInfo, this, destroy);
        else
            connect(row, &RowLineItem::signal_notifyAddBeenTakenCabinetModel, this, destroy);

        windowmouse::press(button);
        if (window && button)
            windowmouse::release(button);
        QCOMPARE(calls, 1);
        QVERIFY(button.isNull());
        QCOMPARE(row.isNull(), victim != "button");
        QCOMPARE(window.isNull(), victim == "window");
        if (row && signal != "port") {
            QCOMPARE(row->cabinetButtonList().size(), 2);
            row->AddLineItem(cabinetRecord(4));
            QCOMPARE(row->cabinetButtonList().at(2)->x(), 138);
        }
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        delete window;
    }

    void nothingOfARowOutlivesIt_data()
    {
        QTest::addColumn<bool>("isPlaced");
        QTest::addColumn<bool>("hasParent");
        QTest::newRow("placed") << true << false;
        QTest::newRow("not placed") << false << false;
        QTest::newRow("placed, with parent") << true << true;
        QTest::newRow("not placed, with parent") << false << true;
    }

    void nothingOfARowOutlivesIt()
    {
        QFETCH(bool, isPlaced);
        QFETCH(bool, hasParent);
        auto parent = std::make_unique<QWidget>();
        auto *row = new RowLineItem(hasParent ? parent.get() : nullptr);
        row->AddLineItem(cabinetRecord(1));
        row->AddLineItem(cabinetRecord(2));
        QList<QPointer<QObject>> parts{row, row->layout(), portButton(*row), content(*row)};
        for (ToolButtonEx *button : row->cabinetButtonList())
            parts.append(button);
        row->setCabinetButtonList({row->cabinetButtonList().constFirst()});
        if (isPlaced)
            row->addScrollWidget();
        if (!hasParent)
            delete row;
        parent.reset();
        // Without an event loop, too.
        for (const QPointer<QObject> &part : parts)
            QVERIFY(part.isNull());
    }

    void buttonsOfTheListThatLieElsewhereAreDeletedLater()
    {
        QWidget elsewhere;
        QPointer<ToolButtonEx> listed =
            new ToolButtonEx(&elsewhere, CabinetType, QString(), QString());
        QPointer<ToolButtonEx> moved;
        QPointer<ToolButtonEx> port;
        {
            RowLineItem row;
            row.AddLineItem(cabinetRecord(1));
            moved = row.cabinetButtonList().constFirst();
            moved->setParent(&elsewhere);
            port = portButton(row);
            port->setParent(&elsewhere);
            row.setCabinetButtonList({moved, listed, listed, nullptr});
        }
        QVERIFY(listed && moved && port);
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        QVERIFY(!listed && !moved && !port);
    }

    void aMarkMovesWithoutStyleWorkOnOtherRows()
    {
        // The host marks one row and releases all others on every press.
        struct Counter : QObject {
            int changes = 0;
            bool eventFilter(QObject *, QEvent *event) override
            {
                changes += event->type() == QEvent::StyleChange ? 1 : 0;
                return false;
            }
        } counter;
        QWidget panel;
        RowLineItem row(&panel);
        row.setLineItemType(1, PortItem);
        QVERIFY(pointer::showAndWait(&panel));
        portButton(row)->installEventFilter(&counter);
        row.setItemReleased();
        QCOMPARE(counter.changes, 0);
        row.setItemPressed();
        QVERIFY(counter.changes > 0);
    }
};

ORVANE_TEST_MAIN(TestRowLineItem)
#include "tst_rowlineitem.moc"
