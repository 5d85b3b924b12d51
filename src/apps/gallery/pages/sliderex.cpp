#include "page.h"
#include "pointers.h"

#include <sliderex.h>

namespace
{

SliderEx *makeSlider(QWidget *parent, Qt::Orientation orientation, int length)
{
    constexpr int breadth = 20;
    auto *slider = new SliderEx(parent, orientation);
    slider->setFixedSize(orientation == Qt::Horizontal ? QSize(length, breadth)
                                                       : QSize(breadth, length));
    slider->setRange(0, 100);
    slider->setValue(40);
    return slider;
}

} // namespace

GALLERY_PAGE(SliderEx)
{
    page.setPurpose(
        "A slider with colours and sizes of its own for each orientation. It ignores the "
        "wheel until that is allowed, and reports every release of the mouse.");

    page.setStates({{"Normal", State::Normal},
                    {"Hover", State::Hover, pointers::onHandle},
                    {"Pressed", State::Pressed, pointers::onHandle},
                    {"Focus", State::Focus},
                    {"Disabled", State::Disabled}});
    page.look("Horizontal", [](QWidget *parent) { return makeSlider(parent, Qt::Horizontal, 88); });
    page.look("Vertical", [](QWidget *parent) { return makeSlider(parent, Qt::Vertical, 88); });

    for (Qt::Orientation orientation : {Qt::Horizontal, Qt::Vertical}) {
        const bool isHorizontal = orientation == Qt::Horizontal;
        SliderEx *slider = page.tryIt(makeSlider(nullptr, orientation, isHorizontal ? 200 : 96),
                                      isHorizontal ? "Horizontal" : "Vertical");
        page.event(slider, "sliderMouseRealse", &SliderEx::sliderMouseRealse);
        page.event(slider, "valueChanged", &QSlider::valueChanged);
    }

    using W = SliderEx;
    page.flag<W>("setEnabled", &W::isEnabled, &W::setEnabled);
    page.flag<W>("setWheelEventEffective", Page::withoutGetter(false), &W::setWheelEventEffective);
    page.number<W>("setGrooveWidth", &W::grooveWidth, &W::setGrooveWidth, 1, 16);
    page.number<W>("setGrooveHeight", &W::grooveHeight, &W::setGrooveHeight, 1, 16);
    page.number<W>("setHandleWidth", &W::handleWidth, &W::setHandleWidth, 4, 32);
    page.number<W>("setHandleHeight", &W::handleHeight, &W::setHandleHeight, 4, 32);
    page.color<W>("setAddPageColor", &W::addPageColor, &W::setAddPageColor);
    page.color<W>("setSubPageColor", &W::subPageColor, &W::setSubPageColor);
    page.color<W>("setHandleColor", &W::handleColor, &W::setHandleColor);
    page.color<W>("setHandleHoverColor", &W::handleHoverColor, &W::setHandleHoverColor);
    page.action<W>("initSliderStyle()", &W::initSliderStyle);
}
