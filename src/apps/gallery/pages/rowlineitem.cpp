#include "cabinets.h"
#include "droparea.h"
#include "page.h"
#include "pointers.h"

#include <rowlineitem.h>
#include <toolbuttonex.h>

namespace
{

RowLineItem *makeRow(QWidget *parent, int port, ItemType type, int cabinetCount)
{
    auto *row = new RowLineItem(parent);
    row->setFixedWidth(238);
    row->setLineItemType(port, type);
    for (const StructCabinet &record : cabinets::some(cabinetCount, port - 1))
        row->AddLineItem(record);
    row->addScrollWidget();
    return row;
}

} // namespace

GALLERY_PAGE(RowLineItem)
{
    page.setPurpose("One port of a sender and the cabinets that hang on it. The row reports; the "
                    "host marks it as pressed or released.");

    page.setStates({{"Normal", State::Normal},
                    {"Port hovered", State::Hover, pointers::onCentre, firstPart<ToolButtonEx>}});
    page.look("Network", [](QWidget *parent) { return makeRow(parent, 1, PortItem, 2); });
    page.look("Pressed", [](QWidget *parent) {
        RowLineItem *row = makeRow(parent, 2, PortItem, 2);
        row->setItemPressed();
        return row;
    });
    page.look("Disabled", [](QWidget *parent) {
        RowLineItem *row = makeRow(parent, 3, PortItem, 2);
        row->setItemDisabled(true);
        return row;
    });
    page.look("Coaxial", [](QWidget *parent) { return makeRow(parent, 4, CoaxialItem, 2); });
    page.look("More than fit", [](QWidget *parent) { return makeRow(parent, 5, PortItem, 5); });
    page.look("No cabinets", [](QWidget *parent) { return makeRow(parent, 16, PortItem, 0); });

    auto *dropArea = new DropArea;
    using W = RowLineItem;
    W *row = page.tryHere("Try it: drag a cabinet out", makeRow(nullptr, 1, PortItem, 6), dropArea);
    page.event(row, "signal_portItemPressed", &W::signal_portItemPressed);
    page.event(row, "signal_notifyChangedPortInfo", &W::signal_notifyChangedPortInfo);
    page.event(row, "signal_notifyAddBeenTakenCabinetModel",
               &W::signal_notifyAddBeenTakenCabinetModel);
    page.event(dropArea, "cabinetArrived", &DropArea::cabinetArrived);

    page.number<W>(
        "setLineItemType, port", &W::portIndex,
        [](W *row, int port) { row->setLineItemType(port, PortItem); }, 1, 16, Reach::TryIt);
    page.number<W>("setPortIndex", &W::portIndex, &W::setPortIndex, 1, 16, Reach::TryIt);
    page.flag<W>(
        "setItemDisabled", [](W *row) { return !row->getItemIsEnabled(); }, &W::setItemDisabled);
    page.action<W>("setItemPressed()", &W::setItemPressed, Reach::TryIt);
    page.action<W>("setItemReleased()", &W::setItemReleased, Reach::TryIt);
}
