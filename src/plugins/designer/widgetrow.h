#ifndef WIDGETROW_H
#define WIDGETROW_H

#include <QSize>
#include <QString>
#include <QVector>

class QWidget;
struct QMetaObject;

/// What Qt Designer is told of one class of the library.
struct WidgetRow {
    const QMetaObject *metaObject;
    QWidget *(*create)(QWidget *parent);
    QString builtAs; ///< The call that creates it, where that takes more than the parent.
    QString group; ///< The heading of the widget box.
    QString purpose; ///< What it is, in a sentence without a full stop.
    QString filling; ///< How it is filled in code, in a sentence without a full stop, or empty.
    QSize size; ///< The size at which it comes into a form.
    QString content; ///< What else its form has: properties and pages.
    bool isContainer = false;
};

/// The classes that Qt Designer shows, in the order of the widget box. Those that it does not show
/// stand with their reasons in widgetcollection.json.
const QVector<WidgetRow> &widgetRows();

#endif // WIDGETROW_H
