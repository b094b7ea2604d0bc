#pragma once

#include "editor/TextRope.h"

#include <QObject>
#include <QTextBlock>

class QTextDocument;

namespace brenix {

/// The text of a page twice, always the same: in a text document, which shows it, and as a rope,
/// which knows the line ends and answers for positions. Text is never taken out of the document as
/// a whole: it would come out changed. Positions are the document's own, which are the rope's.
class PageMirror : public QObject
{
    Q_OBJECT

public:
    explicit PageMirror(QTextDocument *document);

    const TextRope &Rope() const { return m_rope; }
    /// The line end that new lines get.
    char16_t UsualEnd() const { return m_usualEnd; }
    void SetUsualEnd(char16_t lineEnd) { m_usualEnd = lineEnd; }

    /// Replaces a stretch by held text, in one edit.
    void Replace(int from, int length, const QString &heldText);
    /// Makes the page `target`, changing only what differs. Returns the stretch of `target` that
    /// was put in.
    struct Stretch
    {
        int from = 0;
        int length = 0;
    };
    Stretch Become(const TextRope &target);
    /// Cuts the blocks of a stretch that have grown too long. Returns the stretch of the blocks
    /// that were cut, of length 0 when there was none.
    Stretch BreakLongBlocks(int from, int length);
    /// Whether the block ends in a line end, and not in a soft break or with the text.
    bool EndsInLineEnd(const QTextBlock &block) const;
    bool EndsInSoftBreak(const QTextBlock &block) const;

    /// While one of these lives, changes that the document reports are not changes of its text.
    class ColourChange
    {
    public:
        explicit ColourChange(PageMirror &mirror)
            : m_mirror(mirror)
        {
            ++m_mirror.m_ignored;
        }
        ~ColourChange() { --m_mirror.m_ignored; }
        ColourChange(const ColourChange &) = delete;
        ColourChange &operator=(const ColourChange &) = delete;

    private:
        PageMirror &m_mirror;
    };

signals:
    /// The document was edited by its view (a key, an input method): `added` units stand at `from`
    /// in the place of `removed` ones; `lines` when line ends were among them. Not sent for
    /// `Replace`.
    void EditedByView(int from, int removed, int added, bool lines);

private:
    void OnContentsChange(int from, int removed, int added);
    QString DocumentUnits(int from, int length) const;

    QTextDocument *m_document;
    TextRope m_rope;
    char16_t m_usualEnd;
    int m_ignored = 0;
};

} // namespace brenix
