#include "widgetcollection.h"

WidgetCollection::WidgetCollection(QObject *parent)
    : QObject(parent)
    , m_widgets(widgetRows().cbegin(), widgetRows().cend())
{
}

QList<QDesignerCustomWidgetInterface *> WidgetCollection::customWidgets() const
{
    QList<QDesignerCustomWidgetInterface *> widgets;
    for (LibraryWidget &widget : m_widgets)
        widgets.append(&widget);
    return widgets;
}
