#include "page.h"
#include "strips.h"

#include <shapewidget.h>
#include <shapewidgetcontent.h>

#include <QLayout>

namespace
{

ShapeWidget *makePanel(QWidget *parent, int count, QSize size, QPoint arrow)
{
    auto *panel = new ShapeWidget(parent);
    auto *grid = new ShapeWidgetContent(panel);
    grid->setColumn(3);
    grid->setLsWidget(strips::makeModels(count, grid));
    panel->addWidget(grid);
    panel->setFixedSize(size);
    panel->layout()->activate(); // the arrow keeps its place from now on
    panel->setTriggleBtnPos(arrow);
    return panel;
}

} // namespace

GALLERY_PAGE(ShapeWidget)
{
    page.setPurpose("The panel that drops down from a controller board: an arrow that points up at "
                    "the button it belongs to, and a bordered scroll area.");

    page.setStates({{"Normal", State::Normal}, {"Disabled", State::Disabled}});
    page.look("Fits", [](QWidget *parent) { return makePanel(parent, 6, {162, 122}, {71, 0}); });
    page.look("Arrow at the left", [](QWidget *parent) {
        return makePanel(parent, 6, {162, 122}, {12, 0});
    });
    page.look("Scrolls", [](QWidget *parent) {
        return makePanel(parent, 10, {176, 122}, {71, 0});
    });

    using W = ShapeWidget;
    page.tryIt(makePanel(nullptr, 10, {176, 168}, {71, 0}));
    page.number<W>(
        "setTriggleBtnPos, x", Page::withoutGetter(71),
        [](W *panel, int x) {
            panel->setTriggleBtnPos({x, 0});
        },
        0, 160);
    page.number<W>("setTriggleBtnWidth", &W::triggleBtnWidth, &W::setTriggleBtnWidth, 0, 100);
    page.number<W>("setTriggleBtnHeight", &W::triggleBtnHeight, &W::setTriggleBtnHeight, 0, 100);
}
