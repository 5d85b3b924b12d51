#ifndef ORVANE_INTERNAL_ACCESSIBLETOOLBUTTON_H
#define ORVANE_INTERNAL_ACCESSIBLETOOLBUTTON_H

namespace orvane
{

/// Lets screen readers speak what a ToolButtonEx shows by labels or by painting, unless the host
/// has named it. Nothing is kept in the button: the text is composed when it is asked for.
void makeToolButtonsSpeak();

} // namespace orvane

#endif // ORVANE_INTERNAL_ACCESSIBLETOOLBUTTON_H
