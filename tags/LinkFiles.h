#pragma once

#include <QString>
#include <QStringList>

#include <optional>

namespace brenix {

/// The recent addresses that the dialogs share (`Files.dat` in the application directory), in the
/// order of the file. A line equal to the one before it is skipped, and so is an empty one, one
/// that holds a NUL, and one too long for an address; of a very long file the last 10 000 lines
/// count. Empty when there is no file or it cannot be read.
QStringList ReadRecentAddresses();
/// Puts `rows` in place of the file, one line each. The error text, empty on success; a file that
/// cannot be read or written stays as it was.
QString WriteRecentAddresses(const QStringList &rows);

/// The recent addresses as `frmHyperlink` shows them.
struct RecentLinks
{
    QStringList addresses; ///< the rows of `AutoComplete1`
    QStringList mail; ///< the rows of `List2`, without "mailto:"
};
RecentLinks SplitRecentAddresses(const QStringList &rows);
/// What `frmHyperlink` writes back: the addresses, each mail address that is not blank behind
/// "mailto:", and the one that is linked to.
QStringList JoinRecentAddresses(const RecentLinks &links, const QString &linked);

/// The second line of an Internet shortcut, such as "URL=http://example.org/"; nothing when the
/// file cannot be read, empty when it has no second line.
std::optional<QString> ShortcutLine(const QString &path);
/// What stands behind the first "=" of that line; empty when there is none.
QString ShortcutAddress(const QString &line);
/// The address as the Tag Designer takes it out of that line: without "http://". One without "//"
/// stays whole.
QString DesignerShortcutAddress(const QString &line);

} // namespace brenix
