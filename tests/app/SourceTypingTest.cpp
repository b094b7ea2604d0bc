#include "editor/SourceTyping.h"

#include "app/frmDocument.h"
#include "editor/CodeHighlight.h"
#include "support/SettingsStore.h"
#include "tests/editor/EditorScript.h"
#include "tests/support/FreshHome.h"
#include "tests/support/Input.h"
#include "tests/support/MemoryDocument.h"
#include "tests/support/ScriptedBoxes.h"
#include "tests/support/WaitFor.h"
#include "tests/support/WithFolder.h"

#include <QListWidget>
#include <QScrollBar>

#include <map>

using namespace brenix;
using namespace Qt::StringLiterals;

namespace {

struct ShownList
{
    QString name;
    QStringList rows;
};

// What the keys do by the rules alone, given the lists that are up when a key comes, the one in
// front first. End tags are offered in their list or put in.
class TypingRules
{
public:
    explicit TypingRules(bool putsIn)
        : m_putsIn(putsIn)
    {
    }

    void Key(QChar key, const QList<ShownList> &lists)
    {
        std::map<QString, QString> typed;
        for (const ShownList &list : lists)
            typed[list.name] = m_typed[list.name];
        m_typed = typed;
        m_offered.clear();
        const bool accepts = key == u' ' || key == u'\n';
        if (accepts && !lists.isEmpty() && AcceptsRow(key, lists.first()))
            return;
        for (auto &[list, word] : m_typed)
            word += key;
        if (key == u'\n')
            Enter();
        else if (key == u'>')
            EndTag();
        else
            page.SetSelText(key);
    }
    /// The end tag that the last key offers in its list.
    QString Offered() const { return m_offered; }

    MemorySource page;

private:
    QString Match(const char16_t *pattern, int part) const
    {
        const QRegularExpression expression(QString::fromUtf16(pattern));
        return expression.match(page.TextAt(page.SelStart() - 300, 300)).captured(part);
    }
    // The list goes, whatever the key does.
    bool AcceptsRow(QChar key, const ShownList &list)
    {
        const bool ofTags = list.name == u"List2";
        const QString typed = m_typed[list.name];
        m_typed.erase(list.name);
        const QRegularExpression start(u'^' + QRegularExpression::escape(typed),
                                       QRegularExpression::CaseInsensitiveOption);
        const QString row
            = typed.isEmpty() && !ofTags ? QString() : list.rows.filter(start).value(0);
        if (row.isEmpty())
            return false;
        const bool upper = ofTags && !typed.isEmpty() && typed == typed.toUpper();
        const bool hasValue = list.name != u"List5" && row.endsWith(u'=');
        const QString rest = row.mid(typed.size()) + (hasValue ? u"\"\""_s : QString());
        page.SetSelText(upper ? rest.toUpper() : rest);
        page.SetSelStart(page.SelStart() - (hasValue ? 1 : 0));
        return !rest.isEmpty() || key == u'\n';
    }
    void Enter()
    {
        const QString indent = Match(u"\r\n( *)[^\r\n]{0,199}$", 1);
        const bool firstLine = page.LineIndex() == 0;
        if (!firstLine && page.SelStart() == page.TextLength()) {
            page.SetSelText(u" "_s);
            page.SetSelStart(page.TextLength() - 1);
        }
        page.SetSelText(u"\r\n"_s + (firstLine ? QString() : indent));
    }
    void EndTag()
    {
        const QString tag = Match(u"<[^<>]{0,99}$", 0);
        page.SetSelText(u">"_s);
        m_typed.erase(u"List3"_s);
        const QRegularExpression none(
            u"^(<[/\\\\!]|<param|<frame|<link|<input|<img|<hr|<base|<area|(?i:<(br|meta|li)$))"_s);
        if (tag.isEmpty() || none.match(tag).hasMatch())
            return;
        const bool bare = tag.indexOf(u' ') < 0 || tag.indexOf(u' ') == tag.size() - 1;
        const QString end = u"</"_s + (bare ? tag.mid(1) : tag.section(u' ', 0, 0).mid(1)) + u'>';
        if (!m_putsIn) {
            m_offered = end;
        } else if (page.TextAt(page.SelStart(), int(end.size())).compare(end, Qt::CaseInsensitive)
                   != 0) {
            page.SetSelText(end);
            page.SetSelStart(page.SelStart() - int(end.size()));
        }
    }

    const bool m_putsIn;
    std::map<QString, QString> m_typed; // into each list since it came up
    QString m_offered;
};

const QString RealPage = uR"(<!DOCTYPE HTML>
<html>
  <head>
    <meta name="keywords" content="one, two">
    <title>A page & its "title"</title>
    <style type="text/css">p > a { color: #FF0000; }</style>
  </head>
  <BODY bgcolor="#FFFFFF" onload="if (a < b && c > d) start();">
    <!-- a comment -> not its end -->
    <p align=center>Text, <b>bold < bolder</b> and <a href="x.html" title='y'>a link</a>.<br>
    <img src="a.gif" alt="x > y"> &eacute; &lt; \ / <li>one <LI>two

    <table border="0"><tr><td width=10>1</td></tr></table>
    <></ ></x\>
  </BODY>
</html>
)"_s;

class Typing : public testing::Test, protected WithFolder
{
protected:
    Typing()
    {
        Set({u"Auto/TagDuration=1"_s, u"Auto/AttributeDuration=1"_s, u"Settings/Value=1"_s});
        document.resize(600, 400);
        document.show();
        Scripted().chooseColour = [](quint32) { return 0x332211; };
    }

    static void Set(const QStringList &settings)
    {
        for (const QString &setting : settings)
            SaveSetting(setting.section(u'/', 0, 0),
                        setting.section(u'/', 1).section(u'=', 0, 0),
                        setting.section(u'=', 1));
    }
    QListWidget *Shown()
    {
        for (auto *list : document.findChildren<QListWidget *>()) {
            if (list->isVisible())
                return list;
        }
        return nullptr;
    }
    static void ClickRow(QListWidget &list, const QString &row)
    {
        const QList<QListWidgetItem *> items = list.findItems(row, Qt::MatchExactly);
        ASSERT_FALSE(items.isEmpty());
        list.scrollToItem(items.first());
        Click(*list.viewport(), list.visualItemRect(items.first()).center());
    }
    /// All that are up, the one that takes the keys first.
    QList<ShownList> ListsInSight()
    {
        QList<ShownList> lists;
        for (const char16_t *name : {u"List4", u"List5", u"List1", u"List3", u"List2"}) {
            const auto *list = document.findChild<QListWidget *>(QString::fromUtf16(name));
            if (!list || !list->isVisible())
                continue;
            lists.append({list->objectName(), {}});
            for (int row = 0; row < list->count(); ++row)
                lists.last().rows.append(list->item(row)->text());
        }
        return lists;
    }
    /// Keys as for `Type`, and "\u2026": wait until a list comes up.
    void TypeKeys(const QString &keys)
    {
        const QStringList parts = keys.split(u'\u2026');
        Type(source, parts.first());
        for (const QString &part : parts.sliced(1)) {
            EXPECT_TRUE(WaitFor([this] { return Shown(); })) << keys.toStdString();
            Type(source, part);
        }
    }

    /// A timer of 5 ms is due before this one.
    static void LetSnapshotBeTaken() { LetTimersRun(20); }
    static void LetListComeUp() { LetTimersRun(2); }
    static void LetTimersRun(int milliseconds)
    {
        QEventLoop loop;
        QTimer::singleShot(milliseconds, Qt::PreciseTimer, &loop, &QEventLoop::quit);
        loop.exec();
    }

private:
    const FreshHome m_home;

protected:
    ScriptedBoxes boxes;
    QStringList log;
    MemoryBars bars{log};
    frmDocument document{bars, folder.filePath(u"page.html"_s)};
    CodeHighlight &source = document.Source();
};

TEST_F(Typing, TextBeforeKeysTextAfter)
{
    boxes.file = folder.filePath(u"pic.gif"_s);
    const QStringList insertGT = {u"Auto/TagInsertGT=1"_s};
    const QStringList putsIn = {u"Auto/ClosetagVersion=1"_s};
    // clang-format off
    const struct
    {
        const char *name;
        QStringList settings;
        QString before;
        QString keys;
        QString after;
    } rows[] = {
        {"tag", {}, u"|"_s, u"<\u2026im\u23CE"_s, u"<img|"_s},
        {"tag in upper case", {}, u"|"_s, u"<\u2026IM "_s, u"<IMG|"_s},
        {"blank behind a whole name", {}, u"|"_s, u"<\u2026p class"_s, u"<p class|"_s},
        {"Enter behind a whole name", {}, u"|"_s, u"<\u2026p\u23CE"_s, u"<p|"_s},
        {"no tag of that name", {}, u"|"_s, u"<\u2026q9\u23CE"_s, u"<q9\n|"_s},
        {"a fast next key calls the list off", {}, u"|"_s, u"<b\u23CE"_s, u"<b\n|"_s},
        {"tag with a character taken back", {}, u"|"_s, u"<\u2026bod\u232B\u23CE"_s, u"<bo|"_s},
        {"tag taken back as a whole", {}, u"|"_s, u"<\u2026im\u232B\u23CE"_s, u"<i\n|"_s},
        {"the word's end taken back", {}, u"|"_s, u"x<\u2026\u232B "_s, u"x |"_s},
        {"arrow takes the list away", {}, u"|"_s, u"<\u2026\u2190\u23CE"_s, u"\n|<"_s},
        {"tag with its end", insertGT, u"|"_s, u"<\u2026bod\u23CE</\u23CE"_s, u"<body></body>|"_s},
        {"tag that has no end", insertGT + putsIn, u"|"_s, u"<\u2026im\u23CE"_s, u"<img>|"_s},
        {"end tag offered", {}, u"|"_s, u"<b><\u23CE"_s, u"<b></b>|"_s},
        {"end tag chosen by arrow", {}, u"|"_s, u"<b>\u2193\u23CE"_s, u"<b></b>|"_s},
        {"end tag behind a text", {}, u"|"_s, u"<b>old</\u2193\u23CE"_s, u"<b>old</b>|"_s},
        {"end tag in place of another", {}, u"|"_s, u"<b></x\u2193\u23CE"_s, u"<b></b>|"_s},
        {"end tag not chosen", {}, u"|"_s, u"<b> x"_s, u"<b> x|"_s},
        {"end tag put in", putsIn, u"|"_s, u"<TD a=b>x"_s, u"<TD a=b>x|</TD>"_s},
        {"end tag that is there", putsIn, u"|</B>"_s, u"<b>"_s, u"<b>|</B>"_s},
        {"a sign held with Ctrl enters nothing", {}, u"<b|"_s, u"\u2303>"_s, u"<b|"_s},
        {"no end tags", {u"Auto/Closetag=0"_s}, u"|"_s, u"<b><\u23CE"_s, u"<b><\n|"_s},
        {"attribute", {}, u"<a|>"_s, u" \u2026hre\u23CE"_s, u"<a href=\"|\">"_s},
        {"other attribute", {}, u"<a|>"_s, u" \u2026hr\u2193\u23CE"_s, u"<a id=\"|\">"_s},
        {"bare attribute", {}, u"<hr|>"_s, u" \u2026no\u23CE"_s, u"<hr noshade|>"_s},
        {"attribute by arrows", {}, u"<pre|>"_s, u" \u2026c\u2193\u2191 "_s, u"<pre cols=\"|\">"_s},
        {"attribute, then its value", {}, u"<p|>"_s, u" \u2026al \u2026ri "_s, u"<p align=\"right|\">"_s},
        {"value", {}, u"<p align=|>"_s, u"\"\u2026ri\u23CE\""_s, u"<p align=\"right\"|>"_s},
        {"closing quote", {}, u"<p align=|>"_s, u"\"\u2026r\"\u23CE"_s, u"<p align=\"r\"\n|>"_s},
        {"file", {}, u"<a href=|>"_s, u"\"\u2026\u2193\u23CE\""_s, u"<a href=\"pic.gif\"|>"_s},
        {"colour", {}, u"<p text=|>"_s, u"\"\u2026(c\u23CE\""_s, u"<p text=\"(c#112233\"|>"_s},
        {"bold", {}, u"a[x]"_s, u"\u2303B"_s, u"a<b>x|</b>"_s},
        {"Tab", {}, u"a|"_s, u"\u21E5"_s, u"a    |"_s},
        {"Home twice", {}, u"a\n  x|y"_s, u"\u21E41\u21E4\u21E4"_s, u"a\n|  1xy"_s},
        {"Enter keeps the indent", {}, u"a\n  x|"_s, u"\u23CEy"_s, u"a\n  x\n  y| "_s},
    };
    // clang-format on
    for (const auto &row : rows) {
        SCOPED_TRACE(row.name);
        Set({u"Auto/TagInsertGT=0"_s, u"Auto/ClosetagVersion=2"_s, u"Auto/Closetag=1"_s});
        Set(row.settings);
        SetMarked(source, row.before);
        document.RemoveLists();
        TypeKeys(row.keys);
        EXPECT_EQ(Marked(source), row.after);
        EXPECT_EQ(document.Modyfied(), u"1"_s);
        ExpectTextIsShown(source);
    }
}

TEST_F(Typing, UndoTakesBackWhatAKeyInserted)
{
    const struct
    {
        const char *name;
        QString before;
        QString keysBefore;
        QString key;
    } rows[] = {{"Ctrl+B", u"[x]"_s, {}, u"\u2303B"_s},
                {"accepting", u"|"_s, u"<\u2026im"_s, u"\u23CE"_s},
                {"Tab", u"[x]"_s, {}, u"\u21E5"_s},
                {"Ctrl+Enter", u"<b>|"_s, u"x="_s, u"\u2303\u23CE"_s}};
    for (const auto &row : rows) {
        SCOPED_TRACE(row.name);
        SetMarked(source, row.before);
        source.AddUndo();
        TypeKeys(row.keysBefore);
        LetSnapshotBeTaken();
        const QString text = source.Text();
        TypeKeys(row.key);
        const QString after = source.Text();
        ASSERT_NE(after, text);
        LetSnapshotBeTaken();
        source.Undo();
        EXPECT_EQ(source.Text(), text);
        source.Redo();
        EXPECT_EQ(source.Text(), after);
    }
}

TEST_F(Typing, ListStaysInTheWindowAndClearOfTheCaret)
{
    source.SetText((QString(300, u'x') + u"\r\n"_s).repeated(40));
    for (const int line : {0, 1, 20, 39}) {
        for (const int column : {0, 40, 300}) {
            source.SetSelStart(source.LineStartPos(line) + column);
            source.ensureCursorVisible();
            Settle();
            TypeKeys(u"<\u2026"_s);
            ASSERT_TRUE(Shown());
            const QRect place = Shown()->geometry();
            EXPECT_TRUE(document.rect().contains(place)) << line << ':' << column;
            const QPoint caret = source.viewport()->mapTo(&document, source.cursorRect().center());
            EXPECT_FALSE(place.contains(caret)) << line << ':' << column;
            EXPECT_GT(place.height(), 50);
            document.RemoveLists();
        }
    }
}

TEST_F(Typing, ListGoesWhenItsTextDoes)
{
    const std::pair<const char *, std::function<void()>> rows[]
        = {{"scrolling", [this] { source.verticalScrollBar()->setValue(10); }},
           {"clicking into the text",
            [this] {
                Click(*source.viewport(), {50, 50});
            }},
           {"a command", [this] { source.SetSelText(u"x"_s); }},
           {"undo", [this] { source.Undo(); }},
           {"a character of two units",
            [this] { Press(source, Qt::Key_unknown, {}, u"\U0001F600"_s); }},
           {"leaving", [this] {
                QFocusEvent out(QEvent::FocusOut);
                QCoreApplication::sendEvent(&source, &out);
            }}};
    source.SetText(u"\r\n"_s.repeated(100));
    source.AddUndo();
    source.AddUndo();
    for (const auto &[name, leave] : rows) {
        source.SetSelStart(0);
        source.ensureCursorVisible();
        Settle();
        TypeKeys(u"<\u2026"_s);
        leave();
        EXPECT_FALSE(Shown()) << name;
    }
}

TEST_F(Typing, ClickAcceptsARow)
{
    const struct
    {
        const char *name;
        QString before;
        QString keys;
        QString row;
        QString after;
    } rows[] = {
        {"tag", u"|"_s, u"<\u2026im"_s, u"img"_s, u"<img|"_s},
        {"tag of another start", u"|"_s, u"<\u2026im"_s, u"table"_s, u"<table|"_s},
        {"attribute", u"<a|>"_s, u" \u2026"_s, u"href="_s, u"<a href=\"|\">"_s},
        {"value", u"<p align=|>"_s, u"\"\u2026"_s, u"right"_s, u"<p align=\"right|>"_s},
        {"end tag", u"|"_s, u"<b>"_s, u"</b>"_s, u"<b></b>|"_s},
    };
    for (const auto &row : rows) {
        SCOPED_TRACE(row.name);
        SetMarked(source, row.before);
        document.RemoveLists();
        TypeKeys(row.keys);
        LetSnapshotBeTaken();
        const QString text = source.Text();
        ASSERT_TRUE(Shown());
        EXPECT_EQ(Shown()->focusPolicy(), Qt::NoFocus);
        ClickRow(*Shown(), row.row);
        EXPECT_EQ(Marked(source), row.after);
        EXPECT_FALSE(Shown());
        LetSnapshotBeTaken();
        source.Undo();
        EXPECT_EQ(source.Text(), text);
    }
}

TEST_F(Typing, MacrosAreRunFromTheirList)
{
    QString run;
    document.Typing().RunMacro = [&run](const QString &name) { run += name; };
    document.Typing().ShowMacros({u"two"_s, u"one"_s});
    TypeKeys(u"\u2193\u2193\u23CE"_s);
    EXPECT_EQ(run, u"one"_s);
    document.Typing().ShowMacros({u"two"_s, u"one"_s});
    ClickRow(*Shown(), u"two"_s);
    EXPECT_EQ(run, u"onetwo"_s);
    EXPECT_EQ(source.Text() + (Shown() ? u"shown"_s : QString()), QString());
}

TEST_F(Typing, NoKeyIsLostAtAnySpeed)
{
    enum class Speed { Full, EventsBetween, ListsComeUp };
    using enum Speed;
    const struct
    {
        const char *name;
        Speed speed;
        bool putsIn;
    } rows[] = {
        {"full speed", Full, false},
        {"full speed, end tags put in", Full, true},
        {"events between the keys", EventsBetween, false},
        {"a rest at each list", ListsComeUp, false},
        {"a rest at each list, end tags put in", ListsComeUp, true},
    };
    document.Status = u"Split"_s; // the preview follows
    for (const auto &row : rows) {
        SCOPED_TRACE(row.name);
        Set({u"Auto/ClosetagVersion="_s + (row.putsIn ? u'1' : u'2')});
        TypingRules rules(row.putsIn);
        source.SetText({});
        int rests = 0;
        for (const QChar key : RealPage.repeated(3)) {
            rules.Key(key, ListsInSight());
            Type(source, key == u'\n' ? u"\u23CE"_s : QString(key));
            const bool isOffered = ListsInSight().value(0).rows == QStringList{rules.Offered()};
            EXPECT_TRUE(isOffered || rules.Offered().isEmpty()) << rules.Offered().toStdString();
            if (row.speed == EventsBetween)
                QCoreApplication::processEvents();
            else if (row.speed == ListsComeUp && u"< \""_s.contains(key))
                LetListComeUp();
            rests += Shown() && u"< \""_s.contains(key) ? 1 : 0;
        }
        EXPECT_EQ(source.Text(), rules.page.Text());
        EXPECT_EQ(source.SelStart(), rules.page.SelStart());
        EXPECT_TRUE(row.speed != ListsComeUp || rests > 100) << rests;
    }
}

TEST_F(Typing, PageOfOneLongLine)
{
    const QString line = u"<p class=x>text</p>"_s.repeated(1 << 16);
    source.SetText(line);
    for (const int place : {0, int(line.size()) / 2, int(line.size())}) {
        source.SetSelStart(place);
        TypeKeys(u"<\u2026im\u23CE"_s);
        EXPECT_EQ(source.TextAt(place, 4), u"<img"_s);
        EXPECT_EQ(source.SelStart(), place + 4);
    }
    EXPECT_EQ(source.TextLength(), line.size() + 12);
}

} // namespace
