#ifndef WALL_CABINETINDEX_H
#define WALL_CABINETINDEX_H

#include "model/values.h"

#include <array>

namespace wall
{

/// Finds the cabinets of an area without looking at all of them: a grid of cells for every order
/// of size that occurs, of which only those with cabinets exist.
class CabinetIndex
{
public:
    void clear();
    void insert(CabinetId id, const QRect &bounds);
    /// \a bounds are those that it was inserted with.
    void remove(CabinetId id, const QRect &bounds);
    /// The cabinets whose bounds meet \a area, in the order of their ids.
    CabinetIds in(const QRect &area) const;

private:
    struct Entry {
        CabinetId id;
        QRect bounds;
    };
    using Cell = quint64;

    static constexpr int levelCount = 32;

    static int levelOf(const QRect &bounds);
    static Cell cellAt(int level, qint64 column, qint64 row);
    static Cell cellOf(const QRect &bounds);

    QHash<Cell, QVector<Entry>> m_cells;
    std::array<int, levelCount> m_cabinetsOfLevel = {};
};

} // namespace wall

#endif // WALL_CABINETINDEX_H
