#include "editor/CodeHighlight.h"
#include "editor/LineEnds.h"
#include "editor/VirtualKeys.h"

#include <QContextMenuEvent>
#include <QKeyEvent>

using namespace Qt::StringLiterals;

namespace brenix {

namespace {

    struct KeyCode
    {
        Qt::Key key;
        int code;
    };
    constexpr KeyCode KeyCodes[] = {
        {Qt::Key_Backspace, VirtualKey::Back},
        {Qt::Key_Tab, VirtualKey::Tab},
        {Qt::Key_Backtab, VirtualKey::Tab},
        {Qt::Key_Return, VirtualKey::Return},
        {Qt::Key_Enter, VirtualKey::Return},
        {Qt::Key_Escape, VirtualKey::Escape},
        {Qt::Key_PageUp, VirtualKey::PageUp},
        {Qt::Key_PageDown, VirtualKey::PageDown},
        {Qt::Key_End, VirtualKey::End},
        {Qt::Key_Home, VirtualKey::Home},
        {Qt::Key_Left, VirtualKey::Left},
        {Qt::Key_Up, VirtualKey::Up},
        {Qt::Key_Right, VirtualKey::Right},
        {Qt::Key_Down, VirtualKey::Down},
        {Qt::Key_Insert, VirtualKey::Insert},
        {Qt::Key_Delete, VirtualKey::Delete},
    };

    // Letters, digits and the blank have their own character code; that of other signs means
    // another key (46 is Delete, but also the full stop).
    int KeyCodeOf(const QKeyEvent &event)
    {
        const bool keypad = event.modifiers().testFlag(Qt::KeypadModifier);
        if (keypad && event.key() == Qt::Key_Plus)
            return VirtualKey::Add;
        if (keypad && event.key() == Qt::Key_Minus)
            return VirtualKey::Subtract;
        for (const KeyCode &row : KeyCodes) {
            if (row.key == event.key())
                return row.code;
        }
        if (event.key() >= Qt::Key_F1 && event.key() <= Qt::Key_F24)
            return VirtualKey::F1 + event.key() - Qt::Key_F1;
        const QChar sign(event.key() < 0x80 ? event.key() : 0);
        return sign == u' ' || sign.isLetterOrNumber() ? int(event.key()) : 0;
    }

    int ShiftOf(Qt::KeyboardModifiers modifiers)
    {
        return (modifiers.testFlag(Qt::ShiftModifier) ? int(ShiftBit::Shift) : 0)
            | (modifiers.testFlag(Qt::ControlModifier) ? int(ShiftBit::Control) : 0)
            | (modifiers.testFlag(Qt::AltModifier) ? int(ShiftBit::Alt) : 0);
    }

    bool IsShortcut(const QKeyEvent &event)
    {
        const auto modifiers = event.modifiers() & ~Qt::KeypadModifier & ~Qt::ShiftModifier;
        return modifiers == Qt::ControlModifier || modifiers == Qt::AltModifier;
    }

    // The character that a key enters; 0 for a key that enters none, as a sign with Ctrl held.
    int KeyAsciiOf(const QKeyEvent &event, int keyCode)
    {
        switch (keyCode) {
        case VirtualKey::Return:
        case VirtualKey::Back:
        case VirtualKey::Tab:
        case VirtualKey::Escape:
            return keyCode;
        case VirtualKey::Delete:
            return 0;
        default:
            break;
        }
        const QChar sign = event.text().isEmpty() ? QChar() : event.text().front();
        return sign >= u' ' && IsShortcut(event) ? 0 : sign.unicode();
    }

} // namespace

// Keys with Ctrl or Alt belong to the menus first; the box would take copy, paste, undo and others
// for itself.
bool CodeHighlight::event(QEvent *event)
{
    if (event->type() == QEvent::ShortcutOverride) {
        const auto &key = static_cast<QKeyEvent &>(*event);
        event->setAccepted(!IsShortcut(key) && KeyCodeOf(key) < VirtualKey::F1);
        return true;
    }
    return QPlainTextEdit::event(event);
}

void CodeHighlight::keyPressEvent(QKeyEvent *event)
{
    int keyCode = KeyCodeOf(*event);
    int shift = ShiftOf(event->modifiers());
    const int pressed = keyCode; // what the key is, whatever a handler makes of it
    emit KeyDown(keyCode, shift);
    if (keyCode == 0 && pressed != 0) {
        AfterHandledKey();
        return;
    }
    // The box would enter the letter of an access key that no menu has taken.
    if (event->modifiers().testFlag(Qt::AltModifier) && IsShortcut(*event)
        && !event->text().isEmpty()) {
        event->ignore();
        return;
    }
    if (isReadOnly()) {
        QPlainTextEdit::keyPressEvent(event);
        return;
    }
    if (pressed == VirtualKey::Tab && IndentSelection())
        return;
    if (pressed == VirtualKey::Back || pressed == VirtualKey::Delete)
        m_timer2.start();

    const int entered = KeyAsciiOf(*event, pressed);
    int keyAscii = entered;
    if (entered != 0) {
        emit KeyPress(keyAscii);
        if (m_highlightCode == 1 && IsDelimiterKey(keyAscii)) {
            const bool repaintEnabled = std::exchange(m_repaintEnabled, false);
            RepaintLine(LineIndex());
            m_repaintEnabled = repaintEnabled;
        } else {
            m_timer2.start();
        }
        if (keyAscii == 0) {
            AfterHandledKey();
            return;
        }
    }

    if (!MoveToLineEdge(*event, pressed) && !HandleDeletion(event, pressed)
        && !EnterCharacter(event, pressed, keyAscii, keyAscii != entered))
        QPlainTextEdit::keyPressEvent(event);
    AfterEdit(Caret(), 0);
    OnSelChange();
}

// What a handler wrote was coloured by itself: it belongs to its line.
void CodeHighlight::AfterHandledKey()
{
    if (m_highlightCode == 1 && m_editedLine == LineIndex()) {
        const bool repaintEnabled = std::exchange(m_repaintEnabled, false);
        RepaintLine(m_editedLine);
        m_repaintEnabled = repaintEnabled;
    }
    OnSelChange();
}

// True when the key has been entered; a plain character in a box without a selection is left to the
// box itself.
bool CodeHighlight::EnterCharacter(QKeyEvent *event, int keyCode, int keyAscii, bool changedByHost)
{
    const bool enters
        = keyAscii >= u' ' || keyCode == VirtualKey::Return || keyCode == VirtualKey::Tab;
    if (!enters || IsShortcut(*event))
        return false;
    if (keyCode == VirtualKey::Return)
        SetSelText(u"\r\n"_s);
    else if (changedByHost)
        SetSelText(QString(QChar(char16_t(keyAscii))));
    else if (keyCode == VirtualKey::Tab)
        SetSelText(u"\t"_s);
    else if (textCursor().hasSelection())
        SetSelText(event->text());
    else
        return false;
    ensureCursorVisible();
    return true;
}

void CodeHighlight::keyReleaseEvent(QKeyEvent *event)
{
    QPlainTextEdit::keyReleaseEvent(event);
    emit KeyUp(KeyCodeOf(*event), ShiftOf(event->modifiers()));
}

bool CodeHighlight::IsDelimiterKey(int keyAscii) const
{
    // The delimiter for a line end answers to its first unit, the Enter key; a lone carriage return
    // in a text is none.
    const QString key
        = keyAscii == VirtualKey::Return ? u"\r\n"_s : QString(QChar(char16_t(keyAscii)));
    return SyntaxTables::FindDelimiter(key, 0) >= 0;
}

// Tab before each selected line; false when the selection lies within one line.
bool CodeHighlight::IndentSelection()
{
    const int start = textCursor().selectionStart();
    const QString selected = m_mirror->Rope().Mid(start, textCursor().selectionEnd() - start);
    QString indented = u"\t"_s;
    for (const QChar unit : selected) {
        indented += unit;
        if (IsHardEnd(unit.unicode()))
            indented += u'\t';
    }
    if (indented.size() == selected.size() + 1)
        return false;
    ReplaceHeld(start, int(selected.size()), indented);
    Select(start, Caret()); // behind soft breaks too that the tabs have made due
    return true;
}

// The box would stop at the pieces that a long line is held in.
bool CodeHighlight::MoveToLineEdge(const QKeyEvent &event, int keyCode)
{
    const QTextCursor cursor = textCursor();
    const bool pieces = m_mirror->EndsInSoftBreak(cursor.block())
        || (cursor.block().previous().isValid()
            && m_mirror->EndsInSoftBreak(cursor.block().previous()));
    if ((keyCode != VirtualKey::Home && keyCode != VirtualKey::End) || !pieces
        || event.modifiers().testFlag(Qt::ControlModifier))
        return false;
    const TextRope &rope = m_mirror->Rope();
    const int edge
        = keyCode == VirtualKey::End ? rope.LineFinish(LineIndex()) : rope.LineStart(LineIndex());
    Select(event.modifiers().testFlag(Qt::ShiftModifier) ? cursor.anchor() : edge, edge);
    return true;
}

// Deleting goes through the page's own replacement, so that lines that are joined keep their
// colours.
bool CodeHighlight::HandleDeletion(QKeyEvent *event, int keyCode)
{
    const bool back = keyCode == VirtualKey::Back;
    if ((!back && keyCode != VirtualKey::Delete) || event->modifiers().testFlag(Qt::AltModifier))
        return false;
    if (event->matches(QKeySequence::Cut)) // Shift and Delete
        copy();
    QTextCursor cursor = textCursor();
    if (!cursor.hasSelection()) {
        const bool word = event->modifiers().testFlag(Qt::ControlModifier);
        const auto move = back ? (word ? QTextCursor::PreviousWord : QTextCursor::PreviousCharacter)
                               : (word ? QTextCursor::NextWord : QTextCursor::NextCharacter);
        // A soft break is no character: the one beyond it goes.
        if (back && cursor.atBlockStart() && m_mirror->EndsInSoftBreak(cursor.block().previous()))
            cursor.movePosition(QTextCursor::PreviousCharacter, QTextCursor::KeepAnchor);
        cursor.movePosition(move, QTextCursor::KeepAnchor);
    }
    if (cursor.hasSelection()) {
        setTextCursor(cursor);
        SetSelText({});
    }
    ensureCursorVisible();
    return true;
}

void CodeHighlight::inputMethodEvent(QInputMethodEvent *event)
{
    if (!event->commitString().isEmpty() && !isReadOnly()) {
        if (textCursor().hasSelection())
            SetSelText({});
        m_timer2.start();
    }
    QPlainTextEdit::inputMethodEvent(event);
    // The box has put the look of the composed text in the place of the line's colours.
    if (event->preeditString().isEmpty())
        m_colours.LayAgain(textCursor().block());
    if (!event->commitString().isEmpty())
        AfterEdit(Caret(), 0);
}

void CodeHighlight::mousePressEvent(QMouseEvent *event)
{
    m_topLineAtMouseDown = TopLineIndex();
    QPlainTextEdit::mousePressEvent(event);
    emit MouseDown(int(event->button()), ShiftOf(event->modifiers()), event->position());
}

void CodeHighlight::mouseMoveEvent(QMouseEvent *event)
{
    QPlainTextEdit::mouseMoveEvent(event);
    emit MouseMove(int(event->buttons()), ShiftOf(event->modifiers()), event->position());
}

void CodeHighlight::mouseReleaseEvent(QMouseEvent *event)
{
    QPlainTextEdit::mouseReleaseEvent(event);
    emit MouseUp(int(event->button()), ShiftOf(event->modifiers()), event->position());
    if (event->button() == Qt::LeftButton)
        emit Click();
}

void CodeHighlight::mouseDoubleClickEvent(QMouseEvent *event)
{
    QPlainTextEdit::mouseDoubleClickEvent(event);
    emit DblClick();
}

void CodeHighlight::contextMenuEvent(QContextMenuEvent *event)
{
    emit ContextMenu(event->globalPos());
}

} // namespace brenix
