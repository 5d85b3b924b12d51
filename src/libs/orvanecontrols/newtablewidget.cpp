#include "newtablewidget.h"

#include "internal/livelist.h"
#include "internal/spokenname.h"
#include "internal/stylesheet.h"
#include "internal/tablelook.h"
#include "internal/taborder.h"

#include <QHeaderView>
#include <QScrollBar>
#include <QSignalBlocker>

namespace
{

constexpr int checkBoxColumnWidth = 30;
constexpr int headerCheckBoxTop = 10;
constexpr int headerCheckBoxSize = 26;
constexpr int scrollHeight = 12;

QCheckBox *makeCheckBox(QWidget *table)
{
    auto *box = new QCheckBox(table);
    box->setAttribute(Qt::WA_TranslucentBackground);
    return box;
}

/// Makes the tab key go from \a table to each of the boxes.
void followInTabOrder(QWidget *table, const QList<QWidget *> &boxes)
{
    if (table->focusProxy()) // a host's, which would take over the policy below
        return;
    // The window may hold more by now, and Qt puts what is new at the end. It orders only what
    // takes the focus, which the table mostly does not.
    const Qt::FocusPolicy policy = table->focusPolicy();
    table->setFocusPolicy(Qt::TabFocus);
    orvane::tabInOrder(QList<QWidget *>{table} + boxes);
    table->setFocusPolicy(policy);
}

/// What QCheckBox::setChecked() does, signals included, but the box, or the table around it, may be
/// deleted in them: Qt's function goes on using the box.
void setBoxChecked(const QPointer<QCheckBox> &box, bool isChecked)
{
    const Qt::CheckState stateBefore = box->checkState();
    const bool wasChecked = box->isChecked();
    {
        const QSignalBlocker blocker(box);
        box->setChecked(isChecked);
    }
    if (box->checkState() != stateBefore)
        Q_EMIT box->stateChanged(box->checkState());
    if (box && wasChecked != isChecked)
        Q_EMIT box->toggled(isChecked);
}

} // namespace

NewTableWidget::NewTableWidget(QWidget *parent)
    : QTableWidget(parent)
{
    initTable();
    initTableStyle();
}

void NewTableWidget::initTable()
{
    orvane::initTableBehavior(this);
    setEditTriggers(QAbstractItemView::NoEditTriggers);
    horizontalHeader()->setStretchLastSection(true);
    horizontalHeader()->setEnabled(false);
    horizontalScrollBar()->setEnabled(false);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    orvane::styleTableScrollBars(this, scrollHeight);
    connect(horizontalScrollBar(), &QScrollBar::valueChanged, this, &NewTableWidget::on_valueChange,
            Qt::UniqueConnection);
}

void NewTableWidget::initTableStyle()
{
    orvane::applyStyleSheet(this, orvane::tableSheet({}, orvane::fontDeclaration));
}

void NewTableWidget::setAddCheckBoxVisible(bool isVisible)
{
    if (isVisible)
        createCheckBoxColumn();
    else if (m_isCheckBoxColumnShown)
        removeCheckBoxes();
    m_isCheckBoxColumnShown = isVisible;
}

void NewTableWidget::createCheckBoxColumn()
{
    insertColumn(0);
    setHorizontalHeaderItem(0, new QTableWidgetItem); // else its number stands under the box
    // The style's least width is more than that. The other columns share what is left.
    QHeaderView *header = horizontalHeader();
    header->setMinimumSectionSize(qMin(header->minimumSectionSize(), checkBoxColumnWidth));
    header->setSectionResizeMode(0, QHeaderView::Fixed);
    setColumnWidth(0, checkBoxColumnWidth);

    removeHeaderCheckBox();
    m_headerCheckBox = makeCheckBox(this);
    orvane::speakAs(m_headerCheckBox, tr("Select all rows"));
    m_headerCheckBox->setGeometry(0, headerCheckBoxTop, headerCheckBoxSize, headerCheckBoxSize);
    connect(m_headerCheckBox, &QCheckBox::stateChanged, this,
            &NewTableWidget::on_notifyStateChange);
    m_headerCheckBox->show(); // by itself it comes only with a table that is not shown yet

    QList<QWidget *> boxes = {m_headerCheckBox};
    for (int row = 0; row < rowCount(); ++row) {
        QCheckBox *box = makeCheckBox(this);
        orvane::speakAs(box, tr("Select row"));
        setCellWidget(row, 0, box);
        boxes.append(box);
    }
    followInTabOrder(this, boxes);
    m_isCheckBoxColumnShown = true;
    if (isRightToLeft())
        placeMirroredHeaderCheckBox();
}

QCheckBox *NewTableWidget::rowCheckBox(int row) const
{
    return qobject_cast<QCheckBox *>(cellWidget(row, 0));
}

void NewTableWidget::removeCheckBoxes()
{
    removeHeaderCheckBox();
    for (int row = 0; row < rowCount(); ++row) {
        if (rowCheckBox(row))
            removeCellWidget(row, 0);
    }
}

void NewTableWidget::removeHeaderCheckBox()
{
    if (!m_headerCheckBox)
        return;
    // Not at once: this may be in the middle of its own click.
    m_headerCheckBox->disconnect(this);
    m_headerCheckBox->hide();
    m_headerCheckBox->deleteLater();
    m_headerCheckBox = nullptr;
}

void NewTableWidget::placeHeaderCheckBox()
{
    if (!m_isCheckBoxColumnShown || !m_headerCheckBox || rowCount() == 0)
        return;
    if (isRightToLeft()) {
        placeMirroredHeaderCheckBox();
        return;
    }
    // A first row that was added later has no box; its box would stand where the column begins.
    const QCheckBox *firstBox = rowCheckBox(0);
    m_headerCheckBox->setGeometry(firstBox ? firstBox->x() : columnViewportPosition(0),
                                  headerCheckBoxTop, headerCheckBoxSize, headerCheckBoxSize);
}

void NewTableWidget::placeMirroredHeaderCheckBox()
{
    // The column is at the right, and its boxes stand at their right ends.
    const int end = viewport()->x() + columnViewportPosition(0) + columnWidth(0);
    m_headerCheckBox->setGeometry(end - headerCheckBoxSize, headerCheckBoxTop, headerCheckBoxSize,
                                  headerCheckBoxSize);
}

void NewTableWidget::on_notifyStateChange(int state)
{
    if (state != Qt::Checked && state != Qt::Unchecked)
        return;
    // Every box runs code of the host's, which may remove rows, or the table.
    QList<QCheckBox *> boxes;
    for (int row = 0; row < rowCount(); ++row)
        boxes.append(rowCheckBox(row));
    const auto liveBoxes = orvane::liveList(boxes);
    for (const QPointer<QCheckBox> &box : liveBoxes) {
        if (box)
            setBoxChecked(box, state == Qt::Checked);
    }
}

void NewTableWidget::on_valueChange(int /*value*/)
{
    placeHeaderCheckBox();
}

void NewTableWidget::letLastColumnShrink()
{
    // Qt never stretches a last section to less than the width that it remembers for it, so that
    // the section would leave a table that becomes narrower: it is told a width to forget that.
    QHeaderView *header = horizontalHeader();
    int last = header->count() - 1;
    while (last >= 0 && header->isSectionHidden(header->logicalIndex(last)))
        --last;
    const int column = header->logicalIndex(last);
    if (column >= 0 && header->sectionResizeMode(column) == QHeaderView::Stretch)
        header->resizeSection(column, header->minimumSectionSize());
}

void NewTableWidget::resizeEvent(QResizeEvent *event)
{
    QTableWidget::resizeEvent(event);
    letLastColumnShrink();
    placeHeaderCheckBox();
}

void NewTableWidget::updateEditorGeometries()
{
    QTableWidget::updateEditorGeometries();
    // At the right, the column goes with each change of the width of any other.
    if (isRightToLeft() && m_isCheckBoxColumnShown && m_headerCheckBox)
        placeMirroredHeaderCheckBox();
}

bool NewTableWidget::focusNextPrevChild(bool next)
{
    if (hasFocus())
        return QTableWidget::focusNextPrevChild(next);
    // A box that has the focus asks here too, and Qt's table would keep it in its cells for good.
    // NOLINTNEXTLINE(bugprone-parent-virtual-call)
    return QFrame::focusNextPrevChild(next); // clazy:exclude=skipped-base-method
}
