#include "senderentry.h"

#include "cabinetclicks.h"
#include "model/cabinetrecord.h"
#include "parts.h"

#include <draweritem.h>
#include <draweritemcontent.h>
#include <offlineportitemcontentframe.h>
#include <offlineportitemframe.h>
#include <rowlineitem.h>
#include <theme.h>
#include <toolbuttonex.h>

#include <QCheckBox>
#include <QLabel>
#include <QScrollArea>

namespace wall
{

namespace
{

constexpr int bodyWidth = 256;
constexpr int nameWidth = 150; ///< What a header has for the sender's name.

ItemType itemType(PortKind kind)
{
    return kind == PortKind::Coaxial ? CoaxialItem : PortItem;
}

QStringList modelIds(const QVector<StockEntry> &stock)
{
    QStringList ids;
    for (const StockEntry &entry : stock)
        ids.append(entry.modelId);
    return ids;
}

QString modelIdOf(const ToolButtonEx *button)
{
    const auto meaning = recordMeaning(button->getCabnetInfo());
    return meaning ? meaning->modelId : QString();
}

QStringList modelIds(const RowLineItem *row)
{
    QStringList ids;
    for (const ToolButtonEx *button : row->cabinetButtonList())
        ids.append(modelIdOf(button));
    return ids;
}

/// Brings a button of a row up to date: what the row gave it when it was added, and the weight.
void applyRecord(ToolButtonEx *button, const StructCabinet &record)
{
    button->setCabinetSize(record.cabinetSize.width(), record.cabinetSize.height());
    button->setCabinetuisize(record.cabinetuisize);
    button->setCabinetuiHsize(record.cabinetuiHsize);
    button->setCabinetweight(record.cabinetweight);
    button->setCabinetpower(record.cabinetpower);
    button->setCabinetVoltage(record.cabinetVoltage);
    button->setCabinetPointspace(record.cabinetPointspace);
    button->setCabnetInfo(record);
    button->setCabinetCount(record.cabinetCount); // enables it, or disables it with none left
    button->update(); // a new count alone does not repaint
}

QAbstractButton *portButton(const QWidget *row)
{
    return row->findChild<QToolButton *>(QString(), Qt::FindDirectChildrenOnly);
}

void namePort(const QWidget *row, int number)
{
    const QString name = QStringLiteral("Port %1").arg(number);
    portButton(row)->setAccessibleName(name);
    portButton(row)->setToolTip(name);
}

} // namespace

SenderEntry::SenderEntry(const Project *project, const QString &senderId, QObject *parent)
    : QObject(parent)
    , m_project(project)
    , m_senderId(senderId)
    , m_item(new DrawerItem(nullptr))
    , m_clicks(new CabinetClicks(this))
{
    nameHeaderButtons();
    followItem();
    m_item->setDrawItemPressed(false);
    m_item->setCheckAllStyle(NoneChecked);
    showSender();
}

QString SenderEntry::senderId() const
{
    return m_senderId;
}

DrawerItem *SenderEntry::item() const
{
    return m_item;
}

void SenderEntry::setEditing(bool isEditing)
{
    m_item->setIsInEditMode(isEditing);
    m_item->setCheckAllVisible(isEditing);
    m_item->setDeviceCountVisible(isEditing);
    m_item->setWidgetVisible(!isEditing);
    showPlacedCount(); // elided to the width that the text has now
}

void SenderEntry::setExpanded(bool isExpanded)
{
    if (isExpanded && !m_item->getItem())
        buildBody();
    m_item->setWorkSpaceisShow(isExpanded);
}

void SenderEntry::markPort(int number)
{
    if (number == m_markedPort)
        return;
    showMark(m_markedPort, false);
    m_markedPort = number;
    showMark(m_markedPort, true);
}

void SenderEntry::setSelectedCount(int count)
{
    m_selectedCount = count;
    showCheckState();
}

void SenderEntry::showSender()
{
    const Sender *sender = m_project->sender(m_senderId);
    if (!sender)
        return;
    const QString shownName =
        m_item->fontMetrics().elidedText(sender->name, Qt::ElideRight, nameWidth);
    m_item->setDeviceName(shownName);
    m_item->setToolTip(shownName == sender->name ? QString() : sender->name);
    m_item->setBOnline(sender->isOnline);
    showPlacedCount();
    if (m_item->getItem() && sender->isOnline != m_isOnline) {
        dropBody();
        if (m_item->getWorkSpaceIsShow())
            setExpanded(true);
    }
    m_isOnline = sender->isOnline;
}

void SenderEntry::showPlacedCount()
{
    const Sender *sender = m_project->sender(m_senderId);
    if (!sender)
        return;
    int count = 0;
    for (const Port &port : sender->ports) {
        for (const StockEntry &entry : port.stock)
            count += entry.count;
    }
    m_item->setDevicePortName(sender->connection, true);
    m_item->setDevicePortName(QStringLiteral("%1 · %2 of %3 placed")
                                  .arg(sender->connection)
                                  .arg(placedCount())
                                  .arg(count),
                              false);
    showCheckState();
}

void SenderEntry::showStock(int portNumber, const QString &modelId)
{
    showPlacedCount();
    const Port *port = m_project->port({m_senderId, portNumber});
    RowLineItem *row = rowOf(portNumber);
    if (!port || !row)
        return;
    if (modelIds(row) != modelIds(port->stock)) {
        // Models came, went or changed places, which is rare: a row has no way to follow that.
        dropBody();
        setExpanded(m_item->getWorkSpaceIsShow());
        return;
    }
    const CabinetModel *model = m_project->model(modelId);
    for (ToolButtonEx *button : row->cabinetButtonList()) {
        if (!model || modelIdOf(button) != modelId)
            continue;
        const int left = m_project->leftCount({m_senderId, portNumber}, modelId);
        applyRecord(button, cabinetRecord(*model, m_senderId, portNumber, left));
        nameCabinet(button, left);
    }
}

void SenderEntry::showModel(const QString &modelId)
{
    if (!m_item->getItem())
        return;
    const Sender *sender = m_project->sender(m_senderId);
    for (const Port &port : sender->ports) {
        if (modelIds(port.stock).contains(modelId))
            showStock(port.number, modelId);
    }
}

void SenderEntry::followItem()
{
    // A click on the check-all box expands the item; here it selects and leaves the list as it is.
    connect(m_item, &DrawerItem::signal_currentCheckBoxCheck, this,
            [this] { m_wasExpanded = m_item->getWorkSpaceIsShow(); });
    connect(m_item, &DrawerItem::signal_checkAllHasClicked, this, [this] {
        setExpanded(m_wasExpanded);
        showCheckState();
    });
    connect(m_item, &DrawerItem::signal_ItemContentPortItemPressed, this,
            [this](DrawerItem *, RowLineItem *row) {
                Q_EMIT portPressed({m_senderId, row->portIndex()});
            });
    connect(m_item, &DrawerItem::signal_offlineItemContentPortItemPressed, this,
            [this](DrawerItem *, OfflinePortItemFrame *port) {
                Q_EMIT portPressed({m_senderId, port->portIndex()});
            });
    connect(m_clicks, &CabinetClicks::chosenByKey, this, [this](ToolButtonEx *button) {
        const StructCabinet record = button->getCabnetInfo();
        choose(record);
    });
}

/// The header's buttons show pictures only, and the dot is a tool button that does nothing.
void SenderEntry::nameHeaderButtons()
{
    const QList<QToolButton *> buttons = m_item->findChildren<QToolButton *>();
    if (buttons.size() == 3) {
        buttons.at(0)->setAccessibleName(QStringLiteral("Expand or collapse"));
        buttons.at(1)->setFocusPolicy(Qt::NoFocus);
        buttons.at(2)->setAccessibleName(QStringLiteral("Settings or delete"));
    }
    if (auto *box = m_item->findChild<QCheckBox *>())
        box->setAccessibleName(QStringLiteral("Select all cabinets of the sender"));
}

void SenderEntry::buildBody()
{
    const Sender *sender = m_project->sender(m_senderId);
    if (!sender)
        return;
    m_isOnline = sender->isOnline;
    QWidget *body = nullptr;
    if (sender->ports.isEmpty()) {
        body = theme::makeQuietLabel(QStringLiteral("This sender has no ports."), nullptr);
        body->resize(bodyWidth, theme::controlHeight);
    } else {
        body = sender->isOnline ? createRows(*sender) : createGrid(*sender);
    }
    m_item->addItem(body);
    m_item->setScrollAreaHeight(body->height());
    showMark(m_markedPort, true);
}

void SenderEntry::dropBody()
{
    // This may be a call from inside the body: it goes when nothing of it is in use any more.
    if (QWidget *body = m_item->scrollArea()->takeWidget()) {
        body->hide();
        body->setParent(m_item);
        body->deleteLater();
    }
}

QWidget *SenderEntry::createRows(const Sender &sender)
{
    auto *content = new DrawerItemContent;
    content->setFixedWidth(bodyWidth);
    for (const Port &port : sender.ports) {
        QList<StructCabinet> records;
        for (const StockEntry &entry : port.stock) {
            const int left = m_project->leftCount({sender.id, port.number}, entry.modelId);
            if (const CabinetModel *model = m_project->model(entry.modelId))
                records.append(cabinetRecord(*model, sender.id, port.number, left));
        }
        content->addRowLineItem(port.number, itemType(port.kind), records);
        finishRow(content->lsRowLineItems().constLast());
    }
    connect(content, SIGNAL(signal_ItemContentPortItemPressed(RowLineItem *)), m_item,
            SLOT(on_itemContentPortItemPressed(RowLineItem *)));
    connect(content, &DrawerItemContent::signal_notifyChangedPortInfo, this,
            [this](const StructCabinet &record) {
                if (const auto meaning = recordMeaning(record))
                    Q_EMIT portPressed(meaning->port);
            });
    connect(content, &DrawerItemContent::signal_notifyAddBeenTakenCabinetModel, this,
            [this](const StructCabinet &record) {
                if (m_clicks->isClick())
                    choose(record);
            });
    return content;
}

QWidget *SenderEntry::createGrid(const Sender &sender)
{
    auto *content = new OfflinePortItemContentFrame;
    content->addPortItem(sender.ports.size(), itemType(sender.ports.constFirst().kind));
    // The grid counts from 1 and knows one kind only; a sender's ports need not be like that.
    const QList<OfflinePortItemFrame *> frames = content->lsOfflinePortItems();
    for (int i = 0; i < frames.size(); ++i) {
        const Port &port = sender.ports.at(i);
        frames.at(i)->setLineItemType(port.number, itemType(port.kind));
        namePort(frames.at(i), port.number);
    }
    connect(content, SIGNAL(signal_portItemPressed(OfflinePortItemFrame *)), m_item,
            SLOT(slot_itemContentPortItemPressed(OfflinePortItemFrame *)));
    return content;
}

void SenderEntry::finishRow(RowLineItem *row)
{
    namePort(row, row->portIndex());
    for (ToolButtonEx *button : row->cabinetButtonList()) {
        const StructCabinet record = button->getCabnetInfo();
        applyRecord(button, record);
        nameCabinet(button, record.cabinetCount);
        m_clicks->watch(button);
    }
}

void SenderEntry::nameCabinet(ToolButtonEx *button, int left)
{
    const QString name =
        QStringLiteral("%1, %2 left").arg(button->getCabnetInfo().extraText1).arg(left);
    button->setAccessibleName(name);
    button->setToolTip(name);
}

void SenderEntry::showMark(int number, bool isPressed)
{
    const auto mark = [isPressed](auto *port) {
        if (isPressed)
            port->setItemPressed();
        else
            port->setItemReleased();
    };
    if (RowLineItem *row = rowOf(number))
        mark(row);
    if (auto *grid = qobject_cast<OfflinePortItemContentFrame *>(m_item->getItem())) {
        for (OfflinePortItemFrame *frame : grid->lsOfflinePortItems()) {
            if (frame->portIndex() == number)
                mark(frame);
        }
    }
}

void SenderEntry::showCheckState()
{
    const int placed = placedCount();
    m_item->setDeviceCount(QStringLiteral("%1/%2").arg(m_selectedCount).arg(placed));
    if (m_selectedCount == 0)
        m_item->setCheckAllStyle(NoneChecked);
    else
        m_item->setCheckAllStyle(m_selectedCount >= placed ? AllChecked : PartChecked);
}

RowLineItem *SenderEntry::rowOf(int portNumber) const
{
    const auto *content = qobject_cast<DrawerItemContent *>(m_item->getItem());
    if (!content)
        return nullptr;
    for (RowLineItem *row : content->lsRowLineItems()) {
        if (row->portIndex() == portNumber)
            return row;
    }
    return nullptr;
}

int SenderEntry::placedCount() const
{
    int count = 0;
    for (const PortRef &port : m_project->portsOf(m_senderId))
        count += m_project->line(port).size();
    return count;
}

void SenderEntry::choose(const StructCabinet &record)
{
    const auto meaning = recordMeaning(record);
    if (!meaning)
        return;
    Q_EMIT portPressed(meaning->port);
    Q_EMIT cabinetChosen(meaning->port, meaning->modelId);
}

} // namespace wall
