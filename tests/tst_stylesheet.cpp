#include "support/pointer.h"
#include "support/testcase.h"

#include <orvanecontrols/internal/stylesheet.h>

#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QStackedWidget>
#include <QStyle>
#include <QTabBar>

namespace
{

/// A container in \a storage that was given \a sheets in turn, with a label that has read them.
QWidget *newContainer(void *storage, const QStringList &sheets)
{
    auto *container = new (storage) QWidget;
    for (const QString &sheet : sheets)
        orvane::applyStyleSheet(container, sheet);
    auto *label = new QLabel(container);
    label->setFixedSize(40, 40);
    label->style()->styleHint(QStyle::SH_EtchDisabledText, nullptr, label);
    return container;
}

} // namespace

class TestStyleSheet : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void colorTextIsTheColorName_data()
    {
        QTest::addColumn<QColor>("color");
        QTest::addColumn<QString>("expected");
        QTest::newRow("opaque") << QColor(255, 0, 0) << "#ff0000";
        QTest::newRow("grey") << QColor(69, 69, 69) << "#454545";
        QTest::newRow("half transparent") << QColor(255, 0, 0, 128) << "#80ff0000";
        QTest::newRow("almost opaque") << QColor(1, 2, 3, 254) << "#fe010203";
        QTest::newRow("fully transparent") << QColor(255, 255, 255, 0) << "#00ffffff";
        QTest::newRow("never set") << QColor() << "#000000";
        QTest::newRow("out of range") << QColor(300, 0, 0) << "#000000";
        QTest::newRow("unreadable name") << QColor("no colour") << "#000000";
        QTest::newRow("hue and saturation") << QColor::fromHsv(120, 255, 255) << "#00ff00";
    }

    void colorTextIsTheColorName()
    {
        QFETCH(QColor, color);
        QFETCH(QString, expected);
        QCOMPARE(orvane::colorText(color), expected);
    }

    void fontColorFragmentNamesColorAndFont()
    {
        QCOMPARE(orvane::fontColorFragment(QColor(255, 0, 0)),
                 QStringLiteral("color:#ff0000;font: SimSun Arial;"));
    }

    // The first two are how Qt loses the second sheet without the help of applyStyleSheet().
    void sheetReplacedBeforeTheFirstShowIsPainted_data()
    {
        QTest::addColumn<bool>("stacked");
        QTest::addColumn<bool>("childAsksFirst");
        QTest::newRow("label in a stacked widget") << true << true;
        QTest::newRow("label in a widget") << false << true;
        QTest::newRow("silent label in a widget") << false << false;
    }

    void sheetReplacedBeforeTheFirstShowIsPainted()
    {
        QFETCH(bool, stacked);
        QFETCH(bool, childAsksFirst);
        QScopedPointer<QWidget> container(stacked ? new QStackedWidget : new QWidget);
        auto *label = new QLabel(container.data());
        label->setFixedSize(40, 40);
        if (auto *stack = qobject_cast<QStackedWidget *>(container.data()))
            stack->addWidget(label);
        const QString sheet = QStringLiteral("QLabel{background:%1;}");

        orvane::applyStyleSheet(container.data(), sheet.arg("#ff0000"));
        if (childAsksFirst)
            label->style()->styleHint(QStyle::SH_EtchDisabledText, nullptr, label);
        orvane::applyStyleSheet(container.data(), sheet.arg("#00ff00"));
        QVERIFY(pointer::showAndWait(container.data()));
        QCOMPARE(pointer::colorAt(label, QPoint(20, 20)), QColor(0, 255, 0));

        orvane::applyStyleSheet(container.data(), sheet.arg("#0000ff"));
        QCOMPARE(pointer::colorAt(label, QPoint(20, 20)), QColor(0, 0, 255));
    }

    void childMadeReadyAfterTheSecondSheetIsPaintedWithIt()
    {
        QWidget container;
        const QString sheet = QStringLiteral("QLabel{background:%1;}");
        orvane::applyStyleSheet(&container, sheet.arg("#ff0000"));
        orvane::applyStyleSheet(&container, sheet.arg("#00ff00"));
        auto *label = new QLabel(&container);
        label->setFixedSize(40, 40);
        label->ensurePolished();
        QVERIFY(pointer::showAndWait(&container));
        QCOMPARE(pointer::colorAt(label, QPoint(20, 20)), QColor(0, 255, 0));
    }

    // Whose sheet no child reads goes by Qt's own ways.
    void sheetOfAButtonReplacedBeforeTheFirstShowIsPainted()
    {
        QWidget window;
        orvane::applyStyleSheet(&window, "QWidget{background:#ffffff;}");
        QPushButton button(&window);
        button.setFixedSize(40, 40);
        const QString sheet = QStringLiteral("QPushButton{background:%1;border:none;}");
        orvane::applyStyleSheet(&button, sheet.arg("#ff0000"));
        button.style()->styleHint(QStyle::SH_EtchDisabledText, nullptr, &button);
        orvane::applyStyleSheet(&button, sheet.arg("#00ff00"));
        QVERIFY(pointer::showAndWait(&window));
        QCOMPARE(pointer::colorAt(&button, QPoint(20, 20)), QColor(0, 255, 0));
        orvane::applyStyleSheet(&button, sheet.arg("#0000ff"));
        QCOMPARE(pointer::colorAt(&button, QPoint(20, 20)), QColor(0, 0, 255));
    }

    void sheetOfTheHostsIsReplacedBeforeTheFirstShow()
    {
        QWidget container;
        const QString sheet = QStringLiteral("QLabel{background:%1;}");
        container.setStyleSheet(sheet.arg("#ff0000"));
        auto *label = new QLabel(&container);
        label->setFixedSize(40, 40);
        label->style()->styleHint(QStyle::SH_EtchDisabledText, nullptr, label);
        orvane::applyStyleSheet(&container, sheet.arg("#00ff00"));
        QVERIFY(pointer::showAndWait(&container));
        QCOMPARE(pointer::colorAt(label, QPoint(20, 20)), QColor(0, 255, 0));
    }

    void sheetIsForgottenWithItsWidgetAfterTheSecondOneToo()
    {
        alignas(QWidget) unsigned char storage[sizeof(QWidget)];
        QWidget other; // as long as any sheet is in force, Qt keeps what it has parsed
        orvane::applyStyleSheet(&other, "QWidget{color:#ff0000;}");
        newContainer(storage, {"QLabel{background:#ffffff;}", "QLabel{background:#ff0000;}"})
            ->~QWidget();

        auto *second = new (storage) QWidget;
        second->setStyleSheet("QLabel{background:#00ff00;}");
        auto *label = new QLabel(second);
        label->setFixedSize(40, 40);
        QVERIFY(pointer::showAndWait(second));
        QCOMPARE(pointer::colorAt(label, QPoint(20, 20)), QColor(0, 255, 0));
        second->~QWidget();
    }

    // Lists and tab bars place their items before they are shown, and would keep to the first
    // sheet.
    void sheetReplacedBeforeTheFirstShowIsLaidOut_data()
    {
        QTest::addColumn<bool>("isOnTheViewItself");
        QTest::newRow("of the parent") << false;
        QTest::newRow("of the view") << true;
    }

    void sheetReplacedBeforeTheFirstShowIsLaidOut()
    {
        QFETCH(bool, isOnTheViewItself);
        QWidget window;
        auto *list = new QListWidget(&window);
        list->resize(200, 300);
        list->addItems({"first", "second"});
        auto *tabs = new QTabBar(&window);
        tabs->addTab("first");
        tabs->addTab("second");
        const QString sheet =
            QStringLiteral("QListView::item{height:%1px;}QTabBar::tab{width:%1px;height:20px;}");
        auto apply = [&](int size) {
            if (isOnTheViewItself) {
                orvane::applyStyleSheet(list, sheet.arg(size));
                orvane::applyStyleSheet(tabs, sheet.arg(size));
            } else {
                orvane::applyStyleSheet(&window, sheet.arg(size));
            }
        };

        apply(20);
        QCOMPARE(list->visualItemRect(list->item(1)).y(), 20);
        QCOMPARE(tabs->sizeHint().width(), 40);
        apply(50);
        QVERIFY(pointer::showAndWait(&window));
        QCOMPARE(list->visualItemRect(list->item(1)).y(), 50);
        QCOMPARE(tabs->sizeHint().width(), 100);
    }

    void sheetOfAWidgetThatDiedUnshownIsNotInherited()
    {
        // Qt keeps parsed sheets by address, and the next widget often gets the same one.
        alignas(QWidget) unsigned char storage[sizeof(QWidget)];
        QWidget other; // as long as any sheet is in force, Qt keeps what it has parsed
        orvane::applyStyleSheet(&other, "QWidget{color:#ff0000;}");
        newContainer(storage, {"QLabel{background:#ff0000;}"})->~QWidget();
        QWidget *second = newContainer(storage, {"QLabel{background:#00ff00;}"});
        QVERIFY(pointer::showAndWait(second));
        QCOMPARE(pointer::colorAt(second->findChild<QLabel *>(), QPoint(20, 20)),
                 QColor(0, 255, 0));
        second->~QWidget();
    }

    void sheetOfAWidgetThatAskedUnderAnotherOneIsNotInherited()
    {
        // With the last sheet in force Qt drops how it learns of deaths, but not the widget's mark.
        alignas(QWidget) unsigned char storage[sizeof(QWidget)];
        auto *first = new (storage) QWidget;
        {
            QWidget parent;
            orvane::applyStyleSheet(&parent, "QWidget{color:#ff0000;}");
            first->setParent(&parent);
            first->style()->styleHint(QStyle::SH_EtchDisabledText, nullptr, first);
            first->setParent(nullptr);
        }
        QWidget other; // as long as any sheet is in force, Qt keeps what it has parsed
        orvane::applyStyleSheet(&other, "QWidget{color:#ff0000;}");
        orvane::applyStyleSheet(first, "QLabel{background:#ff0000;}");
        auto *label = new QLabel(first);
        label->style()->styleHint(QStyle::SH_EtchDisabledText, nullptr, label);
        first->~QWidget();

        QWidget *second = newContainer(storage, {"QLabel{background:#00ff00;}"});
        label = second->findChild<QLabel *>();
        label->ensurePolished(); // before its parent, whose being made ready clears up
        QVERIFY(pointer::showAndWait(second));
        QCOMPARE(pointer::colorAt(label, QPoint(20, 20)), QColor(0, 255, 0));
        second->~QWidget();
    }

    void equalSheetIsNotAppliedAgain()
    {
        struct Counter : QWidget {
            int changes = 0;
            void changeEvent(QEvent *event) override
            {
                changes += event->type() == QEvent::StyleChange;
                QWidget::changeEvent(event);
            }
        };
        Counter widget;
        orvane::applyStyleSheet(&widget, "QWidget{color:#ff0000;}");
        QVERIFY(pointer::showAndWait(&widget));
        widget.changes = 0;
        orvane::applyStyleSheet(&widget, "QWidget{color:#ff0000;}");
        QCOMPARE(widget.changes, 0);
        orvane::applyStyleSheet(&widget, "QWidget{color:#00ff00;}");
        QCOMPARE(widget.changes, 1);
    }
};

ORVANE_TEST_MAIN(TestStyleSheet)
#include "tst_stylesheet.moc"
