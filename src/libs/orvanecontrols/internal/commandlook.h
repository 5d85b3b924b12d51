#ifndef ORVANE_INTERNAL_COMMANDLOOK_H
#define ORVANE_INTERNAL_COMMANDLOOK_H

#include "sheettext.h"

#include <QColor>

namespace orvane
{

/// The look of a command button: a filled ground and a text colour per state, and round corners.
/// A new one is unset: invalid colours and no radius.
struct CommandLook {
    QColor normalBackground;
    QColor hoverBackground;
    QColor pressedBackground;
    QColor disabledBackground;
    QColor normalFontColor;
    QColor hoverFontColor;
    QColor pressedFontColor;
    QColor disabledFontColor;
    int borderRadius = 0;
};

/// The accented look of a main action.
CommandLook activatedCommandLook();
/// The grey look of a secondary action.
CommandLook notActivatedCommandLook();

/// The words of a sheet's pseudo-states. They are spelled differently from look to look.
struct StateWords {
    QStringView hover;
    QStringView pressed;
    QStringView disabled;
};

/// Composes the sheet of a command button: one rule of \a widgetType for its normal state and one
/// for each of \a states. \a font is what stands behind "font:", \a more are further declarations
/// of the normal state, and the radius has no unit.
SheetText commandSheet(QStringView widgetType, const CommandLook &look, const StateWords &states,
                       const QString &font, const SheetText &more = SheetText());

} // namespace orvane

#endif // ORVANE_INTERNAL_COMMANDLOOK_H
