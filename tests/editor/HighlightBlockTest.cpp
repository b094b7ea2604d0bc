#include "editor/HighlightBlock.h"

#include "tests/editor/NaiveScan.h"

using namespace brenix;
using namespace Qt::StringLiterals;

namespace {

const QString head = u"{{\\colortbl ;\\red0\\green128\\blue0;\\red128\\green128\\blue0;"
                     "\\red128\\green128\\blue128;\\red0\\green0\\blue128;}"_s;

enum { None, Basic, Java, Html, Tidy };

struct Case
{
    const char *name;
    std::vector<int> languages; ///< set one after the other
    QString text;
    QString body; ///< the stream without colour table and last brace
};

// clang-format off
const Case cases[] = {
    {"page", {Html}, u"<b>x &amp; y</b>"_s,
     uR"(\cf4<b>\cf0 \cf0 x\cf0  \cf3\i\b\&amp;\b0\i0\cf0  \cf0 y\cf0 \cf4</b>\cf0 )"_s},

    // How blocks are painted.
    {"comment", {Html}, u"<!-- x -->"_s, uR"(\cf1\i<!-- x -->\cf0\i0)"_s},
    {"comment ends at its first >", {Html}, u"<!-->-->"_s, uR"(\cf1\i<!-->\cf0\i0\cf2 -\cf0 \cf2 -\cf0 \cf2 >\cf0 )"_s},
    {"table", {Html}, u"<TABLE border=0>"_s, uR"(\cf2<TABLE border=0>\cf0 )"_s},
    {"end of table", {Html}, u"</table>"_s, uR"(\cf2</table>\cf0 )"_s},
    {"no end of table", {Html}, u"</table >"_s, uR"(\cf4</table >\cf0 )"_s},
    {"cell", {Html}, u"<tD>"_s, uR"(\cf2<tD>\cf0 )"_s},
    {"row and what begins like one", {Html}, u"<tr><track>"_s, uR"(\cf2<tr>\cf0 \cf2<track>\cf0 )"_s},
    {"ends of cell and row", {Html}, u"</td></TR>"_s, uR"(\cf2</td>\cf0 \cf2</TR>\cf0 )"_s},
    {"header cell is an ordinary tag", {Html}, u"<th>"_s, uR"(\cf4<th>\cf0 )"_s},
    {"lone colon", {Tidy}, u":"_s, uR"(\cf2\b\:\b0\cf0 )"_s},
    {"free ampersand", {Html}, u"& x;"_s, uR"(\cf0& x;\cf0)"_s},
    {"entity", {Html}, u"AT&T rocks; x"_s, uR"(\cf0 AT\cf0 \cf3\i\b\&T rocks;\b0\i0\cf0  \cf0 x\cf0 )"_s},
    {"entity left open", {Html}, u"a&b <i>"_s, uR"(\cf0 a\cf0 \cf0&b <i>\cf0)"_s},
    {"server code", {Html}, u"<?x?><%y%>"_s, uR"(\cf2\b\<?x?>\b0\cf0 \cf2\b\<%y%>\b0\cf0 )"_s},
    {"anchor", {Html}, u"<A b></a>"_s, uR"(\cf4\b\<A b>\b0\cf0 \cf4\b\</a>\b0\cf0 )"_s},
    {"anchor without a blank", {Html}, u"<A>"_s, uR"(\cf4<A>\cf0 )"_s},
    {"anchor before a line end", {Html}, u"<a\r\nb>"_s, uR"(\cf4<a\par b>\cf0 )"_s},
    {"entity in a tag", {Html}, u"<b c=&d;>"_s, uR"(\cf4<b c=&d;>\cf0 )"_s},
    {"escapes in a block", {Html}, u"<\\{}\r\n\t\r>"_s, u"\\cf4<\\\\\\{\\}\\par \t\r>\\cf0 "_s},
    {"block left open", {Html}, u"<b"_s, uR"(\cf4<b\cf0 )"_s},
    {"comment left open", {Html}, u"<!"_s, uR"(\cf1\i<!\cf0\i0)"_s},
    {"< alone", {Html}, u"<"_s, uR"(\cf4<\cf0 )"_s},
    {"text paints by its first characters in every language", {Java}, u"\"<!\""_s, uR"(\cf4"<!"\cf0 )"_s},

    // Delimiters.
    {"free delimiters", {Html}, u"(a)=+-*>/"_s,
     uR"(\cf2 (\cf0 \cf0 a\cf0 \cf2 )\cf0 \cf2 =\cf0 \cf2 +\cf0 \cf2 -\cf0 \cf2 *\cf0 \cf2 >\cf0 \cf2 /\cf0 )"_s},
    {"escaped delimiters", {Html}, u"\\{}"_s, uR"(\cf2 \\\cf0 \cf2 \{\cf0 \cf2 \}\cf0 )"_s},
    {"blanks", {Html}, u" a  "_s, uR"( \cf0 a\cf0   )"_s},
    {"line end and tab", {Html}, u"a\r\n\tb"_s, u"\\cf0 a\\cf0 \\par \r\n\\tab \\cf0 b\\cf0 "_s},
    {"lone CR and LF are no delimiters", {Html}, u"a\rb\n\nc\r"_s, u"\\cf0 a\rb\n\nc\r\\cf0 "_s},
    {"other signs are no delimiters", {Html}, u".,:\"'!%|^?[]#"_s, uR"(\cf0 .,:"'!%|^?[]#\cf0 )"_s},
    {"surrogates", {Html}, u"\U0001F600 <\U0001F600>"_s, u"\\cf0 \U0001F600\\cf0  \\cf4<\U0001F600>\\cf0 "_s},

    // Java: ends of two units.
    {"end on the second unit of the start", {Java}, u"/*/"_s, uR"(\cf4/*/\cf0 )"_s},
    {"documentation comment", {Java}, u"/** x */y"_s, uR"(\cf4/** x */\cf0 \cf0 y\cf0 )"_s},
    {"line comment from the end of another", {Java}, u"/*a*//b"_s, uR"(\cf4/*a*/\cf0 \cf4//b\cf0 )"_s},
    {"second unit of an end is no delimiter", {Java}, u"/*a*/ /"_s, uR"(\cf4/*a*/\cf0  \cf2 /\cf0 )"_s},
    {"comment from the end of another", {Java}, u"/*a*/*b*/"_s, uR"(\cf4/*a*/\cf0 \cf4/*b*/\cf0 )"_s},
    {"end of a line comment", {Java}, u"//x\r\ny"_s, u"\\cf4//x\\par\r\n\\cf0 \\cf0 y\\cf0 "_s},
    {"no escape in a string", {Java}, u"\"a\\\"b\""_s, uR"(\cf4"a\\"\cf0 \cf0 b\cf0 \cf4"\cf0 )"_s},
    {"words with regard to case", {Java}, u"if If volatile volatitle"_s,
     uR"(\cf1 if\cf0  \cf0 If\cf0  \cf0 volatile\cf0  \cf1 volatitle\cf0 )"_s},
    {"operators that are words", {Java}, u"new ? a?b true"_s,
     uR"(\cf1 new\cf0  \cf2 ?\cf0  \cf0 a?b\cf0  \cf2 true\cf0 )"_s},

    // Basic.
    {"spelling", {Basic}, u"dIM a AS integer"_s,
     uR"(\cf1 Dim\cf0  \cf0 a\cf0  \cf1 As\cf0  \cf1 Integer\cf0 )"_s},
    {"functions and operators", {Basic}, u"MSGBOX xor & inputbox"_s,
     uR"(\cf3 MsgBox\cf0  \cf2 Xor\cf0  \cf2 &\cf0  \cf3 InputBox\cf0 )"_s},
    {"entry with a blank", {Basic}, u"#end if"_s, uR"(\cf0 #end\cf0  \cf1 If\cf0 )"_s},
    {"string and comment", {Basic}, u"\"dim\"'dim\r\ndim"_s,
     u"\\cf4\"dim\"\\cf0 \\cf4'dim\\par\r\n\\cf0 \\cf1 Dim\\cf0 "_s},

    // Tidy: its rules join those there are.
    {"value never ends", {Tidy}, u"wrap: 80\r\ntab: 4"_s, uR"(\cf1 wrap\cf0 \cf4: 80\par tab: 4\cf0 )"_s},
    {"comment ends", {Tidy}, u"//a\r\ntidy-mark"_s,
     u"\\cf4//a\\par\r\n\\cf0 \\cf1 tidy\\cf0 \\cf2 -\\cf0 \\cf1 mark\\cf0 "_s},
    {"rules of HTML stay", {Html, Tidy}, u"<tidy> tidy"_s, uR"(\cf4<tidy>\cf0  \cf1 tidy\cf0 )"_s},
    {"comment after Basic never ends", {Basic, Tidy}, u"//a\r\nb"_s, uR"(\cf4//a\par b\cf0 )"_s},
    {"spelling of Basic stays", {Basic, Tidy}, u"WRAP dim"_s, uR"(\cf1 wrap\cf0  \cf0 dim\cf0 )"_s},
    {"case after Java counts", {Basic, Java, Tidy}, u"WRAP"_s, uR"(\cf0 WRAP\cf0 )"_s},
    {"HTML clears the rules", {Tidy, Html}, u"//:"_s, uR"(\cf2 /\cf0 \cf2 /\cf0 \cf0 :\cf0 )"_s},

    // Languages that do not exist keep what there is.
    {"number without a language", {7}, u"<a"_s, uR"(\cf2 <\cf0 \cf0 a\cf0 )"_s},
    {"number after a language", {Html, 7}, u"<a"_s, uR"(\cf4<a\cf0 )"_s},
};
// clang-format on

QString StreamOf(const QString &text, const std::vector<int> &languages)
{
    SyntaxTables tables;
    for (const int language : languages)
        tables.SetLanguage(language);
    return HighlightBlock(text, tables, {});
}

} // namespace

TEST(HighlightBlock, Streams)
{
    for (const Case &row : cases)
        EXPECT_EQ(StreamOf(row.text, row.languages), head + row.body + u"}"_s) << row.name;
}

TEST(HighlightBlock, WhatIsNotColoured)
{
    EXPECT_EQ(StreamOf({}, {Html}), QString());
    EXPECT_EQ(StreamOf(u"<b>\r\n"_s, {}), u"<b>\r\n"_s);
    EXPECT_EQ(StreamOf(u"<b>\r\n"_s, {Html, None}), u"<b>\r\n"_s);
}

TEST(HighlightBlock, AddedWordsAndRules)
{
    SyntaxTables tables;
    tables.SetLanguage(Html);
    tables.AddWord(u"%"_s, WordClass::BlockMark);
    tables.AddWord(u"x"_s, WordClass::Function);
    tables.AddWord(u"x"_s, WordClass::Keyword);
    tables.AddCommentTag(u"["_s, u"\t"_s);
    tables.AddCommentTag(u"\u00A7"_s, u">>"_s);
    const QString text = u"x%x%[x\t\u00A7x>>"_s;
    EXPECT_EQ(HighlightBlock(text, tables, {}),
              head
                  + uR"(\cf3 x\cf0 \cf4%x%\cf0 \cf4[x\tab \cf0 )"_s
                  // The end begins with that of the first rule, which comes before it.
                  + u"\\cf4\u00A7x>>\\cf0 }"_s);
}

TEST(HighlightBlock, AgreesWithTheNaiveScan)
{
    QRandomGenerator random(20261121);
    for (const int language : {Basic, Java, Html, Tidy}) {
        const SyntaxTables tables = TablesWithExtraWords(language);
        NaiveScan naive(language, ExtraWords());
        for (int i = 0; i < 4000; ++i) {
            const QString text = RandomSource(random, 1 + random.bounded(60));
            naive.Run(text);
            ASSERT_EQ(HighlightBlock(text, tables, {}), head + naive.stream + u"}"_s)
                << "language " << language << ": " << text.toUtf8().toPercentEncoding().data();
        }
    }
}

TEST(HighlightBlock, ColourTableEntries)
{
    const struct
    {
        quint32 colour;
        QString entry;
    } rows[] = {
        {0x00123456, u"\\red86\\green52\\blue18;"_s},
        {0x80000005, u"\\red255\\green255\\blue255;"_s}, // window
        {0x80000008, u"\\red0\\green0\\blue0;"_s}, // window text
        {0x80000063, u"\\red255\\green255\\blue255;"_s}, // no such system colour
        {0xFF123456, u"\\red255\\green255\\blue255;"_s},
    };
    for (const auto &row : rows)
        EXPECT_EQ(ColorTableEntry(row.colour), row.entry);
}
