#ifndef EQUIPLISTWIDGET_H
#define EQUIPLISTWIDGET_H

#include "orvanecontrolsglobal.h"

#include <QList>
#include <QPointer>
#include <QString>
#include <QStringList>
#include <QVector>
#include <QWidget>

#include <memory>

class CustomListWidgetMulItem;
class ListWidgetEx;
class ListWidgetTitle;
class QButtonGroup;
class QLabel;
class QMovie;

/**
 * A list of devices under a title that folds it: 135 pixels high when the list is shown, 32 when
 * it is folded.
 *
 * While the host looks for devices it covers the list with an animated image and a text, started
 * by slot_ShowRefAnimation() and ended by slot_StopRefAnimation(), both at any time.
 *
 * Rows, the list included, may be deleted in every signal; a removed row's widget is deleted by
 * the event loop.
 */
class ORVANECONTROLS_EXPORT EquipListWidget : public QWidget
{
    Q_OBJECT

public:
    /// Builds an empty list with the text \a title above it, owned by \a parent.
    explicit EquipListWidget(QString title, QWidget *parent = nullptr);
    ~EquipListWidget() override;

    /// Sets the title's text.
    void setTitle(QString title);
    /// Shows or hides the title.
    void setTitleVisiable(bool visible);
    /// Shows or hides the title's buttons. \see ListWidgetTitle::setIconVisible()
    void setIconVisible(bool visible);
    /// Hides the title's refresh button. \see setIconVisible()
    void hideRefIcon();
    /// Sets the text over the list while it is being refreshed (default none).
    void setRefLabelText(QString text);

    /// Appends a row of \a texts and returns it, null once a host has deleted the list. The list
    /// owns it; \a flag is handed to the row.
    CustomListWidgetMulItem *addCustomItem(QStringList texts, bool flag);
    /// Removes the row at \a index; an index outside the list is ignored. Its widget stays in
    /// getItems() until the event loop deletes it.
    void removeCustomItem(int index);
    /// Removes all rows; getItems() is empty at once.
    void clearAllCustomItems();
    /// The row widgets in the order in which they were added, without deleted ones.
    QList<CustomListWidgetMulItem *> getItems() const;
    /// Calls CustomListWidgetMulItem::hideCheckBox() for every row that is of this class.
    void hideCheckBox();
    /// The list that the rows are in; null once a host has deleted it.
    ListWidgetEx *getListWidget() const;

Q_SIGNALS:
    /// The title's refresh button was clicked.
    void signal_RefEquipInfo();
    /// The title's settings button was clicked.
    void signal_Setting();
    /// The settings of the device in \a item are asked for.
    /// \see CustomListWidgetMulItem::slot_dealEnterButtonClick()
    void signal_everySetting(CustomListWidgetMulItem *item);
    /// The row \a item was double-clicked.
    void signal_itemDoubleClicked(CustomListWidgetMulItem *item);

public Q_SLOTS:
    /// Shows the list, or folds it. What the next click on the drop-down button reports does not
    /// change.
    void slot_ShowList(bool bShowList);
    /// Covers the list with the refresh animation, which runs until slot_StopRefAnimation().
    void slot_ShowRefAnimation();
    /// Uncovers the list; does nothing when the animation is not running.
    void slot_StopRefAnimation();
    /// Emits signal_itemDoubleClicked() with \a item, null too.
    void slot_deviceItemDoubleClicked(CustomListWidgetMulItem *item);
    /// Emits signal_everySetting() with \a item, null too.
    void slot_emitSettingData(CustomListWidgetMulItem *item);

protected:
    /// Keeps the refresh animation over the list when the list moves or changes its size. It holds
    /// no event back.
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void initAnimation();
    void coverList();

    ListWidgetTitle *m_title = nullptr;
    QPointer<ListWidgetEx> m_list;
    std::unique_ptr<QButtonGroup> m_buttonGroup;
    QVector<QPointer<CustomListWidgetMulItem>> m_items;
    QWidget *m_overlay = nullptr;
    QLabel *m_overlayText = nullptr;
    QLabel *m_overlayImage = nullptr;
    QMovie *m_movie = nullptr;
};

#endif // EQUIPLISTWIDGET_H
