#include "spinboxlook.h"

#include "stylesheet.h"

#include <QColor>

namespace orvane
{

namespace
{

/// The rule of the button in the state that \a subControl names.
void addButtonRule(SheetText &sheet, QStringView selector, QStringView subControl,
                   QStringView image)
{
    sheet << selector << subControl
          << u"{border-image:url(:/Resource/Images/globalResource/spinbox/" << image << u".png);}";
}

} // namespace

SheetText spinBoxSheet(QStringView selector, const QString &fontFragment,
                       const QColor &backgroundColor, const QColor &borderColor,
                       const QColor &disabledFontColor)
{
    SheetText sheet;
    // No blank after "solid": hosts compare the sheet text, and the border is 0 pixels wide anyway.
    sheet << selector << u"{" << fontFragment << u";background:" << backgroundColor
          << u";border:0px solid" << borderColor << u";}" << selector << u":disabled{color:"
          << disabledFontColor << u";" << fontDeclaration << u"}";
    addButtonRule(sheet, selector, u"::up-button", u"up_normal");
    addButtonRule(sheet, selector, u"::up-button:hover", u"up_hover");
    addButtonRule(sheet, selector, u"::up-button:pressed", u"up_pressed");
    addButtonRule(sheet, selector, u"::up-button:disabled", u"up_disabled");
    addButtonRule(sheet, selector, u"::down-button", u"down_normal");
    addButtonRule(sheet, selector, u"::down-button:hover", u"down_hover");
    addButtonRule(sheet, selector, u"::down-button:pressed", u"down_pressed");
    addButtonRule(sheet, selector, u"::down-button:disabled", u"down_disabled");
    return sheet;
}

} // namespace orvane
