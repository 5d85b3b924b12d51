#include "cabinetindex.h"

#include <algorithm>

namespace wall
{

namespace
{

// A cell is some cabinets wide, so that a wall of equal cabinets has few cells and short lists.
constexpr int spareBits = 2;

// A cell in one number: 6 bits of level, 29 each of column and row.
constexpr int coordinateBits = 29;
constexpr quint64 coordinateMask = (quint64(1) << coordinateBits) - 1;

qint64 cellCoordinate(qint64 length, int level)
{
    return length >> level; // rounds down for negative ones, too
}

} // namespace

void CabinetIndex::clear()
{
    m_cells.clear();
    m_cabinetsOfLevel.fill(0);
}

void CabinetIndex::insert(CabinetId id, const QRect &bounds)
{
    m_cells[cellOf(bounds)].append({id, bounds});
    ++m_cabinetsOfLevel[size_t(levelOf(bounds))];
}

void CabinetIndex::remove(CabinetId id, const QRect &bounds)
{
    const auto cell = m_cells.find(cellOf(bounds));
    Q_ASSERT(cell != m_cells.end());
    const auto entry =
        std::find_if(cell->begin(), cell->end(), [id](const Entry &each) { return each.id == id; });
    Q_ASSERT(entry != cell->end());
    *entry = cell->constLast();
    cell->removeLast();
    if (cell->isEmpty())
        m_cells.erase(cell);
    --m_cabinetsOfLevel[size_t(levelOf(bounds))];
}

CabinetIds CabinetIndex::in(const QRect &area) const
{
    CabinetIds ids;
    const auto collect = [&](const QVector<Entry> &entries) {
        for (const Entry &entry : entries) {
            if (entry.bounds.intersects(area))
                ids.append(entry.id);
        }
    };
    if (area.isEmpty())
        return ids;

    // A cabinet is in the cell of its top left corner, and may reach into the next ones.
    struct CellRange {
        int level;
        qint64 left, top, right, bottom;
    };
    QVector<CellRange> ranges;
    qint64 cellCount = 0;
    for (int level = 0; level < levelCount; ++level) {
        if (m_cabinetsOfLevel[size_t(level)] == 0)
            continue;
        const CellRange range = {
            level, cellCoordinate(area.left(), level) - 1, cellCoordinate(area.top(), level) - 1,
            cellCoordinate(area.right(), level), cellCoordinate(area.bottom(), level)};
        cellCount += (range.right - range.left + 1) * (range.bottom - range.top + 1);
        ranges.append(range);
    }

    if (cellCount > m_cells.size()) {
        for (const QVector<Entry> &entries : m_cells)
            collect(entries);
    } else {
        for (const CellRange &range : qAsConst(ranges)) {
            for (qint64 row = range.top; row <= range.bottom; ++row) {
                for (qint64 column = range.left; column <= range.right; ++column) {
                    const auto cell = m_cells.constFind(cellAt(range.level, column, row));
                    if (cell != m_cells.cend())
                        collect(*cell);
                }
            }
        }
    }
    std::sort(ids.begin(), ids.end());
    return ids;
}

int CabinetIndex::levelOf(const QRect &bounds)
{
    int level = spareBits;
    for (int length = qMax(bounds.width(), bounds.height()); length > 1; length = (length + 1) / 2)
        ++level;
    return level;
}

CabinetIndex::Cell CabinetIndex::cellAt(int level, qint64 column, qint64 row)
{
    return quint64(level) << (2 * coordinateBits)
        | (quint64(column) & coordinateMask) << coordinateBits | (quint64(row) & coordinateMask);
}

CabinetIndex::Cell CabinetIndex::cellOf(const QRect &bounds)
{
    const int level = levelOf(bounds);
    return cellAt(level, cellCoordinate(bounds.left(), level), cellCoordinate(bounds.top(), level));
}

} // namespace wall
