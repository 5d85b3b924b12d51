#include "support/pointer.h"
#include "support/testcase.h"

#include <comboboxitem.h>
#include <labelex.h>

#include <QHBoxLayout>
#include <QLabel>

namespace
{

QPixmap filled(int width, int height, const QColor &color)
{
    QPixmap pixmap(width, height);
    pixmap.fill(color);
    return pixmap;
}

// The layout's widgets in order: the image label and the text label.
QLabel *imageLabel(const ComboboxItem &row)
{
    return qobject_cast<QLabel *>(row.layout()->itemAt(0)->widget());
}

LabelEx *textLabel(const ComboboxItem &row)
{
    return qobject_cast<LabelEx *>(row.layout()->itemAt(1)->widget());
}

} // namespace

Q_DECLARE_METATYPE(Qt::MouseButton)

class TestComboboxItem : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void isBuiltOfImageAndText()
    {
        ComboboxItem row(nullptr, filled(30, 20, Qt::red), "first", 7);
        QCOMPARE(row.text(), QStringLiteral("first"));
        QCOMPARE(row.index(), 7);
        QCOMPARE(row.pixMap().size(), QSize(30, 20));
        QCOMPARE(row.fontColor(), QColor(210, 210, 210));

        auto *layout = qobject_cast<QHBoxLayout *>(row.layout());
        QVERIFY(layout);
        QCOMPARE(layout->count(), 2);
        QCOMPARE(layout->spacing(), 5);
        QCOMPARE(layout->contentsMargins(), QMargins(5, 5, 5, 5));

        QLabel *image = imageLabel(row);
        QVERIFY(image && !qobject_cast<LabelEx *>(image));
        QCOMPARE(image->minimumSize(), QSize(30, 20));
        QCOMPARE(image->maximumSize(), QSize(30, 20));
        QVERIFY(image->testAttribute(Qt::WA_TranslucentBackground));

        LabelEx *text = textLabel(row);
        QVERIFY(text);
        QCOMPARE(text->text(), QStringLiteral("first"));
        QCOMPARE(text->styleSheet(), QStringLiteral("color:#d2d2d2;font: SimSun Arial;"));
        QVERIFY(text->testAttribute(Qt::WA_TranslucentBackground));
    }

    void fontColorRecomposes()
    {
        ComboboxItem row(nullptr, QPixmap(), "text", 0);
        row.setFontColor(QColor(255, 0, 0, 128));
        QCOMPARE(row.fontColor(), QColor(255, 0, 0, 128));
        QCOMPARE(textLabel(row)->styleSheet(),
                 QStringLiteral("color:#80ff0000;font: SimSun Arial;"));
        row.setFontColor(QColor());
        QCOMPARE(textLabel(row)->styleSheet(), QStringLiteral("color:#000000;font: SimSun Arial;"));
    }

    void fromColorToStrWritesSheetColors()
    {
        ComboboxItem row(nullptr, QPixmap(), "text", 0);
        QCOMPARE(row.fromColorToStr(QColor(255, 0, 0)), QString("#ff0000"));
        QCOMPARE(row.fromColorToStr(QColor(255, 0, 0, 128)), QString("#80ff0000"));
        QCOMPARE(row.fromColorToStr(QColor()), QString("#000000"));
    }

    void textGoesToTheLabel()
    {
        ComboboxItem row(nullptr, QPixmap(), "text", 0);
        const QString longText(300, 'w');
        row.setText(longText);
        QCOMPARE(row.text(), longText);
        QCOMPARE(textLabel(row)->text(), longText);
        QCOMPARE(textLabel(row)->toolTip(), longText);
    }

    void newPixmapIsStoredButNotShown()
    {
        ComboboxItem row(nullptr, filled(30, 20, Qt::red), "text", 0);
        row.setPixMap(filled(10, 10, Qt::green));
        QCOMPARE(row.pixMap().size(), QSize(10, 10));
        QVERIFY(pointer::showAndWait(&row));
        QCOMPARE(imageLabel(row)->size(), QSize(30, 20));
        QCOMPARE(pointer::colorAt(imageLabel(row), QPoint(15, 10)), QColor(Qt::red));
    }

    void pressAndReleaseOfAnyButtonChooses_data()
    {
        QTest::addColumn<Qt::MouseButton>("button");
        QTest::newRow("left") << Qt::LeftButton;
        QTest::newRow("right") << Qt::RightButton;
        QTest::newRow("middle") << Qt::MiddleButton;
    }

    void pressAndReleaseOfAnyButtonChooses()
    {
        QFETCH(Qt::MouseButton, button);
        ComboboxItem row(nullptr, filled(30, 20, Qt::red), QString(100, 'w'), 3);
        QVERIFY(pointer::showAndWait(&row));
        row.setIndex(4);
        QSignalSpy chosen(&row, &ComboboxItem::showContent);
        QTest::mousePress(&row, button);
        QCOMPARE(chosen.count(), 0);
        QTest::mouseRelease(&row, button);
        QCOMPARE(chosen.count(), 1);
        QCOMPARE(chosen.at(0).at(0).value<QPixmap>().size(), QSize(30, 20));
        QCOMPARE(chosen.at(0).at(1).toString(), QString(100, 'w')); // the full text
        QCOMPARE(chosen.at(0).at(2).toInt(), 4);
        QTest::mouseRelease(&row, button);
        QCOMPARE(chosen.count(), 1);
    }

    void pressOnTheTextChoosesToo()
    {
        ComboboxItem row(nullptr, filled(30, 20, Qt::red), "text", 3);
        QVERIFY(pointer::showAndWait(&row));
        QSignalSpy chosen(&row, &ComboboxItem::showContent);
        QTest::mouseClick(row.windowHandle(), Qt::LeftButton, Qt::NoModifier,
                          textLabel(row)->geometry().center());
        QCOMPARE(chosen.count(), 1);
    }

    void releaseWithoutPressChoosesNothing()
    {
        ComboboxItem row(nullptr, QPixmap(), "text", 0);
        QVERIFY(pointer::showAndWait(&row));
        QSignalSpy chosen(&row, &ComboboxItem::showContent);
        QTest::mouseRelease(&row, Qt::LeftButton);
        QCOMPARE(chosen.count(), 0);
    }

    void colorIsSeenWhenSetBeforeAndAfterTheFirstShow()
    {
        ComboboxItem row(nullptr, filled(10, 10, Qt::red), QString(5, QChar(0x2588)), 0);
        row.setFontColor(QColor(255, 0, 0));
        row.setFontColor(QColor(0, 255, 0));
        QVERIFY(pointer::showAndWait(&row));
        const QPoint inText(20, textLabel(row)->height() / 2);
        QCOMPARE(pointer::colorAt(textLabel(row), inText), QColor(0, 255, 0));
        row.setFontColor(QColor(0, 0, 255));
        QCOMPARE(pointer::colorAt(textLabel(row), inText), QColor(0, 0, 255));
    }

    void canBeDeletedInItsOwnSignal()
    {
        auto *row = new ComboboxItem(nullptr, QPixmap(), "text", 0);
        const QPointer<ComboboxItem> guard(row);
        QVERIFY(pointer::showAndWait(row));
        connect(row, &ComboboxItem::showContent, this, [row] { delete row; });
        QTest::mouseClick(row->windowHandle(), Qt::LeftButton, Qt::NoModifier, QPoint(3, 3));
        QVERIFY(guard.isNull());
    }
};

ORVANE_TEST_MAIN(TestComboboxItem)
#include "tst_comboboxitem.moc"
