#ifndef WALL_PORTTABLE_H
#define WALL_PORTTABLE_H

#include "model/project.h"

#include <newtablewidget.h>

class QCheckBox;

namespace wall
{

class Selection;

/**
 * The ports of one sender: their kind, the cabinets on them, what is left in stock, and how their
 * last test ended. The checked ones are those to be tested.
 *
 * The current row and the port that the window's views work on follow each other.
 */
class PortTable : public NewTableWidget
{
    Q_OBJECT

public:
    enum Column {
        CheckColumn,
        PortColumn,
        KindColumn,
        PlacedColumn,
        LeftColumn,
        StockColumn,
        TestColumn,
        ColumnCount
    };

    PortTable(Project *project, Selection *selection, const QString &senderId,
              QWidget *parent = nullptr);

    QString senderId() const;
    QVector<PortRef> checkedPorts() const;
    /// Shows how the test of a port stands; an empty text for no test.
    void setTestText(const PortRef &port, const QString &text);

Q_SIGNALS:
    void checkedPortsChanged();

private:
    void fill();
    void updateRow(int row);
    void updatePort(const PortRef &port);
    QString stockText(const PortRef &port) const;
    QCheckBox *checkBox(int row) const;
    void setCell(int row, Column column, const QString &text);
    void followSelection();

    Project *m_project;
    Selection *m_selection;
    QString m_senderId;
    QVector<PortRef> m_ports;
};

} // namespace wall

#endif // WALL_PORTTABLE_H
