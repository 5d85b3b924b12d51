#include "support/pointer.h"
#include "support/sheetimages.h"
#include "support/testcase.h"

#include <checkboxex.h>

namespace
{

// The sheet of a new box, written out by hand, with the values that setters change as arguments:
// spacing, fragment, disabled colour, width, height, checked colour.
QString sheet(const QString &spacing, const QString &fragment, const QString &disabledColor,
              const QString &width, const QString &height, const QString &checkedColor)
{
    return "QCheckBox{spacing:" + spacing + "px;" + fragment
        + "}QCheckBox::disabled{color:" + disabledColor
        + ";font: SimSun Arial;}QCheckBox::indicator{width:" + width + "px;height:" + height
        + "px;}QCheckBox::indicator:unchecked{border-image: "
          "url(:/Resource/Images/globalResource/checkbox/checkbox_normal.png);color:white;}"
          "QCheckBox::indicator:unchecked:hover{border-image: "
          "url(:/Resource/Images/globalResource/checkbox/checkbox_unchecked_hover.png);color:white;"
          "}QCheckBox::indicator:checked{border-image: "
          "url(:/Resource/Images/globalResource/checkbox/checkbox_pressed.png);color:"
        + checkedColor
        + "}QCheckBox::indicator:checked:hover{border-image: "
          "url(:/Resource/Images/globalResource/checkbox/checkbox_checked_hover.png);color:"
        + checkedColor
        + "}QCheckBox::indicator:checked:disabled{image:url(:/Resource/Images/globalResource/"
          "checkbox/checked_disabled.png);}";
}

const QString defaultSheet = sheet("5", "", "#707070", "15", "15", "#ffffff");

} // namespace

Q_DECLARE_METATYPE(std::function<void(CheckBoxEx &)>)

class TestCheckBoxEx : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void hasDefaults()
    {
        CheckBoxEx box(nullptr);
        QCOMPARE(box.spacing(), 5);
        QCOMPARE(box.fontColor(), QColor(255, 255, 255));
        QCOMPARE(box.disabledFontColor(), QColor(112, 112, 112));
        QCOMPARE(box.hoverFontColor(), QColor(101, 124, 152));
        QCOMPARE(box.indicatorWidth(), 15);
        QCOMPARE(box.indicatorHeight(), 15);
        QVERIFY(!box.data().isValid());
        QVERIFY(!box.isLastSelectd());
        QCOMPARE(box.text(), QString());
        QVERIFY(!box.isChecked());
        QCOMPARE(box.styleSheet(), defaultSheet);
    }

    void defaultSheetBeginsWithoutAColor()
    {
        CheckBoxEx box;
        QVERIFY(box.styleSheet().startsWith(
            "QCheckBox{spacing:5px;}QCheckBox::disabled{color:#707070;font: SimSun Arial;}"));
    }

    void settersRecompose_data()
    {
        QTest::addColumn<std::function<void(CheckBoxEx &)>>("set");
        QTest::addColumn<QString>("expected");
        using Set = std::function<void(CheckBoxEx &)>;
        QTest::newRow("spacing") << Set([](CheckBoxEx &b) { b.setSpacing(9); })
                                 << sheet("9", "", "#707070", "15", "15", "#ffffff");
        QTest::newRow("negative spacing") << Set([](CheckBoxEx &b) { b.setSpacing(-3); })
                                          << sheet("-3", "", "#707070", "15", "15", "#ffffff");
        QTest::newRow("indicator width") << Set([](CheckBoxEx &b) { b.setIndicatorWidth(20); })
                                         << sheet("5", "", "#707070", "20", "15", "#ffffff");
        QTest::newRow("indicator height") << Set([](CheckBoxEx &b) { b.setIndicatorHeight(0); })
                                          << sheet("5", "", "#707070", "15", "0", "#ffffff");
        QTest::newRow("font colour")
            << Set([](CheckBoxEx &b) { b.setFontColor(Qt::red); })
            << sheet("5", "color:#ff0000;font: SimSun Arial;", "#707070", "15", "15", "#ffffff");
        QTest::newRow("translucent font colour")
            << Set([](CheckBoxEx &b) { b.setFontColor(QColor(255, 0, 0, 128)); })
            << sheet("5", "color:#80ff0000;font: SimSun Arial;", "#707070", "15", "15", "#ffffff");
        QTest::newRow("invalid font colour")
            << Set([](CheckBoxEx &b) { b.setFontColor(QColor()); })
            << sheet("5", "color:#000000;font: SimSun Arial;", "#707070", "15", "15", "#ffffff");
        QTest::newRow("disabled font colour")
            << Set([](CheckBoxEx &b) { b.setDisabledFontColor(QColor(1, 2, 3)); })
            << sheet("5", "", "#010203", "15", "15", "#ffffff");
        QTest::newRow("hover font colour is not drawn")
            << Set([](CheckBoxEx &b) { b.setHoverFontColor(Qt::red); }) << defaultSheet;
        QTest::newRow("checked colour is only stored")
            << Set([](CheckBoxEx &b) { b.setCheckedColor(Qt::red); }) << defaultSheet;
        QTest::newRow("checked colour shows with the next setter") << Set([](CheckBoxEx &b) {
            b.setCheckedColor(Qt::red);
            b.setSpacing(5);
        }) << sheet("5", "", "#707070", "15", "15", "#ff0000");
        QTest::newRow("hover font colour recomposes") << Set([](CheckBoxEx &b) {
            b.setCheckedColor(Qt::red);
            b.setHoverFontColor(Qt::green);
        }) << sheet("5", "", "#707070", "15", "15", "#ff0000");
        QTest::newRow("initStyle goes back to the defaults") << Set([](CheckBoxEx &b) {
            b.setFontColor(Qt::red);
            b.setCheckedColor(Qt::red);
            b.setIndicatorWidth(99);
            b.initStyle();
        }) << defaultSheet;
    }

    void settersRecompose()
    {
        QFETCH(std::function<void(CheckBoxEx &)>, set);
        QFETCH(QString, expected);
        CheckBoxEx box;
        set(box);
        QCOMPARE(box.styleSheet(), expected);
    }

    void gettersReturnWhatWasSet()
    {
        CheckBoxEx box;
        box.setSpacing(11);
        box.setIndicatorWidth(12);
        box.setIndicatorHeight(13);
        box.setFontColor(QColor(1, 2, 3, 4));
        box.setDisabledFontColor(QColor(5, 6, 7));
        box.setHoverFontColor(QColor(8, 9, 10));
        QCOMPARE(box.spacing(), 11);
        QCOMPARE(box.indicatorWidth(), 12);
        QCOMPARE(box.indicatorHeight(), 13);
        QCOMPARE(box.fontColor(), QColor(1, 2, 3, 4));
        QCOMPARE(box.disabledFontColor(), QColor(5, 6, 7));
        QCOMPARE(box.hoverFontColor(), QColor(8, 9, 10));
    }

    void keepsPayloadAndFlag()
    {
        CheckBoxEx box;
        box.setData(QStringList{"a", "b"});
        box.SetIsLastSelectd(true);
        box.initStyle();
        QCOMPARE(box.data().toStringList(), (QStringList{"a", "b"}));
        QVERIFY(box.isLastSelectd());
    }

    void textIsElidedToTheWidthLessTwenty_data()
    {
        QTest::addColumn<int>("spare");
        QTest::addColumn<bool>("fits");
        QTest::newRow("one pixel to spare") << 1 << true;
        QTest::newRow("exactly as wide") << 0 << true;
        QTest::newRow("one pixel short") << -1 << false;
    }

    void textIsElidedToTheWidthLessTwenty()
    {
        QFETCH(int, spare);
        QFETCH(bool, fits);
        const QString text = QStringLiteral("A text of some length");
        CheckBoxEx box;
        box.ensurePolished();
        const QFontMetrics metrics(box.font());
        const int available = metrics.horizontalAdvance(text) + spare;
        box.resize(available + 20, 30);
        box.setText(text);
        QCOMPARE(box.text(), text);
        QCOMPARE(box.toolTip(), fits ? QString() : text);
        const QString shown = static_cast<QCheckBox &>(box).text();
        QCOMPARE(shown, metrics.elidedText(text, Qt::ElideRight, available));
        if (spare > 0)
            QCOMPARE(shown, text);
        if (spare < 0)
            QVERIFY2(shown.endsWith(QChar(0x2026)), qPrintable(shown));
    }

    void narrowBoxHasTheTextAsToolTip()
    {
        CheckBoxEx box;
        box.resize(20, 20);
        box.setText("x");
        QCOMPARE(box.toolTip(), QStringLiteral("x"));
        QCOMPARE(box.text(), QStringLiteral("x"));
        box.resize(5, 20);
        box.setText("x");
        QCOMPARE(box.toolTip(), QStringLiteral("x"));
        box.resize(200, 20);
        QCOMPARE(box.toolTip(), QStringLiteral("x")); // a resize does not measure anew
        box.setText("");
        QCOMPARE(box.toolTip(), QString());
        QCOMPARE(box.text(), QString());
    }

    void everyImageOfTheSheetResolves()
    {
        QStringList paths = imagePaths(CheckBoxEx().styleSheet());
        for (const QString &path : qAsConst(paths))
            QCOMPARE(QImage(path).size(), QSize(32, 32));
        QCOMPARE(paths.count(), 5);
        QCOMPARE(paths.removeDuplicates(), 0);
    }

    void clickAndSpaceToggle()
    {
        CheckBoxEx box;
        box.resize(120, 30);
        box.setText("Enable");
        QVERIFY(pointer::showAndWait(&box));
        QSignalSpy toggled(&box, &QCheckBox::toggled);
        QTest::mouseClick(&box, Qt::LeftButton, Qt::NoModifier, QPoint(8, 15));
        QVERIFY(box.isChecked());
        QTest::mouseClick(&box, Qt::RightButton, Qt::NoModifier, QPoint(8, 15));
        QVERIFY(box.isChecked());
        QTest::keyClick(&box, Qt::Key_Space);
        QVERIFY(!box.isChecked());
        QCOMPARE(toggled.count(), 2);
    }

    void pressAndReleaseRepaint()
    {
        struct Counting : CheckBoxEx {
            int paints = 0;
            void paintEvent(QPaintEvent *event) override
            {
                ++paints;
                CheckBoxEx::paintEvent(event);
            }
        };
        Counting box;
        box.resize(120, 30);
        QVERIFY(pointer::showAndWait(&box));
        QTRY_VERIFY(box.paints > 0);
        QCoreApplication::processEvents();
        // A right press does not change the button's state; the repaint is the box's own.
        box.paints = 0;
        QTest::mousePress(&box, Qt::RightButton, Qt::NoModifier, QPoint(8, 15));
        QTRY_COMPARE(box.paints, 1);
        QTest::mouseRelease(&box, Qt::RightButton, Qt::NoModifier, QPoint(8, 15));
        QTRY_COMPARE(box.paints, 2);
    }

    void colorIsSeenWhenSetBeforeAndAfterTheFirstShow()
    {
        // The text is a run of full blocks, so that its colour fills pixels.
        CheckBoxEx box;
        box.resize(200, 40);
        box.setText(QString(9, QChar(0x2588)));
        box.setFontColor(QColor(255, 0, 0));
        box.setFontColor(QColor(0, 255, 0));
        QVERIFY(pointer::showAndWait(&box));
        QCOMPARE(pointer::colorAt(&box, QPoint(50, 20)), QColor(0, 255, 0));
        box.setFontColor(QColor(0, 0, 255));
        QCOMPARE(pointer::colorAt(&box, QPoint(50, 20)), QColor(0, 0, 255));
    }

    void oddTextsAreHarmless_data()
    {
        QTest::addColumn<QString>("text");
        QTest::newRow("quotes") << "\"a\" 'b'";
        QTest::newRow("braces") << "}QCheckBox{color:red;";
        QTest::newRow("very long") << QString(100000, 'w');
        QTest::newRow("lines") << "one\ntwo";
        QTest::newRow("null") << QString();
    }

    void oddTextsAreHarmless()
    {
        QFETCH(QString, text);
        CheckBoxEx box;
        box.setText(text);
        QCOMPARE(box.text(), text);
        QCOMPARE(box.styleSheet(), defaultSheet);
        QVERIFY(pointer::showAndWait(&box));
    }

    void addsNothingToTheMetaObject()
    {
        const QMetaObject &meta = CheckBoxEx::staticMetaObject;
        QCOMPARE(meta.methodOffset(), meta.methodCount());
        QCOMPARE(meta.propertyOffset(), meta.propertyCount());
        QCOMPARE(QByteArray(meta.superClass()->className()), QByteArray("QCheckBox"));
    }

    void canBeDeletedInItsOwnSignal()
    {
        auto *box = new CheckBoxEx;
        QPointer<CheckBoxEx> guard(box);
        QVERIFY(pointer::showAndWait(box));
        connect(box, &QCheckBox::clicked, box, [box] { delete box; });
        QTest::mouseClick(box, Qt::LeftButton, Qt::NoModifier, QPoint(8, box->height() / 2));
        QVERIFY(guard.isNull());
    }
};

ORVANE_TEST_MAIN(TestCheckBoxEx)
#include "tst_checkboxex.moc"
