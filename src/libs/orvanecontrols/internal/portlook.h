#ifndef ORVANE_INTERNAL_PORTLOOK_H
#define ORVANE_INTERNAL_PORTLOOK_H

#include "../itemtype.h"

#include "sheettext.h"

class QToolButton;

namespace orvane
{

/// What a port button shows.
enum class PortState {
    Normal,
    Pressed,
    Disabled,
};

/// The sheet of the button of port \a portIndex in \a state; empty for a type without pictures. The
/// pictures exist for the ports 1 to 16.
SheetText portSheet(PortState state, ItemType type, int portIndex);

// What rows and offline frames do with their port button. A button of a type without pictures keeps
// its sheet.

/// Shows the normal pictures, or the disabled one on a button that is disabled.
void showPortReleased(QToolButton *button, ItemType type, int portIndex);
/// Shows the pressed picture, or the disabled one on a button that is disabled.
void showPortPressed(QToolButton *button, ItemType type, int portIndex);
/// Shows the disabled or the normal pictures, then disables or enables the button.
void setPortDisabled(QToolButton *button, ItemType type, int portIndex, bool isDisabled);

} // namespace orvane

#endif // ORVANE_INTERNAL_PORTLOOK_H
