#pragma once

#include <QStringView>

#include <optional>

namespace brenix {

/// A place in a page, both numbers from 0; the column in UTF-16 units from the line's start.
struct ReportPlace
{
    int line = 0;
    int column = 0;
};

/// Where a click on a line of a report leads: "line 7 column 3 - Warning: ..." gives line 6 and
/// column 2. A line leads nowhere when its sixth character begins no number from 1 on, and to the
/// start of its place's line when no number follows the word "column".
std::optional<ReportPlace> PlaceOfReportLine(QStringView line);

/// The number of a line that tells its place as "(Char 7)" or "(Char: 7)", as the built-in rules
/// write it: a position in the page from 0 or, with some rules, from 1.
std::optional<int> PositionOfReportLine(QStringView line);

} // namespace brenix
