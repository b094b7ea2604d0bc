#pragma once

#include <QString>
#include <QStringList>

#include <optional>

class QCommandLineParser;

namespace brenix {

enum ExitStatus { Done = 0, Found = 1, Failed = 2 };

/// One filter of brenix-cli. To add one: a file with its functions, and a row in the table of
/// main.cpp.
struct Verb
{
    const char16_t *name;
    const char16_t *arguments; ///< for the usage line; "[FILE]" may be left out, "TAG" may not
    const char16_t *summary;
    void (*addOptions)(QCommandLineParser &parser); ///< null when there are none
    /// Does the work; the exit status.
    ExitStatus (*run)(const QCommandLineParser &parser);
    /// What the arguments mean, for the help of the verb.
    const char16_t *meaning = u"The page; \"-\" or nothing for standard input.";
};

/// The FILE argument, which is the first one or that of the given number from 0; "-" or none for
/// standard input. Decoded as the editor does and with every line end as CR LF. A message on
/// standard error, and nothing, when it cannot be read.
std::optional<QString> ReadInput(const QCommandLineParser &parser, qsizetype argument = 0);
/// Writes to standard output, as UTF-8; false after a message when that fails.
bool WriteOutput(const QString &text);
void Complain(const QString &message);
/// Each line with a line feed behind it.
ExitStatus WriteLines(const QStringList &lines);
/// Whether the catalogues know a dialect of this title; when not, after a message.
bool IsDialect(const QString &title);

ExitStatus RunHighlight(const QCommandLineParser &parser);
void AddHighlightOptions(QCommandLineParser &parser);
ExitStatus RunCheck(const QCommandLineParser &parser);
void AddCheckOptions(QCommandLineParser &parser);
ExitStatus RunCompress(const QCommandLineParser &parser);
void AddCompressOptions(QCommandLineParser &parser);
ExitStatus RunFormat(const QCommandLineParser &parser);
ExitStatus RunStrip(const QCommandLineParser &parser);
ExitStatus RunKeywords(const QCommandLineParser &parser);
ExitStatus RunTags(const QCommandLineParser &parser);
ExitStatus RunAttributes(const QCommandLineParser &parser);
void AddAttributesOptions(QCommandLineParser &parser);
ExitStatus RunValues(const QCommandLineParser &parser);
void AddValuesOptions(QCommandLineParser &parser);
ExitStatus RunParse(const QCommandLineParser &parser);
ExitStatus RunEndTag(const QCommandLineParser &parser);
void AddEndTagOptions(QCommandLineParser &parser);
ExitStatus RunRelPath(const QCommandLineParser &parser);
ExitStatus RunLinks(const QCommandLineParser &parser);
void AddLinksOptions(QCommandLineParser &parser);
ExitStatus RunEstimate(const QCommandLineParser &parser);
void AddEstimateOptions(QCommandLineParser &parser);
ExitStatus RunReplace(const QCommandLineParser &parser);
void AddReplaceOptions(QCommandLineParser &parser);

} // namespace brenix
