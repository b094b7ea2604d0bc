#include "checks/FolderWalk.h"

#include "checks/Pulse.h"

#include <QDirIterator>
#include <QFileInfo>
#include <QSet>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace brenix {

namespace {

    bool ComesBefore(const QString &a, const QString &b)
    {
        const int order = a.compare(b, Qt::CaseInsensitive);
        return order != 0 ? order < 0 : a < b;
    }

} // namespace

QStringList FilesIn(const QString &folder, QStringView pattern, Pulse &pulse)
{
    const bool isForAll = pattern.isEmpty() || pattern == u"*.*";
    const QString realFolder = QFileInfo(folder).canonicalFilePath();
    if (realFolder.isEmpty())
        return {};
    QStringList names;
    QStringList links;
    // Without the flag for it, neither pipes and sockets nor links that lead nowhere are listed.
    QDirIterator files(folder, QDir::Files);
    while (files.hasNext()) {
        files.next();
        if (!pulse.LongStep())
            return {};
        if (isForAll || MatchesPattern(files.fileName(), pattern))
            (files.fileInfo().isSymLink() ? links : names) += files.fileName();
    }
    QSet<QString> listed(names.begin(), names.end());
    for (const QString &link : std::as_const(links)) {
        const QFileInfo target(QFileInfo(QDir(folder), link).canonicalFilePath());
        const bool isHere = target.path() == realFolder;
        if (isHere && listed.contains(target.fileName()))
            continue;
        if (isHere)
            listed += target.fileName();
        names += link;
    }
    std::sort(names.begin(), names.end(), ComesBefore);
    return names;
}

bool MatchesPattern(QStringView name, QStringView pattern)
{
    qsizetype at = 0;
    qsizetype atPattern = 0;
    // Where the last star stands and how much of the name it has taken: enough to go back to, since
    // an earlier star never has to take more.
    qsizetype star = -1;
    qsizetype taken = 0;
    while (at < name.size()) {
        const QChar expected = atPattern < pattern.size() ? pattern[atPattern] : QChar();
        if (expected == u'*') {
            star = atPattern++;
            taken = at;
        } else if (atPattern < pattern.size()
                   && (expected == u'?' || expected.toLower() == name[at].toLower())) {
            ++at;
            ++atPattern;
        } else if (star >= 0) {
            at = ++taken;
            atPattern = star + 1;
        } else {
            return false;
        }
    }
    const QStringView rest = pattern.sliced(atPattern);
    return std::all_of(rest.begin(), rest.end(), [](QChar unit) { return unit == u'*'; });
}

} // namespace brenix
