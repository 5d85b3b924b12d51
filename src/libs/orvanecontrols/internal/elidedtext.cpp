#include "elidedtext.h"

#include <QFontMetrics>
#include <QWidget>

namespace orvane
{

QString elideWithToolTip(QWidget *widget, const QString &text, int available)
{
    const QFontMetrics metrics(widget->font());
    const int width = metrics.horizontalAdvance(text);
    widget->setToolTip(width > available ? text : QString());
    // Measuring costs most. A width is rounded, so only a narrower text fits for sure; and Qt takes
    // a text with this mark for several, of which it chooses one.
    if (width < available && !text.contains(QChar(0x9c)))
        return text;
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
