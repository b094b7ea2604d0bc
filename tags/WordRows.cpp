#include "tags/WordRows.h"

namespace brenix {

QStringList WordsOf(QStringView text)
{
    return text.toString().split(u' ', Qt::SkipEmptyParts);
}

QHash<QString, QStringList> ListsByKey(std::span<const WordRow> rows)
{
    QHash<QString, QStringList> lists;
    for (const WordRow &row : rows) {
        const QStringList words = WordsOf(row.words);
        for (const QString &key : WordsOf(row.keys)) {
            if (!lists.contains(key))
                lists.insert(key, words);
        }
    }
    return lists;
}

} // namespace brenix
