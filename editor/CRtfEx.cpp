#include "editor/CRtfEx.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QTextBlock>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace brenix {

namespace {

    constexpr int MostBlanks = 1000; // for one Tab, whatever its width is set to

    // The two kinds of boxes can do the same, but share no class that says so.
    template <typename Action> auto On(QAbstractScrollArea &box, Action action)
    {
        if (auto *plain = qobject_cast<QPlainTextEdit *>(&box))
            return action(*plain);
        return action(static_cast<QTextEdit &>(box));
    }

    int StartOf(const QTextBlock &block)
    {
        return block.position() + block.blockNumber();
    }

    bool CutsLine(const QKeyEvent &event)
    {
        return event.key() == Qt::Key_Y && event.modifiers() == Qt::ControlModifier;
    }

} // namespace

void CRtfEx::Take(QAbstractScrollArea *box)
{
    if (m_box)
        m_box->removeEventFilter(this);
    m_box = box;
    if (box)
        box->installEventFilter(this);
}

void CRtfEx::SetTabChar(const QString &text)
{
    if (!text.isEmpty())
        m_tabChar = text.left(1);
}

int CRtfEx::LineCount() const
{
    return m_box ? Document()->blockCount() : 0;
}

int CRtfEx::TopLine() const
{
    const auto atTop = [](const auto &box) { return box.cursorForPosition(QPoint(0, 0)); };
    return m_box ? On(*m_box, atTop).blockNumber() : 0;
}

int CRtfEx::GetLineFromChar(int position) const
{
    int first = 0;
    for (int count = LineCount(); count > 1;) {
        const int half = count / 2;
        const bool behind = StartOf(BlockOf(first + half)) <= position;
        first += behind ? half : 0;
        count = behind ? count - half : half;
    }
    return first;
}

int CRtfEx::GetCharFromLine(int line) const
{
    const QTextBlock block = BlockOf(line);
    return block.isValid() ? StartOf(block) : 0;
}

int CRtfEx::LineLen(int position) const
{
    return std::max(0, BlockOf(GetLineFromChar(position)).length() - 1);
}

QString CRtfEx::GetLine(int line) const
{
    return BlockOf(line).text();
}

int CRtfEx::ColPosition() const
{
    const int start = SelStart();
    return start - GetCharFromLine(GetLineFromChar(start));
}

void CRtfEx::DelLine(int line)
{
    const QTextBlock block = BlockOf(line);
    if (!block.isValid())
        return;
    const int start = SelStart();
    QTextCursor cursor(block);
    cursor.movePosition(block.next().isValid() ? QTextCursor::NextBlock : QTextCursor::EndOfBlock,
                        QTextCursor::KeepAnchor);
    cursor.removeSelectedText();
    cursor.setPosition(DocumentPosition(start));
    SetCursor(cursor);
}

void CRtfEx::SelectLine(int line)
{
    const QTextBlock block = BlockOf(line);
    if (!block.isValid())
        return;
    QTextCursor cursor(block);
    cursor.movePosition(QTextCursor::EndOfBlock, QTextCursor::KeepAnchor);
    SetCursor(cursor);
}

bool CRtfEx::CanUndo() const
{
    return m_box && Document()->isUndoAvailable();
}

void CRtfEx::Undo()
{
    if (m_box)
        On(*m_box, [](auto &box) { box.undo(); });
}

bool CRtfEx::IsDirty() const
{
    return m_box && Document()->isModified();
}

void CRtfEx::SetIsDirty(bool dirty)
{
    if (m_box)
        Document()->setModified(dirty);
}

bool CRtfEx::eventFilter(QObject *watched, QEvent *event)
{
    const bool asked = event->type() == QEvent::ShortcutOverride;
    const auto isReadOnly = [](const auto &box) { return box.isReadOnly(); };
    if ((!asked && event->type() != QEvent::KeyPress) || watched != m_box || On(*m_box, isReadOnly))
        return QObject::eventFilter(watched, event);
    const auto &key = static_cast<const QKeyEvent &>(*event);
    const bool plain = (key.modifiers() & ~Qt::KeypadModifier) == Qt::NoModifier;
    const bool enter = key.key() == Qt::Key_Return || key.key() == Qt::Key_Enter;
    if (CutsLine(key)) {
        event->accept(); // no menu gets it
        if (!asked)
            CutLine();
        return true;
    }
    if (asked || !plain)
        return QObject::eventFilter(watched, event);
    if (enter && m_keepIndent)
        EnterWithIndent();
    else if (key.key() == Qt::Key_Tab && m_tabChar == u" ")
        EnterBlanks();
    else
        return QObject::eventFilter(watched, event);
    return true;
}

void CRtfEx::CutLine()
{
    const int line = GetLineFromChar(SelStart());
    QGuiApplication::clipboard()->setText(GetLine(line) + u'\n');
    DelLine(line);
}

void CRtfEx::EnterWithIndent()
{
    const QString line = GetLine(GetLineFromChar(SelStart()));
    const auto isIndent = [this](QChar unit) { return m_tabChar == unit; };
    const auto end = std::find_if_not(line.begin(), line.end(), isIndent);
    SetSelText(u'\n' + line.left(end - line.begin()));
}

void CRtfEx::EnterBlanks()
{
    if (m_tabLen <= 0)
        return;
    const int behind = ColPosition() % m_tabLen;
    SetSelText(QString(std::min(behind == 0 ? m_tabLen : behind, MostBlanks), u' '));
}

QTextDocument *CRtfEx::Document() const
{
    return On(*m_box, [](const auto &box) { return box.document(); });
}

QTextCursor CRtfEx::Cursor() const
{
    return On(*m_box, [](const auto &box) { return box.textCursor(); });
}

void CRtfEx::SetCursor(const QTextCursor &cursor)
{
    On(*m_box, [&cursor](auto &box) { box.setTextCursor(cursor); });
}

QTextBlock CRtfEx::BlockOf(int line) const
{
    return m_box ? Document()->findBlockByNumber(line) : QTextBlock();
}

int CRtfEx::SelStart() const
{
    if (!m_box)
        return 0;
    const int start = Cursor().selectionStart();
    return start + Document()->findBlock(start).blockNumber();
}

// Between the two units of a line end is before it; outside the text is its nearest end.
int CRtfEx::DocumentPosition(int position) const
{
    const QTextBlock block = BlockOf(GetLineFromChar(position));
    return block.position() + std::clamp(position - StartOf(block), 0, block.length() - 1);
}

void CRtfEx::SetSelText(const QString &text)
{
    Cursor().insertText(text);
    On(*m_box, [](auto &box) { box.ensureCursorVisible(); });
}

} // namespace brenix
