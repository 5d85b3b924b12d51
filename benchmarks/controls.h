#ifndef CONTROLS_H
#define CONTROLS_H

#include <QString>

#include <functional>
#include <vector>

class QWidget;

/// A control to measure, in a size and with contents as hosts use it.
struct Control {
    const char *name;
    int count; ///< How many are measured together.
    std::function<QWidget *(QWidget *parent)> make;
    /// Sets one of two values, 0 or 1, in turns. Without it the control has no look to set, and it
    /// is polished anew instead.
    std::function<void(QWidget *widget, int value)> restyle;
    /// What bare Qt needs code of its own for; without it Twin builds the same.
    std::function<QWidget *(QWidget *parent)> makeBare;
};

const std::vector<Control> &allControls();

#endif // CONTROLS_H
