#ifndef HOSTPROGRAM_H
#define HOSTPROGRAM_H

/// What the programs have in common before and around their windows.
namespace hostprogram
{

/// True where a window needs a display server and none is announced.
bool isDisplayMissing();

/// Sets what Qt has to know before the application is made: the offscreen platform where there is
/// no display, and for pictures, if \a isRendering, one resolution whatever the screen.
void prepare(bool isRendering);

/// Sets style, palette, faces and the pictures that the library takes from its host. Call it once
/// after the QApplication is made.
void dress();

} // namespace hostprogram

#endif // HOSTPROGRAM_H
