#include "support/pointer.h"
#include "support/testcase.h"
#include "support/windowmouse.h"

#include <custommegbox.h>
#include <custommessagebox.h>
#include <pushbuttonex.h>

#include <functional>

namespace
{

const QString signs = QStringLiteral(":/Resource/Images/globalResource/messageBox/");
constexpr int watchdog = 20000; // ms; ends a box that a failing test left open
constexpr int neverEnded = -77;

using Show = std::function<int(QWidget *)>;
using Act = std::function<void(CustomMessageBox *)>;

/// The kinds of box, each with texts of its own.
Show shownBy(const QString &helper)
{
    if (helper == "information") {
        return [](QWidget *parent) {
            return CustomMegBox::informationMessageBox(parent, "Title", "Text", "OK text");
        };
    }
    if (helper == "waring") {
        return [](QWidget *parent) {
            return CustomMegBox::waringMessageBox(parent, "Title", "Text", "OK text");
        };
    }
    if (helper == "critical") {
        return [](QWidget *parent) {
            return CustomMegBox::criticalMessageBox(parent, "Title", "Text", "OK text");
        };
    }
    if (helper == "question") {
        return [](QWidget *parent) {
            return CustomMegBox::questionMessageBox(parent, "Title", "Text", "OK text", "No text");
        };
    }
    if (helper == "question with apply") {
        return [](QWidget *parent) {
            return CustomMegBox::questionMessageBox(parent, "Title", "Text", false, "Use text",
                                                    "OK text", "No text");
        };
    }
    if (helper == "question kept open") {
        return [](QWidget *parent) {
            return CustomMegBox::questionMessageBox(parent, "Title", "Text", true, "Use text",
                                                    "OK text", "No text");
        };
    }
    const bool closeVisible = helper == "tip with close";
    const bool keepOpen = helper == "tip kept open";
    return [=](QWidget *parent) {
        return CustomMegBox::tipMessageBox(parent, "Title", "Text", keepOpen, "Use text", "OK text",
                                           "No text", closeVisible, 80, 100, 60);
    };
}

PushButtonEx *button(const QWidget *box, const QString &frame)
{
    return box->findChild<QFrame *>(frame)->findChild<PushButtonEx *>();
}

/// Whether a shown box stands at \a place, but for the frame of 2 pixels that the offscreen
/// platform draws around any window, now inside and now outside of its position.
bool isAt(const QWidget *box, QPoint place)
{
    const QPoint difference = box->pos() - place;
    return qAbs(difference.x()) <= 2 && qAbs(difference.y()) <= 2;
}

Act clickOn(const QString &frame)
{
    return [=](CustomMessageBox *box) { windowmouse::click(button(box, frame)); };
}

Act clickClose()
{
    return [](CustomMessageBox *box) {
        windowmouse::click(box->findChild<QToolButton *>("toolButton"));
    };
}

Act press(Qt::Key key)
{
    return [=](CustomMessageBox *box) { QTest::keyClick(box->windowHandle(), key); };
}

/// Shows a box and does \a act to it as soon as it is open; \a box outlives the call as null.
int showAndAct(const Show &show, QWidget *parent, const Act &act,
               QPointer<CustomMessageBox> *box = nullptr)
{
    QTimer poll;
    QObject::connect(&poll, &QTimer::timeout, &poll, [&] {
        auto *open = qobject_cast<CustomMessageBox *>(QApplication::activeModalWidget());
        if (!open)
            return;
        poll.stop();
        if (box)
            *box = open;
        QTimer::singleShot(watchdog, open, [=] { open->done(neverEnded); });
        QVERIFY(QTest::qWaitForWindowExposed(open));
        act(open);
    });
    poll.start(0);
    return show(parent);
}

/// Counts the close events of all message boxes.
class CloseCounter : public QObject
{
public:
    CloseCounter() { qApp->installEventFilter(this); }
    int count = 0;

protected:
    bool eventFilter(QObject *watched, QEvent *event) override
    {
        if (event->type() == QEvent::Close && qobject_cast<CustomMessageBox *>(watched))
            ++count;
        return false;
    }
};

} // namespace

Q_DECLARE_METATYPE(Act)

class TestCustomMegBox : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void boxIsFilledByItsKind_data()
    {
        QTest::addColumn<QString>("helper");
        QTest::addColumn<QString>("icon");
        QTest::addColumn<bool>("hasCancel");
        QTest::addColumn<bool>("hasApply");
        QTest::addColumn<bool>("hasClose");
        QTest::addColumn<QString>("applyText");
        QTest::addColumn<QString>("cancelText");
        QTest::newRow("information") << "information"
                                     << "information.png" << false << false << false << ""
                                     << "";
        QTest::newRow("waring") << "waring"
                                << "waring.png" << false << false << false << ""
                                << "";
        QTest::newRow("critical") << "critical"
                                  << "error.png" << false << false << false << ""
                                  << "cancelText";
        QTest::newRow("question") << "question"
                                  << "question.png" << true << false << false << ""
                                  << "No text";
        QTest::newRow("question with apply")
            << "question with apply"
            << "question.png" << true << true << false << "Use text"
            << "No text";
        QTest::newRow("tip") << "tip"
                             << "question.png" << true << true << false << "Use text"
                             << "No text";
        QTest::newRow("tip with close") << "tip with close"
                                        << "question.png" << true << true << true << "Use text"
                                        << "No text";
    }

    void boxIsFilledByItsKind()
    {
        QFETCH(QString, helper);
        QFETCH(QString, icon);
        QFETCH(bool, hasCancel);
        QFETCH(bool, hasApply);
        QFETCH(bool, hasClose);
        QFETCH(QString, applyText);
        QFETCH(QString, cancelText);
        QWidget parent;
        parent.setGeometry(200, 100, 600, 500);
        QVERIFY(pointer::showAndWait(&parent));
        bool seen = false;
        QPointer<CustomMessageBox> shown;
        showAndAct(
            shownBy(helper), &parent,
            [&](CustomMessageBox *box) {
                const QPixmap expected(signs + icon);
                QVERIFY(!expected.isNull());
                QCOMPARE(box->parentWidget(), &parent);
                QVERIFY(box->isModal());
                QCOMPARE(box->size(), QSize(400, 203));
                QVERIFY(isAt(box, QPoint(200 + 100, 100 + 148)));
                QCOMPARE(box->findChild<QLabel *>("labelTitle")->text(), QString("  Title  "));
                QCOMPARE(box->findChild<QLabel *>("labelTips")->text(), QString("Text"));
                const auto *iconLabel = box->findChild<QLabel *>("labelIcon");
                QCOMPARE(iconLabel->pixmap(Qt::ReturnByValue).toImage(), expected.toImage());
                QCOMPARE(iconLabel->size(), expected.size()); // seen whole
                QVERIFY(button(box, "frame_ok")->isVisible());
                QVERIFY(button(box, "frame_ok")->isDefault());
                QCOMPARE(button(box, "frame_ok")->text(), QString("OK text"));
                QCOMPARE(button(box, "frame_cancel")->isVisible(), hasCancel);
                QCOMPARE(button(box, "frame_cancel")->text(), cancelText);
                QCOMPARE(button(box, "frame_apply")->isVisible(), hasApply);
                QCOMPARE(button(box, "frame_apply")->text(), applyText);
                QCOMPARE(box->findChild<QToolButton *>("toolButton")->isVisible(), hasClose);
                seen = true;
                box->reject();
            },
            &shown);
        QVERIFY(seen);
        QVERIFY(shown.isNull()); // the box is gone when the call returns
    }

    void resultTellsHowTheBoxEnded_data()
    {
        QTest::addColumn<QString>("helper");
        QTest::addColumn<Act>("act");
        QTest::addColumn<int>("expected");
        for (const char *helper :
             {"information", "waring", "critical", "question", "question with apply",
              "question kept open", "tip", "tip kept open", "tip with close"}) {
            QTest::addRow("%s: OK", helper) << helper << clickOn("frame_ok") << 1;
            QTest::addRow("%s: Return", helper) << helper << press(Qt::Key_Return) << 1;
            QTest::addRow("%s: Enter", helper) << helper << press(Qt::Key_Enter) << 1;
            QTest::addRow("%s: Escape", helper) << helper << press(Qt::Key_Escape) << 0;
        }
        for (const char *helper : {"question", "question with apply", "question kept open", "tip",
                                   "tip kept open", "tip with close"})
            QTest::addRow("%s: cancel", helper) << helper << clickOn("frame_cancel") << 0;
        for (const char *helper : {"question with apply", "question kept open", "tip",
                                   "tip kept open", "tip with close"})
            QTest::addRow("%s: apply", helper) << helper << clickOn("frame_apply") << 2;
        QTest::newRow("tip with close: close") << "tip with close" << clickClose() << 255;
    }

    void resultTellsHowTheBoxEnded()
    {
        QFETCH(QString, helper);
        QFETCH(Act, act);
        QFETCH(int, expected);
        QWidget parent;
        parent.setGeometry(200, 100, 600, 500);
        QVERIFY(pointer::showAndWait(&parent));
        QPointer<CustomMessageBox> shown;
        QCOMPARE(showAndAct(shownBy(helper), &parent, act, &shown), expected);
        QVERIFY(shown.isNull());
    }

    void keepOpenIsPassedOn_data()
    {
        QTest::addColumn<QString>("helper");
        QTest::addColumn<int>("closeEvents");
        QTest::newRow("question with apply") << "question with apply" << 1;
        QTest::newRow("question kept open") << "question kept open" << 0;
        QTest::newRow("tip") << "tip" << 1;
        QTest::newRow("tip kept open") << "tip kept open" << 0;
    }

    void keepOpenIsPassedOn()
    {
        QFETCH(QString, helper);
        QFETCH(int, closeEvents);
        const CloseCounter counter;
        QCOMPARE(showAndAct(shownBy(helper), nullptr, clickOn("frame_apply")), 2);
        QCOMPARE(counter.count, closeEvents);
    }

    void tipButtonsHaveTheirWidths()
    {
        bool seen = false;
        showAndAct(shownBy("tip"), nullptr, [&](CustomMessageBox *box) {
            QCOMPARE(button(box, "frame_apply")->size(), QSize(80, 30));
            QCOMPARE(button(box, "frame_ok")->size(), QSize(100, 30));
            QCOMPARE(button(box, "frame_cancel")->size(), QSize(60, 30));
            seen = true;
            box->reject();
        });
        QVERIFY(seen);
    }

    // The texts are elided to the widths that were asked for, not to those of the form.
    void tipTextsAreMeasuredInTheirButtons()
    {
        const QString wide = "Apply to all of the screens";
        bool seen = false;
        showAndAct(
            [&](QWidget *parent) {
                return CustomMegBox::tipMessageBox(parent, "Title", "Text", false, wide, wide, wide,
                                                   false, 400, 400, 400);
            },
            nullptr,
            [&](CustomMessageBox *box) {
                for (const char *frame : {"frame_apply", "frame_ok", "frame_cancel"}) {
                    QCOMPARE(button(box, frame)->QPushButton::text(), wide);
                    QCOMPARE(button(box, frame)->toolTip(), QString());
                }
                seen = true;
                box->reject();
            });
        QVERIFY(seen);
    }

    void boxWithoutParentIsCentredOnTheScreen_data()
    {
        QTest::addColumn<QString>("helper");
        for (const char *helper :
             {"information", "waring", "critical", "question", "question with apply", "tip"})
            QTest::newRow(helper) << helper;
    }

    void boxWithoutParentIsCentredOnTheScreen()
    {
        QFETCH(QString, helper);
        const QSize screen = QGuiApplication::primaryScreen()->size();
        bool seen = false;
        showAndAct(shownBy(helper), nullptr, [&](CustomMessageBox *box) {
            QVERIFY(isAt(box, QPoint((screen.width() - 400) / 2, (screen.height() - 203) / 2)));
            seen = true;
            box->reject();
        });
        QVERIFY(seen);
    }

    void parentDestroyedWhileTheBoxIsOpen_data() { boxWithoutParentIsCentredOnTheScreen_data(); }

    void parentDestroyedWhileTheBoxIsOpen()
    {
        QFETCH(QString, helper);
        auto *parent = new QWidget;
        parent->setGeometry(200, 100, 600, 500);
        QVERIFY(pointer::showAndWait(parent));
        QPointer<CustomMessageBox> shown;
        const int result = showAndAct(
            shownBy(helper), parent, [=](CustomMessageBox *) { delete parent; }, &shown);
        QCOMPARE(result, 0);
        QVERIFY(shown.isNull());
    }

    void boxesNest()
    {
        int inner = neverEnded;
        const int outer = showAndAct(shownBy("question"), nullptr, [&](CustomMessageBox *box) {
            inner = showAndAct(shownBy("information"), box, press(Qt::Key_Return));
            windowmouse::click(button(box, "frame_cancel"));
        });
        QCOMPARE(inner, 1);
        QCOMPARE(outer, 0);
    }

    void hasNoInstances() { QVERIFY(!std::is_default_constructible<CustomMegBox>::value); }
};

ORVANE_TEST_MAIN(TestCustomMegBox)
#include "tst_custommegbox.moc"
