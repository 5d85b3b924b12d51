#include "doublespinboxex.h"

#include "internal/spinboxlook.h"
#include "internal/stylesheet.h"

#include <QLocale>

DoubleSpinBoxEx::DoubleSpinBoxEx(QWidget *parent)
    : QDoubleSpinBox(parent)
{
    // Texts are written and read with a decimal point everywhere, so they are checked that way too.
    setLocale(QLocale::c());
    initStyle();
}

void DoubleSpinBoxEx::initStyle()
{
    setAttribute(Qt::WA_MacShowFocusRect, false);
    m_backgroundColor = QColor(51, 51, 51);
    m_bordColor = QColor(128, 128, 128);
    m_fontColor = QColor(255, 255, 255);
    m_disabledFontColor = QColor(112, 112, 112);
    m_fontColorFragment.clear();
    setSpinBoxStyle();
    setContextMenuPolicy(Qt::NoContextMenu);
}

void DoubleSpinBoxEx::setSpinBoxStyle()
{
    orvane::applyStyleSheet(this,
                            orvane::spinBoxSheet(u"DoubleSpinBoxEx", m_fontColorFragment,
                                                 m_backgroundColor, m_bordColor,
                                                 m_disabledFontColor));
}

void DoubleSpinBoxEx::setBackgroundColor(const QColor &color)
{
    m_backgroundColor = color;
    setSpinBoxStyle();
}

QColor DoubleSpinBoxEx::backgroundColor() const
{
    return m_backgroundColor;
}

void DoubleSpinBoxEx::setBordColor(const QColor &color)
{
    m_bordColor = color;
    setSpinBoxStyle();
}

QColor DoubleSpinBoxEx::bordColor() const
{
    return m_bordColor;
}

void DoubleSpinBoxEx::setFontColor(const QColor &color)
{
    m_fontColor = color;
    m_fontColorFragment = orvane::fontColorFragment(color);
    setSpinBoxStyle();
}

QColor DoubleSpinBoxEx::fontColor() const
{
    return m_fontColor;
}

void DoubleSpinBoxEx::setDisabledFontColor(const QColor &color)
{
    m_disabledFontColor = color;
    setSpinBoxStyle();
}

QColor DoubleSpinBoxEx::disabledFontColor() const
{
    return m_disabledFontColor;
}

void DoubleSpinBoxEx::setShowValue(bool show)
{
    // Stored only: hosts rely on the shown text staying as it is until the value is set anew.
    m_showValue = show;
}

bool DoubleSpinBoxEx::showValue() const
{
    return m_showValue;
}

QString DoubleSpinBoxEx::textFromValue(double value) const
{
    return m_showValue ? QString::number(value, 'f', decimals()) : QString(orvane::hiddenValueText);
}

double DoubleSpinBoxEx::valueFromText(const QString &text) const
{
    return m_showValue ? text.toDouble() : 0.0;
}

QString DoubleSpinBoxEx::fromColorToStr(QColor color)
{
    return orvane::colorText(color);
}
