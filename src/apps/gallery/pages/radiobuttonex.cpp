#include "page.h"

#include <radiobuttonex.h>

#include <QButtonGroup>

namespace
{

RadioButtonEx *makeButton(QWidget *parent, int width, const QString &text, bool checked = false)
{
    auto *button = new RadioButtonEx(parent);
    button->setFixedSize(width, theme::controlHeight);
    button->setText(text);
    button->setChecked(checked);
    return button;
}

} // namespace

GALLERY_PAGE(RadioButtonEx)
{
    page.setPurpose("A radio button with image indicators for each state. Text that does not fit "
                    "beside the indicator is elided and becomes the tool tip.");

    page.setStates({{"Normal", State::Normal},
                    {"Hover", State::Hover},
                    {"Pressed", State::Pressed},
                    {"Focus", State::Focus},
                    {"Disabled", State::Disabled}});
    page.look("Unchecked", [](QWidget *parent) { return makeButton(parent, 88, "60 Hz"); });
    page.look("Checked", [](QWidget *parent) { return makeButton(parent, 88, "60 Hz", true); });
    page.look("Elided", [](QWidget *parent) { return makeButton(parent, 88, "60 Hz, locked"); });

    RadioButtonEx *first = page.tryIt(makeButton(nullptr, 200, "60 Hz", true), "60 Hz");
    RadioButtonEx *second = page.tryIt(makeButton(nullptr, 200, "120 Hz"), "120 Hz");
    auto *group = new QButtonGroup(&page);
    group->addButton(first);
    group->addButton(second);
    page.event(first, "clicked", &QRadioButton::clicked);
    page.event(first, "toggled", &QRadioButton::toggled);
    page.event(second, "clicked", &QRadioButton::clicked);
    page.event(second, "toggled", &QRadioButton::toggled);

    using W = RadioButtonEx;
    page.text<W>("setText", &W::text, &W::setText);
    page.flag<W>("setEnabled", &W::isEnabled, &W::setEnabled);
    page.number<W>("setSpace", &W::space, &W::setSpace, 0, 32);
    page.number<W>("setIndicatorWidth", &W::indicatorWidth, &W::setIndicatorWidth, 8, 32);
    page.number<W>("setIndicatorHeight", &W::indicatorHeight, &W::setIndicatorHeight, 8, 32);
    page.color<W>("setFontColor", &W::fontColor, &W::setFontColor);
    page.color<W>("setDisabledFontColor", &W::disabledFontColor, &W::setDisabledFontColor);
    page.action<W>("init(), setStyle()", [](W *button) {
        button->init();
        button->setStyle();
    });
}
