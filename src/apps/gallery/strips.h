#ifndef GALLERY_STRIPS_H
#define GALLERY_STRIPS_H

#include <QList>

class QWidget;
class WidgetContent;

/// The controller strips as a host puts them together.
namespace strips
{

/// A widget with the sheet by which a host gives the strips below it their pictures: arrows and
/// add-row button have none of their own.
QWidget *makeHost(QWidget *parent);

/// Cabinet models, and controllers with a picture, as they stand in strips.
QList<QWidget *> makeModels(int count, QWidget *parent);
QList<QWidget *> makeControllers(int count, QWidget *parent);

/// A row of models of the width that it needs.
WidgetContent *makeRow(int count, QWidget *parent = nullptr);

} // namespace strips

#endif // GALLERY_STRIPS_H
