#include "taborder.h"

#include <QWidget>

namespace orvane
{

QList<QWidget *> tabStops(QWidget *root)
{
    QList<QWidget *> stops;
    // The window may hold much more than the root, whose widgets mostly follow each other.
    int remaining = root->findChildren<QWidget *>().size() + 1;
    QWidget *widget = root;
    do {
        if (widget == root || root->isAncestorOf(widget)) {
            --remaining;
            if (widget->focusPolicy() & Qt::TabFocus)
                stops.append(widget);
        }
        widget = widget->nextInFocusChain();
    } while (remaining > 0 && widget != root);
    return stops;
}

void tabInOrder(const QList<QWidget *> &widgets)
{
    for (int i = 1; i < widgets.size(); ++i)
        QWidget::setTabOrder(widgets.at(i - 1), widgets.at(i));
}

} // namespace orvane
