#pragma once

#include <QStringList>

namespace brenix {

/// What is opened of the files that were dropped on the window: files, and folders with a separator
/// at their end, by their absolute paths and in the order of `names`. A ".lnk" that is a link of
/// the file system counts as its target; what does not exist, and names up to three characters, are
/// left out.
QStringList DroppedPaths(const QStringList &names);

} // namespace brenix
