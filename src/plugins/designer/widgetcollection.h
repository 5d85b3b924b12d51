#ifndef WIDGETCOLLECTION_H
#define WIDGETCOLLECTION_H

#include "librarywidget.h"

#include <QList>
#include <QObject>
#include <QtUiPlugin/customwidget.h>

#include <vector>

/// The plugin: the library's classes for Qt Designer and QUiLoader. Its metadata name the classes
/// that are left out, with the reasons.
class WidgetCollection : public QObject, public QDesignerCustomWidgetCollectionInterface
{
    Q_OBJECT
    // On one line, or CMake does not see that moc reads the file.
    Q_PLUGIN_METADATA(IID QDesignerCustomWidgetCollectionInterface_iid FILE "widgetcollection.json")
    Q_INTERFACES(QDesignerCustomWidgetCollectionInterface)

public:
    explicit WidgetCollection(QObject *parent = nullptr);

    QList<QDesignerCustomWidgetInterface *> customWidgets() const override;

private:
    mutable std::vector<LibraryWidget> m_widgets;
};

#endif // WIDGETCOLLECTION_H
