#ifndef SPINBOXEX_H
#define SPINBOXEX_H

#include "orvanecontrolsglobal.h"

#include <QColor>
#include <QSpinBox>
#include <QString>

/**
 * A dark spin box with image arrow buttons, made for values that wrap between 359 and 0.
 *
 * After each mouse click on the box signal_valueChanged() reports the direction of the change; a
 * step from 359 to 0 counts as upward, one from 0 to 359 as downward. Keys and wheel are reported
 * by QSpinBox::valueChanged() alone. The value can be hidden behind a placeholder, and the box can
 * be told to give up the keyboard for good once it loses the focus. Colour setters recompose the
 * style sheet at once.
 *
 * A text is read as a plain number, so a box with a prefix or a suffix reads every typed text as 0.
 */
class ORVANECONTROLS_EXPORT SpinBoxEx : public QSpinBox
{
    Q_OBJECT

public:
    /// Builds a box in the default look, owned by \a parent, that shows its value.
    explicit SpinBoxEx(QWidget *parent = nullptr);

    /// Sets every colour to its default, an earlier setFontColor() included, applies the sheet and
    /// switches the context menu off. Value, range and flags stay.
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

    /// Sets the text colour of the disabled box (default 153,153,153). \see disabledFontColor()
    void setDisabledFontColor(const QColor &color);
    /// The text colour of the disabled box. \see setDisabledFontColor()
    QColor disabledFontColor() const;

    /// Shows the value (default), or "---" in its place; a text typed into a box that hides its
    /// value counts as 0. The shown text follows when the value is next set or stepped, or the box
    /// is shown. \see showValue()
    void setShowValue(bool show);
    /// Whether the value is shown. \see setShowValue()
    bool showValue() const;

    /// Lets the box lose the focus as usual (default true). With false the next loss of the focus
    /// sets the focus policy to Qt::NoFocus, so that neither a click nor Tab brings it back, and is
    /// not followed by editingFinished(). \see focusOutEvent()
    void setFocusOutEvent(bool passOn);
    /// Whether the box loses the focus as usual. \see setFocusOutEvent()
    bool focusOutEvent() const;

    /// The text shown for \a value: the number in base 10, "---" when values are hidden.
    QString textFromValue(int value) const override;
    /// The value of \a text: the number in base 10, 0 for any other text or when values are hidden.
    int valueFromText(const QString &text) const override;

    /// The text of a colour in a sheet: "#rrggbb", "#aarrggbb" when translucent, "#000000" when
    /// invalid.
    QString fromColorToStr(QColor color);

Q_SIGNALS:
    /// A mouse click on the box has ended; \a direction is +1 when it raised the value and -1 when
    /// it lowered it or left it unchanged. The box may be deleted here.
    void signal_valueChanged(int direction);

protected:
    /// Takes the key as every spin box.
    void keyPressEvent(QKeyEvent *event) override;
    /// Takes the key as every spin box.
    void keyReleaseEvent(QKeyEvent *event) override;
    /// Remembers the value, to which the release compares, and steps as every spin box. Writes a
    /// line to the debug log.
    void mousePressEvent(QMouseEvent *event) override;
    /// Emits signal_valueChanged() with the direction since the press, where a step between 359 and
    /// 0 counts as one around the turn, and then ends the press, if the box still exists. Writes a
    /// line to the debug log.
    void mouseReleaseEvent(QMouseEvent *event) override;
    /// Loses the focus as usual or, after setFocusOutEvent(false), sets the focus policy to
    /// Qt::NoFocus instead.
    void focusOutEvent(QFocusEvent *event) override;

private:
    QColor m_backgroundColor;
    QColor m_bordColor;
    QColor m_fontColor;
    QColor m_disabledFontColor;
    bool m_showValue = true;
    bool m_pressed = false;
    int m_valueAtPress = 0;
    bool m_focusOutEvent = true;
    QString m_fontColorFragment;
};

#endif // SPINBOXEX_H
