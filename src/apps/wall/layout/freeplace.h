#ifndef WALL_FREEPLACE_H
#define WALL_FREEPLACE_H

#include <QPoint>
#include <QRect>
#include <QSize>
#include <QVector>

#include <functional>
#include <optional>

namespace wall
{

/// Whether nothing lies there yet.
using IsFree = std::function<bool(const QRect &)>;

/// The place for the next cabinet of a data line: beside its last cabinet, first in the direction
/// in which the line ran, then below, right, left and above it; otherwise as near as the steps of a
/// cabinet's size lead. \a line holds the bounds of the last two cabinets, or what there is.
/// Nothing if all is taken far around.
std::optional<QPoint> nextPlace(const QVector<QRect> &line, QSize size, const IsFree &isFree);

/// The free place that is nearest to \a start by steps of a cabinet's size, itself if possible.
std::optional<QPoint> freePlaceNear(QPoint start, QSize size, const IsFree &isFree);

} // namespace wall

#endif // WALL_FREEPLACE_H
