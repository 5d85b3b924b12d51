#ifndef RANDOMUSE_HANDLERS_H
#define RANDOMUSE_HANDLERS_H

#include "table.h"

#include <QMouseEvent>

/// Calls of event handlers that a class has among its public functions.
namespace randomuse
{

template <class T>
std::function<void(Life &, T *)> plainEvent(void (T::*handler)(QEvent *), QEvent::Type type)
{
    return [handler, type](Life &, T *subject) {
        QEvent event(type);
        (subject->*handler)(&event);
    };
}

template <class T>
std::function<void(Life &, T *)> mouseEvent(void (T::*handler)(QMouseEvent *), QEvent::Type type)
{
    return [handler, type](Life &life, T *subject) {
        const QPoint place = life.value<QPoint>();
        QMouseEvent event(type, place, Qt::LeftButton, Qt::LeftButton, Qt::NoModifier);
        (subject->*handler)(&event);
    };
}

/// Any event for one of the subject's children, or for an object that it does not know.
template <class T> void filterEvent(Life &life, T *subject)
{
    static const QVector<QEvent::Type> types{QEvent::Wheel,  QEvent::Enter,
                                             QEvent::Leave,  QEvent::Move,
                                             QEvent::Resize, QEvent::MouseButtonPress};
    const QList<QObject *> children = subject->template findChildren<QObject *>();
    QObject *watched = children.isEmpty() || life.dice().chance(20)
        ? newObject<QObject>(life)
        : children.at(life.dice().below(children.size()));
    QEvent event(life.dice().pick(types));
    subject->eventFilter(watched, &event);
}

} // namespace randomuse

#endif // RANDOMUSE_HANDLERS_H
