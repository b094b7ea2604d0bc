#pragma once

#include <QString>
#include <QStringList>
#include <QStringView>

namespace brenix {

/// The lines that a finished check adds to the pane's list, out of the report that Tidy wrote. Each
/// field of list input counts as a line, so that a comma ends one. `page` is the checked file as
/// Tidy was told of it; its name and the ":" behind it are taken out everywhere, in any case. Lines
/// without the word "line" fall away, and of those that are alike all but the first. At the end an
/// empty line and the two totals: a line counts for each that holds "warning" or "error". An empty
/// report gives the totals alone.
QStringList TidyReportLines(QStringView report, QStringView page);

} // namespace brenix
