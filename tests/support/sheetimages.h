#ifndef ORVANE_TESTS_SHEETIMAGES_H
#define ORVANE_TESTS_SHEETIMAGES_H

#include <QRegularExpression>
#include <QStringList>

/// The paths of all images that a style sheet names, in its order.
inline QStringList imagePaths(const QString &sheet)
{
    static const QRegularExpression url("url\\(([^)]*)\\)");
    QStringList paths;
    for (auto match = url.globalMatch(sheet); match.hasNext();)
        paths.append(match.next().captured(1));
    return paths;
}

#endif // ORVANE_TESTS_SHEETIMAGES_H
