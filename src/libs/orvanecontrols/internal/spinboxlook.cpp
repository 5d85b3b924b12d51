#include "spinboxlook.h"

#include "stylesheet.h"

#include <QColor>

namespace orvane
{

namespace
{

QString buttonRule(const QString &subControl, const QString &image)
{
    return subControl + "{border-image:url(:/Resource/Images/globalResource/spinbox/" + image
        + ".png);}";
}

} // namespace

QString spinBoxSheet(const QString &selector, const QString &fontFragment,
                     const QColor &backgroundColor, const QColor &borderColor,
                     const QColor &disabledFontColor)
{
    // No blank after "solid": hosts compare the sheet text, and the border is 0 pixels wide anyway.
    return selector + "{" + fontFragment + ";background:" + colorText(backgroundColor)
        + ";border:0px solid" + colorText(borderColor) + ";}" + selector
        + ":disabled{color:" + colorText(disabledFontColor) + ";" + fontDeclaration + "}"
        + buttonRule(selector + "::up-button", "up_normal")
        + buttonRule(selector + "::up-button:hover", "up_hover")
        + buttonRule(selector + "::up-button:pressed", "up_pressed")
        + buttonRule(selector + "::up-button:disabled", "up_disabled")
        + buttonRule(selector + "::down-button", "down_normal")
        + buttonRule(selector + "::down-button:hover", "down_hover")
        + buttonRule(selector + "::down-button:pressed", "down_pressed")
        + buttonRule(selector + "::down-button:disabled", "down_disabled");
}

} // namespace orvane
