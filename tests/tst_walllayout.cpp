#include "support/pointer.h"
#include "support/testcase.h"

#include "document.h"
#include "layout/cabinetindex.h"
#include "layout/freeplace.h"
#include "layout/layoutcolors.h"
#include "layout/layoutview.h"
#include "layout/snapping.h"
#include "model/commands.h"
#include "model/sampleprojects.h"
#include "selection.h"

#include <QRandomGenerator>
#include <QScrollBar>
#include <QToolTip>
#include <QUndoStack>

using namespace wall;

namespace
{

const PortRef firstPort{"s1", 1};
const PortRef secondPort{"s1", 2};
const PortRef emptyPort{"s1", 3};

CabinetModel model(const QString &id, const QString &name, QSize size)
{
    CabinetModel model;
    model.id = id;
    model.name = name;
    model.size = size;
    return model;
}

Port port(int number, const QVector<StockEntry> &stock)
{
    Port port;
    port.number = number;
    port.stock = stock;
    return port;
}

/// Two ports with a row of squares each, the upper one of 3 and the lower one of 2, and one without
/// any; one square is left on the first port, 2 on the third.
ProjectData twoRows()
{
    ProjectData data;
    data.models = {model("square", "Square", QSize(100, 100)),
                   model("flat", "Flat", QSize(60, 40))};
    Sender sender;
    sender.id = "s1";
    sender.name = "Left";
    sender.ports = {port(1, {{"square", 4, {}}, {"flat", 2, {}}}), port(2, {{"square", 2, {}}}),
                    port(3, {{"square", 2, {}}})};
    data.senders = {sender};
    for (const int x : {0, 100, 200})
        data.cabinets.append({0, "square", firstPort, QPoint(x, 0), 0, {}});
    for (const int x : {0, 100})
        data.cabinets.append({0, "square", secondPort, QPoint(x, 300), 0, {}});
    return data;
}

/// A document in a view of 800 by 600 pixels at the zoom 1, and a hand over it.
struct Stage {
    Document document;
    Selection selection{document.project()};
    LayoutView view{&document, &selection};
    QStringList messages;

    explicit Stage(const ProjectData &data = twoRows())
    {
        document.reset(data, QString());
        QObject::connect(&view, &LayoutView::messageRequested,
                         [this](const QString &message) { messages << message; });
        view.resize(800, 600);
        view.show();
        QCoreApplication::processEvents();
        view.setZoom(1.0);
        view.centerOn(200, 200);
        view.setSnapsToGrid(false);
        view.setSnapsToCabinets(false);
    }

    Project *project() const { return document.project(); }
    CabinetId cabinet(const PortRef &port, int place) const
    {
        return project()->line(port).at(place);
    }
    QPoint position(const PortRef &port, int place) const
    {
        return project()->cabinet(cabinet(port, place))->position;
    }
    CabinetIds selected() const
    {
        CabinetIds ids = selection.cabinets();
        std::sort(ids.begin(), ids.end());
        return ids;
    }
    int steps() const { return document.undoStack()->count(); }

    QPoint inView(double x, double y) const
    {
        return view.viewportTransform().map(QPointF(x, y)).toPoint();
    }
    QPointF onWall(QPoint inView) const
    {
        return view.viewportTransform().inverted().map(QPointF(inView));
    }
    QColor colorAt(double x, double y) { return pointer::colorAt(view.viewport(), inView(x, y)); }

    void mouse(QEvent::Type type, QPoint onWall, Qt::KeyboardModifiers modifiers = Qt::NoModifier,
               Qt::MouseButton button = Qt::LeftButton)
    {
        const QPoint place = inView(onWall.x(), onWall.y());
        mouseInView(type, place, modifiers, button);
    }
    void mouseInView(QEvent::Type type, QPoint place, Qt::KeyboardModifiers modifiers,
                     Qt::MouseButton button)
    {
        const Qt::MouseButtons held =
            type == QEvent::MouseButtonRelease ? Qt::NoButton : Qt::MouseButtons(button);
        QMouseEvent event(type, place, view.viewport()->mapToGlobal(place),
                          type == QEvent::MouseMove ? Qt::NoButton : button, held, modifiers);
        QApplication::sendEvent(view.viewport(), &event);
    }
    void press(QPoint onWall, Qt::KeyboardModifiers modifiers = Qt::NoModifier)
    {
        mouse(QEvent::MouseButtonPress, onWall, modifiers);
    }
    void move(QPoint onWall, Qt::KeyboardModifiers modifiers = Qt::NoModifier)
    {
        mouse(QEvent::MouseMove, onWall, modifiers);
    }
    void release(QPoint onWall, Qt::KeyboardModifiers modifiers = Qt::NoModifier)
    {
        mouse(QEvent::MouseButtonRelease, onWall, modifiers);
    }
    void click(QPoint onWall, Qt::KeyboardModifiers modifiers = Qt::NoModifier)
    {
        press(onWall, modifiers);
        release(onWall, modifiers);
    }
    void drag(QPoint from, QPoint to, Qt::KeyboardModifiers modifiers = Qt::NoModifier)
    {
        press(from, modifiers);
        move((from + to) / 2, modifiers);
        move(to, modifiers);
        release(to, modifiers);
    }
    void key(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier)
    {
        QTest::keyClick(&view, key, modifiers);
    }
    void turnWheel(QPoint place, int notches, Qt::KeyboardModifiers modifiers)
    {
        QWheelEvent event(place, view.viewport()->mapToGlobal(place), QPoint(),
                          QPoint(0, notches * 120), Qt::NoButton, modifiers, Qt::NoScrollPhase,
                          false);
        QApplication::sendEvent(view.viewport(), &event);
    }
};

/// Adds up what is painted of a widget while it lives.
class PaintedArea : public QObject
{
public:
    explicit PaintedArea(QWidget *widget) { widget->installEventFilter(this); }
    QRegion region;

    bool eventFilter(QObject *, QEvent *event) override
    {
        if (event->type() == QEvent::Paint)
            region += static_cast<QPaintEvent *>(event)->region();
        return false;
    }
};

} // namespace

Q_DECLARE_METATYPE(QVector<QRect>)
Q_DECLARE_METATYPE(Qt::Key)
Q_DECLARE_METATYPE(QVector<int>)

class TestWallLayout : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    // The helpers

    void indexFindsWhatLiesInAnArea()
    {
        QRandomGenerator random(7);
        const auto randomRect = [&random](int reach, int longest) {
            return QRect(random.bounded(-reach, reach), random.bounded(-reach, reach),
                         random.bounded(1, longest), random.bounded(1, longest));
        };
        CabinetIndex index;
        QHash<CabinetId, QRect> cabinets;
        for (CabinetId id = 1; id <= 600; ++id) {
            cabinets[id] = randomRect(20000, id % 10 == 0 ? 60000 : 300);
            index.insert(id, cabinets[id]);
        }
        for (CabinetId id = 1; id <= 600; id += 3)
            index.remove(id, cabinets.take(id));
        int hits = 0;
        for (int i = 0; i < 400; ++i) {
            const QRect area = randomRect(25000, i % 2 == 0 ? 500 : 30000);
            CabinetIds expected;
            for (auto cabinet = cabinets.cbegin(); cabinet != cabinets.cend(); ++cabinet) {
                if (cabinet->intersects(area))
                    expected.append(cabinet.key());
            }
            std::sort(expected.begin(), expected.end());
            QCOMPARE(index.in(area), expected);
            hits += expected.size();
        }
        QVERIFY(hits > 1000);
        QCOMPARE(index.in(QRect()), CabinetIds());
    }

    void movesSnapToEdgesAndGrid_data()
    {
        QTest::addColumn<QPoint>("delta");
        QTest::addColumn<int>("gridSize");
        QTest::addColumn<QVector<QRect>>("neighbours");
        QTest::addColumn<QPoint>("snapped");
        const QVector<QRect> one{QRect(200, 0, 100, 100)};
        QTest::newRow("nothing to snap to")
            << QPoint(43, 17) << 0 << QVector<QRect>() << QPoint(43, 17);
        QTest::newRow("grid") << QPoint(43, 17) << 32 << QVector<QRect>() << QPoint(32, 32);
        QTest::newRow("grid, negative")
            << QPoint(-43, -17) << 32 << QVector<QRect>() << QPoint(-32, -32);
        QTest::newRow("right edge to a left one") << QPoint(95, 50) << 0 << one << QPoint(100, 50);
        QTest::newRow("both directions") << QPoint(104, -7) << 0 << one << QPoint(100, 0);
        QTest::newRow("at the tolerance") << QPoint(92, 50) << 0 << one << QPoint(100, 50);
        QTest::newRow("beyond the tolerance") << QPoint(91, 50) << 0 << one << QPoint(91, 50);
        QTest::newRow("an edge wins over the grid")
            << QPoint(95, 50) << 32 << one << QPoint(100, 64);
        QTest::newRow("the nearest edge wins")
            << QPoint(95, 50) << 0 << QVector<QRect>{QRect(200, 0, 9, 9), QRect(193, 900, 90, 90)}
            << QPoint(93, 50);
    }

    void movesSnapToEdgesAndGrid()
    {
        QFETCH(QPoint, delta);
        QFETCH(int, gridSize);
        QFETCH(QVector<QRect>, neighbours);
        QFETCH(QPoint, snapped);
        QCOMPARE(snappedMove(QRect(0, 0, 100, 100), delta, {gridSize, neighbours, 8}), snapped);
    }

    void nextPlaceContinuesTheLine_data()
    {
        QTest::addColumn<QVector<QRect>>("line");
        QTest::addColumn<QVector<QRect>>("taken");
        QTest::addColumn<QPoint>("place");
        const QRect a(0, 0, 10, 10);
        const QRect right(10, 0, 10, 10);
        const QRect left(-10, 0, 10, 10);
        const QRect below(0, 10, 10, 10);
        const QRect above(0, -10, 10, 10);
        QTest::newRow("one: to the right")
            << QVector<QRect>{a} << QVector<QRect>() << QPoint(10, 0);
        QTest::newRow("goes on to the left")
            << QVector<QRect>{right, a} << QVector<QRect>() << QPoint(-10, 0);
        QTest::newRow("goes on upward")
            << QVector<QRect>{below, a} << QVector<QRect>() << QPoint(0, -10);
        QTest::newRow("goes on downward")
            << QVector<QRect>{above, a} << QVector<QRect>() << QPoint(0, 10);
        QTest::newRow("turns down")
            << QVector<QRect>{left, a} << QVector<QRect>{right} << QPoint(0, 10);
        QTest::newRow("turns up at last")
            << QVector<QRect>{left, a} << QVector<QRect>{right, below} << QPoint(0, -10);
        QTest::newRow("all beside is taken")
            << QVector<QRect>{left, a} << QVector<QRect>{right, below, above} << QPoint(-10, -10);
    }

    void nextPlaceContinuesTheLine()
    {
        QFETCH(QVector<QRect>, line);
        QFETCH(QVector<QRect>, taken);
        QFETCH(QPoint, place);
        const QVector<QRect> all = line + taken;
        const auto found = nextPlace(line, QSize(10, 10), [&all](const QRect &rect) {
            return std::none_of(all.cbegin(), all.cend(),
                                [&rect](const QRect &each) { return each.intersects(rect); });
        });
        QVERIFY(found);
        QCOMPARE(*found, place);
        QVERIFY(!nextPlace(line, QSize(10, 10), [](const QRect &) { return false; }));
    }

    // Settings

    void startsWithItsDefaults()
    {
        Document document;
        Selection selection(document.project());
        LayoutView view(&document, &selection);
        QVERIFY(view.isGridVisible());
        QCOMPARE(view.gridSize(), 32);
        QVERIFY(view.snapsToGrid());
        QVERIFY(view.snapsToCabinets());
        QCOMPARE(view.viewMode(), ViewMode::ModelColors);
        QCOMPARE(view.lineDisplay(), LineDisplay::AllPorts);
        QVERIFY(!view.isCurrentPortEmphasized());
        QVERIFY(!view.isOrdering());
        QCOMPARE(view.ghostBounds(), QRect());
        QCOMPARE(view.accessibleName(), QString("Wall layout"));
        QVERIFY(view.acceptDrops());
    }

    void settersTellOfChangesOnce()
    {
        Stage stage;
        LayoutView &view = stage.view;
        QSignalSpy grid(&view, &LayoutView::gridVisibleChanged);
        QSignalSpy size(&view, &LayoutView::gridSizeChanged);
        QSignalSpy snapGrid(&view, &LayoutView::snapsToGridChanged);
        QSignalSpy snapCabinets(&view, &LayoutView::snapsToCabinetsChanged);
        QSignalSpy mode(&view, &LayoutView::viewModeChanged);
        QSignalSpy display(&view, &LayoutView::lineDisplayChanged);
        QSignalSpy emphasized(&view, &LayoutView::currentPortEmphasizedChanged);
        for (int i = 0; i < 2; ++i) {
            view.setGridVisible(false);
            view.setGridSize(-5);
            view.setSnapsToGrid(true);
            view.setSnapsToCabinets(true);
            view.setViewMode(ViewMode::PortColors);
            view.setLineDisplay(LineDisplay::None);
            view.setCurrentPortEmphasized(true);
        }
        QCOMPARE(grid.count(), 1);
        QCOMPARE(size.count(), 1);
        QCOMPARE(snapGrid.count(), 1);
        QCOMPARE(snapCabinets.count(), 1);
        QCOMPARE(mode.count(), 1);
        QCOMPARE(display.count(), 1);
        QCOMPARE(emphasized.count(), 1);
        QVERIFY(!view.isGridVisible());
        QCOMPARE(view.gridSize(), 1);
        QVERIFY(view.snapsToGrid());
        QVERIFY(view.snapsToCabinets());
        QCOMPARE(view.viewMode(), ViewMode::PortColors);
        QCOMPARE(view.lineDisplay(), LineDisplay::None);
        QVERIFY(view.isCurrentPortEmphasized());
    }

    // Zoom and scrolling

    void wholeWallIsInSightUntilItIsZoomed()
    {
        Stage stage(*generateProject(2000));
        stage.view.zoomToFit();
        const auto isAllInSight = [&stage] {
            return stage.view.visibleArea().contains(stage.project()->bounds());
        };
        QVERIFY(isAllInSight());
        const double zoom = stage.view.zoom();
        stage.view.resize(400, 300);
        QVERIFY(isAllInSight());
        QVERIFY(stage.view.zoom() < zoom);
        stage.document.reset(twoRows(), QString());
        QVERIFY(isAllInSight());
        stage.view.setZoom(3.0);
        stage.view.resize(500, 300);
        QCOMPARE(stage.view.zoom(), 3.0);
    }

    void zoomStaysInItsLimits()
    {
        Stage stage;
        QSignalSpy changed(&stage.view, &LayoutView::zoomChanged);
        stage.view.setZoom(1000);
        QCOMPARE(stage.view.zoom(), LayoutView::maxZoom);
        stage.view.zoomIn();
        QCOMPARE(changed.count(), 1);
        QCOMPARE(changed.at(0).at(0).toDouble(), LayoutView::maxZoom);
        stage.view.setZoom(0);
        QCOMPARE(stage.view.zoom(), LayoutView::minZoom);
        stage.view.zoomOut();
        QCOMPARE(changed.count(), 2);
    }

    void zoomingKeepsTheMiddle()
    {
        Stage stage;
        const QPointF middle = stage.view.visibleArea().center();
        for (int i = 0; i < 6; ++i)
            stage.view.zoomIn();
        for (int i = 0; i < 3; ++i)
            stage.view.zoomOut();
        QVERIFY(QLineF(middle, stage.view.visibleArea().center()).length() < 3);
        QCOMPARE(stage.view.zoom(), std::pow(1.25, 3));
    }

    void wheelZoomsAroundThePointer_data()
    {
        QTest::addColumn<int>("notches");
        QTest::addColumn<Qt::KeyboardModifiers>("modifiers");
        QTest::newRow("in") << 1 << Qt::KeyboardModifiers(Qt::NoModifier);
        QTest::newRow("out") << -3 << Qt::KeyboardModifiers(Qt::NoModifier);
        QTest::newRow("in, Control") << 4 << Qt::KeyboardModifiers(Qt::ControlModifier);
    }

    void wheelZoomsAroundThePointer()
    {
        QFETCH(int, notches);
        QFETCH(Qt::KeyboardModifiers, modifiers);
        Stage stage;
        const QPoint place(700, 80);
        const QPointF before = stage.onWall(place);
        stage.turnWheel(place, notches, modifiers);
        QCOMPARE(stage.view.zoom(), std::pow(1.25, notches));
        const QPointF drift = (stage.onWall(place) - before) * stage.view.zoom();
        QVERIFY(qAbs(drift.x()) <= 1 && qAbs(drift.y()) <= 1);
    }

    void shiftAndTheWheelScrollSideways()
    {
        Stage stage;
        const QRectF before = stage.view.visibleArea();
        stage.turnWheel(QPoint(100, 100), -1, Qt::ShiftModifier);
        QCOMPARE(stage.view.visibleArea(), before.translated(120, 0));
        QCOMPARE(stage.view.zoom(), 1.0);
    }

    void zoomLevelsFitASlider()
    {
        Stage stage;
        for (int level = 0; level <= LayoutView::mostZoomLevel; ++level) {
            stage.view.setZoomLevel(level);
            QCOMPARE(stage.view.zoomLevel(), level);
        }
        QCOMPARE(stage.view.zoom(), LayoutView::maxZoom);
        stage.view.setZoom(1.234);
        stage.view.setZoomLevel(stage.view.zoomLevel()); // as a slider that follows does
        QCOMPARE(stage.view.zoom(), 1.234);
    }

    void wallIsMovedByHand_data()
    {
        QTest::addColumn<bool>("isSpace");
        QTest::newRow("middle button") << false;
        QTest::newRow("Space") << true;
    }

    void wallIsMovedByHand()
    {
        QFETCH(bool, isSpace);
        Stage stage;
        const QRectF before = stage.view.visibleArea();
        const Qt::MouseButton button = isSpace ? Qt::LeftButton : Qt::MiddleButton;
        if (isSpace)
            QTest::keyPress(&stage.view, Qt::Key_Space);
        const QPoint start = stage.inView(50, 50); // on a cabinet
        stage.mouseInView(QEvent::MouseButtonPress, start, Qt::NoModifier, button);
        QCOMPARE(stage.view.viewport()->cursor().shape(), Qt::ClosedHandCursor);
        stage.mouseInView(QEvent::MouseMove, start + QPoint(30, 10), Qt::NoModifier, button);
        stage.mouseInView(QEvent::MouseMove, start + QPoint(60, -20), Qt::NoModifier, button);
        stage.mouseInView(QEvent::MouseButtonRelease, start, Qt::NoModifier, button);
        QCOMPARE(stage.view.visibleArea(), before.translated(-60, 20));
        QCOMPARE(stage.steps(), 0);
        QVERIFY(stage.selected().isEmpty());
        if (isSpace) {
            QCOMPARE(stage.view.viewport()->cursor().shape(), Qt::OpenHandCursor);
            QTest::keyRelease(&stage.view, Qt::Key_Space);
        }
        QCOMPARE(stage.view.viewport()->cursor().shape(), Qt::ArrowCursor);
    }

    void placeUnderThePointerIsTold()
    {
        Stage stage;
        QSignalSpy moved(&stage.view, &LayoutView::cursorMoved);
        QSignalSpy left(&stage.view, &LayoutView::cursorLeft);
        stage.move(QPoint(-17, 230));
        QCOMPARE(moved.count(), 1);
        QCOMPARE(moved.at(0).at(0).toPoint(), QPoint(-17, 230));
        QEvent leave(QEvent::Leave);
        QApplication::sendEvent(stage.view.viewport(), &leave);
        QCOMPARE(left.count(), 1);
    }

    void toolTipTellsAboutACabinet()
    {
        Stage stage;
        stage.document.push(new RotateCabinetsCommand(stage.project(),
                                                      CabinetIds{stage.cabinet(firstPort, 1)}, 30));
        const QPoint place = stage.inView(150, 50);
        QHelpEvent help(QEvent::ToolTip, place, stage.view.viewport()->mapToGlobal(place));
        QApplication::sendEvent(stage.view.viewport(), &help);
        QCOMPARE(
            QToolTip::text(),
            QString("Square, 100 × 100\nLeft, port 1, cabinet 2 of 3\nAt 100, 0, rotated by 30°"));
        QToolTip::hideText();
    }

    // Selecting

    void clicksSelect()
    {
        Stage stage;
        QSignalSpy changed(&stage.selection, &Selection::cabinetsChanged);
        const CabinetId a = stage.cabinet(firstPort, 0);
        const CabinetId b = stage.cabinet(firstPort, 1);
        const QPoint onA(50, 50);
        const QPoint onB(150, 50);
        stage.click(onA);
        QCOMPARE(stage.selected(), (CabinetIds{a}));
        QCOMPARE(changed.count(), 1);
        stage.click(onB, Qt::ControlModifier);
        QCOMPARE(stage.selected(), (CabinetIds{a, b}));
        stage.click(onA, Qt::ControlModifier);
        QCOMPARE(stage.selected(), (CabinetIds{b}));
        stage.click(onA, Qt::ShiftModifier);
        QCOMPARE(stage.selected(), (CabinetIds{a, b}));
        stage.click(onA, Qt::ShiftModifier);
        QCOMPARE(stage.selected(), (CabinetIds{a, b}));
        stage.click(onB); // one of several, without a drag
        QCOMPARE(stage.selected(), (CabinetIds{b}));
        stage.click(QPoint(50, 200)); // the ground
        QVERIFY(stage.selected().isEmpty());
        QCOMPARE(changed.count(), 6);
        QCOMPARE(stage.steps(), 0);
    }

    void topmostCabinetIsHit()
    {
        Stage stage;
        stage.document.push(new MoveCabinetsCommand(
            stage.project(), {{stage.cabinet(secondPort, 0), QPoint(40, 40)}}));
        stage.click(QPoint(60, 60));
        QCOMPARE(stage.selected(), (CabinetIds{stage.cabinet(secondPort, 0)}));
    }

    void rotatedCabinetIsHitWhereItLies()
    {
        Stage stage;
        const CabinetId id = stage.cabinet(secondPort, 1);
        stage.document.push(new RotateCabinetsCommand(stage.project(), CabinetIds{id}, 45));
        stage.click(QPoint(195, 305)); // where its corner was
        QVERIFY(stage.selected().isEmpty());
        stage.click(QPoint(215, 350)); // where its corner is
        QCOMPARE(stage.selected(), (CabinetIds{id}));
        stage.drag(QPoint(225, 270), QPoint(200, 300)); // inside its bounds, beside it
        QVERIFY(stage.selected().isEmpty());
        stage.drag(QPoint(225, 270), QPoint(190, 340));
        QCOMPARE(stage.selected(), (CabinetIds{id}));
    }

    void rubberBandSelectsWhatItTouches()
    {
        Stage stage;
        const CabinetIds upper = stage.project()->line(firstPort);
        stage.drag(QPoint(250, 150), QPoint(150, 50));
        QCOMPARE(stage.selected(), upper.mid(1));
        stage.drag(QPoint(-20, 250), QPoint(20, 310), Qt::ControlModifier);
        QCOMPARE(stage.selected(), upper.mid(1) << stage.cabinet(secondPort, 0));
        stage.drag(QPoint(-20, 250), QPoint(-10, 260));
        QVERIFY(stage.selected().isEmpty());
    }

    void escapeGivesTheRubberBandUp()
    {
        Stage stage;
        stage.selection.setCabinets({stage.cabinet(secondPort, 0)});
        stage.press(QPoint(250, 150), Qt::ShiftModifier);
        stage.move(QPoint(150, 50), Qt::ShiftModifier);
        QCOMPARE(stage.selected().size(), 3);
        stage.key(Qt::Key_Escape);
        QCOMPARE(stage.selected(), (CabinetIds{stage.cabinet(secondPort, 0)}));
        stage.move(QPoint(50, 50));
        stage.release(QPoint(50, 50));
        QCOMPARE(stage.selected().size(), 1);
        stage.key(Qt::Key_Escape);
        QVERIFY(stage.selected().isEmpty());
    }

    void allAreSelectedByKey()
    {
        Stage stage;
        stage.key(Qt::Key_A, Qt::ControlModifier);
        QCOMPARE(stage.selected().size(), 5);
    }

    void controlAndArrowsWalk()
    {
        Stage stage;
        const CabinetIds upper = stage.project()->line(firstPort);
        stage.selection.setCabinets({upper.at(0)});
        stage.key(Qt::Key_Right, Qt::ControlModifier);
        QCOMPARE(stage.selected(), (CabinetIds{upper.at(1)}));
        stage.key(Qt::Key_Right, Qt::ControlModifier | Qt::ShiftModifier);
        QCOMPARE(stage.selected(), upper.mid(1));
        stage.key(Qt::Key_Right, Qt::ControlModifier); // there is none
        QCOMPARE(stage.selected(), upper.mid(1));
        stage.selection.setCabinets({upper.at(1)});
        stage.key(Qt::Key_Down, Qt::ControlModifier);
        QCOMPARE(stage.selected(), (CabinetIds{stage.cabinet(secondPort, 1)}));
        stage.key(Qt::Key_Left, Qt::ControlModifier);
        QCOMPARE(stage.selected(), (CabinetIds{stage.cabinet(secondPort, 0)}));
        stage.selection.clear();
        stage.view.centerOn(250, 60);
        stage.key(Qt::Key_Up, Qt::ControlModifier); // the one in the middle of the view
        QCOMPARE(stage.selected(), (CabinetIds{upper.at(2)}));
        QCOMPARE(stage.steps(), 0);
    }

    void selectionOfOthersIsShown()
    {
        Stage stage;
        const QColor before = stage.colorAt(1, 20);
        QVERIFY(before != layoutcolors::accent);
        stage.selection.setCabinets({stage.cabinet(firstPort, 0)});
        QCOMPARE(stage.colorAt(1, 20), layoutcolors::accent);
        stage.selection.clear();
        QCOMPARE(stage.colorAt(1, 20), before);
    }

    // Moving

    void dragMovesTheSelectionInOneStep()
    {
        Stage stage;
        const CabinetIds upper = stage.project()->line(firstPort);
        stage.selection.setCabinets(upper.mid(0, 2));
        const QColor cabinetColor = stage.colorAt(20, 80);
        const QColor ground = stage.colorAt(25, 175);
        stage.drag(QPoint(50, 50), QPoint(57, 147));
        QCOMPARE(stage.position(firstPort, 0), QPoint(7, 97));
        QCOMPARE(stage.position(firstPort, 1), QPoint(107, 97));
        QCOMPARE(stage.position(firstPort, 2), QPoint(200, 0));
        QCOMPARE(stage.steps(), 1);
        QCOMPARE(stage.selected(), upper.mid(0, 2));
        QCOMPARE(stage.colorAt(25, 175), cabinetColor);
        stage.document.undoStack()->undo();
        QCOMPARE(stage.position(firstPort, 0), QPoint(0, 0));
        QCOMPARE(stage.colorAt(20, 80), cabinetColor);
        QCOMPARE(stage.colorAt(25, 175), ground);
    }

    void dragTakesTheCabinetUnderThePointer()
    {
        Stage stage;
        stage.selection.setCabinets({stage.cabinet(firstPort, 2)});
        stage.drag(QPoint(50, 350), QPoint(50, 450));
        QCOMPARE(stage.position(secondPort, 0), QPoint(0, 400));
        QCOMPARE(stage.position(firstPort, 2), QPoint(200, 0));
        QCOMPARE(stage.selected(), (CabinetIds{stage.cabinet(secondPort, 0)}));
    }

    void shortWayIsNoDrag()
    {
        Stage stage;
        stage.press(QPoint(50, 50));
        stage.move(QPoint(50 + QApplication::startDragDistance() - 1, 50));
        stage.release(QPoint(50 + QApplication::startDragDistance() - 1, 50));
        QCOMPARE(stage.position(firstPort, 0), QPoint(0, 0));
        QCOMPARE(stage.steps(), 0);
    }

    void dragSnaps_data()
    {
        QTest::addColumn<bool>("toGrid");
        QTest::addColumn<bool>("toCabinets");
        QTest::addColumn<bool>("isControl");
        QTest::addColumn<QPoint>("position");
        QTest::newRow("not") << false << false << false << QPoint(3, 105);
        QTest::newRow("to the grid") << true << false << false << QPoint(0, 96);
        QTest::newRow("to cabinets") << false << true << false << QPoint(0, 100);
        QTest::newRow("to both") << true << true << false << QPoint(0, 100);
        QTest::newRow("suspended by Control") << true << true << true << QPoint(3, 105);
    }

    void dragSnaps()
    {
        QFETCH(bool, toGrid);
        QFETCH(bool, toCabinets);
        QFETCH(bool, isControl);
        QFETCH(QPoint, position);
        Stage stage;
        stage.view.setSnapsToGrid(toGrid);
        stage.view.setSnapsToCabinets(toCabinets);
        const Qt::KeyboardModifiers modifiers =
            isControl ? Qt::KeyboardModifiers(Qt::ControlModifier) : Qt::NoModifier;
        stage.press(QPoint(50, 350));
        stage.move(QPoint(60, 300), modifiers);
        stage.move(QPoint(53, 155), modifiers);
        stage.release(QPoint(53, 155), modifiers);
        QCOMPARE(stage.position(secondPort, 0), position);
    }

    void escapeGivesADragUp()
    {
        Stage stage;
        stage.press(QPoint(50, 50));
        stage.move(QPoint(90, 90));
        QCOMPARE(stage.position(firstPort, 0), QPoint(40, 40));
        stage.key(Qt::Key_Escape);
        QCOMPARE(stage.position(firstPort, 0), QPoint(0, 0));
        QCOMPARE(stage.steps(), 0);
        stage.move(QPoint(150, 150));
        stage.release(QPoint(150, 150));
        QCOMPARE(stage.position(firstPort, 0), QPoint(0, 0));
        QCOMPARE(stage.selected().size(), 1);
    }

    void dragGoesOnAfterAnUndo()
    {
        Stage stage;
        stage.press(QPoint(50, 50));
        stage.move(QPoint(90, 90));
        stage.document.undoStack()->undo();
        stage.move(QPoint(100, 120));
        stage.release(QPoint(100, 120));
        QCOMPARE(stage.position(firstPort, 0), QPoint(50, 70));
    }

    void dragEndsWhenItsCabinetsGo_data()
    {
        QTest::addColumn<bool>("isReset");
        QTest::newRow("removed") << false;
        QTest::newRow("another project") << true;
    }

    void dragEndsWhenItsCabinetsGo()
    {
        QFETCH(bool, isReset);
        Stage stage;
        stage.press(QPoint(50, 50));
        stage.move(QPoint(90, 90));
        if (isReset)
            stage.document.reset(twoRows(), QString());
        else
            stage.view.removeSelected();
        const int steps = stage.steps();
        stage.move(QPoint(150, 150));
        stage.release(QPoint(150, 150));
        QCOMPARE(stage.steps(), steps);
        QVERIFY(stage.selected().isEmpty());
    }

    void pressWhoseSelectionGoesMovesNothing()
    {
        Stage stage;
        stage.press(QPoint(50, 50));
        stage.selection.clear();
        stage.move(QPoint(150, 150));
        stage.release(QPoint(150, 150));
        QCOMPARE(stage.steps(), 0);
    }

    void arrowsMove_data()
    {
        QTest::addColumn<Qt::Key>("key");
        QTest::addColumn<bool>("snapsToGrid");
        QTest::addColumn<bool>("isShift");
        QTest::addColumn<QPoint>("position");
        QTest::newRow("left") << Qt::Key_Left << true << false << QPoint(-32, 0);
        QTest::newRow("right") << Qt::Key_Right << true << false << QPoint(32, 0);
        QTest::newRow("up") << Qt::Key_Up << true << false << QPoint(0, -32);
        QTest::newRow("down") << Qt::Key_Down << true << false << QPoint(0, 32);
        QTest::newRow("a pixel") << Qt::Key_Down << true << true << QPoint(0, 1);
        QTest::newRow("no grid") << Qt::Key_Right << false << false << QPoint(1, 0);
    }

    void arrowsMove()
    {
        QFETCH(Qt::Key, key);
        QFETCH(bool, snapsToGrid);
        QFETCH(bool, isShift);
        QFETCH(QPoint, position);
        Stage stage;
        stage.view.setSnapsToGrid(snapsToGrid);
        stage.selection.setCabinets({stage.cabinet(firstPort, 0)});
        stage.key(key, isShift ? Qt::ShiftModifier : Qt::NoModifier);
        QCOMPARE(stage.position(firstPort, 0), position);
        QCOMPARE(stage.steps(), 1);
    }

    void seriesOfArrowsIsOneStep()
    {
        Stage stage;
        stage.selection.setCabinets({stage.cabinet(firstPort, 0)});
        for (int i = 0; i < 5; ++i)
            stage.key(Qt::Key_Right);
        stage.key(Qt::Key_Down);
        QCOMPARE(stage.steps(), 1);
        stage.click(QPoint(150, 350)); // something else
        stage.selection.setCabinets({stage.cabinet(firstPort, 0)});
        stage.key(Qt::Key_Down);
        QCOMPARE(stage.steps(), 2);
        stage.document.undoStack()->undo();
        QCOMPARE(stage.position(firstPort, 0), QPoint(5, 1));
        stage.key(Qt::Key_Down);
        QCOMPARE(stage.steps(), 2);
        stage.document.undoStack()->undo();
        stage.document.undoStack()->undo();
        QCOMPARE(stage.position(firstPort, 0), QPoint(0, 0));
    }

    void arrowsWithoutASelectionScroll()
    {
        Stage stage;
        const int before = stage.view.horizontalScrollBar()->value();
        stage.key(Qt::Key_Right);
        QVERIFY(stage.view.horizontalScrollBar()->value() > before);
        QCOMPARE(stage.steps(), 0);
    }

    void movesStopWherePositionsEnd()
    {
        Stage stage;
        const CabinetId id = stage.cabinet(firstPort, 0);
        stage.document.push(
            new MoveCabinetsCommand(stage.project(), {{id, QPoint(maxCoordinate - 3, 0)}}));
        stage.selection.setCabinets({id});
        for (int i = 0; i < 5; ++i)
            stage.key(Qt::Key_Right);
        QCOMPARE(stage.position(firstPort, 0), QPoint(maxCoordinate, 0));
        stage.view.zoomToFit();
        QVERIFY(stage.view.visibleArea().contains(stage.project()->bounds()));
    }

    // Removing

    void deleteRemovesTheSelection()
    {
        Stage stage;
        const QColor cabinetColor = stage.colorAt(20, 80);
        stage.selection.setCabinets({stage.cabinet(firstPort, 0)});
        stage.key(Qt::Key_Delete);
        QCOMPARE(stage.project()->cabinetCount(), 4);
        QCOMPARE(stage.steps(), 1);
        QVERIFY(stage.colorAt(20, 80) != cabinetColor);
        stage.document.undoStack()->undo();
        QCOMPARE(stage.project()->cabinetCount(), 5);
        QCOMPARE(stage.colorAt(20, 80), cabinetColor);
        stage.selection.clear();
        stage.key(Qt::Key_Delete); // nothing is selected
        QCOMPARE(stage.project()->cabinetCount(), 5);
        stage.document.push(new RemoveSenderCommand(stage.project(), "s1"));
        QVERIFY(stage.colorAt(20, 80) != cabinetColor);
        stage.document.undoStack()->undo();
        QCOMPARE(stage.colorAt(20, 80), cabinetColor);
    }

    // Colours and data lines

    void cabinetsAreColoredByTheViewMode()
    {
        Stage stage;
        stage.view.setLineDisplay(LineDisplay::None);
        const QPoint upper(20, 80);
        const QPoint lower(20, 380);
        QCOMPARE(stage.colorAt(upper.x(), upper.y()), layoutcolors::ofModel(0));
        QCOMPARE(stage.colorAt(lower.x(), lower.y()), layoutcolors::ofModel(0));
        stage.view.setViewMode(ViewMode::PortColors);
        QCOMPARE(stage.colorAt(upper.x(), upper.y()), layoutcolors::ofPort(0));
        QCOMPARE(stage.colorAt(lower.x(), lower.y()), layoutcolors::ofPort(1));
        stage.view.setViewMode(ViewMode::DataLines);
        QCOMPARE(stage.colorAt(upper.x(), upper.y()), layoutcolors::cabinet);
        stage.selection.setPort(firstPort);
        stage.view.setCurrentPortEmphasized(true);
        QCOMPARE(stage.colorAt(upper.x(), upper.y()), layoutcolors::cabinet);
        QCOMPARE(stage.colorAt(lower.x(), lower.y()), layoutcolors::dimmed(layoutcolors::cabinet));
    }

    void colorsOfPortsDiffer()
    {
        for (int a = 0; a < 16; ++a) {
            for (int b = a + 1; b < 16; ++b) {
                QVERIFY(layoutcolors::ofPort(a) != layoutcolors::ofPort(b));
                QVERIFY(layoutcolors::ofLine(a) != layoutcolors::ofLine(b));
            }
        }
    }

    void linesAreDrawnAsChosen_data()
    {
        QTest::addColumn<LineDisplay>("display");
        QTest::addColumn<ViewMode>("mode");
        QTest::addColumn<bool>("hasUpper");
        QTest::addColumn<bool>("hasLower");
        QTest::newRow("all") << LineDisplay::AllPorts << ViewMode::ModelColors << true << true;
        QTest::newRow("current") << LineDisplay::CurrentPort << ViewMode::ModelColors << false
                                 << true;
        QTest::newRow("none") << LineDisplay::None << ViewMode::ModelColors << false << false;
        QTest::newRow("none, in their mode")
            << LineDisplay::None << ViewMode::DataLines << true << true;
    }

    void linesAreDrawnAsChosen()
    {
        QFETCH(LineDisplay, display);
        QFETCH(ViewMode, mode);
        QFETCH(bool, hasUpper);
        QFETCH(bool, hasLower);
        Stage stage;
        stage.selection.setPort(secondPort);
        stage.view.setLineDisplay(display);
        stage.view.setViewMode(mode);
        QCOMPARE(stage.colorAt(75, 50) == layoutcolors::ofLine(0), hasUpper);
        QCOMPARE(stage.colorAt(75, 350) == layoutcolors::ofLine(1), hasLower);
        // Near enough, the number of the first cabinet is filled.
        QCOMPARE(stage.colorAt(43, 50) == layoutcolors::ofLine(0), hasUpper);
        QCOMPARE(stage.colorAt(143, 50) == layoutcolors::ground, hasUpper);
    }

    void lineFollowsItsCabinets()
    {
        Stage stage;
        QCOMPARE(stage.colorAt(75, 350), layoutcolors::ofLine(1));
        stage.document.push(new MoveCabinetsCommand(
            stage.project(), CabinetIds{stage.cabinet(secondPort, 1)}, QPoint(0, 150)));
        QVERIFY(stage.colorAt(75, 350) != layoutcolors::ofLine(1));
        stage.document.undoStack()->undo();
        QCOMPARE(stage.colorAt(75, 350), layoutcolors::ofLine(1));
        CabinetModel narrow = *stage.project()->model("square");
        narrow.size = QSize(100, 60);
        stage.document.push(new ChangeModelCommand(stage.project(), narrow));
        QCOMPARE(stage.colorAt(75, 330), layoutcolors::ofLine(1));
    }

    // Ordering

    void clicksPutALineInOrder()
    {
        Stage stage;
        const CabinetIds line = stage.project()->line(firstPort);
        QSignalSpy ordering(&stage.view, &LayoutView::orderingChanged);
        stage.view.setOrdering(true);
        QVERIFY(stage.view.isOrdering());
        stage.click(QPoint(250, 50));
        QCOMPARE(stage.selection.port(), firstPort);
        stage.click(QPoint(50, 50));
        QCOMPARE(stage.view.pickedOrder(), (CabinetIds{line.at(2), line.at(0)}));
        QCOMPARE(stage.steps(), 0);
        stage.click(QPoint(150, 50));
        QCOMPARE(stage.project()->line(firstPort),
                 (CabinetIds{line.at(2), line.at(0), line.at(1)}));
        QCOMPARE(stage.steps(), 1);
        QVERIFY(!stage.view.isOrdering());
        QCOMPARE(ordering.count(), 2);
        stage.document.undoStack()->undo();
        QCOMPARE(stage.project()->line(firstPort), line);
    }

    void dragAcrossCabinetsPutsThemInOrder()
    {
        Stage stage;
        const CabinetIds line = stage.project()->line(firstPort);
        stage.view.setOrdering(true);
        stage.press(QPoint(250, 50));
        stage.move(QPoint(220, 50));
        stage.move(QPoint(150, 50));
        stage.move(QPoint(50, 50));
        stage.release(QPoint(50, 50));
        QCOMPARE(stage.project()->line(firstPort),
                 (CabinetIds{line.at(2), line.at(1), line.at(0)}));
        QCOMPARE(stage.steps(), 1);
    }

    void orderingCanEndEarly_data()
    {
        QTest::addColumn<QVector<int>>("keys");
        QTest::addColumn<QVector<int>>("order");
        QTest::newRow("Return") << QVector<int>{Qt::Key_Return} << QVector<int>{2, 0, 1};
        QTest::newRow("Backspace takes the last back")
            << QVector<int>{Qt::Key_Backspace, Qt::Key_Return} << QVector<int>{0, 1, 2};
        QTest::newRow("Escape") << QVector<int>{Qt::Key_Escape} << QVector<int>{0, 1, 2};
    }

    void orderingCanEndEarly()
    {
        QFETCH(QVector<int>, keys);
        QFETCH(QVector<int>, order);
        Stage stage;
        const CabinetIds line = stage.project()->line(firstPort);
        stage.selection.setPort(firstPort);
        stage.view.setOrdering(true);
        stage.click(QPoint(250, 50));
        for (const int key : keys)
            stage.key(Qt::Key(key));
        QVERIFY(!stage.view.isOrdering());
        CabinetIds expected;
        for (const int place : order)
            expected.append(line.at(place));
        QCOMPARE(stage.project()->line(firstPort), expected);
        QCOMPARE(stage.steps(), expected == line ? 0 : 1);
    }

    void switchingOrderingOffPutsItInForce()
    {
        Stage stage;
        const CabinetIds line = stage.project()->line(firstPort);
        stage.view.setOrdering(true);
        stage.click(QPoint(150, 50));
        stage.view.setOrdering(false);
        QCOMPARE(stage.project()->line(firstPort),
                 (CabinetIds{line.at(1), line.at(0), line.at(2)}));
    }

    void orderingRefusesWhatDoesNotBelong()
    {
        Stage stage;
        stage.view.setOrdering(true);
        stage.click(QPoint(50, 50));
        stage.messages.clear();
        stage.click(QPoint(50, 50));
        stage.click(QPoint(50, 350));
        QCOMPARE(stage.messages,
                 (QStringList{"This cabinet has its place already.",
                              "This cabinet hangs on another port."}));
        QCOMPARE(stage.view.pickedOrder().size(), 1);
    }

    void orderIsMadeByKeys()
    {
        Stage stage;
        const CabinetIds line = stage.project()->line(firstPort);
        stage.selection.setCabinets({line.at(2)});
        stage.view.setOrdering(true);
        stage.key(Qt::Key_Space);
        stage.key(Qt::Key_Left, Qt::ControlModifier);
        stage.key(Qt::Key_Space);
        stage.key(Qt::Key_Return);
        QCOMPARE(stage.project()->line(firstPort),
                 (CabinetIds{line.at(2), line.at(1), line.at(0)}));
    }

    void cabinetsThatGoLeaveTheOrder()
    {
        Stage stage;
        const CabinetIds line = stage.project()->line(firstPort);
        stage.view.setOrdering(true);
        stage.click(QPoint(250, 50));
        stage.click(QPoint(150, 50));
        stage.document.push(new RemoveCabinetsCommand(stage.project(), {line.at(2)}));
        QCOMPARE(stage.view.pickedOrder(), (CabinetIds{line.at(1)}));
        stage.selection.setPort(secondPort);
        QVERIFY(stage.view.pickedOrder().isEmpty());
        stage.document.reset(twoRows(), QString());
        QVERIFY(!stage.view.isOrdering());
    }

    void cabinetMovesInItsLineByKeys()
    {
        Stage stage;
        const CabinetIds line = stage.project()->line(firstPort);
        stage.selection.setCabinets({line.at(0)});
        stage.key(Qt::Key_PageDown, Qt::ControlModifier);
        QCOMPARE(stage.project()->line(firstPort),
                 (CabinetIds{line.at(1), line.at(0), line.at(2)}));
        stage.key(Qt::Key_PageUp, Qt::ControlModifier);
        QCOMPARE(stage.project()->line(firstPort), line);
        stage.key(Qt::Key_PageUp, Qt::ControlModifier); // it is the first
        QCOMPARE(stage.steps(), 2);
        stage.selection.clear();
        stage.key(Qt::Key_PageUp, Qt::ControlModifier);
        QCOMPARE(stage.messages, QStringList{"Select one cabinet to move it in its data line."});
    }

    // Placing

    void nextCabinetIsPlacedBesideTheLast()
    {
        Stage stage;
        QVERIFY(stage.view.placeNext(firstPort, "square"));
        QCOMPARE(stage.project()->line(firstPort).size(), 4);
        QCOMPARE(stage.position(firstPort, 3), QPoint(300, 0));
        QCOMPARE(stage.selected(), (CabinetIds{stage.cabinet(firstPort, 3)}));
        QCOMPARE(stage.steps(), 1);
        QVERIFY(!stage.view.placeNext(firstPort, "square"));
        QCOMPARE(stage.messages.size(), 1);
        QVERIFY2(stage.messages.constFirst().contains("Square"),
                 qPrintable(stage.messages.constFirst()));
        QVERIFY(stage.view.placeNext(firstPort, "flat"));
        QCOMPARE(stage.position(firstPort, 4), QPoint(400, 0));
    }

    void firstCabinetOfAPortIsPlacedInSight()
    {
        Stage stage;
        QVERIFY(stage.view.placeNext(emptyPort, "square"));
        const QRect first = stage.project()->boundsOf(stage.cabinet(emptyPort, 0));
        QVERIFY(stage.view.visibleArea().contains(first));
        QVERIFY(stage.view.placeNext(emptyPort, "square"));
        const CabinetIds ids = stage.project()->cabinetIds();
        for (const CabinetId a : ids) {
            for (const CabinetId b : ids)
                QVERIFY(a == b
                        || !stage.project()->boundsOf(a).intersects(stage.project()->boundsOf(b)));
        }
    }

    void unknownPortsAndModelsAreRefused()
    {
        Stage stage;
        QVERIFY(!stage.view.placeNext(PortRef(), "square"));
        QVERIFY(!stage.view.placeNext(firstPort, "round"));
        QCOMPARE(stage.messages.size(), 2);
        QVERIFY(!stage.messages.contains(QString()));
        QCOMPARE(stage.steps(), 0);
    }

    void placedCabinetOutOfSightIsBroughtIntoSight()
    {
        Stage stage;
        stage.view.centerOn(20000, 20000);
        QVERIFY(stage.view.placeNext(firstPort, "square"));
        QVERIFY(stage.view.visibleArea().contains(QRect(300, 0, 100, 100)));
    }

    // Costs and lifetimes

    void moveOfOneCabinetRepaintsItsSurroundingsOnly()
    {
        Stage stage(*generateProject(10000));
        stage.view.zoomToFit();
        QCoreApplication::processEvents();
        const CabinetId id = stage.project()->cabinetIds().at(5000);
        PaintedArea painted(stage.view.viewport());
        stage.document.push(
            new MoveCabinetsCommand(stage.project(), CabinetIds{id}, QPoint(20, 20)));
        QTRY_VERIFY(!painted.region.isEmpty());
        const QRect around = painted.region.boundingRect();
        QVERIFY(around.width() < 90 && around.height() < 90);
        painted.region = QRegion();
        stage.selection.setCabinets({id});
        QTRY_VERIFY(!painted.region.isEmpty());
        QVERIFY(painted.region.boundingRect().width() < 90);
    }

    void viewAndDocumentGoInAnyOrder()
    {
        QWidget parent;
        auto *document = new Document(&parent);
        auto *selection = new Selection(document->project(), document);
        document->reset(twoRows(), QString());
        QPointer<LayoutView> child = new LayoutView(document, selection, &parent);
        child->setOrdering(true);
        delete child.data();
        auto *view = new LayoutView(document, selection);
        document->reset(twoRows(), QString());
        view->selectAll();
        delete view;
        document->push(new RemoveCabinetsCommand(document->project(), selection->cabinets()));
        QCOMPARE(document->project()->cabinetCount(), 0);
        new LayoutView(document, selection, &parent); // goes after the document
    }
};

ORVANE_TEST_MAIN(TestWallLayout)
#include "tst_walllayout.moc"
