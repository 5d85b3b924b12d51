#ifndef ORVANE_INTERNAL_LISTBUTTON_H
#define ORVANE_INTERNAL_LISTBUTTON_H

#include <QString>
#include <QToolButton>

namespace orvane
{

/// A button of the project and equipment lists. A host may delete it, with the list that it stands
/// in, in its clicked().
class ListButton : public QToolButton
{
public:
    using QToolButton::QToolButton;

protected:
    void mouseReleaseEvent(QMouseEvent *event) override;
};

/// The sheet of such a button: the images "<name>_normal", "_hover" and "_pressed" of the lists.
QString listButtonSheet(const QString &name);

} // namespace orvane

#endif // ORVANE_INTERNAL_LISTBUTTON_H
