#ifndef WALL_CABINETRECORD_H
#define WALL_CABINETRECORD_H

#include "values.h"

#include <structcabinet.h>

#include <optional>

/// The records by which the library's panels know cabinets. This program uses their extra fields
/// so:
/// - extraText1 the model's name, extraText2 its family, extraText3 its id
/// - extraText4 the sender's id, extraValue1 the port's number
///
/// The weight is in whole kilograms, rounded; the pitch in hundredths of a millimetre. The drawing
/// size is the model's size scaled to 50 pixels at its longer side, at least 1. The other extra
/// fields are 0.
namespace wall
{

/// The record of a model of which \a left cabinets are left on a port. A model on the controller
/// board belongs to no port: its sender is empty and its port 0.
StructCabinet cabinetRecord(const CabinetModel &model, const QString &senderId, int portNumber,
                            int left);

/// What a record stands for.
struct RecordMeaning {
    QString modelId;
    PortRef port; ///< Empty with number 0 for a model on the controller board.
};

/// The model and port that cabinetRecord() put into a record; nothing if it made no such record.
std::optional<RecordMeaning> recordMeaning(const StructCabinet &record);

} // namespace wall

#endif // WALL_CABINETRECORD_H
