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

SheetText imageButtonSheet(QStringView stem, QStringView pressed)
{
    SheetText image;
    image << u"{border-image: url(:/Resource/Images/globalResource/" << stem << u"_";
    SheetText sheet;
    sheet << u"QToolButton" << image
          << u"normal.png);}"
             u"QToolButton:hover"
          << image
          << u"hover.png);}"
             u"QToolButton:pressed"
          << image << pressed << u".png);}";
    return sheet;
}

} // namespace orvane
