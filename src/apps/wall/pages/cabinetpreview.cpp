#include "cabinetpreview.h"

#include "look.h"

#include <QPainter>

#include <cmath>

namespace wall
{

namespace
{

constexpr int border = 11 * look::unit; ///< Room for the measures around the largest cabinet.
constexpr int measureGap = 4 * look::unit;
constexpr int tickLength = look::unit;
constexpr double leastSquare = 8.0; ///< Of the grid on the screen.

/// The greatest of 1, 2, 5, 10, 20, 50, ... that is not above \a limit.
double roundLength(double limit)
{
    const double power = std::pow(10.0, std::floor(std::log10(limit)));
    for (const double step : {5.0, 2.0}) {
        if (step * power <= limit)
            return step * power;
    }
    return power;
}

} // namespace

CabinetPreview::CabinetPreview(QWidget *parent)
    : QWidget(parent)
{
    setMinimumSize(60 * look::unit, 50 * look::unit);
    setAccessibleName(tr("Cabinet to scale"));
}

void CabinetPreview::setModel(const CabinetModel &model, const QSizeF &largest)
{
    m_model = model;
    m_largest = largest;
    update();
}

void CabinetPreview::clear()
{
    setModel(CabinetModel(), QSizeF());
}

void CabinetPreview::setUnit(LengthUnit unit)
{
    m_unit = unit;
    update();
}

void CabinetPreview::setBrightness(int percent)
{
    m_brightness = qBound(0, percent, 100);
    update();
}

void CabinetPreview::setGridShown(bool isShown)
{
    m_isGridShown = isShown;
    update();
}

double CabinetPreview::scale() const
{
    return qMin((width() - 2 * border) / m_largest.width(),
                (height() - 2 * border) / m_largest.height());
}

QRectF CabinetPreview::cabinetRect() const
{
    if (m_largest.isEmpty())
        return {};
    QRectF cabinet(QPointF(), cabinetMeasures(m_model) * scale());
    cabinet.moveCenter(QRectF(rect()).center());
    return cabinet;
}

int CabinetPreview::gridStep() const
{
    int step = 1;
    const double pixel = m_model.pitch * scale();
    while (step * pixel < leastSquare && step < maxCabinetLength)
        step *= 2;
    return step;
}

void CabinetPreview::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.fillRect(rect(), look::well);
    const QRectF cabinet = cabinetRect();
    if (cabinet.isNull())
        return;
    drawPicture(painter, cabinet);
    if (m_isGridShown)
        drawGrid(painter, cabinet);
    painter.setPen(look::quietText);
    painter.drawRect(cabinet);
    drawMeasures(painter, cabinet);
    drawScale(painter);
}

void CabinetPreview::drawPicture(QPainter &painter, const QRectF &cabinet) const
{
    const QColor bars[] = {QColor(235, 235, 235), QColor(225, 215, 60), QColor(60, 205, 215),
                           QColor(70, 200, 80),   QColor(205, 70, 195), QColor(215, 60, 55),
                           QColor(60, 90, 215),   QColor(40, 40, 40)};
    const double barWidth = cabinet.width() / double(std::size(bars));
    double left = cabinet.left();
    for (const QColor &bar : bars) {
        const QColor dimmed(bar.red() * m_brightness / 100, bar.green() * m_brightness / 100,
                            bar.blue() * m_brightness / 100);
        painter.fillRect(QRectF(left, cabinet.top(), barWidth, cabinet.height()), dimmed);
        left += barWidth;
    }
}

void CabinetPreview::drawGrid(QPainter &painter, const QRectF &cabinet) const
{
    const double square = gridStep() * m_model.pitch * scale();
    painter.setPen(QColor(0, 0, 0, 90));
    for (double x = cabinet.left() + square; x < cabinet.right(); x += square)
        painter.drawLine(QLineF(x, cabinet.top(), x, cabinet.bottom()));
    for (double y = cabinet.top() + square; y < cabinet.bottom(); y += square)
        painter.drawLine(QLineF(cabinet.left(), y, cabinet.right(), y));
}

void CabinetPreview::drawMeasures(QPainter &painter, const QRectF &cabinet) const
{
    const QSizeF measures = cabinetMeasures(m_model);
    painter.setPen(look::text);

    const double y = cabinet.top() - measureGap;
    painter.drawLine(QLineF(cabinet.left(), y, cabinet.right(), y));
    for (const double x : {cabinet.left(), cabinet.right()})
        painter.drawLine(QLineF(x, y - tickLength, x, y + tickLength));
    const int textHeight = fontMetrics().height();
    painter.drawText(QRectF(0, y - textHeight - look::unit, width(), textHeight),
                     Qt::AlignHCenter | Qt::AlignBottom, lengthText(measures.width(), m_unit));

    const double x = cabinet.left() - measureGap;
    painter.drawLine(QLineF(x, cabinet.top(), x, cabinet.bottom()));
    for (const double tick : {cabinet.top(), cabinet.bottom()})
        painter.drawLine(QLineF(x - tickLength, tick, x + tickLength, tick));
    painter.save();
    painter.translate(x - textHeight - look::unit, cabinet.center().y());
    painter.rotate(-90);
    painter.drawText(QRectF(-height() / 2.0, 0, height(), textHeight),
                     Qt::AlignHCenter | Qt::AlignTop, lengthText(measures.height(), m_unit));
    painter.restore();
}

void CabinetPreview::drawScale(QPainter &painter) const
{
    const double unitLength = m_unit == LengthUnit::Millimetre ? 1.0 : millimetresPerInch;
    const double length = roundLength(width() / scale() / unitLength / 4);
    const double shown = length * unitLength * scale();
    const QPointF left(look::margin, height() - look::margin);
    painter.setPen(QPen(look::quietText, 2));
    painter.drawLine(left, left + QPointF(shown, 0));
    QString text = QString::number(length)
        + (m_unit == LengthUnit::Millimetre ? QStringLiteral(" mm") : QStringLiteral(" in"));
    if (m_isGridShown)
        text += tr("; squares of %1 × %1 pixels").arg(gridStep());
    painter.drawText(left - QPointF(0, look::gap), text);
}

} // namespace wall
