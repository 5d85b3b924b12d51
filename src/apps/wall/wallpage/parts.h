#ifndef WALL_WALLPAGE_PARTS_H
#define WALL_WALLPAGE_PARTS_H

#include <pushbuttonex.h>

class LabelEx;
class QLabel;
class QScrollArea;

/// What the panels around the wall are made of.
namespace wall::parts
{

QLabel *makeHeading(const QString &text, QWidget *parent);
/// A quiet text beside or below what it names.
QLabel *makeCaption(const QString &text, QWidget *parent);
/// A text of a line that changes, elided to \a width.
LabelEx *makeValue(int width, QWidget *parent);
/// A button of the common height, at least \a leastWidth wide and wide enough for its text.
PushButtonEx *makeButton(const QString &text, BtnType type, int leastWidth, QWidget *parent);

/// An area that scrolls \a content up and down.
QScrollArea *makeScrollArea(QWidget *content, QWidget *parent);

} // namespace wall::parts

#endif // WALL_WALLPAGE_PARTS_H
