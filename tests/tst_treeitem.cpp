#include "support/pointer.h"
#include "support/testcase.h"

#include <treeitem.h>

namespace
{

const QString titleSheet = "font:9pt \"微软雅黑\" ;color: rgb(210, 210, 210);";
const QString sizeSheet = "font:9pt \"微软雅黑\" ;color: rgb(153, 153, 153);";

QLabel *line(const TreeItem &item, int index)
{
    return qobject_cast<QLabel *>(item.layout()->itemAt(index)->widget());
}

QLabel *title(const TreeItem &item)
{
    return line(item, 0);
}

QLabel *sizeLine(const TreeItem &item)
{
    return line(item, 1);
}

} // namespace

class TestTreeItem : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void isBuiltFromItsParts()
    {
        QWidget parent;
        TreeItem item("A", {500, 500}, &parent);
        QCOMPARE(item.parentWidget(), &parent);
        QVERIFY(!item.autoFillBackground());
        QCOMPARE(item.styleSheet(), QString());
        auto *layout = qobject_cast<QVBoxLayout *>(item.layout());
        QVERIFY(layout);
        QCOMPARE(layout->count(), 2);
        QCOMPARE(layout->spacing(), 0);
        QCOMPARE(layout->contentsMargins(), QMargins(5, 5, 5, 5));

        QCOMPARE(title(item)->text(), QString("A"));
        QCOMPARE(title(item)->styleSheet(), titleSheet);
        QCOMPARE(title(item)->parentWidget(), &item);
        QVERIFY(title(item)->testAttribute(Qt::WA_TranslucentBackground));
        QCOMPARE(sizeLine(item)->text(), QString("500x500"));
        QCOMPARE(sizeLine(item)->styleSheet(), sizeSheet);
        QCOMPARE(sizeLine(item)->parentWidget(), &item);
        QVERIFY(sizeLine(item)->testAttribute(Qt::WA_TranslucentBackground));

        QCOMPARE(item.getCabinetName(), QString("A"));
        QCOMPARE(item.getCabinetSize(), QSize(500, 500));
        QVERIFY(!item.getObject());
    }

    void declaresNoSignalsAndNoSlots()
    {
        const QMetaObject &meta = TreeItem::staticMetaObject;
        QCOMPARE(meta.superClass(), &QWidget::staticMetaObject);
        QCOMPARE(meta.propertyOffset(), meta.propertyCount());
        QCOMPARE(meta.methodOffset(), meta.methodCount());
    }

    void theNameIsLightAndTheSizeBelowItDarker()
    {
        TreeItem item(QString(9, QChar(0x2588)), {500, 500});
        item.resize(200, 60);
        sizeLine(item)->setText(QString(9, QChar(0x2588)));
        QVERIFY(pointer::showAndWait(&item));
        const auto colorOf = [&](const QLabel *label) {
            return pointer::colorAt(&item, {15, label->geometry().center().y()});
        };
        QCOMPARE(colorOf(title(item)), QColor(210, 210, 210));
        QCOMPARE(colorOf(sizeLine(item)), QColor(153, 153, 153));
        QCOMPARE(title(item)->x(), 5);
        QCOMPARE(title(item)->y(), 5);
        QCOMPARE(sizeLine(item)->y(), title(item)->geometry().bottom() + 1);
        QCOMPARE(sizeLine(item)->geometry().bottom(), 60 - 5 - 1);
    }

    void sizesAreDecimalNumbers_data()
    {
        QTest::addColumn<QSize>("size");
        QTest::addColumn<QString>("text");
        QTest::newRow("wide") << QSize(960, 540) << "960x540";
        QTest::newRow("null") << QSize(0, 0) << "0x0";
        QTest::newRow("invalid") << QSize() << "-1x-1";
        QTest::newRow("large") << QSize(1000000, 2147483647) << "1000000x2147483647";
    }

    void sizesAreDecimalNumbers()
    {
        QFETCH(QSize, size);
        QFETCH(QString, text);
        TreeItem item("A", size);
        QCOMPARE(sizeLine(item)->text(), text);
        QCOMPARE(item.getCabinetSize(), size);
    }

    void theNameIsTheHosts_data()
    {
        QTest::addColumn<QString>("name");
        QTest::newRow("plain") << "P2.6 indoor";
        QTest::newRow("Chinese") << "箱体";
        QTest::newRow("empty") << "";
        QTest::newRow("very long") << QString(5000, 'w');
    }

    void theNameIsTheHosts()
    {
        QFETCH(QString, name);
        TreeItem item(name, {1, 2});
        QCOMPARE(item.getCabinetName(), name);
        item.setCabinetName("other");
        QCOMPARE(item.getCabinetName(), QString("other"));
        QCOMPARE(title(item)->text(), QString("other"));
        item.setCabinetName(name);
        QCOMPARE(item.getCabinetName(), name);
        QCOMPARE(item.getCabinetSize(), QSize(1, 2));
        item.grab();
    }

    void nullSheetsAreIgnoredAndEmptyOnesClear()
    {
        TreeItem item("A", {1, 2});
        item.setTilteStyleSheet(QString());
        QCOMPARE(title(item)->styleSheet(), titleSheet);
        item.setTilteStyleSheet("color:red;");
        QCOMPARE(title(item)->styleSheet(), QString("color:red;"));
        QCOMPARE(sizeLine(item)->styleSheet(), sizeSheet);
        item.setTilteStyleSheet(QString());
        QCOMPARE(title(item)->styleSheet(), QString("color:red;"));
        item.setTilteStyleSheet("");
        QCOMPARE(title(item)->styleSheet(), QString());

        item.setContentStyleSheet(QString());
        QCOMPARE(sizeLine(item)->styleSheet(), sizeSheet);
        item.setContentStyleSheet("color:blue;");
        QCOMPARE(sizeLine(item)->styleSheet(), QString("color:blue;"));
        item.setContentStyleSheet("");
        QCOMPARE(sizeLine(item)->styleSheet(), QString());
    }

    void sheetsAreSeenWhenSetBeforeAndAfterTheFirstShow()
    {
        const QString blocks(9, QChar(0x2588));
        TreeItem item(blocks, {500, 500});
        item.resize(200, 60);
        sizeLine(item)->setText(blocks);
        const auto check = [&](const QColor &name, const QColor &size) {
            QCOMPARE(pointer::colorAt(&item, {15, title(item)->geometry().center().y()}), name);
            QCOMPARE(pointer::colorAt(&item, {15, sizeLine(item)->geometry().center().y()}), size);
        };
        item.setTilteStyleSheet("color:#ff0000;");
        item.setTilteStyleSheet("color:#00ff00;");
        item.setContentStyleSheet("color:#ff0000;");
        item.setContentStyleSheet("color:#0000ff;");
        QVERIFY(pointer::showAndWait(&item));
        check(QColor(0, 255, 0), QColor(0, 0, 255));
        item.setTilteStyleSheet("color:#010203;");
        item.setContentStyleSheet("color:#040506;");
        check(QColor(1, 2, 3), QColor(4, 5, 6));
    }

    void theObjectIsTheHosts()
    {
        TreeItem item("A", {1, 2});
        auto *object = new QObject;
        item.setObject(object);
        const TreeItem &constant = item;
        QCOMPARE(constant.getObject(), object);
        QVERIFY(!object->parent());
        item.setObject(nullptr);
        QVERIFY(!item.getObject());
        item.setObject(object);
        delete object;
        QVERIFY(!item.getObject());

        QPointer<QObject> survivor = new QObject;
        {
            TreeItem other("B", {1, 2});
            other.setObject(survivor);
        }
        QVERIFY(survivor);
        delete survivor;
        item.setObject(&item);
        QCOMPARE(item.getObject(), &item);
    }

    void linesFollowTheItemsSize()
    {
        TreeItem item("A", {1, 2});
        item.resize(200, 60);
        QVERIFY(pointer::showAndWait(&item));
        QCOMPARE(title(item)->width(), 190);
        item.resize(300, 60);
        QTRY_COMPARE(title(item)->width(), 290);
    }

    void diesWithItsParentOrBefore()
    {
        auto *parent = new QWidget;
        QPointer<TreeItem> first = new TreeItem("A", {1, 2}, parent);
        QPointer<TreeItem> second = new TreeItem("B", {1, 2}, parent);
        QPointer<QLabel> label = title(*second);
        delete first;
        delete parent;
        QVERIFY(second.isNull());
        QVERIFY(label.isNull());
    }
};

ORVANE_TEST_MAIN(TestTreeItem)
#include "tst_treeitem.moc"
