#ifndef WALL_PROJECT_H
#define WALL_PROJECT_H

#include "values.h"

#include <QObject>
#include <QSet>
#include <QStringList>

#include <map>

namespace wall
{

/// What the placed cabinets add up to.
struct Totals {
    int cabinets = 0;
    qint64 pixels = 0;
    double weight = 0.0; ///< In kilograms.
    double power = 0.0; ///< In watts.
};

/// A cabinet and its place in its port's data line, counted from 0.
struct LinePlace {
    PlacedCabinet cabinet;
    int index = 0;
};

struct CabinetPosition {
    CabinetId id = 0;
    QPoint position;
};

struct CabinetRotation {
    CabinetId id = 0;
    int rotation = 0;
};

/**
 * The open project: models, senders with their ports and stock, and the placed cabinets.
 *
 * Views read it and follow its signals. They change it by pushing commands (commands.h) on an undo
 * stack; the functions under "Changes" are what those commands do, and nothing else calls them.
 * Each of them takes any number of elements, brings everything up to date and only then emits each
 * signal that applies: an id list once, a port or a port and model once each. It costs as much as
 * what it changes and the data lines that this is part of, whatever the size of the project. A
 * change to what already is emits nothing.
 *
 * Pointers that queries return are valid until the next change and null for what does not exist.
 */
class Project : public QObject
{
    Q_OBJECT

public:
    /// An empty project.
    explicit Project(QObject *parent = nullptr);
    ~Project() override;

    // Everything
    /// What to save. The cabinets stand sender by sender, port by port, in line order.
    ProjectData data() const;
    QString name() const;

    // Models
    /// All models, in the project's order.
    QStringList modelIds() const;
    const CabinetModel *model(const QString &modelId) const;
    /// The placed cabinets of a model, in no particular order.
    CabinetIds cabinetsOfModel(const QString &modelId) const;

    // Senders and ports
    /// All senders, in the project's order.
    QStringList senderIds() const;
    const Sender *sender(const QString &senderId) const;
    /// A sender's place in the project's order, -1 for none.
    int senderIndex(const QString &senderId) const;
    const Port *port(const PortRef &port) const;
    /// The ports of a sender, in its order.
    QVector<PortRef> portsOf(const QString &senderId) const;

    // Placed cabinets
    /// How many are placed.
    int cabinetCount() const;
    const PlacedCabinet *cabinet(CabinetId id) const;
    /// All of them, in the order of data().
    CabinetIds cabinetIds() const;
    /// The upright rectangle that a cabinet covers, null for none. \see cabinetBounds()
    QRect boundsOf(CabinetId id) const;
    /// The cabinets of a port from the first to the last of its data line.
    CabinetIds line(const PortRef &port) const;
    /// How many cabinets of a model hang on a port, placed or not.
    int stockCount(const PortRef &port, const QString &modelId) const;
    /// How many of them are placed.
    int placedCount(const PortRef &port, const QString &modelId) const;
    /// How many of them are not placed yet.
    int leftCount(const PortRef &port, const QString &modelId) const;
    Totals totals() const;
    /// The upright rectangle around all placed cabinets, null without any.
    QRect bounds() const;
    /// An id that no cabinet of this project has had.
    CabinetId takeCabinetId();
    /// How many elements all changes so far have gone through, for those who measure the costs.
    qint64 workDone() const;

    // Changes
    /// Puts \a data, which has passed the checks of the project file, in the place of everything.
    void reset(const ProjectData &data);
    void setName(const QString &name);
    /// Inserts cabinets with their ids. An index counts in the line as it will be; those of one
    /// port ascend. What removeCabinets() returned can be inserted as it is.
    void insertCabinets(const QVector<LinePlace> &places);
    /// Removes cabinets and returns them with the places that they had, port by port.
    QVector<LinePlace> removeCabinets(const CabinetIds &ids);
    void setPositions(const QVector<CabinetPosition> &positions);
    void setRotations(const QVector<CabinetRotation> &rotations);
    /// Gives a data line a new order; \a ids are those of line().
    void setLine(const PortRef &port, const CabinetIds &ids);
    /// Replaces the model that has the id of \a model.
    void setModel(const CabinetModel &model);
    /// Inserts a sender at \a index of the project's order.
    void insertSender(int index, const Sender &sender);
    /// Removes a sender, of which no cabinet is placed.
    void removeSender(const QString &senderId);
    /// Sets what a sender is called, where it is found and whether it is there.
    void setSenderProperties(const QString &senderId, const QString &name,
                             const QString &connection, bool isOnline);
    /// Sets what hangs on a port, never less than is placed.
    void setStock(const PortRef &port, const QVector<StockEntry> &stock);

Q_SIGNALS:
    /// Everything is new; no other signal tells of it.
    void wasReset();
    void nameChanged();
    void cabinetsInserted(const wall::CabinetIds &ids);
    /// They are gone already; no query knows the ids any more.
    void cabinetsRemoved(const wall::CabinetIds &ids);
    /// Position or rotation changed.
    void cabinetsChanged(const wall::CabinetIds &ids);
    /// Cabinets came into the data line of \a port, left it or changed their order.
    void lineChanged(const wall::PortRef &port);
    /// How many of a model hang on \a port or are left on it changed, or the model came into its
    /// stock or left it. A new order of the stock is told for every model in it.
    void stockChanged(const wall::PortRef &port, const QString &modelId);
    /// Properties of a model changed, which all its cabinets show. \see cabinetsOfModel()
    void modelChanged(const QString &modelId);
    void senderInserted(const QString &senderId);
    void senderRemoved(const QString &senderId);
    /// Its name, connection or online state changed.
    void senderChanged(const QString &senderId);
    void totalsChanged();
    void boundsChanged();

private:
    struct ModelState {
        CabinetModel model;
        QSet<CabinetId> cabinets;
    };
    struct PortState {
        int index = 0; ///< In the sender's ports.
        CabinetIds line;
        QHash<QString, int> hanging;
        QHash<QString, int> placed;
    };
    /// Counts the edges of all cabinets, so that the outermost ones are at hand.
    struct Edges {
        std::map<int, int> left, top, right, bottom;
    };
    struct Change;

    void addPorts(const Sender &sender);
    void removePorts(const Sender &sender);
    void enter(const PlacedCabinet &cabinet);
    QRect boundsOf(const PlacedCabinet &cabinet) const;
    void addBounds(const QRect &bounds);
    void removeBounds(const QRect &bounds);
    void tell(const Change &change);

    QString m_name;
    QJsonObject m_extra;
    QStringList m_modelIds;
    QHash<QString, ModelState> m_models;
    QStringList m_senderIds;
    QHash<QString, Sender> m_senders;
    QHash<PortRef, PortState> m_ports;
    QHash<CabinetId, PlacedCabinet> m_cabinets;
    Edges m_edges;
    CabinetId m_lastCabinetId = 0;
    qint64 m_workDone = 0;
};

} // namespace wall

Q_DECLARE_TYPEINFO(wall::CabinetPosition, Q_MOVABLE_TYPE);
Q_DECLARE_TYPEINFO(wall::CabinetRotation, Q_MOVABLE_TYPE);

#endif // WALL_PROJECT_H
