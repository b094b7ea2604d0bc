#pragma once

#include <QString>
#include <QStringList>

namespace brenix {

constexpr int RecentCount = 4;

/// The n-th recent file, from 1, the newest; empty when there is none.
QString RecentFile(int number);
/// Moves a path to the top of the list. The list moves only as far as it must, and a fifth file
/// pushes out the oldest.
void AddRecentFile(const QString &path);

/// The rows of the open list: two commands, a line, and the recent files in short form, such as
/// "/ho...\page.html".
QStringList OpenListRows();
/// The recent file of a row, from 0; empty for the two commands, the line, and behind the last row.
QString RecentFileOfRow(int row);

} // namespace brenix
