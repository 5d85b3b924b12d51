#ifndef WIDGETINFO_H
#define WIDGETINFO_H

#include <QString>

/**
 * What a picture button of a WidgetControllBoard is made of. The host fills the record; the board
 * reads it while it adds the button and does not keep it.
 */
struct WidgetInfo {
    QString imagePath; ///< The button's picture, a path that QPixmap takes.
    QString pressedImagePath; ///< The picture while the button is held down; empty for the same.
    QString toolTip; ///< The button's tool tip, in the strip and in the popup.
};

#endif // WIDGETINFO_H
