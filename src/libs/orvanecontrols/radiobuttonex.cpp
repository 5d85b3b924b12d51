#include "radiobuttonex.h"

#include "internal/elidedtext.h"
#include "internal/stylesheet.h"

RadioButtonEx::RadioButtonEx(QWidget *parent)
    : QRadioButton(parent)
{
    init();
    setStyle();
}

void RadioButtonEx::init()
{
    m_indicatorWidth = 15;
    m_indicatorHeight = 15;
    m_space = 5;
    m_fontColor = QColor(255, 255, 255);
    m_disabledFontColor = QColor(112, 112, 112);
    m_fontColorFragment.clear();
}

void RadioButtonEx::setStyle()
{
    orvane::SheetText sheet;
    sheet << u"QRadioButton::indicator {width:" << m_indicatorWidth << u"px;height:"
          << m_indicatorHeight
          << u"px;}"
             u"QRadioButton::disabled{color:"
          << m_disabledFontColor
          << u";font: SimSun Arial;}"
             u"QRadioButton::indicator::unchecked{image: "
             u"url(:/Resource/Images/globalResource/radiobutton/radiobutton_uncheck.png);}"
             u"QRadioButton::indicator::checked{image: "
             u"url(:/Resource/Images/globalResource/radiobutton/radiobutton_check.png);}"
             u"QRadioButton::indicator::unchecked:hover{image: "
             u"url(:/Resource/Images/globalResource/radiobutton/radiobutton_uncheck_hover.png);}"
             u"QRadioButton::indicator::checked:hover{image: "
             u"url(:/Resource/Images/globalResource/radiobutton/radiobutton_check_hover.png);}"
             u"QRadioButton::indicator::unchecked:disabled{image: "
             u"url(:/Resource/Images/globalResource/radiobutton/disabled_unchecked.png);}"
             u"QRadioButton::indicator::checked:disabled{image: "
             u"url(:/Resource/Images/globalResource/radiobutton/disabled_checked.png);}"
             u"QRadioButton{spacing: "
          // The fragment ends in a semicolon of its own; hosts rely on the text as it is.
          << m_space << u"px;" << m_fontColorFragment << u";}";
    orvane::applyStyleSheet(this, sheet);
}

void RadioButtonEx::setSpace(int space)
{
    m_space = space;
    setStyle();
}

int RadioButtonEx::space() const
{
    return m_space;
}

void RadioButtonEx::setIndicatorWidth(int width)
{
    m_indicatorWidth = width;
    setStyle();
}

int RadioButtonEx::indicatorWidth() const
{
    return m_indicatorWidth;
}

void RadioButtonEx::setIndicatorHeight(int height)
{
    m_indicatorHeight = height;
    setStyle();
}

int RadioButtonEx::indicatorHeight() const
{
    return m_indicatorHeight;
}

void RadioButtonEx::setFontColor(const QColor &color)
{
    m_fontColor = color;
    m_fontColorFragment = orvane::fontColorFragment(color);
    setStyle();
}

QColor RadioButtonEx::fontColor() const
{
    return m_fontColor;
}

void RadioButtonEx::setDisabledFontColor(const QColor &color)
{
    m_disabledFontColor = color;
    setStyle();
}

QColor RadioButtonEx::disabledFontColor() const
{
    return m_disabledFontColor;
}

void RadioButtonEx::setText(const QString &text)
{
    m_text = text;
    textChange(text);
}

void RadioButtonEx::textChange(const QString &text)
{
    m_shownText = text;
    // Any numbers are taken, whose sum need not be an int.
    const qint64 reservedWidth = qint64(m_space) + m_indicatorWidth;
    const qint64 left = reservedWidth < width() ? width() - reservedWidth : width();
    const int available = int(qMin<qint64>(left, QWIDGETSIZE_MAX));
    QRadioButton::setText(orvane::elideWithToolTip(this, text, available));
}

QString RadioButtonEx::text() const
{
    return m_shownText;
}

QString RadioButtonEx::fromColorToStr(QColor color)
{
    return orvane::colorText(color);
}
