#ifndef WALL_SNAPPING_H
#define WALL_SNAPPING_H

#include <QPoint>
#include <QRect>
#include <QVector>

namespace wall
{

/// What a moved rectangle snaps to.
struct SnapTargets {
    int gridSize = 0; ///< Distance of the grid's lines, 0 for no grid.
    QVector<QRect> neighbours; ///< Whose edges attract.
    int tolerance = 0; ///< From how far edges attract.
};

/// \a delta changed so that \a bounds, moved by it, come to lie on the targets. In each direction
/// the nearest edge within the tolerance wins; without one the top left corner goes to the grid.
QPoint snappedMove(const QRect &bounds, QPoint delta, const SnapTargets &targets);

} // namespace wall

#endif // WALL_SNAPPING_H
