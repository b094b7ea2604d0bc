#include "tests/support/SourceTree.h"

#include <QFile>
#include <QProcess>
#include <QTemporaryDir>

using namespace Qt::StringLiterals;
using testing::HasSubstr;

namespace {

struct Case
{
    const char *row;
    QStringList arguments; // "PAGE" is a page, "FOLDER" the folder that it lies in
    int status;
    const char *output = ""; // what standard output holds; all of it is empty when this is
    const char *error = "";
    QByteArray input = {};
    QString outputFile = {};
    QString inputFile = {};
};

class Cli : public testing::TestWithParam<Case>
{
};

TEST_P(Cli, Runs)
{
    const Case &row = GetParam();
    const QTemporaryDir folder;
    const QString pagePath = folder.filePath(u"page.html"_s);
    QFile page(pagePath);
    ASSERT_TRUE(page.open(QIODevice::WriteOnly));
    page.write("<b>If /* x */ \xC5\xBE\n");
    page.close();

    QStringList arguments = row.arguments;
    arguments.replaceInStrings(u"PAGE"_s, pagePath);
    arguments.replaceInStrings(u"FOLDER"_s, folder.path());
    QProcess cli;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(u"XDG_CONFIG_HOME"_s, folder.path());
    cli.setProcessEnvironment(environment);
    if (!row.outputFile.isEmpty())
        cli.setStandardOutputFile(row.outputFile);
    if (!row.inputFile.isEmpty())
        cli.setStandardInputFile(row.inputFile);
    cli.start(QStringLiteral(BRENIX_CLI), arguments);
    if (row.inputFile.isEmpty())
        cli.write(row.input);
    cli.closeWriteChannel();
    ASSERT_TRUE(cli.waitForFinished());
    ASSERT_EQ(cli.exitStatus(), QProcess::NormalExit);
    EXPECT_EQ(cli.exitCode(), row.status);
    const QByteArray output = cli.readAllStandardOutput();
    const QByteArray error = cli.readAllStandardError();
    const QByteArray expected = QByteArray(row.output).replace("FOLDER", folder.path().toUtf8());
    EXPECT_THAT(output.toStdString(), HasSubstr(expected.toStdString()));
    EXPECT_EQ(output.isEmpty(), *row.output == '\0') << output.constData();
    const QByteArray complaint = QByteArray(row.error).replace("FOLDER", folder.path().toUtf8());
    EXPECT_THAT(error.toStdString(), HasSubstr(complaint.toStdString()));
    EXPECT_EQ(error.isEmpty(), row.status != 2) << error.constData();
}

QStringList Highlight(const QStringList &rest)
{
    return QStringList{u"highlight"_s} + rest;
}

INSTANTIATE_TEST_SUITE_P(
    Calls,
    Cli,
    testing::Values(
        Case{"Html", Highlight({u"PAGE"_s}), 0, "\\cf4<b>\\cf0 \\cf0 If"},
        Case{"HtmlByName", Highlight({u"--language"_s, u"HTML"_s, u"PAGE"_s}), 0, "\\cf4<b>"},
        Case{"Basic", Highlight({u"--language=basic"_s, u"PAGE"_s}), 0, "\\cf1 If\\cf0"},
        Case{"Java", Highlight({u"--language=java"_s, u"PAGE"_s}), 0, "\\cf4/* x */\\cf0"},
        Case{"Tidy", Highlight({u"--language=tidy"_s, u"PAGE"_s}), 0, "\\cf2 <\\cf0 \\cf0 b"},
        Case{"None", Highlight({u"--language=none"_s, u"PAGE"_s}), 0, "<b>If /* x */ \xC5\xBE\r\n"},
        Case{
            "InputWithoutFile", Highlight({u"--language=none"_s}), 0, "a\r\nb\r\nc", "", "a\nb\rc"},
        Case{"InputAsDash", Highlight({u"--language=none"_s, u"-"_s}), 0, "page", "", "page"},
        Case{"InputThatTheEditorOnlyShows",
             Highlight({u"--language=none"_s}),
             0,
             "\xEF\xB7\x92\r\n",
             "",
             "\xEF\xB7\x92\n"},
        Case{"PipeByName",
             Highlight({u"--language=none"_s, u"/dev/stdin"_s}),
             0,
             "page",
             "",
             "page"},
        Case{"EmptyInput", Highlight({u"--language=none"_s}), 0},
        Case{"MissingFile", Highlight({u"FOLDER/none.html"_s}), 2, "", "none.html: "},
        Case{"Directory", Highlight({u"FOLDER"_s}), 2, "", "brenix-cli: "},
        Case{"DirectoryAsInput", Highlight({}), 2, "", "brenix-cli: -: ", {}, {}, u"/"_s},
        Case{"TwoFiles",
             Highlight({u"PAGE"_s, u"PAGE"_s}),
             2,
             "",
             "usage: brenix-cli highlight [OPTION...] [FILE]"},
        Case{"UnknownLanguage",
             Highlight({u"--language=perl"_s, u"PAGE"_s}),
             2,
             "",
             "unknown language 'perl'; one of none, basic, java, html, tidy"},
        Case{"UnknownOption", Highlight({u"--colour"_s, u"PAGE"_s}), 2, "", "colour"},
        Case{"OptionWithoutValue", Highlight({u"PAGE"_s, u"--language"_s}), 2, "", "language"},
        Case{"Check", {u"check"_s}, 1, "Checking - for errors...\n\nTag st", "", "<<"},
        Case{"CheckWithoutFinding", {u"check"_s, u"--characters"_s}, 0, "Errors: 0\n", "", "<>"},
        Case{"CheckFindsMoreThanErrors", {u"check"_s}, 1, "script tag...\n\n", "", "<script>"},
        Case{"CheckByRules",
             {u"check"_s, u"--rules"_s},
             1,
             "There are 1 more <DL> than </DL>\n",
             "",
             "<html><title></title><dl><td></html>"},
        Case{"CheckByDialect",
             {u"check"_s, u"--dialect=HTML 3.2"_s},
             1,
             "There are 1 more <TD> than </TD>\n",
             "",
             "<html><title></title><td></html>"},
        Case{"CheckByUnknownDialect", {u"check"_s, u"--dialect=x"_s}, 2, "", "one of All HTML"},
        Case{"CheckTwoWays", {u"check"_s, u"--rules"_s, u"--characters"_s}, 2, "", "either"},
        Case{"TagsOfAllHtml", {u"tags"_s}, 0, "<!DOCTYPE>\n<A></A>\n<ABBR></ABBR>\n"},
        Case{"TagsOfADialect", {u"tags"_s, u"Web TV"_s}, 0, "<BGSOUND>\n<BLACKFACE>"},
        Case{"UnknownDialect", {u"tags"_s, u"web tv"_s}, 2, "", "one of All HTML, HTML 2.0, "},
        Case{"Attributes", {u"attributes"_s, u"keygen"_s}, 0, "challange=\nname=\n"},
        Case{"DialogAttributes", {u"attributes"_s, u"base"_s, u"--dialog"_s}, 0, "href\ntarget\n"},
        Case{"Html5Attributes",
             {u"attributes"_s, u"--dialect=HTML 5"_s, u"video"_s},
             0,
             "playsinline\n"},
        Case{"AttributesOfNoTag", {u"attributes"_s, u"!--"_s}, 0},
        Case{"AttributesOfAnUnknownDialect",
             {u"attributes"_s, u"--dialect=HTML"_s, u"a"_s},
             2,
             "",
             "unknown dialect 'HTML'"},
        Case{"TagLeftOut", {u"attributes"_s}, 2, "", "attributes [OPTION...] TAG"},
        Case{"Values", {u"values"_s, u"DIR"_s}, 0, "rtl\nltr\n"},
        Case{"ValuesOfAnUnknownDialect",
             {u"values"_s, u"--dialect="_s, u"dir"_s},
             2,
             "",
             "unknown dialect ''"},
        Case{"NoFonts", {u"values"_s, u"face"_s}, 0},
        Case{"HelpOfTags", {u"tags"_s, u"--help"_s}, 0, "[DIALECT]\n"},
        Case{"Parse",
             {u"parse"_s},
             0,
             "[\"HTMLTagBegin\",\"a\"]\n[\"HTMLProperty\",\"b\",\"\xC5\xBE\"]\n"
             "[\"HTMLTagEnd\",\"a\"]\n[\"HTMLText\",\"x y\"]\n[\"HTMLTagClose\",\"a\"]\n",
             "",
             "<a b=\"\xC5\xBE\">x\ny</a>"},
        Case{"EndTag", {u"endtag"_s, u"--caret=5"_s}, 0, "</b>", "", "<b>\nx<i>"},
        Case{"NoEndTag", {u"endtag"_s, u"--caret=2"_s}, 0, "", "", "x<i>"},
        Case{"EndTagWithoutCaret", {u"endtag"_s, u"PAGE"_s}, 2, "", "--caret N"},
        Case{"EndTagBeforeThePage", {u"endtag"_s, u"--caret=-1"_s}, 2, "", "--caret N"},
        Case{"RelPath", {u"relpath"_s, u"C:\\a\\x.gif"_s, u"C:\\b"_s}, 0, "../a/x.gif"},
        Case{"RelPathOfThisSystem", {u"relpath"_s, u"/a/x.gif"_s, u"/b"_s}, 0, "../a/x.gif"},
        Case{"NoRelPath", {u"relpath"_s, u"C:\\ab"_s, u"C:\\a"_s}, 2, "", "no path leads from"},
        Case{"CompressWithoutOptions", {u"compress"_s}, 0, "<em> x</em>\r\n", "", "<em>\tx</em>\n"},
        Case{"Compress",
             {u"compress"_s,
              u"--line-breaks"_s,
              u"--spaces"_s,
              u"--simplify"_s,
              u"--unnecessary"_s,
              u"--unused"_s},
             0,
             "<i>x</i>y",
             "",
             "<em> x</em>\n<b>\n</b></img>y"},
        Case{"Format", {u"format"_s, u"hierarchical"_s, u"PAGE"_s}, 0, "\n<b>If /* x */"},
        Case{"FormatOfInput", {u"format"_s, u"simple"_s}, 0, "<b>\r\n<i>", "", "<b>\n<i>"},
        Case{"UnknownFormat", {u"format"_s, u"PAGE"_s}, 2, "", "one of hierarchical, compact"},
        Case{"Strip", {u"strip"_s}, 0, " a b", "", "<p>a&nbsp;b"},
        Case{"Keywords", {u"keywords"_s}, 0, "hedge\nlawn\n", "", "<p>Lawn and hedge</p>"},
        Case{"UnknownVerb", {u"paint"_s}, 2, "", "unknown verb 'paint'"},
        Case{"NoVerb", {}, 2, "", "no verb given"},
        Case{"Help", {u"--help"_s}, 0, "highlight   Writes the page as a coloured stream."},
        Case{"HelpOfAVerb", Highlight({u"--help"_s}), 0, "--language <NAME>"},
        Case{"Version", {u"--version"_s}, 0, "brenix-cli 2."},
        Case{"FullDevice",
             Highlight({u"PAGE"_s}),
             2,
             "",
             "standard output: No space left on device",
             {},
             u"/dev/full"_s}),
    [](const auto &info) { return std::string(info.param.row); });

INSTANTIATE_TEST_SUITE_P(
    Folders,
    Cli,
    testing::Values(
        Case{"LinksWithABrokenOne",
             {u"links"_s, u"--folder=FOLDER"_s},
             1,
             "OK!\tpage.html\nBroken\tnone \nURL\thttp://x/\n",
             "",
             "href=\"page.html\" href=\"none\n\" href=\"http://x/\""},
        Case{"LinksAllThere", {u"links"_s, u"PAGE"_s}, 0},
        Case{"LinksOfNoFolder", {u"links"_s, u"--folder=FOLDER/x"_s}, 2, "", "no folder '"},
        Case{"Estimate",
             {u"estimate"_s, u"--folder=FOLDER"_s},
             0,
             "Finding files...\n\n FOLDER/page.html (17) \n\nDependencies: 1\n",
             "",
             "src=\"page.html\""},
        Case{"EstimateWithTimes", {u"estimate"_s, u"--times"_s, u"PAGE"_s}, 0, "\nISDN\t0 sec.\n"},
        Case{"EstimateOfNothing", {u"estimate"_s, u"FOLDER/x"_s}, 2, "", "FOLDER/x: "},
        Case{"Replace",
             {u"replace"_s, u"--folder=FOLDER"_s, u"--type=*.html"_s, u"if"_s, u"when"_s},
             0,
             "', In line: '1',  Was '<b>If /* x */ \xC5\xBE', Now '<b>when /* x */ \xC5\xBE'\n"},
        Case{"ReplaceInOtherFiles",
             {u"replace"_s, u"--folder=FOLDER"_s, u"--type=*.htm"_s, u"if"_s, u"when"_s},
             0,
             "Text in 0 files\n"},
        Case{"ReplaceNothing", {u"replace"_s, u"--folder=FOLDER"_s, u""_s, u"a"_s}, 2, "", "FIND"},
        Case{"ReplaceNowhere", {u"replace"_s, u"if"_s, u"when"_s}, 2, "", "--folder"},
        Case{"ReplaceBy", {u"replace"_s, u"--folder=FOLDER"_s, u"if"_s}, 2, "", "arguments"}),
    [](const auto &info) { return std::string(info.param.row); });

TEST(CliManual, TellsOfEveryVerb)
{
    QProcess cli;
    cli.start(QStringLiteral(BRENIX_CLI), {u"--help"_s});
    ASSERT_TRUE(cli.waitForFinished());
    QFile manual(brenix::SourceFile("docs/brenix-cli.1"));
    ASSERT_TRUE(manual.open(QIODevice::ReadOnly));
    const QString text = QString::fromUtf8(manual.readAll());
    int verbs = 0;
    for (const QString &line : QString::fromUtf8(cli.readAllStandardOutput()).split(u'\n')) {
        if (!line.startsWith(u"  ") || line.startsWith(u"   "))
            continue;
        ++verbs;
        const QString verb = line.trimmed().section(u' ', 0, 0);
        EXPECT_TRUE(text.contains(u".BR \""_s + verb + u' ')) << qPrintable(verb);
    }
    EXPECT_GE(verbs, 15);
}

} // namespace
