#include "arrangement.h"

#include <algorithm>

namespace wall
{

namespace
{

struct Piece {
    CabinetId id = 0;
    QPoint position;
    QRect bounds;
};

QVector<Piece> piecesOf(const Project &project, const CabinetIds &ids)
{
    QVector<Piece> pieces;
    for (const CabinetId id : ids) {
        if (const PlacedCabinet *cabinet = project.cabinet(id))
            pieces.append({id, cabinet->position, project.boundsOf(id)});
    }
    return pieces;
}

int possible(int coordinate)
{
    return qBound(-maxCoordinate, coordinate, maxCoordinate);
}

/// The place of \a piece when its bounds begin at \a topLeft.
CabinetPosition placed(const Piece &piece, QPoint topLeft)
{
    const QPoint position = piece.position + topLeft - piece.bounds.topLeft();
    return {piece.id, QPoint(possible(position.x()), possible(position.y()))};
}

} // namespace

QVector<CabinetPosition> arranged(const Project &project, const CabinetIds &ids,
                                  Arrangement arrangement)
{
    QVector<Piece> pieces = piecesOf(project, ids);
    const bool isByX = arrangement == Arrangement::LeftEdges || arrangement == Arrangement::Row;
    // The id decides between equals, so that the result does not hang on the order given.
    std::sort(pieces.begin(), pieces.end(), [isByX](const Piece &a, const Piece &b) {
        const QPoint first = a.bounds.topLeft();
        const QPoint second = b.bounds.topLeft();
        const auto key = [isByX](QPoint point, CabinetId id) {
            return isByX ? std::make_tuple(point.x(), point.y(), id)
                         : std::make_tuple(point.y(), point.x(), id);
        };
        return key(first, a.id) < key(second, b.id);
    });

    QVector<CabinetPosition> targets;
    QPoint next = pieces.isEmpty() ? QPoint() : pieces.constFirst().bounds.topLeft();
    for (const Piece &piece : qAsConst(pieces)) {
        switch (arrangement) {
        case Arrangement::LeftEdges:
            next.setY(piece.bounds.top());
            break;
        case Arrangement::TopEdges:
            next.setX(piece.bounds.left());
            break;
        case Arrangement::Row:
        case Arrangement::Column:
            break;
        }
        const CabinetPosition target = placed(piece, next);
        if (target.position != piece.position)
            targets.append(target);
        if (arrangement == Arrangement::Row)
            next.rx() += piece.bounds.width();
        else if (arrangement == Arrangement::Column)
            next.ry() += piece.bounds.height();
    }
    return targets;
}

} // namespace wall
