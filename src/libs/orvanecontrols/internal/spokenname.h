#ifndef ORVANE_INTERNAL_SPOKENNAME_H
#define ORVANE_INTERNAL_SPOKENNAME_H

#include <QString>

class QTabBar;
class QWidget;

namespace orvane
{

/// Makes \a name what a screen reader speaks for \a widget, in place of \a previous: any other name
/// there is the host's, and stays. It is never shown.
void speakAs(QWidget *widget, const QString &name, const QString &previous = QString());

/// Makes \a name what a screen reader speaks for the close buttons that Qt puts on the tabs.
void nameCloseButtons(QTabBar *bar, const QString &name);

} // namespace orvane

#endif // ORVANE_INTERNAL_SPOKENNAME_H
