#ifndef COMBOBOXEX_H
#define COMBOBOXEX_H

#include "orvanecontrolsglobal.h"

#include <QColor>
#include <QComboBox>
#include <QList>
#include <QListWidget>
#include <QPixmap>
#include <QPointer>
#include <QString>

#include <memory>

class ComboboxItem;

/**
 * A non-editable drop-down in one of two modes.
 *
 * In text mode it holds the ordinary items of QComboBox, and its tool tip is the current text when
 * that does not fit. addImageItem() begins the image mode: every row of the popup is a ComboboxItem
 * (an image and a text) in a QListWidget, and the closed box paints the chosen row's image and, on
 * request, its text.
 *
 * Colour and width setters recompose the style sheet at once. Sizes are pixels; any value is
 * written into the sheet as it is. Only setCurrentIndex() and a chosen row change what the closed
 * box shows in image mode; the current index that Qt itself moves (keys, wheel, the first row
 * added, a row removed) does not.
 */
class ORVANECONTROLS_EXPORT ComboBoxEx : public QComboBox
{
    Q_OBJECT

public:
    /// Builds an empty box in text mode, owned by \a parent. Each image path that is not a null
    /// string replaces the arrow image of the closed, the open and the disabled box.
    explicit ComboBoxEx(QWidget *parent = nullptr, QString normalImg = QString(),
                        QString downImg = QString(), QString disabledImg = QString());

    /// Composes the style sheet from the stored values and applies it to the box.
    void setControlStyleSheet();

    /// Appends a row with the image at \a imagePath and \a text. The first row makes the list
    /// widget, unless setPListWidget() gave one. The item height becomes the image's height + 20;
    /// an image that cannot be loaded counts as empty.
    void addImageItem(QString imagePath, QString text);
    /// Makes row \a index current. In image mode the closed box then shows that row, and
    /// signal_clickedItem() is emitted whether the index changes or not; a row that does not exist
    /// leaves image and text as they were.
    void setCurrentIndex(int index);

    /// Enables or disables the box and shows the picture of the new state.
    /// \see setNormalAndDisabledPixMap()
    void setComboxEnabled(bool enabled);
    /// Stores the pictures of the enabled and the disabled box; the one of the present state
    /// becomes the default pixmap. A null one shows nothing. \see setDefaultPixMap()
    void setNormalAndDisabledPixMap(QPixmap normal, QPixmap disabled);

    /// The text of row \a index in image mode; empty when there is no such row.
    QString getItemText(int index);
    /// Removes row \a index; in image mode the row leaves the widget item list too and the rows
    /// behind it move up. An index out of range does nothing.
    void removeItem(int index);
    /// Removes all rows. getText() and the picture shown stay those of the last choice.
    void clear();

    /// Whether the box paints the default pixmap, at half its size, and nothing of the rows.
    void setIsChangeImg(bool isChangeImg);
    /// The picture that is painted at half its pixel size after setIsChangeImg(true).
    void setDefaultPixMap(QPixmap pixmap);

    /// Sets the background of box and rows (default 69,69,69). \see getBgCurrentItemColor()
    void setBgCurrentItemColor(const QColor &color);
    /// The background of box and rows. \see setBgCurrentItemColor()
    QColor getBgCurrentItemColor() const;
    /// Sets the background of the hovered box (default 80,80,80). \see getBgHoverItemColor()
    void setBgHoverItemColor(const QColor &color);
    /// The background of the hovered box. \see setBgHoverItemColor()
    QColor getBgHoverItemColor() const;
    /// Sets the background of the pressed box (default 69,69,69).
    void setBgPressedItemColor(const QColor &color);
    /// Sets the border colour of the pressed box (default 128,128,128).
    void setBorderPressedColor(const QColor &color);
    /// Sets the border colour (default 128,128,128).
    void setBorderNormalColor(const QColor &color);
    /// Sets the border colour of the hovered box (default 90,90,90). \see getBorderHoverColor()
    void setBorderHoverColor(const QColor &color);
    /// The border colour of the hovered box. \see setBorderHoverColor()
    QColor getBorderHoverColor() const;
    /// Sets the text colour of box and rows (default 210,210,210); image rows take the one in
    /// force when they are added. \see getFontColor()
    void setFontColor(const QColor &color);
    /// The text colour of box and rows. \see setFontColor()
    QColor getFontColor() const;
    /// Sets the text colour of the disabled box (default 112,112,112). \see getDisabledFontColor()
    void setDisabledFontColor(const QColor &color);
    /// The text colour of the disabled box. \see setDisabledFontColor()
    QColor getDisabledFontColor() const;
    /// Sets the background of the row under the pointer (default 66,145,240).
    /// \see getSelectionBgColor()
    void setSelectionBgColor(const QColor &color);
    /// The background of the row under the pointer. \see setSelectionBgColor()
    QColor getSelectionBgColor() const;

    /// Sets the height of a row in pixels (default 24). \see getItemHeight()
    void setItemHeight(int height);
    /// The height of a row in pixels. \see setItemHeight()
    int getItemHeight() const;
    /// Sets the least width of the drop-down arrow's field in pixels (default 0).
    /// \see getItemWidth()
    void setItemWidth(int width);
    /// The least width of the drop-down arrow's field in pixels. \see setItemWidth()
    int getItemWidth() const;
    /// Sets the least width of the popup's list in pixels (default 0). \see getListViewWidth()
    void setListViewWidth(int width);
    /// The least width of the popup's list in pixels. \see setListViewWidth()
    int getListViewWidth() const;
    /// Sets the width of the normal and the disabled border in pixels (default 1).
    /// \see getBorderWidth()
    void setBorderWidth(int width);
    /// The width of the normal and the disabled border. \see setBorderWidth()
    int getBorderWidth() const;
    /// Sets the width of the hovered and the pressed border in pixels (default 1).
    /// \see getBorderHoverWidth()
    void setBorderHoverWidth(int width);
    /// The width of the hovered and the pressed border. \see setBorderHoverWidth()
    int getBorderHoverWidth() const;
    /// Stores a width (default 1) for getBorderPressedWidth(); the pressed border is drawn with
    /// the hover width.
    void setBorderPressedWidth(int width);
    /// The stored width. \see setBorderPressedWidth()
    int getBorderPressedWidth() const;
    /// Sets the radius of the border's corners in pixels (default 3).
    void setBorderRadius(const int &radius);

    /// Gives the list widget that addImageItem() fills, null for none. The box neither shows nor
    /// owns it; a host that wants it as popup gives its model and view to the box itself.
    /// \see getPListWidget()
    void setPListWidget(QListWidget *list);
    /// The list widget of the image mode, null in text mode. \see setPListWidget()
    QListWidget *getPListWidget() const;
    /// The text of the row last chosen or set, empty before.
    QString getText() const;
    /// Replaces the items that rows are looked up in; they stay their lists' own, but clear()
    /// deletes them. A null one counts as a row that does not exist. \see getWidgetItemList()
    void setWidgetItemList(const QList<QListWidgetItem *> &items);
    /// The items of the image rows, in their order. \see setWidgetItemList()
    QList<QListWidgetItem *> getWidgetItemList() const;
    /// Whether the closed box paints the text beside the image (default false). Stored only: it
    /// shows with the next repaint. \see getIsDrawText()
    void setIsDrawText(bool isDrawText);
    /// Whether the closed box paints the text beside the image. \see setIsDrawText()
    bool getIsDrawText() const;

    /// The text of a colour in a sheet: "#rrggbb", "#aarrggbb" when translucent, "#000000" when
    /// invalid.
    QString fromColorToStr(QColor color);

Q_SIGNALS:
    /// In image mode: row \a index was chosen by the user or set by setCurrentIndex(). The box may
    /// be deleted here.
    void signal_clickedItem(int index);

protected:
    /// Paints the box. Over it come, after setIsChangeImg(true), the picture of setDefaultPixMap()
    /// at the top left corner, else in image mode the image of the chosen row and, with
    /// setIsDrawText(), its text.
    void paintEvent(QPaintEvent *event) override;

private Q_SLOTS:
    void onShowContent(QPixmap pixmap, QString text, int index);
    void slot_showTooltip(QString strData);

private:
    ComboboxItem *itemWidget(int index) const;
    void watchRowsOf(const QListWidget *list);

    bool m_isChangeImg = false;
    QPixmap m_defaultPixmap;
    QPixmap m_normalPixmap;
    QPixmap m_disabledPixmap;
    bool m_hasImageItems = false;
    QColor m_bgCurrentItemColor{69, 69, 69};
    QColor m_bgHoverItemColor{80, 80, 80};
    QColor m_bgPressedItemColor{69, 69, 69};
    QColor m_disabledColor{85, 85, 85};
    QColor m_borderPressedColor{128, 128, 128};
    QColor m_borderNormalColor{128, 128, 128};
    QColor m_borderHoverColor{90, 90, 90};
    QColor m_fontColor{210, 210, 210};
    QColor m_disabledFontColor{112, 112, 112};
    QColor m_selectionBgColor{66, 145, 240};
    int m_itemHeight = 24;
    int m_itemWidth = 0;
    int m_listViewWidth = 0;
    int m_borderWidth = 1;
    int m_borderHoverWidth = 1;
    int m_borderPressedWidth = 1;
    int m_borderRadius = 3;
    QPointer<QListWidget> m_listWidget;
    QPixmap m_currentPixmap;
    QString m_currentText;
    QList<QListWidgetItem *> m_widgetItemList;
    bool m_isDrawText = false;
    QString m_normalArrowImage;
    QString m_openArrowImage;
    QString m_disabledArrowImage;
    /// Receives what the models of image rows report; gone before the item list is.
    const std::unique_ptr<QObject> m_rowWatcher;
};

#endif // COMBOBOXEX_H
