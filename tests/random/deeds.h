#ifndef RANDOMUSE_DEEDS_H
#define RANDOMUSE_DEEDS_H

#include "table.h"

/// What can be done with every object, whatever its class.
namespace randomuse
{

/// Events, changes of look and place, and what users and windows do to any widget.
QVector<Action> commonActions();

/// The writable properties of \a subject, those of Qt's classes included.
QVector<Action> propertyActions(QObject *subject);
/// The public slots of \a subject that take simple values, those of Qt's classes included.
QVector<Action> slotActions(QObject *subject);
/// The signals of \a subject's own class, and clicked(), in which it may be deleted.
QVector<int> deletingSignals(QObject *subject);

} // namespace randomuse

#endif // RANDOMUSE_DEEDS_H
