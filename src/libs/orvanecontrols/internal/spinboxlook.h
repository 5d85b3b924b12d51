#ifndef ORVANE_INTERNAL_SPINBOXLOOK_H
#define ORVANE_INTERNAL_SPINBOXLOOK_H

#include "sheettext.h"

class QColor;

namespace orvane
{

/// What both spin boxes show in the place of a hidden value.
inline constexpr char hiddenValueText[] = "---";

/// The sheet of a spin box with image arrow buttons, for the type \a selector. \a fontFragment is
/// empty or a fontColorFragment().
SheetText spinBoxSheet(QStringView selector, const QString &fontFragment,
                       const QColor &backgroundColor, const QColor &borderColor,
                       const QColor &disabledFontColor);

} // namespace orvane

#endif // ORVANE_INTERNAL_SPINBOXLOOK_H
