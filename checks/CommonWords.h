#pragma once

#include "checks/Pulse.h"

#include <QString>
#include <QStringView>

#include <span>

namespace brenix {

/// The common words in the order in which they are taken out; an entry may be two words.
std::span<const QStringView> CommonWordList();

/// Takes the common words ("the", "search engine") out of a text in lower case, one after the other
/// in their order: each, together with a blank before it and a blank behind it, becomes
/// one blank, and after every sixteenth two blanks become one. A word at either end of the text
/// stays, and so does the second of two equal ones with one blank between: "a the the b" gives "a
/// the b". Takes time for the words that it finds, not for the length of the list. When it is
/// stopped, some of them are left.
QString WithoutCommonWords(QStringView text, Pulse &pulse);

} // namespace brenix
