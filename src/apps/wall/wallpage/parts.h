#ifndef WALL_WALLPAGE_PARTS_H
#define WALL_WALLPAGE_PARTS_H

class LabelEx;
class QScrollArea;
class QWidget;

/// What the panels around the wall are made of.
namespace wall::parts
{

/// A text of a line that changes, elided to \a width.
LabelEx *makeValue(int width, QWidget *parent);
/// An area that scrolls \a content up and down.
QScrollArea *makeScrollArea(QWidget *content, QWidget *parent);

} // namespace wall::parts

#endif // WALL_WALLPAGE_PARTS_H
