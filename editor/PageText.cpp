#include "editor/PageText.h"

#include "editor/LineEnds.h"
#include "support/TextCodec.h"

#include <algorithm>

namespace brenix {

namespace {

    // How far from its latest place a soft break looks for a better one.
    constexpr int BreakSearch = 200;

    bool MustStayTogether(QChar before, QChar behind)
    {
        const auto isCommentMark = [](QChar unit) { return unit == u'/' || unit == u'*'; };
        return (before.isHighSurrogate() && behind.isLowSurrogate())
            || (isCommentMark(before) && isCommentMark(behind));
    }

    void AppendBlock(QString &held, QStringView block)
    {
        qsizetype from = 0;
        for (const int place : SoftBreakPlaces(block)) {
            held += block.sliced(from, place - from);
            held += QChar(LineEnd::Soft);
            from = place;
        }
        held += block.sliced(from);
    }

    // Cuts at every line end; `unitFor` says what unit stands for an end of the given length that
    // begins with `first`.
    template <typename UnitFor> QString Held(QStringView pageText, UnitFor unitFor)
    {
        const QString text = WithStandIns(pageText.toString()); // before our own units are in it
        QString held;
        held.reserve(text.size() + text.size() / 64);
        qsizetype blockStart = 0;
        for (qsizetype i = 0; i < text.size(); ++i) {
            const char16_t unit = text[i].unicode();
            if (unit != u'\r' && unit != u'\n')
                continue;
            AppendBlock(held, QStringView(text).sliced(blockStart, i - blockStart));
            const bool pair = unit == u'\r' && i + 1 < text.size() && text[i + 1] == u'\n';
            held += QChar(unitFor(unit, pair));
            i += pair;
            blockStart = i + 1;
        }
        AppendBlock(held, QStringView(text).sliced(blockStart));
        return held;
    }

    // Spells out every line end, as `spelling` says for the text so far; soft breaks go.
    template <typename Spelling> void Spell(QStringView held, QString &result, Spelling spelling)
    {
        qsizetype from = 0;
        for (qsizetype i = 0; i < held.size(); ++i) {
            if (!IsBlockEnd(held[i].unicode()))
                continue;
            result += held.sliced(from, i - from);
            if (held[i] != QChar(LineEnd::Soft))
                result += spelling(held[i].unicode(), result);
            from = i + 1;
        }
        result += held.sliced(from);
    }

    QStringView SpelledAsCommandsSee(char16_t, QStringView)
    {
        return u"\r\n";
    }

    QStringView SpelledAsInFile(char16_t unit, QStringView before)
    {
        if (unit == LineEnd::CrLf)
            return u"\r\n";
        if (unit == LineEnd::Cr)
            return u"\r";
        // What stood between the two is deleted. They stay two line ends: CR LF, and LF.
        return before.endsWith(u'\r') ? u"\n\n" : u"\n";
    }

    template <typename Spelling> QString SpellAll(const TextRope &held, Spelling spelling)
    {
        QString result;
        result.reserve(held.TextLength());
        held.ForEachPiece([&](QStringView piece) { Spell(piece, result, spelling); });
        return WithoutStandIns(std::move(result));
    }

} // namespace

QString HeldText(QStringView fileText)
{
    return Held(fileText, [](char16_t first, bool pair) { return pair ? LineEnd::CrLf : first; });
}

QString HeldText(QStringView text, char16_t lineEnd)
{
    const auto unitFor = [lineEnd](char16_t, bool) { return lineEnd; };
    if (!HoldsStandIns(text))
        return Held(text, unitFor);
    // No page holds these, and here they would mean others.
    QString clean = text.toString();
    for (const char16_t standIn : {0xFDD2, 0xFDD3, 0xFDD4})
        clean.replace(QChar(standIn), QChar::ReplacementCharacter);
    return Held(clean, unitFor);
}

QString FileTextOf(const TextRope &held)
{
    return SpellAll(held, SpelledAsInFile);
}

QString TextOf(const TextRope &held)
{
    return SpellAll(held, SpelledAsCommandsSee);
}

QString TextOf(QStringView held)
{
    QString result;
    Spell(held, result, SpelledAsCommandsSee);
    return WithoutStandIns(std::move(result));
}

char16_t UsualLineEnd(QStringView held)
{
    const auto crLf = held.count(QChar(LineEnd::CrLf));
    const auto lf = held.count(QChar(LineEnd::Lf));
    const auto cr = held.count(QChar(LineEnd::Cr));
    if (crLf >= lf && crLf >= cr)
        return LineEnd::CrLf;
    return lf >= cr ? LineEnd::Lf : LineEnd::Cr;
}

QString DocumentText(QString held)
{
    for (QChar &unit : held) {
        if (IsBlockEnd(unit.unicode()))
            unit = u'\n';
    }
    return held;
}

std::vector<int> BlockEnds(const TextRope &held)
{
    std::vector<int> ends;
    int position = 0;
    held.ForEachPiece([&](QStringView piece) {
        for (const QChar unit : piece) {
            const bool soft = unit.unicode() == LineEnd::Soft;
            position += IsHardEnd(unit.unicode()) ? 2 : int(!soft);
            if (IsBlockEnd(unit.unicode()))
                ends.push_back(position);
        }
    });
    return ends;
}

std::vector<int> SoftBreakPlaces(QStringView block)
{
    std::vector<int> places;
    if (block.size() <= LongestBlock)
        return places;
    int from = 0;
    while (block.size() - from > LongestBlock) {
        const int latest = from + BlockPiece;
        int place = latest;
        while (place > latest - BreakSearch && block[place - 1] != u'>' && block[place - 1] != u' ')
            --place;
        if (place == latest - BreakSearch)
            place = latest;
        place -= MustStayTogether(block[place - 1], block[place]);
        places.push_back(place);
        from = place;
    }
    return places;
}

} // namespace brenix
