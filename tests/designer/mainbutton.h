#ifndef ORVANE_TESTS_MAINBUTTON_H
#define ORVANE_TESTS_MAINBUTTON_H

#include <orvanecontrols/pushbuttonex.h>

/// What a PushButtonEx of a form is promoted to, so that code made by uic can build it.
class MainButton : public PushButtonEx
{
    Q_OBJECT

public:
    explicit MainButton(QWidget *parent = nullptr)
        : PushButtonEx(parent, NoActivatedBtn)
    {
    }
};

#endif // ORVANE_TESTS_MAINBUTTON_H
