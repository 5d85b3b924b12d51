#include "support/pointer.h"
#include "support/testcase.h"
#include "support/windowmouse.h"

#include <checkboxex.h>
#include <draweritem.h>
#include <drawitemcontentnew.h>

namespace
{

/// A body as a host makes it: boxes in the layout and in the list, connected as wanted.
struct Body {
    enum Connection {
        Clicked,
        StateChanged,
        None,
    };

    explicit Body(int count, Connection connection = Clicked)
        : content(new DrawItemContentNew)
    {
        for (int i = 0; i < count; ++i) {
            auto *box = new CheckBoxEx(content);
            box->setText(QString("Box %1").arg(i));
            content->layout()->addWidget(box);
            boxes.append(box);
            if (connection == Clicked) {
                QVERIFY(QObject::connect(box, SIGNAL(clicked(bool)), content,
                                         SLOT(slot_itemClicked(bool))));
            } else if (connection == StateChanged) {
                QVERIFY(QObject::connect(box, SIGNAL(stateChanged(int)), content,
                                         SLOT(slot_itemStateChanged(int))));
            }
        }
        content->setLsCheckbox(boxes);
        content->resize(300, 200);
    }

    ~Body() { delete content; }

    Q_DISABLE_COPY(Body)

    /// The check states and marks as text, one letter a box: "x" checked, "." not.
    QString checked() const
    {
        QString text;
        for (const CheckBoxEx *box : boxes)
            text += box->checkState() == Qt::Checked ? 'x' : '.';
        return text;
    }

    QString marked() const
    {
        QString text;
        for (CheckBoxEx *box : boxes)
            text += box->isLastSelectd() ? 'x' : '.';
        return text;
    }

    void set(const QString &checks, const QString &marks)
    {
        for (int i = 0; i < boxes.size(); ++i) {
            const QSignalBlocker blocker(boxes.at(i));
            boxes.at(i)->setChecked(checks.at(i) == 'x');
            boxes.at(i)->SetIsLastSelectd(marks.at(i) == 'x');
        }
    }

    void setControl(bool isHeld)
    {
        QVERIFY(QMetaObject::invokeMethod(content,
                                          isHeld ? "slot_keyPressEvent" : "slot_keyReleaseEvent",
                                          Q_ARG(int, Qt::Key_Control)));
    }

    QPointer<DrawItemContentNew> content;
    QList<CheckBoxEx *> boxes;
};

} // namespace

class TestDrawItemContentNew : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void hasItsLayout()
    {
        DrawItemContentNew content(nullptr);
        auto *layout = qobject_cast<QVBoxLayout *>(content.layout());
        QVERIFY(layout);
        QCOMPARE(layout->contentsMargins(), QMargins(50, 0, 0, 0));
        QCOMPARE(layout->spacing(), 0);
        QCOMPARE(layout->count(), 1);
        QVERIFY(layout->itemAt(0)->spacerItem());
        QCOMPARE(layout->itemAt(0)->sizeHint(), QSize(0, 15));
        QVERIFY(content.testAttribute(Qt::WA_MouseTracking));
        QVERIFY(content.lsCheckbox().isEmpty());
    }

    void declaresItsSignalAndItsSlots()
    {
        const QMetaObject &meta = DrawItemContentNew::staticMetaObject;
        QCOMPARE(meta.superClass(), &QWidget::staticMetaObject);
        QStringList methods;
        for (int i = meta.methodOffset(); i < meta.methodCount(); ++i) {
            methods += QString::fromLatin1(meta.method(i).methodSignature());
            if (i > meta.methodOffset())
                QCOMPARE(meta.method(i).access(), QMetaMethod::Private);
        }
        QCOMPARE(methods,
                 (QStringList{"signal_itemStateChandged(int)", "slot_itemStateChanged(int)",
                              "slot_itemClicked(bool)", "slot_keyPressEvent(int)",
                              "slot_keyReleaseEvent(int)"}));
    }

    void boxesLieBehindTheSpacing()
    {
        Body body(2);
        body.content->adjustSize();
        QVERIFY(pointer::showAndWait(body.content));
        QCOMPARE(body.boxes.at(0)->pos(), QPoint(50, 15));
        QCOMPARE(body.boxes.at(1)->y(), body.boxes.at(0)->geometry().bottom() + 1);
    }

    void theListIsThatOfTheHost()
    {
        Body body(3);
        QCOMPARE(body.content->lsCheckbox(), body.boxes);
        body.content->setLsCheckbox(body.content->lsCheckbox());
        QCOMPARE(body.content->lsCheckbox(), body.boxes);
        body.content->setLsCheckbox({body.boxes.at(2), body.boxes.at(1)});
        QCOMPARE(body.content->lsCheckbox(),
                 (QList<CheckBoxEx *>{body.boxes.at(2), body.boxes.at(1)}));
        QCOMPARE(body.boxes.at(0)->parentWidget(), body.content.data());
        QCOMPARE(body.content->layout()->count(), 4);
    }

    void setlsCheckboxStatusSetsEveryBox()
    {
        Body body(3);
        body.set(".x.", "x..");
        QSignalSpy spy(body.content, &DrawItemContentNew::signal_itemStateChandged);
        body.content->setlsCheckboxStatus(true);
        QCOMPARE(body.checked(), QString("xxx"));
        body.content->setlsCheckboxStatus(false);
        QCOMPARE(body.checked(), QString("..."));
        QCOMPARE(body.marked(), QString("x.."));
        QCOMPARE(spy.count(), 0);
    }

    void addWidgetIgnoresTheText()
    {
        Body body(1);
        body.content->addWidget("Box");
        QCOMPARE(body.content->layout()->count(), 2);
        QCOMPARE(body.content->lsCheckbox(), body.boxes);
    }

    void clicksSelect_data()
    {
        QTest::addColumn<bool>("control");
        QTest::addColumn<QString>("checksBefore");
        QTest::addColumn<QString>("marksBefore");
        QTest::addColumn<int>("clicked");
        QTest::addColumn<QString>("checks");
        QTest::addColumn<QString>("marks");

        QTest::newRow("nothing checked") << false << "..."
                                         << "..." << 1 << ".x."
                                         << ".x.";
        QTest::newRow("the third while the first is checked") << false << "x.."
                                                              << "x.." << 2 << "..x"
                                                              << "..x";
        QTest::newRow("the first while the third is checked") << false << "..x"
                                                              << "..x" << 0 << "x.."
                                                              << "x.x";
        QTest::newRow("the only checked one") << false << ".x."
                                              << ".x." << 1 << "..."
                                              << "...";
        QTest::newRow("one of two checked stays checked") << false << "xx."
                                                          << "x.." << 1 << ".x."
                                                          << ".x.";
        QTest::newRow("the first of all checked") << false << "xxx"
                                                  << "..." << 0 << "x.."
                                                  << "x..";
        QTest::newRow("the last of all checked") << false << "xxx"
                                                 << "xxx" << 2 << "..x"
                                                 << "..x";

        QTest::newRow("Control: first checked box keeps its mark, the third loses it")
            << true << "x.x"
            << "x.x" << 1 << "xxx"
            << "xx.";
        QTest::newRow("Control: a checked box before gets a mark") << true << "x.."
                                                                   << "..." << 1 << "xx."
                                                                   << "xx.";
        QTest::newRow("Control: unchecked boxes before lose theirs") << true << "..."
                                                                     << "xxx" << 1 << ".x."
                                                                     << ".x.";
        QTest::newRow("Control: unchecking marks every checked box") << true << "xxx"
                                                                     << "..." << 1 << "x.x"
                                                                     << "x.x";
        QTest::newRow("Control: unchecking the only one") << true << ".x."
                                                          << ".x." << 1 << "..."
                                                          << "...";
        QTest::newRow("Control: the first of none") << true << "..."
                                                    << "..." << 0 << "x.."
                                                    << "x..";
    }

    void clicksSelect()
    {
        QFETCH(bool, control);
        QFETCH(QString, checksBefore);
        QFETCH(QString, marksBefore);
        QFETCH(int, clicked);
        QFETCH(QString, checks);
        QFETCH(QString, marks);
        Body body(3);
        QVERIFY(pointer::showAndWait(body.content));
        body.set(checksBefore, marksBefore);
        body.setControl(control);
        QSignalSpy spy(body.content, &DrawItemContentNew::signal_itemStateChandged);
        CheckBoxEx *box = body.boxes.at(clicked);
        windowmouse::click(box, Qt::LeftButton, QPoint(8, box->height() / 2));
        QCOMPARE(body.checked(), checks);
        QCOMPARE(body.marked(), marks);
        QCOMPARE(spy.count(), 1);
        QCOMPARE(spy.at(0).at(0).toInt(), 0);
    }

    void onlyTheControlKeyCounts()
    {
        Body body(2);
        const auto click = [&](int i) { body.boxes.at(i)->click(); };
        const auto send = [&](const char *slot, int key) {
            QVERIFY(QMetaObject::invokeMethod(body.content, slot, Q_ARG(int, key)));
        };
        body.set("x.", "..");
        send("slot_keyPressEvent", Qt::Key_Shift);
        click(1);
        QCOMPARE(body.checked(), QString(".x"));

        send("slot_keyPressEvent", 0x01000021);
        send("slot_keyReleaseEvent", Qt::Key_Shift);
        click(0);
        QCOMPARE(body.checked(), QString("xx"));

        send("slot_keyReleaseEvent", 0x01000021);
        click(0);
        QCOMPARE(body.checked(), QString("x."));
    }

    void aClickWithAnEmptyListIsReported()
    {
        Body body(1);
        body.content->setLsCheckbox({});
        QSignalSpy spy(body.content, &DrawItemContentNew::signal_itemStateChandged);
        body.boxes.at(0)->click();
        QCOMPARE(spy.count(), 1);
        QCOMPARE(spy.at(0).at(0).toInt(), 0);
        QVERIFY(body.boxes.at(0)->isChecked());
        QVERIFY(!body.boxes.at(0)->isLastSelectd());
    }

    void aPlainClickOnABoxOutsideTheListUnchecksTheListed()
    {
        Body body(3);
        body.set("xx.", "xx.");
        body.content->setLsCheckbox({body.boxes.at(0), body.boxes.at(1)});
        QSignalSpy spy(body.content, &DrawItemContentNew::signal_itemStateChandged);
        body.boxes.at(2)->click();
        QCOMPARE(body.checked(), QString("..x"));
        QCOMPARE(body.marked(), QString("..."));
        QCOMPARE(spy.count(), 1);
    }

    void aPartlyCheckedBoxIsNotChecked()
    {
        Body body(2);
        body.boxes.at(0)->setTristate(true);
        body.boxes.at(0)->setCheckState(Qt::PartiallyChecked);
        body.boxes.at(1)->setChecked(true);
        // Of the others none is fully checked: the box that was unchecked stays so.
        body.boxes.at(1)->click();
        QVERIFY(!body.boxes.at(1)->isChecked());
        QVERIFY(!body.boxes.at(0)->isLastSelectd());
    }

    void stateChangesUncheckTheBoxesBefore_data()
    {
        QTest::addColumn<QString>("before");
        QTest::addColumn<int>("changed");
        QTest::addColumn<QString>("after");
        QTest::addColumn<int>("signalCount");
        QTest::newRow("the boxes behind stay") << "..x" << 1 << ".xx" << 1;
        QTest::newRow("the first") << ".xx" << 0 << "xxx" << 1;
        QTest::newRow("unchecked again") << ".xx" << 1 << "..x" << 1;
        // The box that is unchecked on the way reports its own change, too.
        QTest::newRow("a box before") << "x.x" << 1 << ".xx" << 2;
    }

    void stateChangesUncheckTheBoxesBefore()
    {
        QFETCH(QString, before);
        QFETCH(int, changed);
        QFETCH(QString, after);
        QFETCH(int, signalCount);
        Body body(3, Body::StateChanged);
        body.set(before, "...");
        QVERIFY(pointer::showAndWait(body.content));
        QSignalSpy spy(body.content, &DrawItemContentNew::signal_itemStateChandged);
        CheckBoxEx *box = body.boxes.at(changed);
        windowmouse::click(box, Qt::LeftButton, QPoint(8, box->height() / 2));
        QCOMPARE(body.checked(), after);
        QCOMPARE(body.marked(), QString("..."));
        QCOMPARE(spy.count(), signalCount);
        for (const auto &arguments : spy)
            QCOMPARE(arguments.at(0).toInt(), 0);
    }

    void aPartlyCheckedBoxIsUncheckedByItsStateChange()
    {
        Body body(2, Body::StateChanged);
        body.boxes.at(0)->setTristate(true);
        QSignalSpy spy(body.content, &DrawItemContentNew::signal_itemStateChandged);
        body.boxes.at(0)->setCheckState(Qt::PartiallyChecked);
        QCOMPARE(body.boxes.at(0)->checkState(), Qt::Unchecked);
        QCOMPARE(spy.count(), 2); // the change, and the one that it led to
    }

    void aStateChangeOutsideTheListUnchecksAllAndReportsNothing()
    {
        Body body(3, Body::None);
        body.set("x.x", "...");
        CheckBoxEx stranger;
        QVERIFY(connect(&stranger, SIGNAL(stateChanged(int)), body.content,
                        SLOT(slot_itemStateChanged(int))));
        QSignalSpy spy(body.content, &DrawItemContentNew::signal_itemStateChandged);
        stranger.setChecked(true);
        QCOMPARE(body.checked(), QString("..."));
        QVERIFY(stranger.isChecked());
        QCOMPARE(spy.count(), 0);
    }

    void theDrawerItemPassesTheChangeOn()
    {
        Body body(2);
        DrawerItem item;
        QVERIFY(connect(body.content, SIGNAL(signal_itemStateChandged(int)), &item,
                        SLOT(slot_itemStateChandged(int))));
        QSignalSpy spy(&item, &DrawerItem::signal_drawItemContentStateChandged);
        body.boxes.at(1)->click();
        QCOMPARE(spy.count(), 1);
        QCOMPARE(spy.at(0).at(0).value<DrawerItem *>(), &item);
        QCOMPARE(spy.at(0).at(1).toInt(), 0);
    }

    void deletedBoxesLeaveTheList()
    {
        Body body(3);
        body.set(".x.", "...");
        delete body.boxes.takeAt(0);
        QCOMPARE(body.content->lsCheckbox(), body.boxes);
        body.boxes.at(1)->click();
        QCOMPARE(body.checked(), QString(".x"));
        body.content->setlsCheckboxStatus(true);
        QCOMPARE(body.checked(), QString("xx"));
    }

    void theDestructionLeavesForeignBoxesAlone()
    {
        CheckBoxEx box;
        {
            DrawItemContentNew content;
            content.setLsCheckbox({&box});
        }
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        box.setChecked(true);
        QVERIFY(box.isChecked());
    }

    void listsAreReplacedInTheSignal()
    {
        Body body(3);
        connect(body.content, &DrawItemContentNew::signal_itemStateChandged, this,
                [&] { body.content->setLsCheckbox(body.content->lsCheckbox().mid(1)); });
        body.boxes.at(2)->click();
        QCOMPARE(body.content->lsCheckbox(), body.boxes.mid(1));
        body.boxes.at(1)->click();
        QCOMPARE(body.checked(), QString(".x."));
    }

    void survivesDeletionsInTheMiddle_data()
    {
        QTest::addColumn<int>("connection");
        QTest::addColumn<QString>("victim");
        for (const auto *victim : {"clicked box", "other box", "content"}) {
            QTest::addRow("%s in a click", victim) << int(Body::Clicked) << victim;
            QTest::addRow("%s in a state change", victim) << int(Body::StateChanged) << victim;
        }
    }

    void survivesDeletionsInTheMiddle()
    {
        QFETCH(int, connection);
        QFETCH(QString, victim);
        // The first box is unchecked on the way to the clicked one, and that is where the host
        // deletes. It lies elsewhere: Qt itself goes on using a box that is being checked.
        QWidget elsewhere;
        Body body(4, static_cast<Body::Connection>(connection));
        body.set("x..x", "....");
        body.boxes.at(0)->setParent(&elsewhere);
        QVERIFY(pointer::showAndWait(body.content));
        int signalCount = 0;
        connect(body.content, &DrawItemContentNew::signal_itemStateChandged, this,
                [&] { ++signalCount; });
        const QPointer<CheckBoxEx> clicked = body.boxes.at(2);
        const QPointer<CheckBoxEx> other = body.boxes.at(1);
        const QPointer<CheckBoxEx> first = body.boxes.at(0);
        connect(first, &CheckBoxEx::toggled, this, [&] {
            if (victim == "clicked box")
                delete clicked;
            else if (victim == "other box")
                delete other;
            else
                delete body.content;
        });
        windowmouse::click(clicked, Qt::LeftButton, QPoint(8, clicked->height() / 2));
        QCOMPARE(body.content.isNull(), victim == "content");
        QCOMPARE(clicked.isNull(), victim != "other box");
        QCOMPARE(other.isNull(), victim != "clicked box");
        QVERIFY(!first->isChecked());
        if (body.content) {
            QCOMPARE(body.content->lsCheckbox().size(), 3);
            QVERIFY(signalCount > 0);
        } else {
            // The first box's own state change was reported before; the clicked one's is not.
            QCOMPARE(signalCount, connection == Body::StateChanged ? 1 : 0);
        }
    }

    void canBeDeletedInItsOwnSignal_data()
    {
        QTest::addColumn<int>("connection");
        QTest::newRow("click") << int(Body::Clicked);
        QTest::newRow("state change") << int(Body::StateChanged);
    }

    void canBeDeletedInItsOwnSignal()
    {
        QFETCH(int, connection);
        Body body(3, static_cast<Body::Connection>(connection));
        QVERIFY(pointer::showAndWait(body.content));
        connect(body.content, &DrawItemContentNew::signal_itemStateChandged, this,
                [&] { delete body.content; });
        CheckBoxEx *box = body.boxes.at(1);
        windowmouse::click(box, Qt::LeftButton, QPoint(8, box->height() / 2));
        QVERIFY(body.content.isNull());
    }
};

ORVANE_TEST_MAIN(TestDrawItemContentNew)
#include "tst_drawitemcontentnew.moc"
