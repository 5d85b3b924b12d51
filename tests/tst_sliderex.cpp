#include "support/pointer.h"
#include "support/testcase.h"

#include <sliderex.h>

namespace
{

// What a sheet is made of; the values are those of a new horizontal slider.
struct Look {
    QString addPage = "#636363";
    QString subPage = "#999999";
    QString handle = "#808080";
    QString handleHover = "#b6b6b6";
    QString groove = "4";
    QString handleWidth = "10";
    QString handleHeight = "14";
};

// The sheets, written out by hand.
QString horizontalSheet(const Look &look = {})
{
    return "QSlider::add-page:Horizontal{background-color:" + look.addPage
        + ";}QSlider::sub-page:Horizontal{background-color:" + look.subPage
        + ";}QSlider::groove:Horizontal{border:1px ;height:" + look.groove
        + "px;}QSlider::handle:Horizontal{border:1px;background:" + look.handle
        + ";width:" + look.handleWidth + "px;height:" + look.handleHeight
        + "px;margin:-5 -1px;}QSlider::handle:Horizontal:hover{border:1px;background:"
        + look.handleHover + ";width:" + look.handleWidth + "px;height:" + look.handleHeight
        + "px;margin:-5 -1px;}";
}

QString verticalSheet(Look look = {})
{
    // The default handle of a vertical slider lies across.
    const Look horizontal;
    if (look.handleWidth == horizontal.handleWidth)
        look.handleWidth = "14";
    if (look.handleHeight == horizontal.handleHeight)
        look.handleHeight = "10";
    return "QSlider::add-page:vertical{background-color:" + look.addPage
        + ";}QSlider::sub-page:vertical{background-color:" + look.subPage
        + ";}QSlider::groove:vertical{border:1px ;width:" + look.groove
        + "px;}QSlider::handle:vertical{border:1px;background:" + look.handle
        + ";width:" + look.handleWidth + "px;height:" + look.handleHeight
        + "px;margin:0 -1px;}QSlider::handle:vertical:hover{border:1px;background:"
        + look.handleHover + ";width:" + look.handleWidth + "px;height:" + look.handleHeight
        + "px;margin:0 -1px;}";
}

// A slider that tells where its handle is.
class Slider : public SliderEx
{
public:
    using SliderEx::SliderEx;

    QRect handle() const
    {
        QStyleOptionSlider option;
        initStyleOption(&option);
        return style()->subControlRect(QStyle::CC_Slider, &option, QStyle::SC_SliderHandle, this);
    }
};

} // namespace

Q_DECLARE_METATYPE(std::function<void(SliderEx &)>)
Q_DECLARE_METATYPE(Qt::MouseButton)

class TestSliderEx : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void colorIsSeenWhenSetBeforeAndAfterTheFirstShow()
    {
        SliderEx slider(nullptr, Qt::Horizontal);
        slider.resize(200, 30);
        slider.setAddPageColor(QColor(255, 0, 0));
        slider.setAddPageColor(QColor(0, 255, 0));
        QVERIFY(pointer::showAndWait(&slider));
        QCOMPARE(pointer::colorAt(&slider, QPoint(150, 15)), QColor(0, 255, 0));
        slider.setAddPageColor(QColor(0, 0, 255));
        QCOMPARE(pointer::colorAt(&slider, QPoint(150, 15)), QColor(0, 0, 255));
    }

    void hasDefaults_data()
    {
        QTest::addColumn<Qt::Orientation>("orientation");
        QTest::addColumn<int>("handleWidth");
        QTest::addColumn<int>("handleHeight");
        QTest::addColumn<QString>("sheet");
        QTest::newRow("horizontal") << Qt::Horizontal << 10 << 14 << horizontalSheet();
        QTest::newRow("vertical") << Qt::Vertical << 14 << 10 << verticalSheet();
    }

    void hasDefaults()
    {
        QFETCH(Qt::Orientation, orientation);
        QFETCH(int, handleWidth);
        QFETCH(int, handleHeight);
        QFETCH(QString, sheet);
        SliderEx slider(nullptr, orientation);
        QCOMPARE(slider.orientation(), orientation);
        QCOMPARE(slider.addPageColor(), QColor(99, 99, 99));
        QCOMPARE(slider.subPageColor(), QColor(153, 153, 153));
        QCOMPARE(slider.handleColor(), QColor(128, 128, 128));
        QCOMPARE(slider.handleHoverColor(), QColor(182, 182, 182));
        QCOMPARE(slider.grooveWidth(), 4);
        QCOMPARE(slider.grooveHeight(), 4);
        QCOMPARE(slider.handleWidth(), handleWidth);
        QCOMPARE(slider.handleHeight(), handleHeight);
        QCOMPARE(slider.pageStep(), 10);
        QCOMPARE(slider.singleStep(), 1);
        QCOMPARE(slider.styleSheet(), sheet);
    }

    void defaultSheetBeginsWithThePages()
    {
        SliderEx slider(nullptr, Qt::Horizontal);
        QVERIFY(
            slider.styleSheet().startsWith("QSlider::add-page:Horizontal{background-color:#636363;}"
                                           "QSlider::sub-page:Horizontal{background-color:#999999;}"
                                           "QSlider::groove:Horizontal{border:1px ;height:4px;}"));
    }

    void settersRecompose_data()
    {
        QTest::addColumn<std::function<void(SliderEx &)>>("set");
        QTest::addColumn<QString>("horizontal");
        QTest::addColumn<QString>("vertical");
        using Set = std::function<void(SliderEx &)>;
        const auto row = [](const char *name, const Set &set,
                            const std::function<void(Look &)> &change) {
            Look look;
            change(look);
            QTest::newRow(name) << set << horizontalSheet(look) << verticalSheet(look);
        };
        row(
            "add page", [](SliderEx &s) { s.setAddPageColor(Qt::red); },
            [](Look &l) { l.addPage = "#ff0000"; });
        row(
            "sub page", [](SliderEx &s) { s.setSubPageColor(QColor(255, 0, 0, 128)); },
            [](Look &l) { l.subPage = "#80ff0000"; });
        row(
            "handle", [](SliderEx &s) { s.setHandleColor(QColor()); },
            [](Look &l) { l.handle = "#000000"; });
        row(
            "handle hover", [](SliderEx &s) { s.setHandleHoverColor(Qt::blue); },
            [](Look &l) { l.handleHover = "#0000ff"; });
        row(
            "handle width", [](SliderEx &s) { s.setHandleWidth(33); },
            [](Look &l) { l.handleWidth = "33"; });
        row(
            "negative handle height", [](SliderEx &s) { s.setHandleHeight(-5); },
            [](Look &l) { l.handleHeight = "-5"; });
        row(
            "wheel is only stored", [](SliderEx &s) { s.setWheelEventEffective(true); },
            [](Look &) {});
        row(
            "initSliderStyle goes back to the defaults",
            [](SliderEx &s) {
                s.setAddPageColor(Qt::red);
                s.setSubPageColor(Qt::red);
                s.setHandleColor(Qt::red);
                s.setHandleHoverColor(Qt::red);
                s.setGrooveWidth(50);
                s.setGrooveHeight(50);
                s.setHandleWidth(50);
                s.setHandleHeight(50);
                s.initSliderStyle();
            },
            [](Look &) {});
        Look groove;
        groove.groove = "9";
        QTest::newRow("groove width") << Set([](SliderEx &s) { s.setGrooveWidth(9); })
                                      << horizontalSheet() << verticalSheet(groove);
        QTest::newRow("groove height") << Set([](SliderEx &s) { s.setGrooveHeight(9); })
                                       << horizontalSheet(groove) << verticalSheet();
    }

    void settersRecompose()
    {
        QFETCH(std::function<void(SliderEx &)>, set);
        QFETCH(QString, horizontal);
        QFETCH(QString, vertical);
        SliderEx across(nullptr, Qt::Horizontal);
        set(across);
        QCOMPARE(across.styleSheet(), horizontal);
        SliderEx upright(nullptr, Qt::Vertical);
        set(upright);
        QCOMPARE(upright.styleSheet(), vertical);
    }

    void gettersReturnWhatWasSet()
    {
        SliderEx slider(nullptr, Qt::Horizontal);
        slider.setAddPageColor(QColor(1, 2, 3));
        slider.setSubPageColor(QColor(4, 5, 6));
        slider.setHandleColor(QColor(7, 8, 9, 10));
        slider.setHandleHoverColor(QColor(11, 12, 13));
        slider.setGrooveWidth(14);
        slider.setGrooveHeight(15);
        slider.setHandleWidth(16);
        slider.setHandleHeight(17);
        QCOMPARE(slider.addPageColor(), QColor(1, 2, 3));
        QCOMPARE(slider.subPageColor(), QColor(4, 5, 6));
        QCOMPARE(slider.handleColor(), QColor(7, 8, 9, 10));
        QCOMPARE(slider.handleHoverColor(), QColor(11, 12, 13));
        QCOMPARE(slider.grooveWidth(), 14);
        QCOMPARE(slider.grooveHeight(), 15);
        QCOMPARE(slider.handleWidth(), 16);
        QCOMPARE(slider.handleHeight(), 17);
    }

    void lookKeepsTheFirstOrientation()
    {
        SliderEx slider(nullptr, Qt::Horizontal);
        slider.setOrientation(Qt::Vertical);
        QCOMPARE(slider.styleSheet(), horizontalSheet());
        slider.setHandleWidth(12);
        Look look;
        look.handleWidth = "12";
        QCOMPARE(slider.styleSheet(), horizontalSheet(look));
        slider.initSliderStyle();
        QCOMPARE(slider.styleSheet(), horizontalSheet());
        QCOMPARE(slider.orientation(), Qt::Vertical);
    }

    void wheelDoesNothingUntilItIsLetThrough_data()
    {
        QTest::addColumn<Qt::Orientation>("orientation");
        QTest::newRow("horizontal") << Qt::Horizontal;
        QTest::newRow("vertical") << Qt::Vertical;
    }

    void wheelDoesNothingUntilItIsLetThrough()
    {
        QFETCH(Qt::Orientation, orientation);
        SliderEx slider(nullptr, orientation);
        slider.resize(100, 100);
        slider.setValue(50);
        QVERIFY(pointer::showAndWait(&slider));
        pointer::turnWheel(&slider, 1);
        pointer::turnWheel(&slider, -2);
        QCOMPARE(slider.value(), 50);
        slider.setWheelEventEffective(true);
        pointer::turnWheel(&slider, 1);
        QVERIFY(slider.value() > 50);
        const int turned = slider.value();
        slider.setWheelEventEffective(false);
        pointer::turnWheel(&slider, -1);
        QCOMPARE(slider.value(), turned);
        slider.setWheelEventEffective(true);
        slider.initSliderStyle();
        pointer::turnWheel(&slider, -1);
        QCOMPARE(slider.value(), turned);
    }

    void filterSwallowsTheWheelOfAnyWatchedObject()
    {
        SliderEx slider(nullptr, Qt::Horizontal);
        QWidget other;
        QWheelEvent wheel(QPointF(1, 1), QPointF(1, 1), QPoint(), QPoint(0, 120), Qt::NoButton,
                          Qt::NoModifier, Qt::NoScrollPhase, false);
        QEvent enter(QEvent::Enter);
        QVERIFY(slider.eventFilter(&slider, &wheel));
        QVERIFY(slider.eventFilter(&other, &wheel));
        QVERIFY(!slider.eventFilter(&slider, &enter));
        QVERIFY(!slider.eventFilter(&other, &enter));
        slider.setWheelEventEffective(true);
        QVERIFY(!slider.eventFilter(&slider, &wheel));
        QVERIFY(!slider.eventFilter(&other, &wheel));
        QVERIFY(!slider.eventFilter(&slider, &enter));
    }

    void keysMoveTheSlider()
    {
        SliderEx slider(nullptr, Qt::Horizontal);
        slider.setValue(50);
        QVERIFY(pointer::showAndWait(&slider));
        QTest::keyClick(&slider, Qt::Key_Right);
        QCOMPARE(slider.value(), 51);
        QTest::keyClick(&slider, Qt::Key_PageUp);
        QCOMPARE(slider.value(), 61);
        QTest::keyClick(&slider, Qt::Key_Home);
        QCOMPARE(slider.value(), 0);
    }

    void everyReleaseIsReported_data()
    {
        QTest::addColumn<Qt::MouseButton>("button");
        QTest::newRow("left") << Qt::LeftButton;
        QTest::newRow("right") << Qt::RightButton;
        QTest::newRow("middle") << Qt::MiddleButton;
    }

    void everyReleaseIsReported()
    {
        QFETCH(Qt::MouseButton, button);
        SliderEx slider(nullptr, Qt::Horizontal);
        slider.resize(200, 30);
        QVERIFY(pointer::showAndWait(&slider));
        QSignalSpy spy(&slider, &SliderEx::sliderMouseRealse);
        QSignalSpy byText(&slider, SIGNAL(sliderMouseRealse()));
        const QPoint position(120, 15);
        QTest::mousePress(slider.windowHandle(), button, Qt::NoModifier, position);
        QCOMPARE(spy.count(), 0);
        QTest::mouseRelease(slider.windowHandle(), button, Qt::NoModifier, position);
        QCOMPARE(spy.count(), 1);
        QCOMPARE(byText.count(), 1);
    }

    void releaseIsReportedBeforeTheSliderActsOnIt()
    {
        Slider slider(nullptr, Qt::Horizontal);
        slider.resize(200, 30);
        slider.setValue(50);
        QVERIFY(pointer::showAndWait(&slider));
        QStringList order;
        connect(&slider, &SliderEx::sliderMouseRealse, &slider,
                [&] { order << (slider.isSliderDown() ? "reported while down" : "reported"); });
        connect(&slider, &QSlider::sliderReleased, &slider, [&] { order << "released"; });
        const QPoint start = slider.handle().center();
        QTest::mousePress(&slider, Qt::LeftButton, Qt::NoModifier, start);
        QVERIFY(slider.isSliderDown());
        QTest::mouseRelease(&slider, Qt::LeftButton, Qt::NoModifier, start);
        QVERIFY(!slider.isSliderDown());
        QCOMPARE(order, (QStringList{"reported while down", "released"}));
    }

    void clickOnTheGrooveStepsByAPage()
    {
        SliderEx slider(nullptr, Qt::Horizontal);
        slider.resize(200, 30);
        QVERIFY(pointer::showAndWait(&slider));
        QTest::mouseClick(&slider, Qt::LeftButton, Qt::NoModifier, QPoint(180, 15));
        QCOMPARE(slider.value(), 10);
    }

    void colorsAreSeen_data()
    {
        QTest::addColumn<Qt::Orientation>("orientation");
        QTest::addColumn<QSize>("size");
        QTest::addColumn<QPoint>("subPage");
        QTest::addColumn<QPoint>("addPage");
        QTest::newRow("horizontal")
            << Qt::Horizontal << QSize(200, 30) << QPoint(20, 15) << QPoint(180, 15);
        QTest::newRow("vertical") << Qt::Vertical << QSize(30, 200) << QPoint(15, 20)
                                  << QPoint(15, 180);
    }

    void colorsAreSeen()
    {
        QFETCH(Qt::Orientation, orientation);
        QFETCH(QSize, size);
        QFETCH(QPoint, subPage);
        QFETCH(QPoint, addPage);
        QWidget window;
        window.resize(250, 250);
        auto *slider = new Slider(&window, orientation);
        slider->resize(size);
        slider->setValue(50);
        QVERIFY(pointer::showAndWait(&window));
        pointer::moveAway(&window);
        QTRY_VERIFY(!slider->underMouse());
        QCOMPARE(pointer::colorAt(slider, subPage), QColor(153, 153, 153));
        QCOMPARE(pointer::colorAt(slider, addPage), QColor(99, 99, 99));
        QCOMPARE(pointer::colorAt(slider, slider->handle().center()), QColor(128, 128, 128));
        QCursor::setPos(slider->mapToGlobal(slider->handle().center()));
        QTRY_VERIFY(slider->underMouse());
        QCOMPARE(pointer::colorAt(slider, slider->handle().center()), QColor(182, 182, 182));
        slider->setSubPageColor(QColor(1, 2, 3));
        slider->setAddPageColor(QColor(4, 5, 6));
        slider->setHandleHoverColor(QColor(7, 8, 9));
        QCOMPARE(pointer::colorAt(slider, subPage), QColor(1, 2, 3));
        QCOMPARE(pointer::colorAt(slider, addPage), QColor(4, 5, 6));
        QCOMPARE(pointer::colorAt(slider, slider->handle().center()), QColor(7, 8, 9));
    }

    void fromColorToStrWritesSheetColors()
    {
        SliderEx slider(nullptr, Qt::Horizontal);
        QCOMPARE(slider.fromColorToStr(QColor(255, 0, 0)), QString("#ff0000"));
        QCOMPARE(slider.fromColorToStr(QColor(255, 0, 0, 128)), QString("#80ff0000"));
        QCOMPARE(slider.fromColorToStr(QColor()), QString("#000000"));
    }

    void addsOneSignalToTheMetaObject()
    {
        const QMetaObject &meta = SliderEx::staticMetaObject;
        QCOMPARE(meta.methodCount() - meta.methodOffset(), 1);
        const QMetaMethod signal = meta.method(meta.methodOffset());
        QCOMPARE(signal.methodSignature(), QByteArray("sliderMouseRealse()"));
        QCOMPARE(signal.methodType(), QMetaMethod::Signal);
        QCOMPARE(QByteArray(meta.superClass()->className()), QByteArray("QSlider"));
    }

    void diesWithItsParentAndBeforeIt()
    {
        auto *parent = new QWidget;
        QPointer<SliderEx> first(new SliderEx(parent, Qt::Horizontal));
        QPointer<SliderEx> second(new SliderEx(parent, Qt::Vertical));
        QVERIFY(pointer::showAndWait(parent));
        delete first;
        QVERIFY(second);
        delete parent;
        QVERIFY(second.isNull());
    }

    void canBeDeletedInItsOwnSignal()
    {
        auto *slider = new SliderEx(nullptr, Qt::Horizontal);
        QPointer<SliderEx> guard(slider);
        QVERIFY(pointer::showAndWait(slider));
        connect(slider, &SliderEx::sliderMouseRealse, slider, [slider] { delete slider; });
        QTest::mouseClick(slider, Qt::LeftButton, Qt::NoModifier, slider->rect().center());
        QVERIFY(guard.isNull());
    }
};

ORVANE_TEST_MAIN(TestSliderEx)
#include "tst_sliderex.moc"
