#include "support/AuthorFile.h"

#include "support/RedoRecord.h"
#include "support/SystemFile.h"

#include <cerrno>
#include <fcntl.h>
#include <optional>
#include <sys/stat.h>
#include <unistd.h>

namespace brenix {

using namespace Qt::StringLiterals;

namespace {

    QString NotRegularError(mode_t mode)
    {
        return S_ISDIR(mode) ? SystemError(EISDIR) : u"Not a regular file"_s;
    }

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
                    target.error = NotRegularError(status.st_mode);
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

    struct Replacement
    {
        bool isPossible = true; ///< when false, nothing was changed and another way may be tried
        QString error;
    };

    Replacement Fill(FileDescriptor *file, const QByteArray &bytes, const Target &target)
    {
        QString error = WriteFromStart(*file, bytes);
        if (error.isEmpty() && target.status && !TakeIdentity(*file, *target.status))
            return {.isPossible = false, .error = SystemError(EPERM)};
        if (error.isEmpty())
            error = Sync(*file);
        const QString closeError = file->Close();
        return {.error = error.isEmpty() ? closeError : error};
    }

    Replacement ReplaceByRename(const Target &target, const QByteArray &bytes)
    {
        const QByteArray folderName = SystemFolder(target.path);
        const FileDescriptor folder(folderName, O_RDONLY | O_DIRECTORY);
        if (!folder.IsOpen())
            return {.isPossible = false, .error = SystemError(folder.OpenError())};

        // Until it has its owner and mode, what stands in for a private file is private. A short
        // name, since the name of the file may be as long as a name can be.
        const mode_t mode = target.status ? 0600 : 0666;
        QByteArray temporary;
        FileDescriptor file = CreateUniqueFile(folderName + "/.brenix-", {}, mode, &temporary);
        if (!file.IsOpen())
            return {.isPossible = false, .error = SystemError(file.OpenError())};

        Replacement result = Fill(&file, bytes, target);
        if (result.error.isEmpty() && ::rename(temporary.constData(), target.path.constData()) < 0)
            result = {.isPossible = false, .error = SystemError(errno)};
        if (!result.error.isEmpty()) {
            ::unlink(temporary.constData());
            return result;
        }
        result.error = Sync(folder);
        return result;
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

} // namespace

FileContent ReadAuthorFile(const QString &path)
{
    const QByteArray name = SystemName(path);
    struct stat status = {};
    // Asked before the file is opened, since opening a pipe or a device has effects of its own.
    if (::stat(name.constData(), &status) < 0)
        return {.bytes = {}, .error = SystemError(errno)};
    if (!S_ISREG(status.st_mode))
        return {.bytes = {}, .error = NotRegularError(status.st_mode)};
    const FileDescriptor file(name, O_RDONLY | O_NONBLOCK);
    if (!file.IsOpen())
        return {.bytes = {}, .error = SystemError(file.OpenError())};
    FileContent content;
    content.error = ReadWhole(file, &content.bytes);
    return content;
}

QString WriteAuthorFile(const QString &path, const QByteArray &bytes)
{
    const Target target = FindTarget(path);
    if (!target.error.isEmpty())
        return target.error;
    if (!target.status)
        return ReplaceByRename(target, bytes).error;

    bool hasAttributes = false;
    const QString refusal = WriteRefusal(target, &hasAttributes);
    if (!refusal.isEmpty())
        return refusal;
    if (target.status->st_nlink == 1 && !hasAttributes) {
        const Replacement replacement = ReplaceByRename(target, bytes);
        if (replacement.isPossible)
            return replacement.error;
    }
    return WriteInPlace(target.path, bytes);
}

} // namespace brenix
