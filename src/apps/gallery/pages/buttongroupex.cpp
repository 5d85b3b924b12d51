#include "page.h"
#include "pointers.h"
#include "strips.h"

#include <buttongroupex.h>
#include <toolbuttonex.h>
#include <widgetcontent.h>

namespace
{

constexpr QSize stripSize(230, 70);

Sample makeStrip(QWidget *parent, int count, const std::function<void(ButtonGroupEx *)> &prepare)
{
    QWidget *host = strips::makeHost(parent);
    auto *strip = new ButtonGroupEx(host);
    strip->setFixedSize(stripSize);
    host->setFixedSize(stripSize);
    strip->setLabelText("Cabinet models");
    strip->ensurePolished();
    strip->addWidget(strips::makeRow(count));
    if (prepare)
        prepare(strip);
    return Sample(host, strip, strip);
}

QWidget *addButton(QWidget *host)
{
    return host->findChild<QWidget *>("addCabniateBtnFrame")->findChild<ToolButtonEx *>();
}

} // namespace

GALLERY_PAGE(ButtonGroupEx)
{
    page.setPurpose("The titled strip of the controller board: buttons that add, and a row that "
                    "scrolls between arrows. The host's style sheet gives the arrows pictures.");

    page.setStates(
        {{"Normal", State::Normal}, {"Add hovered", State::Hover, pointers::onCentre, addButton}});
    page.look("Fits", [](QWidget *parent) { return makeStrip(parent, 1, {}); });
    page.look("More than fit", [](QWidget *parent) { return makeStrip(parent, 8, {}); });
    page.look("Scrolled", [](QWidget *parent) {
        return makeStrip(parent, 8, [](ButtonGroupEx *strip) { strip->on_rightClicked(); });
    });
    page.look("No add buttons", [](QWidget *parent) {
        return makeStrip(parent, 8, [](ButtonGroupEx *strip) {
            strip->setAddBtnVisible(false);
            strip->setAddRowCabincateBtnVisible(false);
        });
    });
    page.look("Disabled", [](QWidget *parent) {
        return makeStrip(parent, 8, [](ButtonGroupEx *strip) { strip->setFrameIsEnabled(false); });
    });

    using W = ButtonGroupEx;
    const Sample sample = makeStrip(nullptr, 8, {});
    page.tryIt(sample);
    auto *strip = qobject_cast<W *>(sample.target);
    page.event(strip, "signal_addCabinetsClicked", &W::signal_addCabinetsClicked);
    page.event(strip, "signal_addRowCabinetsClicked", &W::signal_addRowCabinetsClicked);
    page.event(strip, "notifyShpeWidgetHide", &W::notifyShpeWidgetHide);

    page.text<W>("setLabelText", Page::withoutGetter(QString("Cabinet models")), &W::setLabelText);
    page.text<W>("setAddButtonToolTip", Page::withoutGetter(QString()), &W::setAddButtonToolTip);
    page.text<W>("setAddRowCabincateBtnToolTip", Page::withoutGetter(QString()),
                 &W::setAddRowCabincateBtnToolTip);
    page.flag<W>("setFrameIsEnabled", Page::withoutGetter(true), &W::setFrameIsEnabled);
    page.flag<W>("setAddBtnVisible", Page::withoutGetter(true), &W::setAddBtnVisible);
    page.flag<W>("setAddRowCabincateBtnVisible", Page::withoutGetter(true),
                 &W::setAddRowCabincateBtnVisible);
    page.flag<W>("setScrollBtnIsVisble", Page::withoutGetter(true), &W::setScrollBtnIsVisble);
    page.action<W>(
        "addWidget() of one model", [](W *strip) { strip->addWidget(strips::makeRow(1)); },
        Reach::TryIt);
    page.action<W>(
        "addWidget() of eight models", [](W *strip) { strip->addWidget(strips::makeRow(8)); },
        Reach::TryIt);
}
