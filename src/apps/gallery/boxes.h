#ifndef GALLERY_BOXES_H
#define GALLERY_BOXES_H

#include "sample.h"

#include <QString>

#include <functional>

class CustomMessageBox;

/// Message boxes that stand in a page instead of in a window of their own.
namespace boxes
{

/// What a box is filled with, as CustomMessageBox::setBoxInformation() takes it. A button without a
/// text is hidden.
struct Content {
    QString icon; ///< The file name of a sign.
    QString text;
    QString applyText;
    QString okText;
    QString cancelText;
    QString title = "Screen 1";
};

/// Fills \a box with \a content.
void fill(CustomMessageBox *box, const Content &content);

/// A filled box, embedded in \a parent.
CustomMessageBox *makeEmbedded(QWidget *parent, const Content &content);

/// Embeds \a box, which has been filled, in \a parent.
void embed(CustomMessageBox *box, QWidget *parent);

/// One child of an embedded box with all its buttons, by its name, with some ground around it.
Sample makePart(QWidget *parent, const QString &name);

/// A button for each of \a calls, by their names; each shows what the call returned beside them.
QWidget *makeCalls(const QList<QPair<QString, std::function<int(QWidget *parent)>>> &calls);

} // namespace boxes

#endif // GALLERY_BOXES_H
