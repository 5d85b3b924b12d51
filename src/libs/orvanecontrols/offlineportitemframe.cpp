#include "offlineportitemframe.h"

#include "internal/portlook.h"
#include "internal/spokenname.h"
#include "ui_offlineportitemframe.h"

#include <QEvent>

OfflinePortItemFrame::OfflinePortItemFrame(QWidget *parent)
    : QFrame(parent)
    , m_ui(std::make_unique<Ui::OfflinePortItemFrame>())
{
    m_ui->setupUi(this);
    alignNumber();
    connect(m_ui->toolButton, &QToolButton::pressed, this, &OfflinePortItemFrame::on_itemPressed);
}

OfflinePortItemFrame::~OfflinePortItemFrame() = default;

void OfflinePortItemFrame::setLineItemType(int portIndex, ItemType type)
{
    m_portIndex = portIndex;
    m_itemType = type;
    setNumber(portIndex);
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
    setNumber(qint64(i) + 1);
}

int OfflinePortItemFrame::portIndex() const
{
    return m_portIndex;
}

void OfflinePortItemFrame::changeEvent(QEvent *event)
{
    QFrame::changeEvent(event);
    if (event->type() == QEvent::LayoutDirectionChange)
        alignNumber();
}

void OfflinePortItemFrame::setNumber(qint64 number)
{
    const QString text = QString::number(number);
    QLabel *label = m_ui->label_portIndex;
    // The form's number is none of a port: until there is one, the button has no name.
    const bool isNamed = !m_ui->toolButton->accessibleName().isEmpty();
    orvane::speakAs(m_ui->toolButton, tr("Port %1").arg(text),
                    isNamed ? tr("Port %1").arg(label->text()) : QString());
    label->setText(text);
}

void OfflinePortItemFrame::alignNumber()
{
    // Digits are not mirrored: at the far side they would stand beside the next frame's button.
    m_ui->label_portIndex->setAlignment((isRightToLeft() ? Qt::AlignLeft : Qt::AlignRight)
                                        | Qt::AlignVCenter);
}

void OfflinePortItemFrame::on_itemPressed()
{
    Q_EMIT signal_portItemPressed(this);
}
