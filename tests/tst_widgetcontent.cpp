#include "support/pointer.h"
#include "support/testcase.h"

#include <widgetcontent.h>

namespace
{

QList<QWidget *> buttons(int count)
{
    QList<QWidget *> list;
    for (int i = 0; i < count; ++i) {
        auto *button = new QPushButton(QString::number(i));
        button->setFixedSize(40, 40);
        list.append(button);
    }
    return list;
}

// The row as it stands: the texts of its buttons, and "-" for the stretch.
QString row(const QWidget &content)
{
    QStringList names;
    for (int i = 0; i < content.layout()->count(); ++i) {
        const auto *button = qobject_cast<QPushButton *>(content.layout()->itemAt(i)->widget());
        names.append(button ? button->text() : QString("-"));
    }
    return names.join(' ');
}

} // namespace

class TestWidgetContent : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void hasDefaults()
    {
        const WidgetContent content(nullptr);
        const auto *layout = qobject_cast<QHBoxLayout *>(content.layout());
        QVERIFY(layout);
        QCOMPARE(layout->contentsMargins(), QMargins());
        QCOMPARE(layout->spacing(), 10);
        QCOMPARE(row(content), QString("-"));
        QVERIFY(content.lsWidget().isEmpty());
    }

    void listStandsBeforeTheStretch()
    {
        WidgetContent content;
        const QList<QWidget *> list = buttons(3);
        content.setLsWidget(list);
        QCOMPARE(content.lsWidget(), list);
        QCOMPARE(row(content), QString("0 1 2 -"));
        QCOMPARE(content.minimumSize(), QSize(0, 0));
        QCOMPARE(content.maximumSize(), QSize(QWIDGETSIZE_MAX, QWIDGETSIZE_MAX));
        QCOMPARE(content.sizeHint(), QSize(3 * 40 + 2 * 10, 40));
        for (const QWidget *widget : list)
            QCOMPARE(widget->focusPolicy(), Qt::NoFocus);
        content.resize(400, 40);
        QVERIFY(pointer::showAndWait(&content));
        for (int i = 0; i < list.size(); ++i)
            QCOMPARE(list.at(i)->geometry(), QRect(50 * i, 0, 40, 40));
    }

    void emptyListFixesTheSize()
    {
        WidgetContent content;
        content.setLsWidget({});
        QCOMPARE(content.size(), QSize(10, 10));
        QCOMPARE(content.minimumSize(), QSize(10, 10));
        QCOMPARE(content.maximumSize(), QSize(10, 10));
        content.setLsWidget(buttons(2));
        QCOMPARE(content.minimumSize(), QSize(0, 0));
        QCOMPARE(content.maximumSize(), QSize(QWIDGETSIZE_MAX, QWIDGETSIZE_MAX));
    }

    void laterListsAreInsertedBeforeTheStretchToo()
    {
        WidgetContent content;
        QList<QWidget *> list = buttons(3);
        content.setLsWidget(list);
        std::reverse(list.begin(), list.end());
        content.setLsWidget(list);
        QCOMPARE(row(content), QString("2 1 0 -"));
        content.setLsWidget({list.at(0)});
        QCOMPARE(content.lsWidget(), (QList<QWidget *>{list.at(0)}));
        // Widgets that are not in the list any more stay in the row.
        QCOMPARE(row(content), QString("1 0 2 -"));
    }

    void addedItemStandsAtTheEnd()
    {
        WidgetContent content;
        content.setLsWidget(buttons(2));
        auto *extra = new QPushButton("extra");
        content.addItem(extra);
        content.addItem(nullptr);
        QCOMPARE(row(content), QString("0 1 - extra"));
        QCOMPARE(content.lsWidget().size(), 2);
        content.setLsWidget(buttons(1));
        QCOMPARE(row(content), QString("0 1 0 - extra"));
    }

    void removedItemStaysInTheRow_data()
    {
        QTest::addColumn<int>("index");
        QTest::addColumn<int>("left");
        QTest::newRow("first") << 0 << 2;
        QTest::newRow("last") << 2 << 2;
        QTest::newRow("negative") << -1 << 3;
        QTest::newRow("count") << 3 << 3;
    }

    void removedItemStaysInTheRow()
    {
        QFETCH(int, index);
        QFETCH(int, left);
        WidgetContent content;
        QList<QWidget *> list = buttons(3);
        content.setLsWidget(list);
        content.removeItem(index);
        if (left == 2)
            list.removeAt(index);
        QCOMPARE(content.lsWidget(), list);
        QCOMPARE(row(content), QString("0 1 2 -"));
    }

    void removeAllEmptiesTheList()
    {
        WidgetContent content;
        const QList<QWidget *> list = buttons(3);
        content.setLsWidget(list);
        content.removeAll();
        QVERIFY(content.lsWidget().isEmpty());
        QCOMPARE(row(content), QString("0 1 2 -"));
        QSignalSpy hide(&content, &WidgetContent::notifyShpeWidgetHide);
        static_cast<QPushButton *>(list.at(1))->click();
        QCOMPARE(hide.count(), 1);
    }

    void clickIsReportedOnce()
    {
        WidgetContent content;
        const QList<QWidget *> list = buttons(3);
        content.setLsWidget(list);
        content.setLsWidget(list);
        QVERIFY(pointer::showAndWait(&content));
        QSignalSpy hide(&content, &WidgetContent::notifyShpeWidgetHide);
        QTest::mouseClick(content.windowHandle(), Qt::LeftButton, Qt::NoModifier,
                          list.at(2)->geometry().center());
        QCOMPARE(hide.count(), 1);
        content.on_buttonClicked();
        QCOMPARE(hide.count(), 2);
    }

    void addedItemReportsNoClick()
    {
        WidgetContent content;
        auto *extra = new QPushButton("extra");
        content.addItem(extra);
        QSignalSpy hide(&content, &WidgetContent::notifyShpeWidgetHide);
        extra->click();
        QCOMPARE(hide.count(), 0);
    }

    void nullsAreIgnored()
    {
        WidgetContent content;
        const QList<QWidget *> list = buttons(1);
        content.setLsWidget({nullptr, list.first()});
        QCOMPARE(content.lsWidget(), list);
        content.setLsWidget({nullptr});
        QCOMPARE(content.maximumSize(), QSize(10, 10));
    }

    void deletedWidgetsAreForgotten()
    {
        WidgetContent content;
        const QList<QWidget *> list = buttons(3);
        content.setLsWidget(list);
        delete list.at(0);
        QCOMPARE(content.lsWidget(), (QList<QWidget *>{list.at(1), list.at(2)}));
        content.removeItem(0);
        QCOMPARE(content.lsWidget(), (QList<QWidget *>{list.at(2)}));
        QCOMPARE(row(content), QString("1 2 -"));
    }

    void canBeDeletedInItsOwnSignal()
    {
        const QPointer<WidgetContent> content = new WidgetContent;
        const QList<QWidget *> list = buttons(2);
        const QPointer<QWidget> clicked = list.first();
        content->setLsWidget(list);
        QVERIFY(pointer::showAndWait(content));
        connect(content, &WidgetContent::notifyShpeWidgetHide, this, [&] { delete content; });
        QTest::mouseClick(list.first(), Qt::LeftButton);
        QVERIFY(content.isNull());
        QVERIFY(clicked.isNull());
    }

    void metaObjectNamesSignalAndSlot()
    {
        const QMetaObject &meta = WidgetContent::staticMetaObject;
        QCOMPARE(QByteArray(meta.superClass()->className()), QByteArray("QWidget"));
        QStringList methods;
        for (int i = meta.methodOffset(); i < meta.methodCount(); ++i)
            methods.append(meta.method(i).methodSignature());
        QCOMPARE(methods, (QStringList{"notifyShpeWidgetHide()", "on_buttonClicked()"}));
    }
};

ORVANE_TEST_MAIN(TestWidgetContent)
#include "tst_widgetcontent.moc"
