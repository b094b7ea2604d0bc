#pragma once

#include <QString>

#include <functional>

namespace brenix {

/// The door to the help for windows that do not know who shows it. Without a handler nothing
/// happens.

enum class HelpPlace { Keyword, Contents, Search };
using HelpHandler = std::function<void(HelpPlace place, const QString &keyword)>;

/// Whoever shows the help; an empty handler takes it away.
void SetHelpHandler(HelpHandler handler);

/// The topic of a keyword, as "HYPERLINK" of a dialog or "table" of a tag, in any case. The handler
/// says so when there is none.
void ShowHelp(const QString &keyword);
void ShowHelpContents();
void ShowHelpSearch();

} // namespace brenix
