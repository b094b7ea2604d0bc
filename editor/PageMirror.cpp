#include "editor/PageMirror.h"

#include "editor/LineEnds.h"
#include "editor/PageText.h"

#include <QTextCursor>
#include <QTextDocument>

#include <algorithm>

namespace brenix {

PageMirror::PageMirror(QTextDocument *document)
    : QObject(document)
    , m_document(document)
    , m_usualEnd(LineEnd::CrLf)
{
    connect(document, &QTextDocument::contentsChange, this, &PageMirror::OnContentsChange);
}

void PageMirror::Replace(int from, int length, const QString &heldText)
{
    const ColourChange noViewEdit(*this);
    m_rope = m_rope.Replaced(from, length, heldText);
    QTextCursor cursor(m_document);
    cursor.setPosition(from);
    cursor.setPosition(from + length, QTextCursor::KeepAnchor);
    cursor.insertText(DocumentText(heldText));
}

PageMirror::Stretch PageMirror::Become(const TextRope &target)
{
    const int head = TextRope::CommonPrefix(m_rope, target);
    const int shorter = std::min(m_rope.Length(), target.Length());
    const int tail = std::min(TextRope::CommonSuffix(m_rope, target), shorter - head);
    const Stretch stretch{head, target.Length() - head - tail};
    Replace(head, m_rope.Length() - head - tail, target.Mid(head, stretch.length));
    m_rope = target; // shares its pieces with the snapshot it came from
    return stretch;
}

PageMirror::Stretch PageMirror::BreakLongBlocks(int from, int length)
{
    Stretch cut;
    QTextBlock block = m_document->findBlock(from + length);
    while (block.isValid() && block.position() + block.length() > from) {
        const QTextBlock before = block.previous();
        if (block.length() > 2 * LongestBlock) {
            const std::vector<int> places = SoftBreakPlaces(block.text());
            const int start = block.position();
            const int end = std::max(cut.from + cut.length, start + block.length() - 1);
            for (auto place = places.rbegin(); place != places.rend(); ++place)
                Replace(start + *place, 0, QString(QChar(LineEnd::Soft)));
            cut = {start, end - start + int(places.size())};
        }
        block = before;
    }
    return cut;
}

bool PageMirror::EndsInLineEnd(const QTextBlock &block) const
{
    return IsHardEnd(m_rope.At(block.position() + block.length() - 1));
}

bool PageMirror::EndsInSoftBreak(const QTextBlock &block) const
{
    return m_rope.At(block.position() + block.length() - 1) == LineEnd::Soft;
}

// The document may report more than was changed, and counts the separator behind the last block.
// What really changed is found by comparing, so that line ends that only lie near an edit keep
// their kind.
void PageMirror::OnContentsChange(int from, int removed, int added)
{
    if (m_ignored > 0)
        return;
    const int documentLength = m_document->characterCount() - 1;
    added = std::clamp(added, 0, documentLength - from);
    removed = std::clamp(added - (documentLength - m_rope.Length()), 0, m_rope.Length() - from);
    added = removed + documentLength - m_rope.Length();
    const QString before = m_rope.Mid(from, removed);
    QString after = DocumentUnits(from, added);

    const auto same = [&](qsizetype oldPlace, qsizetype newPlace) {
        const char16_t oldUnit = before[oldPlace].unicode();
        const char16_t newUnit = after[newPlace].unicode();
        return oldUnit == newUnit || (IsBlockEnd(oldUnit) && IsBlockEnd(newUnit));
    };
    const qsizetype shorter = std::min(before.size(), after.size());
    qsizetype head = 0;
    while (head < shorter && same(head, head))
        ++head;
    qsizetype tail = 0;
    while (tail < shorter - head && same(before.size() - 1 - tail, after.size() - 1 - tail))
        ++tail;

    const QString inserted = after.sliced(head, after.size() - head - tail);
    const int start = from + int(head);
    const int cut = removed - int(head + tail);
    if (cut == 0 && inserted.isEmpty())
        return;
    m_rope = m_rope.Replaced(start, cut, inserted);
    const auto isEnd = [](QChar unit) { return IsBlockEnd(unit.unicode()); };
    const bool lines = std::any_of(inserted.begin(), inserted.end(), isEnd)
        || std::any_of(before.begin() + head, before.end() - tail, isEnd);
    emit EditedByView(start, cut, int(inserted.size()), lines);
}

QString PageMirror::DocumentUnits(int from, int length) const
{
    QString units;
    units.reserve(length);
    for (QTextBlock block = m_document->findBlock(from); block.isValid() && units.size() < length;
         block = block.next()) {
        units += QStringView(block.text()).mid(std::max(0, from - block.position()));
        units += QChar(m_usualEnd);
    }
    units.truncate(length);
    return units;
}

} // namespace brenix
