#include "editor/CodeHighlight.h"
#include "editor/Gutter.h"
#include "editor/LargeFile.h"
#include "support/SettingsStore.h"
#include "tests/editor/EditorScript.h"
#include "tests/support/ScriptedBoxes.h"
#include "tests/support/SourceTree.h"

#include <QFile>
#include <QScrollBar>
#include <QTextLayout>

using namespace brenix;
using namespace Qt::StringLiterals;

namespace {

enum { None, Basic, Java, Html, Tidy };

constexpr SyntaxColours Colours{.keyword = 1, .op = 2, .function = 3, .delimiter = 4};

// What is seen of a page: a letter for the colour of each unit, capital where it is bold; blocks
// apart by LF. Lines are painted as they come into view.
QString Looks(CodeHighlight &editor)
{
    editor.resize(400, 300);
    editor.show();
    for (int top = 0; top <= editor.verticalScrollBar()->maximum(); top += 5) {
        editor.verticalScrollBar()->setValue(top);
        editor.grab();
    }
    QStringList blocks;
    for (QTextBlock block = editor.document()->begin(); block.isValid(); block = block.next()) {
        QString looks(block.length() - 1, u'.');
        for (const QTextLayout::FormatRange &range : block.layout()->formats()) {
            const QChar colour = u".kofd"_s[range.format.foreground().color().red()];
            const bool bold = range.format.fontWeight() == QFont::Bold;
            looks.replace(
                range.start, range.length, QString(range.length, bold ? colour.toUpper() : colour));
        }
        blocks.append(looks);
    }
    return blocks.join(u'\n');
}

// The same for a text that is coloured as a whole.
QString LooksOfWhole(const QString &text, int language)
{
    SyntaxTables tables;
    tables.SetLanguage(language);
    QString looks(text.size(), u'.');
    for (const ColourRun &run : ColourRuns(text, tables)) {
        const QChar colour = u".kofd"_s[int(run.colour)];
        looks.replace(
            run.start, run.length, QString(run.length, run.bold ? colour.toUpper() : colour));
    }
    for (qsizetype end = text.indexOf(u"\r\n"); end >= 0; end = text.indexOf(u"\r\n", end + 2))
        looks.replace(end, 2, u"\r\n"_s);
    return looks.replace(u"\r\n"_s, u"\n"_s);
}

} // namespace

TEST(CodeHighlightColour, AfterKeys)
{
    const struct
    {
        const char *name;
        int language;
        int highlightCode;
        QString before;
        QString keys;
        QString after;
    } rows[] = {
        {"as loaded", Html, 1, u"|<!--a\nb-->c"_s, {}, u"kkkkk\nkkkk."_s},
        {"a letter takes the look before it", Html, 1, u"<b|>"_s, u"x"_s, u"dddd"_s},
        {"delimiter: its line starts afresh",
         Html,
         1,
         u"<!--a\n|b-->"_s,
         u"x "_s,
         u"kkkkk\n...ooo"_s},
        {"its tag is closed by the next delimiter", Html, 1, u"|"_s, u"<b>x "_s, u"ddd.."_s},
        {"leaving a line", Html, 1, u"<!--a\n|b-->\nc"_s, u"\u2193"_s, u"kkkkk\n.ooo\n."_s},
        {"other lines are not touched",
         Html,
         1,
         u"<b\n|c\nd\n>"_s,
         u"\u2193\u2193"_s,
         u"dd\n.\n.\nd"_s},
        {"no repaint by delimiters", Html, -1, u"<!--a\n|b-->"_s, u"x "_s, u"kkkkk\n..kkkk"_s},
        {"but by leaving", Html, -1, u"<!--a\n|b-->\n"_s, u"x \u2193"_s, u"kkkkk\n...ooo\n"_s},
        {"Enter", Html, 1, u"<b>|</a>"_s, u"\u23CE"_s, u"ddd\nDDDD"_s},
        {"entity", Html, 1, u"|\n"_s, u"&lt;\u2193"_s, u"FFFF\n"_s},
        {"word", Java, 1, u"|\n"_s, u"int x\u2193"_s, u"kkk..\n"_s},
    };
    for (const auto &row : rows) {
        CodeHighlight editor;
        editor.SetColours(Colours);
        editor.SetLanguage(row.language);
        editor.SetHighlightCode(row.highlightCode);
        SetMarked(editor, row.before);
        Looks(editor);
        Type(editor, row.keys);
        EXPECT_EQ(Looks(editor), row.after) << row.name;
    }
}

// A line that was not yet in view when a line above it was painted anew.
TEST(CodeHighlightColour, LinesOutOfViewKeepWhatTheyWere)
{
    for (const bool seenBefore : {true, false}) {
        CodeHighlight editor;
        editor.SetColours(Colours);
        editor.SetLanguage(Html);
        SetMarked(editor, u"<!--\n|a\nbb\nc-->"_s);
        if (seenBefore)
            Looks(editor);
        Type(editor, u"\u2191"_s);
        EXPECT_EQ(Looks(editor), u"kkkk\n.\nkk\nkkkk"_s) << seenBefore;
    }
}

TEST(CodeHighlightColour, LazyLinesLookLikeTheWholePage)
{
    QFile file(SourceFile("docs/sample.html"));
    ASSERT_TRUE(file.open(QFile::ReadOnly));
    const QString page = QString::fromUtf8(file.readAll()).replace(u"\n"_s, u"\r\n"_s);
    const QString oneLine = QString(page).replace(u"\r\n"_s, u" "_s).repeated(3);
    // The place where a long line is cut lies within the end of its comment.
    const QString cutEnd = u"/*"_s + QString(2045, u'x') + u"*/"_s + QString(3000, u'y');
    const int limit = LargeFile();
    SetLargeFile(1 << 20); // more than 16 bits hold
    for (const QString &text : {page, oneLine, cutEnd}) {
        for (const int language : {Basic, Java, Html, Tidy}) {
            CodeHighlight editor;
            editor.SetColours(Colours);
            editor.SetLanguage(language);
            editor.SetText(text);
            const bool softBreaks = editor.LineCount() < editor.document()->blockCount();
            QString looks = Looks(editor);
            EXPECT_EQ(softBreaks ? looks.remove(u'\n') : looks, LooksOfWhole(text, language))
                << language;
        }
    }
    SetLargeFile(limit);
}

TEST(CodeHighlightColour, TheLimit)
{
    ScriptedBoxes boxes;
    const int limit = LargeFile();
    SetLargeFile(20);
    SaveSetting(u"Settings", u"Bigfile", u"True"_s);
    const QString large = u"<b>\r\n"_s.repeated(4) + u"x"_s;
    {
        CodeHighlight editor;
        editor.SetColours(Colours);
        editor.SetText(large);
        EXPECT_EQ(editor.HighlightBlock(large), large);
        EXPECT_TRUE(boxes.asked.isEmpty()) << "no language, no message";
        editor.SetText({});
        editor.SetLanguage(Html);
        EXPECT_NE(editor.HighlightBlock(large.left(20)), large.left(20));
        EXPECT_EQ(editor.HighlightBlock(large), large) << "whatever the page itself holds";
        EXPECT_EQ(boxes.asked.size(), 1);
    }
    SaveSetting(u"Settings", u"Bigfile", u"True"_s);
    boxes.asked.clear();
    CodeHighlight editor;
    editor.SetColours(Colours);
    editor.SetLanguage(Html);
    editor.SetText(large);
    editor.SetText(large + u"y"_s);
    ASSERT_EQ(boxes.asked.size(), 1) << "once per user";
    EXPECT_TRUE(boxes.asked[0].startsWith(u"This is very large!"_s));
    EXPECT_EQ(Looks(editor), u"...\n...\n...\n...\n.."_s);
    editor.SetLineIndex(1);
    Type(editor, u"\u2193"_s);
    EXPECT_EQ(Looks(editor), u"ddd\nddd\n...\n...\n.."_s) << "coloured as it is worked on";
    EXPECT_EQ(boxes.asked.size(), 1);
    SetLargeFile(limit);
}

// The message runs an event loop of its own.
TEST(CodeHighlightColour, ThePageCanBePaintedWhileTheLimitsMessageStands)
{
    ScriptedBoxes boxes;
    const int limit = LargeFile();
    CodeHighlight editor;
    editor.SetLanguage(Java);
    editor.SetText(u"/*\r\n"_s.repeated(20));
    int told = 0;
    Scripted().msgBox = [&](const QString &, Buttons, Icon) {
        EXPECT_TRUE(editor.updatesEnabled());
        editor.show();
        editor.grab();
        ++told;
        return Answer::Ok;
    };
    SetLargeFile(20);
    const QString page = SourceFile("docs/sample.html");
    const std::function<void()> commands[] = {
        [&] { editor.SetLanguage(Html); },
        [&] { editor.SetText(u"x"_s.repeated(21)); },
        [&] { editor.SetSelText(u"y"_s.repeated(21)); },
        [&] { editor.LoadFile(page); },
    };
    for (const auto &command : commands) {
        SaveSetting(u"Settings", u"Bigfile", u"True"_s);
        told = 0;
        command();
        EXPECT_EQ(told, 1);
    }
    SetLargeFile(limit);
}

TEST(CodeHighlightColour, SpellingOfEditedBasicLines)
{
    const struct
    {
        const char *name;
        QString before;
        QString keys;
        QString after;
    } rows[] = {
        {"typed", u"|"_s, u"dim a"_s, u"Dim a|"_s},
        {"at the next delimiter, not before", u"|"_s, u"dim"_s, u"dim|"_s},
        {"left without an edit", u"|dim\ndim"_s, u"\u2193"_s, u"dim\n|dim"_s},
        {"left with an edit", u"|dim\ndim"_s, u" \u2193"_s, u" Dim\nd|im"_s},
        {"Enter", u"dim|\ndim"_s, u" \u23CE"_s, u"Dim \n|\ndim"_s},
        {"in a string", u"\"dim|\""_s, u" \u2190"_s, u"\"dim| \""_s},
        {"the line below a joined one", u"dim\n|dim\ndim"_s, u"\u232B"_s, u"dim|dim\ndim"_s},
        {"a joined line is an edited one", u"dim\n|(\nx"_s, u"\u232B\u2193"_s, u"Dim(\nx|"_s},
        {"the line below a selection that is typed over",
         u"a\n|dim\ndim\ndim"_s,
         u"\u2193\u21E7\u2191x"_s,
         u"a\nx|dim\ndim"_s},
        {"an edited line that was come to by selecting",
         u"dim\ndim\n|dim"_s,
         u"\u21E7\u2191 "_s,
         u"dim\n |dim"_s},
    };
    for (const auto &row : rows) {
        CodeHighlight editor;
        editor.SetLanguage(Basic);
        SetMarked(editor, row.before);
        Type(editor, row.keys);
        EXPECT_EQ(Marked(editor), row.after) << row.name;
        ExpectTextIsShown(editor);
    }
    CodeHighlight editor;
    editor.SetLanguage(Basic);
    editor.SetGiveCorrectCase(false);
    Type(editor, u"dim a "_s);
    EXPECT_EQ(Marked(editor), u"dim a |"_s);
    EXPECT_TRUE(editor.HighlightBlock(u"dim"_s).endsWith(u"\\cf1 dim\\cf0 }"_s));
}

TEST(CodeHighlightColour, ALanguageThatDoesNotExist)
{
    CodeHighlight editor;
    editor.SetColours(Colours);
    editor.SetLanguage(Html);
    editor.SetText(u"<b>"_s);
    editor.SetLanguage(7);
    EXPECT_EQ(editor.Language(), 7);
    EXPECT_EQ(Looks(editor), u"ddd"_s);
    editor.SetLanguage(None);
    EXPECT_EQ(Looks(editor), u"..."_s);
}

TEST(CodeHighlightColour, FiftyNumbersFromTheFirstVisibleLine)
{
    CodeHighlight editor;
    const auto *gutter = editor.findChild<QWidget *>(u"Label1"_s);
    ASSERT_NE(gutter, nullptr);
    const auto numbers = [gutter] {
        const QString label = static_cast<const Gutter *>(gutter)->Label();
        return label.left(label.indexOf(u'\n')) + u' ' + QString::number(label.count(u'\n'));
    };
    EXPECT_EQ(numbers(), u"1 50"_s);
    int scrolled = 0;
    QObject::connect(&editor, &CodeHighlight::Scrolled, [&scrolled] { ++scrolled; });
    editor.SetText(u"\r\n"_s.repeated(200));
    editor.resize(300, 200);
    editor.show();
    scrolled = 0;
    editor.verticalScrollBar()->setValue(70);
    EXPECT_EQ(numbers(), u"71 50"_s);
    EXPECT_EQ(scrolled, 1);
}

// Beside the numbers there may be no room for the scroll bar that wrapped lines would need there.
TEST(CodeHighlightColour, AViewOfAnyWidthComesToRest)
{
    CodeHighlight editor;
    editor.SetMargin(0);
    editor.SetText(u"word "_s.repeated(60));
    editor.show();
    for (int width = 0; width < 100; ++width) {
        editor.resize(width, 50);
        QCoreApplication::processEvents();
    }
    EXPECT_TRUE(editor.verticalScrollBar()->isVisible());
}
