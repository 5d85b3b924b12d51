#ifndef ORVANE_INTERNAL_IMAGEBUTTON_H
#define ORVANE_INTERNAL_IMAGEBUTTON_H

#include "sheettext.h"

#include <QToolButton>

namespace orvane
{

/// A small button that shows pictures. A host may delete it, with the widget that it stands in, in
/// its clicked().
class ImageButton : public QToolButton
{
public:
    using QToolButton::QToolButton;

protected:
    void mouseReleaseEvent(QMouseEvent *event) override;
};

/// The sheet of such a button: the images "<stem>_normal", "_hover" and "_pressed", or what else
/// the last one is called. The stem begins with the directory, as in "listwidget/trash".
SheetText imageButtonSheet(QStringView stem, QStringView pressed = u"pressed");

} // namespace orvane

#endif // ORVANE_INTERNAL_IMAGEBUTTON_H
