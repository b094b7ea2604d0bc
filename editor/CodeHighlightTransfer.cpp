#include "editor/CodeHighlight.h"

#include <QDragEnterEvent>
#include <QMimeData>

using namespace Qt::StringLiterals;

// What comes and goes by the clipboard and by dragging.

namespace brenix {

QMimeData *CodeHighlight::createMimeDataFromSelection() const
{
    auto *data = new QMimeData;
    data->setText(SelText().replace(u"\r\n"_s, u"\n"_s));
    return data;
}

bool CodeHighlight::canInsertFromMimeData(const QMimeData *source) const
{
    return source->hasText() && !isReadOnly();
}

void CodeHighlight::insertFromMimeData(const QMimeData *source)
{
    if (!canInsertFromMimeData(source))
        return;
    AddUndo();
    SetSelText(source->text());
    ensureCursorVisible();
}

void CodeHighlight::dragEnterEvent(QDragEnterEvent *event)
{
    // Files are for the window, not for the text.
    if (event->mimeData()->hasUrls())
        event->ignore();
    else
        QPlainTextEdit::dragEnterEvent(event);
}

// The box would take out and put in within one edit, in which the held text cannot follow it.
void CodeHighlight::dropEvent(QDropEvent *event)
{
    QDragLeaveEvent takesTheDropCaretAway;
    dragLeaveEvent(&takesTheDropCaretAway);
    if (!canInsertFromMimeData(event->mimeData())) {
        event->ignore();
        return;
    }
    event->acceptProposedAction();
    const int place = cursorForPosition(event->position().toPoint()).position();
    const bool ownText = event->source() == this || event->source() == viewport();
    if (ownText && event->dropAction() == Qt::MoveAction) {
        MoveSelText(m_mirror->Rope().ToTextPosition(place));
    } else {
        Select(place, place);
        insertFromMimeData(event->mimeData());
    }
    ensureCursorVisible();
}

void CodeHighlight::MoveSelText(int position)
{
    const QTextCursor selected = textCursor();
    const int start = selected.selectionStart();
    const int length = selected.selectionEnd() - start;
    const int place = m_mirror->Rope().FromTextPosition(position);
    if (IsReadOnlyPage() || (place >= start && place <= start + length))
        return;
    AddUndo();
    const QString held = m_mirror->Rope().Mid(start, length); // with the line ends that it has
    ReplaceHeld(start, length, {});
    ReplaceHeld(place > start ? place - length : place, 0, held);
}

} // namespace brenix
