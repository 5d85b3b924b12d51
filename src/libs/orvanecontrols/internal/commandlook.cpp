#include "commandlook.h"

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

SheetText commandSheet(QStringView widgetType, const CommandLook &look, const StateWords &states,
                       const QString &font, const SheetText &more)
{
    SheetText sheet;
    const auto addRule = [&](QStringView state, const QColor &background, const QColor &fontColor) {
        sheet << widgetType << u":" << state << u"{background:" << background << u";color:"
              << fontColor << u";}";
    };
    sheet << widgetType << u"{background:" << look.normalBackground << u";color:"
          << look.normalFontColor << u";font:"
          << font
          // The radius carries no unit; hosts rely on the text.
          << u";border-radius:" << look.borderRadius << u";" << more << u"}";
    addRule(states.hover, look.hoverBackground, look.hoverFontColor);
    addRule(states.pressed, look.pressedBackground, look.pressedFontColor);
    addRule(states.disabled, look.disabledBackground, look.disabledFontColor);
    return sheet;
}

} // namespace orvane
