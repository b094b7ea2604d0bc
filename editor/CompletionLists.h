#pragma once

#include <QObject>
#include <QStringList>

#include <array>

class QListWidget;

namespace brenix {

class CodeHighlight;

/// The lists that drop down at the caret while the author types: `List1` to `List5`, children of
/// the document window over the source view. They never take the focus; keys come to them through
/// the source view. Each keeps what has been typed since it came up and selects the first row that
/// begins so; a hidden list has nothing typed.
class CompletionLists : public QObject
{
    Q_OBJECT

public:
    enum Kind { Attributes, Tags, EndTag, Macros, Values, KindCount };

    CompletionLists(CodeHighlight &source, QWidget &window);

    void Fill(Kind kind, const QStringList &rows);
    bool IsEmpty(Kind kind) const;
    bool IsShown(Kind kind) const;
    /// Brings a list up at the caret, below it or above it where there is no room, with row
    /// `selected` or none.
    void Show(Kind kind, int selected = -1);
    void Hide(Kind kind);
    void HideAll();
    /// The selected row; empty when there is none.
    QString Selected(Kind kind) const;
    QString Typed(Kind kind) const { return m_typed[kind]; }

    /// A character has been typed.
    void AddTyped(QChar character);
    /// Backspace: takes back a character of the typed word, in the text as well. False when no list
    /// is shown, and when the word ends there, which hides its list: the key is then the box's.
    bool TakeBack();
    /// Moves the selection of the list in front; false when none is shown.
    bool Move(int by);

    /// Height of the bar at the lower edge of the window, which the lists keep clear of.
    void SetBarHeight(int pixels) { m_barHeight = pixels; }

signals:
    /// A row was clicked, and is selected.
    void Clicked();

private:
    QListWidget &List(Kind kind);
    QListWidget *Create(Kind kind, QWidget &window);
    void SetTyped(Kind kind, const QString &typed);
    QString CharacterBeforeCaret() const;
    QSize SizeFor(const QListWidget &list) const;
    void Place(Kind kind);

    CodeHighlight &m_source;
    QWidget &m_window;
    std::array<QListWidget *, KindCount> m_lists{}; // null until needed
    std::array<QStringList, KindCount> m_rows;
    std::array<QString, KindCount> m_typed; // Text1, Text2, Text3 and, of the values, Text4
    int m_barHeight = 0;
};

} // namespace brenix
