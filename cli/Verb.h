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
    const char16_t *arguments; ///< for the usage line
    const char16_t *summary;
    void (*addOptions)(QCommandLineParser &parser);
    /// Does the work; the exit status.
    ExitStatus (*run)(const QCommandLineParser &parser);
};

/// The one FILE argument, "-" or none for standard input, decoded as the editor does and with every
/// line end as CR LF. A message on standard error, and nothing, when it cannot be read.
std::optional<QString> ReadInput(const QCommandLineParser &parser);
/// Writes to standard output, as UTF-8; false after a message when that fails.
bool WriteOutput(const QString &text);
void Complain(const QString &message);

ExitStatus RunHighlight(const QCommandLineParser &parser);
void AddHighlightOptions(QCommandLineParser &parser);

} // namespace brenix
