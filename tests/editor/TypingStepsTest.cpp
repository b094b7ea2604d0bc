#include "editor/TypingSteps.h"

#include "editor/VirtualKeys.h"
#include "support/SettingsStore.h"
#include "tags/InsertMarkup.h"
#include "tests/editor/MarkedSource.h"
#include "tests/support/FreshHome.h"

using namespace brenix;
using namespace Qt::StringLiterals;

namespace {

const QString Far(300, u'x');

TEST(TypingSteps, HomeAndEnter)
{
    const QString handedOn = u" handed on"_s;
    // clang-format off
    const struct
    {
        const char *name;
        bool (*step)(SourceView &);
        QString before;
        QString after;
    } rows[] = {
        {"Home on the first line", HomeStep, u"  x|"_s, u"  x|"_s + handedOn},
        {"Home", HomeStep, u"a\n  xy|z"_s, u"a\n  |xyz"_s},
        {"Home, a second time", HomeStep, u"a\n  |xyz"_s, u"a\n  |xyz"_s + handedOn},
        {"Home at the line's start", HomeStep, u"a\n|  x"_s, u"a\n|  x"_s + handedOn},
        {"Home among the blanks", HomeStep, u"a\n | x"_s, u"a\n | x"_s + handedOn},
        {"Home and a tab", HomeStep, u"a\n \tx|y"_s, u"a\n |\txy"_s},
        {"Home at the end", HomeStep, u"a\n  x|"_s, u"a\n  |x "_s},
        {"Home in a selection", HomeStep, u"a\n  [x]y"_s, u"a\n  |xy"_s + handedOn},
        {"Home 199 behind the start", HomeStep, u"\n"_s + Far.first(199) + u"|y"_s,
         u"\n|"_s + Far.first(199) + u"y"_s},
        {"Home far behind the start", HomeStep, u"\n"_s + Far + u"|y"_s,
         u"\n"_s + Far.first(100) + u"|"_s + Far.first(200) + u"y"_s},
        {"Home never into a pair of surrogates", HomeStep, 
         u"\n"_s + Far + u"\U0001F600"_s + Far.first(199) + u"|y"_s,
         u"\n"_s + Far + u"|\U0001F600"_s + Far.first(199) + u"y"_s},
        {"Enter on the first line", EnterStep, u"  x|"_s, u"  x|"_s + handedOn},
        {"Enter", EnterStep, u"a\n  x|y"_s, u"a\n  x\n  |y"_s},
        {"Enter among the blanks", EnterStep, u"a\n | x"_s, u"a\n \n | x"_s},
        {"Enter at the line's start", EnterStep, u"a\n|  x"_s, u"a\n\n|  x"_s},
        {"Enter at the end", EnterStep, u"a\n  x|"_s, u"a\n  x\n  | "_s},
        {"Enter over a selection", EnterStep, u"a\n  [x\nb]y"_s, u"a\n  \n  |y"_s},
        {"Enter after a tab", EnterStep, u"a\n\t x|y"_s, u"a\n\t x\n|y"_s},
        {"Enter far behind the start", EnterStep, u"\n  "_s + Far + u"|y"_s, u"\n  "_s + Far + u"\n|y"_s},
    };
    // clang-format on
    for (const auto &row : rows) {
        MemorySource source = MarkedSource(row.before);
        const bool done = row.step(source);
        EXPECT_EQ(Marked(source) + (done ? QString() : handedOn), row.after) << row.name;
    }
}

TEST(TypingSteps, EndTags)
{
    const QString none = u"none"_s;
    const QString takesNone = u"takes none"_s;
    // clang-format off
    const struct
    {
        QString before; // the caret is behind it
        QString endTag;
    } rows[] = {
        {u"<b>"_s, u"</b>"_s}, {u"<B>"_s, u"</B>"_s}, {u"<td class=x>"_s, u"</td>"_s},
        {u"<b >"_s, u"</b >"_s}, {u"<>"_s, u"</>"_s}, {u"x <a b> y <p>"_s, u"</p>"_s},
        {u"</b>"_s, none}, {u"<\\b>"_s, none}, {u"a>"_s, none}, {u"<b> a>"_s, none},
        {u">"_s, none}, {{}, none}, {u"<META>"_s, takesNone},
        {u"<meta name=\"a\">"_s, u"</meta>"_s}, {u"<HR SIZE=1>"_s, u"</HR>"_s},
        {u"<hr size=1>"_s, takesNone}, {u"<frameset>"_s, takesNone}, {u"<IMG>"_s, u"</IMG>"_s},
        {u"<!-- a -->"_s, takesNone}, {u"<col>"_s, u"</col>"_s}, {u"<col span=2>"_s, takesNone},
        {u"<link>"_s, takesNone}, {u"<li>"_s, takesNone}, {u"<li value=2>"_s, u"</li>"_s},
        {u"<a "_s + Far.first(97) + u'>', u"</a>"_s}, {u"<a "_s + Far.first(98) + u'>', none},
    };
    // clang-format on
    for (const auto &row : rows) {
        const MemorySource source = MarkedSource(row.before + u"|<i>"_s);
        const EndTagSearch search = FindEndTag(source);
        EXPECT_EQ(search.takesNone              ? takesNone
                      : search.endTag.isEmpty() ? none
                                                : search.endTag,
                  row.endTag)
            << row.before.toStdString();
    }
    EXPECT_EQ(FindEndTag(MarkedSource(u"<td a>|"_s), EndTagName::Upper).endTag, u"</TD>"_s);
    EXPECT_EQ(FindEndTag(MarkedSource(u"<td>|"_s), EndTagName::Upper).endTag, u"</td>"_s);
}

TEST(TypingSteps, ShortcutsAndInsertion)
{
    const FreshHome home;
    using namespace VirtualKey;
    constexpr int Control = ShiftBit::Control;
    constexpr int Shift = ShiftBit::Shift;
    const QString handedOn = u"handed on"_s;
    // clang-format off
    const struct
    {
        int keyCode;
        int shift;
        QString before;
        QString lower;
        QString upper;
    } rows[] = {
        {Return, Control, u"a[b]"_s, u"a<p>|"_s, u"a<P>|"_s},
        {Return, Shift, u"a|b"_s, u"a<br>|b"_s, u"a<BR>|b"_s},
        {Return, Shift | Control, u"a|b"_s, u"a<br>|b"_s, u"a<BR>|b"_s},
        {Return, 0, u"a|b"_s, handedOn, handedOn},
        {Add, Control, u"[x]"_s, u"<big>x|</big>"_s, u"<BIG>x|</BIG>"_s},
        {Subtract, Control, u"[x]"_s, u"<small>x|</small>"_s, u"<SMALL>x|</SMALL>"_s},
        {Space, Control, u"[x]"_s, u"&nbsp;|"_s, u"&nbsp;|"_s},
        {Space, Shift, u"[x]"_s, u"&nbsp;|"_s, u"&nbsp;|"_s},
        {Space, 0, u"[x]"_s, handedOn, handedOn},
        {'B', Control, u"a[X\ny]b"_s, u"a<b>X\ny|</b>b"_s, u"a<B>X\ny|</B>b"_s},
        {'B', Control | Shift, u"[x]"_s, handedOn, handedOn},
        {'B', 0, u"[x]"_s, handedOn, handedOn},
        {'I', Control, u"|"_s, u"<i>|</i>"_s, u"<I>|</I>"_s},
        {'U', Control, u"|"_s, u"<u>|</u>"_s, u"<U>|</U>"_s},
        {'L', Control, u"[x]"_s, u"<div align=\"left\">x|x<div>"_s, u"<DIV ALIGN=\"LEFT\">x|x<DIV>"_s},
        {'E', Control, u"|"_s, u"<div align=\"center\">|</div>"_s, u"<DIV ALIGN=\"CENTER\">|</DIV>"_s},
        {'R', Control, u"[<Q>]"_s, u"<div align=\"right\"><Q>|<q></div>"_s, u"<DIV ALIGN=\"RIGHT\"><Q>|<Q></DIV>"_s},
        {Tab, 0, u"a[b\nc]"_s, u"a    |"_s, u"a    |"_s},
        {Tab, Shift, u"a|"_s, handedOn, handedOn},
        {Tab, Control, u"a|"_s, handedOn, handedOn},
    };
    // clang-format on
    for (const QString &tagCase : {u"1"_s, u"0"_s}) {
        SaveSetting(u"Editor", u"TagCase", tagCase);
        for (const auto &row : rows) {
            MemorySource source = MarkedSource(row.before);
            const bool taken = ApplyShortcut(source, row.keyCode, row.shift);
            EXPECT_EQ(taken ? Marked(source) : handedOn, tagCase == u"1" ? row.lower : row.upper)
                << row.keyCode << " shift " << row.shift;
        }
    }
}

TEST(InsertMarkup, TextsOfAllKinds)
{
    const FreshHome home;
    // clang-format off
    const struct
    {
        const char *name;
        QString text;
        QString after;
    } rows[] = {
        {"an entity", u"&Eacute;<B>"_s, u"a&Eacute;<B>|d"_s},
        {"a single tag with its values", u"<IMG SRC=\"X\">"_s, u"a<img src=\"x\">|d"_s},
        {"only tags change", u"<P ID=A>One</P>Two<"_s, u"a<p id=a>Bc|One</p>Two<d"_s},
        {"no tag", u"One"_s, u"aBc|Oned"_s},
        {"nothing", {}, u"aBc|d"_s},
    };
    // clang-format on
    for (const auto &row : rows) {
        MemoryDocument page;
        page.source = MarkedSource(u"a[Bc]d"_s);
        InsertMarkup(page, row.text);
        EXPECT_EQ(Marked(page.source), row.after) << row.name;
        EXPECT_EQ(page.Modyfied(), u"1"_s);
        EXPECT_TRUE(page.KeyDone);
        page.source.AddUndo();
        page.source.Undo();
        EXPECT_EQ(page.source.Text(), u"aBcd"_s) << row.name;

        page.Status = u"Design"_s;
        InsertMarkup(page, row.text);
        EXPECT_EQ(page.design.html, row.text) << row.name;
        EXPECT_EQ(page.source.Text(), u"aBcd"_s) << row.name;
    }
    MemoryDocument page;
    page.source.isReadOnlyPage = true;
    InsertMarkup(page, u"<b>"_s);
    EXPECT_EQ(page.Modyfied() + page.source.Text(), u"0"_s);
}

TEST(InsertMarkup, TagIsPutInAsItIs)
{
    MemorySource source = MarkedSource(u"a[b]c"_s);
    InsertTag(source, u"<B></B>"_s);
    EXPECT_EQ(Marked(source), u"a<B>|</B>c"_s);
    InsertTag(source, u"<BR>"_s);
    EXPECT_EQ(Marked(source), u"a<B><BR>|</B>c"_s);
    EXPECT_TRUE(source.hasFocus);
    EXPECT_EQ(source.UndoCount(), 0);
}

} // namespace
