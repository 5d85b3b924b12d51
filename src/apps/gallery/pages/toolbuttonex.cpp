#include "cabinets.h"
#include "droparea.h"
#include "page.h"
#include "pointers.h"

#include <toolbuttonex.h>

namespace
{

const QString images = QStringLiteral(":/Resource/Images/globalResource/");

/// All texts are given to every kind; each shows its own.
ToolButtonEx *makeButton(QWidget *parent, ButtonType type, QSize size, const QString &text = {})
{
    auto *button = new ToolButtonEx(parent, type, "Screen 1", "1920 × 1080");
    button->setFixedSize(size);
    button->setText(text);
    button->setStrLeftImgPathNormal(images + "drawer/netport.png");
    button->setStrLeftImgPathPressed(images + "drawer/netport.png");
    button->setStrRightText("Port 1");
    button->setStrRightBottomText("online");
    return button;
}

ToolButtonEx *makeSender(QWidget *parent)
{
    ToolButtonEx *button = makeButton(parent, DefaultType, {104, 28}, "Sender 3");
    button->setBIsVsender(true);
    button->setVsenderText("3");
    return button;
}

ToolButtonEx *checked(ToolButtonEx *button)
{
    button->setCheckable(true);
    button->setChecked(true);
    return button;
}

/// A setter that styles any button is called on those of one kind only.
template <class Argument> auto onlyFor(ButtonType type, void (ToolButtonEx::*set)(Argument))
{
    return [type, set](ToolButtonEx *button, Argument value) {
        if (button->buttonType() == type)
            (button->*set)(value);
    };
}

} // namespace

GALLERY_PAGE(ToolButtonEx)
{
    page.setPurpose("The all-purpose tool button: one class, eight looks chosen by its ButtonType. "
                    "Cabinets of many sizes, and their drags, are on the page StructCabinet.");

    page.setStates({{"Normal", State::Normal},
                    {"Hover", State::Hover, pointers::onCentre},
                    {"Pressed", State::Pressed, pointers::onCentre},
                    {"Disabled", State::Disabled}});
    page.look("Left to right", [](QWidget *parent) {
        return makeButton(parent, LeftToRightType, {104, 40});
    });
    page.look("  two texts", [](QWidget *parent) {
        ToolButtonEx *button = makeButton(parent, LeftToRightType, {104, 40});
        button->setRightBottomLableVisible(true);
        return button;
    });
    page.look("Top to bottom", [](QWidget *parent) {
        return makeButton(parent, TopToBottomType, {104, 56});
    });
    page.look("  checked", [](QWidget *parent) {
        return checked(makeButton(parent, TopToBottomType, {104, 56}));
    });
    page.look("Cabinet", [](QWidget *parent) {
        return cabinets::makePlaced(cabinets::some(1).first(), parent);
    });
    page.look("Cabinet model", [](QWidget *parent) {
        return cabinets::makeModel(cabinets::some(1, 3).first(), parent, 69);
    });
    page.look("Add cabinet", [](QWidget *parent) {
        return makeButton(parent, AddCabinetType, {40, 40});
    });
    page.look("Activated", [](QWidget *parent) {
        return makeButton(parent, ActivatedType, {104, 28}, "Send");
    });
    page.look("Not activated", [](QWidget *parent) {
        return makeButton(parent, NoActivatedType, {104, 28}, "Read back");
    });
    page.look("  elided", [](QWidget *parent) {
        return makeButton(parent, NoActivatedType, {104, 28}, "Read back all the ports");
    });
    page.look("Plain", [](QWidget *parent) {
        return makeButton(parent, DefaultType, {104, 28}, "Rotate");
    });
    page.look("  checked", [](QWidget *parent) {
        return checked(makeButton(parent, DefaultType, {104, 28}, "Rotate"));
    });

    auto *dropArea = new DropArea;
    page.tryHere("A sender to drag", makeSender(nullptr), dropArea);
    page.event(dropArea, "textArrived", &DropArea::textArrived);

    page.tryIt(makeButton(nullptr, LeftToRightType, {160, 40}), "Left to right");
    page.tryIt(makeButton(nullptr, TopToBottomType, {160, 56}), "Top to bottom");
    page.tryIt(makeButton(nullptr, ActivatedType, {160, 28}, "Send"), "Activated");
    page.tryIt(makeButton(nullptr, NoActivatedType, {160, 28}, "Read back"), "Not activated");

    using W = ToolButtonEx;
    page.flag<W>("setEnabled", &W::isEnabled, &W::setEnabled);
    page.flag<W>("setCheckable", &W::isCheckable, &W::setCheckable);
    page.flag<W>("setChecked", &W::isChecked, &W::setChecked);
    page.flag<W>("setIsChangeMouseStyle", Page::withoutGetter(false), &W::setIsChangeMouseStyle);
    page.flag<W>("setIsHasData", &W::getIsHasData, &W::setIsHasData);

    page.text<W>("setStrRightText", &W::strRightText, &W::setStrRightText);
    page.text<W>("setStrRightBottomText", Page::withoutGetter(QString("online")),
                 &W::setStrRightBottomText);
    page.flag<W>("setRightBottomLableVisible", Page::withoutGetter(false),
                 onlyFor(LeftToRightType, &W::setRightBottomLableVisible));
    page.number<W>("setLeftToRightLayoutSpace", &W::leftToRightLayoutSpace,
                   &W::setLeftToRightLayoutSpace, 0, 40);
    page.number<W>("setLeftToRightBorderRadius", &W::leftToRightBorderRadius,
                   &W::setLeftToRightBorderRadius, 0, 20);
    page.color<W>("setLeftToRightNormalBgColor", &W::leftToRightNormalBgColor,
                  &W::setLeftToRightNormalBgColor);
    page.color<W>("setLeftToRightPressedBgColor", &W::leftToRightPressedBgColor,
                  &W::setLeftToRightPressedBgColor);
    page.color<W>("setRightLabelTextNormalColor", &W::rightLabelTextNormalColor,
                  &W::setRightLabelTextNormalColor);
    page.color<W>("setRightLabelTextPressedColor", &W::rightLabelTextPressedColor,
                  &W::setRightLabelTextPressedColor);

    page.text<W>("setStrUpText", &W::strUpText, &W::setStrUpText);
    page.text<W>("setStrDownText", &W::strDownText, &W::setStrDownText);
    page.number<W>("setTopToBottomBorderRadius", &W::topToBottomBorderRadius,
                   &W::setTopToBottomBorderRadius, 0, 20);
    page.color<W>("setTopToBottomNormalBgColor", &W::topToBottomNormalBgColor,
                  &W::setTopToBottomNormalBgColor);
    page.color<W>("setTopToBottomPressedBgColor", &W::topToBottomPressedBgColor,
                  &W::setTopToBottomPressedBgColor);
    page.color<W>("setUpLabelTextColor", &W::upLabelTextColor, &W::setUpLabelTextColor);
    page.color<W>("setDownLabelTextColor", &W::downLabelTextColor, &W::setDownLabelTextColor);

    page.number<W>("setActivatedBorderRadius", &W::activatedBorderRadius,
                   &W::setActivatedBorderRadius, 0, 14);
    page.color<W>("setActivatedNormalBgColor", &W::activatedNormalBgColor,
                  &W::setActivatedNormalBgColor);
    page.color<W>("setActivatedHoverBgColor", &W::activatedHoverBgColor,
                  &W::setActivatedHoverBgColor);
    page.color<W>("setActivatedPressedBgColor", &W::activatedPressedBgColor,
                  &W::setActivatedPressedBgColor);
    page.color<W>("setActivatedDisabledBgColor", &W::activatedDisabledBgColor,
                  &W::setActivatedDisabledBgColor);
    page.color<W>("setActivatedNormalFontColor", &W::activatedNormalFontColor,
                  &W::setActivatedNormalFontColor);
    page.color<W>("setActivatedHoverFontColor", &W::activatedHoverFontColor,
                  &W::setActivatedHoverFontColor);
    page.color<W>("setActivatedPressedFontColor", &W::activatedPressedFontColor,
                  &W::setActivatedPressedFontColor);
    page.color<W>("setActivatedDisabledFontColor", &W::activatedDisabledFontColor,
                  &W::setActivatedDisabledFontColor);

    page.number<W>("setNoActivatedLeftPadding", &W::getNoActivatedLeftPadding,
                   onlyFor(NoActivatedType, &W::setNoActivatedLeftPadding), 0, 60);
    page.number<W>("setNoActivatedBorderRadius", &W::noActivatedBorderRadius,
                   &W::setNoActivatedBorderRadius, 0, 14);
    page.color<W>("setNoActivatedNormalBgColor", &W::noActivatedNormalBgColor,
                  &W::setNoActivatedNormalBgColor);
    page.color<W>("setNoActivatedHoverBgColor", &W::noActivatedHoverBgColor,
                  &W::setNoActivatedHoverBgColor);
    page.color<W>("setNoActivatedPressedBgColor", &W::noActivatedPressedBgColor,
                  &W::setNoActivatedPressedBgColor);
    page.color<W>("setNoActivatedDisabledBgColor", &W::noActivatedDisabledBgColor,
                  &W::setNoActivatedDisabledBgColor);
    page.color<W>("setNoActivatedNormalFontColor", &W::noActivatedNormalFontColor,
                  &W::setNoActivatedNormalFontColor);
    page.color<W>("setNoActivatedHoverFontColor", &W::noActivatedHoverFontColor,
                  &W::setNoActivatedHoverFontColor);
    page.color<W>("setNoActivatedPressedFontColor", &W::noActivatedPressedFontColor,
                  &W::setNoActivatedPressedFontColor);
    page.color<W>("setNoActivatedDisabledFontColor", &W::noActivatedDisabledFontColor,
                  &W::setNoActivatedDisabledFontColor);
}
