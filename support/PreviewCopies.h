#pragma once

#include <QString>

namespace brenix {

/// Preview copies lie beside the author's files, so a name such as "page_.html" may already be a
/// page of the author's. This register tells the two apart: only files that this program made are
/// overwritten or deleted. It survives a crash, in a list under the application directory.

/// The path to write the preview copy of `wanted` to: `wanted` itself when it is free or ours, else
/// the first name with further "_" before the last point that is. Empty when there is none. Cheap,
/// and the same answer while nothing changes: ask again before each write, since a copy that
/// another program has written to is no longer ours.
QString ClaimPreviewCopy(const QString &wanted);
/// Writes a preview copy without waiting for the disk; false when it cannot be written. Never
/// touches a file that was not claimed.
bool WritePreviewCopy(const QString &path, const QByteArray &bytes);
/// What the copy looks like now, to be compared later; never empty. A page that is open twice has
/// one copy, which each of its windows writes.
QByteArray PreviewCopyStamp(const QString &path);
/// Deletes a claimed copy and forgets it; does nothing for any other path.
void DropPreviewCopy(const QString &path);

/// Says that a path is the author's from now on: a page has been saved there.
void ForgetPreviewCopy(const QString &path);

} // namespace brenix
