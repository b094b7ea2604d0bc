#include "support/SystemFile.h"

#include <QFile>
#include <QRandomGenerator>

#include <cerrno>
#include <fcntl.h>
#include <sys/stat.h>
#include <sys/xattr.h>
#include <system_error>
#include <unistd.h>
#include <utility>
#ifdef Q_OS_LINUX
#include <linux/magic.h>
#include <sys/vfs.h>
#endif

namespace brenix {

using namespace Qt::StringLiterals;

namespace {

    template <typename Call> auto Repeat(Call call)
    {
        auto result = call();
        while (result < 0 && errno == EINTR)
            result = call();
        return result;
    }

} // namespace

QString SystemError(int code)
{
    return QString::fromLocal8Bit(std::system_category().message(code).c_str());
}

FileDescriptor::FileDescriptor(const QByteArray &path, int flags, mode_t mode)
    : m_number(Repeat([&] { return ::open(path.constData(), flags | O_CLOEXEC, mode); }))
    , m_openError(m_number < 0 ? errno : 0)
{
}

FileDescriptor::FileDescriptor(FileDescriptor &&other) noexcept
    : m_number(std::exchange(other.m_number, -1))
    , m_openError(other.m_openError)
{
}

FileDescriptor &FileDescriptor::operator=(FileDescriptor &&other) noexcept
{
    std::swap(m_number, other.m_number);
    std::swap(m_openError, other.m_openError);
    return *this;
}

FileDescriptor::~FileDescriptor()
{
    Close();
}

QString FileDescriptor::Close()
{
    if (!IsOpen())
        return {};
    // Not repeated: the number is free after the first call, whatever it returns.
    const int result = ::close(std::exchange(m_number, -1));
    return result < 0 && errno != EINTR ? SystemError(errno) : QString();
}

QByteArray SystemName(const QString &path)
{
    return path.contains(QChar(u'\0')) ? QByteArray() : QFile::encodeName(path);
}

QByteArray SystemFolder(const QByteArray &path)
{
    const qsizetype slash = path.lastIndexOf('/');
    if (slash < 0)
        return ".";
    return slash == 0 ? QByteArray("/") : path.left(slash);
}

QString NotRegularFile(mode_t mode)
{
    return S_ISDIR(mode) ? SystemError(EISDIR) : u"Not a regular file"_s;
}

FileDescriptor CreateUniqueFile(const QByteArray &start,
                                const QByteArray &end,
                                mode_t mode,
                                QByteArray *path)
{
    for (;;) {
        const quint32 number = QRandomGenerator::system()->generate();
        *path = start + QByteArray::number(number, 16).rightJustified(8, '0') + end;
        FileDescriptor file(*path, O_RDWR | O_CREAT | O_EXCL | O_NOFOLLOW, mode);
        if (file.IsOpen() || file.OpenError() != EEXIST)
            return file;
    }
}

QString ReadWhole(const FileDescriptor &file, QByteArray *bytes)
{
    struct stat status = {};
    if (::fstat(file.Number(), &status) < 0)
        return SystemError(errno);
    qsizetype size = 0;
    // The size is a hint alone: the file may grow, and files made by the kernel have none. One byte
    // more than it lets the end be seen without another round.
    qsizetype room = qMin<qsizetype>(status.st_size, largestFile) + 1;
    for (;;) {
        bytes->resize(room);
        const auto count = Repeat([&] {
            return ::pread(file.Number(), bytes->data() + size, size_t(room - size), size);
        });
        if (count < 0) {
            const QString error = SystemError(errno);
            bytes->clear();
            return error;
        }
        size += count;
        if (size > largestFile) {
            bytes->clear();
            return SystemError(EFBIG);
        }
        if (count == 0)
            break;
        if (size == room)
            room = qMin(2 * room + 4096, largestFile + 1);
    }
    bytes->resize(size);
    return {};
}

QString WriteFromStart(const FileDescriptor &file, QByteArrayView bytes)
{
    for (qsizetype done = 0; done < bytes.size();) {
        const auto count = Repeat([&] {
            return ::pwrite(file.Number(), bytes.data() + done, size_t(bytes.size() - done), done);
        });
        if (count < 0)
            return SystemError(errno);
        if (count == 0)
            return SystemError(ENOSPC);
        done += count;
    }
    return {};
}

QString Truncate(const FileDescriptor &file, qsizetype size)
{
    const int result = Repeat([&] { return ::ftruncate(file.Number(), size); });
    return result < 0 ? SystemError(errno) : QString();
}

void BeginSync(const FileDescriptor &file)
{
#ifdef Q_OS_LINUX
    ::sync_file_range(file.Number(), 0, 0, SYNC_FILE_RANGE_WRITE);
#else
    Q_UNUSED(file)
#endif
}

bool WritesBeforeRename(const FileDescriptor &file)
{
#ifdef Q_OS_LINUX
    // What their makers promise programs that rename without waiting; others promise nothing.
    struct statfs status = {};
    return ::fstatfs(file.Number(), &status) == 0
        && (status.f_type == EXT4_SUPER_MAGIC || status.f_type == BTRFS_SUPER_MAGIC
            || status.f_type == TMPFS_MAGIC);
#else
    Q_UNUSED(file)
    return false;
#endif
}

QString Sync(const FileDescriptor &file)
{
#ifdef F_FULLFSYNC
    // fsync() alone stops at the cache of the disk there.
    if (::fcntl(file.Number(), F_FULLFSYNC) == 0)
        return {};
#endif
    if (Repeat([&] { return ::fsync(file.Number()); }) == 0)
        return {};
    const bool isUnknownHere = errno == EINVAL || errno == ENOTSUP || errno == ENOSYS;
    return isUnknownHere ? QString() : SystemError(errno);
}

bool HasExtendedAttributes(const FileDescriptor &file)
{
#ifdef Q_OS_MACOS
    return ::flistxattr(file.Number(), nullptr, 0, 0) > 0;
#else
    return ::flistxattr(file.Number(), nullptr, 0) > 0;
#endif
}

} // namespace brenix
