#ifndef WALL_MEASURES_H
#define WALL_MEASURES_H

#include "model/project.h"

#include <QSizeF>
#include <QString>

/// Numbers as the pages show them: English, digits in groups of three, each with its unit.
namespace wall
{

enum class LengthUnit { Millimetre, Inch };

constexpr double millimetresPerInch = 25.4;

/// How large a cabinet of \a model is, in millimetres.
QSizeF cabinetMeasures(const CabinetModel &model);
/// "499.2 mm", or "19.65 in".
QString lengthText(double millimetres, LengthUnit unit);
/// "499.2 × 499.2 mm".
QString areaText(const QSizeF &millimetres, LengthUnit unit);
QString countText(qint64 count);
QString weightText(double kilograms);
QString powerText(double watts);

/// What the placed cabinets of some models add up to.
Totals totalsOfModels(const Project &project, const QStringList &modelIds);

} // namespace wall

#endif // WALL_MEASURES_H
