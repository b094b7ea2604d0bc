#pragma once

#include <QString>

namespace brenix {

/// The source view of a document (`rtfText`) as commands see it: the operations that view switch,
/// closing, macros and tag commands need, so that these run without a window. Positions count
/// UTF-16 units from 0, and a line end counts as two (CR LF) whatever the file has on disk.
class SourceView
{
public:
    virtual ~SourceView() = default;

    /// The whole text, its line ends as CR LF. Costs a copy of the page: not for a key press.
    virtual QString Text() const = 0;
    /// Replaces the text and colours it. What both texts begin and end with is left alone, line
    /// ends included.
    virtual void SetText(const QString &text) = 0;
    virtual int TextLength() const = 0;
    /// At most `length` units of the text from `start` on, cut off at both ends of the text; costs
    /// what it gives, whatever the size of the page.
    virtual QString TextAt(int start, int length) const = 0;
    /// The number of the caret's line, from 0.
    virtual int LineIndex() const = 0;
    /// Moves the caret to the start of a line; for one that does not exist to position 1.
    virtual void SetLineIndex(int line) = 0;

    virtual int SelStart() const = 0;
    /// Moves the caret and clears the selection; a position outside the text is brought to its
    /// nearest end.
    virtual void SetSelStart(int position) = 0;
    virtual int SelLength() const = 0;
    virtual void SetSelLength(int length) = 0;
    virtual QString SelText() const = 0;
    /// Replaces the selection, or inserts at the caret; the caret then stands behind the new text.
    virtual void SetSelText(const QString &text) = 0;

    /// Loads a file and colours it. A file that cannot be read leaves the view empty; false is
    /// returned then.
    virtual bool LoadFile(const QString &path) = 0;
    /// Saves the page as it is on disk: encoding, byte order mark, each line's own end. False,
    /// after a message, when nothing was written; the old file is then whole.
    virtual bool SaveFile(const QString &path) = 0;

    /// Whether the page can only be read, since its bytes could not be written back from its text.
    virtual bool IsReadOnlyPage() const { return false; }

    virtual void AddUndo() = 0;
    virtual void Undo() = 0;
    virtual void Redo() = 0;

    /// Selects the first occurrence of `text` at or behind `start`, without regard to case; false
    /// and no change of the selection when there is none.
    virtual bool Search(const QString &text, int start) = 0;

    virtual void SetFocus() = 0;
};

} // namespace brenix
