#include "page.h"
#include "tablecells.h"

#include <tablewidgetcustom.h>

namespace
{

const QStringList headings = {"Sender", "Port", "Backup", "State"};

BackUpParam makeRecord(int number)
{
    BackUpParam record;
    record.firstText = QString("S %1").arg(number);
    record.secondText = QString("Port %1").arg(number % 4 + 1);
    record.thirdText = QString("S %1").arg(number + 8);
    record.fourthText = number % 3 == 0 ? "Active" : "Ready";
    return record;
}

TableWidgetCustom *makeTable(QWidget *parent, int rows, QSize size, int first = 1)
{
    QList<BackUpParam> records;
    for (int i = 0; i < rows; ++i)
        records += makeRecord(first + i);
    auto *table = new TableWidgetCustom(records, headings, rows, 4, parent);
    table->setFixedSize(size);
    return table;
}

} // namespace

GALLERY_PAGE(TableWidgetCustom)
{
    page.setPurpose("A table of backup records: a row of four centred texts for each, columns of "
                    "equal width, and one tool tip for all cells.");

    using W = TableWidgetCustom;
    W *table =
        page.tryHere("Try it: rest the pointer on a cell", makeTable(nullptr, 4, QSize(600, 242)));
    table->setToolTipMsg("The backup takes over when the sender fails");
    page.event(static_cast<QTableWidget *>(table), "cellClicked", &QTableWidget::cellClicked);

    const QSize size(240, 122);
    page.setStates({{"Normal", State::Normal},
                    {"Cell hovered", State::Hover, tablecells::onSecondRow, tablecells::viewport}});
    page.look("Two rows", [size](QWidget *parent) { return makeTable(parent, 2, size); });
    page.look("Many rows", [size](QWidget *parent) { return makeTable(parent, 9, size); });
    page.look("Empty", [](QWidget *parent) { return makeTable(parent, 0, QSize(240, 82)); });
    page.setStates({{"Pressed", State::Pressed, tablecells::onSecondRow, tablecells::viewport},
                    {"Disabled", State::Disabled}},
                   "More states");
    page.look("Two rows", [size](QWidget *parent) { return makeTable(parent, 2, size); });

    page.text<W>("setToolTipMsg",
                 Page::withoutGetter(QString("The backup takes over when the sender fails")),
                 &W::setToolTipMsg);
    page.number<W>("setTableRowCount", &W::TableRowCount, &W::setTableRowCount, 0, 20,
                   Reach::TryIt);
    page.action<W>(
        "insertHotBackUpInfo()",
        [](W *table) { table->insertHotBackUpInfo(makeRecord(table->rowCount() + 1)); },
        Reach::TryIt);
    page.action<W>(
        "updateUi()",
        [](W *table) {
            QList<BackUpParam> records;
            for (int i = 0; i < table->TableRowCount(); ++i)
                records += makeRecord(20 + i);
            table->updateUi(records);
        },
        Reach::TryIt);
}
