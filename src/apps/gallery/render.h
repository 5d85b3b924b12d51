#ifndef GALLERY_RENDER_H
#define GALLERY_RENDER_H

#include <QString>
#include <QStringList>

/// True when \a directory exists or can be made, and files can be made in it.
bool takesFiles(const QString &directory);

/// Renders each of \a pages to <page>.png in \a directory, and the window to window.png. Returns an
/// empty text, or one line that says what went wrong.
QString renderPages(const QStringList &pages, const QString &directory);

#endif // GALLERY_RENDER_H
