#include "checkboxex.h"

#include "internal/elidedtext.h"
#include "internal/stylesheet.h"

#include <QMouseEvent>

CheckBoxEx::CheckBoxEx(QWidget *parent)
    : QCheckBox(parent)
{
    initStyle();
}

void CheckBoxEx::initStyle()
{
    m_spacing = 5;
    m_fontColor = QColor(255, 255, 255);
    m_disabledFontColor = QColor(112, 112, 112);
    m_hoverFontColor = QColor(101, 124, 152);
    m_indicatorWidth = 15;
    m_indicatorHeight = 15;
    m_checkedColor = QColor(255, 255, 255);
    m_fontColorFragment.clear();
    setCheckBoxStyle();
}

void CheckBoxEx::setCheckBoxStyle()
{
    orvane::SheetText sheet;
    sheet << u"QCheckBox{spacing:" << m_spacing << u"px;" << m_fontColorFragment
          << u"}"
             u"QCheckBox::disabled{color:"
          << m_disabledFontColor
          << u";font: SimSun Arial;}"
             u"QCheckBox::indicator{width:"
          << m_indicatorWidth << u"px;height:" << m_indicatorHeight
          << u"px;}"
             u"QCheckBox::indicator:unchecked{border-image: "
             u"url(:/Resource/Images/globalResource/checkbox/checkbox_normal.png);color:white;}"
             u"QCheckBox::indicator:unchecked:hover{border-image: "
             u"url(:/Resource/Images/globalResource/checkbox/checkbox_unchecked_hover.png);"
             u"color:white;}"
             u"QCheckBox::indicator:checked{border-image: "
             u"url(:/Resource/Images/globalResource/checkbox/checkbox_pressed.png);color:"
          << m_checkedColor
          << u"}"
             u"QCheckBox::indicator:checked:hover{border-image: "
             u"url(:/Resource/Images/globalResource/checkbox/checkbox_checked_hover.png);color:"
          << m_checkedColor
          << u"}"
             u"QCheckBox::indicator:checked:disabled{"
             u"image:url(:/Resource/Images/globalResource/checkbox/checked_disabled.png);}";
    orvane::applyStyleSheet(this, sheet);
}

void CheckBoxEx::setSpacing(int spacing)
{
    m_spacing = spacing;
    setCheckBoxStyle();
}

int CheckBoxEx::spacing() const
{
    return m_spacing;
}

void CheckBoxEx::setIndicatorWidth(int width)
{
    m_indicatorWidth = width;
    setCheckBoxStyle();
}

int CheckBoxEx::indicatorWidth() const
{
    return m_indicatorWidth;
}

void CheckBoxEx::setIndicatorHeight(int height)
{
    m_indicatorHeight = height;
    setCheckBoxStyle();
}

int CheckBoxEx::indicatorHeight() const
{
    return m_indicatorHeight;
}

void CheckBoxEx::setFontColor(const QColor &color)
{
    m_fontColor = color;
    m_fontColorFragment = orvane::fontColorFragment(color);
    setCheckBoxStyle();
}

QColor CheckBoxEx::fontColor() const
{
    return m_fontColor;
}

void CheckBoxEx::setDisabledFontColor(const QColor &color)
{
    m_disabledFontColor = color;
    setCheckBoxStyle();
}

QColor CheckBoxEx::disabledFontColor() const
{
    return m_disabledFontColor;
}

void CheckBoxEx::setHoverFontColor(const QColor &color)
{
    m_hoverFontColor = color;
    setCheckBoxStyle();
}

QColor CheckBoxEx::hoverFontColor() const
{
    return m_hoverFontColor;
}

void CheckBoxEx::setCheckedColor(const QColor &color)
{
    // Stored only: hosts rely on the sheet staying as it is until another setter recomposes it.
    m_checkedColor = color;
}

void CheckBoxEx::setText(const QString &text)
{
    // What indicator and spacing take of the width; fixed, whatever their own sizes are.
    constexpr int reservedWidth = 20;
    m_text = text;
    QCheckBox::setText(orvane::elideWithToolTip(this, text, width() - reservedWidth));
}

QString CheckBoxEx::text() const
{
    return m_text;
}

void CheckBoxEx::setData(QVariant data)
{
    m_data = std::move(data);
}

QVariant CheckBoxEx::data()
{
    return m_data;
}

void CheckBoxEx::SetIsLastSelectd(bool isLast)
{
    m_isLastSelected = isLast;
}

bool CheckBoxEx::isLastSelectd()
{
    return m_isLastSelected;
}

QString CheckBoxEx::fromColorToStr(QColor color)
{
    return orvane::colorText(color);
}

void CheckBoxEx::mousePressEvent(QMouseEvent *event)
{
    update();
    QAbstractButton::mousePressEvent(event);
}

void CheckBoxEx::mouseReleaseEvent(QMouseEvent *event)
{
    update();
    QAbstractButton::mouseReleaseEvent(event);
}
