#pragma once

#include <QString>

namespace brenix {

/// A colour in blue-green-red order, as the system's dialog gives it, in the form that pages have:
/// "#" and six upper-case hexadecimal digits for red, green and blue.
inline QString ColourText(quint32 colour)
{
    const quint32 redFirst = (colour & 0xFF) << 16 | (colour & 0xFF00) | (colour >> 16 & 0xFF);
    return u'#' + QString::number(redFirst, 16).rightJustified(6, u'0').toUpper();
}

/// The colour of such a text, digits in any case; black for any other.
inline quint32 ColourOfText(QStringView text)
{
    bool isNumber = false;
    const quint32 redFirst = text.sliced(text.isEmpty() ? 0 : 1).toUInt(&isNumber, 16);
    if (!isNumber || text.size() != 7 || text.front() != u'#')
        return 0;
    return (redFirst & 0xFF) << 16 | (redFirst & 0xFF00) | redFirst >> 16;
}

} // namespace brenix
