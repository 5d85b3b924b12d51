#ifndef WALL_COMMANDS_H
#define WALL_COMMANDS_H

#include "project.h"

#include <QUndoCommand>

/// What a user does to a project, as commands for a QUndoStack. An undo restores the project
/// exactly, data lines included. A command keeps a pointer to its project, so the stack is cleared
/// before the project goes or is reset.
///
/// A command is made in the state in which it is pushed, and only from what is possible. A command
/// that would change nothing leaves no step on the stack. Functions named ...Problem tell before:
/// they return an empty text, or one sentence for the user that says what is impossible.
namespace wall
{

/// A number that no gesture had before. Moves, rotations and model changes with the same number
/// and the same cabinets or model become one step of the undo stack: a view takes a number when a
/// drag or a series of key presses begins. The number 0 joins nothing.
int newGesture();

/// Why these cabinets cannot be placed: an unknown model or port, more than is left on a port, an
/// impossible position or rotation, too many for a project.
QString placementProblem(const Project &project, const QVector<PlacedCabinet> &cabinets);
/// Why a model cannot have these properties.
QString modelProblem(const Project &project, const CabinetModel &model);
/// Why a sender cannot be added: its id is empty or taken, port numbers are impossible or occur
/// twice, or its stock is impossible.
QString senderProblem(const Project &project, const Sender &sender);
/// Why a port cannot have so many cabinets of a model: a negative or too great count, less than
/// are placed, an unknown model or port.
QString stockProblem(const Project &project, const PortRef &port, const QString &modelId,
                     int count);
/// Why the data line of a port cannot have this order: it has other cabinets.
QString lineProblem(const Project &project, const PortRef &port, const CabinetIds &order);

/// The farthest step toward \a delta with which all these cabinets stay where positions are
/// possible.
QPoint possibleMove(const Project &project, const CabinetIds &ids, QPoint delta);

/// Places cabinets at the ends of their data lines, in the given order.
class PlaceCabinetsCommand : public QUndoCommand
{
public:
    /// \a cabinets need no ids: new ones are given at once.
    PlaceCabinetsCommand(Project *project, const QVector<PlacedCabinet> &cabinets,
                         QUndoCommand *parent = nullptr);
    /// The ids of the cabinets, in the given order.
    CabinetIds ids() const;
    void redo() override;
    void undo() override;

private:
    Project *m_project;
    QVector<LinePlace> m_places;
};

/// Removes cabinets from the wall; they are left on their ports again.
class RemoveCabinetsCommand : public QUndoCommand
{
public:
    RemoveCabinetsCommand(Project *project, const CabinetIds &ids, QUndoCommand *parent = nullptr);
    void redo() override;
    void undo() override;

private:
    Project *m_project;
    CabinetIds m_ids;
    QVector<LinePlace> m_places;
};

/// Moves cabinets. Steps of one gesture that lead back to the start leave no step behind.
class MoveCabinetsCommand : public QUndoCommand
{
public:
    /// Moves all by \a delta. \see possibleMove()
    MoveCabinetsCommand(Project *project, const CabinetIds &ids, QPoint delta, int gesture = 0,
                        QUndoCommand *parent = nullptr);
    /// Moves each to a place of its own.
    MoveCabinetsCommand(Project *project, const QVector<CabinetPosition> &targets, int gesture = 0,
                        QUndoCommand *parent = nullptr);
    int id() const override;
    bool mergeWith(const QUndoCommand *other) override;
    void redo() override;
    void undo() override;

private:
    Project *m_project;
    QVector<CabinetPosition> m_before;
    QVector<CabinetPosition> m_after;
    int m_gesture;
};

/// Rotates cabinets, each around its centre. Steps of one gesture that lead back to the start leave
/// no step behind.
class RotateCabinetsCommand : public QUndoCommand
{
public:
    /// Rotates all to \a rotation degrees; any number is brought into 0 to 359.
    RotateCabinetsCommand(Project *project, const CabinetIds &ids, int rotation, int gesture = 0,
                          QUndoCommand *parent = nullptr);
    /// Rotates each to an angle of its own.
    RotateCabinetsCommand(Project *project, const QVector<CabinetRotation> &targets,
                          int gesture = 0, QUndoCommand *parent = nullptr);
    int id() const override;
    bool mergeWith(const QUndoCommand *other) override;
    void redo() override;
    void undo() override;

private:
    Project *m_project;
    QVector<CabinetRotation> m_before;
    QVector<CabinetRotation> m_after;
    int m_gesture;
};

/// Gives the data line of a port another order.
class ReorderLineCommand : public QUndoCommand
{
public:
    ReorderLineCommand(Project *project, const PortRef &port, const CabinetIds &order,
                       QUndoCommand *parent = nullptr);
    void redo() override;
    void undo() override;

private:
    Project *m_project;
    PortRef m_port;
    CabinetIds m_before;
    CabinetIds m_after;
};

/// Changes properties of the model that has the id of the given one. Steps of one gesture that lead
/// back to the start leave no step behind.
class ChangeModelCommand : public QUndoCommand
{
public:
    ChangeModelCommand(Project *project, const CabinetModel &model, int gesture = 0,
                       QUndoCommand *parent = nullptr);
    int id() const override;
    bool mergeWith(const QUndoCommand *other) override;
    void redo() override;
    void undo() override;

private:
    Project *m_project;
    CabinetModel m_before;
    CabinetModel m_after;
    int m_gesture;
};

/// Adds a sender.
class AddSenderCommand : public QUndoCommand
{
public:
    /// An \a index of the project's order that does not exist is its end.
    AddSenderCommand(Project *project, const Sender &sender, int index = -1,
                     QUndoCommand *parent = nullptr);
    void redo() override;
    void undo() override;

private:
    Project *m_project;
    Sender m_sender;
    int m_index;
};

/// Removes a sender and the cabinets that are placed from its ports.
class RemoveSenderCommand : public QUndoCommand
{
public:
    RemoveSenderCommand(Project *project, const QString &senderId, QUndoCommand *parent = nullptr);
    void redo() override;
    void undo() override;

private:
    Project *m_project;
    QString m_senderId;
    Sender m_sender;
    int m_index = 0;
    QVector<LinePlace> m_places;
};

/// Changes what a sender is called, where it is found and whether it is there.
class ChangeSenderCommand : public QUndoCommand
{
public:
    ChangeSenderCommand(Project *project, const QString &senderId, const QString &name,
                        const QString &connection, bool isOnline, QUndoCommand *parent = nullptr);
    /// Only renames it.
    ChangeSenderCommand(Project *project, const QString &senderId, const QString &name,
                        QUndoCommand *parent = nullptr);
    void redo() override;
    void undo() override;

private:
    struct Properties {
        QString name;
        QString connection;
        bool isOnline = false;
    };
    void apply(const Properties &properties);

    Project *m_project;
    QString m_senderId;
    Properties m_before;
    Properties m_after;
};

/// Changes how many cabinets of a model hang on a port. A model that is new to the port goes to the
/// end of its stock; one with the count 0 stays in it.
class ChangeStockCommand : public QUndoCommand
{
public:
    ChangeStockCommand(Project *project, const PortRef &port, const QString &modelId, int count,
                       QUndoCommand *parent = nullptr);
    void redo() override;
    void undo() override;

private:
    Project *m_project;
    PortRef m_port;
    QVector<StockEntry> m_before;
    QVector<StockEntry> m_after;
};

/// Gives the project another name.
class RenameProjectCommand : public QUndoCommand
{
public:
    RenameProjectCommand(Project *project, const QString &name, QUndoCommand *parent = nullptr);
    void redo() override;
    void undo() override;

private:
    Project *m_project;
    QString m_before;
    QString m_after;
};

} // namespace wall

#endif // WALL_COMMANDS_H
