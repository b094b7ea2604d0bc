#pragma once

#include <QStringList>
#include <QStringView>

namespace brenix {

class Pulse;

/// The names of the plain files of a folder, in alphabetical order; of its subfolders nothing, and
/// no hidden files. A link counts as the file that it leads to, and is left out where that file is
/// in the list itself. `pattern` is matched by `MatchesPattern`; "*.*" and an empty one list all.
/// Empty when the folder cannot be read or the pulse says stop.
QStringList FilesIn(const QString &folder, QStringView pattern, Pulse &pulse);

/// Whether the whole of a name matches: "*" stands for any characters or none, "?" for one; letters
/// match without regard to case. "*.htm" does not match "a.html".
bool MatchesPattern(QStringView name, QStringView pattern);

} // namespace brenix
