#include "support/pointer.h"
#include "support/sheetimages.h"
#include "support/testcase.h"

#include <QButtonGroup>
#include <radiobuttonex.h>

#include <limits>

namespace
{

// The sheet of a new button, written out by hand, with the values that setters change as
// arguments: width, height, disabled colour, space, fragment.
QString sheet(const QString &width, const QString &height, const QString &disabledColor,
              const QString &space, const QString &fragment)
{
    return "QRadioButton::indicator {width:" + width + "px;height:" + height
        + "px;}QRadioButton::disabled{color:" + disabledColor
        + ";font: SimSun Arial;}QRadioButton::indicator::unchecked{image: "
          "url(:/Resource/Images/globalResource/radiobutton/radiobutton_uncheck.png);}"
          "QRadioButton::indicator::checked{image: "
          "url(:/Resource/Images/globalResource/radiobutton/radiobutton_check.png);}"
          "QRadioButton::indicator::unchecked:hover{image: "
          "url(:/Resource/Images/globalResource/radiobutton/radiobutton_uncheck_hover.png);}"
          "QRadioButton::indicator::checked:hover{image: "
          "url(:/Resource/Images/globalResource/radiobutton/radiobutton_check_hover.png);}"
          "QRadioButton::indicator::unchecked:disabled{image: "
          "url(:/Resource/Images/globalResource/radiobutton/disabled_unchecked.png);}"
          "QRadioButton::indicator::checked:disabled{image: "
          "url(:/Resource/Images/globalResource/radiobutton/disabled_checked.png);}"
          "QRadioButton{spacing: "
        + space + "px;" + fragment + ";}";
}

const QString defaultSheet = sheet("15", "15", "#707070", "5", "");

/// What the base class shows, elided or not.
QString shownText(const RadioButtonEx &button)
{
    return button.QRadioButton::text();
}

} // namespace

Q_DECLARE_METATYPE(std::function<void(RadioButtonEx &)>)

class TestRadioButtonEx : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void hasDefaults()
    {
        RadioButtonEx button(nullptr);
        QCOMPARE(button.indicatorWidth(), 15);
        QCOMPARE(button.indicatorHeight(), 15);
        QCOMPARE(button.space(), 5);
        QCOMPARE(button.fontColor(), QColor(255, 255, 255));
        QCOMPARE(button.disabledFontColor(), QColor(112, 112, 112));
        QCOMPARE(button.text(), QString());
        QCOMPARE(button.toolTip(), QString());
        QVERIFY(!button.isChecked());
        QCOMPARE(button.styleSheet(), defaultSheet);
        QVERIFY(button.styleSheet().endsWith("QRadioButton{spacing: 5px;;}"));
    }

    void settersRecompose_data()
    {
        QTest::addColumn<std::function<void(RadioButtonEx &)>>("set");
        QTest::addColumn<QString>("expected");
        using Set = std::function<void(RadioButtonEx &)>;
        QTest::newRow("space") << Set([](RadioButtonEx &b) { b.setSpace(9); })
                               << sheet("15", "15", "#707070", "9", "");
        QTest::newRow("negative space") << Set([](RadioButtonEx &b) { b.setSpace(-3); })
                                        << sheet("15", "15", "#707070", "-3", "");
        QTest::newRow("indicator width") << Set([](RadioButtonEx &b) { b.setIndicatorWidth(20); })
                                         << sheet("20", "15", "#707070", "5", "");
        QTest::newRow("indicator height") << Set([](RadioButtonEx &b) { b.setIndicatorHeight(0); })
                                          << sheet("15", "0", "#707070", "5", "");
        QTest::newRow("font colour")
            << Set([](RadioButtonEx &b) { b.setFontColor(Qt::red); })
            << sheet("15", "15", "#707070", "5", "color:#ff0000;font: SimSun Arial;");
        QTest::newRow("translucent font colour")
            << Set([](RadioButtonEx &b) { b.setFontColor(QColor(255, 0, 0, 128)); })
            << sheet("15", "15", "#707070", "5", "color:#80ff0000;font: SimSun Arial;");
        QTest::newRow("invalid font colour")
            << Set([](RadioButtonEx &b) { b.setFontColor(QColor()); })
            << sheet("15", "15", "#707070", "5", "color:#000000;font: SimSun Arial;");
        QTest::newRow("font colour stays with later setters") << Set([](RadioButtonEx &b) {
            b.setFontColor(Qt::red);
            b.setSpace(6);
        }) << sheet("15", "15", "#707070", "6", "color:#ff0000;font: SimSun Arial;");
        QTest::newRow("disabled font colour")
            << Set([](RadioButtonEx &b) { b.setDisabledFontColor(QColor(1, 2, 3)); })
            << sheet("15", "15", "#010203", "5", "");
        QTest::newRow("invalid disabled font colour")
            << Set([](RadioButtonEx &b) { b.setDisabledFontColor(QColor()); })
            << sheet("15", "15", "#000000", "5", "");
        QTest::newRow("init does not apply") << Set([](RadioButtonEx &b) {
            b.setSpace(9);
            b.init();
        }) << sheet("15", "15", "#707070", "9", "");
        QTest::newRow("init and setStyle go back to the defaults") << Set([](RadioButtonEx &b) {
            b.setFontColor(Qt::red);
            b.setDisabledFontColor(Qt::red);
            b.setIndicatorWidth(99);
            b.setIndicatorHeight(98);
            b.setSpace(97);
            b.init();
            b.setStyle();
        }) << defaultSheet;
    }

    void settersRecompose()
    {
        QFETCH(std::function<void(RadioButtonEx &)>, set);
        QFETCH(QString, expected);
        RadioButtonEx button;
        set(button);
        QCOMPARE(button.styleSheet(), expected);
    }

    void sheetWithAFontColorEndsInTwoSemicolons()
    {
        RadioButtonEx button;
        button.setFontColor(QColor(255, 0, 0));
        QVERIFY2(button.styleSheet().endsWith(
                     "QRadioButton{spacing: 5px;color:#ff0000;font: SimSun Arial;;}"),
                 qPrintable(button.styleSheet()));
    }

    void gettersReturnWhatWasSet()
    {
        RadioButtonEx button;
        button.setSpace(11);
        button.setIndicatorWidth(12);
        button.setIndicatorHeight(13);
        button.setFontColor(QColor(1, 2, 3, 4));
        button.setDisabledFontColor(QColor(5, 6, 7));
        QCOMPARE(button.space(), 11);
        QCOMPARE(button.indicatorWidth(), 12);
        QCOMPARE(button.indicatorHeight(), 13);
        QCOMPARE(button.fontColor(), QColor(1, 2, 3, 4));
        QCOMPARE(button.disabledFontColor(), QColor(5, 6, 7));
        button.setText("kept");
        button.init();
        QCOMPARE(button.space(), 5);
        QCOMPARE(button.indicatorWidth(), 15);
        QCOMPARE(button.indicatorHeight(), 15);
        QCOMPARE(button.fontColor(), QColor(255, 255, 255));
        QCOMPARE(button.disabledFontColor(), QColor(112, 112, 112));
        QCOMPARE(button.text(), QStringLiteral("kept"));
    }

    void textIsElidedToTheWidthLessIndicatorAndSpace_data()
    {
        QTest::addColumn<int>("indicatorWidth");
        QTest::addColumn<int>("space");
        QTest::addColumn<int>("spare");
        QTest::addColumn<bool>("fits");
        QTest::newRow("one pixel to spare") << 15 << 5 << 1 << true;
        QTest::newRow("exactly as wide") << 15 << 5 << 0 << true;
        QTest::newRow("one pixel short") << 15 << 5 << -1 << false;
        QTest::newRow("large indicator, exactly as wide") << 40 << 9 << 0 << true;
        QTest::newRow("large indicator, one pixel short") << 40 << 9 << -1 << false;
        QTest::newRow("negative space, exactly as wide") << 15 << -20 << 0 << true;
        QTest::newRow("negative space, one pixel short") << 15 << -20 << -1 << false;
    }

    void textIsElidedToTheWidthLessIndicatorAndSpace()
    {
        QFETCH(int, indicatorWidth);
        QFETCH(int, space);
        QFETCH(int, spare);
        QFETCH(bool, fits);
        const QString text = QStringLiteral("A text of some length");
        RadioButtonEx button;
        button.setIndicatorWidth(indicatorWidth);
        button.setSpace(space);
        button.ensurePolished();
        const QFontMetrics metrics(button.font());
        const int available = metrics.horizontalAdvance(text) + spare;
        button.resize(available + indicatorWidth + space, 30);
        button.setText(text);
        QCOMPARE(button.text(), text);
        QCOMPARE(button.toolTip(), fits ? QString() : text);
        QCOMPARE(shownText(button), metrics.elidedText(text, Qt::ElideRight, available));
        if (spare > 0)
            QCOMPARE(shownText(button), text);
        if (spare < 0)
            QVERIFY2(shownText(button).endsWith(QChar(0x2026)), qPrintable(shownText(button)));
    }

    void textIsElidedToTheWholeWidthWhenNothingIsLeft_data()
    {
        QTest::addColumn<int>("excess"); // of space plus indicator width over the width
        QTest::newRow("indicator and space as wide as the button") << 0;
        QTest::newRow("wider by one pixel") << 1;
        QTest::newRow("much wider") << 500;
    }

    void textIsElidedToTheWholeWidthWhenNothingIsLeft()
    {
        QFETCH(int, excess);
        const QString text = QStringLiteral("A text of some length");
        RadioButtonEx button;
        button.ensurePolished();
        const QFontMetrics metrics(button.font());
        const int width = metrics.horizontalAdvance(text);
        button.resize(width, 30);
        button.setSpace(width - button.indicatorWidth() + excess);
        button.setText(text);
        QCOMPARE(shownText(button), metrics.elidedText(text, Qt::ElideRight, width));
        QCOMPARE(button.toolTip(), QString()); // exactly as wide: it fits
        button.resize(width - 1, 30);
        button.setText(text);
        QCOMPARE(shownText(button), metrics.elidedText(text, Qt::ElideRight, width - 1));
        QCOMPARE(button.toolTip(), text);
    }

    // One pixel more than indicator and space: that pixel is what is left.
    void onePixelLeftIsUsed()
    {
        RadioButtonEx button;
        button.resize(21, 30);
        button.setText("wide");
        QCOMPARE(shownText(button),
                 QFontMetrics(button.font()).elidedText("wide", Qt::ElideRight, 1));
        QCOMPARE(button.toolTip(), QStringLiteral("wide"));
    }

    void textChangeShowsAndReturnsItsText()
    {
        RadioButtonEx button;
        button.resize(300, 30);
        button.setText("one");
        button.textChange("two");
        QCOMPARE(button.text(), QStringLiteral("two"));
        QCOMPARE(shownText(button), QStringLiteral("two"));
        button.resize(30, 30);
        QCOMPARE(button.toolTip(), QString()); // a resize does not measure anew
        button.textChange("a much longer text");
        QCOMPARE(button.text(), QStringLiteral("a much longer text"));
        QCOMPARE(button.toolTip(), QStringLiteral("a much longer text"));
        button.setText("");
        QCOMPARE(button.text(), QString());
        QCOMPARE(button.toolTip(), QString());
    }

    void everyImageOfTheSheetResolves()
    {
        QStringList paths = imagePaths(RadioButtonEx().styleSheet());
        for (const QString &path : qAsConst(paths))
            QCOMPARE(QImage(path).size(), QSize(32, 32));
        QCOMPARE(paths.count(), 6);
        QCOMPARE(paths.removeDuplicates(), 0);
    }

    void indicatorShowsAnImagePerState()
    {
        QWidget panel;
        panel.resize(200, 100);
        RadioButtonEx button(&panel);
        button.setGeometry(20, 20, 120, 30);
        button.setAutoExclusive(false);
        QVERIFY(pointer::showAndWait(&panel));
        pointer::moveTo(&panel, QPoint(5, 5));
        QMap<QString, QImage> pictures;
        for (bool hovered : {false, true}) {
            if (hovered)
                pointer::moveTo(&button);
            else
                pointer::moveTo(&panel, QPoint(5, 5));
            QCOMPARE(button.underMouse(), hovered);
            for (bool checked : {false, true}) {
                button.setChecked(checked);
                const QString state =
                    QString(hovered ? "hovered " : "plain ") + (checked ? "checked" : "unchecked");
                pictures[state] = button.grab(QRect(0, 0, 20, 30)).toImage();
                button.setEnabled(false);
                pictures["disabled " + state] = button.grab(QRect(0, 0, 20, 30)).toImage();
                button.setEnabled(true);
            }
        }
        QCOMPARE(pictures["disabled hovered checked"], pictures["disabled plain checked"]);
        QCOMPARE(pictures["disabled hovered unchecked"], pictures["disabled plain unchecked"]);
        pictures.remove("disabled hovered checked");
        pictures.remove("disabled hovered unchecked");
        QCOMPARE(pictures.size(), 6);
        for (auto a = pictures.cbegin(); a != pictures.cend(); ++a) {
            for (auto b = pictures.cbegin(); b != a; ++b)
                QVERIFY2(*a != *b, qPrintable(a.key() + " looks like " + b.key()));
        }
    }

    void indicatorSizeIsTheOneOfTheSheet()
    {
        RadioButtonEx button;
        button.setIndicatorWidth(22);
        button.setIndicatorHeight(24);
        button.ensurePolished();
        QStyleOptionButton option;
        option.initFrom(&button);
        QCOMPARE(button.style()->pixelMetric(QStyle::PM_ExclusiveIndicatorWidth, &option, &button),
                 22);
        QCOMPARE(button.style()->pixelMetric(QStyle::PM_ExclusiveIndicatorHeight, &option, &button),
                 24);
    }

    void colorIsSeenWhenSetBeforeAndAfterTheFirstShow()
    {
        // The text is a run of full blocks, so that its colour fills pixels.
        RadioButtonEx button;
        button.resize(200, 40);
        button.setText(QString(9, QChar(0x2588)));
        button.setFontColor(QColor(255, 0, 0));
        button.setFontColor(QColor(0, 255, 0));
        QVERIFY(pointer::showAndWait(&button));
        QCOMPARE(pointer::colorAt(&button, QPoint(50, 20)), QColor(0, 255, 0));
        button.setFontColor(QColor(0, 0, 255));
        QCOMPARE(pointer::colorAt(&button, QPoint(50, 20)), QColor(0, 0, 255));
    }

    void siblingsExcludeEachOther()
    {
        QWidget panel;
        panel.resize(200, 100);
        RadioButtonEx first(&panel);
        RadioButtonEx second(&panel);
        first.setGeometry(10, 10, 150, 30);
        second.setGeometry(10, 50, 150, 30);
        QVERIFY(pointer::showAndWait(&panel));
        QSignalSpy toggled(&first, &QRadioButton::toggled);
        QTest::mouseClick(&first, Qt::LeftButton, Qt::NoModifier, QPoint(8, 15));
        QVERIFY(first.isChecked());
        QTest::mouseClick(&second, Qt::LeftButton, Qt::NoModifier, QPoint(8, 15));
        QVERIFY(!first.isChecked());
        QVERIFY(second.isChecked());
        QTest::mouseClick(&second, Qt::LeftButton, Qt::NoModifier, QPoint(8, 15));
        QVERIFY(second.isChecked());
        QTest::mouseClick(&first, Qt::RightButton, Qt::NoModifier, QPoint(8, 15));
        QVERIFY(second.isChecked());
        QCOMPARE(toggled.count(), 2);
    }

    void keysMoveTheCheck()
    {
        QWidget panel;
        RadioButtonEx first(&panel);
        RadioButtonEx second(&panel);
        first.setGeometry(10, 10, 150, 30);
        second.setGeometry(10, 50, 150, 30);
        QVERIFY(pointer::showAndWait(&panel));
        panel.activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&panel));
        first.setFocus();
        QTest::keyClick(&first, Qt::Key_Space);
        QVERIFY(first.isChecked());
        QTest::keyClick(&first, Qt::Key_Down);
        QVERIFY(second.isChecked());
        QVERIFY(second.hasFocus());
        QTest::keyClick(&second, Qt::Key_Up);
        QVERIFY(first.isChecked());
    }

    void buttonGroupReportsTheButton()
    {
        QWidget panel;
        QWidget otherPanel;
        RadioButtonEx first(&panel);
        RadioButtonEx second(&otherPanel);
        QButtonGroup group;
        group.addButton(&first, 1);
        group.addButton(&second, 2);
        first.setChecked(true);
        second.setChecked(true);
        QVERIFY(!first.isChecked());
        QCOMPARE(group.checkedId(), 2);
    }

    void oddTextsAreHarmless_data()
    {
        QTest::addColumn<QString>("text");
        QTest::newRow("quotes") << "\"a\" 'b'";
        QTest::newRow("braces") << "}QRadioButton{color:red;";
        QTest::newRow("very long") << QString(100000, 'w');
        QTest::newRow("lines") << "one\ntwo";
        QTest::newRow("null") << QString();
    }

    void oddTextsAreHarmless()
    {
        QFETCH(QString, text);
        RadioButtonEx button;
        button.setText(text);
        QCOMPARE(button.text(), text);
        QCOMPARE(button.styleSheet(), defaultSheet);
        QVERIFY(pointer::showAndWait(&button));
        button.grab();
    }

    void addsNothingToTheMetaObject()
    {
        const QMetaObject &meta = RadioButtonEx::staticMetaObject;
        QCOMPARE(meta.methodOffset(), meta.methodCount());
        QCOMPARE(meta.propertyOffset(), meta.propertyCount());
        QCOMPARE(QByteArray(meta.superClass()->className()), QByteArray("QRadioButton"));
    }

    // Their sum is no int; what is left for the text would be without end.
    void hugeSpaceAndIndicatorLeaveNoRoom()
    {
        RadioButtonEx button;
        button.resize(50, 20);
        button.setSpace(std::numeric_limits<int>::max());
        button.setIndicatorWidth(1000000000);
        const QString text(200, 'w');
        button.setText(text);
        QCOMPARE(button.toolTip(), text);
        QVERIFY(static_cast<QRadioButton &>(button).text().size() < text.size());
    }

    void diesWithItsParentOrBefore()
    {
        auto *parent = new QWidget;
        QPointer<RadioButtonEx> first = new RadioButtonEx(parent);
        QPointer<RadioButtonEx> second = new RadioButtonEx(parent);
        first->setChecked(true);
        QVERIFY(pointer::showAndWait(parent));
        delete first;
        QCOMPARE(parent->children(), QObjectList{second});
        delete parent;
        QVERIFY(second.isNull());
    }

    void canBeDeletedInItsOwnSignal()
    {
        QPointer<RadioButtonEx> button = new RadioButtonEx;
        QVERIFY(pointer::showAndWait(button));
        connect(button, &QRadioButton::clicked, this, [button] { delete button; });
        QTest::mouseClick(button, Qt::LeftButton, Qt::NoModifier, QPoint(8, button->height() / 2));
        QVERIFY(button.isNull());
    }
};

ORVANE_TEST_MAIN(TestRadioButtonEx)
#include "tst_radiobuttonex.moc"
