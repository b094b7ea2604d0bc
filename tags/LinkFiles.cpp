#include "tags/LinkFiles.h"

#include "support/AuthorFile.h"
#include "support/Paths.h"
#include "support/TextCodec.h"

#include <QFile>

using namespace Qt::StringLiterals;

namespace brenix {

namespace {

    constexpr qsizetype MostRows = 10'000;
    constexpr qsizetype LongestAddress = 4096;
    const QString MailScheme = u"mailto:"_s;

    QString RecentPath()
    {
        return AppPath(u"Files.dat");
    }

    QStringList LinesOf(const QByteArray &bytes)
    {
        QString text = DecodePage(bytes, {}).text;
        text.replace(u"\r\n"_s, u"\n"_s).replace(u'\r', u'\n');
        return text.split(u'\n');
    }

    bool IsAddress(const QString &line)
    {
        return !line.isEmpty() && line.size() <= LongestAddress && !line.contains(QChar(u'\0'));
    }

} // namespace

QStringList ReadRecentAddresses()
{
    QStringList rows;
    QString before;
    for (const QString &line : LinesOf(ReadAuthorFile(RecentPath()).bytes)) {
        if (IsAddress(line) && line != before)
            rows.append(line);
        before = line;
    }
    return rows.mid(qMax(qsizetype(0), rows.size() - MostRows));
}

QString WriteRecentAddresses(const QStringList &rows)
{
    QByteArray bytes;
    for (const QString &row : rows)
        bytes += row.toUtf8() + "\r\n";
    // A file that could not be read is not replaced by the little that was shown of it.
    const QString path = RecentPath();
    const QString error = QFile::exists(path) ? ReadAuthorFile(path).error : QString();
    return error.isEmpty() ? WriteAuthorFile(path, bytes) : error;
}

RecentLinks SplitRecentAddresses(const QStringList &rows)
{
    RecentLinks links;
    for (const QString &row : rows) {
        if (row.startsWith(u"mailto"_s, Qt::CaseInsensitive))
            links.mail.append(row.mid(MailScheme.size()));
        else
            links.addresses.append(row);
    }
    return links;
}

QStringList JoinRecentAddresses(const RecentLinks &links, const QString &linked)
{
    QStringList rows = links.addresses;
    for (const QString &address : links.mail) {
        if (!address.trimmed().isEmpty())
            rows.append(MailScheme + address);
    }
    rows.append(linked);
    return rows;
}

std::optional<QString> ShortcutLine(const QString &path)
{
    const FileContent file = ReadAuthorFile(path);
    if (!file.error.isEmpty())
        return std::nullopt;
    return LinesOf(file.bytes).value(1);
}

QString ShortcutAddress(const QString &line)
{
    const qsizetype sign = line.indexOf(u'=');
    return sign < 0 ? QString() : line.mid(sign + 1);
}

QString DesignerShortcutAddress(const QString &line)
{
    const QString address = line.mid(4);
    const qsizetype slash = address.indexOf(u'/');
    return slash < 0 ? address : address.mid(slash + 2);
}

} // namespace brenix
