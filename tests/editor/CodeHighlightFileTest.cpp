#include "editor/CodeHighlight.h"
#include "tests/editor/EditorScript.h"
#include "tests/support/ScriptedBoxes.h"

#include <QFile>
#include <QRandomGenerator>
#include <QTemporaryDir>

using namespace brenix;
using namespace Qt::StringLiterals;

namespace {

class CodeHighlightFile : public testing::Test
{
protected:
    QString Path(const QString &name = u"page.html"_s) const { return m_folder.filePath(name); }
    QString Write(const QByteArray &bytes, const QString &name = u"page.html"_s) const
    {
        QFile file(Path(name));
        EXPECT_TRUE(file.open(QFile::WriteOnly));
        file.write(bytes);
        return file.fileName();
    }
    QByteArray Bytes(const QString &name = u"page.html"_s) const
    {
        QFile file(Path(name));
        return file.open(QFile::ReadOnly) ? file.readAll() : QByteArray("no file");
    }

    ScriptedBoxes m_boxes;
    QTemporaryDir m_folder;
    CodeHighlight m_editor;
};

QByteArray RandomPage(QRandomGenerator &random)
{
    static const QByteArray parts[] = {"\r\n", "\n", "\r", "<b>", " x", "\xC3\xA9", "\xE9", "\0"};
    QByteArray bytes;
    for (int i = random.bounded(40); i > 0; --i) {
        const int choice = random.bounded(10);
        bytes += choice < 8 ? parts[choice] : QByteArray(1, char(random.bounded(256)));
    }
    return bytes;
}

} // namespace

TEST_F(CodeHighlightFile, EveryPageComesBackByteForByte)
{
    const QByteArray special
        = u"\u2028\u2029\uFDD0\uFDD1\uFFFC\uFFFD\uFEFF\u00A0\uFFFF\U0001F600"_s.toUtf8();
    QByteArrayList pages = {"",
                            "\r",
                            "\n\r\n\r\r\n",
                            "no end",
                            QByteArray("\0a\0\n\0", 5),
                            special + "\r\n" + special + "\n" + special,
                            "\xEF\xBB\xBF\r\nmark",
                            QByteArray("\xFF\xFE<\0\r\0\n\0", 8),
                            QByteArray("\xFE\xFF\0<\0\n", 6),
                            u"\uFDD2\uFDD3\uFDD4"_s.toUtf8() + "\n",
                            u"\U0001F600"_s.repeated(9000).toUtf8() + "\r" + QByteArray(9000, 'x')};
    QRandomGenerator random(9);
    for (int i = 0; i < 300; ++i)
        pages.append(RandomPage(random));
    m_editor.SetLanguage(SyntaxTables::Html);
    for (qsizetype i = 0; i < pages.size(); ++i) {
        ASSERT_TRUE(m_editor.LoadFile(Write(pages[i])));
        ASSERT_EQ(m_editor.SelStart(), 0);
        ASSERT_NO_FATAL_FAILURE(ExpectTextIsShown(m_editor));
        ASSERT_EQ(m_editor.FileBytes(), pages[i]) << i;
        if (i < 20) {
            ASSERT_TRUE(m_editor.SaveFile(Path(u"copy"_s)));
            ASSERT_EQ(Bytes(u"copy"_s), pages[i]) << i;
        }
    }
}

TEST_F(CodeHighlightFile, AnEditChangesItsOwnLine)
{
    QRandomGenerator random(21);
    for (int i = 0; i < 60; ++i) {
        const QByteArray page = RandomPage(random).replace('\xE9', "e").replace('\0', "0");
        ASSERT_TRUE(m_editor.LoadFile(Write(page)));
        if (m_editor.IsReadOnlyPage())
            continue;
        QByteArray expected = page;
        qsizetype place = 0;
        for (int line = 0; line < m_editor.LineCount(); ++line) {
            m_editor.SetSelStart(m_editor.LineStartPos(line));
            Type(m_editor, u"y"_s);
            expected.insert(place, 'y');
            ASSERT_EQ(m_editor.FileBytes(), expected);
            while (place < expected.size() && expected[place] != '\r' && expected[place] != '\n')
                ++place;
            place += expected.mid(place, 2) == "\r\n" ? 2 : 1;
        }
        // The same through the text as a whole.
        QString text = m_editor.Text();
        m_editor.SetText(text.replace(0, 1, u'z'));
        expected.replace(0, 1, "z");
        ASSERT_EQ(m_editor.FileBytes(), expected);
        m_editor.AddUndo();
        m_editor.selectAll();
        m_editor.SetSelText(u"gone"_s);
        m_editor.AddUndo();
        m_editor.Undo();
        ASSERT_EQ(m_editor.FileBytes(), expected) << "Undo brings the line ends back as well";
    }
}

TEST_F(CodeHighlightFile, LineEndsThatCommandsLeaveAlone)
{
    const struct
    {
        const char *name;
        QByteArray page;
        int start;
        int length;
        QString keys;
        QByteArray expected;
    } rows[] = {
        {"Enter gives the usual end", "a\nb\nc\r\n", 1, 0, u"\u23CE"_s, "a\n\nb\nc\r\n"},
        {"joined with Backspace", "a\nb\rc\r\n", 3, 0, u"\u232B"_s, "ab\rc\r\n"},
        {"joined with Delete", "a\n\r\nc\r", 3, 0, u"\u2326"_s, "a\nc\r"},
        {"CR and LF that come together are still two", "a\rb\n", 4, 0, u"\u232B"_s, "a\r\n\n"},
        {"Tab keeps each line's end", "a\nb\rc\r\n", 0, 8, u"\u21E5"_s, "\ta\n\tb\r\tc\r\n"},
    };
    for (const auto &row : rows) {
        ASSERT_TRUE(m_editor.LoadFile(Write(row.page)));
        m_editor.SetSelStart(row.start);
        m_editor.SetSelLength(row.length);
        Type(m_editor, row.keys);
        EXPECT_EQ(m_editor.FileBytes(), row.expected) << row.name;
    }
}

TEST_F(CodeHighlightFile, FailedSave)
{
    Write("old");
    ASSERT_TRUE(m_editor.LoadFile(Path()));
    m_editor.SetText(u"new"_s);
    const QString folder = Path(u"folder"_s);
    ASSERT_TRUE(QDir().mkdir(folder));
    for (const QString &target : {folder, Path(u"no such/page.html"_s), u"/dev/null"_s}) {
        m_boxes.asked.clear();
        EXPECT_FALSE(m_editor.SaveFile(target));
        ASSERT_EQ(m_boxes.asked.size(), 1);
        EXPECT_TRUE(m_boxes.asked[0].startsWith(u"Can't save '%1'\n\n"_s.arg(target)))
            << m_boxes.asked[0].toStdString();
    }
    EXPECT_EQ(Bytes(), "old");
}

TEST_F(CodeHighlightFile, UnencodableCharacter)
{
    const struct
    {
        int answer;
        bool saved;
        QByteArray bytes;
    } rows[] = {{0, true, "caf\xC3\xA9 \xE2\x88\x9E\n"},
                {1, true, "caf\xE9 &#8734;\n"},
                {2, false, "caf\xE9\n"},
                {-1, false, "caf\xE9\n"}};
    for (const auto &row : rows) {
        int questions = 0;
        Scripted().chooseBox = [&](const QString &text, const QStringList &captions) {
            ++questions;
            EXPECT_TRUE(text.contains(u'\u221E'));
            EXPECT_EQ(captions.size(), 3);
            return row.answer;
        };
        CodeHighlight editor;
        ASSERT_TRUE(editor.LoadFile(Write("caf\xE9\n")));
        editor.SetSelStart(4);
        Type(editor, u" \u221E"_s);
        EXPECT_EQ(editor.SaveFile(Path()), row.saved);
        EXPECT_EQ(Bytes(), row.bytes) << row.answer;
        EXPECT_EQ(questions, 1);
        EXPECT_EQ(editor.SaveFile(Path()), row.saved);
        EXPECT_EQ(questions, row.answer == 0 ? 1 : 2) << "once UTF-8, nobody is asked again";
    }
}

TEST_F(CodeHighlightFile, PageThatCanOnlyBeRead)
{
    const QByteArray page = u"a\uFDD2b\n"_s.toUtf8();
    ASSERT_TRUE(m_editor.LoadFile(Write(page)));
    EXPECT_TRUE(m_editor.IsReadOnlyPage());
    EXPECT_EQ(m_boxes.asked.size(), 1);
    const QString text = m_editor.Text();
    Type(m_editor, u"x\u232B"_s);
    m_editor.SetSelText(u"x"_s);
    m_editor.SetText(u"x"_s);
    EXPECT_EQ(m_editor.Text(), text) << "what cannot be saved must not look changed";
    EXPECT_EQ(m_editor.FileBytes(), page);
}

TEST_F(CodeHighlightFile, MissingFile)
{
    m_editor.SetText(u"x"_s);
    EXPECT_FALSE(m_editor.LoadFile(Path(u"none"_s)));
    EXPECT_EQ(m_editor.Text(), QString());
    EXPECT_FALSE(m_editor.LoadError().isEmpty());
    EXPECT_TRUE(m_boxes.asked.isEmpty());
}

TEST_F(CodeHighlightFile, LinesAndPositions)
{
    Write("ab\n\r\ncd\re" + QByteArray(9000, 'x')); // 0, 4, 6, 10
    ASSERT_TRUE(m_editor.LoadFile(Path()));
    const struct
    {
        int line;
        int start;
        int length;
        QString text;
    } rows[] = {{0, 0, 2, u"ab"_s},
                {1, 4, 0, {}},
                {2, 6, 2, u"cd"_s},
                {3, 10, 9001, u'e' + QString(9000, u'x')}};
    for (const auto &row : rows) {
        EXPECT_EQ(m_editor.LineStartPos(row.line), row.start);
        EXPECT_EQ(m_editor.LineLength(row.start), row.length);
        EXPECT_EQ(m_editor.LineLength(row.start + row.length), row.length);
        m_editor.SetLineIndex(row.line);
        EXPECT_EQ(m_editor.SelStart(), row.start);
        EXPECT_EQ(m_editor.LineIndex(), row.line);
        EXPECT_EQ(m_editor.Line(99), row.text) << "the caret's line";
    }
    EXPECT_EQ(m_editor.LineCount(), 4);
    EXPECT_EQ(m_editor.LineStartPos(4), -1);
    m_editor.SetLineIndex(4);
    EXPECT_EQ(m_editor.SelStart(), 1) << "a line past the end";
    m_editor.SetSelStart(-5);
    EXPECT_EQ(m_editor.SelStart(), 0);
    m_editor.SetSelStart(1 << 20);
    EXPECT_EQ(m_editor.SelStart(), 9011);
    m_editor.SetSelStart(1);
    m_editor.SetSelLength(5);
    EXPECT_EQ(m_editor.SelText(), u"b\r\n\r\n"_s);
    EXPECT_EQ(m_editor.SelLength(), 5);
    EXPECT_TRUE(m_editor.Search(u"CD"_s, 2));
    EXPECT_EQ(m_editor.SelStart(), 6);
    EXPECT_FALSE(m_editor.Search(u"cd"_s, 7));
    EXPECT_EQ(m_editor.SelText(), u"cd"_s) << "nothing found, selection as it was";
}

// Which of the two is told when; what paints is no change.
TEST_F(CodeHighlightFile, ChangeAndSelChange)
{
    int changes = 0;
    int moves = 0;
    QObject::connect(&m_editor, &CodeHighlight::Change, [&] { ++changes; });
    QObject::connect(&m_editor, &CodeHighlight::SelChange, [&] { ++moves; });
    m_editor.SetLanguage(SyntaxTables::Html);
    const auto expect = [&](const char *what, int expectedChanges, int expectedMoves) {
        EXPECT_EQ(changes, expectedChanges) << what;
        EXPECT_EQ(moves, expectedMoves) << what;
        changes = moves = 0;
    };
    m_editor.SetText(u"<b>\r\n<i\r\n>\r\ndd"_s);
    EXPECT_EQ(changes, 1);
    changes = moves = 0;
    m_editor.show();
    m_editor.grab();
    expect("painting", 0, 0);
    m_editor.SetSelStart(6);
    expect("caret", 0, 1);
    Type(m_editor, u"x"_s);
    expect("key", 1, 1);
    Type(m_editor, u">"_s);
    expect("delimiter", 1, 1);
    Type(m_editor, u"\u2193"_s);
    expect("leaving a line", 0, 1);
    m_editor.SetText(m_editor.Text());
    m_editor.grab();
    changes = moves = 0;
    Type(m_editor, u"\u2191\u2193"_s);
    expect("nothing is left over from a text that was no other", 0, 2);
    m_editor.SetSelStart(2);
    moves = 0;
    ASSERT_TRUE(m_editor.LoadFile(Write("ab\ncd")));
    changes = moves = 0;
    m_editor.SetSelStart(2);
    expect("where the caret was on the page before", 0, 1);
}
