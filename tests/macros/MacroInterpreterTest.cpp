#include "macros/MacroInterpreter.h"

#include "support/SettingsStore.h"
#include "tests/editor/MarkedSource.h"
#include "tests/support/FreshHome.h"
#include "tests/support/SourceTree.h"

#include <QDir>

using namespace brenix;
using namespace Qt::StringLiterals;

namespace {

/// A program in memory, which keeps what it was asked for.
class MemoryHost : public MacroHost
{
public:
    DocumentModel *Page() override { return isClosed ? nullptr : &page; }
    bool LetEventsRun() override { return true; }
    bool Wait(qint64 milliseconds) override
    {
        asked += u"wait %1"_s.arg(milliseconds);
        isClosed = closesInWait;
        return !isStopped;
    }
    void Command(const QString &menuName) override { asked += menuName; }
    void NewHtml() override { page.source.SetText(QString(300, u'x')); }
    void End() override { asked += u"end"_s; }
    void Beep() override { asked += u"beep"_s; }
    QString ClipboardText() override { return clipboard; }
    void SetClipboardText(const QString &text) override { clipboard = text; }
    void SetSearchText(const QString &text) override { asked += u"search "_s + text; }
    void PressKeys(const QList<KeyStroke> &keys) override
    {
        for (const KeyStroke &stroke : keys)
            asked += u"key %1"_s.arg(stroke.key, 0, 16);
    }
    bool StartProgram(const QString &program, const QStringList &arguments) override
    {
        asked += u"run "_s + program + u'|' + arguments.join(u'|');
        return program != u"missing";
    }

    MemoryDocument page;
    QStringList asked;
    QString clipboard = u"clip"_s;
    bool isStopped = false;
    bool isClosed = false;
    bool closesInWait = false;
};

struct Row
{
    const char *name;
    QString macro;
    QString before;
    QString after;
    QString asked = {};
    int error = 0;
};

// clang-format off
const Row rows[] = {
    {"plain text is typed whole", u"a\nb\n"_s, u"x|y"_s, u"xa\nb|y"_s},
    {"typing replaces the selection", u"a"_s, u"x[y]z"_s, u"xa|z"_s},
    {"text before the first bracket is not typed", u"text [beep] more"_s, u"|"_s, u" more|"_s, u"beep"_s},
    {"text between words is", u"[beep]a[beep]b"_s, u"|"_s, u"ab|"_s, u"beep beep"_s},
    {"any case", u"[BEEP]"_s, u"|"_s, u"|"_s, u"beep"_s},
    {"an unknown word is typed in lower case", u"[ Beep][Ab]"_s, u"|"_s, u"[ beep][ab]|"_s},
    {"brackets do not nest", u"[a[beep]b]"_s, u"|"_s, u"[a[beep]b]|"_s},
    {"empty", u""_s, u"x|"_s, u"x|"_s},
    {"empty word", u"[]"_s, u"|"_s, u"[]|"_s},
    {"a comma ends a line", u"a,\"b,c\"d,e"_s, u"|"_s, u"a\nb,c\ne|"_s},
    {"unclosed bracket", u"[beep]a[beep"_s, u"|"_s, u"a|"_s, u"beep"_s, MacroError::InvalidCall},
    {"menu commands", u"[find next][select all][select tag][show/hide toolbox][refresh browser][table wizard][new doc]"_s,
     u"|"_s, u"|"_s, u"mnuSearchNext mnuSelectAll mnuSelectTag mnuToolboxs mnuViewRefresh mnuTable mnuFileNew"_s},
    {"end is the end", u"[end]a[beep]"_s, u"|"_s, u"|"_s, u"end"_s},
    {"cut and paste", u"[cut](#[paste])"_s, u"a[b]c"_s, u"a(#b)|c"_s},
    {"copy and paste", u"[copy][paste][paste]"_s, u"a[b]c"_s, u"abb|c"_s},
    {"paste what was there", u"[paste]"_s, u"a|"_s, u"aclip|"_s},
    {"paste nothing over a selection", u"[move cursor='0'][copy][selection length='1'][paste]"_s, u"|abc"_s, u"|bc"_s},
    {"cut nothing, paste nothing", u"[cut]<[paste]>"_s, u"a|"_s, u"a<>|"_s},
    {"new page", u"[new html][selection length='200']!"_s, u"|"_s, QString(192, u'x') + u"!|"_s},
    {"caret forward", u"[move cursor='+2']"_s, u"|abcd"_s, u"ab|cd"_s},
    {"one digit counts", u"[move cursor='+12']"_s, u"|abcd"_s, u"a|bcd"_s},
    {"caret back", u"[move cursor='-1']"_s, u"abc|d"_s, u"ab|cd"_s},
    {"not before the start", u"[move cursor='-9']"_s, u"abc|d"_s, u"|abcd"_s},
    {"caret to a place", u"[move cursor='31']"_s, u"|abcd"_s, u"abc|d"_s},
    {"no digit", u"[move cursor='x']"_s, u"|ab"_s, u"|ab"_s, {}, MacroError::TypeMismatch},
    {"sign alone", u"[move cursor='+']"_s, u"|ab"_s, u"|ab"_s, {}, MacroError::TypeMismatch},
    {"cut short", u"[move cursor=']"_s, u"|ab"_s, u"|ab"_s, {}, MacroError::TypeMismatch},
    {"search", u"[search for 'ABC']#"_s, u"abc |abc Abc"_s, u"abc #| Abc"_s, u"search abc"_s},
    {"search in vain", u"[search for 'x']"_s, u"a[b]c"_s, u"a|bc"_s, u"search x"_s},
    {"search, unclosed", u"[search for 'x]"_s, u"|"_s, u"|"_s, {}, MacroError::InvalidCall},
    {"select", u"[selection length='2']#"_s, u"a|bcd"_s, u"a#|d"_s},
    {"select no number", u"[selection length='two']"_s, u"|a"_s, u"|a"_s, {}, MacroError::TypeMismatch},
    {"select less than nothing", u"[selection length='-1']"_s, u"|a"_s, u"|a"_s, {}, MacroError::Overflow},
    {"send keys", u"[send key='a{F2}']"_s, u"|"_s, u"|"_s, u"key 41 key 1000031"_s},
    {"send no key", u"[send key='{what}']"_s, u"|"_s, u"|"_s, {}, MacroError::InvalidCall},
    {"insert a tag", u"[insert tag='<B></B>']"_s, u"a[b]c"_s, u"a<b>b|</b>c"_s},
    {"replace", u"[replace all 'ab' with 'xy']"_s, u"ab a|b AB"_s, u"xy x|y xy"_s},
    {"a longer text is cut", u"[replace all 'ab' with 'xyz']"_s, u"|ab"_s, u"|xy"_s},
    {"a shorter one takes the quote along", u"[replace all 'abc' with 'x']"_s, u"|abc"_s, u"|x'"_s},
    {"replace by nothing at all", u"[replace all 'ab']"_s, u"|abc"_s, u"|c"_s},
    {"replace nothing", u"[replace all '' with 'x']"_s, u"|abc"_s, u"|abc"_s},
    {"replace, unclosed", u"[replace all 'ab]"_s, u"|ab"_s, u"|ab"_s, {}, MacroError::InvalidCall},
    {"run", u"[run='prog \"a b\" c']"_s, u"|"_s, u"|"_s, u"run prog|a b|c"_s},
    {"run what is missing", u"[run='missing']x"_s, u"|"_s, u"|"_s, u"run missing|"_s, MacroError::FileNotFound},
    {"run nothing", u"[run='']"_s, u"|"_s, u"|"_s, {}, MacroError::InvalidCall},
    {"a word that begins with run", u"[runner]"_s, u"|"_s, u"|"_s, {}, MacroError::InvalidCall},
    {"wait in both forms", u"[wait '5'][wait='31536000000']a"_s, u"|"_s, u"a|"_s, u"wait 5 wait 31536000000"_s},
    {"wait for no number", u"[wait 'x']a"_s, u"|"_s, u"|"_s, {}, MacroError::TypeMismatch},
};
// clang-format on

TEST(MacroInterpreter, CarriesOutItsWords)
{
    const FreshHome home;
    for (const Row &row : rows) {
        SCOPED_TRACE(row.name);
        MemoryHost host;
        host.page.source = MarkedSource(row.before);
        EXPECT_EQ(RunMacro(MacroText(row.macro), host).number, row.error);
        EXPECT_EQ(Marked(host.page.source), row.after);
        EXPECT_EQ(host.asked.join(u' '), row.asked);
    }
}

TEST(MacroInterpreter, ChangesNoPageThatCanOnlyBeRead)
{
    for (const Row &row : rows) {
        MemoryHost host;
        host.page.source = MarkedSource(u"a[b]c\tAB"_s);
        host.page.source.isReadOnlyPage = true;
        if (!row.macro.contains(u"new html"_s)) {
            RunMacro(MacroText(row.macro), host);
            EXPECT_EQ(host.page.source.Text(), u"abc\tAB"_s) << row.name;
        }
    }
}

TEST(MacroInterpreter, EndsWhenItIsToldTo)
{
    for (const bool closes : {false, true}) {
        MemoryHost host;
        host.isStopped = !closes;
        host.closesInWait = closes;
        EXPECT_FALSE(RunMacro(u"[wait '1']a[beep]b"_s, host));
        EXPECT_EQ(host.asked, QStringList{u"wait 1"_s});
        EXPECT_EQ(host.page.source.Text(), QString());
    }
}

TEST(MacroInterpreter, EveryInsertionCanBeUndone)
{
    MemoryHost host;
    host.page.source = MarkedSource(u"abc|"_s);
    RunMacro(u"[beep]1[replace all 'b' with 'x'][cut][paste]"_s, host);
    EXPECT_EQ(host.page.source.UndoCount(), 2);
    host.page.source.Undo();
    EXPECT_EQ(host.page.source.Text(), u"abc"_s);
}

TEST(MacroInterpreter, ShippedMacrosRun)
{
    const QDir folder(SourceFile("data/Macro"));
    const QStringList names = folder.entryList(QDir::Files);
    EXPECT_GE(names.size(), 6);
    for (const QString &name : names) {
        QFile file(folder.filePath(name));
        ASSERT_TRUE(file.open(QIODevice::ReadOnly));
        MemoryHost host;
        EXPECT_FALSE(RunMacro(MacroText(QString::fromUtf8(file.readAll())), host))
            << name.toStdString();
        EXPECT_FALSE(host.page.source.Text().contains(u'[')) << name.toStdString();
    }
}

} // namespace
