#include "support/pointer.h"
#include "support/testcase.h"
#include "support/windowmouse.h"

#include <hostframe.h>
#include <theme.h>
#include <windowtitle.h>

namespace
{

constexpr QSize normalSize(600, 500);
constexpr QSize smallestSize(300, 200);

/// A window as a host derives it, which may or may not close.
class Host : public HostFrame
{
public:
    explicit Host(QSize normal = normalSize, QSize smallest = smallestSize)
        : HostFrame(normal, smallest)
    {
    }

    bool isReady = true;
    int questions = 0;

protected:
    bool mayClose() override
    {
        ++questions;
        close(); // an impatient user, while the question is open
        return isReady;
    }
};

QRect screenRect()
{
    return QGuiApplication::primaryScreen()->availableGeometry();
}

QSize screenSize()
{
    return screenRect().size();
}

QPoint centredIn(QSize outer, QSize inner)
{
    return screenRect().topLeft()
        + QPoint((outer.width() - inner.width()) / 2, (outer.height() - inner.height()) / 2);
}

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

QLabel *logoText(const HostFrame &frame)
{
    return frame.GetTitleWidget()->findChildren<QLabel *>().at(1);
}

/// Drags with the left button from a place in the frame by a distance, in two steps, and leaves the
/// button down. Returns where on the screen it is.
QPoint drag(HostFrame *frame, QPoint from, QPoint by)
{
    QWindow *window = frame->windowHandle();
    const QPoint start = window->mapToGlobal(from);
    QTest::mouseMove(window, from);
    QTest::mousePress(window, Qt::LeftButton, Qt::NoModifier, from);
    QTest::mouseMove(window, window->mapFromGlobal(start + by / 2));
    QTest::mouseMove(window, window->mapFromGlobal(start + by));
    return start + by;
}

void dropAt(HostFrame *frame, QPoint place)
{
    QTest::mouseRelease(frame->windowHandle(), Qt::LeftButton, Qt::NoModifier,
                        frame->windowHandle()->mapFromGlobal(place));
}

} // namespace

Q_DECLARE_METATYPE(QMargins)

class TestHostFrame : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void startsMaximised()
    {
        Host frame;
        QVERIFY(pointer::showAndWait(&frame));
        QVERIFY(frame.isMaximizedFrame());
        QCOMPARE(frame.size(), screenSize());
        QVERIFY(offersRestore(frame));
        QCOMPARE(frame.GetTitleWidget()->width(), screenSize().width() - 10);
    }

    void togglesBetweenTheScreenAndTheNormalSizeInItsMiddle_data()
    {
        QTest::addColumn<QString>("way");
        for (const char *way : {"slot", "button", "double click"})
            QTest::newRow(way) << way;
    }

    void togglesBetweenTheScreenAndTheNormalSizeInItsMiddle()
    {
        QFETCH(QString, way);
        Host frame;
        QVERIFY(pointer::showAndWait(&frame));
        const auto toggle = [&] {
            if (way == "slot")
                frame.slot_showMaximized();
            else if (way == "button")
                windowmouse::click(button(frame, Maximize));
            else
                QTest::mouseDClick(frame.windowHandle(), Qt::LeftButton, Qt::NoModifier,
                                   QPoint(frame.width() / 2, 15));
        };
        for (int round = 0; round < 2; ++round) {
            toggle();
            QVERIFY(!frame.isMaximizedFrame());
            QCOMPARE(frame.size(), normalSize);
            QCOMPARE(frame.pos(), centredIn(screenSize(), normalSize));
            QVERIFY(!offersRestore(frame));
            QCOMPARE(frame.GetTitleWidget()->width(), normalSize.width() - 10);
            toggle();
            QVERIFY(frame.isMaximizedFrame());
            QCOMPARE(frame.size(), screenSize());
            QCOMPARE(frame.pos(), screenRect().topLeft());
            QVERIFY(offersRestore(frame));
        }
    }

    void sizesAreCutToTheScreen_data()
    {
        QTest::addColumn<QSize>("normal");
        QTest::addColumn<QSize>("smallest");
        QTest::addColumn<QSize>("restored");
        const QSize screen = screenSize();
        const QSize room = screen - QSize(80, 80);
        QTest::newRow("fits") << QSize(500, 400) << QSize(300, 200) << QSize(500, 400);
        QTest::newRow("as large as the screen") << screen << QSize(300, 200) << room;
        QTest::newRow("too wide") << QSize(9000, 400) << QSize(300, 200)
                                  << QSize(room.width(), 400);
        QTest::newRow("smallest needs the room")
            << screen << screen - QSize(10, 10) << screen - QSize(10, 10);
        QTest::newRow("smallest is too large") << QSize(9000, 9000) << QSize(9000, 9000) << screen;
    }

    void sizesAreCutToTheScreen()
    {
        QFETCH(QSize, normal);
        QFETCH(QSize, smallest);
        QFETCH(QSize, restored);
        Host frame(normal, smallest);
        QVERIFY(pointer::showAndWait(&frame));
        QCOMPARE(frame.size(), screenSize());
        frame.slot_showMaximized();
        QCOMPARE(frame.size(), restored);
    }

    void aSizeOfItsOwnIsNotMaximised()
    {
        Host frame;
        frame.resizeFrame(QSize(440, 330)); // before it is shown, too
        QVERIFY(pointer::showAndWait(&frame));
        QCOMPARE(frame.size(), QSize(440, 330));
        QVERIFY(!frame.isMaximizedFrame());
        QVERIFY(!offersRestore(frame));
        frame.resizeFrame(screenSize()); // even so it was not maximised
        QVERIFY(!frame.isMaximizedFrame());
        frame.resizeFrame(QSize(440, 330));
        frame.slot_showMaximized();
        QVERIFY(frame.isMaximizedFrame());
        frame.slot_showMaximized();
        QCOMPARE(frame.size(), QSize(440, 330)); // the size that it had
    }

    void edgesResize_data()
    {
        QTest::addColumn<QPoint>("from");
        QTest::addColumn<QPoint>("by");
        QTest::addColumn<QMargins>("grown");
        const int w = normalSize.width();
        const int h = normalSize.height();
        QTest::newRow("right") << QPoint(w - 3, 250) << QPoint(40, 30) << QMargins(0, 0, 40, 0);
        QTest::newRow("left") << QPoint(2, 250) << QPoint(-40, 30) << QMargins(40, 0, 0, 0);
        QTest::newRow("top") << QPoint(200, 2) << QPoint(30, -20) << QMargins(0, 20, 0, 0);
        QTest::newRow("bottom") << QPoint(200, h - 3) << QPoint(30, 20) << QMargins(0, 0, 0, 20);
        QTest::newRow("top left") << QPoint(2, 2) << QPoint(10, -20) << QMargins(-10, 20, 0, 0);
        QTest::newRow("top right") << QPoint(w - 3, 2) << QPoint(10, -20) << QMargins(0, 20, 10, 0);
        QTest::newRow("bottom left")
            << QPoint(2, h - 3) << QPoint(-10, -20) << QMargins(10, 0, 0, -20);
        QTest::newRow("bottom right")
            << QPoint(w - 3, h - 3) << QPoint(-10, 20) << QMargins(0, 0, -10, 20);
        // The smallest size is the end of it, and the other edges stay.
        QTest::newRow("right, too far")
            << QPoint(w - 3, 250) << QPoint(-900, 0) << QMargins(0, 0, -300, 0);
        QTest::newRow("left, too far")
            << QPoint(2, 250) << QPoint(900, 0) << QMargins(-300, 0, 0, 0);
        QTest::newRow("top left, too far")
            << QPoint(2, 2) << QPoint(900, 900) << QMargins(-300, -300, 0, 0);
        QTest::newRow("bottom, too far")
            << QPoint(200, h - 3) << QPoint(0, -900) << QMargins(0, 0, 0, -300);
    }

    void edgesResize()
    {
        QFETCH(QPoint, from);
        QFETCH(QPoint, by);
        QFETCH(QMargins, grown);
        Host frame;
        QVERIFY(pointer::showAndWait(&frame));
        frame.slot_showMaximized();
        const QRect before(frame.pos(), frame.size());
        const QPoint place = drag(&frame, from, by);
        QCOMPARE(QRect(frame.pos(), frame.size()), before.marginsAdded(grown));
        QCOMPARE(frame.GetTitleWidget()->width(), frame.width() - 10);
        QVERIFY(!frame.isMaximizedFrame());
        dropAt(&frame, place);
        // The button is up: nothing follows the pointer any more.
        const QRect after(frame.pos(), frame.size());
        QTest::mouseMove(frame.windowHandle(), QPoint(frame.width() - 50, 60));
        QCOMPARE(QRect(frame.pos(), frame.size()), after);
        QCOMPARE(frame.GetCurDragDirect(), 8);
    }

    void otherButtonsAndOtherPlacesResizeNothing()
    {
        Host frame;
        QVERIFY(pointer::showAndWait(&frame));
        frame.slot_showMaximized();
        QWindow *window = frame.windowHandle();
        const QPoint edge(normalSize.width() - 3, 250);
        QTest::mousePress(window, Qt::RightButton, Qt::NoModifier, edge);
        QTest::mouseMove(window, edge + QPoint(60, 0));
        QTest::mouseRelease(window, Qt::RightButton, Qt::NoModifier, edge);
        QCOMPARE(frame.size(), normalSize);
        const QPoint place = drag(&frame, QPoint(300, 250), QPoint(50, 50));
        dropAt(&frame, place);
        QCOMPARE(frame.size(), normalSize);
    }

    void nothingResizesWhileMaximised_data()
    {
        QTest::addColumn<QPoint>("from");
        const int right = screenSize().width() - 3;
        const int bottom = screenSize().height() - 3;
        QTest::newRow("right") << QPoint(right, 300);
        QTest::newRow("left") << QPoint(2, 300);
        QTest::newRow("bottom") << QPoint(300, bottom);
        QTest::newRow("bottom right") << QPoint(right, bottom);
    }

    void nothingResizesWhileMaximised()
    {
        QFETCH(QPoint, from);
        Host frame;
        QVERIFY(pointer::showAndWait(&frame));
        // There is an outline of an older move, which must not come back either.
        const QPoint firstPlace = drag(&frame, QPoint(300, 15), QPoint(20, 20));
        auto *outline = frame.findChild<QDialog *>();
        QVERIFY(outline->isVisible());
        dropAt(&frame, firstPlace);
        QVERIFY(!outline->isVisible());
        frame.slot_showMaximized();
        frame.slot_showMaximized();

        const QPoint place = drag(&frame, from, QPoint(-60, -60));
        QCOMPARE(frame.size(), screenSize());
        QVERIFY(!outline->isVisible());
        QVERIFY(frame.isMaximizedFrame());
        dropAt(&frame, place);
        QCOMPARE(frame.size(), screenSize());
        QCOMPARE(frame.pos(), screenRect().topLeft());
    }

    void edgesHaveTheirCursorsButNotWhileMaximised()
    {
        Host frame;
        auto *content = new QLabel("content");
        frame.setCentralWidget(content);
        QVERIFY(pointer::showAndWait(&frame));
        QTest::mouseMove(frame.windowHandle(), QPoint(screenSize().width() - 3, 300));
        QCOMPARE(frame.cursor().shape(), Qt::ArrowCursor);
        frame.slot_showMaximized();
        QTest::mouseMove(frame.windowHandle(), QPoint(normalSize.width() - 3, 250));
        QCOMPARE(frame.cursor().shape(), Qt::SizeHorCursor);
        // The content does not take the edge's cursor over.
        QCOMPARE(content->cursor().shape(), Qt::ArrowCursor);
        frame.slot_showMaximized();
        QTest::mouseMove(frame.windowHandle(), QPoint(screenSize().width() - 3, 300));
        QCOMPARE(frame.cursor().shape(), Qt::ArrowCursor);
    }

    void titleMovesTheWindow()
    {
        Host frame;
        QVERIFY(pointer::showAndWait(&frame));
        frame.slot_showMaximized();
        const QPoint before = frame.pos();
        const QPoint place = drag(&frame, QPoint(300, 15), QPoint(-30, 40));
        QCOMPARE(frame.pos(), before);
        dropAt(&frame, place);
        QCOMPARE(frame.pos(), before + QPoint(-30, 40));
        QCOMPARE(frame.size(), normalSize);
    }

    void contentLeavesTheTitleAndTheEdgesFree()
    {
        Host frame;
        auto *content = new QWidget;
        frame.setCentralWidget(content);
        QVERIFY(pointer::showAndWait(&frame));
        frame.slot_showMaximized();
        QTRY_COMPARE(content->geometry(),
                     QRect(QPoint(), normalSize).marginsRemoved(QMargins(6, 30, 6, 6)));
    }

    void logoStandsBesideItsText()
    {
        QPixmap picture(18, 18);
        picture.fill(Qt::red);
        QTemporaryDir directory;
        const QString path = directory.filePath("logo.png");
        QVERIFY(picture.save(path));

        Host frame;
        QVERIFY(pointer::showAndWait(&frame));
        frame.slot_showMaximized();
        frame.setLogo(path, "Program");
        QCOMPARE(pointer::colorAt(&frame, QPoint(6 + 10 + 9, 6 + 9)), QColor(Qt::red));
        QLabel *text = logoText(frame);
        QVERIFY(text->isVisible());
        QCOMPARE(text->text(), QString("Program"));
        QCOMPARE(text->pos(), QPoint(10 + 18 + 8, 6));
        QVERIFY(text->width() >= text->fontMetrics().horizontalAdvance("Program"));
        frame.setLogo(path, "Another");
        QCOMPARE(text->text(), QString("Another"));
    }

    void longTextIsCutBeforeTheButtons()
    {
        Host frame;
        QVERIFY(pointer::showAndWait(&frame));
        const QString longText = "Begin " + QString(40, 'x') + " End";
        frame.setLogo(QString(), longText);
        QCOMPARE(logoText(frame)->text(), longText); // it has the room
        frame.resizeFrame(QSize(400, 300));
        const auto leftmostButton = [&] {
            return qMin(button(frame, Close)->x(),
                        qMin(button(frame, Minimize)->x(), button(frame, Maximize)->x()));
        };
        QVERIFY(logoText(frame)->text() != longText);
        QVERIFY(logoText(frame)->text().startsWith("Begin"));
        QVERIFY(logoText(frame)->text().endsWith("End"));
        QTRY_VERIFY(logoText(frame)->geometry().right() < leftmostButton());
        frame.slot_showMaximized();
        QCOMPARE(logoText(frame)->text(), longText);
    }

    void closeAsksOnce_data()
    {
        QTest::addColumn<QString>("way");
        QTest::addColumn<bool>("isReady");
        for (const char *way : {"close", "button", "null event"}) {
            QTest::addRow("%s, ready", way) << way << true;
            QTest::addRow("%s, not ready", way) << way << false;
        }
    }

    void closeAsksOnce()
    {
        QFETCH(QString, way);
        QFETCH(bool, isReady);
        Host frame;
        frame.isReady = isReady;
        QVERIFY(pointer::showAndWait(&frame));
        if (way == "close")
            QCOMPARE(frame.close(), isReady);
        else if (way == "button")
            windowmouse::click(button(frame, Close));
        else
            frame.slot_close();
        QCOMPARE(frame.questions, 1);
        QCOMPARE(frame.isVisible(), !isReady);
    }
};

ORVANE_TEST_MAIN(TestHostFrame)
#include "tst_hostframe.moc"
