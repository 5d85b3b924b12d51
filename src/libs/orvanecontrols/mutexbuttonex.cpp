#include "mutexbuttonex.h"

#include "internal/stylesheet.h"
#include "toolbuttonex.h"

#include <QButtonGroup>
#include <QPointer>

MutexButtonEx::MutexButtonEx(QWidget *parent)
    : QFrame(parent)
    , m_buttonGroup(std::make_unique<QButtonGroup>())
{
    m_buttonGroup->setExclusive(true);
    orvane::applyStyleSheet(this, QStringLiteral("QFrame{background:rgb(69, 69, 69);}"));
}

MutexButtonEx::~MutexButtonEx() = default;

void MutexButtonEx::addButton(ToolButtonEx *button)
{
    if (!button)
        return;
    button->setCheckable(true);
    // Any numbers are taken: places and sizes end at Qt's limit.
    const auto bounded = [](qint64 length) {
        return int(qBound<qint64>(-QWIDGETSIZE_MAX, length, QWIDGETSIZE_MAX));
    };
    const qint64 left = (qint64(m_buttonWidth) + m_buttonSpace) * m_buttonGroup->buttons().size();
    button->setGeometry(bounded(left), 0, bounded(m_buttonWidth), bounded(m_buttonHeight));
    // A checked button unchecks another, and its host may delete the strip on that.
    const QPointer<MutexButtonEx> self(this);
    m_buttonGroup->addButton(button);
    if (!self)
        return;
    // One pixel a button more than the buttons take, and the gap but once: hosts rely on the width.
    const qint64 count = m_buttonGroup->buttons().size();
    const qint64 width = count * m_buttonWidth + count - m_buttonSpace;
    const QSize size(bounded(width), bounded(m_buttonHeight));
    setFixedSize(size.expandedTo(QSize(0, 0)));
}

void MutexButtonEx::setButtonWidth(int width)
{
    m_buttonWidth = width;
}

void MutexButtonEx::setButtonHeight(int height)
{
    m_buttonHeight = height;
}

void MutexButtonEx::setButtonSpace(int space)
{
    m_buttonSpace = space;
}
