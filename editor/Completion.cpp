#include "editor/Completion.h"

#include "editor/TypingSteps.h"
#include "support/SourceView.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace brenix {

namespace {

    constexpr int TagStartReach = 200;
    constexpr int TagReach = 100;
    constexpr int ValueReach = 100;

    // The part of a tag that names it; a tag that ends or has no blank gives none.
    TagSearch NamedIn(const QString &tag)
    {
        const qsizetype blank = tag.indexOf(u' ');
        if (blank < 0 || tag[1] == u'/' || tag[1] == u'\\')
            return {TagSearch::Result::NoName, {}};
        return {TagSearch::Result::Found, tag.sliced(1, blank - 1)};
    }

    void Complete(SourceView &source,
                  const QString &typed,
                  const QString &word,
                  const QString &more)
    {
        if (word.startsWith(typed, Qt::CaseInsensitive))
            source.SetSelText(word.sliced(typed.size()) + more);
        else
            AcceptValue(source, typed, word + more);
    }

} // namespace

TagSearch FindTagAtCaret(const SourceView &source)
{
    const int caret = source.SelStart();
    const int start = std::max(0, caret - TagStartReach - 1);
    const QString text = source.TextAt(start, caret - start + TagReach);
    // The character right before the caret is the blank that was typed.
    for (int position = caret - 2; position >= start; --position) {
        const qsizetype index = position - start;
        if (text[index] == u'>')
            return {TagSearch::Result::Outside, {}};
        if (text[index] != u'<')
            continue;
        const QString tag = text.mid(index, TagReach);
        if (const qsizetype end = tag.indexOf(u'>'); end >= 0)
            return NamedIn(tag.first(end + 1));
    }
    const bool atTextStart = caret <= TagStartReach;
    return {atTextStart ? TagSearch::Result::Nothing : TagSearch::Result::NoName, {}};
}

QString FindAttributeAtCaret(const SourceView &source)
{
    // Without the quote.
    const QString before = TextBefore(source, source.SelStart() - 1, ValueReach + 1);
    qsizetype sign = before.size() - 1;
    while (sign >= 0 && !u"=<>\""_s.contains(before[sign]))
        --sign;
    if (sign < std::max(qsizetype(0), before.size() - ValueReach) || before[sign] != u'=')
        return {};
    const qsizetype blank = sign < 2 ? -1 : before.lastIndexOf(u' ', sign - 2);
    if (blank < 0)
        return {};
    QString name = before.sliced(blank + 1).trimmed().toLower();
    if (name.endsWith(u'='))
        name = name.chopped(1).trimmed();
    return name;
}

int FindRow(const QStringList &rows, const QString &typed)
{
    const auto found = std::ranges::find_if(
        rows, [&](const QString &row) { return row.startsWith(typed, Qt::CaseInsensitive); });
    return typed.isEmpty() || found == rows.end() ? -1 : int(found - rows.begin());
}

bool AcceptAttribute(SourceView &source, const QString &typed, const QString &row)
{
    const bool hasValue = row.endsWith(u'=');
    Complete(source, typed, row, hasValue ? u"\"\""_s : QString());
    if (hasValue)
        source.SetSelStart(source.SelStart() - 1);
    return hasValue;
}

void AcceptTag(SourceView &source, const QString &typed, const QString &row, const QString &suffix)
{
    const bool upper = !typed.trimmed().isEmpty() && typed == typed.toUpper();
    Complete(source, typed, upper ? row.toUpper() : row.toLower(), suffix);
}

void AcceptValue(SourceView &source, const QString &typed, const QString &row)
{
    const int length = std::min(int(typed.size()), source.SelStart());
    source.SetSelStart(source.SelStart() - length);
    source.SetSelLength(length);
    source.SetSelText(row);
}

} // namespace brenix
