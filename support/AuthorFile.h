#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>

#include <memory>

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

/// The same promise for many files. The new content stands in files beside the old ones until
/// `PutInPlace`; it is dropped when the batch goes before.
class AuthorFileBatch
{
public:
    enum class Purpose {
        Save, ///< what is in place is on the disk as well
        /// The files beside are called as the file and ".tmp", where there is no such file. Waits
        /// for the disk only where the file system does not by itself write the content before the
        /// rename, so that a power cut right afterwards may bring back the old content.
        ReplaceMany,
    };
    explicit AuthorFileBatch(Purpose purpose);
    ~AuthorFileBatch();

    /// A file that cannot be replaced by a rename (see `WriteAuthorFile`) is written at once.
    void Add(const QString &path, const QByteArray &bytes);
    /// The error text of each file in the order of `Add`, empty on success. The batch is then
    /// empty.
    QStringList PutInPlace();

private:
    struct State;
    std::unique_ptr<State> m_state;
};

/// Finishes in-place writes that an earlier run was interrupted in. Called once at start.
void FinishInterruptedWrites();

} // namespace brenix
