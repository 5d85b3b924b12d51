#include "measures.h"

#include <QLocale>

namespace wall
{

namespace
{

QString numberText(double number, int decimals)
{
    static const QLocale english(QLocale::English, QLocale::UnitedStates);
    return english.toString(number, 'f', decimals);
}

QString lengthNumber(double millimetres, LengthUnit unit)
{
    return unit == LengthUnit::Millimetre ? numberText(millimetres, 1)
                                          : numberText(millimetres / millimetresPerInch, 2);
}

QString unitName(LengthUnit unit)
{
    return unit == LengthUnit::Millimetre ? QStringLiteral(" mm") : QStringLiteral(" in");
}

} // namespace

QSizeF cabinetMeasures(const CabinetModel &model)
{
    return QSizeF(model.size) * model.pitch;
}

QString lengthText(double millimetres, LengthUnit unit)
{
    return lengthNumber(millimetres, unit) + unitName(unit);
}

QString areaText(const QSizeF &millimetres, LengthUnit unit)
{
    return lengthNumber(millimetres.width(), unit) + QStringLiteral(" × ")
        + lengthText(millimetres.height(), unit);
}

QString countText(qint64 count)
{
    return numberText(double(count), 0);
}

QString weightText(double kilograms)
{
    return numberText(kilograms, 1) + QStringLiteral(" kg");
}

QString powerText(double watts)
{
    return numberText(watts, 0) + QStringLiteral(" W");
}

Totals totalsOfModels(const Project &project, const QStringList &modelIds)
{
    Totals totals;
    for (const QString &modelId : modelIds) {
        const CabinetModel *model = project.model(modelId);
        const int count = project.cabinetsOfModel(modelId).size();
        totals.cabinets += count;
        totals.pixels += qint64(count) * model->size.width() * model->size.height();
        totals.weight += count * model->weight;
        totals.power += count * model->power;
    }
    return totals;
}

} // namespace wall
