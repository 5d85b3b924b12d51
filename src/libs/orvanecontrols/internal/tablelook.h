#ifndef ORVANE_INTERNAL_TABLELOOK_H
#define ORVANE_INTERNAL_TABLELOOK_H

#include "sheettext.h"

class QScrollBar;
class QTableWidget;

namespace orvane
{

/// Gives \a table the behaviour of all dark tables: rows are selected as a whole, several at once,
/// nothing takes the focus, the columns share the width, and there is neither a frame nor a
/// vertical header.
void initTableBehavior(QTableWidget *table);

/// Gives both bars of \a table the look of all dark tables. \a horizontalHeight is the height of
/// the horizontal bar.
void styleTableScrollBars(QTableWidget *table, int horizontalHeight);

/// The sheet of a dark table. \a border is the declaration of its border, empty for none, and
/// \a font is the font declaration of the cells and the header, both with their semicolons.
SheetText tableSheet(QStringView border, QStringView font);

} // namespace orvane

#endif // ORVANE_INTERNAL_TABLELOOK_H
