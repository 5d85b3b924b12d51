#ifndef ORVANE_INTERNAL_STYLESHEET_H
#define ORVANE_INTERNAL_STYLESHEET_H

#include <QString>

class QColor;
class QWidget;

namespace orvane
{

/// The font declaration that most sheets carry: a family at the inherited size.
inline constexpr char fontDeclaration[] = "font: SimSun Arial;";

/// A colour as sheet text: "#rrggbb" when opaque, else "#aarrggbb"; "#000000" when invalid.
QString colorText(const QColor &color);

/// "color:" + colour + ";font: SimSun Arial;", what a main rule holds once its font colour is set.
QString fontColorFragment(const QColor &color);

/// Makes \a sheet the one that \a widget and its children are painted with from now on, whether
/// the widget has been shown or not. A sheet equal to the one in force costs nothing.
void applyStyleSheet(QWidget *widget, const QString &sheet);

} // namespace orvane

#endif // ORVANE_INTERNAL_STYLESHEET_H
