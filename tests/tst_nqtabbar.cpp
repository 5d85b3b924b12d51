#include "support/pointer.h"
#include "support/testcase.h"

#include <nqtabbar.h>

#include <functional>

namespace
{

QIcon colorIcon(const QColor &color)
{
    QPixmap pixmap(16, 16);
    pixmap.fill(color);
    return pixmap;
}

QColor iconColor(const QIcon &icon)
{
    return icon.pixmap(16).toImage().pixelColor(8, 8);
}

/// A bar with the tabs "0", "1", "2"; the last one is current.
void addThree(NQTabBar *bar)
{
    for (int i = 0; i < 3; ++i)
        bar->addTab(QString::number(i));
}

QStringList texts(const NQTabBar &bar)
{
    QStringList all;
    for (int i = 0; i < bar.getTabBar()->count(); ++i)
        all.append(bar.getTabBar()->tabText(i));
    return all;
}

QHBoxLayout *row(const NQTabBar &bar)
{
    return qobject_cast<QHBoxLayout *>(bar.layout());
}

// The places in the row.
enum Place { Left = 0, Bar = 1, Center = 2, Spacer = 3, Right = 4 };

QHBoxLayout *placeLayout(const NQTabBar &bar, Place place)
{
    return qobject_cast<QHBoxLayout *>(row(bar)->itemAt(place)->layout());
}

void add(NQTabBar *bar, Place place, QWidget *widget)
{
    switch (place) {
    case Left:
        bar->addLeftWidget(widget);
        break;
    case Center:
        bar->addCenterWidget(widget);
        break;
    default:
        bar->addRightWidget(widget);
    }
}

} // namespace

Q_DECLARE_METATYPE(std::function<bool(NQTabBar &, TabBarRd &)>)

class TestNQTabBar : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void hasDefaults()
    {
        const NQTabBar bar;
        QCOMPARE(bar.getTabBarType(), TabBarRd::TabsByContent);
        QCOMPARE(bar.getTabMinWidth(), 0);
        QCOMPARE(bar.getTabMaxWidth(), 0);
        QCOMPARE(bar.count(), 0);
        QCOMPARE(bar.currentIndex(), -1);
        QCOMPARE(bar.styleSheet(), QString());
        QCOMPARE(bar.frameShape(), QFrame::NoFrame);
        QVERIFY(bar.getTabBar());
        QCOMPARE(bar.getTabBar()->parentWidget(), &bar);
        QVERIFY(!bar.getTabBar()->drawBase());
        QCOMPARE(bar.getTabBar()->sizePolicy(),
                 QSizePolicy(QSizePolicy::Fixed, QSizePolicy::Preferred));
    }

    void rowHasItsPlaces()
    {
        const NQTabBar bar;
        QVERIFY(row(bar));
        QCOMPARE(row(bar)->spacing(), 0);
        QCOMPARE(row(bar)->contentsMargins(), QMargins());
        QCOMPARE(row(bar)->count(), 5);
        QVERIFY(placeLayout(bar, Left));
        QCOMPARE(row(bar)->itemAt(Bar)->widget(), bar.getTabBar());
        QVERIFY(placeLayout(bar, Center));
        QVERIFY(placeLayout(bar, Right));
        for (const Place place : {Left, Center, Right})
            QCOMPARE(placeLayout(bar, place)->count(), 0);
        const QSpacerItem *spacer = row(bar)->itemAt(Spacer)->spacerItem();
        QVERIFY(spacer);
        QCOMPARE(spacer->sizeHint(), QSize(0, 0));
        QCOMPARE(spacer->sizePolicy(), QSizePolicy(QSizePolicy::Expanding, QSizePolicy::Minimum));
    }

    void equalWidthTakesAllTheRoomForGood()
    {
        NQTabBar bar;
        bar.setTabBarType(TabBarRd::TabsByContent);
        QCOMPARE(bar.getTabBar()->sizePolicy(),
                 QSizePolicy(QSizePolicy::Fixed, QSizePolicy::Preferred));
        const QSpacerItem *spacer = row(bar)->itemAt(Spacer)->spacerItem();
        const QSizePolicy barPolicy(QSizePolicy::Expanding, QSizePolicy::Preferred);
        const QSizePolicy spacerPolicy(QSizePolicy::Fixed, QSizePolicy::Preferred);
        for (const auto type : {TabBarRd::TabsOfEqualWidth, TabBarRd::TabsByContent}) {
            bar.setTabBarType(type);
            QCOMPARE(bar.getTabBarType(), type);
            QCOMPARE(bar.getTabBar()->getTabBarType(), type);
            QCOMPARE(bar.getTabBar()->sizePolicy(), barPolicy);
            QCOMPARE(spacer->sizePolicy(), spacerPolicy);
            QCOMPARE(spacer->sizeHint(), QSize(0, 0));
        }
    }

    void equalWidthFillsAShownBar()
    {
        NQTabBar bar;
        addThree(&bar);
        bar.resize(400, 40);
        QVERIFY(pointer::showAndWait(&bar));
        QVERIFY(bar.getTabBar()->width() < 400);
        bar.setTabBarType(TabBarRd::TabsOfEqualWidth);
        QTRY_COMPARE(bar.getTabBar()->width(), 400);
        QCOMPARE(bar.tabRect(0).width(), 133);
        QCOMPARE(bar.tabRect(1).width(), 133);
        QCOMPARE(bar.tabRect(2).width(), 134);
    }

    void widthsGoToTheBar()
    {
        NQTabBar bar;
        bar.setTabMinWidth(60);
        QCOMPARE(bar.getTabMinWidth(), 60);
        QCOMPARE(bar.getTabBar()->getTabMinWidth(), 60);
        QCOMPARE(bar.getTabBar()->minimumWidth(), 60);
        bar.setTabMaxWidth(90);
        QCOMPARE(bar.getTabMaxWidth(), 90);
        QCOMPARE(bar.getTabBar()->getTabMaxWidth(), 90);
        QCOMPARE(bar.getTabBar()->maximumWidth(), 90);
        bar.setTabMaxWidth(-1);
        QCOMPARE(bar.getTabMaxWidth(), 90);
        QCOMPARE(bar.getTabBar()->getTabMaxWidth(), 90);
        QCOMPARE(bar.getTabBar()->maximumWidth(), 90);
        bar.setTabMinWidth(0);
        bar.setTabMaxWidth(0);
        QCOMPARE(bar.getTabMaxWidth(), 0);
        QCOMPARE(bar.getTabBar()->maximumWidth(), 0);
    }

    void sizeAndColorAreTaken()
    {
        NQTabBar bar;
        bar.setWidgetFixedSize(311, 41);
        QCOMPARE(bar.minimumSize(), QSize(311, 41));
        QCOMPARE(bar.maximumSize(), QSize(311, 41));
        bar.setWidgetColor(Qt::red); // stored; nothing is painted with it
        QCOMPARE(bar.styleSheet(), QString());
        QCOMPARE(bar.palette(), QWidget().palette());
    }

    void placesHaveTheirSpacing()
    {
        NQTabBar bar;
        bar.setLeftHLayoutSpace(3);
        bar.setRightHLayoutSpace(5);
        bar.setCenterHLayoutSpace(7);
        QCOMPARE(placeLayout(bar, Left)->spacing(), 3);
        QCOMPARE(placeLayout(bar, Right)->spacing(), 5);
        QCOMPARE(placeLayout(bar, Center)->spacing(), 7);
        QCOMPARE(row(bar)->spacing(), 0);
    }

    void widgetsGoToTheirPlace_data()
    {
        QTest::addColumn<int>("place");
        QTest::addColumn<int>("held");
        QTest::newRow("left") << int(Left) << 2;
        QTest::newRow("centre") << int(Center) << 1;
        QTest::newRow("right") << int(Right) << 2;
    }

    void widgetsGoToTheirPlace()
    {
        QFETCH(int, place);
        QFETCH(int, held);
        NQTabBar bar;
        auto *first = new QPushButton("first");
        QPointer<QPushButton> second = new QPushButton("second");
        add(&bar, Place(place), nullptr);
        add(&bar, Place(place), first);
        add(&bar, Place(place), second);
        for (const Place each : {Left, Center, Right})
            QCOMPARE(placeLayout(bar, each)->count(), each == place ? held : 0);
        const QHBoxLayout *layout = placeLayout(bar, Place(place));
        QCOMPARE(layout->itemAt(0)->widget(), first);
        for (int i = 0; i < held; ++i)
            QCOMPARE(layout->itemAt(i)->alignment(), Qt::AlignRight | Qt::AlignBottom);
        QCOMPARE(first->parentWidget(), &bar);
        if (held == 2) {
            QCOMPARE(layout->itemAt(1)->widget(), second);
        } else {
            QCOMPARE(second->parentWidget(), nullptr);
            delete second;
        }
    }

    void centreIsFreeAgainWhenItsWidgetIsGone()
    {
        NQTabBar bar;
        auto *first = new QPushButton;
        bar.addCenterWidget(first);
        delete first;
        auto *second = new QPushButton;
        bar.addCenterWidget(second);
        QCOMPARE(placeLayout(bar, Center)->count(), 1);
        QCOMPARE(second->parentWidget(), &bar);
    }

    void placesStandInTheirOrder()
    {
        NQTabBar bar;
        addThree(&bar);
        QList<QWidget *> widgets;
        for (const Place place : {Left, Center, Right}) {
            auto *widget = new QWidget;
            widget->setFixedSize(20, 10);
            add(&bar, place, widget);
            widgets.append(widget);
        }
        bar.resize(600, 40);
        QVERIFY(pointer::showAndWait(&bar));
        const QRect tabs = bar.getTabBar()->geometry();
        QCOMPARE(widgets.at(0)->geometry(), QRect(0, 30, 20, 10));
        QCOMPARE(tabs.left(), 20);
        QCOMPARE(widgets.at(1)->geometry(), QRect(tabs.right() + 1, 30, 20, 10));
        QCOMPARE(widgets.at(2)->geometry(), QRect(580, 30, 20, 10));
    }

    void newTabBecomesCurrent()
    {
        NQTabBar bar;
        QSignalSpy changed(&bar, &NQTabBar::currentChanged);
        QCOMPARE(bar.addTab("a"), 0);
        QCOMPARE(changed.takeLast(), QVariantList{0});
        QCOMPARE(bar.addTab("b"), 1);
        QCOMPARE(bar.currentIndex(), 1);
        QCOMPARE(changed.takeLast(), QVariantList{1});
        QCOMPARE(bar.insertTab(0, "c"), 0);
        QCOMPARE(bar.currentIndex(), 0);
        QCOMPARE(changed.takeLast(), QVariantList{0});
        QCOMPARE(bar.insertTab(1, "d"), 1);
        QCOMPARE(bar.currentIndex(), 1);
        QCOMPARE(changed.takeLast(), QVariantList{1});
        QCOMPARE(texts(bar), (QStringList{"c", "d", "a", "b"}));
        QVERIFY(changed.isEmpty());
    }

    void tabsAreInsertedWithIcons()
    {
        NQTabBar bar;
        QCOMPARE(bar.addTab(colorIcon(Qt::red), "a"), 0);
        QCOMPARE(bar.addTab(colorIcon(Qt::green), "b"), 1);
        QCOMPARE(bar.insertTab(1, colorIcon(Qt::blue), "c"), 1);
        QCOMPARE(bar.currentIndex(), 1);
        QCOMPARE(texts(bar), (QStringList{"a", "c", "b"}));
        QCOMPARE(iconColor(bar.getTabBar()->tabIcon(0)), QColor(Qt::red));
        QCOMPARE(iconColor(bar.getTabBar()->tabIcon(1)), QColor(Qt::blue));
        QCOMPARE(iconColor(bar.getTabBar()->tabIcon(2)), QColor(Qt::green));
        QCOMPARE(bar.insertTab(0, "d"), 0);
        QVERIFY(bar.getTabBar()->tabIcon(0).isNull());
        QCOMPARE(bar.addTab("e"), 4);
        QVERIFY(bar.getTabBar()->tabIcon(4).isNull());
    }

    void indexOutsideAppends_data()
    {
        QTest::addColumn<int>("index");
        QTest::newRow("-1") << -1;
        QTest::newRow("-7") << -7;
        QTest::newRow("past the end") << 40;
        QTest::newRow("the end") << 3;
    }

    void indexOutsideAppends()
    {
        QFETCH(int, index);
        NQTabBar bar;
        addThree(&bar);
        QCOMPARE(bar.insertTab(index, "new"), 3);
        QCOMPARE(texts(bar), (QStringList{"0", "1", "2", "new"}));
        QCOMPARE(bar.currentIndex(), 3);
        QCOMPARE(bar.insertTab(index, colorIcon(Qt::red), "newer"), index == 3 ? 3 : 4);
    }

    // Each row sets something through one side and reads it from the other.
    void operationsAreTheBars_data()
    {
        using Check = std::function<bool(NQTabBar &, TabBarRd &)>;
        QTest::addColumn<Check>("check");
        using N = NQTabBar;
        using T = TabBarRd;
        QTest::newRow("removeTab") << Check([](N &n, T &t) {
            n.removeTab(1);
            return t.count() == 2 && t.tabText(0) == "0" && t.tabText(1) == "2";
        });
        QTest::newRow("moveTab") << Check([](N &n, T &t) {
            n.moveTab(0, 2);
            return t.tabText(0) == "1" && t.tabText(1) == "2" && t.tabText(2) == "0";
        });
        QTest::newRow("isTabEnabled") << Check([](N &n, T &t) {
            t.setTabEnabled(1, false);
            return n.isTabEnabled(0) && !n.isTabEnabled(1) && n.isTabEnabled(2);
        });
        QTest::newRow("setTabEnabled") << Check([](N &n, T &t) {
            n.setTabEnabled(1, false);
            const bool wasDisabled = t.isTabEnabled(0) && !t.isTabEnabled(1);
            n.setTabEnabled(1, true);
            return wasDisabled && t.isTabEnabled(1);
        });
        QTest::newRow("tabText") << Check([](N &n, T &t) {
            t.setTabText(1, "text");
            return n.tabText(1) == "text" && n.tabText(0) == "0" && n.tabText(9).isEmpty();
        });
        QTest::newRow("setTabText") << Check([](N &n, T &t) {
            n.setTabText(1, "text");
            return t.tabText(1) == "text" && t.tabText(0) == "0" && t.tabToolTip(1).isEmpty();
        });
        QTest::newRow("tabTextColor") << Check([](N &n, T &t) {
            t.setTabTextColor(1, Qt::red);
            return n.tabTextColor(1) == QColor(Qt::red) && n.tabTextColor(0) != QColor(Qt::red);
        });
        QTest::newRow("setTabTextColor") << Check([](N &n, T &t) {
            n.setTabTextColor(1, Qt::red);
            return t.tabTextColor(1) == QColor(Qt::red) && t.tabTextColor(0) != QColor(Qt::red);
        });
        QTest::newRow("tabIcon") << Check([](N &n, T &t) {
            t.setTabIcon(1, colorIcon(Qt::red));
            return iconColor(n.tabIcon(1)) == QColor(Qt::red) && n.tabIcon(0).isNull();
        });
        QTest::newRow("setTabIcon") << Check([](N &n, T &t) {
            n.setTabIcon(1, colorIcon(Qt::red));
            return iconColor(t.tabIcon(1)) == QColor(Qt::red) && t.tabIcon(0).isNull();
        });
        QTest::newRow("elideMode") << Check([](N &n, T &t) {
            t.setElideMode(Qt::ElideLeft);
            const bool left = n.elideMode() == Qt::ElideLeft;
            t.setElideMode(Qt::ElideMiddle);
            return left && n.elideMode() == Qt::ElideMiddle;
        });
        QTest::newRow("setElideMode") << Check([](N &n, T &t) {
            n.setElideMode(Qt::ElideLeft);
            const bool left = t.elideMode() == Qt::ElideLeft;
            n.setElideMode(Qt::ElideMiddle);
            return left && t.elideMode() == Qt::ElideMiddle;
        });
        QTest::newRow("setTabToolTip") << Check([](N &n, T &t) {
            n.setTabToolTip(1, "tip");
            return t.tabToolTip(1) == "tip" && t.tabToolTip(0).isEmpty() && n.toolTip().isEmpty()
                && t.tabText(1) == "1";
        });
        QTest::newRow("tabToolTip") << Check([](N &n, T &t) {
            t.setTabToolTip(1, "tip");
            return n.tabToolTip(1) == "tip" && n.tabToolTip(0).isEmpty();
        });
        QTest::newRow("setTabData") << Check([](N &n, T &t) {
            n.setTabData(1, 42);
            return t.tabData(1) == QVariant(42) && !t.tabData(0).isValid();
        });
        QTest::newRow("tabData") << Check([](N &n, T &t) {
            t.setTabData(1, 42);
            return n.tabData(1) == QVariant(42) && !n.tabData(0).isValid();
        });
        QTest::newRow("tabRect") << Check([](N &n, T &t) {
            return n.tabRect(1) == t.tabRect(1) && n.tabRect(2) == t.tabRect(2)
                && n.tabRect(1) != n.tabRect(2) && !n.tabRect(1).isEmpty()
                && n.tabRect(7).isEmpty();
        });
        QTest::newRow("tabAt") << Check([](N &n, T &t) {
            return n.tabAt(t.tabRect(1).center()) == 1 && n.tabAt(t.tabRect(0).center()) == 0
                && n.tabAt(QPoint(-5, -5)) == -1;
        });
        QTest::newRow("currentIndex") << Check([](N &n, T &t) {
            t.setCurrentIndex(1);
            return n.currentIndex() == 1;
        });
        QTest::newRow("setCurrentIndex") << Check([](N &n, T &t) {
            n.setCurrentIndex(1);
            return t.currentIndex() == 1;
        });
        QTest::newRow("count") << Check([](N &n, T &t) {
            t.addTab("3");
            return n.count() == 4;
        });
        QTest::newRow("iconSize") << Check([](N &n, T &t) {
            t.setIconSize(QSize(21, 23));
            return n.iconSize() == QSize(21, 23);
        });
        QTest::newRow("setIconSize") << Check([](N &n, T &t) {
            n.setIconSize(QSize(21, 23));
            return t.iconSize() == QSize(21, 23);
        });
        QTest::newRow("setTabButton") << Check([](N &n, T &t) {
            auto *left = new QPushButton;
            auto *right = new QPushButton;
            n.setTabButton(1, QTabBar::LeftSide, left);
            n.setTabButton(1, QTabBar::RightSide, right);
            return t.tabButton(1, QTabBar::LeftSide) == left
                && t.tabButton(1, QTabBar::RightSide) == right
                && !t.tabButton(0, QTabBar::LeftSide);
        });
        QTest::newRow("tabButton") << Check([](N &n, T &t) {
            auto *left = new QPushButton;
            auto *right = new QPushButton;
            t.setTabButton(1, QTabBar::LeftSide, left);
            t.setTabButton(1, QTabBar::RightSide, right);
            return n.tabButton(1, QTabBar::LeftSide) == left
                && n.tabButton(1, QTabBar::RightSide) == right
                && !n.tabButton(0, QTabBar::LeftSide);
        });
    }

    void operationsAreTheBars()
    {
        QFETCH(std::function<bool(NQTabBar &, TabBarRd &)>, check);
        NQTabBar bar;
        addThree(&bar);
        QVERIFY(check(bar, *bar.getTabBar()));
    }

    // The switches: each sets and reads its own member of the bar and no other.
    void switchesAreTheBars_data()
    {
        QTest::addColumn<int>("number");
        QTest::newRow("tabsClosable") << 0;
        QTest::newRow("expanding") << 1;
        QTest::newRow("autoHide") << 2;
        QTest::newRow("isMovable") << 3;
        QTest::newRow("usesScrollButtons") << 4;
    }

    void switchesAreTheBars()
    {
        QFETCH(int, number);
        NQTabBar bar;
        addThree(&bar);
        TabBarRd &inner = *bar.getTabBar();
        const QVector<std::function<void(bool)>> set{
            [&](bool on) { bar.setTabsClosable(on); }, [&](bool on) { bar.setExpanding(on); },
            [&](bool on) { bar.setAutoHide(on); }, [&](bool on) { bar.setMovable(on); },
            [&](bool on) { bar.setUsesScrollButtons(on); }};
        const auto read = [&] {
            return QVector<bool>{bar.tabsClosable(), bar.expanding(), bar.autoHide(),
                                 bar.isMovable(), bar.usesScrollButtons()};
        };
        const auto innerRead = [&] {
            return QVector<bool>{inner.tabsClosable(), inner.expanding(), inner.autoHide(),
                                 inner.isMovable(), inner.usesScrollButtons()};
        };
        for (const auto &each : set)
            each(false);
        QCOMPARE(innerRead(), QVector<bool>(5, false));
        QCOMPARE(read(), QVector<bool>(5, false));
        QVector<bool> expected(5, false);
        expected[number] = true;
        set.at(number)(true);
        QCOMPARE(innerRead(), expected);
        QCOMPARE(read(), expected);
    }

    void signalsAreTheBars()
    {
        NQTabBar bar;
        addThree(&bar);
        QSignalSpy changed(&bar, &NQTabBar::currentChanged);
        QSignalSpy closed(&bar, &NQTabBar::tabCloseRequested);
        bar.getTabBar()->setCurrentIndex(1);
        QCOMPARE(changed.count(), 1);
        QCOMPARE(changed.takeFirst(), QVariantList{1});
        QVERIFY(closed.isEmpty());
        Q_EMIT bar.getTabBar()->tabCloseRequested(2);
        QCOMPARE(closed.count(), 1);
        QCOMPARE(closed.takeFirst(), QVariantList{2});
        QVERIFY(changed.isEmpty());
        QCOMPARE(bar.count(), 3); // the host's to close
        while (bar.count() > 0)
            bar.removeTab(0);
        QCOMPARE(changed.last(), QVariantList{-1});
    }

    void closeButtonAsks()
    {
        NQTabBar bar;
        addThree(&bar);
        bar.setTabsClosable(true);
        bar.resize(500, 40);
        QVERIFY(pointer::showAndWait(&bar));
        QSignalSpy closed(&bar, &NQTabBar::tabCloseRequested);
        auto *button = qobject_cast<QAbstractButton *>(bar.tabButton(1, QTabBar::RightSide));
        QVERIFY(button);
        QTest::mouseClick(button, Qt::LeftButton);
        QCOMPARE(closed.count(), 1);
        QCOMPARE(closed.first(), QVariantList{1});
    }

    void clickSelects()
    {
        NQTabBar bar;
        addThree(&bar);
        bar.resize(500, 40);
        QVERIFY(pointer::showAndWait(&bar));
        QSignalSpy changed(&bar, &NQTabBar::currentChanged);
        QTest::mouseClick(bar.getTabBar(), Qt::LeftButton, Qt::NoModifier, bar.tabRect(0).center());
        QCOMPARE(changed.count(), 1);
        QCOMPARE(changed.first(), QVariantList{0});
    }

    void colorsAreTexts()
    {
        NQTabBar bar;
        QCOMPARE(bar.fromColorToStr(QColor(255, 0, 0)), QString("#ff0000"));
        QCOMPARE(bar.fromColorToStr(QColor(255, 0, 0, 128)), QString("#80ff0000"));
        QCOMPARE(bar.fromColorToStr(QColor()), QString("#000000"));
    }

    void metaObjectHasSignalsAndSlotsInOrder()
    {
        const QMetaObject &meta = NQTabBar::staticMetaObject;
        QCOMPARE(meta.superClass(), &QFrame::staticMetaObject);
        QCOMPARE(meta.propertyOffset(), meta.propertyCount());
        QStringList methods;
        for (int i = meta.methodOffset(); i < meta.methodCount(); ++i) {
            methods += QString::fromLatin1(meta.method(i).methodSignature());
            const bool isSignal = i < meta.methodOffset() + 2;
            QCOMPARE(meta.method(i).methodType(),
                     isSignal ? QMetaMethod::Signal : QMetaMethod::Slot);
            QCOMPARE(meta.method(i).access(),
                     isSignal ? QMetaMethod::Public : QMetaMethod::Private);
        }
        QCOMPARE(methods,
                 (QStringList{"currentChanged(int)", "tabCloseRequested(int)",
                              "slot_currIndexChanged(int)", "slot_tabClosed(int)"}));
    }

    void diesWithItsParentOrBefore()
    {
        auto *parent = new QWidget;
        QPointer<NQTabBar> first = new NQTabBar(parent);
        QPointer<NQTabBar> second = new NQTabBar(parent);
        QPointer<QWidget> left = new QWidget;
        first->addLeftWidget(left);
        addThree(second);
        QVERIFY(pointer::showAndWait(parent));
        delete first;
        QVERIFY(left.isNull());
        delete parent;
        QVERIFY(second.isNull());
    }

    void canBeDeletedInACloseRequest()
    {
        QPointer<NQTabBar> bar = new NQTabBar;
        addThree(bar);
        bar->setTabsClosable(true);
        bar->resize(500, 40);
        QVERIFY(pointer::showAndWait(bar));
        connect(bar, &NQTabBar::tabCloseRequested, this, [=] { delete bar; });
        qobject_cast<QAbstractButton *>(bar->tabButton(0, QTabBar::RightSide))->click();
        QVERIFY(bar.isNull());
    }
};

ORVANE_TEST_MAIN(TestNQTabBar)
#include "tst_nqtabbar.moc"
