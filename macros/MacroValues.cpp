#include "macros/MacroValues.h"

using namespace Qt::StringLiterals;

namespace brenix {

namespace {

    // The new text of a replacement begins so far behind the end of the old one.
    constexpr qsizetype ReplacementOffset = 8;

    MacroError NoNumber(QStringView text)
    {
        return {MacroError::TypeMismatch, u"This is no number: '%1'"_s.arg(text)};
    }

} // namespace

MacroValue ReadValue(QStringView rest)
{
    const qsizetype end = rest.indexOf(u'\'');
    if (end < 0)
        return {{}, {MacroError::InvalidCall, u"A text is not closed with a single quote"_s}};
    return {rest.first(end).toString(), {}};
}

MacroNumber ReadNumber(QStringView rest, qint64 most)
{
    const MacroValue value = ReadValue(rest);
    if (value.error)
        return {0, value.error};
    bool isNumber = false;
    const qint64 number = value.text.trimmed().toLongLong(&isNumber);
    if (!isNumber)
        return {0, NoNumber(value.text)};
    if (number < 0 || number > most)
        return {0, {MacroError::Overflow, u"This number cannot be used: "_s + value.text}};
    return {number, {}};
}

MacroMove ReadMove(QStringView rest)
{
    const bool isBack = rest.startsWith(u'-');
    const bool isRelative = isBack || rest.startsWith(u'+');
    const QStringView digit = rest.mid(isRelative ? 1 : 0, 1);
    bool isNumber = false;
    const int number = digit.toInt(&isNumber);
    if (!isNumber)
        return {0, false, NoNumber(digit)};
    return {isBack ? -number : number, isRelative, {}};
}

MacroReplacement ReadReplacement(QStringView rest)
{
    const MacroValue find = ReadValue(rest);
    if (find.error)
        return {{}, {}, find.error};
    const qsizetype length = find.text.size();
    return {find.text, rest.mid(length + ReplacementOffset, length).toString(), {}};
}

} // namespace brenix
