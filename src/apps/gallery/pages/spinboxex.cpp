#include "page.h"
#include "pointers.h"

#include <spinboxex.h>

namespace
{

SpinBoxEx *makeBox(QWidget *parent, int width, bool showValue = true)
{
    auto *box = new SpinBoxEx(parent);
    box->setFixedSize(width, theme::controlHeight);
    box->setRange(0, 359);
    box->setWrapping(true);
    box->setShowValue(showValue);
    box->setValue(90);
    return box;
}

} // namespace

GALLERY_PAGE(SpinBoxEx)
{
    page.setPurpose(
        "A spin box for angles that wrap between 359 and 0. After each click it reports "
        "the direction of the change, and it can hide its value behind dashes.");

    page.setStates({{"Normal", State::Normal},
                    {"Up hovered", State::Hover, pointers::onUpArrow},
                    {"Up pressed", State::Pressed, pointers::onUpArrow},
                    {"Down hovered", State::Hover, pointers::onDownArrow},
                    {"Focus", State::Focus},
                    {"Disabled", State::Disabled}});
    page.look("Value shown", [](QWidget *parent) { return makeBox(parent, 72); });
    page.look("Value hidden", [](QWidget *parent) { return makeBox(parent, 72, false); });

    SpinBoxEx *box = page.tryIt(makeBox(nullptr, 136));
    page.event(box, "signal_valueChanged", &SpinBoxEx::signal_valueChanged);
    page.event(box, "valueChanged", QOverload<int>::of(&QSpinBox::valueChanged));
    page.event(box, "editingFinished", &QSpinBox::editingFinished);

    using W = SpinBoxEx;
    page.flag<W>("setShowValue", &W::showValue, [](W *box, bool show) {
        box->setShowValue(show);
        box->setValue(box->value()); // shows the text anew
    });
    page.flag<W>("setFocusOutEvent", qOverload<>(&W::focusOutEvent), &W::setFocusOutEvent);
    page.flag<W>("setEnabled", &W::isEnabled, &W::setEnabled);
    page.color<W>("setBackgroundColor", &W::backgroundColor, &W::setBackgroundColor);
    page.color<W>("setBordColor", &W::bordColor, &W::setBordColor);
    page.color<W>("setFontColor", &W::fontColor, &W::setFontColor);
    page.color<W>("setDisabledFontColor", &W::disabledFontColor, &W::setDisabledFontColor);
    page.action<W>("initStyle()", &W::initStyle);
}
