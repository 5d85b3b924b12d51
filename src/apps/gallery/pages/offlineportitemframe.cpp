#include "cabinets.h"
#include "page.h"
#include "pointers.h"

#include <offlineportitemframe.h>

#include <QToolButton>

namespace
{

OfflinePortItemFrame *makePort(QWidget *parent, int port, ItemType type)
{
    auto *frame = new OfflinePortItemFrame(parent);
    frame->setLineItemType(port, type);
    return frame;
}

OfflinePortItemFrame *pressed(OfflinePortItemFrame *frame)
{
    frame->setItemPressed();
    return frame;
}

OfflinePortItemFrame *disabled(OfflinePortItemFrame *frame)
{
    frame->setItemDisabled(true);
    return frame;
}

} // namespace

GALLERY_PAGE(OfflinePortItemFrame)
{
    page.setPurpose("One port of a device that is offline: its number and its button. The frame "
                    "reports a press; the host marks it as pressed or released.");

    page.setStates({{"Normal", State::Normal},
                    {"Port hovered", State::Hover, pointers::onCentre, firstPart<QToolButton>}});
    page.look("Network", [](QWidget *parent) { return makePort(parent, 1, PortItem); });
    page.look("  pressed", [](QWidget *parent) { return pressed(makePort(parent, 2, PortItem)); });
    page.look("  disabled",
              [](QWidget *parent) { return disabled(makePort(parent, 3, PortItem)); });
    page.look("Coaxial", [](QWidget *parent) { return makePort(parent, 14, CoaxialItem); });
    page.look("  pressed",
              [](QWidget *parent) { return pressed(makePort(parent, 15, CoaxialItem)); });
    page.look("  disabled",
              [](QWidget *parent) { return disabled(makePort(parent, 16, CoaxialItem)); });

    using W = OfflinePortItemFrame;
    W *port = page.tryIt(makePort(nullptr, 6, PortItem));
    page.event(port, "signal_portItemPressed", &W::signal_portItemPressed);

    page.number<W>(
        "setLineItemType, port", &W::portIndex,
        [](W *frame, int port) { frame->setLineItemType(port, PortItem); }, 1, 16, Reach::TryIt);
    page.number<W>("setPortIndex", Page::withoutGetter(5), &W::setPortIndex, 0, 15, Reach::TryIt);
    page.flag<W>(
        "setItemDisabled", [](W *frame) { return !frame->getItemIsEnabled(); },
        &W::setItemDisabled);
    page.action<W>("setItemPressed()", &W::setItemPressed, Reach::TryIt);
    page.action<W>("setItemReleased()", &W::setItemReleased, Reach::TryIt);
}
