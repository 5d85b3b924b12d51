#ifndef WALL_DEVICESPAGE_H
#define WALL_DEVICESPAGE_H

#include "model/values.h"

#include <QHash>
#include <QWidget>

class CustomListWidgetMulItem;
class EquipListWidget;
class PushButtonEx;
class QLabel;
class QStackedWidget;
class QTimer;
class TableWidgetCustom;
class TableWidgetEx;

namespace wall
{

class DeviceQuery;
class Document;
class PortTable;
class Project;
class Selection;

/**
 * The senders as devices: which ones there are and which ones answer, the ports of each in a table
 * of its own, and which port backs up which.
 *
 * What a query finds is seen in the list and changes nothing: that a device answers is a fact of
 * the moment. Where it differs from the project, "Use in project" enters it, as one step of the
 * undo stack. Results of queries and tests, and which tables are open, are neither saved nor
 * undone.
 *
 * A double click on a device, or Return on its row, opens its table; the add button beside the
 * tables opens the next device that has none.
 */
class DevicesPage : public QWidget
{
    Q_OBJECT

public:
    /// Both stay the caller's and live at least as long as the page.
    DevicesPage(Document *document, Selection *selection, QWidget *parent = nullptr);
    ~DevicesPage() override;

    /// What looks for the devices. Simulated: a device with a connection answers.
    DeviceQuery *deviceQuery() const;
    /// What tests the checked ports. Simulated: the ports of senders that are online answer.
    DeviceQuery *portTest() const;
    /// The open table of a sender, null for none.
    PortTable *table(const QString &senderId) const;

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    QWidget *makeDevices();
    QWidget *makeBackups();
    QWidget *makeTables();
    void connectProject();

    void reset();
    void fillDevices();
    void updateDevice(const QString &senderId);
    QString deviceState(const QString &senderId) const;

    void startQuery();
    void noteAnswer(const QString &senderId, bool isThere);
    void endQuery(bool isComplete);
    QStringList differingSenders() const;
    void updateQueryButtons();
    void useResult();

    void openTable(const QString &senderId);
    void openNextTable();
    void openFirstTables();
    void closeTable(int index);
    PortTable *currentTable() const;
    void startOrStopTest();
    void noteTested(const QString &portKey, bool isThere);
    void endTest(bool isComplete);
    void updateTableButtons();

    void updateBackups();

    Document *m_document;
    Project *m_project;
    Selection *m_selection;
    DeviceQuery *m_query;
    DeviceQuery *m_test;
    QHash<QString, bool> m_answers; ///< By sender, as far as the last query came.
    QHash<QString, PortRef> m_waitingPorts; ///< That are being tested, by their key.
    int m_testedCount = 0;

    EquipListWidget *m_devices = nullptr;
    PushButtonEx *m_queryButton = nullptr;
    PushButtonEx *m_cancelButton = nullptr;
    PushButtonEx *m_useButton = nullptr;
    QLabel *m_queryState = nullptr;
    TableWidgetEx *m_tables = nullptr;
    QStackedWidget *m_tablesStack = nullptr;
    PushButtonEx *m_openAllButton = nullptr;
    PushButtonEx *m_testButton = nullptr;
    QLabel *m_testState = nullptr;
    TableWidgetCustom *m_backups = nullptr;
    QTimer *m_backupTimer = nullptr;
};

} // namespace wall

#endif // WALL_DEVICESPAGE_H
