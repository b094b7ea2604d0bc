#pragma once

#include <QString>
#include <QStringView>

#include <functional>
#include <memory>

namespace brenix {

/// A page's text as an immutable balanced tree of pieces. A copy costs one pointer and shares
/// everything with the original, an edit costs O(log n) time and memory: a thousand undo snapshots
/// of a megabyte page are a few megabytes. Positions count units from 0; line ends are the units of
/// LineEnds.h. Positions outside the text are brought to its ends.
///
/// Beside its own positions a rope knows the positions of `Text`, in which a line end counts as two
/// and a soft break as none.
class TextRope
{
public:
    TextRope() = default;
    explicit TextRope(QStringView text);

    int Length() const;
    bool IsEmpty() const { return Length() == 0; }
    char16_t At(int position) const; ///< U+0000 outside the text
    QString Mid(int position, int length) const;

    TextRope Replaced(int position, int length, QStringView replacement) const;

    /// Calls `visit` with the pieces of the text, in order.
    void ForEachPiece(const std::function<void(QStringView)> &visit) const;

    /// Length of the text with two units for each line end and none for a soft break.
    int TextLength() const;
    int ToTextPosition(int position) const;
    /// The last position that stands for `textPosition`: behind a soft break, not before it. A text
    /// position between the two units of a line end gives the place before it.
    int FromTextPosition(int textPosition) const;

    /// Lines count from 0; there is always one.
    int LineCount() const;
    int LineOf(int position) const;
    /// -1 for a line that does not exist.
    int LineStart(int line) const;
    /// Position of the line's end, soft breaks passed over; the text's length for the last line.
    int LineFinish(int line) const;

    /// How many units two texts have in common at their start or at their end. Shared pieces cost
    /// nothing.
    static int CommonPrefix(const TextRope &a, const TextRope &b);
    static int CommonSuffix(const TextRope &a, const TextRope &b);
    friend bool operator==(const TextRope &a, const TextRope &b);

    struct Node;
    using NodePointer = std::shared_ptr<const Node>;

private:
    explicit TextRope(NodePointer root)
        : m_root(std::move(root))
    {
    }
    NodePointer m_root;
};

} // namespace brenix
