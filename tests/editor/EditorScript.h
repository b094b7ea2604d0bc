#pragma once

#include "editor/CodeHighlight.h"
#include "support/TextCodec.h"

#include <QApplication>
#include <QKeyEvent>
#include <QRegularExpression>
#include <QTextBlock>

#include <map>

/// Keys as text: characters are typed, and these signs stand for what they show: \u23CE Enter,
/// \u232B Backspace, \u2326 Delete, \u21E5 Tab, \u2190 \u2191 \u2192 \u2193 arrows, \u21E4 Home,
/// \u21E6 End; \u21E7 and \u2303 hold Shift and Ctrl for the next key.
inline void Type(brenix::CodeHighlight &editor, const QString &keys)
{
    static const std::map<char16_t, std::pair<int, QString>> signs = {
        {u'\u23CE', {Qt::Key_Return, QStringLiteral("\r")}},
        {u'\u232B', {Qt::Key_Backspace, QStringLiteral("\b")}},
        {u'\u2326', {Qt::Key_Delete, QStringLiteral("\x7F")}},
        {u'\u21E5', {Qt::Key_Tab, QStringLiteral("\t")}},
        {u'\u2190', {Qt::Key_Left, {}}},
        {u'\u2191', {Qt::Key_Up, {}}},
        {u'\u2192', {Qt::Key_Right, {}}},
        {u'\u2193', {Qt::Key_Down, {}}},
        {u'\u21E4', {Qt::Key_Home, {}}},
        {u'\u21E6', {Qt::Key_End, {}}},
    };
    Qt::KeyboardModifiers modifiers;
    for (const QChar unit : keys) {
        if (unit == QChar(u'\u21E7') || unit == QChar(u'\u2303')) {
            modifiers |= unit == QChar(u'\u21E7') ? Qt::ShiftModifier : Qt::ControlModifier;
            continue;
        }
        const auto sign = signs.find(unit.unicode());
        const int key = sign == signs.end() ? unit.toUpper().unicode() : sign->second.first;
        const QString text = sign == signs.end() ? QString(unit) : sign->second.second;
        QKeyEvent press(QEvent::KeyPress, key, modifiers, text);
        QApplication::sendEvent(&editor, &press);
        QKeyEvent release(QEvent::KeyRelease, key, modifiers, text);
        QApplication::sendEvent(&editor, &release);
        modifiers = {};
    }
}

/// Text with LF at line ends, the caret as "|" or the selection in "[" and "]".
inline void SetMarked(brenix::CodeHighlight &editor, QString marked)
{
    marked.replace(u'\n', QStringLiteral("\r\n"));
    const int start = int(marked.indexOf(QRegularExpression(QStringLiteral("[|[]"))));
    const int end = int(marked.indexOf(u']'));
    editor.SetText(marked.remove(QRegularExpression(QStringLiteral("[|[\\]]"))));
    editor.SetSelStart(start);
    if (end >= 0)
        editor.SetSelLength(end - 1 - start);
    editor.SetText(editor.Text()); // coloured as a whole, with the caret in its place
}

inline QString Marked(const brenix::CodeHighlight &editor)
{
    QString text = editor.Text();
    if (editor.SelLength() == 0) {
        text.insert(editor.SelStart(), u'|');
    } else {
        text.insert(editor.SelStart() + editor.SelLength(), u']');
        text.insert(editor.SelStart(), u'[');
    }
    return text.replace(QStringLiteral("\r\n"), QStringLiteral("\n"));
}

/// The text as the document shows it; line ends and soft breaks both as LF.
inline QString Shown(const brenix::CodeHighlight &editor)
{
    QStringList blocks;
    for (QTextBlock block = editor.document()->begin(); block.isValid(); block = block.next())
        blocks.append(block.text());
    return brenix::WithoutStandIns(blocks.join(u'\n'));
}

/// What the text and the document say of each other.
inline void ExpectTextIsShown(const brenix::CodeHighlight &editor)
{
    QString shown = Shown(editor);
    QString text = editor.Text();
    if (editor.LineCount() < editor.document()->blockCount()) {
        shown.remove(u'\n');
        text.remove(QStringLiteral("\r\n"));
    } else {
        text.replace(QStringLiteral("\r\n"), QStringLiteral("\n"));
    }
    ASSERT_EQ(shown, text);
    ASSERT_EQ(editor.TextLength(), editor.Text().size());
}
