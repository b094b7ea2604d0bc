#pragma once

#include <QString>
#include <QStringList>
#include <QStringView>

namespace brenix {

/// The dialect that the program starts with.
inline constexpr QStringView AllHtmlTitle = u"All HTML";
/// The dialect of today's HTML, the only one with attributes and values of its own.
inline constexpr QStringView Html5Title = u"HTML 5";

/// The titles of the sixteen dialects, in the order in which the author chooses among them.
QStringList DialectNames();

/// The rows of a dialect, in the catalogue's order and in upper case, each as it is inserted:
/// "<A></A>" or "<BR>". Some stand twice or have an end tag that is misspelt. A title is compared
/// exactly; an unknown one has no rows. The list lives as long as the program.
const QStringList &TagsOfDialect(QStringView title);

/// The tag names of a dialect, in the catalogue's order and in upper case, each once: "A" for
/// "<A></A>", "!DOCTYPE" for "<!DOCTYPE HTML PUBLIC>", "!--" for "<!-- -->". Empty for an unknown
/// title.
QStringList TagNames(QStringView title);

} // namespace brenix
