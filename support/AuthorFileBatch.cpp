#include "support/AuthorFile.h"
#include "support/RedoRecord.h"
#include "support/SystemFile.h"

#include <algorithm>
#include <cerrno>
#include <fcntl.h>
#include <map>
#include <optional>
#include <sys/stat.h>
#include <unistd.h>
#include <vector>

namespace brenix {

namespace {

    struct Target
    {
        QByteArray path; ///< all symbolic links at its end followed
        std::optional<struct stat> status; ///< nothing when there is no such file yet
        QString error;
    };

    QByteArray LinkedPath(const QByteArray &link, qsizetype size)
    {
        QByteArray to(size + 1, Qt::Uninitialized);
        const auto count = ::readlink(link.constData(), to.data(), size_t(to.size()));
        to.resize(qMax<qsizetype>(count, 0));
        return to.startsWith('/') ? to : SystemFolder(link) + '/' + to;
    }

    Target FindTarget(const QString &path)
    {
        constexpr int mostLinks = 40;
        constexpr qsizetype longestPath = 4096;
        Target target{.path = SystemName(path), .status = {}, .error = {}};
        for (int links = 0; links < mostLinks; ++links) {
            struct stat status = {};
            if (::lstat(target.path.constData(), &status) < 0) {
                if (errno != ENOENT || target.path.isEmpty() || target.path.endsWith('/'))
                    target.error = SystemError(errno);
                return target;
            }
            if (!S_ISLNK(status.st_mode)) {
                target.status = status;
                if (!S_ISREG(status.st_mode))
                    target.error = NotRegularFile(status.st_mode);
                return target;
            }
            target.path = LinkedPath(target.path, longestPath);
        }
        target.error = SystemError(ELOOP);
        return target;
    }

    /// Gives the new file the owner and mode of the old one; false when it cannot have them.
    bool TakeIdentity(const FileDescriptor &file, const struct stat &old)
    {
        struct stat status = {};
        if (::fstat(file.Number(), &status) < 0)
            return false;
        const bool isOwn = status.st_uid == old.st_uid && status.st_gid == old.st_gid;
        if (!isOwn && ::fchown(file.Number(), old.st_uid, old.st_gid) < 0)
            return false;
        // Behind the owner and the content: to write and to change the owner both clear bits of the
        // mode.
        constexpr mode_t modeBits = 07777;
        if (::fchmod(file.Number(), old.st_mode & modeBits) < 0
            || ::fstat(file.Number(), &status) < 0)
            return false;
        return status.st_mode == old.st_mode && !HasExtendedAttributes(file);
    }

    /// Why an existing file cannot be written, empty when it can. A rename would not ask: it needs
    /// the folder alone.
    QString WriteRefusal(const Target &target, bool *hasAttributes)
    {
        const FileDescriptor file(target.path, O_WRONLY | O_NOFOLLOW | O_NONBLOCK);
        if (!file.IsOpen())
            return SystemError(file.OpenError());
        *hasAttributes = HasExtendedAttributes(file);
        return {};
    }

    struct Folder
    {
        explicit Folder(const QByteArray &path)
            : file(path, O_RDONLY | O_DIRECTORY)
            , ordersWrites(file.IsOpen() && WritesBeforeRename(file))
        {
        }
        FileDescriptor file;
        bool ordersWrites;
    };

    /// A file of the batch: done, or with its new content in a file beside it.
    struct Entry
    {
        QByteArray path;
        bool isNew = false;
        QByteArray folder;
        QByteArray temporary; ///< empty when nothing waits
        bool mustSync = true;
        FileDescriptor content; ///< of the temporary file, until it is on the disk
        QByteArray bytes;
        QString error;
    };

    void Drop(Entry *entry)
    {
        if (!entry->temporary.isEmpty())
            ::unlink(entry->temporary.constData());
        entry->temporary.clear();
        entry->content.Close();
    }

    /// Where a rename cannot do it.
    void WriteInPlaceInstead(Entry *entry, int renameError)
    {
        Drop(entry);
        entry->error
            = entry->isNew ? SystemError(renameError) : WriteInPlace(entry->path, entry->bytes);
    }

    /// Waits for the disk before the rename: what is in the file's place is then whole, whenever
    /// the power goes.
    void Finish(Entry *entry)
    {
        if (!entry->content.IsOpen())
            return;
        if (entry->mustSync)
            entry->error = Sync(entry->content);
        const QString closeError = entry->content.Close();
        if (entry->error.isEmpty())
            entry->error = closeError;
        if (!entry->error.isEmpty())
            Drop(entry);
    }

    void Rename(Entry *entry)
    {
        if (::rename(entry->temporary.constData(), entry->path.constData()) < 0)
            WriteInPlaceInstead(entry, errno);
    }

} // namespace

struct AuthorFileBatch::State
{
    Purpose purpose;
    std::vector<Entry> entries;
    std::map<QByteArray, Folder> folders;

    FileDescriptor CreateTemporary(Entry *entry, mode_t mode) const;
    void Prepare(Entry *entry, const Target &target);
};

FileDescriptor AuthorFileBatch::State::CreateTemporary(Entry *entry, mode_t mode) const
{
    if (purpose == Purpose::ReplaceMany) {
        entry->temporary = entry->path + ".tmp";
        FileDescriptor file(entry->temporary, O_RDWR | O_CREAT | O_EXCL | O_NOFOLLOW, mode);
        // A file of the author's may have that name, or it may be too long.
        if (file.IsOpen())
            return file;
    }
    return CreateUniqueFile(entry->folder + "/.brenix-", {}, mode, &entry->temporary);
}

void AuthorFileBatch::State::Prepare(Entry *entry, const Target &target)
{
    const Folder &folder = folders.try_emplace(entry->folder, entry->folder).first->second;
    if (!folder.file.IsOpen())
        return WriteInPlaceInstead(entry, folder.file.OpenError());
    entry->mustSync = purpose == Purpose::Save || entry->isNew || !folder.ordersWrites;
    // Until it has its owner and mode, what stands in for a private file is private.
    entry->content = CreateTemporary(entry, target.status ? 0600 : 0666);
    if (!entry->content.IsOpen()) {
        entry->temporary.clear();
        return WriteInPlaceInstead(entry, entry->content.OpenError());
    }
    entry->error = WriteFromStart(entry->content, entry->bytes);
    if (!entry->error.isEmpty())
        Drop(entry);
    else if (target.status && !TakeIdentity(entry->content, *target.status))
        WriteInPlaceInstead(entry, EPERM);
    else if (entry->mustSync)
        BeginSync(entry->content);
    else
        Finish(entry);
}

AuthorFileBatch::AuthorFileBatch(Purpose purpose)
    : m_state(new State{.purpose = purpose, .entries = {}, .folders = {}})
{
}

AuthorFileBatch::~AuthorFileBatch()
{
    std::for_each(
        m_state->entries.begin(), m_state->entries.end(), [](Entry &entry) { Drop(&entry); });
}

void AuthorFileBatch::Add(const QString &path, const QByteArray &bytes)
{
    const Target target = FindTarget(path);
    Entry &entry = m_state->entries.emplace_back();
    entry.path = target.path;
    entry.isNew = !target.status;
    entry.folder = SystemFolder(target.path);
    entry.bytes = bytes;
    entry.error = target.error;
    bool hasAttributes = false;
    if (entry.error.isEmpty() && target.status)
        entry.error = WriteRefusal(target, &hasAttributes);
    if (!entry.error.isEmpty())
        return;
    if (hasAttributes || (target.status && target.status->st_nlink > 1))
        entry.error = WriteInPlace(entry.path, bytes);
    else
        m_state->Prepare(&entry, target);
}

QStringList AuthorFileBatch::PutInPlace()
{
    const auto forEachWaiting = [this](void (*step)(Entry *)) {
        for (Entry &entry : m_state->entries) {
            if (!entry.temporary.isEmpty())
                step(&entry);
        }
    };
    forEachWaiting(Finish);
    forEachWaiting(Rename);
    std::map<QByteArray, QString> folderErrors;
    for (const Entry &entry : m_state->entries) {
        if (!entry.temporary.isEmpty() && entry.mustSync && !folderErrors.contains(entry.folder))
            folderErrors[entry.folder] = Sync(m_state->folders.at(entry.folder).file);
    }
    QStringList errors;
    for (Entry &entry : m_state->entries) {
        if (!entry.temporary.isEmpty())
            entry.error = folderErrors[entry.folder];
        entry.temporary.clear();
        errors += entry.error;
    }
    m_state->entries.clear();
    return errors;
}

} // namespace brenix
