#include "cabinetlayer.h"

#include "layout/layoutcolors.h"
#include "layout/layoutscene.h"

#include <QPainter>
#include <QStaticText>
#include <QStyleOptionGraphicsItem>

namespace wall
{

namespace
{

// Pixels of the screen.
constexpr double leastForGap = 5.0; ///< Side of a cabinet that shows a gap to the next.
constexpr double leastForOutline = 9.0; ///< Side of a selected cabinet that is drawn outlined.
constexpr double leastForMark = 18.0; ///< Side of a rotated cabinet that shows where its top is.
constexpr double leastForSmoothness = 6.0; ///< Side of a rotated cabinet whose edges are smooth.
constexpr double gap = 1.0;
constexpr double outlineWidth = 2.0;
constexpr double outlineReach = 2.0; ///< How far an outline may reach out of a cabinet.
constexpr double textPadding = 6.0;
constexpr double numberRoom = 10.0; ///< What the number in the middle of a cabinet takes upward.
constexpr double topMark = 5.0;
constexpr int selectedAlpha = 70;

} // namespace

QRectF wholeWall()
{
    // Half a million pixels more than what positions and sizes allow.
    constexpr double reach = maxCoordinate + 8.0 * maxCabinetLength;
    return QRectF(-reach, -reach, 2 * reach, 2 * reach);
}

/// One painting of some cabinets. It draws in pixels of the view: edges come to lie on whole pixels
/// of the screen, so that the gaps are even.
class CabinetLayer::Pass
{
public:
    Pass(const LayoutScene &scene, QPainter *painter, const QRectF &exposed)
        : m_scene(scene)
        , m_painter(painter)
        , m_toView(painter->worldTransform())
        , m_zoom(m_toView.m11())
        , m_pixelRatio(painter->device()->devicePixelRatioF())
    {
        const double reach = outlineReach / m_zoom;
        const CabinetIds ids = scene.cabinetsNear(exposed.adjusted(-reach, -reach, reach, reach));
        m_cabinets.reserve(ids.size());
        for (const CabinetId id : ids)
            m_cabinets.append({id, scene.shape(id)});
    }

    void paint()
    {
        m_painter->save();
        m_painter->setWorldTransform(QTransform());
        m_painter->setRenderHint(QPainter::Antialiasing, false);
        paintFills();
        paintTexts();
        paintSelected();
        m_painter->restore();
    }

private:
    struct Cabinet {
        CabinetId id;
        const CabinetShape *shape;
    };

    double aligned(double coordinate) const
    {
        return qRound(coordinate * m_pixelRatio) / m_pixelRatio;
    }

    QRectF viewRect(const CabinetShape &shape) const
    {
        const QPointF topLeft = m_toView.map(QPointF(shape.position));
        const QPointF bottomRight = m_toView.map(QPointF(shape.position.x() + shape.size.width(),
                                                         shape.position.y() + shape.size.height()));
        QRectF rect(QPointF(aligned(topLeft.x()), aligned(topLeft.y())),
                    QPointF(aligned(bottomRight.x()), aligned(bottomRight.y())));
        rect.setWidth(qMax(rect.width(), 1 / m_pixelRatio)); // none vanishes
        rect.setHeight(qMax(rect.height(), 1 / m_pixelRatio));
        return rect;
    }

    double shorterSide(const CabinetShape &shape) const
    {
        return qMin(shape.size.width(), shape.size.height()) * m_zoom;
    }

    QColor fillOf(const CabinetShape &shape) const
    {
        const PortLine &line = m_scene.lines().at(shape.line);
        QColor fill;
        switch (m_scene.viewMode()) {
        case ViewMode::ModelColors:
            fill = m_scene.models().at(shape.model).fill;
            break;
        case ViewMode::PortColors:
            fill = line.fill;
            break;
        case ViewMode::DataLines:
            fill = layoutcolors::cabinet;
            break;
        }
        return m_scene.isProminent(line) ? fill : layoutcolors::dimmed(fill);
    }

    // Neighbours in the order of ids mostly have one colour and are drawn at once. A run ends with
    // its colour, so that cabinets that overlap keep their order.
    void paintFills()
    {
        m_painter->setPen(Qt::NoPen);
        QVector<QRectF> run;
        const CabinetShape *runShape = nullptr; // the last one in the run
        const auto paintRun = [&] {
            if (run.isEmpty())
                return;
            m_painter->setBrush(fillOf(*runShape));
            m_painter->drawRects(run);
            run.clear();
        };
        for (const Cabinet &cabinet : qAsConst(m_cabinets)) {
            const CabinetShape &shape = *cabinet.shape;
            if (shape.rotation != 0) {
                paintRun();
                paintRotated(shape);
                continue;
            }
            if (runShape && (runShape->model != shape.model || runShape->line != shape.line))
                paintRun();
            QRectF rect = viewRect(shape);
            if (qMin(rect.width(), rect.height()) >= leastForGap)
                rect.adjust(0, 0, -gap, -gap);
            run.append(rect);
            runShape = &shape;
        }
        paintRun();
    }

    void paintRotated(const CabinetShape &shape)
    {
        const QColor fill = fillOf(shape);
        const QPolygonF outline = m_toView.map(shape.outline());
        m_painter->setRenderHint(QPainter::Antialiasing, shorterSide(shape) >= leastForSmoothness);
        m_painter->setBrush(fill);
        m_painter->drawConvexPolygon(outline);
        if (shorterSide(shape) >= leastForMark) {
            // A triangle that stands in the middle of the edge that was the upper one.
            const QPointF across = (outline.at(1) - outline.at(0));
            const QPointF down = (outline.at(3) - outline.at(0));
            const QPointF middle = outline.at(0) + across / 2;
            const QPointF half = across * (topMark / (shape.size.width() * m_zoom));
            const QPointF tip = down * (topMark * 1.6 / (shape.size.height() * m_zoom));
            m_painter->setBrush(layoutcolors::quietText);
            m_painter->drawConvexPolygon(
                QPolygonF({middle, middle + half + tip, middle - half + tip}));
        }
        m_painter->setRenderHint(QPainter::Antialiasing, false);
    }

    /// What is written on all cabinets of a model, laid out once.
    struct Label {
        bool isShown = false;
        bool hasSize = false;
        QStaticText name;
        QStaticText size;
    };

    Label labelOf(const ModelLook &model) const
    {
        Label label;
        const QFontMetricsF metrics(m_painter->font());
        const double width = model.size.width() * m_zoom - 2 * textPadding;
        const double height = model.size.height() * m_zoom / 2 - textPadding - numberRoom;
        const QString size =
            QStringLiteral("%1 × %2").arg(model.size.width()).arg(model.size.height());
        const auto fits = [&](const QString &text, int line) {
            return metrics.horizontalAdvance(text) <= width && line * metrics.height() <= height;
        };
        const auto laidOut = [this](const QString &text) {
            QStaticText staticText(text);
            staticText.setTextFormat(Qt::PlainText);
            staticText.setPerformanceHint(QStaticText::AggressiveCaching);
            staticText.prepare(QTransform(), m_painter->font());
            return staticText;
        };
        label.isShown = fits(model.name, 1);
        label.hasSize = label.isShown && fits(size, 2);
        label.name = laidOut(model.name);
        label.size = laidOut(size);
        return label;
    }

    void paintTexts()
    {
        QVector<Label> labels;
        bool isAnyShown = false;
        for (const ModelLook &model : m_scene.models()) {
            labels.append(labelOf(model));
            isAnyShown = isAnyShown || labels.constLast().isShown;
        }
        if (!isAnyShown)
            return;
        for (const Cabinet &cabinet : qAsConst(m_cabinets)) {
            const CabinetShape &shape = *cabinet.shape;
            const Label &label = labels.at(shape.model);
            if (!label.isShown)
                continue;
            const QRectF rect = viewRect(shape);
            if (shape.rotation == 0) {
                paintLabel(shape, label, rect.topLeft());
                continue;
            }
            m_painter->save();
            m_painter->translate(rect.center());
            m_painter->rotate(shape.rotation);
            paintLabel(shape, label, rect.topLeft() - rect.center());
            m_painter->restore();
        }
    }

    void paintLabel(const CabinetShape &shape, const Label &label, QPointF corner)
    {
        const bool isProminent = m_scene.isProminent(m_scene.lines().at(shape.line));
        const auto pen = [isProminent](const QColor &color) {
            return isProminent ? color : layoutcolors::dimmed(color);
        };
        const QPointF place = corner + QPointF(textPadding, textPadding);
        m_painter->setPen(pen(layoutcolors::text));
        m_painter->drawStaticText(place, label.name);
        if (label.hasSize) {
            m_painter->setPen(pen(layoutcolors::quietText));
            m_painter->drawStaticText(place + QPointF(0, label.name.size().height()), label.size);
        }
    }

    void paintSelected()
    {
        QColor veil = layoutcolors::accent;
        veil.setAlpha(selectedAlpha);
        QVector<QRectF> areas;
        QVector<QRectF> edges;
        QVector<QRectF> solid;
        for (const Cabinet &cabinet : qAsConst(m_cabinets)) {
            if (!m_scene.isSelected(cabinet.id))
                continue;
            const CabinetShape &shape = *cabinet.shape;
            if (shape.rotation != 0) {
                m_painter->setRenderHint(QPainter::Antialiasing);
                m_painter->setPen(QPen(layoutcolors::accent, outlineWidth));
                m_painter->setBrush(veil);
                m_painter->drawConvexPolygon(m_toView.map(shape.outline()));
                m_painter->setRenderHint(QPainter::Antialiasing, false);
                continue;
            }
            const QRectF rect = viewRect(shape).adjusted(0, 0, -gap, -gap);
            if (qMin(rect.width(), rect.height()) < leastForOutline) {
                solid.append(viewRect(shape));
                continue;
            }
            areas.append(rect);
            edges.append(QRectF(rect.left(), rect.top(), rect.width(), outlineWidth));
            edges.append(
                QRectF(rect.left(), rect.bottom() - outlineWidth, rect.width(), outlineWidth));
            edges.append(QRectF(rect.left(), rect.top(), outlineWidth, rect.height()));
            edges.append(
                QRectF(rect.right() - outlineWidth, rect.top(), outlineWidth, rect.height()));
        }
        m_painter->setPen(Qt::NoPen);
        m_painter->setBrush(veil);
        m_painter->drawRects(areas);
        m_painter->setBrush(layoutcolors::accent);
        m_painter->drawRects(edges);
        m_painter->drawRects(solid);
    }

    const LayoutScene &m_scene;
    QPainter *m_painter;
    QTransform m_toView;
    double m_zoom;
    double m_pixelRatio;
    QVector<Cabinet> m_cabinets;
};

CabinetLayer::CabinetLayer(const LayoutScene *scene)
    : m_scene(scene)
{
    setFlag(ItemUsesExtendedStyleOption); // tells what is exposed
}

QRectF CabinetLayer::boundingRect() const
{
    return wholeWall();
}

void CabinetLayer::paint(QPainter *painter, const QStyleOptionGraphicsItem *option, QWidget *)
{
    Pass(*m_scene, painter, option->exposedRect).paint();
}

} // namespace wall
