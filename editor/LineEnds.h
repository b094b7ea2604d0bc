#pragma once

#include <QChar>

namespace brenix {

/// How a page's text is held in memory: one unit for each line end, which tells what the file has
/// there, and one for each place where a line that is too long for a text document is held as
/// several blocks. A text document has a block separator at these places, so that its positions and
/// ours agree. None of the four can occur as a character of the page: carriage return and line feed
/// are line ends, the others cannot be held in a text document.
namespace LineEnd {
    constexpr char16_t CrLf = 0x2029;
    constexpr char16_t Lf = u'\n';
    constexpr char16_t Cr = u'\r';
    constexpr char16_t Soft = 0xFDD0;
} // namespace LineEnd

constexpr bool IsHardEnd(char16_t unit)
{
    return unit == LineEnd::CrLf || unit == LineEnd::Lf || unit == LineEnd::Cr;
}
constexpr bool IsBlockEnd(char16_t unit)
{
    return IsHardEnd(unit) || unit == LineEnd::Soft;
}

} // namespace brenix
