#pragma once

#include "editor/CompletionLists.h"

#include <QTimer>

#include <functional>

namespace brenix {

class CodeHighlight;
class DocumentModel;

/// What a document does with the keys of its source view: end tags, indentation, shortcuts, and the
/// completion lists. It hears of each key before the view and takes those that it serves. All
/// settings are read at the key, so that a change in Options takes effect at once.
class SourceTyping : public QObject
{
    Q_OBJECT

public:
    /// `window` is the window of the document, which the lists stand in.
    SourceTyping(CodeHighlight &source, DocumentModel &page, QWidget &window);

    /// Hides the lists, and those that wait to come up stay away.
    void RemoveLists();
    /// Brings up `List4` with the names of the macros.
    void ShowMacros(const QStringList &names);
    CompletionLists &Lists() { return m_lists; }

    /// Title of the dialect whose tags are offered.
    std::function<QString()> Dialect;
    /// Inserts a colour of the author's choice at the caret, which stays before it, or nothing.
    std::function<void()> InsertColour;
    /// A macro was chosen in `List4`.
    std::function<void(const QString &name)> RunMacro;

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void OnKeyDown(int &keyCode, int &shift);
    void OnKeyPress(int &keyAscii);
    void OnChange();
    void OnListClick();
    void OnTimer1();
    void OnTimer4();
    void OnValues();

    bool TakesKey(int keyCode, int shift);
    bool Accept(int keyCode);
    void AcceptRow(CompletionLists::Kind kind, const QString &typed, const QString &row);
    void AcceptValueRow(const QString &typed, const QString &row);
    void InsertFile();
    void ArmTimers(QChar character);
    void ArmValues();
    void OfferEndTag(bool upperName);

    CodeHighlight &m_source;
    DocumentModel &m_page;
    CompletionLists m_lists;
    QTimer m_timer1; // tags
    QTimer m_timer4; // attributes
    QTimer m_values;
    QTimer m_snapshot;
    QString m_dialect; // whose tags List2 holds
    bool m_atKey = false; // a key is being handled
    bool m_edited = false; // since the last key went down
    bool m_keyGoesOn = false; // and the view may change the text for it
};

} // namespace brenix
