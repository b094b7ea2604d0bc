#pragma once

#include <QObject>
#include <QPlainTextEdit>
#include <QPointer>
#include <QTextEdit>

namespace brenix {

/// Line by line operations, and the keys Tab, Enter and Ctrl+Y of an editor, for any text box of
/// several lines, plain or rich. Positions count UTF-16 units from 0, a line end as two; lines
/// count from 0, and a line is a block of the box. Without a box, or for a line that the box lacks,
/// nothing happens and answers are 0 or empty.
///
/// Ctrl+Y cuts the line of the caret to the clipboard. Enter takes over the indentation while
/// KeepIndent is set. Tab inserts blanks while TabChar is a single blank: as many as the caret's
/// column lies behind its tab stop, a whole TabLen on a stop. Keys of a box that can only be read
/// are left alone.
class CRtfEx : public QObject
{
public:
    CRtfEx() = default;
    explicit CRtfEx(QPlainTextEdit *box) { SetTextbox(box); }
    explicit CRtfEx(QTextEdit *box) { SetTextbox(box); }

    QAbstractScrollArea *Textbox() const { return m_box; }
    void SetTextbox(QPlainTextEdit *box) { Take(box); }
    void SetTextbox(QTextEdit *box) { Take(box); }
    void SetTextbox(std::nullptr_t) { Take(nullptr); }

    QString TabChar() const { return m_tabChar; }
    /// Keeps the first character alone; an empty text changes nothing. What stands here before the
    /// first call, four blanks, is longer than anything that can be set, and fits no key.
    void SetTabChar(const QString &text);
    int TabLen() const { return m_tabLen; }
    /// With 0 or less, Tab inserts nothing where blanks are due.
    void SetTabLen(int length) { m_tabLen = length; }
    bool KeepIndent() const { return m_keepIndent; }
    void SetKeepIndent(bool on) { m_keepIndent = on; }

    int LineCount() const;
    int TopLine() const;
    int GetLineFromChar(int position) const;
    /// The line's start.
    int GetCharFromLine(int line) const;
    /// Length of the line that holds a position, without its end.
    int LineLen(int position) const;
    /// The line's text without its end.
    QString GetLine(int line) const;
    /// Column of the selection's start, from 0.
    int ColPosition() const;

    /// Removes a line and its end in one undo step. The last line leaves the end of the line before
    /// it. The caret keeps its position.
    void DelLine(int line);
    /// Selects a line without its end.
    void SelectLine(int line);

    bool CanUndo() const;
    void Undo();
    bool IsDirty() const;
    void SetIsDirty(bool dirty);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void Take(QAbstractScrollArea *box);
    QTextDocument *Document() const;
    QTextCursor Cursor() const;
    void SetCursor(const QTextCursor &cursor);
    QTextBlock BlockOf(int line) const;
    int SelStart() const;
    int DocumentPosition(int position) const;
    void SetSelText(const QString &text);
    void CutLine();
    void EnterWithIndent();
    void EnterBlanks();

    QPointer<QAbstractScrollArea> m_box; // a QPlainTextEdit or a QTextEdit
    QString m_tabChar = QStringLiteral("    ");
    int m_tabLen = 4;
    bool m_keepIndent = false;
};

} // namespace brenix
