#include "support/testcase.h"

#include <sliderex.h>

#include <orvanecontrols/internal/sheettext.h>
#include <orvanecontrols/internal/stylesheet.h>

#include <array>
#include <limits>

using orvane::SheetText;

namespace
{

template <typename Piece> QString textOf(const Piece &piece)
{
    return (SheetText() << piece).toString();
}

/// Counts the sheets that it is given.
class SheetCounter : public QWidget
{
public:
    int count = 0;

protected:
    void changeEvent(QEvent *event) override
    {
        count += event->type() == QEvent::StyleChange;
        QWidget::changeEvent(event);
    }
};

} // namespace

class TestSheetText : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void beginsEmpty()
    {
        const SheetText sheet;
        QVERIFY(sheet.isEmpty());
        QCOMPARE(sheet.toString(), QString(""));
        QVERIFY(!(SheetText() << u";").isEmpty());
    }

    void piecesFollowEachOther()
    {
        const QString image = ":/box.png";
        SheetText size;
        size << u"width:" << 16 << u"px;";
        SheetText sheet;
        sheet << u"QCheckBox{" << size << u"color:" << QColor(255, 0, 0) << u";image:url(" << image
              << u");" << QStringView(u"border:none;") << u"}";
        QCOMPARE(sheet.toString(),
                 QString("QCheckBox{width:16px;color:#ff0000;image:url(:/box.png);border:none;}"));
        QCOMPARE(sheet.view().toString(), sheet.toString());
        QVERIFY(!sheet.isEmpty());
        QCOMPARE(size.toString(), QString("width:16px;")); // as it was
    }

    void emptyPiecesLeaveNoTrace()
    {
        SheetText sheet;
        sheet << u"{" << QString() << QStringView() << u"" << SheetText() << u"}";
        QCOMPARE(sheet.toString(), QString("{}"));
    }

    void equalsWhatHasTheSameLetters()
    {
        SheetText sheet;
        QVERIFY(sheet.equals(QString()));
        QVERIFY(sheet.equals(QString("")));
        QVERIFY(!sheet.equals(QString("a")));
        sheet << u"QLabel{}";
        QVERIFY(sheet.equals(QString("QLabel{}")));
        QVERIFY(!sheet.equals(QString()));
        QVERIFY(!sheet.equals(QString("QLabel{")));
        QVERIFY(!sheet.equals(QString("QLabel{ }")));
        QVERIFY(!sheet.equals(QString("QLabel{)")));
        QVERIFY(!sheet.equals(QString("qLabel{}")));
    }

    void colorsAreWrittenAsNames_data()
    {
        QTest::addColumn<QColor>("color");
        QTest::addColumn<QString>("expected");
        QTest::newRow("opaque") << QColor(1, 171, 205) << "#01abcd";
        QTest::newRow("translucent") << QColor(255, 0, 16, 128) << "#80ff0010";
        QTest::newRow("almost opaque") << QColor(1, 2, 3, 254) << "#fe010203";
        QTest::newRow("transparent") << QColor(255, 255, 255, 0) << "#00ffffff";
        QTest::newRow("invalid") << QColor() << "#000000";
        QTest::newRow("hue and saturation") << QColor::fromHsv(120, 255, 255) << "#00ff00";
    }

    void colorsAreWrittenAsNames()
    {
        QFETCH(QColor, color);
        QFETCH(QString, expected);
        QCOMPARE(textOf(color), expected);
    }

    void numbersAreWrittenInDecimal_data()
    {
        QTest::addColumn<int>("number");
        QTest::addColumn<QString>("expected");
        QTest::newRow("zero") << 0 << "0";
        QTest::newRow("one digit") << 9 << "9";
        QTest::newRow("two digits") << 10 << "10";
        QTest::newRow("zeros inside") << 1002003 << "1002003";
        QTest::newRow("negative") << -1 << "-1";
        QTest::newRow("negative with two digits") << -50 << "-50";
        QTest::newRow("greatest") << std::numeric_limits<int>::max() << "2147483647";
        QTest::newRow("least") << std::numeric_limits<int>::min() << "-2147483648";
    }

    void numbersAreWrittenInDecimal()
    {
        QFETCH(int, number);
        QFETCH(QString, expected);
        QCOMPARE(textOf(number), expected);
    }

    void textsKeepEveryLetter()
    {
        const QString family = QString::fromUtf8("\xe5\xbe\xae\xe8\xbd\xaf");
        QCOMPARE(textOf(family), family);
        SheetText literal;
        literal << u"微软";
        QCOMPARE(literal.toString(), family);
        // Beyond the basic plane a letter takes two places.
        const QString clef = QString::fromUtf8("\xf0\x9d\x84\x9e");
        SheetText pair;
        pair << u"\U0001d11e";
        QCOMPARE(pair.toString(), clef);
        QCOMPARE(pair.view().size(), 2);
    }

    // The first goes beyond what lies on the stack at once, the other little by little.
    void longSheetsLoseNothing()
    {
        const QString rule = "QLabel{color:#ffffff;}";
        const QString expected = rule.repeated(1000);
        QCOMPARE(textOf(expected), expected);
        SheetText sheet;
        for (int i = 0; i < 1000; ++i)
            sheet << u"QLabel{color:" << QColor(Qt::white) << u";}";
        QCOMPARE(sheet.toString(), expected);
        const SheetText copy = sheet;
        sheet << u"}";
        QCOMPARE(copy.toString(), expected);
    }

    void sheetIsAppliedToTheWidget()
    {
        QWidget widget;
        applyStyleSheet(&widget, SheetText() << u"QWidget{color:" << QColor(1, 2, 3) << u";}");
        QCOMPARE(widget.styleSheet(), QString("QWidget{color:#010203;}"));
        applyStyleSheet(&widget, SheetText());
        QCOMPARE(widget.styleSheet(), QString());
    }

    // Thousands of cabinets have the same sheet.
    void equalSheetsShareOneText()
    {
        std::array<QWidget, 5> widgets;
        const auto apply = [&](std::size_t number, const QColor &color) {
            applyStyleSheet(&widgets.at(number),
                            SheetText() << u"QWidget{color:" << color << u";}");
        };
        apply(0, QColor(1, 2, 3));
        apply(1, QColor(1, 2, 3));
        QVERIFY(widgets[0].styleSheet().constData() == widgets[1].styleSheet().constData());
        // Another one of the same length is no equal one.
        apply(2, QColor(4, 5, 6));
        apply(3, QColor(4, 5, 6));
        apply(4, QColor(1, 2, 3));
        QVERIFY(widgets[2].styleSheet().constData() == widgets[3].styleSheet().constData());
        QCOMPARE(widgets[2].styleSheet(), QString("QWidget{color:#040506;}"));
        for (const std::size_t number : {std::size_t(0), std::size_t(1), std::size_t(4)})
            QCOMPARE(widgets.at(number).styleSheet(), QString("QWidget{color:#010203;}"));
    }

    void equalSheetIsNotAppliedAgain()
    {
        SheetCounter widget;
        applyStyleSheet(&widget, SheetText() << u"QWidget{color:#ff0000;}");
        widget.show();
        widget.count = 0;
        applyStyleSheet(&widget, SheetText() << u"QWidget{color:" << QColor(Qt::red) << u";}");
        QCOMPARE(widget.count, 0);
        applyStyleSheet(&widget, SheetText() << u"QWidget{color:#00ff00;}");
        QCOMPARE(widget.count, 1);
    }

    // The sheet in force is the one to be kept, when it comes after another.
    void lastOfTheHeldSheetsCounts()
    {
        QWidget widget;
        applyStyleSheet(&widget, SheetText() << u"QWidget{color:#ff0000;}");
        {
            const orvane::HeldSheets held(&widget);
            applyStyleSheet(&widget, SheetText() << u"QWidget{color:#00ff00;}");
            QCOMPARE(widget.styleSheet(), QString("QWidget{color:#ff0000;}"));
            applyStyleSheet(&widget, SheetText() << u"QWidget{color:#ff0000;}");
        }
        QCOMPARE(widget.styleSheet(), QString("QWidget{color:#ff0000;}"));
    }

    void setterWithAnUnchangedValueReplacesTheHostsSheet()
    {
        SliderEx slider(nullptr, Qt::Horizontal);
        const QString own = slider.styleSheet();
        slider.setStyleSheet("QSlider{background:red;}");
        slider.setHandleColor(slider.handleColor());
        QCOMPARE(slider.styleSheet(), own);
        slider.setStyleSheet(QString());
        slider.setHandleWidth(slider.handleWidth());
        QCOMPARE(slider.styleSheet(), own);
    }
};

ORVANE_TEST_MAIN(TestSheetText)
#include "tst_sheettext.moc"
