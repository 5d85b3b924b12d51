#ifndef PUSHBUTTONEX_H
#define PUSHBUTTONEX_H

#include "orvanecontrolsglobal.h"

#include <QColor>
#include <QPushButton>
#include <QString>

#include <memory>

namespace orvane
{
struct CommandLook;
}

/// The kind of a PushButtonEx. Any other value is the plain kind.
enum BtnType : int {
    ActivatedBtn = 0, ///< The accented look of a main action.
    NoActivatedBtn = 1, ///< The grey look of a secondary action.
};

/**
 * A command button whose look is chosen once, at construction, by its kind.
 *
 * The activated look marks the main action, the not-activated look a secondary one, and a plain
 * button has white text on the inherited ground. There are no appearance setters. The button has no
 * signals of its own: connect to clicked().
 */
class ORVANECONTROLS_EXPORT PushButtonEx : public QPushButton
{
    Q_OBJECT

public:
    /// Builds a button of kind \a type without text, owned by \a parent, with its look in force.
    PushButtonEx(QWidget *parent, BtnType type);
    ~PushButtonEx() override;

    /// Sets the colours of kind \a type to their defaults and applies its sheet; a kind that is
    /// neither of the two gets the plain sheet and no colours.
    void createButtonByType(BtnType type);

    /// Sets the colours and the radius of the activated look to their defaults. The sheet stays.
    void initActivatedButtonParam();
    /// Sets the colours and the radius of the not-activated look to their defaults. The sheet
    /// stays.
    void initNoActivatedButtonParam();

    /// Composes the sheet of the activated look and applies it to the button.
    void setActivatedStyle();
    /// Composes the sheet of the not-activated look and applies it to the button.
    void setNoActivatedStyle();

    /// Shows \a text, elided at its right end when it is wider than the button; the tool tip then
    /// holds the full text, otherwise it is empty. Measured now: a later resize does not elide
    /// anew. \see text()
    void setText(const QString &text);
    /// The full text last set, elided or not. \see setText()
    QString text() const;

    /// The text of a colour in a sheet: "#rrggbb", "#aarrggbb" when translucent, "#000000" when
    /// invalid.
    QString fromColorToStr(QColor color);

private:
    // Both sets stay: the one that the kind does not use is unset, with invalid colours.
    std::unique_ptr<orvane::CommandLook> m_noActivatedLook;
    std::unique_ptr<orvane::CommandLook> m_activatedLook;
    QString m_text;
};

#endif // PUSHBUTTONEX_H
