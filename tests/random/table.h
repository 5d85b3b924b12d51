#ifndef RANDOMUSE_TABLE_H
#define RANDOMUSE_TABLE_H

#include "life.h"
#include "objects.h"

#include <QByteArray>
#include <QVector>

#include <functional>
#include <tuple>

/// The tables of what can be done with each class.
namespace randomuse
{

/// Whether doing it again with the same values may make further children.
enum class Again { Settles, Grows };

struct Action {
    QByteArray name; ///< of the function, without arguments
    Again again = Again::Settles;
    std::function<void(Life &, QObject *)> run;
};

struct Entry {
    QByteArray className;
    std::function<QObject *(Life &)> make;
    QVector<Action> actions;
    int share = 10; ///< of the steps, in relation to the other classes
};

/// The name of a member function and the function, as Table::call() takes them.
#define NAMED(Class, function) #function, &Class::function

/// The actions of class \a T, added one after the other.
template <class T> class Table
{
public:
    Table(const char *className, std::function<T *(Life &)> make)
    {
        m_entry.className = className;
        m_entry.make = [make](Life &life) -> QObject * { return make(life); };
    }

    /// A member function that takes values, each of which may be anything.
    template <class Result, class Class, class... Arguments>
    Table &call(const char *name, Result (Class::*function)(Arguments...),
                Again again = Again::Settles)
    {
        return addCall<Arguments...>(name, function, again);
    }
    template <class Result, class Class, class... Arguments>
    Table &call(const char *name, Result (Class::*function)(Arguments...) const)
    {
        return addCall<Arguments...>(name, function, Again::Settles);
    }
    /// A member function whose numbers go to a layout of Qt's, which overflows by huge ones.
    template <class Class, class... Numbers>
    Table &space(const char *name, void (Class::*function)(Numbers...))
    {
        return act(name, [function](Life &life, T *subject) {
            // Braces: the numbers are made in the order in which they stand.
            std::tuple<std::decay_t<Numbers>...> numbers{std::decay_t<Numbers>(life.space())...};
            std::apply([&](auto &...number) { (subject->*function)(number...); }, numbers);
        });
    }
    /// A member function whose position goes to a widget of Qt's, which overflows by a huge one.
    template <class Class> Table &space(const char *name, void (Class::*function)(QPoint))
    {
        return act(name, [function](Life &life, T *subject) {
            const int x = life.space();
            (subject->*function)({x, life.space()});
        });
    }
    /// What takes more than values: a call of the function \a name as \a run makes it.
    Table &act(const char *name, std::function<void(Life &, T *)> run, Again again = Again::Settles)
    {
        m_entry.actions.append({name, again, [run = std::move(run)](Life &life, QObject *subject) {
                                    run(life, static_cast<T *>(subject));
                                }});
        return *this;
    }
    Table &share(int share)
    {
        m_entry.share = share;
        return *this;
    }

    operator Entry() const { return m_entry; }

private:
    template <class... Arguments, class Function>
    Table &addCall(const char *name, Function function, Again again)
    {
        return act(
            name,
            [function](Life &life, T *subject) {
                // Braces: the values are made in the order in which they stand.
                std::tuple<std::decay_t<Arguments>...> values{
                    Argument<std::decay_t<Arguments>>::made(life)...};
                std::apply([&](auto &...value) { (subject->*function)(value...); }, values);
            },
            again);
    }

    Entry m_entry;
};

QVector<Entry> basicEntries();
QVector<Entry> cabinetEntries();
QVector<Entry> boardEntries();
QVector<Entry> windowEntries();
QVector<Entry> tabEntries();
QVector<Entry> listEntries();
/// A class that at last does what \a fault says, for the test of this program.
QVector<Entry> faultyEntries(const QByteArray &fault);

} // namespace randomuse

#endif // RANDOMUSE_TABLE_H
