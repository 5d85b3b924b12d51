#ifndef DRAWITEMCONTENTNEW_H
#define DRAWITEMCONTENTNEW_H

#include "orvanecontrolsglobal.h"

#include <QList>
#include <QPointer>
#include <QVector>
#include <QWidget>

class CheckBoxEx;
class QVBoxLayout;

/**
 * A body of a drawer item that selects among check boxes: one by plain clicks, several while the
 * Control key is held.
 *
 * The host makes the boxes. It puts them into this widget's layout, hands them over in their order
 * with setLsCheckbox(), and connects either each box's clicked(bool) to the slot
 * slot_itemClicked(bool), or its stateChanged(int) to slot_itemStateChanged(int). What its key
 * handling sees goes to slot_keyPressEvent(int) and slot_keyReleaseEvent(int). All four are private
 * slots, so the connections name them by their signatures.
 *
 * The box that was picked last is marked with CheckBoxEx::SetIsLastSelectd(). With Control held,
 * checked boxes before the picked one keep a mark, too.
 */
class ORVANECONTROLS_EXPORT DrawItemContentNew : public QWidget
{
    Q_OBJECT

public:
    /// Builds a body without boxes, owned by \a parent.
    explicit DrawItemContentNew(QWidget *parent = nullptr);

    /// Checks or unchecks every box, in order.
    void setlsCheckboxStatus(bool checked);
    /// Does nothing; hosts add their boxes to the layout.
    void addWidget(QString text);

    /// The boxes in display order, without deleted ones. \see setLsCheckbox()
    QList<CheckBoxEx *> lsCheckbox() const;
    /// Replaces the list of boxes; null pointers are left out. No widget changes, and the boxes
    /// keep their owners. \see lsCheckbox()
    void setLsCheckbox(const QList<CheckBoxEx *> &boxes);

Q_SIGNALS:
    /// Some box changed. \a index is always 0: read the boxes. Boxes and this widget may be deleted
    /// here.
    void signal_itemStateChandged(int index);

private Q_SLOTS:
    void slot_itemStateChanged(int state);
    void slot_itemClicked(bool state);
    void slot_keyPressEvent(int key);
    void slot_keyReleaseEvent(int key);

private:
    QVBoxLayout *m_layout = nullptr;
    QVector<QPointer<CheckBoxEx>> m_checkBoxes;
    bool m_isControlHeld = false;
};

#endif // DRAWITEMCONTENTNEW_H
