#ifndef ORVANE_INTERNAL_TABORDER_H
#define ORVANE_INTERNAL_TABORDER_H

#include <QList>

class QWidget;

namespace orvane
{

/// The widgets that the tab key stops at in \a root, itself included, in their order.
QList<QWidget *> tabStops(QWidget *root);

/// Makes the tab key go from each of the widgets to the next.
void tabInOrder(const QList<QWidget *> &widgets);

} // namespace orvane

#endif // ORVANE_INTERNAL_TABORDER_H
