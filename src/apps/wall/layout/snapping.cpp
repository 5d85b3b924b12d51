#include "snapping.h"

#include <cmath>
#include <cstdlib>

namespace wall
{

namespace
{

/// A rectangle in one direction: where it begins and ends.
struct Span {
    int begin;
    int end;
};

int nearestMultiple(int value, int step)
{
    return int(std::lround(double(value) / step)) * step;
}

int snappedStep(Span span, int delta, const QVector<Span> &neighbours, const SnapTargets &targets)
{
    int best = targets.tolerance + 1;
    int correction = 0;
    const auto consider = [&](int edge, int other) {
        const int distance = other - (edge + delta);
        if (std::abs(distance) < best) {
            best = std::abs(distance);
            correction = distance;
        }
    };
    for (const Span &neighbour : neighbours) {
        for (const int edge : {span.begin, span.end}) {
            consider(edge, neighbour.begin);
            consider(edge, neighbour.end);
        }
    }
    if (best <= targets.tolerance)
        return delta + correction;
    if (targets.gridSize > 0)
        return nearestMultiple(span.begin + delta, targets.gridSize) - span.begin;
    return delta;
}

} // namespace

QPoint snappedMove(const QRect &bounds, QPoint delta, const SnapTargets &targets)
{
    const auto across = [](const QRect &rect) { return Span{rect.x(), rect.x() + rect.width()}; };
    const auto down = [](const QRect &rect) { return Span{rect.y(), rect.y() + rect.height()}; };
    QVector<Span> acrossNeighbours;
    QVector<Span> downNeighbours;
    acrossNeighbours.reserve(targets.neighbours.size());
    downNeighbours.reserve(targets.neighbours.size());
    for (const QRect &neighbour : targets.neighbours) {
        acrossNeighbours.append(across(neighbour));
        downNeighbours.append(down(neighbour));
    }
    return QPoint(snappedStep(across(bounds), delta.x(), acrossNeighbours, targets),
                  snappedStep(down(bounds), delta.y(), downNeighbours, targets));
}

} // namespace wall
