#ifndef WALL_BACKUPPLAN_H
#define WALL_BACKUPPLAN_H

#include "model/project.h"

#include <backupparam.h>

#include <QList>

namespace wall
{

/// "Main left / 3".
QString portName(const Project &project, const PortRef &port);
QString portKindName(PortKind kind);

/**
 * Which port stands in for which when one fails: a record for each port that feeds cabinets, with
 * that port, the one that backs it up, their kind, and the state.
 *
 * A port is backed up by one of the same kind that feeds nothing and backs up no other, in the
 * project's order, if possible of another sender. The state is "Ready", "Offline" if a sender of
 * the two is, or "No free port".
 */
QList<BackUpParam> backupPlan(const Project &project);

} // namespace wall

#endif // WALL_BACKUPPLAN_H
