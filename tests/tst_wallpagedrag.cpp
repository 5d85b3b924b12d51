// Cabinets that are dragged with a real pointer from the senders into the view, on the wall page as
// the program puts it together. Runs under Xvfb.

#include "layout/layoutview.h"
#include "support/pointer.h"
#include "support/pointerscript.h"
#include "support/testcase.h"
#include "support/wallhost.h"
#include "wallpage/senderpanel.h"
#include "wallpage/wallpage.h"

#include <drawer.h>
#include <draweritem.h>
#include <draweritemcontent.h>
#include <rowlineitem.h>
#include <toolbuttonex.h>

#include <QSignalSpy>
#include <QUndoStack>

using namespace wall;

namespace
{

const PortRef port{QStringLiteral("s3"), 6};
const QString panel = QStringLiteral("stage-26"); ///< Of which six are left on the port.

/// The page with the sender expanded whose cabinets are dragged.
struct Shown : DemoHost {
    Shown()
    {
        page->setGeometry(0, 0, 1200, 800);
        pointer::showAndWait(page.get());
        constexpr int senderIndex = 2;
        auto *drawer = page->findChild<Drawer *>();
        DrawerItem *item = drawer->drawerItemList().at(senderIndex);
        drawer->on_notifyIsShrink(item);
        auto *content = qobject_cast<DrawerItemContent *>(item->getItem());
        button = content->lsRowLineItems().at(port.number - 1)->cabinetButtonList().constFirst();
        QTest::qWait(0); // for the drawer's layout
    }

    bool isDragging() const { return button->findChild<QDrag *>() != nullptr; }
    QPoint onButton() const { return button->mapToGlobal(QPoint(10, 10)); }
    int placed() const { return project()->placedCount(port, panel); }

    LayoutView *view = new LayoutView(&document, &selection);
    std::unique_ptr<WallPage> page = std::make_unique<WallPage>(&document, &selection, view);
    QPointer<ToolButtonEx> button;
};

void dragTo(PointerScript &script, Shown &host, const QWidget *target)
{
    script.move(host.onButton());
    script.press();
    script.wait("the button is pressed", [&] { return host.button->isDown(); });
    script.move(host.onButton() + QPoint(90, 0));
    script.wait("the drag has begun", [&] { return host.isDragging(); });
    script.move(target->mapToGlobal(target->rect().center() + QPoint(3, 3)));
    script.move(target->mapToGlobal(target->rect().center()));
    script.release();
    script.wait("the drag is over", [&] { return !host.isDragging(); });
}

} // namespace

class TestWallPageDrag : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        QVERIFY2(QGuiApplication::platformName() == "xcb",
                 "this test needs a pointer: run it by ctest, or through xvfb-run with "
                 "QT_QPA_PLATFORM=xcb");
    }

    void aDragPlacesOneAndAsksForNoMore()
    {
        Shown host;
        QSignalSpy spy(host.page.get(), &WallPage::placeRequested);
        PointerScript script;
        dragTo(script, host, host.view->viewport());
        script.wait("it is placed", [&] { return host.placed() == 1; });
        QCOMPARE(script.run(), QString());
        QCoreApplication::processEvents();
        QCOMPARE(spy.size(), 0);
        QCOMPARE(host.placed(), 1);
        QCOMPARE(host.button->cabinetCount(), 5);
        QVERIFY(host.selection.port() == port);
        QCOMPARE(host.document.undoStack()->count(), 1);
        host.document.undoStack()->undo();
        QCOMPARE(host.button->cabinetCount(), 6);
    }

    void aDragThatIsDroppedElsewhereAsksForNothing()
    {
        Shown host;
        QSignalSpy spy(host.page.get(), &WallPage::placeRequested);
        PointerScript script;
        dragTo(script, host, host.page->senderPanel());
        QCOMPARE(script.run(), QString());
        QCoreApplication::processEvents();
        QCOMPARE(spy.size(), 0);
        QCOMPARE(host.placed(), 0);
    }

    void aClickAfterADragIsAClick()
    {
        Shown host;
        QSignalSpy spy(host.page.get(), &WallPage::placeRequested);
        PointerScript script;
        dragTo(script, host, host.page->senderPanel());
        script.move(host.onButton());
        script.press();
        script.wait("the button is pressed", [&] { return host.button->isDown(); });
        script.release();
        script.wait("the cabinet is asked for", [&] { return spy.size() == 1; });
        QCOMPARE(script.run(), QString());
        QCOMPARE(spy.at(0).at(1).toString(), panel);
    }
};

ORVANE_TEST_MAIN(TestWallPageDrag)
#include "tst_wallpagedrag.moc"
