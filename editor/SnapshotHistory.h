#pragma once

#include "editor/TextRope.h"

#include <array>
#include <optional>

namespace brenix {

/// The undo history of a source view: a ring of whole-page snapshots in slots 1 to 999, each with
/// the caret of its moment. A snapshot shares its text with its neighbours, so that it costs what
/// changed. Slots above the current one stay after a new snapshot, and Redo reaches them; after the
/// ring has turned, Undo walks on through the older slots that were not overwritten yet, down to
/// slot 1.
class SnapshotHistory
{
public:
    /// Takes a snapshot. `caret` is the text position of the caret.
    void AddUndo(const TextRope &text, int caret);

    struct Restored
    {
        TextRope text;
        std::optional<int> caret; ///< nothing when no caret is kept for this slot
    };
    /// The slot below or above the current one, which it then becomes; nothing when there is
    /// nothing to go to. A slot is gone to when it, or the one behind it, holds text.
    std::optional<Restored> Undo();
    std::optional<Restored> Redo();

    int UndoIndex() const { return m_undoIndex; }
    int UndoSelIndex() const { return m_undoSelIndex; }

private:
    static constexpr int Slots = 1001;

    bool HoldsText(int slot) const;
    Restored RestoreCurrent() const;

    std::array<TextRope, Slots> m_undoText;
    std::array<std::optional<int>, Slots> m_undoSel;
    int m_undoIndex = 0;
    int m_undoSelIndex = 0;
};

} // namespace brenix
