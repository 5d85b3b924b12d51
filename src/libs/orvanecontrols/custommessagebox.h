#ifndef CUSTOMMESSAGEBOX_H
#define CUSTOMMESSAGEBOX_H

#include "orvanecontrolsglobal.h"

#include <QDialog>
#include <QPixmap>
#include <QPoint>
#include <QPointer>
#include <QString>

#include <memory>

class PushButtonEx;

namespace Ui
{
class CustomMessageBox;
}

/**
 * A modal message: a title, a picture, a text and up to three buttons, in a frameless window with a
 * soft shadow that is dragged by any place on it.
 *
 * Create a box with `new`, fill it with setBoxInformation() and run it with exec(), which returns 1
 * for OK, Return and Enter, 0 for cancel and Escape, 2 for apply and 255 for the close button. A
 * closed box deletes itself, so after exec() only that value is left of it. When the parent is
 * destroyed while the box is open, the box goes with it and exec() returns 0. CustomMegBox does all
 * this in one call.
 *
 * The OK button has the focus first. A focused button answers Return and Enter itself; a box
 * without one answers them with 1.
 *
 * The pictures of the close button are the host's: it provides
 * ":/Resource/Image/titleBar/btn_close_normal@2x.png", "..._hover@2x.png" and "..._pressed@2x.png"
 * among its resources, and ":/Resource/Image/logo.png" as the window's icon.
 */
class ORVANECONTROLS_EXPORT CustomMessageBox : public QDialog
{
    Q_OBJECT

public:
    /// Builds a box of 400 by 203 pixels with three buttons without texts, owned by \a parent and
    /// centred on it.
    explicit CustomMessageBox(QWidget *parent = nullptr);
    ~CustomMessageBox() override;

    /// Fills the box, makes OK its default button, and widens it when \a text is wider than its
    /// label: by what is missing up to 300 pixels; by 280 when it is more, and then also makes it
    /// higher by one line for each whole 300. Its centre stays on the parent. The width of a text
    /// of many lines is that of all its lines in a row. A button's text is elided to the button's
    /// width at this time. An \a icon larger than 40 by 40 pixels is cut.
    ///
    /// \a keepOpenOnApply only decides whether close() is called after the apply button: exec()
    /// ends either way.
    void setBoxInformation(QString title, QString text, QPixmap icon, bool keepOpenOnApply,
                           bool hideOk, bool hideCancel, bool hideApply, QString applyText,
                           QString okText, QString cancelText);
    /// Shows or hides the close button in the title (hidden at first).
    void setCloseBtnIsVisible(bool isVisible);
    /// Gives the apply button a fixed size in pixels (default 64 by 30); a size that no widget can
    /// have becomes the nearest one. Call it before setBoxInformation(), which elides the text to
    /// the button.
    void setAppltBtnSize(int w, int h);
    /// The same for the OK button.
    void setOkBtnSize(int w, int h);
    /// The same for the cancel button.
    void setCancleBtnSize(int w, int h);

    /// Centres the box on \a parent. Where that would begin left of or above the screen's origin,
    /// the offset inside the parent is taken as the position. Without a parent the box is centred
    /// by the size of the primary screen.
    void moveWindow(QWidget *parent);
    /// Sets the window up and creates the buttons, if there are none. The constructor calls it.
    void createControls();

public Q_SLOTS:
    /// Ends the box with 1.
    void on_handleOkClicked();
    /// Ends the box with 0.
    void on_handleCancelClicked();
    /// Ends the box with 2, and also closes it unless it is to be kept open on apply.
    void on_handleApplyClicked();
    /// Ends the box with 255 and closes it.
    void slot_closeBtnClicked();

protected:
    /// Accepts the box on Return and Enter. Every key then goes to QDialog, if the box still
    /// exists: Escape rejects it.
    void keyPressEvent(QKeyEvent *event) override;
    /// Starts to move the box with the left button.
    void mousePressEvent(QMouseEvent *event) override;
    /// Moves the box along while the left button is held.
    void mouseMoveEvent(QMouseEvent *event) override;
    /// Ends the move, whatever the button.
    void mouseReleaseEvent(QMouseEvent *event) override;
    /// Paints the ground and, around it, the shadow.
    void paintEvent(QPaintEvent *event) override;

private:
    /// False when the box did not survive its own end.
    bool finishWith(int result);

    std::unique_ptr<Ui::CustomMessageBox> m_ui;
    PushButtonEx *m_applyButton = nullptr;
    PushButtonEx *m_okButton = nullptr;
    PushButtonEx *m_cancelButton = nullptr;
    bool m_isDragging = false;
    QPoint m_dragOffset;
    bool m_keepOpenOnApply = false;
    int m_result = 255; ///< As when the close button ended the box, until something has.
    QPointer<QWidget> m_parentWidget;
};

#endif // CUSTOMMESSAGEBOX_H
