#include "cabinetclicks.h"

#include <toolbuttonex.h>

#include <QKeyEvent>
#include <QMouseEvent>

namespace wall
{

namespace
{

bool isChoosingKey(const QKeyEvent *event)
{
    return event->key() == Qt::Key_Space || event->key() == Qt::Key_Return
        || event->key() == Qt::Key_Enter;
}

} // namespace

CabinetClicks::CabinetClicks(QObject *parent)
    : QObject(parent)
{
}

void CabinetClicks::watch(ToolButtonEx *button)
{
    button->installEventFilter(this);
}

bool CabinetClicks::isClick() const
{
    return m_isClick;
}

bool CabinetClicks::eventFilter(QObject *watched, QEvent *event)
{
    // Only in the cases below: a button that is going is none any more.
    const auto button = [watched] { return static_cast<ToolButtonEx *>(watched); };
    switch (event->type()) {
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonDblClick:
        m_pressPoint = static_cast<QMouseEvent *>(event)->pos();
        m_isClick = true;
        break;
    case QEvent::MouseMove:
    case QEvent::MouseButtonRelease:
        follow(button(), static_cast<QMouseEvent *>(event));
        break;
    case QEvent::KeyPress:
        if (!isChoosingKey(static_cast<QKeyEvent *>(event)))
            break;
        if (!static_cast<QKeyEvent *>(event)->isAutoRepeat())
            Q_EMIT chosenByKey(button());
        return true;
    case QEvent::KeyRelease:
        return isChoosingKey(static_cast<QKeyEvent *>(event));
    default:
        break;
    }
    return false;
}

void CabinetClicks::follow(const ToolButtonEx *button, const QMouseEvent *event)
{
    // The button begins a drag at a way as long as it is wide, which may lie inside it.
    if (!button->rect().contains(event->pos())
        || (event->pos() - m_pressPoint).manhattanLength() >= button->width())
        m_isClick = false;
}

} // namespace wall
