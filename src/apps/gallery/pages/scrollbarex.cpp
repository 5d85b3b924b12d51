#include "page.h"
#include "pointers.h"

#include <scrollbarex.h>

namespace
{

void applyStyle(ScrollBarEx *look)
{
    if (static_cast<QScrollBar *>(look->parentWidget())->orientation() == Qt::Vertical)
        look->setVerticalStyle();
    else
        look->setHorizontalStyle();
}

Sample makeBar(QWidget *parent, Qt::Orientation orientation, bool withImages, int length)
{
    auto *bar = new QScrollBar(orientation, parent);
    bar->setFixedSize(orientation == Qt::Vertical ? QSize(16, length) : QSize(length, 16));
    bar->setRange(0, 100);
    bar->setPageStep(40);
    bar->setValue(30);
    auto *look = new ScrollBarEx(bar, withImages);
    look->setParent(bar); // it lives as long as the bar that it styles
    look->hide();
    applyStyle(look);
    return Sample(bar, look, bar);
}

/// A setter that leaves the bar with the style of its own orientation: those that both styles use
/// apply the one after the other.
template <class Argument> auto restyling(void (ScrollBarEx::*set)(Argument))
{
    return [set](ScrollBarEx *look, Argument value) {
        (look->*set)(value);
        applyStyle(look);
    };
}

} // namespace

GALLERY_PAGE(ScrollBarEx)
{
    page.setPurpose("Not a bar of its own but the look for one that a list, a table or a scroll "
                    "area has: the caller hands over the bar and asks for one of the two styles.");

    page.setStates({{"Normal", State::Normal},
                    {"Handle hovered", State::Hover, pointers::onHandle},
                    {"Handle pressed", State::Pressed, pointers::onHandle},
                    {"Arrow pressed", State::Pressed, pointers::onEndArrow},
                    {"Disabled", State::Disabled}});
    page.look("Horizontal",
              [](QWidget *parent) { return makeBar(parent, Qt::Horizontal, true, 88); });
    page.look("No images",
              [](QWidget *parent) { return makeBar(parent, Qt::Horizontal, false, 88); });
    page.look("Vertical", [](QWidget *parent) { return makeBar(parent, Qt::Vertical, true, 88); });
    page.look("No images",
              [](QWidget *parent) { return makeBar(parent, Qt::Vertical, false, 88); });

    for (Qt::Orientation orientation : {Qt::Horizontal, Qt::Vertical}) {
        const bool isHorizontal = orientation == Qt::Horizontal;
        const Sample sample = makeBar(nullptr, orientation, true, isHorizontal ? 200 : 120);
        page.tryIt(sample, isHorizontal ? "Horizontal" : "Vertical");
        page.event(static_cast<QScrollBar *>(sample.widget.data()), "valueChanged",
                   &QScrollBar::valueChanged);
    }

    using W = ScrollBarEx;
    page.flag<W>("setIsLoadImg", &W::isLoadImg, [](W *look, bool withImages) {
        look->setIsLoadImg(withImages);
        applyStyle(look);
    });
    page.number<W>("setScrollWidth", &W::scrollWidth, restyling(&W::setScrollWidth), 4, 32);
    page.number<W>("setScrollHeight", &W::scrollHeight, restyling(&W::setScrollHeight), 4, 32);
    page.number<W>("setScrollBarWidth", &W::scrollBarWidth, restyling(&W::setScrollBarWidth), 4,
                   32);
    page.number<W>("setScrollBarHeight", &W::scrollBarHeight, restyling(&W::setScrollBarHeight), 4,
                   32);
    page.number<W>("setScrollBarMargin", &W::scrollBarMargin, restyling(&W::setScrollBarMargin), 0,
                   8);
    page.number<W>("setIconWidth", &W::iconWidth, restyling(&W::setIconWidth), 0, 32);
    page.number<W>("setIconHeight", &W::iconHeight, restyling(&W::setIconHeight), 0, 32);
    page.number<W>("setBorderRadius", &W::borderRadius, restyling(&W::setBorderRadius), 0, 8);
    page.number<W>("setHanderMinHeight", &W::handerMinHeight, restyling(&W::setHanderMinHeight), 8,
                   64);
    page.number<W>("setHanderMinWidth", &W::handerMinWidth, restyling(&W::setHanderMinWidth), 8,
                   64);
    page.color<W>("setScrollColor", &W::scrollColor, restyling(&W::setScrollColor));
    page.color<W>("setScrollHandleColor", &W::scrollHandleColor,
                  restyling(&W::setScrollHandleColor));
    page.color<W>("setScrollHandlePressedColor", &W::scrollHandlePressedColor,
                  restyling(&W::setScrollHandlePressedColor));
    page.action<W>("initParameter()", [](W *look) {
        look->initParameter();
        applyStyle(look);
    });
}
