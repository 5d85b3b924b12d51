#ifndef WALL_SELECTION_H
#define WALL_SELECTION_H

#include "model/project.h"

#include <QObject>

namespace wall
{

/// What the user works on: the selected cabinets, and the port that clicked models go to. All
/// views of a window share it. What leaves the project leaves the selection.
class Selection : public QObject
{
    Q_OBJECT

public:
    explicit Selection(Project *project, QObject *parent = nullptr);

    /// The selected cabinets, each once, in no particular order.
    CabinetIds cabinets() const;
    bool isEmpty() const;
    bool contains(CabinetId id) const;
    /// Selects these and no others; unknown ones are left out.
    void setCabinets(const CabinetIds &ids);
    void clear();

    /// The port whose row is pressed; number 0 for none.
    PortRef port() const;
    void setPort(const PortRef &port);

Q_SIGNALS:
    void cabinetsChanged();
    void portChanged();

private:
    void dropUnknown();

    Project *m_project;
    QSet<CabinetId> m_cabinets;
    PortRef m_port;
};

} // namespace wall

#endif // WALL_SELECTION_H
