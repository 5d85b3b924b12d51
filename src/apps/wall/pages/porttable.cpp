#include "porttable.h"

#include "backupplan.h"
#include "look.h"
#include "selection.h"

#include <QHeaderView>
#include <QSignalBlocker>

namespace wall
{

namespace
{

constexpr int headerHeight = 11 * look::unit; // the table's header check box needs 36 pixels
constexpr int portRowHeight = 8 * look::unit;

} // namespace

PortTable::PortTable(Project *project, Selection *selection, const QString &senderId,
                     QWidget *parent)
    : NewTableWidget(parent)
    , m_project(project)
    , m_selection(selection)
    , m_senderId(senderId)
    , m_ports(project->portsOf(senderId))
{
    setSelectionMode(QAbstractItemView::SingleSelection);
    setFocusPolicy(Qt::StrongFocus); // the library's tables take none by themselves
    setTabKeyNavigation(false); // Tab leads from check box to check box and on
    setShowGrid(false);
    setWordWrap(false);
    horizontalHeader()->setFixedHeight(headerHeight);
    verticalHeader()->setDefaultSectionSize(portRowHeight);
    look::styleScrollBars(this);
    fill();

    connect(project, &Project::lineChanged, this, &PortTable::updatePort);
    connect(project, &Project::stockChanged, this, &PortTable::updatePort);
    connect(project, &Project::modelChanged, this, [this] {
        for (int row = 0; row < rowCount(); ++row)
            updateRow(row);
    });
    connect(this, &QTableWidget::currentCellChanged, this, [this](int row) {
        if (row >= 0)
            m_selection->setPort(m_ports.at(row));
    });
    connect(selection, &Selection::portChanged, this, &PortTable::followSelection);
    followSelection();
}

QString PortTable::senderId() const
{
    return m_senderId;
}

QVector<PortRef> PortTable::checkedPorts() const
{
    QVector<PortRef> checked;
    for (int row = 0; row < rowCount(); ++row) {
        if (checkBox(row)->isChecked())
            checked.append(m_ports.at(row));
    }
    return checked;
}

void PortTable::setTestText(const PortRef &port, const QString &text)
{
    const int row = m_ports.indexOf(port);
    if (row >= 0)
        setCell(row, TestColumn, text);
}

void PortTable::fill()
{
    // All rows first: the check boxes are made for the rows that are there.
    setColumnCount(ColumnCount - 1);
    setRowCount(m_ports.size());
    setAddCheckBoxVisible(true);
    setHorizontalHeaderLabels({QString(), tr("Port"), tr("Kind"), tr("Placed"), tr("Left"),
                               tr("Models left"), tr("Test")});
    if (auto *all = findChild<QCheckBox *>(QString(), Qt::FindDirectChildrenOnly)) {
        all->setAccessibleName(tr("All ports"));
        all->setToolTip(tr("Check or uncheck all ports"));
    }
    for (int row = 0; row < rowCount(); ++row) {
        updateRow(row);
        setCell(row, TestColumn, QString());
        checkBox(row)->setAccessibleName(tr("Test port %1").arg(m_ports.at(row).number));
        connect(checkBox(row), &QCheckBox::toggled, this, &PortTable::checkedPortsChanged);
    }
}

void PortTable::updateRow(int row)
{
    const PortRef ref = m_ports.at(row);
    const Port *port = m_project->port(ref);
    if (!port)
        return; // its sender is just leaving the project
    int left = 0;
    for (const StockEntry &entry : port->stock)
        left += m_project->leftCount(ref, entry.modelId);
    setCell(row, PortColumn, QString::number(ref.number));
    setCell(row, KindColumn, portKindName(port->kind));
    setCell(row, PlacedColumn, QString::number(m_project->line(ref).size()));
    setCell(row, LeftColumn, QString::number(left));
    setCell(row, StockColumn, stockText(ref));
}

void PortTable::updatePort(const PortRef &port)
{
    const int row = m_ports.indexOf(port);
    if (row >= 0)
        updateRow(row);
}

QString PortTable::stockText(const PortRef &port) const
{
    QStringList parts;
    for (const StockEntry &entry : m_project->port(port)->stock) {
        const int left = m_project->leftCount(port, entry.modelId);
        if (left > 0)
            parts.append(tr("%1 × %2").arg(left).arg(m_project->model(entry.modelId)->name));
    }
    return parts.join(QStringLiteral(", "));
}

QCheckBox *PortTable::checkBox(int row) const
{
    return qobject_cast<QCheckBox *>(cellWidget(row, CheckColumn));
}

void PortTable::setCell(int row, Column column, const QString &text)
{
    QTableWidgetItem *cell = item(row, column);
    if (!cell) {
        cell = new QTableWidgetItem;
        cell->setTextAlignment(Qt::AlignCenter);
        setItem(row, column, cell);
    }
    cell->setText(text);
    cell->setToolTip(column == StockColumn ? text : QString());
}

void PortTable::followSelection()
{
    const QSignalBlocker blocker(this);
    const int row = m_ports.indexOf(m_selection->port());
    if (row < 0)
        setCurrentItem(nullptr);
    else if (row != currentRow())
        setCurrentCell(row, PortColumn);
}

} // namespace wall
