#ifndef RADIOBUTTONEX_H
#define RADIOBUTTONEX_H

#include "orvanecontrolsglobal.h"

#include <QColor>
#include <QRadioButton>
#include <QString>

/**
 * A radio button with image indicators and adjustable colours.
 *
 * The indicator is an image for each of unchecked and checked, plain, hovered and disabled, scaled
 * to the indicator size. Appearance setters recompose the style sheet at once. The button has no
 * signals of its own: connect to toggled() or clicked(). Sizes are pixels; any value is written
 * into the sheet as it is.
 */
class ORVANECONTROLS_EXPORT RadioButtonEx : public QRadioButton
{
    Q_OBJECT

public:
    /// Builds an unchecked button without text, owned by \a parent, with the default look in force.
    explicit RadioButtonEx(QWidget *parent = nullptr);

    /// Sets every appearance parameter to its default, an earlier setFontColor() included. The
    /// sheet stays as it is until setStyle() or a setter recomposes it. The text stays.
    void init();
    /// Composes the style sheet from the stored values and applies it to the button.
    void setStyle();

    /// Sets the space between indicator and text in pixels (default 5). \see space()
    void setSpace(int space);
    /// The space between indicator and text in pixels. \see setSpace()
    int space() const;

    /// Sets the indicator's width in pixels (default 15). \see indicatorWidth()
    void setIndicatorWidth(int width);
    /// The indicator's width in pixels. \see setIndicatorWidth()
    int indicatorWidth() const;

    /// Sets the indicator's height in pixels (default 15). \see indicatorHeight()
    void setIndicatorHeight(int height);
    /// The indicator's height in pixels. \see setIndicatorHeight()
    int indicatorHeight() const;

    /// Sets the text colour (default white). Until the first call the sheet names no text colour
    /// and the button inherits it. \see fontColor()
    void setFontColor(const QColor &color);
    /// The text colour. \see setFontColor()
    QColor fontColor() const;

    /// Sets the text colour of the disabled button (default 112,112,112). \see disabledFontColor()
    void setDisabledFontColor(const QColor &color);
    /// The text colour of the disabled button. \see setDisabledFontColor()
    QColor disabledFontColor() const;

    /// Shows \a text as textChange() does. \see text()
    void setText(const QString &text);
    /// Shows \a text, elided at its right end when it is wider than what indicator and space leave
    /// of the button, or than the whole button when they leave nothing. The tool tip then holds the
    /// full text, otherwise it is empty. Measured now: a later resize does not elide anew.
    /// \see text()
    void textChange(const QString &text);
    /// The full text last shown by setText() or textChange(), elided or not.
    QString text() const;

    /// The text of a colour in a sheet: "#rrggbb", "#aarrggbb" when translucent, "#000000" when
    /// invalid.
    QString fromColorToStr(QColor color);

private:
    int m_indicatorWidth{};
    int m_indicatorHeight{};
    int m_space{};
    QColor m_fontColor;
    QColor m_disabledFontColor;
    QString m_fontColorFragment;
    QString m_text; ///< What setText() was given; textChange() alone leaves it.
    QString m_shownText;
};

#endif // RADIOBUTTONEX_H
