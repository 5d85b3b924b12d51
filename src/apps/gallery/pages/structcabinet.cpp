#include "cabinets.h"
#include "droparea.h"
#include "page.h"
#include "pointers.h"

#include <toolbuttonex.h>

#include <QGridLayout>
#include <QLabel>

namespace
{

/// The cabinets of many sizes: above as they lie in rows, below as models to choose.
QWidget *makeCabinets(const QList<StructCabinet> &records)
{
    constexpr int columns = 5;
    auto *board = new QWidget;
    auto *layout = new QGridLayout(board);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(theme::unit);
    const int rows = (records.size() + columns - 1) / columns;
    for (int i = 0; i < records.size(); ++i) {
        layout->addWidget(cabinets::makePlaced(records.at(i), board), i / columns, i % columns);
        layout->addWidget(cabinets::makeModel(records.at(i), board, 69), rows + i / columns,
                          i % columns);
    }
    return board;
}

QWidget *makeFieldTable()
{
    struct Field {
        const char *names;
        const char *type;
        const char *meaning;
    };
    auto *table = new QWidget;
    auto *layout = new QGridLayout(table);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setHorizontalSpacing(6 * theme::unit);
    layout->setVerticalSpacing(theme::unit);
    layout->setColumnStretch(2, 1);
    int row = 0;
    for (const Field &field :
         {Field{"cabinetSize", "QSize", "width and height in pixels of the wall"},
          Field{"cabinetCount", "int", "how many are on hand"},
          Field{"extraText1 … extraText4", "QString",
                "the host's own; here the model and its maker"},
          Field{"extraValue1 … extraValue7", "int", "the host's own"},
          Field{"cabinetweight", "int", "weight"}, Field{"cabinetpower", "float", "power"},
          Field{"cabinetVoltage", "float", "voltage"},
          Field{"cabinetuisize, cabinetuiHsize", "int", "width and height in the layout view"},
          Field{"cabinetPointspace", "int", "pixel pitch"}}) {
        auto *names = new QLabel(QString::fromUtf8(field.names), table);
        names->setFont(theme::codeFont());
        auto *type = new QLabel(field.type, table);
        type->setFont(theme::codeFont());
        type->setEnabled(false);
        layout->addWidget(names, row, 0);
        layout->addWidget(type, row, 1);
        layout->addWidget(new QLabel(field.meaning, table), row, 2);
        ++row;
    }
    return table;
}

} // namespace

GALLERY_PAGE(StructCabinet)
{
    page.setPurpose("The record of one cabinet model, and ToolButtonEx in the two kinds that stand "
                    "for it: a cabinet in a row, and a model to choose.");

    page.setStates({{"Normal", State::Normal},
                    {"Hover", State::Hover, pointers::onCentre},
                    {"Pressed", State::Pressed, pointers::onCentre},
                    {"Disabled", State::Disabled}});
    page.look("In a row", [](QWidget *parent) {
        return cabinets::makePlaced(cabinets::some(1).first(), parent);
    });
    page.look("Model", [](QWidget *parent) {
        return cabinets::makeModel(cabinets::some(1, 3).first(), parent, 69);
    });
    page.look("Size never set", [](QWidget *parent) {
        auto *button = new ToolButtonEx(parent, CabinetType, QString(), QString());
        button->setFixedSize(69, 69);
        return button;
    });

    auto *dropArea = new DropArea;
    QWidget *board = makeCabinets(cabinets::some(10));
    page.tryHere("Many sizes, to drag and to click", board, dropArea);
    page.event(dropArea, "cabinetArrived", &DropArea::cabinetArrived);
    page.event(dropArea, "textArrived", &DropArea::textArrived);

    page.card("The record", makeFieldTable());

    using W = ToolButtonEx;
    W *cabinet = page.tryIt(cabinets::makePlaced(cabinets::some(1).first(), nullptr, 120));
    QList<W *> buttons = board->findChildren<W *>();
    buttons.prepend(cabinet);
    for (W *button : qAsConst(buttons)) {
        page.event(button, "signal_notifyChangedPortInfo", &W::signal_notifyChangedPortInfo);
        page.event(button, "signal_notifyAddBeenTakenCabinetModel",
                   &W::signal_notifyAddBeenTakenCabinetModel);
        page.event(button, "notifyAddCabineModel", &W::notifyAddCabineModel);
    }

    const auto painted = [](auto set) {
        return [set](W *button, auto value) {
            (button->*set)(value);
            button->update();
        };
    };
    page.number<W>("setCabinetWidth", &W::cabinetWidth, painted(&W::setCabinetWidth), 1, 65536,
                   Reach::TryIt);
    page.number<W>("setCabinetHeight", &W::cabinetHeight, painted(&W::setCabinetHeight), 1, 65536,
                   Reach::TryIt);
    page.number<W>("setCabinetCount", &W::cabinetCount, painted(&W::setCabinetCount), 0, 999,
                   Reach::TryIt);
    page.flag<W>("setIsDrawCabinetCount", &W::isDrawCabinetCount,
                 painted(&W::setIsDrawCabinetCount));
    page.flag<W>("setIsChangeMouseStyle", Page::withoutGetter(false), &W::setIsChangeMouseStyle);
    page.number<W>("setCabinetweight", &W::getCabinetweight, &W::setCabinetweight, 0, 999,
                   Reach::TryIt);
    page.number<W>("setCanbinetNormalBorder", Page::withoutGetter(0), &W::setCanbinetNormalBorder,
                   0, 8);
    page.number<W>("setCanbinetHoverBorder", Page::withoutGetter(1), &W::setCanbinetHoverBorder, 0,
                   8);
    page.number<W>("setCanbinetPressedBorder", Page::withoutGetter(1), &W::setCanbinetPressedBorder,
                   0, 8);
    page.color<W>("setCabinetNormalBgColor", Page::withoutGetter(QColor(69, 69, 69)),
                  &W::setCabinetNormalBgColor);
    page.color<W>("setCabinetHoverBgColor", Page::withoutGetter(QColor(101, 124, 152)),
                  &W::setCabinetHoverBgColor);
    page.color<W>("setCabinetPressedBgColor", Page::withoutGetter(QColor(66, 145, 240)),
                  &W::setCabinetPressedBgColor);
    page.color<W>("setCabinetHoverBorderColor", Page::withoutGetter(QColor(67, 130, 206)),
                  &W::setCabinetHoverBorderColor);
    page.color<W>("setCabinetPressedBorderColor", Page::withoutGetter(QColor(7, 103, 170)),
                  &W::setCabinetPressedBorderColor);
    page.action<W>("setCabinetToAddModel()", &W::setCabinetToAddModel, Reach::TryIt);
}
