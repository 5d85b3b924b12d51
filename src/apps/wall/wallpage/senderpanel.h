#ifndef WALL_WALLPAGE_SENDERPANEL_H
#define WALL_WALLPAGE_SENDERPANEL_H

#include "model/values.h"

#include <QHash>
#include <QWidget>

class Drawer;
class PushButtonEx;
class QLabel;
class QScrollArea;

namespace wall
{

class Document;
class Selection;
class SenderEntry;

/// The senders of the project in a drawer: their ports, what is left on them, and their settings.
///
/// A click on a port makes it the one that is worked on; a click on a cabinet also asks for that
/// cabinet to be placed. While senders are selected (the "Select" button), each has a box that
/// stands for its cabinets on the wall. F2 opens the settings of the sender that has the focus,
/// Delete deletes it if it is offline.
class SenderPanel : public QWidget
{
    Q_OBJECT

public:
    SenderPanel(Document *document, Selection *selection, QWidget *parent = nullptr);

    /// Whether the boxes are shown that select a sender's cabinets.
    bool isEditing() const;
    /// The sender whose header is marked, empty for none.
    QString currentSender() const;

public Q_SLOTS:
    void setEditing(bool isEditing);
    /// Asks for a new sender.
    void addSender();
    /// Asks for changes of a sender.
    void changeSender(const QString &senderId);
    /// Asks whether to delete a sender.
    void deleteSender(const QString &senderId);

Q_SIGNALS:
    /// One cabinet of \a modelId is to be placed from \a port.
    void placeRequested(const wall::PortRef &port, const QString &modelId);

protected:
    void keyPressEvent(QKeyEvent *event) override;

private:
    void build();
    void followProject();
    void rebuild();
    void insertSender(const QString &senderId);
    void removeSender(const QString &senderId);
    void followEntry(SenderEntry *entry);
    void setCurrentSender(const QString &senderId);
    void showPort();
    void showSelection();
    void selectCabinets(const QString &senderId, bool isSelected);
    void showCount();
    void showExpanded(const QString &senderId);

    Document *m_document;
    Selection *m_selection;
    QHash<QString, SenderEntry *> m_entries;
    QHash<QString, int> m_selectedCounts;
    QString m_currentSender;
    QString m_markedSender; ///< Whose row is marked as pressed.
    bool m_isEditing = false;
    QLabel *m_count = nullptr;
    PushButtonEx *m_editButton = nullptr;
    PushButtonEx *m_settingsButton = nullptr;
    QScrollArea *m_area = nullptr;
    Drawer *m_drawer = nullptr;
};

} // namespace wall

#endif // WALL_WALLPAGE_SENDERPANEL_H
