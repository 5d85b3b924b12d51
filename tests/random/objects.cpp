#include "objects.h"

#include "customlistwidgetmulitem.h"
#include "toolbuttonex.h"

#include <QVBoxLayout>

namespace randomuse
{

template <> QWidget *newObject(Life &life)
{
    return life.newWidget();
}

template <> QObject *newObject(Life &life)
{
    return life.keep(new QObject);
}

/// In a widget: a layout without one goes on pointing to widgets that are deleted.
template <> QVBoxLayout *newObject(Life &life)
{
    return life.keep(new QVBoxLayout(life.keep(new QWidget(life.parentOrNone()))));
}

template <> ToolButtonEx *newObject(Life &life)
{
    const auto type = static_cast<ButtonType>(life.dice().below(8));
    return life.keep(new ToolButtonEx(life.parentOrNone(), type, "up", "down"));
}

template <> CustomListWidgetMulItem *newObject(Life &life)
{
    return life.keep(new CustomListWidgetMulItem({"one", "two"}, life.parentOrNone(), false));
}

bool isForSubject(const Life &life, const QObject *object)
{
    for (const QObject *each = life.subject(); each; each = each->parent()) {
        if (each == object)
            return false;
    }
    return !object->inherits("QAbstractScrollArea");
}

} // namespace randomuse
