#pragma once

#include "checks/CheckReport.h"
#include "checks/NeedleScan.h"

#include <QStringList>

#include <vector>

namespace brenix {

/// Whether each tag of a catalogue is opened as often as it is closed. Rows that are an opening
/// form alone count for nothing, and neither does "<P></P>". A name counts for all longer ones that
/// begin like it ("<TABLE", "<COL"), but for those of one letter.
class TagBalance
{
public:
    /// Adds what is to be found to a scan, which is to run before `Report`.
    TagBalance(const QStringList &catalogue, NeedleScan &scan);

    /// A line and an error for each row that is out of balance, in the order of the rows.
    void Report(const NeedleScan &scan, CheckReport &report) const;

private:
    struct Pair
    {
        QString open; ///< as it is reported
        QString close;
        int openNumber;
        int closeNumber;
    };
    std::vector<Pair> m_pairs;
};

} // namespace brenix
