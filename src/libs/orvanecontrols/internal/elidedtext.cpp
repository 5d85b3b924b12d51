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

} // namespace orvane
