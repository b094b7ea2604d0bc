#pragma once

#include <QString>

namespace brenix {

/// The numbers of the grid picker are single digits.
constexpr int GridLimit = 9;

/// The table of the grid picker, CR LF between its lines: an empty table whose cells are marked by
/// comments. `selection` stands behind it once more, beside the place where inserting puts it.
QString GridTable(int rows, int columns, const QString &selection);

} // namespace brenix
