#include "ghostitem.h"

#include "layout/layoutcolors.h"

#include <QPainter>

namespace wall
{

GhostItem::GhostItem()
{
    hide();
}

void GhostItem::setGhost(const QRect &bounds, bool isPossible)
{
    if (bounds == m_bounds && isPossible == m_isPossible)
        return;
    prepareGeometryChange();
    m_bounds = bounds;
    m_isPossible = isPossible;
    update();
}

QRect GhostItem::ghostBounds() const
{
    return m_bounds;
}

QRectF GhostItem::boundingRect() const
{
    return m_bounds;
}

void GhostItem::paint(QPainter *painter, const QStyleOptionGraphicsItem *, QWidget *)
{
    constexpr int fillAlpha = 90;
    QColor fill = m_isPossible ? layoutcolors::accent : layoutcolors::refused;
    QPen pen(fill, 2, Qt::DashLine);
    pen.setCosmetic(true);
    fill.setAlpha(fillAlpha);
    painter->setPen(pen);
    painter->setBrush(fill);
    painter->drawRect(m_bounds);
}

} // namespace wall
