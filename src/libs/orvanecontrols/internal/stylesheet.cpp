#include "stylesheet.h"

#include <QAbstractItemView>
#include <QColor>
#include <QCoreApplication>
#include <QEvent>
#include <QStyle>
#include <QTabBar>
#include <QWidget>

#include <algorithm>

namespace orvane
{

namespace
{

/// Whether \a widget goes by its sheet although it has never been shown: it was made ready for
/// showing, or it is of those that place their items before that.
bool isStyledEarly(const QWidget *widget)
{
    return widget->testAttribute(Qt::WA_WState_Polished)
        || qobject_cast<const QAbstractItemView *>(widget) || qobject_cast<const QTabBar *>(widget);
}

void restyleEarlyOnes(QWidget *widget)
{
    QList<QWidget *> early = widget->findChildren<QWidget *>();
    early.prepend(widget);
    early.erase(std::remove_if(early.begin(), early.end(),
                               [](const QWidget *w) { return !isStyledEarly(w); }),
                early.end());
    QEvent change(QEvent::StyleChange);
    for (QWidget *each : qAsConst(early)) {
        each->style()->polish(each);
        QCoreApplication::sendEvent(each, &change);
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
    const bool isLate = hadSheet && !widget->testAttribute(Qt::WA_WState_Polished);
    widget->setStyleSheet(sheet);

    // Qt reads a later sheet, and gives it to the children, only if the widget was made ready for
    // showing: until then it would go on with the one that it has read, and a child that was made
    // ready meanwhile would keep to that one.
    if (isLate)
        widget->style()->unpolish(widget); // forgets what was read
    // Qt keeps parsed sheets by widget address, and forgets one before the first show, or when the
    // widget dies, only if that widget has asked the style something itself. So the widget asks.
    widget->style()->styleHint(QStyle::SH_EtchDisabledText, nullptr, widget);
    if (isLate)
        restyleEarlyOnes(widget);
}

} // namespace orvane
