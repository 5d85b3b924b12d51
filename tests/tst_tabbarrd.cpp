#include "support/pointer.h"
#include "support/testcase.h"

#include <tabbarrd.h>

namespace
{

/// A bar whose hints can be asked for.
class OpenTabBar : public TabBarRd
{
public:
    using TabBarRd::TabBarRd;
    using TabBarRd::tabSizeHint;

    QSize plainHint(int index) const { return QTabBar::tabSizeHint(index); }
};

QList<int> tabWidths(const QTabBar &bar)
{
    QList<int> widths;
    for (int i = 0; i < bar.count(); ++i)
        widths.append(bar.tabRect(i).width());
    return widths;
}

/// Counts the paint events of a widget.
class PaintCounter : public QObject
{
public:
    explicit PaintCounter(QObject *watched) { watched->installEventFilter(this); }
    int count = 0;

protected:
    bool eventFilter(QObject *, QEvent *event) override
    {
        if (event->type() == QEvent::Paint)
            ++count;
        return false;
    }
};

} // namespace

class TestTabBarRd : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void hasDefaults()
    {
        const TabBarRd bar;
        QCOMPARE(int(TabBarRd::TabsByContent), 0);
        QCOMPARE(int(TabBarRd::TabsOfEqualWidth), 1);
        QCOMPARE(bar.getTabBarType(), TabBarRd::TabsByContent);
        QCOMPARE(bar.getTabMinWidth(), 0);
        QCOMPARE(bar.getTabMaxWidth(), 0);
        QCOMPARE(bar.minimumWidth(), 0);
        QCOMPARE(bar.maximumWidth(), QWIDGETSIZE_MAX);
        QCOMPARE(bar.count(), 0);
    }

    void widthsAreTheBars()
    {
        TabBarRd bar;
        bar.setTabMinWidth(70);
        QCOMPARE(bar.getTabMinWidth(), 70);
        QCOMPARE(bar.minimumWidth(), 70);
        QCOMPARE(bar.maximumWidth(), QWIDGETSIZE_MAX);
        bar.setTabMaxWidth(90);
        QCOMPARE(bar.getTabMaxWidth(), 90);
        QCOMPARE(bar.maximumWidth(), 90);
        QCOMPARE(bar.minimumWidth(), 70);
        QCOMPARE(bar.getTabMinWidth(), 70);
    }

    void negativeWidthIsStored()
    {
        TabBarRd bar;
        expectWarning("Negative sizes");
        bar.setTabMinWidth(-1);
        QCOMPARE(bar.getTabMinWidth(), -1);
        QCOMPARE(bar.minimumWidth(), 0);
        expectWarning("Negative sizes");
        bar.setTabMaxWidth(-2);
        QCOMPARE(bar.getTabMaxWidth(), -2);
        QCOMPARE(bar.maximumWidth(), 0);
    }

    void equalTabsFillTheBar_data()
    {
        QTest::addColumn<int>("width");
        QTest::addColumn<QList<int>>("expected");
        QTest::newRow("one") << 100 << QList<int>{100};
        QTest::newRow("two") << 100 << QList<int>{50, 50};
        QTest::newRow("three") << 100 << QList<int>{33, 33, 34};
        QTest::newRow("three, two over") << 101 << QList<int>{33, 33, 35};
        QTest::newRow("four") << 403 << QList<int>{100, 100, 100, 103};
        QTest::newRow("narrow") << 7 << QList<int>{1, 1, 1, 1, 3};
    }

    void equalTabsFillTheBar()
    {
        QFETCH(int, width);
        QFETCH(QList<int>, expected);
        QWidget window;
        window.resize(900, 100);
        OpenTabBar bar(&window);
        bar.setTabBarType(TabBarRd::TabsOfEqualWidth);
        for (int i = 0; i < expected.size(); ++i)
            bar.addTab(QString("Tab with a long text %1").arg(i).repeated(i + 1));
        bar.resize(width, 31);
        for (int i = 0; i < expected.size(); ++i)
            QCOMPARE(bar.tabSizeHint(i), QSize(expected.at(i), 31));
        QCOMPARE(tabWidths(bar), expected);
        QCOMPARE(bar.tabRect(0).height(), 31);
        QCOMPARE(bar.tabRect(expected.size() - 1).right(), width - 1);
        // They follow the bar.
        QVERIFY(pointer::showAndWait(&window));
        bar.resize(width * 2, 27);
        int sum = 0;
        for (const int tabWidth : tabWidths(bar))
            sum += tabWidth;
        QCOMPARE(sum, width * 2);
        QCOMPARE(bar.tabRect(0).height(), 27);
    }

    void equalTabsFillTheBarWhenShown()
    {
        QWidget window;
        window.resize(400, 100);
        TabBarRd bar(&window);
        bar.setTabBarType(TabBarRd::TabsOfEqualWidth);
        for (int i = 0; i < 3; ++i)
            bar.addTab(QString("Tab %1").arg(i));
        bar.setGeometry(0, 0, 100, 30);
        QVERIFY(pointer::showAndWait(&window));
        QCOMPARE(tabWidths(bar), (QList<int>{33, 33, 34}));
        bar.removeTab(1);
        QCOMPARE(tabWidths(bar), (QList<int>{50, 50}));
    }

    void otherTypesTakeQtsOwnHint_data()
    {
        QTest::addColumn<int>("type");
        QTest::newRow("by content") << 0;
        QTest::newRow("unknown") << 2;
        QTest::newRow("negative") << -1;
    }

    void otherTypesTakeQtsOwnHint()
    {
        QFETCH(int, type);
        OpenTabBar bar;
        bar.setTabBarType(static_cast<TabBarRd::TabBarType>(type));
        QCOMPARE(int(bar.getTabBarType()), type);
        bar.addTab("a");
        bar.addTab("a much longer text");
        bar.resize(500, 40);
        for (int i = 0; i < 2; ++i)
            QCOMPARE(bar.tabSizeHint(i), bar.plainHint(i));
        QVERIFY(bar.tabSizeHint(0).width() < bar.tabSizeHint(1).width());
    }

    void typeIsOnlyStored()
    {
        QWidget window;
        window.resize(600, 100);
        QTabBar plain(&window);
        TabBarRd bar(&window);
        for (QTabBar *each : {&plain, static_cast<QTabBar *>(&bar)}) {
            each->setExpanding(false);
            each->addTab("a");
            each->addTab("a much longer text");
            each->resize(500, 30);
        }
        QVERIFY(pointer::showAndWait(&window));
        const QList<int> before = tabWidths(bar);
        QCOMPARE(before, tabWidths(plain));
        bar.setTabBarType(TabBarRd::TabsOfEqualWidth);
        QCOMPARE(bar.getTabBarType(), TabBarRd::TabsOfEqualWidth);
        QCOMPARE(tabWidths(bar), before);
        bar.resize(501, 30);
        QCOMPARE(tabWidths(bar), (QList<int>{250, 251}));
        bar.setTabBarType(TabBarRd::TabsByContent);
        bar.resize(500, 30);
        QCOMPARE(tabWidths(bar), before);
    }

    void barWithoutTabsHasNoHint()
    {
        OpenTabBar bar;
        bar.setTabBarType(TabBarRd::TabsOfEqualWidth);
        bar.resize(100, 30);
        QCOMPARE(bar.tabSizeHint(0), bar.plainHint(0));
        QVERIFY(pointer::showAndWait(&bar));
        bar.addTab("a");
        bar.removeTab(0);
        QCOMPARE(bar.count(), 0);
    }

    void resizePaintsAnew()
    {
        TabBarRd bar;
        bar.addTab("a");
        bar.setAttribute(Qt::WA_StaticContents); // a resize alone would paint what is new
        bar.resize(300, 30);
        QVERIFY(pointer::showAndWait(&bar));
        QCoreApplication::processEvents();
        const PaintCounter counter(&bar);
        bar.resize(200, 30);
        QTRY_VERIFY(counter.count > 0);
    }

    void addsNothingToTheMetaObject()
    {
        const QMetaObject &meta = TabBarRd::staticMetaObject;
        QCOMPARE(meta.superClass(), &QTabBar::staticMetaObject);
        QCOMPARE(meta.methodOffset(), meta.methodCount());
        QCOMPARE(meta.propertyOffset(), meta.propertyCount());
    }

    void diesWithItsParentOrBefore()
    {
        auto *parent = new QWidget;
        QPointer<TabBarRd> first = new TabBarRd(parent);
        QPointer<TabBarRd> second = new TabBarRd(parent);
        second->setTabBarType(TabBarRd::TabsOfEqualWidth);
        second->addTab("a");
        QVERIFY(pointer::showAndWait(parent));
        delete first;
        delete parent;
        QVERIFY(second.isNull());
    }
};

ORVANE_TEST_MAIN(TestTabBarRd)
#include "tst_tabbarrd.moc"
