#include "editor/PrintedSource.h"

#include "editor/PageMirror.h"

#include <QTextDocument>
#include <QTextLayout>

namespace brenix {

namespace {

    constexpr int LongestParagraph = 20'000; // printing slows down with the square of it
    constexpr float LightestInk = 0.6F;
    constexpr float DarkenedInk = 0.4F;

    // The author may have chosen light colours for a dark view.
    QTextCharFormat OnPaper(QTextCharFormat format)
    {
        const QColor colour = format.foreground().color();
        if (format.hasProperty(QTextFormat::ForegroundBrush) && colour.lightnessF() > LightestInk)
            format.setForeground(
                QColor::fromHslF(colour.hslHueF(), colour.hslSaturationF(), DarkenedInk));
        format.clearBackground();
        return format;
    }

    // The stretch from `from` to `to` of a block, both counted in the block.
    void AddStretch(QTextCursor &cursor, const QTextBlock &block, int from, int to)
    {
        const QString text = block.text();
        const auto add = [&](int until, const QTextCharFormat &format) {
            if (until > from)
                cursor.insertText(text.mid(from, until - from), format);
            from = std::max(from, until);
        };
        for (const QTextLayout::FormatRange &range : block.layout()->formats()) {
            add(std::min(range.start, to), {});
            add(std::min(range.start + range.length, to), OnPaper(range.format));
        }
        add(to, {});
    }

} // namespace

std::unique_ptr<QTextDocument> PrintedSource(const QTextDocument &view,
                                             const PageMirror &page,
                                             int from,
                                             int to)
{
    auto paper = std::make_unique<QTextDocument>();
    paper->setUndoRedoEnabled(false);
    paper->setDefaultFont(view.defaultFont());
    QTextOption option = view.defaultTextOption();
    option.setWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
    paper->setDefaultTextOption(option);

    QTextCursor cursor(paper.get());
    // As one edit: else each run would lay out its line once more, of which there may be megabytes.
    cursor.beginEditBlock();
    for (QTextBlock block = view.findBlock(from); block.isValid() && block.position() <= to;
         block = block.next()) {
        const int start = block.position();
        // The pieces of a long line are one line again, unless that takes up pages of its own.
        const bool goesOn
            = page.EndsInSoftBreak(block.previous()) && cursor.positionInBlock() < LongestParagraph;
        if (start > from && !goesOn)
            cursor.insertBlock();
        AddStretch(
            cursor, block, std::max(from - start, 0), std::min(to - start, block.length() - 1));
    }
    cursor.endEditBlock();
    return paper;
}

} // namespace brenix
