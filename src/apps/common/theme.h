#ifndef THEME_H
#define THEME_H

#include <pushbuttonex.h>

#include <QColor>
#include <QFont>

class QAbstractScrollArea;
class QLabel;
class QPainter;
class QRectF;

/// The dark look of the programs: one palette, one control height, one rhythm of 4 pixels.
///
/// It is made of a QPalette and painting, never of a style sheet, so that nothing cascades into the
/// widgets that are shown.
namespace theme
{

inline const QColor well(43, 43, 43); ///< Inputs, lists and text panes.
inline const QColor ground(56, 56, 56); ///< Pages and panels.
inline const QColor raised(69, 69, 69); ///< Hovered and current rows.
inline const QColor line(80, 80, 80); ///< Borders and separators.
inline const QColor text(210, 210, 210);
inline const QColor quietText(160, 160, 160);
inline const QColor disabledText(112, 112, 112);
inline const QColor accent(66, 145, 240); ///< Selection, focus and the main action; nothing else.

constexpr int unit = 4;
constexpr int gap = 2 * unit;
constexpr int margin = 4 * unit;
constexpr int controlHeight = 7 * unit;
constexpr int cornerRadius = 4;

/// Sets style and palette of the whole program.
void apply();

/// Puts the library's scroll bar look on both bars of \a area.
void styleScrollBars(QAbstractScrollArea *area);

/// The application's font in a heavier weight, \a pointsMore larger.
QFont headingFont(qreal pointsMore = 0);
/// A face whose letters are equally wide.
QFont codeFont();

/// A heading, told from other texts by its weight.
QLabel *makeHeading(const QString &text, QWidget *parent);
/// A text that stands back.
QLabel *makeQuietLabel(const QString &text, QWidget *parent);
/// Gives the texts of \a label another colour.
void setTextColor(QLabel *label, const QColor &color);
/// A button that is as wide as its text needs, and at least \a leastWidth.
PushButtonEx *makeButton(const QString &text, BtnType type, QWidget *parent, int leastWidth = 0);

/// Draws a rounded border of \a width pixels inside \a rect.
void drawFrame(QPainter &painter, const QRectF &rect, const QColor &color, qreal width = 1);

} // namespace theme

#endif // THEME_H
