#ifndef ORVANE_INTERNAL_MIRRORING_H
#define ORVANE_INTERNAL_MIRRORING_H

class QBoxLayout;

namespace orvane
{

/// Keeps the first item of \a row at the left, in a panel that is laid out from right to left too.
/// To be called again whenever the panel's direction changes.
void keepFromLeftToRight(QBoxLayout *row);

} // namespace orvane

#endif // ORVANE_INTERNAL_MIRRORING_H
