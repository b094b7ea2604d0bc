#pragma once

#include "editor/LineColours.h"
#include "editor/PageMirror.h"
#include "editor/SnapshotHistory.h"
#include "editor/SyntaxTables.h"
#include "support/SourceView.h"
#include "support/TextCodec.h"

#include <QPlainTextEdit>
#include <QTimer>

namespace brenix {

class Gutter;

/// The text control of the program: source with colours, line numbers, block indentation and an
/// undo history of its own. Positions count UTF-16 units from 0, a line end as two; lines count
/// from 0. See SourceView for the text operations.
///
/// A line is coloured anew when a delimiter is typed on it, when the handler of a key has written
/// into it, and when the caret leaves it; the page as a whole when it is loaded, assigned, or given
/// another language.
class CodeHighlight : public QPlainTextEdit, public SourceView
{
    Q_OBJECT

public:
    explicit CodeHighlight(QWidget *parent = nullptr);

    QString Text() const override;
    void SetText(const QString &text) override;
    int TextLength() const override;
    QString TextAt(int start, int length) const override;
    int LineIndex() const override;
    void SetLineIndex(int line) override;
    int SelStart() const override;
    void SetSelStart(int position) override;
    int SelLength() const override;
    void SetSelLength(int length) override;
    QString SelText() const override;
    void SetSelText(const QString &text) override;
    bool LoadFile(const QString &path) override;
    bool SaveFile(const QString &path) override;
    void AddUndo() override;
    void Undo() override;
    void Redo() override;
    bool Search(const QString &text, int start) override;
    void SetFocus() override;

    /// Why the last LoadFile failed, in the system's words; empty when it did not.
    QString LoadError() const { return m_loadError; }
    /// Whether the page holds a character that its encoding lacks, so that saving would ask.
    bool NeedsOtherEncoding() const;
    /// The page as SaveFile would write it, for copies that are not the author's: what the encoding
    /// lacks becomes a character reference. Nobody is asked.
    QByteArray FileBytes() const;

    /// 0 none, 1 Basic, 2 Java, 3 HTML, 4 Tidy; a change colours the page anew.
    int Language() const { return m_tables.CurrentLanguage(); }
    void SetLanguage(int language);
    /// Colours the whole page anew, after a change of colours or of the size limit.
    void Recolour();
    void AddWord(const QString &word, WordClass wordClass);
    void AddCommentTag(const QString &start, const QString &end);
    /// The text as a coloured stream. A text above the size limit comes back as it is, after a
    /// message that is shown once per user.
    QString HighlightBlock(const QString &text);

    /// Colours in blue-green-red order; they show when text is next coloured.
    const SyntaxColours &Colours() const { return m_syntaxColours; }
    void SetColours(const SyntaxColours &colours);
    quint32 BackColor() const { return m_backColor; }
    void SetBackColor(quint32 colour);
    quint32 ForeColor() const { return m_foreColor; }
    void SetForeColor(quint32 colour) { m_foreColor = colour; }
    void SetFont(const QString &name, int points);

    /// Puts the selected text before another position of the page, the caret behind it. Nothing
    /// happens for a position within the selection.
    void MoveSelText(int position);

    /// A line is coloured at each delimiter key only when this is exactly 1.
    int HighlightCode() const { return m_highlightCode; }
    void SetHighlightCode(int value) { m_highlightCode = value; }
    /// Whether words of an edited Basic line take the table's spelling when the line is coloured.
    void SetGiveCorrectCase(bool on) { m_tables.SetGiveCorrectCase(on); }
    /// Right margin in twips: 0 wraps at the window's edge, anything else does not wrap.
    double Margin() const { return m_margin; }
    void SetMargin(double twips);
    /// What the page is written in, by the name of its codec.
    QString EncodingName() const { return QString::fromLatin1(m_encoding.codec); }
    /// The encoding of files that do not tell theirs.
    void CharCode(const QString &code) { m_charCode = code.toLatin1(); }

    enum class Printed { Page, Selection };
    /// Prints the text, or only what is selected of it, with its colours.
    void SelPrint(QPagedPaintDevice *printer, Printed what);

    /// The text of the caret's line, whatever `line` is.
    QString Line(int line) const;
    /// -1 for a line that does not exist.
    int LineStartPos(int line) const;
    /// Length of the line that holds a position, without its end.
    int LineLength(int position) const;
    int LineCount() const;
    int TopLineIndex() const;
    int TopLineAtMouseDown() const { return m_topLineAtMouseDown; }
    /// Whether the page holds bytes that could not be written back from its text, so that it can
    /// only be read.
    bool IsReadOnlyPage() const override { return !m_readOnlyBytes.isNull(); }

signals:
    void SelChange();
    void Change();
    void Click();
    void DblClick();
    /// The handler may consume the key by setting it to 0. Shift 1, Ctrl 2, Alt 4.
    void KeyDown(int &keyCode, int &shift);
    void KeyPress(int &keyAscii);
    void KeyUp(int keyCode, int shift);
    void MouseDown(int button, int shift, QPointF position);
    void MouseMove(int button, int shift, QPointF position);
    void MouseUp(int button, int shift, QPointF position);
    /// The first visible line has changed.
    void Scrolled();
    /// A snapshot was restored.
    void Restored();
    void ContextMenu(const QPoint &globalPosition);

protected:
    bool event(QEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void keyReleaseEvent(QKeyEvent *event) override;
    void inputMethodEvent(QInputMethodEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void mouseDoubleClickEvent(QMouseEvent *event) override;
    void dragEnterEvent(QDragEnterEvent *event) override;
    void dropEvent(QDropEvent *event) override;
    void contextMenuEvent(QContextMenuEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void showEvent(QShowEvent *event) override;
    QMimeData *createMimeDataFromSelection() const override;
    bool canInsertFromMimeData(const QMimeData *source) const override;
    void insertFromMimeData(const QMimeData *source) override;

private:
    friend class Gutter;

    // Text and selection in positions of the text document.
    int Caret() const { return textCursor().position(); }
    void Select(int anchor, int position);
    void ReplaceHeld(int from, int length, const QString &held);
    void SetHeld(const QString &held);
    void Restore(const std::optional<SnapshotHistory::Restored> &restored);
    void AfterEdit(int from, int length);
    void LayVisibleLines();

    bool IndentSelection();
    bool MoveToLineEdge(const QKeyEvent &event, int keyCode);
    bool HandleDeletion(QKeyEvent *event, int keyCode);
    bool EnterCharacter(QKeyEvent *event, int keyCode, int keyAscii, bool changedByHost);
    void AfterHandledKey();
    void MoveOffSoftBreak();
    void RepaintLine(int line);
    void NormaliseLine(int line);
    void OnSelChange();
    void OnScroll();
    void PlaceGutter();
    void TellLimitOnce(qsizetype length);
    void TellLimit();
    bool IsDelimiterKey(int keyAscii) const;
    QByteArray EncodedFile(const PageEncoding &encoding,
                           Unencodable unencodable,
                           qsizetype *firstUnencodable) const;
    bool AskAboutEncoding(qsizetype firstUnencodable, PageEncoding &encoding) const;

    SyntaxTables m_tables;
    SyntaxColours m_syntaxColours{0xFF0000, 0xFFFF, 0xFF00FF, 0xFFFF00};
    PageMirror *m_mirror;
    LineColours m_colours;
    SnapshotHistory m_history;
    Gutter *m_gutter;
    QTimer m_timer2;
    PageEncoding m_encoding;
    QByteArray m_charCode = "windows-1250";
    QByteArray m_readOnlyBytes;
    QString m_loadError;
    quint32 m_backColor = 0x80000005;
    quint32 m_foreColor = 0x80000008;
    double m_margin = 250000;
    int m_highlightCode = 1;
    int m_lastLine = 0;
    int m_editedLine = -1;
    int m_topLineAtMouseDown = 0;
    int m_gutterTopLine = -4;
    int m_caretBefore = 0;
    int m_anchorBefore = 0;
    bool m_repaintEnabled = true;
    bool m_undoBusy = false;
    bool m_textChanged = false;
    bool m_limitToTell = false;
    bool m_selChangeDue = false; // an edit moved the caret, and nobody was told
};

} // namespace brenix
