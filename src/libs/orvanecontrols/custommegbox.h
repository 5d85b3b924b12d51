#ifndef CUSTOMMEGBOX_H
#define CUSTOMMEGBOX_H

#include "orvanecontrolsglobal.h"

#include <QString>

class QWidget;

/**
 * Messages in one call: each function builds a CustomMessageBox over its parent (a null parent
 * centres it on the screen), runs it modally and returns how it ended.
 *
 * The result is 1 for OK, Return and Enter, 0 for cancel and Escape, and also when the parent was
 * destroyed meanwhile, 2 for apply, 255 for the close button. The texts of hidden buttons do not
 * matter.
 */
class ORVANECONTROLS_EXPORT CustomMegBox
{
public:
    /// There are no instances.
    CustomMegBox() = delete;

    /// A note, with an OK button.
    static int informationMessageBox(QWidget *parent, QString title, QString text, QString okText);
    /// A warning, with an OK button.
    static int waringMessageBox(QWidget *parent, QString title, QString text, QString okText);
    /// An error, with an OK button.
    static int criticalMessageBox(QWidget *parent, QString title, QString text, QString okText);
    /// A question, with an OK and a cancel button.
    static int questionMessageBox(QWidget *parent, QString title, QString text, QString okText,
                                  QString cancelText);
    /// A question, with an apply button besides. For \a keepOpen see
    /// CustomMessageBox::setBoxInformation().
    static int questionMessageBox(QWidget *parent, QString title, QString text, bool keepOpen,
                                  QString applyText, QString okText, QString cancelText);
    /// The same with buttons of these widths in pixels, 30 pixels high, and a close button if
    /// \a closeVisible is set.
    static int tipMessageBox(QWidget *parent, QString title, QString text, bool keepOpen,
                             QString applyText, QString okText, QString cancelText,
                             bool closeVisible, int applyWidth, int okWidth, int cancelWidth);
};

#endif // CUSTOMMEGBOX_H
