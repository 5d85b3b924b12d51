#ifndef WALL_WALLPAGE_SENDERDIALOG_H
#define WALL_WALLPAGE_SENDERDIALOG_H

#include "formdialog.h"
#include "model/values.h"

class CheckBoxEx;
class ComboBoxEx;
class LineEditEx;
class SpinBoxEx;

namespace wall
{

/// Asks for a sender: for all of a new one, or for what can be changed of one that is there.
class SenderDialog : public FormDialog
{
    Q_OBJECT

public:
    /// Asks for a new sender that has the id and the name of \a proposal.
    static SenderDialog *forNew(const Sender &proposal, QWidget *parent);
    /// Asks for name, connection and online state of \a sender.
    static SenderDialog *forChange(const Sender &sender, QWidget *parent);

    /// The sender as the fields say.
    Sender sender() const;

private:
    SenderDialog(const Sender &sender, bool isNew, QWidget *parent);
    void addPortFields();

    Sender m_sender;
    LineEditEx *m_name;
    LineEditEx *m_connection;
    CheckBoxEx *m_online;
    SpinBoxEx *m_portCount = nullptr; ///< Only for a new sender.
    ComboBoxEx *m_portKind = nullptr; ///< Only for a new sender.
};

} // namespace wall

#endif // WALL_WALLPAGE_SENDERDIALOG_H
