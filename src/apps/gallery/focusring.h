#ifndef GALLERY_FOCUSRING_H
#define GALLERY_FOCUSRING_H

#include <QPointer>
#include <QWidget>

/// Draws a ring around the control that has the keyboard focus, when it came there by keyboard.
///
/// Most of the library's sheets draw nothing for the focus; a ring of the host's own leaves the
/// sheets alone and looks the same around every control.
class FocusRing : public QWidget
{
    Q_OBJECT

public:
    /// Serves all controls in \a window.
    explicit FocusRing(QWidget *window);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

private:
    void follow(QWidget *control);
    void moveToControl();

    QPointer<QWidget> m_window;
    QPointer<QWidget> m_control;
};

#endif // GALLERY_FOCUSRING_H
