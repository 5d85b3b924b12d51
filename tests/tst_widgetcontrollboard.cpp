#include "support/pointer.h"
#include "support/testcase.h"

#include <buttongroupex.h>
#include <shapewidget.h>
#include <shapewidgetcontent.h>
#include <toolbuttonex.h>
#include <widgetboard.h>
#include <widgetcontent.h>
#include <widgetcontrollboard.h>
#include <widgetinfo.h>

namespace
{

constexpr int leaveDelay = 300;

// What Qt says at the first paint of a picture button.
const QString firstPaint = "QWidget::repaint: Recursive repaint detected";

// Seven buttons of 40 by 40 make a strip of 340 pixels, far wider than its window, and a popup of
// 160 by 190: three columns and rows of copies.
QList<QWidget *> buttons(int count = 7)
{
    QList<QWidget *> list;
    for (int i = 0; i < count; ++i) {
        auto *button = new QPushButton(QString::number(i));
        button->setFixedSize(40, 40);
        button->setToolTip("tip " + QString::number(i));
        button->setStyleSheet("QPushButton{color:#00000" + QString::number(i) + ";}");
        list.append(button);
    }
    return list;
}

QList<QPointer<QWidget>> guards(const QList<QWidget *> &list)
{
    QList<QPointer<QWidget>> pointers;
    for (QWidget *widget : list)
        pointers.append(widget);
    return pointers;
}

int alive(const QList<QPointer<QWidget>> &list)
{
    return int(std::count_if(list.begin(), list.end(), [](const auto &w) { return bool(w); }));
}

ButtonGroupEx *strip(const WidgetControllBoard &board)
{
    return board.findChild<ButtonGroupEx *>();
}

WidgetContent *row(const WidgetControllBoard &board)
{
    return board.findChild<WidgetContent *>();
}

// The one popup; there is one board at a time.
WidgetBoard *popup()
{
    WidgetBoard *found = nullptr;
    for (QWidget *widget : QApplication::topLevelWidgets()) {
        if (auto *candidate = qobject_cast<WidgetBoard *>(widget))
            found = candidate;
    }
    return found;
}

ShapeWidget *panel()
{
    return popup()->findChild<ShapeWidget *>();
}

QList<QWidget *> copies()
{
    const auto *content = popup()->findChild<ShapeWidgetContent *>();
    return content ? content->lsWidget() : QList<QWidget *>();
}

QStringList classesOfCopies()
{
    QStringList names;
    for (const QWidget *copy : copies())
        names.append(copy->metaObject()->className());
    return names;
}

void send(QWidget *widget, QEvent::Type type)
{
    QEvent event(type);
    QCoreApplication::sendEvent(widget, &event);
}

// "popup", "button" and "panel" for what is open; a hidden popup shows neither of the others.
QString open()
{
    QStringList parts;
    if (popup()->isVisible())
        parts.append("popup");
    if (popup()->dropDownButtonVisible())
        parts.append("button");
    if (popup()->shapeWidgetVisible())
        parts.append("panel");
    return parts.join(' ');
}

// Moves the pointer from wherever it is, across windows, over \a widget.
void pointAt(const QWidget *widget, QPoint position)
{
    QCursor::setPos(widget->mapToGlobal(position));
    QCoreApplication::processEvents();
}

// The board's timer as it runs out, whenever that would be.
void runOut(WidgetControllBoard *board)
{
    QMetaObject::invokeMethod(board, "slot_timeout", Qt::DirectConnection);
}

// Waits until the board's timer has run out at least twice, if it runs.
void waitLongerThanTheDelay()
{
    QTimer timer;
    timer.setSingleShot(true);
    QSignalSpy elapsed(&timer, &QTimer::timeout);
    timer.start(2 * leaveDelay + 100);
    QVERIFY(elapsed.wait());
}

class Picture
{
public:
    explicit Picture(const QColor &color)
    {
        QImage image(20, 20, QImage::Format_RGB32);
        image.fill(color);
        m_isSaved = image.save(path());
    }
    QString path() const { return m_directory.filePath("picture.png"); }
    bool isSaved() const { return m_isSaved; }

private:
    QTemporaryDir m_directory;
    bool m_isSaved = false;
};

} // namespace

class TestWidgetControllBoard : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void hasDefaults()
    {
        const WidgetControllBoard board(nullptr);
        QVERIFY(board.lsWidget().isEmpty());
        QVERIFY(board.hasMouseTracking());
        QVERIFY(strip(board));
        QCOMPARE(strip(board)->parentWidget(), &board);
        QCOMPARE(strip(board)->geometry(), QRect(0, 0, 230, 70));
        QCOMPARE(strip(board)->minimumSize(), QSize(230, 70));
        QCOMPARE(strip(board)->maximumSize(), QSize(230, 70));
        QVERIFY(strip(board)->hasMouseTracking());
        QCOMPARE(board.sizeHint(), QSize(230, 70));
        QCOMPARE(board.minimumSizeHint(), QSize(230, 70));
    }

    void popupIsAHiddenWindowOfItsOwn()
    {
        const WidgetControllBoard board;
        QVERIFY(popup());
        QVERIFY(!popup()->parentWidget());
        QVERIFY(popup()->isHidden());
        QCOMPARE(popup()->windowType(), Qt::Tool);
        QVERIFY(popup()->windowFlags().testFlag(Qt::FramelessWindowHint));
        QVERIFY(popup()->windowFlags().testFlag(Qt::NoDropShadowWindowHint));
    }

    void gridOfCopiesHasThreeColumns()
    {
        const WidgetControllBoard board;
        const auto *content = board.findChild<ShapeWidgetContent *>();
        QVERIFY(content);
        QCOMPARE(content->column(), 3);
    }

    void nothingLiesOnTheStripBeforeTheFirstList()
    {
        WidgetControllBoard board;
        QVERIFY(pointer::showAndWait(&board));
        QVERIFY(!board.findChild<ShapeWidgetContent *>()->isVisible());
        QCOMPARE(board.childAt(5, 5)->window(), &board);
        QVERIFY(strip(board)->isAncestorOf(board.childAt(14, 20)));
    }

    void listFillsStripAndPopup()
    {
        WidgetControllBoard board;
        const QList<QWidget *> list = buttons();
        board.setLsWidget(list);
        QCOMPARE(board.lsWidget(), list);
        QCOMPARE(row(board)->lsWidget(), list);
        QCOMPARE(row(board)->width(), 340);
        QVERIFY(strip(board)->isWidthBigThanScrollWidth());
        QCOMPARE(copies().size(), 7);
        QCOMPARE(popup()->minimumSize(), QSize(160, 190));
        QCOMPARE(popup()->maximumSize(), QSize(160, 190));
        QVERIFY(pointer::showAndWait(&board));
        QVERIFY(list.first()->isVisible());
        QCOMPARE(list.first()->size(), QSize(40, 40));
    }

    void listOfAShownBoardIsSeen()
    {
        WidgetControllBoard board;
        QVERIFY(pointer::showAndWait(&board));
        const QList<QWidget *> list = buttons();
        board.setLsWidget(list);
        QTRY_VERIFY(list.first()->isVisible());
        QCOMPARE(list.at(1)->mapTo(row(board), QPoint()), QPoint(50, 0));
    }

    void emptyListIsAllowed()
    {
        WidgetControllBoard board;
        board.setLsWidget(buttons());
        board.setLsWidget({});
        QCOMPARE(row(board)->size(), QSize(10, 10));
        QVERIFY(copies().isEmpty());
        QCOMPARE(popup()->size(), QSize(40, 40));
        QVERIFY(!strip(board)->isWidthBigThanScrollWidth());
    }

    void equalListIsLaidOutAnew()
    {
        WidgetControllBoard board;
        const QList<QWidget *> list = buttons();
        board.setLsWidget(list);
        const QPointer<WidgetContent> firstRow = row(board);
        const auto firstCopies = guards(copies());
        board.setLsWidget(board.lsWidget());
        QVERIFY(firstRow.isNull());
        QCOMPARE(board.findChildren<WidgetContent *>().size(), 1);
        QCOMPARE(board.lsWidget(), list);
        QCOMPARE(row(board)->lsWidget(), list);
        QCOMPARE(row(board)->width(), 340);
        QCOMPARE(alive(firstCopies), 0);
        QCOMPARE(copies().size(), 7);
        QCOMPARE(popup()->findChild<ShapeWidgetContent *>()->findChildren<ToolButtonEx *>().size(),
                 7);
    }

    void listThatReplacesAnotherDeletesWhatIsNotInIt()
    {
        WidgetControllBoard board;
        const QList<QWidget *> list = buttons(4);
        const auto pointers = guards(list);
        board.setLsWidget(list);
        const QList<QWidget *> kept{list.at(3), list.at(1)};
        board.setLsWidget(kept);
        QVERIFY(!pointers.at(0) && pointers.at(1) && !pointers.at(2) && pointers.at(3));
        QCOMPARE(board.lsWidget(), kept);
        QCOMPARE(copies().size(), 2);
        QCOMPARE(copies().first()->toolTip(), QString("tip 3"));
    }

    void nullsAreIgnored()
    {
        WidgetControllBoard board;
        const QList<QWidget *> list = buttons(1);
        board.setLsWidget({nullptr, list.first()});
        QCOMPARE(board.lsWidget(), list);
        QCOMPARE(copies().size(), 1);
        board.addWidgetContent(nullptr);
        QCOMPARE(board.lsWidget(), list);
    }

    void copyIsAPlainToolButton()
    {
        WidgetControllBoard board;
        const QList<QWidget *> list = buttons(2);
        list.at(1)->setFixedSize(50, 30);
        board.setLsWidget(list);
        for (int i = 0; i < 2; ++i) {
            const auto *copy = qobject_cast<ToolButtonEx *>(copies().at(i));
            QVERIFY(copy);
            QCOMPARE(int(copy->buttonType()), int(DefaultType));
            QCOMPARE(copy->styleSheet(), list.at(i)->styleSheet());
            QCOMPARE(copy->minimumSize(), list.at(i)->size());
            QCOMPARE(copy->maximumSize(), list.at(i)->size());
            QCOMPARE(copy->toolTip(), "tip " + QString::number(i));
        }
        QCOMPARE(copies().at(1)->size(), QSize(50, 30));
    }

    void copyOfACabinetIsACabinetModel()
    {
        WidgetControllBoard board;
        board.setIsAddCabient(true);
        auto *model = new ToolButtonEx(nullptr, CabinetModelType, QString(), QString());
        model->setFixedSize(64, 64);
        model->setCabinetName("Outdoor");
        model->setCabinetSize(320, 160);
        model->setToolTip("An outdoor cabinet");
        board.setLsWidget({model, buttons(1).first()});
        const auto *copy = qobject_cast<ToolButtonEx *>(copies().at(0));
        QVERIFY(copy);
        QCOMPARE(int(copy->buttonType()), int(CabinetModelType));
        QCOMPARE(copy->cabinetWidth(), 320);
        QCOMPARE(copy->cabinetHeight(), 160);
        QCOMPARE(copy->styleSheet(), model->styleSheet());
        QCOMPARE(copy->size(), QSize(64, 64));
        QCOMPARE(copy->toolTip(), QString("An outdoor cabinet"));

        // A source without a cabinet size has a copy without one.
        const auto *other = qobject_cast<ToolButtonEx *>(copies().at(1));
        QVERIFY(other);
        QCOMPARE(int(other->buttonType()), int(CabinetModelType));
        QCOMPARE(other->cabinetWidth(), 0);
        QCOMPARE(other->toolTip(), QString("tip 0"));

        board.setIsAddCabient(false);
        QCOMPARE(int(copy->buttonType()), int(CabinetModelType));
        board.setLsWidget(board.lsWidget());
        QCOMPARE(int(qobject_cast<ToolButtonEx *>(copies().at(0))->buttonType()), int(DefaultType));
    }

    void sourceThatWasNeverSizedIsCopiedAsItIsLaidOut()
    {
        WidgetControllBoard board;
        auto *button = new QPushButton("A button of some width");
        board.setLsWidget({button});
        const QSize copySize = copies().first()->size();
        QCOMPARE(copySize, button->sizeHint());
        QVERIFY(pointer::showAndWait(&board));
        QCOMPARE(button->size(), copySize);
    }

    void copiesKeepTheirSizesInThePopup()
    {
        WidgetControllBoard board;
        const QList<QWidget *> list = buttons();
        list.at(4)->setFixedSize(20, 30);
        board.setLsWidget(list);
        QVERIFY(pointer::showAndWait(&board));
        board.setDropButtonVisible(true);
        QCoreApplication::processEvents();
        for (int i = 0; i < 7; ++i) {
            QVERIFY(copies().at(i)->isVisible());
            QCOMPARE(copies().at(i)->size(), i == 4 ? QSize(20, 30) : QSize(40, 40));
        }
    }

    void picturesAreCopiedByTheFlagRules()
    {
        WidgetControllBoard board;
        const QString tool = "ToolButtonEx";
        const QString image = "PushButtonWithImgEx";
        WidgetInfo info{"a.png", "b.png", "first"};
        board.addWidgetContent(&info);
        QCOMPARE(classesOfCopies(), (QStringList{tool})); // the first one is a tool button
        info = WidgetInfo{"c.png", "d.png", "second"};
        board.addWidgetContent(&info);
        QCOMPARE(classesOfCopies(), (QStringList{image, image}));
        board.addWidgetContent(&info);
        QCOMPARE(classesOfCopies(), (QStringList{image, image, image}));

        // The next list is copied as pictures, the one after it no more.
        QList<QWidget *> list = board.lsWidget();
        list += buttons(1);
        board.setLsWidget(list);
        QCOMPARE(classesOfCopies(), (QStringList{image, image, image, image}));
        QCOMPARE(static_cast<QPushButton *>(copies().at(3))->text(), QString("0"));
        QCOMPARE(copies().at(3)->toolTip(), QString("tip 0"));
        QCOMPARE(copies().at(3)->styleSheet(), QString());
        board.setLsWidget(list);
        QCOMPARE(classesOfCopies(), (QStringList{tool, tool, tool, tool}));

        // The cabinet flag does not matter for pictures.
        board.setIsAddCabient(true);
        board.addWidgetContent(&info);
        board.addWidgetContent(&info);
        QCOMPARE(classesOfCopies(), (QStringList{image, image, image, image, image, image}));
    }

    void pictureButtonIsMadeFromTheRecord()
    {
        WidgetControllBoard board;
        WidgetInfo info{"a.png", "b.png", "A controller"};
        board.addWidgetContent(&info);
        board.addWidgetContent(&info);
        QCOMPARE(board.lsWidget().size(), 2);
        for (const QList<QWidget *> &list : {board.lsWidget(), copies()}) {
            for (const QWidget *button : list) {
                QCOMPARE(button->metaObject()->className(), "PushButtonWithImgEx");
                QCOMPARE(button->minimumSize(), QSize(40, 40));
                QCOMPARE(button->maximumSize(), QSize(40, 40));
                QCOMPARE(button->toolTip(), QString("A controller"));
            }
        }
        QCOMPARE(row(board)->width(), 90);
    }

    void picturesShowInStripAndPopup()
    {
        const Picture normal(Qt::red);
        const Picture pressed(Qt::green);
        QVERIFY(normal.isSaved() && pressed.isSaved());
        WidgetControllBoard board;
        WidgetInfo info{normal.path(), pressed.path(), QString()};
        board.addWidgetContent(&info);
        board.addWidgetContent(&info);
        for (QWidget *button : {board.lsWidget().at(0), copies().at(1)}) {
            expectWarning(firstPaint);
            QCOMPARE(pointer::colorAt(button, QPoint(0, 0)), QColor(Qt::red));
            QTest::mousePress(button, Qt::LeftButton);
            QCOMPARE(pointer::colorAt(button, QPoint(0, 0)), QColor(Qt::green));
            QTest::mouseRelease(button, Qt::LeftButton);
            QCOMPARE(pointer::colorAt(button, QPoint(39, 39)), QColor(Qt::red));
        }
    }

    void removeAllWidgetDeletesButtonsAndCopies()
    {
        WidgetControllBoard board;
        const QList<QWidget *> list = buttons();
        board.setLsWidget(list);
        const auto pointers = guards(list) + guards(copies()) + guards({row(board)});
        QCOMPARE(alive(pointers), 15);
        board.removeAllWidget();
        QCOMPARE(alive(pointers), 0);
        QVERIFY(board.lsWidget().isEmpty());
        QVERIFY(copies().isEmpty());
        for (const char *frame : {"leftBtnFrame", "rightBtnFrame"})
            QVERIFY(board.findChild<QFrame *>(frame)->findChild<ToolButtonEx *>()->isHidden());
        QVERIFY(pointer::showAndWait(&board));
        send(&board, QEvent::Enter);
        QCOMPARE(open(), QString());

        board.removeAllWidget();
        board.setLsWidget(buttons());
        QCOMPARE(copies().size(), 7);
        QVERIFY(strip(board)->isWidthBigThanScrollWidth());
    }

    void removeAllWidgetOfANewBoardIsHarmless()
    {
        WidgetControllBoard board;
        board.removeAllWidget();
        QVERIFY(board.lsWidget().isEmpty());
    }

    void sourceDeletedByTheHostIsForgotten()
    {
        WidgetControllBoard board;
        const QList<QWidget *> list = buttons(3);
        board.setLsWidget(list);
        delete list.at(1);
        QCOMPARE(board.lsWidget(), (QList<QWidget *>{list.at(0), list.at(2)}));
        WidgetInfo info;
        board.addWidgetContent(&info);
        QCOMPARE(board.lsWidget().size(), 3);
        QCOMPARE(copies().size(), 3);
    }

    void partsAreForwardedToTheStrip()
    {
        WidgetControllBoard board;
        board.setButtonGroupExLabelText("Controllers");
        board.setAddButtonTooltip("Add cabinets");
        board.setAddRowCabinetTooTip("Add a row");
        QCOMPARE(board.findChild<QLabel *>("labelTitle")->text(), QString("Controllers"));
        auto *add = board.findChild<QFrame *>("addCabniateBtnFrame");
        auto *addRow = board.findChild<QFrame *>("addRowCabniateBtnFrame");
        QCOMPARE(add->findChild<ToolButtonEx *>()->toolTip(), QString("Add cabinets"));
        QCOMPARE(addRow->findChild<ToolButtonEx *>()->toolTip(), QString("Add a row"));
        board.setButtonGroupExAddCabnicate(false);
        QVERIFY(add->isHidden() && !addRow->isHidden());
        board.setButtonGroupExAddRowCabnicate(false);
        QVERIFY(add->isHidden() && addRow->isHidden());
        board.setButtonGroupExAddCabnicate(true);
        board.setButtonGroupExAddRowCabnicate(true);
        QVERIFY(!add->isHidden() && !addRow->isHidden());
    }

    void addButtonsAreReported()
    {
        WidgetControllBoard board;
        QSignalSpy cabinets(&board, SIGNAL(signal_addCabietsClicked()));
        QSignalSpy addRow(&board, SIGNAL(signal_addRowCabietsClicked()));
        board.findChild<QFrame *>("addCabniateBtnFrame")->findChild<ToolButtonEx *>()->click();
        QCOMPARE(cabinets.count(), 1);
        QCOMPARE(addRow.count(), 0);
        board.findChild<QFrame *>("addRowCabniateBtnFrame")->findChild<ToolButtonEx *>()->click();
        QCOMPARE(cabinets.count(), 1);
        QCOMPARE(addRow.count(), 1);
    }

    void enterOpensThePopupOfAStripThatOverflows_data()
    {
        QTest::addColumn<int>("count");
        QTest::addColumn<QString>("expected");
        QTest::newRow("no buttons") << 0 << "";
        QTest::newRow("buttons that fit") << 2 << "";
        QTest::newRow("buttons that do not fit") << 7 << "popup button";
    }

    void enterOpensThePopupOfAStripThatOverflows()
    {
        QFETCH(int, count);
        QFETCH(QString, expected);
        WidgetControllBoard board;
        if (count > 0)
            board.setLsWidget(buttons(count));
        board.move(200, 300);
        QVERIFY(pointer::showAndWait(&board));
        QCOMPARE(open(), QString());
        send(strip(board), QEvent::Enter);
        QCOMPARE(open(), QString());
        send(&board, QEvent::Enter);
        QCOMPARE(open(), expected);
    }

    void popupStandsBelowTheStrip_data()
    {
        // The screen is 800 wide, the strip 230, the popup 160, its drop-down button 54 and its
        // arrow 20.
        QTest::addColumn<int>("x");
        QTest::addColumn<bool>("isOpen");
        QTest::addColumn<int>("popupX");
        QTest::addColumn<int>("buttonX");
        QTest::addColumn<int>("arrowX");
        QTest::newRow("inside the screen") << 200 << true << 235 << 53 << 70;
        QTest::newRow("at the left edge") << 0 << true << 35 << 53 << 70;
        QTest::newRow("one pixel beyond the left edge") << -1 << true << 0 << 87 << 104;
        QTest::newRow("half beyond the left edge") << -115 << true << 0 << 30 << 47;
        QTest::newRow("as much left as the button is wide") << -176 << true << 0 << 0 << 17;
        QTest::newRow("less left than that") << -177 << false << 0 << 0 << 0;
        QTest::newRow("all beyond the left edge") << -300 << false << 0 << 0 << 0;
        QTest::newRow("at the right edge") << 570 << true << 605 << 53 << 70;
        QTest::newRow("one pixel beyond the right edge") << 571 << true << 640 << 18 << 35;
        QTest::newRow("half beyond the right edge") << 685 << true << 640 << 75 << 92;
        QTest::newRow("as much right as the button is wide") << 746 << true << 640 << 106 << 123;
        QTest::newRow("less right than that") << 747 << false << 0 << 0 << 0;
        QTest::newRow("all beyond the right edge") << 900 << false << 0 << 0 << 0;
    }

    void popupStandsBelowTheStrip()
    {
        QFETCH(int, x);
        QFETCH(bool, isOpen);
        QFETCH(int, popupX);
        QFETCH(int, buttonX);
        QFETCH(int, arrowX);
        QCOMPARE(QGuiApplication::primaryScreen()->geometry().width(), 800);
        WidgetControllBoard board;
        board.setLsWidget(buttons());
        board.setWindowFlag(Qt::FramelessWindowHint);
        board.move(x, 300);
        QVERIFY(pointer::showAndWait(&board));
        QCOMPARE(strip(board)->mapToGlobal(QPoint()), QPoint(x, 300));
        if (!isOpen) {
            // It was open, and now hides.
            board.setDropButtonVisible(true);
            popup()->setShapeWidgetVisible(false);
            QCOMPARE(open(), QString("popup button"));
        }
        send(&board, QEvent::Enter);
        if (!isOpen) {
            QCOMPARE(open(), QString());
            QVERIFY(popup()->dropDownBtn()->isHidden());
            return;
        }
        QCOMPARE(open(), QString("popup button"));
        QCOMPARE(popup()->pos(), QPoint(popupX, 370));
        QCOMPARE(popup()->dropDownBtn()->pos(), QPoint(buttonX, 0));
        popup()->setShapeWidgetVisible(true);
        QCoreApplication::processEvents();
        QCOMPARE(panel()->findChild<QFrame *>("triggleFrame")->pos(), QPoint(arrowX, 0));
    }

    void stripInsideAWindowIsFound()
    {
        QWidget window;
        WidgetControllBoard board(&window);
        board.move(30, 40);
        board.setLsWidget(buttons());
        window.setGeometry(100, 100, 400, 300);
        QVERIFY(pointer::showAndWait(&window));
        QCOMPARE(strip(board)->mapToGlobal(QPoint()), QPoint(130, 140));
        send(&board, QEvent::Enter);
        QCOMPARE(popup()->pos(), QPoint(165, 210));
    }

    void recordedWidthsOfThePopupCount()
    {
        WidgetControllBoard board;
        board.setLsWidget(buttons());
        board.setWindowFlag(Qt::FramelessWindowHint);
        board.move(200, 300);
        QVERIFY(pointer::showAndWait(&board));
        popup()->setDropDownBtnWidth(30);
        popup()->setTriggleBtnWidth(10);
        send(&board, QEvent::Enter);
        QCOMPARE(popup()->dropDownBtn()->pos(), QPoint(65, 0)); // 300 - 235
        QCOMPARE(panel()->findChild<QFrame *>("triggleFrame")->pos(), QPoint(75, 0));
    }

    void popupOfADisabledBoardDoesNotOpen()
    {
        WidgetControllBoard board;
        board.setLsWidget(buttons());
        board.move(200, 300);
        QVERIFY(pointer::showAndWait(&board));
        send(&board, QEvent::Enter);
        QCOMPARE(open(), QString("popup button"));
        board.setWidgetIsEnabled(false);
        QVERIFY(board.isEnabled());
        QVERIFY(!row(board)->isEnabled());
        QVERIFY(!board.findChild<QLabel *>("labelTitle")->isEnabled());
        send(&board, QEvent::Enter);
        QCOMPARE(open(), QString());
        QVERIFY(popup()->dropDownBtn()->isHidden());

        // Buttons that come meanwhile are disabled too.
        board.setLsWidget(buttons());
        QVERIFY(!row(board)->isEnabled());
        board.setWidgetIsEnabled(true);
        QVERIFY(row(board)->isEnabled());
        send(&board, QEvent::Enter);
        QCOMPARE(open(), QString("popup button"));
    }

    void popupClosesSomeTimeAfterTheLeave()
    {
        WidgetControllBoard board;
        board.setLsWidget(buttons());
        QVERIFY(pointer::showAndWait(&board));
        send(&board, QEvent::Enter);
        QElapsedTimer elapsed;
        elapsed.start();
        send(&board, QEvent::Leave);
        QCOMPARE(open(), QString("popup button"));
        QTRY_COMPARE(open(), QString());
        QVERIFY2(elapsed.elapsed() >= leaveDelay * 9 / 10,
                 qPrintable(QString::number(elapsed.elapsed())));
        QVERIFY(popup()->dropDownBtn()->isHidden());
    }

    void leaveFlagIsSetAtFirst()
    {
        WidgetControllBoard board;
        board.setLsWidget(buttons());
        QVERIFY(pointer::showAndWait(&board));
        send(&board, QEvent::Enter);
        runOut(&board);
        QCOMPARE(open(), QString());
    }

    void pointerOnTheDropDownButtonKeepsThePopup()
    {
        WidgetControllBoard board;
        board.setLsWidget(buttons());
        QVERIFY(pointer::showAndWait(&board));
        send(&board, QEvent::Enter);
        send(&board, QEvent::Leave);
        send(popup()->dropDownBtn(), QEvent::Enter);
        waitLongerThanTheDelay();
        QCOMPARE(open(), QString("popup button"));
        runOut(&board);
        QCOMPARE(open(), QString("popup button"));
        send(popup()->dropDownBtn(), QEvent::Leave);
        QCOMPARE(open(), QString("popup button"));
        QTRY_COMPARE(open(), QString());
    }

    void enterOfTheBoardDoesNotClearTheLeaveFlag()
    {
        WidgetControllBoard board;
        board.setLsWidget(buttons());
        QVERIFY(pointer::showAndWait(&board));
        send(&board, QEvent::Enter);
        send(&board, QEvent::Leave);
        send(&board, QEvent::Enter);
        runOut(&board);
        QCOMPARE(open(), QString());
    }

    void openPanelKeepsThePopup()
    {
        WidgetControllBoard board;
        board.setLsWidget(buttons());
        QVERIFY(pointer::showAndWait(&board));
        send(&board, QEvent::Enter);
        popup()->on_dropDownClicked();
        QCOMPARE(open(), QString("popup button panel"));
        send(&board, QEvent::Leave);
        waitLongerThanTheDelay();
        QCOMPARE(open(), QString("popup button panel"));
        // The timer has stopped, so closing the panel does not close the rest.
        popup()->on_dropDownClicked();
        QCOMPARE(open(), QString("popup button"));
        waitLongerThanTheDelay();
        QCOMPARE(open(), QString("popup button"));
        send(popup()->dropDownBtn(), QEvent::Leave);
        QTRY_COMPARE(open(), QString());
    }

    void timerStopsOnceItHasClosedThePopup()
    {
        WidgetControllBoard board;
        board.setLsWidget(buttons());
        QVERIFY(pointer::showAndWait(&board));
        send(&board, QEvent::Enter);
        send(&board, QEvent::Leave);
        QTRY_COMPARE(open(), QString());
        send(&board, QEvent::Enter);
        waitLongerThanTheDelay();
        QCOMPARE(open(), QString("popup button"));
    }

    void dropDownButtonTogglesThePanel()
    {
        WidgetControllBoard board;
        board.setLsWidget(buttons());
        QVERIFY(pointer::showAndWait(&board));
        send(&board, QEvent::Enter);
        const auto click = [] {
            QTest::mouseClick(popup()->windowHandle(), Qt::LeftButton, Qt::NoModifier,
                              popup()->dropDownBtn()->geometry().center());
        };
        click();
        QCOMPARE(open(), QString("popup button panel"));
        click();
        QCOMPARE(open(), QString("popup button"));
        popup()->hide();
        Q_EMIT popup()->sigClickedDropDownBtn(true);
        QVERIFY(popup()->isVisible());
        QVERIFY(popup()->shapeWidgetVisible());
    }

    void lostFocusClosesEverything()
    {
        WidgetControllBoard board;
        board.setLsWidget(buttons());
        QVERIFY(pointer::showAndWait(&board));
        board.setDropButtonVisible(true);
        QCOMPARE(open(), QString("popup button panel"));
        takeDebugMessages();
        QFocusEvent event(QEvent::FocusOut);
        QCoreApplication::sendEvent(&board, &event);
        QCOMPARE(takeDebugMessages(), (QStringList{"out"}));
        QCOMPARE(open(), QString());
        QVERIFY(popup()->dropDownBtn()->isHidden());
        QVERIFY(panel()->isHidden());
    }

    void eventsAreNotConsumed()
    {
        WidgetControllBoard board;
        board.setLsWidget(buttons());
        QVERIFY(pointer::showAndWait(&board));
        for (const QEvent::Type type : {QEvent::Enter, QEvent::Leave, QEvent::MouseMove}) {
            for (QObject *watched :
                 {static_cast<QObject *>(&board), static_cast<QObject *>(strip(board)),
                  static_cast<QObject *>(popup()->dropDownBtn())}) {
                QEvent event(type);
                QVERIFY(!board.eventFilter(watched, &event));
            }
        }
        QFocusEvent focusOut(QEvent::FocusOut);
        QVERIFY(!board.eventFilter(&board, &focusOut));
    }

    void visibilityReachesEveryPart()
    {
        WidgetControllBoard board;
        board.setLsWidget(buttons());
        board.setDropButtonVisible(true);
        QCOMPARE(open(), QString("popup button panel"));
        board.setDropButtonVisible(false);
        QCOMPARE(open(), QString());
        QVERIFY(popup()->dropDownBtn()->isHidden());
        QVERIFY(panel()->isHidden());
    }

    void clickInTheStripClosesThePopup_data()
    {
        QTest::addColumn<int>("count");
        QTest::addColumn<QString>("expected");
        QTest::newRow("while it overflows") << 7 << "";
        QTest::newRow("but not while it fits") << 2 << "popup button panel";
    }

    void clickInTheStripClosesThePopup()
    {
        QFETCH(int, count);
        QFETCH(QString, expected);
        WidgetControllBoard board;
        const QList<QWidget *> list = buttons(count);
        board.setLsWidget(list);
        QVERIFY(pointer::showAndWait(&board));
        board.setDropButtonVisible(true);
        static_cast<QPushButton *>(list.first())->click();
        QCOMPARE(open(), expected);
        board.setDropButtonVisible(true);
        board.findChild<QFrame *>("addCabniateBtnFrame")->findChild<ToolButtonEx *>()->click();
        QCOMPARE(open(), expected);
    }

    void clickClosesThePopupOnlyWhenTheRowIsAPixelWider_data()
    {
        QTest::addColumn<int>("extra");
        QTest::addColumn<QString>("expected");
        QTest::newRow("as wide as the window") << 0 << "popup button panel";
        QTest::newRow("one pixel wider") << 1 << "";
    }

    void clickClosesThePopupOnlyWhenTheRowIsAPixelWider()
    {
        QFETCH(int, extra);
        QFETCH(QString, expected);
        WidgetControllBoard board;
        QVERIFY(pointer::showAndWait(&board));
        auto *button = new QPushButton;
        button->setFixedSize(strip(board)->getScrollAreaWidth() + extra, 40);
        board.setLsWidget({button});
        board.setDropButtonVisible(true);
        button->click();
        QCOMPARE(open(), expected);
    }

    void clickedCopyIsReportedByItsIndex()
    {
        WidgetControllBoard board;
        board.setLsWidget(buttons());
        QVERIFY(pointer::showAndWait(&board));
        QSignalSpy clicked(&board, SIGNAL(signal_itemClicked(int)));
        board.setDropButtonVisible(true);
        QCoreApplication::processEvents();
        for (int i = 0; i < 7; ++i) {
            const QWidget *copy = copies().at(i);
            QTest::mouseClick(popup()->windowHandle(), Qt::LeftButton, Qt::NoModifier,
                              copy->mapTo(popup(), copy->rect().center()));
            QCOMPARE(clicked.count(), 1);
            QCOMPARE(clicked.takeFirst().first().toInt(), i);
        }
    }

    void pickClosesThePopupUnlessThePanelIsOpen()
    {
        WidgetControllBoard board;
        board.setLsWidget(buttons());
        QVERIFY(pointer::showAndWait(&board));
        board.setDropButtonVisible(true);
        send(popup()->dropDownBtn(), QEvent::Enter); // clears the leave flag
        static_cast<ToolButtonEx *>(copies().first())->click();
        runOut(&board);
        QCOMPARE(open(), QString("popup button panel"));
        popup()->setShapeWidgetVisible(false);
        send(popup()->dropDownBtn(), QEvent::Enter);
        static_cast<ToolButtonEx *>(copies().first())->click();
        QCOMPARE(open(), QString("popup button"));
        QTRY_COMPARE(open(), QString());
    }

    void popupHasRoomForEveryCopyOfALongerList()
    {
        WidgetControllBoard board;
        board.move(200, 300);
        board.setLsWidget(buttons(1));
        QVERIFY(pointer::showAndWait(&board));
        board.setDropButtonVisible(true);
        QCoreApplication::processEvents();
        board.setDropButtonVisible(false);
        board.setLsWidget(buttons(7));
        board.setDropButtonVisible(true);
        QTRY_COMPARE(panel()->geometry(), QRect(0, 20, 160, 170));
        const auto *area = panel()->findChild<QScrollArea *>();
        QTRY_VERIFY(!area->verticalScrollBar()->isVisible());
        QTRY_VERIFY(!area->horizontalScrollBar()->isVisible());
        for (const QWidget *copy : copies())
            QCOMPARE(copy->visibleRegion().boundingRect(), copy->rect());
    }

    void pointerOpensUsesAndLeavesThePopup()
    {
        WidgetControllBoard board;
        board.setLsWidget(buttons());
        board.move(200, 300);
        QVERIFY(pointer::showAndWait(&board));
        pointer::moveAway(&board);
        pointAt(&board, QPoint(100, 60));
        QTRY_COMPARE(open(), QString("popup button"));
        QVERIFY(QTest::qWaitForWindowExposed(popup()));
        pointAt(popup()->dropDownBtn(), QPoint(20, 10));
        waitLongerThanTheDelay();
        QCOMPARE(open(), QString("popup button"));
        QTest::mouseClick(popup()->windowHandle(), Qt::LeftButton, Qt::NoModifier,
                          popup()->dropDownBtn()->geometry().center());
        QCOMPARE(open(), QString("popup button panel"));
        QCoreApplication::processEvents();
        QSignalSpy clicked(&board, &WidgetControllBoard::signal_itemClicked);
        const QWidget *copy = copies().at(4);
        QTest::mouseClick(popup()->windowHandle(), Qt::LeftButton, Qt::NoModifier,
                          copy->mapTo(popup(), copy->rect().center()));
        QCOMPARE(clicked.count(), 1);
        QCOMPARE(clicked.first().first().toInt(), 4);
        QTest::mouseClick(popup()->windowHandle(), Qt::LeftButton, Qt::NoModifier,
                          popup()->dropDownBtn()->geometry().center());
        QCOMPARE(open(), QString("popup button"));
        QCursor::setPos(700, 700);
        QTRY_COMPARE(open(), QString());
    }

    void popupDiesWithTheBoard_data()
    {
        QTest::addColumn<bool>("hasList");
        QTest::addColumn<bool>("isOpen");
        QTest::newRow("without a list") << false << false;
        QTest::newRow("closed") << true << false;
        QTest::newRow("open, the timer running") << true << true;
    }

    void popupDiesWithTheBoard()
    {
        QFETCH(bool, hasList);
        QFETCH(bool, isOpen);
        QWidget parent;
        auto *board = new WidgetControllBoard(&parent);
        const QPointer<WidgetBoard> popupGuard = popup();
        const QList<QWidget *> list = hasList ? buttons() : QList<QWidget *>();
        if (hasList)
            board->setLsWidget(list);
        const auto pointers = guards(list) + guards(copies());
        QCOMPARE(alive(pointers), hasList ? 14 : 0);
        QVERIFY(pointer::showAndWait(&parent));
        if (isOpen) {
            send(board, QEvent::Enter);
            popup()->on_dropDownClicked();
            send(board, QEvent::Leave);
        }
        delete board;
        QVERIFY(popupGuard.isNull());
        QVERIFY(!popup());
        QCOMPARE(alive(pointers), 0);
    }

    void eventsOfADyingBoardDoNothing()
    {
        auto *board = new WidgetControllBoard;
        board->setLsWidget(buttons());
        QVERIFY(pointer::showAndWait(board));
        board->setDropButtonVisible(true);
        ButtonGroupEx *group = strip(*board);
        int events = 0;
        connect(copies().first(), &QObject::destroyed, this, [&] {
            for (QWidget *widget : {static_cast<QWidget *>(board), static_cast<QWidget *>(group)}) {
                send(widget, QEvent::Enter);
                send(widget, QEvent::Leave);
                ++events;
            }
        });
        delete board;
        QCOMPARE(events, 2);
        QVERIFY(!popup());
    }

    void lifeEndsInASlotOfItsOwnSignal_data()
    {
        QTest::addColumn<QString>("what");
        QTest::newRow("delete") << "delete";
        QTest::newRow("remove all") << "remove all";
        QTest::newRow("same list") << "same list";
        QTest::newRow("another list") << "another list";
        QTest::newRow("empty list") << "empty list";
    }

    void lifeEndsInASlotOfItsOwnSignal()
    {
        QFETCH(QString, what);
        const QPointer<WidgetControllBoard> board = new WidgetControllBoard;
        const QList<QWidget *> list = buttons();
        board->setLsWidget(list);
        QVERIFY(pointer::showAndWait(board));
        board->setDropButtonVisible(true);
        QCoreApplication::processEvents();
        const auto oldCopies = guards(copies());
        const auto act = [&] {
            if (what == "delete")
                delete board;
            else if (what == "remove all")
                board->removeAllWidget();
            else if (what == "same list")
                board->setLsWidget(board->lsWidget());
            else if (what == "another list")
                board->setLsWidget(buttons(2));
            else
                board->setLsWidget({});
        };
        connect(board, &WidgetControllBoard::signal_itemClicked, this, act);
        const QWidget *copy = copies().at(3);
        QTest::mouseClick(popup()->windowHandle(), Qt::LeftButton, Qt::NoModifier,
                          copy->mapTo(popup(), copy->rect().center()));
        QCOMPARE(alive(oldCopies), 0);
        QCOMPARE(board.isNull(), what == "delete");
        if (!board)
            return;
        const int count = what == "same list" ? 7 : what == "another list" ? 2 : 0;
        QCOMPARE(board->lsWidget().size(), count);
        QCOMPARE(copies().size(), count);
        delete board;
    }

    void lifeEndsInASlotOfAStripButton_data() { lifeEndsInASlotOfItsOwnSignal_data(); }

    void lifeEndsInASlotOfAStripButton()
    {
        QFETCH(QString, what);
        const QPointer<WidgetControllBoard> board = new WidgetControllBoard;
        const QList<QWidget *> list = buttons();
        board->setLsWidget(list);
        QVERIFY(pointer::showAndWait(board));
        const auto pointers = guards(list);
        const auto act = [&] {
            if (what == "delete")
                delete board;
            else if (what == "remove all")
                board->removeAllWidget();
            else if (what == "same list")
                board->setLsWidget(board->lsWidget());
            else if (what == "another list")
                board->setLsWidget(buttons(2));
            else
                board->setLsWidget({});
        };
        connect(static_cast<QPushButton *>(list.first()), &QPushButton::clicked, this, act);
        QTest::mouseClick(list.first(), Qt::LeftButton);
        QCOMPARE(alive(pointers), what == "same list" ? 7 : 0);
        QCOMPARE(board.isNull(), what == "delete");
        delete board;
    }

    void boardCanBeDeletedByAnAddButton()
    {
        for (const char *frame : {"addCabniateBtnFrame", "addRowCabniateBtnFrame"}) {
            const QPointer<WidgetControllBoard> board = new WidgetControllBoard;
            board->setLsWidget(buttons());
            QVERIFY(pointer::showAndWait(board));
            const auto act = [&] { delete board; };
            connect(board, &WidgetControllBoard::signal_addCabietsClicked, this, act);
            connect(board, &WidgetControllBoard::signal_addRowCabietsClicked, this, act);
            auto *button = board->findChild<QFrame *>(frame)->findChild<ToolButtonEx *>();
            QTest::mouseClick(button, Qt::LeftButton);
            QVERIFY(board.isNull());
        }
    }

    void listIsReplacedWhileTheTimerRuns()
    {
        WidgetControllBoard board;
        board.setLsWidget(buttons());
        QVERIFY(pointer::showAndWait(&board));
        send(&board, QEvent::Enter);
        send(&board, QEvent::Leave);
        board.removeAllWidget();
        board.setLsWidget(buttons(3));
        QTRY_COMPARE(open(), QString());
        QCOMPARE(copies().size(), 3);
    }

    void metaObjectNamesSignalsAndSlotsInOrder()
    {
        const QMetaObject &meta = WidgetControllBoard::staticMetaObject;
        QCOMPARE(QByteArray(meta.superClass()->className()), QByteArray("QWidget"));
        QStringList signalNames;
        QStringList slotNames;
        for (int i = meta.methodOffset(); i < meta.methodCount(); ++i) {
            const QMetaMethod method = meta.method(i);
            if (method.methodType() == QMetaMethod::Signal) {
                signalNames.append(method.methodSignature());
            } else {
                QCOMPARE(method.access(), QMetaMethod::Private);
                slotNames.append(method.methodSignature());
            }
        }
        QCOMPARE(signalNames,
                 (QStringList{"signal_addCabietsClicked()", "signal_itemClicked(int)",
                              "signal_addRowCabietsClicked()"}));
        QCOMPARE(slotNames,
                 (QStringList{"on_notifyShpeWidgetHide()", "on_clickDropDownBtn(bool)",
                              "on_addCabietsClicked()", "on_itemClicked(int)", "slot_timeout()",
                              "slot_addRowCabietsClicked()"}));
    }
};

ORVANE_TEST_MAIN(TestWidgetControllBoard)
#include "tst_widgetcontrollboard.moc"
