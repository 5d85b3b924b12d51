#include "support/pointer.h"
#include "support/testcase.h"
#include "support/windowmouse.h"

#include <sliderexmouse.h>

#include <limits>

namespace
{

constexpr int leastInt = std::numeric_limits<int>::min();
constexpr int greatestInt = std::numeric_limits<int>::max();

// Releases a button at any position, also between and outside the pixels of the slider.
void releaseAt(QWidget *slider, const QPointF &position, Qt::MouseButton button = Qt::LeftButton)
{
    QMouseEvent event(QEvent::MouseButtonRelease, position, button, Qt::NoButton, Qt::NoModifier);
    QCoreApplication::sendEvent(slider, &event);
}

// A slider that tells where its handle is and what it repeats.
class Slider : public SliderExMouse
{
public:
    using SliderExMouse::repeatAction;
    using SliderExMouse::SliderExMouse;

    QRect handle() const
    {
        QStyleOptionSlider option;
        initStyleOption(&option);
        return style()->subControlRect(QStyle::CC_Slider, &option, QStyle::SC_SliderHandle, this);
    }
};

/// A slider that tells where its handle is painted.
class HandleSlider : public SliderExMouse
{
public:
    using SliderExMouse::SliderExMouse;
    QRect handle() const
    {
        QStyleOptionSlider option;
        initStyleOption(&option);
        return style()->subControlRect(QStyle::CC_Slider, &option, QStyle::SC_SliderHandle, this);
    }
};

} // namespace

Q_DECLARE_METATYPE(Qt::MouseButton)

class TestSliderExMouse : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void hasTheLookOfItsBaseAndNoSteps_data()
    {
        QTest::addColumn<Qt::Orientation>("orientation");
        QTest::newRow("horizontal") << Qt::Horizontal;
        QTest::newRow("vertical") << Qt::Vertical;
    }

    void hasTheLookOfItsBaseAndNoSteps()
    {
        QFETCH(Qt::Orientation, orientation);
        SliderExMouse slider(nullptr, orientation);
        const SliderEx base(nullptr, orientation);
        QCOMPARE(slider.orientation(), orientation);
        QCOMPARE(slider.styleSheet(), base.styleSheet());
        QCOMPARE(slider.handleWidth(), base.handleWidth());
        QCOMPARE(slider.handleHeight(), base.handleHeight());
        QCOMPARE(slider.pageStep(), 0);
        QCOMPARE(slider.singleStep(), 0);
    }

    void releaseSetsTheValueOfThePoint_data()
    {
        QTest::addColumn<int>("width");
        QTest::addColumn<int>("minimum");
        QTest::addColumn<int>("maximum");
        QTest::addColumn<int>("start");
        QTest::addColumn<double>("x");
        QTest::addColumn<int>("value");
        QTest::addColumn<int>("reports");
        QTest::newRow("quarter") << 200 << 0 << 100 << 0 << 50.0 << 25 << 1;
        QTest::newRow("left end") << 200 << 0 << 100 << 7 << 0.0 << 0 << 1;
        QTest::newRow("last pixel") << 200 << 0 << 100 << 0 << 199.0 << 99 << 1;
        QTest::newRow("behind the last pixel") << 200 << 0 << 100 << 0 << 200.0 << 100 << 1;
        QTest::newRow("value in force") << 200 << 0 << 100 << 25 << 50.0 << 25 << 0;
        QTest::newRow("truncated") << 200 << 0 << 100 << 0 << 51.0 << 25 << 1;
        QTest::newRow("truncated to the value in force")
            << 200 << 0 << 100 << 25 << 51.0 << 25 << 0;
        QTest::newRow("x / w in double precision") << 100 << 0 << 100 << 0 << 29.0 << 28 << 1;
        QTest::newRow("half a pixel is rounded up") << 200 << 0 << 200 << 0 << 49.5 << 50 << 1;
        QTest::newRow("less is rounded down") << 200 << 0 << 200 << 0 << 49.4 << 49 << 1;
        QTest::newRow("half a pixel left of it") << 200 << 0 << 200 << 9 << -0.5 << 0 << 1;
        QTest::newRow("half a pixel left, at 0") << 200 << 0 << 200 << 0 << -0.5 << 0 << 0;
        QTest::newRow("range below zero") << 200 << -10 << 10 << 0 << 75.0 << -2 << 1;
        QTest::newRow("truncated toward zero") << 200 << -3 << 0 << -3 << 50.0 << -2 << 1;
        QTest::newRow("shifted range") << 200 << 50 << 60 << 50 << 100.0 << 55 << 1;
        QTest::newRow("empty range") << 200 << 5 << 5 << 5 << 120.0 << 5 << 0;
        // Outside the slider the point's value is not the slider's, which Qt bounds.
        QTest::newRow("left of the slider") << 200 << 0 << 100 << 9 << -40.0 << 0 << 1;
        QTest::newRow("right of the slider") << 200 << 0 << 100 << 9 << 500.0 << 100 << 1;
        QTest::newRow("right of it, at the end") << 200 << 0 << 100 << 100 << 500.0 << 100 << 1;
        QTest::newRow("full range, left")
            << 200 << leastInt << greatestInt << 0 << 0.0 << leastInt << 1;
        QTest::newRow("full range, middle")
            << 200 << leastInt << greatestInt << 9 << 100.0 << 0 << 1;
        QTest::newRow("full range, right")
            << 200 << leastInt << greatestInt << 0 << 200.0 << greatestInt << 1;
        QTest::newRow("full range, far left")
            << 200 << leastInt << greatestInt << 0 << -1e300 << leastInt << 1;
        QTest::newRow("full range, far right")
            << 200 << leastInt << greatestInt << 0 << 1e300 << greatestInt << 1;
        QTest::newRow("one pixel wide") << 1 << 0 << 100 << 0 << 1.0 << 100 << 1;
        QTest::newRow("no width") << 0 << 0 << 100 << 30 << 0.0 << 30 << 0;
        QTest::newRow("no width, right of it") << 0 << 0 << 100 << 30 << 10.0 << 30 << 0;
    }

    void releaseSetsTheValueOfThePoint()
    {
        QFETCH(int, width);
        QFETCH(int, minimum);
        QFETCH(int, maximum);
        QFETCH(int, start);
        QFETCH(double, x);
        QFETCH(int, value);
        QFETCH(int, reports);
        for (Qt::Orientation orientation : {Qt::Horizontal, Qt::Vertical}) {
            SliderExMouse slider(nullptr, orientation);
            slider.resize(width, 30);
            QCOMPARE(slider.width(), width);
            slider.setRange(minimum, maximum);
            slider.setValue(start);
            QSignalSpy spy(&slider, &SliderExMouse::sliderMouseRealse);
            QSignalSpy changed(&slider, &QSlider::valueChanged);
            releaseAt(&slider, QPointF(x, 3));
            QCOMPARE(slider.value(), value);
            QCOMPARE(slider.sliderPosition(), value);
            QCOMPARE(spy.count(), reports);
            QCOMPARE(changed.count(), value == start ? 0 : 1);
        }
    }

    void clicksThroughTheWindowJump()
    {
        SliderExMouse slider(nullptr, Qt::Horizontal);
        slider.resize(200, 30);
        slider.setRange(0, 100);
        QVERIFY(pointer::showAndWait(&slider));
        QSignalSpy spy(&slider, &SliderExMouse::sliderMouseRealse);
        const auto click = [&](Qt::MouseButton button, const QPoint &position) {
            QTest::mouseClick(slider.windowHandle(), button, Qt::NoModifier, position);
        };
        click(Qt::LeftButton, QPoint(50, 15));
        QCOMPARE(slider.value(), 25);
        QCOMPARE(spy.count(), 1);
        click(Qt::LeftButton, QPoint(50, 15));
        QCOMPARE(slider.value(), 25);
        QCOMPARE(spy.count(), 1);
        click(Qt::RightButton, QPoint(150, 15));
        QCOMPARE(slider.value(), 25);
        QCOMPARE(spy.count(), 1);
        click(Qt::LeftButton, QPoint(150, 15));
        QCOMPARE(slider.value(), 75);
        QCOMPARE(spy.count(), 2);
    }

    void otherButtonsDoNothing_data()
    {
        QTest::addColumn<Qt::MouseButton>("button");
        QTest::newRow("right") << Qt::RightButton;
        QTest::newRow("middle") << Qt::MiddleButton;
        QTest::newRow("back") << Qt::BackButton;
    }

    void otherButtonsDoNothing()
    {
        QFETCH(Qt::MouseButton, button);
        SliderExMouse slider(nullptr, Qt::Horizontal);
        slider.resize(200, 30);
        slider.setValue(10);
        QSignalSpy spy(&slider, &SliderExMouse::sliderMouseRealse);
        QSignalSpy changed(&slider, &QSlider::valueChanged);
        releaseAt(&slider, QPointF(150, 15), button);
        QCOMPARE(slider.value(), 10);
        QCOMPARE(spy.count(), 0);
        QCOMPARE(changed.count(), 0);
    }

    void valueIsSetBeforeTheReport()
    {
        SliderExMouse slider(nullptr, Qt::Horizontal);
        slider.resize(200, 30);
        slider.setRange(0, 100);
        QList<int> seen;
        connect(&slider, &QSlider::valueChanged, &slider, [&](int value) { seen << value; });
        connect(&slider, &SliderExMouse::sliderMouseRealse, &slider,
                [&] { seen << 1000 + slider.value(); });
        releaseAt(&slider, QPointF(50, 3));
        QCOMPARE(seen, (QList<int>{25, 1025}));
    }

    void minimumAboveMaximumIsHarmless()
    {
        SliderExMouse slider(nullptr, Qt::Horizontal);
        slider.resize(200, 30);
        slider.setRange(80, 20);
        releaseAt(&slider, QPointF(150, 3));
        QCOMPARE(slider.value(), 80);
        QCOMPARE(slider.maximum(), 80);
    }

    void fullRangeGrowsFromPixelToPixel()
    {
        SliderExMouse slider(nullptr, Qt::Horizontal);
        slider.resize(200, 30);
        slider.setRange(leastInt, greatestInt);
        int previous = slider.minimum();
        for (int x = 1; x <= 200; ++x) {
            releaseAt(&slider, QPointF(x, 3));
            QVERIFY2(slider.value() > previous, qPrintable(QString::number(x)));
            previous = slider.value();
        }
        QCOMPARE(previous, greatestInt);
    }

    void handlerOfTheBaseIsNeverCalled()
    {
        Slider slider(nullptr, Qt::Horizontal);
        slider.resize(200, 30);
        slider.setRange(0, 100);
        QVERIFY(pointer::showAndWait(&slider));
        QSignalSpy ofBase(&slider, &SliderEx::sliderMouseRealse);
        QSignalSpy released(&slider, &QSlider::sliderReleased);
        QTest::mousePress(&slider, Qt::LeftButton, Qt::NoModifier, slider.handle().center());
        QVERIFY(slider.isSliderDown());
        QTest::mouseRelease(&slider, Qt::LeftButton, Qt::NoModifier, QPoint(150, 15));
        QCOMPARE(slider.value(), 75);
        QVERIFY(slider.isSliderDown());
        QCOMPARE(ofBase.count(), 0);
        QCOMPARE(released.count(), 0);
    }

    void draggedHandleIsReportedWhereItIsReleased()
    {
        Slider slider(nullptr, Qt::Horizontal);
        slider.resize(200, 30);
        slider.setRange(0, 100);
        QVERIFY(pointer::showAndWait(&slider));
        QSignalSpy spy(&slider, &SliderExMouse::sliderMouseRealse);
        QWindow *window = slider.windowHandle();
        QTest::mousePress(window, Qt::LeftButton, Qt::NoModifier, slider.handle().center());
        QTest::mouseMove(window, QPoint(60, 15));
        QVERIFY(slider.value() > 0);
        QTest::mouseRelease(window, Qt::LeftButton, Qt::NoModifier, QPoint(20, 15));
        QCOMPARE(slider.value(), 10);
        QCOMPARE(spy.count(), 1);
    }

    void handleStaysBehindWhenItsButtonIsUp()
    {
        Slider slider(nullptr, Qt::Horizontal);
        slider.resize(200, 30);
        slider.setRange(0, 100);
        QVERIFY(pointer::showAndWait(&slider));
        QWindow *window = slider.windowHandle();
        QTest::mousePress(window, Qt::LeftButton, Qt::NoModifier, slider.handle().center());
        QTest::mouseMove(window, QPoint(80, 15));
        QTRY_VERIFY(slider.value() > 30);
        QTest::mouseRelease(window, Qt::LeftButton, Qt::NoModifier, QPoint(80, 15));
        QCOMPARE(slider.value(), 40);
        pointer::moveTo(&slider, QPoint(160, 15));
        QCOMPARE(slider.value(), 40);
    }

    void repeatOfThePressEndsWithTheRelease_data()
    {
        QTest::addColumn<QPoint>("position");
        QTest::newRow("at another point") << QPoint(50, 15);
        QTest::newRow("at the value in force") << QPoint(100, 15);
    }

    void repeatOfThePressEndsWithTheRelease()
    {
        QFETCH(QPoint, position);
        Slider slider(nullptr, Qt::Horizontal);
        slider.resize(200, 30);
        slider.setRange(0, 100);
        slider.setValue(50);
        QVERIFY(pointer::showAndWait(&slider));
        QTest::mousePress(&slider, Qt::LeftButton, Qt::NoModifier, QPoint(180, 15));
        QCOMPARE(slider.repeatAction(), QAbstractSlider::SliderPageStepAdd);
        QCOMPARE(slider.value(), 50);
        QTest::mouseRelease(&slider, Qt::LeftButton, Qt::NoModifier, position);
        QCOMPARE(slider.repeatAction(), QAbstractSlider::SliderNoAction);
    }

    void keysAndWheelDoNotStep()
    {
        SliderExMouse slider(nullptr, Qt::Horizontal);
        slider.resize(200, 30);
        slider.setRange(0, 100);
        slider.setWheelEventEffective(true);
        slider.setValue(50);
        QVERIFY(pointer::showAndWait(&slider));
        for (Qt::Key key : {Qt::Key_Right, Qt::Key_Left, Qt::Key_PageUp, Qt::Key_PageDown})
            QTest::keyClick(&slider, key);
        pointer::turnWheel(&slider, 1);
        QCOMPARE(slider.value(), 50);
        QTest::keyClick(&slider, Qt::Key_End);
        QCOMPARE(slider.value(), 100);
    }

    void everyWayToConnectReachesTheSignalOfTheClass()
    {
        // A Qt built for debugging remarks on the signal of the same name in the base class.
        const bool remarked = QLibraryInfo::isDebugBuild();
        SliderExMouse slider(nullptr, Qt::Horizontal);
        slider.resize(200, 30);
        SliderEx *asBase = &slider;
        QSignalSpy byPointer(&slider, &SliderExMouse::sliderMouseRealse);
        if (remarked)
            expectWarning("sliderMouseRealse()");
        QSignalSpy byText(&slider, SIGNAL(sliderMouseRealse()));
        if (remarked)
            expectWarning("sliderMouseRealse()");
        QSignalSpy byTextOnBase(asBase, SIGNAL(sliderMouseRealse()));
        QSignalSpy ofBase(asBase, &SliderEx::sliderMouseRealse);
        QObject receiver;
        int deliveries = 0;
        connect(&slider, &SliderExMouse::sliderMouseRealse, &receiver, [&] { ++deliveries; });
        if (remarked)
            expectWarning("sliderMouseRealse()");
        QVERIFY(connect(&slider, SIGNAL(sliderMouseRealse()), &slider, SLOT(hide())));
        slider.show();
        releaseAt(&slider, QPointF(50, 3));
        QCOMPARE(byPointer.count(), 1);
        QCOMPARE(byText.count(), 1);
        QCOMPARE(byTextOnBase.count(), 1);
        QCOMPARE(deliveries, 1);
        QVERIFY(!slider.isVisible());
        QCOMPARE(ofBase.count(), 0);
    }

    void addsOneSignalToTheMetaObject()
    {
        const QMetaObject &meta = SliderExMouse::staticMetaObject;
        QCOMPARE(meta.methodCount() - meta.methodOffset(), 1);
        const QMetaMethod signal = meta.method(meta.methodOffset());
        QCOMPARE(signal.methodSignature(), QByteArray("sliderMouseRealse()"));
        QCOMPARE(signal.methodType(), QMetaMethod::Signal);
        QCOMPARE(QByteArray(meta.superClass()->className()), QByteArray("SliderEx"));
    }

    void diesWithItsParentAndBeforeIt()
    {
        auto *parent = new QWidget;
        QPointer<SliderExMouse> first(new SliderExMouse(parent, Qt::Horizontal));
        QPointer<SliderExMouse> second(new SliderExMouse(parent, Qt::Vertical));
        QVERIFY(pointer::showAndWait(parent));
        delete first;
        QVERIFY(second);
        delete parent;
        QVERIFY(second.isNull());
    }

    void canBeDeletedInItsOwnSignals()
    {
        auto *slider = new SliderExMouse(nullptr, Qt::Horizontal);
        slider->resize(200, 30);
        QPointer<SliderExMouse> guard(slider);
        connect(slider, &SliderExMouse::sliderMouseRealse, slider, [slider] { delete slider; });
        releaseAt(slider, QPointF(50, 3));
        QVERIFY(guard.isNull());

        slider = new SliderExMouse(nullptr, Qt::Horizontal);
        slider->resize(200, 30);
        guard = slider;
        connect(slider, &QSlider::valueChanged, slider, [slider] { delete slider; });
        releaseAt(slider, QPointF(50, 3));
        QVERIFY(guard.isNull());
    }

    void jumpsToThePointerInEveryDirection_data()
    {
        QTest::addColumn<bool>("isMirrored");
        QTest::addColumn<bool>("isInverted");
        QTest::addColumn<int>("value");
        QTest::newRow("left to right") << false << false << 25;
        QTest::newRow("right to left") << true << false << 75;
        QTest::newRow("right to left, turned round") << true << true << 25;
    }
    void jumpsToThePointerInEveryDirection()
    {
        QFETCH(bool, isMirrored);
        QFETCH(bool, isInverted);
        QFETCH(int, value);
        HandleSlider slider(nullptr, Qt::Horizontal);
        slider.setRange(0, 100);
        slider.resize(200, 24);
        slider.setLayoutDirection(isMirrored ? Qt::RightToLeft : Qt::LeftToRight);
        slider.setInvertedAppearance(isInverted);
        QVERIFY(pointer::showAndWait(&slider));
        windowmouse::click(&slider, Qt::LeftButton, QPoint(50, 12));
        QCOMPARE(slider.value(), value);
        // The handle, 10 pixels wide, is where the pointer is.
        const QRect handle = slider.handle();
        QVERIFY2(qAbs(handle.center().x() - 50) <= 6, qPrintable(QString::number(handle.x())));
    }

    void verticalSliderJumpsAsEverFromRightToLeft()
    {
        SliderExMouse slider(nullptr, Qt::Vertical);
        slider.setRange(0, 100);
        slider.resize(20, 200);
        slider.setLayoutDirection(Qt::RightToLeft);
        QVERIFY(pointer::showAndWait(&slider));
        windowmouse::click(&slider, Qt::LeftButton, QPoint(5, 100));
        QCOMPARE(slider.value(), 25);
    }
};

ORVANE_TEST_MAIN(TestSliderExMouse)
#include "tst_sliderexmouse.moc"
