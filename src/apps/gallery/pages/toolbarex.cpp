#include "page.h"
#include "pointers.h"

#include <comboboxex.h>
#include <toolbarex.h>
#include <toolbuttonex.h>

namespace
{

ToolButtonEx *makeButton(const QString &picture, const QString &toolTip)
{
    auto *button = new ToolButtonEx(nullptr, DefaultType, QString(), QString());
    button->setToolTip(toolTip);
    button->setStyleSheet(
        QStringLiteral("QToolButton{border-image:url(:/Resource/Images/globalResource/%1);}"
                       "QToolButton:hover{background:rgb(80,80,80);}"
                       "QToolButton:pressed{background:rgb(66,145,240);}")
            .arg(picture));
    return button;
}

ToolBarEx *makeBar(QWidget *parent, int width, bool withSettings, bool withBox)
{
    auto *bar = new ToolBarEx(parent);
    bar->addButton(makeButton("toolbutton/cursor.png", "Move"), LeftPos);
    bar->addButton(makeButton("toolbutton/mouseAdd.png", "Add"), LeftPos);
    bar->addSeparator();
    bar->addButton(makeButton("drawer/netport.png", "Network ports"), LeftPos);
    bar->addButton(makeButton("drawer/coaxial.png", "Coaxial ports"), LeftPos);
    if (withBox) {
        auto *box = new ComboBoxEx(nullptr);
        box->setFixedSize(112, theme::controlHeight);
        box->addItems({"Screen 1", "Screen 2"});
        bar->addWidget(box, RightPos);
    }
    if (withSettings)
        bar->addButton(makeButton("drawer/settings_normal.png", "Settings"), RightPos);
    bar->setFixedWidth(width);
    return bar;
}

} // namespace

GALLERY_PAGE(ToolBarEx)
{
    page.setPurpose("A dark tool bar, 40 pixels high, with a group of buttons or widgets at either "
                    "end.");

    page.setStates({{"Normal", State::Normal},
                    {"Button hovered", State::Hover, pointers::onCentre, firstPart<ToolButtonEx>}});
    page.look("Both ends", [](QWidget *parent) { return makeBar(parent, 240, true, false); });
    page.look("Left only", [](QWidget *parent) { return makeBar(parent, 240, false, false); });

    using W = ToolBarEx;
    W *bar = page.tryHere("Try it", makeBar(nullptr, 420, true, true));
    const QList<ToolButtonEx *> buttons = bar->findChildren<ToolButtonEx *>();
    for (ToolButtonEx *button : buttons)
        page.event(button, button->toolTip() + ": clicked", &QAbstractButton::clicked);

    const auto add = [](ToolBarPosition position) {
        return [position](W *bar) {
            bar->addButton(makeButton("toolbutton/mouseAdd.png", "Another"), position);
        };
    };
    page.action<W>("addButton() at the left", add(LeftPos), Reach::TryIt);
    page.action<W>("addButton() at the right", add(RightPos), Reach::TryIt);
    page.action<W>("addSeparator()", &W::addSeparator, Reach::TryIt);
}
