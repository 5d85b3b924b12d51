#include "support/testcase.h"

#include <internal/portlook.h>

#include <QToolButton>

using orvane::PortState;

Q_DECLARE_METATYPE(PortState)

namespace
{

QString sheetText(PortState state, ItemType type, int portIndex)
{
    return orvane::portSheet(state, type, portIndex).toString();
}

} // namespace

class TestPortLook : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void sheetsFollowStateAndType_data()
    {
        QTest::addColumn<PortState>("state");
        QTest::addColumn<int>("type");
        QTest::addColumn<QString>("expected");
        QTest::newRow("port normal")
            << PortState::Normal << 0
            << "QToolButton{border-image: url(:/Resource/Images/globalResource/drawer/"
               "btn_Port_normal_7.png);}QToolButton:hover{border-image: "
               "url(:/Resource/Images/globalResource/drawer/btn_Port_hover_7.png);}";
        QTest::newRow("port pressed")
            << PortState::Pressed << 0
            << "QToolButton{border-image: url(:/Resource/Images/globalResource/drawer/"
               "btn_Port_pressed_7.png);}";
        QTest::newRow("port disabled")
            << PortState::Disabled << 0
            << "QToolButton{border-image: url(:/Resource/Images/globalResource/drawer/"
               "btn_Port_disabled_7.png);}";
        QTest::newRow("coaxial normal")
            << PortState::Normal << 1
            << "QToolButton{border-image: url(:/Resource/Images/globalResource/drawer/"
               "btn_coaxial_normal_7.png);}QToolButton:hover{border-image: "
               "url(:/Resource/Images/globalResource/drawer/btn_coaxial_hover_7.png);}";
        QTest::newRow("coaxial pressed")
            << PortState::Pressed << 1
            << "QToolButton{border-image: url(:/Resource/Images/globalResource/drawer/"
               "btn_coaxial_pressed_7.png);}";
        QTest::newRow("coaxial disabled")
            << PortState::Disabled << 1
            << "QToolButton{border-image: url(:/Resource/Images/globalResource/drawer/"
               "btn_coaxial_disabled_7.png);}";
        for (const int type : {2, -1, 77})
            QTest::addRow("type %d has no sheet", type) << PortState::Normal << type << "";
    }

    void sheetsFollowStateAndType()
    {
        QFETCH(PortState, state);
        QFETCH(int, type);
        QFETCH(QString, expected);
        QCOMPARE(sheetText(state, static_cast<ItemType>(type), 7), expected);
    }

    void numbersAreWrittenInDecimalWithoutPadding_data()
    {
        QTest::addColumn<int>("number");
        QTest::addColumn<QString>("text");
        QTest::newRow("zero") << 0 << "0";
        QTest::newRow("sixteen") << 16 << "16";
        QTest::newRow("beyond the pictures") << 1234567 << "1234567";
        QTest::newRow("negative") << -1 << "-1";
    }

    void numbersAreWrittenInDecimalWithoutPadding()
    {
        QFETCH(int, number);
        QFETCH(QString, text);
        QCOMPARE(sheetText(PortState::Pressed, CoaxialItem, number),
                 "QToolButton{border-image: url(:/Resource/Images/globalResource/drawer/"
                 "btn_coaxial_pressed_"
                     + text + ".png);}");
    }

    void buttonsShowWhatTheirStateAllows_data()
    {
        QTest::addColumn<bool>("isEnabled");
        QTest::addColumn<PortState>("released");
        QTest::addColumn<PortState>("pressed");
        QTest::newRow("enabled") << true << PortState::Normal << PortState::Pressed;
        QTest::newRow("disabled") << false << PortState::Disabled << PortState::Disabled;
    }

    void buttonsShowWhatTheirStateAllows()
    {
        QFETCH(bool, isEnabled);
        QFETCH(PortState, released);
        QFETCH(PortState, pressed);
        QToolButton button;
        button.setEnabled(isEnabled);
        orvane::showPortReleased(&button, PortItem, 3);
        QCOMPARE(button.styleSheet(), sheetText(released, PortItem, 3));
        orvane::showPortPressed(&button, PortItem, 4);
        QCOMPARE(button.styleSheet(), sheetText(pressed, PortItem, 4));
        QCOMPARE(button.isEnabled(), isEnabled);

        for (const bool isDisabled : {true, false}) {
            orvane::setPortDisabled(&button, CoaxialItem, 5, isDisabled);
            QCOMPARE(
                button.styleSheet(),
                sheetText(isDisabled ? PortState::Disabled : PortState::Normal, CoaxialItem, 5));
            QCOMPARE(button.isEnabled(), !isDisabled);
        }
    }

    void aTypeWithoutPicturesKeepsTheSheet()
    {
        const auto other = static_cast<ItemType>(9);
        QToolButton button;
        button.setStyleSheet("QToolButton{color:red;}");
        orvane::showPortReleased(&button, other, 3);
        orvane::showPortPressed(&button, other, 3);
        orvane::setPortDisabled(&button, other, 3, true);
        QVERIFY(!button.isEnabled());
        orvane::setPortDisabled(&button, other, 3, false);
        QVERIFY(button.isEnabled());
        QCOMPARE(button.styleSheet(), QString("QToolButton{color:red;}"));
    }
};

ORVANE_TEST_MAIN(TestPortLook)
#include "tst_portlook.moc"
