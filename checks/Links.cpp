#include "checks/Links.h"

#include <QDir>
#include <QFileInfo>
#include <QStringBuilder>

using namespace Qt::StringLiterals;

namespace brenix {

namespace {

    /// Put in front of a link that is not tested. A link of the page that begins so is taken for
    /// one.
    constexpr QStringView UrlMarker = u"(URL: ";
    constexpr QStringView FtpMarker = u"(FTP: ";
    constexpr QStringView MailMarker = u"Mail: ";
    constexpr QStringView MailScheme = u"mailto:";
    constexpr QStringView FileScheme = u"file://";

    constexpr qsizetype UpLength = 3;

    bool Begins(QStringView link, QStringView beginning)
    {
        return link.startsWith(beginning, Qt::CaseInsensitive);
    }

    QString Marked(const QString &link, const QString &projectFolder)
    {
        if (Begins(link, FileScheme))
            return link.mid(FileScheme.size());
        if (Begins(link, u"http://"))
            return UrlMarker % link;
        if (Begins(link, u"ftp://"))
            return FtpMarker % link;
        if (Begins(link, MailScheme))
            return MailMarker % link;
        return LeadsUpward(link) ? ResolveUpward(link, projectFolder) : link;
    }

    qsizetype LastSeparator(QStringView path)
    {
        return qMax(path.lastIndexOf(u'\\'), path.lastIndexOf(u'/'));
    }

} // namespace

QString StatusWord(LinkStatus status)
{
    switch (status) {
    case LinkStatus::Ok:
        return u"OK!"_s;
    case LinkStatus::Broken:
        return u"Broken"_s;
    case LinkStatus::Url:
        return u"URL"_s;
    case LinkStatus::Inside:
        return u"Inside"_s;
    case LinkStatus::Ftp:
        return u"FTP"_s;
    case LinkStatus::Mail:
        return u"Mail"_s;
    }
    return {};
}

CheckedLink CheckLink(const QString &link,
                      const QString &projectFolder,
                      const QString &currentFolder)
{
    QString tested = WithBlanks(Marked(link, projectFolder));
    if (tested.endsWith(QChar(u'\0')))
        tested.chop(1);
    if (tested.startsWith(UrlMarker))
        return {LinkStatus::Url, tested.mid(UrlMarker.size())};
    if (tested.startsWith(FtpMarker))
        return {LinkStatus::Ftp, tested.mid(FtpMarker.size())};
    if (tested.startsWith(MailMarker))
        return {LinkStatus::Mail, tested.mid(MailMarker.size() + MailScheme.size())};
    if (tested.startsWith(u'#'))
        return {LinkStatus::Inside, tested};
    const bool isThere = !FileOnDisk(tested, currentFolder).isEmpty();
    return {isThere ? LinkStatus::Ok : LinkStatus::Broken, tested};
}

bool LeadsUpward(QStringView link)
{
    return link.startsWith(u"../") || link.startsWith(u"..\\");
}

QString ResolveUpward(QStringView link, QStringView folder)
{
    while (LeadsUpward(link)) {
        link = link.sliced(UpLength);
        const qsizetype end = LastSeparator(folder);
        if (end >= 0)
            folder.truncate(end);
    }
    return folder % QDir::separator() % link;
}

QString WithBlanks(QString link)
{
    return link.replace(u"%20"_s, u" "_s);
}

QString LinkFolder(QString folder)
{
    if (LastSeparator(folder) == folder.size() - 1)
        folder.chop(1);
    return folder;
}

QString FileOnDisk(const QString &path, const QString &currentFolder)
{
    if (path.isEmpty() || path.contains(QChar(u'\0')))
        return {};
    for (const QString &name : {path, QString(path).replace(u'\\', u'/')}) {
        const QFileInfo file(QDir(currentFolder), name);
        if (file.isFile())
            return file.filePath();
    }
    return {};
}

} // namespace brenix
