#include "devicespage.h"

#include "backupplan.h"
#include "devicequery.h"
#include "document.h"
#include "look.h"
#include "model/commands.h"
#include "porttable.h"
#include "selection.h"

#include <customlistwidgetmulitem.h>
#include <equiplistwidget.h>
#include <labelex.h>
#include <listwidgetex.h>
#include <tablewidgetcustom.h>
#include <tablewidgetex.h>

#include <QKeyEvent>
#include <QLabel>
#include <QStackedWidget>
#include <QTimer>
#include <QUndoStack>
#include <QVBoxLayout>

#include <algorithm>

namespace wall
{

namespace
{

constexpr int devicesWidth = 115 * look::unit; // the columns of a device's row
constexpr int tabWidth = 32 * look::unit;
constexpr int firstTables = 4;
constexpr int queryDelay = 400; // milliseconds for each device
constexpr int testDelay = 120; // milliseconds for each port
constexpr int shownDevices = 5;
constexpr int deviceRowHeight = 34; // that of the library's lists
constexpr int stateColumn = 3; // of a device's row

/// A port as the name of a device.
QString portKey(const PortRef &port)
{
    return QStringLiteral("%1:%2").arg(port.number).arg(port.senderId);
}

bool isSamePlan(const QList<BackUpParam> &a, const QList<BackUpParam> &b)
{
    const auto isSameRecord = [](const BackUpParam &left, const BackUpParam &right) {
        return left.firstText == right.firstText && left.secondText == right.secondText
            && left.thirdText == right.thirdText && left.fourthText == right.fourthText;
    };
    return std::equal(a.begin(), a.end(), b.begin(), b.end(), isSameRecord);
}

QVBoxLayout *makeColumnLayout(QWidget *column)
{
    auto *layout = new QVBoxLayout(column);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(look::gap);
    return layout;
}

} // namespace

DevicesPage::DevicesPage(Document *document, Selection *selection, QWidget *parent)
    : QWidget(parent)
    , m_document(document)
    , m_project(document->project())
    , m_selection(selection)
{
    const auto hasConnection = [this](const QString &senderId) {
        const Sender *sender = m_project->sender(senderId);
        return sender && !sender->connection.isEmpty();
    };
    const auto isSenderOnline = [this](const QString &key) {
        const Sender *sender = m_project->sender(key.section(QLatin1Char(':'), 1));
        return sender && sender->isOnline;
    };
    m_query = new DeviceQuery(hasConnection, queryDelay, this);
    m_test = new DeviceQuery(isSenderOnline, testDelay, this);

    look::applyTo(this);
    auto *left = new QVBoxLayout;
    left->setSpacing(2 * look::margin);
    left->addWidget(makeDevices());
    left->addWidget(makeBackups(), 1);
    auto *layout = new QHBoxLayout(this);
    layout->setContentsMargins(look::margin, look::margin, look::margin, look::margin);
    layout->setSpacing(2 * look::margin);
    layout->addLayout(left, 2);
    layout->addWidget(makeTables(), 3);

    connect(m_query, &DeviceQuery::answered, this, &DevicesPage::noteAnswer);
    connect(m_query, &DeviceQuery::ended, this, &DevicesPage::endQuery);
    connect(m_test, &DeviceQuery::answered, this, &DevicesPage::noteTested);
    connect(m_test, &DeviceQuery::ended, this, &DevicesPage::endTest);
    connectProject();
    reset();
}

DevicesPage::~DevicesPage()
{
    // Nothing is told to a page that is half gone.
    m_query->disconnect(this);
    m_test->disconnect(this);
}

DeviceQuery *DevicesPage::deviceQuery() const
{
    return m_query;
}

DeviceQuery *DevicesPage::portTest() const
{
    return m_test;
}

PortTable *DevicesPage::table(const QString &senderId) const
{
    for (int index = 0; index < m_tables->count(); ++index) {
        auto *table = qobject_cast<PortTable *>(m_tables->widget(index));
        if (table && table->senderId() == senderId)
            return table;
    }
    return nullptr;
}

QWidget *DevicesPage::makeDevices()
{
    auto *column = new QWidget(this);
    m_devices = new EquipListWidget(tr("Devices"), column);
    m_devices->setMinimumWidth(devicesWidth);
    m_devices->setTitleVisiable(false); // it is light; the page has a heading of its own
    m_devices->setFixedHeight(shownDevices * deviceRowHeight);
    m_devices->setRefLabelText(tr("Looking for devices..."));
    ListWidgetEx *list = m_devices->getListWidget();
    list->setBgNormalColor(look::well);
    list->setBgHoverColor(look::raised);
    list->setBgPressedColor(look::raised);
    list->setFontColor(look::text);
    list->setFrameShape(QFrame::NoFrame);
    list->setAccessibleName(tr("Devices"));
    list->installEventFilter(this);
    look::styleScrollBars(list);
    connect(m_devices, &EquipListWidget::signal_itemDoubleClicked, this,
            [this](CustomListWidgetMulItem *item) {
                const int row = m_devices->getItems().indexOf(item);
                openTable(m_project->senderIds().value(row));
            });

    m_queryButton = look::makeButton(tr("Query devices"), ActivatedBtn, column);
    m_cancelButton = look::makeButton(tr("Cancel"), NoActivatedBtn, column);
    m_useButton = look::makeButton(tr("Use in project"), NoActivatedBtn, column);
    connect(m_queryButton, &QPushButton::clicked, this, &DevicesPage::startQuery);
    connect(m_cancelButton, &QPushButton::clicked, m_query, &DeviceQuery::cancel);
    connect(m_useButton, &QPushButton::clicked, this, &DevicesPage::useResult);
    m_queryState = look::makeWrappedLabel(QString(), column);

    auto *buttons = new QHBoxLayout;
    buttons->setSpacing(look::gap);
    buttons->addWidget(m_queryButton);
    buttons->addWidget(m_cancelButton);
    buttons->addStretch(1);
    buttons->addWidget(m_useButton);

    QVBoxLayout *layout = makeColumnLayout(column);
    layout->addWidget(look::makeHeading(tr("Devices"), column));
    layout->addWidget(m_devices);
    layout->addLayout(buttons);
    layout->addWidget(m_queryState);
    return column;
}

QWidget *DevicesPage::makeBackups()
{
    auto *column = new QWidget(this);
    const QStringList header = {tr("Port"), tr("Backup"), tr("Kind"), tr("State")};
    m_backups = new TableWidgetCustom({}, header, 0, header.size(), column);
    m_backups->setToolTipMsg(
        tr("A port is backed up by one of the same kind that feeds no cabinets."));
    m_backups->setEditTriggers(QAbstractItemView::NoEditTriggers);
    m_backups->setFocusPolicy(Qt::StrongFocus); // the library's tables take none by themselves
    m_backups->setTabKeyNavigation(false);
    m_backups->setAccessibleName(tr("Backup of ports"));
    m_backups->setWordWrap(false);
    look::styleScrollBars(m_backups);

    // Once for all changes of one turn.
    m_backupTimer = new QTimer(this);
    m_backupTimer->setSingleShot(true);
    m_backupTimer->setInterval(0);
    connect(m_backupTimer, &QTimer::timeout, this, &DevicesPage::updateBackups);

    QVBoxLayout *layout = makeColumnLayout(column);
    layout->addWidget(look::makeHeading(tr("Backup of ports"), column));
    layout->addWidget(m_backups, 1);
    return column;
}

QWidget *DevicesPage::makeTables()
{
    auto *column = new QWidget(this);
    m_tables = new TableWidgetEx(column, EditableTable, tr("Ports"));
    m_tables->setTabPanelWidth(tabWidth);
    m_tables->setTabWorkSpaceColor(look::ground);
    m_tables->setTabSelectedColor(look::raised);
    m_tables->setBMovedCornerButton(true);
    if (QWidget *addButton = m_tables->cornerWidget(Qt::TopRightCorner)) {
        addButton->setAccessibleName(tr("Open the next table"));
        addButton->setToolTip(tr("Open the table of the next device"));
    }
    connect(m_tables, &TableWidgetEx::notifyAddTable, this, &DevicesPage::openNextTable);
    connect(m_tables, &TableWidgetEx::signals_removeTable, this, &DevicesPage::closeTable);
    connect(m_tables, &QTabWidget::currentChanged, this, &DevicesPage::updateTableButtons);

    QLabel *hint = look::makeWrappedLabel(
        tr("No table is open. Double-click a device, or open the tables of all."), column);
    hint->setAlignment(Qt::AlignLeft | Qt::AlignTop);
    m_tablesStack = new QStackedWidget(column);
    m_tablesStack->addWidget(m_tables);
    m_tablesStack->addWidget(hint);

    m_openAllButton = look::makeButton(tr("Open all tables"), NoActivatedBtn, column);
    m_testButton = look::makeButton(tr("Test checked ports"), NoActivatedBtn, column);
    m_testState = look::makeWrappedLabel(QString(), column);
    connect(m_openAllButton, &QPushButton::clicked, this, [this] {
        const QStringList senderIds = m_project->senderIds();
        for (const QString &senderId : senderIds)
            openTable(senderId);
    });
    connect(m_testButton, &QPushButton::clicked, this, &DevicesPage::startOrStopTest);

    auto *buttons = new QHBoxLayout;
    buttons->setSpacing(look::gap);
    buttons->addWidget(m_testButton);
    buttons->addWidget(m_testState, 1);
    buttons->addWidget(m_openAllButton);

    QVBoxLayout *layout = makeColumnLayout(column);
    layout->addWidget(m_tablesStack, 1);
    layout->addLayout(buttons);
    return column;
}

void DevicesPage::connectProject()
{
    connect(m_project, &Project::wasReset, this, &DevicesPage::reset);
    connect(m_project, &Project::senderInserted, this, [this](const QString &senderId) {
        fillDevices(); // the list adds rows at its end only
        openTable(senderId);
    });
    connect(m_project, &Project::senderRemoved, this, [this](const QString &senderId) {
        m_answers.remove(senderId);
        fillDevices();
        closeTable(m_tables->indexOf(table(senderId)));
    });
    connect(m_project, &Project::senderChanged, this, [this](const QString &senderId) {
        updateDevice(senderId);
        if (PortTable *changed = table(senderId))
            m_tables->setTabText(m_tables->indexOf(changed), m_project->sender(senderId)->name);
    });

    const auto updateBackupsSoon = &DevicesPage::updateBackupsSoon;
    connect(m_project, &Project::lineChanged, this, updateBackupsSoon);
    connect(m_project, &Project::senderInserted, this, updateBackupsSoon);
    connect(m_project, &Project::senderRemoved, this, updateBackupsSoon);
    connect(m_project, &Project::senderChanged, this, updateBackupsSoon);
}

void DevicesPage::reset()
{
    m_query->cancel();
    m_test->cancel();
    m_answers.clear();
    m_queryState->setText(tr("Not queried yet."));
    m_testState->clear();
    while (m_tables->count() > 0)
        closeTable(0);
    fillDevices();
    openFirstTables();
    updateBackupsSoon();
}

void DevicesPage::fillDevices()
{
    m_devices->clearAllCustomItems();
    if (m_query->isRunning())
        return; // the animation lets rows shine through; they come back at the end
    const QStringList senderIds = m_project->senderIds();
    for (const QString &senderId : senderIds) {
        const Sender *sender = m_project->sender(senderId);
        m_devices->addCustomItem({sender->name, sender->connection,
                                  QString::number(sender->ports.size()), deviceState(senderId)},
                                 sender->isOnline);
        QListWidgetItem *item =
            m_devices->getListWidget()->item(m_devices->getListWidget()->count() - 1);
        item->setData(Qt::AccessibleTextRole, sender->name);
    }
    updateQueryButtons();
}

void DevicesPage::updateDevice(const QString &senderId)
{
    CustomListWidgetMulItem *row = m_devices->getItems().value(m_project->senderIndex(senderId));
    const Sender *sender = m_project->sender(senderId);
    if (!row || !sender)
        return;
    const QList<LabelEx *> labels = row->getLabelList();
    labels.at(0)->setText(sender->name);
    labels.at(1)->setText(sender->connection);
    labels.at(stateColumn)->setText(deviceState(senderId));
    updateQueryButtons();
}

QString DevicesPage::deviceState(const QString &senderId) const
{
    const bool isOnline = m_project->sender(senderId)->isOnline;
    const auto answer = m_answers.constFind(senderId);
    if (answer == m_answers.constEnd() || *answer == isOnline)
        return isOnline ? tr("Online") : tr("Offline");
    return *answer ? tr("Answers") : tr("No answer");
}

void DevicesPage::startQuery()
{
    if (m_query->isRunning() || m_project->senderIds().isEmpty())
        return;
    m_answers.clear();
    m_query->start(m_project->senderIds());
    fillDevices();
    m_devices->slot_ShowRefAnimation();
    m_queryState->setText(tr("Looking for %1 devices...").arg(m_project->senderIds().size()));
    updateQueryButtons();
}

void DevicesPage::noteAnswer(const QString &senderId, bool isThere)
{
    if (!m_project->sender(senderId))
        return; // it was removed meanwhile
    m_answers.insert(senderId, isThere);
    m_queryState->setText(
        tr("Asked %1 of %2 devices...").arg(m_answers.size()).arg(m_project->senderIds().size()));
}

void DevicesPage::endQuery(bool isComplete)
{
    m_devices->slot_StopRefAnimation();
    fillDevices();
    const QList<bool> answers = m_answers.values();
    const QString result =
        tr("%1 of %2 devices answered").arg(answers.count(true)).arg(answers.size());
    m_queryState->setText((isComplete ? tr("%1.") : tr("Cancelled; %1.")).arg(result));
}

QStringList DevicesPage::differingSenders() const
{
    QStringList senderIds = m_project->senderIds();
    const auto isAsInProject = [this](const QString &senderId) {
        const bool isOnline = m_project->sender(senderId)->isOnline;
        return m_answers.value(senderId, isOnline) == isOnline;
    };
    senderIds.erase(std::remove_if(senderIds.begin(), senderIds.end(), isAsInProject),
                    senderIds.end());
    return senderIds;
}

void DevicesPage::updateQueryButtons()
{
    const bool isRunning = m_query->isRunning();
    m_queryButton->setEnabled(!isRunning && !m_project->senderIds().isEmpty());
    m_cancelButton->setEnabled(isRunning);
    m_useButton->setEnabled(!isRunning && !differingSenders().isEmpty());
}

void DevicesPage::useResult()
{
    const QStringList senderIds = differingSenders();
    if (senderIds.isEmpty())
        return;
    m_document->undoStack()->beginMacro(tr("Use device query"));
    for (const QString &senderId : senderIds) {
        const Sender *sender = m_project->sender(senderId);
        m_document->push(new ChangeSenderCommand(m_project, senderId, sender->name,
                                                 sender->connection, m_answers.value(senderId)));
    }
    m_document->undoStack()->endMacro();
}

void DevicesPage::openTable(const QString &senderId)
{
    const Sender *sender = m_project->sender(senderId);
    if (!sender)
        return;
    PortTable *opened = table(senderId);
    if (!opened) {
        opened = new PortTable(m_project, m_selection, senderId);
        opened->setAccessibleName(tr("Ports of %1").arg(sender->name));
        connect(opened, &PortTable::checkedPortsChanged, this, &DevicesPage::updateTableButtons);
        const int index = m_tables->addTab(opened, sender->name);
        m_tables->setTabText(index, sender->name); // with a tool tip if it is too long
    }
    m_tables->setCurrentWidget(opened);
    updateTableButtons();
}

void DevicesPage::openNextTable()
{
    const QStringList senderIds = m_project->senderIds();
    for (const QString &senderId : senderIds) {
        if (!table(senderId)) {
            openTable(senderId);
            return;
        }
    }
}

void DevicesPage::openFirstTables()
{
    const QStringList senderIds = m_project->senderIds().mid(0, firstTables);
    for (const QString &senderId : senderIds)
        openTable(senderId);
    m_tables->setCurrentIndex(0);
    updateTableButtons();
}

void DevicesPage::closeTable(int index)
{
    QWidget *closed = m_tables->widget(index);
    if (!closed)
        return;
    m_tables->removeTab(index);
    closed->deleteLater();
    updateTableButtons();
}

PortTable *DevicesPage::currentTable() const
{
    return qobject_cast<PortTable *>(m_tables->currentWidget());
}

void DevicesPage::startOrStopTest()
{
    if (m_test->isRunning()) {
        m_test->cancel();
        return;
    }
    PortTable *current = currentTable();
    if (!current || current->checkedPorts().isEmpty())
        return;
    const QVector<PortRef> ports = current->checkedPorts();
    QStringList keys;
    for (const PortRef &port : ports) {
        current->setTestText(port, tr("Waiting"));
        keys.append(portKey(port));
        m_waitingPorts.insert(keys.last(), port);
    }
    m_testedCount = 0;
    m_testState->setText(tr("Testing %1 ports...").arg(ports.size()));
    m_test->start(keys);
    updateTableButtons();
}

void DevicesPage::noteTested(const QString &key, bool isThere)
{
    const auto port = m_waitingPorts.find(key);
    if (port == m_waitingPorts.end())
        return;
    if (PortTable *tested = table(port->senderId))
        tested->setTestText(*port, isThere ? tr("Passed") : tr("No answer"));
    m_waitingPorts.erase(port);
    ++m_testedCount;
}

void DevicesPage::endTest(bool isComplete)
{
    for (const PortRef &port : qAsConst(m_waitingPorts)) {
        if (PortTable *waiting = table(port.senderId))
            waiting->setTestText(port, QString());
    }
    m_waitingPorts.clear();
    m_testState->setText(isComplete ? tr("%1 ports tested.").arg(m_testedCount)
                                    : tr("Test stopped."));
    updateTableButtons();
}

void DevicesPage::updateTableButtons()
{
    m_tablesStack->setCurrentIndex(m_tables->count() > 0 ? 0 : 1);
    const bool areAllOpen = m_tables->count() == m_project->senderIds().size();
    m_openAllButton->setEnabled(!areAllOpen);
    m_tables->setIsShowAddButton(!areAllOpen);
    const bool isRunning = m_test->isRunning();
    const PortTable *current = currentTable();
    m_testButton->setText(isRunning ? tr("Stop the test") : tr("Test checked ports"));
    m_testButton->setEnabled(isRunning || (current && !current->checkedPorts().isEmpty()));
}

void DevicesPage::showEvent(QShowEvent *event)
{
    QWidget::showEvent(event);
    if (m_isPlanOld)
        updateBackups();
}

void DevicesPage::updateBackupsSoon()
{
    m_isPlanOld = true;
    // While it is not seen, the page costs the others nothing.
    if (isVisible())
        m_backupTimer->start();
}

void DevicesPage::updateBackups()
{
    m_isPlanOld = false;
    const QList<BackUpParam> records = backupPlan(*m_project);
    // Most changes of a data line leave the plan as it is.
    if (isSamePlan(records, m_shownPlan))
        return;
    m_shownPlan = records;
    // The table was made without rows, and its count follows by hand.
    m_backups->setRowCount(records.size());
    m_backups->setTableRowCount(records.size());
    m_backups->updateUi(records);
}

bool DevicesPage::eventFilter(QObject *watched, QEvent *event)
{
    ListWidgetEx *list = m_devices->getListWidget();
    if (watched == list && event->type() == QEvent::KeyPress) {
        const int key = static_cast<QKeyEvent *>(event)->key();
        if (key == Qt::Key_Return || key == Qt::Key_Enter) {
            openTable(m_project->senderIds().value(list->currentRow()));
            return true;
        }
    }
    return QWidget::eventFilter(watched, event);
}

} // namespace wall
