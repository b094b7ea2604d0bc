#include "app/RecentFiles.h"

#include "support/Paths.h"
#include "support/SettingsStore.h"

using namespace Qt::StringLiterals;

namespace brenix {

namespace {

    const QStringList Commands{u"Open Document"_s, u"Open from Web..."_s, u"------------"_s};

    QString RecentKey(int number)
    {
        return u"Recent"_s + QString::number(number);
    }

    // First three characters, the cut, and the name; nothing for a path without a folder.
    QString ShortForm(const QString &path)
    {
        const QString name = FileNameOf(path);
        return name.size() == path.size() ? QString() : path.left(3) + u"...\\"_s + name;
    }

    // Those that have a row.
    QStringList Shown()
    {
        QStringList paths;
        for (int number = 1; number <= RecentCount; ++number) {
            const QString path = RecentFile(number);
            if (!ShortForm(path).isEmpty())
                paths.append(path);
        }
        return paths;
    }

} // namespace

QString RecentFile(int number)
{
    return GetSetting(u"Recent", RecentKey(number));
}

void AddRecentFile(const QString &path)
{
    int place = 1;
    while (place < RecentCount && RecentFile(place) != path)
        ++place;
    for (; place > 1; --place)
        SaveSetting(u"Recent", RecentKey(place), RecentFile(place - 1));
    if (RecentFile(1) != path)
        SaveSetting(u"Recent", RecentKey(1), path);
}

QStringList OpenListRows()
{
    QStringList rows = Commands;
    for (const QString &path : Shown())
        rows.append(ShortForm(path));
    return rows;
}

QString RecentFileOfRow(int row)
{
    return row < Commands.size() ? QString() : Shown().value(row - Commands.size());
}

} // namespace brenix
