#include "imagebutton.h"

namespace orvane
{

void ImageButton::mouseReleaseEvent(QMouseEvent *event)
{
    // Past QToolButton, whose handler touches the button after clicked(). All it does there is to
    // forget a press on a menu arrow, which this button does not have.
    // NOLINTNEXTLINE(bugprone-parent-virtual-call)
    QAbstractButton::mouseReleaseEvent(event); // clazy:exclude=skipped-base-method
}

QString imageButtonSheet(const QString &stem)
{
    const QString image = "{border-image: url(:/Resource/Images/globalResource/" + stem + "_";
    return "QToolButton" + image
        + "normal.png);}"
          "QToolButton:hover"
        + image
        + "hover.png);}"
          "QToolButton:pressed"
        + image + "pressed.png);}";
}

} // namespace orvane
