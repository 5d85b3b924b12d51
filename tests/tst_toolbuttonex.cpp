#include "support/paintcounter.h"
#include "support/pointer.h"
#include "support/testcase.h"

#include <toolbuttonex.h>

namespace
{

const QList<ButtonType> allTypes = {LeftToRightType,  TopToBottomType, CabinetType,
                                    CabinetModelType, AddCabinetType,  ActivatedType,
                                    NoActivatedType,  DefaultType};

// The sheets of new buttons, written out by hand.
const QString normalFont = QStringLiteral("9pt \"微软雅黑\" ");
const QString bigFont = QStringLiteral("10.5pt \"微软雅黑\" ");
const QString biggerFont = QStringLiteral("12pt  \"微软雅黑\" ");

QString topToBottom(const QString &normal, const QString &pressed, const QString &radius)
{
    return "QToolButton{background:" + normal + ";border-radius:" + radius
        + QStringLiteral(";font:9pt \"微软雅黑\" pt;}QToolButton:Pressed{background:") + pressed
        + ";}";
}

QString leftToRight(const QString &normal, const QString &pressed, const QString &radius,
                    const QString &font)
{
    return "QToolButton{background:" + normal + ";border-radius:" + radius + ";font:" + font
        + ";}QToolButton:Pressed{background:" + pressed + ";}";
}

/// The sheet of the activated look; \a values are the colours in the order of the properties,
/// first the four backgrounds, then the four font colours, then the radius.
QString activated(const QStringList &values)
{
    return QStringLiteral("QToolButton{background:%1;color:%5;font:9pt \"微软雅黑\" "
                          ";border-radius:%9;}QToolButton:hover{background:%2;color:%6;}"
                          "QToolButton:pressed{background:%3;color:%7;}"
                          "QToolButton:disabled{background:%4;color:%8;}")
        .arg(values.at(0), values.at(1), values.at(2), values.at(3), values.at(4), values.at(5),
             values.at(6), values.at(7), values.at(8));
}

/// The same for the not-activated look, with the left padding behind the radius.
QString notActivated(const QStringList &values)
{
    return QStringLiteral("QToolButton{background:%1;color:%5;font:9pt \"微软雅黑\" "
                          ";border-radius:%9;padding-left:PADpx;}"
                          "QToolButton:Hover{background:%2;color:%6;}"
                          "QToolButton:Pressed{background:%3;color:%7;}"
                          "QToolButton:Disabled{background:%4;color:%8;}")
        .arg(values.at(0), values.at(1), values.at(2), values.at(3), values.at(4), values.at(5),
             values.at(6), values.at(7), values.at(8))
        .replace("PAD", values.at(9));
}

const QStringList activatedValues = {"#4291f0", "#486d9a", "#2a4d78", "#555555", "#d2d2d2",
                                     "#d2d2d2", "#d2d2d2", "#828282", "5"};
const QStringList notActivatedValues = {"#636363", "#575a5c", "#353637", "#555555", "#d2d2d2",
                                        "#d2d2d2", "#d2d2d2", "#828282", "5",       "0"};

QStringList with(QStringList values, int index, const QString &value)
{
    values[index] = value;
    return values;
}

const QString addImage =
    ";border-image: url(:/Resource/Images/globalResource/addBtn/box-add_normalDouble.png);";
const QString addSheet = "QToolButton{background:#3e3e3e" + addImage
    + QStringLiteral("font:9pt \"微软雅黑\"  ;}QToolButton:hover{background:#505050") + addImage
    + "}QToolButton:pressed{background:#383838" + addImage
    + "}QToolButton:disabled{background:#3e3e3e;border-image: "
      "url(:/Resource/Images/globalResource/addBtn/box-add_disableDouble.png);}";
const QString cabinetSheet = QStringLiteral(
    "QToolButton{background:#454545;color:#000000;font:9pt \"微软雅黑\" ;border:0px;}"
    "QToolButton:Hover{background:#657c98;color:#dadada; border:1px solid #4382ce;}"
    "QToolButton:Pressed{background:#4291f0;color:#dadada; border:1px solid #0767aa;}"
    "QToolButton:disabled{background:#454545;color:#000000;font:9pt \"微软雅黑\" ;border:0px;}"
    "QToolTip{background-color:rgb(56,56,56);color:rgb(178,178,178);font:SimSun Arial;"
    "border:1px solid rgb(128,128,128);}");

QString sheetOf(ButtonType type)
{
    switch (type) {
    case LeftToRightType:
        return leftToRight("#ffffff", "#ffffff", "0", biggerFont);
    case TopToBottomType:
        return topToBottom("#636363", "#4291f0", "5");
    case CabinetType:
    case CabinetModelType:
        return cabinetSheet;
    case AddCabinetType:
        return addSheet;
    case ActivatedType:
        return activated(activatedValues);
    case NoActivatedType:
        return notActivated(notActivatedValues);
    case DefaultType:
        break;
    }
    return QString();
}

const QString upLabelSheet = "font:" + bigFont + ";color: #ffffff;";
const QString downLabelSheet = "font:" + bigFont + ";color:#ffffff;";
const QString rightLabelSheet = "font:" + biggerFont + ";color: #333333;";
const QString rightLabelPressedSheet = "font:" + biggerFont + ";color: #4291f0;";
const QString leftLabelSheet = "border-image: url();";
const QString rightBottomLabelSheet = QStringLiteral("font: 9pt \"微软雅黑\";color: gray;");

/// The button's own labels in the order in which they were made.
QList<QLabel *> labels(const ToolButtonEx &button)
{
    return button.findChildren<QLabel *>(QString(), Qt::FindDirectChildrenOnly);
}

/// The sheets of the button and of its labels.
QStringList sheets(const ToolButtonEx &button)
{
    QStringList all{button.styleSheet()};
    for (const QLabel *label : labels(button))
        all << label->styleSheet();
    return all;
}

/// All that a setter of another look may not touch: sheets, texts and the gap of the layout.
QStringList appearance(const ToolButtonEx &button)
{
    QStringList all = sheets(button);
    for (const QLabel *label : labels(button))
        all << label->text();
    if (button.layout())
        all << QString::number(button.layout()->spacing());
    return all;
}

/// What the base class shows, elided or not.
QString shownText(const ToolButtonEx &button)
{
    return button.QToolButton::text();
}

/// Whether a left press is in force: releasing it for the host's sake reports a model.
bool isPressed(ToolButtonEx &button)
{
    bool reported = false;
    const auto connection = QObject::connect(&button, &ToolButtonEx::notifyAddCabineModel, &button,
                                             [&reported] { reported = true; });
    button.setCabinetToAddModel();
    QObject::disconnect(connection);
    return reported;
}

using Set = std::function<void(ToolButtonEx &)>;
using Get = std::function<QVariant(const ToolButtonEx &)>;

/// One property of one look: its setter, the getter's answer after it, and every sheet of the
/// button of that look then, the button's own first.
struct Property {
    const char *name;
    ButtonType look;
    Set set;
    Get get;
    QVariant initial;
    QVariant value;
    QStringList sheets;
};

const QColor color(1, 2, 254);
const QColor translucent(1, 2, 254, 128);

QList<Property> properties()
{
    const QStringList l2r{sheetOf(LeftToRightType), leftLabelSheet, rightLabelSheet,
                          rightBottomLabelSheet};
    const QStringList t2b{sheetOf(TopToBottomType), upLabelSheet, downLabelSheet};
    using B = const ToolButtonEx &;
    QList<Property> all = {
        {"up text", TopToBottomType, [](ToolButtonEx &b) { b.setStrUpText("new"); },
         [](B b) { return b.strUpText(); }, "up", "new", t2b},
        {"down text", TopToBottomType, [](ToolButtonEx &b) { b.setStrDownText("new"); },
         [](B b) { return b.strDownText(); }, "down", "new", t2b},
        {"up colour", TopToBottomType, [](ToolButtonEx &b) { b.setUpLabelTextColor(color); },
         [](B b) { return b.upLabelTextColor(); }, QColor(255, 255, 255), color,
         with(t2b, 1, "font:" + bigFont + ";color: #0102fe;")},
        {"translucent up colour", TopToBottomType,
         [](ToolButtonEx &b) { b.setUpLabelTextColor(translucent); },
         [](B b) { return b.upLabelTextColor(); }, QColor(255, 255, 255), translucent,
         with(t2b, 1, "font:" + bigFont + ";color: #800102fe;")},
        {"invalid up colour", TopToBottomType,
         [](ToolButtonEx &b) { b.setUpLabelTextColor(QColor()); },
         [](B b) { return b.upLabelTextColor(); }, QColor(255, 255, 255), QColor(),
         with(t2b, 1, "font:" + bigFont + ";color: #000000;")},
        {"down colour", TopToBottomType, [](ToolButtonEx &b) { b.setDownLabelTextColor(color); },
         [](B b) { return b.downLabelTextColor(); }, QColor(255, 255, 255), color,
         with(t2b, 2, "font:" + bigFont + ";color:#0102fe;")},
        {"top-to-bottom background", TopToBottomType,
         [](ToolButtonEx &b) { b.setTopToBottomNormalBgColor(color); },
         [](B b) { return b.topToBottomNormalBgColor(); }, QColor(99, 99, 99), color,
         with(t2b, 0, topToBottom("#0102fe", "#4291f0", "5"))},
        {"top-to-bottom pressed background", TopToBottomType,
         [](ToolButtonEx &b) { b.setTopToBottomPressedBgColor(color); },
         [](B b) { return b.topToBottomPressedBgColor(); }, QColor(66, 145, 240), color,
         with(t2b, 0, topToBottom("#636363", "#0102fe", "5"))},
        {"top-to-bottom radius", TopToBottomType,
         [](ToolButtonEx &b) { b.setTopToBottomBorderRadius(-7); },
         [](B b) { return b.topToBottomBorderRadius(); }, 5, -7,
         with(t2b, 0, topToBottom("#636363", "#4291f0", "-7"))},
        {"right text", LeftToRightType, [](ToolButtonEx &b) { b.setStrRightText("new"); },
         [](B b) { return b.strRightText(); }, "", "new", l2r},
        {"right bottom text", LeftToRightType,
         [](ToolButtonEx &b) { b.setStrRightBottomText("new"); }, [](B) { return QVariant(); },
         QVariant(), QVariant(), l2r},
        {"picture", LeftToRightType, [](ToolButtonEx &b) { b.setStrLeftImgPathNormal(":/a.png"); },
         [](B b) { return b.strLeftImgPathNormal(); }, "", ":/a.png",
         with(l2r, 1, "border-image: url(:/a.png);")},
        {"pressed picture", LeftToRightType,
         [](ToolButtonEx &b) { b.setStrLeftImgPathPressed(":/b.png"); },
         [](B b) { return b.strLeftImgPathPressed(); }, "", ":/b.png", l2r},
        {"right colour", LeftToRightType,
         [](ToolButtonEx &b) { b.setRightLabelTextNormalColor(color); },
         [](B b) { return b.rightLabelTextNormalColor(); }, QColor(51, 51, 51), color,
         with(l2r, 2, "font:" + biggerFont + ";color: #0102fe;")},
        {"right pressed colour", LeftToRightType,
         [](ToolButtonEx &b) { b.setRightLabelTextPressedColor(color); },
         [](B b) { return b.rightLabelTextPressedColor(); }, QColor(66, 145, 240), color, l2r},
        {"right font", LeftToRightType,
         [](ToolButtonEx &b) { b.setRightLabelTextFont("8pt \"X\""); },
         [](B b) { return b.rightLabelTextFont(); }, biggerFont, "8pt \"X\"",
         with(with(l2r, 0, leftToRight("#ffffff", "#ffffff", "0", "8pt \"X\"")), 2,
              "font:8pt \"X\";color: #333333;")},
        {"left-to-right background", LeftToRightType,
         [](ToolButtonEx &b) { b.setLeftToRightNormalBgColor(color); },
         [](B b) { return b.leftToRightNormalBgColor(); }, QColor(255, 255, 255), color,
         with(l2r, 0, leftToRight("#0102fe", "#ffffff", "0", biggerFont))},
        {"left-to-right pressed background", LeftToRightType,
         [](ToolButtonEx &b) { b.setLeftToRightPressedBgColor(color); },
         [](B b) { return b.leftToRightPressedBgColor(); }, QColor(255, 255, 255), color,
         with(l2r, 0, leftToRight("#ffffff", "#0102fe", "0", biggerFont))},
        {"left-to-right radius", LeftToRightType,
         [](ToolButtonEx &b) { b.setLeftToRightBorderRadius(9); },
         [](B b) { return b.leftToRightBorderRadius(); }, 0, 9,
         with(l2r, 0, leftToRight("#ffffff", "#ffffff", "9", biggerFont))},
        {"left-to-right gap", LeftToRightType,
         [](ToolButtonEx &b) { b.setLeftToRightLayoutSpace(17); },
         [](B b) { return b.leftToRightLayoutSpace(); }, 5, 17, l2r},
    };

    using ColorSetter = void (ToolButtonEx::*)(const QColor &);
    using ColorGetter = QColor (ToolButtonEx::*)() const;
    struct CommandColor {
        const char *name;
        ColorSetter set;
        ColorGetter get;
        QColor initial;
    };
    using T = ToolButtonEx;
    const QList<CommandColor> activatedColors = {
        {"activated normal background", &T::setActivatedNormalBgColor, &T::activatedNormalBgColor,
         QColor(66, 145, 240)},
        {"activated hover background", &T::setActivatedHoverBgColor, &T::activatedHoverBgColor,
         QColor(72, 109, 154)},
        {"activated pressed background", &T::setActivatedPressedBgColor,
         &T::activatedPressedBgColor, QColor(42, 77, 120)},
        {"activated disabled background", &T::setActivatedDisabledBgColor,
         &T::activatedDisabledBgColor, QColor(85, 85, 85)},
        {"activated normal font", &T::setActivatedNormalFontColor, &T::activatedNormalFontColor,
         QColor(210, 210, 210)},
        {"activated hover font", &T::setActivatedHoverFontColor, &T::activatedHoverFontColor,
         QColor(210, 210, 210)},
        {"activated pressed font", &T::setActivatedPressedFontColor, &T::activatedPressedFontColor,
         QColor(210, 210, 210)},
        {"activated disabled font", &T::setActivatedDisabledFontColor,
         &T::activatedDisabledFontColor, QColor(130, 130, 130)},
    };
    const QList<CommandColor> notActivatedColors = {
        {"not-activated normal background", &T::setNoActivatedNormalBgColor,
         &T::noActivatedNormalBgColor, QColor(99, 99, 99)},
        {"not-activated hover background", &T::setNoActivatedHoverBgColor,
         &T::noActivatedHoverBgColor, QColor(87, 90, 92)},
        {"not-activated pressed background", &T::setNoActivatedPressedBgColor,
         &T::noActivatedPressedBgColor, QColor(53, 54, 55)},
        {"not-activated disabled background", &T::setNoActivatedDisabledBgColor,
         &T::noActivatedDisabledBgColor, QColor(85, 85, 85)},
        {"not-activated normal font", &T::setNoActivatedNormalFontColor,
         &T::noActivatedNormalFontColor, QColor(210, 210, 210)},
        {"not-activated hover font", &T::setNoActivatedHoverFontColor,
         &T::noActivatedHoverFontColor, QColor(210, 210, 210)},
        {"not-activated pressed font", &T::setNoActivatedPressedFontColor,
         &T::noActivatedPressedFontColor, QColor(210, 210, 210)},
        {"not-activated disabled font", &T::setNoActivatedDisabledFontColor,
         &T::noActivatedDisabledFontColor, QColor(130, 130, 130)},
    };
    for (int i = 0; i < 8; ++i) {
        const CommandColor a = activatedColors.at(i);
        all << Property{a.name,
                        ActivatedType,
                        [a](ToolButtonEx &b) { (b.*a.set)(color); },
                        [a](B b) { return (b.*a.get)(); },
                        a.initial,
                        color,
                        {activated(with(activatedValues, i, "#0102fe"))}};
        const CommandColor n = notActivatedColors.at(i);
        all << Property{n.name,
                        NoActivatedType,
                        [n](ToolButtonEx &b) { (b.*n.set)(color); },
                        [n](B b) { return (b.*n.get)(); },
                        n.initial,
                        color,
                        {notActivated(with(notActivatedValues, i, "#0102fe"))}};
    }
    all << Property{"activated radius",
                    ActivatedType,
                    [](ToolButtonEx &b) { b.setActivatedBorderRadius(12); },
                    [](B b) { return b.activatedBorderRadius(); },
                    5,
                    12,
                    {activated(with(activatedValues, 8, "12"))}};
    all << Property{"not-activated radius",
                    NoActivatedType,
                    [](ToolButtonEx &b) { b.setNoActivatedBorderRadius(0); },
                    [](B b) { return b.noActivatedBorderRadius(); },
                    5,
                    0,
                    {notActivated(with(notActivatedValues, 8, "0"))}};
    return all;
}

const QString longText = QStringLiteral("A text of some length");

} // namespace

Q_DECLARE_METATYPE(ButtonType)

class TestToolButtonEx : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void eachTypeHasItsLook_data()
    {
        QTest::addColumn<ButtonType>("type");
        QTest::addColumn<QStringList>("expected");
        QTest::newRow("left to right") << LeftToRightType
                                       << QStringList{sheetOf(LeftToRightType), leftLabelSheet,
                                                      rightLabelSheet, rightBottomLabelSheet};
        QTest::newRow("top to bottom")
            << TopToBottomType
            << QStringList{sheetOf(TopToBottomType), upLabelSheet, downLabelSheet};
        QTest::newRow("cabinet") << CabinetType << QStringList{cabinetSheet};
        QTest::newRow("cabinet model") << CabinetModelType << QStringList{cabinetSheet};
        QTest::newRow("add cabinet") << AddCabinetType << QStringList{addSheet};
        QTest::newRow("activated") << ActivatedType << QStringList{activated(activatedValues)};
        QTest::newRow("not activated")
            << NoActivatedType << QStringList{notActivated(notActivatedValues)};
        QTest::newRow("default") << DefaultType << QStringList{QString()};
        QTest::newRow("no known type") << static_cast<ButtonType>(8) << QStringList{QString()};
    }

    void eachTypeHasItsLook()
    {
        QFETCH(ButtonType, type);
        QFETCH(QStringList, expected);
        QWidget parent;
        ToolButtonEx button(&parent, type, "up", "down");
        QCOMPARE(button.parentWidget(), &parent);
        QCOMPARE(button.buttonType(), type);
        QCOMPARE(sheets(button), expected);
        QCOMPARE(button.layout() != nullptr, expected.size() > 1);
        QCOMPARE(button.text(), QString());
        QCOMPARE(shownText(button), QString());
        QCOMPARE(button.toolTip(), QString());
        QVERIFY(!button.data().isValid());
        QVERIFY(!button.isCheckable());
        QVERIFY(button.isEnabled());
        QVERIFY(!button.autoFillBackground());
        QVERIFY(!isPressed(button));
        QCOMPARE(button.strUpText(), QStringLiteral("up"));
        QCOMPARE(button.strDownText(), QStringLiteral("down"));
        QCOMPARE(button.getNoActivatedLeftPadding(), 0);
        QCOMPARE(button.pLabelLeft() != nullptr, type == LeftToRightType);
        QCOMPARE(button.pLabelRight() != nullptr, type == LeftToRightType);
    }

    // Spelled out once as a host reads them, beside the composed texts of the other tests.
    void sheetsReadAsWritten()
    {
        QCOMPARE(ToolButtonEx(nullptr, TopToBottomType, "", "").styleSheet(),
                 QStringLiteral("QToolButton{background:#636363;border-radius:5;font:9pt "
                                "\"微软雅黑\" pt;}QToolButton:Pressed{background:#4291f0;}"));
        QCOMPARE(ToolButtonEx(nullptr, LeftToRightType, "", "").styleSheet(),
                 QStringLiteral("QToolButton{background:#ffffff;border-radius:0;font:12pt  "
                                "\"微软雅黑\" ;}QToolButton:Pressed{background:#ffffff;}"));
        QCOMPARE(ToolButtonEx(nullptr, ActivatedType, "", "").styleSheet(),
                 QStringLiteral("QToolButton{background:#4291f0;color:#d2d2d2;font:9pt "
                                "\"微软雅黑\" ;border-radius:5;}"
                                "QToolButton:hover{background:#486d9a;color:#d2d2d2;}"
                                "QToolButton:pressed{background:#2a4d78;color:#d2d2d2;}"
                                "QToolButton:disabled{background:#555555;color:#828282;}"));
        QCOMPARE(ToolButtonEx(nullptr, NoActivatedType, "", "").styleSheet(),
                 QStringLiteral("QToolButton{background:#636363;color:#d2d2d2;font:9pt "
                                "\"微软雅黑\" ;border-radius:5;padding-left:0px;}"
                                "QToolButton:Hover{background:#575a5c;color:#d2d2d2;}"
                                "QToolButton:Pressed{background:#353637;color:#d2d2d2;}"
                                "QToolButton:Disabled{background:#555555;color:#828282;}"));
        QCOMPARE(ToolButtonEx(nullptr, AddCabinetType, "", "").styleSheet(),
                 QStringLiteral(
                     "QToolButton{background:#3e3e3e;border-image: url(:/Resource/Images/"
                     "globalResource/addBtn/box-add_normalDouble.png);font:9pt \"微软雅黑\"  ;}"
                     "QToolButton:hover{background:#505050;border-image: url(:/Resource/Images/"
                     "globalResource/addBtn/box-add_normalDouble.png);}"
                     "QToolButton:pressed{background:#383838;border-image: url(:/Resource/Images/"
                     "globalResource/addBtn/box-add_normalDouble.png);}"
                     "QToolButton:disabled{background:#3e3e3e;border-image: url(:/Resource/Images/"
                     "globalResource/addBtn/box-add_disableDouble.png);}"));
    }

    void everyTypeHasEveryDefault()
    {
        const QList<Property> all = properties();
        for (ButtonType type : allTypes) {
            const ToolButtonEx button(nullptr, type, "up", "down");
            for (const Property &property : all)
                QVERIFY2(property.get(button) == property.initial, property.name);
        }
    }

    void settersApplyTheirLook()
    {
        const QList<Property> all = properties();
        for (const Property &property : all) {
            ToolButtonEx button(nullptr, property.look, "up", "down");
            property.set(button);
            QVERIFY2(property.get(button) == property.value, property.name);
            QVERIFY2(sheets(button) == property.sheets,
                     qPrintable(property.name + (":\n" + sheets(button).join('\n'))));
        }
    }

    void settersOfOtherLooksOnlyStore()
    {
        const QList<Property> all = properties();
        for (const Property &property : all) {
            for (ButtonType type : allTypes) {
                if (type == property.look)
                    continue;
                ToolButtonEx button(nullptr, type, "up", "down");
                const QStringList before = appearance(button);
                property.set(button);
                QVERIFY2(property.get(button) == property.value, property.name);
                QVERIFY2(appearance(button) == before,
                         qPrintable(property.name + QStringLiteral(" on type %1").arg(type)));
            }
        }
    }

    void colorOfTheUpperTextChangesNoSheetOfALeftToRightButton()
    {
        ToolButtonEx button(nullptr, LeftToRightType, "up", "down");
        button.setUpLabelTextColor(Qt::red);
        QCOMPARE(button.upLabelTextColor(), QColor(Qt::red));
        QCOMPARE(sheets(button),
                 (QStringList{sheetOf(LeftToRightType), leftLabelSheet, rightLabelSheet,
                              rightBottomLabelSheet}));
    }

    // Hosts rely on it to give any button the not-activated look.
    void leftPaddingAppliesTheNotActivatedLookToEveryType()
    {
        for (ButtonType type : allTypes) {
            ToolButtonEx button(nullptr, type, "up", "down");
            QStringList expected = sheets(button);
            button.setNoActivatedLeftPadding(8);
            QCOMPARE(button.getNoActivatedLeftPadding(), 8);
            QCOMPARE(button.buttonType(), type);
            expected[0] = notActivated(with(notActivatedValues, 9, "8"));
            QCOMPARE(sheets(button), expected);
        }
    }

    void addCabinetStyleCanBeAppliedToEveryType()
    {
        for (ButtonType type : allTypes) {
            ToolButtonEx button(nullptr, type, "up", "down");
            button.setAddCabinetStyle();
            QCOMPARE(button.styleSheet(), addSheet);
            QCOMPARE(button.buttonType(), type);
        }
    }

    void typeOnlyChangesTheLookOfTheCommands_data()
    {
        QTest::addColumn<ButtonType>("from");
        QTest::addColumn<ButtonType>("to");
        for (ButtonType from : allTypes) {
            for (ButtonType to : allTypes)
                QTest::newRow(qPrintable(QStringLiteral("%1 to %2").arg(from).arg(to)))
                    << from << to;
        }
    }

    void typeOnlyChangesTheLookOfTheCommands()
    {
        QFETCH(ButtonType, from);
        QFETCH(ButtonType, to);
        ToolButtonEx button(nullptr, from, "up", "down");
        QStringList expected = sheets(button);
        const QList<QLabel *> before = labels(button);
        const QLayout *layout = button.layout();
        button.setButtonType(to);
        QCOMPARE(button.buttonType(), to);
        if (to == ActivatedType || to == NoActivatedType)
            expected[0] = sheetOf(to);
        QCOMPARE(sheets(button), expected);
        QCOMPARE(labels(button), before);
        QCOMPARE(button.layout(), layout);
    }

    void commandTypesResetTheirProperties()
    {
        const QList<Property> all = properties();
        for (ButtonType type : {ActivatedType, NoActivatedType}) {
            ToolButtonEx button(nullptr, DefaultType, "up", "down");
            for (const Property &property : all)
                property.set(button);
            button.setNoActivatedLeftPadding(8);
            QVariantList expected;
            for (const Property &property : all)
                expected << (property.look == type ? property.initial : property.get(button));
            button.setButtonType(type);
            QCOMPARE(button.styleSheet(), sheetOf(type));
            for (int i = 0; i < all.size(); ++i)
                QVERIFY2(all.at(i).get(button) == expected.at(i), all.at(i).name);
            QCOMPARE(button.getNoActivatedLeftPadding(), type == NoActivatedType ? 0 : 8);
        }
    }

    // A button whose type was set later has no labels; its setters do what is left to do.
    void settersWorkWithoutLabels()
    {
        const QList<Property> all = properties();
        for (ButtonType type : {LeftToRightType, TopToBottomType}) {
            for (const Property &property : all) {
                if (property.look != type)
                    continue;
                ToolButtonEx button(nullptr, DefaultType, "up", "down");
                button.setButtonType(type);
                property.set(button);
                QVERIFY2(property.get(button) == property.value, property.name);
                QVERIFY(labels(button).isEmpty());
            }
        }
        ToolButtonEx button(nullptr, DefaultType, "", "");
        button.setLeftLabelStyle(":/a.png", ":/b.png");
        QCOMPARE(button.strLeftImgPathNormal(), QString());
        QCOMPARE(button.strLeftImgPathPressed(), QString());
        button.setLeftLabelImg("color: red;");
        button.setRightLabelStyle();
        button.setRightBottomLableVisible(true);
        QCOMPARE(sheets(button), QStringList{QString()});
    }

    void looksCanBeBuiltLater()
    {
        for (ButtonType type : allTypes) {
            ToolButtonEx button(nullptr, DefaultType, "up", "down");
            button.createButtonByType(type);
            QCOMPARE(button.buttonType(), DefaultType);
            const ToolButtonEx built(nullptr, type, "up", "down");
            QCOMPARE(appearance(button), appearance(built));
            // A second time there are no second labels, and Qt has no second layout to refuse.
            button.createButtonByType(type);
            button.createButtonByType(LeftToRightType);
            button.createButtonByType(TopToBottomType);
            QCOMPARE(button.styleSheet(), sheetOf(TopToBottomType));
            QVERIFY(labels(button).size() <= 3);
        }
    }

    void checkChangesTheSheetOfATopToBottomButton_data()
    {
        QTest::addColumn<bool>("checkable");
        QTest::newRow("checkable") << true;
        QTest::newRow("not checkable") << false;
    }

    void checkChangesTheSheetOfATopToBottomButton()
    {
        QFETCH(bool, checkable);
        ToolButtonEx button(nullptr, TopToBottomType, "up", "down");
        button.setCheckable(checkable);
        QCOMPARE(button.styleSheet(), sheetOf(TopToBottomType));
        const QString checkedSheet = QStringLiteral(
            "QToolButton{background:#4291f0;border-radius:5;font: 9pt \"微软雅黑\" ;}");
        const QString uncheckedSheet =
            QStringLiteral("QToolButton{background:#636363;border-radius:5;font:9pt \"微软雅黑\"  "
                           ";}QToolButton:Pressed{background:#4291f0;}");
        button.setChecked(true);
        QCOMPARE(button.isChecked(), checkable);
        QCOMPARE(sheets(button), (QStringList{checkedSheet, upLabelSheet, downLabelSheet}));
        QVERIFY(!button.styleSheet().contains("Pressed"));
        button.setChecked(false);
        QVERIFY(!button.isChecked());
        QCOMPARE(sheets(button), (QStringList{uncheckedSheet, upLabelSheet, downLabelSheet}));
        // A setter of the look composes the look's own sheet again.
        button.setChecked(true);
        button.setTopToBottomBorderRadius(6);
        QCOMPARE(button.styleSheet(), topToBottom("#636363", "#4291f0", "6"));
        button.setChecked(true);
        QCOMPARE(button.styleSheet(),
                 QStringLiteral(
                     "QToolButton{background:#4291f0;border-radius:6;font: 9pt \"微软雅黑\" ;}"));
    }

    void checkLeavesOtherSheetsAlone()
    {
        for (ButtonType type : allTypes) {
            if (type == TopToBottomType)
                continue;
            ToolButtonEx button(nullptr, type, "up", "down");
            button.setCheckable(true);
            const QStringList before = appearance(button);
            QSignalSpy toggled(&button, &QToolButton::toggled);
            button.setChecked(true);
            QVERIFY(button.isChecked());
            QCOMPARE(appearance(button), before);
            button.setChecked(false);
            QVERIFY(!button.isChecked());
            QCOMPARE(appearance(button), before);
            QCOMPARE(toggled.count(), 2);
        }
    }

    void checkedTopToBottomButtonShowsThePressedGround()
    {
        ToolButtonEx button(nullptr, TopToBottomType, "", "");
        button.setCheckable(true);
        button.resize(100, 60);
        QVERIFY(pointer::showAndWait(&button));
        QCOMPARE(pointer::colorAt(&button, QPoint(50, 30)), QColor(99, 99, 99));
        button.setChecked(true);
        QCOMPARE(pointer::colorAt(&button, QPoint(50, 30)), QColor(66, 145, 240));
        button.setChecked(false);
        QCOMPARE(pointer::colorAt(&button, QPoint(50, 30)), QColor(99, 99, 99));
    }

    void topToBottomButtonHasItsLabels()
    {
        ToolButtonEx button(nullptr, TopToBottomType, "up text", "down text");
        button.resize(120, 70);
        QVERIFY(pointer::showAndWait(&button));
        const QList<QLabel *> both = labels(button);
        QCOMPARE(both.size(), 2);
        QLabel *up = both.at(0);
        QLabel *down = both.at(1);
        QCOMPARE(up->text(), QStringLiteral("up text"));
        QCOMPARE(down->text(), QStringLiteral("down text"));
        QCOMPARE(up->alignment(), Qt::AlignHCenter | Qt::AlignBottom);
        QCOMPARE(down->alignment(), Qt::AlignHCenter | Qt::AlignTop);
        for (QLabel *label : both) {
            QVERIFY(label->testAttribute(Qt::WA_TranslucentBackground));
            QCOMPARE(label->objectName(), QString());
            QVERIFY(label->isVisible());
        }
        auto *layout = qobject_cast<QVBoxLayout *>(button.layout());
        QVERIFY(layout);
        QCOMPARE(layout->count(), 2);
        QCOMPARE(layout->itemAt(0)->widget(), up);
        QCOMPARE(layout->itemAt(1)->widget(), down);
        QCOMPARE(layout->spacing(), 0);
        QCOMPARE(layout->contentsMargins(), QMargins(5, 5, 5, 5));
        // 70 less the margins leaves 60, shared by the two.
        QCOMPARE(up->geometry(), QRect(5, 5, 110, 30));
        QCOMPARE(down->geometry(), QRect(5, 35, 110, 30));

        button.setStrUpText("other");
        button.setStrDownText("texts");
        QCOMPARE(up->text(), QStringLiteral("other"));
        QCOMPARE(down->text(), QStringLiteral("texts"));
    }

    void leftToRightButtonHasItsLabels()
    {
        ToolButtonEx button(nullptr, LeftToRightType, "up text", "down text");
        button.resize(160, 60);
        QVERIFY(pointer::showAndWait(&button));
        const QList<QLabel *> all = labels(button);
        QCOMPARE(all.size(), 3);
        QLabel *left = all.at(0);
        QLabel *rightBottom = all.at(2);
        auto *right = qobject_cast<LabelEx *>(all.at(1));
        QVERIFY(right);
        QVERIFY(!qobject_cast<LabelEx *>(left));
        QVERIFY(!qobject_cast<LabelEx *>(rightBottom));
        QCOMPARE(button.pLabelLeft(), left);
        QCOMPARE(button.pLabelRight(), right);
        for (QLabel *label : all) {
            QCOMPARE(label->text(), QString());
            QCOMPARE(label->objectName(), QString());
        }
        QVERIFY(!left->testAttribute(Qt::WA_TranslucentBackground));
        QVERIFY(right->testAttribute(Qt::WA_TranslucentBackground));
        QVERIFY(!rightBottom->testAttribute(Qt::WA_TranslucentBackground));
        QCOMPARE(left->minimumSize(), QSize(25, 25));
        QCOMPARE(left->maximumSize(), QSize(25, 25));
        QVERIFY(left->isVisible());
        QVERIFY(right->isVisible());
        QVERIFY(rightBottom->isHidden());

        auto *layout = qobject_cast<QHBoxLayout *>(button.layout());
        QVERIFY(layout);
        QCOMPARE(layout->count(), 2);
        QCOMPARE(layout->itemAt(0)->widget(), left);
        auto *texts = qobject_cast<QVBoxLayout *>(layout->itemAt(1)->layout());
        QVERIFY(texts);
        QCOMPARE(texts->count(), 2);
        QCOMPARE(texts->itemAt(0)->widget(), right);
        QCOMPARE(texts->itemAt(1)->widget(), rightBottom);
        QCOMPARE(texts->spacing(), 0);
        QCOMPARE(layout->spacing(), 5);
        QCOMPARE(layout->contentsMargins(), QMargins(0, 0, 0, 0));
        // The picture is centred in the height of 60: 17 above and 18 below it.
        QCOMPARE(left->geometry(), QRect(0, 17, 25, 25));
        QCOMPARE(right->geometry(), QRect(30, 0, 130, 60));

        button.setLeftToRightLayoutSpace(20);
        QCOMPARE(layout->spacing(), 20);
        QTRY_COMPARE(right->geometry(), QRect(45, 0, 115, 60));
        button.setRightBottomLableVisible(true);
        QVERIFY(rightBottom->isVisible());
        QTRY_COMPARE(right->height() + rightBottom->height(), 60);
        QCOMPARE(rightBottom->y(), right->height());
        QCOMPARE(rightBottom->x(), 45);
        button.setRightBottomLableVisible(false);
        QVERIFY(rightBottom->isHidden());
    }

    void rightTextsAreShown()
    {
        ToolButtonEx button(nullptr, LeftToRightType, "", "");
        button.resize(130, 50);
        QVERIFY(pointer::showAndWait(&button));
        LabelEx *right = button.pLabelRight();
        QCOMPARE(right->width(), 100);
        button.setStrRightText("x");
        QCOMPARE(right->text(), QStringLiteral("x"));
        QCOMPARE(right->QLabel::text(), QStringLiteral("x"));
        const QString tooLong(200, 'w');
        button.setStrRightText(tooLong);
        QCOMPARE(button.strRightText(), tooLong);
        QCOMPARE(right->text(), tooLong);
        QCOMPARE(right->toolTip(), tooLong);
        QCOMPARE(right->QLabel::text(),
                 QFontMetrics(right->font()).elidedText(tooLong, Qt::ElideRight, 100));
        button.setStrRightBottomText("below");
        QCOMPARE(labels(button).at(2)->text(), QStringLiteral("below"));
    }

    void leftPictureFollowsThePress()
    {
        ToolButtonEx button(nullptr, LeftToRightType, "", "");
        button.resize(160, 50);
        QVERIFY(pointer::showAndWait(&button));
        QLabel *left = button.pLabelLeft();
        const QString normal = ":/Resource/Images/globalResource/vSender/save.png";
        const QString pressed = ":/Resource/Images/globalResource/vSender/clear.png";
        button.setStrLeftImgPathNormal(normal);
        button.setStrLeftImgPathPressed(pressed);
        const QString normalSheet = "border-image: url(" + normal + ");";
        const QString pressedSheet = "border-image: url(" + pressed + ");";
        QCOMPARE(left->styleSheet(), normalSheet);
        QTest::mousePress(&button, Qt::LeftButton);
        QCOMPARE(left->styleSheet(), normalSheet); // not before the picture is set anew
        button.setLeftLabelStyle(normal, pressed);
        QCOMPARE(left->styleSheet(), pressedSheet);
        button.setLeftLabelStyle("a", "b");
        QCOMPARE(button.strLeftImgPathNormal(), QStringLiteral("a"));
        QCOMPARE(button.strLeftImgPathPressed(), QStringLiteral("b"));
        QCOMPARE(left->styleSheet(), QStringLiteral("border-image: url(b);"));
        button.setLeftLabelStyle(normal, pressed);
        QTest::mouseRelease(&button, Qt::LeftButton);
        QCOMPARE(left->styleSheet(), pressedSheet);
        button.setStrLeftImgPathPressed(pressed);
        QCOMPARE(left->styleSheet(), normalSheet);
        button.setLeftLabelImg("background: rgb(1, 2, 3);");
        QCOMPARE(left->styleSheet(), QStringLiteral("background: rgb(1, 2, 3);"));
        QCOMPARE(button.strLeftImgPathNormal(), normal);
        QCOMPARE(pointer::colorAt(left, QPoint(12, 12)), QColor(1, 2, 3));
        button.setLeftLabelImg("");
        QCOMPARE(left->styleSheet(), QString());
    }

    void labelsCanBeReplaced()
    {
        QWidget other;
        auto *left = new QLabel(&other);
        auto *right = new LabelEx(&other);
        ToolButtonEx button(nullptr, LeftToRightType, "", "");
        QLabel *ownLeft = button.pLabelLeft();
        button.setPLabelLeft(left);
        button.setPLabelRight(right);
        QCOMPARE(button.pLabelLeft(), left);
        QCOMPARE(button.pLabelRight(), right);
        QCOMPARE(left->parentWidget(), &other);
        button.setStrLeftImgPathNormal(":/a.png");
        QCOMPARE(left->styleSheet(), QStringLiteral("border-image: url(:/a.png);"));
        QCOMPARE(ownLeft->styleSheet(), leftLabelSheet);
        button.setStrRightText("x");
        QCOMPARE(right->text(), QStringLiteral("x"));
        button.setRightLabelTextNormalColor(color);
        QCOMPARE(right->styleSheet(), "font:" + biggerFont + ";color: #0102fe;");
        delete left;
        delete right;
        QVERIFY(!button.pLabelLeft());
        QVERIFY(!button.pLabelRight());
        button.setStrLeftImgPathNormal(":/b.png");
        button.setStrRightText("y");
        QCOMPARE(button.strRightText(), QStringLiteral("y"));
    }

    void rightTextFollowsThePointer()
    {
        QWidget panel;
        panel.resize(240, 120);
        ToolButtonEx button(&panel, LeftToRightType, "", "");
        button.setGeometry(40, 30, 160, 50);
        button.setStrRightText("text");
        QVERIFY(pointer::showAndWait(&panel));
        pointer::moveTo(&panel, QPoint(5, 5));
        const LabelEx *right = button.pLabelRight();
        QCOMPARE(right->styleSheet(), rightLabelSheet);
        pointer::moveTo(&button, QPoint(2, 2));
        QCOMPARE(right->styleSheet(), rightLabelPressedSheet);
        pointer::moveTo(button.pLabelRight()); // from the button onto its own label
        QCOMPARE(right->styleSheet(), rightLabelPressedSheet);
        pointer::moveTo(&panel, QPoint(5, 5));
        QCOMPARE(right->styleSheet(), rightLabelSheet);
        QCOMPARE(button.styleSheet(), sheetOf(LeftToRightType));
    }

    void actionOfAButtonFollowsThePointer()
    {
        QWidget panel;
        panel.resize(240, 120);
        ToolButtonEx button(&panel, DefaultType, "", "");
        button.setGeometry(40, 30, 160, 50);
        QAction action("text");
        button.setDefaultAction(&action);
        QVERIFY(pointer::showAndWait(&panel));
        pointer::moveTo(&panel, QPoint(5, 5));
        const QSignalSpy hovered(&action, &QAction::hovered);
        pointer::moveTo(&button);
        QCOMPARE(hovered.count(), 1);
    }

    void raisedButtonIsPaintedAnewWithThePointer()
    {
        ToolButtonEx button(nullptr, DefaultType, "", "");
        button.setAutoRaise(true);
        QVERIFY(pointer::showAndWait(&button));
        for (const QEvent::Type type : {QEvent::Enter, QEvent::Leave}) {
            const PaintCounter paints(&button);
            QEvent event(type);
            QCoreApplication::sendEvent(&button, &event);
            QTRY_VERIFY(paints.count > 0);
        }
    }

    void rightTextFollowsThePress()
    {
        QWidget panel;
        panel.resize(240, 120);
        ToolButtonEx button(&panel, LeftToRightType, "", "");
        button.setGeometry(40, 30, 160, 50);
        QVERIFY(pointer::showAndWait(&panel));
        pointer::moveTo(&panel, QPoint(5, 5));
        const LabelEx *right = button.pLabelRight();
        QTest::mousePress(&button, Qt::LeftButton);
        button.setRightLabelStyle();
        QCOMPARE(right->styleSheet(), rightLabelPressedSheet);
        button.setRightLabelTextPressedColor(color);
        QCOMPARE(right->styleSheet(), "font:" + biggerFont + ";color: #0102fe;");
        QTest::mouseRelease(&button, Qt::LeftButton);
        QCOMPARE(right->styleSheet(), rightLabelSheet);
        button.setRightLabelStyle();
        QCOMPARE(right->styleSheet(), rightLabelSheet);
        QVERIFY(!isPressed(button));
    }

    // The labels cover the button, and presses on them are presses on the button.
    void labelsLetPressesThrough()
    {
        ToolButtonEx button(nullptr, LeftToRightType, "", "");
        button.resize(160, 50);
        QVERIFY(pointer::showAndWait(&button));
        QSignalSpy clicked(&button, &QToolButton::clicked);
        for (QPoint position : {QPoint(10, 25), QPoint(100, 25)})
            QTest::mouseClick(button.windowHandle(), Qt::LeftButton, Qt::NoModifier, position);
        QCOMPARE(clicked.count(), 2);
        QVERIFY(!isPressed(button));

        ToolButtonEx combined(nullptr, TopToBottomType, "up", "down");
        combined.resize(100, 60);
        QVERIFY(pointer::showAndWait(&combined));
        QSignalSpy combinedClicked(&combined, &QToolButton::clicked);
        for (QPoint position : {QPoint(50, 15), QPoint(50, 45)})
            QTest::mouseClick(combined.windowHandle(), Qt::LeftButton, Qt::NoModifier, position);
        QCOMPARE(combinedClicked.count(), 2);
    }

    void pressIsKeptUntilItsReleaseOnlyByTheLeftToRightLook_data()
    {
        QTest::addColumn<ButtonType>("type");
        QTest::addColumn<bool>("stays");
        QTest::newRow("left to right") << LeftToRightType << false;
        QTest::newRow("top to bottom") << TopToBottomType << true;
        QTest::newRow("add cabinet") << AddCabinetType << true;
        QTest::newRow("activated") << ActivatedType << true;
        QTest::newRow("not activated") << NoActivatedType << true;
        QTest::newRow("default") << DefaultType << true;
    }

    void pressIsKeptUntilItsReleaseOnlyByTheLeftToRightLook()
    {
        QFETCH(ButtonType, type);
        QFETCH(bool, stays);
        ToolButtonEx button(nullptr, type, "", "");
        button.resize(80, 40);
        QVERIFY(pointer::showAndWait(&button));
        int reports = 0;
        connect(&button, &ToolButtonEx::notifyAddCabineModel, this, [&] { ++reports; });
        connect(&button, &ToolButtonEx::signal_notifyChangedPortInfo, this, [&] { ++reports; });
        connect(&button, &ToolButtonEx::signal_notifyAddBeenTakenCabinetModel, this,
                [&] { ++reports; });
        QTest::mouseClick(&button, Qt::RightButton);
        QVERIFY(!isPressed(button));
        QTest::mousePress(&button, Qt::LeftButton);
        QVERIFY(isPressed(button));
        QCOMPARE(reports, 1);
        QTest::mouseRelease(&button, Qt::LeftButton);
        QTest::mouseClick(&button, Qt::LeftButton);
        QCOMPARE(reports, 1);
        QCOMPARE(isPressed(button), stays);
        QCOMPARE(reports, stays ? 2 : 1);
        QVERIFY(!isPressed(button));
    }

    void textIsElidedToTheWidth_data()
    {
        QTest::addColumn<ButtonType>("type");
        QTest::addColumn<int>("spare");
        QTest::addColumn<bool>("fits");
        for (ButtonType type : allTypes) {
            const QByteArray name = "type " + QByteArray::number(type);
            QTest::newRow(name + ", one pixel to spare") << type << 1 << true;
            QTest::newRow(name + ", exactly as wide") << type << 0 << true;
            QTest::newRow(name + ", one pixel short") << type << -1 << false;
            QTest::newRow(name + ", far too long") << type << -60 << false;
        }
    }

    void textIsElidedToTheWidth()
    {
        QFETCH(ButtonType, type);
        QFETCH(int, spare);
        QFETCH(bool, fits);
        ToolButtonEx button(nullptr, type, "", "");
        button.ensurePolished();
        const QFontMetrics metrics(button.font());
        const int width = metrics.horizontalAdvance(longText) + spare;
        button.resize(width, 60);
        button.setToolTip("earlier");
        button.setText(longText);
        QCOMPARE(button.text(), longText);
        QCOMPARE(button.toolTip(), fits ? QString() : longText);
        QCOMPARE(shownText(button), metrics.elidedText(longText, Qt::ElideRight, width));
        if (spare > 0)
            QCOMPARE(shownText(button), longText);
        if (spare < 0) {
            QVERIFY2(shownText(button).endsWith(QChar(0x2026)), qPrintable(shownText(button)));
            QVERIFY(longText.startsWith(shownText(button).chopped(1)));
        }
        button.resize(600, 60);
        QCOMPARE(button.toolTip(), fits ? QString() : longText); // measured when it was set
        button.setText(longText);
        QCOMPARE(button.toolTip(), QString());
        QCOMPARE(shownText(button), longText);
    }

    void keepsTheHostsValues()
    {
        ToolButtonEx button(nullptr, DefaultType, "", "");
        button.setData(QStringList{"a", "b"});
        button.setPressEventUseful(false);
        button.setButtonType(ActivatedType);
        QCOMPARE(button.data().toStringList(), (QStringList{"a", "b"}));
        // The flag is the host's own: a button without it still answers to presses.
        QSignalSpy clicked(&button, &QToolButton::clicked);
        button.resize(80, 40);
        QVERIFY(pointer::showAndWait(&button));
        QTest::mouseClick(&button, Qt::LeftButton);
        QCOMPARE(clicked.count(), 1);
        button.setData(QVariant());
        QVERIFY(!button.data().isValid());
    }

    void colorsAreTexts()
    {
        ToolButtonEx button(nullptr, DefaultType, "", "");
        QCOMPARE(button.fromColorToStr(QColor(255, 0, 0)), QStringLiteral("#ff0000"));
        QCOMPARE(button.fromColorToStr(QColor(255, 0, 0, 128)), QStringLiteral("#80ff0000"));
        QCOMPARE(button.fromColorToStr(QColor()), QStringLiteral("#000000"));
    }

    void groundFollowsTheState_data()
    {
        QTest::addColumn<ButtonType>("type");
        QTest::addColumn<QColor>("normal");
        QTest::addColumn<QColor>("hover");
        QTest::addColumn<QColor>("pressed");
        QTest::addColumn<QColor>("disabled");
        QTest::newRow("top to bottom")
            << TopToBottomType << QColor(99, 99, 99) << QColor(99, 99, 99) << QColor(66, 145, 240)
            << QColor(99, 99, 99);
        QTest::newRow("left to right") << LeftToRightType << QColor(Qt::white) << QColor(Qt::white)
                                       << QColor(Qt::white) << QColor(Qt::white);
        QTest::newRow("activated") << ActivatedType << QColor(66, 145, 240) << QColor(72, 109, 154)
                                   << QColor(42, 77, 120) << QColor(85, 85, 85);
        QTest::newRow("not activated")
            << NoActivatedType << QColor(99, 99, 99) << QColor(87, 90, 92) << QColor(53, 54, 55)
            << QColor(85, 85, 85);
    }

    void groundFollowsTheState()
    {
        QFETCH(ButtonType, type);
        QFETCH(QColor, normal);
        QFETCH(QColor, hover);
        QFETCH(QColor, pressed);
        QFETCH(QColor, disabled);
        QWidget panel;
        panel.resize(240, 120);
        ToolButtonEx button(&panel, type, "", "");
        button.setGeometry(40, 30, 120, 50);
        const QPoint inside(60, 4);
        QVERIFY(pointer::showAndWait(&panel));
        pointer::moveTo(&panel, QPoint(5, 5));
        QCOMPARE(pointer::colorAt(&button, inside), normal);
        pointer::moveTo(&button);
        QCOMPARE(pointer::colorAt(&button, inside), hover);
        QTest::mousePress(&button, Qt::LeftButton);
        QCOMPARE(pointer::colorAt(&button, inside), pressed);
        QTest::mouseRelease(&button, Qt::LeftButton);
        QCOMPARE(pointer::colorAt(&button, inside), hover);
        pointer::moveTo(&panel, QPoint(5, 5));
        QCOMPARE(pointer::colorAt(&button, inside), normal);
        button.setEnabled(false);
        QCOMPARE(pointer::colorAt(&button, inside), disabled);
    }

    void labelsShowTheirColors()
    {
        // The text is a run of full blocks, so that its colour fills pixels.
        const QString blocks(13, QChar(0x2588));
        ToolButtonEx button(nullptr, TopToBottomType, blocks, blocks);
        button.setUpLabelTextColor(QColor(255, 0, 0));
        button.setDownLabelTextColor(QColor(0, 255, 0));
        button.resize(120, 60);
        QVERIFY(pointer::showAndWait(&button));
        QCOMPARE(pointer::colorAt(&button, QPoint(60, 24)), QColor(255, 0, 0));
        QCOMPARE(pointer::colorAt(&button, QPoint(60, 36)), QColor(0, 255, 0));
        button.setUpLabelTextColor(QColor(0, 0, 255));
        QCOMPARE(pointer::colorAt(&button, QPoint(60, 24)), QColor(0, 0, 255));
    }

    void addCabinetButtonShowsItsPicture()
    {
        const QString directory = ":/Resource/Images/globalResource/addBtn/";
        const QImage normal(directory + "box-add_normalDouble.png");
        const QImage disabled(directory + "box-add_disableDouble.png");
        QVERIFY(!normal.isNull());
        QVERIFY(!disabled.isNull());
        ToolButtonEx button(nullptr, AddCabinetType, "", "");
        button.resize(normal.size());
        QVERIFY(pointer::showAndWait(&button));
        const QImage enabledLook = button.grab().toImage();
        button.setEnabled(false);
        const QImage disabledLook = button.grab().toImage();
        QVERIFY(enabledLook != disabledLook);
        // The picture's opaque pixels are the button's.
        int compared = 0;
        for (int y = 0; y < normal.height(); ++y) {
            for (int x = 0; x < normal.width(); ++x) {
                if (normal.pixelColor(x, y).alpha() == 255) {
                    QCOMPARE(enabledLook.pixelColor(x, y), normal.pixelColor(x, y));
                    ++compared;
                }
                if (disabled.pixelColor(x, y).alpha() == 255)
                    QCOMPARE(disabledLook.pixelColor(x, y), disabled.pixelColor(x, y));
            }
        }
        QVERIFY(compared > 10);
    }

    void everyTypeIsPaintedWithoutAWarning()
    {
        for (ButtonType type : allTypes) {
            ToolButtonEx button(nullptr, type, "up", "down");
            button.resize(80, 60);
            button.setText("text");
            QVERIFY(pointer::showAndWait(&button));
            QVERIFY(!button.grab().isNull());
            button.setNoActivatedLeftPadding(3);
            QVERIFY(!button.grab().isNull());
        }
    }

    void addsThreeSignalsToTheMetaObject()
    {
        const QMetaObject &meta = ToolButtonEx::staticMetaObject;
        QList<QByteArray> methods;
        for (int i = meta.methodOffset(); i < meta.methodCount(); ++i) {
            QCOMPARE(meta.method(i).methodType(), QMetaMethod::Signal);
            methods << meta.method(i).methodSignature();
        }
        QCOMPARE(methods,
                 (QList<QByteArray>{"notifyAddCabineModel(QSize,QString,QString,int,int,int,float,"
                                    "float,int,QString)",
                                    "signal_notifyAddBeenTakenCabinetModel(StructCabinet)",
                                    "signal_notifyChangedPortInfo(StructCabinet)"}));
        QCOMPARE(meta.propertyOffset(), meta.propertyCount());
        QCOMPARE(QByteArray(meta.superClass()->className()), QByteArray("QToolButton"));
    }

    void canBeDeletedInItsOwnSignals_data()
    {
        QTest::addColumn<ButtonType>("type");
        for (ButtonType type : allTypes)
            QTest::newRow(qPrintable(QStringLiteral("type %1").arg(type))) << type;
    }

    void canBeDeletedInItsOwnSignals()
    {
        QFETCH(ButtonType, type);
        using Act = std::function<void(ToolButtonEx &)>;
        const QList<QPair<void (QAbstractButton::*)(), Act>> acts = {
            {&QAbstractButton::pressed,
             [](ToolButtonEx &b) { QTest::mousePress(&b, Qt::LeftButton); }},
            {&QAbstractButton::released,
             [](ToolButtonEx &b) { QTest::mouseClick(&b, Qt::LeftButton); }},
        };
        for (const auto &act : acts) {
            auto *button = new ToolButtonEx(nullptr, type, "", "");
            const QPointer<ToolButtonEx> guard(button);
            button->resize(80, 40);
            QVERIFY(pointer::showAndWait(button));
            connect(button, act.first, button, [button] { delete button; });
            act.second(*button);
            QVERIFY(guard.isNull());
        }
        auto *clickedButton = new ToolButtonEx(nullptr, type, "", "");
        QPointer<ToolButtonEx> guard(clickedButton);
        clickedButton->resize(80, 40);
        QVERIFY(pointer::showAndWait(clickedButton));
        connect(clickedButton, &QToolButton::clicked, clickedButton,
                [clickedButton] { delete clickedButton; });
        QTest::mouseClick(clickedButton, Qt::LeftButton);
        QVERIFY(guard.isNull());
    }

    void livesAndDiesWithAndWithoutParents()
    {
        for (ButtonType type : allTypes) {
            auto *parent = new QWidget;
            const QPointer<ToolButtonEx> child = new ToolButtonEx(parent, type, "up", "down");
            delete parent;
            QVERIFY(child.isNull());
            QWidget host;
            const QPointer<ToolButtonEx> early = new ToolButtonEx(&host, type, "up", "down");
            QVERIFY(pointer::showAndWait(&host));
            delete early.data();
            QVERIFY(host.children().isEmpty());
        }
    }
};

ORVANE_TEST_MAIN(TestToolButtonEx)
#include "tst_toolbuttonex.moc"
