#include "toolbuttonex.h"

#include "definecommondata.h"
#include "internal/accessibletoolbutton.h"
#include "internal/cabinetdrag.h"
#include "internal/cabinetpainter.h"
#include "internal/commandlook.h"
#include "internal/elidedtext.h"
#include "internal/stylesheet.h"

#include <QBoxLayout>
#include <QDrag>
#include <QLabel>
#include <QMimeData>
#include <QMouseEvent>
#include <QPainter>

namespace
{

constexpr int leastCabinetSide = 1;
constexpr int greatestCabinetSide = 65536;

// The add-cabinet look, which has no setters.
constexpr QColor addCabinetNormalBg(62, 62, 62);
constexpr QColor addCabinetHoverBg(80, 80, 80);
constexpr QColor addCabinetPressedBg(56, 56, 56);
constexpr QColor addCabinetDisabledBg(62, 62, 62);

QCursor imageCursor(const char *name)
{
    return QCursor(
        QPixmap(":/Resource/Images/globalResource/toolbutton/" + QString::fromLatin1(name)));
}

/// A label that shows the button's ground, as a child of it.
template <typename Label> Label *translucentLabel(QWidget *button)
{
    auto *label = new Label(button);
    label->setAttribute(Qt::WA_TranslucentBackground);
    return label;
}

} // namespace

ToolButtonEx::ToolButtonEx(QWidget *parent, ButtonType type, QString upText, QString downText)
    : QToolButton(parent)
    , m_upText(std::move(upText))
    , m_downText(std::move(downText))
    , m_activatedLook(std::make_unique<orvane::CommandLook>())
    , m_noActivatedLook(std::make_unique<orvane::CommandLook>())
{
    initTopToBottomParam();
    initLeftToRightParam();
    initActivatedParam();
    initNoActivatedParam();
    initCabinetParam();
    m_type = type;
    createButtonByType(type);
    orvane::makeToolButtonsSpeak();
}

ToolButtonEx::~ToolButtonEx()
{
    // A receiver may delete the button on the drop, while Qt still works with the drag: so the drag
    // outlives the button. One that is still under way is given up.
    if (m_drag) {
        m_drag->setParent(nullptr);
        QMetaObject::invokeMethod(
            m_drag.data(), [] { QDrag::cancel(); }, Qt::QueuedConnection);
    }
}

void ToolButtonEx::createButtonByType(ButtonType type)
{
    switch (type) {
    case LeftToRightType:
        initLeftToRightParam();
        // Before there are labels: a sheet set later is gone through for each of them anew.
        setLeftToRightStyle();
        if (!layout())
            createLeftToRightLabels();
        break;
    case TopToBottomType:
        initTopToBottomParam();
        setTopToBottomStyle();
        if (!layout())
            createTopToBottomLabels();
        break;
    case CabinetType:
    case CabinetModelType:
        m_sizeToScale = {{64, 0.7}, {128, 0.8}, {256, 0.9}, {512, 1.0}};
        initCabinetParam();
        setCanbinetStyle();
        break;
    case AddCabinetType:
        setAddCabinetStyle();
        break;
    case ActivatedType:
        initActivatedParam();
        setActivatedStyle();
        break;
    case NoActivatedType:
        initNoActivatedParam();
        setNoActivatedStyle();
        break;
    case DefaultType:
        break;
    }
}

void ToolButtonEx::setButtonType(const ButtonType &type)
{
    m_type = type;
    if (type == ActivatedType) {
        initActivatedParam();
        setActivatedStyle();
    } else if (type == NoActivatedType) {
        initNoActivatedParam();
        setNoActivatedStyle();
    }
}

ButtonType ToolButtonEx::buttonType() const
{
    return m_type;
}

void ToolButtonEx::setText(const QString &text)
{
    m_text = text;
    QToolButton::setText(orvane::elideWithToolTip(this, text, width()));
}

QString ToolButtonEx::text() const
{
    return m_text;
}

void ToolButtonEx::setChecked(bool checked)
{
    QToolButton::setChecked(checked);
    if (m_type != TopToBottomType)
        return;
    orvane::SheetText sheet;
    // The blanks around the font differ between the two; hosts rely on the texts.
    if (checked) {
        sheet << u"QToolButton{background:" << m_topToBottomPressedBgColor << u";border-radius:"
              << m_topToBottomBorderRadius << u";font: " << DefineCommonData::getNormalFont()
              << u";}";
    } else {
        sheet << u"QToolButton{background:" << m_topToBottomNormalBgColor << u";border-radius:"
              << m_topToBottomBorderRadius << u";font:" << DefineCommonData::getNormalFont()
              << u" ;}"
                 u"QToolButton:Pressed{background:"
              << m_topToBottomPressedBgColor << u";}";
    }
    orvane::applyStyleSheet(this, sheet);
}

void ToolButtonEx::setData(QVariant data)
{
    m_data = std::move(data);
}

QVariant ToolButtonEx::data() const
{
    return m_data;
}

void ToolButtonEx::setPressEventUseful(bool useful)
{
    m_pressEventUseful = useful;
}

void ToolButtonEx::setAddCabinetStyle()
{
    constexpr char16_t image[] =
        u";border-image: url(:/Resource/Images/globalResource/addBtn/box-add_normalDouble.png);";
    orvane::SheetText sheet;
    sheet << u"QToolButton{background:" << addCabinetNormalBg << image << u"font:"
          << DefineCommonData::getNormalFont()
          << u" ;}"
             u"QToolButton:hover{background:"
          << addCabinetHoverBg << image
          << u"}"
             u"QToolButton:pressed{background:"
          << addCabinetPressedBg << image
          << u"}"
             u"QToolButton:disabled{background:"
          << addCabinetDisabledBg
          << u";border-image: "
             u"url(:/Resource/Images/globalResource/addBtn/box-add_disableDouble.png);}";
    orvane::applyStyleSheet(this, sheet);
}

void ToolButtonEx::setCanbinetStyle()
{
    orvane::SheetText sheet = plainCabinetRule();
    sheet << u"QToolButton:Hover{background:" << m_cabinetHoverBgColor << u";color:"
          << m_cabinetHoverFontColor << u"; border:" << m_cabinetHoverBorder << u"px solid "
          << m_cabinetHoverBorderColor
          << u";}"
             u"QToolButton:Pressed{background:"
          << m_cabinetPressedBgColor << u";color:" << m_cabinetPressedFontColor << u"; border:"
          << m_cabinetPressedBorder << u"px solid " << m_cabinetPressedBorderColor
          << u";}"
             u"QToolButton:disabled{background:"
          << m_cabinetDisabledBgColor << u";color:" << m_cabinetNormalFontColor << u";font:"
          << DefineCommonData::getNormalFont() << u";border:" << m_cabinetNormalBorder
          << u"px;}"
             u"QToolTip{background-color:rgb(56,56,56);color:rgb(178,178,178);font:SimSun Arial;"
             u"border:1px solid rgb(128,128,128);}";
    orvane::applyStyleSheet(this, sheet);
}

void ToolButtonEx::setRightLabelStyle()
{
    setRightLabelColor(m_isPressed ? m_rightLabelTextPressedColor : m_rightLabelTextNormalColor);
}

void ToolButtonEx::setLeftLabelStyle(QString normalPath, QString pressedPath)
{
    if (!m_leftLabel)
        return;
    m_leftImgPathNormal = std::move(normalPath);
    m_leftImgPathPressed = std::move(pressedPath);
    const QString &path = m_isPressed ? m_leftImgPathPressed : m_leftImgPathNormal;
    orvane::applyStyleSheet(m_leftLabel,
                            orvane::SheetText() << u"border-image: url(" << path << u");");
}

void ToolButtonEx::setLeftLabelImg(QString sheet)
{
    if (m_leftLabel)
        orvane::applyStyleSheet(m_leftLabel, sheet);
}

void ToolButtonEx::setRightBottomLableVisible(bool visible)
{
    if (m_rightBottomLabel)
        m_rightBottomLabel->setVisible(visible);
}

QLabel *ToolButtonEx::pLabelLeft() const
{
    return m_leftLabel;
}

void ToolButtonEx::setPLabelLeft(QLabel *label)
{
    m_leftLabel = label;
}

LabelEx *ToolButtonEx::pLabelRight() const
{
    return m_rightLabel;
}

void ToolButtonEx::setPLabelRight(LabelEx *label)
{
    m_rightLabel = label;
}

void ToolButtonEx::setCabinetToAddModel()
{
    if (!m_isPressed)
        return;
    const QPointer<ToolButtonEx> self(this);
    if (m_isDrawCabinetCount) {
        // Size, count and pixel pitch stay those of the stored record: hosts rely on it.
        m_cabinetInfo.cabinetweight = m_cabinetWeight;
        m_cabinetInfo.cabinetpower = m_cabinetPower;
        m_cabinetInfo.cabinetVoltage = m_cabinetVoltage;
        m_cabinetInfo.cabinetuisize = m_cabinetUiSize;
        m_cabinetInfo.cabinetuiHsize = m_cabinetUiHSize;
        Q_EMIT signal_notifyAddBeenTakenCabinetModel(m_cabinetInfo);
    } else {
        Q_EMIT notifyAddCabineModel(QSize(m_cabinetWidth, m_cabinetHeight), m_makerName,
                                    m_cabinetName, m_cabinetUiSize, m_cabinetUiHSize,
                                    m_cabinetWeight, m_cabinetPower, m_cabinetVoltage,
                                    m_cabinetPointSpace, m_configFilePath);
    }
    if (!self)
        return;
    setCursor(imageCursor("mouseAdd.png"));
    m_isPressed = false;
}

QString ToolButtonEx::fromColorToStr(QColor color)
{
    return orvane::colorText(color);
}

void ToolButtonEx::setStrUpText(const QString &text)
{
    m_upText = text;
    if (m_type == TopToBottomType && m_upLabel)
        m_upLabel->setText(text);
}

QString ToolButtonEx::strUpText() const
{
    return m_upText;
}

void ToolButtonEx::setStrDownText(const QString &text)
{
    m_downText = text;
    if (m_type == TopToBottomType && m_downLabel)
        m_downLabel->setText(text);
}

QString ToolButtonEx::strDownText() const
{
    return m_downText;
}

void ToolButtonEx::setUpLabelTextColor(const QColor &color)
{
    m_upLabelTextColor = color;
    if (m_type == TopToBottomType)
        setUpLabelStyle();
}

QColor ToolButtonEx::upLabelTextColor() const
{
    return m_upLabelTextColor;
}

void ToolButtonEx::setDownLabelTextColor(const QColor &color)
{
    m_downLabelTextColor = color;
    if (m_type == TopToBottomType)
        setDownLabelStyle();
}

QColor ToolButtonEx::downLabelTextColor() const
{
    return m_downLabelTextColor;
}

void ToolButtonEx::setTopToBottomNormalBgColor(const QColor &color)
{
    m_topToBottomNormalBgColor = color;
    if (m_type == TopToBottomType)
        setTopToBottomStyle();
}

QColor ToolButtonEx::topToBottomNormalBgColor() const
{
    return m_topToBottomNormalBgColor;
}

void ToolButtonEx::setTopToBottomPressedBgColor(const QColor &color)
{
    m_topToBottomPressedBgColor = color;
    if (m_type == TopToBottomType)
        setTopToBottomStyle();
}

QColor ToolButtonEx::topToBottomPressedBgColor() const
{
    return m_topToBottomPressedBgColor;
}

void ToolButtonEx::setTopToBottomBorderRadius(int radius)
{
    m_topToBottomBorderRadius = radius;
    if (m_type == TopToBottomType)
        setTopToBottomStyle();
}

int ToolButtonEx::topToBottomBorderRadius() const
{
    return m_topToBottomBorderRadius;
}

void ToolButtonEx::setStrRightText(const QString &text)
{
    m_rightText = text;
    if (m_type == LeftToRightType && m_rightLabel)
        m_rightLabel->setText(text);
}

QString ToolButtonEx::strRightText() const
{
    return m_rightText;
}

void ToolButtonEx::setStrRightBottomText(const QString &text)
{
    m_rightBottomText = text;
    if (m_type == LeftToRightType && m_rightBottomLabel)
        m_rightBottomLabel->setText(text);
}

void ToolButtonEx::setStrLeftImgPathNormal(const QString &path)
{
    m_leftImgPathNormal = path;
    if (m_type == LeftToRightType)
        setLeftLabelStyle(m_leftImgPathNormal, m_leftImgPathPressed);
}

QString ToolButtonEx::strLeftImgPathNormal() const
{
    return m_leftImgPathNormal;
}

void ToolButtonEx::setStrLeftImgPathPressed(const QString &path)
{
    m_leftImgPathPressed = path;
    if (m_type == LeftToRightType)
        setLeftLabelStyle(m_leftImgPathNormal, m_leftImgPathPressed);
}

QString ToolButtonEx::strLeftImgPathPressed() const
{
    return m_leftImgPathPressed;
}

void ToolButtonEx::setRightLabelTextNormalColor(const QColor &color)
{
    m_rightLabelTextNormalColor = color;
    if (m_type == LeftToRightType)
        setRightLabelStyle();
}

QColor ToolButtonEx::rightLabelTextNormalColor() const
{
    return m_rightLabelTextNormalColor;
}

void ToolButtonEx::setRightLabelTextPressedColor(const QColor &color)
{
    m_rightLabelTextPressedColor = color;
    if (m_type == LeftToRightType)
        setRightLabelStyle();
}

QColor ToolButtonEx::rightLabelTextPressedColor() const
{
    return m_rightLabelTextPressedColor;
}

void ToolButtonEx::setRightLabelTextFont(const QString &font)
{
    m_rightLabelTextFont = font;
    if (m_type == LeftToRightType) {
        setRightLabelStyle();
        setLeftToRightStyle();
    }
}

QString ToolButtonEx::rightLabelTextFont() const
{
    return m_rightLabelTextFont;
}

void ToolButtonEx::setLeftToRightNormalBgColor(const QColor &color)
{
    m_leftToRightNormalBgColor = color;
    if (m_type == LeftToRightType)
        setLeftToRightStyle();
}

QColor ToolButtonEx::leftToRightNormalBgColor() const
{
    return m_leftToRightNormalBgColor;
}

void ToolButtonEx::setLeftToRightPressedBgColor(const QColor &color)
{
    m_leftToRightPressedBgColor = color;
    if (m_type == LeftToRightType)
        setLeftToRightStyle();
}

QColor ToolButtonEx::leftToRightPressedBgColor() const
{
    return m_leftToRightPressedBgColor;
}

void ToolButtonEx::setLeftToRightBorderRadius(int radius)
{
    m_leftToRightBorderRadius = radius;
    if (m_type == LeftToRightType)
        setLeftToRightStyle();
}

int ToolButtonEx::leftToRightBorderRadius() const
{
    return m_leftToRightBorderRadius;
}

void ToolButtonEx::setLeftToRightLayoutSpace(const int &space)
{
    m_leftToRightLayoutSpace = space;
    if (m_type == LeftToRightType && m_leftToRightLayout)
        m_leftToRightLayout->setSpacing(space);
}

int ToolButtonEx::leftToRightLayoutSpace() const
{
    return m_leftToRightLayoutSpace;
}

void ToolButtonEx::setActivatedNormalBgColor(const QColor &color)
{
    m_activatedLook->normalBackground = color;
    if (m_type == ActivatedType)
        setActivatedStyle();
}

QColor ToolButtonEx::activatedNormalBgColor() const
{
    return m_activatedLook->normalBackground;
}

void ToolButtonEx::setActivatedHoverBgColor(const QColor &color)
{
    m_activatedLook->hoverBackground = color;
    if (m_type == ActivatedType)
        setActivatedStyle();
}

QColor ToolButtonEx::activatedHoverBgColor() const
{
    return m_activatedLook->hoverBackground;
}

void ToolButtonEx::setActivatedPressedBgColor(const QColor &color)
{
    m_activatedLook->pressedBackground = color;
    if (m_type == ActivatedType)
        setActivatedStyle();
}

QColor ToolButtonEx::activatedPressedBgColor() const
{
    return m_activatedLook->pressedBackground;
}

void ToolButtonEx::setActivatedDisabledBgColor(const QColor &color)
{
    m_activatedLook->disabledBackground = color;
    if (m_type == ActivatedType)
        setActivatedStyle();
}

QColor ToolButtonEx::activatedDisabledBgColor() const
{
    return m_activatedLook->disabledBackground;
}

void ToolButtonEx::setActivatedNormalFontColor(const QColor &color)
{
    m_activatedLook->normalFontColor = color;
    if (m_type == ActivatedType)
        setActivatedStyle();
}

QColor ToolButtonEx::activatedNormalFontColor() const
{
    return m_activatedLook->normalFontColor;
}

void ToolButtonEx::setActivatedHoverFontColor(const QColor &color)
{
    m_activatedLook->hoverFontColor = color;
    if (m_type == ActivatedType)
        setActivatedStyle();
}

QColor ToolButtonEx::activatedHoverFontColor() const
{
    return m_activatedLook->hoverFontColor;
}

void ToolButtonEx::setActivatedPressedFontColor(const QColor &color)
{
    m_activatedLook->pressedFontColor = color;
    if (m_type == ActivatedType)
        setActivatedStyle();
}

QColor ToolButtonEx::activatedPressedFontColor() const
{
    return m_activatedLook->pressedFontColor;
}

void ToolButtonEx::setActivatedDisabledFontColor(const QColor &color)
{
    m_activatedLook->disabledFontColor = color;
    if (m_type == ActivatedType)
        setActivatedStyle();
}

QColor ToolButtonEx::activatedDisabledFontColor() const
{
    return m_activatedLook->disabledFontColor;
}

void ToolButtonEx::setActivatedBorderRadius(int radius)
{
    m_activatedLook->borderRadius = radius;
    if (m_type == ActivatedType)
        setActivatedStyle();
}

int ToolButtonEx::activatedBorderRadius() const
{
    return m_activatedLook->borderRadius;
}

void ToolButtonEx::setNoActivatedNormalBgColor(const QColor &color)
{
    m_noActivatedLook->normalBackground = color;
    if (m_type == NoActivatedType)
        setNoActivatedStyle();
}

QColor ToolButtonEx::noActivatedNormalBgColor() const
{
    return m_noActivatedLook->normalBackground;
}

void ToolButtonEx::setNoActivatedHoverBgColor(const QColor &color)
{
    m_noActivatedLook->hoverBackground = color;
    if (m_type == NoActivatedType)
        setNoActivatedStyle();
}

QColor ToolButtonEx::noActivatedHoverBgColor() const
{
    return m_noActivatedLook->hoverBackground;
}

void ToolButtonEx::setNoActivatedPressedBgColor(const QColor &color)
{
    m_noActivatedLook->pressedBackground = color;
    if (m_type == NoActivatedType)
        setNoActivatedStyle();
}

QColor ToolButtonEx::noActivatedPressedBgColor() const
{
    return m_noActivatedLook->pressedBackground;
}

void ToolButtonEx::setNoActivatedDisabledBgColor(const QColor &color)
{
    m_noActivatedLook->disabledBackground = color;
    if (m_type == NoActivatedType)
        setNoActivatedStyle();
}

QColor ToolButtonEx::noActivatedDisabledBgColor() const
{
    return m_noActivatedLook->disabledBackground;
}

void ToolButtonEx::setNoActivatedNormalFontColor(const QColor &color)
{
    m_noActivatedLook->normalFontColor = color;
    if (m_type == NoActivatedType)
        setNoActivatedStyle();
}

QColor ToolButtonEx::noActivatedNormalFontColor() const
{
    return m_noActivatedLook->normalFontColor;
}

void ToolButtonEx::setNoActivatedHoverFontColor(const QColor &color)
{
    m_noActivatedLook->hoverFontColor = color;
    if (m_type == NoActivatedType)
        setNoActivatedStyle();
}

QColor ToolButtonEx::noActivatedHoverFontColor() const
{
    return m_noActivatedLook->hoverFontColor;
}

void ToolButtonEx::setNoActivatedPressedFontColor(const QColor &color)
{
    m_noActivatedLook->pressedFontColor = color;
    if (m_type == NoActivatedType)
        setNoActivatedStyle();
}

QColor ToolButtonEx::noActivatedPressedFontColor() const
{
    return m_noActivatedLook->pressedFontColor;
}

void ToolButtonEx::setNoActivatedDisabledFontColor(const QColor &color)
{
    m_noActivatedLook->disabledFontColor = color;
    if (m_type == NoActivatedType)
        setNoActivatedStyle();
}

QColor ToolButtonEx::noActivatedDisabledFontColor() const
{
    return m_noActivatedLook->disabledFontColor;
}

void ToolButtonEx::setNoActivatedBorderRadius(int radius)
{
    m_noActivatedLook->borderRadius = radius;
    if (m_type == NoActivatedType)
        setNoActivatedStyle();
}

int ToolButtonEx::noActivatedBorderRadius() const
{
    return m_noActivatedLook->borderRadius;
}

void ToolButtonEx::setNoActivatedLeftPadding(int padding)
{
    m_noActivatedLeftPadding = padding;
    // Whatever the type: hosts rely on it to give any button the not-activated look.
    setNoActivatedStyle();
}

int ToolButtonEx::getNoActivatedLeftPadding() const
{
    return m_noActivatedLeftPadding;
}

void ToolButtonEx::setCabinetWidth(int width)
{
    m_cabinetWidth = qBound(leastCabinetSide, width, greatestCabinetSide);
    update();
}

int ToolButtonEx::cabinetWidth() const
{
    return m_cabinetWidth;
}

void ToolButtonEx::setCabinetHeight(int height)
{
    m_cabinetHeight = qBound(leastCabinetSide, height, greatestCabinetSide);
    update();
}

int ToolButtonEx::cabinetHeight() const
{
    return m_cabinetHeight;
}

void ToolButtonEx::setCabinetSize(int width, int height)
{
    if (m_type == CabinetModelType)
        setToolTip(m_cabinetName + "_" + orvane::cabinetSizeText(QSize(width, height)));
    setCabinetWidth(width);
    setCabinetHeight(height);
}

void ToolButtonEx::setCabinetCount(int count)
{
    if (count >= 0)
        m_cabinetCount = count;
    setEnabled(m_cabinetCount > 0);
    update();
}

int ToolButtonEx::cabinetCount() const
{
    return m_cabinetCount;
}

void ToolButtonEx::setCabinetInitCount(int count)
{
    m_cabinetInitCount = count;
}

int ToolButtonEx::getCabinetInitCount() const
{
    return m_cabinetInitCount;
}

void ToolButtonEx::setIsDrawCabinetCount(bool isDraw)
{
    m_isDrawCabinetCount = isDraw;
    update();
}

bool ToolButtonEx::isDrawCabinetCount() const
{
    return m_isDrawCabinetCount;
}

void ToolButtonEx::setMakerName(const QString &name)
{
    m_makerName = name;
}

QString ToolButtonEx::getMakerName() const
{
    return m_makerName;
}

QString ToolButtonEx::makerName() const
{
    return m_makerName;
}

void ToolButtonEx::setCabinetName(const QString &name)
{
    m_cabinetName = name;
}

QString ToolButtonEx::getCabinetName() const
{
    return m_cabinetName;
}

QString ToolButtonEx::cabinetName() const
{
    return m_cabinetName;
}

void ToolButtonEx::setCabinetuisize(int size)
{
    m_cabinetUiSize = size;
}

int ToolButtonEx::getCabinetuisize() const
{
    return m_cabinetUiSize;
}

void ToolButtonEx::setCabinetuiHsize(int size)
{
    m_cabinetUiHSize = size;
}

int ToolButtonEx::getCabinetuiHsize() const
{
    return m_cabinetUiHSize;
}

void ToolButtonEx::setCabinetweight(int weight)
{
    m_cabinetWeight = weight;
}

int ToolButtonEx::getCabinetweight() const
{
    return m_cabinetWeight;
}

void ToolButtonEx::setCabinetpower(float power)
{
    m_cabinetPower = power;
}

float ToolButtonEx::getCabinetpower() const
{
    return m_cabinetPower;
}

void ToolButtonEx::setCabinetVoltage(float voltage)
{
    m_cabinetVoltage = voltage;
}

float ToolButtonEx::getCabinetVoltage() const
{
    return m_cabinetVoltage;
}

void ToolButtonEx::setCabinetPointspace(int pointSpace)
{
    m_cabinetPointSpace = pointSpace;
}

int ToolButtonEx::getCabinetPointspace() const
{
    return m_cabinetPointSpace;
}

void ToolButtonEx::setConfigFilePath(const QString &path)
{
    m_configFilePath = path;
}

QString ToolButtonEx::getConfigFilePath() const
{
    return m_configFilePath;
}

void ToolButtonEx::setCabnetInfo(const StructCabinet &info)
{
    m_cabinetInfo = info;
    if (info.cabinetCount >= 0)
        m_cabinetCount = info.cabinetCount;
    update();
}

StructCabinet ToolButtonEx::getCabnetInfo() const
{
    return m_cabinetInfo;
}

void ToolButtonEx::setCabinetNormalBgColor(const QColor &color)
{
    m_cabinetNormalBgColor = color;
    if (isCabinet())
        setCanbinetStyle();
}

void ToolButtonEx::setCabinetHoverBgColor(const QColor &color)
{
    // On other kinds hosts rely on the look being applied and the colour not being kept.
    if (isCabinet())
        m_cabinetHoverBgColor = color;
    setCanbinetStyle();
}

void ToolButtonEx::setCabinetPressedBgColor(const QColor &color)
{
    m_cabinetPressedBgColor = color;
    if (isCabinet())
        setCanbinetStyle();
}

void ToolButtonEx::setCabinetNormalFontColor(const QColor &color)
{
    m_cabinetNormalFontColor = color;
    if (isCabinet())
        setCanbinetStyle();
}

void ToolButtonEx::setCabinetHoverFontColor(const QColor &color)
{
    m_cabinetHoverFontColor = color;
    if (isCabinet())
        setCanbinetStyle();
}

void ToolButtonEx::setCabinetPressedFontColor(const QColor &color)
{
    m_cabinetPressedFontColor = color;
    if (isCabinet())
        setCanbinetStyle();
}

void ToolButtonEx::setCabinetHoverBorderColor(const QColor &color)
{
    m_cabinetHoverBorderColor = color;
    if (isCabinet())
        setCanbinetStyle();
}

void ToolButtonEx::setCabinetPressedBorderColor(const QColor &color)
{
    m_cabinetPressedBorderColor = color;
    if (isCabinet())
        setCanbinetStyle();
}

void ToolButtonEx::setCanbinetNormalBorder(int width)
{
    m_cabinetNormalBorder = width;
    // Whatever the kind: hosts rely on it to give any button the cabinet look.
    setCanbinetStyle();
}

void ToolButtonEx::setCanbinetHoverBorder(int width)
{
    m_cabinetHoverBorder = width;
    if (isCabinet())
        setCanbinetStyle();
}

void ToolButtonEx::setCanbinetPressedBorder(int width)
{
    m_cabinetPressedBorder = width;
    if (isCabinet())
        setCanbinetStyle();
}

void ToolButtonEx::setBIsVsender(bool isVsender)
{
    m_isVsender = isVsender;
}

void ToolButtonEx::setBVsenderDrag(bool isDrag)
{
    m_vsenderDrag = isDrag;
}

void ToolButtonEx::setVsenderText(const QString &text)
{
    m_vsenderText = text;
}

void ToolButtonEx::setIsHasData(bool hasData)
{
    m_isHasData = hasData;
}

bool ToolButtonEx::getIsHasData() const
{
    return m_isHasData;
}

void ToolButtonEx::setIsChangeMouseStyle(bool change)
{
    m_isChangeMouseStyle = change;
}

void ToolButtonEx::paintEvent(QPaintEvent *event)
{
    QToolButton::paintEvent(event);
    if (!isCabinet())
        return;

    orvane::CabinetFace face;
    face.isModel = m_type == CabinetModelType;
    m_textBandHeight = face.isModel ? 12 : 20;
    face.area = size();
    face.bandHeight = m_textBandHeight;
    face.size = QSize(m_cabinetWidth, m_cabinetHeight);
    face.rectangle = QRect(0, 0, width(), height() - m_textBandHeight);
    if (!face.size.isEmpty())
        face.rectangle = cabinetRect(face.rectangle.size());
    face.hasCount = m_isDrawCabinetCount;
    face.count = m_cabinetCount;
    face.font = font();
    QPainter painter(this);
    orvane::paintCabinet(painter, face);

    if (face.isModel || !m_isPressed)
        return;
    painter.setBrush(QColor(orvane::cabinetFill));
    painter.setPen(QColor(255, 0, 0));
    // The global position is taken as it is: hosts rely on the mark not showing on the button.
    painter.drawRect(QRect(QCursor::pos(), QSize(20, 20)));
}

void ToolButtonEx::mousePressEvent(QMouseEvent *event)
{
    const QPointer<ToolButtonEx> self(this);
    QToolButton::mousePressEvent(event);
    if (!self || !(event->buttons() & Qt::LeftButton))
        return;
    m_isPressed = true;
    if (!isCabinet())
        return;
    m_pressPoint = event->localPos().toPoint();
    if (m_isDrawCabinetCount)
        Q_EMIT signal_notifyChangedPortInfo(m_cabinetInfo);
    // Qt hands an ignored event on to the parent, which it asks the button for.
    if (!self)
        event->accept();
}

void ToolButtonEx::mouseReleaseEvent(QMouseEvent *event)
{
    const QPointer<ToolButtonEx> self(this);
    // Past QToolButton, whose handler touches the button after clicked(), in which a host may have
    // deleted it. All it does there is to forget a press on a menu arrow; the next press does that.
    // NOLINTNEXTLINE(bugprone-parent-virtual-call)
    QAbstractButton::mouseReleaseEvent(event); // clazy:exclude=skipped-base-method
    if (!self)
        return;
    if (m_type == LeftToRightType) {
        m_isPressed = false;
        setRightLabelStyle();
    } else if (isCabinet()) {
        setCabinetToAddModel();
        // As in the press: an ignored event would go on from a deleted button.
        if (!self)
            event->accept();
    }
}

void ToolButtonEx::mouseMoveEvent(QMouseEvent *event)
{
    const QPointer<ToolButtonEx> self(this);
    QToolButton::mouseMoveEvent(event);
    if (!self || !(event->buttons() & Qt::LeftButton))
        return;
    if (m_isVsender) {
        if (isBeyondDragThreshold(*event))
            dragSender();
        else
            m_vsenderDrag = false;
    } else if (m_type == CabinetType) {
        if (!isBeyondDragThreshold(*event))
            m_isCabinetDrag = false;
        else if (m_isDrawCabinetCount)
            dragCabinet();
    }
}

void ToolButtonEx::enterEvent(QEvent *event)
{
    QToolButton::enterEvent(event);
    if (m_type == LeftToRightType)
        setRightLabelColor(m_rightLabelTextPressedColor);
    else if (isCabinet())
        setCanbinetStyle();
    if (m_isChangeMouseStyle)
        setCursor(imageCursor("cursor.png"));
}

void ToolButtonEx::leaveEvent(QEvent *event)
{
    QToolButton::leaveEvent(event);
    if (m_type == LeftToRightType)
        setRightLabelColor(m_rightLabelTextNormalColor);
    if (m_isChangeMouseStyle)
        setCursor(Qt::ArrowCursor);
}

bool ToolButtonEx::isCabinet() const
{
    return m_type == CabinetType || m_type == CabinetModelType;
}

QRect ToolButtonEx::cabinetRect(QSize area)
{
    // The longer side takes 0.7 of the area's shorter side, and 0.3 more for every 448 pixels from
    // 64 on. Whole numbers keep every side exact: in binary fractions 0.7 of 90 is less than 63.
    const qint64 tenths = 7 + 3 * ((qMax(m_textBandHeight, m_cabinetWidth) - 64) / 448);
    m_scale = static_cast<float>(tenths) / 10;
    const qint64 side = tenths * qMin(area.width(), area.height());
    const qint64 unit = 10 * qint64(qMax(m_cabinetWidth, m_cabinetHeight));
    const qint64 width = side * m_cabinetWidth;
    const qint64 height = side * m_cabinetHeight;
    return {int((area.width() * unit - width) / (2 * unit)),
            int((area.height() * unit - height) / (2 * unit)), int(width / unit),
            int(height / unit)};
}

bool ToolButtonEx::isBeyondDragThreshold(const QMouseEvent &event) const
{
    return (event.localPos().toPoint() - m_pressPoint).manhattanLength() > width() - 1;
}

void ToolButtonEx::initTopToBottomParam()
{
    m_upLabelTextColor = QColor(255, 255, 255);
    m_downLabelTextColor = QColor(255, 255, 255);
    m_topToBottomNormalBgColor = QColor(99, 99, 99);
    m_topToBottomPressedBgColor = QColor(66, 145, 240);
    m_topToBottomBorderRadius = 5;
}

void ToolButtonEx::initLeftToRightParam()
{
    m_rightLabelTextNormalColor = QColor(51, 51, 51);
    m_rightLabelTextPressedColor = QColor(66, 145, 240);
    m_leftToRightNormalBgColor = QColor(255, 255, 255);
    m_leftToRightPressedBgColor = QColor(255, 255, 255);
    m_leftToRightBorderRadius = 0;
    m_leftToRightLayoutSpace = 5;
    m_rightLabelTextFont = DefineCommonData::getBiggerFont();
}

void ToolButtonEx::initActivatedParam()
{
    *m_activatedLook = orvane::activatedCommandLook();
}

void ToolButtonEx::initNoActivatedParam()
{
    *m_noActivatedLook = orvane::notActivatedCommandLook();
    m_noActivatedLeftPadding = 0;
}

void ToolButtonEx::initCabinetParam()
{
    m_cabinetNormalBgColor = QColor(69, 69, 69);
    m_cabinetHoverBgColor = QColor(101, 124, 152);
    m_cabinetPressedBgColor = QColor(66, 145, 240);
    m_cabinetDisabledBgColor = QColor(69, 69, 69);
    m_cabinetNormalFontColor = QColor(0, 0, 0);
    m_cabinetHoverFontColor = QColor(218, 218, 218);
    m_cabinetPressedFontColor = QColor(218, 218, 218);
    m_cabinetHoverBorderColor = QColor(67, 130, 206);
    m_cabinetPressedBorderColor = QColor(7, 103, 170);
    m_cabinetNormalBorder = 0;
    m_cabinetHoverBorder = 1;
    m_cabinetPressedBorder = 1;
}

void ToolButtonEx::createTopToBottomLabels()
{
    m_upLabel = translucentLabel<QLabel>(this);
    m_upLabel->setText(m_upText);
    m_upLabel->setAlignment(Qt::AlignHCenter | Qt::AlignBottom);
    setUpLabelStyle();
    m_downLabel = translucentLabel<QLabel>(this);
    m_downLabel->setText(m_downText);
    m_downLabel->setAlignment(Qt::AlignHCenter | Qt::AlignTop);
    setDownLabelStyle();

    auto *layout = new QVBoxLayout(this);
    layout->addWidget(m_upLabel);
    layout->addWidget(m_downLabel);
    layout->setSpacing(0);
    layout->setContentsMargins(5, 5, 5, 5);
}

void ToolButtonEx::createLeftToRightLabels()
{
    m_leftLabel = new QLabel(this);
    m_leftLabel->setFixedSize(25, 25);
    setLeftLabelStyle(m_leftImgPathNormal, m_leftImgPathPressed);
    m_rightLabel = translucentLabel<LabelEx>(this);
    m_rightLabel->setText(m_rightText);
    setRightLabelStyle();
    m_rightBottomLabel = new QLabel(this);
    m_rightBottomLabel->setText(m_rightBottomText);
    orvane::applyStyleSheet(m_rightBottomLabel,
                            QStringLiteral("font: 9pt \"微软雅黑\";color: gray;"));

    m_leftToRightLayout = new QHBoxLayout(this);
    m_leftToRightLayout->addWidget(m_leftLabel);
    auto *texts = new QVBoxLayout;
    texts->setSpacing(0);
    texts->addWidget(m_rightLabel);
    texts->addWidget(m_rightBottomLabel);
    m_leftToRightLayout->addLayout(texts);
    m_leftToRightLayout->setSpacing(m_leftToRightLayoutSpace);
    m_leftToRightLayout->setContentsMargins(0, 0, 0, 0);
    m_rightBottomLabel->hide();
}

void ToolButtonEx::setTopToBottomStyle()
{
    orvane::SheetText sheet;
    // "pt" stands behind a text that has its unit already; hosts rely on it.
    sheet << u"QToolButton{background:" << m_topToBottomNormalBgColor << u";border-radius:"
          << m_topToBottomBorderRadius << u";font:" << DefineCommonData::getNormalFont()
          << u"pt;}"
             u"QToolButton:Pressed{background:"
          << m_topToBottomPressedBgColor << u";}";
    orvane::applyStyleSheet(this, sheet);
}

void ToolButtonEx::setUpLabelStyle()
{
    if (m_upLabel) {
        orvane::applyStyleSheet(m_upLabel,
                                orvane::SheetText() << u"font:" << DefineCommonData::getBigFont()
                                                    << u";color: " << m_upLabelTextColor << u";");
    }
}

void ToolButtonEx::setDownLabelStyle()
{
    if (m_downLabel) {
        orvane::applyStyleSheet(m_downLabel,
                                orvane::SheetText() << u"font:" << DefineCommonData::getBigFont()
                                                    << u";color:" << m_downLabelTextColor << u";");
    }
}

void ToolButtonEx::setLeftToRightStyle()
{
    orvane::SheetText sheet;
    sheet << u"QToolButton{background:" << m_leftToRightNormalBgColor << u";border-radius:"
          << m_leftToRightBorderRadius << u";font:" << m_rightLabelTextFont
          << u";}"
             u"QToolButton:Pressed{background:"
          << m_leftToRightPressedBgColor << u";}";
    orvane::applyStyleSheet(this, sheet);
}

void ToolButtonEx::setRightLabelColor(const QColor &color)
{
    if (m_rightLabel) {
        orvane::applyStyleSheet(m_rightLabel,
                                orvane::SheetText() << u"font:" << m_rightLabelTextFont
                                                    << u";color: " << color << u";");
    }
}

void ToolButtonEx::setActivatedStyle()
{
    orvane::applyStyleSheet(this,
                            orvane::commandSheet(u"QToolButton", *m_activatedLook,
                                                 {u"hover", u"pressed", u"disabled"},
                                                 DefineCommonData::getNormalFont()));
}

void ToolButtonEx::setNoActivatedStyle()
{
    // The capitals are not a slip: hosts rely on the text, and sheets ignore the case of states.
    orvane::applyStyleSheet(
        this,
        orvane::commandSheet(u"QToolButton", *m_noActivatedLook,
                             {u"Hover", u"Pressed", u"Disabled"}, DefineCommonData::getNormalFont(),
                             orvane::SheetText()
                                 << u"padding-left:" << m_noActivatedLeftPadding << u"px;"));
}

orvane::SheetText ToolButtonEx::plainCabinetRule() const
{
    orvane::SheetText sheet;
    sheet << u"QToolButton{background:" << m_cabinetNormalBgColor << u";color:"
          << m_cabinetNormalFontColor << u";font:" << DefineCommonData::getNormalFont()
          << u";border:" << m_cabinetNormalBorder << u"px;}";
    return sheet;
}

void ToolButtonEx::dragSender()
{
    runDrag(orvane::senderMimeData(m_vsenderText),
            orvane::senderDragPicture(m_vsenderText, m_isHasData));
}

void ToolButtonEx::dragCabinet()
{
    m_isCabinetDrag = true;
    const QPointer<ToolButtonEx> self(this);
    // A copy shares its texts with the record: they live as long as the drag, whatever the host
    // does to the button meanwhile.
    const StructCabinet record = m_cabinetInfo;
    runDrag(orvane::cabinetMimeData(record), orvane::cabinetDragPicture());
    // The plain look until the pointer comes back: it has left without a leave event.
    if (self)
        orvane::applyStyleSheet(this, plainCabinetRule());
}

void ToolButtonEx::runDrag(QMimeData *data, const QPixmap &picture)
{
    setCursor(Qt::ArrowCursor);
    const QPointer<QDrag> drag = new QDrag(this);
    m_drag = drag;
    drag->setMimeData(data);
    drag->setPixmap(picture);
    drag->setHotSpot(orvane::dragHotSpot);
    drag->exec(Qt::MoveAction);
    delete drag;
}
