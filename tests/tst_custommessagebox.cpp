#include "support/pointer.h"
#include "support/testcase.h"
#include "support/windowmouse.h"

#include <custommessagebox.h>
#include <pushbuttonex.h>

#include <functional>

Q_DECLARE_METATYPE(QMargins)

namespace
{

const QString signs = QStringLiteral(":/Resource/Images/globalResource/messageBox/");
constexpr int watchdog = 20000; // ms; ends a box that a failing test left open
constexpr int neverEnded = -77;

template <class Child> Child *child(const QWidget *box, const QString &name)
{
    return box->findChild<Child *>(name);
}

QLabel *tips(const QWidget *box)
{
    return child<QLabel>(box, "labelTips");
}

PushButtonEx *button(const QWidget *box, const QString &frame)
{
    return child<QFrame>(box, frame)->findChild<PushButtonEx *>();
}

void fill(CustomMessageBox *box, const QString &text, bool keepOpenOnApply = false)
{
    box->setBoxInformation("Title", text, QPixmap(signs + "question.png"), keepOpenOnApply, false,
                           false, false, "Apply", "OK", "Cancel");
}

/// Runs \a box and does \a act to it as soon as it is open. The result of exec().
int runAndAct(CustomMessageBox *box, const std::function<void(CustomMessageBox *)> &act)
{
    QMetaObject::invokeMethod(
        box,
        [=] {
            QVERIFY(QTest::qWaitForWindowExposed(box));
            act(box);
        },
        Qt::QueuedConnection);
    QTimer::singleShot(watchdog, box, [=] { box->done(neverEnded); });
    return box->exec();
}

int textWidth(const QLabel *label, const QString &text)
{
    return QFontMetrics(label->font()).horizontalAdvance(text);
}

QMouseEvent mouseEvent(QEvent::Type type, QPointF global, Qt::MouseButton button,
                       Qt::MouseButtons buttons)
{
    return {type, QPointF(50, 50), QPointF(50, 50), global, button, buttons, Qt::NoModifier};
}

void sendMouse(QWidget *box, QEvent::Type type, QPointF global, Qt::MouseButton button,
               Qt::MouseButtons buttons)
{
    QMouseEvent event = mouseEvent(type, global, button, buttons);
    QCoreApplication::sendEvent(box, &event);
}

void press(QWidget *box, QPointF global, Qt::MouseButton button = Qt::LeftButton)
{
    sendMouse(box, QEvent::MouseButtonPress, global, button, button);
}

void move(QWidget *box, QPointF global, Qt::MouseButtons buttons = Qt::LeftButton)
{
    sendMouse(box, QEvent::MouseMove, global, Qt::NoButton, buttons);
}

void release(QWidget *box, QPointF global, Qt::MouseButton button = Qt::LeftButton)
{
    sendMouse(box, QEvent::MouseButtonRelease, global, button, Qt::NoButton);
}

/// Counts the close events of a widget.
class CloseCounter : public QObject
{
public:
    explicit CloseCounter(QObject *watched) { watched->installEventFilter(this); }
    int count = 0;

protected:
    bool eventFilter(QObject *, QEvent *event) override
    {
        if (event->type() == QEvent::Close)
            ++count;
        return false;
    }
};

} // namespace

Q_DECLARE_METATYPE(std::function<void(CustomMessageBox *)>)

class TestCustomMessageBox : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void hasDefaults()
    {
        const CustomMessageBox box;
        QCOMPARE(box.objectName(), QString("CustomMessageBox"));
        QCOMPARE(box.size(), QSize(400, 203));
        QCOMPARE(box.windowTitle(), QString("MyMessageBox"));
        QCOMPARE(box.styleSheet(), QString("color:rgb(210,210,210);font:SimSun Arial;"));
        QCOMPARE(box.windowFlags(), Qt::Dialog | Qt::FramelessWindowHint);
        QVERIFY(box.testAttribute(Qt::WA_DeleteOnClose));
        QVERIFY(box.testAttribute(Qt::WA_TranslucentBackground));
        QCOMPARE(box.windowIcon().availableSizes(), QList<QSize>{QSize(64, 64)});
        QCOMPARE(child<QLabel>(&box, "labelTitle")->text(), QString("Title"));
    }

    void formHasItsObjects()
    {
        const CustomMessageBox box;
        const auto *outer = box.findChild<QVBoxLayout *>("verticalLayout");
        QVERIFY(outer);
        QCOMPARE(box.layout(), outer);
        const auto *grid = outer->findChild<QGridLayout *>("gridLayout");
        QVERIFY(grid);
        QCOMPARE(outer->itemAt(0)->layout(), grid);
        const QStringList rows{"widgetTitleBar", "label_upLine", "frame", "label_down",
                               "widgetBottom"};
        QCOMPARE(grid->count(), rows.size());
        for (int row = 0; row < rows.size(); ++row)
            QCOMPARE(grid->itemAtPosition(row, 0)->widget()->objectName(), rows.at(row));

        const auto *titleBar = child<QWidget>(&box, "widgetTitleBar");
        QCOMPARE(titleBar->layout()->objectName(), QString("gridLayout_7"));
        const auto *titleRow = titleBar->layout()->findChild<QHBoxLayout *>("horizontalLayout_2");
        QVERIFY(titleRow);
        QVERIFY(titleRow->indexOf(child<QLabel>(&box, "labelTitle")) == 0);
        const auto *closeButton = child<QToolButton>(&box, "toolButton");
        QVERIFY(titleRow->indexOf(const_cast<QToolButton *>(closeButton)) == 1);
        QCOMPARE(closeButton->minimumSize(), QSize(30, 20));
        QCOMPARE(closeButton->maximumSize(), QSize(30, 20));

        for (const char *name : {"label_upLine", "label_down"}) {
            const auto *line = child<QLabel>(&box, name);
            QCOMPARE(line->styleSheet(), QString("background-color: rgb(56, 56, 56);"));
            QCOMPARE(line->minimumHeight(), 2);
            QCOMPARE(line->maximumHeight(), 2);
        }

        const auto *frame = child<QFrame>(&box, "frame");
        QCOMPARE(frame->layout()->objectName(), QString("gridLayout_3"));
        const auto *central = child<QWidget>(&box, "widgetCentral");
        QCOMPARE(frame->layout()->itemAt(0)->widget(), central);
        QCOMPARE(central->layout()->objectName(), QString("gridLayout_8"));
        const auto *form = central->layout()->findChild<QFormLayout *>("formLayout");
        QVERIFY(form);
        QCOMPARE(form->labelAlignment(), Qt::AlignLeft | Qt::AlignVCenter);
        QCOMPARE(form->formAlignment(), Qt::AlignLeft | Qt::AlignVCenter);
        const QLayout *iconPlace = form->itemAt(0, QFormLayout::LabelRole)->layout();
        QCOMPARE(iconPlace->objectName(), QString("verticalLayout_3"));
        QVERIFY(iconPlace->indexOf(child<QLabel>(&box, "labelIcon")) >= 0);
        const QLayout *tipsPlace = form->itemAt(0, QFormLayout::FieldRole)->layout();
        QCOMPARE(tipsPlace->objectName(), QString("verticalLayout_2"));
        QVERIFY(tipsPlace->indexOf(tips(&box)) >= 0);
        QVERIFY(!tips(&box)->wordWrap());
        QCOMPARE(tips(&box)->alignment(), Qt::Alignment(Qt::AlignTop));

        const auto *bottom = child<QWidget>(&box, "widgetBottom");
        auto *bottomGrid = qobject_cast<QGridLayout *>(bottom->layout());
        QVERIFY(bottomGrid);
        QCOMPARE(bottomGrid->objectName(), QString("gridLayout_4"));
        QCOMPARE(bottomGrid->horizontalSpacing(), 20);
        QCOMPARE(bottomGrid->verticalSpacing(), 0);
        int columnBefore = -1;
        for (const char *name : {"frame_ok", "frame_apply", "frame_cancel"}) {
            auto *place = child<QFrame>(&box, name);
            QCOMPARE(place->frameShape(), QFrame::NoFrame);
            QCOMPARE(place->minimumSize(), QSize(64, 30));
            QCOMPARE(place->maximumSize(), QSize(64, 30));
            int row = -1;
            int column = -1;
            int rowSpan = -1;
            int columnSpan = -1;
            bottomGrid->getItemPosition(bottomGrid->indexOf(place), &row, &column, &rowSpan,
                                        &columnSpan);
            QCOMPARE(row, 0);
            QVERIFY(column > columnBefore);
            columnBefore = column;
        }
    }

    void formSpacesItsParts_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QMargins>("margins");
        QTest::addColumn<int>("spacing");
        QTest::newRow("box") << "verticalLayout" << QMargins(11, 11, 11, 11) << 0;
        QTest::newRow("rows") << "gridLayout" << QMargins() << 0;
        QTest::newRow("title bar") << "gridLayout_7" << QMargins(5, 5, 5, 5) << 0;
        QTest::newRow("title") << "horizontalLayout_2" << QMargins() << 8;
        QTest::newRow("middle") << "gridLayout_3" << QMargins() << 0;
        QTest::newRow("in the middle") << "gridLayout_8" << QMargins(13, 8, 13, 8) << 0;
        QTest::newRow("icon") << "verticalLayout_3" << QMargins() << 0;
        QTest::newRow("text") << "verticalLayout_2" << QMargins() << 0;
    }

    void formSpacesItsParts()
    {
        QFETCH(QString, name);
        QFETCH(QMargins, margins);
        QFETCH(int, spacing);
        const CustomMessageBox box;
        const auto *layout = box.findChild<QLayout *>(name);
        QVERIFY(layout);
        QCOMPARE(layout->contentsMargins(), margins);
        QCOMPARE(layout->spacing(), spacing);
    }

    void formFixesSizes()
    {
        const CustomMessageBox box;
        const auto *form = box.findChild<QFormLayout *>("formLayout");
        QCOMPARE(form->horizontalSpacing(), 12);
        QCOMPARE(form->verticalSpacing(), 0);
        QCOMPARE(box.findChild<QGridLayout *>("gridLayout_4")->contentsMargins(),
                 QMargins(13, 9, 13, 9));
        QCOMPARE(child<QLabel>(&box, "labelIcon")->minimumSize(), QSize(40, 40));
        QCOMPARE(child<QLabel>(&box, "labelIcon")->maximumSize(), QSize(40, 40));
        QCOMPARE(child<QLabel>(&box, "labelTitle")->minimumSize(), QSize(0, 20));
        QCOMPARE(tips(&box)->minimumSize(), QSize(300, 0));
    }

    void buttonsAreOfTheirKind_data()
    {
        QTest::addColumn<QString>("frame");
        QTest::addColumn<QString>("sheetBegin");
        QTest::newRow("apply") << "frame_apply"
                               << "QPushButton{background:#4291f0;";
        QTest::newRow("OK") << "frame_ok"
                            << "QPushButton{background:#4291f0;";
        QTest::newRow("cancel") << "frame_cancel"
                                << "QPushButton{background:#636363;";
    }

    void buttonsAreOfTheirKind()
    {
        QFETCH(QString, frame);
        QFETCH(QString, sheetBegin);
        const CustomMessageBox box;
        const PushButtonEx *made = button(&box, frame);
        QVERIFY(made);
        QVERIFY2(made->styleSheet().startsWith(sheetBegin), qPrintable(made->styleSheet()));
        QCOMPARE(made->size(), QSize(64, 30));
        QCOMPARE(made->minimumSize(), QSize(64, 30));
        QCOMPARE(made->maximumSize(), QSize(64, 30));
        QCOMPARE(made->pos(), QPoint(0, 0));
    }

    void buttonsAreBuiltOnce()
    {
        CustomMessageBox box;
        const QList<PushButtonEx *> before = box.findChildren<PushButtonEx *>();
        QCOMPARE(before.size(), 3);
        box.createControls();
        QCOMPARE(box.findChildren<PushButtonEx *>(), before);
        QSignalSpy finished(&box, &QDialog::finished);
        button(&box, "frame_apply")->click();
        QCOMPARE(finished, (QList<QVariantList>{{2}}));
    }

    void closeButtonHasItsSheetAndIsHidden()
    {
        CustomMessageBox box;
        auto *closeButton = child<QToolButton>(&box, "toolButton");
        QVERIFY(closeButton->isHidden());
        QCOMPARE(
            closeButton->styleSheet(),
            QString("QToolButton{border-image:url(':/Resource/Image/titleBar/"
                    "btn_close_normal@2x.png');}QToolButton:hover{border-image:url(':/Resource/"
                    "Image/titleBar/btn_close_hover@2x.png');}QToolButton:pressed{border-image:"
                    "url(':/Resource/Image/titleBar/btn_close_pressed@2x.png');}"));
        box.setCloseBtnIsVisible(true);
        QVERIFY(!closeButton->isHidden());
        box.setCloseBtnIsVisible(false);
        QVERIFY(closeButton->isHidden());
    }

    void closeButtonShowsThePictureOfItsState()
    {
        CustomMessageBox box;
        fill(&box, "text");
        box.setCloseBtnIsVisible(true);
        QVERIFY(pointer::showAndWait(&box));
        auto *closeButton = child<QToolButton>(&box, "toolButton");
        // On the cross's tile, beside the cross: red under the pointer, darker while pressed.
        const QPoint beside(4, 10);
        pointer::moveTo(tips(&box));
        QCOMPARE(pointer::colorAt(&box, closeButton->mapTo(&box, beside)), QColor(69, 69, 69));
        pointer::moveTo(closeButton);
        QCOMPARE(pointer::colorAt(&box, closeButton->mapTo(&box, beside)), QColor(226, 72, 72));
        windowmouse::press(closeButton);
        QCOMPARE(pointer::colorAt(&box, closeButton->mapTo(&box, beside)), QColor(160, 40, 40));
        pointer::moveTo(tips(&box)); // lets go elsewhere: no click
        windowmouse::release(tips(&box));
        QVERIFY(box.isVisible());
    }

    void titleIsBoldUnderItsSheet()
    {
        CustomMessageBox box;
        // The box's sheet wins for as long as it is there.
        box.setStyleSheet(QString());
        QCOMPARE(child<QLabel>(&box, "labelTitle")->font().weight(), 75);
        QVERIFY(tips(&box)->font().weight() < 75);
    }

    void informationFillsTheBox_data()
    {
        QTest::addColumn<bool>("hideOk");
        QTest::addColumn<bool>("hideCancel");
        QTest::addColumn<bool>("hideApply");
        for (int flags = 0; flags < 8; ++flags) {
            const bool hideOk = flags & 1;
            const bool hideCancel = flags & 2;
            const bool hideApply = flags & 4;
            QTest::addRow("%s%s%s", hideOk ? "" : "ok ", hideCancel ? "" : "cancel ",
                          hideApply ? "" : "apply")
                << hideOk << hideCancel << hideApply;
        }
    }

    void informationFillsTheBox()
    {
        QFETCH(bool, hideOk);
        QFETCH(bool, hideCancel);
        QFETCH(bool, hideApply);
        CustomMessageBox box;
        const QPixmap icon(signs + "waring.png");
        box.setBoxInformation("A title", "A text", icon, false, hideOk, hideCancel, hideApply,
                              "Use", "Yes", "No");
        QCOMPARE(child<QLabel>(&box, "labelTitle")->text(), QString("  A title  "));
        QCOMPARE(tips(&box)->text(), QString("A text"));
        QCOMPARE(child<QLabel>(&box, "labelIcon")->pixmap(Qt::ReturnByValue).toImage(),
                 icon.toImage());
        QCOMPARE(button(&box, "frame_ok")->text(), QString("Yes"));
        QCOMPARE(button(&box, "frame_cancel")->text(), QString("No"));
        QCOMPARE(button(&box, "frame_apply")->text(), QString("Use"));
        QCOMPARE(child<QFrame>(&box, "frame_ok")->isHidden(), hideOk);
        QCOMPARE(child<QFrame>(&box, "frame_cancel")->isHidden(), hideCancel);
        QCOMPARE(child<QFrame>(&box, "frame_apply")->isHidden(), hideApply);
        QVERIFY(button(&box, "frame_ok")->isDefault());
        QVERIFY(!button(&box, "frame_cancel")->isDefault());
        QVERIFY(!button(&box, "frame_apply")->isDefault());
        // And back: nothing of the first filling stays.
        fill(&box, "Another");
        QVERIFY(!child<QFrame>(&box, "frame_ok")->isHidden());
        QVERIFY(!child<QFrame>(&box, "frame_cancel")->isHidden());
        QVERIFY(!child<QFrame>(&box, "frame_apply")->isHidden());
        QCOMPARE(tips(&box)->text(), QString("Another"));
    }

    void buttonsTakeTheirSizes()
    {
        CustomMessageBox box;
        box.setAppltBtnSize(80, 31);
        box.setOkBtnSize(100, 32);
        box.setCancleBtnSize(60, 33);
        fill(&box, "text");
        QVERIFY(pointer::showAndWait(&box));
        const QList<QPair<QString, QSize>> sizes{{"frame_apply", QSize(80, 31)},
                                                 {"frame_ok", QSize(100, 32)},
                                                 {"frame_cancel", QSize(60, 33)}};
        for (const auto &expected : sizes) {
            QCOMPARE(child<QFrame>(&box, expected.first)->size(), expected.second);
            QCOMPARE(button(&box, expected.first)->size(), expected.second);
            QCOMPARE(button(&box, expected.first)->minimumSize(), expected.second);
            QCOMPARE(button(&box, expected.first)->maximumSize(), expected.second);
        }
        QCOMPARE(box.size(), QSize(400, 203));
    }

    void longButtonTextIsElidedToTheButton()
    {
        CustomMessageBox box;
        const QString text = "Apply to all the screens";
        box.setBoxInformation("Title", "text", QPixmap(), false, false, false, false, text, text,
                              text);
        for (const char *frame : {"frame_apply", "frame_ok", "frame_cancel"}) {
            const PushButtonEx *made = button(&box, frame);
            QCOMPARE(made->text(), text);
            QCOMPARE(made->toolTip(), text);
            QVERIFY(made->QPushButton::text().endsWith(QChar(0x2026)));
        }
    }

    void boxGrowsWithTheOverflow_data()
    {
        QTest::addColumn<int>("overflow");
        QTest::addColumn<int>("wider");
        QTest::addColumn<int>("linesHigher");
        QTest::newRow("far from full") << -900 << 0 << 0;
        QTest::newRow("one to spare") << -1 << 0 << 0;
        QTest::newRow("just full") << 0 << 0 << 0;
        QTest::newRow("1") << 1 << 1 << 0;
        QTest::newRow("100") << 100 << 100 << 0;
        QTest::newRow("299") << 299 << 299 << 0;
        QTest::newRow("300") << 300 << 300 << 0;
        QTest::newRow("301") << 301 << 280 << 1;
        QTest::newRow("599") << 599 << 280 << 1;
        QTest::newRow("600") << 600 << 280 << 2;
        QTest::newRow("901") << 901 << 280 << 3;
    }

    void boxGrowsWithTheOverflow()
    {
        QFETCH(int, overflow);
        QFETCH(int, wider);
        QFETCH(int, linesHigher);
        QWidget parent;
        parent.setGeometry(300, 300, 1000, 600);
        auto *box = new CustomMessageBox(&parent);
        const QPoint formPlace = box->pos();
        QCOMPARE(formPlace, QPoint(300 + 300, 300 + 198));
        QLabel *label = tips(box);
        const QString text = QString("Text of many words. ").repeated(40);
        const int textWide = textWidth(label, text);
        const int x = 37;
        // Before the first show a label is where it was put.
        label->setGeometry(x, 5, textWide - x - overflow, 20);
        const int lineHeight = QFontMetrics(label->font()).height();
        fill(box, text);
        const QSize expected(400 + wider, 203 + linesHigher * lineHeight);
        QCOMPARE(box->size(), expected);
        const QPoint place = wider == 0
            ? formPlace
            : QPoint(300 + (1000 - expected.width()) / 2, 300 + (600 - expected.height()) / 2);
        QCOMPARE(box->pos(), place);
    }

    // The label's own width counts in a box as it is made, and the layout leaves the size alone.
    void shownBoxHasTheSizeOfItsText_data()
    {
        QTest::addColumn<QString>("character");
        QTest::addColumn<int>("least");
        QTest::addColumn<int>("most");
        QTest::newRow("fits") << "a text" << 0 << 0;
        QTest::newRow("up to 300 too wide") << QString("m") << 1 << 300;
        QTest::newRow("more than 300 too wide") << QString("m") << 301 << 599;
        QTest::newRow("much too wide") << QString("m") << 900 << 1199;
    }

    void shownBoxHasTheSizeOfItsText()
    {
        QFETCH(QString, character);
        QFETCH(int, least);
        QFETCH(int, most);
        CustomMessageBox box;
        const QLabel *label = tips(&box);
        const int room = label->width();
        QString text = character;
        while (most > 0 && textWidth(label, text) - room < least)
            text += character;
        const int overflow = textWidth(label, text) - room;
        QVERIFY(overflow <= most);
        fill(&box, text);
        QVERIFY(pointer::showAndWait(&box));
        const int lineHeight = QFontMetrics(label->font()).height();
        if (most == 0) {
            QCOMPARE(box.size(), QSize(400, 203));
        } else if (most == 300) {
            QCOMPARE(box.size(), QSize(400 + overflow, 203));
        } else {
            QCOMPARE(box.size(), QSize(680, 203 + overflow / 300 * lineHeight));
        }
        // The room for text is what the layout gives the label, too: nothing of it was lost.
        QCOMPARE(label->width() - room, box.width() - 400);
    }

    void linesCountAsOneLongText()
    {
        CustomMessageBox box;
        const QLabel *label = tips(&box);
        const QString line = "A line of text that is not too wide";
        const QString text = QStringList{line, line, line, line, line}.join('\n');
        const int overflow = textWidth(label, text) - label->width();
        QVERIFY(overflow > 300);
        QVERIFY(textWidth(label, line) < label->width());
        fill(&box, text);
        const int lineHeight = QFontMetrics(label->font()).height();
        QCOMPARE(box.size(), QSize(680, 203 + overflow / 300 * lineHeight));
        QVERIFY(pointer::showAndWait(&box));
        QCOMPARE(box.size(), QSize(680, 203 + overflow / 300 * lineHeight));
        QVERIFY(label->height() >= 5 * QFontMetrics(label->font()).lineSpacing());
    }

    void linesAreNotCut()
    {
        CustomMessageBox box;
        fill(&box, QString("a\n").repeated(30));
        QCOMPARE(box.size(), QSize(400, 203));
        QVERIFY(pointer::showAndWait(&box));
        QCOMPARE(box.width(), 400);
        QVERIFY(tips(&box)->height() >= 30 * QFontMetrics(tips(&box)->font()).lineSpacing());
    }

    void boxIsCentred_data()
    {
        QTest::addColumn<QRect>("parent");
        QTest::addColumn<QPoint>("expected");
        QTest::newRow("inside") << QRect(300, 200, 800, 600) << QPoint(500, 398);
        QTest::newRow("odd sizes") << QRect(300, 200, 801, 602) << QPoint(500, 399);
        QTest::newRow("smaller parent") << QRect(300, 200, 301, 100) << QPoint(251, 149);
        QTest::newRow("just at the edges") << QRect(50, 51, 300, 101) << QPoint(0, 0);
        QTest::newRow("left of the screen") << QRect(49, 200, 300, 300) << QPoint(-50, 48);
        QTest::newRow("above the screen") << QRect(300, 50, 300, 101) << QPoint(-50, -51);
        QTest::newRow("large and above") << QRect(200, -300, 800, 601) << QPoint(200, 199);
        QTest::newRow("large and left") << QRect(-300, 100, 800, 600) << QPoint(200, 198);
    }

    void boxIsCentred()
    {
        QFETCH(QRect, parent);
        QFETCH(QPoint, expected);
        QWidget window;
        window.setGeometry(parent);
        const CustomMessageBox built(&window);
        QCOMPARE(built.pos(), expected);

        CustomMessageBox moved;
        moved.move(1, 2);
        moved.moveWindow(&window);
        QCOMPARE(moved.pos(), expected);
    }

    void boxWithoutParentIsCentredOnTheScreen()
    {
        const QSize screen = QGuiApplication::primaryScreen()->size();
        const QPoint expected((screen.width() - 400) / 2, (screen.height() - 203) / 2);
        CustomMessageBox box;
        QCOMPARE(box.pos(), expected);
        box.move(3, 4);
        box.moveWindow(nullptr);
        QCOMPARE(box.pos(), expected);
        QVERIFY(pointer::showAndWait(&box));
        QCOMPARE(box.pos(), expected);
    }

    void parentThatIsNoWindowCountsByItsOwnPlace()
    {
        QWidget window;
        window.setGeometry(300, 300, 900, 700);
        QWidget panel(&window);
        panel.setGeometry(100, 120, 600, 500);
        const CustomMessageBox box(&panel);
        QCOMPARE(box.pos(), QPoint(100 + 100, 120 + 148));
    }

    void everyEndHasItsResult_data()
    {
        using Act = std::function<void(CustomMessageBox *)>;
        QTest::addColumn<Act>("act");
        QTest::addColumn<int>("expected");
        const auto click = [](const QString &frame) {
            return Act([=](CustomMessageBox *box) { windowmouse::click(button(box, frame)); });
        };
        const auto key = [](Qt::Key key) {
            return Act([=](CustomMessageBox *box) { QTest::keyClick(box->windowHandle(), key); });
        };
        const auto keyToBox = [](Qt::Key key) {
            return Act([=](CustomMessageBox *box) { QTest::keyClick(box, key); });
        };
        QTest::newRow("OK") << click("frame_ok") << 1;
        QTest::newRow("cancel") << click("frame_cancel") << 0;
        QTest::newRow("apply") << click("frame_apply") << 2;
        QTest::newRow("close button") << Act([](CustomMessageBox *box) {
            windowmouse::click(child<QToolButton>(box, "toolButton"));
        }) << 255;
        QTest::newRow("Return") << key(Qt::Key_Return) << 1;
        QTest::newRow("Enter") << key(Qt::Key_Enter) << 1;
        QTest::newRow("Escape") << key(Qt::Key_Escape) << 0;
        QTest::newRow("Return past the buttons") << keyToBox(Qt::Key_Return) << 1;
        QTest::newRow("Enter past the buttons") << keyToBox(Qt::Key_Enter) << 1;
        QTest::newRow("Escape past the buttons") << keyToBox(Qt::Key_Escape) << 0;
        QTest::newRow("window closed") << Act([](CustomMessageBox *box) { box->close(); }) << 0;
        QTest::newRow("slot OK") << Act(&CustomMessageBox::on_handleOkClicked) << 1;
        QTest::newRow("slot cancel") << Act(&CustomMessageBox::on_handleCancelClicked) << 0;
        QTest::newRow("slot apply") << Act(&CustomMessageBox::on_handleApplyClicked) << 2;
        QTest::newRow("slot close") << Act(&CustomMessageBox::slot_closeBtnClicked) << 255;
        QTest::newRow("Return on cancel") << Act([](CustomMessageBox *box) {
            button(box, "frame_cancel")->setFocus();
            QTest::keyClick(button(box, "frame_cancel"), Qt::Key_Return);
        }) << 0;
    }

    void everyEndHasItsResult()
    {
        QFETCH(std::function<void(CustomMessageBox *)>, act);
        QFETCH(int, expected);
        QWidget parent;
        parent.setGeometry(200, 100, 600, 500);
        QVERIFY(pointer::showAndWait(&parent));
        for (const bool keepOpen : {false, true}) {
            QPointer<CustomMessageBox> box = new CustomMessageBox(&parent);
            fill(box, "text", keepOpen);
            box->setCloseBtnIsVisible(true);
            QCOMPARE(runAndAct(box, act), expected);
            QVERIFY(box.isNull());
        }
    }

    void okHasTheFocusAndIsTheDefault()
    {
        auto *box = new CustomMessageBox;
        fill(box, "text");
        bool seen = false;
        runAndAct(box, [&](CustomMessageBox *open) {
            QVERIFY(QTest::qWaitForWindowActive(open));
            QCOMPARE(QApplication::focusWidget(), button(open, "frame_ok"));
            QVERIFY(open->isModal());
            seen = true;
            open->reject();
        });
        QVERIFY(seen);
    }

    void otherKeysLeaveTheBoxOpen()
    {
        auto *box = new CustomMessageBox;
        fill(box, "text");
        bool wasOpen = false;
        const int result = runAndAct(box, [&](CustomMessageBox *open) {
            for (const Qt::Key key : {Qt::Key_A, Qt::Key_F1, Qt::Key_Backspace, Qt::Key_Left})
                QTest::keyClick(open, key);
            wasOpen = open->isVisible();
            open->on_handleApplyClicked();
        });
        QVERIFY(wasOpen);
        QCOMPARE(result, 2);
    }

    void applyClosesUnlessKeptOpen_data()
    {
        QTest::addColumn<bool>("keepOpen");
        QTest::addColumn<int>("closeEvents");
        QTest::newRow("kept open") << true << 0;
        QTest::newRow("not kept open") << false << 1;
    }

    void applyClosesUnlessKeptOpen()
    {
        QFETCH(bool, keepOpen);
        QFETCH(int, closeEvents);
        auto *box = new CustomMessageBox;
        fill(box, "text", keepOpen);
        CloseCounter counter(box);
        QCOMPARE(runAndAct(box, &CustomMessageBox::on_handleApplyClicked), 2);
        QCOMPARE(counter.count, closeEvents);
    }

    void onlyTheCloseButtonAlsoCloses()
    {
        for (const auto &end : {qMakePair(&CustomMessageBox::on_handleOkClicked, 0),
                                qMakePair(&CustomMessageBox::on_handleCancelClicked, 0),
                                qMakePair(&CustomMessageBox::slot_closeBtnClicked, 1)}) {
            auto *box = new CustomMessageBox;
            fill(box, "text");
            CloseCounter counter(box);
            runAndAct(box, end.first);
            QCOMPARE(counter.count, end.second);
        }
    }

    void boxWithoutButtonsEndsByKeysAndCloseButton_data()
    {
        QTest::addColumn<int>("key");
        QTest::addColumn<int>("expected");
        QTest::newRow("Return") << int(Qt::Key_Return) << 1;
        QTest::newRow("Enter") << int(Qt::Key_Enter) << 1;
        QTest::newRow("Escape") << int(Qt::Key_Escape) << 0;
        QTest::newRow("close button") << 0 << 255;
    }

    void boxWithoutButtonsEndsByKeysAndCloseButton()
    {
        QFETCH(int, key);
        QFETCH(int, expected);
        auto *box = new CustomMessageBox;
        box->setBoxInformation("Title", "text", QPixmap(), false, true, true, true, "", "", "");
        box->setCloseBtnIsVisible(true);
        const int result = runAndAct(box, [=](CustomMessageBox *open) {
            for (const char *frame : {"frame_ok", "frame_apply", "frame_cancel"})
                QVERIFY(!button(open, frame)->isVisible());
            if (key == 0)
                windowmouse::click(child<QToolButton>(open, "toolButton"));
            else
                QTest::keyClick(open->windowHandle(), Qt::Key(key));
        });
        QCOMPARE(result, expected);
    }

    void acceptedAndRejectedAreReported()
    {
        auto *box = new CustomMessageBox;
        fill(box, "text");
        QSignalSpy accepted(box, &QDialog::accepted);
        QSignalSpy rejected(box, &QDialog::rejected);
        QSignalSpy finished(box, &QDialog::finished);
        runAndAct(box, [](CustomMessageBox *open) { QTest::keyClick(open, Qt::Key_Return); });
        QCOMPARE(accepted.count(), 1);
        QCOMPARE(rejected.count(), 0);
        QCOMPARE(finished.count(), 1);
    }

    void parentDestroyedWhileTheBoxIsOpen()
    {
        auto *parent = new QWidget;
        parent->setGeometry(200, 100, 600, 500);
        QVERIFY(pointer::showAndWait(parent));
        QPointer<CustomMessageBox> box = new CustomMessageBox(parent);
        fill(box, "text");
        QCOMPARE(runAndAct(box, [=](CustomMessageBox *) { delete parent; }), 0);
        QVERIFY(box.isNull());
    }

    void parentThatIsGoneIsNotAskedForItsPlace()
    {
        auto *parent = new QWidget;
        parent->setGeometry(200, 100, 600, 500);
        auto *box = new CustomMessageBox(parent);
        const std::unique_ptr<CustomMessageBox> owner(box);
        box->setParent(nullptr, box->windowFlags());
        delete parent;
        fill(box, QString("Text of many words. ").repeated(40));
        const QSize screen = QGuiApplication::primaryScreen()->size();
        QCOMPARE(
            box->pos(),
            QPoint((screen.width() - box->width()) / 2, (screen.height() - box->height()) / 2));
    }

    void boxShownWithoutExecDeletesItself()
    {
        QPointer<CustomMessageBox> box = new CustomMessageBox;
        fill(box, "text");
        QVERIFY(pointer::showAndWait(box));
        windowmouse::click(button(box, "frame_apply"));
        QTRY_VERIFY(box.isNull());
    }

    void boxCanBeDeletedInItsOwnSignals_data()
    {
        using Act = std::function<void(CustomMessageBox *)>;
        QTest::addColumn<Act>("act");
        QTest::newRow("OK") << Act(
            [](CustomMessageBox *box) { windowmouse::click(button(box, "frame_ok")); });
        QTest::newRow("cancel") << Act(
            [](CustomMessageBox *box) { windowmouse::click(button(box, "frame_cancel")); });
        QTest::newRow("apply") << Act(
            [](CustomMessageBox *box) { windowmouse::click(button(box, "frame_apply")); });
        QTest::newRow("close button") << Act([](CustomMessageBox *box) {
            windowmouse::click(child<QToolButton>(box, "toolButton"));
        });
        QTest::newRow("apply called") << Act(&CustomMessageBox::on_handleApplyClicked);
        QTest::newRow("close called") << Act(&CustomMessageBox::slot_closeBtnClicked);
        QTest::newRow("Return") << Act([](CustomMessageBox *box) {
            // Straight to the handler: what Qt's test functions send goes on using the receiver.
            QKeyEvent event(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier);
            QCoreApplication::sendEvent(box, &event);
        });
    }

    void boxCanBeDeletedInItsOwnSignals()
    {
        QFETCH(std::function<void(CustomMessageBox *)>, act);
        QPointer<CustomMessageBox> box = new CustomMessageBox;
        fill(box, "text");
        box->setCloseBtnIsVisible(true);
        QVERIFY(pointer::showAndWait(box));
        connect(box, &QDialog::finished, this, [=] { delete box; });
        act(box);
        QVERIFY(box.isNull());
    }

    void leftButtonDragsTheBox()
    {
        CustomMessageBox box;
        box.move(300, 200);
        press(&box, QPointF(350, 260));
        QCOMPARE(box.pos(), QPoint(300, 200));
        move(&box, QPointF(361, 255));
        QCOMPARE(box.pos(), QPoint(311, 195));
        move(&box, QPointF(20, 10)); // may leave the screen
        QCOMPARE(box.pos(), QPoint(-30, -50));
        release(&box, QPointF(20, 10));
        move(&box, QPointF(500, 500));
        QCOMPARE(box.pos(), QPoint(-30, -50));
    }

    void dragIsCountedInWholePixels()
    {
        CustomMessageBox box;
        box.move(300, 200);
        press(&box, QPointF(350.4, 260.5)); // 350, 261
        move(&box, QPointF(360.5, 270.4)); // 361, 270
        QCOMPARE(box.pos(), QPoint(311, 209));
    }

    void otherButtonsDoNotDrag()
    {
        CustomMessageBox box;
        box.move(300, 200);
        for (const Qt::MouseButton other : {Qt::RightButton, Qt::MiddleButton}) {
            press(&box, QPointF(350, 260), other);
            move(&box, QPointF(400, 300), other);
            QCOMPARE(box.pos(), QPoint(300, 200));
            release(&box, QPointF(400, 300), other);
        }
    }

    // Hosts rely on the details of a drag with more than one button.
    void anyPressMovesTheHoldAndAnyReleaseEndsTheDrag()
    {
        CustomMessageBox box;
        box.move(300, 200);
        press(&box, QPointF(350, 260));
        press(&box, QPointF(355, 270), Qt::RightButton);
        move(&box, QPointF(365, 280), Qt::RightButton); // whatever is held
        QCOMPARE(box.pos(), QPoint(310, 210));
        release(&box, QPointF(365, 280), Qt::RightButton);
        move(&box, QPointF(465, 380));
        QCOMPARE(box.pos(), QPoint(310, 210));
    }

    void labelsAndFramesDragToo_data()
    {
        QTest::addColumn<QString>("part");
        for (const char *part : {"labelTitle", "label_upLine", "labelIcon", "labelTips",
                                 "widgetBottom", "frame", "CustomMessageBox"})
            QTest::newRow(part) << part;
    }

    void labelsAndFramesDragToo()
    {
        QFETCH(QString, part);
        CustomMessageBox box;
        fill(&box, "text");
        QVERIFY(pointer::showAndWait(&box));
        QWidget *held = part == "CustomMessageBox" ? &box : child<QWidget>(&box, part);
        const QPoint at = held->mapTo(&box,
                                      part == "CustomMessageBox"   ? QPoint(3, 3)
                                          : part == "frame"        ? QPoint(2, 2)
                                          : part == "widgetBottom" ? QPoint(2, 2)
                                                                   : held->rect().center());
        const QPoint before = box.pos();
        QTest::mousePress(box.windowHandle(), Qt::LeftButton, Qt::NoModifier, at);
        QTest::mouseMove(box.windowHandle(), at + QPoint(9, 14));
        QTRY_COMPARE(box.pos(), before + QPoint(9, 14));
        QTest::mouseRelease(box.windowHandle(), Qt::LeftButton, Qt::NoModifier, at);
    }

    void groundIsFilled()
    {
        CustomMessageBox box;
        fill(&box, "text");
        const QImage image = box.grab().toImage();
        QCOMPARE(image.size(), QSize(400, 203));
        // Inside the ring that lies on the edge of the ground, and beside labels and lines.
        for (const QPoint &inside : {QPoint(12, 60), QPoint(387, 60), QPoint(12, 190),
                                     QPoint(387, 190), QPoint(200, 12), QPoint(380, 100)})
            QCOMPARE(image.pixelColor(inside), QColor(69, 69, 69, 255));
        for (const QPoint &line : {QPoint(30, 0), QPoint(200, 0), QPoint(380, 0)}) {
            for (const char *name : {"label_upLine", "label_down"}) {
                const int y = child<QLabel>(&box, name)->mapTo(&box, QPoint(0, 0)).y();
                QCOMPARE(image.pixelColor(line.x(), y), QColor(56, 56, 56, 255));
                QCOMPARE(image.pixelColor(line.x(), y + 1), QColor(56, 56, 56, 255));
            }
        }
    }

    void shadowFadesOutward_data()
    {
        QTest::addColumn<QSize>("size");
        QTest::newRow("as made") << QSize(400, 203);
        QTest::newRow("grown") << QSize(523, 300);
    }

    void shadowFadesOutward()
    {
        QFETCH(QSize, size);
        CustomMessageBox box;
        box.resize(size);
        const QImage image = box.grab().toImage();
        QCOMPARE(image.size(), size);
        // The lines lie on the borders between pixels: each covers half of the pixel on either
        // side.
        const QVector<int> alphas{150, 100, 79, 63, 50, 38, 27, 17, 8, 0};
        int before = -1;
        for (int distance = 0; distance < 10; ++distance) {
            const int ring = 9 - distance; // the one at the inner side of the pixel
            double clear = 1.0 - alphas.at(ring) / 2.0 / 255.0;
            if (ring + 1 < alphas.size())
                clear *= 1.0 - alphas.at(ring + 1) / 2.0 / 255.0;
            const int expected = qRound(255.0 * (1.0 - clear));
            for (const QPoint &place : {QPoint(distance, size.height() / 2),
                                        QPoint(size.width() - 1 - distance, size.height() / 2),
                                        QPoint(size.width() / 2, distance),
                                        QPoint(size.width() / 2, size.height() - 1 - distance)}) {
                const QColor color = image.pixelColor(place);
                QVERIFY2(qAbs(color.alpha() - expected) <= 2,
                         qPrintable(QString("%1 from the edge: %2, not %3")
                                        .arg(distance)
                                        .arg(color.alpha())
                                        .arg(expected)));
                QCOMPARE(color.red(), 0);
                QCOMPARE(color.green(), 0);
                QCOMPARE(color.blue(), 0);
            }
            QVERIFY(expected > before);
            before = expected;
        }
        // The innermost ring covers half of the ground's outermost pixel: 69 * (1 - 75 / 255).
        const QColor edge = image.pixelColor(10, size.height() / 2);
        QCOMPARE(edge.alpha(), 255);
        QVERIFY2(qAbs(edge.red() - 49) <= 2, qPrintable(QString::number(edge.red())));
    }

    void metaObjectHasTheSlotsInOrder()
    {
        const QMetaObject &meta = CustomMessageBox::staticMetaObject;
        QCOMPARE(meta.superClass(), &QDialog::staticMetaObject);
        QCOMPARE(meta.propertyOffset(), meta.propertyCount());
        QStringList methods;
        for (int i = meta.methodOffset(); i < meta.methodCount(); ++i) {
            methods += QString::fromLatin1(meta.method(i).methodSignature());
            QCOMPARE(meta.method(i).access(), QMetaMethod::Public);
            QCOMPARE(meta.method(i).methodType(), QMetaMethod::Slot);
        }
        QCOMPARE(methods,
                 (QStringList{"on_handleOkClicked()", "on_handleCancelClicked()",
                              "on_handleApplyClicked()", "slot_closeBtnClicked()"}));
    }

    void diesWithItsParentOrBefore()
    {
        auto *parent = new QWidget;
        QPointer<CustomMessageBox> first = new CustomMessageBox(parent);
        QPointer<CustomMessageBox> second = new CustomMessageBox(parent);
        delete first;
        delete parent;
        QVERIFY(second.isNull());
    }

    void oddInputIsHarmless_data()
    {
        QTest::addColumn<QString>("text");
        QTest::newRow("null") << QString();
        QTest::newRow("sheet") << "}QLabel{color:red;";
        QTest::newRow("tabs and lines") << "\t\n\n\t";
        QTest::newRow("surrogates") << QString::fromUtf8("屏幕 🖥 ").repeated(3);
    }

    void oddInputIsHarmless()
    {
        QFETCH(QString, text);
        CustomMessageBox box;
        box.setBoxInformation(text, text, QPixmap(), false, false, false, false, text, text, text);
        QCOMPARE(tips(&box)->text(), text);
        QVERIFY(pointer::showAndWait(&box));
        box.grab();
    }
};

ORVANE_TEST_MAIN(TestCustomMessageBox)
#include "tst_custommessagebox.moc"
