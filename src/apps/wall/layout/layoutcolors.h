#ifndef WALL_LAYOUTCOLORS_H
#define WALL_LAYOUTCOLORS_H

#include <QColor>

/// The colours of the layout view.
namespace wall::layoutcolors
{

inline const QColor ground(43, 43, 43);
inline const QColor gridLine(51, 51, 51);
inline const QColor mainGridLine(62, 62, 62);
inline const QColor axis(85, 85, 85);
inline const QColor cabinet(80, 80, 80); ///< Where the data lines matter, not the cabinets.
inline const QColor text(225, 225, 225);
inline const QColor quietText(175, 175, 175);
inline const QColor accent(66, 145, 240); ///< What is selected.
inline const QColor refused(219, 84, 84);

/// The fill of the cabinets of a model: muted, so that texts and lines stand out.
QColor ofModel(int index);
/// The fill of the cabinets of a port.
QColor ofPort(int index);
/// The data line of a port, in the hue of its cabinets.
QColor ofLine(int index);
/// \a color moved toward the ground, for what is not in question.
QColor dimmed(const QColor &color);

} // namespace wall::layoutcolors

#endif // WALL_LAYOUTCOLORS_H
