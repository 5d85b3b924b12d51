#include "support/pointer.h"
#include "support/testcase.h"

#include <nqtabbar.h>
#include <nqtabwidget.h>

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

/// A page that carries the text of its tab, so that it is seen whether the two are in step.
QWidget *page(const QString &name)
{
    auto *widget = new QWidget;
    widget->setObjectName(name);
    return widget;
}

void add(NQTabWidget *tabs, const QString &names)
{
    for (const QChar name : names)
        tabs->addTab(page(name), name);
}

/// The tabs, the current one in brackets: "a[b]c". "!" where pages are not in step with them.
QString state(const NQTabWidget &tabs)
{
    QString text;
    const TabBarRd *bar = tabs.getTabBar()->getTabBar();
    const QStackedWidget *stack = tabs.getStackWidget();
    for (int i = 0; i < bar->count(); ++i) {
        const QString name = bar->tabText(i);
        text += i == bar->currentIndex() ? "[" + name + "]" : name;
        if (!stack->widget(i) || stack->widget(i)->objectName() != name)
            text += "!";
    }
    if (stack->count() != bar->count() || stack->currentIndex() != bar->currentIndex())
        text += "!";
    return text;
}

QAbstractButton *closeButton(const NQTabWidget &tabs, int index)
{
    return qobject_cast<QAbstractButton *>(tabs.getTabBar()->tabButton(index, QTabBar::RightSide));
}

} // namespace

Q_DECLARE_METATYPE(std::function<bool(NQTabWidget &, NQTabBar &)>)

class TestNQTabWidget : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void hasDefaults()
    {
        const NQTabWidget tabs;
        QCOMPARE(tabs.getTabBarType(), TabBarRd::TabsByContent);
        QCOMPARE(tabs.getTabMinWidth(), 0);
        QCOMPARE(tabs.getTabMaxWidth(), 0);
        QCOMPARE(tabs.count(), 0);
        QCOMPARE(tabs.currentIndex(), -1);
        QCOMPARE(tabs.currentWidget(), nullptr);
        QCOMPARE(tabs.widget(0), nullptr);
        QVERIFY(!tabs.tabsClosable());
        QCOMPARE(tabs.styleSheet(), QString());
        QCOMPARE(tabs.frameShape(), QFrame::NoFrame);
        QCOMPARE(tabs.getStackWidget()->styleSheet(),
                 QString(".QWidget{background-color:#ffffff;}"));
    }

    void barStandsAboveThePages()
    {
        const NQTabWidget tabs;
        auto *column = qobject_cast<QVBoxLayout *>(tabs.layout());
        QVERIFY(column);
        QCOMPARE(column->spacing(), 0);
        QCOMPARE(column->contentsMargins(), QMargins());
        QCOMPARE(column->count(), 2);
        QCOMPARE(column->itemAt(0)->widget(), tabs.getTabBar());
        QCOMPARE(column->itemAt(1)->widget(), tabs.getStackWidget());
        QCOMPARE(tabs.getTabBar()->parentWidget(), &tabs);
        QCOMPARE(tabs.getStackWidget()->parentWidget(), &tabs);
    }

    void newTabAndPageBecomeCurrent()
    {
        NQTabWidget tabs;
        QWidget *a = page("a");
        QCOMPARE(tabs.addTab(a, "a"), 0);
        QCOMPARE(state(tabs), QString("[a]"));
        QCOMPARE(tabs.currentWidget(), a);
        QCOMPARE(tabs.addTab(page("b"), "b"), 1);
        QCOMPARE(state(tabs), QString("a[b]"));
        QCOMPARE(tabs.addTab(page("c"), colorIcon(Qt::red), "c"), 2);
        QCOMPARE(state(tabs), QString("ab[c]"));
        QCOMPARE(iconColor(tabs.getTabBar()->tabIcon(2)), QColor(Qt::red));
        QVERIFY(tabs.getTabBar()->tabIcon(1).isNull());
        QCOMPARE(a->parentWidget(), tabs.getStackWidget());
    }

    void tabsAreInserted_data()
    {
        QTest::addColumn<int>("index");
        QTest::addColumn<int>("current");
        QTest::addColumn<int>("result");
        QTest::addColumn<QString>("expected");
        QTest::newRow("first") << 0 << 2 << 0 << "[n]abc";
        QTest::newRow("before the current") << 1 << 1 << 1 << "a[n]bc";
        QTest::newRow("after the current") << 2 << 0 << 2 << "ab[n]c";
        QTest::newRow("at the end") << 3 << 0 << 3 << "abc[n]";
        QTest::newRow("past the end") << 40 << 1 << 3 << "abc[n]";
        QTest::newRow("negative") << -5 << 1 << 3 << "abc[n]";
    }

    void tabsAreInserted()
    {
        QFETCH(int, index);
        QFETCH(int, current);
        QFETCH(int, result);
        QFETCH(QString, expected);
        for (const bool withIcon : {false, true}) {
            NQTabWidget tabs;
            add(&tabs, "abc");
            tabs.setCurrentIndex(current);
            QCOMPARE(withIcon ? tabs.insertTab(index, page("n"), colorIcon(Qt::blue), "n")
                              : tabs.insertTab(index, page("n"), "n"),
                     result);
            QCOMPARE(state(tabs), expected);
            const QIcon icon = tabs.getTabBar()->tabIcon(result);
            QCOMPARE(icon.isNull(), !withIcon);
            if (withIcon)
                QCOMPARE(iconColor(icon), QColor(Qt::blue));
        }
    }

    void nullPageIsIgnored()
    {
        NQTabWidget tabs;
        add(&tabs, "ab");
        QCOMPARE(tabs.addTab(nullptr, "x"), -1);
        QCOMPARE(tabs.addTab(nullptr, QIcon(), "x"), -1);
        QCOMPARE(tabs.insertTab(0, nullptr, "x"), -1);
        QCOMPARE(tabs.insertTab(0, nullptr, QIcon(), "x"), -1);
        QCOMPARE(state(tabs), QString("a[b]"));
    }

    void pageThatIsHereMoves()
    {
        NQTabWidget tabs;
        add(&tabs, "abc");
        QCOMPARE(tabs.insertTab(0, tabs.widget(2), "c"), 0);
        QCOMPARE(state(tabs), QString("[c]ab"));
        QCOMPARE(tabs.addTab(tabs.widget(1), "a"), 2);
        QCOMPARE(state(tabs), QString("cb[a]"));
    }

    void removedPageSurvives_data()
    {
        QTest::addColumn<int>("current");
        QTest::addColumn<int>("index");
        QTest::addColumn<QString>("expected");
        QTest::newRow("the current one, first") << 0 << 0 << "[b]cd";
        QTest::newRow("the current one, inside") << 1 << 1 << "a[c]d";
        QTest::newRow("the current one, last") << 3 << 3 << "ab[c]";
        QTest::newRow("before the current one") << 2 << 0 << "b[c]d";
        QTest::newRow("just before the current one") << 1 << 0 << "[b]cd";
        QTest::newRow("after the current one") << 1 << 3 << "a[b]c";
        QTest::newRow("just after the current one") << 1 << 2 << "a[b]d";
        QTest::newRow("negative") << 1 << -1 << "a[b]cd";
        QTest::newRow("past the end") << 1 << 4 << "a[b]cd";
    }

    void removedPageSurvives()
    {
        QFETCH(int, current);
        QFETCH(int, index);
        QFETCH(QString, expected);
        enum Way { Remove, Close, ClickClose };
        for (const Way way : {Remove, Close, ClickClose}) {
            NQTabWidget tabs;
            add(&tabs, "abcd");
            tabs.setTabsClosable(true);
            tabs.resize(600, 300);
            QVERIFY(pointer::showAndWait(&tabs));
            tabs.setCurrentIndex(current);
            const QPointer<QWidget> removed = tabs.widget(index);
            if (way == Remove)
                tabs.removeTab(index);
            else if (way == Close || !removed)
                tabs.slot_tabCloseRequested(index);
            else
                QTest::mouseClick(closeButton(tabs, index), Qt::LeftButton);
            QCOMPARE(state(tabs), expected);
            QVERIFY(tabs.currentWidget()->isVisible());
            if (!QString(expected).contains('d') || tabs.count() == 3) {
                QVERIFY(removed);
                QCOMPARE(removed->parentWidget(), tabs.getStackWidget());
                QVERIFY(!removed->isVisible());
                QCOMPARE(tabs.indexOf(removed), -1);
                // It can come back.
                tabs.addTab(removed, removed->objectName());
                QCOMPARE(tabs.currentWidget(), removed.data());
                QVERIFY(removed->isVisible());
                QVERIFY(!state(tabs).contains('!'));
            }
        }
    }

    void followsTheBarsChoiceOfTheNextTab_data()
    {
        QTest::addColumn<int>("behavior");
        QTest::addColumn<QString>("expected");
        QTest::newRow("left") << int(QTabBar::SelectLeftTab) << "a[b]d";
        QTest::newRow("right") << int(QTabBar::SelectRightTab) << "ab[d]";
        QTest::newRow("previous") << int(QTabBar::SelectPreviousTab) << "[a]bd";
    }

    void followsTheBarsChoiceOfTheNextTab()
    {
        QFETCH(int, behavior);
        QFETCH(QString, expected);
        NQTabWidget tabs;
        add(&tabs, "abcd");
        tabs.getTabBar()->getTabBar()->setSelectionBehaviorOnRemove(
            QTabBar::SelectionBehavior(behavior));
        tabs.setCurrentIndex(0);
        tabs.setCurrentIndex(2);
        tabs.removeTab(2);
        QCOMPARE(state(tabs), expected);
    }

    void allTabsCanBeRemoved()
    {
        NQTabWidget tabs;
        add(&tabs, "abc");
        QVERIFY(pointer::showAndWait(&tabs));
        const QPointer<QWidget> last = tabs.widget(2);
        while (tabs.count() > 0) {
            tabs.removeTab(0);
            QVERIFY(!state(tabs).contains('!'));
        }
        QCOMPARE(tabs.currentIndex(), -1);
        QCOMPARE(tabs.currentWidget(), nullptr);
        QVERIFY(last);
        QVERIFY(!last->isVisible());
        add(&tabs, "x");
        QCOMPARE(state(tabs), QString("[x]"));
    }

    void lastTabCannotBeClosed()
    {
        NQTabWidget tabs;
        tabs.slot_tabCloseRequested(0);
        add(&tabs, "ab");
        tabs.setTabsClosable(true);
        tabs.resize(600, 300);
        QVERIFY(pointer::showAndWait(&tabs));
        QTest::mouseClick(closeButton(tabs, 0), Qt::LeftButton);
        QCOMPARE(state(tabs), QString("[b]"));
        QTest::mouseClick(closeButton(tabs, 0), Qt::LeftButton);
        QCOMPARE(state(tabs), QString("[b]"));
        tabs.slot_tabCloseRequested(0);
        QCOMPARE(state(tabs), QString("[b]"));
        QVERIFY(tabs.currentWidget()->isVisible());
    }

    void hostMayCloseMoreInTheBarsSignal()
    {
        NQTabWidget tabs;
        add(&tabs, "abcd");
        bool once = false;
        connect(tabs.getTabBar(), &NQTabBar::tabCloseRequested, this, [&](int) {
            if (!once) {
                once = true;
                tabs.removeTab(0);
            }
        });
        Q_EMIT tabs.getTabBar()->getTabBar()->tabCloseRequested(2);
        QCOMPARE(state(tabs), QString("b[d]"));
    }

    void removedPageMayBeDeletedInTheBarsSignal()
    {
        NQTabWidget tabs;
        add(&tabs, "abc");
        const QPointer<QWidget> removed = tabs.widget(2);
        connect(tabs.getTabBar(), &NQTabBar::currentChanged, this, [=] { delete removed; });
        tabs.removeTab(2);
        QVERIFY(removed.isNull());
        QCOMPARE(state(tabs), QString("a[b]"));
    }

    void indexShowsItsPage()
    {
        NQTabWidget tabs;
        add(&tabs, "abc");
        QVERIFY(pointer::showAndWait(&tabs));
        for (const int index : {0, 2, 1}) {
            tabs.setCurrentIndex(index);
            QCOMPARE(tabs.currentIndex(), index);
            QCOMPARE(tabs.currentWidget(), tabs.widget(index));
            QVERIFY(tabs.widget(index)->isVisible());
            QVERIFY(!state(tabs).contains('!'));
        }
        for (const int outside : {-1, 3, 99}) {
            tabs.setCurrentIndex(outside);
            QCOMPARE(state(tabs), QString("a[b]c"));
        }
    }

    // The page follows even where the bar has nothing to report.
    void indexShowsItsPageUnderTheSameTab()
    {
        NQTabWidget tabs;
        add(&tabs, "abc");
        tabs.slot_currentShow(0);
        QCOMPARE(tabs.getStackWidget()->currentIndex(), 0);
        QCOMPARE(tabs.currentIndex(), 2); // the slot leaves the bar alone
        tabs.setCurrentIndex(2);
        QCOMPARE(state(tabs), QString("ab[c]"));
    }

    void widgetShowsItsTab()
    {
        NQTabWidget tabs;
        add(&tabs, "abc");
        for (const int index : {0, 2, 1}) {
            tabs.setCurrentWidget(tabs.widget(index));
            QCOMPARE(tabs.currentIndex(), index);
            QVERIFY(!state(tabs).contains('!'));
        }
        QWidget stranger;
        tabs.setCurrentWidget(&stranger);
        tabs.setCurrentWidget(nullptr);
        QCOMPARE(state(tabs), QString("a[b]c"));
    }

    void clickOnATabShowsItsPage()
    {
        NQTabWidget tabs;
        add(&tabs, "abc");
        tabs.resize(600, 300);
        QVERIFY(pointer::showAndWait(&tabs));
        QTest::mouseClick(tabs.getTabBar()->getTabBar(), Qt::LeftButton, Qt::NoModifier,
                          tabs.getTabBar()->tabRect(0).center());
        QCOMPARE(state(tabs), QString("[a]bc"));
        QVERIFY(tabs.widget(0)->isVisible());
        QVERIFY(!tabs.widget(2)->isVisible());
    }

    void movedTabTakesItsPageAlong_data()
    {
        QTest::addColumn<int>("current");
        QTest::addColumn<int>("from");
        QTest::addColumn<int>("to");
        QTest::addColumn<QString>("expected");
        QTest::newRow("current to the right") << 0 << 0 << 2 << "bc[a]d";
        QTest::newRow("current to the left") << 3 << 3 << 1 << "a[d]bc";
        QTest::newRow("another past the current") << 1 << 0 << 3 << "[b]cda";
        QTest::newRow("nowhere") << 1 << 2 << 2 << "a[b]cd";
    }

    void movedTabTakesItsPageAlong()
    {
        QFETCH(int, current);
        QFETCH(int, from);
        QFETCH(int, to);
        QFETCH(QString, expected);
        NQTabWidget tabs;
        add(&tabs, "abcd");
        tabs.resize(600, 300);
        QVERIFY(pointer::showAndWait(&tabs));
        tabs.setCurrentIndex(current);
        tabs.getTabBar()->moveTab(from, to);
        QCOMPARE(state(tabs), expected);
        for (int i = 0; i < tabs.count(); ++i)
            QCOMPARE(tabs.widget(i)->isVisible(), i == tabs.currentIndex());
    }

    void aMovedTabWithoutAPageLeavesThePages()
    {
        NQTabWidget tabs;
        add(&tabs, "ab");
        const QList<QWidget *> pages = {tabs.widget(0), tabs.widget(1)};
        tabs.getTabBar()->addTab("the host's");
        tabs.getTabBar()->moveTab(2, 0);
        QCOMPARE(tabs.count(), 3);
        QCOMPARE(tabs.widget(0), pages[0]);
        QCOMPARE(tabs.widget(1), pages[1]);
    }

    void pagesAreFound()
    {
        NQTabWidget tabs;
        add(&tabs, "abc");
        QWidget stranger;
        for (int i = 0; i < 3; ++i) {
            QCOMPARE(tabs.widget(i), tabs.getStackWidget()->widget(i));
            QCOMPARE(tabs.indexOf(tabs.widget(i)), i);
        }
        QCOMPARE(tabs.widget(-1), nullptr);
        QCOMPARE(tabs.widget(3), nullptr);
        QCOMPARE(tabs.indexOf(&stranger), -1);
        QCOMPARE(tabs.indexOf(nullptr), -1);
        tabs.getStackWidget()->setCurrentIndex(1);
        QCOMPARE(tabs.currentWidget(), tabs.widget(1)); // the stack's, not the bar's
    }

    void textThatDoesNotFitBecomesTheToolTip_data()
    {
        QTest::addColumn<bool>("isClosable");
        QTest::addColumn<int>("spare"); // the tab's width less the text's
        QTest::addColumn<bool>("fits");
        QTest::newRow("10 narrower") << false << 10 << true;
        QTest::newRow("as wide") << false << 0 << true;
        QTest::newRow("1 wider") << false << -1 << false;
        QTest::newRow("closable, 30 narrower") << true << 30 << true;
        QTest::newRow("closable, 20 narrower") << true << 20 << true;
        QTest::newRow("closable, 19 narrower") << true << 19 << false;
        QTest::newRow("closable, 10 narrower") << true << 10 << false;
    }

    void textThatDoesNotFitBecomesTheToolTip()
    {
        QFETCH(bool, isClosable);
        QFETCH(int, spare);
        QFETCH(bool, fits);
        const QString text = "A text of some length";
        NQTabWidget tabs;
        add(&tabs, "ab");
        tabs.setTabsClosable(isClosable);
        tabs.setTabBarType(TabBarRd::TabsOfEqualWidth);
        const int textWidth = QFontMetrics(tabs.font()).horizontalAdvance(text);
        tabs.resize(2 * (textWidth + spare), 200);
        QVERIFY(pointer::showAndWait(&tabs));
        QCOMPARE(tabs.getTabBar()->tabRect(1).width(), textWidth + spare);
        tabs.setTabToolTip(0, "before");
        tabs.setTabToolTip(1, "before");
        tabs.setTabText(1, text);
        QCOMPARE(tabs.tabText(1), text);
        QCOMPARE(tabs.tabText(0), QString("a"));
        QCOMPARE(tabs.tabToolTip(1), fits ? QString() : text);
        QCOMPARE(tabs.tabToolTip(0), QString("before"));
        tabs.setTabText(1, "x");
        QCOMPARE(tabs.tabToolTip(1), QString());
        for (const int outside : {-1, 2})
            tabs.setTabText(outside, text);
        QCOMPARE(tabs.tabText(1), QString("x"));
    }

    void widthsGoToTheBar()
    {
        NQTabWidget tabs;
        tabs.setTabMinWidth(60);
        QCOMPARE(tabs.getTabMinWidth(), 60);
        QCOMPARE(tabs.getTabBar()->getTabMinWidth(), 60);
        QCOMPARE(tabs.getTabBar()->getTabBar()->minimumWidth(), 60);
        tabs.setTabMaxWidth(90);
        QCOMPARE(tabs.getTabMaxWidth(), 90);
        QCOMPARE(tabs.getTabBar()->getTabMaxWidth(), 90);
        QCOMPARE(tabs.getTabBar()->getTabBar()->maximumWidth(), 90);
        tabs.setTabMaxWidth(-1);
        QCOMPARE(tabs.getTabMaxWidth(), 90);
        QCOMPARE(tabs.getTabBar()->getTabMaxWidth(), 90);
        tabs.setTabMaxWidth(0);
        QCOMPARE(tabs.getTabMaxWidth(), 0);
        QCOMPARE(tabs.getTabBar()->getTabMaxWidth(), 0);
        tabs.setTabBarType(TabBarRd::TabsOfEqualWidth);
        QCOMPARE(tabs.getTabBarType(), TabBarRd::TabsOfEqualWidth);
        QCOMPARE(tabs.getTabBar()->getTabBarType(), TabBarRd::TabsOfEqualWidth);
        tabs.setTabBarType(TabBarRd::TabsByContent);
        QCOMPARE(tabs.getTabBarType(), TabBarRd::TabsByContent);
        QCOMPARE(tabs.getTabBar()->getTabBarType(), TabBarRd::TabsByContent);
    }

    void resizeLimitsTheBar()
    {
        NQTabWidget tabs;
        tabs.setTabMaxWidth(90);
        tabs.resize(500, 300);
        QVERIFY(pointer::showAndWait(&tabs));
        QCOMPARE(tabs.getTabBar()->getTabMaxWidth(), 500);
        QCOMPARE(tabs.getTabBar()->getTabBar()->maximumWidth(), 500);
        QCOMPARE(tabs.getTabMaxWidth(), 90);
        tabs.resize(420, 300);
        QTRY_COMPARE(tabs.getTabBar()->getTabBar()->maximumWidth(), 420);
        add(&tabs, QString(60, 'm'));
        QCoreApplication::processEvents();
        QVERIFY(tabs.getTabBar()->getTabBar()->width() <= 420);
        QCOMPARE(tabs.width(), 420);
    }

    void sizeIsFixed()
    {
        NQTabWidget tabs;
        tabs.setWidgetSize(311, 241);
        QCOMPARE(tabs.minimumSize(), QSize(311, 241));
        QCOMPARE(tabs.maximumSize(), QSize(311, 241));
    }

    // Each row sets something through one side and reads it from the other.
    void operationsAreTheBars_data()
    {
        using Check = std::function<bool(NQTabWidget &, NQTabBar &)>;
        QTest::addColumn<Check>("check");
        QTest::newRow("isTabEnabled") << Check([](NQTabWidget &n, NQTabBar &b) {
            b.setTabEnabled(1, false);
            return n.isTabEnabled(0) && !n.isTabEnabled(1) && n.isTabEnabled(2);
        });
        QTest::newRow("setTabEnabled") << Check([](NQTabWidget &n, NQTabBar &b) {
            n.setTabEnabled(1, false);
            const bool wasDisabled = b.isTabEnabled(0) && !b.isTabEnabled(1);
            n.setTabEnabled(1, true);
            return wasDisabled && b.isTabEnabled(1);
        });
        QTest::newRow("tabText") << Check([](NQTabWidget &n, NQTabBar &b) {
            b.setTabText(1, "text");
            return n.tabText(1) == "text" && n.tabText(0) == "a" && n.tabText(9).isEmpty();
        });
        QTest::newRow("tabIcon") << Check([](NQTabWidget &n, NQTabBar &b) {
            b.setTabIcon(1, colorIcon(Qt::red));
            return iconColor(n.tabIcon(1)) == QColor(Qt::red) && n.tabIcon(0).isNull();
        });
        QTest::newRow("setTabIcon") << Check([](NQTabWidget &n, NQTabBar &b) {
            n.setTabIcon(1, colorIcon(Qt::red));
            return iconColor(b.tabIcon(1)) == QColor(Qt::red) && b.tabIcon(0).isNull();
        });
        QTest::newRow("setTabToolTip") << Check([](NQTabWidget &n, NQTabBar &b) {
            n.setTabToolTip(1, "tip");
            return b.tabToolTip(1) == "tip" && b.tabToolTip(0).isEmpty() && b.tabText(1) == "b";
        });
        QTest::newRow("tabToolTip") << Check([](NQTabWidget &n, NQTabBar &b) {
            b.setTabToolTip(1, "tip");
            return n.tabToolTip(1) == "tip" && n.tabToolTip(0).isEmpty();
        });
        QTest::newRow("currentIndex") << Check([](NQTabWidget &n, NQTabBar &b) {
            b.setCurrentIndex(1);
            const bool followed = n.currentIndex() == 1 && n.getStackWidget()->currentIndex() == 1;
            n.getStackWidget()->setCurrentIndex(0);
            return followed && n.currentIndex() == 1; // the bar's, not the stack's
        });
        QTest::newRow("count") << Check([](NQTabWidget &n, NQTabBar &b) {
            b.addTab("without a page");
            return n.count() == 4;
        });
        QTest::newRow("elideMode") << Check([](NQTabWidget &n, NQTabBar &b) {
            b.setElideMode(Qt::ElideLeft);
            const bool left = n.elideMode() == Qt::ElideLeft;
            b.setElideMode(Qt::ElideMiddle);
            return left && n.elideMode() == Qt::ElideMiddle;
        });
        QTest::newRow("setElideMode") << Check([](NQTabWidget &n, NQTabBar &b) {
            n.setElideMode(Qt::ElideLeft);
            const bool left = b.elideMode() == Qt::ElideLeft;
            n.setElideMode(Qt::ElideMiddle);
            return left && b.elideMode() == Qt::ElideMiddle;
        });
        QTest::newRow("iconSize") << Check([](NQTabWidget &n, NQTabBar &b) {
            b.setIconSize(QSize(21, 23));
            return n.iconSize() == QSize(21, 23);
        });
        QTest::newRow("setIconSize") << Check([](NQTabWidget &n, NQTabBar &b) {
            n.setIconSize(QSize(21, 23));
            return b.iconSize() == QSize(21, 23);
        });
    }

    void operationsAreTheBars()
    {
        QFETCH(std::function<bool(NQTabWidget &, NQTabBar &)>, check);
        NQTabWidget tabs;
        add(&tabs, "abc");
        QVERIFY(check(tabs, *tabs.getTabBar()));
    }

    // The switches: each sets and reads its own member of the bar and no other.
    void switchesAreTheBars_data()
    {
        QTest::addColumn<int>("number");
        QTest::newRow("tabsClosable") << 0;
        QTest::newRow("autoHide") << 1;
        QTest::newRow("isMovable") << 2;
        QTest::newRow("usesScrollButtons") << 3;
    }

    void switchesAreTheBars()
    {
        QFETCH(int, number);
        NQTabWidget tabs;
        add(&tabs, "abc");
        const NQTabBar &bar = *tabs.getTabBar();
        const QVector<std::function<void(bool)>> set{
            [&](bool on) { tabs.setTabsClosable(on); }, [&](bool on) { tabs.setAutoHide(on); },
            [&](bool on) { tabs.setMovable(on); }, [&](bool on) { tabs.setUsesScrollButtons(on); }};
        const auto read = [&] {
            return QVector<bool>{tabs.tabsClosable(), tabs.autoHide(), tabs.isMovable(),
                                 tabs.usesScrollButtons()};
        };
        const auto barRead = [&] {
            return QVector<bool>{bar.tabsClosable(), bar.autoHide(), bar.isMovable(),
                                 bar.usesScrollButtons()};
        };
        for (const auto &each : set)
            each(false);
        QCOMPARE(barRead(), QVector<bool>(4, false));
        QCOMPARE(read(), QVector<bool>(4, false));
        QVector<bool> expected(4, false);
        expected[number] = true;
        set.at(number)(true);
        QCOMPARE(barRead(), expected);
        QCOMPARE(read(), expected);
    }

    void pageColorIsInTheSheet_data()
    {
        QTest::addColumn<QColor>("color");
        QTest::addColumn<QString>("sheet");
        QTest::newRow("opaque") << QColor(69, 69, 69) << ".QWidget{background-color:#454545;}";
        QTest::newRow("translucent")
            << QColor(1, 2, 3, 128) << ".QWidget{background-color:#80010203;}";
        QTest::newRow("invalid") << QColor() << ".QWidget{background-color:#000000;}";
    }

    void pageColorIsInTheSheet()
    {
        QFETCH(QColor, color);
        QFETCH(QString, sheet);
        NQTabWidget tabs;
        tabs.setStackedWidgetColor(color);
        QCOMPARE(tabs.getStackWidget()->styleSheet(), sheet);
        QCOMPARE(tabs.styleSheet(), QString());
    }

    void pageColorIsSeenWhenSetBeforeAndAfterTheFirstShow_data()
    {
        QTest::addColumn<bool>("pagesFirst");
        QTest::newRow("pages, then colours") << true;
        QTest::newRow("colours, then pages") << false;
    }

    void pageColorIsSeenWhenSetBeforeAndAfterTheFirstShow()
    {
        QFETCH(bool, pagesFirst);
        NQTabWidget tabs;
        tabs.resize(300, 200);
        if (pagesFirst)
            add(&tabs, "ab");
        tabs.setStackedWidgetColor(QColor(255, 0, 0));
        tabs.setStackedWidgetColor(QColor(0, 255, 0));
        if (!pagesFirst)
            add(&tabs, "ab");
        QVERIFY(pointer::showAndWait(&tabs));
        const QPoint onPage(150, 120);
        QCOMPARE(pointer::colorAt(&tabs, onPage), QColor(0, 255, 0));
        tabs.setStackedWidgetColor(QColor(0, 0, 255));
        QCOMPARE(pointer::colorAt(&tabs, onPage), QColor(0, 0, 255));
        tabs.setCurrentIndex(0);
        QCOMPARE(pointer::colorAt(&tabs, onPage), QColor(0, 0, 255));
        add(&tabs, "c");
        QCOMPARE(pointer::colorAt(&tabs, onPage), QColor(0, 0, 255));
    }

    void pagesAreWhiteByDefault()
    {
        NQTabWidget tabs;
        tabs.resize(300, 200);
        add(&tabs, "a");
        auto *frame = new QFrame; // a subclass keeps its own ground
        tabs.addTab(frame, "frame");
        QVERIFY(pointer::showAndWait(&tabs));
        const QPoint onPage(150, 120);
        QCOMPARE(pointer::colorAt(&tabs, onPage), frame->palette().color(QPalette::Window));
        tabs.setCurrentIndex(0);
        QCOMPARE(pointer::colorAt(&tabs, onPage), QColor(255, 255, 255));
    }

    void colorsAreTexts()
    {
        NQTabWidget tabs;
        QCOMPARE(tabs.fromColorToStr(QColor(255, 0, 0)), QString("#ff0000"));
        QCOMPARE(tabs.fromColorToStr(QColor(255, 0, 0, 128)), QString("#80ff0000"));
        QCOMPARE(tabs.fromColorToStr(QColor()), QString("#000000"));
    }

    void metaObjectHasTheSlotsInOrder()
    {
        const QMetaObject &meta = NQTabWidget::staticMetaObject;
        QCOMPARE(meta.superClass(), &QFrame::staticMetaObject);
        QCOMPARE(meta.propertyOffset(), meta.propertyCount());
        QStringList methods;
        for (int i = meta.methodOffset(); i < meta.methodCount(); ++i) {
            methods += QString::fromLatin1(meta.method(i).methodSignature());
            QCOMPARE(meta.method(i).methodType(), QMetaMethod::Slot);
            QCOMPARE(meta.method(i).access(), QMetaMethod::Public);
        }
        QCOMPARE(methods, (QStringList{"slot_currentShow(int)", "slot_tabCloseRequested(int)"}));
    }

    void diesWithItsParentOrBefore()
    {
        auto *parent = new QWidget;
        QPointer<NQTabWidget> first = new NQTabWidget(parent);
        QPointer<NQTabWidget> second = new NQTabWidget(parent);
        add(first, "ab");
        const QPointer<QWidget> shown = first->widget(1);
        const QPointer<QWidget> removed = first->widget(0);
        first->removeTab(0);
        QVERIFY(pointer::showAndWait(parent));
        delete first;
        QVERIFY(shown.isNull());
        QVERIFY(removed.isNull());
        delete parent;
        QVERIFY(second.isNull());
    }

    void canBeDeletedInACloseRequest()
    {
        QPointer<NQTabWidget> tabs = new NQTabWidget;
        add(tabs, "abc");
        tabs->setTabsClosable(true);
        QVERIFY(pointer::showAndWait(tabs));
        connect(tabs->getTabBar(), &NQTabBar::tabCloseRequested, this, [=] { delete tabs; });
        closeButton(*tabs, 1)->click();
        QVERIFY(tabs.isNull());
    }

    void pageThatIsDeletedFirstIsHarmless()
    {
        NQTabWidget tabs;
        add(&tabs, "abc");
        delete tabs.widget(1);
        QCOMPARE(tabs.getStackWidget()->count(), 2);
        QCOMPARE(tabs.count(), 3);
        tabs.setCurrentIndex(0);
        tabs.setCurrentIndex(2);
        tabs.removeTab(2);
        tabs.removeTab(1);
        tabs.removeTab(0);
        QCOMPARE(tabs.count(), 0);
    }
};

ORVANE_TEST_MAIN(TestNQTabWidget)
#include "tst_nqtabwidget.moc"
