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
    EXPECT_THAT(output.toStdString(), HasSubstr(row.output));
    EXPECT_EQ(output.isEmpty(), *row.output == '\0') << output.constData();
    EXPECT_THAT(error.toStdString(), HasSubstr(row.error));
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
        Case{"EmptyInput", Highlight({u"--language=none"_s}), 0},
        Case{"MissingFile", Highlight({u"FOLDER/none.html"_s}), 2, "", "none.html: "},
        Case{"Directory", Highlight({u"FOLDER"_s}), 2, "", "brenix-cli: "},
        Case{"DirectoryAsInput", Highlight({}), 2, "", "brenix-cli: -: ", {}, {}, u"/"_s},
        Case{"TwoFiles", Highlight({u"PAGE"_s, u"PAGE"_s}), 2, "", "one FILE at a time"},
        Case{"UnknownLanguage",
             Highlight({u"--language=perl"_s, u"PAGE"_s}),
             2,
             "",
             "unknown language 'perl'; one of none, basic, java, html, tidy"},
        Case{"UnknownOption", Highlight({u"--colour"_s, u"PAGE"_s}), 2, "", "colour"},
        Case{"OptionWithoutValue", Highlight({u"PAGE"_s, u"--language"_s}), 2, "", "language"},
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

} // namespace
