#ifndef GALLERY_TABLECELLS_H
#define GALLERY_TABLECELLS_H

#include <QPoint>

class QWidget;

/// Where the pointer stands on a table, for the columns of a page's state grid.
namespace tablecells
{

/// The part of a table that has the cells.
QWidget *viewport(QWidget *table);
/// The middle of the second row, in the table's second column.
QPoint onSecondRow(QWidget *viewport);

} // namespace tablecells

#endif // GALLERY_TABLECELLS_H
