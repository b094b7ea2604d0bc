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
    const QTextCursor place = cursorForPosition(event->position().toPoint()); // moves with edits
    const QTextCursor selected = textCursor();
    const bool ownText = event->source() == this || event->source() == viewport();
    const bool moves = ownText && event->dropAction() == Qt::MoveAction;
    if (moves && place.position() >= selected.selectionStart()
        && place.position() <= selected.selectionEnd())
        return;
    AddUndo();
    if (moves)
        SetSelText({});
    Select(place.position(), place.position());
    SetSelText(event->mimeData()->text());
    ensureCursorVisible();
}

} // namespace brenix
