#include "commandlook.h"

#include "stylesheet.h"

namespace orvane
{

namespace
{

/// What the two looks have in common: everything but the ground of a button that can be used.
CommandLook commonCommandLook()
{
    CommandLook look;
    look.disabledBackground = QColor(85, 85, 85);
    look.normalFontColor = QColor(210, 210, 210);
    look.hoverFontColor = QColor(210, 210, 210);
    look.pressedFontColor = QColor(210, 210, 210);
    look.disabledFontColor = QColor(130, 130, 130);
    look.borderRadius = 5;
    return look;
}

/// One rule: the colours of \a selector, then the declarations that only it has.
QString commandRule(const QString &selector, const QColor &background, const QColor &fontColor,
                    const QString &more = QString())
{
    return selector + "{background:" + colorText(background) + ";color:" + colorText(fontColor)
        + ";" + more + "}";
}

} // namespace

CommandLook activatedCommandLook()
{
    CommandLook look = commonCommandLook();
    look.normalBackground = QColor(66, 145, 240);
    look.hoverBackground = QColor(72, 109, 154);
    look.pressedBackground = QColor(42, 77, 120);
    return look;
}

CommandLook notActivatedCommandLook()
{
    CommandLook look = commonCommandLook();
    look.normalBackground = QColor(99, 99, 99);
    look.hoverBackground = QColor(87, 90, 92);
    look.pressedBackground = QColor(53, 54, 55);
    return look;
}

QString commandSheet(const QString &widgetType, const CommandLook &look, const StateWords &states,
                     const QString &font, const QString &more)
{
    // The radius carries no unit; hosts rely on the text.
    return commandRule(widgetType, look.normalBackground, look.normalFontColor,
                       "font:" + font + ";border-radius:" + QString::number(look.borderRadius) + ";"
                           + more)
        + commandRule(widgetType + ":" + states.hover, look.hoverBackground, look.hoverFontColor)
        + commandRule(widgetType + ":" + states.pressed, look.pressedBackground,
                      look.pressedFontColor)
        + commandRule(widgetType + ":" + states.disabled, look.disabledBackground,
                      look.disabledFontColor);
}

} // namespace orvane
