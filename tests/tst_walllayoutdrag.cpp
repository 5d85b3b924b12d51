// Cabinets that are dragged with a real pointer from a row into the layout view: a drag has an
// event loop of its own, which only a display's pointer can drive. Runs under Xvfb.

#include "support/pointer.h"
#include "support/pointerscript.h"
#include "support/testcase.h"

#include "document.h"
#include "layout/layoutview.h"
#include "model/cabinetrecord.h"
#include "selection.h"

#include <rowlineitem.h>
#include <toolbuttonex.h>

#include <QUndoStack>

using namespace wall;

namespace
{

const PortRef usedPort{"s1", 1};
const PortRef otherPort{"s1", 2};

/// One cabinet at the origin; one is left on its port, and two on the other one.
ProjectData oneCabinet()
{
    ProjectData data;
    CabinetModel model;
    model.id = "square";
    model.name = "Square";
    model.size = QSize(100, 100);
    data.models = {model};
    Sender sender;
    sender.id = "s1";
    sender.name = "Left";
    Port port;
    port.number = 1;
    port.stock = {{"square", 2, {}}};
    sender.ports.append(port);
    port.number = 2;
    sender.ports.append(port);
    data.senders = {sender};
    data.cabinets = {{0, "square", usedPort, QPoint(0, 0), 0, {}}};
    return data;
}

/// A window with a row of one cabinet above the view, whose zoom is 1.
class Window : public QWidget
{
public:
    /// \a portNumber is that of the row's record, 0 for a model of the controller board.
    explicit Window(int portNumber)
        : selection(document.project())
        , row(new RowLineItem(this))
        , view(new LayoutView(&document, &selection, this))
    {
        document.reset(oneCabinet(), QString());
        StructCabinet record = cabinetRecord(*document.project()->model("square"),
                                             portNumber == 0 ? QString() : "s1", portNumber, 1);
        if (portNumber < 0)
            record.extraText3.clear(); // of another host
        setGeometry(50, 50, 900, 700);
        row->setGeometry(0, 0, 400, 90);
        row->setLineItemType(1, PortItem);
        row->AddLineItem(record);
        row->addScrollWidget();
        view->setGeometry(100, 150, 700, 500);
        connect(view, &LayoutView::messageRequested, this,
                [this](const QString &message) { messages << message; });
    }

    bool showAndWait()
    {
        if (!pointer::showAndWait(this))
            return false;
        view->setZoom(1.0);
        view->centerOn(100, 100);
        return true;
    }

    ToolButtonEx *button() const { return row->cabinetButtonList().constFirst(); }
    bool isDragging() const { return button()->findChild<QDrag *>() != nullptr; }
    QPoint onButton(int x) const { return button()->mapToGlobal(QPoint(x, 10)); }
    QPoint onView(double x, double y) const
    {
        const QPointF inView = view->viewportTransform().map(QPointF(x, y));
        return view->viewport()->mapToGlobal(inView.toPoint());
    }
    CabinetIds line(const PortRef &port) const { return document.project()->line(port); }

    Document document;
    Selection selection;
    RowLineItem *row;
    LayoutView *view;
    QStringList messages;
};

} // namespace

class TestWallLayoutDrag : public TestCase
{
    Q_OBJECT

private:
    static void startDrag(PointerScript &script, Window &window)
    {
        script.move(window.onButton(5));
        script.press();
        script.wait("the button is pressed", [&] { return window.button()->isDown(); });
        script.move(window.onButton(5) + QPoint(80, 0));
        script.wait("the drag has begun", [&] { return window.isDragging(); });
    }
    static void moveOver(PointerScript &script, Window &window, double x, double y, QPoint ghost)
    {
        script.move(window.onView(x, y));
        script.wait("the ghost is there",
                    [&window, ghost] { return window.view->ghostBounds().topLeft() == ghost; });
    }
    static void drop(PointerScript &script, Window &window)
    {
        script.release();
        script.wait("the drag is over", [&] { return !window.isDragging(); });
    }

private Q_SLOTS:
    void initTestCase()
    {
        QVERIFY2(QGuiApplication::platformName() == "xcb",
                 "this test needs a pointer: run it by ctest, or through xvfb-run with "
                 "QT_QPA_PLATFORM=xcb");
    }

    void cabinetIsPlacedWhereItIsDropped_data()
    {
        QTest::addColumn<bool>("toGrid");
        QTest::addColumn<bool>("toCabinets");
        QTest::addColumn<QPoint>("place");
        QTest::newRow("as it is") << false << false << QPoint(105, 5);
        QTest::newRow("on the grid") << true << false << QPoint(96, 0);
        QTest::newRow("beside its neighbour") << true << true << QPoint(100, 0);
    }

    void cabinetIsPlacedWhereItIsDropped()
    {
        QFETCH(bool, toGrid);
        QFETCH(bool, toCabinets);
        QFETCH(QPoint, place);
        Window window(1);
        QVERIFY(window.showAndWait());
        window.view->setSnapsToGrid(toGrid);
        window.view->setSnapsToCabinets(toCabinets);
        PointerScript script;
        startDrag(script, window);
        // The cabinet hangs on the pointer by its middle pixel.
        moveOver(script, window, 154, 54, place);
        drop(script, window);
        QCOMPARE(script.run(), QString());

        QCOMPARE(window.line(usedPort).size(), 2);
        const CabinetId id = window.line(usedPort).constLast();
        QCOMPARE(window.document.project()->cabinet(id)->position, place);
        QCOMPARE(window.selection.cabinets(), (CabinetIds{id}));
        QCOMPARE(window.view->ghostBounds(), QRect());
        QCOMPARE(window.messages, QStringList());
        QCOMPARE(window.document.undoStack()->count(), 1);
        window.document.undoStack()->undo();
        QCOMPARE(window.line(usedPort).size(), 1);
    }

    void dropIsRefusedWhenNoneIsLeft()
    {
        Window window(1);
        QVERIFY(window.showAndWait());
        QVERIFY(window.view->placeNext(usedPort, "square"));
        window.view->centerOn(100, 100);
        window.view->setSnapsToGrid(false);
        window.view->setSnapsToCabinets(false);
        PointerScript script;
        startDrag(script, window);
        moveOver(script, window, 149, 249, QPoint(100, 200));
        drop(script, window);
        QCOMPARE(script.run(), QString());
        QCOMPARE(window.messages.size(), 1);
        QVERIFY2(window.messages.constFirst().contains("left"),
                 qPrintable(window.messages.constFirst()));
        QCOMPARE(window.line(usedPort).size(), 2);
        QCOMPARE(window.document.undoStack()->count(), 1);
        QCOMPARE(window.view->ghostBounds(), QRect());
    }

    void ghostGoesWithThePointer()
    {
        Window window(1);
        QVERIFY(window.showAndWait());
        window.view->setSnapsToGrid(false);
        window.view->setSnapsToCabinets(false);
        PointerScript script;
        startDrag(script, window);
        moveOver(script, window, 149, 249, QPoint(100, 200));
        moveOver(script, window, 169, 259, QPoint(120, 210));
        script.move(window.mapToGlobal(QPoint(850, 670))); // beside the view
        script.wait("the ghost is gone", [&] { return window.view->ghostBounds().isNull(); });
        drop(script, window);
        QCOMPARE(script.run(), QString());
        QCOMPARE(window.document.undoStack()->count(), 0);
        QCOMPARE(window.messages, QStringList());
    }

    void cabinetWithoutAPortGoesToTheCurrentOne()
    {
        Window window(0);
        QVERIFY(window.showAndWait());
        window.view->setSnapsToGrid(false);
        window.view->setSnapsToCabinets(false);
        PointerScript script;
        startDrag(script, window);
        moveOver(script, window, 149, 249, QPoint(100, 200));
        drop(script, window);
        QCOMPARE(script.run(), QString());
        QCOMPARE(window.messages, QStringList{"Choose a port for the cabinet first."});
        QCOMPARE(window.document.undoStack()->count(), 0);

        window.selection.setPort(otherPort);
        PointerScript again;
        startDrag(again, window);
        moveOver(again, window, 149, 249, QPoint(100, 200));
        drop(again, window);
        QCOMPARE(again.run(), QString());
        QCOMPARE(window.line(otherPort).size(), 1);
    }

    void recordsOfOthersAreNotTaken()
    {
        Window window(-1);
        QVERIFY(window.showAndWait());
        PointerScript script;
        startDrag(script, window);
        script.move(window.onView(150, 250));
        bool hadGhost = false;
        script.act([&] { hadGhost = !window.view->ghostBounds().isNull(); });
        drop(script, window);
        QCOMPARE(script.run(), QString());
        QVERIFY(!hadGhost);
        QCOMPARE(window.document.undoStack()->count(), 0);
        QCOMPARE(window.messages, QStringList());
    }

    void placedCabinetIsMovedByThePointer()
    {
        Window window(1);
        QVERIFY(window.showAndWait());
        window.view->setSnapsToGrid(false);
        window.view->setSnapsToCabinets(false);
        const CabinetId id = window.line(usedPort).constFirst();
        const auto position = [&] { return window.document.project()->cabinet(id)->position; };
        PointerScript script;
        script.move(window.onView(50, 50));
        script.press();
        script.wait("it is selected", [&] { return window.selection.contains(id); });
        script.move(window.onView(90, 70));
        script.wait("it has moved", [&] { return position() == QPoint(40, 20); });
        script.move(window.onView(150, 160));
        script.wait("it has moved on", [&] { return position() == QPoint(100, 110); });
        script.release();
        QCOMPARE(script.run(), QString());
        QCOMPARE(window.document.undoStack()->count(), 1);
        QCOMPARE(position(), QPoint(100, 110));
    }
};

ORVANE_TEST_MAIN(TestWallLayoutDrag)
#include "tst_walllayoutdrag.moc"
