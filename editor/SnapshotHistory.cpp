#include "editor/SnapshotHistory.h"

namespace brenix {

void SnapshotHistory::AddUndo(const TextRope &text, int caret)
{
    // The two indexes wrap at different moments: the caret's reaches slot 1000 once in a turn, the
    // text's never does.
    ++m_undoIndex;
    if (m_undoIndex >= Slots - 1)
        m_undoIndex = 1;
    if (m_undoSelIndex >= Slots - 1)
        m_undoSelIndex = 1;
    m_undoText[m_undoIndex] = text;
    ++m_undoSelIndex;
    if (m_undoSelIndex >= 0) // Redo across the turn takes the two indexes apart
        m_undoSel[m_undoSelIndex] = caret;
}

std::optional<SnapshotHistory::Restored> SnapshotHistory::Undo()
{
    if (!HoldsText(m_undoIndex - 1) && !HoldsText(m_undoIndex - 2))
        return std::nullopt;
    --m_undoIndex;
    --m_undoSelIndex;
    return RestoreCurrent();
}

std::optional<SnapshotHistory::Restored> SnapshotHistory::Redo()
{
    if (!HoldsText(m_undoIndex + 1) && !HoldsText(m_undoIndex + 2))
        return std::nullopt;
    ++m_undoIndex;
    ++m_undoSelIndex;
    return RestoreCurrent();
}

bool SnapshotHistory::HoldsText(int slot) const
{
    return slot >= 0 && slot < Slots && !m_undoText[slot].IsEmpty();
}

SnapshotHistory::Restored SnapshotHistory::RestoreCurrent() const
{
    const bool caretKept = m_undoSelIndex >= 0 && m_undoSelIndex < Slots;
    return {m_undoText[m_undoIndex], caretKept ? m_undoSel[m_undoSelIndex] : std::nullopt};
}

} // namespace brenix
