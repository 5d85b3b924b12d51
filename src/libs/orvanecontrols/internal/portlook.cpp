#include "portlook.h"

#include "stylesheet.h"

#include <QToolButton>

namespace orvane
{

namespace
{

/// What the names of a type's pictures begin with; null for a type without pictures.
QStringView imagePrefix(ItemType type)
{
    switch (type) {
    case PortItem:
        return u"btn_Port_";
    case CoaxialItem:
        return u"btn_coaxial_";
    }
    return {};
}

void applyPortSheet(QToolButton *button, PortState state, ItemType type, int portIndex)
{
    const SheetText sheet = portSheet(state, type, portIndex);
    if (!sheet.isEmpty())
        applyStyleSheet(button, sheet);
}

} // namespace

SheetText portSheet(PortState state, ItemType type, int portIndex)
{
    SheetText sheet;
    const QStringView prefix = imagePrefix(type);
    if (prefix.isNull())
        return sheet;

    const auto addRule = [&](QStringView selector, QStringView name) {
        sheet << selector << u"{border-image: url(:/Resource/Images/globalResource/drawer/"
              << prefix << name << u"_" << portIndex << u".png);}";
    };
    switch (state) {
    case PortState::Normal:
        addRule(u"QToolButton", u"normal");
        addRule(u"QToolButton:hover", u"hover");
        break;
    case PortState::Pressed:
        addRule(u"QToolButton", u"pressed");
        break;
    case PortState::Disabled:
        addRule(u"QToolButton", u"disabled");
        break;
    }
    return sheet;
}

void showPortReleased(QToolButton *button, ItemType type, int portIndex)
{
    applyPortSheet(button, button->isEnabled() ? PortState::Normal : PortState::Disabled, type,
                   portIndex);
}

void showPortPressed(QToolButton *button, ItemType type, int portIndex)
{
    applyPortSheet(button, button->isEnabled() ? PortState::Pressed : PortState::Disabled, type,
                   portIndex);
}

void setPortDisabled(QToolButton *button, ItemType type, int portIndex, bool isDisabled)
{
    applyPortSheet(button, isDisabled ? PortState::Disabled : PortState::Normal, type, portIndex);
    button->setEnabled(!isDisabled);
}

} // namespace orvane
