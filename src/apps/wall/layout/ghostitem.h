#ifndef WALL_GHOSTITEM_H
#define WALL_GHOSTITEM_H

#include <QGraphicsItem>
#include <QRect>

namespace wall
{

/// The place that a dragged cabinet would take; red where it may not.
class GhostItem : public QGraphicsItem
{
public:
    GhostItem();

    void setGhost(const QRect &bounds, bool isPossible);
    QRect ghostBounds() const;

    QRectF boundingRect() const override;
    void paint(QPainter *painter, const QStyleOptionGraphicsItem *option, QWidget *widget) override;

private:
    QRect m_bounds;
    bool m_isPossible = true;
};

} // namespace wall

#endif // WALL_GHOSTITEM_H
