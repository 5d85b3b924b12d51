#include "support/pointer.h"
#include "support/sheetimages.h"
#include "support/spinarrows.h"
#include "support/testcase.h"

#include <doublespinboxex.h>

namespace
{

// The sheet of a new box, written out by hand, with the values that setters change as arguments.
QString sheet(const QString &fragment, const QString &background, const QString &border,
              const QString &disabled)
{
    return "DoubleSpinBoxEx{" + fragment + ";background:" + background + ";border:0px solid"
        + border + ";}DoubleSpinBoxEx:disabled{color:" + disabled
        + ";font: SimSun Arial;}DoubleSpinBoxEx::up-button{border-image:url(:/Resource/Images/"
          "globalResource/spinbox/up_normal.png);}DoubleSpinBoxEx::up-button:hover{border-image:"
          "url(:/Resource/Images/globalResource/spinbox/up_hover.png);}DoubleSpinBoxEx::up-button:"
          "pressed{border-image:url(:/Resource/Images/globalResource/spinbox/up_pressed.png);}"
          "DoubleSpinBoxEx::up-button:disabled{border-image:url(:/Resource/Images/globalResource/"
          "spinbox/up_disabled.png);}DoubleSpinBoxEx::down-button{border-image:url(:/Resource/"
          "Images/globalResource/spinbox/down_normal.png);}DoubleSpinBoxEx::down-button:hover{"
          "border-image:url(:/Resource/Images/globalResource/spinbox/down_hover.png);}"
          "DoubleSpinBoxEx::down-button:pressed{border-image:url(:/Resource/Images/globalResource/"
          "spinbox/down_pressed.png);}DoubleSpinBoxEx::down-button:disabled{border-image:url(:/"
          "Resource/Images/globalResource/spinbox/down_disabled.png);}";
}

const QString defaultSheet = sheet("", "#333333", "#808080", "#707070");

using Box = WithArrows<DoubleSpinBoxEx>;

// Makes a locale the default one for as long as it lives.
class DefaultLocale
{
public:
    explicit DefaultLocale(const QLocale &locale) { QLocale::setDefault(locale); }
    ~DefaultLocale() { QLocale::setDefault(m_previous); }

private:
    Q_DISABLE_COPY(DefaultLocale)

    const QLocale m_previous;
};

} // namespace

Q_DECLARE_METATYPE(std::function<void(DoubleSpinBoxEx &)>)
Q_DECLARE_METATYPE(QStyle::SubControl)

class TestDoubleSpinBoxEx : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void hasDefaults()
    {
        DoubleSpinBoxEx box(nullptr);
        QCOMPARE(box.backgroundColor(), QColor(51, 51, 51));
        QCOMPARE(box.bordColor(), QColor(128, 128, 128));
        QCOMPARE(box.fontColor(), QColor(255, 255, 255));
        QCOMPARE(box.disabledFontColor(), QColor(112, 112, 112));
        QCOMPARE(box.fromColorToStr(box.disabledFontColor()), QString("#707070"));
        QVERIFY(box.showValue());
        QVERIFY(!box.testAttribute(Qt::WA_MacShowFocusRect));
        QCOMPARE(box.contextMenuPolicy(), Qt::NoContextMenu);
        QCOMPARE(box.value(), 0.0);
        QCOMPARE(box.styleSheet(), defaultSheet);
        QVERIFY(pointer::showAndWait(&box));
        QCOMPARE(box.text(), QString("0.00"));
    }

    void defaultSheetBeginsWithoutAColor()
    {
        DoubleSpinBoxEx box;
        QVERIFY(box.styleSheet().startsWith("DoubleSpinBoxEx{;background:#333333;border:0px "
                                            "solid#808080;}DoubleSpinBoxEx:disabled{color:"
                                            "#707070;"));
    }

    void settersRecompose_data()
    {
        QTest::addColumn<std::function<void(DoubleSpinBoxEx &)>>("set");
        QTest::addColumn<QString>("expected");
        using Set = std::function<void(DoubleSpinBoxEx &)>;
        QTest::newRow("background")
            << Set([](DoubleSpinBoxEx &b) { b.setBackgroundColor(Qt::blue); })
            << sheet("", "#0000ff", "#808080", "#707070");
        QTest::newRow("border") << Set([](DoubleSpinBoxEx &b) { b.setBordColor(QColor(1, 2, 3)); })
                                << sheet("", "#333333", "#010203", "#707070");
        QTest::newRow("font") << Set([](DoubleSpinBoxEx &b) {
            b.setFontColor(Qt::red);
        }) << sheet("color:#ff0000;font: SimSun Arial;", "#333333", "#808080", "#707070");
        QTest::newRow("disabled font")
            << Set([](DoubleSpinBoxEx &b) { b.setDisabledFontColor(QColor(255, 0, 0, 128)); })
            << sheet("", "#333333", "#808080", "#80ff0000");
        QTest::newRow("invalid colours") << Set([](DoubleSpinBoxEx &b) {
            b.setBackgroundColor(QColor());
            b.setFontColor(QColor());
        }) << sheet("color:#000000;font: SimSun Arial;", "#000000", "#808080", "#707070");
        QTest::newRow("flag is only stored")
            << Set([](DoubleSpinBoxEx &b) { b.setShowValue(false); }) << defaultSheet;
        QTest::newRow("initStyle goes back to the defaults") << Set([](DoubleSpinBoxEx &b) {
            b.setFontColor(Qt::red);
            b.setBackgroundColor(Qt::red);
            b.setBordColor(Qt::red);
            b.setDisabledFontColor(Qt::red);
            b.initStyle();
        }) << defaultSheet;
    }

    void settersRecompose()
    {
        QFETCH(std::function<void(DoubleSpinBoxEx &)>, set);
        QFETCH(QString, expected);
        DoubleSpinBoxEx box;
        set(box);
        QCOMPARE(box.styleSheet(), expected);
    }

    void gettersReturnWhatWasSet()
    {
        DoubleSpinBoxEx box;
        box.setBackgroundColor(QColor(1, 2, 3));
        box.setBordColor(QColor(4, 5, 6));
        box.setFontColor(QColor(7, 8, 9, 10));
        box.setDisabledFontColor(QColor(11, 12, 13));
        box.setShowValue(false);
        QCOMPARE(box.backgroundColor(), QColor(1, 2, 3));
        QCOMPARE(box.bordColor(), QColor(4, 5, 6));
        QCOMPARE(box.fontColor(), QColor(7, 8, 9, 10));
        QCOMPARE(box.disabledFontColor(), QColor(11, 12, 13));
        QVERIFY(!box.showValue());
    }

    void initStyleKeepsValueAndFlag()
    {
        DoubleSpinBoxEx box;
        box.setDecimals(1);
        box.setValue(4.5);
        box.setShowValue(false);
        box.setContextMenuPolicy(Qt::DefaultContextMenu);
        box.setAttribute(Qt::WA_MacShowFocusRect);
        box.initStyle();
        QVERIFY(!box.testAttribute(Qt::WA_MacShowFocusRect));
        QCOMPARE(box.value(), 4.5);
        QCOMPARE(box.decimals(), 1);
        QVERIFY(!box.showValue());
        QCOMPARE(box.contextMenuPolicy(), Qt::NoContextMenu);
    }

    void textsFollowTheValue_data()
    {
        QTest::addColumn<bool>("show");
        QTest::addColumn<int>("decimals");
        QTest::addColumn<double>("value");
        QTest::addColumn<QString>("text");
        QTest::newRow("two decimals") << true << 2 << 1.5 << "1.50";
        QTest::newRow("no decimals") << true << 0 << 7.0 << "7";
        QTest::newRow("negative") << true << 3 << -0.125 << "-0.125";
        QTest::newRow("without group separators") << true << 1 << 1234567.5 << "1234567.5";
        QTest::newRow("without exponent") << true << 1 << 1e15 << "1000000000000000.0";
        QTest::newRow("hidden zero") << false << 2 << 0.0 << "---";
        QTest::newRow("hidden") << false << 2 << 12.25 << "---";
    }

    void textsFollowTheValue()
    {
        QFETCH(bool, show);
        QFETCH(int, decimals);
        QFETCH(double, value);
        QFETCH(QString, text);
        DoubleSpinBoxEx box;
        box.setRange(-1e18, 1e18);
        box.setGroupSeparatorShown(true);
        box.setDecimals(decimals);
        box.setShowValue(show);
        box.setValue(value);
        QCOMPARE(box.value(), value);
        QCOMPARE(box.textFromValue(value), text);
        QCOMPARE(box.text(), text);
    }

    void showValueShowsWithTheNextSetValue()
    {
        DoubleSpinBoxEx box;
        box.setValue(1.25);
        box.setShowValue(false);
        QCOMPARE(box.text(), QString("1.25"));
        box.setValue(1.25);
        QCOMPARE(box.text(), QString("---"));
        box.setShowValue(true);
        QCOMPARE(box.text(), QString("---"));
        box.setValue(2.5);
        QCOMPARE(box.text(), QString("2.50"));
    }

    void textsAreReadAsPlainNumbers_data()
    {
        QTest::addColumn<bool>("show");
        QTest::addColumn<QString>("text");
        QTest::addColumn<double>("value");
        QTest::newRow("number") << true << "45.5" << 45.5;
        QTest::newRow("negative") << true << "-0.25" << -0.25;
        QTest::newRow("exponent") << true << "1e3" << 1000.0;
        QTest::newRow("no number") << true << "abc" << 0.0;
        QTest::newRow("number and unit") << true << "45 px" << 0.0;
        QTest::newRow("decimal comma") << true << "1,5" << 0.0;
        QTest::newRow("empty") << true << "" << 0.0;
        QTest::newRow("hidden") << false << "45.5" << 0.0;
    }

    void textsAreReadAsPlainNumbers()
    {
        QFETCH(bool, show);
        QFETCH(QString, text);
        QFETCH(double, value);
        DoubleSpinBoxEx box;
        box.setShowValue(show);
        takeDebugMessages();
        QCOMPARE(box.valueFromText(text), value);
        QCOMPARE(takeDebugMessages(), QStringList());
    }

    void typingYieldsTheNumberInEveryLocale_data()
    {
        QTest::addColumn<QLocale>("locale");
        QTest::newRow("c") << QLocale::c();
        QTest::newRow("chinese") << QLocale(QLocale::Chinese, QLocale::China);
        QTest::newRow("german") << QLocale(QLocale::German, QLocale::Germany);
        QTest::newRow("french") << QLocale(QLocale::French, QLocale::France);
    }

    void typingYieldsTheNumberInEveryLocale()
    {
        QFETCH(QLocale, locale);
        const DefaultLocale inForce(locale);
        QWidget window;
        window.setLocale(locale);
        auto *box = new DoubleSpinBoxEx(&window);
        QVERIFY(pointer::showAndWait(&window));
        QCOMPARE(box->text(), QString("0.00"));
        box->selectAll();
        QTest::keyClicks(box, "12.75");
        QCOMPARE(box->value(), 12.75);
        QTest::keyClick(box, Qt::Key_Return);
        QCOMPARE(box->value(), 12.75);
        QCOMPARE(box->text(), QString("12.75"));
        QTest::keyClick(box, Qt::Key_Up);
        QCOMPARE(box->value(), 13.75);
        QCOMPARE(box->text(), QString("13.75"));
    }

    void typingIntoABoxThatHidesItsValueYieldsZero_data()
    {
        QTest::addColumn<double>("minimum");
        QTest::addColumn<double>("expected");
        QTest::newRow("zero in the range") << 0.0 << 0.0;
        QTest::newRow("zero below the range") << 3.5 << 3.5;
    }

    void typingIntoABoxThatHidesItsValueYieldsZero()
    {
        QFETCH(double, minimum);
        QFETCH(double, expected);
        DoubleSpinBoxEx box;
        box.setRange(minimum, 99.0);
        box.setShowValue(false);
        box.setValue(77.0);
        QCOMPARE(box.text(), QString("---"));
        QVERIFY(pointer::showAndWait(&box));
        box.selectAll();
        QTest::keyClicks(&box, "45.5");
        QCOMPARE(box.value(), expected);
        QTest::keyClick(&box, Qt::Key_Return);
        QCOMPARE(box.value(), expected);
        QCOMPARE(box.text(), QString("---"));
    }

    void arrowsAndWheelStep()
    {
        Box box;
        box.resize(120, 30);
        box.setSingleStep(0.5);
        box.setValue(1.0);
        QVERIFY(pointer::showAndWait(&box));
        QSignalSpy changed(&box, QOverload<double>::of(&QDoubleSpinBox::valueChanged));
        box.click(QStyle::SC_SpinBoxUp);
        QCOMPARE(box.value(), 1.5);
        box.click(QStyle::SC_SpinBoxDown);
        QCOMPARE(box.value(), 1.0);
        pointer::turnWheel(&box, 2);
        QCOMPARE(box.value(), 2.0);
        QCOMPARE(changed.count(), 3);
    }

    void losingTheFocusFinishesEditing()
    {
        QWidget window;
        auto *box = new DoubleSpinBoxEx(&window);
        auto *other = new QLineEdit(&window);
        other->move(0, 50);
        QVERIFY(pointer::showAndWait(&window));
        window.activateWindow();
        box->setFocus();
        QTRY_VERIFY(box->hasFocus());
        QSignalSpy finished(box, &QDoubleSpinBox::editingFinished);
        box->selectAll();
        QTest::keyClicks(box, "3.");
        other->setFocus();
        QCOMPARE(finished.count(), 1);
        QCOMPARE(box->text(), QString("3.00"));
        QVERIFY(box->focusPolicy() != Qt::NoFocus);
    }

    void everyImageOfTheSheetResolves()
    {
        QStringList paths = imagePaths(DoubleSpinBoxEx().styleSheet());
        for (const QString &path : qAsConst(paths))
            QCOMPARE(QImage(path).size(), QSize(23, 10));
        QCOMPARE(paths.count(), 8);
        QCOMPARE(paths.removeDuplicates(), 0);
    }

    void colorIsSeenWhenSetBeforeAndAfterTheFirstShow()
    {
        DoubleSpinBoxEx box;
        box.resize(200, 40);
        box.setBackgroundColor(QColor(255, 0, 0));
        box.setBackgroundColor(QColor(0, 255, 0));
        QVERIFY(pointer::showAndWait(&box));
        QCOMPARE(pointer::colorAt(&box, QPoint(100, 2)), QColor(0, 255, 0));
        box.setBackgroundColor(QColor(0, 0, 255));
        QCOMPARE(pointer::colorAt(&box, QPoint(100, 2)), QColor(0, 0, 255));
    }

    void colorsAreSeen()
    {
        // A prefix of full blocks fills the text's pixels with the font colour.
        DoubleSpinBoxEx box;
        box.resize(200, 40);
        box.setPrefix(QString(7, QChar(0x2588)));
        QVERIFY(pointer::showAndWait(&box));
        const QPoint inText(20, 20);
        const QPoint behindText(100, 2);
        QCOMPARE(pointer::colorAt(&box, behindText), QColor(51, 51, 51));
        box.setBackgroundColor(QColor(10, 20, 30));
        QCOMPARE(pointer::colorAt(&box, behindText), QColor(10, 20, 30));
        box.setFontColor(QColor(0, 255, 0));
        QCOMPARE(pointer::colorAt(&box, inText), QColor(0, 255, 0));
        box.setEnabled(false);
        QCOMPARE(pointer::colorAt(&box, inText), QColor(112, 112, 112));
        box.setDisabledFontColor(QColor(255, 0, 0));
        QCOMPARE(pointer::colorAt(&box, inText), QColor(255, 0, 0));
    }

    void arrowsShowTheImageOfTheirState_data()
    {
        QTest::addColumn<QStyle::SubControl>("control");
        QTest::newRow("up") << QStyle::SC_SpinBoxUp;
        QTest::newRow("down") << QStyle::SC_SpinBoxDown;
    }

    void arrowsShowTheImageOfTheirState()
    {
        QFETCH(QStyle::SubControl, control);
        Box box;
        box.resize(120, 40);
        box.setRange(-10, 10);
        QVERIFY(pointer::showAndWait(&box));
        pointer::moveAway(&box);
        const QRect arrow = box.arrow(control);
        const auto picture = [&] { return box.grab(arrow).toImage(); };
        const QImage normal = picture();
        QCursor::setPos(box.mapToGlobal(arrow.center()));
        QTRY_VERIFY(box.underMouse());
        const QImage hovered = picture();
        QTest::mousePress(&box, Qt::LeftButton, Qt::NoModifier, arrow.center());
        const QImage pressed = picture();
        QTest::mouseRelease(&box, Qt::LeftButton, Qt::NoModifier, arrow.center());
        box.setEnabled(false);
        const QImage disabled = picture();
        const QList<QImage> pictures{normal, hovered, pressed, disabled};
        for (int i = 0; i < pictures.count(); ++i) {
            for (int j = 0; j < i; ++j)
                QVERIFY2(pictures.at(i) != pictures.at(j),
                         qPrintable(QString("%1=%2").arg(i).arg(j)));
        }
    }

    void fromColorToStrWritesSheetColors()
    {
        DoubleSpinBoxEx box;
        QCOMPARE(box.fromColorToStr(QColor(255, 0, 0)), QString("#ff0000"));
        QCOMPARE(box.fromColorToStr(QColor(255, 0, 0, 128)), QString("#80ff0000"));
        QCOMPARE(box.fromColorToStr(QColor()), QString("#000000"));
    }

    void addsNothingToTheMetaObject()
    {
        const QMetaObject &meta = DoubleSpinBoxEx::staticMetaObject;
        QCOMPARE(meta.methodOffset(), meta.methodCount());
        QCOMPARE(meta.propertyOffset(), meta.propertyCount());
        QCOMPARE(QByteArray(meta.superClass()->className()), QByteArray("QDoubleSpinBox"));
    }

    void diesWithItsParentAndBeforeIt()
    {
        auto *parent = new QWidget;
        QPointer<DoubleSpinBoxEx> first(new DoubleSpinBoxEx(parent));
        QPointer<DoubleSpinBoxEx> second(new DoubleSpinBoxEx(parent));
        QVERIFY(pointer::showAndWait(parent));
        delete first;
        QVERIFY(second);
        delete parent;
        QVERIFY(second.isNull());
    }
};

ORVANE_TEST_MAIN(TestDoubleSpinBoxEx)
#include "tst_doublespinboxex.moc"
