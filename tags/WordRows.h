#pragma once

#include <QHash>
#include <QString>
#include <QStringList>
#include <QStringView>

#include <span>

namespace brenix {

/// A row of a catalogue: some keys that share an ordered list of words. Both are separated by
/// blanks.
struct WordRow
{
    QStringView keys;
    QStringView words;
};

/// The words between blanks; a text of blanks alone has none.
QStringList WordsOf(QStringView text);

/// The list of each key. Of two rows with the same key the first counts.
QHash<QString, QStringList> ListsByKey(std::span<const WordRow> rows);

} // namespace brenix
