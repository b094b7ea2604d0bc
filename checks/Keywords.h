#pragma once

#include "checks/Pulse.h"

#include <QStringList>

namespace brenix {

class DocumentModel;

/// Words that may serve as the page's keywords, in lower case and in the order of their code
/// points, each once: the page without scripts, tags, style rules, digits, punctuation and common
/// words. A word is left out when the one before it in that order is the same without the last one
/// to four characters ("page", "pages"), and when it is one character long, unless it is the first
/// of all. No entity is translated: "&aring;" gives "aring". Nothing when it is stopped.
QStringList Keywords(const QString &text, const GoOn &goOn = {});

/// `<meta name="keywords" content="one,two">`. Without words the opening quotation mark is missing.
QString KeywordsTag(const QStringList &words);

/// Writes the tag over the first meta tag that holds "keyword"; where there is none, on a new line
/// behind the first tag that begins with "<head", or else at the caret. Takes a snapshot before.
void WriteKeywords(DocumentModel &page, const QStringList &words);

} // namespace brenix
