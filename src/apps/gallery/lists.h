#ifndef GALLERY_LISTS_H
#define GALLERY_LISTS_H

#include <QString>

class CustomListWidgetItem;
class CustomListWidgetMulItem;
class EquipListWidget;
class ListWidgetEx;
class QTreeWidgetItem;
class QWidget;

/// Projects and devices as the pages show them in lists.
namespace lists
{

/// A piece of a light window, which the lists are made for. It holds  content, and gives it dark
/// texts by a sheet, as a host does.
QWidget *makeLightWindow(QWidget *parent, QWidget *content);

/// Adds projects, some of which are not where they were.
void addProjects(ListWidgetEx *list, int count);
/// The trash button of a project's row.
QWidget *trashButton(QWidget *row);

/// Adds devices with \a columns texts each.
void addDevices(EquipListWidget *list, int count, int columns);

} // namespace lists

// What the signals of the lists carry.
QString eventText(ListWidgetEx *list);
QString eventText(CustomListWidgetItem *item);
QString eventText(CustomListWidgetMulItem *item);
QString eventText(QTreeWidgetItem *item);

#endif // GALLERY_LISTS_H
