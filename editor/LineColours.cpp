#include "editor/LineColours.h"

#include "editor/PageMirror.h"
#include "editor/PageText.h"

#include <QTextDocument>

#include <algorithm>

namespace brenix {

namespace {

    constexpr int LastGeneration = 0x7FFF;
    // Blocks of one line that get their formats when it is coloured; further ones get theirs when
    // they are shown.
    constexpr int LaidAtOnce = 8;
    constexpr QStringView LineEndText = u"\r\n";

    // The part of the formats between two places of a block, moved by `shift`.
    QList<QTextLayout::FormatRange> Cut(const QList<QTextLayout::FormatRange> &formats,
                                        int from,
                                        int upTo,
                                        int shift)
    {
        QList<QTextLayout::FormatRange> cut;
        for (const QTextLayout::FormatRange &range : formats) {
            const int start = std::max(range.start, from);
            const int end = std::min(range.start + range.length, upTo);
            if (start < end)
                cut.append({start + shift, end - start, range.format});
        }
        return cut;
    }

} // namespace

LineColours::LineColours(QTextDocument *document, PageMirror &mirror, const SyntaxTables &tables)
    : m_document(document)
    , m_mirror(mirror)
    , m_tables(tables)
{
    SetColours({});
}

void LineColours::SetColours(const SyntaxColours &colours)
{
    const quint32 values[] = {0, colours.keyword, colours.op, colours.function, colours.delimiter};
    for (std::size_t colour = 0; colour < std::size(values); ++colour) {
        const qint64 translated = TranslateColour(values[colour]);
        const quint32 rgb = translated < 0 ? 0xFFFFFFu : quint32(translated);
        for (const bool bold : {false, true}) {
            for (const bool italic : {false, true}) {
                QTextCharFormat &format = m_formats[colour][bold][italic];
                format = QTextCharFormat();
                if (colour > 0)
                    format.setForeground(QColor(rgb & 0xFF, rgb >> 8 & 0xFF, rgb >> 16 & 0xFF));
                if (bold)
                    format.setFontWeight(QFont::Bold);
                if (italic)
                    format.setFontItalic(true);
            }
        }
    }
}

void LineColours::ColourAll(int limit)
{
    m_generation = m_generation % LastGeneration + 1;
    const TextRope &rope = m_mirror.Rope();
    const bool plain = rope.TextLength() > limit;
    std::vector<ScanState> states;
    if (!plain)
        states = StatesAt(TextOf(rope), m_tables, BlockEnds(rope));
    std::size_t number = 0;
    for (QTextBlock block = m_document->begin(); block.isValid(); block = block.next(), ++number) {
        BlockState state{.known = true, .plain = plain, .end = {}};
        if (number < states.size())
            state.end = states[number];
        SetState(block, state);
    }
}

// Of a long line that is held in several blocks, only those are scanned that were edited, or that
// follow one whose end has come to stand in another state.
bool LineColours::ColourLineAlone(const QTextBlock &first, const QTextBlock &last, int limit)
{
    // The line behind keeps its colours, which it may not have been given yet.
    if (last.next().isValid())
        Lay(last.next());
    if (last.position() + last.length() - 1 - first.position() > limit)
        return MakePlain(first, last);
    bool again = !StateOf(first).fresh;
    int scanned = 0;
    ScanState scan;
    for (QTextBlock block = first;; block = block.next()) {
        const BlockState state = StateOf(block);
        again = again || !state.known || state.edited || state.plain;
        if (again) {
            ColourRuns(block.text(), m_tables, scan);
            if (block == last)
                scan = AfterLineEnd(scan, m_tables);
            again = !state.known || state.plain || scan != state.end;
            SetState(block, {.known = true, .fresh = block == first, .end = scan});
            if (++scanned <= LaidAtOnce)
                Lay(block);
        }
        scan = StateOf(block).end;
        if (block == last)
            return scanned > LaidAtOnce;
    }
}

void LineColours::ColourInContext(const QTextBlock &first, const QTextBlock &last, int limit)
{
    if (last.position() + last.length() - 1 - first.position() > limit) {
        MakePlain(first, last);
        return;
    }
    QString text;
    std::vector<int> ends;
    for (QTextBlock block = first;; block = block.next()) {
        text += block.text();
        if (m_mirror.EndsInLineEnd(block))
            text += LineEndText;
        ends.push_back(int(text.size()));
        if (block == last)
            break;
    }
    const std::vector<ScanState> states = StatesAt(text, m_tables, ends, StateBefore(first));
    QTextBlock block = first;
    for (const ScanState &state : states) {
        SetState(block, {.known = true, .end = state});
        block = block.next();
    }
    // A piece of the same line that follows begins in another state now.
    BlockState behind = StateOf(block);
    if (block.isValid() && behind.known) {
        behind.edited = true;
        SetState(block, behind);
    }
}

bool LineColours::MakePlain(const QTextBlock &first, const QTextBlock &last)
{
    bool changed = false;
    for (QTextBlock block = first;; block = block.next()) {
        const BlockState state = StateOf(block);
        if (!state.known || !state.plain || state.edited) {
            SetState(block, {.known = true, .plain = true, .end = {}});
            changed = true;
        }
        if (block == last)
            return changed;
    }
}

void LineColours::Replace(int from, int length, const QString &heldText, int limit)
{
    const QTextBlock first = m_document->findBlock(from);
    const QTextBlock last = m_document->findBlock(from + length);
    Lay(first);
    Lay(last);
    const int headLength = from - first.position();
    const int tailStart = from + length - last.position();
    Formats firstFormats = Cut(first.layout()->formats(), 0, headLength, 0);
    const Formats tail = Cut(last.layout()->formats(), tailStart, last.length(), -tailStart);
    BlockState firstState = StateOf(first);
    BlockState lastState = StateOf(last);

    m_mirror.Replace(from, length, heldText);

    const QString text = TextOf(QStringView(heldText));
    const bool coloured = text.size() <= limit;
    const std::vector<int> ends = BlockEnds(TextRope(heldText));
    const std::vector<ScanState> states
        = coloured ? StatesAt(text, m_tables, ends) : std::vector<ScanState>(ends.size());
    const QTextBlock newFirst = m_document->findBlock(from);
    const QTextBlock newLast = m_document->findBlock(from + int(heldText.size()));
    const auto runsOf
        = [&](QStringView part, ScanState state, std::optional<BlockPaint> openPaint) {
              return coloured ? ColourRuns(part, m_tables, state, openPaint)
                              : std::vector<ColourRun>();
          };
    const auto addTail = [&](Formats &formats) {
        const int shift = from + int(heldText.size()) - newLast.position();
        formats += Cut(tail, 0, newLast.length(), shift);
    };

    if (ends.empty()) {
        AddRuns(firstFormats, runsOf(text, {}, {}), headLength, newFirst.length() - 1);
        addTail(firstFormats);
        firstState.end = lastState.end;
        firstState.edited = true;
        SetState(newFirst, firstState);
        SetFormats(newFirst, firstFormats);
        return;
    }
    AddRuns(firstFormats,
            runsOf(QStringView(text).left(ends.front()), {}, states.front().paint),
            headLength,
            newFirst.length() - 1);
    firstState.end = states.front();
    firstState.edited = true;
    SetState(newFirst, firstState);
    SetFormats(newFirst, firstFormats);
    QTextBlock block = newFirst.next();
    for (std::size_t i = 1; i < states.size(); ++i, block = block.next())
        SetState(block, {.known = true, .plain = !coloured, .end = states[i]});
    Formats lastFormats;
    AddRuns(lastFormats,
            runsOf(QStringView(text).mid(ends.back()), states.back(), {}),
            0,
            newLast.length() - 1);
    addTail(lastFormats);
    lastState.edited = true;
    SetState(newLast, lastState);
    SetFormats(newLast, lastFormats);
}

// What is typed takes the look of the character before it, until its line is painted again.
void LineColours::OnEdit(int from, int removed, int added, bool lines)
{
    QTextBlock block = m_document->findBlock(from);
    if (lines) {
        for (; block.isValid() && block.position() <= from + added; block = block.next())
            block.setUserState(-1);
        return;
    }
    BlockState state = StateOf(block);
    if (!state.known)
        return;
    state.edited = true;
    SetState(block, state);
    if (state.generation != m_generation)
        return;
    const int place = from - block.position();
    Formats formats;
    for (QTextLayout::FormatRange range : block.layout()->formats()) {
        const auto moved = [&](int position, bool grows) {
            if (position < place || (position == place && !grows))
                return position;
            return std::max(position - removed, place) + added;
        };
        const int end = moved(range.start + range.length, true);
        range.start = moved(range.start, removed == 0 || range.start > place);
        range.length = end - range.start;
        if (range.length > 0)
            formats.append(range);
    }
    SetFormats(block, formats);
}

void LineColours::Lay(const QTextBlock &block)
{
    BlockState state = StateOf(block);
    if (state.known && state.generation == m_generation)
        return;
    const QTextBlock before = block.previous();
    if (!state.known && before.isValid() && !StateOf(before).known) {
        QTextBlock earliest = before;
        while (earliest.previous().isValid() && !StateOf(earliest.previous()).known)
            earliest = earliest.previous();
        for (; earliest != block; earliest = earliest.next())
            Lay(earliest);
    }
    if (!state.known)
        state.plain = before.isValid() && StateOf(before).plain;
    Formats formats;
    if (!state.plain) {
        QString text = block.text();
        if (!state.fresh && m_mirror.EndsInLineEnd(block))
            text += LineEndText;
        ScanState scan = state.fresh ? ScanState{} : StateBefore(block);
        std::optional<BlockPaint> openPaint;
        if (state.known && state.end.rule >= 0)
            openPaint = state.end.paint;
        AddRuns(formats, ColourRuns(text, m_tables, scan, openPaint), 0, block.length() - 1);
        if (!state.known)
            state.end = scan;
    }
    state.known = true;
    state.generation = m_generation;
    SetState(block, state);
    SetFormats(block, formats);
}

void LineColours::LayAgain(const QTextBlock &block)
{
    BlockState state = StateOf(block);
    state.generation = 0;
    if (state.known)
        SetState(block, state);
    Lay(block);
}

// 1 bit each for known, fresh, plain and edited, 8 for the rule, 4 for its paint, 15 for the
// generation; -1 is what a new block has.
LineColours::BlockState LineColours::StateOf(const QTextBlock &block)
{
    const int bits = block.userState();
    if (bits == -1)
        return {};
    return {.known = (bits & 1) != 0,
            .fresh = (bits & 2) != 0,
            .plain = (bits & 4) != 0,
            .edited = (bits & 8) != 0,
            .end = {.rule = (bits >> 4 & 0xFF) - 1, .paint = BlockPaint(bits >> 12 & 0xF)},
            .generation = bits >> 16 & LastGeneration};
}

void LineColours::SetState(QTextBlock block, const BlockState &state)
{
    const int rule = state.end.rule < 0xFF ? state.end.rule + 1 : 0;
    block.setUserState(int(state.known) | int(state.fresh) << 1 | int(state.plain) << 2
                       | int(state.edited) << 3 | rule << 4 | int(state.end.paint) << 12
                       | state.generation << 16);
}

ScanState LineColours::StateBefore(const QTextBlock &block)
{
    const QTextBlock before = block.previous();
    return before.isValid() ? StateOf(before).end : ScanState{};
}

void LineColours::SetFormats(const QTextBlock &block, const Formats &formats)
{
    if (block.layout()->formats() == formats)
        return;
    const PageMirror::ColourChange noEdit(m_mirror);
    block.layout()->setFormats(formats);
    m_document->markContentsDirty(block.position(), block.length());
}

void LineColours::AddRuns(Formats &formats,
                          const std::vector<ColourRun> &runs,
                          int shift,
                          int end) const
{
    for (const ColourRun &run : runs) {
        const int start = run.start + shift;
        const int length = std::min(run.length, end - start);
        if (length > 0)
            formats.append({start, length, m_formats[int(run.colour)][run.bold][run.italic]});
    }
}

} // namespace brenix
