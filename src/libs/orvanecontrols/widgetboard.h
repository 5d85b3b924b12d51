#ifndef WIDGETBOARD_H
#define WIDGETBOARD_H

#include "orvanecontrolsglobal.h"

#include <QFrame>

class QPoint;
class QToolButton;
class ShapeWidget;

/**
 * The popup of a controller board: a drop-down button, and under it a panel for one widget.
 *
 * Button and panel are hidden at first. The button is placed by hand, in the 20 pixels that the
 * panel leaves free above itself. A click on it does nothing but report whether the panel is to be
 * shown or hidden; the receiver does it. A popup that loses the focus, to anything but its own
 * content, hides both and itself.
 */
class ORVANECONTROLS_EXPORT WidgetBoard : public QFrame
{
    Q_OBJECT

public:
    /// Builds a popup without content, owned by \a parent. It is a window if the owner makes it
    /// one.
    explicit WidgetBoard(QWidget *parent = nullptr);
    ~WidgetBoard() override;

    /// Shows \a widget in the panel, which owns it from now on and deletes the one so far. A null
    /// pointer is ignored. \see ShapeWidget::addWidget()
    void addWidget(QWidget *widget);
    /// The drop-down button, which the popup owns.
    QToolButton *dropDownBtn() const;

    /// Shows or hides the panel.
    void setShapeWidgetVisible(bool visible);
    /// Whether the panel is seen; a panel of a hidden popup is not. \see setShapeWidgetVisible()
    bool shapeWidgetVisible() const;
    /// Shows or hides the drop-down button.
    void setDropButoonVisible(bool visible);
    /// Whether the drop-down button is seen. \see setDropButoonVisible()
    bool dropDownButtonVisible() const;

    /// Moves the drop-down button to \a pos, in pixels inside the popup.
    void setDropDownBtnPos(QPoint pos);
    /// Moves the panel's arrow. \see ShapeWidget::setTriggleBtnPos()
    void setTriggleBtnPos(QPoint pos);

    /// Sets the recorded width of the arrow in pixels, any number; nothing is resized. The same
    /// holds for the three functions of its kind below. \see triggleBtnWidth()
    void setTriggleBtnWidth(int width);
    /// The recorded width of the arrow, 20 at first. \see setTriggleBtnWidth()
    int triggleBtnWidth() const;
    /// Sets the recorded height of the arrow; nothing is resized. \see triggleBtnHeight()
    void setTriggleBtnHeight(int height);
    /// The recorded height of the arrow, 8 at first. \see setTriggleBtnHeight()
    int triggleBtnHeight() const;
    /// Sets the recorded width of the drop-down button; nothing is resized. \see dropDownBtnWidth()
    void setDropDownBtnWidth(int width);
    /// The recorded width of the drop-down button, 54 at first. \see setDropDownBtnWidth()
    int dropDownBtnWidth() const;
    /// Sets the recorded height of the drop-down button; nothing is resized.
    /// \see dropDownBtnHeight()
    void setDropDownBtnHeight(int height);
    /// The recorded height of the drop-down button, 20 at first. \see setDropDownBtnHeight()
    int dropDownBtnHeight() const;

Q_SIGNALS:
    /// The drop-down button was clicked; the panel is to be shown or hidden, as the flag says. The
    /// popup may be deleted here.
    void sigClickedDropDownBtn(bool shapeWidgetVisible);

public Q_SLOTS:
    /// Reports a click on the drop-down button.
    void on_dropDownClicked();

protected:
    /// Hides the popup when the focus goes elsewhere than to a widget in it.
    void focusOutEvent(QFocusEvent *event) override;
    /// Hides the popup when its window is no longer the active one.
    void changeEvent(QEvent *event) override;

private:
    void createShapeWidget();
    void createDropDownBtn();
    void hideEverything();

    ShapeWidget *m_shapeWidget = nullptr;
    QToolButton *m_dropDownButton = nullptr;
    int m_dropDownBtnWidth{};
    int m_dropDownBtnHeight{};
    int m_triggleBtnWidth{};
    int m_triggleBtnHeight{};
    bool m_isReportingClick = false;
};

#endif // WIDGETBOARD_H
