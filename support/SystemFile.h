#pragma once

#include <QByteArray>
#include <QByteArrayView>
#include <QString>

#include <sys/types.h>

namespace brenix {

/// Checked steps on files of a Unix system. A step that returns a text returns the system's own
/// words for what went wrong, empty on success. Interrupted calls are repeated.

/// No page is larger, and a file of the kernel without an end is not read for ever.
constexpr qsizetype largestFile = qsizetype(1) << 30;

/// The words for an error number.
QString SystemError(int code);

/// An open file, closed when it goes out of scope.
class FileDescriptor
{
public:
    FileDescriptor() = default;
    FileDescriptor(const QByteArray &path, int flags, mode_t mode = 0);
    FileDescriptor(FileDescriptor &&other) noexcept;
    FileDescriptor &operator=(FileDescriptor &&other) noexcept;
    ~FileDescriptor();

    bool IsOpen() const { return m_number >= 0; }
    int Number() const { return m_number; }
    /// Why the file could not be opened, as an error number.
    int OpenError() const { return m_openError; }
    /// Closes now; a network file system may report a failed write only here.
    QString Close();

private:
    int m_number = -1;
    int m_openError = 0;
};

/// A name for the system; empty when it cannot be one (no characters, or a NUL among them).
QByteArray SystemName(const QString &path);
/// "/x/page.html" gives "/x", "page.html" gives "." and "/page.html" gives "/". Only "/" separates.
QByteArray SystemFolder(const QByteArray &path);
/// The words for what is no regular file.
QString NotRegularFile(mode_t mode);

/// Creates a file that was not there, `start` and eight random digits and `end`; `path` gets its
/// name.
FileDescriptor CreateUniqueFile(const QByteArray &start,
                                const QByteArray &end,
                                mode_t mode,
                                QByteArray *path);

/// Reads from the start to the end of the file. More than `largestFile` is refused.
QString ReadWhole(const FileDescriptor &file, QByteArray *bytes);
/// Writes from the start; what the file holds behind `bytes` stays.
QString WriteFromStart(const FileDescriptor &file, QByteArrayView bytes);
QString Truncate(const FileDescriptor &file, qsizetype size);
/// Lets the disk begin with what was written, without waiting; for files that are synced together.
void BeginSync(const FileDescriptor &file);
/// Whether the file system of a file has the content on the disk before a rename over another file,
/// without being told to wait.
bool WritesBeforeRename(const FileDescriptor &file);
/// Waits for the disk. A file system that knows no such thing counts as success.
QString Sync(const FileDescriptor &file);
/// True when the file carries an access list or other attributes beside its mode.
bool HasExtendedAttributes(const FileDescriptor &file);

} // namespace brenix
