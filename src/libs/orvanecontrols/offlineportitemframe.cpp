#include "offlineportitemframe.h"

#include "internal/portlook.h"
#include "ui_offlineportitemframe.h"

OfflinePortItemFrame::OfflinePortItemFrame(QWidget *parent)
    : QFrame(parent)
    , m_ui(std::make_unique<Ui::OfflinePortItemFrame>())
{
    m_ui->setupUi(this);
    connect(m_ui->toolButton, &QToolButton::pressed, this, &OfflinePortItemFrame::on_itemPressed);
}

OfflinePortItemFrame::~OfflinePortItemFrame() = default;

void OfflinePortItemFrame::setLineItemType(int portIndex, ItemType type)
{
    m_portIndex = portIndex;
    m_itemType = type;
    m_ui->label_portIndex->setText(QString::number(portIndex));
    orvane::showPortReleased(m_ui->toolButton, m_itemType, m_portIndex);
}

void OfflinePortItemFrame::setItemPressed()
{
    m_isPressed = true;
    orvane::showPortPressed(m_ui->toolButton, m_itemType, m_portIndex);
}

void OfflinePortItemFrame::setItemReleased()
{
    m_isPressed = false;
    orvane::showPortReleased(m_ui->toolButton, m_itemType, m_portIndex);
}

void OfflinePortItemFrame::setItemDisabled(bool disabled)
{
    orvane::setPortDisabled(m_ui->toolButton, m_itemType, m_portIndex, disabled);
}

bool OfflinePortItemFrame::getItemIsEnabled()
{
    return m_ui->toolButton->isEnabled();
}

void OfflinePortItemFrame::setPortIndex(int i)
{
    // The label alone counts from one; hosts rely on the stored number staying as it is.
    m_ui->label_portIndex->setText(QString::number(qint64(i) + 1));
}

int OfflinePortItemFrame::portIndex() const
{
    return m_portIndex;
}

void OfflinePortItemFrame::on_itemPressed()
{
    Q_EMIT signal_portItemPressed(this);
}
