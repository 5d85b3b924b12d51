#ifndef NEWTABLEWIDGET_H
#define NEWTABLEWIDGET_H

#include "orvanecontrolsglobal.h"

#include <QCheckBox>
#include <QPointer>
#include <QTableWidget>

/**
 * A dark read-only table that can begin with a column of check boxes, under a check-all box in the
 * header.
 *
 * The boxes are for the rows that the table has when the column is built; rows added later get
 * none. The box of a row is its cell widget in column 0, a QCheckBox: read and connect it there.
 * The header box checks and unchecks them all; it does not follow them. Rows, columns and boxes may
 * be taken out in any signal of the boxes. The table may be deleted in their stateChanged(int) and
 * clicked(bool) when a person clicked the box, not when a host called its click() or setChecked().
 *
 * The header box is 26 pixels high and stands 10 pixels below the table's top, so give the header
 * 36 pixels or more. There is no horizontal scroll bar; where columns do not fit, the table scrolls
 * by scrollTo() and its kind, and the header box goes with its column.
 */
class ORVANECONTROLS_EXPORT NewTableWidget : public QTableWidget
{
    Q_OBJECT

public:
    /// Builds a table without rows and columns, owned by \a parent.
    explicit NewTableWidget(QWidget *parent = nullptr);

    /// Sets up selection, headers and scroll bars. The constructor calls it.
    void initTable();
    /// Applies the sheet. The constructor calls it.
    void initTableStyle();

    /// With true builds the check box column. With false takes away the header box and the rows'
    /// boxes, which the event loop deletes; the column stays, empty. With true again another
    /// column is inserted, so remove the empty one first.
    void setAddCheckBoxVisible(bool isVisible);
    /// Inserts a column of 30 pixels at the left, with a check box for every row, and makes the
    /// header box, in place of one that there is. In the tab order they follow the table.
    void createCheckBoxColumn();

public Q_SLOTS:
    /// What the header box does: checks the box of every row when \a state is Qt::Checked,
    /// unchecks them when it is Qt::Unchecked, and nothing for any other state.
    void on_notifyStateChange(int state);
    /// What a horizontal scroll does: moves the header box to where its column is now. Nothing
    /// happens without the column and without rows.
    void on_valueChange(int value);

protected:
    /// Fits the last column and the header box to the new size.
    void resizeEvent(QResizeEvent *event) override;
    /// Places the boxes of the rows and, in a layout from right to left, that of the header.
    void updateEditorGeometries() override;
    /// Lets the tab key go from box to box and out of the table; among the cells it goes only while
    /// the table itself has the focus. A cell with a box hands the focus to it when it becomes the
    /// current one: in a table that gets the focus without a current cell, the first row's box has
    /// it.
    bool focusNextPrevChild(bool next) override;

private:
    QCheckBox *rowCheckBox(int row) const;
    void removeCheckBoxes();
    void removeHeaderCheckBox();
    void placeHeaderCheckBox();
    void placeMirroredHeaderCheckBox();
    void letLastColumnShrink();

    bool m_isCheckBoxColumnShown = false;
    QPointer<QCheckBox> m_headerCheckBox;
};

#endif // NEWTABLEWIDGET_H
