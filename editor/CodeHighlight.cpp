#include "editor/CodeHighlight.h"

#include "editor/Gutter.h"
#include "editor/LargeFile.h"
#include "editor/PageText.h"
#include "editor/PrintedSource.h"
#include "editor/SourceLayout.h"
#include "support/TextSearch.h"

#include <QScrollBar>

using namespace Qt::StringLiterals;

namespace brenix {

namespace {

    constexpr int UndoDelay = 5; // ms
    constexpr int LargestFont = 200; // points

    QColor ColourOf(quint32 value)
    {
        const qint64 translated = TranslateColour(value);
        const quint32 rgb = translated < 0 ? 0xFFFFFFu : quint32(translated);
        return QColor(rgb & 0xFF, rgb >> 8 & 0xFF, rgb >> 16 & 0xFF);
    }

    QTextDocument *NewPage(QPlainTextEdit &view)
    {
        auto *page = new QTextDocument(&view);
        page->setDocumentLayout(new SourceLayout(page));
        view.setDocument(page);
        return page;
    }

} // namespace

CodeHighlight::CodeHighlight(QWidget *parent)
    : QPlainTextEdit(parent)
    , m_mirror(new PageMirror(NewPage(*this)))
    , m_colours(document(), *m_mirror, m_tables)
    , m_gutter(new Gutter(*this))
{
    // The box's own undo would keep every character a second time.
    document()->setUndoRedoEnabled(false);
    setLineWrapMode(QPlainTextEdit::NoWrap);
    setFrameShape(QFrame::NoFrame);
    m_colours.SetColours(m_syntaxColours);
    SetBackColor(m_backColor);
    SetFont(u"Courier New"_s, 10);

    m_timer2.setSingleShot(true);
    m_timer2.setInterval(UndoDelay);
    connect(&m_timer2, &QTimer::timeout, this, &CodeHighlight::AddUndo);
    connect(m_mirror,
            &PageMirror::EditedByView,
            this,
            [this](int from, int removed, int added, bool lines) {
                m_colours.OnEdit(from, removed, added, lines);
                m_editedLine = m_mirror->Rope().LineOf(from + added);
                m_textChanged = true;
            });
    // The document reports repainting as a change as well.
    connect(this, &QPlainTextEdit::textChanged, this, [this] {
        if (std::exchange(m_textChanged, false))
            emit Change();
    });
    connect(this, &QPlainTextEdit::cursorPositionChanged, this, &CodeHighlight::OnSelChange);
    connect(this, &QPlainTextEdit::selectionChanged, this, &CodeHighlight::OnSelChange);
    connect(verticalScrollBar(), &QScrollBar::valueChanged, this, &CodeHighlight::OnScroll);
    connect(this, &QPlainTextEdit::blockCountChanged, this, &CodeHighlight::PlaceGutter);
    connect(
        this, &QPlainTextEdit::updateRequest, m_gutter, [this](const QRect &changed, int scrolled) {
            if (scrolled != 0)
                m_gutter->update();
            else
                m_gutter->update(0, changed.y(), m_gutter->width(), changed.height());
        });
    PlaceGutter();
}

QString CodeHighlight::Text() const
{
    return TextOf(m_mirror->Rope());
}

// Only what differs is replaced: the box keeps its place, and untouched lines keep the line ends of
// their file.
void CodeHighlight::SetText(const QString &text)
{
    if (IsReadOnlyPage())
        return;
    const QString before = Text();
    const QString after = WithCrLf(text);
    const auto length = std::min(before.size(), after.size());
    auto head = std::mismatch(before.begin(), before.begin() + length, after.begin()).first
        - before.begin();
    auto tail
        = std::mismatch(before.rbegin(), before.rbegin() + (length - head), after.rbegin()).first
        - before.rbegin();
    // Neither end may lie between the two units of a line end.
    head -= head > 0 && before[head - 1] == u'\r';
    tail -= tail > 0 && before[before.size() - tail] == u'\n';

    const int from = m_mirror->Rope().FromTextPosition(int(head));
    const int upTo = m_mirror->Rope().FromTextPosition(int(before.size() - tail));
    const QString held = HeldText(QStringView(after).sliced(head, after.size() - head - tail),
                                  m_mirror->UsualEnd());
    const int caret = Caret();
    const bool changed = upTo > from || !held.isEmpty();
    m_textChanged = changed;
    m_repaintEnabled = false;
    if (changed) {
        m_mirror->Replace(from, upTo - from, held);
        m_mirror->BreakLongBlocks(from, int(held.size()));
        if (caret >= from && caret <= upTo)
            Select(from, from);
    }
    m_colours.ColourAll(LargeFile());
    m_repaintEnabled = true;
    viewport()->update();
    OnSelChange();
    TellLimitOnce(TextLength());
}

int CodeHighlight::TextLength() const
{
    return m_mirror->Rope().TextLength();
}

QString CodeHighlight::TextAt(int start, int length) const
{
    const int first = std::clamp(start, 0, TextLength());
    const int past = first + std::clamp(length, 0, TextLength() - first);
    const TextRope &rope = m_mirror->Rope();
    const int from = rope.FromTextPosition(first);
    // One unit more, since `past` may be between the two units of a line end.
    const QString text = TextOf(rope.Mid(from, rope.FromTextPosition(past) + 1 - from));
    return text.mid(first - rope.ToTextPosition(from), past - first);
}

int CodeHighlight::SelStart() const
{
    return m_mirror->Rope().ToTextPosition(textCursor().selectionStart());
}

void CodeHighlight::SetSelStart(int position)
{
    const int place = m_mirror->Rope().FromTextPosition(std::max(0, position));
    Select(place, place);
}

int CodeHighlight::SelLength() const
{
    const QTextCursor cursor = textCursor();
    if (!cursor.hasSelection())
        return 0;
    return m_mirror->Rope().ToTextPosition(cursor.selectionEnd()) - SelStart();
}

void CodeHighlight::SetSelLength(int length)
{
    const int start = textCursor().selectionStart();
    const int textStart = m_mirror->Rope().ToTextPosition(start);
    const int end = textStart + std::clamp(length, 0, TextLength() - textStart);
    Select(start, m_mirror->Rope().FromTextPosition(end));
}

QString CodeHighlight::SelText() const
{
    const QTextCursor cursor = textCursor();
    const int start = cursor.selectionStart();
    return TextOf(m_mirror->Rope().Mid(start, cursor.selectionEnd() - start));
}

void CodeHighlight::SetSelText(const QString &text)
{
    if (IsReadOnlyPage())
        return;
    const QTextCursor cursor = textCursor();
    const int start = cursor.selectionStart();
    const QString held = HeldText(text, m_mirror->UsualEnd());
    ReplaceHeld(start, cursor.selectionEnd() - start, held);
    TellLimitOnce(text.size());
}

void CodeHighlight::AddUndo()
{
    if (!m_undoBusy)
        m_history.AddUndo(m_mirror->Rope(), SelStart());
}

void CodeHighlight::Undo()
{
    Restore(m_history.Undo());
}

void CodeHighlight::Redo()
{
    Restore(m_history.Redo());
}

void CodeHighlight::Restore(const std::optional<SnapshotHistory::Restored> &restored)
{
    if (!restored || IsReadOnlyPage())
        return;
    setUpdatesEnabled(false);
    m_undoBusy = true;
    m_textChanged = true;
    m_repaintEnabled = false;
    const PageMirror::Stretch stretch = m_mirror->Become(restored->text);
    m_colours.ColourInContext(document()->findBlock(stretch.from),
                              document()->findBlock(stretch.from + stretch.length),
                              LargeFile());
    m_undoBusy = false;
    m_repaintEnabled = true;
    if (restored->caret)
        SetSelStart(*restored->caret);
    setUpdatesEnabled(true);
    OnSelChange();
    ensureCursorVisible();
    emit Restored();
}

bool CodeHighlight::Search(const QString &text, int start)
{
    const qsizetype found = FindWithoutCase(Text(), text, std::max(0, start));
    if (found < 0)
        return false;
    SetSelStart(int(found));
    SetSelLength(int(text.size()));
    ensureCursorVisible();
    return true;
}

void CodeHighlight::SetFocus()
{
    setFocus(Qt::OtherFocusReason);
}

void CodeHighlight::SetBackColor(quint32 colour)
{
    m_backColor = colour;
    QPalette colours = palette();
    const QColor background = ColourOf(colour);
    // Text without a colour of its own is black or white, whichever can be read.
    const bool dark = background.lightnessF() < 0.5;
    colours.setColor(QPalette::Base, background);
    colours.setColor(QPalette::Text, dark ? Qt::white : Qt::black);
    setPalette(colours);
}

void CodeHighlight::SetFont(const QString &name, int points)
{
    QFont font(name);
    font.setStyleHint(QFont::Monospace);
    font.setFixedPitch(true);
    font.setPointSize(points > 0 && points <= LargestFont ? points : this->font().pointSize());
    setFont(font);
    setTabStopDistance(8 * QFontMetricsF(font).horizontalAdvance(u' '));
    PlaceGutter();
}

void CodeHighlight::SetMargin(double twips)
{
    m_margin = twips;
    setLineWrapMode(twips == 0 ? QPlainTextEdit::WidgetWidth : QPlainTextEdit::NoWrap);
}

void CodeHighlight::SelPrint(QPagedPaintDevice *printer, Printed what)
{
    const QTextCursor cursor = textCursor();
    const bool isSelection = what == Printed::Selection;
    const int from = isSelection ? cursor.selectionStart() : 0;
    const int to = isSelection ? cursor.selectionEnd() : m_mirror->Rope().Length();
    // Lines that were never shown have no colours yet.
    for (QTextBlock block = document()->findBlock(from); block.isValid() && block.position() <= to;
         block = block.next())
        m_colours.Lay(block);
    PrintedSource(*document(), *m_mirror, from, to)->print(printer);
}

int CodeHighlight::LineIndex() const
{
    return m_mirror->Rope().LineOf(Caret());
}

void CodeHighlight::SetLineIndex(int line)
{
    SetSelStart(std::abs(LineStartPos(line)));
}

QString CodeHighlight::Line(int) const
{
    const TextRope &rope = m_mirror->Rope();
    const int line = LineIndex();
    const int start = rope.LineStart(line);
    return TextOf(rope.Mid(start, rope.LineFinish(line) - start));
}

int CodeHighlight::LineStartPos(int line) const
{
    const int start = m_mirror->Rope().LineStart(line);
    return start < 0 ? -1 : m_mirror->Rope().ToTextPosition(start);
}

int CodeHighlight::LineLength(int position) const
{
    const TextRope &rope = m_mirror->Rope();
    const int line = rope.LineOf(rope.FromTextPosition(position));
    return rope.ToTextPosition(rope.LineFinish(line)) - rope.ToTextPosition(rope.LineStart(line));
}

int CodeHighlight::LineCount() const
{
    return m_mirror->Rope().LineCount();
}

int CodeHighlight::TopLineIndex() const
{
    return m_mirror->Rope().LineOf(firstVisibleBlock().position());
}

void CodeHighlight::Select(int anchor, int position)
{
    QTextCursor cursor = textCursor();
    cursor.setPosition(anchor);
    cursor.setPosition(position, QTextCursor::KeepAnchor);
    setTextCursor(cursor);
}

void CodeHighlight::ReplaceHeld(int from, int length, const QString &held)
{
    const bool repaintEnabled = std::exchange(m_repaintEnabled, false);
    m_textChanged = true;
    // A key tells of the new caret at its end; a command has no such moment of its own.
    if (!std::exchange(m_selChangeDue, true))
        QMetaObject::invokeMethod(this, &CodeHighlight::OnSelChange, Qt::QueuedConnection);
    m_colours.Replace(from, length, held, LargeFile());
    Select(from + int(held.size()), from + int(held.size()));
    m_editedLine = LineIndex();
    AfterEdit(from, int(held.size()));
    m_repaintEnabled = repaintEnabled;
}

void CodeHighlight::AfterEdit(int from, int length)
{
    const PageMirror::Stretch broken = m_mirror->BreakLongBlocks(from, length);
    if (broken.length > 0)
        m_colours.ColourInContext(document()->findBlock(broken.from),
                                  document()->findBlock(broken.from + broken.length),
                                  LargeFile());
}

} // namespace brenix
