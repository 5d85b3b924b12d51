#include "support/pointer.h"
#include "support/sheetimages.h"
#include "support/spinarrows.h"
#include "support/testcase.h"

#include <spinboxex.h>

namespace
{

// The sheet of a new box, written out by hand, with the values that setters change as arguments.
QString sheet(const QString &fragment, const QString &background, const QString &border,
              const QString &disabled)
{
    return "QSpinBox{" + fragment + ";background:" + background + ";border:0px solid" + border
        + ";}QSpinBox:disabled{color:" + disabled
        + ";font: SimSun Arial;}QSpinBox::up-button{border-image:url(:/Resource/Images/"
          "globalResource/spinbox/up_normal.png);}QSpinBox::up-button:hover{border-image:url(:/"
          "Resource/Images/globalResource/spinbox/up_hover.png);}QSpinBox::up-button:pressed{"
          "border-image:url(:/Resource/Images/globalResource/spinbox/up_pressed.png);}QSpinBox::up-"
          "button:disabled{border-image:url(:/Resource/Images/globalResource/spinbox/"
          "up_disabled.png);}QSpinBox::down-button{border-image:url(:/Resource/Images/"
          "globalResource/spinbox/down_normal.png);}QSpinBox::down-button:hover{border-image:url(:/"
          "Resource/Images/globalResource/spinbox/down_hover.png);}QSpinBox::down-button:pressed{"
          "border-image:url(:/Resource/Images/globalResource/spinbox/down_pressed.png);}QSpinBox::"
          "down-button:disabled{border-image:url(:/Resource/Images/globalResource/spinbox/"
          "down_disabled.png);}";
}

const QString defaultSheet = sheet("", "#333333", "#808080", "#999999");

using Box = WithArrows<SpinBoxEx>;

QList<int> directions(const QSignalSpy &spy)
{
    QList<int> result;
    for (const QList<QVariant> &arguments : spy)
        result.append(arguments.at(0).toInt());
    return result;
}

} // namespace

Q_DECLARE_METATYPE(std::function<void(SpinBoxEx &)>)
Q_DECLARE_METATYPE(QStyle::SubControl)
Q_DECLARE_METATYPE(Qt::MouseButton)

class TestSpinBoxEx : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void hasDefaults()
    {
        SpinBoxEx box(nullptr);
        QCOMPARE(box.backgroundColor(), QColor(51, 51, 51));
        QCOMPARE(box.bordColor(), QColor(128, 128, 128));
        QCOMPARE(box.fontColor(), QColor(255, 255, 255));
        QCOMPARE(box.disabledFontColor(), QColor(153, 153, 153));
        QCOMPARE(box.fromColorToStr(box.disabledFontColor()), QString("#999999"));
        QVERIFY(box.showValue());
        QVERIFY(box.focusOutEvent());
        QVERIFY(!box.testAttribute(Qt::WA_MacShowFocusRect));
        QCOMPARE(box.contextMenuPolicy(), Qt::NoContextMenu);
        QCOMPARE(box.value(), 0);
        QCOMPARE(box.styleSheet(), defaultSheet);
        QVERIFY(pointer::showAndWait(&box));
        QCOMPARE(box.text(), QString("0"));
    }

    void defaultSheetBeginsWithoutAColor()
    {
        SpinBoxEx box;
        QVERIFY(box.styleSheet().startsWith("QSpinBox{;background:#333333;border:0px solid#808080;"
                                            "}QSpinBox:disabled{color:#999999;"));
    }

    void settersRecompose_data()
    {
        QTest::addColumn<std::function<void(SpinBoxEx &)>>("set");
        QTest::addColumn<QString>("expected");
        using Set = std::function<void(SpinBoxEx &)>;
        QTest::newRow("background") << Set([](SpinBoxEx &b) { b.setBackgroundColor(Qt::blue); })
                                    << sheet("", "#0000ff", "#808080", "#999999");
        QTest::newRow("border") << Set([](SpinBoxEx &b) { b.setBordColor(QColor(1, 2, 3)); })
                                << sheet("", "#333333", "#010203", "#999999");
        QTest::newRow("font") << Set([](SpinBoxEx &b) {
            b.setFontColor(Qt::red);
        }) << sheet("color:#ff0000;font: SimSun Arial;", "#333333", "#808080", "#999999");
        QTest::newRow("disabled font")
            << Set([](SpinBoxEx &b) { b.setDisabledFontColor(QColor(255, 0, 0, 128)); })
            << sheet("", "#333333", "#808080", "#80ff0000");
        QTest::newRow("invalid colours") << Set([](SpinBoxEx &b) {
            b.setBackgroundColor(QColor());
            b.setFontColor(QColor());
        }) << sheet("color:#000000;font: SimSun Arial;", "#000000", "#808080", "#999999");
        QTest::newRow("flags are only stored") << Set([](SpinBoxEx &b) {
            b.setShowValue(false);
            b.setFocusOutEvent(false);
        }) << defaultSheet;
        QTest::newRow("initStyle goes back to the defaults") << Set([](SpinBoxEx &b) {
            b.setFontColor(Qt::red);
            b.setBackgroundColor(Qt::red);
            b.setBordColor(Qt::red);
            b.setDisabledFontColor(Qt::red);
            b.initStyle();
        }) << defaultSheet;
    }

    void settersRecompose()
    {
        QFETCH(std::function<void(SpinBoxEx &)>, set);
        QFETCH(QString, expected);
        SpinBoxEx box;
        set(box);
        QCOMPARE(box.styleSheet(), expected);
    }

    void gettersReturnWhatWasSet()
    {
        SpinBoxEx box;
        box.setBackgroundColor(QColor(1, 2, 3));
        box.setBordColor(QColor(4, 5, 6));
        box.setFontColor(QColor(7, 8, 9, 10));
        box.setDisabledFontColor(QColor(11, 12, 13));
        box.setShowValue(false);
        box.setFocusOutEvent(false);
        QCOMPARE(box.backgroundColor(), QColor(1, 2, 3));
        QCOMPARE(box.bordColor(), QColor(4, 5, 6));
        QCOMPARE(box.fontColor(), QColor(7, 8, 9, 10));
        QCOMPARE(box.disabledFontColor(), QColor(11, 12, 13));
        QVERIFY(!box.showValue());
        QVERIFY(!box.focusOutEvent());
    }

    void initStyleKeepsValueAndFlags()
    {
        SpinBoxEx box;
        box.setRange(5, 50);
        box.setValue(42);
        box.setShowValue(false);
        box.setFocusOutEvent(false);
        box.setContextMenuPolicy(Qt::DefaultContextMenu);
        box.setAttribute(Qt::WA_MacShowFocusRect);
        box.initStyle();
        QVERIFY(!box.testAttribute(Qt::WA_MacShowFocusRect));
        QCOMPARE(box.value(), 42);
        QCOMPARE(box.minimum(), 5);
        QVERIFY(!box.showValue());
        QVERIFY(!box.focusOutEvent());
        QCOMPARE(box.contextMenuPolicy(), Qt::NoContextMenu);
    }

    void textsFollowTheValue_data()
    {
        QTest::addColumn<bool>("show");
        QTest::addColumn<int>("value");
        QTest::addColumn<QString>("text");
        QTest::newRow("zero") << true << 0 << "0";
        QTest::newRow("negative") << true << -7 << "-7";
        QTest::newRow("without group separators") << true << 1234567 << "1234567";
        QTest::newRow("least") << true << INT_MIN << "-2147483648";
        QTest::newRow("hidden zero") << false << 0 << "---";
        QTest::newRow("hidden") << false << 359 << "---";
    }

    void textsFollowTheValue()
    {
        QFETCH(bool, show);
        QFETCH(int, value);
        QFETCH(QString, text);
        SpinBoxEx box;
        box.setRange(INT_MIN, INT_MAX);
        box.setGroupSeparatorShown(true);
        box.setShowValue(show);
        box.setValue(value);
        QCOMPARE(box.value(), value);
        QCOMPARE(box.textFromValue(value), text);
        QCOMPARE(box.text(), text);
    }

    void showValueShowsWithTheNextSetValue()
    {
        SpinBoxEx box;
        box.setValue(12);
        box.setShowValue(false);
        QCOMPARE(box.text(), QString("12"));
        box.setValue(12);
        QCOMPARE(box.text(), QString("---"));
        box.setShowValue(true);
        QCOMPARE(box.text(), QString("---"));
        box.setValue(13);
        QCOMPARE(box.text(), QString("13"));
    }

    void textsAreReadAsPlainNumbers_data()
    {
        QTest::addColumn<bool>("show");
        QTest::addColumn<QString>("text");
        QTest::addColumn<int>("value");
        QTest::newRow("number") << true << "45" << 45;
        QTest::newRow("negative") << true << "-45" << -45;
        QTest::newRow("leading zero is not octal") << true << "010" << 10;
        QTest::newRow("no number") << true << "abc" << 0;
        QTest::newRow("number and unit") << true << "45 px" << 0;
        QTest::newRow("decimals") << true << "1.5" << 0;
        QTest::newRow("too big") << true << "99999999999" << 0;
        QTest::newRow("empty") << true << "" << 0;
        QTest::newRow("placeholder") << true << "---" << 0;
        QTest::newRow("hidden") << false << "45" << 0;
    }

    void textsAreReadAsPlainNumbers()
    {
        QFETCH(bool, show);
        QFETCH(QString, text);
        QFETCH(int, value);
        SpinBoxEx box;
        box.setShowValue(show);
        takeDebugMessages();
        QCOMPARE(box.valueFromText(text), value);
        QCOMPARE(takeDebugMessages(), QStringList("text=" + text));
    }

    void typingYieldsTheNumber()
    {
        SpinBoxEx box;
        box.setRange(0, 359);
        QVERIFY(pointer::showAndWait(&box));
        QSignalSpy directionSpy(&box, &SpinBoxEx::signal_valueChanged);
        box.selectAll();
        takeDebugMessages();
        QTest::keyClicks(&box, "90");
        QCOMPARE(box.value(), 90);
        QCOMPARE(takeDebugMessages(), (QStringList{"text=9", "text=90"}));
        QTest::keyClick(&box, Qt::Key_Return);
        QCOMPARE(box.value(), 90);
        QCOMPARE(box.text(), QString("90"));
        QTest::keyClick(&box, Qt::Key_Up);
        QCOMPARE(box.value(), 91);
        QTest::keyClick(&box, Qt::Key_PageDown);
        QCOMPARE(box.value(), 81);
        QCOMPARE(directionSpy.count(), 0);
    }

    void arrowIsDownAsLongAsItsKey()
    {
        // Only some styles show an arrow as pressed while its key is down.
        struct AnimatingStyle : QProxyStyle {
            int styleHint(StyleHint hint, const QStyleOption *option, const QWidget *widget,
                          QStyleHintReturn *data) const override
            {
                return hint == SH_SpinBox_AnimateButton
                    ? 1
                    : QProxyStyle::styleHint(hint, option, widget, data);
            }
        };
        AnimatingStyle style;
        Box box;
        box.setStyle(&style);
        QVERIFY(pointer::showAndWait(&box));
        QTest::keyPress(&box, Qt::Key_Up);
        QCOMPARE(box.value(), 1);
        QVERIFY(box.hasAnArrowDown());
        QTest::keyRelease(&box, Qt::Key_Up);
        QVERIFY(!box.hasAnArrowDown());
    }

    void typingIntoABoxThatHidesItsValueYieldsZero_data()
    {
        QTest::addColumn<int>("minimum");
        QTest::addColumn<int>("expected");
        QTest::newRow("zero in the range") << 0 << 0;
        QTest::newRow("zero below the range") << 3 << 3;
    }

    void typingIntoABoxThatHidesItsValueYieldsZero()
    {
        QFETCH(int, minimum);
        QFETCH(int, expected);
        SpinBoxEx box;
        box.setRange(minimum, 359);
        box.setShowValue(false);
        box.setValue(77);
        QCOMPARE(box.text(), QString("---"));
        QVERIFY(pointer::showAndWait(&box));
        box.selectAll();
        QTest::keyClicks(&box, "45");
        QCOMPARE(box.value(), expected);
        QTest::keyClick(&box, Qt::Key_Return);
        QCOMPARE(box.value(), expected);
        QCOMPARE(box.text(), QString("---"));
    }

    void clickReportsItsDirection_data()
    {
        QTest::addColumn<int>("minimum");
        QTest::addColumn<int>("maximum");
        QTest::addColumn<bool>("wrapping");
        QTest::addColumn<int>("start");
        QTest::addColumn<bool>("up");
        QTest::addColumn<int>("value");
        QTest::addColumn<int>("direction");
        QTest::newRow("up") << 0 << 359 << true << 10 << true << 11 << 1;
        QTest::newRow("down") << 0 << 359 << true << 10 << false << 9 << -1;
        QTest::newRow("up across the turn") << 0 << 359 << true << 359 << true << 0 << 1;
        QTest::newRow("down across the turn") << 0 << 359 << true << 0 << false << 359 << -1;
        QTest::newRow("up at an end") << 0 << 359 << false << 359 << true << 359 << -1;
        QTest::newRow("down at an end") << 0 << 359 << false << 0 << false << 0 << -1;
        QTest::newRow("up across another wrap") << 0 << 9 << true << 9 << true << 0 << -1;
        QTest::newRow("down across another wrap") << 0 << 9 << true << 0 << false << 9 << 1;
        QTest::newRow("up below zero") << -5 << 5 << false << -3 << true << -2 << 1;
    }

    void clickReportsItsDirection()
    {
        QFETCH(int, minimum);
        QFETCH(int, maximum);
        QFETCH(bool, wrapping);
        QFETCH(int, start);
        QFETCH(bool, up);
        QFETCH(int, value);
        QFETCH(int, direction);
        Box box;
        box.resize(120, 30);
        box.setRange(minimum, maximum);
        box.setWrapping(wrapping);
        box.setValue(start);
        QVERIFY(pointer::showAndWait(&box));
        QSignalSpy spy(&box, &SpinBoxEx::signal_valueChanged);
        takeDebugMessages();
        box.click(up ? QStyle::SC_SpinBoxUp : QStyle::SC_SpinBoxDown);
        QCOMPARE(box.value(), value);
        QCOMPARE(directions(spy), QList<int>{direction});
        QCOMPARE(takeDebugMessages(),
                 (QStringList{
                     "mousePressEvent(QMouseEvent* event) = ",
                     "mouseReleaseEvent(QMouseEvent* event) = " + QString::number(value),
                 }));
    }

    void bigStepsFromTheEndsCountAsTheyAre()
    {
        Box box;
        box.resize(120, 30);
        box.setRange(0, 359);
        box.setSingleStep(300);
        box.setValue(0);
        QVERIFY(pointer::showAndWait(&box));
        QSignalSpy spy(&box, &SpinBoxEx::signal_valueChanged);
        box.click(QStyle::SC_SpinBoxUp);
        QCOMPARE(box.value(), 300);
        // From 0 to 359 counts as downward even when the up arrow went there.
        box.setSingleStep(359);
        box.setValue(0);
        box.click(QStyle::SC_SpinBoxUp);
        QCOMPARE(box.value(), 359);
        QCOMPARE(directions(spy), (QList<int>{1, -1}));
    }

    void clickThatChangesNothingReportsDownward_data()
    {
        QTest::addColumn<Qt::MouseButton>("button");
        QTest::newRow("right") << Qt::RightButton;
        QTest::newRow("middle") << Qt::MiddleButton;
    }

    void clickThatChangesNothingReportsDownward()
    {
        QFETCH(Qt::MouseButton, button);
        Box box;
        box.resize(120, 30);
        box.setValue(5);
        QVERIFY(pointer::showAndWait(&box));
        QSignalSpy spy(&box, &SpinBoxEx::signal_valueChanged);
        box.click(QStyle::SC_SpinBoxUp, button);
        QCOMPARE(box.value(), 5);
        QCOMPARE(directions(spy), QList<int>{-1});
    }

    void doubleClickReportsTwice()
    {
        Box box;
        box.resize(120, 30);
        QVERIFY(pointer::showAndWait(&box));
        QSignalSpy spy(&box, &SpinBoxEx::signal_valueChanged);
        const QPoint up = box.arrow(QStyle::SC_SpinBoxUp).center();
        QTest::mouseClick(&box, Qt::LeftButton, Qt::NoModifier, up);
        QTest::mouseDClick(&box, Qt::LeftButton, Qt::NoModifier, up);
        QTest::mouseRelease(&box, Qt::LeftButton, Qt::NoModifier, up);
        QCOMPARE(box.value(), 2);
        QCOMPARE(directions(spy), (QList<int>{1, 1}));
    }

    void releaseWithoutPressReportsNothing()
    {
        Box box;
        box.resize(120, 30);
        QVERIFY(pointer::showAndWait(&box));
        QSignalSpy spy(&box, &SpinBoxEx::signal_valueChanged);
        const QPoint up = box.arrow(QStyle::SC_SpinBoxUp).center();
        takeDebugMessages();
        QTest::mouseRelease(&box, Qt::LeftButton, Qt::NoModifier, up);
        QCOMPARE(spy.count(), 0);
        QCOMPARE(takeDebugMessages(), QStringList());
        QTest::mousePress(&box, Qt::LeftButton, Qt::NoModifier, up);
        QCOMPARE(spy.count(), 0);
        QTest::mouseRelease(&box, Qt::LeftButton, Qt::NoModifier, up);
        QTest::mouseRelease(&box, Qt::LeftButton, Qt::NoModifier, up);
        QCOMPARE(directions(spy), QList<int>{1});
    }

    void releaseEndsTheStepping()
    {
        // The base class repeats the step by timers of its own, while the button is down.
        Box box;
        box.resize(120, 30);
        QVERIFY(pointer::showAndWait(&box));
        const auto timers = [&box] {
            return QAbstractEventDispatcher::instance()->registeredTimers(&box).count();
        };
        const int idle = timers();
        const QPoint up = box.arrow(QStyle::SC_SpinBoxUp).center();
        QTest::mousePress(&box, Qt::LeftButton, Qt::NoModifier, up);
        QVERIFY(timers() > idle);
        QTest::mouseRelease(&box, Qt::LeftButton, Qt::NoModifier, up);
        QCOMPARE(timers(), idle);
    }

    void valueMayBeSetInTheSignal()
    {
        Box box;
        box.resize(120, 30);
        box.setValue(40);
        QVERIFY(pointer::showAndWait(&box));
        QList<int> seen;
        connect(&box, &SpinBoxEx::signal_valueChanged, &box, [&](int direction) {
            seen << box.value() << direction;
            box.setValue(10);
        });
        box.click(QStyle::SC_SpinBoxUp);
        box.click(QStyle::SC_SpinBoxDown);
        QCOMPARE(seen, (QList<int>{41, 1, 9, -1}));
        QCOMPARE(box.value(), 10);
    }

    void wheelChangesTheValueWithoutAReport()
    {
        Box box;
        box.resize(120, 30);
        box.setValue(5);
        QVERIFY(pointer::showAndWait(&box));
        QSignalSpy spy(&box, &SpinBoxEx::signal_valueChanged);
        pointer::turnWheel(&box, 1);
        QCOMPARE(box.value(), 6);
        pointer::turnWheel(&box, -2);
        QCOMPARE(box.value(), 4);
        QCOMPARE(spy.count(), 0);
    }

    void losesTheFocusAsUsualByDefault()
    {
        QWidget window;
        auto *box = new SpinBoxEx(&window);
        auto *other = new QLineEdit(&window);
        other->move(0, 50);
        QVERIFY(pointer::showAndWait(&window));
        window.activateWindow();
        box->setFocus();
        QTRY_VERIFY(box->hasFocus());
        const Qt::FocusPolicy policy = box->focusPolicy();
        QSignalSpy finished(box, &QSpinBox::editingFinished);
        other->setFocus();
        QVERIFY(other->hasFocus());
        QCOMPARE(finished.count(), 1);
        QCOMPARE(box->focusPolicy(), policy);
        QTest::keyClick(other, Qt::Key_Backtab, Qt::ShiftModifier);
        QVERIFY(box->hasFocus());
    }

    void givesUpTheFocusForGoodWhenTold()
    {
        QWidget window;
        auto *box = new SpinBoxEx(&window);
        auto *other = new QLineEdit(&window);
        other->move(0, 50);
        QVERIFY(pointer::showAndWait(&window));
        window.activateWindow();
        box->setFocusOutEvent(false);
        box->setFocus();
        QTRY_VERIFY(box->hasFocus());
        QVERIFY(box->focusPolicy() != Qt::NoFocus);
        QSignalSpy finished(box, &QSpinBox::editingFinished);
        other->setFocus();
        QVERIFY(other->hasFocus());
        QCOMPARE(box->focusPolicy(), Qt::NoFocus);
        QCOMPARE(finished.count(), 0);
        QTest::mouseClick(window.windowHandle(), Qt::LeftButton, Qt::NoModifier,
                          box->mapTo(&window, QPoint(5, box->height() / 2)));
        QVERIFY(other->hasFocus());
        QTest::keyClick(other, Qt::Key_Backtab, Qt::ShiftModifier);
        QVERIFY(!box->hasFocus());
    }

    void everyImageOfTheSheetResolves()
    {
        QStringList paths = imagePaths(SpinBoxEx().styleSheet());
        for (const QString &path : qAsConst(paths))
            QCOMPARE(QImage(path).size(), QSize(23, 10));
        QCOMPARE(paths.count(), 8);
        QCOMPARE(paths.removeDuplicates(), 0);
    }

    void colorIsSeenWhenSetBeforeAndAfterTheFirstShow()
    {
        SpinBoxEx box;
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
        SpinBoxEx box;
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
        QCOMPARE(pointer::colorAt(&box, inText), QColor(153, 153, 153));
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
        SpinBoxEx box;
        QCOMPARE(box.fromColorToStr(QColor(255, 0, 0)), QString("#ff0000"));
        QCOMPARE(box.fromColorToStr(QColor(255, 0, 0, 128)), QString("#80ff0000"));
        QCOMPARE(box.fromColorToStr(QColor()), QString("#000000"));
    }

    void addsOneSignalToTheMetaObject()
    {
        const QMetaObject &meta = SpinBoxEx::staticMetaObject;
        QCOMPARE(meta.methodCount() - meta.methodOffset(), 1);
        const QMetaMethod signal = meta.method(meta.methodOffset());
        QCOMPARE(signal.methodSignature(), QByteArray("signal_valueChanged(int)"));
        QCOMPARE(signal.methodType(), QMetaMethod::Signal);
        QCOMPARE(QByteArray(meta.superClass()->className()), QByteArray("QSpinBox"));
    }

    void diesWithItsParentAndBeforeIt()
    {
        auto *parent = new QWidget;
        QPointer<SpinBoxEx> first(new SpinBoxEx(parent));
        QPointer<SpinBoxEx> second(new SpinBoxEx(parent));
        QVERIFY(pointer::showAndWait(parent));
        delete first;
        QVERIFY(second);
        delete parent;
        QVERIFY(second.isNull());
    }

    void canBeDeletedInItsOwnSignal()
    {
        auto *box = new Box;
        box->resize(120, 30);
        QPointer<Box> guard(box);
        QVERIFY(pointer::showAndWait(box));
        connect(box, &SpinBoxEx::signal_valueChanged, box, [box] { delete box; });
        QTest::mouseClick(box, Qt::LeftButton, Qt::NoModifier,
                          box->arrow(QStyle::SC_SpinBoxUp).center());
        QVERIFY(guard.isNull());
    }
};

ORVANE_TEST_MAIN(TestSpinBoxEx)
#include "tst_spinboxex.moc"
