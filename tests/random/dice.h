#ifndef RANDOMUSE_DICE_H
#define RANDOMUSE_DICE_H

#include <QtGlobal>
#include <QVector>

namespace randomuse
{

/// The source of all chance in a life: an equal seed gives equal throws on every machine.
class Dice
{
public:
    explicit Dice(quint64 seed = 0)
        : m_state(seed)
    {
    }

    quint64 next()
    {
        quint64 value = (m_state += 0x9e3779b97f4a7c15ULL);
        value = (value ^ (value >> 30)) * 0xbf58476d1ce4e5b9ULL;
        value = (value ^ (value >> 27)) * 0x94d049bb133111ebULL;
        return value ^ (value >> 31);
    }
    /// 0 to \a count - 1; 0 when there is nothing to choose from.
    int below(int count) { return count > 0 ? int(next() % quint64(count)) : 0; }
    int between(int least, int most) { return least + below(most - least + 1); }
    bool chance(int percent) { return below(100) < percent; }
    template <class T> T pick(const QVector<T> &values) { return values.at(below(values.size())); }

private:
    quint64 m_state;
};

} // namespace randomuse

#endif // RANDOMUSE_DICE_H
