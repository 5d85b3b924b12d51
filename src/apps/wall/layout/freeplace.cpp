#include "freeplace.h"

#include <cstdlib>

namespace wall
{

namespace
{

constexpr int farthestRing = 64;

enum class Side { Right, Below, Left, Above };

QPoint beside(const QRect &cabinet, QSize size, Side side)
{
    switch (side) {
    case Side::Right:
        return QPoint(cabinet.x() + cabinet.width(), cabinet.y());
    case Side::Below:
        return QPoint(cabinet.x(), cabinet.y() + cabinet.height());
    case Side::Left:
        return QPoint(cabinet.x() - size.width(), cabinet.y());
    case Side::Above:
        break;
    }
    return QPoint(cabinet.x(), cabinet.y() - size.height());
}

Side directionOf(const QRect &from, const QRect &to)
{
    const QPoint step = to.center() - from.center();
    if (std::abs(step.x()) >= std::abs(step.y()))
        return step.x() < 0 ? Side::Left : Side::Right;
    return step.y() < 0 ? Side::Above : Side::Below;
}

} // namespace

std::optional<QPoint> nextPlace(const QVector<QRect> &line, QSize size, const IsFree &isFree)
{
    if (line.isEmpty())
        return std::nullopt;
    const QRect last = line.constLast();
    QVector<Side> sides = {Side::Below, Side::Right, Side::Left, Side::Above};
    sides.prepend(line.size() > 1 ? directionOf(line.at(line.size() - 2), last) : Side::Right);
    for (const Side side : qAsConst(sides)) {
        const QPoint place = beside(last, size, side);
        if (isFree(QRect(place, size)))
            return place;
    }
    return freePlaceNear(last.topLeft(), size, isFree);
}

std::optional<QPoint> freePlaceNear(QPoint start, QSize size, const IsFree &isFree)
{
    for (int ring = 0; ring <= farthestRing; ++ring) {
        std::optional<QPoint> nearest;
        int nearestDistance = 0;
        for (int row = -ring; row <= ring; ++row) {
            const bool isWholeRow = std::abs(row) == ring;
            for (int column = -ring; column <= ring; column += isWholeRow ? 1 : qMax(1, 2 * ring)) {
                const QPoint step(column * size.width(), row * size.height());
                const int distance = step.manhattanLength();
                if (nearest && distance >= nearestDistance)
                    continue;
                if (isFree(QRect(start + step, size))) {
                    nearest = start + step;
                    nearestDistance = distance;
                }
            }
        }
        if (nearest)
            return nearest;
    }
    return std::nullopt;
}

} // namespace wall
