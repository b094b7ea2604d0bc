#include "editor/CodeHighlight.h"
#include "editor/Gutter.h"
#include "editor/LargeFile.h"
#include "support/MessageBoxes.h"
#include "support/SettingsStore.h"

#include <QPaintEvent>
#include <QScrollBar>

using namespace Qt::StringLiterals;

namespace brenix {

void CodeHighlight::SetLanguage(int language)
{
    if (m_tables.SetLanguage(language))
        Recolour();
}

void CodeHighlight::Recolour()
{
    m_colours.ColourAll(LargeFile());
    viewport()->update();
    TellLimitOnce(TextLength());
}

void CodeHighlight::AddWord(const QString &word, WordClass wordClass)
{
    m_tables.AddWord(word, wordClass);
}

void CodeHighlight::AddCommentTag(const QString &start, const QString &end)
{
    m_tables.AddCommentTag(start, end);
}

QString CodeHighlight::HighlightBlock(const QString &text)
{
    TellLimitOnce(text.size());
    return text.size() <= LargeFile() ? brenix::HighlightBlock(text, m_tables, m_syntaxColours)
                                      : text;
}

// Shown when a page is too long to be coloured, the first time that this happens to the user. To be
// called when all is done: the page may be painted and used while the message stands.
void CodeHighlight::TellLimitOnce(qsizetype length)
{
    if (length <= LargeFile() || Language() == SyntaxTables::None
        || GetSetting(u"Settings", u"Bigfile", u"True"_s) != u"True")
        return;
    SaveSetting(u"Settings", u"Bigfile", u"False"_s);
    // A page that is opened at the start of the program waits for the window that it stands in.
    m_limitToTell = window() != this && !window()->isVisible();
    if (!m_limitToTell)
        TellLimit();
}

void CodeHighlight::TellLimit()
{
    MsgBox(u"This is very large! The syntax highlighter is to slow to color this document, so you "
           "have to live without colors. But.. the syntaxhighlighter will still color your code as "
           "you type. You can change how large a file shall be before Brenix turns off the "
           "syntaxhighlighter using the LargeFile key under setting in the Brenix folder (%1) in "
           "the system registry."_s.arg(SettingsFile()),
           Buttons::Ok,
           Icon::Information);
}

void CodeHighlight::showEvent(QShowEvent *event)
{
    QPlainTextEdit::showEvent(event);
    if (std::exchange(m_limitToTell, false))
        QTimer::singleShot(0, this, &CodeHighlight::TellLimit);
}

void CodeHighlight::SetColours(const SyntaxColours &colours)
{
    m_syntaxColours = colours;
    m_colours.SetColours(colours);
}

// A caret or line number left over from before an edit must not stop the repaint of a shorter page.
void CodeHighlight::RepaintLine(int line)
{
    const TextRope &rope = m_mirror->Rope();
    const int start = rope.LineStart(line);
    if (start < 0)
        return;
    NormaliseLine(line);
    if (m_colours.ColourLineAlone(document()->findBlock(start),
                                  document()->findBlock(rope.LineFinish(line)),
                                  LargeFile()))
        viewport()->update();
    TellLimitOnce(rope.LineFinish(line) - start);
}

void CodeHighlight::NormaliseLine(int line)
{
    if (line != m_editedLine || !m_tables.NormalisesCase())
        return;
    const TextRope rope = m_mirror->Rope();
    const int start = rope.LineStart(line);
    const int length = rope.LineFinish(line) - start;
    if (length > LargeFile())
        return;
    const QString before = rope.Mid(start, length);
    const QString after = WithNormalisedCase(before, m_tables);
    if (after == before)
        return;
    // Unit by unit, so that the caret stays between the same two characters.
    m_textChanged = true;
    const QTextCursor caret = textCursor();
    const int anchor = caret.anchor();
    const int position = caret.position();
    for (qsizetype i = 0; i < after.size(); ++i) {
        if (after[i] != before[i])
            m_mirror->Replace(start + int(i), 1, after.sliced(i, 1));
    }
    Select(anchor, position);
}

void CodeHighlight::OnSelChange()
{
    const QTextCursor cursor = textCursor();
    const bool moved = cursor.position() != m_caretBefore || cursor.anchor() != m_anchorBefore;
    if (!m_repaintEnabled || !(moved || m_selChangeDue))
        return;
    m_selChangeDue = false;
    MoveOffSoftBreak();
    m_caretBefore = Caret();
    m_anchorBefore = textCursor().anchor();
    if (!textCursor().hasSelection()) {
        m_repaintEnabled = false;
        const int line = LineIndex();
        if (line != m_lastLine) {
            RepaintLine(m_lastLine);
            if (m_editedLine == m_lastLine)
                m_editedLine = -1;
        }
        m_lastLine = line;
        m_repaintEnabled = true;
    }
    emit SelChange();
}

// Before and behind a soft break is one place of the text: the caret rests behind it.
void CodeHighlight::MoveOffSoftBreak()
{
    QTextCursor cursor = textCursor();
    if (!cursor.atBlockEnd() || !m_mirror->EndsInSoftBreak(cursor.block()))
        return;
    const bool cameFromBehind = m_caretBefore == cursor.position() + 1;
    cursor.movePosition(cameFromBehind ? QTextCursor::PreviousCharacter
                                       : QTextCursor::NextCharacter,
                        cursor.hasSelection() ? QTextCursor::KeepAnchor : QTextCursor::MoveAnchor);
    const bool repaintEnabled = std::exchange(m_repaintEnabled, false);
    setTextCursor(cursor);
    m_repaintEnabled = repaintEnabled;
}

void CodeHighlight::OnScroll()
{
    const int top = TopLineIndex();
    if (top == m_gutterTopLine)
        return;
    m_gutterTopLine = top;
    m_gutter->update();
    emit Scrolled();
}

void CodeHighlight::PlaceGutter()
{
    const int width = m_gutter->WidthFor(LineCount());
    const QRect inner = contentsRect();
    // Lines that have no width left are not wrapped. Where the scroll bar takes it, the page would
    // need the bar, fit beside it, and so on without end.
    const int barWidth = verticalScrollBar()->sizeHint().width();
    const bool barFits = inner.width() - width - barWidth >= fontMetrics().averageCharWidth();
    const auto policy = barFits ? Qt::ScrollBarAsNeeded : Qt::ScrollBarAlwaysOff;
    // Each call lays the view out anew, which comes back here.
    if (verticalScrollBarPolicy() != policy)
        setVerticalScrollBarPolicy(policy);
    if (viewportMargins().left() != width)
        setViewportMargins(width, 0, 0, 0);
    m_gutter->setGeometry(inner.left(), inner.top(), width, inner.height());
}

void CodeHighlight::resizeEvent(QResizeEvent *event)
{
    QPlainTextEdit::resizeEvent(event);
    PlaceGutter();
}

void CodeHighlight::paintEvent(QPaintEvent *event)
{
    LayVisibleLines();
    QPlainTextEdit::paintEvent(event);
}

void CodeHighlight::LayVisibleLines()
{
    const qreal bottom = viewport()->height();
    qreal top = contentOffset().y();
    for (QTextBlock block = firstVisibleBlock(); block.isValid() && top <= bottom;
         block = block.next()) {
        m_colours.Lay(block);
        top += blockBoundingRect(block).height();
    }
}

} // namespace brenix
