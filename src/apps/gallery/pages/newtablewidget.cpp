#include "page.h"
#include "tablecells.h"

#include <newtablewidget.h>

#include <QHeaderView>

namespace
{

constexpr int headerHeight = 46; // the header box stands in its middle
constexpr int rowHeight = 32;

NewTableWidget *makeTable(QWidget *parent, int rows, QSize size, bool withBoxes)
{
    auto *table = new NewTableWidget(parent);
    table->setColumnCount(3);
    table->setHorizontalHeaderLabels({"Receiver", "Firmware", "State"});
    table->setRowCount(rows);
    table->horizontalHeader()->setMinimumHeight(headerHeight);
    table->verticalHeader()->setDefaultSectionSize(rowHeight);
    for (int row = 0; row < rows; ++row) {
        const QStringList texts = {QString("R %1").arg(row + 1), QString("4.%1").arg(row % 3),
                                   row % 3 == 2 ? "Offline" : "Online"};
        for (int column = 0; column < texts.size(); ++column) {
            auto *cell = new QTableWidgetItem(texts.at(column));
            cell->setTextAlignment(Qt::AlignCenter);
            table->setItem(row, column, cell);
        }
    }
    if (withBoxes) {
        table->setAddCheckBoxVisible(true);
        if (rows > 0)
            static_cast<QCheckBox *>(table->cellWidget(0, 0))->setChecked(true);
    }
    table->setFixedSize(size);
    return table;
}

/// The box in the header, which is the table's own child.
QCheckBox *headerBox(const QWidget *table)
{
    return table->findChild<QCheckBox *>(QString(), Qt::FindDirectChildrenOnly);
}

/// What a host does: the column of boxes that were taken away goes with them.
void showBoxes(NewTableWidget *table, bool isVisible)
{
    if (isVisible == (headerBox(table) != nullptr))
        return;
    table->setAddCheckBoxVisible(isVisible);
    if (!isVisible)
        table->removeColumn(0);
}

} // namespace

GALLERY_PAGE(NewTableWidget)
{
    page.setPurpose("A read-only table for any rows and columns, which can begin with a column of "
                    "check boxes under one that checks them all.");

    using W = NewTableWidget;
    W *table = page.tryHere("Try it: the box in the header checks all rows",
                            makeTable(nullptr, 8, QSize(600, 242), true));
    page.event(static_cast<QTableWidget *>(table), "cellClicked", &QTableWidget::cellClicked);
    page.event(headerBox(table), "header box: stateChanged", &QCheckBox::stateChanged);

    const QSize size(240, 142);
    page.setStates({{"Normal", State::Normal},
                    {"Cell hovered", State::Hover, tablecells::onSecondRow, tablecells::viewport}});
    page.look("Plain", [size](QWidget *parent) { return makeTable(parent, 3, size, false); });
    page.look("Boxes", [size](QWidget *parent) { return makeTable(parent, 3, size, true); });
    page.look("All checked", [size](QWidget *parent) {
        W *table = makeTable(parent, 9, size, true);
        headerBox(table)->setChecked(true);
        return table;
    });
    page.look("Empty", [](QWidget *parent) { return makeTable(parent, 0, QSize(240, 78), true); });
    page.setStates({{"Pressed", State::Pressed, tablecells::onSecondRow, tablecells::viewport},
                    {"Disabled", State::Disabled}},
                   "More states");
    page.look("Boxes", [size](QWidget *parent) { return makeTable(parent, 3, size, true); });

    page.flag<W>(
        "setAddCheckBoxVisible", [](const W *table) { return headerBox(table) != nullptr; },
        showBoxes);
    page.action<W>(
        "insertRow(0)", [](W *table) { table->insertRow(0); }, Reach::TryIt);
    page.action<W>(
        "removeRow(0)", [](W *table) { table->removeRow(0); }, Reach::TryIt);
}
