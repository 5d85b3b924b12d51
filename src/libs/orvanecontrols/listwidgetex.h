#ifndef LISTWIDGETEX_H
#define LISTWIDGETEX_H

#include "orvanecontrolsglobal.h"

#include <QColor>
#include <QListWidget>
#include <QString>

class CustomListWidgetItem;

/**
 * A list with adjustable colours whose rows are widgets, as a start page shows its projects.
 *
 * A press on a row and a click on its trash button are reported, and nothing is opened or removed:
 * the host does that. Rows, the list included, may be deleted in both signals; a removed row's
 * widget is deleted by the event loop. Rows are 34 pixels high and as wide as the list.
 */
class ORVANECONTROLS_EXPORT ListWidgetEx : public QListWidget
{
    Q_OBJECT

public:
    /// Builds an empty list, owned by \a parent, with the default look in force.
    explicit ListWidgetEx(QWidget *parent = nullptr);

    /// Composes the style sheet from the stored values and applies it to the list.
    void setStyle();

    /// Appends a row that shows \a text and carries the project path \a value, and returns it. The
    /// list owns it.
    CustomListWidgetItem *addCustomItem(QString text, QString value);
    /// Removes the row at \a index; an index outside the list is ignored. Nothing is emitted.
    void deleteItem(int index);
    /// Removes all rows.
    void clearAllItems();
    /// The row that \a item is in, -1 if it is in none or null.
    int getItemIndex(CustomListWidgetItem *item) const;

    /// Sets the background (default 245,245,245). \see bgNormalColor()
    void setBgNormalColor(const QColor &color);
    /// The background. \see setBgNormalColor()
    QColor bgNormalColor() const;
    /// Sets the background of the hovered row (default 235,235,235). \see bgHoverColor()
    void setBgHoverColor(const QColor &color);
    /// The background of the hovered row. \see setBgHoverColor()
    QColor bgHoverColor() const;
    /// Sets the background of the selected row (default 235,235,235). \see bgPressedColor()
    void setBgPressedColor(const QColor &color);
    /// The background of the selected row. \see setBgPressedColor()
    QColor bgPressedColor() const;
    /// Sets the text colour (default black). Until the first call the sheet names no text colour
    /// and the list inherits it. It colours items without a widget; a project's row takes the text
    /// colour of the palette, or of a sheet around the list. \see fontColor()
    void setFontColor(const QColor &color);
    /// The text colour. \see setFontColor()
    QColor fontColor() const;

    /// The text of a colour in a sheet: "#rrggbb", "#aarrggbb" when translucent, "#000000" when
    /// invalid.
    QString fromColorToStr(QColor color);

Q_SIGNALS:
    /// The left mouse button went down over the row \a item; \a path is its project's path.
    void signal_notifyProjectPath(CustomListWidgetItem *item, QString path);
    /// The trash button of \a item was clicked, which is in the row \a index of \a list.
    void signal_notifydeleteItem(ListWidgetEx *list, CustomListWidgetItem *item, int index);
    /// For the host to emit; the list itself never does.
    void signal_HideShow(bool isHide);

public Q_SLOTS:
    /// Emits signal_notifyProjectPath() with \a item, null too, and \a path.
    void slot_notifyProjectPath(CustomListWidgetItem *item, QString path);
    /// Emits signal_notifydeleteItem() with the row that \a item is in, -1 if it is in none.
    void slot_notifyDeleteItem(CustomListWidgetItem *item);

protected:
    /// Takes in new rows. Their layout is put off until the list paints, so that many rows with
    /// widgets cost no more than their number.
    void rowsInserted(const QModelIndex &parent, int start, int end) override;

private:
    QColor m_bgNormalColor = QColor(245, 245, 245);
    QColor m_bgHoverColor = QColor(235, 235, 235);
    QColor m_bgPressedColor = QColor(235, 235, 235);
    QColor m_fontColor = QColor(0, 0, 0);
    QString m_fontColorFragment;
};

#endif // LISTWIDGETEX_H
