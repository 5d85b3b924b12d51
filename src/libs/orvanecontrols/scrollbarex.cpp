#include "scrollbarex.h"

#include "internal/stylesheet.h"

namespace
{

/// The declaration of an end button's arrow, empty when the buttons carry none.
QString arrowImage(bool isLoadImg, const char *name)
{
    if (!isLoadImg)
        return QString();
    return QStringLiteral("border-image:url(:/Resource/Images/globalResource/scrollbar/%1.png);")
        .arg(QLatin1String(name));
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
    const QString width = QString::number(m_scrollWidth);
    const QString margin = QString::number(m_scrollBarMargin);
    const QString radius = QString::number(m_borderRadius);
    const QString minHeight = QString::number(m_handerMinHeight);
    const QString color = fromColorToStr(m_scrollColor);
    const QString iconSize = "height:" + QString::number(m_iconHeight)
        + "px;width:" + QString::number(m_iconWidth) + "px;";
    orvane::applyStyleSheet(
        m_target,
        "QScrollBar:vertical{width:" + width + "px;background:" + color + ";padding-top:" + width
            + "px;padding-bottom:" + width
            + "px;border:none;}"
              "QScrollBar::handle:vertical{background:"
            + fromColorToStr(m_scrollHandleColor) + ";border-radius:" + radius + "px;width:"
            + QString::number(m_scrollBarWidth)
            // The margins carry no unit; hosts rely on the text.
            + "px;margin-left:" + margin + ";margin-right:" + margin + ";min-height:" + minHeight
            + "px;}"
              "QScrollBar::handle:vertical:hover{background:"
            + fromColorToStr(m_scrollHandlePressedColor) + ";border-radius:" + radius
            + "px;min-height:" + minHeight
            + "px;}"
              "QScrollBar::add-line:vertical{"
            + iconSize + arrowImage(m_isLoadImg, "down_normal")
            + "subcontrol-position:bottom;}"
              "QScrollBar::add-page:vertical{background:"
            + color
            + ";}"
              "QScrollBar::sub-page:vertical{background:"
            + color
            + ";}"
              "QScrollBar::add-line:vertical:pressed{"
            + iconSize + arrowImage(m_isLoadImg, "down_pressed")
            + "subcontrol-position:bottom;}"
              "QScrollBar::sub-line:vertical{"
            + iconSize + arrowImage(m_isLoadImg, "up_normal")
            + "subcontrol-position:top;}"
              "QScrollBar::sub-line:vertical:pressed{"
            + iconSize + arrowImage(m_isLoadImg, "up_pressed") + "subcontrol-position:top;}");
}

void ScrollBarEx::setHorizontalStyle()
{
    orvane::applyStyleSheet(m_target, horizontalSheet());
}

QString ScrollBarEx::horizontalSheet()
{
    const QString height = QString::number(m_scrollHeight);
    const QString margin = QString::number(m_scrollBarMargin);
    const QString radius = QString::number(m_borderRadius);
    const QString color = fromColorToStr(m_scrollColor);
    const QString iconSize = "width:" + QString::number(m_iconWidth)
        + "px;height:" + QString::number(m_iconHeight) + "px;";
    return "QScrollBar:horizontal{height:" + height + "px;background:" + color
        + ";padding-left:" + height + "px;padding-right:" + height
        + "px;}"
          "QScrollBar::handle:horizontal{background:"
        + fromColorToStr(m_scrollHandleColor) + ";border-radius:" + radius
        + "px; height:" + QString::number(m_scrollBarHeight) + "px;margin-top:" + margin
        + ";margin-bottom:" + margin + "; min-width:"
        + QString::number(m_handerMinWidth)
        // Hosts rely on the hovered handle naming the least height, not the least width.
        + "px;}"
          "QScrollBar::handle:horizontal:hover{background:"
        + fromColorToStr(m_scrollHandlePressedColor) + ";border-radius:" + radius
        + "px;min-height:" + QString::number(m_handerMinHeight)
        + "px;}"
          "QScrollBar::add-line:horizontal{"
        + iconSize + arrowImage(m_isLoadImg, "right_normal")
        + "subcontrol-position:right;}"
          "QScrollBar::add-page:horizontal{background:"
        + color
        + ";}"
          "QScrollBar::sub-page:horizontal{background:"
        + color
        + ";}"
          "QScrollBar::add-line:horizontal:pressed{"
        + iconSize + arrowImage(m_isLoadImg, "right_pressed")
        + "subcontrol-position:right;}"
          "QScrollBar::sub-line:horizontal{"
        + iconSize + arrowImage(m_isLoadImg, "left_normal")
        + "subcontrol-position:left;}"
          "QScrollBar::sub-line:horizontal:pressed{"
        + iconSize + arrowImage(m_isLoadImg, "left_pressed") + "subcontrol-position:left;}";
}

void ScrollBarEx::setBothStyles()
{
    // Of two sheets for one bar the later is in force. Where it is already, nothing has changed.
    if (m_target->styleSheet() == horizontalSheet())
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
