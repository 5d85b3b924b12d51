#include "page.h"
#include "pointers.h"

#include <mutexbuttonex.h>
#include <toolbuttonex.h>

namespace
{

/// A plain tool button takes what look the host gives it.
const QString hostSheet =
    QStringLiteral("QToolButton{background:rgb(99,99,99);color:rgb(210,210,210);border:none;}"
                   "QToolButton:hover{background:rgb(87,90,92);}"
                   "QToolButton:checked{background:rgb(66,145,240);color:white;}"
                   "QToolButton:disabled{background:rgb(85,85,85);color:rgb(130,130,130);}");

void addButton(MutexButtonEx *strip, const QString &text, const QString &sheet)
{
    auto *button = new ToolButtonEx(strip, DefaultType, QString(), QString());
    button->setStyleSheet(sheet);
    strip->addButton(button);
    button->setText(text); // elided to the width that it has now
    button->show();
}

MutexButtonEx *makeStrip(QWidget *parent, const QStringList &texts, const QString &sheet,
                         QSize button = {38, 26}, int space = 0)
{
    auto *strip = new MutexButtonEx(parent);
    strip->setButtonWidth(button.width());
    strip->setButtonHeight(button.height());
    strip->setButtonSpace(space);
    for (const QString &text : texts)
        addButton(strip, text, sheet);
    strip->findChild<ToolButtonEx *>()->setChecked(true);
    return strip;
}

const QStringList zooms = {"50%", "100%", "200%"};

} // namespace

GALLERY_PAGE(MutexButtonEx)
{
    page.setPurpose("A strip of buttons of which one at most is checked: a switch with segments.");

    page.setStates({{"Normal", State::Normal},
                    {"Second hovered", State::Hover, pointers::onCentre,
                     [](QWidget *strip) -> QWidget * {
                         return strip->findChildren<ToolButtonEx *>().value(1);
                     }},
                    {"Disabled", State::Disabled}});
    page.look("Host's look", [](QWidget *parent) { return makeStrip(parent, zooms, hostSheet); });
    page.look("Larger, gaps", [](QWidget *parent) {
        return makeStrip(parent, zooms, hostSheet, {48, 32}, 1);
    });
    page.look("No look", [](QWidget *parent) { return makeStrip(parent, zooms, QString()); });

    using W = MutexButtonEx;
    W *strip = page.tryIt(makeStrip(nullptr, zooms, hostSheet, {48, 26}, 1));
    const QList<ToolButtonEx *> buttons = strip->findChildren<ToolButtonEx *>();
    for (ToolButtonEx *button : buttons)
        page.event(button, button->text() + ": toggled", &QAbstractButton::toggled);

    page.number<W>("setButtonWidth", Page::withoutGetter(48), &W::setButtonWidth, 16, 96,
                   Reach::TryIt);
    page.number<W>("setButtonHeight", Page::withoutGetter(26), &W::setButtonHeight, 16, 64,
                   Reach::TryIt);
    page.number<W>("setButtonSpace", Page::withoutGetter(1), &W::setButtonSpace, 0, 32,
                   Reach::TryIt);
    page.action<W>(
        "addButton()", [](W *strip) { addButton(strip, "Fit", hostSheet); }, Reach::TryIt);
}
