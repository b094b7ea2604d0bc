#include "support/RedoRecord.h"

#include "support/AuthorFile.h"
#include "support/Paths.h"

#include <QCryptographicHash>
#include <QDataStream>
#include <QDir>

#include <algorithm>
#include <cerrno>
#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

namespace brenix {

using namespace Qt::StringLiterals;

namespace {

    QString SyncFolderOf(const QByteArray &path)
    {
        return Sync(FileDescriptor(SystemFolder(path), O_RDONLY | O_DIRECTORY));
    }

    QString RecordFolder()
    {
        return AppPath(u"Recovery");
    }

    QString MakeRecordFolder()
    {
        const QByteArray folder = SystemName(RecordFolder());
        QDir().mkpath(AppDirectory());
        if (::mkdir(folder.constData(), 0700) < 0)
            return errno == EEXIST ? QString() : SystemError(errno);
        return SyncFolderOf(folder);
    }

    QByteArray Checksum(QByteArrayView bytes)
    {
        QCryptographicHash hash(QCryptographicHash::Sha256);
        hash.addData(bytes);
        return hash.result();
    }

    QByteArray RecordBytes(const InPlaceWrite &write)
    {
        QByteArray bytes;
        QDataStream stream(&bytes, QIODevice::WriteOnly);
        stream.setVersion(QDataStream::Qt_6_0);
        stream << write.target << write.before << write.after;
        return Checksum(bytes) + bytes;
    }

    /// Takes the disk space before anything is overwritten, so that a full disk shows while the old
    /// content is whole.
    QString ReserveSpace(const FileDescriptor &file, qsizetype size)
    {
#ifdef Q_OS_LINUX
        if (size > 0 && ::fallocate(file.Number(), FALLOC_FL_KEEP_SIZE, 0, size) < 0) {
            const bool isFull = errno == ENOSPC || errno == EDQUOT || errno == EFBIG;
            return isFull ? SystemError(errno) : QString();
        }
#else
        Q_UNUSED(file)
        Q_UNUSED(size)
#endif
        return {};
    }

    QString Overwrite(const FileDescriptor &file, const QByteArray &bytes)
    {
        QString error = WriteFromStart(file, bytes);
        if (error.isEmpty())
            error = Truncate(file, bytes.size());
        return error.isEmpty() ? Sync(file) : error;
    }

    /// Writing clears some bits of the mode unless the system's administrator does it.
    QString KeepMode(const FileDescriptor &file, const struct stat &old)
    {
        struct stat status = {};
        if (::fstat(file.Number(), &status) < 0)
            return SystemError(errno);
        constexpr mode_t modeBits = 07777;
        if (status.st_mode != old.st_mode && ::fchmod(file.Number(), old.st_mode & modeBits) < 0)
            return SystemError(errno);
        return {};
    }

    /// True when the content is what an interrupted overwriting leaves: each byte old or new, or
    /// not yet written behind the old end. Anything else is a later version of the author's.
    bool IsInterrupted(const QByteArray &current, const InPlaceWrite &write)
    {
        const auto [shorter, longer] = std::minmax({write.before.size(), write.after.size()});
        if (current.size() < shorter || current.size() > longer)
            return false;
        for (qsizetype i = 0; i < current.size(); ++i) {
            const bool isOld = i < write.before.size() && current[i] == write.before[i];
            const bool isNew = i < write.after.size() && current[i] == write.after[i];
            const bool isUnwritten = i >= write.before.size() && current[i] == '\0';
            if (!isOld && !isNew && !isUnwritten)
                return false;
        }
        return true;
    }

    /// False when the record must stay for a later start.
    bool Finish(const InPlaceWrite &write)
    {
        const FileDescriptor file(write.target, O_RDWR | O_NOFOLLOW | O_NONBLOCK);
        if (!file.IsOpen()) {
            // A missing folder may come back with the disk that it lies on; a missing file was
            // deleted.
            struct stat status = {};
            return file.OpenError() == ENOENT
                && ::stat(SystemFolder(write.target).constData(), &status) == 0;
        }
        struct stat status = {};
        if (::fstat(file.Number(), &status) < 0 || !S_ISREG(status.st_mode))
            return true;
        QByteArray current;
        if (!ReadWhole(file, &current).isEmpty())
            return false;
        if (current == write.after || !IsInterrupted(current, write))
            return true;
        return Overwrite(file, write.after).isEmpty() && KeepMode(file, status).isEmpty();
    }

} // namespace

QString RedoRecord::Create(const QByteArray &folder)
{
    // A program that starts between creation and lock takes the empty record for an incomplete one
    // and removes it.
    struct stat status = {};
    do {
        m_file = CreateUniqueFile(folder + '/', ".redo", 0600, &m_name);
        if (!m_file.IsOpen())
            return SystemError(m_file.OpenError());
        ::flock(m_file.Number(), LOCK_EX);
        if (::fstat(m_file.Number(), &status) < 0)
            return SystemError(errno);
    } while (status.st_nlink == 0);
    return {};
}

QString RedoRecord::Store(const InPlaceWrite &write)
{
    QString error = MakeRecordFolder();
    if (!error.isEmpty())
        return error;
    const QByteArray bytes = RecordBytes(write);
    if (bytes.size() > largestFile)
        return SystemError(EFBIG);
    error = Create(SystemName(RecordFolder()));
    if (!error.isEmpty())
        return error;
    error = WriteFromStart(m_file, bytes);
    if (error.isEmpty())
        error = Sync(m_file);
    if (error.isEmpty())
        error = SyncFolderOf(m_name);
    if (!error.isEmpty())
        Remove();
    return error;
}

void RedoRecord::Remove()
{
    ::unlink(m_name.constData());
    // A record that came back after a power cut would be taken for an unfinished write.
    SyncFolderOf(m_name);
    m_file.Close();
}

std::optional<InPlaceWrite> ReadRedoRecord(const FileDescriptor &record)
{
    QByteArray bytes;
    if (!ReadWhole(record, &bytes).isEmpty())
        return {};
    const qsizetype checksumSize = QCryptographicHash::hashLength(QCryptographicHash::Sha256);
    const QByteArray content = bytes.mid(checksumSize);
    if (bytes.left(checksumSize) != Checksum(content))
        return {};
    QDataStream stream(content);
    stream.setVersion(QDataStream::Qt_6_0);
    InPlaceWrite write;
    stream >> write.target >> write.before >> write.after;
    return write;
}

QString WriteInPlace(const QByteArray &target, const QByteArray &bytes)
{
    const FileDescriptor file(target, O_RDWR | O_NOFOLLOW | O_NONBLOCK);
    struct stat status = {};
    if (!file.IsOpen())
        return SystemError(file.OpenError());
    if (::fstat(file.Number(), &status) < 0)
        return SystemError(errno);

    const QByteArray absolute
        = target.startsWith('/') ? target : QFile::encodeName(QDir::currentPath()) + '/' + target;
    InPlaceWrite write{.target = absolute, .before = {}, .after = bytes};
    QString error = ReadWhole(file, &write.before);
    if (!error.isEmpty())
        return error;
    RedoRecord record;
    error = ReserveSpace(file, bytes.size());
    if (error.isEmpty())
        error = record.Store(write);
    if (!error.isEmpty()) {
        // Gives back what was reserved behind the end.
        Truncate(file, status.st_size);
        return error;
    }
    error = Overwrite(file, bytes);
    // The old content fits where it was. Should even that fail, the record stays and the next start
    // finishes.
    if (!error.isEmpty() && !Overwrite(file, write.before).isEmpty())
        return error;
    const QString modeError = KeepMode(file, status);
    record.Remove();
    return error.isEmpty() ? modeError : error;
}

void FinishInterruptedWrites()
{
    const QDir folder(RecordFolder());
    const QStringList names = folder.entryList({u"*.redo"_s}, QDir::Files);
    for (const QString &name : names) {
        const QByteArray path = SystemName(folder.filePath(name));
        const FileDescriptor record(path, O_RDWR | O_NOFOLLOW);
        // Another running program is still at work with a record that is locked.
        if (!record.IsOpen()
            || (::flock(record.Number(), LOCK_EX | LOCK_NB) < 0 && errno == EWOULDBLOCK))
            continue;
        const std::optional<InPlaceWrite> write = ReadRedoRecord(record);
        if (!write || Finish(*write)) {
            ::unlink(path.constData());
            SyncFolderOf(path);
        }
    }
}

} // namespace brenix
