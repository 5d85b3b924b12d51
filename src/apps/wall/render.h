#ifndef WALL_RENDER_H
#define WALL_RENDER_H

#include <QString>

namespace wall
{

/// Writes a picture of the window at each of its pages to \a directory, which is made if it is
/// missing: of the project in \a file, or of the demo project if that is empty. With a \a page
/// only of that one. Returns what went wrong, empty if nothing did.
QString renderPages(const QString &file, const QString &directory, const QString &page = QString());

} // namespace wall

#endif // WALL_RENDER_H
