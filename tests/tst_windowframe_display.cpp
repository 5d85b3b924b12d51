// A window frame on a real display with a window manager: xdotool moves the pointer and presses its
// buttons. The window manager is the test's own, on the display that the test runs on.

#include "support/framewarnings.h"
#include "support/testcase.h"
#include "support/windowmanager.h"

#include <windowframe.h>
#include <windowtitle.h>

namespace
{

/// A window as a host derives it, which writes down what happens to it.
class Host : public WindowFrame
{
public:
    using WindowFrame::WindowFrame;

    int closeButtons = 0;
    int moves = 0;
    QList<Qt::WindowStates> states;

protected:
    void closeEvent(QCloseEvent *event) override
    {
        if (event)
            WindowFrame::closeEvent(event);
        else
            ++closeButtons;
    }
    void moveEvent(QMoveEvent *event) override
    {
        ++moves;
        WindowFrame::moveEvent(event);
    }
    void changeEvent(QEvent *event) override
    {
        if (event->type() == QEvent::WindowStateChange)
            states += windowState();
        WindowFrame::changeEvent(event);
    }
};

QDialog *rubberBand(const WindowFrame &frame)
{
    return frame.findChild<QDialog *>();
}

/// The buttons in the order in which the title creates them.
enum Button { Close, Minimize, Maximize };

QPushButton *button(const WindowFrame &frame, int which)
{
    return frame.GetTitleWidget()->findChildren<QPushButton *>().at(which);
}

bool offersRestore(const WindowFrame &frame)
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

/// The colour on the screen, whatever shows there.
QColor onScreen(QPoint place)
{
    return QGuiApplication::primaryScreen()
        ->grabWindow(0, place.x(), place.y(), 1, 1)
        .toImage()
        .pixelColor(0, 0);
}

} // namespace

Q_DECLARE_METATYPE(Qt::CursorShape)

class TestWindowFrameDisplay : public TestCase
{
    Q_OBJECT

private:
    WindowManager m_windowManager;

    /// A frame of 800 by 600 at (240, 260) that is restored to 400 by 300.
    std::unique_ptr<Host> showFrame()
    {
        for (const QString &warning : framewarnings::ofFrame())
            expectWarning(warning);
        auto frame = std::make_unique<Host>(QSizeF(640, 480), QSizeF(800, 600), QSizeF(400, 300));
        frame->move(240, 260);
        frame->show();
        if (!waitUntilActive(frame.get()))
            qWarning("the frame does not become active");
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
    }

    void cleanupTestCase() { m_windowManager.stop(); }

    void windowIsFramelessAtItsMaximumSize()
    {
        const auto frame = showFrame();
        QTRY_COMPARE(frame->geometry(), QRect(240, 260, 800, 600));
        QCOMPARE(frame->frameGeometry(), frame->geometry());
        QTRY_COMPARE(onScreen({240, 560}), QColor(255, 255, 255));
        QTRY_COMPARE(onScreen({640, 560}), QColor(69, 69, 69));
        QVERIFY(m_windowManager.isRunning());
    }

    void hoverChangesTheCursor_data()
    {
        QTest::addColumn<QPoint>("place");
        QTest::addColumn<Qt::CursorShape>("shape");
        QTest::newRow("top left, over the logo") << QPoint(3, 3) << Qt::SizeFDiagCursor;
        QTest::newRow("top, over the title") << QPoint(300, 3) << Qt::SizeVerCursor;
        QTest::newRow("top right") << QPoint(797, 3) << Qt::SizeBDiagCursor;
        QTest::newRow("right") << QPoint(797, 300) << Qt::SizeHorCursor;
        QTest::newRow("bottom right") << QPoint(797, 597) << Qt::SizeFDiagCursor;
        QTest::newRow("bottom") << QPoint(400, 597) << Qt::SizeVerCursor;
        QTest::newRow("bottom left") << QPoint(3, 597) << Qt::SizeBDiagCursor;
        QTest::newRow("left") << QPoint(3, 300) << Qt::SizeHorCursor;
        QTest::newRow("title") << QPoint(300, 15) << Qt::ArrowCursor;
        QTest::newRow("middle") << QPoint(400, 300) << Qt::ArrowCursor;
    }

    void hoverChangesTheCursor()
    {
        QFETCH(QPoint, place);
        QFETCH(Qt::CursorShape, shape);
        const auto frame = showFrame();
        const QWindow *window = frame->windowHandle();
        const bool isArrow = shape == Qt::ArrowCursor;
        // From where the other cursor is.
        QVERIFY(moveTo(frame->mapToGlobal(isArrow ? QPoint(797, 300) : QPoint(400, 300))));
        QTRY_COMPARE(window->cursor().shape(), isArrow ? Qt::SizeHorCursor : Qt::ArrowCursor);
        QVERIFY(moveTo(frame->mapToGlobal(place)));
        QTRY_COMPARE(window->cursor().shape(), shape);
        QCOMPARE(frame->cursor().shape(), shape);
    }

    void dragByTheTitleMovesTheOutlineAndThenTheWindow()
    {
        const auto frame = showFrame();
        QDialog *band = rubberBand(*frame);
        QVERIFY(moveTo({540, 275}));
        QVERIFY(press());
        QVERIFY(!band->isVisible());
        frame->moves = 0;
        QVERIFY(moveTo({520, 290}));
        QTRY_VERIFY(band->isVisible());
        QVERIFY(moveTo({500, 305}));
        QTRY_COMPARE(band->geometry(), QRect(200, 290, 800, 600));
        // The outline is on the screen, outside the window too; the window is where it was.
        QTRY_COMPARE(onScreen({201, 600}), QColor(255, 255, 255));
        QTRY_COMPARE(onScreen({600, 889}), QColor(255, 255, 255));
        QCOMPARE(frame->moves, 0);
        QCOMPARE(frame->geometry(), QRect(240, 260, 800, 600));

        QVERIFY(release());
        QTRY_VERIFY(!band->isVisible());
        QTRY_COMPARE(frame->geometry(), QRect(200, 290, 800, 600));
        QTRY_COMPARE(onScreen({600, 600}), QColor(69, 69, 69));
        QTRY_COMPARE(onScreen({1020, 600}), QColor(Qt::black));

        // And once more, from its new place, by the logo.
        // A window manager may put the outline elsewhere when it comes up again; the next move puts
        // it right.
        QVERIFY(moveTo({215, 299}));
        QVERIFY(press());
        QVERIFY(moveTo({300, 340}));
        QTRY_VERIFY(band->isVisible());
        QVERIFY(QTest::qWaitForWindowExposed(band, patience));
        QVERIFY(moveTo({315, 349}));
        QTRY_COMPARE(band->geometry(), QRect(300, 340, 800, 600));
        QVERIFY(release());
        QTRY_COMPARE(frame->geometry(), QRect(300, 340, 800, 600));
        QVERIFY(!band->isVisible());
    }

    void dragFromElsewhereMovesNothing_data()
    {
        QTest::addColumn<QPoint>("place");
        QTest::newRow("content") << QPoint(400, 300);
        QTest::newRow("beside the title") << QPoint(791, 15);
        QTest::newRow("right edge") << QPoint(797, 300);
        QTest::newRow("bottom left corner") << QPoint(3, 597);
        QTest::newRow("top edge of the title") << QPoint(300, 3);
    }

    void dragFromElsewhereMovesNothing()
    {
        QFETCH(QPoint, place);
        const auto frame = showFrame();
        const QPoint start = frame->mapToGlobal(place);
        QVERIFY(moveTo(start));
        QVERIFY(press());
        QVERIFY(moveTo(start - QPoint(100, 50)));
        QVERIFY(release());
        // The window has seen it all by the time that it sees a hover.
        QVERIFY(moveTo(frame->mapToGlobal(QPoint(3, 300))));
        QTRY_COMPARE(frame->cursor().shape(), Qt::SizeHorCursor);
        QVERIFY(!rubberBand(*frame)->isVisible());
        QCOMPARE(frame->geometry(), QRect(240, 260, 800, 600));
    }

    void dragFromAnEdgeShowsTheLastOutline()
    {
        const auto frame = showFrame();
        QDialog *band = rubberBand(*frame);
        QVERIFY(moveTo({540, 275}));
        QVERIFY(press());
        QVERIFY(moveTo({500, 305}));
        QTRY_COMPARE(band->geometry(), QRect(200, 290, 800, 600));
        QVERIFY(release());
        QTRY_COMPARE(frame->geometry(), QRect(200, 290, 800, 600));

        QVERIFY(moveTo({997, 600}));
        QTRY_COMPARE(frame->GetCurDragDirect(), 3);
        QVERIFY(press());
        QVERIFY(moveTo({1100, 620}));
        QTRY_VERIFY(band->isVisible());
        QVERIFY(QTest::qWaitForWindowExposed(band, patience));
        QVERIFY(moveTo({1110, 610}));
        QTRY_COMPARE(band->geometry(), QRect(200, 290, 800, 600));
        QVERIFY(release());
        QTRY_VERIFY(!band->isVisible());
        QTRY_COMPARE(frame->GetCurDragDirect(), 8);
        QCOMPARE(frame->geometry(), QRect(200, 290, 800, 600));
    }

    void doubleClickOnTheTitleToggles_data()
    {
        QTest::addColumn<QString>("mouseButton");
        QTest::newRow("left") << "1";
        QTest::newRow("right") << "3";
    }

    void doubleClickOnTheTitleToggles()
    {
        QFETCH(QString, mouseButton);
        const auto frame = showFrame();
        QVERIFY(offersRestore(*frame));
        QVERIFY(moveTo(frame->mapToGlobal(QPoint(300, 15))));
        QVERIFY(xdotool({"click", "--repeat", "2", "--delay", "50", mouseButton}));
        QTRY_COMPARE(frame->geometry(), QRect(200, 150, 400, 300));
        QVERIFY(!offersRestore(*frame));
        QTRY_COMPARE(onScreen({400, 300}), QColor(69, 69, 69));
        QTRY_COMPARE(onScreen({700, 500}), QColor(Qt::black));

        QVERIFY(moveTo(frame->mapToGlobal(QPoint(200, 15))));
        QVERIFY(xdotool({"click", "--repeat", "2", "--delay", "50", mouseButton}));
        QTRY_COMPARE(frame->geometry(), QRect(0, 0, 800, 600));
        QVERIFY(offersRestore(*frame));
        QTRY_COMPARE(onScreen({700, 500}), QColor(69, 69, 69));
        QVERIFY(!rubberBand(*frame)->isVisible());
    }

    void maximizeButtonToggles()
    {
        const auto frame = showFrame();
        QVERIFY(clickOn(button(*frame, Maximize)));
        QTRY_COMPARE(frame->geometry(), QRect(200, 150, 400, 300));
        QVERIFY(!offersRestore(*frame));
        QVERIFY(clickOn(button(*frame, Maximize)));
        QTRY_COMPARE(frame->geometry(), QRect(0, 0, 800, 600));
        QVERIFY(offersRestore(*frame));
        // Restored again after it was moved: in the middle of the maximum area all the same.
        QVERIFY(moveTo({300, 15}));
        QVERIFY(press());
        QVERIFY(moveTo({400, 215}));
        QVERIFY(release());
        QTRY_COMPARE(frame->geometry(), QRect(100, 200, 800, 600));
        QVERIFY(clickOn(button(*frame, Maximize)));
        QTRY_COMPARE(frame->geometry(), QRect(200, 150, 400, 300));
    }

    void minimizeButtonMinimises()
    {
        const auto frame = showFrame();
        QTRY_COMPARE(onScreen({640, 560}), QColor(69, 69, 69));
        QVERIFY(clickOn(button(*frame, Minimize)));
        QTRY_COMPARE(frame->windowState(), Qt::WindowStates(Qt::WindowMinimized));
        QTRY_COMPARE(onScreen({640, 560}), QColor(Qt::black));
        frame->states.clear();
        frame->slot_showMinimized();
        QVERIFY(frame->states.isEmpty());

        frame->setWindowState(Qt::WindowNoState);
        QVERIFY(waitUntilActive(frame.get()));
        QTRY_COMPARE(onScreen({640, 560}), QColor(69, 69, 69));
        QTRY_COMPARE(frame->geometry(), QRect(240, 260, 800, 600));
        QVERIFY(offersRestore(*frame));
    }

    void closeButtonAsksTheHost()
    {
        const auto frame = showFrame();
        QVERIFY(clickOn(button(*frame, Close)));
        QTRY_COMPARE(frame->closeButtons, 1);
        QVERIFY(frame->isVisible());
        QCOMPARE(frame->geometry(), QRect(240, 260, 800, 600));
    }
};

ORVANE_TEST_MAIN(TestWindowFrameDisplay)
#include "tst_windowframe_display.moc"
