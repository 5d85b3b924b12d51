#ifndef WINDOWTITLE_H
#define WINDOWTITLE_H

#include "orvanecontrolsglobal.h"

#include <QFrame>
#include <QPoint>
#include <QSize>
#include <QString>

class QHBoxLayout;
class QLabel;
class QMouseEvent;
class QPushButton;

/**
 * The title bar of a frameless window: a logo picture and a logo text at the left, and the buttons
 * that minimise, maximise or restore, and close at the right.
 *
 * The title does nothing to its window: it reports clicks and double-clicks. Presses, moves and
 * releases outside the buttons go on to its parent, so that the parent can be dragged by the title.
 *
 * It is the same in every language: the buttons are at the right when all else is laid out from
 * right to left, too.
 *
 * The logo is empty until the host sets it. Its two labels are in no layout: they stay at the
 * title's top-left corner, the text over the picture. A host that shows both sets their geometry
 * itself. The construction makes Qt print two warnings about the layout that the labels do not get;
 * they can be ignored.
 *
 * A size that no widget can have becomes the nearest one. The title may be deleted in its own
 * signals.
 */
class ORVANECONTROLS_EXPORT WindowTitle : public QFrame
{
    Q_OBJECT

public:
    /// Builds a frame without labels and buttons, owned by \a parent. Of the functions below only
    /// rebuildUI() may be called on it; the others need what the other constructor builds.
    explicit WindowTitle(QWidget *parent = nullptr);
    /// Builds the whole title with the fixed size \a size in pixels, owned by \a parent. It offers
    /// to maximise.
    explicit WindowTitle(QSize size, QWidget *parent = nullptr);
    ~WindowTitle() override;

    /// Gives the title the fixed size \a size in pixels.
    void rebuildUI(QSize size);
    /// Shows what the maximise button does: with true it offers to restore the window, which is
    /// maximised now, with false to maximise it.
    void setBtnMax(bool isMaximized);

    /// Gives the logo picture the fixed size \a size in pixels, 23 by 18 at first.
    void SetLogoImageSize(const QSize &size);
    /// Shows the picture of \a path, a file or a resource, stretched over the logo picture's size;
    /// none if there is no such picture.
    void SetLogoImagePath(const QString &path);
    /// Gives the logo text the fixed size \a size in pixels, 100 by 18 at first.
    void SetLogoTextSize(const QSize &size);
    /// Sets the style sheet of the logo text, empty at first.
    void SetLogoTextStyleSheet(const QString &styleSheet);
    /// Sets the logo text.
    void SetLogoTextValue(const QString &text);

    /// Shows or hides the three buttons.
    void SetBtnGroupVisable(bool isVisible);
    /// Shows or hides the logo's picture and text.
    void SetLogoGroupVisable(bool isVisible);

    /// Sets the tool tip of the minimise button, empty at first.
    void SetMinBtnToolTip(const QString &toolTip);
    /// Sets the tool tip of the maximise button, empty at first.
    void SetMaxBtnToolTip(const QString &toolTip);
    /// Sets the tool tip of the close button, empty at first.
    void SetCloseBtnToolTip(const QString &toolTip);

Q_SIGNALS:
    /// The minimise button was clicked.
    void signal_minimizeMainForm();
    /// The maximise button was clicked.
    void signal_maxMainForm();
    /// The close button was clicked.
    void signal_closeMainForm();
    /// The title was double-clicked, with any mouse button.
    void signal_mouseDoubleClickIntitle();
    /// For hosts; the title does not emit it.
    void signal_test();
    /// For hosts; the title does not emit it.
    void signal_mouseMoveIntitle(QMouseEvent *event);
    /// For hosts; the title does not emit it.
    void signal_mousePressIntitle(QPoint);
    /// For hosts; the title does not emit it.
    void signal_mouseReleaseIntitle(QPoint);

protected:
    /// Emits signal_mouseDoubleClickIntitle(), whatever the button.
    void mouseDoubleClickEvent(QMouseEvent *event) override;
    /// Keeps the buttons at the right, whatever the direction of the layout.
    void changeEvent(QEvent *event) override;

private:
    void buildLogo();
    void buildButtons();

    QSize m_titleSize;
    QLabel *m_logoImage = nullptr;
    QLabel *m_logoText = nullptr;
    QPushButton *m_closeButton = nullptr;
    QPushButton *m_minimizeButton = nullptr;
    QPushButton *m_maximizeButton = nullptr;
    QHBoxLayout *m_mainLayout = nullptr;
    QHBoxLayout *m_logoLayout = nullptr;
    QHBoxLayout *m_buttonLayout = nullptr;
};

#endif // WINDOWTITLE_H
