#ifndef ORVANE_INTERNAL_LIVELIST_H
#define ORVANE_INTERNAL_LIVELIST_H

#include <QList>
#include <QPointer>
#include <QVector>
#include <QWidget>

/// Lists of widgets that a host may delete at any time, in a slot of the widget's own signal too.
/// A widget leaves such a list by being deleted; null pointers are not kept. The pointers guard
/// themselves: a connection to destroyed() would not outlast a host's disconnect() on the widget.
namespace orvane
{

/// The widgets of \a list that still exist, in its order.
template <typename Widget> QList<Widget *> liveWidgets(const QVector<QPointer<Widget>> &list)
{
    QList<Widget *> widgets;
    widgets.reserve(list.size());
    for (const QPointer<Widget> &widget : list) {
        if (widget)
            widgets.append(widget);
    }
    return widgets;
}

/// A list of \a widgets.
template <typename Widget> QVector<QPointer<Widget>> liveList(const QList<Widget *> &widgets)
{
    QVector<QPointer<Widget>> list;
    list.reserve(widgets.size());
    for (Widget *widget : widgets) {
        if (widget)
            list.append(widget);
    }
    return list;
}

/// Takes the widgets that are gone out of \a list, so that its size and its indexes count the rest.
template <typename Widget> void dropDeleted(QVector<QPointer<Widget>> &list)
{
    list.removeAll(QPointer<Widget>());
}

/// Schedules the deletion of those widgets of \a list that do not go with \a owner as its
/// descendants.
template <typename Widget>
void deleteStrangersLater(const QVector<QPointer<Widget>> &list, const QWidget *owner)
{
    for (const QPointer<Widget> &widget : list) {
        if (widget && !owner->isAncestorOf(widget))
            widget->deleteLater();
    }
}

/// Schedules the deletion of those widgets of \a list that still exist.
template <typename Widget> void deleteAllLater(const QVector<QPointer<Widget>> &list)
{
    for (const QPointer<Widget> &widget : list) {
        if (widget)
            widget->deleteLater();
    }
}

} // namespace orvane

#endif // ORVANE_INTERNAL_LIVELIST_H
