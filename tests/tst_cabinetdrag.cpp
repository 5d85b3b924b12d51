// Drags with a real pointer: a drag has an event loop of its own, which only a display's pointer
// can drive. Runs under Xvfb without a window manager; xdotool moves the pointer from beside the
// test.

#include "support/pointer.h"
#include "support/pointerscript.h"
#include "support/testcase.h"

#include <toolbuttonex.h>

#include <cstring>

namespace
{

const QString directory = ":/Resource/Images/globalResource/";

StructCabinet filledRecord()
{
    StructCabinet record;
    record.cabinetSize = QSize(192, 108);
    record.cabinetCount = 3;
    record.extraText1 = QStringLiteral("first");
    record.extraText2 = QStringLiteral("second 微软");
    record.extraValue1 = 11;
    record.extraValue2 = -12;
    record.extraValue3 = 13;
    record.extraValue4 = 14;
    record.extraValue5 = 15;
    record.extraText3 = QStringLiteral("third");
    record.extraText4 = QString();
    record.extraValue6 = 16;
    record.extraValue7 = 17;
    record.cabinetweight = 18;
    record.cabinetpower = 19.5F;
    record.cabinetVoltage = -20.5F;
    record.cabinetuisize = 21;
    record.cabinetuiHsize = 22;
    record.cabinetPointspace = 23;
    return record;
}

QVariantList fields(const StructCabinet &record)
{
    return {
        record.cabinetSize,   record.cabinetCount,   record.extraText1,       record.extraText2,
        record.extraValue1,   record.extraValue2,    record.extraValue3,      record.extraValue4,
        record.extraValue5,   record.extraText3,     record.extraText4,       record.extraValue6,
        record.extraValue7,   record.cabinetweight,  record.cabinetpower,     record.cabinetVoltage,
        record.cabinetuisize, record.cabinetuiHsize, record.cabinetPointspace};
}

/// A place where hosts drop cabinets: it writes down what it is offered and what it gets.
class Receiver : public QWidget
{
public:
    explicit Receiver(QWidget *parent)
        : QWidget(parent)
    {
        setAcceptDrops(true);
    }

    int drops = 0;
    QPoint lastMove{-1, -1};
    QStringList formats;
    int byteCount = 0;
    QVariantList record;
    QString text;
    Qt::DropAction proposedAction = Qt::IgnoreAction;
    Qt::DropActions possibleActions;
    QObject *source = nullptr;
    std::function<void()> onDrop = [] {};

protected:
    void dragEnterEvent(QDragEnterEvent *event) override { event->acceptProposedAction(); }
    void dragMoveEvent(QDragMoveEvent *event) override
    {
        lastMove = event->pos();
        event->acceptProposedAction();
    }
    void dropEvent(QDropEvent *event) override
    {
        ++drops;
        formats = event->mimeData()->formats();
        const QByteArray bytes = event->mimeData()->data("CabinetInfo");
        byteCount = bytes.size();
        if (byteCount == int(sizeof(StructCabinet))) {
            // The record lies in the bytes as it is; the copy shares its texts from then on.
            const StructCabinet copy = *reinterpret_cast<const StructCabinet *>(bytes.constData());
            record = fields(copy);
        }
        text = event->mimeData()->text();
        proposedAction = event->proposedAction();
        possibleActions = event->possibleActions();
        source = event->source();
        event->acceptProposedAction();
        onDrop();
    }
};

/// A panel with a cabinet in a row, a place to drop it on and a model to click.
class Wall : public QWidget
{
public:
    Wall()
        : button(new ToolButtonEx(this, CabinetType, QString(), QString()))
        , model(new ToolButtonEx(this, CabinetModelType, QString(), QString()))
        , receiver(new Receiver(this))
    {
        setGeometry(100, 100, 600, 400);
        button->setGeometry(20, 20, 69, 69);
        model->setGeometry(20, 200, 69, 69);
        receiver->setGeometry(300, 150, 200, 150);
        button->setCabinetSize(192, 108);
        button->setCabnetInfo(filledRecord());
        button->setIsDrawCabinetCount(true);
        button->installEventFilter(this);
        connect(button, &ToolButtonEx::signal_notifyChangedPortInfo, this,
                [this] { reports << "port"; });
        connect(button, &ToolButtonEx::signal_notifyAddBeenTakenCabinetModel, this,
                [this] { reports << "taken"; });
        connect(model, &ToolButtonEx::notifyAddCabineModel, this, [this] { reports << "add"; });
    }

    bool eventFilter(QObject *, QEvent *event) override
    {
        if (event->type() == QEvent::MouseMove)
            lastMove = static_cast<QMouseEvent *>(event)->pos();
        return false;
    }

    QDrag *drag() const { return button ? button->findChild<QDrag *>() : nullptr; }
    QPoint onButton(int x, int y) const { return pos() + QPoint(20 + x, 20 + y); }
    QPoint onReceiver() const { return receiver->mapToGlobal(QPoint(100, 75)); }
    QPoint onModel() const { return model->mapToGlobal(QPoint(30, 30)); }

    QPointer<ToolButtonEx> button;
    ToolButtonEx *model;
    Receiver *receiver;
    QPoint lastMove{-1, -1};
    QStringList reports;
};

} // namespace

Q_DECLARE_METATYPE(ButtonType)

class TestCabinetDrag : public TestCase
{
    Q_OBJECT

private:
    /// Presses the button at (10, 10) and moves by \a distance to the right.
    static void pressAndMove(PointerScript &script, Wall &wall, int distance)
    {
        script.move(wall.onButton(10, 10));
        script.press();
        script.wait("the button is pressed", [&] { return wall.button->isDown(); });
        script.move(wall.onButton(10 + distance, 10));
        script.wait("the button sees the move",
                    [&wall, distance] { return wall.lastMove == QPoint(10 + distance, 10); });
    }
    static void startDrag(PointerScript &script, Wall &wall)
    {
        pressAndMove(script, wall, 69);
        script.wait("the drag has begun", [&] { return wall.drag() != nullptr; });
    }
    static void drop(PointerScript &script, Wall &wall)
    {
        script.move(wall.onReceiver());
        script.wait("the receiver sees the drag",
                    [&] { return wall.receiver->lastMove == QPoint(100, 75); });
        script.release();
        script.wait("the receiver has the drop", [&] { return wall.receiver->drops == 1; });
        script.wait("the drag is over", [&] { return wall.drag() == nullptr; });
    }
    static void clickModel(PointerScript &script, Wall &wall)
    {
        script.move(wall.onModel());
        script.press();
        script.wait("the model is pressed", [&] { return wall.model->isDown(); });
        script.release();
        script.wait("the model is released", [&] { return !wall.model->isDown(); });
    }

private Q_SLOTS:
    void initTestCase()
    {
        QVERIFY2(QGuiApplication::platformName() == "xcb",
                 "this test needs a pointer: run it by ctest, or through xvfb-run with "
                 "QT_QPA_PLATFORM=xcb");
    }

    void moveLessThanTheWidthStartsNoDrag_data()
    {
        QTest::addColumn<bool>("isSender");
        QTest::newRow("cabinet") << false;
        QTest::newRow("sender") << true;
    }

    void moveLessThanTheWidthStartsNoDrag()
    {
        QFETCH(bool, isSender);
        Wall wall;
        wall.button->setBIsVsender(isSender);
        QVERIFY(pointer::showAndWait(&wall));
        PointerScript script;
        bool hadDrag = false;
        pressAndMove(script, wall, 68);
        script.act([&] { hadDrag = wall.drag() != nullptr; });
        script.release();
        script.wait("the press has ended", [&] { return wall.reports.contains("taken"); });
        QCOMPARE(script.run(), QString());
        QVERIFY(!hadDrag);
        QCOMPARE(wall.reports, (QStringList{"port", "taken"}));
        QCOMPARE(wall.receiver->drops, 0);
    }

    void cabinetIsDraggedWithItsRecord()
    {
        Wall wall;
        QVERIFY(pointer::showAndWait(&wall));
        const QString wholeSheet = wall.button->styleSheet();
        QPixmap pixmap;
        QPoint hotSpot;
        QString sheetInside;
        QCursor cursor;
        PointerScript script;
        startDrag(script, wall);
        script.act([&] {
            pixmap = wall.drag()->pixmap();
            hotSpot = wall.drag()->hotSpot();
            cursor = wall.button->cursor();
            sheetInside = wall.button->styleSheet();
        });
        drop(script, wall);
        QCOMPARE(script.run(), QString());

        QVERIFY(!pixmap.isNull());
        QCOMPARE(pixmap.toImage(), QPixmap(directory + "toolbutton/cabinetchanged.png").toImage());
        QCOMPARE(hotSpot, QPoint(15, 15));
        QCOMPARE(cursor.shape(), Qt::ArrowCursor);
        QCOMPARE(sheetInside, wholeSheet);

        const Receiver &receiver = *wall.receiver;
        QCOMPARE(receiver.formats, QStringList{"CabinetInfo"});
        QCOMPARE(receiver.byteCount, int(sizeof(StructCabinet)));
        QCOMPARE(receiver.record, fields(filledRecord()));
        QCOMPARE(receiver.text, QString());
        QCOMPARE(receiver.proposedAction, Qt::MoveAction);
        QCOMPARE(receiver.possibleActions, Qt::DropActions(Qt::MoveAction));
        QCOMPARE(receiver.source, wall.button);

        QCOMPARE(wall.button->styleSheet(),
                 QStringLiteral("QToolButton{background:#454545;color:#000000;font:9pt "
                                "\"微软雅黑\" ;border:0px;}"));
        QVERIFY(wall.button->children().isEmpty());
        QCOMPARE(wall.reports, QStringList{"port"});
    }

    void lookComesBackAndThePressEndsWithTheNextClick()
    {
        Wall wall;
        QVERIFY(pointer::showAndWait(&wall));
        const QString wholeSheet = wall.button->styleSheet();
        QStringList reportsAfterTheDrag;
        PointerScript script;
        startDrag(script, wall);
        drop(script, wall);
        script.act([&] { reportsAfterTheDrag = wall.reports; });
        script.move(wall.onButton(30, 30));
        script.wait("the look is back", [&] { return wall.button->styleSheet() == wholeSheet; });
        script.act([&] { wall.button->setCabinetToAddModel(); }); // the press is still in force
        script.press();
        script.wait("the button is pressed", [&] { return wall.button->isDown(); });
        script.release();
        script.wait("the button is released", [&] { return !wall.button->isDown(); });
        QCOMPARE(script.run(), QString());
        QCOMPARE(reportsAfterTheDrag, QStringList{"port"});
        QCOMPARE(wall.reports, (QStringList{"port", "taken", "port", "taken"}));
    }

    void dragThatNobodyTakesEndsLikeAnyOther()
    {
        Wall wall;
        wall.receiver->setAcceptDrops(false);
        QVERIFY(pointer::showAndWait(&wall));
        PointerScript script;
        startDrag(script, wall);
        script.move(wall.onReceiver());
        script.release();
        script.wait("the drag is over", [&] { return wall.drag() == nullptr; });
        QString sheet;
        script.act([&] { sheet = wall.button->styleSheet(); });
        clickModel(script, wall);
        QCOMPARE(script.run(), QString());
        QCOMPARE(wall.receiver->drops, 0);
        QVERIFY(!sheet.contains("Hover"));
        QCOMPARE(wall.reports, (QStringList{"port", "add"}));
    }

    void senderIsDraggedWithItsText_data()
    {
        QTest::addColumn<ButtonType>("type");
        QTest::addColumn<bool>("hasData");
        QTest::addColumn<QString>("file");
        QTest::newRow("cabinet, no data") << CabinetType << false << "vSender/save.png";
        QTest::newRow("cabinet, data") << CabinetType << true << "vSender/clear.png";
        QTest::newRow("model, data") << CabinetModelType << true << "vSender/clear.png";
        QTest::newRow("activated, no data") << ActivatedType << false << "vSender/save.png";
    }

    void senderIsDraggedWithItsText()
    {
        QFETCH(ButtonType, type);
        QFETCH(bool, hasData);
        QFETCH(QString, file);
        Wall wall;
        wall.button->setButtonType(type);
        wall.button->setBIsVsender(true);
        wall.button->setVsenderText("7");
        wall.button->setIsHasData(hasData);
        QVERIFY(pointer::showAndWait(&wall));
        QPixmap pixmap;
        QPoint hotSpot;
        QCursor cursor;
        PointerScript script;
        startDrag(script, wall);
        script.act([&] {
            pixmap = wall.drag()->pixmap();
            hotSpot = wall.drag()->hotSpot();
            cursor = wall.button->cursor();
        });
        const QString sheet = wall.button->styleSheet();
        drop(script, wall);
        QCOMPARE(script.run(), QString());

        QPixmap expected(directory + file);
        QVERIFY(!expected.isNull());
        QPainter painter(&expected);
        painter.setPen(QPen(QColor(255, 255, 255), 1));
        painter.drawText(QRect(15, 5, 20, 20), Qt::AlignCenter, "7");
        painter.end();
        QCOMPARE(pixmap.toImage(), expected.toImage());
        QCOMPARE(hotSpot, QPoint(15, 15));
        QCOMPARE(cursor.shape(), Qt::ArrowCursor);
        QCOMPARE(wall.receiver->formats, QStringList{"text/plain"});
        QCOMPARE(wall.receiver->text, QStringLiteral("7"));
        QCOMPARE(wall.receiver->byteCount, 0);
        QCOMPARE(wall.receiver->proposedAction, Qt::MoveAction);
        QCOMPARE(wall.button->styleSheet(), sheet);
    }

    // A receiver copies the record out of its bytes, which hold its texts by address: the texts
    // have to live, whatever becomes of the button's own record.
    void recordCanBeReplacedWhileItIsDragged()
    {
        Wall wall;
        StructCabinet record = filledRecord();
        record.extraText1 = QString(1000, 'x');
        wall.button->setCabnetInfo(record);
        record = filledRecord(); // the button alone holds the long text now
        QVERIFY(pointer::showAndWait(&wall));
        PointerScript script;
        startDrag(script, wall);
        script.act([&] { wall.button->setCabnetInfo(record); });
        drop(script, wall);
        QCOMPARE(script.run(), QString());
        record.extraText1 = QString(1000, 'x');
        QCOMPARE(wall.receiver->record, fields(record));
    }

    void buttonCanBeDeletedByItsReceiver_data()
    {
        QTest::addColumn<bool>("isSender");
        QTest::newRow("cabinet") << false;
        QTest::newRow("sender") << true;
    }

    void buttonCanBeDeletedByItsReceiver()
    {
        QFETCH(bool, isSender);
        Wall wall;
        wall.button->setBIsVsender(isSender);
        QVERIFY(pointer::showAndWait(&wall));
        QPointer<QDrag> drag;
        wall.receiver->onDrop = [&] { delete wall.button; };
        PointerScript script;
        startDrag(script, wall);
        script.act([&] { drag = wall.drag(); });
        drop(script, wall);
        script.wait("the drag is gone", [&] { return drag.isNull(); });
        clickModel(script, wall);
        QCOMPARE(script.run(), QString());
        QVERIFY(!wall.button);
        QCOMPARE(wall.receiver->drops, 1);
        QCOMPARE(wall.reports, (QStringList{"port", "add"}));
    }

    void dragIsGivenUpWhenTheButtonIsDeleted_data() { buttonCanBeDeletedByItsReceiver_data(); }

    void dragIsGivenUpWhenTheButtonIsDeleted()
    {
        QFETCH(bool, isSender);
        Wall wall;
        wall.button->setBIsVsender(isSender);
        QVERIFY(pointer::showAndWait(&wall));
        QPointer<QDrag> drag;
        PointerScript script;
        startDrag(script, wall);
        script.act([&] {
            drag = wall.drag();
            delete wall.button;
        });
        script.wait("the drag is gone", [&] { return drag.isNull(); });
        script.move(wall.onReceiver());
        script.release();
        clickModel(script, wall);
        QCOMPARE(script.run(), QString());
        QCOMPARE(wall.receiver->drops, 0);
        QCOMPARE(wall.reports, (QStringList{"port", "add"}));
    }
};

ORVANE_TEST_MAIN(TestCabinetDrag)
#include "tst_cabinetdrag.moc"
