#include "support/pointer.h"
#include "support/testcase.h"

#include <mutexbuttonex.h>
#include <toolbuttonex.h>

namespace
{

ToolButtonEx *addTo(MutexButtonEx &strip, ButtonType type = DefaultType)
{
    auto *button = new ToolButtonEx(&strip, type, QString(), QString());
    strip.addButton(button);
    return button;
}

} // namespace

class TestMutexButtonEx : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void beginsEmpty()
    {
        QWidget parent;
        const MutexButtonEx strip(&parent);
        QCOMPARE(strip.parentWidget(), &parent);
        QCOMPARE(strip.styleSheet(), QStringLiteral("QFrame{background:rgb(69, 69, 69);}"));
        QVERIFY(strip.children().isEmpty()); // the group has no parent
        QCOMPARE(strip.minimumSize(), QSize(0, 0));
        QCOMPARE(strip.maximumSize(), QSize(QWIDGETSIZE_MAX, QWIDGETSIZE_MAX));
    }

    void buttonsLieSideBySide_data()
    {
        QTest::addColumn<int>("width");
        QTest::addColumn<int>("height");
        QTest::addColumn<int>("space");
        QTest::addColumn<QList<int>>("lefts");
        QTest::addColumn<int>("stripWidth");
        using Lefts = QList<int>;
        QTest::newRow("one") << 38 << 26 << 0 << Lefts{0} << 39;
        QTest::newRow("three") << 38 << 26 << 0 << Lefts{0, 38, 76} << 117;
        QTest::newRow("two with a gap") << 38 << 26 << 4 << Lefts{0, 42} << 74;
        QTest::newRow("three with a gap") << 50 << 30 << 10 << Lefts{0, 60, 120} << 143;
        QTest::newRow("negative gap") << 38 << 26 << -8 << Lefts{0, 30} << 86;
        QTest::newRow("gap wider than all") << 38 << 26 << 100 << Lefts{0} << 0;
    }

    void buttonsLieSideBySide()
    {
        QFETCH(int, width);
        QFETCH(int, height);
        QFETCH(int, space);
        QFETCH(QList<int>, lefts);
        QFETCH(int, stripWidth);
        QWidget panel;
        panel.resize(300, 100);
        MutexButtonEx strip(&panel);
        strip.setButtonWidth(width);
        strip.setButtonHeight(height);
        strip.setButtonSpace(space);
        QList<ToolButtonEx *> buttons;
        for (int i = 0; i < lefts.size(); ++i)
            buttons << addTo(strip);
        QVERIFY(pointer::showAndWait(&panel));
        for (int i = 0; i < lefts.size(); ++i)
            QCOMPARE(buttons.at(i)->geometry(), QRect(lefts.at(i), 0, width, height));
        QCOMPARE(strip.minimumSize(), QSize(stripWidth, height));
        QCOMPARE(strip.maximumSize(), QSize(stripWidth, height));
        QCOMPARE(strip.size(), QSize(stripWidth, height));
    }

    void measuresHoldForLaterButtons()
    {
        MutexButtonEx strip;
        const ToolButtonEx *first = addTo(strip);
        QCOMPARE(strip.minimumSize(), QSize(39, 26));
        strip.setButtonWidth(50);
        strip.setButtonHeight(20);
        strip.setButtonSpace(2);
        QCOMPARE(first->geometry(), QRect(0, 0, 38, 26));
        QCOMPARE(strip.minimumSize(), QSize(39, 26));
        const ToolButtonEx *second = addTo(strip);
        QCOMPARE(first->geometry(), QRect(0, 0, 38, 26));
        QCOMPARE(second->geometry(), QRect(52, 0, 50, 20));
        QCOMPARE(strip.minimumSize(), QSize(100, 20)); // 2 * 50 + 2 - 2
    }

    void oneAtMostIsChecked()
    {
        MutexButtonEx strip;
        ToolButtonEx *first = addTo(strip, ActivatedType);
        ToolButtonEx *second = addTo(strip, ActivatedType);
        ToolButtonEx *third = addTo(strip, ActivatedType);
        for (const ToolButtonEx *button : {first, second, third}) {
            QVERIFY(button->isCheckable());
            QVERIFY(!button->isChecked());
        }
        QVERIFY(pointer::showAndWait(&strip));
        QTest::mouseClick(strip.windowHandle(), Qt::LeftButton, Qt::NoModifier, QPoint(10, 10));
        QVERIFY(first->isChecked());
        QTest::mouseClick(strip.windowHandle(), Qt::LeftButton, Qt::NoModifier, QPoint(80, 10));
        QVERIFY(!first->isChecked());
        QVERIFY(third->isChecked());
        QTest::mouseClick(strip.windowHandle(), Qt::LeftButton, Qt::NoModifier, QPoint(80, 10));
        QVERIFY(third->isChecked()); // a second click leaves it checked
        second->setChecked(true);
        QVERIFY(!third->isChecked());
        QVERIFY(second->isChecked());
    }

    void groupGivesAutomaticIds()
    {
        MutexButtonEx strip;
        const ToolButtonEx *first = addTo(strip);
        const ToolButtonEx *second = addTo(strip);
        const QButtonGroup *group = first->group();
        QVERIFY(group);
        QCOMPARE(second->group(), group);
        QVERIFY(group->exclusive());
        QVERIFY(!group->parent());
        QCOMPARE(group->id(const_cast<ToolButtonEx *>(first)), -2); // Qt's first one
        QCOMPARE(group->id(const_cast<ToolButtonEx *>(second)), -3);
    }

    void buttonKeepsItsParent()
    {
        QWidget other;
        MutexButtonEx strip;
        ToolButtonEx button(&other, DefaultType, "", "");
        strip.addButton(&button);
        QCOMPARE(button.parentWidget(), &other);
        QCOMPARE(button.geometry(), QRect(0, 0, 38, 26));
        QCOMPARE(strip.minimumSize(), QSize(39, 26));
    }

    void nothingIsIgnored()
    {
        MutexButtonEx strip;
        strip.addButton(nullptr);
        QCOMPARE(strip.minimumSize(), QSize(0, 0));
        QCOMPARE(addTo(strip)->geometry(), QRect(0, 0, 38, 26));
    }

    void stripHasItsGround()
    {
        MutexButtonEx strip;
        addTo(strip);
        QVERIFY(pointer::showAndWait(&strip));
        QCOMPARE(pointer::colorAt(&strip, QPoint(38, 5)), QColor(69, 69, 69));
    }

    void livesAndDiesInAnyOrder()
    {
        auto *strip = new MutexButtonEx;
        QPointer<ToolButtonEx> first = addTo(*strip);
        const QPointer<ToolButtonEx> second = addTo(*strip);
        const QPointer<QButtonGroup> group = first->group();
        delete first.data();
        QCOMPARE(group->buttons().size(), 1);
        // Its place is taken again: places go by the number of buttons.
        QCOMPARE(addTo(*strip)->x(), 38);
        QWidget other;
        ToolButtonEx outside(&other, DefaultType, "", "");
        strip->addButton(&outside);
        delete strip;
        QVERIFY(second.isNull());
        QVERIFY(group.isNull());
        QVERIFY(!outside.group());
        outside.setChecked(true);
        QVERIFY(outside.isChecked());
    }

    void canBeDeletedWhenAButtonIsChecked_data()
    {
        QTest::addColumn<bool>("isAdded");
        QTest::newRow("by a click") << false;
        QTest::newRow("by adding another checked one") << true;
    }

    void hugeButtonsAndGapsEndAtTheLimit()
    {
        MutexButtonEx strip;
        constexpr int huge = 1000000000;
        strip.setButtonWidth(huge);
        strip.setButtonSpace(huge);
        ToolButtonEx *last = nullptr;
        for (int i = 0; i < 4; ++i) {
            last = new ToolButtonEx(&strip, DefaultType, QString(), QString());
            strip.addButton(last);
        }
        QCOMPARE(last->x(), QWIDGETSIZE_MAX);
        QCOMPARE(strip.width(), QWIDGETSIZE_MAX);
    }

    void canBeDeletedWhenAButtonIsChecked()
    {
        QFETCH(bool, isAdded);
        QWidget other;
        ToolButtonEx late(&other, DefaultType, "", "");
        late.setCheckable(true);
        late.setChecked(true);
        auto *strip = new MutexButtonEx;
        const QPointer<MutexButtonEx> guard(strip);
        ToolButtonEx first(&other, DefaultType, "", "");
        strip->addButton(&first);
        ToolButtonEx *second = addTo(*strip);
        first.setChecked(true);
        QVERIFY(pointer::showAndWait(strip));
        if (isAdded) {
            connect(&first, &QToolButton::toggled, this, [strip] { delete strip; });
            strip->addButton(&late);
        } else {
            connect(second, &QToolButton::clicked, this, [strip] { delete strip; });
            QTest::mouseClick(second, Qt::LeftButton);
        }
        QVERIFY(guard.isNull());
    }

    void addsNothingToTheMetaObject()
    {
        const QMetaObject &meta = MutexButtonEx::staticMetaObject;
        QCOMPARE(meta.methodOffset(), meta.methodCount());
        QCOMPARE(meta.propertyOffset(), meta.propertyCount());
        QCOMPARE(QByteArray(meta.superClass()->className()), QByteArray("QFrame"));
    }
};

ORVANE_TEST_MAIN(TestMutexButtonEx)
#include "tst_mutexbuttonex.moc"
