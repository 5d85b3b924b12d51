#include "cabinetrecord.h"

#include <QtMath>

namespace wall
{

namespace
{

constexpr int drawnLength = 50;
constexpr double pitchUnits = 100.0; ///< In a millimetre.

} // namespace

StructCabinet cabinetRecord(const CabinetModel &model, const QString &senderId, int portNumber,
                            int left)
{
    const QSize drawn =
        model.size.scaled(drawnLength, drawnLength, Qt::KeepAspectRatio).expandedTo(QSize(1, 1));
    StructCabinet record{};
    record.cabinetSize = model.size;
    record.cabinetCount = left;
    record.extraText1 = model.name;
    record.extraText2 = model.family;
    record.extraText3 = model.id;
    record.extraText4 = senderId;
    record.extraValue1 = portNumber;
    record.cabinetweight = qRound(model.weight);
    record.cabinetpower = float(model.power);
    record.cabinetVoltage = float(model.voltage);
    record.cabinetuisize = drawn.width();
    record.cabinetuiHsize = drawn.height();
    record.cabinetPointspace = qRound(model.pitch * pitchUnits);
    return record;
}

std::optional<RecordMeaning> recordMeaning(const StructCabinet &record)
{
    const bool isModelOnly = record.extraText4.isEmpty() && record.extraValue1 == 0;
    const bool isOnPort = !record.extraText4.isEmpty() && record.extraValue1 >= minPortNumber
        && record.extraValue1 <= maxPortNumber;
    if (record.extraText3.isEmpty() || !(isModelOnly || isOnPort))
        return std::nullopt;
    return RecordMeaning{record.extraText3, {record.extraText4, record.extraValue1}};
}

} // namespace wall
