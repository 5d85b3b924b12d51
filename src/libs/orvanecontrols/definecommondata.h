#ifndef DEFINECOMMONDATA_H
#define DEFINECOMMONDATA_H

#include "orvanecontrolsglobal.h"

#include <QString>

/**
 * The three font texts that the library's style sheets share.
 *
 * Each text is what stands behind "font:" in a sheet: a size in points and the quoted family, with
 * a trailing blank. A sheet writes "font:" + text + ";". A host on a system without the named face
 * registers a substitute with QFont::insertSubstitution().
 */
class ORVANECONTROLS_EXPORT DefineCommonData
{
public:
    /// Builds an object without any content: the texts need none.
    DefineCommonData() = default;

    /// The text of buttons, headers and rows, 9 points.
    static QString getNormalFont();
    /// The text of the two labels of a top-to-bottom tool button, 10.5 points.
    static QString getBigFont();
    /// The text of the label beside a tool button's picture, 12 points. Hosts rely on the two
    /// blanks behind the size.
    static QString getBiggerFont();
};

#endif // DEFINECOMMONDATA_H
