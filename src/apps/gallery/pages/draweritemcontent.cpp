#include "cabinets.h"
#include "devices.h"
#include "droparea.h"
#include "page.h"

#include <draweritemcontent.h>
#include <rowlineitem.h>

GALLERY_PAGE(DrawerItemContent)
{
    page.setPurpose("The body of a drawer item: a row for each port of the device. It takes the "
                    "height of its rows and passes on what they report.");

    auto *dropArea = new DropArea;
    using W = DrawerItemContent;
    W *content =
        page.tryHere("Try it: drag cabinets out, press ports", devices::makePorts(4), dropArea);
    page.event(content, "signal_ItemContentPortItemPressed", &W::signal_ItemContentPortItemPressed);
    page.event(content, "signal_notifyChangedPortInfo", &W::signal_notifyChangedPortInfo);
    page.event(content, "signal_notifyAddBeenTakenCabinetModel",
               &W::signal_notifyAddBeenTakenCabinetModel);
    page.event(dropArea, "cabinetArrived", &DropArea::cabinetArrived);

    page.number<W>("setIndex", &W::index, &W::setIndex, 0, 15, Reach::TryIt);
    page.action<W>("addRowLineItem()", devices::addPort, Reach::TryIt);
}
