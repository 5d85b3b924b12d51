#ifndef WALL_WALLPAGE_PARTS_H
#define WALL_WALLPAGE_PARTS_H

#include <pushbuttonex.h>

class QAbstractScrollArea;
class QLabel;

/// What the panels around the wall are made of: one ground, one rhythm, one control height.
namespace wall::parts
{

constexpr int gap = 8;
constexpr int margin = 12;
constexpr int controlHeight = 28;

/// Gives \a panel the dark ground and the light text, for all that is in it.
void setDark(QWidget *panel);
/// Puts the library's scroll bars on \a area and takes away its frame.
void styleScrollArea(QAbstractScrollArea *area);

QLabel *makeHeading(const QString &text, QWidget *parent);
/// A quiet text beside or below what it names.
QLabel *makeCaption(const QString &text, QWidget *parent);
/// A button of the common height. The width comes first: the text is elided to it.
PushButtonEx *makeButton(const QString &text, BtnType type, int width, QWidget *parent);

} // namespace wall::parts

#endif // WALL_WALLPAGE_PARTS_H
