#ifndef RANDOMUSE_OBJECTS_H
#define RANDOMUSE_OBJECTS_H

#include "life.h"

#include <cstring>

class CustomListWidgetMulItem;
class QVBoxLayout;
class ToolButtonEx;

/// Objects that the library's functions take.
namespace randomuse
{

/// A new object of class \a T that the life keeps.
template <class T> T *newObject(Life &life)
{
    return life.keep(new T(life.parentOrNone()));
}
template <> QWidget *newObject(Life &life);
template <> QObject *newObject(Life &life);
template <> QVBoxLayout *newObject(Life &life);
template <> ToolButtonEx *newObject(Life &life);
template <> CustomListWidgetMulItem *newObject(Life &life);

/// Whether \a object may be handed to a function of the subject at all: neither the subject nor
/// what it stands in, nor an area that it may be using to show things.
bool isForSubject(const Life &life, const QObject *object);

/// A new object, one made before, one that the subject itself made of the library's classes, or
/// null.
template <class T> T *anyObject(Life &life)
{
    Dice &dice = life.dice();
    T *object = nullptr;
    if (dice.chance(10)) {
        protocol::note("null");
        return nullptr;
    }
    if (dice.chance(50)) {
        object = life.kept<T>();
        // Other classes are also what the subject itself is made of, which no host hands it.
        const bool isItem = strstr(T::staticMetaObject.className(), "Item");
        if (isItem && dice.chance(60)) {
            const QList<T *> own = life.subject()->findChildren<T *>();
            object = own.isEmpty() ? object : own.at(dice.below(own.size()));
        }
    }
    if (object && isForSubject(life, object)) {
        protocol::note("known " + QString(object->metaObject()->className()));
        return object;
    }
    object = newObject<T>(life);
    protocol::note("new " + QString(object->metaObject()->className()));
    return object;
}

template <class T> struct Argument {
    static T made(Life &life) { return life.value<T>(); }
};
template <class T> struct Argument<T *> {
    static T *made(Life &life) { return anyObject<T>(life); }
};
template <class T> struct Argument<QList<T *>> {
    static QList<T *> made(Life &life)
    {
        QList<T *> objects;
        for (int left = life.dice().below(5); left > 0; --left)
            objects.append(anyObject<T>(life));
        return objects;
    }
};

} // namespace randomuse

#endif // RANDOMUSE_OBJECTS_H
