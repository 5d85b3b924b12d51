#include "page.h"
#include "pointers.h"
#include "strips.h"

#include <shapewidgetcontent.h>
#include <widgetboard.h>

#include <QLayout>
#include <QToolButton>

namespace
{

/// In place instead of in a window of its own.
WidgetBoard *makeBoard(QWidget *parent, bool isOpen)
{
    auto *board = new WidgetBoard(parent);
    auto *grid = new ShapeWidgetContent(board);
    grid->setColumn(3);
    grid->setLsWidget(strips::makeModels(7, grid));
    board->addWidget(grid);
    board->setFixedSize(grid->width() + 10, isOpen ? grid->height() + 30 : 20);
    const int left = (board->width() - board->dropDownBtnWidth()) / 2;
    board->setDropDownBtnPos({left, 0});
    board->setDropButoonVisible(true);
    board->setShapeWidgetVisible(isOpen);
    board->layout()->activate();
    board->setTriggleBtnPos({(board->width() - board->triggleBtnWidth()) / 2, 0});
    return board;
}

} // namespace

GALLERY_PAGE(WidgetBoard)
{
    page.setPurpose("The popup of a controller board: a drop-down button, and under it a panel "
                    "with copies of all the buttons. Here it stands in place.");

    page.setStates({{"Normal", State::Normal}, {"Disabled", State::Disabled}});
    page.look("Closed", [](QWidget *parent) { return makeBoard(parent, false); });
    page.look("Open", [](QWidget *parent) { return makeBoard(parent, true); });

    using W = WidgetBoard;
    W *board = page.tryIt(makeBoard(nullptr, true));
    page.event(board, "sigClickedDropDownBtn", &W::sigClickedDropDownBtn);
    QObject::connect(board, &W::sigClickedDropDownBtn, board, &W::setShapeWidgetVisible);

    page.flag<W>(
        "setDropButoonVisible", [](W *board) { return !board->dropDownBtn()->isHidden(); },
        &W::setDropButoonVisible);
    page.flag<W>("setShapeWidgetVisible", Page::withoutGetter(true), &W::setShapeWidgetVisible);
    page.number<W>(
        "setDropDownBtnPos, x", [](W *board) { return board->dropDownBtn()->x(); },
        [](W *board, int x) {
            board->setDropDownBtnPos({x, 0});
        },
        0, 160, Reach::TryIt);
    page.number<W>(
        "setTriggleBtnPos, x", Page::withoutGetter(70),
        [](W *board, int x) {
            board->setTriggleBtnPos({x, 0});
        },
        0, 160, Reach::TryIt);
}
