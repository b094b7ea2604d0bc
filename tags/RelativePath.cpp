#include "tags/RelativePath.h"

#include "support/DocumentModel.h"
#include "support/UntitledPages.h"

#include <QDir>

using namespace Qt::StringLiterals;

namespace brenix {

namespace {

    const QString LocalFile = u"file://"_s;

    // How many "\" of `base` count as common to both paths. The one at the first difference counts
    // too, which is what loses a folder where one name begins with the other.
    qsizetype SharedDepth(QStringView target, QStringView base)
    {
        qsizetype shared = 0;
        for (qsizetype i = 0; i < base.size(); ++i) {
            if (base[i] == u'\\')
                ++shared;
            if (i >= target.size() || target[i] != base[i])
                break;
        }
        return shared;
    }

    // The length of `path` up to its `count`-th "\"; one more than there is when it has fewer.
    qsizetype LengthOfFolders(QStringView path, qsizetype count)
    {
        qsizetype length = 0;
        for (; count > 0; --count) {
            const qsizetype separator = path.indexOf(u'\\', length);
            if (separator < 0)
                return path.size() + 1;
            length = separator + 1;
        }
        return length;
    }

    bool IsSlashPath(QStringView path)
    {
        return path.startsWith(u'/');
    }

    // `more` are characters that are no plain part of this link either.
    QString Encoded(const QString &link, QStringView more)
    {
        QString encoded;
        for (const QChar c : link) {
            if (c > u' ' && c != u'\x7F' && !u"\"#%&<>?"_s.contains(c) && !more.contains(c))
                encoded += c;
            else
                encoded += u"%%1"_s.arg(c.unicode(), 2, 16, QChar(u'0')).toUpper();
        }
        return encoded;
    }

} // namespace

std::optional<QString> RelativePath(const QString &target, QString &base)
{
    if (!base.endsWith(u'\\') && !base.endsWith(u'/'))
        base += u'\\';
    if (target.isEmpty() || target.front() != base.front())
        return target;
    const qsizetype shared = SharedDepth(target, base);
    const qsizetype folders = LengthOfFolders(target, shared);
    if (folders > target.size())
        return std::nullopt;
    QString path
        = u"../"_s.repeated(base.count(u'\\') - shared) + target.mid(folders) + target.back();
    return path.replace(u'\\', u'/');
}

QString LinkPath(const QString &path, const QString &folder)
{
    if (IsSlashPath(path))
        return QDir(folder).relativeFilePath(path);
    QString base = folder;
    const std::optional<QString> relative = RelativePath(path, base);
    return relative ? relative->chopped(qMin(relative->size(), qsizetype(1))) : LocalFile + path;
}

QString LinkAddress(const DocumentModel &page, const QString &path)
{
    const bool isSlashPath = IsSlashPath(path);
    if (IsUntitled(page.Caption()))
        return Encoded(LocalFile + path, isSlashPath ? u"\\" : u"");
    // A colon would make what stands before it a scheme.
    return Encoded(LinkPath(path, page.Folder()), isSlashPath ? u"\\:" : u"");
}

} // namespace brenix
