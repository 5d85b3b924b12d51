#ifndef ORVANE_TESTS_FRAMEWARNINGS_H
#define ORVANE_TESTS_FRAMEWARNINGS_H

#include <QStringList>

/// What Qt says when a window title, or a window frame with its title, is built: of layouts that
/// are refused, which is what keeps the title's logo labels and the frame's title where they are.
namespace framewarnings
{

inline QStringList ofTitle()
{
    return {"QLayout: Attempting to add QLayout \"\" to WindowTitle \"WindowTitle\", which already "
            "has a layout",
            "QLayout::addChildLayout: layout \"\" already has a parent"};
}

inline QStringList ofFrame()
{
    return ofTitle()
        << "QLayout: Attempting to add QLayout \"\" to WindowFrame \"WindowFrame\", which already "
           "has a layout";
}

} // namespace framewarnings

#endif // ORVANE_TESTS_FRAMEWARNINGS_H
