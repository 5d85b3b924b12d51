#ifndef TOOLBAREX_H
#define TOOLBAREX_H

#include "orvanecontrolsglobal.h"

#include <QFrame>

class QHBoxLayout;
class ToolButtonEx;

/// The side of a ToolBarEx.
enum ToolBarPosition : int {
    LeftPos = 0, ///< The group at the left.
    RightPos = 1, ///< The group at the right end.
};

/**
 * A dark tool bar, 40 pixels high, with a group of buttons or widgets at either end.
 *
 * The groups grow towards each other; separators go to the left group only. The bar owns what it is
 * given, and ignores null and a position that it does not have. It has no signals of its own:
 * connect to the buttons.
 */
class ORVANECONTROLS_EXPORT ToolBarEx : public QFrame
{
    Q_OBJECT

public:
    /// Builds an empty bar, owned by \a parent.
    explicit ToolBarEx(QWidget *parent = nullptr);

    /// Fixes \a button to 30 x 30 pixels and adds it as addWidget() does.
    void addButton(ToolButtonEx *button, ToolBarPosition position);
    /// Puts \a widget, as it is, behind the others at \a position. A widget that is ignored keeps
    /// its parent.
    void addWidget(QWidget *widget, ToolBarPosition position);
    /// Puts a thin vertical line behind the others at the left.
    void addSeparator();

private:
    QHBoxLayout *m_leftLayout = nullptr;
    QHBoxLayout *m_rightLayout = nullptr;
};

#endif // TOOLBAREX_H
