#ifndef WALL_CABINETPREVIEW_H
#define WALL_CABINETPREVIEW_H

#include "measures.h"

#include <QWidget>

namespace wall
{

/// A cabinet with a test picture, its measures and a scale. All models of a project are drawn to
/// the same scale, so that they can be compared.
class CabinetPreview : public QWidget
{
    Q_OBJECT

public:
    explicit CabinetPreview(QWidget *parent = nullptr);

    /// Shows a cabinet of \a model, at the scale at which one of \a largest millimetres fits.
    void setModel(const CabinetModel &model, const QSizeF &largest);
    /// Shows nothing.
    void clear();
    void setUnit(LengthUnit unit);
    /// How bright the test picture is, 0 to 100 percent.
    void setBrightness(int percent);
    /// Whether lines mark equal squares of pixels.
    void setGridShown(bool isShown);

    /// Where the cabinet is drawn, null for none.
    QRectF cabinetRect() const;
    /// How many pixels of the cabinet a square of the grid has on a side.
    int gridStep() const;

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    double scale() const;
    void drawPicture(QPainter &painter, const QRectF &cabinet) const;
    void drawGrid(QPainter &painter, const QRectF &cabinet) const;
    void drawMeasures(QPainter &painter, const QRectF &cabinet) const;
    void drawScale(QPainter &painter) const;

    CabinetModel m_model;
    QSizeF m_largest;
    LengthUnit m_unit = LengthUnit::Millimetre;
    int m_brightness = 80;
    bool m_isGridShown = true;
};

} // namespace wall

#endif // WALL_CABINETPREVIEW_H
