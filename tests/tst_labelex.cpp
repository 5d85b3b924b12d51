#include "support/pointer.h"
#include "support/testcase.h"

#include <labelex.h>

namespace
{

const QString defaultSheet = "QLabel{color:#d2d2d2;font:SimSun Arial;}";

/// What the base class shows, elided or not.
QString shownText(const LabelEx &label)
{
    return label.QLabel::text();
}

/// A panel that keeps a list of the presses that its children let through.
class PressRecorder : public QWidget
{
public:
    QStringList log;

protected:
    void mousePressEvent(QMouseEvent *) override { log << "panel"; }
};

} // namespace

Q_DECLARE_METATYPE(Qt::MouseButton)

class TestLabelEx : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void hasDefaults()
    {
        LabelEx label(nullptr);
        QCOMPARE(label.styleSheet(), defaultSheet);
        QCOMPARE(label.text(), QString());
        QCOMPARE(shownText(label), QString());
        QCOMPARE(label.toolTip(), QString());
        QVERIFY(label.isWindow());
        QWidget parent;
        LabelEx child(&parent);
        QCOMPARE(child.parentWidget(), &parent);
        QCOMPARE(child.windowFlags(), QLabel(&parent).windowFlags());
        QCOMPARE(child.styleSheet(), defaultSheet);
    }

    void fontColorIsTheOneRuleOfTheSheet_data()
    {
        QTest::addColumn<QColor>("color");
        QTest::addColumn<QString>("expected");
        QTest::newRow("opaque") << QColor(255, 0, 0) << "QLabel{color:#ff0000;font:SimSun Arial;}";
        QTest::newRow("lower case")
            << QColor(171, 205, 239) << "QLabel{color:#abcdef;font:SimSun Arial;}";
        QTest::newRow("translucent")
            << QColor(255, 0, 0, 128) << "QLabel{color:#80ff0000;font:SimSun Arial;}";
        QTest::newRow("transparent")
            << QColor(255, 255, 255, 0) << "QLabel{color:#00ffffff;font:SimSun Arial;}";
        QTest::newRow("invalid") << QColor() << "QLabel{color:#000000;font:SimSun Arial;}";
        QTest::newRow("the default again") << QColor(210, 210, 210) << defaultSheet;
    }

    void fontColorIsTheOneRuleOfTheSheet()
    {
        QFETCH(QColor, color);
        QFETCH(QString, expected);
        LabelEx label;
        label.setFontColor(color);
        QCOMPARE(label.styleSheet(), expected);
        QCOMPARE("QLabel{color:" + label.fromColorToStr(color) + ";font:SimSun Arial;}", expected);
    }

    void fontColorIsSeenWhenSetBeforeAndAfterTheFirstShow()
    {
        // The text is a run of full blocks, so that its colour fills pixels.
        LabelEx label;
        label.resize(200, 40);
        label.setText(QString(9, QChar(0x2588)));
        label.setFontColor(QColor(255, 0, 0));
        label.setFontColor(QColor(0, 255, 0));
        QVERIFY(pointer::showAndWait(&label));
        QCOMPARE(pointer::colorAt(&label, QPoint(20, 20)), QColor(0, 255, 0));
        label.setFontColor(QColor(0, 0, 255));
        QCOMPARE(pointer::colorAt(&label, QPoint(20, 20)), QColor(0, 0, 255));
    }

    void textIsElidedToTheWidth_data()
    {
        QTest::addColumn<int>("spare");
        QTest::addColumn<bool>("fits");
        QTest::newRow("one pixel to spare") << 1 << true;
        QTest::newRow("exactly as wide") << 0 << true;
        QTest::newRow("one pixel short") << -1 << false;
        QTest::newRow("far too long") << -40 << false;
    }

    void textIsElidedToTheWidth()
    {
        QFETCH(int, spare);
        QFETCH(bool, fits);
        const QString text = QStringLiteral("A text of some length");
        LabelEx label;
        label.ensurePolished();
        const QFontMetrics metrics(label.font());
        const int width = metrics.horizontalAdvance(text) + spare;
        label.resize(width, 30);
        label.setText(text);
        QCOMPARE(label.text(), text);
        QCOMPARE(label.toolTip(), fits ? QString() : text);
        QCOMPARE(shownText(label), metrics.elidedText(text, Qt::ElideRight, width));
        if (spare > 0)
            QCOMPARE(shownText(label), text);
        if (spare < 0) {
            QVERIFY2(shownText(label).endsWith(QChar(0x2026)), qPrintable(shownText(label)));
            QVERIFY(text.startsWith(shownText(label).chopped(1)));
        }
    }

    void labelWithoutWidthHasTheTextAsToolTip()
    {
        LabelEx label;
        label.resize(0, 20);
        label.setText("x");
        QCOMPARE(label.width(), 0);
        QCOMPARE(label.toolTip(), QStringLiteral("x"));
        QCOMPARE(label.text(), QStringLiteral("x"));
        label.setText("");
        QCOMPARE(label.toolTip(), QString());
        QCOMPARE(label.text(), QString());
    }

    void resizeDoesNotElideAnew()
    {
        const QString text = QStringLiteral("A text of some length");
        LabelEx label;
        label.resize(40, 20);
        label.setText(text);
        const QString elided = shownText(label);
        QVERIFY(elided != text);
        label.resize(400, 20);
        QCOMPARE(shownText(label), elided);
        QCOMPARE(label.toolTip(), text);
        label.setText(text);
        QCOMPARE(shownText(label), text);
        QCOMPARE(label.toolTip(), QString());
    }

    void onlyTheLeftButtonClicks_data()
    {
        QTest::addColumn<Qt::MouseButton>("button");
        QTest::addColumn<int>("clicks");
        QTest::newRow("left") << Qt::LeftButton << 1;
        QTest::newRow("right") << Qt::RightButton << 0;
        QTest::newRow("middle") << Qt::MiddleButton << 0;
        QTest::newRow("back") << Qt::BackButton << 0;
    }

    void onlyTheLeftButtonClicks()
    {
        QFETCH(Qt::MouseButton, button);
        QFETCH(int, clicks);
        LabelEx label;
        label.resize(100, 30);
        QSignalSpy clicked(&label, &LabelEx::signal_mouseclicked);
        QTest::mousePress(&label, button);
        QCOMPARE(clicked.count(), clicks); // on the press, not on the release
        QTest::mouseRelease(&label, button);
        QCOMPARE(clicked.count(), clicks);
    }

    void everyPressReachesTheBaseClass_data() { onlyTheLeftButtonClicks_data(); }

    // A plain QLabel lets a press through to its panel. The signal comes before that.
    void everyPressReachesTheBaseClass()
    {
        QFETCH(Qt::MouseButton, button);
        QFETCH(int, clicks);
        PressRecorder panel;
        LabelEx label(&panel);
        connect(&label, &LabelEx::signal_mouseclicked, &panel, [&panel] { panel.log << "label"; });
        QTest::mousePress(&label, button);
        QCOMPARE(panel.log, clicks ? QStringList({"label", "panel"}) : QStringList("panel"));
    }

    void bothPressesOfADoubleClickCount()
    {
        LabelEx label;
        label.resize(100, 30);
        QVERIFY(pointer::showAndWait(&label));
        QSignalSpy clicked(&label, &LabelEx::signal_mouseclicked);
        QTest::mouseClick(&label, Qt::LeftButton);
        QCOMPARE(clicked.count(), 1);
        QTest::mouseDClick(&label, Qt::LeftButton); // what the second press arrives as
        QCOMPARE(clicked.count(), 2);
    }

    void disabledLabelDoesNotClick()
    {
        LabelEx label;
        label.resize(100, 30);
        QVERIFY(pointer::showAndWait(&label));
        QSignalSpy clicked(&label, &LabelEx::signal_mouseclicked);
        const auto press = [&label] {
            QTest::mousePress(label.windowHandle(), Qt::LeftButton, Qt::NoModifier, {50, 15});
            QTest::mouseRelease(label.windowHandle(), Qt::LeftButton, Qt::NoModifier, {50, 15});
        };
        label.setEnabled(false);
        press();
        QCOMPARE(clicked.count(), 0);
        label.setEnabled(true);
        press();
        QCOMPARE(clicked.count(), 1);
    }

    void enterAndLeaveAreReportedOnceEach()
    {
        QWidget window;
        window.resize(200, 100);
        LabelEx label(&window);
        label.setGeometry(50, 20, 100, 30);
        QVERIFY(pointer::showAndWait(&window));
        pointer::moveTo(&window, QPoint(5, 5));
        QStringList log;
        connect(&label, &LabelEx::signal_mouseenter, this, [&log] { log << "enter"; });
        connect(&label, &LabelEx::signal_mouseleave, this, [&log] { log << "leave"; });
        connect(&label, &LabelEx::signal_mouseclicked, this, [&log] { log << "click"; });
        pointer::moveTo(&label);
        QCOMPARE(log, QStringList({"enter"}));
        pointer::moveTo(&label, QPoint(3, 3));
        QCOMPARE(log, QStringList({"enter"}));
        pointer::moveTo(&window, QPoint(5, 5));
        QCOMPARE(log, QStringList({"enter", "leave"}));
    }

    void leavingTheWindowLeavesTheLabel()
    {
        LabelEx label;
        label.resize(100, 30);
        QVERIFY(pointer::showAndWait(&label));
        pointer::moveAway(&label);
        QSignalSpy entered(&label, &LabelEx::signal_mouseenter);
        QSignalSpy left(&label, &LabelEx::signal_mouseleave);
        QCursor::setPos(label.mapToGlobal(label.rect().center()));
        QTRY_COMPARE(entered.count(), 1);
        QCOMPARE(left.count(), 0);
        pointer::moveAway(&label);
        QTRY_COMPARE(left.count(), 1);
        QCOMPARE(entered.count(), 1);
    }

    void linksAreActivated()
    {
        const QString text = QStringLiteral("<a href=\"help\">Help</a>");
        LabelEx label;
        label.setAlignment(Qt::AlignLeft | Qt::AlignVCenter);
        label.resize(400, 30);
        label.setText(text);
        QCOMPARE(shownText(label), text);
        QVERIFY(pointer::showAndWait(&label));
        QSignalSpy activated(&label, &QLabel::linkActivated);
        QSignalSpy clicked(&label, &LabelEx::signal_mouseclicked);
        QTest::mouseClick(&label, Qt::LeftButton, Qt::NoModifier, QPoint(6, 15));
        QCOMPARE(activated.count(), 1);
        QCOMPARE(activated.first().first().toString(), QStringLiteral("help"));
        QCOMPARE(clicked.count(), 1);
    }

    void picturesAreShown()
    {
        QPixmap picture(20, 20);
        picture.fill(QColor(10, 200, 30));
        LabelEx label;
        label.resize(100, 40);
        label.setAlignment(Qt::AlignCenter);
        label.setPixmap(picture);
        QVERIFY(pointer::showAndWait(&label));
        QCOMPARE(pointer::colorAt(&label, QPoint(50, 20)), QColor(10, 200, 30));
        QVERIFY(pointer::colorAt(&label, QPoint(5, 20)) != QColor(10, 200, 30));
    }

    void textIsAligned_data()
    {
        QTest::addColumn<Qt::Alignment>("alignment");
        QTest::addColumn<int>("x");
        QTest::newRow("left") << Qt::Alignment(Qt::AlignLeft) << 6;
        QTest::newRow("centre") << Qt::Alignment(Qt::AlignHCenter) << 150;
        QTest::newRow("right") << Qt::Alignment(Qt::AlignRight) << 294;
    }

    void textIsAligned()
    {
        QFETCH(Qt::Alignment, alignment);
        QFETCH(int, x);
        LabelEx label;
        label.resize(300, 40);
        label.setAlignment(alignment | Qt::AlignVCenter);
        label.setText(QString(5, QChar(0x2588))); // an odd number: no seam in the middle
        label.setFontColor(QColor(255, 0, 0));
        QVERIFY(pointer::showAndWait(&label));
        for (int place : {6, 150, 294}) {
            const bool isText = pointer::colorAt(&label, QPoint(place, 20)) == QColor(255, 0, 0);
            QCOMPARE(isText, place == x);
        }
    }

    void oddTextsAreHarmless_data()
    {
        QTest::addColumn<QString>("text");
        QTest::newRow("quotes") << "\"a\" 'b'";
        QTest::newRow("braces") << "}QLabel{color:red;";
        QTest::newRow("broken tags") << "<b>one<i>two</b";
        QTest::newRow("very long") << QString(100000, 'w');
        QTest::newRow("lines") << "one\ntwo";
        QTest::newRow("other scripts") << QString::fromUtf8("屏幕 مرحبا \xf0\x9f\x92\xa1");
        QTest::newRow("null") << QString();
    }

    void oddTextsAreHarmless()
    {
        QFETCH(QString, text);
        LabelEx label;
        label.resize(60, 20);
        label.setText(text);
        QCOMPARE(label.text(), text);
        QCOMPARE(label.styleSheet(), defaultSheet);
        QVERIFY(pointer::showAndWait(&label));
        label.grab();
    }

    void declaresThreeSignalsInOrder()
    {
        const QMetaObject &meta = LabelEx::staticMetaObject;
        QByteArrayList methods;
        for (int i = meta.methodOffset(); i < meta.methodCount(); ++i) {
            QCOMPARE(meta.method(i).methodType(), QMetaMethod::Signal);
            methods << meta.method(i).methodSignature();
        }
        QCOMPARE(methods,
                 QByteArrayList(
                     {"signal_mouseclicked()", "signal_mouseenter()", "signal_mouseleave()"}));
        QCOMPARE(meta.propertyOffset(), meta.propertyCount());
        QCOMPARE(QByteArray(meta.superClass()->className()), QByteArray("QLabel"));
    }

    void diesWithItsParentOrBefore()
    {
        auto *parent = new QWidget;
        QPointer<LabelEx> first = new LabelEx(parent);
        QPointer<LabelEx> second = new LabelEx(parent);
        QVERIFY(pointer::showAndWait(parent));
        delete first;
        QCOMPARE(parent->children(), QObjectList{second});
        delete parent;
        QVERIFY(second.isNull());
    }

    void canBeDeletedInItsClick_data()
    {
        QTest::addColumn<bool>("withPanel");
        QTest::newRow("alone") << false;
        QTest::newRow("with its panel") << true;
    }

    void canBeDeletedInItsClick()
    {
        QFETCH(bool, withPanel);
        auto *panel = new QWidget;
        QPointer<LabelEx> label = new LabelEx(panel);
        label->resize(100, 30);
        QVERIFY(pointer::showAndWait(panel));
        connect(label, &LabelEx::signal_mouseclicked, this, [=] {
            if (!withPanel)
                delete label;
            else
                delete panel;
        });
        QTest::mousePress(panel->windowHandle(), Qt::LeftButton, Qt::NoModifier, QPoint(50, 15));
        QVERIFY(label.isNull());
        if (!withPanel)
            delete panel;
    }

    // Qt itself goes on using a widget that the pointer enters or leaves, so a host deletes it
    // later; the label does nothing more after its signal.
    void canBeDeletedInEnterAndLeave_data()
    {
        QTest::addColumn<QEvent::Type>("type");
        QTest::newRow("enter") << QEvent::Enter;
        QTest::newRow("leave") << QEvent::Leave;
    }

    void canBeDeletedInEnterAndLeave()
    {
        QFETCH(QEvent::Type, type);
        const auto signal =
            type == QEvent::Enter ? &LabelEx::signal_mouseenter : &LabelEx::signal_mouseleave;
        QEvent event(type);
        QPointer<LabelEx> atOnce = new LabelEx;
        connect(atOnce, signal, this, [atOnce] { delete atOnce; });
        QCoreApplication::sendEvent(atOnce, &event);
        QVERIFY(atOnce.isNull());

        QWidget window;
        window.resize(200, 100);
        QPointer<LabelEx> later = new LabelEx(&window);
        later->setGeometry(50, 20, 100, 30);
        QVERIFY(pointer::showAndWait(&window));
        pointer::moveTo(&window, QPoint(5, 5));
        connect(later, signal, later, &QObject::deleteLater);
        pointer::moveTo(&window, QPoint(100, 35));
        pointer::moveTo(&window, QPoint(5, 5));
        QTRY_VERIFY(later.isNull());
    }
};

ORVANE_TEST_MAIN(TestLabelEx)
#include "tst_labelex.moc"
