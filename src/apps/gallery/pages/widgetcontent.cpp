#include "page.h"
#include "strips.h"

#include <widgetcontent.h>

GALLERY_PAGE(WidgetContent)
{
    page.setPurpose("The row of buttons inside a controller board's strip. It tells the board of "
                    "every click, so that the popup can go.");

    page.setStates({{"Normal", State::Normal}, {"Disabled", State::Disabled}});
    page.look("Four models", [](QWidget *parent) { return strips::makeRow(4, parent); });
    page.look("One model", [](QWidget *parent) { return strips::makeRow(1, parent); });

    using W = WidgetContent;
    W *row = page.tryIt(strips::makeRow(4));
    page.event(row, "notifyShpeWidgetHide", &W::notifyShpeWidgetHide);
    page.action<W>(
        "addItem()", [](W *row) { row->addItem(strips::makeControllers(1, row).first()); },
        Reach::TryIt);
    page.action<W>(
        "removeItem(0)", [](W *row) { row->removeItem(0); }, Reach::TryIt);
}
