#ifndef LAYOUTWARNINGS_H
#define LAYOUTWARNINGS_H

#include <QtGlobal>

/// Keeps away, as long as it lives, what Qt says of the layouts that a window title and a window
/// frame build and do not use. Every other message comes through.
class LayoutWarningsMuted
{
public:
    LayoutWarningsMuted();
    ~LayoutWarningsMuted();

private:
    Q_DISABLE_COPY(LayoutWarningsMuted)
};

#endif // LAYOUTWARNINGS_H
