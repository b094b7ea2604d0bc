#include "editor/CodeHighlight.h"
#include "tests/editor/EditorScript.h"
#include "tests/support/ScriptedBoxes.h"

#include <QClipboard>
#include <QDrag>
#include <QDropEvent>
#include <QMimeData>
#include <QTemporaryDir>

using namespace brenix;
using namespace Qt::StringLiterals;

namespace {

// Drops `text` before the character at `place`; while a drag of the page's own selection goes on
// when it is `ownText`.
void Drop(
    CodeHighlight &editor, const QString &text, int place, Qt::DropAction action, bool ownText)
{
    const int start = editor.SelStart();
    const int length = editor.SelLength();
    editor.SetSelStart(place);
    const QPointF position = editor.cursorRect().center();
    editor.SetSelStart(start);
    editor.SetSelLength(length);

    QMimeData data;
    data.setText(text);
    const auto drop = [&] {
        QDragEnterEvent enter(position.toPoint(), action, &data, Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(editor.viewport(), &enter);
        QDropEvent event(position, action, &data, Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(editor.viewport(), &event);
        EXPECT_EQ(event.isAccepted(), !editor.isReadOnly());
    };
    if (!ownText)
        return drop();
    auto *drag = new QDrag(editor.viewport());
    drag->setMimeData(new QMimeData);
    QTimer::singleShot(0, &editor, [&] {
        drop();
        QDrag::cancel();
    });
    drag->exec(action);
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
TEST(CodeHighlightTransfer, Drops)
{
    const ScriptedBoxes boxes;
    const QTemporaryDir folder;
    const QByteArray longLine = QByteArray("x").repeated(3000) + "\rg\n";
    const struct
    {
        const char *name;
        QByteArray page;
        int start;
        int length;
        int place;
        Qt::DropAction action;
        bool ownText;
        QByteArray expected;
        int caret;
    } rows[] = {
        {"down", "ab\nc\r\nd\re\n", 0, 1, 8, Qt::MoveAction, true, "b\nc\r\nda\re\n", 8},
        {"up", "ab\nc\r\nd\re\n", 7, 1, 1, Qt::MoveAction, true, "adb\nc\r\n\re\n", 2},
        {"over a long line",
         "ab\n" + longLine,
         0,
         2,
         3006,
         Qt::MoveAction,
         true,
         "\n" + longLine.chopped(2) + "ab" + "g\n",
         3006},
        {"within a long line",
         "a" + longLine,
         0,
         1,
         2500,
         Qt::MoveAction,
         true,
         QByteArray(longLine).insert(2499, 'a'),
         2500},
        {"a line end", "a\rb\r\nc\n", 1, 2, 6, Qt::MoveAction, true, "ab\r\n\r\nc\n", 6},
        {"into itself", "abcd\n", 1, 2, 2, Qt::MoveAction, true, "abcd\n", 1},
        {"a copy", "ab\nc\r", 0, 1, 5, Qt::CopyAction, true, "ab\nca\r", 6},
        {"from elsewhere", "ab\nc\r", 0, 1, 5, Qt::MoveAction, false, "ab\nca\r", 6},
        {"on a page that can only be read",
         u"\uFDD2b\n"_s.toUtf8(),
         0,
         1,
         2,
         Qt::MoveAction,
         true,
         u"\uFDD2b\n"_s.toUtf8(),
         0},
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
        editor.SetSelStart(row.start);
        editor.SetSelLength(row.length);
        const QString before = editor.Text();
        Drop(editor, editor.SelText(), row.place, row.action, row.ownText);
        EXPECT_EQ(editor.FileBytes(), row.expected);
        EXPECT_EQ(editor.SelStart(), row.caret);
        ExpectTextIsShown(editor);
        editor.Undo();
        EXPECT_EQ(editor.Text(), before);
    }
}
