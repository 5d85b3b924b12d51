#include "page.h"

#include <labelex.h>

namespace
{

LabelEx *makeLabel(QWidget *parent, int width, const QString &text)
{
    auto *label = new LabelEx(parent);
    label->setFixedSize(width, theme::controlHeight);
    label->setText(text);
    return label;
}

} // namespace

GALLERY_PAGE(LabelEx)
{
    page.setPurpose("A label that reports the pointer: a left press, entering and leaving. Text "
                    "that does not fit is elided and becomes the tool tip.");

    page.setStates({{"Normal", State::Normal}, {"Disabled", State::Disabled}});
    page.look("Short", [](QWidget *parent) { return makeLabel(parent, 136, "Cabinet 12"); });
    page.look("Chinese", [](QWidget *parent) { return makeLabel(parent, 136, "箱体 12"); });
    page.look("Elided", [](QWidget *parent) {
        return makeLabel(parent, 136, "Cabinet 12, receiving card 3");
    });

    LabelEx *label = page.tryIt(makeLabel(nullptr, 200, "Press or pass over this"));
    page.event(label, "signal_mouseclicked", &LabelEx::signal_mouseclicked);
    page.event(label, "signal_mouseenter", &LabelEx::signal_mouseenter);
    page.event(label, "signal_mouseleave", &LabelEx::signal_mouseleave);

    using W = LabelEx;
    page.text<W>("setText", &W::text, &W::setText);
    page.flag<W>("setEnabled", &W::isEnabled, &W::setEnabled);
    page.color<W>("setFontColor", Page::withoutGetter(QColor(210, 210, 210)), &W::setFontColor);
}
