#include "stylesheet.h"

#include <QColor>
#include <QStyle>
#include <QWidget>

namespace orvane
{

QString colorText(const QColor &color)
{
    if (!color.isValid())
        return QStringLiteral("#000000");
    return color.name(color.alpha() == 255 ? QColor::HexRgb : QColor::HexArgb);
}

QString fontColorFragment(const QColor &color)
{
    return "color:" + colorText(color) + ";" + fontDeclaration;
}

void applyStyleSheet(QWidget *widget, const QString &sheet)
{
    if (widget->styleSheet() == sheet)
        return;

    // Qt restyles the children of a widget only once the widget itself is polished; a child that
    // was polished earlier would keep the sheet that was in force at that time.
    if (widget->findChild<QWidget *>(QString(), Qt::FindDirectChildrenOnly))
        widget->ensurePolished();
    widget->setStyleSheet(sheet);

    // Qt keeps parsed sheets by widget address, and forgets one before the first show, or when the
    // widget dies, only if that widget has asked the style something itself. So the widget asks.
    widget->style()->styleHint(QStyle::SH_EtchDisabledText, nullptr, widget);
}

} // namespace orvane
