#include "page.h"

#include <checkboxex.h>

namespace
{

CheckBoxEx *makeBox(QWidget *parent, int width, const QString &text)
{
    auto *box = new CheckBoxEx(parent);
    box->setFixedSize(width, theme::controlHeight);
    box->setText(text);
    return box;
}

} // namespace

GALLERY_PAGE(CheckBoxEx)
{
    page.setPurpose("A check box with image indicators, adjustable colours and a payload for the "
                    "host. Text that does not fit is elided and becomes the tool tip.");

    page.setStates({{"Normal", State::Normal},
                    {"Hover", State::Hover},
                    {"Pressed", State::Pressed},
                    {"Focus", State::Focus},
                    {"Disabled", State::Disabled}});
    page.look("Unchecked", [](QWidget *parent) { return makeBox(parent, 88, "Mirror"); });
    page.look("Checked", [](QWidget *parent) {
        CheckBoxEx *box = makeBox(parent, 88, "Mirror");
        box->setChecked(true);
        return box;
    });
    page.look("Elided", [](QWidget *parent) { return makeBox(parent, 88, "Mirror the screen"); });

    CheckBoxEx *box = page.tryIt(makeBox(nullptr, 200, "Mirror the screen"));
    page.event(box, "clicked", &QCheckBox::clicked);
    page.event(box, "toggled", &QCheckBox::toggled);
    page.event(box, "stateChanged", &QCheckBox::stateChanged);

    page.text<CheckBoxEx>("setText", &CheckBoxEx::text, &CheckBoxEx::setText);
    page.flag<CheckBoxEx>("setChecked", &CheckBoxEx::isChecked, &CheckBoxEx::setChecked);
    page.flag<CheckBoxEx>("setEnabled", &CheckBoxEx::isEnabled, &CheckBoxEx::setEnabled);
    page.number<CheckBoxEx>("setSpacing", &CheckBoxEx::spacing, &CheckBoxEx::setSpacing, 0, 32);
    page.number<CheckBoxEx>("setIndicatorWidth", &CheckBoxEx::indicatorWidth,
                            &CheckBoxEx::setIndicatorWidth, 8, 32);
    page.number<CheckBoxEx>("setIndicatorHeight", &CheckBoxEx::indicatorHeight,
                            &CheckBoxEx::setIndicatorHeight, 8, 32);
    page.color<CheckBoxEx>("setFontColor", &CheckBoxEx::fontColor, &CheckBoxEx::setFontColor);
    page.color<CheckBoxEx>("setDisabledFontColor", &CheckBoxEx::disabledFontColor,
                           &CheckBoxEx::setDisabledFontColor);
    page.color<CheckBoxEx>("setHoverFontColor", &CheckBoxEx::hoverFontColor,
                           &CheckBoxEx::setHoverFontColor);
    page.color<CheckBoxEx>("setCheckedColor", Page::withoutGetter(QColor(255, 255, 255)),
                           &CheckBoxEx::setCheckedColor);
    page.action<CheckBoxEx>("initStyle()", &CheckBoxEx::initStyle);
}
