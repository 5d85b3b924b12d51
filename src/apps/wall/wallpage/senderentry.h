#ifndef WALL_WALLPAGE_SENDERENTRY_H
#define WALL_WALLPAGE_SENDERENTRY_H

#include "model/project.h"

#include <QObject>
#include <QPointer>

class DrawerItem;
class RowLineItem;
class ToolButtonEx;
struct StructCabinet;

namespace wall
{

class CabinetClicks;

/// One sender in the drawer: its item and, from the time it is first expanded on, the item's body.
/// That is rows of cabinets by port while the sender is online, and a grid of ports while it is
/// not.
class SenderEntry : public QObject
{
    Q_OBJECT

public:
    /// Builds the item, which the drawer is to own.
    SenderEntry(const Project *project, const QString &senderId, QObject *parent);

    QString senderId() const;
    /// Null once the drawer has deleted it.
    DrawerItem *item() const;

    /// Whether check-all box and count of the selected cabinets are shown. Meanwhile the library's
    /// item reports neither header clicks nor clicks on settings and delete, so these are hidden.
    void setEditing(bool isEditing);
    void setExpanded(bool isExpanded);
    /// Marks the row of a port as pressed and no other; 0 for none.
    void markPort(int number);
    /// How many of the sender's cabinets are selected on the wall.
    void setSelectedCount(int count);

    // What to call when the project changed.
    /// Name, connection or online state.
    void showSender();
    /// How many of the sender's cabinets are placed.
    void showPlacedCount();
    /// The cabinets of a model on one of the sender's ports.
    void showStock(int portNumber, const QString &modelId);
    /// The properties of a model.
    void showModel(const QString &modelId);

Q_SIGNALS:
    /// A port or a cabinet of its row was pressed.
    void portPressed(const wall::PortRef &port);
    /// A cabinet was chosen by a click or by the keys.
    void cabinetChosen(const wall::PortRef &port, const QString &modelId);

private:
    void followItem();
    void nameHeaderButtons();
    void buildBody();
    void dropBody();
    QWidget *createRows(const Sender &sender);
    QWidget *createGrid(const Sender &sender);
    void finishRow(RowLineItem *row);
    void nameCabinet(ToolButtonEx *button, int left);
    void showMark(int number, bool isPressed);
    void showCheckState();
    RowLineItem *rowOf(int portNumber) const;
    int placedCount() const;
    void choose(const StructCabinet &record);

    const Project *m_project;
    QString m_senderId;
    QPointer<DrawerItem> m_item;
    CabinetClicks *m_clicks;
    int m_markedPort = 0;
    int m_selectedCount = 0;
    bool m_isOnline = false;
    bool m_wasExpanded = false; ///< Before the click on the check-all box that goes on.
};

} // namespace wall

#endif // WALL_WALLPAGE_SENDERENTRY_H
