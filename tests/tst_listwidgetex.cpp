#include "support/countingdelegate.h"
#include "support/pointer.h"
#include "support/testcase.h"
#include "support/windowmouse.h"

#include <customlistwidgetitem.h>
#include <listwidgetex.h>

namespace
{

const QString defaultSheet = "QListWidget{background:#f5f5f5; }QListWidget:pressed{border:none;}"
                             "QListWidget::item:hover {background:#ebebeb;}"
                             "QListWidget::item:selected {background:#ebebeb;}";

/// A sheet whose four colours are written out.
QString sheet(const QString &normal, const QString &hover, const QString &pressed,
              const QString &font)
{
    return "QListWidget{background:" + normal + "; " + font
        + "}QListWidget:pressed{border:none;}QListWidget::item:hover {background:" + hover + ";"
        + font + "}QListWidget::item:selected {background:" + pressed + ";" + font + "}";
}

QToolButton *deleteButton(const QWidget *row)
{
    return qobject_cast<QToolButton *>(row->layout()->itemAt(2)->widget());
}

QLabel *textLabel(const QWidget *row)
{
    return qobject_cast<QLabel *>(row->layout()->itemAt(1)->widget());
}

/// Brings the pointer from beside the rows onto \a row and waits for its trash button.
void enter(QWidget *row)
{
    pointer::moveTo(row->window(), {295, 295});
    pointer::moveTo(row);
    QTRY_VERIFY(deleteButton(row)->isVisible() && deleteButton(row)->x() > 100);
}

QStringList paths(const ListWidgetEx &list)
{
    QStringList texts;
    for (int row = 0; row < list.count(); ++row) {
        const auto *item = qobject_cast<CustomListWidgetItem *>(list.itemWidget(list.item(row)));
        texts += item ? item->getProjectPath() : QString("-");
    }
    return texts;
}

/// A list with \a count rows, whose paths are "0", "1" and so on.
struct Filled {
    explicit Filled(int count)
    {
        list->resize(300, 300);
        for (int i = 0; i < count; ++i)
            rows.append(list->addCustomItem(QString("Project %1").arg(i), QString::number(i)));
    }

    std::unique_ptr<ListWidgetEx> list = std::make_unique<ListWidgetEx>();
    QList<QPointer<CustomListWidgetItem>> rows;
};

void deleteScheduled()
{
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

} // namespace

Q_DECLARE_METATYPE(Qt::MouseButton)

class TestListWidgetEx : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void hasDefaults()
    {
        QWidget parent;
        ListWidgetEx list(&parent);
        QCOMPARE(list.parentWidget(), &parent);
        QCOMPARE(list.bgNormalColor(), QColor(245, 245, 245));
        QCOMPARE(list.bgHoverColor(), QColor(235, 235, 235));
        QCOMPARE(list.bgPressedColor(), QColor(235, 235, 235));
        QCOMPARE(list.fontColor(), QColor(0, 0, 0));
        QCOMPARE(list.styleSheet(), defaultSheet);
        QVERIFY(!list.testAttribute(Qt::WA_MacShowFocusRect));
        QCOMPARE(list.count(), 0);
        ListWidgetEx alone(nullptr);
        QVERIFY(!alone.parentWidget());
    }

    void declaresItsSignalsAndItsSlots()
    {
        const QMetaObject &meta = ListWidgetEx::staticMetaObject;
        QCOMPARE(meta.superClass(), &QListWidget::staticMetaObject);
        QCOMPARE(meta.propertyOffset(), meta.propertyCount());
        QStringList methods;
        for (int i = meta.methodOffset(); i < meta.methodCount(); ++i) {
            methods += QString::fromLatin1(meta.method(i).methodSignature());
            QCOMPARE(meta.method(i).access(), QMetaMethod::Public);
        }
        QCOMPARE(methods,
                 (QStringList{
                     "signal_notifyProjectPath(CustomListWidgetItem*,QString)",
                     "signal_notifydeleteItem(ListWidgetEx*,CustomListWidgetItem*,int)",
                     "signal_HideShow(bool)",
                     "slot_notifyProjectPath(CustomListWidgetItem*,QString)",
                     "slot_notifyDeleteItem(CustomListWidgetItem*)",
                 }));
    }

    void everyColourIsInTheSheet_data()
    {
        QTest::addColumn<QColor>("color");
        QTest::addColumn<QString>("text");
        QTest::newRow("opaque") << QColor(1, 2, 254) << "#0102fe";
        QTest::newRow("translucent") << QColor(255, 0, 0, 128) << "#80ff0000";
        QTest::newRow("transparent") << QColor(255, 255, 255, 0) << "#00ffffff";
        QTest::newRow("invalid") << QColor() << "#000000";
    }

    void everyColourIsInTheSheet()
    {
        QFETCH(QColor, color);
        QFETCH(QString, text);
        ListWidgetEx list;
        QCOMPARE(list.fromColorToStr(color), text);
        list.setBgNormalColor(color);
        QCOMPARE(list.bgNormalColor(), color);
        QCOMPARE(list.styleSheet(), sheet(text, "#ebebeb", "#ebebeb", ""));
        list.setBgNormalColor(QColor(245, 245, 245));
        list.setBgHoverColor(color);
        QCOMPARE(list.bgHoverColor(), color);
        QCOMPARE(list.styleSheet(), sheet("#f5f5f5", text, "#ebebeb", ""));
        list.setBgHoverColor(QColor(235, 235, 235));
        list.setBgPressedColor(color);
        QCOMPARE(list.bgPressedColor(), color);
        QCOMPARE(list.styleSheet(), sheet("#f5f5f5", "#ebebeb", text, ""));
        list.setBgPressedColor(QColor(235, 235, 235));
        list.setFontColor(color);
        QCOMPARE(list.fontColor(), color);
        QCOMPARE(list.styleSheet(),
                 sheet("#f5f5f5", "#ebebeb", "#ebebeb", "color:" + text + ";font: SimSun Arial;"));
        list.setStyleSheet(QString());
        list.setStyle();
        QCOMPARE(list.styleSheet(),
                 sheet("#f5f5f5", "#ebebeb", "#ebebeb", "color:" + text + ";font: SimSun Arial;"));
    }

    void theWholeSheetIsAsWritten()
    {
        ListWidgetEx list;
        list.setBgNormalColor(QColor(69, 69, 69));
        list.setBgHoverColor(QColor(80, 80, 80));
        list.setBgPressedColor(QColor(66, 145, 240));
        list.setFontColor(QColor(210, 210, 210));
        QCOMPARE(list.styleSheet(),
                 QString("QListWidget{background:#454545; color:#d2d2d2;font: SimSun Arial;}"
                         "QListWidget:pressed{border:none;}"
                         "QListWidget::item:hover {background:#505050;color:#d2d2d2;font: "
                         "SimSun Arial;}"
                         "QListWidget::item:selected {background:#4291f0;color:#d2d2d2;font: "
                         "SimSun Arial;}"));
    }

    void coloursAreSeenWhenSetBeforeAndAfterTheFirstShow()
    {
        Filled filled(3);
        ListWidgetEx &list = *filled.list;
        list.setBgNormalColor(QColor(255, 0, 0));
        list.setBgNormalColor(QColor(0, 0, 250));
        list.setBgHoverColor(QColor(255, 0, 0));
        list.setBgHoverColor(QColor(0, 250, 0));
        list.setBgPressedColor(QColor(255, 0, 0));
        list.setBgPressedColor(QColor(250, 250, 0));
        list.setFontColor(QColor(255, 0, 0));
        list.setFontColor(QColor(250, 0, 250));
        // The text colour is that of items without a widget: rows inherit theirs from the palette.
        list.addItem(QString(9, QChar(0x2588)));
        const auto check = [&](const QColor &normal, const QColor &hover, const QColor &pressed,
                               const QColor &font) {
            pointer::moveTo(&list, {295, 295});
            pointer::moveTo(filled.rows.at(1));
            list.setCurrentRow(2);
            QTRY_COMPARE(pointer::colorAt(list.viewport(), {250, 34 + 4}), hover);
            QCOMPARE(pointer::colorAt(list.viewport(), {250, 4}), normal);
            QCOMPARE(pointer::colorAt(list.viewport(), {250, 200}), normal);
            QCOMPARE(pointer::colorAt(list.viewport(), {250, 68 + 4}), pressed);
            const QRect plain = list.visualItemRect(list.item(3));
            QCOMPARE(pointer::colorAt(list.viewport(), {20, plain.center().y()}), font);
        };
        QVERIFY(pointer::showAndWait(&list));
        check(QColor(0, 0, 250), QColor(0, 250, 0), QColor(250, 250, 0), QColor(250, 0, 250));
        list.setBgNormalColor(QColor(1, 2, 3));
        list.setBgHoverColor(QColor(4, 5, 6));
        list.setBgPressedColor(QColor(7, 8, 9));
        list.setFontColor(QColor(10, 250, 12));
        check(QColor(1, 2, 3), QColor(4, 5, 6), QColor(7, 8, 9), QColor(10, 250, 12));
    }

    void aRowIsAnItemWithAWidget()
    {
        ListWidgetEx list;
        list.resize(300, 300);
        CustomListWidgetItem *row = list.addCustomItem("Stage left", "/walls/stage.wall");
        QVERIFY(row);
        QCOMPARE(list.count(), 1);
        QCOMPARE(list.itemWidget(list.item(0)), row);
        QCOMPARE(row->parentWidget(), list.viewport());
        QCOMPARE(row->getProjectPath(), QString("/walls/stage.wall"));
        QCOMPARE(row->toolTip(), QString("/walls/stage.wall"));
        QCOMPARE(textLabel(row)->text(), QString("Stage left"));
        QCOMPARE(row->styleSheet(), QString("font: SimSun Arial;"));
        QCOMPARE(list.item(0)->data(Qt::SizeHintRole).toSize(), QSize(-1, 34));
        QCOMPARE(list.item(0)->text(), QString());
        CustomListWidgetItem *second = list.addCustomItem(QString(), QString());
        QCOMPARE(list.getItemIndex(row), 0);
        QCOMPARE(list.getItemIndex(second), 1);
    }

    void rowsAre34PixelsHighAndAsWideAsTheList()
    {
        Filled filled(20);
        QVERIFY(pointer::showAndWait(filled.list.get()));
        for (int i = 0; i < 20; ++i) {
            QTRY_COMPARE(filled.rows.at(i)->geometry(),
                         QRect(0, 34 * i, filled.list->viewport()->width(), 34));
        }
        QCOMPARE(filled.list->horizontalScrollBar()->maximum(), 0);
        filled.list->resize(500, 300);
        QTRY_COMPARE(filled.rows.at(0)->width(), filled.list->viewport()->width());
        // A long text does not widen the row.
        filled.rows.at(0)->setDisplayInfo(QString(500, 'w'));
        filled.list->addCustomItem(QString(500, 'w'), QString());
        QCoreApplication::processEvents();
        QCOMPARE(filled.rows.at(0)->width(), filled.list->viewport()->width());
        QCOMPARE(filled.list->horizontalScrollBar()->maximum(), 0);
    }

    void deleteItemRemovesOneRow_data()
    {
        QTest::addColumn<int>("index");
        QTest::addColumn<QStringList>("left");
        const QStringList all{"0", "1", "2"};
        QTest::newRow("first") << 0 << QStringList{"1", "2"};
        QTest::newRow("middle") << 1 << QStringList{"0", "2"};
        QTest::newRow("last") << 2 << QStringList{"0", "1"};
        QTest::newRow("behind the last") << 3 << all;
        QTest::newRow("99") << 99 << all;
        QTest::newRow("-1") << -1 << all;
        QTest::newRow("least") << std::numeric_limits<int>::min() << all;
    }

    void deleteItemRemovesOneRow()
    {
        QFETCH(int, index);
        QFETCH(QStringList, left);
        for (const bool isShown : {false, true}) {
            Filled filled(3);
            if (isShown)
                QVERIFY(pointer::showAndWait(filled.list.get()));
            QSignalSpy deleted(filled.list.get(), &ListWidgetEx::signal_notifydeleteItem);
            QSignalSpy asked(filled.list.get(), &ListWidgetEx::signal_notifyProjectPath);
            filled.list->deleteItem(index);
            QCOMPARE(paths(*filled.list), left);
            if (left.size() < 3)
                QCOMPARE(filled.list->getItemIndex(filled.rows.at(index)), -1);
            deleteScheduled();
            for (int i = 0; i < 3; ++i)
                QCOMPARE(filled.rows.at(i).isNull(), left.size() < 3 && i == index);
            QCOMPARE(deleted.count(), 0);
            QCOMPARE(asked.count(), 0);
        }
    }

    void theListCanBeEmptiedAndRefilled_data()
    {
        QTest::addColumn<bool>("isShown");
        QTest::newRow("hidden") << false;
        QTest::newRow("shown") << true;
    }

    void theListCanBeEmptiedAndRefilled()
    {
        QFETCH(bool, isShown);
        Filled filled(5);
        ListWidgetEx &list = *filled.list;
        if (isShown)
            QVERIFY(pointer::showAndWait(&list));
        for (int round = 0; round < 3; ++round) {
            list.setCurrentRow(1);
            list.clearAllItems();
            QCOMPARE(list.count(), 0);
            QCOMPARE(list.currentRow(), -1);
            list.clearAllItems();
            deleteScheduled();
            for (const auto &row : filled.rows)
                QVERIFY(row.isNull());
            QVERIFY(list.viewport()->findChildren<CustomListWidgetItem *>().isEmpty());
            filled.rows.clear();
            for (int i = 0; i < 4; ++i)
                filled.rows.append(list.addCustomItem("Project", QString::number(10 * round + i)));
            QCOMPARE(list.count(), 4);
            for (int i = 0; i < 4; ++i)
                QCOMPARE(list.getItemIndex(filled.rows.at(i)), i);
            if (isShown)
                QTRY_COMPARE(filled.rows.at(3)->y(), 3 * 34);
        }
    }

    void hostsHearOfAnEmptiedListAsOfRemovedRows()
    {
        Filled filled(3);
        filled.list->setCurrentRow(0);
        QSignalSpy current(filled.list.get(), &QListWidget::currentRowChanged);
        filled.list->clearAllItems();
        QVERIFY(!current.isEmpty());
        QCOMPARE(current.last().at(0).toInt(), -1);
    }

    void strangersAreInNoRow()
    {
        Filled filled(2);
        CustomListWidgetItem stranger;
        QCOMPARE(filled.list->getItemIndex(&stranger), -1);
        QCOMPARE(filled.list->getItemIndex(nullptr), -1);
        QSignalSpy deleted(filled.list.get(), &ListWidgetEx::signal_notifydeleteItem);
        filled.list->slot_notifyDeleteItem(&stranger);
        QCOMPARE(deleted.count(), 1);
        QCOMPARE(deleted.at(0).at(0).value<ListWidgetEx *>(), filled.list.get());
        QCOMPARE(deleted.at(0).at(1).value<CustomListWidgetItem *>(), &stranger);
        QCOMPARE(deleted.at(0).at(2).toInt(), -1);
        filled.list->slot_notifyDeleteItem(nullptr);
        QCOMPARE(deleted.at(1).at(2).toInt(), -1);
    }

    void rowsWithoutAWidgetCount()
    {
        Filled filled(0);
        ListWidgetEx &list = *filled.list;
        list.addItem("plain");
        CustomListWidgetItem *row = list.addCustomItem("Project", "1");
        list.insertItem(0, "plain too");
        QCOMPARE(list.getItemIndex(row), 2);
        QCOMPARE(list.getItemIndex(nullptr), -1);
        QVERIFY(pointer::showAndWait(&list));
        list.deleteItem(0);
        QCOMPARE(paths(list), (QStringList{"-", "1"}));
        delete row; // by the host: its item stays
        QCOMPARE(list.count(), 2);
        list.clearAllItems();
        QCOMPARE(list.count(), 0);
    }

    void rowsAreFoundWhereverTheyAre()
    {
        Filled filled(50);
        for (int i = 0; i < 25; ++i)
            filled.list->deleteItem(i); // every other one
        for (int i = 0; i < 25; ++i)
            QCOMPARE(filled.list->getItemIndex(filled.rows.at(2 * i + 1)), i);
    }

    void aPressAsksForTheProject_data()
    {
        QTest::addColumn<Qt::MouseButton>("button");
        QTest::addColumn<int>("count");
        QTest::newRow("left") << Qt::LeftButton << 1;
        QTest::newRow("right") << Qt::RightButton << 0;
        QTest::newRow("middle") << Qt::MiddleButton << 0;
    }

    void aPressAsksForTheProject()
    {
        QFETCH(Qt::MouseButton, button);
        QFETCH(int, count);
        Filled filled(3);
        QVERIFY(pointer::showAndWait(filled.list.get()));
        QTRY_COMPARE(filled.rows.at(2)->y(), 2 * 34);
        QSignalSpy asked(filled.list.get(), &ListWidgetEx::signal_notifyProjectPath);
        QSignalSpy deleted(filled.list.get(), &ListWidgetEx::signal_notifydeleteItem);
        windowmouse::press(filled.rows.at(2), button);
        QCOMPARE(asked.count(), count);
        windowmouse::release(filled.rows.at(2), button);
        QCOMPARE(asked.count(), count);
        if (count) {
            QCOMPARE(asked.at(0).at(0).value<CustomListWidgetItem *>(), filled.rows.at(2).data());
            QCOMPARE(asked.at(0).at(1).toString(), QString("2"));
            QCOMPARE(filled.list->currentRow(), 2); // and selects the row
        }
        QCOMPARE(deleted.count(), 0);
        QCOMPARE(filled.list->count(), 3);
    }

    void theTrashButtonReportsItsRow()
    {
        Filled filled(3);
        QVERIFY(pointer::showAndWait(filled.list.get()));
        QTRY_COMPARE(filled.rows.at(2)->y(), 2 * 34);
        QSignalSpy asked(filled.list.get(), &ListWidgetEx::signal_notifyProjectPath);
        QSignalSpy deleted(filled.list.get(), &ListWidgetEx::signal_notifydeleteItem);
        QSignalSpy hideShow(filled.list.get(), &ListWidgetEx::signal_HideShow);
        filled.list->deleteItem(0); // the rows move up
        QTRY_COMPARE(filled.rows.at(2)->y(), 34);
        enter(filled.rows.at(2));
        windowmouse::click(deleteButton(filled.rows.at(2)));
        QCOMPARE(deleted.count(), 1);
        QCOMPARE(deleted.at(0).at(0).value<ListWidgetEx *>(), filled.list.get());
        QCOMPARE(deleted.at(0).at(1).value<CustomListWidgetItem *>(), filled.rows.at(2).data());
        QCOMPARE(deleted.at(0).at(2).toInt(), 1);
        QCOMPARE(asked.count(), 0);
        QCOMPARE(hideShow.count(), 0);
        QCOMPARE(filled.list->count(), 2); // the host decides
    }

    void rowsAndListCanGoInTheSignals_data()
    {
        QTest::addColumn<bool>("onDelete");
        QTest::addColumn<QString>("action");
        for (const bool onDelete : {true, false}) {
            for (const char *action : {"delete the row", "delete another row", "clear",
                                       "clear and refill", "delete the widget", "delete the list"})
                QTest::addRow("%s in %s", action, onDelete ? "delete" : "press")
                    << onDelete << QString(action);
        }
    }

    void rowsAndListCanGoInTheSignals()
    {
        QFETCH(bool, onDelete);
        QFETCH(QString, action);
        Filled filled(4);
        QVERIFY(pointer::showAndWait(filled.list.get()));
        QTRY_COMPARE(filled.rows.at(3)->y(), 3 * 34);
        const QPointer<CustomListWidgetItem> clicked = filled.rows.at(1);
        int calls = 0;
        const auto act = [&](CustomListWidgetItem *item, int index) {
            ++calls;
            ListWidgetEx &list = *filled.list;
            if (action == "delete the row")
                list.deleteItem(index);
            else if (action == "delete another row")
                list.deleteItem(0);
            else if (action == "delete the widget")
                delete item;
            else if (action == "delete the list")
                filled.list.reset();
            else
                list.clearAllItems();
            if (action == "clear and refill")
                list.addCustomItem("new", "new");
        };
        if (onDelete)
            connect(filled.list.get(), &ListWidgetEx::signal_notifydeleteItem, this,
                    [&](ListWidgetEx *, CustomListWidgetItem *item, int index) {
                        QCOMPARE(index, 1);
                        act(item, index);
                    });
        else
            connect(
                filled.list.get(), &ListWidgetEx::signal_notifyProjectPath, this,
                [&](CustomListWidgetItem *item) { act(item, filled.list->getItemIndex(item)); });
        enter(clicked);
        if (onDelete) {
            windowmouse::click(deleteButton(clicked));
        } else {
            windowmouse::click(clicked);
        }
        QCOMPARE(calls, 1);
        deleteScheduled();
        QCOMPARE(clicked.isNull(), action != "delete another row");
        QCOMPARE(filled.list == nullptr, action == "delete the list");
        const QMap<QString, QStringList> expected{
            {"delete the row", {"0", "2", "3"}},
            {"delete another row", {"1", "2", "3"}},
            {"clear", {}},
            {"clear and refill", {"new"}},
            {"delete the widget", {"0", "-", "2", "3"}},
        };
        if (filled.list) {
            QCoreApplication::processEvents();
            QCOMPARE(paths(*filled.list), expected.value(action));
            filled.list->grab();
        }
    }

    void eachRowCanBeDeletedByItsTrashButton()
    {
        Filled filled(5);
        connect(
            filled.list.get(), &ListWidgetEx::signal_notifydeleteItem, filled.list.get(),
            [](ListWidgetEx *list, CustomListWidgetItem *, int index) { list->deleteItem(index); });
        QVERIFY(pointer::showAndWait(filled.list.get()));
        for (int left = 5; left > 0; --left) {
            const QPointer<CustomListWidgetItem> first = filled.rows.at(5 - left);
            QTRY_COMPARE(first->y(), 0);
            enter(first);
            windowmouse::click(deleteButton(first));
            QCOMPARE(filled.list->count(), left - 1);
            QTRY_VERIFY(first.isNull());
        }
    }

    void addingTheNthRowCostsWhatTheFirstDid_data()
    {
        QTest::addColumn<bool>("isShown");
        QTest::newRow("hidden") << false;
        QTest::newRow("shown") << true;
    }

    void addingTheNthRowCostsWhatTheFirstDid()
    {
        QFETCH(bool, isShown);
        Filled filled(1);
        ListWidgetEx &list = *filled.list;
        CountingDelegate delegate;
        list.setItemDelegate(&delegate);
        if (isShown)
            QVERIFY(pointer::showAndWait(&list));
        QCoreApplication::processEvents();
        delegate.count = 0;
        for (int i = 1; i < 3000; ++i)
            filled.rows.append(list.addCustomItem("Project", QString::number(i)));
        QCOMPARE(delegate.count, 0); // no row was looked at for another one's sake
        if (!isShown)
            QVERIFY(pointer::showAndWait(&list));
        QTRY_COMPARE(filled.rows.last()->y(), 2999 * 34);
        QVERIFY2(delegate.count >= 3000, qPrintable(QString::number(delegate.count)));
        QCOMPARE(list.getItemIndex(filled.rows.last()), 2999);

        delegate.count = 0;
        list.clearAllItems();
        QCOMPARE(list.count(), 0);
        QVERIFY2(delegate.count < 10, qPrintable(QString::number(delegate.count)));
        deleteScheduled();
        QVERIFY(filled.rows.first().isNull());
        QVERIFY(filled.rows.last().isNull());
    }

    void rowsThatAreAddedToAShownListAreSeen()
    {
        Filled filled(2);
        ListWidgetEx &list = *filled.list;
        QVERIFY(pointer::showAndWait(&list));
        QCoreApplication::processEvents();
        CustomListWidgetItem *row = list.addCustomItem("Project", "2");
        // Without an event loop too, to whom asks.
        QCOMPARE(list.visualItemRect(list.item(2)).top(), 2 * 34);
        QCOMPARE(list.itemAt(100, 2 * 34 + 5), list.item(2));
        list.addItem("plain");
        QCOMPARE(list.visualItemRect(list.item(3)).top(), 3 * 34);
        QTRY_COMPARE(row->y(), 2 * 34);
        list.scrollToBottom();
        for (int i = 0; i < 10; ++i)
            row = list.addCustomItem("Project", "more");
        list.scrollToBottom();
        QTRY_VERIFY(list.viewport()->rect().contains(row->geometry()));
    }

    void nothingOfAListOutlivesIt_data()
    {
        QTest::addColumn<bool>("hasParent");
        QTest::addColumn<bool>("isShown");
        QTest::newRow("alone") << false << false;
        QTest::newRow("alone, shown") << false << true;
        QTest::newRow("with its parent") << true << false;
        QTest::newRow("with its parent, shown") << true << true;
    }

    void nothingOfAListOutlivesIt()
    {
        QFETCH(bool, hasParent);
        QFETCH(bool, isShown);
        auto window = std::make_unique<QWidget>();
        Filled filled(3);
        if (hasParent)
            filled.list->setParent(window.get());
        if (isShown)
            QVERIFY(pointer::showAndWait(filled.list.get()));
        filled.list->deleteItem(0); // its widget still waits for the event loop
        if (hasParent) {
            filled.list.release(); // the window's
            window.reset();
        } else {
            filled.list.reset();
        }
        for (const auto &row : filled.rows)
            QVERIFY(row.isNull());
    }
};

ORVANE_TEST_MAIN(TestListWidgetEx)
#include "tst_listwidgetex.moc"
