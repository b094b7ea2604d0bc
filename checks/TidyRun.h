#pragma once

#include <QString>

#include <optional>

class QWidget;

namespace brenix {

/// Where a script comes from decides the names of its files.
enum class TidyScriptPlace { Preset, Editor };

struct TidyResult
{
    /// The corrected page; nothing when the script could not be run, which the user has been told,
    /// or when the user gave up.
    std::optional<QString> page;
    /// The page has errors that Tidy does not correct, and is as it was.
    bool isLeft = false;
};

/// Runs a script on the text of a page, and returns when the result is there and the user has seen
/// that. Up to three attempts are made, each with its own files in the exchange directories; one
/// without a result, or with an empty one, has failed. No key or click gets through meanwhile, but
/// one on Cancel, which is offered when it takes a moment; `window` is what it belongs to.
TidyResult RunTidyScript(const QString &script,
                         const QString &page,
                         TidyScriptPlace place,
                         QWidget *window);

/// Tells that a script cannot be run.
void TellTidyFailure();

} // namespace brenix
