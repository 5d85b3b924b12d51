#ifndef LIBRARYWIDGET_H
#define LIBRARYWIDGET_H

#include "widgetrow.h"

#include <QtUiPlugin/customwidget.h>

/// A class of the library as Qt Designer and QUiLoader ask for it: everything comes from its row.
class LibraryWidget : public QDesignerCustomWidgetInterface
{
public:
    explicit LibraryWidget(const WidgetRow &row);

    QString name() const override;
    QString group() const override;
    QString toolTip() const override;
    QString whatsThis() const override;
    QString includeFile() const override;
    QIcon icon() const override;
    bool isContainer() const override;
    QWidget *createWidget(QWidget *parent) override;
    QString domXml() const override;

private:
    const WidgetRow &m_row;
};

#endif // LIBRARYWIDGET_H
