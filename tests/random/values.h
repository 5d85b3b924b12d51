#ifndef RANDOMUSE_VALUES_H
#define RANDOMUSE_VALUES_H

#include "backupparam.h"
#include "dice.h"
#include "structcabinet.h"

#include <QColor>
#include <QIcon>
#include <QList>
#include <QPixmap>
#include <QPoint>
#include <QPointF>
#include <QRect>
#include <QSize>
#include <QSizeF>
#include <QString>
#include <QStringList>
#include <QVariant>

#include <type_traits>

/// Odd and ordinary values of the types that the library's functions take, and their texts for the
/// protocol.
namespace randomuse
{

void make(Dice &dice, bool &value);
void make(Dice &dice, int &value);
void make(Dice &dice, float &value);
void make(Dice &dice, double &value);
void make(Dice &dice, QString &value);
void make(Dice &dice, QStringList &value);
void make(Dice &dice, QColor &value);
void make(Dice &dice, QPoint &value);
void make(Dice &dice, QPointF &value);
void make(Dice &dice, QSize &value);
void make(Dice &dice, QSizeF &value);
void make(Dice &dice, QRect &value);
void make(Dice &dice, QPixmap &value);
void make(Dice &dice, QIcon &value);
void make(Dice &dice, QVariant &value);
void make(Dice &dice, StructCabinet &value);
void make(Dice &dice, BackUpParam &value);

template <class T> void make(Dice &dice, QList<T> &values)
{
    for (int left = dice.below(4); left > 0; --left) {
        T value{};
        make(dice, value);
        values.append(value);
    }
}

/// Enumerators run from 0 on. A value beyond them only where the type can hold it.
template <class T> std::enable_if_t<std::is_enum_v<T>> make(Dice &dice, T &value)
{
    value = static_cast<T>(dice.below(4));
}

template <class T> T made(Dice &dice)
{
    T value{};
    make(dice, value);
    return value;
}

/// A number for a size or a count that becomes real pixels or objects: -2 to 300.
int smallNumber(Dice &dice);
/// An index near the bounds of something with \a count elements.
int nearIndex(Dice &dice, int count);
/// A picture of the library, or a path that leads nowhere.
QString picturePath(Dice &dice);

QString toText(bool value);
QString toText(int value);
QString toText(double value);
QString toText(const QString &value);
QString toText(const QStringList &value);
QString toText(const QColor &value);
QString toText(QPoint value);
QString toText(QPointF value);
QString toText(QSize value);
QString toText(QSizeF value);
QString toText(const QRect &value);
QString toText(const QPixmap &value);
QString toText(const QIcon &value);
QString toText(const QVariant &value);
QString toText(const StructCabinet &value);
QString toText(const BackUpParam &value);

template <class T> QString toText(const QList<T> &values)
{
    return QString("%1 elements").arg(values.size());
}

template <class T> std::enable_if_t<std::is_enum_v<T>, QString> toText(T value)
{
    return QString::number(int(value));
}

} // namespace randomuse

#endif // RANDOMUSE_VALUES_H
