#include "page.h"
#include "pointers.h"

#include <doublespinboxex.h>

namespace
{

DoubleSpinBoxEx *makeBox(QWidget *parent, int width, bool showValue = true)
{
    auto *box = new DoubleSpinBoxEx(parent);
    box->setFixedSize(width, theme::controlHeight);
    box->setRange(0, 100);
    box->setSingleStep(0.25);
    box->setShowValue(showValue);
    box->setValue(2.5);
    return box;
}

} // namespace

GALLERY_PAGE(DoubleSpinBoxEx)
{
    page.setPurpose("A spin box for decimal numbers with image arrows, which can hide its value "
                    "behind dashes.");

    page.setStates({{"Normal", State::Normal},
                    {"Up hovered", State::Hover, pointers::onUpArrow},
                    {"Up pressed", State::Pressed, pointers::onUpArrow},
                    {"Down hovered", State::Hover, pointers::onDownArrow},
                    {"Focus", State::Focus},
                    {"Disabled", State::Disabled}});
    page.look("Value shown", [](QWidget *parent) { return makeBox(parent, 72); });
    page.look("Value hidden", [](QWidget *parent) { return makeBox(parent, 72, false); });

    DoubleSpinBoxEx *box = page.tryIt(makeBox(nullptr, 136));
    page.event(box, "valueChanged", QOverload<double>::of(&QDoubleSpinBox::valueChanged));
    page.event(box, "editingFinished", &QDoubleSpinBox::editingFinished);

    using W = DoubleSpinBoxEx;
    page.flag<W>("setShowValue", &W::showValue, [](W *box, bool show) {
        box->setShowValue(show);
        box->setValue(box->value()); // shows the text anew
    });
    page.number<W>("setDecimals", &W::decimals, &W::setDecimals, 0, 6, Reach::TryIt);
    page.flag<W>("setEnabled", &W::isEnabled, &W::setEnabled);
    page.color<W>("setBackgroundColor", &W::backgroundColor, &W::setBackgroundColor);
    page.color<W>("setBordColor", &W::bordColor, &W::setBordColor);
    page.color<W>("setFontColor", &W::fontColor, &W::setFontColor);
    page.color<W>("setDisabledFontColor", &W::disabledFontColor, &W::setDisabledFontColor);
    page.action<W>("initStyle()", &W::initStyle);
}
