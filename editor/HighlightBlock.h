#pragma once

#include "editor/SyntaxScan.h"

#include <QString>

namespace brenix {

/// Colours as 32-bit values in blue-green-red order; a value with 0x80 in its highest byte is a
/// system colour.
struct SyntaxColours
{
    quint32 keyword = 0x8000; ///< keywords; comments in HTML
    quint32 op = 0x8080; ///< operators and delimiters; table tags in HTML
    quint32 function = 0x808080; ///< functions; entities in HTML
    quint32 delimiter = 0x800000; ///< strings and comments; tags in HTML
};

/// "\redN\greenN\blueN;" for a colour; all three are 255 for one that cannot be resolved.
QString ColorTableEntry(quint32 colour);
/// A system colour as its RGB value, blue in the high byte; other colours as they are; -1 for one
/// that is none.
qint64 TranslateColour(quint32 colour);

/// The text as a coloured stream: a colour table, then the text between control words, "\cf1" to
/// "\cf4" for keyword, operator, function and delimiter colour, "\i" and "\b". Line ends of the
/// text are CR LF. An empty text gives an empty stream, and without a language the text comes back
/// as it is.
QString HighlightBlock(QStringView text, const SyntaxTables &tables, const SyntaxColours &colours);

} // namespace brenix
