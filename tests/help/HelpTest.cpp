#include "support/Help.h"

#include "help/HelpIndex.h"
#include "help/TagTopics.h"
#include "tags/TagCatalogue.h"
#include "tags/TagHelp.h"
#include "tags/TagNameList.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QRegularExpression>

using namespace brenix;
using namespace Qt::StringLiterals;

namespace {

/// The topics that the build has put beside the program.
const HelpIndex &Help()
{
    static const HelpIndex index(QCoreApplication::applicationDirPath() + u"/Help"_s);
    return index;
}

QString FileOfKeyword(const QString &keyword)
{
    const HelpTopic *topic = Help().TopicOfKeyword(keyword);
    return topic ? topic->file : QString();
}

QString Source(const QString &file)
{
    QFile topic(QDir(Help().Folder()).filePath(file));
    EXPECT_TRUE(topic.open(QIODevice::ReadOnly));
    return QString::fromUtf8(topic.readAll());
}

TEST(Help, KeywordsOfDialogsAndCommandsHaveTopics)
{
    const std::pair<QString, QString> cases[] = {
        {u"OPTIONS"_s, u"options.html"_s},
        {u"MACRO"_s, u"macros.html"_s},
        {u"HYPERLINK"_s, u"hyperlink.html"_s},
        {u"IMAGE"_s, u"image.html"_s},
        {u"LIST"_s, u"list.html"_s},
        {u"BODY"_s, u"body.html"_s},
        {u"Comment"_s, u"comment.html"_s},
        {u"TITLE"_s, u"title.html"_s},
        {u"tidy"_s, u"tidy.html"_s},
        {u"tidy reference"_s, u"tidyreference.html"_s},
        {u"html reference"_s, u"tags/index.html"_s},
        {u"Html Reference"_s, u"tags/index.html"_s},
        {u"brenix_appdir"_s, u"settings.html"_s},
        {u"largefile"_s, u"settings.html"_s},
        {u"body"_s, u"tags/body.html"_s},
        {u"title"_s, u"tags/title.html"_s},
        {u"comment"_s, u"tags/comment.html"_s},
        {u"doctype"_s, u"tags/doctype.html"_s},
        {u"no such thing"_s, {}},
        {{}, {}},
    };
    for (const auto &[keyword, file] : cases)
        EXPECT_EQ(FileOfKeyword(keyword), file) << qPrintable(keyword);
}

TEST(Help, EveryTagHasATopicOfItsOwn)
{
    QStringList tags = InsertTagNames();
    for (const QString &dialect : DialectNames())
        tags += TagNames(dialect);
    tags.removeDuplicates();
    QStringList files;
    for (const QString &tag : tags) {
        const QString file = FileOfKeyword(tag.toLower());
        EXPECT_TRUE(file.startsWith(u"tags/")) << qPrintable(tag);
        files.append(file);
        if (!tag.startsWith(u"!--")) {
            EXPECT_EQ(FileOfKeyword(TagHelpKeyword(u"<"_s + tag + u" x=1>"_s)), file);
        }
    }
    EXPECT_EQ(files.removeDuplicates(), 0);
}

TEST(Help, EveryLinkLeadsToATopicAndEveryTopicIsListed)
{
    static const QRegularExpression link(u"href=\"([^\"]*)\""_s);
    for (const HelpTopic &topic : Help().Topics()) {
        SCOPED_TRACE(qPrintable(topic.file));
        EXPECT_FALSE(topic.keywords.isEmpty());
        const QString html = Source(topic.file);
        for (const QRegularExpressionMatch &match : link.globalMatch(html)) {
            const QString target = match.captured(1);
            const QString anchor = target.section(u'#', 1);
            const QString path = target.section(u'#', 0, 0);
            const QString file = path.isEmpty()
                ? topic.file
                : QDir::cleanPath(topic.file.section(u'/', 0, -2) + u'/' + path)
                      .remove(QRegularExpression(u"^/"_s));
            ASSERT_TRUE(Help().TopicOfFile(file)) << qPrintable(target);
            if (!anchor.isEmpty()) {
                EXPECT_TRUE(Source(file).contains(u"<a name=\"%1\">"_s.arg(anchor)));
            }
        }
        // An element that is not closed would change the look of all that follows.
        for (const QString &name : {u"table"_s, u"ul"_s, u"ol"_s, u"p"_s, u"td"_s, u"code"_s})
            EXPECT_EQ(html.count(QRegularExpression(u"<%1\\b"_s.arg(name))),
                      html.count(u"</%1>"_s.arg(name)))
                << qPrintable(name);
    }
    const QList<HelpChapter> &chapters = Help().Chapters();
    for (const QString &file : chapters.last().files)
        EXPECT_TRUE(file.startsWith(u"tags/")) << qPrintable(file);
}

TEST(Help, SearchPutsTheBestTopicFirst)
{
    struct Case
    {
        const char *name;
        QString words;
        QString first;
    };
    const Case cases[] = {
        {"title", u"getting started"_s, u"start.html"_s},
        {"keyword", u"LIVE search"_s, u"searching.html"_s},
        {"tag", u"textarea"_s, u"tags/textarea.html"_s},
        {"words of the title", u"command line"_s, u"cli.html"_s},
        {"words of the text", u"System  Commandos"_s, u"macros.html"_s},
        {"part of a word", u"indent-attr"_s, u"tidyreference.html"_s},
        {"text between tags", u"hundred"_s, {}},
        {"one word nowhere", u"table xyzzy"_s, {}},
        {"nothing", u"  "_s, {}},
    };
    for (const Case &row : cases) {
        const QList<const HelpTopic *> hits = Help().Search(row.words);
        EXPECT_EQ(hits.isEmpty() ? QString() : hits.first()->file, row.first) << row.name;
    }
}

TEST(Help, TopicsAreReadFromAnyPage)
{
    struct Case
    {
        const char *name;
        QString html;
        QString title;
        QStringList keywords;
        QString text;
    };
    const Case cases[] = {
        {"empty", {}, {}, {}, {}},
        {"not closed", u"<title>x<body>y"_s, {}, {}, {}},
        {"entities",
         u"<title>&lt;a&gt;</title><body>Caf&eacute; &amp;nbsp; &nosuch;</body>"_s,
         u"<a>"_s,
         {},
         u"café &nbsp;"_s},
        {"tags part words, but not in a line",
         u"<title>t</title><body><td>A</td><td>b<b>c</b></td>\r\n d</body>"_s,
         u"t"_s,
         {},
         u"a bc d"_s},
        {"keywords",
         u"<title>t</title><meta name=\"keywords\" content=\"A b,c,,&lt;\"><body></body>"_s,
         u"t"_s,
         {u"A b"_s, u"c"_s, u"<"_s},
         {}},
    };
    for (const Case &row : cases) {
        SCOPED_TRACE(row.name);
        const HelpTopic topic = ParseTopic(u"f"_s, row.html);
        EXPECT_EQ(topic.title, row.title);
        EXPECT_EQ(topic.keywords, row.keywords);
        EXPECT_EQ(topic.text, row.text);
    }
    EXPECT_TRUE(HelpIndex(u"/no/such/folder"_s).Topics().isEmpty());
    EXPECT_TRUE(HelpIndex(u"/no/such/folder"_s).Chapters().isEmpty());
}

TEST(Help, TagTopicsTellWhatTheCataloguesKnow)
{
    const std::pair<QString, QString> cases[] = {
        {u"tags/table.html"_s, u"A pair: <code>&lt;table&gt;</code>"_s},
        {u"tags/br.html"_s, u"Stands alone"_s},
        {u"tags/td.html"_s, u"<code>colspan</code>"_s},
        {u"tags/blink.html"_s, u"Not part of HTML 5."_s},
        {u"tags/img.html"_s, u"<i>no value</i>"_s},
        {u"tags/img.html"_s, u"href=\"../image.html\""_s},
        {u"tags/body.html"_s, u"<i>a color</i>"_s},
        {u"tags/cfif.html"_s, u"Cold Fusion"_s},
        {u"tags/attributes.html"_s, u"<code>onclick</code>"_s},
    };
    for (const auto &[file, part] : cases)
        EXPECT_TRUE(Source(file).contains(part)) << qPrintable(file + u": "_s + part);
    EXPECT_FALSE(Source(u"tags/video.html"_s).contains(u"<code>onclick</code>"));
    const TagTopics faulty = MakeTagTopics(ParseMeanings(u"# x\n\nA|Links.|\r\nQQ|None.\n"_s));
    EXPECT_TRUE(faulty.errors.contains(u"B: no meaning"_s));
    EXPECT_TRUE(faulty.errors.contains(u"QQ: no such tag"_s));
    EXPECT_FALSE(faulty.errors.contains(u"A: no meaning"_s));
}

TEST(Help, GoesThroughTheHandler)
{
    QStringList asked;
    ShowHelp(u"nobody shows it"_s);
    SetHelpHandler([&asked](HelpPlace place, const QString &keyword) {
        asked += QString::number(int(place)) + keyword;
    });
    ShowHelp(u"BODY"_s);
    ShowHelpContents();
    ShowHelpSearch();
    SetHelpHandler({});
    ShowHelpContents();
    const QStringList expected{u"0BODY"_s, u"1"_s, u"2"_s};
    EXPECT_EQ(asked, expected);
}

} // namespace
