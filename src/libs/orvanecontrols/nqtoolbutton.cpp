#include "nqtoolbutton.h"

#include "definecommondata.h"
#include "internal/elidedtext.h"
#include "internal/spokenname.h"
#include "internal/stylesheet.h"

#include <QBoxLayout>
#include <QFontMetrics>
#include <QLabel>

namespace
{

void setImage(QWidget *label, const QString &path)
{
    orvane::applyStyleSheet(label, orvane::SheetText() << u"border-image: url(" << path << u");");
}

/// A row of \a label alone, in its middle.
QHBoxLayout *centredRow(QWidget *label)
{
    auto *row = new QHBoxLayout;
    row->setSpacing(0);
    row->addStretch();
    row->addWidget(label);
    row->addStretch();
    return row;
}

} // namespace

NQToolButton::NQToolButton(QWidget *parent, ToolButtonType type)
    : QToolButton(parent)
{
    m_type = type;
    createButtonByType(type);
}

void NQToolButton::createButtonByType(ToolButtonType type)
{
    switch (type) {
    case ImageAboveCaption:
        setMinimumSize(m_minimumWidth, m_minimumHeight);
        initTopToBottomParam();
        // Before there are labels: a sheet set later is gone through for each of them anew.
        setTopToBottomStyle();
        if (!layout())
            createTopToBottomLabels();
        else
            setDownLabelStyle();
        break;
    case ImageBesideImage:
        initLeftToRightParam();
        setLeftToRightStyle();
        if (!layout())
            createLeftToRightLabels();
        break;
    }
}

void NQToolButton::initTopToBottomParam()
{
    m_downLabelTextColor = QColor(211, 211, 211);
    m_downLabelDisabledColor = QColor(167, 167, 167);
    m_topToBottomNormalColor = QColor(69, 69, 69);
    m_topToBottomHoverColor = QColor(64, 64, 64);
    m_topToBottomPressedColor = QColor(38, 38, 38);
    m_topToBottomDisabledColor = QColor(69, 69, 69);
    m_topToBottomHoverBorderColor = QColor(93, 93, 93);
    m_topToBottomPressedBorderColor = QColor(102, 102, 102);
}

void NQToolButton::initLeftToRightParam()
{
    m_leftToRightNormalColor = QColor(84, 84, 84);
    m_leftToRightHoverColor = QColor(69, 69, 69);
    m_leftToRightPressedColor = QColor(38, 38, 38);
    m_leftToRightDisabledColor = QColor(59, 59, 59);
}

void NQToolButton::createTopToBottomLabels()
{
    m_upLabel = new QLabel(this);
    m_upLabel->setAlignment(Qt::AlignHCenter | Qt::AlignBottom);
    m_upLabel->setFixedSize(m_upLabelWidth, m_upLabelHeight);
    m_downLabel = new QLabel(this);
    m_downLabel->setAttribute(Qt::WA_TranslucentBackground);
    m_downLabel->setAlignment(Qt::AlignCenter);
    m_downLabel->setFixedHeight(m_downLabelHeight);
    setDownLabelStyle();
    m_downLabel->ensurePolished(); // hosts measure captions with its font, before the show too

    m_verticalLayout = new QVBoxLayout(this);
    m_verticalLayout->setSpacing(6);
    m_verticalLayout->setContentsMargins(0, 3, 0, 7);
    m_verticalLayout->addLayout(centredRow(m_upLabel));
    m_verticalLayout->addLayout(centredRow(m_downLabel));
}

void NQToolButton::createLeftToRightLabels()
{
    m_rightLabel = new QLabel(this);
    m_rightLabel->setAlignment(Qt::AlignCenter);
    m_leftLabel = new QLabel(this);
    m_leftLabel->setAlignment(Qt::AlignCenter);

    m_horizontalLayout = new QHBoxLayout(this);
    m_horizontalLayout->setSpacing(0);
    m_horizontalLayout->setContentsMargins(0, 0, 0, 0);
    m_horizontalLayout->addWidget(m_leftLabel);
    m_horizontalLayout->addWidget(m_rightLabel);
}

void NQToolButton::setTopToBottomStyle()
{
    orvane::SheetText pressed;
    pressed << u"{background:" << m_topToBottomPressedColor << u";border:"
            << m_topToBottomBorderWidth << u"px solid " << m_topToBottomPressedBorderColor << u";}";
    orvane::SheetText sheet;
    // "pt" stands behind a font text that has its unit already; hosts rely on it, as on the capital
    // of "Pressed".
    sheet << u"QToolButton{background:" << m_topToBottomNormalColor << u";border-radius:"
          << m_topToBottomBorderRadius << u"px;font:" << DefineCommonData::getNormalFont()
          << u"pt;}"
             u"QToolButton:hover{background:"
          << m_topToBottomHoverColor << u";border:" << m_topToBottomBorderWidth << u"px solid "
          << m_topToBottomHoverBorderColor
          << u";}"
             u"QToolButton:checked"
          << pressed << u"QToolButton:Pressed" << pressed << u"QToolButton:disabled{background:"
          << m_topToBottomDisabledColor << u";}";
    orvane::applyStyleSheet(this, sheet);
}

void NQToolButton::setLeftToRightStyle()
{
    orvane::SheetText sheet;
    sheet << u"QToolButton{background:" << m_leftToRightNormalColor << u";border-radius:"
          << m_leftToRightBorderRadius << u"px;font:" << DefineCommonData::getNormalFont()
          << u"pt;}"
             u"QToolButton:hover{background:"
          << m_leftToRightHoverColor
          << u";}"
             u"QToolButton:Pressed{background:"
          << m_leftToRightPressedColor
          << u";}"
             u"QToolButton:disabled{background:"
          << m_leftToRightDisabledColor << u";}";
    orvane::applyStyleSheet(this, sheet);
}

void NQToolButton::setDownLabelStyle()
{
    setDownLabelColor(m_downLabelTextColor);
}

void NQToolButton::setDownLabelColor(const QColor &color)
{
    if (m_downLabel) {
        orvane::applyStyleSheet(
            m_downLabel, orvane::SheetText() << u"color:" << color << u";font:SimSun Arial;");
    }
}

void NQToolButton::setText(const QString &text)
{
    m_text = text;
    QToolButton::setText(orvane::elideWithToolTip(this, text, width()));
}

QString NQToolButton::text() const
{
    return m_text;
}

void NQToolButton::setStrDownText(QString text)
{
    const QString spokenBefore = m_spokenCaption;
    m_downText = std::move(text);
    if (m_type != ImageAboveCaption || !m_downLabel)
        return;
    m_spokenCaption = m_downText; // whole, before it is cut
    orvane::speakAs(this, m_spokenCaption, spokenBefore);
    const QFontMetrics metrics(m_downLabel->font());
    const int captionWidth = metrics.horizontalAdvance(m_downText);
    if (captionWidth < m_minimumCaptionWidth) {
        setToolTip(QString());
        showCaption(m_minimumCaptionWidth);
    } else if (captionWidth <= m_maximumCaptionWidth) {
        showCaption(captionWidth); // the tool tip stays: hosts set their own
    } else {
        setToolTip(m_downText);
        m_downText = orvane::cutWithDots(metrics, m_downText, m_maximumCaptionWidth);
        showCaption(m_maximumCaptionWidth);
    }
}

void NQToolButton::showCaption(int captionWidth)
{
    const qint64 buttonWidth = captionWidth + 2 * qint64(m_captionPadding);
    setFixedSize(int(qBound<qint64>(0, buttonWidth, QWIDGETSIZE_MAX)), height());
    m_downLabel->setText(m_downText);
}

QString NQToolButton::strDownText() const
{
    return m_downText;
}

void NQToolButton::setUpLabelImg(QString normalPath, QString disabledPath)
{
    if (m_type != ImageAboveCaption || !m_upLabel)
        return;
    m_upImage = std::move(normalPath);
    m_upDisabledImage = std::move(disabledPath);
    setImage(m_upLabel, isEnabled() ? m_upImage : m_upDisabledImage);
    setDownLabelColor(isEnabled() ? m_downLabelTextColor : m_downLabelDisabledColor);
}

void NQToolButton::setBtnEnabled(bool enabled)
{
    setEnabled(enabled);
    if (m_upLabel)
        setUpLabelImg(m_upImage, m_upDisabledImage);
}

void NQToolButton::setLeftLabelImg(QString path)
{
    if (m_leftLabel)
        setImage(m_leftLabel, path);
}

void NQToolButton::setRightLabelImg(QString path)
{
    if (m_rightLabel)
        setImage(m_rightLabel, path);
}

void NQToolButton::setUpLabelSize(int width, int height)
{
    if (m_upLabel)
        m_upLabel->setFixedSize(width, height);
}

void NQToolButton::setDownLabelSize(int width, int height)
{
    if (m_downLabel)
        m_downLabel->setFixedSize(width, height);
}

void NQToolButton::setDownLabelHeight(int height)
{
    if (m_downLabel)
        m_downLabel->setFixedHeight(height);
}

void NQToolButton::setDownLabelTextColor(const QColor &color)
{
    m_downLabelTextColor = color;
    setDownLabelStyle();
}

void NQToolButton::setTopToBottomNormalBtnColor(const QColor &color)
{
    m_topToBottomNormalColor = color;
    setTopToBottomStyle();
}

void NQToolButton::setTopToBottomHoverBtnColor(const QColor &color)
{
    m_topToBottomHoverColor = color;
    setTopToBottomStyle();
}

void NQToolButton::setTopToBottomPressedBtnColor(const QColor &color)
{
    m_topToBottomPressedColor = color;
    setTopToBottomStyle();
}

void NQToolButton::setTopToBottomDisabledBtnColor(const QColor &color)
{
    m_topToBottomDisabledColor = color;
    setTopToBottomStyle();
}

void NQToolButton::setTopToBottomHoverBtnBorderColor(const QColor &color)
{
    m_topToBottomHoverBorderColor = color;
    setTopToBottomStyle();
}

void NQToolButton::setTopToBottomPressedBtnBorderColor(const QColor &color)
{
    m_topToBottomPressedBorderColor = color;
    setTopToBottomStyle();
}

void NQToolButton::setTopToBottomBorderRadius(int radius)
{
    m_topToBottomBorderRadius = radius;
    if (m_type == ImageAboveCaption)
        setTopToBottomStyle();
}

void NQToolButton::setTopToBottomBtnVlayoutSpace(int space)
{
    if (m_type == ImageAboveCaption && m_verticalLayout)
        m_verticalLayout->setSpacing(space);
}

void NQToolButton::setTopToBottomBtnVlayoutMargins(int left, int top, int right, int bottom)
{
    if (m_type == ImageAboveCaption && m_verticalLayout)
        m_verticalLayout->setContentsMargins(left, top, right, bottom);
}

void NQToolButton::setTopToBottomBtnMaxWidth(int width)
{
    m_maximumCaptionWidth = width;
}

void NQToolButton::setTopToBottomBtnMinWidth(int width)
{
    m_minimumCaptionWidth = width;
}

void NQToolButton::setTopToBottomBtnBorderWidth(int width)
{
    m_captionPadding = width;
}

QColor NQToolButton::downLabelTextColor() const
{
    return m_downLabelTextColor;
}

QColor NQToolButton::topToBottomNormalBtnColor() const
{
    return m_topToBottomNormalColor;
}

QColor NQToolButton::topToBottomHoverBtnColor() const
{
    return m_topToBottomHoverColor;
}

QColor NQToolButton::topToBottomPressedBtnColor() const
{
    return m_topToBottomPressedColor;
}

QColor NQToolButton::topToBottomDisabledBtnColor() const
{
    return m_topToBottomDisabledColor;
}

int NQToolButton::topToBottomBorderRadius() const
{
    return m_topToBottomBorderRadius;
}

QColor NQToolButton::topToBottomHoverBtnBorderColor() const
{
    return m_topToBottomHoverBorderColor;
}

QColor NQToolButton::topToBottomPressedBtnBorderColor() const
{
    return m_topToBottomPressedBorderColor;
}

QLabel *NQToolButton::getLabelRight() const
{
    return m_rightLabel;
}

void NQToolButton::setLabelRightIsVisible(bool isVisible)
{
    if (m_rightLabel)
        m_rightLabel->setVisible(isVisible);
}

QString NQToolButton::fromColorToStr(QColor color)
{
    return orvane::colorText(color);
}
