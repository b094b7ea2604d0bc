#pragma once

#include <QString>
#include <QStringList>

#include <vector>

namespace brenix {

/// Where a rule puts the caret of the page: a position from 0, or -1 for where it stands already.
struct CaretMove
{
    qsizetype position = -1;
    bool focus = false; ///< gives the source the focus
};

/// What a checking engine writes into the report list, and its totals.
struct CheckReport
{
    QStringList lines;
    int errors = 0;
    int warnings = 0;
    std::vector<CaretMove> caretMoves; ///< in the order of the rules; the last one lasts
    /// The lines between the heading and the totals; some of them count as neither.
    qsizetype findings = 0;
};

/// Counts one more finding, up to 32767, the largest number that a total shows.
inline void CountFinding(int &total)
{
    constexpr int Largest = 32767;
    total = total < Largest ? total + 1 : Largest;
}

} // namespace brenix
