#include "tablewidgetcustom.h"

#include "definecommondata.h"
#include "internal/stylesheet.h"
#include "internal/tablelook.h"

#include <QHeaderView>
#include <QMouseEvent>
#include <QToolTip>

namespace
{

constexpr int recordRowHeight = 40;
constexpr int headerHeight = 40;
constexpr int scrollHeight = 16;

} // namespace

TableWidgetCustom::TableWidgetCustom(QList<BackUpParam> records, QStringList headerList,
                                     int rowCount, int columnCount, QWidget *parent)
    : QTableWidget(parent)
    , m_records(records)
    , m_headerList(headerList)
    , m_rowCount(rowCount)
    , m_columnCount(columnCount)
{
    initTable();
    orvane::SheetText font;
    font << u"font:" << DefineCommonData::getNormalFont() << u";";
    orvane::applyStyleSheet(this,
                            orvane::tableSheet(u"border:1px solid rgb(56,56,56);", font.view()));
    setMouseTracking(true);
    connect(this, &QTableWidget::itemEntered, this, &TableWidgetCustom::on_itemEntered);
}

void TableWidgetCustom::initTable()
{
    orvane::initTableBehavior(this);
    setColumnCount(m_columnCount);
    setRowCount(m_rowCount);
    setHorizontalHeaderLabels(m_headerList);
    horizontalHeader()->setFocusPolicy(Qt::NoFocus);
    orvane::styleTableScrollBars(this, scrollHeight);
    if (m_columnCount < 1)
        return;
    shareColumnWidths();
    horizontalHeader()->setMinimumHeight(headerHeight);
    horizontalHeader()->setEnabled(false);
    fillRows();
    setTableContentCenter();
}

void TableWidgetCustom::fillRows()
{
    // Hosts are asked for a record for every row; rows without one are left alone.
    for (int row = 0; row < m_rowCount && row < m_records.size(); ++row) {
        m_records[row].flag = false;
        setRowTexts(row, m_records.at(row));
    }
    setRowHeights();
}

void TableWidgetCustom::setRowTexts(int row, const BackUpParam &record)
{
    const QStringList texts = {record.firstText, record.secondText, record.thirdText,
                               record.fourthText};
    for (int column = 0; column < texts.size(); ++column) {
        // A cell that the table lacks would not take its item over. Hosts hear of every item, and
        // may take rows away then.
        if (model()->hasIndex(row, column))
            setItem(row, column, new QTableWidgetItem(texts.at(column)));
    }
}

void TableWidgetCustom::shareColumnWidths()
{
    const int count = columnCount();
    for (int column = 0; column < count; ++column)
        setColumnWidth(column, width() / count);
}

void TableWidgetCustom::setRowHeights()
{
    const int rows = qMin(m_rowCount, rowCount());
    for (int row = 0; row < rows; ++row)
        setRowHeight(row, recordRowHeight);
}

void TableWidgetCustom::updateUi(QList<BackUpParam> records)
{
    m_records = records;
    fillRows();
    setTableContentCenter();
}

void TableWidgetCustom::insertHotBackUpInfo(BackUpParam record)
{
    const int row = qMax(m_rowCount, 0) - 1;
    insertRow(row);
    record.flag = false;
    setRowTexts(row, record);
    m_records.append(record);
    setTableContentCenter();
    setRowHeight(row, recordRowHeight);
}

void TableWidgetCustom::setToolTipMsg(QString message)
{
    m_toolTipMsg = message;
}

QStringList TableWidgetCustom::TableHeaderList() const
{
    return m_headerList;
}

void TableWidgetCustom::setTableHeaderList(const QStringList &headerList)
{
    m_headerList = headerList;
}

int TableWidgetCustom::TableRowCount() const
{
    return m_rowCount;
}

void TableWidgetCustom::setTableRowCount(int rowCount)
{
    m_rowCount = rowCount;
}

int TableWidgetCustom::TableColumnCount() const
{
    return m_columnCount;
}

void TableWidgetCustom::setTableColumnCount(int columnCount)
{
    m_columnCount = columnCount;
}

void TableWidgetCustom::setTableContentCenter()
{
    // The kept counts may be any numbers: only cells that there are cost time.
    const int rows = qMin(m_rowCount, rowCount());
    const int columns = qMin(m_columnCount, columnCount());
    for (int row = 0; row < rows; ++row) {
        for (int column = 0; column < columns; ++column) {
            if (QTableWidgetItem *cell = item(row, column))
                cell->setTextAlignment(Qt::AlignCenter);
        }
    }
}

void TableWidgetCustom::setSelectAll(bool /*isSelected*/) { }

QString TableWidgetCustom::formColorToString(QColor &color)
{
    return orvane::colorText(color);
}

void TableWidgetCustom::on_itemEntered(QTableWidgetItem *item)
{
    if (item)
        item->setToolTip(m_toolTipMsg);
}

void TableWidgetCustom::resizeEvent(QResizeEvent *event)
{
    QTableWidget::resizeEvent(event);
    shareColumnWidths();
    setRowHeights();
}

void TableWidgetCustom::mousePressEvent(QMouseEvent *event)
{
    setFocusPolicy(Qt::ClickFocus);
    QTableWidget::mousePressEvent(event);
}

void TableWidgetCustom::mouseMoveEvent(QMouseEvent *event)
{
    if (QToolTip::isVisible())
        QToolTip::showText(event->globalPos(), QString());
    QTableWidget::mouseMoveEvent(event);
}
