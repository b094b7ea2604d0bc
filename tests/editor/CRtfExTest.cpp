#include "editor/CRtfEx.h"

#include "tests/support/Input.h"
#include "tests/support/PrintQt.h"

#include <QApplication>
#include <QClipboard>
#include <QTextBlock>

#include <gtest/gtest.h>

using namespace brenix;
using namespace Qt::StringLiterals;

namespace {

/// A box with a helper; the caret is "|", or the selection stands between "[" and "]".
template <typename TextBox> struct BoxOf
{
    explicit BoxOf(QString marked)
        : helper(&box)
    {
        const int start = int(std::max(marked.indexOf(u'|'), marked.indexOf(u'[')));
        const int end = int(marked.indexOf(u']'));
        box.setPlainText(marked.remove(u'|').remove(u'[').remove(u']'));
        QTextCursor cursor = box.textCursor();
        cursor.setPosition(start);
        cursor.setPosition(end < 0 ? start : end - 1, QTextCursor::KeepAnchor);
        box.setTextCursor(cursor);
    }
    /// Read from the blocks: a blank that does not break stays what it is.
    QString Marked() const
    {
        QStringList lines;
        for (QTextBlock block = box.document()->begin(); block.isValid(); block = block.next())
            lines.append(block.text());
        QString text = lines.join(u'\n');
        const QTextCursor cursor = box.textCursor();
        if (!cursor.hasSelection())
            return text.insert(cursor.position(), u'|');
        text.insert(cursor.selectionEnd(), u']');
        return text.insert(cursor.selectionStart(), u'[');
    }

    TextBox box;
    CRtfEx helper;
};
using Box = BoxOf<QPlainTextEdit>;

using Action = std::function<void(QWidget &, CRtfEx &)>;

Action Key(int key, Qt::KeyboardModifiers modifiers = Qt::NoModifier, const QString &text = {})
{
    return [=](QWidget &box, CRtfEx &) { Press(box, key, modifiers, text); };
}

Action Tab(const QString &tabChar, int tabLen)
{
    return [=](QWidget &box, CRtfEx &helper) {
        helper.SetTabChar(tabChar);
        helper.SetTabLen(tabLen);
        Press(box, Qt::Key_Tab, Qt::NoModifier, u"\t"_s);
    };
}

Action EnterWithIndent(const QString &tabChar)
{
    return [=](QWidget &box, CRtfEx &helper) {
        helper.SetKeepIndent(true);
        helper.SetTabChar(tabChar);
        Press(box, Qt::Key_Return, Qt::NoModifier, u"\r"_s);
    };
}

} // namespace

TEST(CRtfEx, TextBeforeActionTextAfter)
{
    const auto cut = Key(Qt::Key_Y, Qt::ControlModifier, u"\x19"_s);
    const auto select
        = [](int line) { return [=](QWidget &, CRtfEx &helper) { helper.SelectLine(line); }; };
    const auto remove
        = [](int line) { return [=](QWidget &, CRtfEx &helper) { helper.DelLine(line); }; };
    const struct
    {
        const char *name;
        QString before;
        Action action;
        QString after;
    } rows[] = {
        {"select", u"|a\n\u00A0bc\n"_s, select(1), u"a\n[\u00A0bc]\n"_s},
        {"select past the end", u"a|\nb"_s, select(2), u"a|\nb"_s},
        {"select before the start", u"a|\nb"_s, select(-1), u"a|\nb"_s},
        {"delete before the caret", u"one\ntwo\nth|ree"_s, remove(0), u"two\nthree|"_s},
        {"delete behind the caret", u"o|ne\ntwo\nthree"_s, remove(1), u"o|ne\nthree"_s},
        {"delete the last", u"\u00A0|one\ntwo"_s, remove(1), u"\u00A0|one\n"_s},
        {"delete the only", u"on|e"_s, remove(0), u"|"_s},
        {"cut", u"one\nt|wo\nthree"_s, cut, u"one\nt|hree"_s},
        {"cut at a selection", u"one\n[two\nthree]"_s, cut, u"one\n|three"_s},
        {"Ctrl+Y with Shift",
         u"o|ne"_s,
         Key(Qt::Key_Y, Qt::ControlModifier | Qt::ShiftModifier),
         u"o|ne"_s},
        {"tab of the box", u"a|"_s, Key(Qt::Key_Tab, Qt::NoModifier, u"\t"_s), u"a\t|"_s},
        {"tab of another sign", u"a|"_s, Tab(u"x"_s, 4), u"a\t|"_s},
        {"tab of nothing", u"a|"_s, Tab(u""_s, 4), u"a\t|"_s},
        {"column 0", u"|a"_s, Tab(u" "_s, 4), u"    |a"_s},
        {"column 1", u"x\na|"_s, Tab(u" more"_s, 4), u"x\na |"_s},
        {"column 3", u"abc|"_s, Tab(u" "_s, 4), u"abc   |"_s},
        {"column 4", u"abcd|"_s, Tab(u" "_s, 4), u"abcd    |"_s},
        {"tab over a selection", u"ab[c]d"_s, Tab(u" "_s, 4), u"ab  |d"_s},
        {"tab width 0", u"ab[c]"_s, Tab(u" "_s, 0), u"ab[c]"_s},
        {"tab width below 0", u"ab|"_s, Tab(u" "_s, -4), u"ab|"_s},
        {"Enter", u"  a|"_s, Key(Qt::Key_Return, Qt::NoModifier, u"\r"_s), u"  a\n|"_s},
        {"indent", u"   a|b"_s, EnterWithIndent(u" "_s), u"   a\n   |b"_s},
        {"indent of tabs", u"\t\t |"_s, EnterWithIndent(u"\t"_s), u"\t\t \n\t\t|"_s},
        {"indent over lines", u" a[b\nc]d"_s, EnterWithIndent(u" "_s), u" a\n |d"_s},
        {"default is no indent", u"    a|"_s, EnterWithIndent(u""_s), u"    a\n|"_s},
    };
    for (const auto &row : rows) {
        SCOPED_TRACE(row.name);
        Box box(row.before);
        row.action(box.box, box.helper);
        EXPECT_EQ(box.Marked(), row.after);
        BoxOf<QTextEdit> rich(row.before);
        row.action(rich.box, rich.helper);
        EXPECT_EQ(rich.Marked(), row.after) << "in a rich box";
    }
}

TEST(CRtfEx, Answers)
{
    Box box(u"\u00A0one\n\ntw|o"_s);
    const CRtfEx &helper = box.helper;
    const struct
    {
        int line;
        QString text;
        int start;
    } lines[]
        = {{-1, u""_s, 0}, {0, u"\u00A0one"_s, 0}, {1, u""_s, 6}, {2, u"two"_s, 8}, {3, u""_s, 0}};
    for (const auto &row : lines) {
        EXPECT_EQ(helper.GetLine(row.line), row.text) << row.line;
        EXPECT_EQ(helper.GetCharFromLine(row.line), row.start) << row.line;
    }
    const std::pair<int, int> positions[]
        = {{-1, 0}, {0, 0}, {5, 0}, {6, 1}, {7, 1}, {8, 2}, {99, 2}};
    for (const auto &[position, line] : positions) {
        EXPECT_EQ(helper.GetLineFromChar(position), line) << position;
        EXPECT_EQ(helper.LineLen(position), lines[line + 1].text.size()) << position;
    }
    EXPECT_EQ(helper.ColPosition(), 2);
    EXPECT_FALSE(helper.IsDirty());
    Press(box.box, Qt::Key_Y, Qt::ControlModifier);
    EXPECT_EQ(QGuiApplication::clipboard()->text(), u"two\n"_s);
    EXPECT_TRUE(helper.IsDirty());
    ASSERT_TRUE(helper.CanUndo());
    box.helper.Undo();
    EXPECT_EQ(helper.LineCount(), 3);
    EXPECT_EQ(helper.GetLine(2), u"two"_s) << "a cut is one step back";
}

TEST(CRtfEx, LeavesABoxAloneThatIsNotItsOwnOrCannotBeEdited)
{
    Box box(u"  |a"_s);
    box.helper.SetKeepIndent(true);
    box.helper.SetTabChar(u" "_s);
    box.box.setReadOnly(true);
    Press(box.box, Qt::Key_Y, Qt::ControlModifier);
    EXPECT_EQ(box.Marked(), u"  |a"_s);
    box.box.setReadOnly(false);
    box.helper.SetTextbox(nullptr);
    Press(box.box, Qt::Key_Return, Qt::NoModifier, u"\r"_s);
    EXPECT_EQ(box.Marked(), u"  \n|a"_s);
    EXPECT_EQ(box.helper.LineCount(), 0);
    EXPECT_EQ(box.helper.GetLine(0), QString());
}
