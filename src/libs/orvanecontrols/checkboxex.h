#ifndef CHECKBOXEX_H
#define CHECKBOXEX_H

#include "orvanecontrolsglobal.h"

#include <QCheckBox>
#include <QColor>
#include <QString>
#include <QVariant>

/**
 * A check box with image indicators, adjustable colours and a payload for the host.
 *
 * The indicator is an image for each of unchecked, checked, hovered and checked-disabled, scaled
 * to the indicator size. Appearance setters recompose the style sheet at once, except
 * setCheckedColor(), which only stores. The box has no signals of its own: connect to toggled(),
 * clicked() or stateChanged(). Sizes are pixels; any value is written into the sheet as it is.
 */
class ORVANECONTROLS_EXPORT CheckBoxEx : public QCheckBox
{
    Q_OBJECT

public:
    /// Builds an unchecked box without text, owned by \a parent, with the default look in force.
    explicit CheckBoxEx(QWidget *parent = nullptr);

    /// Sets every appearance parameter to its default, an earlier setFontColor() included, and
    /// applies the sheet. Text, payload and flag stay.
    void initStyle();
    /// Composes the style sheet from the stored values and applies it to the box.
    void setCheckBoxStyle();

    /// Sets the gap between indicator and text in pixels (default 5). \see spacing()
    void setSpacing(int spacing);
    /// The gap between indicator and text in pixels. \see setSpacing()
    int spacing() const;

    /// Sets the indicator's width in pixels (default 15). \see indicatorWidth()
    void setIndicatorWidth(int width);
    /// The indicator's width in pixels. \see setIndicatorWidth()
    int indicatorWidth() const;

    /// Sets the indicator's height in pixels (default 15). \see indicatorHeight()
    void setIndicatorHeight(int height);
    /// The indicator's height in pixels. \see setIndicatorHeight()
    int indicatorHeight() const;

    /// Sets the text colour (default white). Until the first call the sheet names no text colour
    /// and the box inherits it. \see fontColor()
    void setFontColor(const QColor &color);
    /// The text colour. \see setFontColor()
    QColor fontColor() const;

    /// Sets the text colour of the disabled box (default 112,112,112). \see disabledFontColor()
    void setDisabledFontColor(const QColor &color);
    /// The text colour of the disabled box. \see setDisabledFontColor()
    QColor disabledFontColor() const;

    /// Stores a hover text colour (default 101,124,152) for hoverFontColor(); it is not drawn.
    void setHoverFontColor(const QColor &color);
    /// The stored hover text colour. \see setHoverFontColor()
    QColor hoverFontColor() const;

    /// Stores the colour of the checked state (default white). It shows after the next setter that
    /// recomposes the sheet, so that a host can set it before a group of other parameters.
    void setCheckedColor(const QColor &color);

    /// Shows \a text, elided at its right end when it is wider than the box less 20 pixels; the
    /// tool tip then holds the full text, otherwise it is empty. Measured now: a later resize does
    /// not elide anew. \see text()
    void setText(const QString &text);
    /// The full text last set, elided or not. \see setText()
    QString text() const;

    /// Attaches any value of the host's to the box. \see data()
    void setData(QVariant data);
    /// The host's value, invalid until set. \see setData()
    QVariant data();

    /// Keeps a flag for the host's selection bookkeeping (default false). \see isLastSelectd()
    void SetIsLastSelectd(bool isLast);
    /// The host's flag. \see SetIsLastSelectd()
    bool isLastSelectd();

    /// The text of a colour in a sheet: "#rrggbb", "#aarrggbb" when translucent, "#000000" when
    /// invalid.
    QString fromColorToStr(QColor color);

protected:
    /// Presses the box as every button, and repaints it.
    void mousePressEvent(QMouseEvent *event) override;
    /// Toggles the box as every button, and repaints it.
    void mouseReleaseEvent(QMouseEvent *event) override;

private:
    int m_spacing{};
    QColor m_fontColor;
    QColor m_disabledFontColor;
    QColor m_hoverFontColor;
    int m_indicatorWidth{};
    int m_indicatorHeight{};
    QColor m_checkedColor;
    QString m_fontColorFragment;
    QVariant m_data;
    bool m_isLastSelected = false;
    QString m_text;
};

#endif // CHECKBOXEX_H
