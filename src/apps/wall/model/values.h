#ifndef WALL_VALUES_H
#define WALL_VALUES_H

#include <QHash>
#include <QJsonObject>
#include <QMetaType>
#include <QPoint>
#include <QPolygonF>
#include <QRect>
#include <QSize>
#include <QString>
#include <QVector>

/// The configurator's model: what a wall consists of, without any view of it. All lengths are
/// pixels of the wall unless a name says otherwise. Every value keeps the members of its project
/// file object that this program does not know in `extra`, so that they are written back.
namespace wall
{

// What is possible. The project file and the checks of the commands go by these.
constexpr int minCabinetLength = 1;
constexpr int maxCabinetLength = 65536;
constexpr int minPortNumber = 1;
constexpr int maxPortNumber = 16;
constexpr int maxCoordinate = 16777216; ///< Positions lie from minus this to this.
constexpr int maxStock = 1000000; ///< Of one model on one port.
constexpr int maxCabinets = 1000000; ///< Placed in one project.
constexpr double maxPitch = 1000.0; ///< Millimetres; a pitch is greater than 0.
constexpr double maxWeight = 100000.0; ///< Kilograms.
constexpr double maxPower = 1000000.0; ///< Watts.
constexpr double maxVoltage = 100000.0; ///< Volts.

/// A kind of cabinet.
struct CabinetModel {
    QString id; ///< Unique in the project and not empty; cabinets and stock refer to it.
    QString family; ///< The series that the model belongs to.
    QString name;
    QSize size = QSize(1, 1); ///< In pixels of the wall.
    double pitch = 1.0; ///< Distance of two pixels in millimetres.
    double weight = 0.0; ///< In kilograms.
    double power = 0.0; ///< In watts.
    double voltage = 0.0; ///< In volts.
    QJsonObject extra;
};

/// How a port is connected.
enum class PortKind { Network, Coaxial };

/// Cabinets of one model that hang on a port, placed or not.
struct StockEntry {
    QString modelId;
    int count = 0; ///< All of them; Project::leftCount() tells how many are not placed.
    QJsonObject extra;
};

/// One output of a sender.
struct Port {
    int number = minPortNumber; ///< 1 to 16, unique in its sender.
    PortKind kind = PortKind::Network;
    QVector<StockEntry> stock; ///< In the order of the row of cabinets, each model once.
    QJsonObject extra;
};

/// A device that feeds the wall.
struct Sender {
    QString id; ///< Unique in the project and not empty.
    QString name;
    QString connection; ///< Where it is found, such as "COM3".
    bool isOnline = true;
    QVector<Port> ports;
    QJsonObject extra;
};

/// Names one port of a project.
struct PortRef {
    QString senderId;
    int number = 0;
};

/// Names a placed cabinet as long as the program runs; 0 names none. Ids are not saved. A cabinet
/// that an undo brings back has the id that it had.
using CabinetId = int;
using CabinetIds = QVector<CabinetId>;

/// A cabinet on the wall.
struct PlacedCabinet {
    CabinetId id = 0;
    QString modelId;
    PortRef port; ///< Whose data line it is part of.
    QPoint position; ///< Top left of the cabinet before it is rotated.
    int rotation = 0; ///< Degrees clockwise around its centre, 0 to 359.
    QJsonObject extra;
};

/// A project as a plain value: what a file holds. The cabinets of a port stand in the order of its
/// data line; those of different ports may be mixed. Their ids are 0.
struct ProjectData {
    QString name;
    QVector<CabinetModel> models;
    QVector<Sender> senders;
    QVector<PlacedCabinet> cabinets;
    QJsonObject extra;
};

bool operator==(const CabinetModel &a, const CabinetModel &b);
bool operator==(const StockEntry &a, const StockEntry &b);
bool operator==(const Port &a, const Port &b);
bool operator==(const Sender &a, const Sender &b);
bool operator==(const PortRef &a, const PortRef &b);
bool operator==(const PlacedCabinet &a, const PlacedCabinet &b);
bool operator==(const ProjectData &a, const ProjectData &b);
inline bool operator!=(const CabinetModel &a, const CabinetModel &b)
{
    return !(a == b);
}
inline bool operator!=(const PortRef &a, const PortRef &b)
{
    return !(a == b);
}
inline bool operator!=(const PlacedCabinet &a, const PlacedCabinet &b)
{
    return !(a == b);
}
uint qHash(const PortRef &port, uint seed = 0);

/// \a degrees brought into 0 to 359: 360 is 0, -1 is 359.
int normalizedRotation(int degrees);
/// The four corners of a cabinet of \a size at \a position, rotated; the first is the one that was
/// at the top left.
QPolygonF cabinetOutline(QPoint position, QSize size, int rotation);
/// The smallest upright rectangle of whole pixels around that outline.
QRect cabinetBounds(QPoint position, QSize size, int rotation);

} // namespace wall

Q_DECLARE_METATYPE(wall::PortRef)

#endif // WALL_VALUES_H
