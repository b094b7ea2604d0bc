#pragma once

#include <QByteArray>
#include <QString>

namespace brenix {

/// The one way to a file of the author's. No exceptions; `error` is empty on success, else the
/// system's own words.
struct FileContent
{
    QByteArray bytes;
    QString error;
};
/// The whole of a regular file (symbolic links are followed). Anything else (a directory, a pipe, a
/// device, a missing or forbidden file, one of more than a gigabyte) is an error and reads nothing.
FileContent ReadAuthorFile(const QString &path);

/// Puts `bytes` in place of the file so that at any moment, a power cut or a full disk included,
/// either the old or the new content is whole. Returns the error text, empty on success.
/// Permissions, owner, hard links and symbolic links of an existing file stay as they were.
QString WriteAuthorFile(const QString &path, const QByteArray &bytes);

/// Finishes in-place writes that an earlier run was interrupted in. Called once at start.
void FinishInterruptedWrites();

} // namespace brenix
