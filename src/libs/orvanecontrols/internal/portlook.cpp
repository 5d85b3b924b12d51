#include "portlook.h"

#include "stylesheet.h"

#include <QToolButton>

namespace orvane
{

namespace
{

/// What the names of a type's pictures begin with; null for a type without pictures.
QString imagePrefix(ItemType type)
{
    switch (type) {
    case PortItem:
        return QStringLiteral("btn_Port_");
    case CoaxialItem:
        return QStringLiteral("btn_coaxial_");
    }
    return QString();
}

void applyPortSheet(QToolButton *button, PortState state, ItemType type, int portIndex)
{
    const QString sheet = portSheet(state, type, portIndex);
    if (!sheet.isNull())
        applyStyleSheet(button, sheet);
}

} // namespace

QString portSheet(PortState state, ItemType type, int portIndex)
{
    const QString prefix = imagePrefix(type);
    if (prefix.isNull())
        return QString();

    const QString image = "{border-image: url(:/Resource/Images/globalResource/drawer/" + prefix
        + "%1_" + QString::number(portIndex) + ".png);}";
    switch (state) {
    case PortState::Pressed:
        return "QToolButton" + image.arg(QLatin1String("pressed"));
    case PortState::Disabled:
        return "QToolButton" + image.arg(QLatin1String("disabled"));
    case PortState::Normal:
        break;
    }
    return "QToolButton" + image.arg(QLatin1String("normal")) + "QToolButton:hover"
        + image.arg(QLatin1String("hover"));
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
