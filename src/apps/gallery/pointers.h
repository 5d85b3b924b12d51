#ifndef GALLERY_POINTERS_H
#define GALLERY_POINTERS_H

#include <QPoint>

class QWidget;

/// Where the pointer stands on a sample, for the columns of a page's state grid.
namespace pointers
{

QPoint onCentre(QWidget *widget);
/// The arrows of a spin box.
QPoint onUpArrow(QWidget *spinBox);
QPoint onDownArrow(QWidget *spinBox);
/// The handle of a slider or a scroll bar, and the arrow at the scroll bar's end.
QPoint onHandle(QWidget *sliderOrScrollBar);
QPoint onEndArrow(QWidget *scrollBar);

} // namespace pointers

#endif // GALLERY_POINTERS_H
