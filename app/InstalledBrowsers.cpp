#include "app/BrowserSearch.h"
#include "support/AuthorFile.h"
#include "support/Paths.h"

#include <QDir>
#include <QHash>
#include <QSet>
#include <QStandardPaths>

using namespace Qt::StringLiterals;

namespace brenix {

namespace {

    using Entry = QHash<QString, QString>;

    /// The keys of the main group, as they stand in the file.
    Entry ReadEntry(const QString &path)
    {
        Entry entry;
        bool isMainGroup = false;
        const QString text = QString::fromUtf8(ReadAuthorFile(path).bytes);
        for (const QStringView rawLine : QStringView(text).split(u'\n')) {
            const QStringView line = rawLine.trimmed();
            if (line.startsWith(u'['))
                isMainGroup = line == u"[Desktop Entry]";
            const qsizetype sign = line.indexOf(u'=');
            if (isMainGroup && sign > 0 && !line.startsWith(u'#'))
                entry.insert(line.left(sign).trimmed().toString(),
                             line.mid(sign + 1).trimmed().toString());
        }
        return entry;
    }

    bool IsTrue(const Entry &entry, const QString &key)
    {
        return entry.value(key) == u"true";
    }

    bool IsShownBrowser(const Entry &entry)
    {
        return entry.value(u"Type"_s) == u"Application"
            && entry.value(u"Categories"_s).split(u';').contains(u"WebBrowser"_s)
            && !IsTrue(entry, u"NoDisplay"_s) && !IsTrue(entry, u"Hidden"_s)
            && !IsTrue(entry, u"Terminal"_s);
    }

    /// Takes the first word off a command line; a word in quotes may hold blanks, and a backslash
    /// in it takes the next character as it is.
    QString TakeWord(QStringView &command)
    {
        command = command.trimmed();
        QString word;
        bool isQuoted = false;
        qsizetype place = 0;
        for (; place < command.size() && (isQuoted || !command[place].isSpace()); ++place) {
            if (command[place] == u'"')
                isQuoted = !isQuoted;
            else if (isQuoted && command[place] == u'\\' && place + 1 < command.size())
                word += command[++place];
            else
                word += command[place];
        }
        command = command.mid(place);
        return word;
    }

    /// The path of what a command line starts; empty when that is not there, or when it is a
    /// container's launcher, which is no browser without its arguments.
    QString ExecutableOf(QString command)
    {
        // A value writes a backslash as two.
        command.replace(u"\\\\"_s, u"\\"_s);
        QStringView rest = command;
        QString program = TakeWord(rest);
        if (FileNameOf(program) == u"env") {
            do
                program = TakeWord(rest);
            while (program.contains(u'='));
        }
        if (program.isEmpty() || FileNameOf(program) == u"flatpak")
            return {};
        return QStandardPaths::findExecutable(program);
    }

} // namespace

QList<ExternalBrowser> InstalledBrowsers(const QStringList &folders)
{
    QList<ExternalBrowser> browsers;
    QSet<QString> seen;
    for (const QString &folder : folders) {
        const QDir directory(folder);
        const QStringList files = directory.entryList({u"*.desktop"_s}, QDir::Files, QDir::Name);
        for (const QString &file : files) {
            if (seen.contains(file))
                continue;
            seen.insert(file);
            const Entry entry = ReadEntry(directory.filePath(file));
            if (!IsShownBrowser(entry))
                continue;
            const ExternalBrowser browser{entry.value(u"Name"_s),
                                          ExecutableOf(entry.value(u"Exec"_s))};
            if (!browser.path.isEmpty())
                browsers.append(browser);
        }
    }
    return browsers;
}

} // namespace brenix
