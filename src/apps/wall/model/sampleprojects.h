#ifndef WALL_SAMPLEPROJECTS_H
#define WALL_SAMPLEPROJECTS_H

#include "progress.h"
#include "values.h"

#include <optional>

namespace wall
{

/// A stage wall to try the program with: a main screen with wings, a banner and a base, and two
/// side screens; 403 cabinets of five models on three senders that are online and one that is not.
/// Most ports have cabinets left.
ProjectData demoProject();

/// A wall of \a cabinetCount cabinets, 1 to 1,000,000, about 16:9; a number outside becomes the
/// nearest of them. Every port feeds a block of 8 by 5 cabinets in a serpentine, every sender 16
/// ports. Nothing when \a progress cancels.
std::optional<ProjectData> generateProject(int cabinetCount, const Progress &progress = {});

} // namespace wall

#endif // WALL_SAMPLEPROJECTS_H
