#include "support/Paths.h"

#include <QCoreApplication>
#include <QDir>
#include <QDirIterator>
#include <QFileInfo>
#include <QStandardPaths>
#include <QStringBuilder>
#include <QTemporaryDir>

#include <map>
#include <memory>

namespace brenix {

using namespace Qt::StringLiterals;

namespace {

    void CopyMissingFiles(const QDir &from, const QDir &to)
    {
        QDirIterator entries(from.path(),
                             QDir::Files | QDir::Dirs | QDir::NoDotAndDotDot,
                             QDirIterator::Subdirectories);
        while (entries.hasNext()) {
            entries.next();
            const QString copy = to.filePath(from.relativeFilePath(entries.filePath()));
            if (entries.fileInfo().isDir()) {
                QDir().mkpath(copy);
                continue;
            }
            QDir().mkpath(QFileInfo(copy).path());
            // Does nothing where there is a file of that name.
            if (QFile::copy(entries.filePath(), copy))
                QFile::setPermissions(copy, QFile::permissions(copy) | QFile::WriteOwner);
        }
    }

    QString FindAppDirectory()
    {
        const QDir programFolder(QCoreApplication::applicationDirPath());
        const QDir installed(programFolder.filePath(u"../share/brenix"_s));
        // Asked before the right to write: an administrator, or an owner of an installation of his
        // own, can always write.
        if (!installed.exists() && QFileInfo(programFolder.path()).isWritable())
            return programFolder.path();
        const QString folder
            = QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation) + u"/Brenix"_s;
        // Only at the first start: what the user has deleted since stays deleted.
        if (!QDir(folder).exists(u"Skins"_s) && QDir().mkpath(folder))
            CopyMissingFiles(QDir(QDir::cleanPath(installed.path())), QDir(folder));
        return folder;
    }

    QString ExchangeBase()
    {
#ifdef Q_OS_LINUX
        // Without a runtime directory, asking for one prints a warning.
        if (!qEnvironmentVariableIsSet("XDG_RUNTIME_DIR"))
            return QDir::tempPath();
#endif
        const QString runtime = QStandardPaths::writableLocation(QStandardPaths::RuntimeLocation);
        return !runtime.isEmpty() && QFileInfo(runtime).isWritable() ? runtime : QDir::tempPath();
    }

    std::map<QChar, std::unique_ptr<QTemporaryDir>> &ExchangeRoots()
    {
        static std::map<QChar, std::unique_ptr<QTemporaryDir>> roots;
        return roots;
    }

    qsizetype NameStart(QStringView path)
    {
        return qMax(path.lastIndexOf(u'\\'), path.lastIndexOf(u'/')) + 1;
    }

} // namespace

QString AppDirectory()
{
    const QString given = qEnvironmentVariable("BRENIX_APPDIR");
    if (!given.isEmpty())
        return QDir::toNativeSeparators(QDir::cleanPath(QDir(given).absolutePath()));
    static const QString folder = QDir::toNativeSeparators(QDir::cleanPath(FindAppDirectory()));
    return folder;
}

QString AppPath(QStringView relativeName)
{
    return AppDirectory() + QDir::separator() + QDir::toNativeSeparators(relativeName.toString());
}

QString ExchangeRoot(QChar letter)
{
    const QChar drive = letter.toUpper();
    if (drive < u'A' || drive > u'Z')
        return {};
    std::unique_ptr<QTemporaryDir> &root = ExchangeRoots()[drive];
    if (!root || !QFileInfo(root->path()).isDir())
        root = std::make_unique<QTemporaryDir>(ExchangeBase() + u"/brenix-"_s + drive
                                               + u"-XXXXXX"_s);
    return root->isValid() ? QDir::toNativeSeparators(root->path()) : QString();
}

void RemoveExchangeRoots()
{
    ExchangeRoots().clear();
}

QString FileNameOf(QStringView path)
{
    return path.mid(NameStart(path)).toString();
}

QString FolderOf(QStringView path)
{
    return path.left(NameStart(path)).toString();
}

QString PreviewCopyName(QStringView caption)
{
    const qsizetype point = caption.lastIndexOf(u'.');
    if (point < 0)
        return {};
    return caption.left(point) % u'_' % caption.mid(point);
}

} // namespace brenix
