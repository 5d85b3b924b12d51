#include "support/countingdelegate.h"
#include "support/pointer.h"
#include "support/testcase.h"
#include "support/windowmouse.h"

#include <customlistwidgetitem.h>
#include <customlistwidgetmulitem.h>
#include <equiplistwidget.h>
#include <labelex.h>
#include <listwidgetex.h>
#include <listwidgettitle.h>

namespace
{

ListWidgetTitle *title(const EquipListWidget &list)
{
    return list.findChild<ListWidgetTitle *>();
}

QLabel *titleLabel(const EquipListWidget &list)
{
    return qobject_cast<QLabel *>(title(list)->layout()->itemAt(0)->widget());
}

QToolButton *refreshButton(const EquipListWidget &list)
{
    return qobject_cast<QToolButton *>(title(list)->layout()->itemAt(2)->widget());
}

QToolButton *dropDownButton(const EquipListWidget &list)
{
    return qobject_cast<QToolButton *>(title(list)->layout()->itemAt(3)->widget());
}

QToolButton *settingsButton(const EquipListWidget &list)
{
    for (QToolButton *button : title(list)->findChildren<QToolButton *>()) {
        if (title(list)->layout()->indexOf(button) < 0)
            return button;
    }
    return nullptr;
}

/// The only child that is neither title nor list.
QWidget *overlay(const EquipListWidget &list)
{
    for (QWidget *child : list.findChildren<QWidget *>(QString(), Qt::FindDirectChildrenOnly)) {
        if (child != title(list) && !qobject_cast<QListWidget *>(child))
            return child;
    }
    return nullptr;
}

QLabel *overlayText(const EquipListWidget &list)
{
    return qobject_cast<QLabel *>(overlay(list)->layout()->itemAt(0)->widget());
}

QLabel *overlayImage(const EquipListWidget &list)
{
    return qobject_cast<QLabel *>(overlay(list)->layout()->itemAt(1)->widget());
}

QMovie *movie(const EquipListWidget &list)
{
    return overlayImage(list)->movie();
}

bool isRunning(const EquipListWidget &list)
{
    const bool isMoving = movie(list)->state() == QMovie::Running;
    const bool isCovered = !overlay(list)->isHidden();
    if (isMoving != isCovered)
        qWarning("the movie and the overlay disagree");
    return isMoving;
}

QString sheetOfDropDown(const QString &name)
{
    const QString image =
        "{border-image: url(:/Resource/Images/globalResource/listwidget/" + name + "_";
    return "QToolButton{background-color:rgb(225, 225, 225); border:none;}QToolButton" + image
        + "normal.png);}QToolButton:hover" + image + "hover.png);}QToolButton:pressed" + image
        + "pressed.png);}";
}

QStringList names(const EquipListWidget &list)
{
    QStringList texts;
    for (const CustomListWidgetMulItem *item : list.getItems())
        texts += item->getCurrentDevportName();
    return texts;
}

/// A list with \a count rows, whose devices are "0", "1" and so on.
struct Filled {
    explicit Filled(int count)
    {
        list->resize(400, 135);
        for (int i = 0; i < count; ++i)
            rows.append(list->addCustomItem({QString::number(i), "Sender", "4"}, false));
    }

    std::unique_ptr<EquipListWidget> list = std::make_unique<EquipListWidget>("Devices");
    QList<QPointer<CustomListWidgetMulItem>> rows;
};

void doubleClick(QWidget *widget, QPoint position)
{
    QTest::mouseDClick(widget->window()->windowHandle(), Qt::LeftButton, Qt::NoModifier,
                       windowmouse::inWindow(widget, position));
}

void deleteScheduled()
{
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

} // namespace

class TestEquipListWidget : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void isBuiltFromItsParts()
    {
        QWidget parent;
        EquipListWidget list("Devices", &parent);
        QCOMPARE(list.parentWidget(), &parent);
        QCOMPARE(list.minimumHeight(), 135);
        QCOMPARE(list.maximumHeight(), 135);
        QCOMPARE(list.styleSheet(), QString());
        QVERIFY(list.getItems().isEmpty());

        auto *layout = qobject_cast<QVBoxLayout *>(list.layout());
        QVERIFY(layout);
        QCOMPARE(layout->contentsMargins(), QMargins());
        QCOMPARE(layout->spacing(), 0);
        QCOMPARE(layout->count(), 3);
        QVERIFY(title(list));
        QCOMPARE(layout->itemAt(0)->widget(), title(list));
        QCOMPARE(titleLabel(list)->text(), QString("Devices"));
        QVERIFY(list.getListWidget());
        QCOMPARE(layout->itemAt(1)->widget(), list.getListWidget());
        QCOMPARE(list.getListWidget()->count(), 0);
        QVERIFY(layout->itemAt(2)->spacerItem());
        QCOMPARE(layout->stretch(2), 10);

        QVERIFY(overlay(list));
        QVERIFY(overlay(list)->isHidden());
        auto *overlayLayout = qobject_cast<QVBoxLayout *>(overlay(list)->layout());
        QVERIFY(overlayLayout);
        QCOMPARE(overlayLayout->count(), 2);
        QCOMPARE(overlayLayout->stretch(0), 4);
        QCOMPARE(overlayLayout->stretch(1), 6);
        QCOMPARE(overlayText(list)->text(), QString());
        QCOMPARE(overlayText(list)->alignment(),
                 Qt::AlignHCenter | Qt::AlignVCenter | Qt::AlignBottom);
        QCOMPARE(overlayText(list)->styleSheet(), QString("font:9pt \"微软雅黑\" ;"));
        QCOMPARE(overlayImage(list)->alignment(), Qt::Alignment(Qt::AlignCenter));
        QVERIFY(movie(list));
        QCOMPARE(movie(list)->fileName(),
                 QString(":/Resource/Images/globalResource/listwidget/Loading_2.gif"));
        QVERIFY(movie(list)->isValid());
        QCOMPARE(movie(list)->state(), QMovie::NotRunning);
    }

    void declaresItsSignalsAndItsSlots()
    {
        const QMetaObject &meta = EquipListWidget::staticMetaObject;
        QCOMPARE(meta.superClass(), &QWidget::staticMetaObject);
        QCOMPARE(meta.propertyOffset(), meta.propertyCount());
        QStringList methods;
        for (int i = meta.methodOffset(); i < meta.methodCount(); ++i) {
            methods += QString::fromLatin1(meta.method(i).methodSignature());
            QCOMPARE(meta.method(i).access(), QMetaMethod::Public);
        }
        QCOMPARE(methods,
                 (QStringList{
                     "signal_RefEquipInfo()",
                     "signal_Setting()",
                     "signal_everySetting(CustomListWidgetMulItem*)",
                     "signal_itemDoubleClicked(CustomListWidgetMulItem*)",
                     "slot_ShowList(bool)",
                     "slot_ShowRefAnimation()",
                     "slot_StopRefAnimation()",
                     "slot_deviceItemDoubleClicked(CustomListWidgetMulItem*)",
                     "slot_emitSettingData(CustomListWidgetMulItem*)",
                 }));
    }

    void theListFillsTheSpaceBelowTheTitle()
    {
        Filled filled(3);
        QVERIFY(pointer::showAndWait(filled.list.get()));
        QCOMPARE(title(*filled.list)->geometry(), QRect(0, 0, 400, 32));
        QCOMPARE(filled.list->getListWidget()->geometry(), QRect(0, 32, 400, 103));
        for (int i = 0; i < 3; ++i)
            QTRY_COMPARE(filled.rows.at(i)->y(), 34 * i);
    }

    void theTitleIsTheHosts()
    {
        EquipListWidget list("Devices");
        list.resize(400, 135);
        list.setTitle("Senders");
        QCOMPARE(titleLabel(list)->text(), QString("Senders"));
        QVERIFY(pointer::showAndWait(&list));
        list.setTitleVisiable(false);
        QVERIFY(!title(list)->isVisible());
        list.setTitleVisiable(true);
        QVERIFY(title(list)->isVisible());
        list.setIconVisible(true);
        QVERIFY(settingsButton(list)->isVisible());
        QVERIFY(refreshButton(list)->isVisible());
        QVERIFY(dropDownButton(list)->isVisible());
        list.hideRefIcon();
        QVERIFY(settingsButton(list)->isVisible());
        QVERIFY(!refreshButton(list)->isVisible());
        QVERIFY(dropDownButton(list)->isVisible());
        list.setIconVisible(false);
        QVERIFY(!settingsButton(list)->isVisible());
        QVERIFY(!dropDownButton(list)->isVisible());
        list.setRefLabelText("Looking for devices");
        QCOMPARE(overlayText(list)->text(), QString("Looking for devices"));
    }

    void clicksOnTheTitleArePassedOn()
    {
        EquipListWidget list("Devices");
        list.resize(400, 135);
        list.setIconVisible(true);
        QVERIFY(pointer::showAndWait(&list));
        QSignalSpy refresh(&list, &EquipListWidget::signal_RefEquipInfo);
        QSignalSpy setting(&list, &EquipListWidget::signal_Setting);
        windowmouse::click(refreshButton(list));
        QCOMPARE(refresh.count(), 1);
        QCOMPARE(setting.count(), 0);
        QVERIFY(!isRunning(list)); // the host starts it
        windowmouse::click(settingsButton(list));
        QCOMPARE(refresh.count(), 1);
        QCOMPARE(setting.count(), 1);
    }

    void clicksOnTheDropDownButtonFoldAndUnfold()
    {
        Filled filled(2);
        EquipListWidget &list = *filled.list;
        QVERIFY(pointer::showAndWait(&list));
        for (int round = 0; round < 2; ++round) {
            windowmouse::click(dropDownButton(list));
            QVERIFY(list.getListWidget()->isHidden());
            QCOMPARE(list.minimumHeight(), 32);
            QCOMPARE(list.maximumHeight(), 32);
            QCOMPARE(list.height(), 32);
            QCOMPARE(dropDownButton(list)->styleSheet(), sheetOfDropDown("btn_fold"));
            QCoreApplication::processEvents();

            windowmouse::click(dropDownButton(list));
            QVERIFY(list.getListWidget()->isVisible());
            QCOMPARE(list.minimumHeight(), 135);
            QCOMPARE(list.maximumHeight(), 135);
            QCOMPARE(list.height(), 135);
            QCOMPARE(dropDownButton(list)->styleSheet(), sheetOfDropDown("btn_unfold"));
            QTRY_COMPARE(list.getListWidget()->geometry(), QRect(0, 32, 400, 103));
        }
    }

    void theHostFoldsAndUnfoldsToo()
    {
        EquipListWidget list("Devices");
        list.slot_ShowList(false);
        list.slot_ShowList(false);
        QVERIFY(list.getListWidget()->isHidden());
        QCOMPARE(list.minimumHeight(), 32);
        QCOMPARE(list.maximumHeight(), 32);
        list.slot_ShowList(true);
        QVERIFY(!list.getListWidget()->isHidden());
        QCOMPARE(list.minimumHeight(), 135);
        QCOMPARE(list.maximumHeight(), 135);
        // The title counts its own clicks.
        list.slot_ShowList(false);
        list.resize(400, 32);
        QVERIFY(pointer::showAndWait(&list));
        windowmouse::click(dropDownButton(list));
        QVERIFY(list.getListWidget()->isHidden());
    }

    void aRowIsAnItemWithAWidget()
    {
        EquipListWidget list("Devices");
        CustomListWidgetMulItem *row = list.addCustomItem({"COM3", "Sender", "4"}, true);
        QVERIFY(row);
        ListWidgetEx *inner = list.getListWidget();
        QCOMPARE(inner->count(), 1);
        QCOMPARE(inner->itemWidget(inner->item(0)), row);
        QCOMPARE(row->parentWidget(), inner->viewport());
        QCOMPARE(row->getCurrentDevportName(), QString("COM3"));
        QCOMPARE(row->getLabelList().size(), 3);
        QCOMPARE(row->styleSheet(), QString("font: SimSun Arial;"));
        QCOMPARE(inner->item(0)->data(Qt::SizeHintRole).toSize(), QSize(-1, 34));
        CustomListWidgetMulItem *empty = list.addCustomItem({}, false);
        QCOMPARE(list.getItems(), (QList<CustomListWidgetMulItem *>{row, empty}));
    }

    void columnsFitTheNumberOfTexts()
    {
        EquipListWidget list("Devices");
        list.resize(500, 135);
        const auto widths = [](const CustomListWidgetMulItem *row) {
            QList<int> found;
            for (const LabelEx *label : row->getLabelList())
                found.append(label->width());
            return found;
        };
        CustomListWidgetMulItem *two = list.addCustomItem({"COM3", "online"}, false);
        CustomListWidgetMulItem *three = list.addCustomItem({"COM3", "Sender", "4"}, false);
        QVERIFY(pointer::showAndWait(&list));
        QTRY_COMPARE(three->y(), 34);
        QCOMPARE(widths(two).first(), 256);
        QCOMPARE(widths(three), (QList<int>{206, 110, 40}));
    }

    void rowsAreRemoved_data()
    {
        QTest::addColumn<int>("index");
        QTest::addColumn<QStringList>("left");
        const QStringList all{"0", "1", "2"};
        QTest::newRow("first") << 0 << QStringList{"1", "2"};
        QTest::newRow("last") << 2 << QStringList{"0", "1"};
        QTest::newRow("behind the last") << 3 << all;
        QTest::newRow("99") << 99 << all;
        QTest::newRow("-1") << -1 << all;
    }

    void rowsAreRemoved()
    {
        QFETCH(int, index);
        QFETCH(QStringList, left);
        Filled filled(3);
        filled.list->removeCustomItem(index);
        QCOMPARE(filled.list->getListWidget()->count(), left.size());
        deleteScheduled();
        QCOMPARE(names(*filled.list), left);
        filled.list->removeCustomItem(index);
        CustomListWidgetMulItem *added = filled.list->addCustomItem({"new"}, false);
        deleteScheduled();
        QCOMPARE(filled.list->getItems().last(), added);
        QCOMPARE(filled.list->getItems().size(), filled.list->getListWidget()->count());
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
        EquipListWidget &list = *filled.list;
        if (isShown)
            QVERIFY(pointer::showAndWait(&list));
        for (int round = 0; round < 3; ++round) {
            list.clearAllCustomItems();
            QCOMPARE(list.getListWidget()->count(), 0);
            QVERIFY(list.getItems().isEmpty());
            list.clearAllCustomItems();
            deleteScheduled();
            for (const auto &row : filled.rows)
                QVERIFY(row.isNull());
            filled.rows.clear();
            for (int i = 0; i < 4; ++i)
                filled.rows.append(list.addCustomItem({QString::number(i)}, false));
            QCOMPARE(names(list), (QStringList{"0", "1", "2", "3"}));
            if (isShown)
                QTRY_COMPARE(filled.rows.at(3)->y(), 3 * 34);
        }
    }

    void otherRowsInTheListAreTheHosts()
    {
        Filled filled(1);
        ListWidgetEx *inner = filled.list->getListWidget();
        inner->addItem("plain");
        inner->addCustomItem("Project", "/walls/lobby.wall");
        QCOMPARE(filled.list->getItems().size(), 1);
        filled.list->hideCheckBox();
        QCOMPARE(inner->count(), 3);
        delete filled.rows.at(0);
        QVERIFY(filled.list->getItems().isEmpty());
        filled.list->hideCheckBox();
        filled.list->removeCustomItem(1);
        QCOMPARE(inner->count(), 2);
        filled.list->clearAllCustomItems();
        QCOMPARE(inner->count(), 0);
    }

    void aDoubleClickIsReportedByRowAndList()
    {
        Filled filled(3);
        QVERIFY(pointer::showAndWait(filled.list.get()));
        QTRY_COMPARE(filled.rows.at(2)->y(), 2 * 34);
        CustomListWidgetMulItem *row = filled.rows.at(1);
        QStringList log;
        connect(row, &CustomListWidgetMulItem::signal_itemDoubleClicked, this,
                [&] { log << "row"; });
        connect(filled.list.get(), &EquipListWidget::signal_itemDoubleClicked, this,
                [&](CustomListWidgetMulItem *item) {
                    log << "list";
                    QCOMPARE(item, row);
                });
        QSignalSpy setting(filled.list.get(), &EquipListWidget::signal_everySetting);
        windowmouse::click(row);
        QCOMPARE(log, QStringList());
        QVERIFY(filled.list->getListWidget()->selectedItems().isEmpty());
        doubleClick(row, row->rect().center());
        // The list listened before the host did.
        QCOMPARE(log, (QStringList{"list", "row"}));
        QCOMPARE(setting.count(), 0);
    }

    void settingsOfARowArePassedOn()
    {
        Filled filled(3);
        QSignalSpy setting(filled.list.get(), &EquipListWidget::signal_everySetting);
        QSignalSpy doubleClicked(filled.list.get(), &EquipListWidget::signal_itemDoubleClicked);
        filled.rows.at(1)->slot_dealEnterButtonClick();
        QCOMPARE(setting.count(), 1);
        QCOMPARE(setting.at(0).at(0).value<CustomListWidgetMulItem *>(), filled.rows.at(1).data());
        CustomListWidgetMulItem stranger({"x"}, nullptr, false);
        filled.list->slot_emitSettingData(&stranger);
        QCOMPARE(setting.at(1).at(0).value<CustomListWidgetMulItem *>(), &stranger);
        QCOMPARE(doubleClicked.count(), 0);
        filled.list->slot_deviceItemDoubleClicked(&stranger);
        QCOMPARE(doubleClicked.count(), 1);
        QCOMPARE(doubleClicked.at(0).at(0).value<CustomListWidgetMulItem *>(), &stranger);
    }

    void stoppingWhileIdleDoesNothing()
    {
        EquipListWidget list("Devices");
        list.slot_StopRefAnimation();
        QVERIFY(overlay(list)->isHidden());
        QVERIFY(!isRunning(list));
        list.resize(400, 135);
        QVERIFY(pointer::showAndWait(&list));
        list.slot_StopRefAnimation();
        QVERIFY(overlay(list)->isHidden());
        QVERIFY(!isRunning(list));
        QVERIFY(list.getListWidget()->isVisible());
        QCOMPARE(list.height(), 135);
    }

    void theAnimationCoversTheList()
    {
        Filled filled(3);
        EquipListWidget &list = *filled.list;
        list.setRefLabelText("Looking for devices");
        QVERIFY(pointer::showAndWait(&list));
        list.slot_ShowRefAnimation();
        QVERIFY(isRunning(list));
        QVERIFY(overlay(list)->isVisible());
        QCOMPARE(overlay(list)->geometry(), list.getListWidget()->geometry());
        QTRY_VERIFY(overlayText(list)->isVisible() && overlayText(list)->height() > 0);
        QVERIFY(overlayImage(list)->y() > overlayText(list)->y());
        // The picture moves, in the middle of the label.
        const QImage first = overlayImage(list)->grab().toImage();
        QTRY_VERIFY(overlayImage(list)->grab().toImage() != first);
        // The rows cannot be reached.
        QSignalSpy doubleClicked(&list, &EquipListWidget::signal_itemDoubleClicked);
        doubleClick(&list, {200, 32 + 17});
        QCOMPARE(doubleClicked.count(), 0);

        list.slot_StopRefAnimation();
        QVERIFY(!isRunning(list));
        doubleClick(&list, {200, 32 + 17});
        QCOMPARE(doubleClicked.count(), 1);
    }

    void theAnimationCanBeStartedAndStoppedAgain()
    {
        for (const int rows : {0, 3}) {
            Filled filled(rows);
            EquipListWidget &list = *filled.list;
            QVERIFY(pointer::showAndWait(&list));
            for (int round = 0; round < 3; ++round) {
                list.slot_ShowRefAnimation();
                list.slot_ShowRefAnimation();
                QVERIFY(isRunning(list));
                QCoreApplication::processEvents();
                list.slot_StopRefAnimation();
                QVERIFY(!isRunning(list));
                list.slot_StopRefAnimation();
                QVERIFY(!isRunning(list));
            }
        }
    }

    void theAnimationCanBeStartedAndStoppedWhileHidden()
    {
        Filled filled(2);
        EquipListWidget &list = *filled.list;
        // Before the first show, when nothing has its place yet.
        list.slot_ShowRefAnimation();
        QVERIFY(isRunning(list));
        QVERIFY(pointer::showAndWait(&list));
        QVERIFY(overlay(list)->isVisible());
        QTRY_COMPARE(overlay(list)->geometry(), QRect(0, 32, 400, 103));
        list.hide();
        list.slot_StopRefAnimation();
        QVERIFY(!isRunning(list));
        list.show();
        QVERIFY(!overlay(list)->isVisible());
        list.hide();
        list.slot_ShowRefAnimation();
        list.slot_StopRefAnimation();
        QVERIFY(!isRunning(list));
        list.slot_ShowRefAnimation();
        list.show();
        QVERIFY(overlay(list)->isVisible());
        QVERIFY(isRunning(list));
    }

    void theAnimationFollowsTheList()
    {
        Filled filled(2);
        EquipListWidget &list = *filled.list;
        QVERIFY(pointer::showAndWait(&list));
        list.slot_ShowRefAnimation();
        list.resize(600, 135);
        QTRY_COMPARE(list.getListWidget()->width(), 600);
        QCOMPARE(overlay(list)->geometry(), list.getListWidget()->geometry());
        windowmouse::click(dropDownButton(list)); // folded while it runs
        QVERIFY(isRunning(list));
        QCOMPARE(list.height(), 32);
        windowmouse::click(dropDownButton(list));
        QVERIFY(isRunning(list));
        QTRY_COMPARE(overlay(list)->geometry(), QRect(0, 32, 600, 103));
        list.setTitleVisiable(false);
        QTRY_COMPARE(list.getListWidget()->y(), 0);
        QCOMPARE(overlay(list)->geometry(), list.getListWidget()->geometry());
        list.slot_StopRefAnimation();
        QVERIFY(!isRunning(list));
    }

    void rowsChangeWhileTheAnimationRuns()
    {
        Filled filled(2);
        EquipListWidget &list = *filled.list;
        QVERIFY(pointer::showAndWait(&list));
        list.slot_ShowRefAnimation();
        list.clearAllCustomItems();
        for (int i = 0; i < 10; ++i)
            list.addCustomItem({QString::number(i)}, false);
        list.removeCustomItem(0);
        QCoreApplication::processEvents();
        QVERIFY(isRunning(list));
        list.slot_StopRefAnimation();
        QCOMPARE(list.getListWidget()->count(), 9);
    }

    void theInnerListMayBeDeleted_data()
    {
        QTest::addColumn<bool>("isRunning");
        QTest::newRow("idle") << false;
        QTest::newRow("running") << true;
    }

    void theInnerListMayBeDeleted()
    {
        QFETCH(bool, isRunning);
        Filled filled(2);
        EquipListWidget &list = *filled.list;
        QVERIFY(pointer::showAndWait(&list));
        if (isRunning)
            list.slot_ShowRefAnimation();
        delete list.getListWidget();
        QVERIFY(!list.getListWidget());
        QVERIFY(list.getItems().isEmpty());
        QVERIFY(!list.addCustomItem({"x"}, false));
        list.removeCustomItem(0);
        list.clearAllCustomItems();
        list.hideCheckBox();
        list.slot_ShowList(false);
        list.slot_ShowList(true);
        list.slot_ShowRefAnimation();
        list.slot_StopRefAnimation();
        QVERIFY(!::isRunning(list));
    }

    void rowsAndListCanGoInTheSignals_data()
    {
        QTest::addColumn<QString>("signal");
        QTest::addColumn<QString>("action");
        for (const char *signal : {"double click", "setting", "refresh", "settings"}) {
            for (const char *action : {"remove", "clear", "clear and refill", "delete"})
                QTest::addRow("%s in %s", action, signal) << QString(signal) << QString(action);
        }
    }

    void rowsAndListCanGoInTheSignals()
    {
        QFETCH(QString, signal);
        QFETCH(QString, action);
        Filled filled(3);
        filled.list->setIconVisible(true);
        QVERIFY(pointer::showAndWait(filled.list.get()));
        QTRY_COMPARE(filled.rows.at(2)->y(), 2 * 34);
        filled.list->slot_ShowRefAnimation();
        if (signal == "double click")
            filled.list->slot_StopRefAnimation();
        int calls = 0;
        const auto act = [&] {
            ++calls;
            if (action == "remove")
                filled.list->removeCustomItem(1);
            else if (action == "delete")
                filled.list.reset();
            else
                filled.list->clearAllCustomItems();
            if (action == "clear and refill")
                filled.list->addCustomItem({"new"}, false);
        };
        using W = EquipListWidget;
        connect(filled.list.get(), &W::signal_itemDoubleClicked, this, act);
        connect(filled.list.get(), &W::signal_everySetting, this, act);
        connect(filled.list.get(), &W::signal_RefEquipInfo, this, act);
        connect(filled.list.get(), &W::signal_Setting, this, act);
        const QPointer<CustomListWidgetMulItem> row = filled.rows.at(1);
        if (signal == "double click") {
            QWidget *label = row->getLabelList().first();
            doubleClick(label, label->rect().center());
        } else if (signal == "setting") {
            row->slot_dealEnterButtonClick();
        } else {
            windowmouse::click(signal == "refresh" ? refreshButton(*filled.list)
                                                   : settingsButton(*filled.list));
        }
        QCOMPARE(calls, 1);
        deleteScheduled();
        QVERIFY(row.isNull());
        QCOMPARE(filled.list == nullptr, action == "delete");
        if (filled.list) {
            QCoreApplication::processEvents();
            QCOMPARE(names(*filled.list),
                     action == "remove"      ? (QStringList{"0", "2"})
                         : action == "clear" ? QStringList()
                                             : QStringList{"new"});
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
        EquipListWidget &list = *filled.list;
        CountingDelegate delegate;
        list.getListWidget()->setItemDelegate(&delegate);
        if (isShown)
            QVERIFY(pointer::showAndWait(&list));
        QCoreApplication::processEvents();
        delegate.count = 0;
        for (int i = 1; i < 2000; ++i)
            filled.rows.append(list.addCustomItem({QString::number(i), "Sender", "4"}, false));
        QCOMPARE(delegate.count, 0); // no row was looked at for another one's sake
        if (!isShown)
            QVERIFY(pointer::showAndWait(&list));
        QTRY_COMPARE(filled.rows.last()->y(), 1999 * 34);
        QCOMPARE(list.getItems().size(), 2000);
        list.clearAllCustomItems();
        QVERIFY(list.getItems().isEmpty());
        deleteScheduled();
        QVERIFY(filled.rows.last().isNull());
    }

    void nothingOfAListOutlivesIt_data()
    {
        QTest::addColumn<bool>("hasParent");
        QTest::addColumn<bool>("isRunning");
        QTest::newRow("alone") << false << false;
        QTest::newRow("alone, running") << false << true;
        QTest::newRow("with its parent") << true << false;
        QTest::newRow("with its parent, running") << true << true;
    }

    void nothingOfAListOutlivesIt()
    {
        QFETCH(bool, hasParent);
        QFETCH(bool, isRunning);
        auto window = std::make_unique<QWidget>();
        Filled filled(3);
        if (hasParent)
            filled.list->setParent(window.get());
        QVERIFY(pointer::showAndWait(filled.list.get()));
        if (isRunning)
            filled.list->slot_ShowRefAnimation();
        filled.list->removeCustomItem(0); // its widget still waits for the event loop
        QList<QPointer<QObject>> parts{movie(*filled.list), overlay(*filled.list),
                                       title(*filled.list), filled.list->getListWidget()};
        for (const auto &row : filled.rows)
            parts.append(row.data());
        if (hasParent) {
            filled.list.release(); // the window's
            window.reset();
        } else {
            filled.list.reset();
        }
        for (const QPointer<QObject> &part : parts)
            QVERIFY(part.isNull());
        QCoreApplication::processEvents();
    }
};

ORVANE_TEST_MAIN(TestEquipListWidget)
#include "tst_equiplistwidget.moc"
