#include "layoutcolors.h"

#include <QtGlobal>

#include <array>

namespace wall::layoutcolors
{

namespace
{

/// Hues that lie far from each other for neighbouring numbers, however many there are.
int hueOf(int index)
{
    constexpr int fullCircle = 360;
    constexpr int goldenAngle = 137;
    constexpr int first = 28;
    return (first + index % fullCircle * goldenAngle) % fullCircle;
}

QColor mixed(const QColor &color, const QColor &other, double share)
{
    const auto mix = [share](int a, int b) { return qRound(a + (b - a) * share); };
    return QColor(mix(color.red(), other.red()), mix(color.green(), other.green()),
                  mix(color.blue(), other.blue()));
}

} // namespace

QColor ofModel(int index)
{
    static const std::array<QColor, 8> fills = {
        QColor(70, 92, 112),  QColor(104, 86, 66), QColor(72, 100, 80), QColor(98, 76, 104),
        QColor(64, 102, 104), QColor(110, 78, 78), QColor(94, 98, 64),  QColor(84, 84, 116)};
    return fills[size_t(qMax(0, index)) % fills.size()];
}

QColor ofPort(int index)
{
    return QColor::fromHsv(hueOf(index), 105, 112).rgb();
}

QColor ofLine(int index)
{
    return QColor::fromHsv(hueOf(index), 130, 232).rgb();
}

QColor dimmed(const QColor &color)
{
    constexpr double share = 0.68;
    return mixed(color, ground, share);
}

} // namespace wall::layoutcolors
