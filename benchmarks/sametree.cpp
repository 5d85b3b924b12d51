#include "sametree.h"

#include <QImage>
#include <QPixmap>
#include <QStringList>
#include <QWidget>

namespace
{

QString qtClassName(const QObject &object)
{
    const QMetaObject *meta = object.metaObject();
    while (meta->className()[0] != 'Q')
        meta = meta->superClass();
    return QString::fromLatin1(meta->className());
}

void describe(const QWidget &widget, int depth, QStringList &lines)
{
    const QRect place = widget.geometry();
    lines += QString("%1%2 %3,%4 %5x%6 %7 \"%8\"")
                 .arg(QString(2 * depth, ' '), qtClassName(widget))
                 .arg(place.x())
                 .arg(place.y())
                 .arg(place.width())
                 .arg(place.height())
                 .arg(widget.isVisible() ? "shown" : "hidden", widget.styleSheet());
    for (const QObject *child : widget.children()) {
        if (child->isWidgetType())
            describe(*static_cast<const QWidget *>(child), depth + 1, lines);
    }
}

QStringList description(const QWidget &window)
{
    QStringList lines;
    // The window's own place on the screen is left out.
    for (const QObject *child : window.children()) {
        if (child->isWidgetType())
            describe(*static_cast<const QWidget *>(child), 0, lines);
    }
    return lines;
}

} // namespace

QString treeDifference(QWidget *first, QWidget *second)
{
    const QStringList firstLines = description(*first);
    const QStringList secondLines = description(*second);
    if (firstLines.size() != secondLines.size())
        return QString("%1 widgets against %2").arg(firstLines.size()).arg(secondLines.size());
    for (int i = 0; i < firstLines.size(); ++i) {
        if (firstLines.at(i) != secondLines.at(i))
            return firstLines.at(i).trimmed() + " against " + secondLines.at(i).trimmed();
    }
    if (first->grab().toImage() != second->grab().toImage())
        return QStringLiteral("the pictures differ");
    return QString();
}
