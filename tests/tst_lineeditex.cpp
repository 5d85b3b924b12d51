#include "support/pointer.h"
#include "support/testcase.h"

#include <lineeditex.h>

namespace
{

// The sheets, written out by hand.
QString framedSheet(const QString &background, const QString &width, const QString &border)
{
    return "background-color:" + background + ";color:rgb(210,210,210);font: SimSun Arial;border: "
        + width + "px solid " + border + ";";
}

const QString defaultFramedSheet = framedSheet("#454545", "1", "#808080");
const QString underlinedSheet =
    "background-color: rgb(69, 69, 69);color:rgb(210,210,210);font: SimSun Arial;border: none;";

const QString warning = "Not allowed in a file name: / \\ : < | \" * > ?";
const QString forbiddenCharacters = "/\\:<|\"*>?";

constexpr LineEditType otherType = static_cast<LineEditType>(7);

// An edit that tells where its text cursor is.
class Edit : public LineEditEx
{
public:
    using LineEditEx::LineEditEx;

    QPoint warningPosition() const
    {
        const QRect cursor = cursorRect();
        return mapToGlobal(QPoint(cursor.left(), cursor.bottom() + 3));
    }
};

QWidget *visibleToolTip()
{
    const QWidgetList widgets = QApplication::topLevelWidgets();
    for (QWidget *widget : widgets) {
        if (widget->inherits("QTipLabel") && widget->isVisible())
            return widget;
    }
    return nullptr;
}

// Where Qt puts a tool tip that is asked for at a global position.
QPoint placeOfToolTip(const QPoint &position, const QString &text, QWidget *widget)
{
    delete visibleToolTip();
    QToolTip::showText(position, text, widget);
    const QPoint place = visibleToolTip()->pos();
    delete visibleToolTip();
    return place;
}

QTimer *timerOf(const LineEditEx &edit)
{
    return edit.findChild<QTimer *>(QString(), Qt::FindDirectChildrenOnly);
}

} // namespace

Q_DECLARE_METATYPE(std::function<void(LineEditEx &)>)
Q_DECLARE_METATYPE(std::function<void(QLineEdit &)>)

class TestLineEditEx : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void colorIsSeenWhenSetBeforeAndAfterTheFirstShow()
    {
        LineEditEx edit(nullptr, NormalLineEdit);
        edit.resize(200, 40);
        edit.setBackgroundColor(QColor(255, 0, 0));
        edit.setBackgroundColor(QColor(0, 255, 0));
        QVERIFY(pointer::showAndWait(&edit));
        QCOMPARE(pointer::colorAt(&edit, QPoint(150, 20)), QColor(0, 255, 0));
        edit.setBackgroundColor(QColor(0, 0, 255));
        QCOMPARE(pointer::colorAt(&edit, QPoint(150, 20)), QColor(0, 0, 255));
    }

    void hasDefaults_data()
    {
        QTest::addColumn<int>("type");
        QTest::addColumn<QString>("sheet");
        QTest::newRow("framed") << int(NormalLineEdit) << defaultFramedSheet;
        QTest::newRow("underlined") << int(UnderlineLineEdit) << underlinedSheet;
        QTest::newRow("neither") << int(otherType) << QString();
    }

    void hasDefaults()
    {
        QFETCH(int, type);
        QFETCH(QString, sheet);
        LineEditEx edit(nullptr, static_cast<LineEditType>(type));
        QCOMPARE(edit.borderWidth(), 1);
        QCOMPARE(edit.backgroundColor(), QColor(69, 69, 69));
        QCOMPARE(edit.borderColor(), QColor(128, 128, 128));
        QVERIFY(!edit.bFouceOut());
        QCOMPARE(edit.text(), QString());
        QVERIFY(!edit.testAttribute(Qt::WA_MacShowFocusRect));
        QCOMPARE(edit.contextMenuPolicy(), Qt::NoContextMenu);
        QCOMPARE(edit.styleSheet(), sheet);
        QVERIFY(timerOf(edit));
        QVERIFY(!timerOf(edit)->isActive());
        QVERIFY(!timerOf(edit)->isSingleShot());
    }

    void typesHaveTheirValues()
    {
        QCOMPARE(int(NormalLineEdit), 0);
        QCOMPARE(int(UnderlineLineEdit), 1);
    }

    void settersFrameAnEditOfAnyType_data()
    {
        QTest::addColumn<std::function<void(LineEditEx &)>>("set");
        QTest::addColumn<QString>("expected");
        using Set = std::function<void(LineEditEx &)>;
        QTest::newRow("width") << Set([](LineEditEx &e) { e.setBorderWidth(3); })
                               << framedSheet("#454545", "3", "#808080");
        QTest::newRow("negative width") << Set([](LineEditEx &e) { e.setBorderWidth(-2); })
                                        << framedSheet("#454545", "-2", "#808080");
        QTest::newRow("border") << Set([](LineEditEx &e) { e.setBorderColor(QColor(1, 2, 3)); })
                                << framedSheet("#454545", "1", "#010203");
        QTest::newRow("background")
            << Set([](LineEditEx &e) { e.setBackgroundColor(QColor(255, 0, 0, 128)); })
            << framedSheet("#80ff0000", "1", "#808080");
        QTest::newRow("invalid background")
            << Set([](LineEditEx &e) { e.setBackgroundColor(QColor()); })
            << framedSheet("#000000", "1", "#808080");
        QTest::newRow("all") << Set([](LineEditEx &e) {
            e.setBorderWidth(2);
            e.setBorderColor(Qt::green);
            e.setBackgroundColor(Qt::blue);
        }) << framedSheet("#0000ff", "2", "#00ff00");
        QTest::newRow("style function")
            << Set([](LineEditEx &e) { e.setNormalLineEditStyle(); }) << defaultFramedSheet;
    }

    void settersFrameAnEditOfAnyType()
    {
        QFETCH(std::function<void(LineEditEx &)>, set);
        QFETCH(QString, expected);
        for (LineEditType type : {NormalLineEdit, UnderlineLineEdit, otherType}) {
            LineEditEx edit(nullptr, type);
            set(edit);
            QCOMPARE(edit.styleSheet(), expected);
        }
    }

    void flagAndWarningAreOnlyStored()
    {
        for (LineEditType type : {NormalLineEdit, UnderlineLineEdit, otherType}) {
            LineEditEx edit(nullptr, type);
            const QString before = edit.styleSheet();
            edit.setBFouceOut(true);
            edit.setStrToolTips(warning);
            QVERIFY(edit.bFouceOut());
            QCOMPARE(edit.styleSheet(), before);
            QCOMPARE(edit.toolTip(), QString());
            QVERIFY(!QToolTip::isVisible());
            edit.setBFouceOut(false);
            QVERIFY(!edit.bFouceOut());
        }
    }

    void gettersReturnWhatWasSet()
    {
        LineEditEx edit(nullptr, UnderlineLineEdit);
        edit.setBorderWidth(4);
        edit.setBorderColor(QColor(1, 2, 3, 4));
        edit.setBackgroundColor(QColor(5, 6, 7));
        QCOMPARE(edit.borderWidth(), 4);
        QCOMPARE(edit.borderColor(), QColor(1, 2, 3, 4));
        QCOMPARE(edit.backgroundColor(), QColor(5, 6, 7));
    }

    void initStyleAppliesTheSheetOfTheType()
    {
        LineEditEx underlined(nullptr, UnderlineLineEdit);
        underlined.setBorderWidth(5);
        underlined.setAttribute(Qt::WA_MacShowFocusRect);
        underlined.initStyle();
        QVERIFY(!underlined.testAttribute(Qt::WA_MacShowFocusRect));
        QCOMPARE(underlined.styleSheet(), underlinedSheet);
        QCOMPARE(underlined.borderWidth(), 5);
        LineEditEx framed(nullptr, NormalLineEdit);
        framed.setBorderWidth(5);
        framed.setStyleSheet("color:red;");
        framed.initStyle();
        QCOMPARE(framed.styleSheet(), framedSheet("#454545", "5", "#808080"));
        LineEditEx other(nullptr, otherType);
        other.setStyleSheet("color:red;");
        other.initStyle();
        QCOMPARE(other.styleSheet(), QString("color:red;"));
    }

    void forbiddenCharactersAreWarnedOfAndTyped_data()
    {
        QTest::addColumn<char>("character");
        QTest::addColumn<bool>("warned");
        const QString tried = forbiddenCharacters + "a1.;,'-_+=()[]{}!@#$%^&~` ";
        for (QChar character : tried) {
            QTest::newRow(qPrintable(QString("'%1'").arg(character)))
                << character.toLatin1() << forbiddenCharacters.contains(character);
        }
    }

    void forbiddenCharactersAreWarnedOfAndTyped()
    {
        QFETCH(char, character);
        QFETCH(bool, warned);
        for (LineEditType type : {NormalLineEdit, UnderlineLineEdit, otherType}) {
            LineEditEx edit(nullptr, type);
            edit.setStrToolTips(warning);
            QVERIFY(pointer::showAndWait(&edit));
            QTest::keyClicks(&edit, "ab");
            QVERIFY(!QToolTip::isVisible());
            QTest::keyClick(&edit, character);
            QCOMPARE(edit.text(), QString("ab") + character);
            QCOMPARE(QToolTip::isVisible(), warned);
            QCOMPARE(QToolTip::text(), warned ? warning : QString());
            QCOMPARE(timerOf(edit)->isActive(), warned);
            if (warned)
                QCOMPARE(timerOf(edit)->interval(), 3000);
            delete visibleToolTip();
        }
    }

    void emptyWarningIsNeverShown()
    {
        LineEditEx edit(nullptr, NormalLineEdit);
        QVERIFY(pointer::showAndWait(&edit));
        QTest::keyClicks(&edit, forbiddenCharacters);
        QCOMPARE(edit.text(), forbiddenCharacters);
        QVERIFY(!QToolTip::isVisible());
        QVERIFY(!timerOf(edit)->isActive());
        edit.setStrToolTips(warning);
        edit.setStrToolTips("");
        QTest::keyClicks(&edit, ":");
        QVERIFY(!QToolTip::isVisible());
        QVERIFY(!timerOf(edit)->isActive());
    }

    void typedColonIsWarnedOfThroughTheWindow()
    {
        QWidget window;
        window.resize(300, 80);
        auto *edit = new LineEditEx(&window, NormalLineEdit);
        edit->setGeometry(20, 20, 200, 30);
        edit->setStrToolTips(warning);
        QVERIFY(pointer::showAndWait(&window));
        window.activateWindow();
        edit->setFocus();
        QTRY_VERIFY(edit->hasFocus());
        QTest::keyClick(window.windowHandle(), ':');
        QCOMPARE(edit->text(), QString(":"));
        QVERIFY(QToolTip::isVisible());
        QCOMPARE(QToolTip::text(), warning);
    }

    void warningIsShownBelowTheTextCursor()
    {
        Edit edit(nullptr, NormalLineEdit);
        edit.resize(300, 40);
        edit.setStrToolTips(warning);
        QVERIFY(pointer::showAndWait(&edit));
        edit.move(100, 100);
        const QPoint first = placeOfToolTip(edit.warningPosition(), warning, &edit);
        QTest::keyClicks(&edit, ":");
        QVERIFY(visibleToolTip());
        QCOMPARE(visibleToolTip()->pos(), first);
        // The tip follows the cursor while it is still shown.
        QTest::keyClicks(&edit, "some more text");
        QCOMPARE(visibleToolTip()->pos(), first);
        const QPoint cursor = edit.warningPosition();
        QTest::keyClicks(&edit, "?");
        const QPoint second = visibleToolTip()->pos();
        QCOMPARE(QToolTip::text(), warning);
        QVERIFY(second.x() > first.x());
        QCOMPARE(second, placeOfToolTip(cursor, warning, &edit));
    }

    void timerHidesTheWarning()
    {
        LineEditEx edit(nullptr, NormalLineEdit);
        edit.setStrToolTips(warning);
        QVERIFY(pointer::showAndWait(&edit));
        QTest::keyClicks(&edit, ":");
        QVERIFY(QToolTip::isVisible());
        timerOf(edit)->setInterval(1);
        QTRY_VERIFY(!QToolTip::isVisible());
        // It repeats, until the next forbidden key starts it anew.
        QVERIFY(timerOf(edit)->isActive());
        timerOf(edit)->start(60000);
        QTest::keyClicks(&edit, "x");
        QCOMPARE(timerOf(edit)->interval(), 60000);
        QTest::keyClicks(&edit, "<");
        QCOMPARE(timerOf(edit)->interval(), 3000);
        QVERIFY(QToolTip::isVisible());
    }

    void keyDuringTheHidingShowsTheWarningAnew()
    {
        LineEditEx edit(nullptr, NormalLineEdit);
        edit.setStrToolTips(warning);
        QVERIFY(pointer::showAndWait(&edit));
        QTest::keyClicks(&edit, ":");
        // Qt hides a tip by a timer of its own, much shorter than the one that bounds its life.
        const auto isHiding = [] {
            const auto timers =
                QAbstractEventDispatcher::instance()->registeredTimers(visibleToolTip());
            return std::any_of(timers.begin(), timers.end(),
                               [](const auto &timer) { return timer.interval < 1000; });
        };
        QVERIFY(!isHiding());
        QVERIFY(QMetaObject::invokeMethod(&edit, "slot_timerUpDate"));
        QVERIFY(isHiding());
        QTest::keyClicks(&edit, ":");
        QVERIFY(QToolTip::isVisible());
        QVERIFY(!isHiding());
    }

    void timeoutHidesAnyToolTip()
    {
        LineEditEx edit(nullptr, NormalLineEdit);
        QWidget other;
        QVERIFY(pointer::showAndWait(&other));
        QToolTip::showText(QPoint(10, 10), "of another widget", &other);
        QVERIFY(QToolTip::isVisible());
        QVERIFY(QMetaObject::invokeMethod(&edit, "slot_timerUpDate"));
        QTRY_VERIFY(!QToolTip::isVisible());
    }

    void lineIsDrawnAlongTheBottomOfAnUnderlinedEdit()
    {
        const QColor lineColor(128, 128, 128);
        const QColor background(69, 69, 69);
        LineEditEx edit(nullptr, UnderlineLineEdit);
        edit.resize(90, 30);
        QVERIFY(pointer::showAndWait(&edit));
        const QImage image = edit.grab().toImage();
        QCOMPARE(image.size(), QSize(90, 30));
        for (int x = 0; x < 90; ++x) {
            QCOMPARE(image.pixelColor(x, 29), lineColor);
            QCOMPARE(image.pixelColor(x, 28), background);
            QCOMPARE(image.pixelColor(x, 0), background);
        }
        QCOMPARE(image.pixelColor(0, 15), background);
        QCOMPARE(image.pixelColor(89, 15), background);
    }

    void lineStaysOnAnUnderlinedEditThatWasFramed()
    {
        const QColor frame(255, 0, 0);
        LineEditEx edit(nullptr, UnderlineLineEdit);
        edit.resize(90, 30);
        edit.setBorderColor(frame);
        QVERIFY(pointer::showAndWait(&edit));
        const QImage image = edit.grab().toImage();
        QCOMPARE(image.pixelColor(45, 0), frame);
        QCOMPARE(image.pixelColor(0, 15), frame);
        QCOMPARE(image.pixelColor(89, 15), frame);
        QCOMPARE(image.pixelColor(45, 29), QColor(128, 128, 128));
    }

    void framedEditHasItsFrameAndNoLine()
    {
        LineEditEx edit(nullptr, NormalLineEdit);
        edit.resize(90, 30);
        QVERIFY(pointer::showAndWait(&edit));
        edit.setBorderColor(QColor(255, 0, 0));
        edit.setBorderWidth(2);
        const QImage image = edit.grab().toImage();
        for (const QPoint &point : {QPoint(45, 0), QPoint(45, 1), QPoint(45, 28), QPoint(45, 29),
                                    QPoint(1, 15), QPoint(88, 15)})
            QCOMPARE(image.pixelColor(point), QColor(255, 0, 0));
        QCOMPARE(image.pixelColor(45, 2), QColor(69, 69, 69));
    }

    void editOfAnotherTypeLooksLikeItsBase()
    {
        LineEditEx edit(nullptr, otherType);
        QLineEdit plain;
        edit.resize(90, 30);
        plain.resize(90, 30);
        QVERIFY(edit.grab().toImage() == plain.grab().toImage());
    }

    void textColorIsSeen()
    {
        // The text is a run of full blocks, so that its colour fills pixels.
        for (LineEditType type : {NormalLineEdit, UnderlineLineEdit}) {
            LineEditEx edit(nullptr, type);
            edit.resize(200, 40);
            edit.setText(QString(9, QChar(0x2588)));
            QVERIFY(pointer::showAndWait(&edit));
            QCOMPARE(pointer::colorAt(&edit, QPoint(30, 20)), QColor(210, 210, 210));
            QCOMPARE(pointer::colorAt(&edit, QPoint(190, 20)), QColor(69, 69, 69));
        }
    }

    void editsAsItsBaseDoes_data()
    {
        QTest::addColumn<std::function<void(QLineEdit &)>>("edit");
        QTest::addColumn<QString>("text");
        using Act = std::function<void(QLineEdit &)>;
        QTest::newRow("undo and redo") << Act([](QLineEdit &e) {
            QTest::keyClicks(&e, "a:b");
            e.undo();
            QCOMPARE(e.text(), QString());
            e.redo();
        }) << "a:b";
        QTest::newRow("undo key") << Act([](QLineEdit &e) {
            QTest::keyClicks(&e, "one");
            QTest::keyClick(&e, Qt::Key_Backspace);
            QTest::keySequence(&e, QKeySequence::Undo);
        }) << "one";
        QTest::newRow("selection is replaced") << Act([](QLineEdit &e) {
            e.setText("one two");
            e.setSelection(0, 3);
            QTest::keyClicks(&e, "?");
        }) << "? two";
        QTest::newRow("selection by keys") << Act([](QLineEdit &e) {
            e.setText("one");
            QTest::keyClick(&e, Qt::Key_Left, Qt::ShiftModifier);
            QCOMPARE(e.selectedText(), QString("e"));
            QTest::keyClick(&e, Qt::Key_Delete);
        }) << "on";
        QTest::newRow("copy and paste") << Act([](QLineEdit &e) {
            e.setText("a/b");
            QTest::keySequence(&e, QKeySequence::SelectAll);
            QTest::keySequence(&e, QKeySequence::Copy);
            QTest::keyClick(&e, Qt::Key_End);
            QTest::keySequence(&e, QKeySequence::Paste);
        }) << "a/ba/b";
        QTest::newRow("input mask") << Act([](QLineEdit &e) {
            e.setInputMask("99:99;_");
            e.setCursorPosition(0);
            QTest::keyClicks(&e, "12:34");
        }) << "12:34";
        QTest::newRow("echo mode") << Act([](QLineEdit &e) {
            e.setEchoMode(QLineEdit::Password);
            QTest::keyClicks(&e, "a*b");
            QVERIFY(e.displayText() != e.text());
            QCOMPARE(e.displayText().size(), 3);
        }) << "a*b";
        QTest::newRow("longest text") << Act([](QLineEdit &e) {
            e.setMaxLength(3);
            QTest::keyClicks(&e, "a:bcd");
        }) << "a:b";
        QTest::newRow("validator") << Act([](QLineEdit &e) {
            e.setValidator(new QRegularExpressionValidator(QRegularExpression("[a-z]*"), &e));
            QTest::keyClicks(&e, "a:b/c");
        }) << "abc";
        QTest::newRow("read only") << Act([](QLineEdit &e) {
            e.setText("fixed");
            e.setReadOnly(true);
            QTest::keyClicks(&e, "a:b");
        }) << "fixed";
    }

    void editsAsItsBaseDoes()
    {
        QFETCH(std::function<void(QLineEdit &)>, edit);
        QFETCH(QString, text);
        for (LineEditType type : {NormalLineEdit, UnderlineLineEdit}) {
            LineEditEx lineEdit(nullptr, type);
            lineEdit.setStrToolTips(warning);
            QVERIFY(pointer::showAndWait(&lineEdit));
            edit(lineEdit);
            QCOMPARE(lineEdit.text(), text);
        }
        QLineEdit plain;
        QVERIFY(pointer::showAndWait(&plain));
        edit(plain);
        QCOMPARE(plain.text(), text);
    }

    void signalsOfItsBaseAreSent()
    {
        LineEditEx edit(nullptr, NormalLineEdit);
        edit.setStrToolTips(warning);
        QVERIFY(pointer::showAndWait(&edit));
        QSignalSpy edited(&edit, &QLineEdit::textEdited);
        QSignalSpy returned(&edit, &QLineEdit::returnPressed);
        QTest::keyClicks(&edit, "a:");
        QTest::keyClick(&edit, Qt::Key_Return);
        QCOMPARE(edited.count(), 2);
        QCOMPARE(edited.at(1).at(0).toString(), QString("a:"));
        QCOMPARE(returned.count(), 1);
    }

    void fromColorToStrWritesSheetColors()
    {
        LineEditEx edit;
        QCOMPARE(edit.fromColorToStr(QColor(255, 0, 0)), QString("#ff0000"));
        QCOMPARE(edit.fromColorToStr(QColor(255, 0, 0, 128)), QString("#80ff0000"));
        QCOMPARE(edit.fromColorToStr(QColor()), QString("#000000"));
    }

    void addsOnePrivateSlotToTheMetaObject()
    {
        const QMetaObject &meta = LineEditEx::staticMetaObject;
        QCOMPARE(meta.methodCount() - meta.methodOffset(), 1);
        const QMetaMethod slot = meta.method(meta.methodOffset());
        QCOMPARE(slot.methodSignature(), QByteArray("slot_timerUpDate()"));
        QCOMPARE(slot.methodType(), QMetaMethod::Slot);
        QCOMPARE(slot.access(), QMetaMethod::Private);
        QCOMPARE(QByteArray(meta.superClass()->className()), QByteArray("QLineEdit"));
    }

    void warningEndsWithTheEdit()
    {
        auto *edit = new LineEditEx(nullptr, NormalLineEdit);
        QPointer<QTimer> timer(timerOf(*edit));
        edit->setStrToolTips(warning);
        QVERIFY(pointer::showAndWait(edit));
        QTest::keyClicks(edit, ":");
        QVERIFY(QToolTip::isVisible());
        QVERIFY(timer->isActive());
        delete edit;
        QVERIFY(timer.isNull());
        QTRY_VERIFY(!QToolTip::isVisible());
    }

    void diesWithItsParentAndBeforeIt()
    {
        auto *parent = new QWidget;
        QPointer<LineEditEx> first(new LineEditEx(parent, NormalLineEdit));
        QPointer<LineEditEx> second(new LineEditEx(parent, UnderlineLineEdit));
        QVERIFY(pointer::showAndWait(parent));
        delete first;
        QVERIFY(second);
        delete parent;
        QVERIFY(second.isNull());
    }
};

ORVANE_TEST_MAIN(TestLineEditEx)
#include "tst_lineeditex.moc"
