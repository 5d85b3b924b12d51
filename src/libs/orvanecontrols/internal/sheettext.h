#ifndef ORVANE_INTERNAL_SHEETTEXT_H
#define ORVANE_INTERNAL_SHEETTEXT_H

#include <QString>
#include <QStringView>
#include <QVarLengthArray>

#include <cstddef>
#include <cstring>

class QColor;

namespace orvane
{

/// The text of a sheet while it is composed. It lies on the stack: setters compose one each time,
/// mostly to find that it is in force already, and pieces on the heap would cost the most of that.
class SheetText
{
public:
    SheetText()
        : m_room(usualRoom)
    {
    }

    template <std::size_t Size> SheetText &operator<<(const char16_t (&literal)[Size])
    {
        return append(literal, int(Size) - 1);
    }
    SheetText &operator<<(QStringView text) { return append(text.utf16(), int(text.size())); }
    SheetText &operator<<(const QString &text) { return *this << QStringView(text); }
    /// Another text, not this one.
    SheetText &operator<<(const SheetText &other) { return *this << other.view(); }
    /// As QString::number() writes it.
    SheetText &operator<<(int number);
    /// "#rrggbb" when opaque, else "#aarrggbb"; "#000000" when invalid.
    SheetText &operator<<(const QColor &color);
    /// Nothing else: a name, a QRgb or a plain literal would be converted to what is not meant.
    template <typename Other> SheetText &operator<<(const Other &other) = delete;

    bool isEmpty() const { return m_length == 0; }
    bool equals(QStringView other) const;
    QStringView view() const { return {m_room.data(), m_length}; }
    QString toString() const { return view().toString(); }

private:
    // Inline: the compiler knows the lengths of literals.
    SheetText &append(const char16_t *text, int length)
    {
        if (length == 0)
            return *this; // memcpy() takes no null pointer
        if (length > m_room.size() - m_length)
            makeRoom(length);
        std::memcpy(m_room.data() + m_length, text, std::size_t(length) * sizeof(char16_t));
        m_length += length;
        return *this;
    }
    void makeRoom(int length);

    static constexpr int usualRoom = 2048; ///< Hardly a sheet of this library is longer.

    QVarLengthArray<ushort, usualRoom> m_room; ///< Of a type that is left as it lies.
    int m_length = 0;
};

} // namespace orvane

#endif // ORVANE_INTERNAL_SHEETTEXT_H
