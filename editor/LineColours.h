#pragma once

#include "editor/ColourRuns.h"
#include "editor/HighlightBlock.h"

#include <QTextBlock>
#include <QTextLayout>

#include <optional>

namespace brenix {

class PageMirror;

/// Lays the colours of the scan on the lines of a text document, as layout formats: painting never
/// edits.
///
/// For each block only the state of the scan at its end is kept (in the block's user state); the
/// formats are made when the block is first shown. A whole page is thus coloured at the speed of
/// the scan, and a block is scanned once more only when somebody looks at it.
class LineColours
{
public:
    LineColours(QTextDocument *document, PageMirror &mirror, const SyntaxTables &tables);

    void SetColours(const SyntaxColours &colours);

    /// Colours the whole page as one text; all of it without colours when it is longer than `limit`
    /// units.
    void ColourAll(int limit);
    /// Colours the blocks of one line as if it stood alone: no block reaches into it from the line
    /// before. True when more must be painted anew than what has changed its look at once.
    bool ColourLineAlone(const QTextBlock &first, const QTextBlock &last, int limit);
    /// Colours a changed stretch of blocks in the light of what stands before it.
    void ColourInContext(const QTextBlock &first, const QTextBlock &last, int limit);

    /// Replaces a stretch of the page by text that is coloured by itself; what stands before and
    /// behind it on its first and last line keeps its colours.
    void Replace(int from, int length, const QString &heldText, int limit);
    /// To be called when the view itself has edited.
    void OnEdit(int from, int removed, int added, bool lines);

    /// Makes the formats of a block if it has none yet.
    void Lay(const QTextBlock &block);
    /// The same for a block whose formats somebody else has changed.
    void LayAgain(const QTextBlock &block);

private:
    struct BlockState
    {
        bool known = false; // false for a block that an edit of the view has made
        bool fresh = false; // coloured as if its line stood alone
        bool plain = false; // without colours
        bool edited = false; // since its line was last coloured
        ScanState end;
        int generation = 0; // of its formats, 0 for none
    };
    using Formats = QList<QTextLayout::FormatRange>;

    static BlockState StateOf(const QTextBlock &block);
    static void SetState(QTextBlock block, const BlockState &state);
    static ScanState StateBefore(const QTextBlock &block);
    bool MakePlain(const QTextBlock &first, const QTextBlock &last);
    void SetFormats(const QTextBlock &block, const Formats &formats);
    void AddRuns(Formats &formats, const std::vector<ColourRun> &runs, int shift, int end) const;

    QTextDocument *m_document;
    PageMirror &m_mirror;
    const SyntaxTables &m_tables;
    QTextCharFormat m_formats[5][2][2]; // colour, bold, italic
    int m_generation = 1; // formats of an older one are made again when next shown
};

} // namespace brenix
