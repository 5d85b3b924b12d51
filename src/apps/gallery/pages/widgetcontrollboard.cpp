#include "page.h"
#include "strips.h"

#include <buttongroupex.h>
#include <widgetcontrollboard.h>
#include <widgetinfo.h>

namespace
{

const QString images = QStringLiteral(":/Resource/Images/globalResource/");

WidgetControllBoard *makeBoard(QWidget *host, const QString &title, bool isCabinets, int count)
{
    auto *board = new WidgetControllBoard(host);
    board->setFixedSize(board->sizeHint());
    board->setButtonGroupExLabelText(title);
    board->setIsAddCabient(isCabinets);
    board->setAddButtonTooltip("Add a cabinet model");
    board->setAddRowCabinetTooTip("Add a row of cabinets");
    board->setLsWidget(isCabinets ? strips::makeModels(count, nullptr)
                                  : strips::makeControllers(count, nullptr));
    return board;
}

Sample makeSample(QWidget *parent, const QString &title, bool isCabinets, int count,
                  const std::function<void(WidgetControllBoard *)> &prepare = {})
{
    QWidget *host = strips::makeHost(parent);
    WidgetControllBoard *board = makeBoard(host, title, isCabinets, count);
    host->setFixedSize(board->size());
    if (prepare)
        prepare(board);
    return Sample(host, board, board->findChild<ButtonGroupEx *>());
}

} // namespace

GALLERY_PAGE(WidgetControllBoard)
{
    page.setPurpose("A strip of controller or cabinet buttons. While it has more than fit, the "
                    "pointer over it opens a popup with copies of them all.");

    page.setStates({{"Normal", State::Normal}});
    page.look("Fits",
              [](QWidget *parent) { return makeSample(parent, "Cabinet models", true, 1); });
    page.look("More than fit",
              [](QWidget *parent) { return makeSample(parent, "Cabinet models", true, 10); });
    page.look("Controllers", [](QWidget *parent) {
        return makeSample(parent, "Controllers", false, 5, [](WidgetControllBoard *board) {
            board->setButtonGroupExAddCabnicate(false);
            board->setButtonGroupExAddRowCabnicate(false);
        });
    });
    page.look("Disabled", [](QWidget *parent) {
        return makeSample(parent, "Cabinet models", true, 10,
                          [](WidgetControllBoard *board) { board->setWidgetIsEnabled(false); });
    });

    using W = WidgetControllBoard;
    const Sample models = makeSample(nullptr, "Cabinet models", true, 10);
    page.tryHere("More than fit: point at it", models);
    const Sample controllers = makeSample(nullptr, "Controllers", false, 9);
    page.tryHere("Controllers", controllers);
    for (const Sample &sample : {models, controllers}) {
        auto *board = qobject_cast<W *>(sample.target);
        page.event(board, "signal_itemClicked", &W::signal_itemClicked);
        page.event(board, "signal_addCabietsClicked", &W::signal_addCabietsClicked);
        page.event(board, "signal_addRowCabietsClicked", &W::signal_addRowCabietsClicked);
    }

    page.text<W>("setButtonGroupExLabelText", Page::withoutGetter(QString("Cabinet models")),
                 &W::setButtonGroupExLabelText);
    page.flag<W>("setWidgetIsEnabled", Page::withoutGetter(true), &W::setWidgetIsEnabled);
    page.flag<W>("setButtonGroupExAddCabnicate", Page::withoutGetter(true),
                 &W::setButtonGroupExAddCabnicate);
    page.flag<W>("setButtonGroupExAddRowCabnicate", Page::withoutGetter(true),
                 &W::setButtonGroupExAddRowCabnicate);
    page.flag<W>("setDropButtonVisible", Page::withoutGetter(false), &W::setDropButtonVisible);
    page.action<W>(
        "addWidgetContent()",
        [](W *board) {
            WidgetInfo info{images + "enterBtn/btn_settings_guide_normal.png",
                            images + "enterBtn/btn_settings_guide_pressed.png", "Settings"};
            board->addWidgetContent(&info);
        },
        Reach::TryIt);
    page.action<W>("removeAllWidget()", &W::removeAllWidget, Reach::TryIt);
}
