// Not CUSTOMWIDGET_H: a header of Qt's user-interface plugins has that guard.
#ifndef ORVANE_CUSTOMWIDGET_H
#define ORVANE_CUSTOMWIDGET_H

#include "orvanecontrolsglobal.h"

#include <QWidget>

class QHBoxLayout;
class QLabel;
class QToolButton;

/**
 * A row of three parts: a dark block of 36 pixels, a blue label with a text, and a tool button of
 * 20 by 20 pixels.
 *
 * There is nothing to set. A host that wants to change a part finds it among the children.
 */
class ORVANECONTROLS_EXPORT CustomWidget : public QWidget
{
    Q_OBJECT

public:
    /// Builds the row with the text "unknow", owned by \a parent.
    explicit CustomWidget(QWidget *parent = nullptr);

private:
    QHBoxLayout *m_layout = nullptr;
    QLabel *m_leftLabel = nullptr;
    QLabel *m_textLabel = nullptr;
    QToolButton *m_button = nullptr;
};

#endif // ORVANE_CUSTOMWIDGET_H
