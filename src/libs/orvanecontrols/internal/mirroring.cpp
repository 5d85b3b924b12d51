#include "mirroring.h"

#include <QBoxLayout>
#include <QWidget>

namespace orvane
{

void keepFromLeftToRight(QBoxLayout *row)
{
    // Qt swaps the two directions in a panel that is laid out from right to left.
    row->setDirection(row->parentWidget()->isRightToLeft() ? QBoxLayout::RightToLeft
                                                           : QBoxLayout::LeftToRight);
}

} // namespace orvane
