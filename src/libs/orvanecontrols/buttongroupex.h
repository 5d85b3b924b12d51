#ifndef BUTTONGROUPEX_H
#define BUTTONGROUPEX_H

#include "orvanecontrolsglobal.h"

#include <QFrame>
#include <QPointer>
#include <QString>

#include <memory>

class QLabel;
class ToolButtonEx;

namespace Ui
{
class ButtonGroupEx;
}

/**
 * A titled strip that scrolls one row of buttons between a left and a right arrow.
 *
 * Before the row stand a button that adds cabinets and one that adds a row of cabinets, below it
 * the title. The arrows show only when the row is wider than its window; an empty label keeps the
 * place of a hidden arrow. Like WidgetWithScrollEx, the strip scrolls on from its own record of the
 * position. It may be deleted in its own signals.
 *
 * The arrows and the add-row button have no pictures of their own. A host gives them some in its
 * application's style sheet, by the properties that they carry:
 *
 * \code
 * ToolButtonEx[isCabinateWidgetLeftBtn="true"]{border-image: url(:/left.png);}
 * ToolButtonEx[isCabinateWidgetRightBtn="true"]{border-image: url(:/right.png);}
 * ToolButtonEx[isAddRowCabnicateBtn="true"]{border-image: url(:/row.png);}
 * \endcode
 */
class ORVANECONTROLS_EXPORT ButtonGroupEx : public QFrame
{
    Q_OBJECT

public:
    /// Builds a strip without content and without arrows, owned by \a parent.
    explicit ButtonGroupEx(QWidget *parent = nullptr);
    ~ButtonGroupEx() override;

    /// Creates the arrows and their placeholders. The constructor calls it; another call of it, or
    /// of the two functions below, lays new buttons over those that are there.
    void createScrollBtn();
    /// Creates the button that adds cabinets. The constructor calls it.
    void createAddCabnicateBtn();
    /// Creates the button that adds a row of cabinets. The constructor calls it.
    void createAddRowCabnicateBtn();
    /// Applies the strip's own sheet.
    void initStyle();

    /// Shows \a w, which the strip owns from now on, in place of the content so far, which is
    /// deleted. Content wider than the window brings the right arrow, other content no arrow. The
    /// width is taken now; content that was never resized gets its size hint first. Null is
    /// ignored.
    void addWidget(QWidget *w);
    /// Shows the right arrow alone, or no arrow.
    void setScrollBtnIsVisble(bool b);
    /// Shows or hides the button that adds cabinets (shown at first).
    void setAddBtnVisible(bool b);
    /// Shows or hides the button that adds a row of cabinets (shown at first).
    void setAddRowCabincateBtnVisible(bool b);
    /// Sets the tool tip of the button that adds cabinets.
    void setAddButtonToolTip(QString toolTip);
    /// Sets the tool tip of the button that adds a row of cabinets.
    void setAddRowCabincateBtnToolTip(QString toolTip);
    /// Sets the title. From then on a disabled title has its own colour.
    void setLabelText(QString text);
    /// Enables or disables the buttons, the title, the arrows and the content, if there is any.
    void setFrameIsEnabled(bool b);

    /// The width in pixels of the window that the content is seen through.
    int getScrollAreaWidth();
    /// Whether the content was wider, when it was added, than the window is now; false without
    /// content.
    bool isWidthBigThanScrollWidth();

Q_SIGNALS:
    /// For the host's use: the strip itself never emits it.
    void sigShow();
    /// For the host's use: the strip itself never emits it.
    void sigHide();
    /// One of the strip's own buttons was clicked while the content is wider than its window: a
    /// panel that shows the whole content should hide.
    void notifyShpeWidgetHide();
    /// The button that adds cabinets was clicked.
    void signal_addCabinetsClicked();
    /// The button that adds a row of cabinets was clicked.
    void signal_addRowCabinetsClicked();

public Q_SLOTS:
    /// Takes note of the range in pixels that the arrows scroll in; its scroll bar reports it.
    void on_getScrollerRange(int min, int max);
    /// Scrolls a step to the left and brings the right arrow; the last step hides the left one.
    void on_leftClicked();
    /// Scrolls a step to the right and brings the left arrow; the last step hides the right one.
    void on_rightClicked();
    /// Reports a click on the button that adds cabinets.
    void on_addCabnicate();
    /// Reports a click on the button that adds a row of cabinets.
    void slot_addRowCabnicate();

protected:
    /// Keeps the arrows and the content from left to right, whatever the strip's direction.
    void changeEvent(QEvent *event) override;

private:
    void setLeftArrowVisible(bool visible);
    void setRightArrowVisible(bool visible);
    void layOutScrollArea();
    void notifyIfContentIsWide();

    std::unique_ptr<Ui::ButtonGroupEx> m_ui;
    ToolButtonEx *m_leftButton = nullptr;
    ToolButtonEx *m_rightButton = nullptr;
    QLabel *m_leftPlaceholder = nullptr;
    QLabel *m_rightPlaceholder = nullptr;
    ToolButtonEx *m_addButton = nullptr;
    ToolButtonEx *m_addRowButton = nullptr;
    int m_step{};
    int m_position{};
    int m_rangeMaximum = 0;
    int m_rangeMinimum = 0;
    int m_contentWidth{};
    QPointer<QWidget> m_contentWidget;
};

#endif // BUTTONGROUPEX_H
