#pragma once

#include "editor/SyntaxScan.h"

#include <optional>
#include <vector>

namespace brenix {

/// Which of the control's colours a run has. Default is the text's own colour.
enum class RunColour : quint8 { Default, Keyword, Operator, Function, Delimiter };

/// A stretch of text (from 0) that is painted alike. What no run covers has the default look.
struct ColourRun
{
    qint32 start = 0;
    qint32 length = 0;
    RunColour colour = RunColour::Default;
    bool bold = false;
    bool italic = false;
    friend bool operator==(const ColourRun &, const ColourRun &) = default;
};

/// The same scan that writes the stream, as runs: in order, side by side, none of them empty or of
/// default look. `state` says in what block the text begins and takes the state at its end.
/// `openPaint` is the paint of the block that the text leaves open, for a caller who knows how that
/// block goes on.
std::vector<ColourRun> ColourRuns(QStringView text,
                                  const SyntaxTables &tables,
                                  ScanState &state,
                                  std::optional<BlockPaint> openPaint = std::nullopt);
std::vector<ColourRun> ColourRuns(QStringView text, const SyntaxTables &tables);

/// The scan's state at given places of the text, which are in ascending order.
std::vector<ScanState> StatesAt(QStringView text,
                                const SyntaxTables &tables,
                                const std::vector<int> &places,
                                ScanState state = {});

/// The state behind a line end when a line alone ended in `state`.
ScanState AfterLineEnd(ScanState state, const SyntaxTables &tables);

/// Where words of the text are spelt otherwise than in the table of a language that normalises
/// case: the text with their spelling put right. The length stays the same.
QString WithNormalisedCase(QStringView text, const SyntaxTables &tables);

} // namespace brenix
