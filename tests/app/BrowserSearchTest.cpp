#include "app/BrowserSearch.h"

#include "support/AuthorFile.h"
#include "tests/support/FreshHome.h"

#include <QDir>
#include <QTemporaryDir>

using namespace brenix;
using namespace Qt::StringLiterals;

namespace {

/// The slots as "name=path", separated by blanks; a free one is "-".
QString Shown(const BrowserSlots &browsers)
{
    QStringList shown;
    for (const ExternalBrowser &browser : browsers)
        shown += browser.path.isEmpty() ? u"-"_s : browser.name + u'=' + browser.path;
    return shown.join(u' ');
}

BrowserSlots SlotsWith(const QString &paths)
{
    BrowserSlots browsers = FreeBrowserSlots();
    for (qsizetype slot = 0; slot < paths.size(); ++slot) {
        if (paths[slot] != u'-')
            browsers[std::size_t(slot)] = {u"own"_s, paths.mid(slot, 1)};
    }
    return browsers;
}

struct Case
{
    const char *row;
    QString before; ///< a letter a slot
    QString there; ///< of the programs "ieno": 'i' is there, '?' cancelled
    QStringList installed;
    QString after;
    QStringList toldOnDrives;
    QStringList toldOnPath;
};

QList<Case> Cases()
{
    const QString ie = u"Can't find path to Internet Explorer"_s;
    const QString netscape = u"Can't find path to Netscape"_s;
    const QString opera = u"Can't find path to Opera"_s;
    const QString mosaic = u"Can't find path to Mosaic"_s;
    const QString all = QStringList{ie, netscape, opera, mosaic}.join(u'\n');
    return {
        {"all are there",
         u"----"_s,
         u"++++"_s,
         {},
         u"Internet Explorer=i Netscape 6=n Opera=o Mosaic=m"_s,
         {},
         {}},
        {"the first takes slot 1 from another",
         u"abcd"_s,
         u"++++"_s,
         {},
         u"Internet Explorer=i Netscape 6=n own=c own=d"_s,
         {},
         {}},
        {"the second takes slot 1 when it is free",
         u"----"_s,
         u"-+--"_s,
         {},
         u"Netscape 6=n - - -"_s,
         {ie, opera, mosaic},
         {}},
        {"the third takes none behind slot 3",
         u"abc-"_s,
         u"--++"_s,
         {},
         u"own=a own=b own=c Mosaic=m"_s,
         {ie, netscape},
         {}},
        {"what is not there leaves a slot alone",
         u"ab--"_s,
         u"----"_s,
         {},
         u"own=a own=b - -"_s,
         {ie, netscape, opera, mosaic},
         {all}},
        {"cancelling says nothing", u"----"_s, u"????"_s, {}, u"- - - -"_s, {}, {}},
        {"cancelling one ends this one",
         u"----"_s,
         u"+?+?"_s,
         {},
         u"Internet Explorer=i Opera=o - -"_s,
         {},
         {}},
        {"installed ones take what is left, once each",
         u"-x--"_s,
         u"----"_s,
         {u"x"_s, u"y"_s, u"y"_s},
         u"of y=y own=x - -"_s,
         {ie, netscape, opera, mosaic},
         {}},
        {"no slot is left",
         u"abcd"_s,
         u"---+"_s,
         {u"x"_s},
         u"own=a own=b own=c own=d"_s,
         {ie, netscape},
         {}},
    };
}

TEST(BrowserSearch, FillsTheSlotsInTurn)
{
    for (const Case &row : Cases()) {
        for (const bool tellsEach : {true, false}) {
            SCOPED_TRACE(row.row);
            SCOPED_TRACE(tellsEach ? "on drives" : "on the path");
            QStringList files;
            BrowserFinder finder;
            finder.tellsEach = tellsEach;
            finder.find = [&](const BrowserProgram &program) -> std::optional<QString> {
                files += program.file.toString();
                const QString letters = u"inom"_s;
                const qsizetype place = letters.indexOf(program.file[0]);
                const QChar answer = row.there[place];
                if (answer == u'?')
                    return std::nullopt;
                return answer == u'+' ? letters.mid(place, 1) : QString();
            };
            finder.installed = [&row] {
                QList<ExternalBrowser> browsers;
                for (const QString &path : row.installed)
                    browsers += {u"of "_s + path, path};
                return browsers;
            };
            QStringList statuses;
            QStringList told;
            BrowserSlots browsers = SlotsWith(row.before);
            SearchBrowsers(browsers,
                           finder,
                           {.status = [&statuses](const QString &text) { statuses += text; },
                            .tell = [&told](const QString &text) { told += text; }});
            EXPECT_EQ(Shown(browsers), row.after);
            EXPECT_EQ(told, tellsEach ? row.toldOnDrives : row.toldOnPath);
            EXPECT_EQ(statuses,
                      (QStringList{u"Searching for Internet Explorer..."_s,
                                   u"Searching for Netscape..."_s,
                                   u"Searching for Opera..."_s,
                                   u"Searching for other browsers..."_s,
                                   u"Finished!"_s}));
        }
    }
}

TEST(BrowserSearch, DrivesAreSearchedForTheFile)
{
    const QTemporaryDir drive;
    const QString folder = drive.filePath(u"Programs/Opera"_s);
    ASSERT_TRUE(QDir().mkpath(folder));
    ASSERT_EQ(WriteAuthorFile(folder + u"/Opera.EXE"_s, "x"), QString());
    QStringList askedFor;
    const BrowserFinder finder = DriveFinder([&](const BrowserProgram &program) {
        askedFor += program.title.toString();
        return program.title == u"Mosaic" ? QString() : drive.path();
    });
    BrowserSlots browsers = FreeBrowserSlots();
    QStringList told;
    SearchBrowsers(
        browsers,
        finder,
        {.status = [](const QString &) {}, .tell = [&told](const QString &text) { told += text; }});
    EXPECT_EQ(askedFor,
              (QStringList{u"Internet Explorer"_s, u"Netscape"_s, u"Opera"_s, u"Mosaic"_s}));
    EXPECT_EQ(browsers[0].name, u"Opera"_s);
    EXPECT_EQ(browsers[0].path, QDir::toNativeSeparators(folder + u"/Opera.EXE"_s));
    EXPECT_EQ(told.size(), 2);
}

TEST(InstalledBrowsers, AreDesktopEntriesThatCanBeStarted)
{
    const QTemporaryDir home;
    const QString program = home.filePath(u"my browser"_s);
    ASSERT_EQ(WriteAuthorFile(program, "#!/bin/sh\n"), QString());
    ASSERT_TRUE(QFile::setPermissions(program, QFile::ReadOwner | QFile::ExeOwner));

    const QString head = u"[Desktop Entry]\nType=Application\nCategories=Network;WebBrowser;\n"_s;
    const QString quoted = u"Exec=\"%1\" %U\n"_s.arg(program);
    const struct
    {
        const char *row;
        QString text;
        bool isListed;
    } cases[] = {
        {"a browser", head + u"Name=B\n"_s + quoted, true},
        {"blanks round the sign, DOS lines",
         QString(head + u"Name = B\nExec = \"%1\"\n"_s.arg(program)).replace(u"\n"_s, u"\r\n"_s),
         true},
        {"other names, actions and comments",
         head + u"Name[de]=C\nName=B\n#Name=D\n"_s + quoted
             + u"[Desktop Action new]\nName=New\nExec=gone\n"_s,
         true},
        {"through env", head + u"Name=B\nExec=env A=1 B=2 \"%1\" --new\n"_s.arg(program), true},
        {"escaped characters in quotes",
         head + u"Name=B\nExec=\"%1\"\n"_s.arg(QString(program).replace(u"y b"_s, u"y\\\\ b"_s)),
         true},
        {"a mail program",
         u"[Desktop Entry]\nType=Application\nCategories=Network;Email;\nName=B\n"_s + quoted,
         false},
        {"not a category of that name",
         u"[Desktop Entry]\nType=Application\nCategories=WebBrowserTool;\nName=B\n"_s + quoted,
         false},
        {"a link",
         u"[Desktop Entry]\nType=Link\nCategories=WebBrowser;\nName=B\n"_s + quoted,
         false},
        {"hidden", head + u"NoDisplay=true\nName=B\n"_s + quoted, false},
        {"removed", head + u"Hidden=true\nName=B\n"_s + quoted, false},
        {"in a terminal", head + u"Terminal=true\nName=B\n"_s + quoted, false},
        {"its program is gone", head + u"Name=B\nExec=/gone/browser %u\n"_s, false},
        {"nothing to start", head + u"Name=B\n"_s, false},
        {"only variables", head + u"Name=B\nExec=env A=1\n"_s, false},
        {"an open quote", head + u"Name=B\nExec=\"%1\n"_s.arg(program), true},
        {"no file of this kind", u"\0\xFFFD=]["_s, false},
    };
    for (const auto &row : cases) {
        SCOPED_TRACE(row.row);
        const QTemporaryDir folder;
        const QTemporaryDir later;
        ASSERT_EQ(WriteAuthorFile(folder.filePath(u"b.desktop"_s), row.text.toUtf8()), QString());
        // An entry of the same name in a later folder is not looked at.
        ASSERT_EQ(WriteAuthorFile(later.filePath(u"b.desktop"_s),
                                  (head + u"Name=Later\n"_s + quoted).toUtf8()),
                  QString());
        const QList<ExternalBrowser> found
            = InstalledBrowsers({folder.path(), u"/there/is/no/such"_s, later.path()});
        ASSERT_EQ(found.size(), row.isListed ? 1 : 0);
        if (row.isListed) {
            EXPECT_EQ(found[0].name, u"B"_s);
            EXPECT_EQ(found[0].path, program);
        }
    }
}

} // namespace
