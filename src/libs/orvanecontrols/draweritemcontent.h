#ifndef DRAWERITEMCONTENT_H
#define DRAWERITEMCONTENT_H

#include "itemtype.h"
#include "orvanecontrolsglobal.h"
#include "structcabinet.h"

#include <QList>
#include <QPointer>
#include <QVector>
#include <QWidget>

class RowLineItem;

/**
 * The body of one drawer item: a stack of rows, one for each port of the device.
 *
 * It makes the rows from the host's records, takes the height of all of them, and passes on what
 * they report. Connect signal_ItemContentPortItemPressed() to the slot
 * on_itemContentPortItemPressed(RowLineItem*) of the DrawerItem. The signals that carry a record
 * are direct only, as those of ToolButtonEx.
 */
class ORVANECONTROLS_EXPORT DrawerItemContent : public QWidget
{
    Q_OBJECT

public:
    /// Builds an empty body, owned by \a parent.
    explicit DrawerItemContent(QWidget *parent = nullptr);
    ~DrawerItemContent() override;

    /// Adds a row, which the body owns, for the port \a portIndex of \a type with \a cabinets at
    /// the bottom and fixes the height of the body to that of all rows. Any number, type and record
    /// is taken as RowLineItem::setLineItemType() and RowLineItem::AddLineItem() do.
    void addRowLineItem(int portIndex, ItemType type, QList<StructCabinet> cabinets);

    /// The rows from top to bottom, without deleted ones. \see setLsRowLineItems()
    QList<RowLineItem *> lsRowLineItems() const;
    /// Replaces the list that lsRowLineItems() returns, without null pointers; no row changes. The
    /// body schedules the deletion of all rows of its list when it is destroyed, whoever made them.
    void setLsRowLineItems(const QList<RowLineItem *> &rows);

    /// A counter, 0 at first, to which every new row adds 1. \see setIndex()
    int index() const;
    /// Sets the counter to any number. \see index()
    void setIndex(int index);

    /// Does nothing; the body has no tool tip of its own.
    void setToolTipText(QString text);

    /// Does nothing.
    void enterEvent(QEvent *event) override;
    /// Does nothing.
    void leaveEvent(QEvent *event) override;

Q_SIGNALS:
    /// A press on a cabinet was released; \a info is the cabinet's record. In this signal and the
    /// other ones rows and the body itself may be deleted.
    void signal_notifyAddBeenTakenCabinetModel(StructCabinet info);
    /// A cabinet was pressed with the left button; \a info is the cabinet's record.
    void signal_notifyChangedPortInfo(StructCabinet info);
    /// The port button of \a item went down.
    void signal_ItemContentPortItemPressed(RowLineItem *item);

private Q_SLOTS:
    void notifyAddBeenTakenCabinetModel(StructCabinet cabinetInfo);
    void on_portItemPressed(RowLineItem *item);
    void on_notifyChangedPortInfo(StructCabinet info);

private:
    QVector<QPointer<RowLineItem>> m_rows;
    int m_index = 0;
};

#endif // DRAWERITEMCONTENT_H
