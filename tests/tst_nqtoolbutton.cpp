#include "support/pointer.h"
#include "support/spaciousstyle.h"
#include "support/testcase.h"

#include <nqtoolbutton.h>

#include <limits>

namespace
{

const QString captioned =
    QStringLiteral("QToolButton{background:#454545;border-radius:5px;font:9pt \"微软雅黑\" pt;}"
                   "QToolButton:hover{background:#404040;border:1px solid #5d5d5d;}"
                   "QToolButton:checked{background:#262626;border:1px solid #666666;}"
                   "QToolButton:Pressed{background:#262626;border:1px solid #666666;}"
                   "QToolButton:disabled{background:#454545;}");

const QString sideBySide =
    QStringLiteral("QToolButton{background:#545454;border-radius:5px;font:9pt \"微软雅黑\" pt;}"
                   "QToolButton:hover{background:#454545;}"
                   "QToolButton:Pressed{background:#262626;}"
                   "QToolButton:disabled{background:#3b3b3b;}");

const QString enabledCaption = QStringLiteral("color:#d3d3d3;font:SimSun Arial;");
const QString disabledCaption = QStringLiteral("color:#a7a7a7;font:SimSun Arial;");

const QString dots = QStringLiteral("...");

/// The labels in their order: picture and caption, or right and left picture.
QList<QLabel *> labels(const NQToolButton &button)
{
    return button.findChildren<QLabel *>(QString(), Qt::FindDirectChildrenOnly);
}

QLabel *picture(const NQToolButton &button)
{
    return labels(button).value(0);
}

QLabel *caption(const NQToolButton &button)
{
    return labels(button).value(1);
}

int textWidth(const QWidget *widget, const QString &text)
{
    return QFontMetrics(widget->font()).horizontalAdvance(text);
}

/// A caption font in which every character is as wide as the next would make widths easy; there may
/// be none, so a text of a width is put together from characters.
QString textOfWidth(const QWidget *widget, int width)
{
    for (int wide = width; wide >= 0; --wide) {
        for (int narrow = 0; narrow <= width; ++narrow) {
            const QString text = QString(wide, 'm') + QString(narrow, 'i');
            const int found = textWidth(widget, text);
            if (found == width)
                return text;
            if (found > width)
                break;
        }
    }
    return QString();
}

/// A shown text's width is only settled once its label has its sheet's font.
struct Captioned {
    Captioned()
    {
        button.resize(100, 80);
        caption(button)->ensurePolished();
    }
    NQToolButton button{nullptr, ImageAboveCaption};
};

} // namespace

using ColorSetter = void (NQToolButton::*)(const QColor &);
using ColorGetter = QColor (NQToolButton::*)() const;
Q_DECLARE_METATYPE(ColorSetter)
Q_DECLARE_METATYPE(ColorGetter)

class TestNQToolButton : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void kindsHaveTheirValues()
    {
        QCOMPARE(int(ImageAboveCaption), 0);
        QCOMPARE(int(ImageBesideImage), 1);
    }

    void imageAboveCaptionIsBuilt()
    {
        const NQToolButton button(nullptr, ImageAboveCaption);
        QVERIFY(!button.autoFillBackground());
        QCOMPARE(button.styleSheet(), captioned);
        QCOMPARE(button.minimumSize(), QSize(50, 70));
        QCOMPARE(labels(button).size(), 2);
        QCOMPARE(picture(button)->alignment(), Qt::AlignHCenter | Qt::AlignBottom);
        QCOMPARE(picture(button)->minimumSize(), QSize(50, 42));
        QCOMPARE(picture(button)->maximumSize(), QSize(50, 42));
        QCOMPARE(picture(button)->styleSheet(), QString());
        QCOMPARE(caption(button)->alignment(), Qt::Alignment(Qt::AlignCenter));
        QVERIFY(caption(button)->testAttribute(Qt::WA_TranslucentBackground));
        QCOMPARE(caption(button)->minimumHeight(), 14);
        QCOMPARE(caption(button)->maximumHeight(), 14);
        QCOMPARE(caption(button)->styleSheet(), enabledCaption);
        QCOMPARE(button.getLabelRight(), nullptr);

        const auto *column = qobject_cast<QVBoxLayout *>(button.layout());
        QVERIFY(column);
        QCOMPARE(column->spacing(), 6);
        QCOMPARE(column->contentsMargins(), QMargins(0, 3, 0, 7));
        QCOMPARE(column->count(), 2);
        for (int i = 0; i < 2; ++i) {
            auto *row = qobject_cast<QHBoxLayout *>(column->itemAt(i)->layout());
            QVERIFY(row);
            QCOMPARE(row->spacing(), 0);
            QCOMPARE(row->contentsMargins(), QMargins());
            QCOMPARE(row->count(), 3);
            QVERIFY(row->itemAt(0)->spacerItem());
            QCOMPARE(row->itemAt(1)->widget(), labels(button).at(i));
            QVERIFY(row->itemAt(2)->spacerItem());
        }
    }

    void imageBesideImageIsBuilt()
    {
        const NQToolButton button(nullptr, ImageBesideImage);
        QVERIFY(!button.autoFillBackground());
        QCOMPARE(button.styleSheet(), sideBySide);
        QCOMPARE(button.minimumSize(), QSize(0, 0));
        QCOMPARE(labels(button).size(), 2);
        QLabel *right = labels(button).at(0);
        QLabel *left = labels(button).at(1);
        QCOMPARE(button.getLabelRight(), right);
        QCOMPARE(right->alignment(), Qt::Alignment(Qt::AlignCenter));
        QCOMPARE(left->alignment(), Qt::Alignment(Qt::AlignCenter));
        auto *row = qobject_cast<QHBoxLayout *>(button.layout());
        QVERIFY(row);
        QCOMPARE(row->spacing(), 0);
        QCOMPARE(row->contentsMargins(), QMargins());
        QCOMPARE(row->count(), 2);
        QCOMPARE(row->itemAt(0)->widget(), left);
        QCOMPARE(row->itemAt(1)->widget(), right);
    }

    void keepsItsDistancesUnderAnyStyle()
    {
        SpaciousStyle style;
        NQToolButton button(nullptr, ImageAboveCaption);
        button.setStyle(&style);
        QCOMPARE(button.layout()->spacing(), 6);
        QCOMPARE(button.layout()->contentsMargins(), QMargins(0, 3, 0, 7));
        NQToolButton pictures(nullptr, ImageBesideImage);
        pictures.setStyle(&style);
        QCOMPARE(pictures.layout()->spacing(), 0);
        QCOMPARE(pictures.layout()->contentsMargins(), QMargins());
    }

    void otherKindsBuildNothing_data()
    {
        QTest::addColumn<int>("kind");
        QTest::newRow("2") << 2;
        QTest::newRow("negative") << -1;
        QTest::newRow("very large") << std::numeric_limits<int>::max();
    }

    void otherKindsBuildNothing()
    {
        QFETCH(int, kind);
        NQToolButton button(nullptr, static_cast<ToolButtonType>(kind));
        QCOMPARE(button.styleSheet(), QString());
        QVERIFY(!button.layout());
        QVERIFY(labels(button).isEmpty());
        QCOMPARE(button.minimumSize(), QSize(0, 0));
        QVERIFY(!button.topToBottomNormalBtnColor().isValid());
        QCOMPARE(button.topToBottomBorderRadius(), 5);

        button.setStrDownText("caption");
        QCOMPARE(button.strDownText(), QString("caption"));
        button.setUpLabelImg("a", "b");
        button.setLeftLabelImg("a");
        button.setRightLabelImg("a");
        button.setUpLabelSize(1, 1);
        button.setDownLabelSize(1, 1);
        button.setDownLabelHeight(1);
        button.setDownLabelTextColor(Qt::red);
        button.setTopToBottomBorderRadius(9);
        button.setTopToBottomBtnVlayoutSpace(1);
        button.setTopToBottomBtnVlayoutMargins(1, 1, 1, 1);
        button.setLabelRightIsVisible(true);
        button.setBtnEnabled(false);
        QVERIFY(!button.isEnabled());
        QCOMPARE(button.styleSheet(), QString());
        QCOMPARE(button.topToBottomBorderRadius(), 9);
    }

    void colorsHaveDefaults_data()
    {
        QTest::addColumn<int>("kind");
        QTest::addColumn<bool>("isSet");
        QTest::newRow("image above caption") << 0 << true;
        QTest::newRow("image beside image") << 1 << false;
    }

    void colorsHaveDefaults()
    {
        QFETCH(int, kind);
        QFETCH(bool, isSet);
        const NQToolButton button(nullptr, static_cast<ToolButtonType>(kind));
        const auto expected = [isSet](int grey) {
            return isSet ? QColor(grey, grey, grey) : QColor();
        };
        QCOMPARE(button.downLabelTextColor(), expected(211));
        QCOMPARE(button.topToBottomNormalBtnColor(), expected(69));
        QCOMPARE(button.topToBottomHoverBtnColor(), expected(64));
        QCOMPARE(button.topToBottomPressedBtnColor(), expected(38));
        QCOMPARE(button.topToBottomDisabledBtnColor(), expected(69));
        QCOMPARE(button.topToBottomHoverBtnBorderColor(), expected(93));
        QCOMPARE(button.topToBottomPressedBtnBorderColor(), expected(102));
        QCOMPARE(button.topToBottomBorderRadius(), 5);
    }

    void colorSettersRecompose_data()
    {
        using Set = ColorSetter;
        using Get = ColorGetter;
        QTest::addColumn<Set>("set");
        QTest::addColumn<Get>("get");
        QTest::addColumn<QString>("sheet");
        using B = NQToolButton;
        const QString begin = "QToolButton{background:#454545;border-radius:5px;font:9pt "
                              "\"微软雅黑\" pt;}";
        const QString hover = "QToolButton:hover{background:#404040;border:1px solid #5d5d5d;}";
        const QString checked = "QToolButton:checked{background:#262626;border:1px solid #666666;}";
        const QString pressed = "QToolButton:Pressed{background:#262626;border:1px solid #666666;}";
        const QString disabled = "QToolButton:disabled{background:#454545;}";
        QTest::newRow("normal") << Set(&B::setTopToBottomNormalBtnColor)
                                << Get(&B::topToBottomNormalBtnColor)
                                << "QToolButton{background:#80010203;border-radius:5px;font:9pt "
                                   "\"微软雅黑\" pt;}"
                + hover + checked + pressed + disabled;
        QTest::newRow("hover") << Set(&B::setTopToBottomHoverBtnColor)
                               << Get(&B::topToBottomHoverBtnColor)
                               << begin
                + "QToolButton:hover{background:#80010203;border:1px solid #5d5d5d;}" + checked
                + pressed + disabled;
        QTest::newRow("pressed") << Set(&B::setTopToBottomPressedBtnColor)
                                 << Get(&B::topToBottomPressedBtnColor)
                                 << begin + hover
                + "QToolButton:checked{background:#80010203;border:1px solid #666666;}"
                  "QToolButton:Pressed{background:#80010203;border:1px solid #666666;}"
                + disabled;
        QTest::newRow("disabled") << Set(&B::setTopToBottomDisabledBtnColor)
                                  << Get(&B::topToBottomDisabledBtnColor)
                                  << begin + hover + checked + pressed
                + "QToolButton:disabled{background:#80010203;}";
        QTest::newRow("hover border")
            << Set(&B::setTopToBottomHoverBtnBorderColor) << Get(&B::topToBottomHoverBtnBorderColor)
            << begin + "QToolButton:hover{background:#404040;border:1px solid #80010203;}" + checked
                + pressed + disabled;
        QTest::newRow("pressed border") << Set(&B::setTopToBottomPressedBtnBorderColor)
                                        << Get(&B::topToBottomPressedBtnBorderColor)
                                        << begin + hover
                + "QToolButton:checked{background:#262626;border:1px solid #80010203;}"
                  "QToolButton:Pressed{background:#262626;border:1px solid #80010203;}"
                + disabled;
    }

    void colorSettersRecompose()
    {
        QFETCH(ColorSetter, set);
        QFETCH(ColorGetter, get);
        QFETCH(QString, sheet);
        NQToolButton button(nullptr, ImageAboveCaption);
        const QColor color(1, 2, 3, 128);
        (button.*set)(color);
        QCOMPARE((button.*get)(), color);
        QCOMPARE(button.styleSheet(), sheet);
    }

    // The colours of the first arrangement go into its sheet whatever the arrangement is.
    void colorSettersRecomposeTwoPicturesToo()
    {
        NQToolButton button(nullptr, ImageBesideImage);
        button.setTopToBottomNormalBtnColor(Qt::red);
        QCOMPARE(button.styleSheet(),
                 QString("QToolButton{background:#ff0000;border-radius:5px;font:9pt \"微软雅黑\" "
                         "pt;}"
                         "QToolButton:hover{background:#000000;border:1px solid #000000;}"
                         "QToolButton:checked{background:#000000;border:1px solid #000000;}"
                         "QToolButton:Pressed{background:#000000;border:1px solid #000000;}"
                         "QToolButton:disabled{background:#000000;}"));
    }

    void radiusRecomposes()
    {
        NQToolButton button(nullptr, ImageAboveCaption);
        button.setTopToBottomBorderRadius(-3);
        QCOMPARE(button.topToBottomBorderRadius(), -3);
        QCOMPARE(button.styleSheet(),
                 QString(captioned).replace("border-radius:5px", "border-radius:-3px"));

        NQToolButton pictures(nullptr, ImageBesideImage);
        pictures.setTopToBottomBorderRadius(8);
        QCOMPARE(pictures.topToBottomBorderRadius(), 8);
        QCOMPARE(pictures.styleSheet(), sideBySide);
    }

    void captionColorIsApplied()
    {
        NQToolButton button(nullptr, ImageAboveCaption);
        button.setDownLabelTextColor(QColor(255, 0, 0, 128));
        QCOMPARE(button.downLabelTextColor(), QColor(255, 0, 0, 128));
        QCOMPARE(caption(button)->styleSheet(), QString("color:#80ff0000;font:SimSun Arial;"));
        QCOMPARE(button.styleSheet(), captioned);
    }

    void picturesFollowTheEnabledState()
    {
        NQToolButton button(nullptr, ImageAboveCaption);
        button.setUpLabelImg(":/normal.png", ":/disabled.png");
        QCOMPARE(picture(button)->styleSheet(), QString("border-image: url(:/normal.png);"));
        QCOMPARE(caption(button)->styleSheet(), enabledCaption);
        button.setBtnEnabled(false);
        QVERIFY(!button.isEnabled());
        QCOMPARE(picture(button)->styleSheet(), QString("border-image: url(:/disabled.png);"));
        QCOMPARE(caption(button)->styleSheet(), disabledCaption);
        button.setDownLabelTextColor(Qt::red);
        QCOMPARE(caption(button)->styleSheet(), QString("color:#ff0000;font:SimSun Arial;"));
        button.setBtnEnabled(true);
        QVERIFY(button.isEnabled());
        QCOMPARE(picture(button)->styleSheet(), QString("border-image: url(:/normal.png);"));
        QCOMPARE(caption(button)->styleSheet(), QString("color:#ff0000;font:SimSun Arial;"));
    }

    void setEnabledAloneChangesNoPicture()
    {
        NQToolButton button(nullptr, ImageAboveCaption);
        button.setUpLabelImg(":/normal.png", ":/disabled.png");
        button.setEnabled(false);
        QCOMPARE(picture(button)->styleSheet(), QString("border-image: url(:/normal.png);"));
        button.setUpLabelImg(":/1.png", ":/2.png");
        QCOMPARE(picture(button)->styleSheet(), QString("border-image: url(:/2.png);"));
        QCOMPARE(caption(button)->styleSheet(), disabledCaption);
    }

    void twoPicturesHaveNoUpperOne()
    {
        NQToolButton button(nullptr, ImageBesideImage);
        button.setUpLabelImg(":/normal.png", ":/disabled.png");
        for (const QLabel *label : labels(button))
            QCOMPARE(label->styleSheet(), QString());
        button.setBtnEnabled(false);
        QVERIFY(!button.isEnabled());
        for (const QLabel *label : labels(button))
            QCOMPARE(label->styleSheet(), QString());
        button.setDownLabelTextColor(Qt::red);
        QCOMPARE(button.downLabelTextColor(), QColor(Qt::red));
        button.setUpLabelSize(9, 9);
        button.setDownLabelSize(9, 9);
        button.setDownLabelHeight(9);
        for (const QLabel *label : labels(button)) {
            QCOMPARE(label->styleSheet(), QString());
            QVERIFY(label->maximumHeight() > 9);
        }
        button.setTopToBottomBtnVlayoutSpace(9);
        button.setTopToBottomBtnVlayoutMargins(9, 9, 9, 9);
        QCOMPARE(button.layout()->spacing(), 0);
        QCOMPARE(button.layout()->contentsMargins(), QMargins());
    }

    void leftAndRightPicturesAreSet()
    {
        NQToolButton button(nullptr, ImageBesideImage);
        button.setLeftLabelImg(":/left.png");
        button.setRightLabelImg(":/right.png");
        QCOMPARE(labels(button).at(1)->styleSheet(), QString("border-image: url(:/left.png);"));
        QCOMPARE(button.getLabelRight()->styleSheet(), QString("border-image: url(:/right.png);"));
        button.setLabelRightIsVisible(false);
        QVERIFY(button.getLabelRight()->isHidden());
        QVERIFY(!labels(button).at(1)->isHidden());
        button.setLabelRightIsVisible(true);
        QVERIFY(!button.getLabelRight()->isHidden());
    }

    void captionHasNoLeftAndRightPicture()
    {
        NQToolButton button(nullptr, ImageAboveCaption);
        button.setLeftLabelImg(":/left.png");
        button.setRightLabelImg(":/right.png");
        button.setLabelRightIsVisible(false);
        QCOMPARE(picture(button)->styleSheet(), QString());
        QCOMPARE(caption(button)->styleSheet(), enabledCaption);
        QVERIFY(!picture(button)->isHidden());
    }

    void rightPictureMayBeDeleted()
    {
        NQToolButton button(nullptr, ImageBesideImage);
        delete button.getLabelRight();
        QCOMPARE(button.getLabelRight(), nullptr);
        button.setLabelRightIsVisible(true);
        button.setRightLabelImg(":/right.png");
    }

    void labelsTakeTheirSizes()
    {
        NQToolButton button(nullptr, ImageAboveCaption);
        button.setUpLabelSize(31, 32);
        QCOMPARE(picture(button)->size(), QSize(31, 32));
        QCOMPARE(picture(button)->maximumSize(), QSize(31, 32));
        button.setDownLabelSize(61, 17);
        QCOMPARE(caption(button)->size(), QSize(61, 17));
        QCOMPARE(caption(button)->maximumSize(), QSize(61, 17));
        button.setDownLabelHeight(19);
        QCOMPARE(caption(button)->size(), QSize(61, 19));
        QCOMPARE(caption(button)->minimumHeight(), 19);
        QCOMPARE(caption(button)->maximumHeight(), 19);
    }

    void layoutTakesSpaceAndMargins()
    {
        NQToolButton button(nullptr, ImageAboveCaption);
        button.setTopToBottomBtnVlayoutSpace(11);
        button.setTopToBottomBtnVlayoutMargins(1, 2, 3, 4);
        QCOMPARE(button.layout()->spacing(), 11);
        QCOMPARE(button.layout()->contentsMargins(), QMargins(1, 2, 3, 4));
    }

    void captionSetsTheWidth_data()
    {
        QTest::addColumn<int>("textWidthWanted");
        QTest::addColumn<int>("buttonWidth");
        QTest::newRow("30") << 30 << 60;
        QTest::newRow("49") << 49 << 60;
        QTest::newRow("50, the minimum") << 50 << 60;
        QTest::newRow("51") << 51 << 61;
        QTest::newRow("70") << 70 << 80;
        QTest::newRow("84, the maximum") << 84 << 94;
        QTest::newRow("85, too wide") << 85 << 94;
        QTest::newRow("200, too wide") << 200 << 94;
    }

    void captionSetsTheWidth()
    {
        QFETCH(int, textWidthWanted);
        QFETCH(int, buttonWidth);
        Captioned made;
        const QString text = textOfWidth(caption(made.button), textWidthWanted);
        QCOMPARE(textWidth(caption(made.button), text), textWidthWanted);
        made.button.setToolTip("the host's");
        made.button.setStrDownText(text);
        QCOMPARE(made.button.minimumSize(), QSize(buttonWidth, 80));
        QCOMPARE(made.button.maximumSize(), QSize(buttonWidth, 80));
        QCOMPARE(caption(made.button)->text(), made.button.strDownText());
        if (textWidthWanted < 50) {
            QCOMPARE(made.button.toolTip(), QString());
            QCOMPARE(made.button.strDownText(), text);
        } else if (textWidthWanted <= 84) {
            QCOMPARE(made.button.toolTip(), QString("the host's"));
            QCOMPARE(made.button.strDownText(), text);
        } else {
            QCOMPARE(made.button.toolTip(), text);
            const QString cut = made.button.strDownText();
            QVERIFY2(cut.endsWith(dots), qPrintable(cut));
            // What is left, with the two characters that made room, is the longest that fits.
            const int kept = cut.size() - dots.size();
            QCOMPARE(cut.left(kept), text.left(kept));
            QVERIFY(textWidth(caption(made.button), text.left(kept + 2)) <= 84);
            QVERIFY(textWidth(caption(made.button), text.left(kept + 3)) > 84);
        }
    }

    void emptyCaptionIsNarrow()
    {
        Captioned made;
        made.button.setStrDownText(QString());
        QCOMPARE(made.button.width(), 60);
        QCOMPARE(made.button.strDownText(), QString());
        QCOMPARE(made.button.toolTip(), QString());
    }

    void limitsAndPaddingAreForTheNextCaption()
    {
        Captioned made;
        made.button.setStrDownText("i");
        QCOMPARE(made.button.width(), 60);
        made.button.setTopToBottomBtnMinWidth(40);
        made.button.setTopToBottomBtnMaxWidth(60);
        made.button.setTopToBottomBtnBorderWidth(2);
        QCOMPARE(made.button.width(), 60);
        QCOMPARE(made.button.styleSheet(), captioned); // the padding is not the border's width
        made.button.setStrDownText("i");
        QCOMPARE(made.button.width(), 44);
        made.button.setStrDownText(textOfWidth(caption(made.button), 55));
        QCOMPARE(made.button.width(), 59);
        made.button.setStrDownText(textOfWidth(caption(made.button), 61));
        QCOMPARE(made.button.width(), 64);
        QVERIFY(made.button.strDownText().endsWith(dots));
    }

    // The caption shown before its button was is measured in the font that it is shown in.
    void captionIsMeasuredInItsOwnFont()
    {
        NQToolButton button(nullptr, ImageAboveCaption);
        button.resize(60, 80);
        const QString text = "Caption 12";
        button.setStrDownText(text);
        const int width = button.width();
        QVERIFY(pointer::showAndWait(&button));
        const int textWide = textWidth(caption(button), text);
        QVERIFY(textWide >= 50 && textWide <= 84);
        QCOMPARE(width, textWide + 10);
    }

    void captionHasItsFontFromTheStart()
    {
        NQToolButton button(nullptr, ImageAboveCaption);
        const QFont before = caption(button)->font();
        button.setStrDownText("Caption 12");
        QCOMPARE(caption(button)->font(), before);
        QVERIFY(pointer::showAndWait(&button));
        QCOMPARE(caption(button)->font(), before);
    }

    void oddCaptionsAreHarmless_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<int>("minimum");
        QTest::addColumn<int>("maximum");
        QTest::addColumn<int>("padding");
        QTest::addColumn<QString>("expected");
        QTest::addColumn<int>("width");
        const int huge = std::numeric_limits<int>::max();
        const int tiny = std::numeric_limits<int>::min();
        QTest::newRow("room for nothing") << "caption" << 0 << 0 << 5 << "..." << 10;
        QTest::newRow("room for one") << "mmmmm" << 0 << 14 << 5 << "..." << 24;
        QTest::newRow("negative maximum") << "caption" << -9 << -8 << 5 << "..." << 2;
        QTest::newRow("no text, negative") << "" << -9 << -8 << 2 << "..." << 0;
        QTest::newRow("negative padding") << "i" << 50 << 84 << -40 << "i" << 0;
        QTest::newRow("huge padding") << "i" << 50 << 84 << huge << "i" << QWIDGETSIZE_MAX;
        QTest::newRow("tiny padding") << "i" << 50 << 84 << tiny << "i" << 0;
        QTest::newRow("huge minimum") << "i" << huge << huge << huge << "i" << QWIDGETSIZE_MAX;
        QTest::newRow("tiny maximum") << "caption" << tiny << tiny << 0 << "..." << 0;
    }

    void oddCaptionsAreHarmless()
    {
        QFETCH(QString, text);
        QFETCH(int, minimum);
        QFETCH(int, maximum);
        QFETCH(int, padding);
        QFETCH(QString, expected);
        QFETCH(int, width);
        Captioned made;
        made.button.setTopToBottomBtnMinWidth(minimum);
        made.button.setTopToBottomBtnMaxWidth(maximum);
        made.button.setTopToBottomBtnBorderWidth(padding);
        made.button.setStrDownText(text);
        QCOMPARE(made.button.strDownText(), expected);
        QCOMPARE(made.button.width(), width);
    }

    void veryLongCaptionIsCutInTime()
    {
        Captioned made;
        const QString text(100000, 'w');
        QElapsedTimer timer;
        timer.start();
        made.button.setStrDownText(text);
        QVERIFY2(timer.elapsed() < 5000, qPrintable(QString::number(timer.elapsed())));
        QCOMPARE(made.button.width(), 94);
        const QString cut = made.button.strDownText();
        QVERIFY(cut.endsWith(dots));
        const int kept = cut.size() - dots.size();
        QVERIFY(textWidth(caption(made.button), text.left(kept + 2)) <= 84);
        QVERIFY(textWidth(caption(made.button), text.left(kept + 3)) > 84);
    }

    void cutLeavesNoHalfCharacter()
    {
        Captioned made;
        bool wasCutInACharacter = false;
        for (int before = 0; before < 8; ++before) {
            const QString text = QString(before, 'i') + QString::fromUtf8("🖥i").repeated(30);
            made.button.setStrDownText(text);
            int kept = text.size();
            while (textWidth(caption(made.button), text.left(kept)) > 84)
                --kept;
            kept -= 2;
            if (text.at(kept - 1).isHighSurrogate()) {
                wasCutInACharacter = true;
                --kept;
            }
            QCOMPARE(made.button.strDownText(), text.left(kept) + dots);
        }
        QVERIFY(wasCutInACharacter);
    }

    void captionOfTwoPicturesIsOnlyStored()
    {
        NQToolButton button(nullptr, ImageBesideImage);
        button.resize(100, 30);
        button.setToolTip("the host's");
        const QString text(100, 'w');
        button.setStrDownText(text);
        QCOMPARE(button.strDownText(), text);
        QCOMPARE(button.toolTip(), QString("the host's"));
        QCOMPARE(button.minimumSize(), QSize(0, 0));
        QCOMPARE(button.size(), QSize(100, 30));
    }

    void textIsElidedToTheWidth_data()
    {
        QTest::addColumn<int>("kind");
        QTest::addColumn<int>("spare");
        for (int kind = 0; kind < 3; ++kind) {
            for (const int spare : {1, 0, -1, -40})
                QTest::addRow("kind %d, %d to spare", kind, spare) << kind << spare;
        }
    }

    void textIsElidedToTheWidth()
    {
        QFETCH(int, kind);
        QFETCH(int, spare);
        const QString text = "A text of some length";
        NQToolButton button(nullptr, static_cast<ToolButtonType>(kind));
        button.ensurePolished();
        const QFontMetrics metrics(button.font());
        const int width = metrics.horizontalAdvance(text) + spare;
        button.resize(width, 80);
        button.setText(text);
        QCOMPARE(button.text(), text);
        QCOMPARE(button.toolTip(), spare >= 0 ? QString() : text);
        QCOMPARE(button.QToolButton::text(), metrics.elidedText(text, Qt::ElideRight, width));
        if (spare != 0) // Qt itself elides a text that is just as wide
            QCOMPARE(button.QToolButton::text() == text, spare > 0);
        button.setText("A");
        QCOMPARE(button.toolTip(), QString());
        QCOMPARE(button.QToolButton::text(), QString("A"));
        QCOMPARE(button.text(), QString("A"));
    }

    void kindCanBeBuiltAgain()
    {
        NQToolButton button(nullptr, ImageAboveCaption);
        button.setTopToBottomNormalBtnColor(Qt::red);
        button.setDownLabelTextColor(Qt::red);
        button.createButtonByType(ImageAboveCaption);
        QCOMPARE(button.styleSheet(), captioned);
        QCOMPARE(button.downLabelTextColor(), QColor(211, 211, 211));
        QCOMPARE(caption(button)->styleSheet(), enabledCaption);
        QCOMPARE(labels(button).size(), 2);

        button.createButtonByType(ImageBesideImage);
        QCOMPARE(button.styleSheet(), sideBySide);
        QCOMPARE(labels(button).size(), 2);
        QCOMPARE(button.getLabelRight(), nullptr);
        button.setTopToBottomBorderRadius(6); // it is still a picture above a caption
        QCOMPARE(button.styleSheet(),
                 QString(captioned).replace("border-radius:5px", "border-radius:6px"));

        NQToolButton late(nullptr, static_cast<ToolButtonType>(2));
        late.createButtonByType(ImageBesideImage);
        QCOMPARE(late.styleSheet(), sideBySide);
        QVERIFY(late.getLabelRight());
    }

    void anotherKindIgnoresLabelsThatAreBuiltLater()
    {
        NQToolButton button(nullptr, static_cast<ToolButtonType>(2));
        button.createButtonByType(ImageAboveCaption);
        QCOMPARE(labels(button).size(), 2);
        const QString before = picture(button)->styleSheet();
        button.setUpLabelImg(":/normal.png", ":/disabled.png"); // it is no picture above a caption
        QCOMPARE(picture(button)->styleSheet(), before);
        button.setStrDownText("caption");
        QCOMPARE(caption(button)->text(), QString());
        QCOMPARE(button.strDownText(), QString("caption"));
    }

    void groundFollowsTheState_data()
    {
        QTest::addColumn<int>("kind");
        QTest::addColumn<int>("normal");
        QTest::addColumn<int>("hover");
        QTest::addColumn<int>("pressed");
        QTest::addColumn<int>("disabled");
        QTest::addColumn<int>("checked");
        QTest::newRow("image above caption") << 0 << 69 << 64 << 38 << 69 << 38;
        QTest::newRow("image beside image") << 1 << 84 << 69 << 38 << 59 << 84;
    }

    void groundFollowsTheState()
    {
        QFETCH(int, kind);
        QFETCH(int, normal);
        QFETCH(int, hover);
        QFETCH(int, pressed);
        QFETCH(int, disabled);
        QFETCH(int, checked);
        const auto grey = [](int level) { return QColor(level, level, level); };
        QWidget panel;
        panel.resize(200, 120);
        NQToolButton button(&panel, static_cast<ToolButtonType>(kind));
        button.setGeometry(40, 20, 100, 80);
        const QPoint inside(10, 65);
        QVERIFY(pointer::showAndWait(&panel));
        pointer::moveTo(&panel, QPoint(5, 5));
        QCOMPARE(pointer::colorAt(&button, inside), grey(normal));
        pointer::moveTo(&button, inside);
        QCOMPARE(pointer::colorAt(&button, inside), grey(hover));
        if (kind == 0)
            QCOMPARE(pointer::colorAt(&button, QPoint(50, 0)), grey(93));
        QTest::mousePress(&button, Qt::LeftButton, Qt::NoModifier, inside);
        QCOMPARE(pointer::colorAt(&button, inside), grey(pressed));
        if (kind == 0)
            QCOMPARE(pointer::colorAt(&button, QPoint(50, 0)), grey(102));
        QTest::mouseRelease(&button, Qt::LeftButton, Qt::NoModifier, inside);
        pointer::moveTo(&panel, QPoint(5, 5));
        button.setCheckable(true);
        button.setChecked(true);
        QCOMPARE(pointer::colorAt(&button, inside), grey(checked));
        button.setChecked(false);
        button.setEnabled(false);
        QCOMPARE(pointer::colorAt(&button, inside), grey(disabled));
    }

    void colorIsSeenWhenSetBeforeAndAfterTheFirstShow()
    {
        NQToolButton button(nullptr, ImageAboveCaption);
        button.resize(100, 80);
        button.setTopToBottomNormalBtnColor(QColor(255, 0, 0));
        button.setTopToBottomNormalBtnColor(QColor(0, 255, 0));
        // The caption is a run of full blocks, so that its colour fills pixels.
        button.setStrDownText(QString(5, QChar(0x2588)));
        button.setDownLabelTextColor(QColor(255, 0, 0));
        button.setDownLabelTextColor(QColor(255, 255, 0));
        QVERIFY(pointer::showAndWait(&button));
        const QPoint onCaption = caption(button)->geometry().center();
        QCOMPARE(pointer::colorAt(&button, QPoint(4, 40)), QColor(0, 255, 0));
        QCOMPARE(pointer::colorAt(&button, onCaption), QColor(255, 255, 0));
        button.setTopToBottomNormalBtnColor(QColor(0, 0, 255));
        button.setDownLabelTextColor(QColor(0, 255, 255));
        QCOMPARE(pointer::colorAt(&button, QPoint(4, 40)), QColor(0, 0, 255));
        QCOMPARE(pointer::colorAt(&button, onCaption), QColor(0, 255, 255));
    }

    void clicksPassThroughTheLabels_data()
    {
        QTest::addColumn<int>("kind");
        QTest::newRow("image above caption") << 0;
        QTest::newRow("image beside image") << 1;
    }

    void clicksPassThroughTheLabels()
    {
        QFETCH(int, kind);
        NQToolButton button(nullptr, static_cast<ToolButtonType>(kind));
        button.resize(100, 80);
        button.setStrDownText("Caption");
        QVERIFY(pointer::showAndWait(&button));
        QSignalSpy clicked(&button, &QToolButton::clicked);
        for (const QLabel *label : labels(button))
            QTest::mouseClick(button.windowHandle(), Qt::LeftButton, Qt::NoModifier,
                              label->geometry().center());
        QCOMPARE(clicked.count(), 2);
    }

    void colorsAreTexts()
    {
        NQToolButton button(nullptr, ImageAboveCaption);
        QCOMPARE(button.fromColorToStr(QColor(255, 0, 0)), QString("#ff0000"));
        QCOMPARE(button.fromColorToStr(QColor(255, 0, 0, 128)), QString("#80ff0000"));
        QCOMPARE(button.fromColorToStr(QColor()), QString("#000000"));
    }

    void addsNothingToTheMetaObject()
    {
        const QMetaObject &meta = NQToolButton::staticMetaObject;
        QCOMPARE(meta.superClass(), &QToolButton::staticMetaObject);
        QCOMPARE(meta.methodOffset(), meta.methodCount());
        QCOMPARE(meta.propertyOffset(), meta.propertyCount());
    }

    void diesWithItsParentOrBefore()
    {
        auto *parent = new QWidget;
        QPointer<NQToolButton> first = new NQToolButton(parent, ImageAboveCaption);
        QPointer<NQToolButton> second = new NQToolButton(parent, ImageBesideImage);
        QVERIFY(pointer::showAndWait(parent));
        delete first;
        QCOMPARE(parent->children(), QObjectList{second});
        delete parent;
        QVERIFY(second.isNull());
    }

    void canBeDeletedInItsOwnSignal()
    {
        QPointer<NQToolButton> button = new NQToolButton(nullptr, ImageAboveCaption);
        button->resize(100, 80);
        QVERIFY(pointer::showAndWait(button));
        connect(button, &QToolButton::clicked, this, [=] { delete button; });
        button->click();
        QVERIFY(button.isNull());
    }
};

ORVANE_TEST_MAIN(TestNQToolButton)
#include "tst_nqtoolbutton.moc"
