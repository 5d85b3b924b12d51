#ifndef ORVANE_INTERNAL_ELIDEDTEXT_H
#define ORVANE_INTERNAL_ELIDEDTEXT_H

#include <QString>

class QFontMetrics;
class QWidget;

namespace orvane
{

/// Returns \a text as it fits into \a available pixels in the widget's font, elided at its right
/// end. The widget's tool tip becomes the full text when it is wider than that, else empty.
QString elideWithToolTip(QWidget *widget, const QString &text, int available);

/// Returns \a text without the characters at its end that \a available pixels have no room for,
/// without two more, and with "..." behind it.
QString cutWithDots(const QFontMetrics &metrics, QString text, int available);

} // namespace orvane

#endif // ORVANE_INTERNAL_ELIDEDTEXT_H
