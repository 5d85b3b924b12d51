#ifndef ORVANE_INTERNAL_LISTROWS_H
#define ORVANE_INTERNAL_LISTROWS_H

class QListWidget;
class QWidget;

/// Rows of a list that are drawn by widgets of their own: what project and equipment lists share.
namespace orvane
{

/// Appends a row, 34 pixels high, that shows \a widget and owns it.
void appendRow(QListWidget *list, QWidget *widget);
/// Removes the row at \a row, if there is one. Its widget is deleted by the event loop, so this is
/// safe in the widget's own signals.
void removeRow(QListWidget *list, int row);
/// Removes all rows in the same way.
void removeAllRows(QListWidget *list);

} // namespace orvane

#endif // ORVANE_INTERNAL_LISTROWS_H
