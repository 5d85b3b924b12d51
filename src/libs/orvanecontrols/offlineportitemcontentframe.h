#ifndef OFFLINEPORTITEMCONTENTFRAME_H
#define OFFLINEPORTITEMCONTENTFRAME_H

#include "itemtype.h"
#include "orvanecontrolsglobal.h"

#include <QFrame>
#include <QList>
#include <QPointer>
#include <QVector>

#include <memory>

class OfflinePortItemFrame;

namespace Ui
{
class OfflinePortItemContentFrame;
}

/**
 * The ports of a device that is offline: a grid of OfflinePortItemFrame, four in a line.
 *
 * It is the body of a DrawerItem: connect signal_portItemPressed() to the item's slot
 * slot_itemContentPortItemPressed(OfflinePortItemFrame*).
 */
class ORVANECONTROLS_EXPORT OfflinePortItemContentFrame : public QFrame
{
    Q_OBJECT

public:
    /// Builds an empty grid, owned by \a parent.
    explicit OfflinePortItemContentFrame(QWidget *parent = nullptr);
    ~OfflinePortItemContentFrame() override;

    /// Adds frames for the ports 1 to \a count and fixes the size of the grid to hold them. With a
    /// count below 1 nothing happens. Meant to be called once: the frames of a second call lie over
    /// those of the first.
    void addPortItem(int count, ItemType type);

    /// The frames in the order in which they were added, without deleted ones.
    /// \see setLsOfflinePortItems()
    QList<OfflinePortItemFrame *> lsOfflinePortItems() const;
    /// Replaces the list that lsOfflinePortItems() returns, without null pointers; no frame changes
    /// and none is taken over.
    void setLsOfflinePortItems(const QList<OfflinePortItemFrame *> &items);

Q_SIGNALS:
    /// The button of \a portItem went down. The frame and this widget may be deleted here.
    void signal_portItemPressed(OfflinePortItemFrame *portItem);

private Q_SLOTS:
    void slot_portItemPressed(OfflinePortItemFrame *portItem);

private:
    std::unique_ptr<Ui::OfflinePortItemContentFrame> m_ui;
    QVector<QPointer<OfflinePortItemFrame>> m_portItems;
};

#endif // OFFLINEPORTITEMCONTENTFRAME_H
