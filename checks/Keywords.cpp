#include "checks/Keywords.h"

#include "checks/CommonWords.h"
#include "checks/InPlace.h"
#include "checks/PlainText.h"
#include "checks/WordHash.h"
#include "support/DocumentModel.h"
#include "support/SourceView.h"
#include "support/TextSearch.h"

#include <algorithm>
#include <unordered_set>

using namespace Qt::StringLiterals;

namespace brenix {

namespace {

    constexpr int Rounds = 3;
    constexpr qsizetype MostEndings = 4;
    constexpr QStringView Signs = u"1234567890.,:/\\*-_;)(}{=?+\"#%&<>\t";

    // Lower case, with a blank for each line end and each "&nbsp" that is in lower case itself.
    void MakeOneLine(QString &text)
    {
        constexpr QStringView NoBreakSpace = u"&nbsp";
        InPlace page(text);
        while (!page.AtEnd()) {
            const char16_t unit = page.Next();
            if (unit == u'\r' || unit == u'\n') {
                page.Skip(page.Rest().startsWith(u"\r\n") ? 2 : 1);
                page.Put(u' ');
            } else if (unit == u'&' && page.Rest().startsWith(NoBreakSpace)) {
                page.Skip(NoBreakSpace.size());
                page.Skip(page.Next() == u';' ? 1 : 0);
                page.Put(u' ');
            } else {
                page.Skip(1);
                page.Put(FoldUnit(unit).unicode());
            }
        }
        page.Finish();
    }

    // The words between blanks. Entities have lost their ";" by now, so that none is looked for.
    QString WordsOf(QString text, Pulse &pulse)
    {
        if (!BlankOut(text, u"<script", u"</script>", pulse) || !BlankOut(text, u"<", u">", pulse)
            || !BlankOut(text, u"{", u"}", pulse))
            return {};
        MakeOneLine(text);
        for (int round = 0; round < Rounds && pulse.Ask(); ++round) {
            text = WithoutCommonWords(text, pulse);
            std::replace_if(
                text.begin(),
                text.end(),
                [](QChar unit) { return unit.unicode() < 0x80 && Signs.contains(unit); },
                u' ');
        }
        return text;
    }

    // Surrogates are the highest code points, though not the highest units.
    int Rank(QChar unit)
    {
        constexpr int AboveAllUnits = 0x10000;
        return unit.unicode() + (unit.isSurrogate() ? AboveAllUnits : 0);
    }

    bool PrecedesByCodePoint(QStringView left, QStringView right)
    {
        return std::lexicographical_compare(
            left.begin(), left.end(), right.begin(), right.end(), [](QChar one, QChar other) {
                return Rank(one) < Rank(other);
            });
    }

    std::vector<QStringView> Sorted(QStringView words, Pulse &pulse)
    {
        std::unordered_set<QStringView, WordHash> distinct;
        for (const QStringView word : words.tokenize(u' ', Qt::SkipEmptyParts)) {
            if (!pulse.Step())
                break;
            distinct.insert(word);
        }
        std::vector<QStringView> sorted(distinct.begin(), distinct.end());
        std::sort(sorted.begin(), sorted.end(), PrecedesByCodePoint);
        return sorted;
    }

    bool IsWithEnding(QStringView word, QStringView stem)
    {
        const qsizetype ending = word.size() - stem.size();
        return ending >= 1 && ending <= MostEndings && word.startsWith(stem);
    }

    struct Place
    {
        qsizetype start;
        qsizetype length;
    };

    // Each search goes on from where it was, since a page may be full of tags that are left open.
    std::optional<Place> FindKeywordsTag(QStringView text)
    {
        const TextSearch meta(u"<meta");
        const TextSearch keyword(u"keyword");
        qsizetype end = 0;
        qsizetype word = 0;
        for (qsizetype tag = meta.FindIn(text); tag >= 0; tag = meta.FindIn(text, tag + 1)) {
            if (end < tag)
                end = text.indexOf(u'>', tag);
            if (word < tag)
                word = keyword.FindIn(text, tag);
            if (end < 0 || word < 0)
                return std::nullopt;
            if (word + keyword.Length() <= end)
                return Place{tag, end + 1 - tag};
        }
        return std::nullopt;
    }

    std::optional<qsizetype> BehindHead(QStringView text)
    {
        const qsizetype head = FindWithoutCase(text, u"<head");
        const qsizetype end = head < 0 ? -1 : text.indexOf(u'>', head);
        return end < 0 ? std::nullopt : std::optional(end + 1);
    }

} // namespace

QStringList Keywords(const QString &text, const GoOn &goOn)
{
    Pulse pulse(goOn);
    const QString words = WordsOf(text, pulse);
    const std::vector<QStringView> candidates = Sorted(words, pulse);
    if (pulse.Stopped())
        return {};
    QStringList keywords;
    QStringView previous;
    for (const QStringView word : candidates) {
        if (keywords.isEmpty() || (word.size() > 1 && !IsWithEnding(word, previous)))
            keywords.append(word.toString());
        previous = word;
    }
    return keywords;
}

QString KeywordsTag(const QStringList &words)
{
    QString tag = u"<meta name=\"keywords\" content=\""_s;
    for (const QString &word : words)
        tag += word + u',';
    tag.chop(1);
    return tag + u"\">"_s;
}

void WriteKeywords(DocumentModel &page, const QStringList &words)
{
    SourceView &source = page.rtfText();
    if (source.IsReadOnlyPage())
        return;
    source.AddUndo();
    const QString text = source.Text();
    if (const std::optional<Place> tag = FindKeywordsTag(text)) {
        source.SetSelStart(int(tag->start));
        source.SetSelLength(int(tag->length));
    } else if (const std::optional<qsizetype> behindHead = BehindHead(text)) {
        source.SetSelStart(int(*behindHead));
        source.SetSelText(u"\r\n"_s);
    }
    source.SetSelText(KeywordsTag(words));
}

} // namespace brenix
