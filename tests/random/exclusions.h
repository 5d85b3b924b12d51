#ifndef RANDOMUSE_EXCLUSIONS_H
#define RANDOMUSE_EXCLUSIONS_H

#include <QByteArray>
#include <QString>
#include <QVector>

/// The one list of what random use leaves out, each with its reason: a caller's error by the
/// contract, or a defect of Qt that shows in bare Qt.
namespace randomuse
{

struct Exclusion {
    const char *className; ///< of the library or of Qt; subclasses included
    const char *member; ///< a function, slot, property or signal
    const char *reason;
};

/// Left out are calls of \a member on objects whose classes are named \a classNames.
bool isExcluded(const QVector<QByteArray> &classNames, const QByteArray &member);
/// Left out is the deletion of an object of these classes in \a signal.
bool isKeptInSignal(const QVector<QByteArray> &classNames, const QByteArray &signal);
/// Public classes and records that have no entry of their own.
const QVector<Exclusion> &classesWithoutEntry();
/// All that is left out, in one list.
QVector<Exclusion> allExclusions();
/// Whether Qt may say \a warning.
bool isExpected(const QString &warning);

} // namespace randomuse

#endif // RANDOMUSE_EXCLUSIONS_H
