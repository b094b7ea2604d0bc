#include "editor/CodeHighlight.h"
#include "tests/editor/EditorScript.h"
#include "tests/support/ScriptedBoxes.h"

#include <QClipboard>
#include <QDropEvent>
#include <QMimeData>
#include <QTemporaryDir>

using namespace brenix;
using namespace Qt::StringLiterals;

namespace {

// Drops `text` before the character at `place`, as another program does.
void Drop(CodeHighlight &editor, const QString &text, int place)
{
    editor.SetSelStart(place);
    const QPoint position = editor.cursorRect().center();
    editor.SetSelStart(0);
    QMimeData data;
    data.setText(text);
    QDragEnterEvent enter(position, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(editor.viewport(), &enter);
    QDropEvent drop(position, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(editor.viewport(), &drop);
    EXPECT_EQ(drop.isAccepted(), !editor.isReadOnly());
}

} // namespace

TEST(CodeHighlightTransfer, CopyKeepsCharacters)
{
    CodeHighlight editor;
    const QString text = u"a\u00A0\u2028b\r\n\u2029c"_s;
    editor.SetText(text);
    editor.selectAll();
    editor.copy();
    EXPECT_EQ(QGuiApplication::clipboard()->text(), QString(text).replace(u"\r\n"_s, u"\n"_s));
    editor.SetText({});
    editor.paste();
    EXPECT_EQ(editor.Text(), text);
}

TEST(CodeHighlightTransfer, ShiftAndDeleteCuts)
{
    CodeHighlight editor;
    SetMarked(editor, u"a[b\nc]d"_s);
    Type(editor, u"\u21E7\u2326"_s);
    EXPECT_EQ(Marked(editor), u"a|d"_s);
    EXPECT_EQ(QGuiApplication::clipboard()->text(), u"b\nc"_s);
}

// Lines between the two places keep their ends, and a long line stays one.
TEST(CodeHighlightTransfer, MovedAndDroppedText)
{
    const ScriptedBoxes boxes;
    const QTemporaryDir folder;
    const QByteArray longLine = QByteArray("x").repeated(3000) + "\rg\n";
    const struct
    {
        const char *name;
        QByteArray page;
        int start;
        int length; // of what is moved; 0 drops "a" and a line end
        int place;
        QByteArray expected;
        int caret;
    } rows[] = {
        {"down", "ab\nc\r\nd\re\n", 0, 1, 8, "b\nc\r\nda\re\n", 8},
        {"up", "ab\nc\r\nd\re\n", 7, 1, 1, "adb\nc\r\n\re\n", 2},
        {"over a long line",
         "ab\n" + longLine,
         0,
         2,
         3006,
         "\n" + longLine.chopped(2) + "abg\n",
         3006},
        {"within a long line",
         "a" + longLine,
         0,
         1,
         2500,
         QByteArray(longLine).insert(2499, 'a'),
         2500},
        {"a line end", "a\rb\r\nc\n", 1, 2, 6, "ab\r\n\rc\n", 6},
        {"into itself", "abcd\n", 1, 2, 2, "abcd\n", 1},
        {"dropped", "ab\nc\rd\r", 0, 0, 5, "ab\nca\r\rd\r", 8},
        {"dropped into a long line",
         longLine,
         0,
         0,
         2500,
         QByteArray(longLine).insert(2500, "a\n"),
         2503},
        {"moved on a page that can only be read",
         u"\uFDD2b\n"_s.toUtf8(),
         0,
         1,
         2,
         u"\uFDD2b\n"_s.toUtf8(),
         0},
        {"dropped on such a page", u"\uFDD2b\n"_s.toUtf8(), 0, 0, 2, u"\uFDD2b\n"_s.toUtf8(), 0},
    };
    for (const auto &row : rows) {
        SCOPED_TRACE(row.name);
        const QString path = folder.filePath(u"page.html"_s);
        QFile file(path);
        ASSERT_TRUE(file.open(QFile::WriteOnly));
        file.write(row.page);
        file.close();
        CodeHighlight editor;
        editor.SetLanguage(SyntaxTables::Html);
        editor.resize(9000, 300);
        editor.show();
        ASSERT_TRUE(editor.LoadFile(path));
        editor.AddUndo();
        const QString before = editor.Text();
        if (row.length == 0) {
            Drop(editor, u"a\n"_s, row.place);
        } else {
            editor.SetSelStart(row.start);
            editor.SetSelLength(row.length);
            editor.MoveSelText(row.place);
        }
        EXPECT_EQ(editor.FileBytes(), row.expected);
        EXPECT_EQ(editor.SelStart(), row.caret);
        ExpectTextIsShown(editor);
        editor.Undo();
        EXPECT_EQ(editor.Text(), before);
    }
}
