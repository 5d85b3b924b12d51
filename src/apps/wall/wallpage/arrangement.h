#ifndef WALL_WALLPAGE_ARRANGEMENT_H
#define WALL_WALLPAGE_ARRANGEMENT_H

#include "model/project.h"

/// Where cabinets go that are brought into order. What counts is what they cover, as they are
/// rotated. Places that no cabinet can have become the nearest possible ones.
namespace wall
{

enum class Arrangement {
    LeftEdges, ///< Moved to the left until all begin where the leftmost does.
    TopEdges, ///< Moved up until all begin where the topmost does.
    Row, ///< Side by side, from left to right as they lie, along the top of the leftmost.
    Column ///< One below the other, from top to bottom as they lie, along the left of the topmost.
};

/// The new places of those cabinets that have to move.
QVector<CabinetPosition> arranged(const Project &project, const CabinetIds &ids,
                                  Arrangement arrangement);

} // namespace wall

#endif // WALL_WALLPAGE_ARRANGEMENT_H
