#ifndef OFFLINEPORTITEMFRAME_H
#define OFFLINEPORTITEMFRAME_H

#include "itemtype.h"
#include "orvanecontrolsglobal.h"

#include <QFrame>

#include <memory>

namespace Ui
{
class OfflinePortItemFrame;
}

/**
 * One port of a device that is offline: its number and its button, without cabinets.
 *
 * The frame reports a press on the button and leaves it to the host to mark the frame as pressed,
 * released or disabled. The pictures of the button carry the port's number and exist for the ports
 * 1 to 16; a button with another number shows none.
 */
class ORVANECONTROLS_EXPORT OfflinePortItemFrame : public QFrame
{
    Q_OBJECT

public:
    /// Builds a frame without a port, owned by \a parent. The button has no look until
    /// setLineItemType().
    explicit OfflinePortItemFrame(QWidget *parent = nullptr);
    ~OfflinePortItemFrame() override;

    /// Sets the port's number, any number, which the label shows from now on, and its type, and
    /// shows the pictures of the released or the disabled button. \see portIndex()
    void setLineItemType(int portIndex, ItemType type);
    /// Shows the picture of the pressed button, if the button is enabled.
    void setItemPressed();
    /// Shows the pictures of the released button, if the button is enabled.
    void setItemReleased();
    /// Disables or enables the button. An enabled one always shows the released pictures.
    void setItemDisabled(bool disabled);
    /// Whether the button is enabled.
    bool getItemIsEnabled();

    /// Makes the label show \a i + 1, for any number, and nothing else: portIndex() and the
    /// pictures stay.
    void setPortIndex(int i);
    /// The port's number, -1 until set. \see setLineItemType()
    int portIndex() const;

Q_SIGNALS:
    /// The button of \a portItem, this frame, went down. The frame may be deleted here.
    void signal_portItemPressed(OfflinePortItemFrame *portItem);

protected:
    /// Keeps the number beside its button when the direction of the layout changes.
    void changeEvent(QEvent *event) override;

private Q_SLOTS:
    void on_itemPressed();

private:
    void setNumber(qint64 number);
    void alignNumber();

    std::unique_ptr<Ui::OfflinePortItemFrame> m_ui;
    int m_portIndex = -1;
    ItemType m_itemType = PortItem;
    bool m_isPressed = false; ///< For the host's inspection; the look does not follow from it.
};

#endif // OFFLINEPORTITEMFRAME_H
