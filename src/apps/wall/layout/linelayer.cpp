#include "linelayer.h"

#include "layout/cabinetlayer.h"
#include "layout/layoutcolors.h"
#include "layout/layoutscene.h"

#include <QLineF>
#include <QPainter>
#include <QStyleOptionGraphicsItem>

#include <cmath>

namespace wall
{

namespace
{

// How far two cabinets lie apart on the screen, in pixels, for what is drawn of their line.
constexpr double leastForSmoothness = 9.0;
constexpr double leastForArrows = 26.0;
constexpr double leastForNumbers = 44.0;

// Pixels of the screen.
constexpr double markReach = 16.0;
constexpr double thinWidth = 1.0;
constexpr double lineWidth = 2.0;
constexpr double currentWidth = 3.0;
constexpr double arrowLength = 7.0;
constexpr double arrowHalfWidth = 4.0;
constexpr double badgeHeight = 18.0;
constexpr double badgePadding = 5.0;
constexpr double dotRadius = 4.0;

} // namespace

/// One painting of some lines, in pixels of the view.
class LineLayer::Pass
{
public:
    Pass(const LayoutScene &scene, QPainter *painter, const QRectF &exposed)
        : m_scene(scene)
        , m_painter(painter)
        , m_toView(painter->worldTransform())
        , m_zoom(m_toView.m11())
    {
        const double reach = markReach / m_zoom;
        m_exposed = exposed.adjusted(-reach, -reach, reach, reach);
        m_exposedInView = m_toView.mapRect(m_exposed);
    }

    void paint()
    {
        m_painter->save();
        m_painter->setWorldTransform(QTransform());
        QFont font = m_painter->font();
        font.setWeight(QFont::DemiBold);
        m_painter->setFont(font);
        const PortLine *current = m_scene.lineOf(m_scene.currentPort());
        if (isAllShown()) {
            for (const PortLine &line : m_scene.lines()) {
                if (&line != current)
                    paintLine(line, lineWidth);
            }
        }
        // The current one lies above the others.
        if (current && (m_scene.isPicking() || display() != LineDisplay::None))
            paintLine(*current, currentWidth);
        m_painter->restore();
    }

private:
    LineDisplay display() const
    {
        const bool isHidden = m_scene.lineDisplay() == LineDisplay::None;
        return isHidden && m_scene.viewMode() == ViewMode::DataLines ? LineDisplay::AllPorts
                                                                     : m_scene.lineDisplay();
    }

    bool isAllShown() const { return display() == LineDisplay::AllPorts; }

    bool isExposed(const PortLine &line) const
    {
        // Not QRectF::intersects(): a straight line has no area.
        return !line.points.isEmpty() && line.bounds.left() <= m_exposed.right()
            && line.bounds.right() >= m_exposed.left() && line.bounds.top() <= m_exposed.bottom()
            && line.bounds.bottom() >= m_exposed.top();
    }

    /// How far its cabinets lie apart on the screen, on average.
    double spacingOf(const PortLine &line) const
    {
        if (line.points.size() == 1) {
            const QSize size = m_scene.shape(line.cabinets.constFirst())->size;
            return qMin(size.width(), size.height()) * m_zoom;
        }
        double length = 0;
        for (int i = 1; i < line.points.size(); ++i)
            length += (line.points.at(i) - line.points.at(i - 1)).manhattanLength();
        return length / (line.points.size() - 1) * m_zoom;
    }

    void paintLine(const PortLine &line, double width)
    {
        if (!isExposed(line))
            return;
        const bool isProminent = m_scene.isProminent(line);
        const QColor color = isProminent ? line.color : layoutcolors::dimmed(line.color);
        const double spacing = spacingOf(line);
        const QPolygonF path = m_toView.map(QPolygonF(line.points));
        if (m_scene.isPicking() && line.port == m_scene.currentPort()) {
            paintPath(path, layoutcolors::dimmed(color), lineWidth, spacing);
            paintPicked(color, spacing);
            return;
        }
        paintPath(path, color, width, spacing);
        if (isProminent && spacing >= leastForNumbers)
            paintNumbers(path, color);
        else
            paintStart(path.constFirst(), color, spacing);
    }

    void paintPicked(const QColor &color, double spacing)
    {
        const CabinetIds picked = m_scene.pickedOrder();
        QPolygonF path;
        for (const CabinetId id : picked)
            path.append(m_toView.map(m_scene.shape(id)->center()));
        if (path.isEmpty())
            return;
        paintPath(path, color, currentWidth, qMax(spacing, leastForSmoothness));
        paintNumbers(path, color); // at every zoom: they tell what has been picked
    }

    void paintPath(const QPolygonF &path, const QColor &color, double width, double spacing)
    {
        const bool isSmooth = spacing >= leastForSmoothness;
        m_painter->setRenderHint(QPainter::Antialiasing, isSmooth);
        m_painter->setPen(
            QPen(color, isSmooth ? width : thinWidth, Qt::SolidLine, Qt::FlatCap, Qt::BevelJoin));
        m_painter->setBrush(Qt::NoBrush);
        m_painter->drawPolyline(path);
        if (spacing >= leastForArrows)
            paintArrows(path, color);
    }

    void paintArrows(const QPolygonF &path, const QColor &color)
    {
        m_painter->setPen(Qt::NoPen);
        m_painter->setBrush(color);
        for (int i = 1; i < path.size(); ++i) {
            const QLineF step(path.at(i - 1), path.at(i));
            const QPointF middle = step.center();
            if (!m_exposedInView.contains(middle) || step.length() < 2 * arrowLength)
                continue;
            const QPointF along = (step.p2() - step.p1()) / step.length();
            const QPointF across(-along.y(), along.x());
            const QPointF back = middle - along * (arrowLength / 2);
            m_painter->drawConvexPolygon(
                QPolygonF({middle + along * (arrowLength / 2), back + across * arrowHalfWidth,
                           back - across * arrowHalfWidth}));
        }
    }

    void paintStart(QPointF place, const QColor &color, double spacing)
    {
        const bool isFar = spacing < leastForSmoothness;
        const double radius = isFar ? dotRadius / 2 : dotRadius;
        m_painter->setRenderHint(QPainter::Antialiasing, !isFar);
        m_painter->setPen(isFar ? QPen(Qt::NoPen) : QPen(layoutcolors::ground, 1));
        m_painter->setBrush(color);
        if (isFar)
            m_painter->drawRect(
                QRectF(place.x() - radius, place.y() - radius, 2 * radius, 2 * radius));
        else
            m_painter->drawEllipse(place, radius, radius);
    }

    /// The number of every cabinet; that of the first is filled.
    void paintNumbers(const QPolygonF &path, const QColor &color)
    {
        m_painter->setRenderHint(QPainter::Antialiasing);
        const QFontMetricsF metrics(m_painter->font());
        for (int i = 0; i < path.size(); ++i) {
            if (!m_exposedInView.contains(path.at(i)))
                continue;
            const QString number = QString::number(i + 1);
            const double width =
                qMax(badgeHeight, metrics.horizontalAdvance(number) + 2 * badgePadding);
            QRectF badge(0, 0, width, badgeHeight);
            badge.moveCenter(path.at(i));
            const bool isFirst = i == 0;
            m_painter->setPen(QPen(color, 1));
            m_painter->setBrush(isFirst ? color : layoutcolors::ground);
            m_painter->drawRoundedRect(badge, badgeHeight / 2, badgeHeight / 2);
            m_painter->setPen(isFirst ? layoutcolors::ground : color);
            m_painter->drawText(badge, Qt::AlignCenter, number);
        }
    }

    const LayoutScene &m_scene;
    QPainter *m_painter;
    QTransform m_toView;
    double m_zoom;
    QRectF m_exposed;
    QRectF m_exposedInView;
};

LineLayer::LineLayer(const LayoutScene *scene)
    : m_scene(scene)
{
    setFlag(ItemUsesExtendedStyleOption); // tells what is exposed
}

QRectF LineLayer::boundingRect() const
{
    return wholeWall();
}

void LineLayer::paint(QPainter *painter, const QStyleOptionGraphicsItem *option, QWidget *)
{
    Pass(*m_scene, painter, option->exposedRect).paint();
}

} // namespace wall
