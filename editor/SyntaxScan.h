#pragma once

#include "editor/SyntaxTables.h"

#include <QStringView>

namespace brenix {

/// How a block is painted. The numbers are the order of the tests: the first that fits a block's
/// text decides.
enum class BlockPaint : quint8 {
    Declaration = 1, ///< "<!"
    TableTag, ///< table, its rows and cells
    LoneColon, ///< ":" alone
    FreeAmpersand, ///< "& ... ;"
    Entity, ///< "&...;"
    OpenEntity, ///< "&..." at the end of the text
    ServerCode, ///< "<?" and "<%"
    Anchor, ///< "<a " and "</a>"
    Other,
};

/// What `block`, whose end string `end` (empty at the end of the text) is not part of it, is
/// painted as.
BlockPaint PaintOfBlock(QStringView block, QStringView end);

/// Where a scan stands between two characters: outside of blocks, or inside one.
struct ScanState
{
    int rule = -1; ///< the rule of the open block, -1 outside
    BlockPaint paint = BlockPaint::Other; ///< of the open block
    friend bool operator==(const ScanState &, const ScanState &) = default;
};

struct ScannedBlock
{
    qsizetype start = 0;
    qsizetype length = 0; ///< without the end string
    int rule = -1;
    bool closed = false; ///< false for the block that the text leaves open; it has no end string
    BlockPaint paint = BlockPaint::Other;

    QStringView EndText(const SyntaxTables &tables) const
    {
        return closed ? QStringView(tables.RuleAt(rule).end) : QStringView();
    }
};

/// The colouring scan. Walks `text` once and hands its parts to `sink`, in order (positions count
/// from 0):
///   sink.Word(start, length, index)       a word, never empty; `index` in the table, -1 for a word
///   that is not in it sink.Delimiter(start, index)          a delimiter; `index` in the delimiters
///   sink.Block(block)                     a ScannedBlock
/// `Sink::TakesPlainWords` tells whether words that are not in the table are of interest to it.
/// A sink that wants the parts to lie side by side cuts what it has had already: the second unit of
/// a long end string is looked at again, so that a block may begin in the middle of the one before.
/// `state` says in what block the text begins; what comes back is the state at its end.
template <typename Sink>
ScanState ScanSyntax(QStringView text, const SyntaxTables &tables, Sink &sink, ScanState state = {})
{
    const qsizetype length = text.size();
    qsizetype wordStart = 0;
    qsizetype position = 0;

    const bool wantsWords = Sink::TakesPlainWords || tables.HasWords();
    const auto emitWord = [&](qsizetype upTo) {
        if (upTo <= wordStart || !wantsWords)
            return;
        const QStringView word = text.sliced(wordStart, upTo - wordStart);
        sink.Word(wordStart, word.size(), tables.HasWords() ? tables.FindWord(word) : -1);
    };
    // The block of `rule` that began at `start`; false when the text leaves it open.
    const auto emitBlock = [&](qsizetype start, qsizetype searchFrom, int rule) {
        const qsizetype end = tables.FindBlockEnd(text, searchFrom, rule);
        ScannedBlock block{start, (end < 0 ? length : end) - start, rule, end >= 0};
        const QStringView endText = block.EndText(tables);
        block.paint = state.rule >= 0 ? state.paint
                                      : PaintOfBlock(text.sliced(start, block.length), endText);
        sink.Block(block);
        state = block.closed ? ScanState{} : ScanState{rule, block.paint};
        wordStart = end + endText.size();
        position = end + 1;
        return block.closed;
    };

    if (state.rule >= 0 && !emitBlock(0, 0, state.rule))
        return state;
    while (position < length) {
        qsizetype next = position; // a copy that can live in a register
        if (wantsWords) {
            while (next < length && !tables.MayBegin(text[next].unicode()))
                ++next;
        } else {
            while (next < length && !tables.MayShow(text[next].unicode()))
                ++next;
        }
        position = next;
        if (position == length)
            break;
        if (const int rule = tables.FindBlockStart(text, position); rule >= 0) {
            emitWord(position);
            if (!emitBlock(position, position + 1, rule))
                return state;
            continue;
        }
        if (const int delimiter = SyntaxTables::FindDelimiter(text, position); delimiter >= 0) {
            emitWord(position);
            // Behind a block that ends in two units its second one is no delimiter of its own.
            if (position >= wordStart)
                sink.Delimiter(position, delimiter);
            wordStart = position + SyntaxTables::DelimiterAt(delimiter).size();
        }
        ++position;
    }
    emitWord(length);
    return state;
}

} // namespace brenix
