#ifndef TABLEWIDGETCUSTOM_H
#define TABLEWIDGETCUSTOM_H

#include "backupparam.h"
#include "orvanecontrolsglobal.h"

#include <QColor>
#include <QList>
#include <QString>
#include <QStringList>
#include <QTableWidget>

/**
 * A dark table of backup records: one row each, 40 pixels high, with up to four centred text
 * columns of equal width, and one tool tip for all cells.
 *
 * The numbers of rows and columns are fixed at construction. The table keeps both counts, and the
 * row count bounds what updateUi() fills: hand over at least as many records as it has rows. A row
 * without a record stays as it is.
 *
 * The table takes no focus until it is pressed for the first time; from the next press on it takes
 * the focus as others do.
 */
class ORVANECONTROLS_EXPORT TableWidgetCustom : public QTableWidget
{
    Q_OBJECT

public:
    /// Builds a table of \a rowCount rows and \a columnCount columns, owned by \a parent, with
    /// \a headerList as the texts of its header and the \a records in its rows. A count below 1
    /// makes a table without rows or without columns.
    TableWidgetCustom(QList<BackUpParam> records, QStringList headerList, int rowCount,
                      int columnCount, QWidget *parent = nullptr);

    /// Replaces the records, shows them in the rows and centres the cells. Records beyond
    /// TableRowCount() are kept but not seen.
    void updateUi(QList<BackUpParam> records);
    /// Shows \a record in a new row above the last one of TableRowCount(), centres the cells, and
    /// appends the record to the list. TableRowCount() stays as it is. Where TableRowCount() is 0,
    /// or more than there are rows by two or more, no row is made.
    void insertHotBackUpInfo(BackUpParam record);

    /// Sets the tool tip of every cell; one that the pointer has entered gets it when the pointer
    /// enters it anew.
    void setToolTipMsg(QString message);

    /// The texts of the header. \see setTableHeaderList()
    QStringList TableHeaderList() const;
    /// Keeps the texts of the header; the header itself has those of construction.
    /// \see TableHeaderList()
    void setTableHeaderList(const QStringList &headerList);

    /// How many rows are filled. \see setTableRowCount()
    int TableRowCount() const;
    /// Sets how many rows are filled, any number; the table has those of construction.
    /// \see TableRowCount()
    void setTableRowCount(int rowCount);

    /// The number of columns. \see setTableColumnCount()
    int TableColumnCount() const;
    /// Keeps a number of columns, any number; the table has those of construction.
    /// \see TableColumnCount()
    void setTableColumnCount(int columnCount);

    /// Centres the texts of all cells within TableRowCount() and TableColumnCount().
    void setTableContentCenter();
    /// Does nothing.
    void setSelectAll(bool isSelected);

    /// The text of a colour in a sheet: "#rrggbb", "#aarrggbb" when translucent, "#000000" when
    /// invalid.
    QString formColorToString(QColor &color);

public Q_SLOTS:
    /// Gives \a item the tool tip of all cells. The table calls it for every cell that the pointer
    /// enters; a null pointer is ignored.
    void on_itemEntered(QTableWidgetItem *item);

protected:
    /// Shares the new width among the columns and sets the heights of the rows.
    void resizeEvent(QResizeEvent *event) override;
    /// Gives the table the focus policy Qt::ClickFocus, and presses the cell as every table.
    void mousePressEvent(QMouseEvent *event) override;
    /// Hides the tool tip that is shown.
    void mouseMoveEvent(QMouseEvent *event) override;

private:
    void initTable();
    void fillRows();
    void setRowTexts(int row, const BackUpParam &record);
    void shareColumnWidths();
    void setRowHeights();

    QList<BackUpParam> m_records;
    QStringList m_headerList;
    int m_rowCount{};
    int m_columnCount{};
    QColor m_firstColor = QColor(52, 52, 52);
    QColor m_secondColor = QColor(210, 210, 210);
    QColor m_thirdColor = QColor(56, 56, 56);
    QColor m_fourthColor = QColor(210, 210, 210);
    QString m_toolTipMsg;
};

#endif // TABLEWIDGETCUSTOM_H
