#ifndef WIDGETWITHSCROLLEX_H
#define WIDGETWITHSCROLLEX_H

#include "orvanecontrolsglobal.h"

#include <QFrame>

#include <memory>

class QLabel;
class QToolButton;

namespace Ui
{
class WidgetWithScrollEx;
}

/**
 * A horizontal strip that shows one wide widget through a fixed window of 138 by 69 pixels.
 *
 * There are no scroll bars: a left and a right arrow move the content by a step, and each shows
 * only while there is somewhere to scroll to. An empty label keeps the place of a hidden arrow, so
 * nothing else moves when an arrow comes or goes.
 *
 * The strip keeps its own record of the scroll position. Content that was scrolled by other means
 * is scrolled on from the record by the next click.
 *
 * The strip and its content are laid out from left to right in every language: an arrow stands at
 * the side that it points to.
 */
class ORVANECONTROLS_EXPORT WidgetWithScrollEx : public QFrame
{
    Q_OBJECT

public:
    /// Builds a strip without content and without arrows, owned by \a parent.
    explicit WidgetWithScrollEx(QWidget *parent = nullptr);
    ~WidgetWithScrollEx() override;

    /// Creates the arrows and their placeholders. The constructor calls it; another call lays new
    /// ones over them.
    void createScrollButton();
    /// Follows the scroll range, takes over the scroll position, sets the step to 74 and hides both
    /// arrows. The constructor calls it.
    void initControls();
    /// Applies the strip's own sheet.
    void initStyle();

    /// Shows \a w, which the strip owns from now on, in place of the content so far, which is
    /// deleted. Content wider than the window brings the right arrow; otherwise the arrows stay as
    /// they are. The width is taken now, so size \a w first. Null is ignored.
    void addWidget(QWidget *w);
    /// Deletes the content, if there is any. The arrows stay as they are.
    void removeWidget();

    /// Shows the left arrow, or its placeholder.
    void setLeftButtonVisible(bool b);
    /// Shows the right arrow, or its placeholder.
    void setRightButtonVisible(bool b);

    /// Sets by how many pixels a click on an arrow scrolls (default 74). Any number is taken; below
    /// 0 the arrows go the other way.
    /// \see scrollSingleStepValue()
    void setScrollSingleStepValue(int value);
    /// By how many pixels a click on an arrow scrolls. \see setScrollSingleStepValue()
    int scrollSingleStepValue() const;

public Q_SLOTS:
    /// Takes note of the range in pixels that the arrows scroll in; its scroll bar reports it.
    void on_rangChanged(int min, int max);
    /// Scrolls a step to the left and brings the right arrow; the last step hides the left one.
    void on_leftClicked();
    /// Scrolls a step to the right and brings the left arrow; the last step hides the right one.
    void on_rightClicked();

protected:
    /// Keeps the arrows and the content from left to right, whatever the strip's direction.
    void changeEvent(QEvent *event) override;

private:
    friend class RowLineItem;
    /// A strip that begins with \a sheet: a row's strip never shows the one of its own.
    WidgetWithScrollEx(const QString &sheet, QWidget *parent);

    std::unique_ptr<Ui::WidgetWithScrollEx> m_ui;
    QToolButton *m_leftButton = nullptr;
    QToolButton *m_rightButton = nullptr;
    QLabel *m_leftPlaceholder = nullptr;
    QLabel *m_rightPlaceholder = nullptr;
    int m_scrollSingleStepValue{};
    int m_position{};
    int m_rangeMaximum = 0;
    int m_rangeMinimum = 0;
};

#endif // WIDGETWITHSCROLLEX_H
