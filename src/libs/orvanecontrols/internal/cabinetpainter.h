#ifndef ORVANE_INTERNAL_CABINETPAINTER_H
#define ORVANE_INTERNAL_CABINETPAINTER_H

#include <QColor>
#include <QFont>
#include <QRect>
#include <QSize>
#include <QString>

class QPainter;

namespace orvane
{

/// What the rectangle of a cabinet is filled with.
inline constexpr QRgb cabinetFill = qRgb(183, 187, 194);

/// What a cabinet button paints on its ground.
struct CabinetFace {
    bool isModel = false;
    QSize area; ///< Of the button.
    int bandHeight; ///< Of the band at the bottom that the size's text lies in.
    QRect rectangle; ///< Has the count in its middle.
    QSize size; ///< In the model's pixels; without one of its sides there is no rectangle.
    int count = 0;
    bool hasCount = false;
    QFont font; ///< The button's.
};

/// A size as cabinets show it.
QString cabinetSizeText(QSize size);

/// Paints \a face, at the same place as the button, whose ground has been painted.
///
/// To lay out and measure the texts costs several times as much as all the rest of a cabinet. So
/// what has been painted on an even ground, as the cabinet's sheet makes it, is kept as a picture
/// with the ground in it, and copied to where a cabinet looks the same. On any other ground each
/// cabinet is painted.
void paintCabinet(QPainter &painter, const CabinetFace &face);

} // namespace orvane

#endif // ORVANE_INTERNAL_CABINETPAINTER_H
