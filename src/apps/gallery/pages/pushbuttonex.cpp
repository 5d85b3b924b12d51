#include "page.h"
#include "pointers.h"

#include <pushbuttonex.h>

namespace
{

constexpr int plainKind = 2;

PushButtonEx *makeSample(QWidget *parent, int kind, int width = 88,
                         const QString &text = QStringLiteral("Send"))
{
    auto *button = new PushButtonEx(parent, static_cast<BtnType>(kind));
    button->setFixedSize(width, theme::controlHeight);
    button->setText(text);
    return button;
}

} // namespace

GALLERY_PAGE(PushButtonEx)
{
    page.setPurpose("A command button whose look is chosen once: accented for the main action, "
                    "grey for the others, or plain.");

    page.setStates({{"Normal", State::Normal},
                    {"Hover", State::Hover, pointers::onCentre},
                    {"Pressed", State::Pressed, pointers::onCentre},
                    {"Focus", State::Focus},
                    {"Disabled", State::Disabled}});
    page.look("Activated", [](QWidget *parent) { return makeSample(parent, ActivatedBtn); });
    page.look("Not activated", [](QWidget *parent) { return makeSample(parent, NoActivatedBtn); });
    page.look("Plain", [](QWidget *parent) { return makeSample(parent, plainKind); });
    page.look("Elided", [](QWidget *parent) {
        return makeSample(parent, NoActivatedBtn, 88, "Send to all the ports");
    });
    page.look("Chinese",
              [](QWidget *parent) { return makeSample(parent, ActivatedBtn, 88, "发送配置"); });

    PushButtonEx *button = page.tryIt(makeSample(nullptr, ActivatedBtn, 144, "Send to screen"));
    page.event(button, "pressed", &QPushButton::pressed);
    page.event(button, "released", &QPushButton::released);
    page.event(button, "clicked", &QPushButton::clicked);

    using W = PushButtonEx;
    page.text<W>("setText", &W::text, &W::setText);
    page.flag<W>("setEnabled", &W::isEnabled, &W::setEnabled);
    page.choice<W>("createButtonByType", {"Activated", "Not activated", "Plain"},
                   Page::withoutGetter(int(ActivatedBtn)), [](W *button, int kind) {
                       button->createButtonByType(static_cast<BtnType>(kind));
                   });
}
