#include "support/pointer.h"
#include "support/testcase.h"

#include <shapewidgetcontent.h>

#include <limits>

namespace
{

QList<QWidget *> buttons(int count, QSize size = QSize(40, 40))
{
    QList<QWidget *> list;
    for (int i = 0; i < count; ++i) {
        auto *button = new QPushButton(QString::number(i));
        button->setFixedSize(size);
        list.append(button);
    }
    return list;
}

QList<QPointer<QWidget>> guards(const QList<QWidget *> &list)
{
    QList<QPointer<QWidget>> pointers;
    for (QWidget *widget : list)
        pointers.append(widget);
    return pointers;
}

bool isAnyAlive(const QList<QPointer<QWidget>> &list)
{
    return std::any_of(list.begin(), list.end(), [](const auto &widget) { return widget; });
}

QGridLayout *grid(const QWidget &content)
{
    return qobject_cast<QGridLayout *>(content.layout());
}

} // namespace

class TestShapeWidgetContent : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void hasDefaults()
    {
        const ShapeWidgetContent content(nullptr);
        QVERIFY(content.lsWidget().isEmpty());
        QCOMPARE(content.focusPolicy(), Qt::NoFocus);
        QCOMPARE(grid(content)->contentsMargins(), QMargins(10, 10, 0, 10));
        QCOMPARE(grid(content)->spacing(), 10);
    }

    void sizeComesFromTheFirstWidgets_data()
    {
        QTest::addColumn<int>("columns");
        QTest::addColumn<int>("count");
        QTest::addColumn<QSize>("expected");
        QTest::newRow("three columns, seven widgets") << 3 << 7 << QSize(150, 160);
        QTest::newRow("spacing counts every column") << 3 << 2 << QSize(110, 60);
        QTest::newRow("one full row") << 3 << 3 << QSize(150, 60);
        QTest::newRow("two full rows") << 3 << 6 << QSize(150, 110);
        QTest::newRow("one column") << 1 << 4 << QSize(50, 210);
        QTest::newRow("one widget") << 1 << 1 << QSize(50, 60);
        QTest::newRow("no widget") << 3 << 0 << QSize(30, 10);
        QTest::newRow("more columns than widgets") << 10 << 1 << QSize(140, 60);
    }

    void sizeComesFromTheFirstWidgets()
    {
        QFETCH(int, columns);
        QFETCH(int, count);
        QFETCH(QSize, expected);
        ShapeWidgetContent content;
        content.setColumn(columns);
        QCOMPARE(content.column(), columns);
        const QList<QWidget *> list = buttons(count);
        content.setLsWidget(list);
        QCOMPARE(content.lsWidget(), list);
        QCOMPARE(content.size(), expected);
    }

    void sizeSumsFirstWidthsAndFirstHeights()
    {
        // Widths of the first three, heights of the first two: not those of the first of each row.
        QList<QWidget *> list = buttons(4);
        const QList<QSize> sizes{{10, 1}, {20, 2}, {30, 4}, {1000, 8000}};
        for (int i = 0; i < list.size(); ++i)
            list.at(i)->setFixedSize(sizes.at(i));
        ShapeWidgetContent content;
        content.setColumn(3);
        content.setLsWidget(list);
        QCOMPARE(content.size(), QSize(10 + 60 + 20, 10 + 3 + 10 + 10));
    }

    void widgetsStandRowByRow()
    {
        ShapeWidgetContent content;
        content.setColumn(3);
        const QList<QWidget *> list = buttons(7);
        content.setLsWidget(list);
        QVERIFY(pointer::showAndWait(&content));
        for (int i = 0; i < list.size(); ++i) {
            QCOMPARE(grid(content)->itemAtPosition(i / 3, i % 3)->widget(), list.at(i));
            QCOMPARE(list.at(i)->geometry(), QRect(10 + 50 * (i % 3), 10 + 50 * (i / 3), 40, 40));
            QCOMPARE(list.at(i)->focusPolicy(), Qt::ClickFocus);
            QVERIFY(list.at(i)->isVisible());
        }
    }

    void clickReportsTheIndex_data()
    {
        QTest::addColumn<int>("index");
        for (int i = 0; i < 7; ++i)
            QTest::addRow("widget %d", i) << i;
    }

    void clickReportsTheIndex()
    {
        QFETCH(int, index);
        ShapeWidgetContent content;
        content.setColumn(3);
        const QList<QWidget *> list = buttons(7);
        content.setLsWidget(list);
        QVERIFY(pointer::showAndWait(&content));
        QSignalSpy clicked(&content, &ShapeWidgetContent::sigClickedIndex);
        QSignalSpy hidden(&content, &ShapeWidgetContent::sigHide);
        QTest::mouseClick(content.windowHandle(), Qt::LeftButton, Qt::NoModifier,
                          list.at(index)->geometry().center());
        QCOMPARE(clicked.count(), 1);
        QCOMPARE(clicked.first().first().toInt(), index);
        QCOMPARE(hidden.count(), 0);
    }

    void layingOutAgainReportsAClickOnce()
    {
        ShapeWidgetContent content;
        content.setColumn(3);
        QList<QWidget *> list = buttons(4);
        content.setLsWidget(list);
        content.createWidgetLayout();
        std::reverse(list.begin(), list.end());
        content.setLsWidget(list);
        QCOMPARE(grid(content)->count(), 4);
        QSignalSpy clicked(&content, &ShapeWidgetContent::sigClickedIndex);
        static_cast<QPushButton *>(list.first())->click();
        QCOMPARE(clicked.count(), 1);
        QCOMPARE(clicked.first().first().toInt(), 0);
    }

    void anotherListReplacesTheOneSoFar()
    {
        QWidget window;
        ShapeWidgetContent content(&window);
        content.setColumn(3);
        const QList<QWidget *> first = buttons(5);
        content.setLsWidget(first);
        QVERIFY(pointer::showAndWait(&window));
        const QList<QWidget *> second{first.at(4), first.at(1)};
        content.setLsWidget(second);
        QCoreApplication::processEvents();
        QCOMPARE(content.lsWidget(), second);
        QCOMPARE(grid(content)->count(), 2);
        for (const int gone : {0, 2, 3})
            QVERIFY(!first.at(gone)->isVisible());
        QCOMPARE(content.size(), QSize(110, 60));
        QCOMPARE(grid(content)->itemAtPosition(0, 0)->widget(), first.at(4));
        QCOMPARE(grid(content)->itemAtPosition(0, 1)->widget(), first.at(1));
        QCOMPARE(first.at(4)->size(), QSize(40, 40));
        QCOMPARE(first.at(4)->y(), 10);

        QSignalSpy clicked(&content, &ShapeWidgetContent::sigClickedIndex);
        static_cast<QPushButton *>(first.at(0))->click();
        QCOMPARE(clicked.count(), 0);
        static_cast<QPushButton *>(first.at(1))->click();
        QCOMPARE(clicked.count(), 1);
        QCOMPARE(clicked.first().first().toInt(), 1);
    }

    void columnsShowWithTheNextLayout()
    {
        ShapeWidgetContent content;
        content.setColumn(3);
        const QList<QWidget *> list = buttons(4);
        content.setLsWidget(list);
        content.setColumn(2);
        QCOMPARE(content.size(), QSize(150, 110));
        content.createWidgetLayout();
        QCOMPARE(content.size(), QSize(100, 110));
        QCOMPARE(grid(content)->itemAtPosition(1, 1)->widget(), list.at(3));
    }

    void withoutColumnsNothingIsLaidOut_data()
    {
        QTest::addColumn<int>("columns");
        QTest::newRow("never set") << 0;
        QTest::newRow("negative") << -2;
    }

    void withoutColumnsNothingIsLaidOut()
    {
        QFETCH(int, columns);
        ShapeWidgetContent content;
        if (columns != 0)
            content.setColumn(columns);
        const QList<QWidget *> list = buttons(2);
        content.setLsWidget(list);
        QCOMPARE(grid(content)->count(), 0);
        QCOMPARE(content.lsWidget(), list);
        content.setColumn(1);
        content.createWidgetLayout();
        QCOMPARE(grid(content)->count(), 2);
    }

    void nullsAreIgnored()
    {
        ShapeWidgetContent content;
        content.setColumn(3);
        const QList<QWidget *> list = buttons(1);
        content.setLsWidget({nullptr, list.first(), nullptr});
        QCOMPARE(content.lsWidget(), list);
        QCOMPARE(grid(content)->count(), 1);
    }

    void widgetWithoutAClickIsNamedByQt()
    {
        ShapeWidgetContent content;
        content.setColumn(3);
        expectWarning("QWidget::clicked()");
        content.setLsWidget({new QWidget});
        QCOMPARE(grid(content)->count(), 1);
    }

    void deletedWidgetsAreForgotten()
    {
        ShapeWidgetContent content;
        content.setColumn(3);
        const QList<QWidget *> list = buttons(4);
        content.setLsWidget(list);
        delete list.at(1);
        QCOMPARE(content.lsWidget(), (QList<QWidget *>{list.at(0), list.at(2), list.at(3)}));

        // The others keep their places until they are laid out again.
        QSignalSpy clicked(&content, &ShapeWidgetContent::sigClickedIndex);
        static_cast<QPushButton *>(list.at(3))->click();
        QCOMPARE(clicked.takeFirst().first().toInt(), 3);
        content.createWidgetLayout();
        QCOMPARE(content.size(), QSize(150, 60));
        static_cast<QPushButton *>(list.at(3))->click();
        QCOMPARE(clicked.takeFirst().first().toInt(), 2);
    }

    void slotWithoutASenderDoesNothing()
    {
        ShapeWidgetContent content;
        content.setColumn(3);
        const QList<QWidget *> list = buttons(2);
        content.setLsWidget(list);
        delete list.first();
        QSignalSpy clicked(&content, &ShapeWidgetContent::sigClickedIndex);
        QVERIFY(QMetaObject::invokeMethod(&content, "on_itemClicked"));
        QCOMPARE(clicked.count(), 0);
    }

    void gridAndWidgetsCanBeDeletedInASlotOfTheClick_data()
    {
        QTest::addColumn<bool>("isGrid");
        QTest::newRow("the grid") << true;
        QTest::newRow("the clicked widget") << false;
    }

    void gridAndWidgetsCanBeDeletedInASlotOfTheClick()
    {
        QFETCH(bool, isGrid);
        const QPointer<ShapeWidgetContent> content = new ShapeWidgetContent;
        content->setColumn(3);
        const QList<QWidget *> list = buttons(2);
        const QPointer<QWidget> clicked = list.last();
        content->setLsWidget(list);
        QVERIFY(pointer::showAndWait(content));
        connect(content, &ShapeWidgetContent::sigClickedIndex, this, [&](int index) {
            if (isGrid)
                delete content;
            else
                delete list.at(index);
        });
        QTest::mouseClick(list.last(), Qt::LeftButton);
        QVERIFY(clicked.isNull());
        QCOMPARE(content.isNull(), isGrid);
        delete content;
    }

    void anyNumberOfColumnsIsTaken()
    {
        ShapeWidgetContent grid;
        grid.setColumn(std::numeric_limits<int>::max());
        auto *button = new QPushButton;
        button->resize(30, 20);
        grid.setLsWidget({button});
        QCOMPARE(grid.width(), QWIDGETSIZE_MAX);
        QVERIFY(grid.height() >= 20 && grid.height() < 100);
    }

    void gridOwnsItsWidgets()
    {
        const QList<QWidget *> list = buttons(3);
        const auto pointers = guards(list);
        QWidget parent;
        auto *content = new ShapeWidgetContent(&parent);
        content->setColumn(2);
        content->setLsWidget(list);
        delete content;
        QVERIFY(!isAnyAlive(pointers));
    }

    void metaObjectNamesSignalsAndSlotsInOrder()
    {
        const QMetaObject &meta = ShapeWidgetContent::staticMetaObject;
        QCOMPARE(QByteArray(meta.superClass()->className()), QByteArray("QWidget"));
        QStringList methods;
        for (int i = meta.methodOffset(); i < meta.methodCount(); ++i)
            methods.append(meta.method(i).methodSignature());
        QCOMPARE(methods, (QStringList{"sigHide()", "sigClickedIndex(int)", "on_itemClicked()"}));
        QCOMPARE(meta.method(meta.indexOfMethod("on_itemClicked()")).access(),
                 QMetaMethod::Private);
    }
};

ORVANE_TEST_MAIN(TestShapeWidgetContent)
#include "tst_shapewidgetcontent.moc"
