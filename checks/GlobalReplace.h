#pragma once

#include "checks/Pulse.h"
#include "support/TextSearch.h"

#include <QByteArray>
#include <QString>
#include <QStringList>

#include <functional>
#include <optional>

namespace brenix {

/// What "Global Search and Replace" is asked to do.
struct GlobalReplaceJob
{
    QString folder;
    QString type = QStringLiteral("*.*"); ///< a pattern for names
    QString find; ///< found without regard to case; an empty one is found nowhere
    QString replacement;
    QByteArray codec; ///< of a page that does not tell its encoding
};

/// What is told while it works. Any of the functions may be missing.
struct GlobalReplaceListener
{
    std::function<void(const QString &line)> report;
    std::function<void(const QString &message)> cannotEdit; ///< for the author, before its line
    std::function<void(int done, int all)> progress; ///< in files that hold the text
    GoOn goOn;
};

/// Replaces a text in all files of one folder that hold it; what spans a line end is not found. A
/// file that is changed has CR LF behind each of its lines afterwards, the last one included, and
/// keeps its encoding; where its encoding lacks a letter of the replacement, or does not give its
/// bytes back, it counts as one that cannot be edited and stays. Returns the number that the report
/// and the message at the end tell: one more than there were files with the text, 0 without any;
/// nothing when it was stopped, and then each file is as it was or complete.
std::optional<int> GlobalReplace(const GlobalReplaceJob &job,
                                 const GlobalReplaceListener &listener);

/// A page with every occurrence replaced, each line with CR LF behind it, and the report's line for
/// each changed one.
struct ReplacedPage
{
    QString text;
    QStringList log;
};
/// The step for one page: `file` is its name in the report, whose lines count from 1. Nothing when
/// it was stopped.
std::optional<ReplacedPage> ReplaceInLines(const QString &text,
                                           const TextSearch &sought,
                                           const QString &replacement,
                                           const QString &file,
                                           Pulse &pulse);

} // namespace brenix
