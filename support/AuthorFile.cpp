#include "support/AuthorFile.h"

#include "support/SystemFile.h"

#include <cerrno>
#include <fcntl.h>
#include <sys/stat.h>

namespace brenix {

FileContent ReadAuthorFile(const QString &path)
{
    const QByteArray name = SystemName(path);
    struct stat status = {};
    // Asked before the file is opened, since opening a pipe or a device has effects of its own.
    if (::stat(name.constData(), &status) < 0)
        return {.bytes = {}, .error = SystemError(errno)};
    if (!S_ISREG(status.st_mode))
        return {.bytes = {}, .error = NotRegularFile(status.st_mode)};
    const FileDescriptor file(name, O_RDONLY | O_NONBLOCK);
    if (!file.IsOpen())
        return {.bytes = {}, .error = SystemError(file.OpenError())};
    FileContent content;
    content.error = ReadWhole(file, &content.bytes);
    return content;
}

QString WriteAuthorFile(const QString &path, const QByteArray &bytes)
{
    AuthorFileBatch batch(AuthorFileBatch::Purpose::Save);
    batch.Add(path, bytes);
    return batch.PutInPlace().value(0);
}

} // namespace brenix
