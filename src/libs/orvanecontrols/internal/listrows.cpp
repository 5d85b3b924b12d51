#include "listrows.h"

#include "stylesheet.h"

#include <QListWidget>

namespace orvane
{

void appendRow(QListWidget *list, QWidget *widget)
{
    constexpr int rowHeight = 34;
    auto *item = new QListWidgetItem(list);
    // As data: setSizeHint() drops a hint without a width, and the row's width is the list's.
    item->setData(Qt::SizeHintRole, QSize(item->sizeHint().width(), rowHeight));
    applyStyleSheet(widget, SheetText() << fontDeclaration);
    list->setItemWidget(item, widget);
}

void removeRow(QListWidget *list, int row)
{
    delete list->takeItem(row);
}

void removeAllRows(QListWidget *list)
{
    // All at once: Qt goes through the rows that are left after each removal.
    while (list->count() > 0)
        list->model()->removeRows(0, list->count());
}

} // namespace orvane
