#include "support/framewarnings.h"
#include "support/pointer.h"
#include "support/testcase.h"
#include "support/windowmouse.h"

#include <windowframe.h>
#include <windowtitle.h>

namespace
{

const QString frameSheet =
    "#WindowFrame{background-color:rgb(69, 69, 69);border-radius:0px; border-style: solid; "
    "border-color:rgb(255,255,255); border-width: 1px 1px 1px 1px;}";
const QString outlineSheet =
    "QDialog {border: 2px solid rgb(255,255,255);border-radius:3px; background-color: "
    "transparent;}";

/// A window as a host derives it: it accepts a null close event.
class Host : public WindowFrame
{
public:
    using WindowFrame::WindowFrame;

    int closeButtons = 0;
    int closeEvents = 0;
    QList<Qt::WindowStates> states;
    std::function<void()> onCloseButton = [] {};

protected:
    void closeEvent(QCloseEvent *event) override
    {
        if (!event) {
            ++closeButtons;
            onCloseButton();
            return;
        }
        ++closeEvents;
        WindowFrame::closeEvent(event);
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

/// True if the title's button offers to restore the window, false if it offers to maximise it.
bool offersRestore(const WindowFrame &frame)
{
    const QString sheet = button(frame, Maximize)->styleSheet();
    [&] { QVERIFY(sheet.contains("btn_return_normal") != sheet.contains("btn_max_normal")); }();
    return sheet.contains("btn_return_normal");
}

/// Sends mouse events to a frame, with positions of fractions of a pixel.
class Mouse
{
public:
    explicit Mouse(WindowFrame &frame)
        : m_frame(frame)
    {
    }

    void press(QPointF local, QPointF global, Qt::MouseButton mouseButton = Qt::LeftButton)
    {
        m_buttons |= mouseButton;
        send(QEvent::MouseButtonPress, local, global, mouseButton);
    }
    void press(QPoint local, Qt::MouseButton mouseButton = Qt::LeftButton)
    {
        press(local, m_frame.mapToGlobal(local), mouseButton);
    }
    void move(QPointF global) { send(QEvent::MouseMove, local(global), global, Qt::NoButton); }
    void release(QPointF global, Qt::MouseButton mouseButton = Qt::LeftButton)
    {
        m_buttons &= ~Qt::MouseButtons(mouseButton);
        send(QEvent::MouseButtonRelease, local(global), global, mouseButton);
    }

private:
    QPointF local(QPointF global) const { return global - m_frame.mapToGlobal(QPoint()); }
    void send(QEvent::Type type, QPointF local, QPointF global, Qt::MouseButton mouseButton)
    {
        QMouseEvent event(type, local, local, global, mouseButton, m_buttons, Qt::NoModifier);
        event.accept();
        QCoreApplication::sendEvent(&m_frame, &event);
        QVERIFY(!event.isAccepted()); // the handlers end as those of a plain widget do
    }

    WindowFrame &m_frame;
    Qt::MouseButtons m_buttons;
};

} // namespace

Q_DECLARE_METATYPE(Qt::CursorShape)
Q_DECLARE_METATYPE(Qt::WindowFlags)
Q_DECLARE_METATYPE(Qt::WindowStates)

class TestWindowFrame : public TestCase
{
    Q_OBJECT

private:
    /// A frame of 800 by 600 at (100, 80) that is restored to 400 by 300.
    std::unique_ptr<Host> makeFrame(QSizeF maximum = {800, 600}, QSizeF minimum = {400, 300},
                                    QWidget *parent = nullptr,
                                    Qt::WindowFlags flags = Qt::WindowFlags())
    {
        for (const QString &warning : framewarnings::ofFrame())
            expectWarning(warning);
        auto frame = std::make_unique<Host>(QSizeF(640, 480), maximum, minimum, parent, flags);
        frame->move(100, 80);
        return frame;
    }

private Q_SLOTS:
    void declaresItsSignalAndItsSlots()
    {
        const QMetaObject &meta = WindowFrame::staticMetaObject;
        QCOMPARE(meta.superClass(), &QMainWindow::staticMetaObject);
        QStringList methods;
        for (int i = meta.methodOffset(); i < meta.methodCount(); ++i) {
            methods += QString::fromLatin1(meta.method(i).methodSignature());
            QCOMPARE(meta.method(i).access(), QMetaMethod::Public);
            QCOMPARE(meta.method(i).methodType(),
                     i == meta.methodOffset() ? QMetaMethod::Signal : QMetaMethod::Slot);
        }
        QCOMPARE(methods,
                 (QStringList{"WindowPositionChange(QSizeF)", "slot_close()",
                              "slot_showMinimized()", "slot_showMaximized()"}));
        QCOMPARE(meta.propertyOffset(), meta.propertyCount());
    }

    void shapesHaveTheirValues()
    {
        QCOMPARE(int(OutlineRubberBand), 0);
        QCOMPARE(int(ChildRubberBand), 1);
    }

    void plainFrameHasNoParts()
    {
        WindowFrame frame(nullptr);
        QVERIFY(!frame.GetTitleWidget());
        QVERIFY(!frame.GetBaseFrameLayout());
        QVERIFY(!frame.GetBaseFrameHHHLayout());
        QCOMPARE(frame.GetCurDragDirect(), 8);
        QCOMPARE(frame.styleSheet(), QString());
        QCOMPARE(frame.objectName(), QString());
        QCOMPARE(frame.windowFlags(), QMainWindow().windowFlags());
        QCOMPARE(frame.minimumSize(), QSize(0, 0));
        QVERIFY(!frame.hasMouseTracking());
        QVERIFY(frame.findChildren<QWidget *>().isEmpty());
    }

    void plainFrameTakesWhatItHasNoPartsFor()
    {
        WindowFrame frame(nullptr);
        frame.SetTitleBarVisable(true);
        frame.SetTitleBarVisable(false);
        frame.SetRubberBandShape(OutlineRubberBand);
        frame.SetRubberBandShape(static_cast<RubberBandShape>(7));
        frame.SetRubberBandLineStyle("QDialog{}");
        frame.SetWidget(nullptr);
        frame.ConenctSignal();
        frame.slot_close();
        frame.slot_showMinimized();
        frame.ReSetCurDragDirect();
        QVERIFY(takeDebugMessages().isEmpty());
        QVERIFY(frame.findChildren<QWidget *>().isEmpty());
        frame.setMouseTracking(true);
        const QPoint before = frame.pos();
        Mouse mouse(frame);
        mouse.move({10, 10});
        mouse.press({10, 10}, {10, 10});
        mouse.move({20, 20});
        mouse.release({20, 20});
        QCOMPARE(frame.pos(), before);
    }

    void frameIsBuiltInTwoSteps()
    {
        WindowFrame frame(nullptr);
        frame.SetFrameMaxSize(QSizeF(500, 400));
        frame.SetFrameMinSize(QSizeF(300, 200));
        frame.SetFrameCurSize(QSizeF(450, 350));
        for (const QString &warning : framewarnings::ofFrame())
            expectWarning(warning);
        frame.BuildUI();
        frame.ConenctSignal();
        QCOMPARE(frame.size(), QSize(500, 400));
        button(frame, Maximize)->click();
        QCOMPARE(frame.size(), QSize(300, 200));
        QCOMPARE(frame.pos(), QPoint(100, 100));
        QVERIFY(!offersRestore(frame));
    }

    void frameStartsMaximised()
    {
        for (const QString &warning : framewarnings::ofFrame())
            expectWarning(warning);
        Host frame(QSizeF(800, 600), QSizeF(1920, 1080), QSizeF(400, 300));
        QCOMPARE(frame.minimumSize(), QSize(1920, 1080));
        QCOMPARE(frame.maximumSize(), QSize(1920, 1080));
        QCOMPARE(frame.windowState(), Qt::WindowStates(Qt::WindowNoState));
        QVERIFY(offersRestore(frame));

        frame.slot_showMaximized();
        QCOMPARE(frame.geometry(), QRect(760, 390, 400, 300));
        QCOMPARE(frame.minimumSize(), QSize(400, 300));
        QCOMPARE(frame.maximumSize(), QSize(400, 300));
        QCOMPARE(frame.GetTitleWidget()->size(), QSize(390, 30));
        QVERIFY(!offersRestore(frame));
    }

    void sizesAreRoundedWhenTheyAreApplied_data()
    {
        QTest::addColumn<QSizeF>("maximum");
        QTest::addColumn<QSizeF>("minimum");
        QTest::addColumn<QSize>("maximised");
        QTest::addColumn<QSize>("maximisedTitle");
        QTest::addColumn<QRect>("restored");
        QTest::addColumn<QSize>("restoredTitle");
        QTest::newRow("whole") << QSizeF(800, 600) << QSizeF(400, 300) << QSize(800, 600)
                               << QSize(790, 30) << QRect(200, 150, 400, 300) << QSize(390, 30);
        QTest::newRow("fractions")
            << QSizeF(1000.5, 700.4) << QSizeF(401.9, 300.2) << QSize(1001, 700) << QSize(990, 30)
            << QRect(299, 200, 402, 300) << QSize(391, 30);
        QTest::newRow("odd room") << QSizeF(801, 601) << QSizeF(400, 300) << QSize(801, 601)
                                  << QSize(791, 30) << QRect(200, 150, 400, 300) << QSize(390, 30);
        QTest::newRow("minimum larger than maximum")
            << QSizeF(301, 201) << QSizeF(400, 300) << QSize(301, 201) << QSize(291, 30)
            << QRect(-49, -49, 400, 300) << QSize(390, 30);
        QTest::newRow("equal") << QSizeF(400, 300) << QSizeF(400, 300) << QSize(400, 300)
                               << QSize(390, 30) << QRect(0, 0, 400, 300) << QSize(390, 30);
    }

    void sizesAreRoundedWhenTheyAreApplied()
    {
        QFETCH(QSizeF, maximum);
        QFETCH(QSizeF, minimum);
        QFETCH(QSize, maximised);
        QFETCH(QSize, maximisedTitle);
        QFETCH(QRect, restored);
        QFETCH(QSize, restoredTitle);
        const auto frame = makeFrame(maximum, minimum);
        for (int round = 0; round < 2; ++round) {
            QCOMPARE(frame->size(), maximised);
            QCOMPARE(frame->GetTitleWidget()->size(), maximisedTitle);
            QVERIFY(offersRestore(*frame));
            frame->slot_showMaximized();
            QCOMPARE(frame->geometry(), restored);
            QCOMPARE(frame->minimumSize(), restored.size());
            QCOMPARE(frame->GetTitleWidget()->minimumSize(), restoredTitle);
            QCOMPARE(frame->GetTitleWidget()->maximumSize(), restoredTitle);
            QCOMPARE(frame->windowState(), Qt::WindowStates(Qt::WindowNoState));
            QVERIFY(!offersRestore(*frame));
            frame->slot_showMaximized();
            QCOMPARE(frame->pos(), QPoint(0, 0));
        }
    }

    void windowStateFollows()
    {
        const auto frame = makeFrame();
        frame->setWindowState(Qt::WindowMaximized);
        frame->slot_showMaximized();
        QCOMPARE(frame->windowState(), Qt::WindowStates(Qt::WindowNoState));
        frame->states.clear();
        frame->slot_showMaximized();
        QVERIFY(!frame->states.isEmpty()); // Qt itself takes it back when the size is fixed
        QCOMPARE(frame->states.first(), Qt::WindowStates(Qt::WindowMaximized));
    }

    void sizesAreStoredUntilTheyAreApplied()
    {
        const auto frame = makeFrame();
        frame->SetFrameCurSize(QSizeF(500.6, 400.4));
        frame->SetFrameMaxSize(QSizeF(900, 700));
        frame->SetFrameMinSize(QSizeF(200, 100));
        QCOMPARE(frame->geometry(), QRect(100, 80, 800, 600));
        QCOMPARE(frame->minimumSize(), QSize(800, 600));
        QCOMPARE(frame->GetTitleWidget()->size(), QSize(790, 30));

        frame->rebuildUI();
        QCOMPARE(frame->minimumSize(), QSize(501, 400));
        QCOMPARE(frame->maximumSize(), QSize(501, 400));
        QCOMPARE(frame->GetTitleWidget()->size(), QSize(490, 30));
        QCOMPARE(frame->pos(), QPoint(100, 80));
        QVERIFY(offersRestore(*frame));

        // Restored to the size that was the smallest when the frame was built, in the middle of the
        // size that it has.
        frame->slot_showMaximized();
        QCOMPARE(frame->geometry(), QRect(50, 50, 400, 300));
        frame->SetFrameCurSize(QSizeF(420, 310));
        frame->slot_showMaximized();
        QCOMPARE(frame->geometry(), QRect(0, 0, 900, 700));
        // The size that was current when it was maximised is the one to come back to.
        frame->slot_showMaximized();
        QCOMPARE(frame->geometry(), QRect(240, 195, 420, 310));
    }

    void hasItsLook()
    {
        const auto frame = makeFrame();
        QCOMPARE(frame->styleSheet(), frameSheet);
        QCOMPARE(frame->objectName(), QString("WindowFrame"));
        QCOMPARE(frame->cursor().shape(), Qt::ArrowCursor);
        QVERIFY(frame->testAttribute(Qt::WA_AlwaysShowToolTips));
        QVERIFY(frame->hasMouseTracking());
        QCOMPARE(frame->GetCurDragDirect(), 8);
        QVERIFY(pointer::showAndWait(frame.get()));
        QCOMPARE(pointer::colorAt(frame.get(), QPoint(400, 300)), QColor(69, 69, 69));
        for (const QPoint edge :
             {QPoint(0, 300), QPoint(799, 300), QPoint(400, 0), QPoint(400, 599)})
            QCOMPARE(pointer::colorAt(frame.get(), edge), QColor(255, 255, 255));
        for (const QPoint inside :
             {QPoint(1, 300), QPoint(798, 300), QPoint(400, 1), QPoint(400, 598)})
            QCOMPARE(pointer::colorAt(frame.get(), inside), QColor(69, 69, 69));
    }

    void windowIsFramelessWhateverTheFlags_data()
    {
        QTest::addColumn<Qt::WindowFlags>("flags");
        QTest::newRow("none") << Qt::WindowFlags();
        QTest::newRow("tool") << Qt::WindowFlags(Qt::Tool | Qt::WindowStaysOnTopHint);
    }

    void windowIsFramelessWhateverTheFlags()
    {
        QFETCH(Qt::WindowFlags, flags);
        QWidget parent;
        const auto frame = makeFrame({800, 600}, {400, 300}, &parent, flags);
        const Qt::WindowFlags plain = QMainWindow(&parent).windowFlags();
        QVERIFY(!(plain & Qt::FramelessWindowHint));
        QCOMPARE(frame->windowFlags(),
                 (plain | Qt::FramelessWindowHint | Qt::WindowMinimizeButtonHint)
                     ^ Qt::WindowSystemMenuHint);
        QVERIFY(frame->isWindow());
        QCOMPARE(frame->parentWidget(), &parent);
        QVERIFY(!frame->isVisible());
    }

    void titleStandsAtTheTop()
    {
        const auto frame = makeFrame();
        const WindowTitle *title = frame->GetTitleWidget();
        QVERIFY(title);
        QCOMPARE(title->parentWidget(), frame.get());
        QVERIFY(pointer::showAndWait(frame.get()));
        QCOMPARE(title->geometry(), QRect(0, 0, 790, 30));
        QCOMPARE(button(*frame, Close)->mapTo(frame.get(), QPoint()), QPoint(760, 5));
        frame->SetTitleBarVisable(false);
        QVERIFY(!title->isVisible());
        frame->SetTitleBarVisable(true);
        QVERIFY(title->isVisible());
    }

    void baseLayoutHoldsTheTitleAndIsNotInForce()
    {
        auto frame = makeFrame();
        const QPointer<QVBoxLayout> layout = frame->GetBaseFrameLayout();
        QVERIFY(layout);
        QVERIFY(frame->layout() != layout);
        QCOMPARE(layout->contentsMargins(), QMargins(5, 0, 5, 0));
        QCOMPARE(layout->spacing(), 0);
        QCOMPARE(layout->count(), 2);
        QCOMPARE(layout->itemAt(0)->widget(), frame->GetTitleWidget());
        QVERIFY(layout->itemAt(1)->spacerItem());
        QVERIFY(!frame->GetBaseFrameHHHLayout());

        // What a host adds belongs to the frame from then on, and stays where the host puts it.
        const QPointer<QWidget> content = new QWidget;
        layout->addWidget(content);
        QCOMPARE(content->parentWidget(), frame.get());
        content->setGeometry(1, 40, 300, 200);
        QVERIFY(pointer::showAndWait(frame.get()));
        frame->slot_showMaximized();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::LayoutRequest);
        QCOMPARE(content->geometry(), QRect(1, 40, 300, 200));
        QCOMPARE(frame->GetTitleWidget()->pos(), QPoint(0, 0));
        frame.reset();
        QVERIFY(!layout);
        QVERIFY(!content);
    }

    void centralWidgetFillsTheRoomBelowTheTitle()
    {
        const auto frame = makeFrame();
        auto *content = new QWidget;
        frame->SetWidget(content);
        QVERIFY(!content->parentWidget());
        QVERIFY(!frame->centralWidget());
        frame->setContentsMargins(1, 30, 1, 1);
        frame->setCentralWidget(content);
        QVERIFY(pointer::showAndWait(frame.get()));
        QTRY_COMPARE(content->geometry(), QRect(1, 30, 798, 569));
        frame->slot_showMaximized();
        QTRY_COMPARE(content->geometry(), QRect(1, 30, 398, 269));
        QVERIFY(button(*frame, Close)->isVisible());
        // The title's clicks are its own.
        windowmouse::click(button(*frame, Close));
        QCOMPARE(frame->closeButtons, 1);
    }

    void rubberBandIsAnOutline()
    {
        const auto frame = makeFrame();
        QDialog *band = rubberBand(*frame);
        QVERIFY(band);
        QCOMPARE(frame->findChildren<QDialog *>().size(), 1);
        QCOMPARE(band->parentWidget(), frame.get());
        QVERIFY(band->isHidden());
        QVERIFY(band->isWindow());
        QCOMPARE(band->windowFlags(), Qt::Dialog | Qt::FramelessWindowHint);
        QVERIFY(band->testAttribute(Qt::WA_TranslucentBackground));
        QVERIFY(!band->testAttribute(Qt::WA_NoSystemBackground));
        QCOMPARE(band->styleSheet(), outlineSheet);

        band->setGeometry(10, 10, 120, 80);
        band->show();
        QVERIFY(QTest::qWaitForWindowExposed(band));
        const QImage picture = band->grab().toImage();
        for (const QPoint line : {QPoint(0, 40), QPoint(1, 40), QPoint(118, 40), QPoint(119, 40),
                                  QPoint(60, 0), QPoint(60, 1), QPoint(60, 78), QPoint(60, 79)})
            QCOMPARE(picture.pixelColor(line), QColor(255, 255, 255, 255));
        for (const QPoint clear :
             {QPoint(2, 40), QPoint(117, 40), QPoint(60, 2), QPoint(60, 77), QPoint(60, 40)})
            QCOMPARE(picture.pixelColor(clear).alpha(), 0);
        for (const QPoint rounded : {QPoint(0, 0), QPoint(119, 0), QPoint(0, 79), QPoint(119, 79)})
            QVERIFY(picture.pixelColor(rounded).alpha() < 64);
    }

    void rubberBandBecomesAChild()
    {
        const auto frame = makeFrame();
        QDialog *band = rubberBand(*frame);
        frame->SetRubberBandShape(ChildRubberBand);
        QVERIFY(!band->isWindow());
        QCOMPARE(band->windowFlags(), Qt::WindowFlags(Qt::FramelessWindowHint));
        QCOMPARE(band->parentWidget(), frame.get());
        QVERIFY(band->testAttribute(Qt::WA_TranslucentBackground));
        QCOMPARE(band->styleSheet(), outlineSheet);
        // It does not come up with the frame.
        QVERIFY(pointer::showAndWait(frame.get()));
        QVERIFY(band->isHidden());

        frame->SetRubberBandLineStyle("QDialog{border:1px solid red;}");
        frame->SetRubberBandShape(OutlineRubberBand);
        QVERIFY(band->isWindow());
        QCOMPARE(band->windowFlags(), Qt::Dialog | Qt::FramelessWindowHint);
        QCOMPARE(band->styleSheet(), outlineSheet);
    }

    void wrongShapeIsReportedAndChangesNothing_data()
    {
        QTest::addColumn<int>("shape");
        QTest::newRow("2") << 2;
        QTest::newRow("-1") << -1;
    }

    void wrongShapeIsReportedAndChangesNothing()
    {
        QFETCH(int, shape);
        const auto frame = makeFrame();
        frame->SetRubberBandLineStyle("QDialog{border:5px solid blue;}");
        frame->SetRubberBandShape(static_cast<RubberBandShape>(shape));
        QCOMPARE(takeDebugMessages(),
                 QStringList{"..\\..\\..\\..\\code\\src\\libs\\orvanecontrols\\windowframe 673 "
                             "SetRubberBandShape RubberBandShape set error!"});
        const QDialog *band = rubberBand(*frame);
        QCOMPARE(band->windowFlags(), Qt::Dialog | Qt::FramelessWindowHint);
        QCOMPARE(band->styleSheet(), QString("QDialog{border:5px solid blue;}"));
        frame->SetRubberBandShape(ChildRubberBand);
        QVERIFY(takeDebugMessages().isEmpty());
        // It is of the default category, as those who filter it expect.
        QLoggingCategory::setFilterRules("default.debug=false");
        frame->SetRubberBandShape(static_cast<RubberBandShape>(shape));
        QLoggingCategory::setFilterRules(QString());
        QVERIFY(takeDebugMessages().isEmpty());
    }

    void lastLineStyleIsSeenAtTheFirstShowAndAfter()
    {
        const auto frame = makeFrame();
        QDialog *band = rubberBand(*frame);
        frame->SetRubberBandLineStyle("QDialog{border:3px solid rgb(10,20,30);}");
        frame->SetRubberBandLineStyle("QDialog{border:3px solid rgb(40,50,60);}");
        QCOMPARE(band->styleSheet(), QString("QDialog{border:3px solid rgb(40,50,60);}"));
        band->setGeometry(10, 10, 120, 80);
        band->show();
        QVERIFY(QTest::qWaitForWindowExposed(band));
        QCOMPARE(pointer::colorAt(band, QPoint(2, 40)), QColor(40, 50, 60));
        frame->SetRubberBandLineStyle("QDialog{border:3px solid rgb(70,80,90);}");
        QCOMPARE(pointer::colorAt(band, QPoint(2, 40)), QColor(70, 80, 90));
    }

    void regionsLieAlongTheEdges_data()
    {
        QTest::addColumn<QSizeF>("size");
        QTest::addColumn<QVector<QRectF>>("rects");
        QTest::newRow("whole") << QSizeF(
            800, 600) << QVector<QRectF>{{-8, -8, 16, 16},  {8, -8, 784, 16},   {792, -8, 16, 16},
                                         {792, 8, 16, 584}, {792, 592, 16, 16}, {8, 592, 784, 16},
                                         {-8, 592, 16, 16}, {-8, 8, 16, 584}};
        QTest::newRow("fractions")
            << QSizeF(100.9, 80.2)
            << QVector<QRectF>{{-8, -8, 16, 16}, {8, -8, 84, 16},  {92, -8, 16, 16},
                               {92, 8, 16, 64},  {92, 72, 16, 16}, {8, 72, 84, 16},
                               {-8, 72, 16, 16}, {-8, 8, 16, 64}};
        // Truncation goes toward zero on both sides of it.
        QTest::newRow("smaller than a region")
            << QSizeF(20.5, 6.5)
            << QVector<QRectF>{{-8, -8, 16, 16}, {8, -8, 4, 16}, {12, -8, 16, 16}, {12, 8, 16, -9},
                               {12, -1, 16, 16}, {8, -1, 4, 16}, {-8, -1, 16, 16}, {-8, 8, 16, -9}};
    }

    void regionsLieAlongTheEdges()
    {
        QFETCH(QSizeF, size);
        QFETCH(QVector<QRectF>, rects);
        constexpr Qt::CursorShape shapes[] = {
            Qt::SizeFDiagCursor, Qt::SizeVerCursor, Qt::SizeBDiagCursor, Qt::SizeHorCursor,
            Qt::SizeFDiagCursor, Qt::SizeVerCursor, Qt::SizeBDiagCursor, Qt::SizeHorCursor};
        const auto frame = makeFrame();
        frame->SetFrameCurSize(size);
        // Every point of interest lies on one of these lines, or beside one.
        QSet<int> hit;
        QVector<qreal> xs{size.width() / 2};
        QVector<qreal> ys{size.height() / 2};
        for (const QRectF &rect : rects) {
            for (const qreal off : {-0.25, 0.0, 0.25}) {
                xs << rect.left() + off << rect.right() + off;
                ys << rect.top() + off << rect.bottom() + off;
            }
        }
        for (const qreal x : qAsConst(xs)) {
            for (const qreal y : qAsConst(ys)) {
                int expected = 8;
                for (int i = 7; i >= 0; --i) {
                    if (rects.at(i).contains(QPointF(x, y)))
                        expected = i;
                }
                QCursor cursor(Qt::WaitCursor);
                const bool isIn = frame->IsInDragRect(QPointF(x, y), cursor);
                const QByteArray place = QByteArray::number(x) + ", " + QByteArray::number(y)
                    + " is in " + QByteArray::number(frame->GetCurDragDirect());
                QVERIFY2(frame->GetCurDragDirect() == expected, place);
                QVERIFY2(isIn == (expected < 8), place);
                QCOMPARE(cursor.shape(), expected < 8 ? shapes[expected] : Qt::SizeAllCursor);
                hit += expected;
            }
        }
        QVERIFY(hit.contains(8));
        QVERIFY(hit.size() >= 7);
        QCOMPARE(frame->cursor().shape(), Qt::ArrowCursor);

        // Both builders make the same table; a test of a place makes it anew anyway.
        frame->CreateDragRectList();
        frame->CreateDragRectListEx();
        QCOMPARE(frame->size(), QSize(800, 600));
    }

    void dragDirectionIsReset()
    {
        const auto frame = makeFrame();
        QCursor cursor;
        QVERIFY(frame->IsInDragRect(QPointF(797, 300), cursor));
        QCOMPARE(frame->GetCurDragDirect(), 3);
        frame->setCursor(Qt::SizeHorCursor);
        frame->ReSetCurDragDirect();
        QCOMPARE(frame->GetCurDragDirect(), 8);
        QCOMPARE(frame->cursor().shape(), Qt::ArrowCursor);
    }

    void hoverChangesTheCursor_data()
    {
        QTest::addColumn<QPoint>("place");
        QTest::addColumn<int>("direction");
        QTest::addColumn<Qt::CursorShape>("shape");
        QTest::newRow("top left") << QPoint(3, 3) << 0 << Qt::SizeFDiagCursor;
        QTest::newRow("top, over the title") << QPoint(300, 3) << 1 << Qt::SizeVerCursor;
        QTest::newRow("top right") << QPoint(797, 3) << 2 << Qt::SizeBDiagCursor;
        QTest::newRow("right") << QPoint(797, 300) << 3 << Qt::SizeHorCursor;
        QTest::newRow("bottom right") << QPoint(797, 597) << 4 << Qt::SizeFDiagCursor;
        QTest::newRow("bottom") << QPoint(400, 597) << 5 << Qt::SizeVerCursor;
        QTest::newRow("bottom left") << QPoint(3, 597) << 6 << Qt::SizeBDiagCursor;
        QTest::newRow("left") << QPoint(3, 300) << 7 << Qt::SizeHorCursor;
        QTest::newRow("middle") << QPoint(400, 300) << 8 << Qt::ArrowCursor;
        QTest::newRow("title") << QPoint(400, 15) << 8 << Qt::ArrowCursor;
        QTest::newRow("last of the band") << QPoint(8, 300) << 7 << Qt::SizeHorCursor;
        QTest::newRow("beside the band") << QPoint(9, 300) << 8 << Qt::ArrowCursor;
    }

    void hoverChangesTheCursor()
    {
        QFETCH(QPoint, place);
        QFETCH(int, direction);
        QFETCH(Qt::CursorShape, shape);
        const auto frame = makeFrame();
        QVERIFY(pointer::showAndWait(frame.get()));
        // From where the other cursor is.
        pointer::moveTo(frame.get(), direction == 8 ? QPoint(797, 300) : QPoint(400, 300));
        QCOMPARE(frame->GetCurDragDirect(), direction == 8 ? 3 : 8);
        pointer::moveTo(frame.get(), place);
        QCOMPARE(frame->GetCurDragDirect(), direction);
        QCOMPARE(frame->cursor().shape(), shape);
        QCOMPARE(frame->windowHandle()->cursor().shape(), shape);
    }

    void hoverGoesByTheRecordedSize()
    {
        const auto frame = makeFrame();
        frame->SetFrameCurSize(QSizeF(500, 400));
        Mouse mouse(*frame);
        mouse.move(frame->mapToGlobal(QPoint(797, 300)));
        QCOMPARE(frame->cursor().shape(), Qt::ArrowCursor);
        mouse.move(frame->mapToGlobal(QPoint(497, 300)));
        QCOMPARE(frame->cursor().shape(), Qt::SizeHorCursor);
        // Rounded to whole pixels first: 8.4 is in the band, 8.6 is not.
        mouse.move(QPointF(frame->mapToGlobal(QPoint(0, 300))) + QPointF(8.6, 0));
        QCOMPARE(frame->cursor().shape(), Qt::ArrowCursor);
        mouse.move(QPointF(frame->mapToGlobal(QPoint(0, 300))) + QPointF(8.4, 0));
        QCOMPARE(frame->cursor().shape(), Qt::SizeHorCursor);
    }

    void dragMovesTheOutlineAndThenTheWindow()
    {
        const auto frame = makeFrame();
        const QDialog *band = rubberBand(*frame);
        Mouse mouse(*frame);
        mouse.press({50, 10}, {150.4, 90.6}); // whole pixels: 50, 11 from the corner
        QVERIFY(band->isHidden());
        mouse.move({200.6, 150.2});
        QVERIFY(!band->isHidden());
        QCOMPARE(band->geometry(), QRect(151, 139, 800, 600));
        QCOMPARE(frame->geometry(), QRect(100, 80, 800, 600));
        mouse.move({30, 20});
        QCOMPARE(band->geometry(), QRect(-20, 9, 800, 600));
        QCOMPARE(frame->geometry(), QRect(100, 80, 800, 600));
        mouse.release({210.5, 160.4});
        QVERIFY(band->isHidden());
        QCOMPARE(frame->geometry(), QRect(161, 149, 800, 600));
        QCOMPARE(frame->GetCurDragDirect(), 8);
        QCOMPARE(frame->cursor().shape(), Qt::ArrowCursor);
        // It is over: moves are hovering again.
        mouse.move(frame->mapToGlobal(QPoint(3, 300)));
        QVERIFY(band->isHidden());
        QCOMPARE(frame->cursor().shape(), Qt::SizeHorCursor);
    }

    void clickWithoutAMoveLeavesTheWindowWhereItIs()
    {
        const auto frame = makeFrame();
        Mouse mouse(*frame);
        mouse.press(QPoint(50, 10));
        mouse.release(frame->mapToGlobal(QPoint(50, 10)));
        QCOMPARE(frame->pos(), QPoint(100, 80));
        QVERIFY(rubberBand(*frame)->isHidden());
    }

    void dragBeginsInTheTitleOnly_data()
    {
        QTest::addColumn<QPointF>("place");
        QTest::addColumn<bool>("isInTitle");
        QTest::newRow("title") << QPointF(400, 15) << true;
        QTest::newRow("first pixel") << QPointF(0, 0) << true;
        QTest::newRow("last pixel") << QPointF(789, 29) << true;
        QTest::newRow("rounded in") << QPointF(789.4, 29.4) << true;
        QTest::newRow("rounded out at the right") << QPointF(789.5, 15) << false;
        QTest::newRow("rounded out at the bottom") << QPointF(400, 29.5) << false;
        QTest::newRow("beside the title") << QPointF(795, 15) << false;
        QTest::newRow("below the title") << QPointF(400, 30) << false;
        QTest::newRow("middle") << QPointF(400, 300) << false;
    }

    void dragBeginsInTheTitleOnly()
    {
        QFETCH(QPointF, place);
        QFETCH(bool, isInTitle);
        const auto frame = makeFrame();
        // Wherever the title is: its area is that at the frame's corner.
        frame->GetTitleWidget()->move(5, 200);
        const QDialog *band = rubberBand(*frame);
        Mouse mouse(*frame);
        const QPoint global = frame->mapToGlobal(place.toPoint());
        mouse.press(place, global);
        mouse.move(global + QPoint(20, 30));
        QCOMPARE(!band->isHidden(), isInTitle);
        mouse.release(global + QPoint(20, 30));
        QCOMPARE(frame->pos(), isInTitle ? QPoint(120, 110) : QPoint(100, 80));
        QVERIFY(band->isHidden());
    }

    void onlyTheLeftButtonDrags()
    {
        const auto frame = makeFrame();
        const QDialog *band = rubberBand(*frame);
        for (const Qt::MouseButton other : {Qt::RightButton, Qt::MiddleButton}) {
            Mouse mouse(*frame);
            mouse.press(QPoint(50, 10), other);
            mouse.move({200, 150});
            QVERIFY(band->isHidden());
            mouse.release({200, 150}, other);
            QCOMPARE(frame->pos(), QPoint(100, 80));
        }
    }

    void dragNeedsTheButtonHeld()
    {
        const auto frame = makeFrame();
        Mouse mouse(*frame);
        mouse.press(QPoint(50, 10));
        Mouse withoutButtons(*frame);
        withoutButtons.move({200, 150});
        QVERIFY(rubberBand(*frame)->isHidden());
        mouse.move({200, 150});
        QVERIFY(!rubberBand(*frame)->isHidden());
    }

    void anotherButtonEndsTheDrag()
    {
        const auto frame = makeFrame();
        const QDialog *band = rubberBand(*frame);
        Mouse mouse(*frame);
        mouse.press(QPoint(50, 10));
        mouse.press(QPoint(50, 10), Qt::RightButton);
        mouse.move({200, 150});
        QVERIFY(band->isHidden());
        mouse.release({200, 150});
        QCOMPARE(frame->pos(), QPoint(100, 80));

        mouse.release({200, 150}, Qt::RightButton);
        mouse.press(QPoint(50, 10));
        mouse.move({200, 150});
        QVERIFY(!band->isHidden());
        mouse.release({200, 150}, Qt::RightButton);
        QVERIFY(band->isHidden());
        mouse.move({210, 160});
        QVERIFY(band->isHidden());
        mouse.release({210, 160});
        QCOMPARE(frame->pos(), QPoint(100, 80));
    }

    void dragFromAnEdgeResizesNothing()
    {
        const auto frame = makeFrame();
        const QDialog *band = rubberBand(*frame);
        const QPoint edge = frame->mapToGlobal(QPoint(797, 300));
        Mouse mouse(*frame);
        // Nothing is shown before the first drag of the title.
        mouse.move(edge);
        mouse.press(QPoint(797, 300));
        mouse.move(edge + QPoint(50, 0));
        QVERIFY(band->isHidden());
        QCOMPARE(frame->GetCurDragDirect(), 3);
        mouse.release(edge + QPoint(50, 0));
        QCOMPARE(frame->geometry(), QRect(100, 80, 800, 600));
        QCOMPARE(frame->GetCurDragDirect(), 8);
        QCOMPARE(frame->cursor().shape(), Qt::ArrowCursor);

        mouse.move(frame->mapToGlobal(QPoint(400, 15)));
        mouse.press(QPoint(400, 15));
        mouse.move(frame->mapToGlobal(QPoint(410, 35)));
        QCOMPARE(band->geometry(), QRect(110, 100, 800, 600));
        mouse.release(frame->mapToGlobal(QPoint(420, 55)));
        QCOMPARE(frame->geometry(), QRect(120, 120, 800, 600));

        // From then on the outline comes up again where it was last.
        mouse.move(frame->mapToGlobal(QPoint(797, 300)));
        mouse.press(QPoint(797, 300));
        QVERIFY(band->isHidden());
        mouse.move(frame->mapToGlobal(QPoint(900, 310)));
        QVERIFY(!band->isHidden());
        QCOMPARE(band->geometry(), QRect(110, 100, 800, 600));
        mouse.release(frame->mapToGlobal(QPoint(900, 310)));
        QVERIFY(band->isHidden());
        QCOMPARE(frame->geometry(), QRect(120, 120, 800, 600));
    }

    void dragFromTheTitlesTopEdgeMovesNothing()
    {
        const auto frame = makeFrame();
        Mouse mouse(*frame);
        mouse.move(frame->mapToGlobal(QPoint(300, 3)));
        mouse.press(QPoint(300, 3));
        mouse.move(frame->mapToGlobal(QPoint(340, 43)));
        QVERIFY(rubberBand(*frame)->isHidden());
        mouse.release(frame->mapToGlobal(QPoint(340, 43)));
        QCOMPARE(frame->geometry(), QRect(100, 80, 800, 600));
    }

    void outlineOfAnEmptyFrameIsNotShown()
    {
        const auto frame = makeFrame();
        frame->setFixedSize(0, 0);
        Mouse mouse(*frame);
        mouse.press({50, 10}, {150, 90});
        mouse.move({200, 150});
        QVERIFY(rubberBand(*frame)->isHidden());
        mouse.release({200, 150});
        QCOMPARE(frame->pos(), QPoint(150, 140));
    }

    void childOutlineIsShownToo()
    {
        const auto frame = makeFrame();
        QVERIFY(pointer::showAndWait(frame.get()));
        frame->SetRubberBandShape(ChildRubberBand);
        Mouse mouse(*frame);
        mouse.press({50, 10}, {150, 90});
        mouse.move({200, 150});
        QVERIFY(rubberBand(*frame)->isVisible());
        QCOMPARE(rubberBand(*frame)->geometry(), QRect(150, 140, 800, 600));
        mouse.release({200, 150});
        QVERIFY(!rubberBand(*frame)->isVisible());
        QCOMPARE(frame->pos(), QPoint(150, 140));
    }

    void dragsComeToTheFrameThroughItsTitle()
    {
        const auto frame = makeFrame();
        QVERIFY(pointer::showAndWait(frame.get()));
        const QPoint before = frame->pos();
        WindowTitle *title = frame->GetTitleWidget();
        windowmouse::press(title, Qt::LeftButton, QPoint(300, 15));
        QTest::mouseMove(frame->windowHandle(), QPoint(330, 25));
        QVERIFY(rubberBand(*frame)->isVisible());
        QCOMPARE(rubberBand(*frame)->pos(), before + QPoint(30, 10));
        windowmouse::release(title, Qt::LeftButton, QPoint(340, 35));
        QVERIFY(!rubberBand(*frame)->isVisible());
        QCOMPARE(frame->pos(), before + QPoint(40, 20));
    }

    void titleIsConnectedOnce()
    {
        const auto frame = makeFrame();
        QVERIFY(pointer::showAndWait(frame.get()));
        windowmouse::click(button(*frame, Maximize));
        QVERIFY(!offersRestore(*frame));
        QCOMPARE(frame->size(), QSize(400, 300));
        windowmouse::click(button(*frame, Maximize));
        QVERIFY(offersRestore(*frame));
        QCOMPARE(frame->size(), QSize(800, 600));
        QTest::mouseDClick(frame->windowHandle(), Qt::LeftButton, Qt::NoModifier, QPoint(200, 15));
        QVERIFY(!offersRestore(*frame));
        windowmouse::click(button(*frame, Close));
        QCOMPARE(frame->closeButtons, 1);
        windowmouse::click(button(*frame, Minimize));
        QCOMPARE(frame->windowState(), Qt::WindowStates(Qt::WindowMinimized));
    }

    void minimisedFrameStaysMinimised_data()
    {
        QTest::addColumn<Qt::WindowStates>("state");
        QTest::addColumn<int>("changes");
        QTest::newRow("no state") << Qt::WindowStates(Qt::WindowNoState) << 1;
        QTest::newRow("maximised") << Qt::WindowStates(Qt::WindowMaximized) << 1;
        QTest::newRow("minimised") << Qt::WindowStates(Qt::WindowMinimized) << 0;
        QTest::newRow("minimised from maximised")
            << (Qt::WindowMinimized | Qt::WindowMaximized) << 1;
    }

    void minimisedFrameStaysMinimised()
    {
        QFETCH(Qt::WindowStates, state);
        QFETCH(int, changes);
        const auto frame = makeFrame();
        frame->setWindowState(state);
        frame->states.clear();
        frame->slot_showMinimized();
        QCOMPARE(frame->windowState(), Qt::WindowStates(Qt::WindowMinimized));
        QCOMPARE(frame->states.size(), changes);
    }

    void closeButtonPassesANullEvent()
    {
        const auto frame = makeFrame();
        QVERIFY(pointer::showAndWait(frame.get()));
        frame->slot_close();
        QCOMPARE(frame->closeButtons, 1);
        QCOMPARE(frame->closeEvents, 0);
        QVERIFY(frame->isVisible());
        frame->onCloseButton = [&] { frame->close(); };
        button(*frame, Close)->click();
        QCOMPARE(frame->closeButtons, 2);
        QCOMPARE(frame->closeEvents, 1);
        QVERIFY(!frame->isVisible());
    }

    void frameAloneSurvivesTheNullEvent()
    {
        for (const QString &warning : framewarnings::ofFrame())
            expectWarning(warning);
        WindowFrame frame(QSizeF(640, 480), QSizeF(800, 600), QSizeF(400, 300));
        QVERIFY(pointer::showAndWait(&frame));
        frame.slot_close();
        QVERIFY(frame.isVisible());
        QVERIFY(frame.close());
        QVERIFY(!frame.isVisible());
    }

    void newRectFollowsTheNamedEdges_data()
    {
        QTest::addColumn<QPointF>("place"); // where the drag direction comes from
        QTest::addColumn<QPointF>("current");
        QTest::addColumn<QRectF>("rect");
        // A frame of 800 by 600 at (10, 20): its right edge is at 810, its bottom at 620.
        const auto row = [](const char *name, QPointF place, QPointF current, QRectF rect) {
            QTest::newRow(name) << place << current << rect;
        };
        row("none", {400, 300}, {50, 60}, {10, 20, 800, 600});
        row("top left", {0, 0}, {50, 60}, {50, 60, 760, 560});
        row("top", {400, 0}, {50, 60}, {10, 60, 800, 560});
        row("top right", {800, 0}, {700, 60}, {10, 60, 690, 560});
        row("right", {800, 300}, {900.5, 60}, {10, 20, 890.5, 600});
        row("bottom right", {800, 600}, {900, 700}, {10, 20, 890, 680});
        row("bottom", {400, 600}, {50, 500}, {10, 20, 800, 480});
        row("bottom left", {0, 600}, {-50, 500}, {-50, 20, 860, 480});
        row("left", {0, 300}, {-50, 500}, {-50, 20, 860, 600});
        // An edge stops at the smallest size, 400 by 300, and the opposite one stays.
        row("top left, limit", {0, 0}, {900, 900}, {410, 320, 400, 300});
        row("top, limit", {400, 0}, {50, 321}, {10, 320, 800, 300});
        row("top right, limit", {800, 0}, {0, 900}, {10, 320, 400, 300});
        row("right, limit", {800, 300}, {409, 0}, {10, 20, 400, 600});
        row("right, at the limit", {800, 300}, {410, 0}, {10, 20, 400, 600});
        row("bottom right, limit", {800, 600}, {-900, -900}, {10, 20, 400, 300});
        row("bottom, limit", {400, 600}, {50, 0}, {10, 20, 800, 300});
        row("bottom left, limit", {0, 600}, {900, 0}, {410, 20, 400, 300});
        row("left, limit", {0, 300}, {411, 500}, {410, 20, 400, 600});
    }

    void newRectFollowsTheNamedEdges()
    {
        QFETCH(QPointF, place);
        QFETCH(QPointF, current);
        QFETCH(QRectF, rect);
        const auto frame = makeFrame();
        QCursor cursor;
        frame->IsInDragRect(place, cursor);
        QCOMPARE(frame->GetNewWindowRect(QPointF(10, 20), current), rect);
        QCOMPARE(frame->geometry(), QRect(100, 80, 800, 600));
    }

    void positionIsThatInTheParent()
    {
        const auto frame = makeFrame();
        QCOMPARE(frame->GetItemInParentScenePos(QPointF(1.5, -2)), QPointF(101.5, 78));
    }

    void enteringLeavingAndResizingChangeNothing()
    {
        const auto frame = makeFrame();
        QVERIFY(pointer::showAndWait(frame.get()));
        pointer::moveTo(frame.get(), QPoint(797, 300));
        QCOMPARE(frame->cursor().shape(), Qt::SizeHorCursor);
        QEvent leave(QEvent::Leave);
        QCoreApplication::sendEvent(frame.get(), &leave);
        QEnterEvent enter(QPointF(400, 300), QPointF(400, 300), QPointF(500, 380));
        QCoreApplication::sendEvent(frame.get(), &enter);
        QCOMPARE(frame->cursor().shape(), Qt::SizeHorCursor);
        QCOMPARE(frame->GetCurDragDirect(), 3);
        frame->setFixedSize(500, 400);
        QCoreApplication::processEvents();
        QCOMPARE(frame->GetTitleWidget()->size(), QSize(790, 30));
    }

    void frameDiesWithItsParentAndAlone()
    {
        auto parent = std::make_unique<QWidget>();
        const QPointer<Host> owned = makeFrame({800, 600}, {400, 300}, parent.get()).release();
        QPointer<Host> gone = makeFrame({800, 600}, {400, 300}, parent.get()).release();
        const QPointer<WindowTitle> title = gone->GetTitleWidget();
        const QPointer<QDialog> band = rubberBand(*gone);
        const QPointer<QVBoxLayout> layout = gone->GetBaseFrameLayout();
        delete gone;
        QVERIFY(!title && !band && !layout);
        parent.reset();
        QVERIFY(!owned);
    }

    void partsMayBeDeletedByTheHost()
    {
        const auto frame = makeFrame();
        QVERIFY(pointer::showAndWait(frame.get()));
        Mouse mouse(*frame);
        mouse.press(QPoint(50, 10));
        mouse.move({200, 150});
        delete rubberBand(*frame);
        mouse.move({210, 160});
        mouse.release({210, 160});
        frame->SetRubberBandShape(static_cast<RubberBandShape>(9));
        frame->SetRubberBandLineStyle("QDialog{}");
        QVERIFY(takeDebugMessages().isEmpty());
        delete frame->GetBaseFrameLayout();
        QVERIFY(!frame->GetBaseFrameLayout());
        delete frame->GetTitleWidget();
        QVERIFY(!frame->GetTitleWidget());
        frame->SetTitleBarVisable(true);
        frame->slot_showMinimized();
        frame->slot_close();
        QCOMPARE(frame->closeButtons, 1);
    }

    void frameMayBeDeletedByItsCloseButton()
    {
        const QPointer<Host> frame = makeFrame().release();
        QVERIFY(pointer::showAndWait(frame));
        frame->onCloseButton = [&] { delete frame; };
        windowmouse::click(button(*frame, Close));
        QVERIFY(!frame);
    }
};

ORVANE_TEST_MAIN(TestWindowFrame)
#include "tst_windowframe.moc"
