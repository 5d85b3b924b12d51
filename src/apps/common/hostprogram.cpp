#include "hostprogram.h"

#include "fontsubstitutes.h"
#include "theme.h"

#include <QCoreApplication>
#include <QLoggingCategory>

// A static library's pictures are there once this is called, from outside every namespace.
static void registerPictures()
{
    Q_INIT_RESOURCE(host);
}

namespace hostprogram
{

bool isDisplayMissing()
{
#if defined(Q_OS_UNIX) && !defined(Q_OS_MACOS)
    return qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM") && qEnvironmentVariableIsEmpty("DISPLAY")
        && qEnvironmentVariableIsEmpty("WAYLAND_DISPLAY");
#else
    return false;
#endif
}

void prepare(bool isRendering)
{
    if (isDisplayMissing())
        qputenv("QT_QPA_PLATFORM", "offscreen");
    if (isRendering) {
        // Pictures are the same whatever the screen; QT_SCALE_FACTOR still makes larger ones.
        qputenv("QT_FONT_DPI", "96");
    } else {
        // Whole factors only, as Qt rounds them: a screen of 100 dots per inch is no reason for
        // blurred lines. QT_SCALE_FACTOR asks for any other.
        QCoreApplication::setAttribute(Qt::AA_EnableHighDpiScaling);
    }
    QCoreApplication::setAttribute(Qt::AA_UseHighDpiPixmaps);
    // Some widgets write debug messages that mean nothing to people who look at them.
    QLoggingCategory::setFilterRules("default.debug=false");
}

void dress()
{
    theme::apply();
    registerFontSubstitutes();
    registerPictures();
}

} // namespace hostprogram
