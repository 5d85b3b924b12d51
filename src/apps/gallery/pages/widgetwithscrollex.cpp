#include "cabinets.h"
#include "page.h"
#include "pointers.h"

#include <toolbuttonex.h>
#include <widgetwithscrollex.h>

#include <QToolButton>

namespace
{

QWidget *makeContent(int count)
{
    auto *content = new QWidget;
    int x = 0;
    for (const StructCabinet &record : cabinets::some(count)) {
        ToolButtonEx *cabinet = cabinets::makePlaced(record, content);
        cabinet->move(x, 0);
        x += cabinet->width();
    }
    content->setFixedSize(x, 69);
    return content;
}

WidgetWithScrollEx *makeStrip(QWidget *parent, int count)
{
    auto *strip = new WidgetWithScrollEx(parent);
    strip->setFixedSize(196, 74);
    strip->addWidget(makeContent(count));
    return strip;
}

WidgetWithScrollEx *makeScrolled(QWidget *parent, int clicks)
{
    WidgetWithScrollEx *strip = makeStrip(parent, 4);
    strip->grab(); // lays it out, so that there is a range to scroll in
    for (int i = 0; i < clicks; ++i)
        strip->on_rightClicked();
    return strip;
}

} // namespace

GALLERY_PAGE(WidgetWithScrollEx)
{
    page.setPurpose("A strip that shows a wide widget through a window of 138 by 69 pixels, "
                    "without scroll bars. An arrow shows only while there is somewhere to go.");

    page.setStates(
        {{"Normal", State::Normal},
         {"Right arrow pressed", State::Pressed, pointers::onCentre,
          [](QWidget *strip) -> QWidget * {
              return strip->findChild<QWidget *>("rightBtnFrame")->findChild<QToolButton *>();
          }}});
    page.look("Content fits", [](QWidget *parent) { return makeStrip(parent, 2); });
    page.look("At the left", [](QWidget *parent) { return makeStrip(parent, 4); });
    page.look("In between", [](QWidget *parent) { return makeScrolled(parent, 1); });
    page.look("At the right", [](QWidget *parent) { return makeScrolled(parent, 2); });
    page.look("Disabled", [](QWidget *parent) {
        WidgetWithScrollEx *strip = makeScrolled(parent, 1);
        strip->setEnabled(false);
        return strip;
    });

    page.tryIt(makeStrip(nullptr, 7));

    using W = WidgetWithScrollEx;
    page.number<W>("setScrollSingleStepValue", &W::scrollSingleStepValue,
                   &W::setScrollSingleStepValue, 1, 500, Reach::TryIt);
    page.flag<W>("setLeftButtonVisible", Page::withoutGetter(false), &W::setLeftButtonVisible);
    page.flag<W>("setRightButtonVisible", Page::withoutGetter(true), &W::setRightButtonVisible);
    page.action<W>(
        "addWidget() of two cabinets", [](W *strip) { strip->addWidget(makeContent(2)); },
        Reach::TryIt);
    page.action<W>(
        "addWidget() of seven cabinets", [](W *strip) { strip->addWidget(makeContent(7)); },
        Reach::TryIt);
    page.action<W>("removeWidget()", &W::removeWidget, Reach::TryIt);
}
