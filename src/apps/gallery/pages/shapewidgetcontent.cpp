#include "page.h"
#include "strips.h"

#include <shapewidgetcontent.h>

namespace
{

ShapeWidgetContent *makeGrid(QWidget *parent, int count, int columns)
{
    auto *grid = new ShapeWidgetContent(parent);
    grid->setColumn(columns);
    grid->setLsWidget(strips::makeModels(count, grid));
    grid->setFixedSize(grid->size());
    return grid;
}

} // namespace

GALLERY_PAGE(ShapeWidgetContent)
{
    page.setPurpose("A grid of buttons with a fixed number of columns that reports which of them "
                    "was clicked.");

    page.setStates({{"Normal", State::Normal}, {"Disabled", State::Disabled}});
    page.look("3 columns", [](QWidget *parent) { return makeGrid(parent, 7, 3); });
    page.look("4 columns", [](QWidget *parent) { return makeGrid(parent, 7, 4); });
    page.look("2 of 3", [](QWidget *parent) { return makeGrid(parent, 2, 3); });

    using W = ShapeWidgetContent;
    W *grid = page.tryIt(makeGrid(nullptr, 10, 3));
    page.event(grid, "sigClickedIndex", &W::sigClickedIndex);
    page.number<W>(
        "setColumn", &W::column,
        [](W *grid, int columns) {
            grid->setColumn(columns);
            grid->setMinimumSize(0, 0);
            grid->setMaximumSize(QWIDGETSIZE_MAX, QWIDGETSIZE_MAX);
            grid->createWidgetLayout();
            grid->setFixedSize(grid->size());
        },
        1, 5);
}
