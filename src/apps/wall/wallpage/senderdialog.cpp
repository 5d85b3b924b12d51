#include "senderdialog.h"

#include <checkboxex.h>
#include <comboboxex.h>
#include <lineeditex.h>
#include <spinboxex.h>

namespace wall
{

namespace
{

constexpr int proposedPorts = 4;
constexpr int coaxialIndex = 1; ///< In the list of port kinds.

} // namespace

SenderDialog *SenderDialog::forNew(const Sender &proposal, QWidget *parent)
{
    return new SenderDialog(proposal, true, parent);
}

SenderDialog *SenderDialog::forChange(const Sender &sender, QWidget *parent)
{
    return new SenderDialog(sender, false, parent);
}

SenderDialog::SenderDialog(const Sender &sender, bool isNew, QWidget *parent)
    : FormDialog(isNew ? QStringLiteral("Add sender") : QStringLiteral("Sender settings"),
                 isNew ? QStringLiteral("Add") : QStringLiteral("Apply"), parent)
    , m_sender(sender)
    , m_name(new LineEditEx(this))
    , m_connection(new LineEditEx(this))
    , m_online(new CheckBoxEx(this))
{
    m_name->setText(sender.name);
    m_name->selectAll();
    m_connection->setText(sender.connection);
    addRow(QStringLiteral("Name"), m_name);
    addRow(QStringLiteral("Connection"), m_connection);
    addRow(QStringLiteral("Online"), m_online);
    m_online->setChecked(sender.isOnline);
    if (isNew)
        addPortFields();
}

Sender SenderDialog::sender() const
{
    Sender sender = m_sender;
    sender.name = m_name->text().trimmed();
    sender.connection = m_connection->text().trimmed();
    sender.isOnline = m_online->isChecked();
    if (m_portCount) {
        for (int number = minPortNumber; number <= m_portCount->value(); ++number) {
            Port port;
            port.number = number;
            port.kind =
                m_portKind->currentIndex() == coaxialIndex ? PortKind::Coaxial : PortKind::Network;
            sender.ports.append(port);
        }
    }
    return sender;
}

void SenderDialog::addPortFields()
{
    m_portCount = new SpinBoxEx(this);
    m_portCount->setRange(minPortNumber, maxPortNumber);
    m_portCount->setValue(proposedPorts);
    m_portKind = new ComboBoxEx(this);
    m_portKind->addItems({QStringLiteral("Network"), QStringLiteral("Coaxial")});
    addRow(QStringLiteral("Ports"), m_portCount);
    addRow(QStringLiteral("Connector"), m_portKind);
}

} // namespace wall
