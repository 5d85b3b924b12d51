#include "values.h"

#include <QTransform>

#include <cmath>

namespace wall
{

namespace
{

constexpr int fullTurn = 360;
// Far below a pixel, far above what the rotation of a position may be inexact by.
constexpr double tolerance = 1e-6;

} // namespace

bool operator==(const CabinetModel &a, const CabinetModel &b)
{
    return a.id == b.id && a.family == b.family && a.name == b.name && a.size == b.size
        && a.pitch == b.pitch && a.weight == b.weight && a.power == b.power
        && a.voltage == b.voltage && a.extra == b.extra;
}

bool operator==(const StockEntry &a, const StockEntry &b)
{
    return a.modelId == b.modelId && a.count == b.count && a.extra == b.extra;
}

bool operator==(const Port &a, const Port &b)
{
    return a.number == b.number && a.kind == b.kind && a.stock == b.stock && a.extra == b.extra;
}

bool operator==(const Sender &a, const Sender &b)
{
    return a.id == b.id && a.name == b.name && a.connection == b.connection
        && a.isOnline == b.isOnline && a.ports == b.ports && a.extra == b.extra;
}

bool operator==(const PortRef &a, const PortRef &b)
{
    return a.number == b.number && a.senderId == b.senderId;
}

bool operator==(const PlacedCabinet &a, const PlacedCabinet &b)
{
    return a.id == b.id && a.modelId == b.modelId && a.port == b.port && a.position == b.position
        && a.rotation == b.rotation && a.extra == b.extra;
}

bool operator==(const ProjectData &a, const ProjectData &b)
{
    return a.name == b.name && a.models == b.models && a.senders == b.senders
        && a.cabinets == b.cabinets && a.extra == b.extra;
}

uint qHash(const PortRef &port, uint seed)
{
    return ::qHash(port.senderId, seed) * 31 + uint(port.number);
}

int normalizedRotation(int degrees)
{
    const int rest = degrees % fullTurn;
    return rest < 0 ? rest + fullTurn : rest;
}

QPolygonF cabinetOutline(QPoint position, QSize size, int rotation)
{
    const double halfWidth = size.width() / 2.0;
    const double halfHeight = size.height() / 2.0;
    QTransform turn;
    turn.translate(position.x() + halfWidth, position.y() + halfHeight);
    turn.rotate(rotation);
    QPolygonF outline;
    outline << turn.map(QPointF(-halfWidth, -halfHeight))
            << turn.map(QPointF(halfWidth, -halfHeight)) << turn.map(QPointF(halfWidth, halfHeight))
            << turn.map(QPointF(-halfWidth, halfHeight));
    return outline;
}

QRect cabinetBounds(QPoint position, QSize size, int rotation)
{
    if (rotation == 0)
        return QRect(position, size);
    const QRectF around = cabinetOutline(position, size, rotation).boundingRect();
    const int left = int(std::floor(around.left() + tolerance));
    const int top = int(std::floor(around.top() + tolerance));
    const int right = int(std::ceil(around.right() - tolerance));
    const int bottom = int(std::ceil(around.bottom() - tolerance));
    return QRect(left, top, right - left, bottom - top);
}

} // namespace wall
