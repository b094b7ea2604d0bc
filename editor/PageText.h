#pragma once

#include "editor/TextRope.h"

#include <QString>
#include <QStringView>

#include <vector>

namespace brenix {

/// A page's text in its three forms: as the file has it; as commands see it, every line end as CR
/// LF; and as it is held, in the units of LineEnds.h with soft breaks in lines that are too long
/// for a text document. Characters that a text document cannot hold are stand-ins in the held form
/// only.

/// File text to held text. Nothing is lost: `FileTextOf` gives the same text back. (Where an edit
/// has brought a CR right before an LF, the file gets CR LF and LF, so that both are still there.)
QString HeldText(QStringView fileText);
QString FileTextOf(const TextRope &held);

/// Held text as commands see it.
QString TextOf(const TextRope &held);
QString TextOf(QStringView held);
/// A command's text as held text; each of its line ends (CR LF, CR, LF) becomes `lineEnd`.
QString HeldText(QStringView text, char16_t lineEnd);

/// The line end that most lines of a held text have; CR LF where none is.
char16_t UsualLineEnd(QStringView held);

/// Held text for a text document: a line feed wherever a block ends.
QString DocumentText(QString held);

/// Where the blocks of a held text end, as positions in the text that commands see: for each block
/// but the last the position behind its line end or soft break.
std::vector<int> BlockEnds(const TextRope &held);

/// Longest block that is left whole, and how long its pieces are when it is not. A key press costs
/// what its block costs.
constexpr int LongestBlock = 1024;
constexpr int BlockPiece = 512;
/// The places (from 0) in a block without breaks before which soft breaks should stand; behind a
/// tag or blank where one is near, never inside a surrogate pair. Empty for a block that is not too
/// long.
std::vector<int> SoftBreakPlaces(QStringView block);

} // namespace brenix
