#ifndef DRAWERITEM_H
#define DRAWERITEM_H

#include "checkstateex.h"
#include "orvanecontrolsglobal.h"

#include <QPointer>
#include <QString>
#include <QWidget>

class LabelEx;
class OfflinePortItemFrame;
class QCheckBox;
class QFrame;
class QLabel;
class QScrollArea;
class QToolButton;
class QVBoxLayout;
class RowLineItem;

/**
 * One collapsible entry of a Drawer: the header of a device and, below it, a work space.
 *
 * The header holds a button that expands and collapses, a box that checks all, a dot that tells
 * whether the device is online, the device's name above its port's name, a count, and a button that
 * opens settings while the device is online and deletes it while it is offline. The work space is a
 * scroll area for one body, or a content widget in its place.
 *
 * An item reports what the user does and changes neither its expansion nor its selection by itself,
 * except on a click on its check-all box: the Drawer expands and collapses, the host selects. Box
 * and count are hidden at first.
 *
 * In each of its signals the item may be deleted.
 */
class ORVANECONTROLS_EXPORT DrawerItem : public QWidget
{
    Q_OBJECT

public:
    /// Builds an item that is collapsed, not selected and offline, owned by \a parent.
    explicit DrawerItem(QWidget *parent = nullptr);
    ~DrawerItem() override;

    /// Makes \a w the body in the scroll area, which owns it from now on; the body so far is
    /// deleted. Size \a w first. A null pointer is ignored. \see getItem()
    void addItem(QWidget *w);
    /// The body, null if there is none. \see addItem()
    QWidget *getItem();
    /// Deletes the body at once, if there is one.
    void removeItem();
    /// Fixes the height of the scroll area in pixels; a negative one counts as 0.
    void setScrollAreaHeight(int height);
    /// Adds \a w, which the item owns from now on, hidden below the scroll area, to be shown in its
    /// place. It takes effect together with setBVisibleScrolArea(false). An earlier content widget
    /// stays where it is, and is not shown or hidden any more; so it does with a null pointer,
    /// after which there is none. \see widgetContent()
    void addContentWidget(QWidget *w);
    /// The content widget, null if there is none. \see addContentWidget()
    QWidget *widgetContent();

    /// Expands or collapses the item. An item without a body takes the look of an expanded one and
    /// shows no work space. \see getWorkSpaceIsShow()
    void setWorkSpaceisShow(bool show);
    /// Whether the item is expanded. \see setWorkSpaceisShow()
    bool getWorkSpaceIsShow();
    /// Gives the header the look of a selected or an unselected item. \see getItemPressed()
    void setDrawItemPressed(bool pressed);
    /// Whether the item is selected. \see setDrawItemPressed()
    bool getItemPressed();

    /// Shows or hides the button at the right and the online dot. The port's name has 160 pixels
    /// beside them, 180 without; it is not elided anew.
    void setWidgetVisible(bool visible);
    /// Sets the device's name. \see getDeviceName()
    void setDeviceName(QString name);
    /// The device's name. \see setDeviceName()
    QString getDeviceName();
    /// Shows \a name as the port's name. With \a remember it is also what getDevicePortName()
    /// returns from now on.
    void setDevicePortName(QString name, bool remember);
    /// The port's name last remembered, which need not be the one shown. \see setDevicePortName()
    QString getDevicePortName();
    /// Sets the text of the count. \see deviceCount()
    void setDeviceCount(QString count);
    /// The text of the count. \see setDeviceCount()
    QString deviceCount();
    /// Shows or hides the count.
    void setDeviceCountVisible(bool visible);

    /// Shows or hides the check-all box.
    void setCheckAllVisible(bool visible);
    /// Checks or unchecks the check-all box and reports it with signal_checkAllItemContent().
    void setCheckAllIsCheck(bool isCheck);
    /// Gives the check-all box the state and the pictures of \a state, reporting nothing. A value
    /// outside checkStateEx does nothing.
    void setCheckAllStyle(checkStateEx state);

    /// Sets whether the device is online, which chooses the dot's colour and what the button at the
    /// right is for. The delete button of an offline device is enabled while the pointer is over
    /// the header. \see getBOnline()
    void setBOnline(bool online);
    /// Whether the device is online. \see setBOnline()
    bool getBOnline();
    /// Sets whether the item is being edited: header, shrink button and the button at the right
    /// then report nothing. \see getIsInEditMode()
    void setIsInEditMode(bool isInEditMode);
    /// Whether the item is being edited. \see setIsInEditMode()
    bool getIsInEditMode();

    /// Allows the scroll area its vertical scroll bar (default false), whose handle shows while the
    /// pointer is over the item.
    void setIsVisibleScrollBar(bool visible);
    /// Shows or hides the scroll area, and chooses whether it or the content widget is what
    /// expanding shows (default true). \see getBVisibleScrolArea()
    void setBVisibleScrolArea(bool visible);
    /// Whether the scroll area is what expanding shows. \see setBVisibleScrolArea()
    bool getBVisibleScrolArea();
    /// Puts \a area, null for none, in the place of scrollArea(); no layout and no parent changes.
    /// The item schedules the deletion of the area that it has when it is destroyed.
    void setScrollArea(QScrollArea *area);
    /// The scroll area, null if there is none or it is gone. \see setScrollArea()
    QScrollArea *scrollArea();

    /// Keeps a number for the host (default -1). \see getSenderIndex()
    void setSenderIndex(int index);
    /// The host's number. \see setSenderIndex()
    int getSenderIndex();
    /// Keeps a number for the host (default -1). \see getMoudelID()
    void setMoudelID(int id);
    /// The host's number. \see setMoudelID()
    int getMoudelID();

    /// Swallows the press: it is no press on what lies behind the item.
    void mousePressEvent(QMouseEvent *event) override;
    /// Swallows the release.
    void mouseReleaseEvent(QMouseEvent *event) override;
    /// Watches the header: reports a click of the left button on it, and enables the delete button
    /// of an offline device while the pointer is over it. It holds no event back, unless the header
    /// was deleted in a signal.
    bool eventFilter(QObject *watched, QEvent *event) override;
    /// Shows the handle of the scroll area's bar.
    void enterEvent(QEvent *event) override;
    /// Hides the handle of the scroll area's bar.
    void leaveEvent(QEvent *event) override;

Q_SIGNALS:
    /// The header of \a item or its shrink button was clicked. signals_selectedCurrentItem()
    /// follows at once.
    void notifyIsShrink(DrawerItem *item);
    /// The button at the right was clicked while the device is online.
    void signal_notifySettings(DrawerItem *item);
    /// The button at the right was clicked while the device is offline.
    void signal_deleteItem(DrawerItem *item);
    /// The header of \a item or its shrink button was clicked. \see notifyIsShrink()
    void signals_selectedCurrentItem(DrawerItem *item);
    /// The port button of \a rowItem in the body of \a item went down.
    void signal_ItemContentPortItemPressed(DrawerItem *item, RowLineItem *rowItem);
    /// The button of \a portItem in the body of \a item went down.
    void signal_offlineItemContentPortItemPressed(DrawerItem *item, OfflinePortItemFrame *portItem);
    /// The body of \a item, connected by the host, reported a change with \a index, any number.
    void signal_drawItemContentStateChandged(DrawerItem *item, int index);
    /// The check-all box was checked or unchecked, by a click or by setCheckAllIsCheck().
    void signal_checkAllItemContent(DrawerItem *item, bool isCheckAll);
    /// The check-all box was clicked; comes before all else that the click does.
    void signal_currentCheckBoxCheck(DrawerItem *item);
    /// Not emitted; hosts connect to it.
    void signal_drawItemPressed(DrawerItem *item);
    /// The check-all box was clicked; comes after all else that the click does.
    void signal_checkAllHasClicked(DrawerItem *item);

private Q_SLOTS:
    void on_toolButton_shrink_clicked();
    void on_toolButton_RightClicked();
    void on_itemContentPortItemPressed(RowLineItem *rowItem);
    void slot_itemStateChandged(int index);
    void slot_checkAllClicked();
    void slot_itemContentPortItemPressed(OfflinePortItemFrame *item);

private:
    void init();
    void createDrawerItem();
    QWidget *createNames();
    void notifyHeaderClicked();
    void setSettingsStyle(bool isSelected);
    void setDeleteStyle();
    void setScrollBarStyle(bool isHovered);

    bool m_isHeaderPressed = false;
    QVBoxLayout *m_mainColumn = nullptr;
    QPointer<QFrame> m_headerFrame;
    QPointer<QToolButton> m_shrinkButton;
    QPointer<QToolButton> m_rightButton;
    QPointer<QScrollArea> m_scrollArea;
    QPointer<QFrame> m_rightFrame;
    QPointer<QFrame> m_nameFrame;
    QPointer<QToolButton> m_onlineDot;
    QPointer<QLabel> m_deviceNameLabel;
    QPointer<LabelEx> m_devicePortNameLabel;
    QPointer<LabelEx> m_deviceCountLabel;
    QPointer<QCheckBox> m_checkAllBox;
    int m_moudelId = -1;
    int m_senderIndex = -1;
    bool m_isWorkSpaceShown = false;
    bool m_isItemPressed = false;
    bool m_isOnline = false;
    QString m_devicePortName;
    bool m_isScrollBarVisible = false;
    bool m_isScrollAreaVisible = true;
    QPointer<QWidget> m_contentWidget;
    bool m_isInEditMode = false;
};

#endif // DRAWERITEM_H
