#pragma once

#include <QString>
#include <QStringView>

namespace brenix {

/// The directory of all data files, without a separator at its end: `BRENIX_APPDIR` if set; the
/// executable's directory when it can be written and is no part of an installation (one that has
/// "../share/brenix" beside it); otherwise the user's data directory, which at the first call gets
/// the installed files that it lacks. Real paths carry the platform's separator.
QString AppDirectory();
/// `AppDirectory()`, the separator, and a relative name written with "/".
QString AppPath(QStringView relativeName);

/// A private directory (mode 0700) of this process that stands for the root of drive `letter`;
/// without a separator at its end. Empty when it cannot be made. All are removed by
/// `RemoveExchangeRoots`.
QString ExchangeRoot(QChar letter);
void RemoveExchangeRoots();

/// Both accept "\" and "/" as separators. "C:\x\page.html" gives "page.html" and "C:\x\"; a path
/// without a separator is a name in no folder.
QString FileNameOf(QStringView path);
QString FolderOf(QStringView path);

/// The path of a document's preview copy: "_" before the last point of the whole path, so
/// "/x/page.html" gives
/// "/x/page_.html". Empty when the path has no point.
QString PreviewCopyName(QStringView caption);

} // namespace brenix
