#include "layoutwarnings.h"

#include <QString>
#include <QStringList>

namespace
{

QtMessageHandler previousHandler = nullptr;

void passOn(QtMsgType type, const QMessageLogContext &context, const QString &text)
{
    static const QStringList expected{
        "QLayout: Attempting to add QLayout \"\" to WindowTitle \"WindowTitle\", which already has "
        "a layout",
        "QLayout: Attempting to add QLayout \"\" to WindowFrame \"WindowFrame\", which already has "
        "a layout",
        "QLayout::addChildLayout: layout \"\" already has a parent"};
    if (type != QtWarningMsg || !expected.contains(text))
        previousHandler(type, context, text);
}

} // namespace

LayoutWarningsMuted::LayoutWarningsMuted()
{
    previousHandler = qInstallMessageHandler(&passOn);
}

LayoutWarningsMuted::~LayoutWarningsMuted()
{
    qInstallMessageHandler(previousHandler);
}
