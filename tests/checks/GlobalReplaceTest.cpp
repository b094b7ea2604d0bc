#include "checks/GlobalReplace.h"

#include "checks/FolderWalk.h"
#include "tests/checks/LiteralSteps.h"
#include "tests/support/WithFolder.h"

#include <QDir>

#include <sys/stat.h>
#include <unistd.h>

using namespace brenix;
using namespace Qt::StringLiterals;

namespace {

class GlobalReplaceTest : public testing::Test, protected WithFolder
{
protected:
    std::optional<int> Replace(const QString &find, const QString &replacement)
    {
        m_report.clear();
        return GlobalReplace({.folder = m_folderName,
                              .type = m_type,
                              .find = find,
                              .replacement = replacement,
                              .codec = "windows-1250"},
                             {.report = [this](const QString &line) { m_report += line; },
                              .cannotEdit = [this](const QString &text) { m_messages += text; },
                              .progress = {},
                              .goOn = m_goOn});
    }
    QStringList Names() const
    {
        return QDir(folder.path()).entryList(QDir::Files | QDir::System | QDir::Hidden);
    }

    QString m_folderName = folder.path();
    QString m_type = u"*.*"_s;
    GoOn m_goOn;
    QStringList m_report;
    QStringList m_messages;
};

TEST_F(GlobalReplaceTest, OneFile)
{
    struct Case
    {
        const char *name;
        QByteArray before;
        QString find;
        QString replacement;
        QByteArray after;
        qsizetype lines; // of the report
    };
    const QByteArray mark("\xEF\xBB\xBF");
    const Case cases[] = {
        {"every line end becomes CR LF",
         "a\nb\rc\r\n\r\nd",
         u"c"_s,
         u"x"_s,
         "a\r\nb\r\nx\r\n\r\nd\r\n",
         1},
        {"without the text nothing is written", "a\nb", u"c"_s, u"x"_s, "a\nb", 0},
        {"an empty file", "", u"c"_s, u"x"_s, "", 0},
        {"case does not count", "Red rED RED", u"reD"_s, u"Blue"_s, "Blue Blue Blue\r\n", 1},
        {"letters beyond ASCII pair", "\xC3\x84", u"ä"_s, u"a"_s, "a\r\n", 1},
        {"no pair of other length",
         "stra\xC3\x9F"
         "e",
         u"STRASSE"_s,
         u"x"_s,
         "stra\xC3\x9F"
         "e",
         0},
        {"what was put in is not searched",
         "cat",
         u"cat"_s,
         u"cat and cat"_s,
         "cat and cat\r\n",
         1},
        {"deleting", "a<br>b", u"<BR>"_s, {}, "ab\r\n", 1},
        {"no text over a line end", "ab\r\nc", u"b\r\nc"_s, u"x"_s, "ab\r\nc", 0},
        {"the mark stays", mark + "a", u"a"_s, u"\u010D"_s, mark + "\xC4\x8D\r\n", 1},
        {"wide characters",
         QByteArray("\xFF\xFE\x61\x00\x0A\x00", 6),
         u"a"_s,
         u"b"_s,
         QByteArray("\xFF\xFE\x62\x00\x0D\x00\x0A\x00", 8),
         1},
        {"a code page with undefined bytes",
         "\x81\xE8 a\n\xFF",
         u"A"_s,
         u"\u010D"_s,
         "\x81\xE8 \xE8\r\n\xFF\r\n",
         1},
        {"NUL and the old end of file",
         QByteArray("\0\x1A"
                    "a",
                    3),
         u"a"_s,
         u"b"_s,
         QByteArray("\0\x1A"
                    "b\r\n",
                    5),
         1},
        {"two lines", "a\nx\nA", u"a"_s, u"b"_s, "b\r\nx\r\nb\r\n", 2},
    };
    for (const Case &row : cases) {
        SCOPED_TRACE(row.name);
        const QString file = Write(u"a.html"_s, row.before);
        EXPECT_EQ(Replace(row.find, row.replacement), row.lines > 0 ? 2 : 0);
        EXPECT_EQ(Read(file), row.after);
        EXPECT_EQ(m_report.size(), 4 + row.lines);
    }
}

TEST_F(GlobalReplaceTest, LinesAreTakenOneByOne)
{
    const QStringList pieces{u"a"_s, u"A"_s, u"b"_s, u"\r\n"_s, u"\r"_s, u"\n"_s, u"\u00C9"_s};
    for (quint32 seed = 0; seed < 2000; ++seed) {
        const QString text = RandomText(pieces, 30, seed);
        const QString find = u"a"_s + RandomText({u"a"_s, u"B"_s, u"\u00E9"_s}, 2, seed + 1);
        QStringList lines
            = Replaced(Replaced(text, u"\r\n"_s, u"\n"_s), u"\r"_s, u"\n"_s).split(u'\n');
        if (lines.constLast().isEmpty())
            lines.removeLast();
        QString after;
        QStringList log;
        for (qsizetype i = 0; i < lines.size(); ++i) {
            const QString now = Replaced(lines[i], find, u"A-"_s, Case::DoesNotCount);
            if (LowerCased(lines[i]).contains(LowerCased(find)))
                log += u"In file: 'f', In line: '%1',  Was '%2', Now '%3'"_s.arg(
                    QString::number(i + 1), lines[i], now);
            after += now + u"\r\n"_s;
        }
        Pulse pulse({});
        const auto page = ReplaceInLines(text, TextSearch(find), u"A-"_s, u"f"_s, pulse);
        ASSERT_EQ(page->text, after) << qPrintable(text + u" / "_s + find);
        ASSERT_EQ(page->log, log);
    }
}

TEST_F(GlobalReplaceTest, Report)
{
    const QString a = Write(u"a.html"_s, "x\n<B>one</b>\n");
    const QString b = Write(u"b.html"_s, "<b>");
    Write(u"c.htm"_s, "<b>");
    m_type = u"*.html"_s;
    m_folderName += u'/';
    EXPECT_EQ(Replace(u"<b>"_s, u"<i>'%1'"_s), 3);
    const QString doubled = m_folderName + u'/';
    const QStringList expected{
        u"Searching through "_s + m_folderName,
        {},
        u"In file: '"_s + doubled
            + u"a.html', In line: '2',  Was '<B>one</b>', Now '<i>'%1'one</b>'"_s,
        u"In file: '"_s + doubled + u"b.html', In line: '1',  Was '<b>', Now '<i>'%1''"_s,
        u"---------"_s,
        u"Text in 3 files"_s,
    };
    EXPECT_EQ(m_report, expected);
    EXPECT_EQ(Read(folder.filePath(u"c.htm"_s)), "<b>");
    EXPECT_EQ(Replace(u"<b>"_s, u"x"_s), 0);
    EXPECT_EQ(m_report.constLast(), u"Text in 0 files"_s);
    EXPECT_EQ(Names(), QStringList({u"a.html"_s, u"b.html"_s, u"c.htm"_s}));
}

TEST_F(GlobalReplaceTest, WhatIsNoPlainFileDoesNoHarm)
{
    const auto name
        = [this](const QString &file) { return QFile::encodeName(folder.filePath(file)); };
    const QString kept = Write(u"kept.html.tmp"_s, "the author's a");
    const QString page = Write(u"kept.html"_s, "a");
    const QString broken = Write(u"line\nbreak.html"_s, "a");
    const QString refused = Write(u"refused.html"_s, "\xFF a");
    QDir(folder.path()).mkdir(u"below.html"_s);
    const QString below = Write(u"below.html/a.html"_s, "a");
    ASSERT_EQ(::mkfifo(name(u"pipe.html"_s).constData(), 0644), 0);
    ASSERT_EQ(::symlink("circle.html", name(u"circle.html"_s).constData()), 0);
    ASSERT_EQ(::symlink("kept.html", name(u"again.html"_s).constData()), 0);
    ASSERT_EQ(::symlink("below.html/a.html", name(u"linked.html"_s).constData()), 0);
    ASSERT_EQ(::symlink(".", name(u"folder.html"_s).constData()), 0);
    ASSERT_EQ(::chmod(name(u"kept.html"_s).constData(), 0640), 0);
    const QStringList before = Names();
    m_type = u"*.html"_s;

    EXPECT_EQ(Replace(u"a"_s, u"a\u4E2D"_s), 5);
    EXPECT_EQ(Read(kept), "the author's a");
    EXPECT_EQ(Read(page), "a\xE4\xB8\xAD\r\n");
    EXPECT_EQ(Read(broken), "a\xE4\xB8\xAD\r\n");
    EXPECT_EQ(Read(below), "a\xE4\xB8\xAD\r\n");
    EXPECT_EQ(Read(refused), "\xFF a");
    const QString message = u"Brenix can't edit the file '"_s + refused + u'\'';
    EXPECT_EQ(m_messages, QStringList{message + u". Check if the file is a 'Read Only' file"_s});
    EXPECT_TRUE(m_report.contains(u"Error: "_s + message));
    EXPECT_EQ(Names(), before);
    struct stat status = {};
    ASSERT_EQ(::stat(name(u"kept.html"_s).constData(), &status), 0);
    EXPECT_EQ(status.st_mode & 07777, 0640u);
}

TEST_F(GlobalReplaceTest, StopLeavesWholeFiles)
{
    constexpr int files = 300;
    const QByteArray page("word\r\n");
    for (int i = 0; i < files; ++i)
        Write(u"%1.html"_s.arg(i), page);
    const QStringList before = Names();
    // Let it come a little further each time, until it is through.
    for (int turns = 1, done = 0; done == 0; ++turns) {
        int asked = 0;
        m_goOn = [&] { return ++asked < turns; };
        done = Replace(u"word"_s, u"words"_s).has_value();
        EXPECT_EQ(Names(), before);
        for (const QString &name : before)
            EXPECT_TRUE(QByteArrayList({page, "words\r\n"}).contains(Read(folder.filePath(name))));
        for (const QString &name : before)
            Write(name, page);
    }
}

TEST_F(GlobalReplaceTest, NoFolderIsNotTheRoot)
{
    m_folderName.clear();
    EXPECT_EQ(Replace(u"e"_s, u"e"_s), 0);
    m_folderName = folder.filePath(u"none"_s);
    EXPECT_EQ(Replace(u"e"_s, u"e"_s), 0);
}

TEST(FolderWalk, Patterns)
{
    struct Case
    {
        QStringView pattern;
        QStringView name;
        bool matches;
    };
    const QString many(2000, u'a');
    const QString stars = QString(u"*a"_s).repeated(1000) + u"*b"_s;
    const Case cases[] = {
        {u"*.htm", u"a.htm", true},
        {u"*.htm", u"a.html", false},
        {u"*.HTM", u"A.htm", true},
        {u"*.htm", u".htm", true},
        {u"a?c.*", u"abc.x", true},
        {u"a?c", u"ac", false},
        {u"*a*b", u"xaaxb", true},
        {u"*a*b", u"xaaxbc", false},
        {u"[ab]*", u"[ab]c", true},
        {u"[ab]*", u"ac", false},
        {u"a", u"", false},
        {u"", u"a", false},
        {u"**", u"", true},
        {stars, many, false},
    };
    for (const Case &row : cases)
        EXPECT_EQ(MatchesPattern(row.name, row.pattern), row.matches)
            << qPrintable(row.pattern.toString().left(20));
}

TEST_F(GlobalReplaceTest, AllNamesInOrder)
{
    for (const QString &name : {u"b"_s, u"A.x"_s, u"a.y"_s, u".hidden"_s})
        Write(name, {});
    Pulse pulse({});
    EXPECT_EQ(FilesIn(folder.path(), u"*.*", pulse), QStringList({u"A.x"_s, u"a.y"_s, u"b"_s}));
}

} // namespace
