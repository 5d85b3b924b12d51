// A host's window on a real display with a window manager: xdotool moves the pointer and presses
// its buttons. The window manager is the test's own, on the display that the test runs on.

#include "support/testcase.h"
#include "support/windowmanager.h"

#include <hostframe.h>
#include <windowtitle.h>

#include <functional>

namespace
{

constexpr QSize normalSize(640, 480);
constexpr QSize smallestSize(400, 300);

/// A window as a host derives it, which may or may not close.
class Host : public HostFrame
{
public:
    Host()
        : HostFrame(normalSize, smallestSize)
    {
        auto *content = new QLabel("content");
        content->setAlignment(Qt::AlignCenter);
        setCentralWidget(content);
    }

    bool isReady = true;
    int questions = 0;

protected:
    bool mayClose() override
    {
        ++questions;
        return isReady;
    }
};

/// The buttons in the order in which the title creates them.
enum Button { Close, Minimize, Maximize };

QPushButton *button(const HostFrame &frame, int which)
{
    return frame.GetTitleWidget()->findChildren<QPushButton *>().at(which);
}

bool offersRestore(const HostFrame &frame)
{
    return button(frame, Maximize)->styleSheet().contains("btn_return_normal");
}

/// True if the pointer is at \a place on the screen, and the window knows it.
bool moveTo(QPoint place)
{
    return xdotool({"mousemove", QString::number(place.x()), QString::number(place.y())})
        && QTest::qWaitFor([place] { return QCursor::pos() == place; }, patience);
}

bool press()
{
    return xdotool({"mousedown", "1"})
        && QTest::qWaitFor([] { return QGuiApplication::mouseButtons() == Qt::LeftButton; },
                           patience);
}

bool release()
{
    return xdotool({"mouseup", "1"})
        && QTest::qWaitFor([] { return QGuiApplication::mouseButtons() == Qt::NoButton; },
                           patience);
}

bool clickOn(const QWidget *widget)
{
    return moveTo(widget->mapToGlobal(widget->rect().center())) && press() && release();
}

/// Presses the window manager's key until \a isDone: on a busy machine it was seen to be lost, and
/// a person presses again, too. What an answered press does is for the caller to count.
bool pressCloseKeyUntil(const std::function<bool()> &isDone)
{
    constexpr int presses = 4;
    for (int press = 0; press < presses; ++press) {
        if (!xdotool({"key", "alt+F4"}))
            return false;
        if (QTest::qWaitFor(isDone, patience / presses))
            return true;
    }
    return false;
}

/// The colour on the screen, whatever shows there.
QColor onScreen(QPoint place)
{
    return QGuiApplication::primaryScreen()
        ->grabWindow(0, place.x(), place.y(), 1, 1)
        .toImage()
        .pixelColor(0, 0);
}

/// Drags from a place in the frame to one on the screen, and leaves the button down.
bool drag(const HostFrame *frame, QPoint from, QPoint to)
{
    const QPoint start = frame->mapToGlobal(from);
    return moveTo(start) && press() && moveTo((start + to) / 2) && moveTo(to);
}

} // namespace

Q_DECLARE_METATYPE(QMargins)

class TestHostFrameDisplay : public TestCase
{
    Q_OBJECT

private:
    WindowManager m_windowManager;
    QRect m_screen;
    QRect m_normal; ///< Where the frame is when it is restored.

    std::unique_ptr<Host> showFrame()
    {
        auto frame = std::make_unique<Host>();
        frame->show();
        if (!waitUntilActive(frame.get()))
            qWarning("the frame does not become active");
        return frame;
    }

    std::unique_ptr<Host> showRestored()
    {
        auto frame = showFrame();
        frame->slot_showMaximized();
        if (!QTest::qWaitFor([&] { return frame->geometry() == m_normal; }, patience))
            qWarning("the frame does not come to its normal size");
        return frame;
    }

private Q_SLOTS:
    void initTestCase()
    {
        QVERIFY2(QGuiApplication::platformName() == "xcb",
                 "this test needs a pointer: run it by ctest, or through xvfb-run with "
                 "QT_QPA_PLATFORM=xcb");
        QCOMPARE(m_windowManager.start(), QString());
        // Double-clicks are made by a program of its own, and may be slow.
        QApplication::setDoubleClickInterval(5000);
        m_screen = QGuiApplication::primaryScreen()->availableGeometry();
        m_normal = QRect((m_screen.width() - normalSize.width()) / 2,
                         (m_screen.height() - normalSize.height()) / 2, normalSize.width(),
                         normalSize.height());
    }

    void cleanupTestCase() { m_windowManager.stop(); }

    void startsMaximisedToTheScreen()
    {
        const auto frame = showFrame();
        QTRY_COMPARE(frame->geometry(), m_screen);
        QCOMPARE(frame->frameGeometry(), frame->geometry());
        QVERIFY(frame->isMaximizedFrame());
        QVERIFY(offersRestore(*frame));
        QTRY_COMPARE(onScreen(m_screen.bottomRight()), QColor(255, 255, 255));
        QTRY_COMPARE(onScreen(m_screen.bottomRight() - QPoint(3, 3)), QColor(69, 69, 69));
        QVERIFY(m_windowManager.isRunning());
    }

    void buttonAndDoubleClickRestoreAndMaximise_data()
    {
        QTest::addColumn<bool>("byButton");
        QTest::newRow("button") << true;
        QTest::newRow("double click") << false;
    }

    void buttonAndDoubleClickRestoreAndMaximise()
    {
        QFETCH(bool, byButton);
        const auto frame = showFrame();
        const auto toggle = [&] {
            return byButton ? clickOn(button(*frame, Maximize))
                            : moveTo(frame->mapToGlobal(QPoint(frame->width() / 2, 15)))
                    && xdotool({"click", "--repeat", "2", "--delay", "50", "1"});
        };
        for (int round = 0; round < 2; ++round) {
            QVERIFY(toggle());
            QTRY_COMPARE(frame->geometry(), m_normal);
            QVERIFY(!frame->isMaximizedFrame());
            QVERIFY(!offersRestore(*frame));
            QTRY_COMPARE(onScreen(m_normal.bottomRight()), QColor(255, 255, 255));
            QTRY_COMPARE(onScreen(m_normal.bottomRight() + QPoint(4, 4)), QColor(Qt::black));
            QVERIFY(toggle());
            QTRY_COMPARE(frame->geometry(), m_screen);
            QVERIFY(frame->isMaximizedFrame());
            QVERIFY(offersRestore(*frame));
        }
    }

    void edgesResize_data()
    {
        QTest::addColumn<QPoint>("from"); // in the frame
        QTest::addColumn<QPoint>("by");
        QTest::addColumn<QMargins>("grown");
        const int right = normalSize.width() - 3;
        const int bottom = normalSize.height() - 3;
        QTest::newRow("right") << QPoint(right, 200) << QPoint(100, 50) << QMargins(0, 0, 100, 0);
        QTest::newRow("left") << QPoint(2, 200) << QPoint(-100, 50) << QMargins(100, 0, 0, 0);
        QTest::newRow("top, over the title")
            << QPoint(300, 2) << QPoint(20, -70) << QMargins(0, 70, 0, 0);
        QTest::newRow("bottom") << QPoint(300, bottom) << QPoint(20, 70) << QMargins(0, 0, 0, 70);
        QTest::newRow("top left") << QPoint(2, 2) << QPoint(50, 60) << QMargins(-50, -60, 0, 0);
        QTest::newRow("bottom right")
            << QPoint(right, bottom) << QPoint(60, 40) << QMargins(0, 0, 60, 40);
        QTest::newRow("right, too far")
            << QPoint(right, 200) << QPoint(-500, 0) << QMargins(0, 0, -240, 0);
        QTest::newRow("top left, too far")
            << QPoint(2, 2) << QPoint(500, 400) << QMargins(-240, -180, 0, 0);
    }

    void edgesResize()
    {
        QFETCH(QPoint, from);
        QFETCH(QPoint, by);
        QFETCH(QMargins, grown);
        const auto frame = showRestored();
        QVERIFY(drag(frame.get(), from, frame->mapToGlobal(from) + by));
        const QRect expected = m_normal.marginsAdded(grown);
        QTRY_COMPARE(frame->geometry(), expected);
        QVERIFY(release());
        QTRY_COMPARE(onScreen(expected.topLeft()), QColor(255, 255, 255));
        QTRY_COMPARE(onScreen(expected.bottomRight()), QColor(255, 255, 255));
        QTRY_COMPARE(onScreen(expected.bottomRight() + QPoint(4, 4)), QColor(Qt::black));
        QCOMPARE(frame->geometry(), expected);

        // And back and forth: maximised, and to the size that it was given.
        QVERIFY(clickOn(button(*frame, Maximize)));
        QTRY_COMPARE(frame->geometry(), m_screen);
        QVERIFY(clickOn(button(*frame, Maximize)));
        QTRY_COMPARE(frame->size(), expected.size());
    }

    void nothingResizesWhileMaximised()
    {
        const auto frame = showFrame();
        QTRY_COMPARE(frame->geometry(), m_screen);
        const QPoint edge(m_screen.width() - 3, 400);
        QVERIFY(drag(frame.get(), edge, edge - QPoint(200, 0)));
        QVERIFY(release());
        // The window has seen it all by the time that it sees the next click.
        QVERIFY(clickOn(button(*frame, Maximize)));
        QTRY_COMPARE(frame->geometry(), m_normal);
        QVERIFY(clickOn(button(*frame, Maximize)));
        QTRY_COMPARE(frame->geometry(), m_screen);
    }

    void cursorTellsWhatADragDoes()
    {
        const auto frame = showRestored();
        const QWindow *window = frame->windowHandle();
        QVERIFY(moveTo(frame->mapToGlobal(QPoint(normalSize.width() - 3, 200))));
        QTRY_COMPARE(window->cursor().shape(), Qt::SizeHorCursor);
        QVERIFY(moveTo(frame->mapToGlobal(QPoint(normalSize.width() / 2, 200))));
        QTRY_COMPARE(window->cursor().shape(), Qt::ArrowCursor); // over the content
        QVERIFY(moveTo(frame->mapToGlobal(QPoint(2, 2))));
        QTRY_COMPARE(window->cursor().shape(), Qt::SizeFDiagCursor);
        QVERIFY(moveTo(frame->mapToGlobal(QPoint(300, 15))));
        QTRY_COMPARE(window->cursor().shape(), Qt::ArrowCursor); // over the title
    }

    void titleMovesTheWindow()
    {
        const auto frame = showRestored();
        QVERIFY(drag(frame.get(), QPoint(300, 15), m_normal.topLeft() + QPoint(300 - 80, 15 + 60)));
        QCOMPARE(frame->geometry(), m_normal);
        QVERIFY(release());
        QTRY_COMPARE(frame->geometry(), m_normal.translated(-80, 60));
        // From there its edges go on.
        const QPoint edge(normalSize.width() - 3, 200);
        QVERIFY(drag(frame.get(), edge, frame->mapToGlobal(edge) + QPoint(50, 0)));
        QVERIFY(release());
        QTRY_COMPARE(frame->geometry(), m_normal.translated(-80, 60).adjusted(0, 0, 50, 0));
    }

    void closeButtonAsksOnce()
    {
        const auto frame = showFrame();
        frame->isReady = false;
        QVERIFY(clickOn(button(*frame, Close)));
        QTRY_COMPARE(frame->questions, 1);
        QVERIFY(frame->isVisible());
        frame->isReady = true;
        QVERIFY(clickOn(button(*frame, Close)));
        QTRY_VERIFY(!frame->isVisible());
        QCOMPARE(frame->questions, 2);
    }

    void windowManagerAsksOnce()
    {
        const auto frame = showFrame();
        frame->isReady = false;
        QVERIFY(pressCloseKeyUntil([&] { return frame->questions > 0; }));
        QCOMPARE(frame->questions, 1);
        QVERIFY(frame->isVisible());
        frame->isReady = true;
        QVERIFY(pressCloseKeyUntil([&] { return !frame->isVisible(); }));
        QCOMPARE(frame->questions, 2);
    }
};

ORVANE_TEST_MAIN(TestHostFrameDisplay)
#include "tst_hostframe_display.moc"
