#include "elidedtext.h"

#include <QFontMetrics>
#include <QWidget>

namespace orvane
{

QString elideWithToolTip(QWidget *widget, const QString &text, int available)
{
    const QFontMetrics metrics(widget->font());
    widget->setToolTip(metrics.horizontalAdvance(text) > available ? text : QString());
    return metrics.elidedText(text, Qt::ElideRight, available);
}

QString cutWithDots(const QFontMetrics &metrics, QString text, int available)
{
    constexpr int dropped = 2; // what makes room for the dots
    // Halves first: a very long text would take minutes character by character.
    while (!text.isEmpty() && metrics.horizontalAdvance(text.left(text.size() / 2)) > available)
        text.truncate(text.size() / 2);
    while (!text.isEmpty() && metrics.horizontalAdvance(text) > available)
        text.chop(1);
    text.chop(dropped);
    if (!text.isEmpty() && text.at(text.size() - 1).isHighSurrogate())
        text.chop(1); // no half of a character
    return text + "...";
}

} // namespace orvane
