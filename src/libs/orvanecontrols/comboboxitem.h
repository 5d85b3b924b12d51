#ifndef COMBOBOXITEM_H
#define COMBOBOXITEM_H

#include "orvanecontrolsglobal.h"

#include <QColor>
#include <QPixmap>
#include <QString>
#include <QWidget>

class LabelEx;
class QHBoxLayout;
class QLabel;

/**
 * One row of a ComboBoxEx in image mode: an image at the left and a text beside it.
 *
 * A press and release of any mouse button on the row emits showContent(); ComboBoxEx connects to
 * it. Rows are made by ComboBoxEx::addImageItem(), and the list that shows a row owns it.
 */
class ORVANECONTROLS_EXPORT ComboboxItem : public QWidget
{
    Q_OBJECT

public:
    /// Builds the row, owned by \a parent, with number \a index, showing \a pixmap at its own size,
    /// nothing if it is null, and \a text. A text wider than the new row's text label is elided and
    /// becomes its tool tip.
    ComboboxItem(QWidget *parent, QPixmap pixmap, QString text, int index);

    /// Applies the font colour to the text label.
    void setTextStyle();

    /// Sets the text colour (default 210,210,210). \see fontColor()
    void setFontColor(const QColor &color);
    /// The text colour. \see setFontColor()
    QColor fontColor() const;

    /// Sets the text, elided to the text label's present width. \see text()
    void setText(const QString &text);
    /// The full text. \see setText()
    QString text() const;

    /// Sets the pixmap that showContent() hands out. The row keeps showing the one it was built
    /// with: hosts rely on that to show one picture in the list and another in the closed box.
    void setPixMap(const QPixmap &pixmap);
    /// The pixmap that showContent() hands out. \see setPixMap()
    QPixmap pixMap() const;

    /// Sets the row number, any number, that showContent() hands out. \see index()
    void setIndex(int index);
    /// The row number. \see setIndex()
    int index() const;

    /// The text of a colour in a sheet: "#rrggbb", "#aarrggbb" when translucent, "#000000" when
    /// invalid.
    QString fromColorToStr(QColor color);

Q_SIGNALS:
    /// The row was pressed and released: its pixmap, full text and row number.
    void showContent(QPixmap pixmap, QString text, int index);

protected:
    /// Notes the press, whatever the button; nothing is reported yet.
    void mousePressEvent(QMouseEvent *event) override;
    /// Emits showContent(), if the row was pressed before. The row may be deleted there.
    void mouseReleaseEvent(QMouseEvent *event) override;

private:
    QLabel *m_imageLabel = nullptr;
    LabelEx *m_textLabel = nullptr;
    bool m_isPressed = false;
    QHBoxLayout *m_layout = nullptr;
    QPixmap m_pixmap;
    int m_index{};
    QString m_text;
    QColor m_fontColor;
};

#endif // COMBOBOXITEM_H
