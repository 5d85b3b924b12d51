#ifndef WIDGETCONTROLLBOARD_H
#define WIDGETCONTROLLBOARD_H

#include "orvanecontrolsglobal.h"

#include <QList>
#include <QPointer>
#include <QString>
#include <QVector>
#include <QWidget>

#include <memory>

class ButtonGroupEx;
class QTimer;
class ShapeWidgetContent;
class WidgetBoard;
class WidgetContent;
struct WidgetInfo;

/**
 * A strip of controller or cabinet buttons that shows what it has no room for in a popup.
 *
 * The strip is a ButtonGroupEx of 230 by 70 pixels. While its buttons are wider than its window,
 * the pointer that enters the board opens a popup below it: a drop-down button, and on a click on
 * that a panel with copies of all the buttons in three columns. The popup goes 300 ms after the
 * pointer has left the board or the drop-down button, unless the panel is open, and when it loses
 * the focus.
 *
 * The board owns the buttons that it is given. A list that replaces another deletes those buttons
 * of the earlier one that are not in it. The board may be deleted in its own signals.
 *
 * \code
 * auto *board = new WidgetControllBoard(window);
 * board->setButtonGroupExLabelText("Controllers");
 * board->setLsWidget(buttons);
 * connect(board, &WidgetControllBoard::signal_itemClicked, window, &Window::useController);
 * \endcode
 */
class ORVANECONTROLS_EXPORT WidgetControllBoard : public QWidget
{
    Q_OBJECT

public:
    /// Builds a board without buttons, owned by \a parent.
    explicit WidgetControllBoard(QWidget *parent = nullptr);
    ~WidgetControllBoard() override;

    /// Fills the strip with the widgets of \a list and the popup with copies of them, in place of
    /// those so far. Each widget is to have a signal clicked(), and the size that its copy is to
    /// have. Null pointers are left out. A copy is
    /// - a tool button of the kind CabinetModelType after setIsAddCabient(true), with the style
    ///   sheet, the cabinet size, the size and the tool tip of its source;
    /// - otherwise a plain tool button with the style sheet, the size and the tool tip;
    /// - but in the next list after addWidgetContent(), a picture button with the pictures, the
    ///   size, the tool tip and the text.
    /// \see lsWidget()
    void setLsWidget(const QList<QWidget *> &list);
    /// The strip's widgets that still exist. \see setLsWidget()
    QList<QWidget *> lsWidget() const;
    /// Appends a picture button of 40 by 40 pixels to the strip, which is filled anew. \a info is
    /// read, not kept, and stays the caller's; null is ignored. A path without a picture gives a
    /// button that shows none.
    void addWidgetContent(WidgetInfo *info);
    /// Deletes the buttons of the strip and their copies, and hides the arrows.
    void removeAllWidget();

    /// Enables or disables the strip; while it is disabled, the popup does not open.
    void setWidgetIsEnabled(bool b);
    /// Sets whether the next list is copied as cabinet models (default false).
    void setIsAddCabient(bool b);
    /// Sets the strip's title.
    void setButtonGroupExLabelText(QString text);
    /// Sets the tool tip of the button that adds cabinets.
    void setAddButtonTooltip(QString toolTip);
    /// Sets the tool tip of the button that adds a row of cabinets.
    void setAddRowCabinetTooTip(QString toolTip);
    /// Shows or hides the button that adds cabinets (shown at first).
    void setButtonGroupExAddCabnicate(bool b);
    /// Shows or hides the button that adds a row of cabinets (shown at first).
    void setButtonGroupExAddRowCabnicate(bool b);
    /// Shows or hides the popup, its drop-down button and its panel.
    void setDropButtonVisible(bool v);

    /// The strip's size.
    QSize sizeHint() const override;
    /// The strip's size.
    QSize minimumSizeHint() const override;

    /// Opens the popup on an enter event of the board, and closes it later. No event is consumed.
    bool eventFilter(QObject *watched, QEvent *event) override;

Q_SIGNALS:
    /// The button that adds cabinets was clicked.
    void signal_addCabietsClicked();
    /// The copy of the widget at \a index of the list was clicked in the popup.
    void signal_itemClicked(int index);
    /// The button that adds a row of cabinets was clicked.
    void signal_addRowCabietsClicked();

private Q_SLOTS:
    void on_notifyShpeWidgetHide();
    void on_clickDropDownBtn(bool shapeWidgetVisible);
    void on_addCabietsClicked();
    void on_itemClicked(int index);
    void slot_timeout();
    void slot_addRowCabietsClicked();

private:
    void createButtonGroup();
    void createShapeContent();
    void createPopup();
    void createTimer();
    void createWidgetBoardList();
    QWidget *createCopy(QWidget *source);
    void deleteCopies();
    void CalculatePos();
    void hidePopup();
    void startLeaving();

    ButtonGroupEx *m_buttonGroup = nullptr;
    std::unique_ptr<WidgetBoard> m_popup;
    QPointer<WidgetContent> m_stripContent;
    ShapeWidgetContent *m_shapeContent = nullptr;
    QVector<QPointer<QWidget>> m_boardList;
    QVector<QPointer<QWidget>> m_lsWidget;
    bool m_hasLeft = true;
    std::unique_ptr<QTimer> m_timer;
    bool m_hostFlag1 = true; ///< Kept for the host; nothing reads it.
    bool m_hostFlag2 = false; ///< Kept for the host; nothing reads it.
    bool m_isToolButtonCopies = true;
    bool m_isAddCabinet = false;
    bool m_isWidgetEnabled = true;
};

#endif // WIDGETCONTROLLBOARD_H
