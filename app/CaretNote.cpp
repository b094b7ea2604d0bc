#include "app/CaretNote.h"

#include "tags/Entities.h"

#include <QStringDecoder>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace brenix {

namespace {

    constexpr int ColourLength = 7; // of "#RRGGBB"
    constexpr qint64 LastCodePoint = 0x10FFFF;
    constexpr qint64 FirstC1 = 0x80;
    constexpr qint64 LastC1 = 0x9F;

    constexpr QStringView PictureEndings[]
        = {u"jpg", u"gif", u"bmp", u"png", u"jpeg", u"webp", u"svg"};

    int DigitOf(QChar sign)
    {
        const char16_t unit = sign.unicode();
        if (unit >= u'0' && unit <= u'9')
            return unit - u'0';
        if (unit >= u'a' && unit <= u'f')
            return unit - u'a' + 10;
        return unit >= u'A' && unit <= u'F' ? unit - u'A' + 10 : 16;
    }

    // Larger ones stop at 0xFFFFFFFF; nothing for a text that is not all digits.
    std::optional<qint64> NumberIn(QStringView digits, int base)
    {
        qint64 number = 0;
        for (const QChar sign : digits) {
            const int digit = DigitOf(sign);
            if (digit >= base)
                return {};
            number = std::min(number * base + digit, qint64(0xFFFFFFFF));
        }
        return digits.isEmpty() ? std::nullopt : std::optional(number);
    }

    std::optional<quint32> ColourIn(QStringView selected)
    {
        if (selected.size() != ColourLength || !selected.startsWith(u'#'))
            return {};
        return NumberIn(selected.sliced(1), 16);
    }

    bool NamesPicture(QStringView selected)
    {
        const QString lower = selected.right(4).toString().toLower();
        const auto isControl = [](QChar sign) { return sign < u' '; };
        return std::any_of(std::begin(PictureEndings),
                           std::end(PictureEndings),
                           [&lower](QStringView ending) { return lower.endsWith(ending); })
            && std::none_of(selected.begin(), selected.end(), isControl);
    }

    QString CharacterOfNumber(QStringView digits)
    {
        const bool hexadecimal = digits.startsWith(u'x', Qt::CaseInsensitive);
        const qint64 number
            = (hexadecimal ? NumberIn(digits.sliced(1), 16) : NumberIn(digits, 10)).value_or(0);
        if (number == 0 || number > LastCodePoint || QChar::isSurrogate(char32_t(number)))
            return {};
        if (number >= FirstC1 && number <= LastC1)
            return QStringDecoder("windows-1252").decode(QByteArray(1, char(number)));
        return QStringView(QChar::fromUcs4(char32_t(number))).toString();
    }

    QString EntityNote(const QString &selected)
    {
        if (!selected.startsWith(u'&') || !selected.endsWith(u';'))
            return {};
        const bool numbered = selected.startsWith(u"&#");
        const QString character = numbered
            ? CharacterOfNumber(QStringView(selected).sliced(2).chopped(1))
            : CharacterOfEntity(selected);
        if (character.isEmpty())
            return {};
        return numbered ? u"Numbered entitie = '"_s + character + u'\''
                        : u"Entitie = '"_s + character + u" '"_s;
    }

} // namespace

CaretNote NoteOf(const QString &selected)
{
    if (selected.size() > LongestNoted)
        return {};
    return {.colour = ColourIn(selected),
            .picture = NamesPicture(selected) ? selected : QString(),
            .entity = EntityNote(selected)};
}

} // namespace brenix
