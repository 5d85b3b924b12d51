#ifndef GALLERY_DEVICES_H
#define GALLERY_DEVICES_H

#include <QString>
#include <QStringList>

class CheckBoxEx;
class DrawItemContentNew;
class DrawerItem;
class DrawerItemContent;
class QWidget;
class RowLineItem;

/// Senders and what hangs on them, put together as a host does it: the panels themselves neither
/// mark ports nor hand their check boxes the keys.
namespace devices
{

/// The body of an online sender: ports with cabinets, of which a press marks one.
DrawerItemContent *makePorts(int rows, QWidget *parent = nullptr);
/// Adds the next port to it.
void addPort(DrawerItemContent *content);

/// A body of check boxes, of which the first \a checkedCount are checked.
DrawItemContentNew *makeCheckList(const QStringList &names, int checkedCount = 0,
                                  QWidget *parent = nullptr);

/// An item without a body.
DrawerItem *makeItem(const QString &name, const QString &port, bool isOnline,
                     QWidget *parent = nullptr);
/// The same with ports and cabinets, with the ports of an offline sender, or with check boxes that
/// the check-all box stands for.
DrawerItem *makePortsItem(const QString &name, int rows);
DrawerItem *makeOfflineItem(const QString &name, int ports, bool isCoaxial);
DrawerItem *makeCheckItem(const QString &name, int checkedCount);

} // namespace devices

#endif // GALLERY_DEVICES_H
