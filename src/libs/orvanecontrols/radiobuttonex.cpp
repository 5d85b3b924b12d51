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
    orvane::applyStyleSheet(
        this,
        "QRadioButton::indicator {width:" + QString::number(m_indicatorWidth)
            + "px;height:" + QString::number(m_indicatorHeight)
            + "px;}"
              "QRadioButton::disabled{color:"
            + fromColorToStr(m_disabledFontColor)
            + ";font: SimSun Arial;}"
              "QRadioButton::indicator::unchecked{image: "
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
            // The fragment ends in a semicolon of its own; hosts rely on the text as it is.
            + QString::number(m_space) + "px;" + m_fontColorFragment + ";}");
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
