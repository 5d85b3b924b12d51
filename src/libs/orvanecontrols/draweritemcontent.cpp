#include "draweritemcontent.h"

#include "internal/livelist.h"
#include "internal/stylesheet.h"
#include "rowlineitem.h"

#include <QVBoxLayout>

#include <limits>

DrawerItemContent::DrawerItemContent(QWidget *parent)
    : QWidget(parent)
{
    // Signal spies and queued connections look the type up by name.
    qRegisterMetaType<RowLineItem *>();
    auto *layout = new QVBoxLayout(this);
    layout->setSpacing(0);
    layout->setContentsMargins(0, 0, 0, 0);
    // The first rule is for hosts that name the body so; it has no such name of its own. Without
    // the attribute Qt paints no background from a sheet on a class derived from QWidget.
    setAttribute(Qt::WA_StyledBackground);
    orvane::applyStyleSheet(
        this,
        QStringLiteral("QWidget#DrawerItemContent{background:rgb(69,69,69);}"
                       "QToolTip{background-color:rgb(56,56,56);color:rgb(178,178,178);"
                       "font:SimSun Arial;border:1px solid rgb(128,128,128);}"));
}

DrawerItemContent::~DrawerItemContent()
{
    // Children go with the body in any case; rows that have been moved elsewhere go, too.
    orvane::deleteStrangersLater(m_rows, this);
}

void DrawerItemContent::addRowLineItem(int portIndex, ItemType type, QList<StructCabinet> cabinets)
{
    auto *row = new RowLineItem(this);
    connect(row, &RowLineItem::signal_notifyAddBeenTakenCabinetModel, this,
            &DrawerItemContent::notifyAddBeenTakenCabinetModel);
    connect(row, &RowLineItem::signal_portItemPressed, this,
            &DrawerItemContent::on_portItemPressed);
    connect(row, &RowLineItem::signal_notifyChangedPortInfo, this,
            &DrawerItemContent::on_notifyChangedPortInfo);
    row->setLineItemType(portIndex, type);
    for (const StructCabinet &cabinet : qAsConst(cabinets))
        row->AddLineItem(cabinet);
    row->addScrollWidget();

    // Looked through only after a deletion, so that the n-th row costs what the first did.
    if (layout()->count() != m_rows.size())
        orvane::dropDeleted(m_rows);
    layout()->addWidget(row);
    // Hosts may begin at any number; at the last one the count stays.
    if (m_index < std::numeric_limits<int>::max())
        ++m_index;
    m_rows.append(row);
    setFixedHeight(m_rows.size() * row->height());
}

QList<RowLineItem *> DrawerItemContent::lsRowLineItems() const
{
    return orvane::liveWidgets(m_rows);
}

void DrawerItemContent::setLsRowLineItems(const QList<RowLineItem *> &rows)
{
    m_rows = orvane::liveList(rows);
}

int DrawerItemContent::index() const
{
    return m_index;
}

void DrawerItemContent::setIndex(int index)
{
    m_index = index;
}

void DrawerItemContent::setToolTipText(QString text)
{
    Q_UNUSED(text)
}

void DrawerItemContent::enterEvent(QEvent *event)
{
    Q_UNUSED(event)
}

void DrawerItemContent::leaveEvent(QEvent *event)
{
    Q_UNUSED(event)
}

void DrawerItemContent::notifyAddBeenTakenCabinetModel(StructCabinet cabinetInfo)
{
    Q_EMIT signal_notifyAddBeenTakenCabinetModel(cabinetInfo);
}

void DrawerItemContent::on_portItemPressed(RowLineItem *item)
{
    Q_EMIT signal_ItemContentPortItemPressed(item);
}

void DrawerItemContent::on_notifyChangedPortInfo(StructCabinet info)
{
    Q_EMIT signal_notifyChangedPortInfo(info);
}
