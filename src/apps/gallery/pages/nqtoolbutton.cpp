#include "page.h"
#include "pointers.h"

#include <nqtoolbutton.h>

namespace
{

const QString images = QStringLiteral(":/Resource/Images/globalResource/");

NQToolButton *makeCaptioned(QWidget *parent, const QString &caption)
{
    auto *button = new NQToolButton(parent, ImageAboveCaption);
    button->resize(60, 76);
    button->setUpLabelSize(40, 40);
    button->setUpLabelImg(images + "addBtn/ADD_normal.png",
                          images + "addBtn/box-add_disableDouble.png");
    button->setStrDownText(caption);
    return button;
}

NQToolButton *makePictures(QWidget *parent)
{
    auto *button = new NQToolButton(parent, ImageBesideImage);
    button->setFixedSize(72, 36);
    button->setLeftLabelImg(images + "addBtn/ADD_normal.png");
    button->setRightLabelImg(images + "messageBox/information.png");
    return button;
}

NQToolButton *checked(NQToolButton *button)
{
    button->setCheckable(true);
    button->setChecked(true);
    return button;
}

/// A setter whose value a button of two pictures would show in the other's sheet.
template <class Argument> auto onlyCaptioned(void (NQToolButton::*set)(Argument))
{
    return [set](NQToolButton *button, Argument value) {
        if (!button->getLabelRight())
            (button->*set)(value);
    };
}

} // namespace

GALLERY_PAGE(NQToolButton)
{
    page.setPurpose("A tool button with a picture above a caption, which sets the button's width, "
                    "or with two pictures side by side.");

    page.setStates({{"Normal", State::Normal},
                    {"Hover", State::Hover, pointers::onCentre},
                    {"Pressed", State::Pressed, pointers::onCentre},
                    {"Disabled", State::Disabled}});
    page.look("Picture and caption",
              [](QWidget *parent) { return makeCaptioned(parent, "Screens"); });
    page.look("  narrow caption", [](QWidget *parent) { return makeCaptioned(parent, "Add"); });
    page.look("  cut caption",
              [](QWidget *parent) { return makeCaptioned(parent, "All screens of the wall"); });
    page.look("  Chinese", [](QWidget *parent) { return makeCaptioned(parent, "添加箱体"); });
    page.look("  checked",
              [](QWidget *parent) { return checked(makeCaptioned(parent, "Screens")); });
    page.look("  setBtnEnabled(false)", [](QWidget *parent) {
        NQToolButton *button = makeCaptioned(parent, "Screens");
        button->setBtnEnabled(false);
        return button;
    });
    page.look("Two pictures", [](QWidget *parent) { return makePictures(parent); });
    page.look("  left one only", [](QWidget *parent) {
        NQToolButton *button = makePictures(parent);
        button->setLabelRightIsVisible(false);
        button->setFixedSize(36, 36);
        return button;
    });

    NQToolButton *captioned = page.tryIt(makeCaptioned(nullptr, "Screens"), "Picture and caption");
    NQToolButton *pictures = page.tryIt(makePictures(nullptr), "Two pictures");
    page.event(captioned, "clicked", &QToolButton::clicked);
    page.event(pictures, "clicked", &QToolButton::clicked);

    using W = NQToolButton;
    page.text<W>("setStrDownText", &W::strDownText, &W::setStrDownText);
    page.number<W>("setTopToBottomBtnMinWidth", Page::withoutGetter(50),
                   &W::setTopToBottomBtnMinWidth, 0, 200, Reach::TryIt);
    page.number<W>("setTopToBottomBtnMaxWidth", Page::withoutGetter(84),
                   &W::setTopToBottomBtnMaxWidth, 0, 200, Reach::TryIt);
    page.number<W>("setTopToBottomBtnBorderWidth", Page::withoutGetter(5),
                   &W::setTopToBottomBtnBorderWidth, 0, 40, Reach::TryIt);
    page.flag<W>("setBtnEnabled", &W::isEnabled, &W::setBtnEnabled);
    page.flag<W>("setCheckable", &W::isCheckable, &W::setCheckable);
    page.flag<W>("setLabelRightIsVisible", Page::withoutGetter(true), &W::setLabelRightIsVisible);
    page.color<W>("setDownLabelTextColor", &W::downLabelTextColor, &W::setDownLabelTextColor);
    page.color<W>("setTopToBottomNormalBtnColor", &W::topToBottomNormalBtnColor,
                  onlyCaptioned(&W::setTopToBottomNormalBtnColor));
    page.color<W>("setTopToBottomHoverBtnColor", &W::topToBottomHoverBtnColor,
                  onlyCaptioned(&W::setTopToBottomHoverBtnColor));
    page.color<W>("setTopToBottomPressedBtnColor", &W::topToBottomPressedBtnColor,
                  onlyCaptioned(&W::setTopToBottomPressedBtnColor));
    page.color<W>("setTopToBottomDisabledBtnColor", &W::topToBottomDisabledBtnColor,
                  onlyCaptioned(&W::setTopToBottomDisabledBtnColor));
    page.color<W>("setTopToBottomHoverBtnBorderColor", &W::topToBottomHoverBtnBorderColor,
                  onlyCaptioned(&W::setTopToBottomHoverBtnBorderColor));
    page.color<W>("setTopToBottomPressedBtnBorderColor", &W::topToBottomPressedBtnBorderColor,
                  onlyCaptioned(&W::setTopToBottomPressedBtnBorderColor));
    page.number<W>("setTopToBottomBorderRadius", &W::topToBottomBorderRadius,
                   &W::setTopToBottomBorderRadius, 0, 30);
    page.number<W>("setTopToBottomBtnVlayoutSpace", Page::withoutGetter(6),
                   &W::setTopToBottomBtnVlayoutSpace, 0, 20);
}
