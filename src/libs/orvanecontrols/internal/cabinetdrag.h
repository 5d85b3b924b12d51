#ifndef ORVANE_INTERNAL_CABINETDRAG_H
#define ORVANE_INTERNAL_CABINETDRAG_H

#include <QPoint>
#include <QString>

class QMimeData;
class QPixmap;
struct StructCabinet;

namespace orvane
{

/// The format under which a drag carries a cabinet record.
inline constexpr char cabinetMimeFormat[] = "CabinetInfo";
/// Where a drag picture hangs on the pointer.
inline constexpr QPoint dragHotSpot{15, 15};

/// The data of a cabinet drag, owned by the caller: the bytes of \a record as they lie in memory,
/// which only a receiver in the same process can copy back, while the record lives.
QMimeData *cabinetMimeData(const StructCabinet &record);
/// The picture of a cabinet drag.
QPixmap cabinetDragPicture();

/// The data of a sender drag, owned by the caller: \a text as plain text.
QMimeData *senderMimeData(const QString &text);
/// The picture of a sender drag, with \a text in it; \a hasData chooses the picture.
QPixmap senderDragPicture(const QString &text, bool hasData);

} // namespace orvane

#endif // ORVANE_INTERNAL_CABINETDRAG_H
