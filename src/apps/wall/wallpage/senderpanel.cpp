#include "senderpanel.h"

#include "document.h"
#include "model/commands.h"
#include "parts.h"
#include "selection.h"
#include "senderdialog.h"
#include "senderentry.h"

#include <custommegbox.h>
#include <drawer.h>
#include <draweritem.h>
#include <theme.h>

#include <QAbstractButton>
#include <QKeyEvent>
#include <QLabel>
#include <QPointer>
#include <QScrollArea>
#include <QScrollBar>
#include <QTimer>

namespace wall
{

namespace
{

constexpr int drawerWidth = 300; ///< What a header needs with its check-all box and its count.
constexpr int smallButtonWidth = 64;
constexpr int buttonWidth = 96;

/// A sender that no project has yet.
Sender proposedSender(const Project &project)
{
    Sender sender;
    int number = project.senderIds().size();
    do {
        ++number;
        sender.id = QStringLiteral("s%1").arg(number);
    } while (project.sender(sender.id));
    sender.name = QStringLiteral("Sender %1").arg(number);
    return sender;
}

} // namespace

SenderPanel::SenderPanel(Document *document, Selection *selection, QWidget *parent)
    : QWidget(parent)
    , m_document(document)
    , m_selection(selection)
{
    build();
    followProject();
    rebuild();
}

bool SenderPanel::isEditing() const
{
    return m_isEditing;
}

QString SenderPanel::currentSender() const
{
    return m_currentSender;
}

void SenderPanel::setEditing(bool isEditing)
{
    if (isEditing == m_isEditing)
        return;
    m_isEditing = isEditing;
    m_editButton->setText(isEditing ? QStringLiteral("Done") : QStringLiteral("Select"));
    for (SenderEntry *entry : qAsConst(m_entries))
        entry->setEditing(isEditing);
}

void SenderPanel::addSender()
{
    const QPointer<SenderDialog> dialog =
        SenderDialog::forNew(proposedSender(*m_document->project()), this);
    if (dialog->exec() == QDialog::Accepted) {
        const Sender sender = dialog->sender();
        const QString problem = senderProblem(*m_document->project(), sender);
        if (problem.isEmpty())
            m_document->push(new AddSenderCommand(m_document->project(), sender));
        else
            CustomMegBox::waringMessageBox(window(), QStringLiteral("Add sender"), problem,
                                           QStringLiteral("OK"));
    }
    if (dialog)
        dialog->deleteLater();
}

void SenderPanel::changeSender(const QString &senderId)
{
    const Sender *sender = m_document->project()->sender(senderId);
    if (!sender)
        return;
    const QPointer<SenderDialog> dialog = SenderDialog::forChange(*sender, this);
    if (dialog->exec() == QDialog::Accepted) {
        const Sender changed = dialog->sender();
        const Sender *present = m_document->project()->sender(senderId);
        if (present
            && (changed.name != present->name || changed.connection != present->connection
                || changed.isOnline != present->isOnline)) {
            m_document->push(new ChangeSenderCommand(m_document->project(), senderId, changed.name,
                                                     changed.connection, changed.isOnline));
        }
    }
    if (dialog)
        dialog->deleteLater();
}

void SenderPanel::deleteSender(const QString &senderId)
{
    const Project *project = m_document->project();
    const Sender *sender = project->sender(senderId);
    if (!sender)
        return;
    int placed = 0;
    for (const PortRef &port : project->portsOf(senderId))
        placed += project->line(port).size();
    QString question = QStringLiteral("Delete the sender \"%1\"?").arg(sender->name);
    if (placed > 0)
        question += QStringLiteral("\nIts %1 cabinets on the wall go with it.").arg(placed);
    constexpr int ok = 1;
    const int answer =
        CustomMegBox::questionMessageBox(window(), QStringLiteral("Delete sender"), question,
                                         QStringLiteral("Delete"), QStringLiteral("Cancel"));
    if (answer == ok && project->sender(senderId))
        m_document->push(new RemoveSenderCommand(m_document->project(), senderId));
}

void SenderPanel::keyPressEvent(QKeyEvent *event)
{
    const QWidget *focus = focusWidget();
    const auto hasFocus = [focus](const SenderEntry *entry) {
        return focus && entry->item() && entry->item()->isAncestorOf(focus);
    };
    const auto entry = std::find_if(m_entries.cbegin(), m_entries.cend(), hasFocus);
    switch (event->key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
        if (auto *button = qobject_cast<QAbstractButton *>(focusWidget())) {
            button->click();
            return;
        }
        break;
    case Qt::Key_Escape:
        if (m_isEditing) {
            setEditing(false);
            return;
        }
        break;
    case Qt::Key_F2:
        if (entry != m_entries.cend()) {
            changeSender(entry.key());
            return;
        }
        break;
    case Qt::Key_Delete:
        if (entry != m_entries.cend() && !entry.value()->item()->getBOnline()) {
            deleteSender(entry.key());
            return;
        }
        break;
    default:
        break;
    }
    QWidget::keyPressEvent(event);
}

void SenderPanel::build()
{
    QLabel *heading = theme::makeHeading(QStringLiteral("Senders"), this);
    m_count = theme::makeQuietLabel(QString(), this);
    m_editButton =
        theme::makeButton(QStringLiteral("Select"), NoActivatedBtn, this, smallButtonWidth);
    m_editButton->setToolTip(QStringLiteral("Select the cabinets of whole senders"));
    connect(m_editButton, &PushButtonEx::clicked, this, [this] { setEditing(!m_isEditing); });

    m_drawer = new Drawer;
    m_drawer->pVBoxlayout()->setContentsMargins(0, 0, 0, 0);
    m_drawer->pVBoxlayout()->setSpacing(theme::gap);
    // Without a share of the spare height an expanded item would take some of it for itself.
    m_drawer->pVBoxlayout()->setStretch(0, 1);
    m_area = parts::makeScrollArea(m_drawer, this);
    connect(m_drawer, &Drawer::signal_notifyItem, this, [this](DrawerItem *item) {
        for (SenderEntry *entry : qAsConst(m_entries)) {
            if (entry->item() == item) {
                setCurrentSender(entry->senderId());
                entry->setExpanded(item->getWorkSpaceIsShow());
                showExpanded(entry->senderId());
                break;
            }
        }
    });

    PushButtonEx *addButton =
        theme::makeButton(QStringLiteral("Add sender"), NoActivatedBtn, this, buttonWidth);
    connect(addButton, &PushButtonEx::clicked, this, &SenderPanel::addSender);
    m_settingsButton =
        theme::makeButton(QStringLiteral("Settings"), NoActivatedBtn, this, buttonWidth);
    connect(m_settingsButton, &PushButtonEx::clicked, this,
            [this] { changeSender(m_currentSender); });

    auto *head = new QHBoxLayout;
    head->setSpacing(theme::gap);
    head->addWidget(heading);
    head->addWidget(m_count);
    head->addStretch();
    head->addWidget(m_editButton);
    auto *foot = new QHBoxLayout;
    foot->setSpacing(theme::gap);
    foot->addWidget(addButton);
    foot->addWidget(m_settingsButton);
    foot->addStretch();
    auto *column = new QVBoxLayout(this);
    column->setContentsMargins(theme::margin, theme::margin, theme::margin, theme::margin);
    column->setSpacing(theme::gap);
    column->addLayout(head);
    column->addWidget(m_area, 1);
    column->addLayout(foot);
    m_area->setFixedWidth(drawerWidth + m_area->verticalScrollBar()->sizeHint().width());
}

void SenderPanel::followProject()
{
    const Project *project = m_document->project();
    connect(project, &Project::wasReset, this, &SenderPanel::rebuild);
    connect(project, &Project::senderInserted, this, &SenderPanel::insertSender);
    connect(project, &Project::senderRemoved, this, &SenderPanel::removeSender);
    connect(project, &Project::senderChanged, this, [this](const QString &senderId) {
        if (SenderEntry *entry = m_entries.value(senderId))
            entry->showSender();
    });
    connect(project, &Project::lineChanged, this, [this](const PortRef &port) {
        if (SenderEntry *entry = m_entries.value(port.senderId))
            entry->showPlacedCount();
    });
    connect(project, &Project::stockChanged, this,
            [this](const PortRef &port, const QString &modelId) {
                if (SenderEntry *entry = m_entries.value(port.senderId))
                    entry->showStock(port.number, modelId);
            });
    connect(project, &Project::modelChanged, this, [this](const QString &modelId) {
        for (SenderEntry *entry : qAsConst(m_entries))
            entry->showModel(modelId);
    });
    connect(m_selection, &Selection::cabinetsChanged, this, &SenderPanel::showSelection);
    connect(m_selection, &Selection::portChanged, this, &SenderPanel::showPort);
}

void SenderPanel::rebuild()
{
    const QStringList present = m_entries.keys();
    for (const QString &senderId : present)
        removeSender(senderId);
    const QStringList senderIds = m_document->project()->senderIds();
    for (const QString &senderId : senderIds)
        insertSender(senderId);
    setCurrentSender(senderIds.isEmpty() ? QString() : senderIds.constFirst());
    showSelection();
    showPort();
}

void SenderPanel::insertSender(const QString &senderId)
{
    auto *entry = new SenderEntry(m_document->project(), senderId, this);
    m_entries.insert(senderId, entry);
    followEntry(entry);
    entry->setEditing(m_isEditing);
    entry->setSelectedCount(m_selectedCounts.value(senderId));

    // The drawer appends; its list and its layout are the host's to reorder.
    const int index = m_document->project()->senderIndex(senderId);
    DrawerItem *item = entry->item();
    m_drawer->addDrawerItem(item);
    QList<DrawerItem *> items = m_drawer->drawerItemList();
    if (index < items.size() - 1) {
        items.move(items.size() - 1, index);
        m_drawer->setDrawerItemList(items);
        m_drawer->pVBoxlayout()->removeWidget(item);
        m_drawer->pVBoxlayout()->insertWidget(index, item);
    }
    item->show();
    showCount();
}

void SenderPanel::removeSender(const QString &senderId)
{
    SenderEntry *entry = m_entries.take(senderId);
    if (!entry)
        return;
    DrawerItem *item = entry->item();
    // The drawer deletes it later; until then it would still be seen, and hold its place.
    item->hide();
    m_drawer->pVBoxlayout()->removeWidget(item);
    m_drawer->removeDrawerItem(item);
    entry->deleteLater();
    if (m_currentSender == senderId)
        setCurrentSender(QString());
    if (m_markedSender == senderId)
        m_markedSender.clear();
    showCount();
}

void SenderPanel::followEntry(SenderEntry *entry)
{
    const QString senderId = entry->senderId();
    const DrawerItem *item = entry->item();
    connect(entry, &SenderEntry::portPressed, m_selection, &Selection::setPort);
    connect(entry, &SenderEntry::cabinetChosen, this, &SenderPanel::placeRequested);
    connect(item, &DrawerItem::signal_notifySettings, this,
            [this, senderId] { changeSender(senderId); });
    connect(item, &DrawerItem::signal_deleteItem, this,
            [this, senderId] { deleteSender(senderId); });
    connect(
        item, &DrawerItem::signal_checkAllItemContent, this,
        [this, senderId](DrawerItem *, bool isCheckAll) { selectCabinets(senderId, isCheckAll); });
    connect(item, &DrawerItem::signal_checkAllHasClicked, this,
            [this, senderId] { setCurrentSender(senderId); });
}

void SenderPanel::setCurrentSender(const QString &senderId)
{
    if (m_currentSender != senderId) {
        if (const SenderEntry *previous = m_entries.value(m_currentSender))
            previous->item()->setDrawItemPressed(false);
        m_currentSender = senderId;
    }
    if (const SenderEntry *current = m_entries.value(senderId))
        current->item()->setDrawItemPressed(true);
    m_settingsButton->setEnabled(!senderId.isEmpty());
}

void SenderPanel::showPort()
{
    const PortRef port = m_selection->port();
    if (m_markedSender != port.senderId) {
        if (SenderEntry *previous = m_entries.value(m_markedSender))
            previous->markPort(0);
        m_markedSender = port.senderId;
    }
    if (SenderEntry *entry = m_entries.value(port.senderId)) {
        entry->markPort(port.number);
        setCurrentSender(port.senderId);
    }
}

void SenderPanel::showSelection()
{
    QHash<QString, int> counts;
    const CabinetIds ids = m_selection->cabinets();
    for (const CabinetId id : ids) {
        if (const PlacedCabinet *cabinet = m_document->project()->cabinet(id))
            ++counts[cabinet->port.senderId];
    }
    for (SenderEntry *entry : qAsConst(m_entries)) {
        const int count = counts.value(entry->senderId());
        if (count != m_selectedCounts.value(entry->senderId()))
            entry->setSelectedCount(count);
    }
    m_selectedCounts = counts;
}

void SenderPanel::selectCabinets(const QString &senderId, bool isSelected)
{
    const Project *project = m_document->project();
    CabinetIds ids;
    const CabinetIds selected = m_selection->cabinets();
    for (const CabinetId id : selected) {
        const PlacedCabinet *cabinet = project->cabinet(id);
        if (cabinet && cabinet->port.senderId != senderId)
            ids.append(id);
    }
    if (isSelected) {
        for (const PortRef &port : project->portsOf(senderId))
            ids += project->line(port);
    }
    m_selection->setCabinets(ids);
}

void SenderPanel::showCount()
{
    m_count->setText(QString::number(m_entries.size()));
}

/// Scrolls to a sender once the drawer is laid out with its body.
void SenderPanel::showExpanded(const QString &senderId)
{
    QTimer::singleShot(0, this, [this, senderId] {
        const SenderEntry *entry = m_entries.value(senderId);
        if (!entry || !entry->item()->getWorkSpaceIsShow())
            return;
        const QWidget *item = entry->item();
        const int top = item->mapTo(m_drawer, QPoint()).y();
        QScrollBar *bar = m_area->verticalScrollBar();
        const int bottom = top + item->height();
        if (bottom > bar->value() + m_area->viewport()->height())
            bar->setValue(qMin(top, bottom - m_area->viewport()->height()));
        if (top < bar->value())
            bar->setValue(top);
    });
}

} // namespace wall
