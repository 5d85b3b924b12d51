#ifndef ORVANE_TESTS_WALLSAMPLES_H
#define ORVANE_TESTS_WALLSAMPLES_H

#include <model/project.h>

#include <QStringList>

/// Small walls and what they tell, for the tests of the wall configurator's model.
namespace wallsamples
{

inline wall::PlacedCabinet cabinet(const QString &modelId, const wall::PortRef &port, QPoint at,
                                   int rotation = 0)
{
    wall::PlacedCabinet cabinet;
    cabinet.modelId = modelId;
    cabinet.port = port;
    cabinet.position = at;
    cabinet.rotation = rotation;
    return cabinet;
}

/// Port 1 of s1: three "a" of which two are placed, two "b" of which one is. Port 2 of s1: one "a".
/// Port 16 of s2, which is offline: four "b" of which one is placed.
inline wall::ProjectData smallWall()
{
    using namespace wall;
    ProjectData data;
    data.name = "Small";
    data.models = {{"a", "Fam", "Model A", QSize(100, 50), 2.5, 2.5, 10.25, 230, {}},
                   {"b", "Fam", "Model B", QSize(64, 64), 3.9, 0.1, 0.2, 110, {}}};
    const Port one{1, PortKind::Network, {{"a", 3, {}}, {"b", 2, {}}}, {}};
    const Port two{2, PortKind::Coaxial, {{"a", 1, {}}}, {}};
    const Port sixteen{16, PortKind::Network, {{"b", 4, {}}}, {}};
    data.senders = {{"s1", "Left", "COM3", true, {one, two}, {}},
                    {"s2", "Right", "COM4", false, {sixteen}, {}}};
    data.cabinets = {cabinet("a", {"s1", 1}, {0, 0}), cabinet("b", {"s1", 1}, {100, 0}),
                     cabinet("a", {"s1", 1}, {200, 0}, 90), cabinet("b", {"s2", 16}, {-64, 10})};
    return data;
}

inline QString text(const wall::CabinetIds &ids)
{
    QStringList texts;
    for (const wall::CabinetId id : ids)
        texts.append(QString::number(id));
    return texts.join(',');
}

inline QString text(const wall::PortRef &port)
{
    return QStringLiteral("%1/%2").arg(port.senderId).arg(port.number);
}

/// Writes down every signal of a project, a line each.
class SignalLog : public QObject
{
public:
    explicit SignalLog(const wall::Project *project)
    {
        using wall::Project;
        const auto add = [this](const QString &line) { m_lines.append(line); };
        connect(project, &Project::wasReset, this, [add] { add("reset"); });
        connect(project, &Project::nameChanged, this, [add] { add("name"); });
        connect(project, &Project::cabinetsInserted, this,
                [add](const wall::CabinetIds &ids) { add("inserted " + text(ids)); });
        connect(project, &Project::cabinetsRemoved, this,
                [add](const wall::CabinetIds &ids) { add("removed " + text(ids)); });
        connect(project, &Project::cabinetsChanged, this,
                [add](const wall::CabinetIds &ids) { add("changed " + text(ids)); });
        connect(project, &Project::lineChanged, this,
                [add](const wall::PortRef &port) { add("line " + text(port)); });
        connect(project, &Project::stockChanged, this,
                [add](const wall::PortRef &port, const QString &modelId) {
                    add("stock " + text(port) + ' ' + modelId);
                });
        connect(project, &Project::modelChanged, this,
                [add](const QString &modelId) { add("model " + modelId); });
        connect(project, &Project::senderInserted, this,
                [add](const QString &senderId) { add("sender inserted " + senderId); });
        connect(project, &Project::senderRemoved, this,
                [add](const QString &senderId) { add("sender removed " + senderId); });
        connect(project, &Project::senderChanged, this,
                [add](const QString &senderId) { add("sender changed " + senderId); });
        connect(project, &Project::totalsChanged, this, [add] { add("totals"); });
        connect(project, &Project::boundsChanged, this, [add] { add("bounds"); });
    }

    /// The lines since the last call.
    QStringList take()
    {
        const QStringList lines = m_lines;
        m_lines.clear();
        return lines;
    }

private:
    QStringList m_lines;
};

} // namespace wallsamples

#endif // ORVANE_TESTS_WALLSAMPLES_H
