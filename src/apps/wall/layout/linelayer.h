#ifndef WALL_LINELAYER_H
#define WALL_LINELAYER_H

#include <QGraphicsItem>

namespace wall
{

class LayoutScene;
struct PortLine;

/// Draws the data lines of a scene: a path through the cabinets of a port, with a mark at its
/// start; nearer with arrows, and nearer still with the number of each cabinet.
class LineLayer : public QGraphicsItem
{
public:
    explicit LineLayer(const LayoutScene *scene);

    QRectF boundingRect() const override;
    void paint(QPainter *painter, const QStyleOptionGraphicsItem *option, QWidget *widget) override;

private:
    class Pass;

    const LayoutScene *m_scene;
};

} // namespace wall

#endif // WALL_LINELAYER_H
