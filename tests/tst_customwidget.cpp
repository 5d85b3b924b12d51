#include "support/pointer.h"
#include "support/testcase.h"

#include <customwidget.h>

namespace
{

/// The labels in their order: the dark block, the text.
QList<QLabel *> labels(const QWidget &widget)
{
    return widget.findChildren<QLabel *>(QString(), Qt::FindDirectChildrenOnly);
}

} // namespace

class TestCustomWidget : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void hasItsParts()
    {
        const CustomWidget widget;
        QVERIFY(!widget.autoFillBackground());
        QCOMPARE(widget.styleSheet(), QString());
        QCOMPARE(widget.findChildren<QWidget *>().size(), 3);

        const QList<QLabel *> parts = labels(widget);
        QCOMPARE(parts.size(), 2);
        QCOMPARE(parts.at(0)->text(), QString());
        QCOMPARE(parts.at(0)->minimumWidth(), 36);
        QCOMPARE(parts.at(0)->maximumWidth(), 36);
        QCOMPARE(parts.at(0)->styleSheet(), QString("background:rgb(69,69,69);"));
        QCOMPARE(parts.at(1)->text(), QString("unknow"));
        QCOMPARE(parts.at(1)->styleSheet(), QString("background:rgb(66,145,240);"));

        const auto *button = widget.findChild<QToolButton *>();
        QVERIFY(button);
        QCOMPARE(button->minimumSize(), QSize(20, 20));
        QCOMPARE(button->maximumSize(), QSize(20, 20));
    }

    void rowHasItsOrderAndMargins()
    {
        const CustomWidget widget;
        auto *row = qobject_cast<QHBoxLayout *>(widget.layout());
        QVERIFY(row);
        QCOMPARE(row->spacing(), 0);
        QCOMPARE(row->contentsMargins(), QMargins(1, 0, 12, 0));
        QCOMPARE(row->count(), 3);
        QCOMPARE(row->itemAt(0)->widget(), labels(widget).at(0));
        QCOMPARE(row->itemAt(1)->widget(), labels(widget).at(1));
        QCOMPARE(row->itemAt(2)->widget(), widget.findChild<QToolButton *>());
    }

    void partsStandSideBySide()
    {
        CustomWidget widget;
        widget.resize(300, 40);
        QVERIFY(pointer::showAndWait(&widget));
        QCOMPARE(labels(widget).at(0)->geometry(), QRect(1, 0, 36, 40));
        QCOMPARE(labels(widget).at(1)->geometry(), QRect(37, 0, 300 - 37 - 20 - 12, 40));
        QCOMPARE(widget.findChild<QToolButton *>()->geometry(), QRect(300 - 12 - 20, 10, 20, 20));
    }

    void groundsAreSeen()
    {
        CustomWidget widget;
        widget.resize(300, 40);
        QVERIFY(pointer::showAndWait(&widget));
        QCOMPARE(pointer::colorAt(&widget, QPoint(1, 0)), QColor(69, 69, 69));
        QCOMPARE(pointer::colorAt(&widget, QPoint(36, 39)), QColor(69, 69, 69));
        QCOMPARE(pointer::colorAt(&widget, QPoint(37, 0)), QColor(66, 145, 240));
        QCOMPARE(pointer::colorAt(&widget, QPoint(267, 39)), QColor(66, 145, 240));
        const QColor ground = widget.palette().color(QPalette::Window);
        QCOMPARE(pointer::colorAt(&widget, QPoint(0, 20)), ground);
        QCOMPARE(pointer::colorAt(&widget, QPoint(290, 20)), ground);
    }

    void isAPlainWidget()
    {
        QWidget parent;
        const auto *widget = new CustomWidget(&parent);
        QCOMPARE(widget->parentWidget(), &parent);
        QCOMPARE(widget->windowFlags(), QWidget(&parent).windowFlags());
        const QMetaObject &meta = CustomWidget::staticMetaObject;
        QCOMPARE(meta.superClass(), &QWidget::staticMetaObject);
        QCOMPARE(meta.methodOffset(), meta.methodCount());
        QCOMPARE(meta.propertyOffset(), meta.propertyCount());
    }

    void diesWithItsParentOrBefore()
    {
        auto *parent = new QWidget;
        QPointer<CustomWidget> first = new CustomWidget(parent);
        QPointer<CustomWidget> second = new CustomWidget(parent);
        QVERIFY(pointer::showAndWait(parent));
        delete first;
        QCOMPARE(parent->children(), QObjectList{second});
        delete parent;
        QVERIFY(second.isNull());
    }

    void outlivesItsParts()
    {
        CustomWidget widget;
        widget.resize(300, 40);
        qDeleteAll(widget.findChildren<QWidget *>());
        QVERIFY(pointer::showAndWait(&widget));
        QCOMPARE(widget.layout()->count(), 0);
    }
};

ORVANE_TEST_MAIN(TestCustomWidget)
#include "tst_customwidget.moc"
