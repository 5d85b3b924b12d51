#include "scrollbarex.h"

#include "internal/stylesheet.h"

namespace
{

/// The declaration of an end button's arrow, empty when the buttons carry none.
orvane::SheetText arrowImage(bool isLoadImg, QStringView name)
{
    orvane::SheetText image;
    if (isLoadImg) {
        image << u"border-image:url(:/Resource/Images/globalResource/scrollbar/" << name
              << u".png);";
    }
    return image;
}

} // namespace

ScrollBarEx::ScrollBarEx(QScrollBar *target, bool isLoadImg)
    : m_target(target)
    , m_isLoadImg(isLoadImg)
{
    m_target->setContextMenuPolicy(Qt::NoContextMenu);
    initParameter();
}

void ScrollBarEx::initParameter()
{
    m_scrollWidth = 16;
    m_scrollHeight = 16;
    m_scrollBarWidth = 12;
    m_scrollBarHeight = 12;
    m_scrollBarMargin = 2;
    m_iconWidth = 16;
    m_iconHeight = 16;
    m_borderRadius = 5;
    m_handerMinHeight = 20;
    m_handerMinWidth = 20;
    m_scrollColor = QColor(79, 79, 79);
    m_scrollHandleColor = QColor(56, 56, 56);
    m_scrollHandlePressedColor = QColor(31, 31, 31);
}

void ScrollBarEx::setVerticalStyle()
{
    orvane::SheetText iconSize;
    iconSize << u"height:" << m_iconHeight << u"px;width:" << m_iconWidth << u"px;";
    orvane::SheetText sheet;
    sheet << u"QScrollBar:vertical{width:" << m_scrollWidth << u"px;background:" << m_scrollColor
          << u";padding-top:" << m_scrollWidth << u"px;padding-bottom:" << m_scrollWidth
          << u"px;border:none;}"
             u"QScrollBar::handle:vertical{background:"
          << m_scrollHandleColor << u";border-radius:" << m_borderRadius << u"px;width:"
          << m_scrollBarWidth
          // The margins carry no unit; hosts rely on the text.
          << u"px;margin-left:" << m_scrollBarMargin << u";margin-right:" << m_scrollBarMargin
          << u";min-height:" << m_handerMinHeight
          << u"px;}"
             u"QScrollBar::handle:vertical:hover{background:"
          << m_scrollHandlePressedColor << u";border-radius:" << m_borderRadius << u"px;min-height:"
          << m_handerMinHeight
          << u"px;}"
             u"QScrollBar::add-line:vertical{"
          << iconSize << arrowImage(m_isLoadImg, u"down_normal")
          << u"subcontrol-position:bottom;}"
             u"QScrollBar::add-page:vertical{background:"
          << m_scrollColor
          << u";}"
             u"QScrollBar::sub-page:vertical{background:"
          << m_scrollColor
          << u";}"
             u"QScrollBar::add-line:vertical:pressed{"
          << iconSize << arrowImage(m_isLoadImg, u"down_pressed")
          << u"subcontrol-position:bottom;}"
             u"QScrollBar::sub-line:vertical{"
          << iconSize << arrowImage(m_isLoadImg, u"up_normal")
          << u"subcontrol-position:top;}"
             u"QScrollBar::sub-line:vertical:pressed{"
          << iconSize << arrowImage(m_isLoadImg, u"up_pressed") << u"subcontrol-position:top;}";
    orvane::applyStyleSheet(m_target, sheet);
}

void ScrollBarEx::setHorizontalStyle()
{
    orvane::applyStyleSheet(m_target, horizontalSheet());
}

orvane::SheetText ScrollBarEx::horizontalSheet()
{
    orvane::SheetText iconSize;
    iconSize << u"width:" << m_iconWidth << u"px;height:" << m_iconHeight << u"px;";
    orvane::SheetText sheet;
    sheet << u"QScrollBar:horizontal{height:" << m_scrollHeight << u"px;background:"
          << m_scrollColor << u";padding-left:" << m_scrollHeight << u"px;padding-right:"
          << m_scrollHeight
          << u"px;}"
             u"QScrollBar::handle:horizontal{background:"
          << m_scrollHandleColor << u";border-radius:" << m_borderRadius << u"px; height:"
          << m_scrollBarHeight << u"px;margin-top:" << m_scrollBarMargin << u";margin-bottom:"
          << m_scrollBarMargin << u"; min-width:"
          << m_handerMinWidth
          // Hosts rely on the hovered handle naming the least height, not the least width.
          << u"px;}"
             u"QScrollBar::handle:horizontal:hover{background:"
          << m_scrollHandlePressedColor << u";border-radius:" << m_borderRadius << u"px;min-height:"
          << m_handerMinHeight
          << u"px;}"
             u"QScrollBar::add-line:horizontal{"
          << iconSize << arrowImage(m_isLoadImg, u"right_normal")
          << u"subcontrol-position:right;}"
             u"QScrollBar::add-page:horizontal{background:"
          << m_scrollColor
          << u";}"
             u"QScrollBar::sub-page:horizontal{background:"
          << m_scrollColor
          << u";}"
             u"QScrollBar::add-line:horizontal:pressed{"
          << iconSize << arrowImage(m_isLoadImg, u"right_pressed")
          << u"subcontrol-position:right;}"
             u"QScrollBar::sub-line:horizontal{"
          << iconSize << arrowImage(m_isLoadImg, u"left_normal")
          << u"subcontrol-position:left;}"
             u"QScrollBar::sub-line:horizontal:pressed{"
          << iconSize << arrowImage(m_isLoadImg, u"left_pressed") << u"subcontrol-position:left;}";
    return sheet;
}

void ScrollBarEx::setBothStyles()
{
    // Of two sheets for one bar the later is in force. Where it is already, nothing has changed.
    if (horizontalSheet().equals(m_target->styleSheet()))
        return;
    setVerticalStyle();
    setHorizontalStyle();
}

void ScrollBarEx::setScrollWidth(int width)
{
    m_scrollWidth = width;
    setVerticalStyle();
}

int ScrollBarEx::scrollWidth() const
{
    return m_scrollWidth;
}

void ScrollBarEx::setScrollHeight(int height)
{
    m_scrollHeight = height;
    setHorizontalStyle();
}

int ScrollBarEx::scrollHeight() const
{
    return m_scrollHeight;
}

void ScrollBarEx::setScrollBarWidth(int width)
{
    m_scrollBarWidth = width;
    setVerticalStyle();
}

int ScrollBarEx::scrollBarWidth() const
{
    return m_scrollBarWidth;
}

void ScrollBarEx::setScrollBarHeight(int height)
{
    m_scrollBarHeight = height;
    setHorizontalStyle();
}

int ScrollBarEx::scrollBarHeight() const
{
    return m_scrollBarHeight;
}

void ScrollBarEx::setScrollBarMargin(int margin)
{
    m_scrollBarMargin = margin;
    setBothStyles();
}

int ScrollBarEx::scrollBarMargin() const
{
    return m_scrollBarMargin;
}

void ScrollBarEx::setIconWidth(int width)
{
    m_iconWidth = width;
    setBothStyles();
}

int ScrollBarEx::iconWidth() const
{
    return m_iconWidth;
}

void ScrollBarEx::setIconHeight(int height)
{
    m_iconHeight = height;
    setBothStyles();
}

int ScrollBarEx::iconHeight() const
{
    return m_iconHeight;
}

void ScrollBarEx::setBorderRadius(int radius)
{
    m_borderRadius = radius;
    setBothStyles();
}

int ScrollBarEx::borderRadius() const
{
    return m_borderRadius;
}

void ScrollBarEx::setHanderMinHeight(int height)
{
    m_handerMinHeight = height;
    setVerticalStyle();
}

int ScrollBarEx::handerMinHeight() const
{
    return m_handerMinHeight;
}

void ScrollBarEx::setHanderMinWidth(int width)
{
    m_handerMinWidth = width;
    setHorizontalStyle();
}

int ScrollBarEx::handerMinWidth() const
{
    return m_handerMinWidth;
}

void ScrollBarEx::setScrollColor(const QColor &color)
{
    m_scrollColor = color;
    setBothStyles();
}

QColor ScrollBarEx::scrollColor() const
{
    return m_scrollColor;
}

void ScrollBarEx::setScrollHandleColor(const QColor &color)
{
    m_scrollHandleColor = color;
    setBothStyles();
}

QColor ScrollBarEx::scrollHandleColor() const
{
    return m_scrollHandleColor;
}

void ScrollBarEx::setScrollHandlePressedColor(const QColor &color)
{
    m_scrollHandlePressedColor = color;
    setBothStyles();
}

QColor ScrollBarEx::scrollHandlePressedColor() const
{
    return m_scrollHandlePressedColor;
}

void ScrollBarEx::setIsLoadImg(bool isLoadImg)
{
    // Stored only: hosts rely on the sheet staying as it is until a style function is called.
    m_isLoadImg = isLoadImg;
}

bool ScrollBarEx::isLoadImg() const
{
    return m_isLoadImg;
}

QString ScrollBarEx::fromColorToStr(QColor color)
{
    return orvane::colorText(color);
}
