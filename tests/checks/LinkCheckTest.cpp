#include "checks/Estimate.h"
#include "checks/Links.h"
#include "checks/Overview.h"
#include "checks/QuotedValues.h"
#include "tests/support/WithFolder.h"

#include <QDir>

using namespace brenix;
using namespace Qt::StringLiterals;

namespace {

QStringList Values(QStringView text, QStringView word)
{
    QStringList values;
    QuotedValues reader(text, word);
    while (const std::optional<QString> value = reader.Next())
        values += *value;
    return values;
}

TEST(QuotedValues, OfAttributes)
{
    struct Case
    {
        const char *name;
        QString text;
        QStringList values;
    };
    const Case cases[] = {
        {"no word", u"<a name=\"x\">"_s, {}},
        {"any case", u"<a href=\"1\"><A HREF = \"2\"><a hReF=\"3\">"_s, {u"1"_s, u"2"_s, u"3"_s}},
        {"without quotes the next ones count", u"<a href=#top><b class=\"x\">"_s, {u"x"_s}},
        {"single quotes", u"<a href='a' title=\"t\">"_s, {u"t"_s}},
        {"a longer word", u"hreflang=\"en\""_s, {u"en"_s}},
        {"plain text", u"the href of \"all\" things"_s, {u"all"_s}},
        {"the word inside a value", u"href=\"href\" \"x\""_s, {u"href"_s}},
        {"an open quote", u"href=\"1\" href=\"2"_s, {u"1"_s}},
        {"an empty value", u"href=\"\""_s, {QString()}},
        {"lines", u"href=\"a\r\nb\""_s, {u"a\r\nb"_s}},
    };
    for (const Case &row : cases)
        EXPECT_EQ(Values(row.text, u"href"), row.values) << row.name;
}

class LinkCheckTest : public testing::Test, protected WithFolder
{
protected:
    LinkCheckTest()
    {
        QDir(folder.path()).mkpath(u"site/pages/deep"_s);
        Write(u"site/a b.htm"_s, "12345");
        Write(u"site/pages/c.htm"_s, "123");
    }
    const QString m_pages = folder.filePath(u"site/pages"_s);
};

TEST_F(LinkCheckTest, Statuses)
{
    const QString site = folder.filePath(u"site"_s);
    struct Case
    {
        QString link;
        const char16_t *status;
        QString shown;
    };
    const Case cases[] = {
        {u"http://no.such.host/"_s, u"URL", u"http://no.such.host/"_s},
        {u"HTTP://x/a%20b"_s, u"URL", u"HTTP://x/a b"_s},
        {u"ftp://x"_s, u"FTP", u"ftp://x"_s},
        {u"#top"_s, u"Inside", u"#top"_s},
        {u"MailTo:a@b.c"_s, u"Mail", u"a@b.c"_s},
        {u"c.htm"_s, u"OK!", u"c.htm"_s},
        {u"c.htm#top"_s, u"Broken", u"c.htm#top"_s},
        {u"C.HTM "_s, u"Broken", u"C.HTM "_s},
        {u"deep"_s, u"Broken", u"deep"_s},
        {u""_s, u"Broken", u""_s},
        {u"../a b.htm"_s, u"OK!", site + u"/a b.htm"_s},
        {u"../a%20b.htm"_s, u"OK!", site + u"/a b.htm"_s},
        {u"..\\a b.htm"_s, u"OK!", site + u"/a b.htm"_s},
        {u"..\\pages\\c.htm"_s, u"OK!", site + u"/pages\\c.htm"_s},
        {u"../../site/a b.htm"_s, u"OK!", folder.path() + u"/site/a b.htm"_s},
        {u"file://"_s + site + u"/a%20b.htm"_s, u"OK!", site + u"/a b.htm"_s},
        {u"file://#top"_s, u"Inside", u"#top"_s},
        {u"https://x/"_s, u"Broken", u"https://x/"_s},
        {QString(u"c.htm"_s) + QChar(u'\0'), u"OK!", u"c.htm"_s},
        {QString(u"c\0.htm"_s), u"Broken", QString(u"c\0.htm"_s)},
        {u"Mail: x"_s, u"Mail", u""_s},
    };
    for (const Case &row : cases) {
        const CheckedLink link = CheckLink(row.link, m_pages, m_pages);
        EXPECT_EQ(StatusWord(link.status), QString::fromUtf16(row.status)) << qPrintable(row.link);
        EXPECT_EQ(link.link, row.shown) << qPrintable(row.link);
    }
}

TEST(LinkCheck, AboveTheRoot)
{
    EXPECT_EQ(ResolveUpward(u"../../../x", u"/a"), u"/x"_s);
    EXPECT_EQ(ResolveUpward(u"../x", LinkFolder(u"/a/b/"_s)), u"/a/x"_s);
    EXPECT_EQ(ResolveUpward(u"x", LinkFolder(u"/"_s)), u"/x"_s);
    EXPECT_EQ(ResolveUpward(u"../..\\x", u"C:\\a\\b"), u"C:"_s + QDir::separator() + u'x');
}

TEST_F(LinkCheckTest, Estimate)
{
    const QString page = Write(u"site/pages/index.html"_s, QByteArray(2100, 'x'));
    QStringList report;
    qint64 size = 0;
    const EstimateListener listener{.report = [&](const QString &line) { report += line; },
                                    .document = [&](qint64 bytes) { size = bytes; },
                                    .progress = {},
                                    .goOn = {}};
    const QString text = u"<img SRC=\"c.htm\"><img src=\"../a%20b.htm\"> src \"c.htm\""
                         "<img src=\"none.gif\"><img src=\"deep\"><img src=\"file://"_s
        + m_pages + u"/c.htm\">"_s;
    const auto result = EstimateDownload({text, page, m_pages}, listener);
    ASSERT_TRUE(result);
    EXPECT_EQ(result->dependencies, 4);
    EXPECT_EQ(result->total, 3 + 5 + 3 + 3);
    EXPECT_EQ(Kilobytes(size), u"2 kb"_s);
    const QString c = u' ' + m_pages + u"/c.htm (3) "_s;
    const QString a = u' ' + folder.filePath(u"site/a b.htm (5) "_s);
    EXPECT_EQ(report,
              QStringList({u"Finding files..."_s,
                           {},
                           u"index.html (2100)"_s,
                           c,
                           a,
                           c,
                           c,
                           {},
                           u"Dependencies: 4"_s}));

    report.clear();
    EXPECT_EQ(EstimateDownload({u"no files"_s, {}, {}}, listener)->total, 0);
    EXPECT_EQ(report, QStringList({u"Finding files..."_s, {}, {}, u"Dependencies: 0"_s}));
}

TEST(Estimate, Times)
{
    struct Case
    {
        qint64 bytes;
        int divisor;
        QString text;
        QString unrounded;
    };
    const Case cases[] = {
        {0, 14400, u"0 sec."_s, u"0 sec."_s},
        {863999, 14400, u"59 sec."_s, u"59.9999305555556 sec."_s},
        {864000, 14400, u"1 min."_s, u"1 min."_s},
        {1'800'000, 14400, u"2 min."_s, u"2.08333333333333 min."_s},
        {447'000'000'000,
         LineSpeeds().constLast().divisor,
         u"1666 min."_s,
         u"1666.66666666667 min."_s},
    };
    for (const Case &row : cases) {
        const DownloadTime time = TimeFor(row.bytes, row.divisor);
        EXPECT_EQ(time.text, row.text);
        EXPECT_EQ(time.unrounded, row.unrounded);
    }
}

TEST(Overview, Tree)
{
    // The comment in front, an element beside the root and one whose parent comes later are no
    // part of the tree.
    const QList<PageElement> elements{{{}, -1, u"A \r\nB"_s},
                                      {u"HTML"_s, -1, {}},
                                      {u"HEAD"_s, 1, {}},
                                      {u"BODY"_s, 1, {}},
                                      {u"HTML"_s, 3, {}},
                                      {u"P"_s, -1, {}},
                                      {u"B"_s, 9, {}},
                                      {u"TD"_s, 4, {}}};
    QStringList rows;
    for (const OverviewNode &node : OverviewTree(elements))
        rows += u"%1 %2 %3"_s.arg(node.key, node.caption).arg(node.parent);
    EXPECT_EQ(rows,
              QStringList(
                  {u"E1 HTML -1"_s, u"E2 HEAD 0"_s, u"E3 BODY 0"_s, u"E4 HTML 2"_s, u"E7 TD 3"_s}));
    const std::pair<QString, QString> statuses[] = {{u"E7"_s, u"<td>"_s},
                                                    {u"E0"_s, u"a b"_s},
                                                    {u"E8"_s, {}},
                                                    {u"E-1"_s, {}},
                                                    {u"E"_s, {}},
                                                    {{}, {}}};
    for (const auto &[key, status] : statuses)
        EXPECT_EQ(ElementStatus(elements, key), status) << qPrintable(key);
    EXPECT_TRUE(OverviewTree({}).isEmpty());
}

} // namespace
