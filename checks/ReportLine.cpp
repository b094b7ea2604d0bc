#include "checks/ReportLine.h"

#include <algorithm>

namespace brenix {

namespace {

    // Behind "line ".
    constexpr qsizetype NumberStart = 5;
    constexpr QStringView ColumnWord = u"column";
    constexpr QStringView PositionWord = u"(Char";

    // The number that begins at `start` and ends before the next blank; 0 when there is none.
    int NumberAt(QStringView line, qsizetype start)
    {
        const qsizetype end = line.indexOf(u' ', start);
        return end < 0 ? 0 : line.sliced(start, end - start).toInt();
    }

} // namespace

std::optional<ReportPlace> PlaceOfReportLine(QStringView line)
{
    const int number = NumberAt(line, NumberStart);
    if (number < 1)
        return std::nullopt;
    const qsizetype word = line.indexOf(ColumnWord, NumberStart);
    const int column = word < 0 ? 0 : NumberAt(line, word + ColumnWord.size() + 1);
    return ReportPlace{number - 1, std::max(column - 1, 0)};
}

std::optional<int> PositionOfReportLine(QStringView line)
{
    const qsizetype word = line.lastIndexOf(PositionWord);
    const qsizetype end = line.indexOf(u')', word);
    if (word < 0 || end < 0)
        return std::nullopt;
    QStringView number = line.sliced(word, end - word).sliced(PositionWord.size());
    if (number.startsWith(u':'))
        number = number.sliced(1);
    bool isNumber = false;
    const int position = number.trimmed().toInt(&isNumber);
    return isNumber && position >= 0 ? std::optional(position) : std::nullopt;
}

} // namespace brenix
