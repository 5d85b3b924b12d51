#ifndef LABELEX_H
#define LABELEX_H

#include "orvanecontrolsglobal.h"

#include <QColor>
#include <QLabel>
#include <QString>

/**
 * A text label that reports the mouse: the press of the left button, the pointer entering and the
 * pointer leaving.
 *
 * A composite widget reacts to such a label as to a button. The text is elided at its right end
 * when it is wider than the label, with the full text as tool tip, and is coloured by a style sheet
 * of one rule. Everything else, such as alignment, pictures and links, is QLabel's own.
 */
class ORVANECONTROLS_EXPORT LabelEx : public QLabel
{
    Q_OBJECT

public:
    /// Builds an empty label, owned by \a parent, with the text colour 210,210,210.
    explicit LabelEx(QWidget *parent = nullptr);

    /// Sets the text colour (default 210,210,210). It lives in the style sheet alone: read it
    /// there.
    void setFontColor(QColor color);

    /// Shows \a text, elided at its right end when it is wider than the label; the tool tip then
    /// holds the full text, otherwise it is empty. Measured now: after a resize, set the text again
    /// to elide it anew. \see text()
    void setText(const QString &text);
    /// The full text last set, elided or not. \see setText()
    QString text() const;

    /// The text of a colour in a sheet: "#rrggbb", "#aarrggbb" when translucent, "#000000" when
    /// invalid.
    QString fromColorToStr(QColor color);

Q_SIGNALS:
    /// The left mouse button went down over the label; its release is not waited for, and both
    /// presses of a double click count. The label may be deleted here.
    void signal_mouseclicked();
    /// The pointer came onto the label. To delete the label here, use deleteLater(): Qt itself goes
    /// on using the widget that the pointer enters. The same holds for signal_mouseleave().
    void signal_mouseenter();
    /// The pointer left the label.
    void signal_mouseleave();

protected:
    /// Emits signal_mouseclicked() when the left button goes down. The event then goes to QLabel,
    /// if the label still exists.
    void mousePressEvent(QMouseEvent *e) override;
    /// Emits signal_mouseenter().
    void enterEvent(QEvent *e) override;
    /// Emits signal_mouseleave().
    void leaveEvent(QEvent *e) override;

private:
    QString m_text;
};

#endif // LABELEX_H
