#include "drawitemcontentnew.h"

#include "checkboxex.h"
#include "internal/livelist.h"

#include <QVBoxLayout>

#include <algorithm>

namespace
{

// No index is known; hosts rely on 0.
constexpr int anyIndex = 0;

bool isFullyChecked(const QPointer<CheckBoxEx> &box)
{
    return box && box->checkState() == Qt::Checked;
}

} // namespace

DrawItemContentNew::DrawItemContentNew(QWidget *parent)
    : QWidget(parent)
    , m_layout(new QVBoxLayout)
{
    m_layout->setContentsMargins(50, 0, 0, 0);
    m_layout->setSpacing(0);
    m_layout->addSpacing(15);
    setLayout(m_layout);
    setAttribute(Qt::WA_MouseTracking);
}

void DrawItemContentNew::setlsCheckboxStatus(bool checked)
{
    // Checking a box runs the host's slots, which may delete boxes or hand over another list.
    const auto boxes = m_checkBoxes;
    for (const QPointer<CheckBoxEx> &box : boxes) {
        if (box)
            box->setChecked(checked);
    }
}

void DrawItemContentNew::addWidget(QString text)
{
    Q_UNUSED(text)
}

QList<CheckBoxEx *> DrawItemContentNew::lsCheckbox() const
{
    return orvane::liveWidgets(m_checkBoxes);
}

void DrawItemContentNew::setLsCheckbox(const QList<CheckBoxEx *> &boxes)
{
    m_checkBoxes = orvane::liveList(boxes);
}

void DrawItemContentNew::slot_itemStateChanged(int state)
{
    const QPointer<DrawItemContentNew> self(this);
    const auto boxes = m_checkBoxes;
    auto *const changedBox = qobject_cast<CheckBoxEx *>(sender());
    const int position = changedBox ? boxes.indexOf(changedBox) : -1;
    const int unchecked = position >= 0 ? position : boxes.size();
    for (int i = 0; i < unchecked; ++i) {
        if (boxes.at(i))
            boxes.at(i)->setChecked(false);
    }
    if (position < 0)
        return;
    if (boxes.at(position))
        boxes.at(position)->setChecked(state == Qt::Checked);
    if (self)
        Q_EMIT signal_itemStateChandged(anyIndex);
}

void DrawItemContentNew::slot_itemClicked(bool state)
{
    const QPointer<DrawItemContentNew> self(this);
    const bool isControlHeld = m_isControlHeld;
    const auto boxes = m_checkBoxes;
    const bool isAnyChecked = std::any_of(boxes.cbegin(), boxes.cend(), isFullyChecked);
    const auto *const clickedBox = qobject_cast<CheckBoxEx *>(sender());

    // Behind a box that became checked the marks do not follow the check states any more: hosts
    // rely on it.
    bool isClickedBoxDone = false;
    for (const QPointer<CheckBoxEx> &box : boxes) {
        if (!box)
            continue;
        const bool isClickedBox = box == clickedBox;
        if (isClickedBox && state) {
            box->setChecked(true);
            if (box)
                box->SetIsLastSelectd(true);
            isClickedBoxDone = true;
            continue;
        }
        if (isClickedBox)
            box->setChecked(isAnyChecked && !isControlHeld);
        else if (!isControlHeld)
            box->setChecked(false);
        else
            box->SetIsLastSelectd(false);
        if (box && !isClickedBoxDone)
            box->SetIsLastSelectd(isFullyChecked(box));
    }
    if (self)
        Q_EMIT signal_itemStateChandged(anyIndex);
}

void DrawItemContentNew::slot_keyPressEvent(int key)
{
    if (key == Qt::Key_Control)
        m_isControlHeld = true;
}

void DrawItemContentNew::slot_keyReleaseEvent(int key)
{
    if (key == Qt::Key_Control)
        m_isControlHeld = false;
}
