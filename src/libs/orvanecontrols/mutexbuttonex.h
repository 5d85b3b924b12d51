#ifndef MUTEXBUTTONEX_H
#define MUTEXBUTTONEX_H

#include "orvanecontrolsglobal.h"

#include <QFrame>

#include <memory>

class QButtonGroup;
class ToolButtonEx;

/**
 * A strip of buttons of which one at most is checked: a switch with segments.
 *
 * The buttons lie side by side at fixed places, in the order in which they are added. Width, height
 * and gap hold for the buttons that are added after they are set. The strip has no signals of its
 * own: connect to the buttons. Any number is taken as a length; places and sizes that no widget can
 * have become the nearest ones.
 */
class ORVANECONTROLS_EXPORT MutexButtonEx : public QFrame
{
    Q_OBJECT

public:
    /// Builds a strip without buttons, owned by \a parent.
    explicit MutexButtonEx(QWidget *parent = nullptr);
    ~MutexButtonEx() override;

    /// Makes \a button checkable, puts it behind the others and fixes the size of the strip. The
    /// button keeps its parent: make it as a child of the strip, which owns it then. Null is
    /// ignored.
    void addButton(ToolButtonEx *button);

    /// Sets the width of buttons to come in pixels (default 38).
    void setButtonWidth(int width);
    /// Sets the height of buttons to come in pixels (default 26).
    void setButtonHeight(int height);
    /// Sets the gap before buttons to come in pixels (default 0; below 0 they overlap).
    void setButtonSpace(int space);

private:
    std::unique_ptr<QButtonGroup> m_buttonGroup;
    int m_buttonWidth = 38;
    int m_buttonHeight = 26;
    int m_buttonSpace = 0;
};

#endif // MUTEXBUTTONEX_H
