#include "spokenname.h"

#include <QTabBar>

namespace orvane
{

void speakAs(QWidget *widget, const QString &name, const QString &previous)
{
    // Qt makes an interface for the widget to report the change with: none without a change.
    if (name != previous && widget->accessibleName() == previous)
        widget->setAccessibleName(name);
}

void nameCloseButtons(QTabBar *bar, const QString &name)
{
    for (int tab = 0; tab < bar->count(); ++tab) {
        for (const auto side : {QTabBar::LeftSide, QTabBar::RightSide}) {
            QWidget *button = bar->tabButton(tab, side);
            // A host may have put a widget of its own there. Qt's class is not public.
            if (button && button->inherits("CloseButton"))
                speakAs(button, name);
        }
    }
}

} // namespace orvane
