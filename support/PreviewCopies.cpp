#include "support/PreviewCopies.h"

#include "support/Paths.h"

#include <QCryptographicHash>
#include <QDateTime>
#include <QDir>
#include <QFileInfo>

#include <optional>

namespace brenix {

using namespace Qt::StringLiterals;

namespace {

    /// The register holds a small file for each claimed name: what the copy was when this program
    /// last wrote it. A copy that looks otherwise has since become somebody else's.
    QString EntryName(const QString &path)
    {
        const QByteArray name = QDir::cleanPath(QFileInfo(path).absoluteFilePath()).toUtf8();
        const QByteArray hash = QCryptographicHash::hash(name, QCryptographicHash::Sha256).toHex();
        return AppPath(u"Recovery/Previews/") + QString::fromLatin1(hash);
    }

    bool WriteEntry(const QString &path)
    {
        const QString name = EntryName(path);
        QDir().mkpath(QFileInfo(name).path());
        QFile entry(name);
        const QByteArray line = PreviewCopyStamp(path) + '\n' + path.toUtf8() + '\n';
        return entry.open(QIODevice::WriteOnly) && entry.write(line) == line.size()
            && entry.flush();
    }

    /// The stamp in the register; nothing when the path is not claimed.
    std::optional<QByteArray> RegisteredStamp(const QString &path)
    {
        QFile entry(EntryName(path));
        if (!entry.open(QIODevice::ReadOnly))
            return {};
        return entry.readLine().trimmed();
    }

    bool IsMissing(const QString &path)
    {
        return PreviewCopyStamp(path) == "none";
    }

    bool IsOurs(const QString &path)
    {
        const std::optional<QByteArray> registered = RegisteredStamp(path);
        return registered && (IsMissing(path) || *registered == PreviewCopyStamp(path));
    }

} // namespace

QByteArray PreviewCopyStamp(const QString &path)
{
    const QFileInfo file(path);
    if (file.isSymLink())
        return "link";
    if (!file.exists())
        return "none";
    return QByteArray::number(file.size()) + ' '
        + QByteArray::number(file.lastModified().toMSecsSinceEpoch());
}

QString ClaimPreviewCopy(const QString &wanted)
{
    constexpr int mostNames = 100;
    QString path = wanted;
    for (int i = 0; i < mostNames && !path.isEmpty(); ++i) {
        if (IsOurs(path))
            return path;
        if (IsMissing(path)) {
            WriteEntry(path);
            return path;
        }
        path = PreviewCopyName(path);
    }
    return {};
}

bool WritePreviewCopy(const QString &path, const QByteArray &bytes)
{
    if (!IsOurs(path))
        return false;
    QFile file(path);
    // A file that came up since the question is not overwritten.
    const QIODevice::OpenMode mode
        = IsMissing(path) ? QIODevice::NewOnly : QIODevice::ExistingOnly | QIODevice::Truncate;
    if (!file.open(QIODevice::WriteOnly | mode))
        return false;
    const bool isWritten = file.write(bytes) == bytes.size() && file.flush();
    file.close();
    return WriteEntry(path) && isWritten;
}

void DropPreviewCopy(const QString &path)
{
    if (IsOurs(path))
        QFile::remove(path);
    QFile::remove(EntryName(path));
}

void ForgetPreviewCopy(const QString &path)
{
    QFile::remove(EntryName(path));
}

} // namespace brenix
