#include "sheettext.h"

#include <QColor>

#include <iterator>

namespace orvane
{

SheetText &SheetText::operator<<(int number)
{
    char16_t text[11]; // "-2147483648"
    char16_t *const end = std::end(text);
    char16_t *begin = end;
    // Without a sign, as the least number has no counterpart.
    unsigned int rest = number < 0 ? 0U - unsigned(number) : unsigned(number);
    do {
        *--begin = char16_t(u'0' + rest % 10);
        rest /= 10;
    } while (rest > 0);
    if (number < 0)
        *--begin = u'-';
    return append(begin, int(end - begin));
}

SheetText &SheetText::operator<<(const QColor &color)
{
    if (!color.isValid())
        return *this << u"#000000";
    // As QColor::name() writes it, without its detours.
    static constexpr char16_t digits[] = u"0123456789abcdef";
    char16_t text[9]; // "#aarrggbb"
    char16_t *end = text;
    *end++ = u'#';
    const QRgb rgba = color.rgba();
    for (int shift = color.alpha() == 255 ? 20 : 28; shift >= 0; shift -= 4)
        *end++ = digits[(rgba >> shift) & 0xf];
    return append(text, int(end - text));
}

bool SheetText::equals(QStringView other) const
{
    if (other.size() != m_length)
        return false;
    const std::size_t bytes = std::size_t(m_length) * sizeof(char16_t);
    return bytes == 0 || std::memcmp(other.utf16(), m_room.data(), bytes) == 0;
}

void SheetText::makeRoom(int length)
{
    m_room.resize(2 * (m_length + length));
}

} // namespace orvane
