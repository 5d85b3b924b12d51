#ifndef SCROLLBAREX_H
#define SCROLLBAREX_H

#include "orvanecontrolsglobal.h"

#include <QColor>
#include <QScrollBar>

namespace orvane
{
class SheetText;
} // namespace orvane

/**
 * A controller that gives an existing scroll bar the library's look.
 *
 * It is never shown itself. Wrap a bar that a scroll area, list, table or tree owns, set sizes and
 * colours, and ask for the vertical or the horizontal style:
 *
 * \code
 * ScrollBarEx style(view->verticalScrollBar(), false);
 * style.setScrollWidth(10);
 * style.setVerticalStyle();
 * \endcode
 *
 * The sheet stays on the bar when the controller goes, so a temporary one will do. The controller
 * neither owns nor watches the bar: do not use it once the bar is gone. Sizes are pixels; any value
 * is written into the sheet as it is. Most setters apply styles at once, and a setter that concerns
 * both styles applies the vertical and then the horizontal one, so finish with the style function
 * of the bar's direction: the style applied last is the one in force.
 */
class ORVANECONTROLS_EXPORT ScrollBarEx : public QScrollBar
{
    Q_OBJECT

public:
    /// Wraps \a target, which must not be null, and takes away its context menu. With \a isLoadImg
    /// its end buttons carry arrow images. No style is applied yet.
    ScrollBarEx(QScrollBar *target, bool isLoadImg);

    /// Sets every size and colour to its default. The sheet stays, and so does isLoadImg().
    void initParameter();

    /// Composes the sheet of a vertical bar and applies it to the target.
    void setVerticalStyle();
    /// Composes the sheet of a horizontal bar and applies it to the target.
    void setHorizontalStyle();

    /// Sets the vertical bar's width, which also keeps the groove off its ends (default 16), and
    /// applies the vertical style. \see scrollWidth()
    void setScrollWidth(int width);
    /// The vertical bar's width. \see setScrollWidth()
    int scrollWidth() const;

    /// Sets the horizontal bar's height, which also keeps the groove off its ends (default 16), and
    /// applies the horizontal style. \see scrollHeight()
    void setScrollHeight(int height);
    /// The horizontal bar's height. \see setScrollHeight()
    int scrollHeight() const;

    /// Sets the vertical handle's width (default 12) and applies the vertical style.
    /// \see scrollBarWidth()
    void setScrollBarWidth(int width);
    /// The vertical handle's width. \see setScrollBarWidth()
    int scrollBarWidth() const;

    /// Sets the horizontal handle's height (default 12) and applies the horizontal style.
    /// \see scrollBarHeight()
    void setScrollBarHeight(int height);
    /// The horizontal handle's height. \see setScrollBarHeight()
    int scrollBarHeight() const;

    /// Sets the margin on both long sides of the handle (default 2; the sheet names no unit) and
    /// applies both styles. \see scrollBarMargin()
    void setScrollBarMargin(int margin);
    /// The margin on both long sides of the handle. \see setScrollBarMargin()
    int scrollBarMargin() const;

    /// Sets the width of the end buttons (default 16) and applies both styles. \see iconWidth()
    void setIconWidth(int width);
    /// The width of the end buttons. \see setIconWidth()
    int iconWidth() const;

    /// Sets the height of the end buttons (default 16) and applies both styles. \see iconHeight()
    void setIconHeight(int height);
    /// The height of the end buttons. \see setIconHeight()
    int iconHeight() const;

    /// Sets the radius of the handle's corners (default 5) and applies both styles.
    /// \see borderRadius()
    void setBorderRadius(int radius);
    /// The radius of the handle's corners. \see setBorderRadius()
    int borderRadius() const;

    /// Sets the vertical handle's least length (default 20) and applies the vertical style. The
    /// horizontal sheet carries it too, in the rule of the hovered handle. \see handerMinHeight()
    void setHanderMinHeight(int height);
    /// The vertical handle's least length. \see setHanderMinHeight()
    int handerMinHeight() const;

    /// Sets the horizontal handle's least length (default 20) and applies the horizontal style.
    /// \see handerMinWidth()
    void setHanderMinWidth(int width);
    /// The horizontal handle's least length. \see setHanderMinWidth()
    int handerMinWidth() const;

    /// Sets the colour of the groove (default 79,79,79) and applies both styles. \see scrollColor()
    void setScrollColor(const QColor &color);
    /// The colour of the groove. \see setScrollColor()
    QColor scrollColor() const;

    /// Sets the colour of the handle (default 56,56,56) and applies both styles.
    /// \see scrollHandleColor()
    void setScrollHandleColor(const QColor &color);
    /// The colour of the handle. \see setScrollHandleColor()
    QColor scrollHandleColor() const;

    /// Sets the colour of the hovered handle (default 31,31,31) and applies both styles.
    /// \see scrollHandlePressedColor()
    void setScrollHandlePressedColor(const QColor &color);
    /// The colour of the hovered handle. \see setScrollHandlePressedColor()
    QColor scrollHandlePressedColor() const;

    /// Chooses whether the end buttons carry arrow images. Stored only: it shows with the next
    /// style applied. \see isLoadImg()
    void setIsLoadImg(bool isLoadImg);
    /// Whether the end buttons carry arrow images. \see setIsLoadImg()
    bool isLoadImg() const;

    /// The text of a colour in a sheet: "#rrggbb", "#aarrggbb" when translucent, "#000000" when
    /// invalid.
    QString fromColorToStr(QColor color);

private:
    void setBothStyles();
    orvane::SheetText horizontalSheet();

    QScrollBar *m_target = nullptr;
    int m_scrollWidth{};
    int m_scrollHeight{};
    int m_scrollBarWidth{};
    int m_scrollBarHeight{};
    int m_scrollBarMargin{};
    int m_iconWidth{};
    int m_iconHeight{};
    int m_borderRadius{};
    int m_handerMinHeight{};
    int m_handerMinWidth{};
    QColor m_scrollColor;
    QColor m_scrollHandleColor;
    QColor m_scrollHandlePressedColor;
    bool m_isLoadImg{};
};

#endif // SCROLLBAREX_H
