#include "support/pointer.h"
#include "support/testcase.h"

#include <pushbuttonex.h>

namespace
{

const QString activatedSheet = QStringLiteral(
    "QPushButton{background:#4291f0;color:#d2d2d2;font:9pt \"微软雅黑\" ;border-radius:5;}"
    "QPushButton:hover{background:#486d9a;color:#d2d2d2;}"
    "QPushButton:pressed{background:#2a4d78;color:#d2d2d2;}"
    "QPushButton:disabled{background:#555555;color:#828282;}");

const QString notActivatedSheet = QStringLiteral(
    "QPushButton{background:#636363;color:#d2d2d2;font:9pt \"微软雅黑\" ;border-radius:5;}"
    "QPushButton:Hover{background:#575a5c;color:#d2d2d2;}"
    "QPushButton:Pressed{background:#353637;color:#d2d2d2;}"
    "QPushButton:Disabled{background:#555555;color:#828282;}");

const QString plainSheet = QStringLiteral("color:rgb(255,255,255);font:9pt \"微软雅黑\" ;");

// The looks of a button whose colours were never set.
const QString unsetActivatedSheet = QStringLiteral(
    "QPushButton{background:#000000;color:#000000;font:9pt \"微软雅黑\" ;border-radius:0;}"
    "QPushButton:hover{background:#000000;color:#000000;}"
    "QPushButton:pressed{background:#000000;color:#000000;}"
    "QPushButton:disabled{background:#000000;color:#000000;}");
const QString unsetNotActivatedSheet = QStringLiteral(
    "QPushButton{background:#000000;color:#000000;font:9pt \"微软雅黑\" ;border-radius:0;}"
    "QPushButton:Hover{background:#000000;color:#000000;}"
    "QPushButton:Pressed{background:#000000;color:#000000;}"
    "QPushButton:Disabled{background:#000000;color:#000000;}");

/// What the base class shows, elided or not.
QString shownText(const PushButtonEx &button)
{
    return button.QPushButton::text();
}

} // namespace

class TestPushButtonEx : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void kindsHaveTheirValues()
    {
        QCOMPARE(int(ActivatedBtn), 0);
        QCOMPARE(int(NoActivatedBtn), 1);
    }

    void kindChoosesTheLook_data()
    {
        QTest::addColumn<int>("kind");
        QTest::addColumn<QString>("expected");
        QTest::newRow("activated") << 0 << activatedSheet;
        QTest::newRow("not activated") << 1 << notActivatedSheet;
        QTest::newRow("plain") << 2 << plainSheet;
        QTest::newRow("negative") << -1 << plainSheet;
        QTest::newRow("very large") << std::numeric_limits<int>::max() << plainSheet;
        QTest::newRow("very small") << std::numeric_limits<int>::min() << plainSheet;
    }

    void kindChoosesTheLook()
    {
        QFETCH(int, kind);
        QFETCH(QString, expected);
        PushButtonEx button(nullptr, static_cast<BtnType>(kind));
        QCOMPARE(button.styleSheet(), expected);
        QCOMPARE(button.text(), QString());
        QCOMPARE(button.toolTip(), QString());
    }

    void activatedLookReadsAsDrawn()
    {
        const QString sheet = PushButtonEx(nullptr, ActivatedBtn).styleSheet();
        QVERIFY2(sheet.startsWith(QStringLiteral(
                     "QPushButton{background:#4291f0;color:#d2d2d2;font:9pt \"微软雅黑\" "
                     ";border-radius:5;}QPushButton:hover{background:#486d9a;")),
                 qPrintable(sheet));
    }

    // A kind fills the colours of its own look only; the others stay invalid, which reads black.
    void unusedColorsStayInvalid_data()
    {
        QTest::addColumn<int>("kind");
        QTest::addColumn<QString>("activated");
        QTest::addColumn<QString>("notActivated");
        QTest::newRow("activated") << 0 << activatedSheet << unsetNotActivatedSheet;
        QTest::newRow("not activated") << 1 << unsetActivatedSheet << notActivatedSheet;
        QTest::newRow("plain") << 2 << unsetActivatedSheet << unsetNotActivatedSheet;
    }

    void unusedColorsStayInvalid()
    {
        QFETCH(int, kind);
        QFETCH(QString, activated);
        QFETCH(QString, notActivated);
        PushButtonEx button(nullptr, static_cast<BtnType>(kind));
        button.setActivatedStyle();
        QCOMPARE(button.styleSheet(), activated);
        button.setNoActivatedStyle();
        QCOMPARE(button.styleSheet(), notActivated);
    }

    void initFunctionsOnlyStore()
    {
        PushButtonEx button(nullptr, static_cast<BtnType>(2));
        button.initActivatedButtonParam();
        QCOMPARE(button.styleSheet(), plainSheet);
        button.initNoActivatedButtonParam();
        QCOMPARE(button.styleSheet(), plainSheet);
        button.setActivatedStyle();
        QCOMPARE(button.styleSheet(), activatedSheet);
        button.setNoActivatedStyle();
        QCOMPARE(button.styleSheet(), notActivatedSheet);
    }

    void kindCanBeAppliedAgain()
    {
        PushButtonEx button(nullptr, NoActivatedBtn);
        button.createButtonByType(ActivatedBtn);
        QCOMPARE(button.styleSheet(), activatedSheet);
        button.createButtonByType(static_cast<BtnType>(7));
        QCOMPARE(button.styleSheet(), plainSheet);
        button.createButtonByType(NoActivatedBtn);
        QCOMPARE(button.styleSheet(), notActivatedSheet);
    }

    void colorsAreTexts()
    {
        PushButtonEx button(nullptr, ActivatedBtn);
        QCOMPARE(button.fromColorToStr(QColor(255, 0, 0)), QStringLiteral("#ff0000"));
        QCOMPARE(button.fromColorToStr(QColor(255, 0, 0, 128)), QStringLiteral("#80ff0000"));
        QCOMPARE(button.fromColorToStr(QColor()), QStringLiteral("#000000"));
    }

    void groundFollowsTheState_data()
    {
        QTest::addColumn<int>("kind");
        QTest::addColumn<QColor>("normal");
        QTest::addColumn<QColor>("hover");
        QTest::addColumn<QColor>("pressed");
        QTest::addColumn<QColor>("disabled");
        QTest::newRow("activated") << 0 << QColor(66, 145, 240) << QColor(72, 109, 154)
                                   << QColor(42, 77, 120) << QColor(85, 85, 85);
        QTest::newRow("not activated") << 1 << QColor(99, 99, 99) << QColor(87, 90, 92)
                                       << QColor(53, 54, 55) << QColor(85, 85, 85);
    }

    void groundFollowsTheState()
    {
        QFETCH(int, kind);
        QFETCH(QColor, normal);
        QFETCH(QColor, hover);
        QFETCH(QColor, pressed);
        QFETCH(QColor, disabled);
        QWidget panel;
        panel.resize(200, 100);
        PushButtonEx button(&panel, static_cast<BtnType>(kind));
        button.setGeometry(40, 30, 100, 40);
        const QPoint inside(50, 20);
        QVERIFY(pointer::showAndWait(&panel));
        pointer::moveTo(&panel, QPoint(5, 5));
        QCOMPARE(pointer::colorAt(&button, inside), normal);
        const QColor ground = pointer::colorAt(&panel, QPoint(5, 50));
        QVERIFY(ground != normal);
        for (const QPoint &corner : {QPoint(0, 0), QPoint(99, 0), QPoint(0, 39), QPoint(99, 39)})
            QCOMPARE(pointer::colorAt(&panel, button.pos() + corner), ground); // round corners
        QCOMPARE(pointer::colorAt(&button, QPoint(50, 0)), normal);
        pointer::moveTo(&button);
        QCOMPARE(pointer::colorAt(&button, inside), hover);
        QTest::mousePress(&button, Qt::LeftButton);
        QCOMPARE(pointer::colorAt(&button, inside), pressed);
        QTest::mouseRelease(&button, Qt::LeftButton);
        QCOMPARE(pointer::colorAt(&button, inside), hover);
        button.setEnabled(false);
        QCOMPARE(pointer::colorAt(&button, inside), disabled);
        button.setEnabled(true);
        pointer::moveTo(&panel, QPoint(5, 5));
        QCOMPARE(pointer::colorAt(&button, inside), normal);
    }

    void textIsColored_data()
    {
        QTest::addColumn<int>("kind");
        QTest::addColumn<bool>("enabled");
        QTest::addColumn<QColor>("expected");
        QTest::newRow("activated") << 0 << true << QColor(210, 210, 210);
        QTest::newRow("activated, disabled") << 0 << false << QColor(130, 130, 130);
        QTest::newRow("not activated") << 1 << true << QColor(210, 210, 210);
        QTest::newRow("not activated, disabled") << 1 << false << QColor(130, 130, 130);
        QTest::newRow("plain") << 2 << true << QColor(255, 255, 255);
    }

    void textIsColored()
    {
        QFETCH(int, kind);
        QFETCH(bool, enabled);
        QFETCH(QColor, expected);
        // The text is a run of full blocks, so that its colour fills pixels.
        PushButtonEx button(nullptr, static_cast<BtnType>(kind));
        button.resize(200, 40);
        button.setText(QString(9, QChar(0x2588)));
        button.setEnabled(enabled);
        QVERIFY(pointer::showAndWait(&button));
        QCOMPARE(pointer::colorAt(&button, QPoint(100, 20)), expected);
    }

    void fontIsTheNormalFont_data()
    {
        QTest::addColumn<int>("kind");
        QTest::newRow("activated") << 0;
        QTest::newRow("not activated") << 1;
        QTest::newRow("plain") << 2;
    }

    void fontIsTheNormalFont()
    {
        QFETCH(int, kind);
        PushButtonEx button(nullptr, static_cast<BtnType>(kind));
        button.ensurePolished();
        QCOMPARE(button.font().pointSize(), 9);
        QCOMPARE(button.font().family(), QStringLiteral("微软雅黑"));
    }

    void textIsElidedToTheWidth_data()
    {
        QTest::addColumn<int>("spare");
        QTest::addColumn<bool>("fits");
        QTest::newRow("one pixel to spare") << 1 << true;
        QTest::newRow("exactly as wide") << 0 << true;
        QTest::newRow("one pixel short") << -1 << false;
        QTest::newRow("far too long") << -40 << false;
    }

    void textIsElidedToTheWidth()
    {
        QFETCH(int, spare);
        QFETCH(bool, fits);
        const QString text = QStringLiteral("A text of some length");
        PushButtonEx button(nullptr, ActivatedBtn);
        button.ensurePolished();
        const QFontMetrics metrics(button.font());
        const int width = metrics.horizontalAdvance(text) + spare;
        button.resize(width, 30);
        button.setText(text);
        QCOMPARE(button.text(), text);
        QCOMPARE(button.toolTip(), fits ? QString() : text);
        QCOMPARE(shownText(button), metrics.elidedText(text, Qt::ElideRight, width));
        if (spare > 0)
            QCOMPARE(shownText(button), text);
        if (spare < 0) {
            QVERIFY2(shownText(button).endsWith(QChar(0x2026)), qPrintable(shownText(button)));
            QVERIFY(shownText(button) != button.text());
        }
    }

    void resizeDoesNotElideAnew()
    {
        const QString text = QStringLiteral("A text of some length");
        PushButtonEx button(nullptr, NoActivatedBtn);
        button.resize(40, 20);
        button.setText(text);
        const QString elided = shownText(button);
        QVERIFY(elided != text);
        button.resize(400, 20);
        QCOMPARE(shownText(button), elided);
        QCOMPARE(button.toolTip(), text);
        button.setText(text);
        QCOMPARE(shownText(button), text);
        QCOMPARE(button.toolTip(), QString());
    }

    void buttonWithoutWidthHasTheTextAsToolTip()
    {
        PushButtonEx button(nullptr, ActivatedBtn);
        button.resize(0, 20);
        button.setText("x");
        QCOMPARE(button.toolTip(), QStringLiteral("x"));
        QCOMPARE(button.text(), QStringLiteral("x"));
        button.setText("");
        QCOMPARE(button.toolTip(), QString());
        QCOMPARE(button.text(), QString());
    }

    void mouseAndKeyboardClick()
    {
        PushButtonEx button(nullptr, ActivatedBtn);
        button.resize(120, 30);
        QVERIFY(pointer::showAndWait(&button));
        QSignalSpy clicked(&button, &QPushButton::clicked);
        QTest::mouseClick(&button, Qt::LeftButton);
        QCOMPARE(clicked.count(), 1);
        QTest::mouseClick(&button, Qt::RightButton);
        QCOMPARE(clicked.count(), 1);
        QTest::keyClick(&button, Qt::Key_Space);
        QCOMPARE(clicked.count(), 2);
        button.setEnabled(false);
        button.click();
        QCOMPARE(clicked.count(), 2);
    }

    void mnemonicClicks()
    {
        QWidget panel;
        panel.resize(200, 80);
        PushButtonEx button(&panel, ActivatedBtn);
        button.resize(120, 30);
        button.setText("&Send");
        QCOMPARE(button.text(), QStringLiteral("&Send"));
        QVERIFY(pointer::showAndWait(&panel));
        panel.activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&panel));
        QSignalSpy clicked(&button, &QPushButton::clicked);
        QTest::keyClick(&panel, Qt::Key_S, Qt::AltModifier);
        QTRY_COMPARE(clicked.count(), 1);
    }

    void enterClicksTheDefaultButtonOfADialog()
    {
        QDialog dialog;
        dialog.resize(300, 100);
        PushButtonEx cancel(&dialog, NoActivatedBtn);
        cancel.setGeometry(10, 10, 100, 30);
        PushButtonEx accept(&dialog, ActivatedBtn);
        accept.setGeometry(150, 10, 100, 30);
        QVERIFY(accept.autoDefault());
        accept.setDefault(true);
        QVERIFY(pointer::showAndWait(&dialog));
        QSignalSpy cancelled(&cancel, &QPushButton::clicked);
        QSignalSpy accepted(&accept, &QPushButton::clicked);
        QTest::keyClick(&dialog, Qt::Key_Return);
        QCOMPARE(accepted.count(), 1);
        QCOMPARE(cancelled.count(), 0);
    }

    void checkableButtonToggles()
    {
        PushButtonEx button(nullptr, NoActivatedBtn);
        button.setCheckable(true);
        button.click();
        QVERIFY(button.isChecked());
        button.click();
        QVERIFY(!button.isChecked());
    }

    void oddTextsAreHarmless_data()
    {
        QTest::addColumn<QString>("text");
        QTest::newRow("quotes") << "\"a\" 'b'";
        QTest::newRow("braces") << "}QPushButton{color:red;";
        QTest::newRow("very long") << QString(100000, 'w');
        QTest::newRow("lines") << "one\ntwo";
        QTest::newRow("null") << QString();
    }

    void oddTextsAreHarmless()
    {
        QFETCH(QString, text);
        PushButtonEx button(nullptr, ActivatedBtn);
        button.setText(text);
        QCOMPARE(button.text(), text);
        QCOMPARE(button.styleSheet(), activatedSheet);
        QVERIFY(pointer::showAndWait(&button));
        button.grab();
    }

    void addsNothingToTheMetaObject()
    {
        const QMetaObject &meta = PushButtonEx::staticMetaObject;
        QCOMPARE(meta.methodOffset(), meta.methodCount());
        QCOMPARE(meta.propertyOffset(), meta.propertyCount());
        QCOMPARE(QByteArray(meta.superClass()->className()), QByteArray("QPushButton"));
    }

    void diesWithItsParentOrBefore()
    {
        auto *parent = new QWidget;
        QPointer<PushButtonEx> first = new PushButtonEx(parent, ActivatedBtn);
        QPointer<PushButtonEx> second = new PushButtonEx(parent, NoActivatedBtn);
        QVERIFY(pointer::showAndWait(parent));
        delete first;
        QCOMPARE(parent->children(), QObjectList{second});
        delete parent;
        QVERIFY(second.isNull());
    }

    void canBeDeletedInItsOwnSignal_data()
    {
        QTest::addColumn<bool>("withPanel");
        QTest::newRow("alone") << false;
        QTest::newRow("with its panel") << true;
    }

    void canBeDeletedInItsOwnSignal()
    {
        QFETCH(bool, withPanel);
        auto *panel = new QWidget;
        panel->resize(200, 100);
        QPointer<PushButtonEx> button = new PushButtonEx(panel, ActivatedBtn);
        button->resize(100, 30);
        QVERIFY(pointer::showAndWait(panel));
        connect(button, &QPushButton::clicked, this, [=] {
            if (withPanel)
                delete panel;
            else
                delete button;
        });
        QTest::mouseClick(button, Qt::LeftButton);
        QVERIFY(button.isNull());
        if (!withPanel)
            delete panel;
    }
};

ORVANE_TEST_MAIN(TestPushButtonEx)
#include "tst_pushbuttonex.moc"
