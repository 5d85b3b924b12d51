#ifndef WALL_CABINETLAYER_H
#define WALL_CABINETLAYER_H

#include <QGraphicsItem>

namespace wall
{

class LayoutScene;
struct CabinetShape;

/// Everything that a layer of the wall can cover.
QRectF wholeWall();

/// Draws all cabinets of a scene. Far away they are plain areas; nearer they get gaps between them,
/// a mark at the top of rotated ones, and texts.
class CabinetLayer : public QGraphicsItem
{
public:
    explicit CabinetLayer(const LayoutScene *scene);

    QRectF boundingRect() const override;
    void paint(QPainter *painter, const QStyleOptionGraphicsItem *option, QWidget *widget) override;

private:
    class Pass;

    const LayoutScene *m_scene;
};

} // namespace wall

#endif // WALL_CABINETLAYER_H
