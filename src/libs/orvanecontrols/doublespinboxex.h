#ifndef DOUBLESPINBOXEX_H
#define DOUBLESPINBOXEX_H

#include "orvanecontrolsglobal.h"

#include <QColor>
#include <QDoubleSpinBox>
#include <QString>

/**
 * A dark spin box for numbers with decimals, with image arrow buttons.
 *
 * The value can be hidden behind a placeholder. Colour setters recompose the style sheet at once.
 * The sheet's type selector is the name of this class: it reaches derived classes too, but no
 * other spin box. The box has no signals of its own: connect to QDoubleSpinBox::valueChanged().
 *
 * Numbers have a decimal point in every locale. A text is read as a plain number, so a box with a
 * prefix or a suffix reads every typed text as 0.
 */
class ORVANECONTROLS_EXPORT DoubleSpinBoxEx : public QDoubleSpinBox
{
    Q_OBJECT

public:
    /// Builds a box in the default look, owned by \a parent, that shows its value.
    explicit DoubleSpinBoxEx(QWidget *parent = nullptr);

    /// Sets every colour to its default, an earlier setFontColor() included, applies the sheet and
    /// switches the context menu off. Value, range and flag stay.
    void initStyle();
    /// Composes the style sheet from the stored values and applies it to the box.
    void setSpinBoxStyle();

    /// Sets the background colour (default 51,51,51). \see backgroundColor()
    void setBackgroundColor(const QColor &color);
    /// The background colour. \see setBackgroundColor()
    QColor backgroundColor() const;

    /// Sets the border colour (default 128,128,128); the border is 0 pixels wide. \see bordColor()
    void setBordColor(const QColor &color);
    /// The border colour. \see setBordColor()
    QColor bordColor() const;

    /// Sets the text colour (default white). Until the first call the sheet names no text colour
    /// and the box inherits it. \see fontColor()
    void setFontColor(const QColor &color);
    /// The text colour. \see setFontColor()
    QColor fontColor() const;

    /// Sets the text colour of the disabled box (default 112,112,112). \see disabledFontColor()
    void setDisabledFontColor(const QColor &color);
    /// The text colour of the disabled box. \see setDisabledFontColor()
    QColor disabledFontColor() const;

    /// Shows the value (default), or "---" in its place; a text typed into a box that hides its
    /// value counts as 0. The shown text follows when the value is next set or stepped, or the box
    /// is shown. \see showValue()
    void setShowValue(bool show);
    /// Whether the value is shown. \see setShowValue()
    bool showValue() const;

    /// The text shown for \a value: the number with decimals() digits after a decimal point, "---"
    /// when values are hidden.
    QString textFromValue(double value) const override;
    /// The value of \a text: the number, 0 for any other text or when values are hidden.
    double valueFromText(const QString &text) const override;

    /// The text of a colour in a sheet: "#rrggbb", "#aarrggbb" when translucent, "#000000" when
    /// invalid.
    QString fromColorToStr(QColor color);

private:
    QColor m_backgroundColor;
    QColor m_bordColor;
    QColor m_fontColor;
    QColor m_disabledFontColor;
    bool m_showValue = true;
    QString m_fontColorFragment;
};

#endif // DOUBLESPINBOXEX_H
