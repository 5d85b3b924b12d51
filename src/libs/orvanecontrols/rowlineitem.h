#ifndef ROWLINEITEM_H
#define ROWLINEITEM_H

#include "itemtype.h"
#include "orvanecontrolsglobal.h"
#include "structcabinet.h"

#include <QList>
#include <QPointer>
#include <QVector>
#include <QWidget>

class QLabel;
class ToolButtonEx;
class WidgetWithScrollEx;

/**
 * One port of a sender and the cabinets that hang on it: the port's number, its button, and a strip
 * of cabinet buttons that scrolls.
 *
 * Fill a row in this order: setLineItemType(), AddLineItem() for each cabinet, addScrollWidget()
 * once. Then the row reports what the user does. It never changes the look of its port button by
 * itself: the host marks one row with setItemPressed() and the others with setItemReleased().
 *
 * The pictures of the port button exist for the ports 1 to 16; a button with another number shows
 * none. The signals that carry a record are direct only, as those of ToolButtonEx.
 */
class ORVANECONTROLS_EXPORT RowLineItem : public QWidget
{
    Q_OBJECT

public:
    /// Builds a row without port and cabinets, owned by \a parent.
    explicit RowLineItem(QWidget *parent = nullptr);
    ~RowLineItem() override;

    /// Sets the port's number, any number, which the label shows from now on, and its type, and
    /// shows the pictures of the released or the disabled port button. \see portIndex()
    void setLineItemType(int portIndex, ItemType type);
    /// Adds a cabinet button for \a info, owned by the row, at the right end of the strip. It
    /// becomes visible with addScrollWidget(). A side of the cabinet outside 1 to 65536 is drawn as
    /// the nearest of them, and a button whose count is not above 0 is disabled; the record keeps
    /// both.
    void AddLineItem(StructCabinet info);
    /// Puts the cabinets into the strip and shows it. Call it once, when they have been added.
    void addScrollWidget();

    /// Marks the row as pressed: the port button shows its pressed picture, if it is enabled.
    /// \see bPressed()
    void setItemPressed();
    /// Ends that mark: the port button shows its released pictures, if it is enabled.
    /// \see bPressed()
    void setItemReleased();
    /// Disables or enables the port button. An enabled one shows the released pictures, on a row
    /// that is marked as pressed, too. \see getItemIsEnabled()
    void setItemDisabled(bool disabled);
    /// Whether the port button is enabled. \see setItemDisabled()
    bool getItemIsEnabled();
    /// Whether the row is marked as pressed. \see setItemPressed()
    bool bPressed() const;

    /// The port's number, -1 until set. \see setPortIndex()
    int portIndex() const;
    /// Sets the port's number, any number. The label keeps its text, and the port button its
    /// pictures until their next change. \see setLineItemType()
    void setPortIndex(int portIndex);

    /// The cabinet buttons from left to right, without deleted ones. \see setCabinetButtonList()
    QList<ToolButtonEx *> cabinetButtonList() const;
    /// Replaces the list that cabinetButtonList() returns, without null pointers; no button
    /// changes. The row schedules the deletion of all buttons of its list when it is destroyed,
    /// whoever made them.
    void setCabinetButtonList(const QList<ToolButtonEx *> &buttons);

Q_SIGNALS:
    /// A press on a cabinet of this row was released; \a info is the cabinet's record. In this
    /// signal and the other ones the sending button and the row may be deleted.
    void signal_notifyAddBeenTakenCabinetModel(StructCabinet info);
    /// The port button of \a item, this row, went down.
    void signal_portItemPressed(RowLineItem *item);
    /// A cabinet of this row was pressed with the left button; \a info is the cabinet's record.
    void signal_notifyChangedPortInfo(StructCabinet info);

private Q_SLOTS:
    void on_notifyAddBeenTakenCabinetModel(StructCabinet info);
    void on_itemPressed();
    void on_itemReleased();
    void on_notifyChangedPortInfo(StructCabinet info);

private:
    QLabel *m_portLabel = nullptr;
    QPointer<ToolButtonEx> m_portButton;
    WidgetWithScrollEx *m_cabinetStrip = nullptr;
    QPointer<QWidget> m_contentWidget; ///< Without a parent until addScrollWidget().
    QVector<QPointer<ToolButtonEx>> m_cabinetButtons;
    int m_portIndex = -1;
    ItemType m_itemType = PortItem;
    bool m_isPressed = false;
};

#endif // ROWLINEITEM_H
