#include "stylesheet.h"

#include <QColor>
#include <QCoreApplication>
#include <QEvent>
#include <QStyle>
#include <QVector>
#include <QWidget>

namespace orvane
{

namespace
{

/// The widgets below \a widget that have been made ready for showing already.
QVector<QWidget *> polishedChildren(const QWidget *widget)
{
    QVector<QWidget *> polished;
    const QList<QWidget *> children = widget->findChildren<QWidget *>();
    for (QWidget *child : children) {
        if (child->testAttribute(Qt::WA_WState_Polished))
            polished.append(child);
    }
    return polished;
}

void restylePolishedChildren(QWidget *widget)
{
    const QVector<QWidget *> children = polishedChildren(widget);
    if (children.isEmpty())
        return;
    widget->style()->polish(widget); // makes Qt read the new sheet
    QEvent change(QEvent::StyleChange);
    for (QWidget *child : children) {
        child->style()->polish(child);
        QCoreApplication::sendEvent(child, &change);
    }
}

} // namespace

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
    const bool hadSheet = widget->style()->inherits("QStyleSheetStyle"); // its own or a parent's
    widget->setStyleSheet(sheet);

    // Qt keeps parsed sheets by widget address, and forgets one before the first show, or when the
    // widget dies, only if that widget has asked the style something itself. So the widget asks.
    widget->style()->styleHint(QStyle::SH_EtchDisabledText, nullptr, widget);

    // Qt gives the children a first sheet at once, but a later one only if the widget itself is
    // polished; a child that was polished earlier would keep the sheet in force at that time.
    if (hadSheet && !widget->testAttribute(Qt::WA_WState_Polished))
        restylePolishedChildren(widget);
}

} // namespace orvane
