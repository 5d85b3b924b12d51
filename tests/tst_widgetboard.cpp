#include "support/paintcounter.h"
#include "support/pointer.h"
#include "support/testcase.h"

#include <shapewidget.h>
#include <widgetboard.h>

namespace
{

QWidget *content(int width, int height)
{
    auto *widget = new QWidget;
    widget->resize(width, height);
    return widget;
}

ShapeWidget *panel(const QWidget &board)
{
    return board.findChild<ShapeWidget *>();
}

} // namespace

class TestWidgetBoard : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void hasDefaults()
    {
        const WidgetBoard board(nullptr);
        QCOMPARE(board.triggleBtnWidth(), 20);
        QCOMPARE(board.triggleBtnHeight(), 8);
        QCOMPARE(board.dropDownBtnWidth(), 54);
        QCOMPARE(board.dropDownBtnHeight(), 20);
        QCOMPARE(board.focusPolicy(), Qt::StrongFocus);
        QVERIFY(board.hasMouseTracking());
        QVERIFY(board.testAttribute(Qt::WA_TranslucentBackground));
        QVERIFY(panel(board)->isHidden());
        QVERIFY(!board.shapeWidgetVisible());
        QVERIFY(!board.dropDownButtonVisible());
    }

    void dropDownButtonHasItsPicture()
    {
        const WidgetBoard board;
        const QToolButton *button = board.dropDownBtn();
        QCOMPARE(button->parentWidget(), &board);
        QVERIFY(button->isHidden());
        QCOMPARE(button->minimumSize(), QSize(54, 20));
        QCOMPARE(button->maximumSize(), QSize(54, 20));
        QCOMPARE(button->focusPolicy(), Qt::NoFocus);
        QVERIFY(button->hasMouseTracking());
        QCOMPARE(button->styleSheet(),
                 QString("QToolButton{border-image: "
                         "url(:/Resource/Images/globalResource/dropDown/dropDown.png);}"));
        QCOMPARE(QImage(":/Resource/Images/globalResource/dropDown/dropDown.png").size(),
                 QSize(54, 20));
    }

    void layoutLeavesRoomForTheButton()
    {
        const WidgetBoard board;
        const auto *layout = qobject_cast<QVBoxLayout *>(board.layout());
        QVERIFY(layout);
        QCOMPARE(layout->contentsMargins(), QMargins(0, 20, 0, 0));
        QCOMPARE(layout->spacing(), 0);
        QCOMPARE(layout->count(), 3);
        QVERIFY(layout->itemAt(0)->spacerItem());
        QCOMPARE(layout->itemAt(1)->widget(), panel(board));
        QVERIFY(layout->itemAt(2)->spacerItem());
    }

    void takesTheFrameWidthOfANewSheet()
    {
        WidgetBoard board;
        board.resize(200, 200);
        QVERIFY(pointer::showAndWait(&board));
        board.setStyleSheet("WidgetBoard{border:5px solid red;}");
        QCOMPARE(board.frameWidth(), 5);
    }

    void addedWidgetFillsThePanel()
    {
        WidgetBoard board;
        QWidget *widget = content(150, 160);
        board.addWidget(widget);
        QCOMPARE(panel(board)->findChild<QScrollArea *>()->widget(), widget);
        QCOMPARE(widget->objectName(), QString("shapeWidgetContent"));
        board.setFixedSize(160, 190);
        board.setShapeWidgetVisible(true);
        QVERIFY(pointer::showAndWait(&board));
        QCOMPARE(panel(board)->geometry(), QRect(0, 20, 160, 170));
        QCOMPARE(widget->visibleRegion().boundingRect(), QRect(0, 0, 150, 160));
    }

    void partsAreShownOnTheirOwn()
    {
        WidgetBoard board;
        board.resize(200, 200);
        QVERIFY(pointer::showAndWait(&board));
        board.setDropButoonVisible(true);
        QVERIFY(board.dropDownButtonVisible());
        QVERIFY(!board.shapeWidgetVisible());
        board.setShapeWidgetVisible(true);
        QVERIFY(board.shapeWidgetVisible());
        board.hide();
        QVERIFY(!board.dropDownButtonVisible());
        QVERIFY(!board.shapeWidgetVisible());
        board.setDropButoonVisible(true);
        board.setShapeWidgetVisible(true);
        QVERIFY(!board.dropDownButtonVisible());
        QVERIFY(!board.shapeWidgetVisible());
        board.show();
        QVERIFY(board.dropDownButtonVisible());
        QVERIFY(board.shapeWidgetVisible());
        board.setDropButoonVisible(false);
        QVERIFY(!board.dropDownButtonVisible());
        board.setShapeWidgetVisible(false);
        QVERIFY(!board.shapeWidgetVisible());
    }

    void partsAreMoved()
    {
        WidgetBoard board;
        board.setDropDownBtnPos(QPoint(33, 2));
        board.setTriggleBtnPos(QPoint(17, 0));
        board.setShapeWidgetVisible(true);
        board.setDropButoonVisible(true);
        board.resize(300, 300);
        QVERIFY(pointer::showAndWait(&board));
        QCOMPARE(board.dropDownBtn()->pos(), QPoint(33, 2));
        QCOMPARE(panel(board)->findChild<QFrame *>("triggleFrame")->pos(), QPoint(17, 0));
    }

    void recordedSizesResizeNothing()
    {
        WidgetBoard board;
        board.setTriggleBtnWidth(1);
        board.setTriggleBtnHeight(2);
        board.setDropDownBtnWidth(3);
        board.setDropDownBtnHeight(4);
        QCOMPARE(board.triggleBtnWidth(), 1);
        QCOMPARE(board.triggleBtnHeight(), 2);
        QCOMPARE(board.dropDownBtnWidth(), 3);
        QCOMPARE(board.dropDownBtnHeight(), 4);
        QCOMPARE(board.dropDownBtn()->size(), QSize(54, 20));
        QCOMPARE(panel(board)->triggleBtnWidth(), 20);
        QCOMPARE(panel(board)->triggleBtnHeight(), 8);
    }

    void clickReportsWhatThePanelIsToDo()
    {
        WidgetBoard board;
        board.resize(200, 200);
        board.setDropButoonVisible(true);
        QVERIFY(pointer::showAndWait(&board));
        QSignalSpy clicked(&board, &WidgetBoard::sigClickedDropDownBtn);
        const auto click = [&] {
            QTest::mouseClick(board.windowHandle(), Qt::LeftButton, Qt::NoModifier,
                              board.dropDownBtn()->geometry().center());
        };
        click();
        QCOMPARE(clicked.takeFirst().first().toBool(), true);
        QVERIFY(!board.shapeWidgetVisible()); // it only reports
        board.setShapeWidgetVisible(true);
        click();
        QCOMPARE(clicked.takeFirst().first().toBool(), false);
        QVERIFY(board.shapeWidgetVisible());
        board.on_dropDownClicked();
        QCOMPARE(clicked.count(), 1);
    }

    void lostFocusHidesEverything()
    {
        WidgetBoard board;
        board.setDropButoonVisible(true);
        board.setShapeWidgetVisible(true);
        QVERIFY(pointer::showAndWait(&board));
        QFocusEvent event(QEvent::FocusOut);
        QCoreApplication::sendEvent(&board, &event);
        QVERIFY(board.isHidden());
        QVERIFY(board.dropDownBtn()->isHidden());
        QVERIFY(panel(board)->isHidden());
    }

    void anotherActiveWindowTakesTheFocus()
    {
        QWidget other;
        other.move(400, 400);
        QVERIFY(pointer::showAndWait(&other));
        WidgetBoard board;
        board.resize(200, 200);
        QVERIFY(pointer::showAndWait(&board));
        board.activateWindow();
        board.setFocus();
        QTRY_VERIFY(board.hasFocus());
        other.activateWindow();
        QTRY_VERIFY(board.isHidden());
    }

    void focusInsideThePopupKeepsItOpen()
    {
        QWidget other;
        other.setGeometry(400, 400, 100, 100);
        QVERIFY(pointer::showAndWait(&other));
        WidgetBoard board;
        auto *widget = content(150, 160);
        auto *button = new QPushButton(widget);
        button->setGeometry(10, 10, 40, 40);
        button->setFocusPolicy(Qt::ClickFocus);
        board.addWidget(widget);
        board.setFixedSize(160, 190);
        board.setDropButoonVisible(true);
        board.setShapeWidgetVisible(true);
        QVERIFY(pointer::showAndWait(&board));
        board.activateWindow();
        board.setFocus();
        QTRY_VERIFY(board.hasFocus());
        QSignalSpy clicked(button, &QPushButton::clicked);
        const QPoint place = button->mapTo(&board, QPoint(20, 20));
        QTest::mousePress(board.windowHandle(), Qt::LeftButton, Qt::NoModifier, place);
        QVERIFY(button->hasFocus());
        QVERIFY(board.isVisible() && board.shapeWidgetVisible() && board.dropDownButtonVisible());
        QTest::mouseRelease(board.windowHandle(), Qt::LeftButton, Qt::NoModifier, place);
        QCOMPARE(clicked.count(), 1);
        QVERIFY(board.isVisible());

        other.activateWindow();
        QTRY_VERIFY(board.isHidden());
        QVERIFY(board.dropDownBtn()->isHidden());
        QVERIFY(panel(board)->isHidden());
    }

    void isPaintedAnewWhenTheFocusGoesInside()
    {
        WidgetBoard board;
        auto *button = new QPushButton;
        board.addWidget(button);
        board.setShapeWidgetVisible(true);
        QVERIFY(pointer::showAndWait(&board));
        board.activateWindow();
        button->setFocus();
        QTRY_VERIFY(button->hasFocus());
        const PaintCounter paints(&board);
        QFocusEvent inside(QEvent::FocusOut, Qt::TabFocusReason);
        QCoreApplication::sendEvent(&board, &inside);
        QVERIFY(board.isVisible());
        QTRY_VERIFY(paints.count > 0);
    }

    void boardThatIsNoWindowOutlivesTheActivation()
    {
        QWidget other;
        other.setGeometry(400, 400, 100, 100);
        QVERIFY(pointer::showAndWait(&other));
        QWidget window;
        WidgetBoard board(&window);
        board.resize(100, 100);
        QVERIFY(pointer::showAndWait(&window));
        window.activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&window));
        window.setFocusPolicy(Qt::StrongFocus);
        window.setFocus();
        board.show();
        other.activateWindow();
        QTRY_VERIFY(!window.isActiveWindow());
        QVERIFY(board.isVisible());
    }

    void canBeDeletedInItsOwnSignal()
    {
        const QPointer<WidgetBoard> board = new WidgetBoard;
        const QPointer<QToolButton> button = board->dropDownBtn();
        board->resize(200, 200);
        board->setDropButoonVisible(true);
        QVERIFY(pointer::showAndWait(board));
        connect(board, &WidgetBoard::sigClickedDropDownBtn, this, [&] { delete board; });
        QTest::mouseClick(board->windowHandle(), Qt::LeftButton, Qt::NoModifier,
                          button->geometry().center());
        QVERIFY(board.isNull());
        QTRY_VERIFY(button.isNull());
    }

    void partsDieWithTheBoard()
    {
        QWidget parent;
        auto *board = new WidgetBoard(&parent);
        const QPointer<QWidget> widget = content(50, 50);
        const QPointer<QToolButton> button = board->dropDownBtn();
        board->addWidget(widget);
        board->on_dropDownClicked();
        delete board;
        QVERIFY(widget.isNull());
        QVERIFY(button.isNull());
    }

    void metaObjectNamesSignalAndSlot()
    {
        const QMetaObject &meta = WidgetBoard::staticMetaObject;
        QCOMPARE(QByteArray(meta.superClass()->className()), QByteArray("QFrame"));
        QStringList methods;
        for (int i = meta.methodOffset(); i < meta.methodCount(); ++i)
            methods.append(meta.method(i).methodSignature());
        QCOMPARE(methods, (QStringList{"sigClickedDropDownBtn(bool)", "on_dropDownClicked()"}));
    }
};

ORVANE_TEST_MAIN(TestWidgetBoard)
#include "tst_widgetboard.moc"
