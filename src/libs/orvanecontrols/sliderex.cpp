#include "sliderex.h"

#include "internal/stylesheet.h"

#include <QEvent>
#include <QMouseEvent>
#include <QPointer>

SliderEx::SliderEx(QWidget *parent, Qt::Orientation orientation)
    : QSlider(parent)
    , m_orientation(orientation)
{
    setOrientation(orientation);
    initSliderStyle();
    installEventFilter(this);
}

void SliderEx::initSliderStyle()
{
    const bool horizontal = m_orientation == Qt::Horizontal;
    m_addPageColor = QColor(99, 99, 99);
    m_subPageColor = QColor(153, 153, 153);
    m_handleColor = QColor(128, 128, 128);
    m_handleHoverColor = QColor(182, 182, 182);
    m_grooveWidth = 4;
    m_grooveHeight = 4;
    m_handleWidth = horizontal ? 10 : 14;
    m_handleHeight = horizontal ? 14 : 10;
    m_isWheelEventEffective = false;
    setSliderStyle();
}

void SliderEx::setSliderStyle()
{
    // Hosts rely on these texts: "Horizontal" is capitalised and "-5" has no unit.
    const bool horizontal = m_orientation == Qt::Horizontal;
    const QStringView state = horizontal ? QStringView(u"Horizontal") : u"vertical";
    const QStringView grooveSide = horizontal ? QStringView(u"height:") : u"width:";
    const QStringView handleMargin = horizontal ? QStringView(u"-5 -1px") : u"0 -1px";
    orvane::SheetText handleLayout;
    handleLayout << u";width:" << m_handleWidth << u"px;height:" << m_handleHeight << u"px;margin:"
                 << handleMargin << u";}";
    orvane::SheetText sheet;
    sheet << u"QSlider::add-page:" << state << u"{background-color:" << m_addPageColor
          << u";}"
             u"QSlider::sub-page:"
          << state << u"{background-color:" << m_subPageColor
          << u";}"
             u"QSlider::groove:"
          << state << u"{border:1px ;" << grooveSide
          << (horizontal ? m_grooveHeight : m_grooveWidth)
          << u"px;}"
             u"QSlider::handle:"
          << state << u"{border:1px;background:" << m_handleColor << handleLayout
          << u"QSlider::handle:" << state << u":hover{border:1px;background:" << m_handleHoverColor
          << handleLayout;
    orvane::applyStyleSheet(this, sheet);
}

void SliderEx::setAddPageColor(const QColor &color)
{
    m_addPageColor = color;
    setSliderStyle();
}

QColor SliderEx::addPageColor() const
{
    return m_addPageColor;
}

void SliderEx::setSubPageColor(const QColor &color)
{
    m_subPageColor = color;
    setSliderStyle();
}

QColor SliderEx::subPageColor() const
{
    return m_subPageColor;
}

void SliderEx::setHandleColor(const QColor &color)
{
    m_handleColor = color;
    setSliderStyle();
}

QColor SliderEx::handleColor() const
{
    return m_handleColor;
}

void SliderEx::setHandleHoverColor(const QColor &color)
{
    m_handleHoverColor = color;
    setSliderStyle();
}

QColor SliderEx::handleHoverColor() const
{
    return m_handleHoverColor;
}

void SliderEx::setGrooveWidth(int width)
{
    m_grooveWidth = width;
    setSliderStyle();
}

int SliderEx::grooveWidth() const
{
    return m_grooveWidth;
}

void SliderEx::setGrooveHeight(int height)
{
    m_grooveHeight = height;
    setSliderStyle();
}

int SliderEx::grooveHeight() const
{
    return m_grooveHeight;
}

void SliderEx::setHandleWidth(int width)
{
    m_handleWidth = width;
    setSliderStyle();
}

int SliderEx::handleWidth() const
{
    return m_handleWidth;
}

void SliderEx::setHandleHeight(int height)
{
    m_handleHeight = height;
    setSliderStyle();
}

int SliderEx::handleHeight() const
{
    return m_handleHeight;
}

void SliderEx::setWheelEventEffective(bool effective)
{
    m_isWheelEventEffective = effective;
}

bool SliderEx::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::Wheel)
        return !m_isWheelEventEffective;
    return QObject::eventFilter(watched, event);
}

QString SliderEx::fromColorToStr(QColor color)
{
    return orvane::colorText(color);
}

void SliderEx::mouseReleaseEvent(QMouseEvent *event)
{
    // The signal comes first: hosts rely on the slider being still down in it.
    const QPointer<SliderEx> self(this);
    Q_EMIT sliderMouseRealse();
    if (self)
        QSlider::mouseReleaseEvent(event);
}
