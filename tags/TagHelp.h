#pragma once

#include <QString>

namespace brenix {

/// The help keyword of a selected tag, start or end: its name in lower case. `<TABLE BORDER=1>` and
/// "</table>" give "table", a document type gives "doctype". Empty, for which the caller says
/// "Keyword not found!", for a comment and where there is no name.
QString TagHelpKeyword(const QString &selectedText);

} // namespace brenix
