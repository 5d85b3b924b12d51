#include "rowlineitem.h"

#include "internal/livelist.h"
#include "internal/portlook.h"
#include "internal/spokenname.h"
#include "internal/stylesheet.h"
#include "toolbuttonex.h"
#include "widgetwithscrollex.h"

#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QSpacerItem>

namespace
{

constexpr int rowHeight = 74;
constexpr int portLabelWidth = 16;
constexpr int portLabelHeight = 20;
constexpr int portButtonSide = 30;
constexpr int stripWidth = 180;
constexpr int cabinetSide = 69;

QString stripSheet()
{
    return QStringLiteral("background:rgb(69,69,69);");
}

} // namespace

RowLineItem::RowLineItem(QWidget *parent)
    : QWidget(parent)
{
    setFixedHeight(rowHeight);
    auto *grid = new QGridLayout(this);
    grid->setSpacing(0);
    grid->setContentsMargins(0, 0, 0, 0);
    auto *row = new QHBoxLayout;
    row->setSpacing(6);

    m_portLabel = new QLabel(this);
    m_portLabel->setFixedSize(portLabelWidth, portLabelHeight);
    orvane::applyStyleSheet(
        m_portLabel, QStringLiteral("QLabel{background:rgb(69,69,69); color:rgb(210,210,210);}"));
    row->addWidget(m_portLabel);

    m_portButton = new ToolButtonEx(this, DefaultType, QString(), QString());
    connect(m_portButton, &ToolButtonEx::pressed, this, &RowLineItem::on_itemPressed);
    connect(m_portButton, &ToolButtonEx::released, this, &RowLineItem::on_itemReleased);
    m_portButton->setFixedSize(portButtonSide, portButtonSide);
    row->addWidget(m_portButton);

    m_cabinetStrip = new WidgetWithScrollEx(stripSheet(), this);
    m_cabinetStrip->setFixedSize(stripWidth, rowHeight);
    m_contentWidget = new QWidget;
    row->addWidget(m_cabinetStrip);

    grid->addLayout(row, 0, 0);
    grid->addItem(new QSpacerItem(40, 0, QSizePolicy::Expanding, QSizePolicy::Expanding), 0, 1);
}

RowLineItem::~RowLineItem()
{
    // Children go with the row in any case; these also go when they have been moved elsewhere.
    if (m_portButton)
        m_portButton->deleteLater();
    if (m_contentWidget && !m_contentWidget->parentWidget())
        delete m_contentWidget;
    orvane::deleteStrangersLater(m_cabinetButtons, this);
}

void RowLineItem::setLineItemType(int portIndex, ItemType type)
{
    m_portIndex = portIndex;
    m_itemType = type;
    const QString number = QString::number(portIndex);
    const QString previous = m_portLabel->text();
    orvane::speakAs(m_portButton, tr("Port %1").arg(number),
                    previous.isEmpty() ? QString() : tr("Port %1").arg(previous));
    m_portLabel->setText(number);
    orvane::showPortReleased(m_portButton, m_itemType, m_portIndex);
}

void RowLineItem::AddLineItem(StructCabinet info)
{
    if (!m_contentWidget) // deleted with the strip's content
        m_contentWidget = new QWidget;
    // Looked through only after a deletion, so that the n-th cabinet costs what the first did.
    if (m_contentWidget->children().size() != m_cabinetButtons.size())
        orvane::dropDeleted(m_cabinetButtons);

    auto *button = new ToolButtonEx(m_contentWidget, CabinetType, QString(), QString());
    connect(button, &ToolButtonEx::signal_notifyAddBeenTakenCabinetModel, this,
            &RowLineItem::on_notifyAddBeenTakenCabinetModel);
    connect(button, &ToolButtonEx::signal_notifyChangedPortInfo, this,
            &RowLineItem::on_notifyChangedPortInfo);
    button->setFixedSize(cabinetSide, cabinetSide);
    button->move(cabinetSide * m_cabinetButtons.size(), 0);

    button->setCabinetSize(info.cabinetSize.width(), info.cabinetSize.height());
    button->setIsDrawCabinetCount(true);
    button->setCabinetCount(info.cabinetCount);
    button->setCabinetInitCount(info.cabinetCount);
    button->setCabinetuisize(info.cabinetuisize);
    button->setCabinetuiHsize(info.cabinetuiHsize);
    button->setCabinetpower(info.cabinetpower);
    button->setCabinetPointspace(info.cabinetPointspace);
    button->setCabinetVoltage(info.cabinetVoltage);
    button->setCabnetInfo(info);

    m_cabinetButtons.append(button);
    m_contentWidget->setFixedSize(cabinetSide * m_cabinetButtons.size(), cabinetSide);
}

void RowLineItem::addScrollWidget()
{
    m_cabinetStrip->addWidget(m_contentWidget);
    orvane::applyStyleSheet(m_cabinetStrip, stripSheet());
    m_cabinetStrip->show();
}

void RowLineItem::setItemPressed()
{
    m_isPressed = true;
    orvane::showPortPressed(m_portButton, m_itemType, m_portIndex);
}

void RowLineItem::setItemReleased()
{
    m_isPressed = false;
    orvane::showPortReleased(m_portButton, m_itemType, m_portIndex);
}

void RowLineItem::setItemDisabled(bool disabled)
{
    // The pressed look is not restored on enabling: hosts rely on it.
    orvane::setPortDisabled(m_portButton, m_itemType, m_portIndex, disabled);
}

bool RowLineItem::getItemIsEnabled()
{
    return m_portButton->isEnabled();
}

bool RowLineItem::bPressed() const
{
    return m_isPressed;
}

int RowLineItem::portIndex() const
{
    return m_portIndex;
}

void RowLineItem::setPortIndex(int portIndex)
{
    // Stored only: hosts rely on the label and the pictures staying as they are.
    m_portIndex = portIndex;
}

QList<ToolButtonEx *> RowLineItem::cabinetButtonList() const
{
    return orvane::liveWidgets(m_cabinetButtons);
}

void RowLineItem::setCabinetButtonList(const QList<ToolButtonEx *> &buttons)
{
    m_cabinetButtons = orvane::liveList(buttons);
}

void RowLineItem::on_notifyAddBeenTakenCabinetModel(StructCabinet info)
{
    Q_EMIT signal_notifyAddBeenTakenCabinetModel(info);
}

void RowLineItem::on_itemPressed()
{
    Q_EMIT signal_portItemPressed(this);
}

void RowLineItem::on_itemReleased()
{
    // A released port button changes nothing: the host decides which row looks pressed.
}

void RowLineItem::on_notifyChangedPortInfo(StructCabinet info)
{
    Q_EMIT signal_notifyChangedPortInfo(info);
}
