#include "editor/CodeHighlight.h"
#include "editor/VirtualKeys.h"
#include "tests/editor/EditorScript.h"
#include "tests/support/WaitFor.h"

#include <QClipboard>
#include <QRandomGenerator>

using namespace brenix;
using namespace Qt::StringLiterals;

namespace {

// Until a snapshot that the last key asked for has been taken: a timer of 5 ms is due before this
// one.
void LetSnapshotBeTaken()
{
    bool due = false;
    QTimer::singleShot(20, Qt::PreciseTimer, qApp, [&due] { due = true; });
    ASSERT_TRUE(WaitFor([&due] { return due; }));
}

// The texts that Undo leads back through.
QString UndoneTexts(CodeHighlight &editor)
{
    QStringList texts;
    for (QString before = editor.Text();; before = editor.Text()) {
        editor.Undo();
        if (editor.Text() == before)
            return texts.join(u'|');
        texts.append(editor.Text());
    }
}

} // namespace

TEST(CodeHighlightKeys, TextBeforeKeysTextAfter)
{
    const struct
    {
        const char *name;
        QString before;
        QString keys;
        QString after;
    } rows[] = {
        {"typing", u"a|c"_s, u"b<"_s, u"ab<|c"_s},
        {"signs",
         u"|a"_s,
         u"!\"#$%&'()*+,-./:;<=>?@[\\]^_`{}~"_s,
         u"!\"#$%&'()*+,-./:;<=>?@[\\]^_`{}~|a"_s},
        {"typing over a selection", u"a[b\nc]d"_s, u"x"_s, u"ax|d"_s},
        {"Enter", u"a|b"_s, u"\u23CEc"_s, u"a\nc|b"_s},
        {"Shift and Enter", u"a|b"_s, u"\u21E7\u23CE"_s, u"a\n|b"_s},
        {"Enter over a selection", u"a[b]c"_s, u"\u23CE"_s, u"a\n|c"_s},
        {"Backspace", u"ab|c"_s, u"\u232B"_s, u"a|c"_s},
        {"Backspace joins lines", u"a\n|b\nc"_s, u"\u232B"_s, u"a|b\nc"_s},
        {"Backspace at the start", u"|a"_s, u"\u232B"_s, u"|a"_s},
        {"Backspace and a selection", u"a[b\n]c"_s, u"\u232B"_s, u"a|c"_s},
        {"Backspace and a pair of surrogates", u"a\U0001F600|b"_s, u"\u232B"_s, u"a|b"_s},
        {"Backspace and Ctrl", u"one two|"_s, u"\u2303\u232B"_s, u"one |"_s},
        {"Delete", u"a|bc"_s, u"\u2326"_s, u"a|c"_s},
        {"Delete joins lines", u"a|\nb"_s, u"\u2326"_s, u"a|b"_s},
        {"Delete at the end", u"a|"_s, u"\u2326"_s, u"a|"_s},
        {"Delete and Ctrl", u"|one two"_s, u"\u2303\u2326"_s, u"|two"_s},
        {"Tab at the caret", u"a|b"_s, u"\u21E5"_s, u"a\t|b"_s},
        {"Tab within a line", u"a[b]c"_s, u"\u21E5"_s, u"a\t|c"_s},
        {"Tab on several lines", u"[a\nb]c"_s, u"\u21E5"_s, u"[\ta\n\tb]c"_s},
        {"Tab twice", u"[a\n\nb]"_s, u"\u21E5\u21E5"_s, u"[\t\ta\n\t\t\n\t\tb]"_s},
        {"Shift and Tab", u"x[a\nb]"_s, u"\u21E7\u21E5"_s, u"x[\ta\n\tb]"_s},
        {"Tab on a line end", u"a[\n]b"_s, u"\u21E5"_s, u"a[\t\n\t]b"_s},
        {"arrows and line ends", u"a|\nb"_s, u"\u2192x\u2190\u2190y"_s, u"ay|\nxb"_s},
        {"Shift and arrows", u"a|b\nc"_s, u"\u21E7\u2192\u21E7\u2192"_s, u"a[b\n]c"_s},
    };
    for (const auto &row : rows) {
        CodeHighlight editor;
        editor.SetLanguage(SyntaxTables::Html);
        SetMarked(editor, row.before);
        Type(editor, row.keys);
        EXPECT_EQ(Marked(editor), row.after) << row.name;
        ExpectTextIsShown(editor);
    }
}

TEST(CodeHighlightKeys, WhatMakesASnapshot)
{
    const struct
    {
        const char *name;
        int highlightCode;
        QString keys; // the timer is let fire after each
        QString undone;
    } rows[] = {
        {"delimiters make none", 1, u"ab cd"_s, u"xab c|xab|xa|x"_s},
        {"as many delimiters as there are", 1, u"(\u23CE\u21E5=<a"_s, u"x"_s},
        {"without repaint every key", -1, u"a b"_s, u"xa |xa|x"_s},
        {"other signs", 1, u".;"_s, u"x.|x"_s},
        {"Backspace and Delete", 1, u"ab\u232B\u2190\u2326"_s, u"xa|xab|xa|x"_s},
        {"arrows", 1, u"a\u2190\u2192b"_s, u"xa|x"_s},
    };
    for (const auto &row : rows) {
        CodeHighlight editor;
        editor.SetHighlightCode(row.highlightCode);
        editor.SetText(u"x"_s);
        editor.AddUndo();
        editor.SetSelStart(1);
        for (const QChar key : row.keys) {
            Type(editor, key);
            LetSnapshotBeTaken();
        }
        EXPECT_EQ(UndoneTexts(editor), row.undone) << row.name;
        ExpectTextIsShown(editor);
    }
}

TEST(CodeHighlightKeys, KeysInASnapshotTogether)
{
    CodeHighlight editor;
    editor.SetText(u"x"_s);
    editor.AddUndo();
    editor.SetSelStart(1);
    Type(editor, u"abc"_s); // faster than the timer
    LetSnapshotBeTaken();
    Type(editor, u"d"_s);
    LetSnapshotBeTaken();
    EXPECT_EQ(UndoneTexts(editor), u"xabc|x"_s);
    editor.Redo();
    editor.Redo();
    EXPECT_EQ(Marked(editor), u"xabcd|"_s);
}

TEST(CodeHighlightKeys, TheHostHasTheFirstWord)
{
    CodeHighlight editor;
    QObject host;
    QObject::connect(&editor, &CodeHighlight::KeyDown, &host, [](int &keyCode, int &) {
        keyCode = keyCode == VirtualKey::Left ? 0 : keyCode;
    });
    QObject::connect(&editor, &CodeHighlight::KeyPress, &host, [&editor](int &keyAscii) {
        if (keyAscii == u'a')
            keyAscii = u'<';
        if (keyAscii == VirtualKey::Return) {
            editor.SetSelText(u"\r\n\t"_s);
            keyAscii = 0;
        }
    });
    editor.SetText(u"x"_s);
    editor.AddUndo();
    editor.SetSelStart(1);
    Type(editor, u"ab\u2190\u23CE"_s);
    EXPECT_EQ(Marked(editor), u"x<b\n\t|"_s);
    LetSnapshotBeTaken();
    Type(editor, u"c"_s);
    LetSnapshotBeTaken();
    EXPECT_EQ(UndoneTexts(editor), u"x<b\r\n\t|x"_s) << "a consumed Enter makes a snapshot";
}

// A plain string as the model of the text, for a page of short lines and one with a long line.
TEST(CodeHighlightKeys, RandomKeysAgreeWithAString)
{
    for (const int lineLength : {7, 9000}) {
        QRandomGenerator random(5);
        CodeHighlight editor;
        editor.SetLanguage(SyntaxTables::Html);
        QString model = u"one <b>\r\ntwo\r\n"_s + QString(lineLength, u'x') + u"\r\n"_s;
        editor.SetText(model);
        const QString characters = u"ab <>&;\t\u00A0\u20AC"_s;
        for (int step = 0; step < 1500; ++step) {
            int start = editor.SelStart();
            int length = editor.SelLength();
            const auto replace = [&](int from, int count, const QString &added) {
                model.replace(from, count, added);
                start = from + int(added.size());
            };
            const int choice = random.bounded(12);
            if (choice < 3) {
                start = random.bounded(int(model.size()) + 1);
                const auto whole
                    = [&](int place) { return place - int(model.mid(place - 1, 2) == u"\r\n"_s); };
                start = start > 0 ? whole(start) : 0;
                length = std::min(random.bounded(8), int(model.size()) - start);
                length = start + length > 0 ? std::max(0, whole(start + length) - start) : 0;
                editor.SetSelStart(start);
                editor.SetSelLength(choice == 0 ? length : 0);
                continue;
            }
            if (choice < 6) {
                const QChar unit = characters[random.bounded(int(characters.size()))];
                if (unit == u'\t' && editor.SelText().contains(u"\r\n"))
                    continue;
                Type(editor, unit == u'\t' ? u"\u21E5"_s : QString(unit));
                replace(start, length, unit);
            } else if (choice == 6) {
                Type(editor, u"\u23CE"_s);
                replace(start, length, u"\r\n"_s);
            } else if (choice < 9) {
                Type(editor, choice == 7 ? u"\u232B"_s : u"\u2326"_s);
                if (length == 0 && choice == 7 && start > 0) {
                    length = model.mid(start - 2, 2) == u"\r\n"_s && start > 1 ? 2 : 1;
                    start -= length;
                } else if (length == 0 && choice == 8 && start < model.size()) {
                    length = model.mid(start, 2) == u"\r\n"_s ? 2 : 1;
                }
                replace(start, length, {});
            } else if (choice == 9) {
                const QString pasted = QString(random.bounded(30), u'p') + u"\n<q>\r"_s;
                QGuiApplication::clipboard()->setText(pasted);
                editor.paste();
                replace(start,
                        length,
                        QString(pasted)
                            .replace(u'\r', u"\r\n"_s)
                            .replace(u"p\n"_s, u"p\r\n"_s)
                            .replace(QRegularExpression(u"^\n"_s), u"\r\n"_s));
            } else if (choice == 10 && length == 0) {
                const bool right = random.bounded(2) == 0;
                Type(editor, right ? u"\u2192"_s : u"\u2190"_s);
                if (right && start < model.size())
                    start += model.mid(start, 2) == u"\r\n"_s ? 2 : 1;
                else if (!right && start > 0)
                    start -= start > 1 && model.mid(start - 2, 2) == u"\r\n"_s ? 2 : 1;
            } else if (choice == 11) {
                if (random.bounded(2))
                    editor.Undo();
                else
                    editor.Redo();
                model = editor.Text();
                ASSERT_NO_FATAL_FAILURE(ExpectTextIsShown(editor)) << step;
                continue;
            } else {
                continue;
            }
            ASSERT_EQ(editor.Text(), model)
                << lineLength << " step " << step << " choice " << choice;
            ASSERT_EQ(editor.SelStart(), start)
                << lineLength << " step " << step << " choice " << choice;
            ASSERT_NO_FATAL_FAILURE(ExpectTextIsShown(editor)) << step;
        }
    }
}

TEST(CodeHighlightKeys, ALineOfAMegabyte)
{
    const QString line = u"<p class=x>text</p>"_s.repeated(1 << 16);
    CodeHighlight editor;
    editor.SetText(line);
    QString expected = line;
    for (const qsizetype place : {qsizetype(0), line.size() / 2, line.size()}) {
        editor.SetSelStart(int(place));
        Type(editor, u"ab\u232B"_s);
        expected.insert(place, u'a');
        ASSERT_EQ(editor.SelStart(), place + 1);
    }
    EXPECT_TRUE(editor.Text() == expected);
    EXPECT_EQ(editor.LineCount(), 1);
    EXPECT_EQ(editor.LineLength(0), expected.size());
    EXPECT_TRUE(editor.Line(0) == expected);
    ExpectTextIsShown(editor);
}

TEST(CodeHighlightKeys, NoKeyPressIsLostAtASoftBreak)
{
    CodeHighlight editor;
    editor.SetText(QString(10000, u'x') + u"\r\ny"_s);
    const QTextBlock first = editor.document()->firstBlock();
    ASSERT_GT(editor.document()->blockCount(), 2);
    const int breakPlace = first.length() - 1;
    const struct
    {
        const char *name;
        QString key;
        int by; // of the caret, or of the selection's far end
        bool selects;
    } rows[] = {{"right", u"\u2192"_s, 1, false},
                {"left", u"\u2190"_s, -1, false},
                {"select right", u"\u21E7\u2192"_s, 1, true},
                {"select left", u"\u21E7\u2190"_s, -1, true}};
    for (const auto &row : rows) {
        const int start = breakPlace - 3 * row.by;
        editor.SetSelStart(start);
        for (int pressed = 1; pressed <= 6; ++pressed) {
            Type(editor, row.key);
            if (row.selects)
                EXPECT_EQ(editor.SelLength(), pressed) << row.name;
            else
                EXPECT_EQ(editor.SelStart(), start + pressed * row.by) << row.name;
        }
    }
}
