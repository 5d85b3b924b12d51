#ifndef LINEEDITEX_H
#define LINEEDITEX_H

#include "orvanecontrolsglobal.h"

#include <QColor>
#include <QLineEdit>
#include <QString>

class QTimer;

/// The look of a LineEditEx.
enum LineEditType : int {
    NormalLineEdit = 0, ///< Framed.
    UnderlineLineEdit = 1, ///< Without a frame, a line along the bottom.
};

/**
 * A dark line edit, framed or underlined, that can warn of characters file names do not allow.
 *
 * With a warning text set, typing one of / \ : < | " * > ? shows that text as a tool tip at the
 * text cursor for three seconds; the character is typed all the same. The appearance setters
 * recompose the framed look's sheet at once. Sizes are pixels; any value is written into the sheet
 * as it is. All else is QLineEdit's, its signals included.
 */
class ORVANECONTROLS_EXPORT LineEditEx : public QLineEdit
{
    Q_OBJECT

public:
    /// Builds an empty edit of the look \a type, owned by \a parent, without a context menu. A
    /// \a type that is no LineEditType gives an edit without a sheet.
    explicit LineEditEx(QWidget *parent = nullptr, LineEditType type = NormalLineEdit);

    /// Applies the sheet of the type that the edit was built with. An edit of a type that is no
    /// LineEditType keeps the sheet it has.
    void initStyle();
    /// Composes the framed look's sheet from the stored values and applies it, whatever the type.
    void setNormalLineEditStyle();

    /// Sets the frame's width in pixels (default 1) and applies the framed look to an edit of any
    /// type. \see borderWidth()
    void setBorderWidth(int width);
    /// The frame's width in pixels. \see setBorderWidth()
    int borderWidth() const;

    /// Sets the frame's colour (default 128,128,128) and applies the framed look to an edit of any
    /// type. \see borderColor()
    void setBorderColor(const QColor &color);
    /// The frame's colour. \see setBorderColor()
    QColor borderColor() const;

    /// Sets the background colour (default 69,69,69) and applies the framed look to an edit of any
    /// type. \see backgroundColor()
    void setBackgroundColor(const QColor &color);
    /// The background colour. \see setBackgroundColor()
    QColor backgroundColor() const;

    /// Keeps a flag for the host (default false). \see bFouceOut()
    void setBFouceOut(bool focusOut);
    /// The host's flag. \see setBFouceOut()
    bool bFouceOut() const;

    /// Sets the warning of characters that file names do not allow; an empty text, the default,
    /// switches the warning off.
    void setStrToolTips(const QString &text);

    /// The text of a colour in a sheet: "#rrggbb", "#aarrggbb" when translucent, "#000000" when
    /// invalid.
    QString fromColorToStr(QColor color);

protected:
    /// Shows the warning of setStrToolTips() under the cursor, for 3000 ms, when the key is a
    /// character that file names do not allow. The key is then taken as every other.
    void keyPressEvent(QKeyEvent *event) override;
    /// Paints the field, and a line at its bottom if it is an underlined one.
    void paintEvent(QPaintEvent *event) override;

private Q_SLOTS:
    void slot_timerUpDate();

private:
    void showWarning(QPoint globalPosition);

    LineEditType m_type = NormalLineEdit;
    int m_borderWidth = 1;
    QColor m_backgroundColor = QColor(69, 69, 69);
    QColor m_borderColor = QColor(128, 128, 128);
    bool m_focusOut = false;
    QString m_toolTips;
    QTimer *m_timer = nullptr;
};

#endif // LINEEDITEX_H
