#include "checks/ErrorCheck.h"

#include "checks/ErrorChecking.h"
#include "checks/ReportLine.h"
#include "tags/TagCatalogue.h"
#include "tests/checks/LiteralSteps.h"
#include "tests/checks/NaiveChecks.h"

using namespace brenix;
using namespace Qt::StringLiterals;

namespace {

struct Case
{
    const char *name;
    QString text;
    QStringList findings; // the lines between heading and totals
};

const Case CharacterCases[] = {
    {"nothing", u""_s, {}},
    {"start in a tag, once until an end is out of turn",
     u"<<<>><<"_s,
     {u"Tag starts before previous tag ends (Char 1)..."_s,
      u"Tag ends before previous tag starts (Char: 4)..."_s,
      u"Tag starts before previous tag ends (Char 6)..."_s}},
    {"a quotation mark waits for a stray end",
     u"<a b=\"c> d >"_s,
     {u"Tag ends before previous tag starts (Char: 11)..."_s,
      u"Missing quotation (Char: 11)..."_s}},
    {"misspelt", u"<HTM>"_s, {u"Spell Error?. (Char: 0)..."_s, u"Spell Error?. (Char: 0)..."_s}},
    {"empty tag", u"<>"_s, {}},
    {"script left open", u"<script>"_s, {u"No end of script tag..."_s}},
};

// Each in a page that is in order without it.
const Case RuleCases[] = {
    {"nothing", u""_s, {}},
    {"short names",
     u"<B><BODY><b></B><abbr><a x>"_s,
     {u"There are 1 more <A> than </A>"_s, u"There are 1 more <B> than </B>"_s}},
    {"paragraphs are left out", u"<P></p><br></P>"_s, {}},
    {"eleven quotation marks", QString(11, u'"'), {u"Please check your quotemarks"_s}},
    {"ten quotation marks", QString(10, u'"'), {}},
    {"end tag counted from 1", u"</br>"_s, {u"No endtag allowed: </br>. (Char 22)   "_s}},
    {"second body", u"<body><BODY x>"_s, {u"Only one <BODY> tag allowed. (Char 27)   "_s}},
    {"no rule for this letter", u"æå"_s, {u"Unknown character! Use &aring;. (Char 22)   "_s}},
    {"font in font",
     u"<font a><font b></font></font>"_s,
     {u"Combinable Nested tag:<FONT>:22\r\n"_s}},
    {"blanks round the sign", u"<IMG alt = x>"_s, {u"Missing alt attribute: <IMG> (Char 22)"_s}},
    {"similar tags", u"<i>a</i> <I>b</i>"_s, {u"Similar Immediate Tag <I> (Char 22)"_s}},
    {"redundant tags", u"<b>1<b>2</b>3</B>"_s, {}},
};

TEST(Checks, ReportWhatThePageHas)
{
    for (const Case &row : CharacterCases) {
        const QStringList lines = ErrorCheck(row.text, u"page.html"_s).lines;
        EXPECT_EQ(lines[0], u"Checking page.html for errors..."_s);
        EXPECT_EQ(lines.mid(2, lines.size() - 5), row.findings) << row.name;
    }
    const QStringList catalogue{u"<A></A>"_s, u"<B></B>"_s, u"<P></P>"_s, u"<BR>"_s};
    for (const Case &row : RuleCases) {
        const QString page = u"<html><title></title>"_s + row.text + u"</html>"_s;
        const QStringList lines = ErrorChecking(page, catalogue).lines;
        EXPECT_EQ(lines.mid(3, lines.size() - 7), row.findings) << row.name;
    }
}

const QStringList CharacterPieces
    = u"<|>|\"|x|<script>|</"
      u"SCRIPT>|<hltm>|<HTM>|<htlm>|<ht|m>|<body|<BODDY|<bdy|<frameset|<Frame|set>|"
      "<centre>|</centre>|BGcolour|bgcol|our|åÅ|øØ|æÆ|</meta>|</frame>|</br>|</param>|</wbr>"_s
          .split(u'|');

const QStringList RulePieces
    = u"<|>|</|<b>|</b>|<B>|</B>|<font|<FONT x>|</font>|<title>|</TITLE>|<img|<IMG alt=1>|<img alt "
      u"=1>|"
      "<br>|</br>|</!|</frame>|<html>|</html>|<body>|<noframes|å|Å|ø|Ø|æ|\"|<>|</>| "
      "|x|<blin\u212A>|"
      "</BLINK>|<p>|</p>|<a |<A>|</a>|\r\n|<Ä>|</ä>|<aa>|</AA>|<!--"_s.split(u'|');

// Rows of all kinds, and some that no catalogue has: needles inside and behind others.
const QStringList OddCatalogue
    = u"<A></A>|<B></B>|<B></B>|<BLINK></BLINK>|<P></P>|<BR>|<FONT></FONT>|<IMG ></IMG>|<X><X>|<>x|"
      "<Ä></Ä>"_s.split(u'|');

// Where the rule for FONT goes on at the start of the page.
const QStringList FontPieces = u"</font>|<font x>|<font x></font>|<font"_s.split(u'|');

void CompareWithModels(const QString &text, const QStringList &catalogue)
{
    EXPECT_EQ(ErrorCheck(text, u"-"_s).lines, naive::CharacterPass(text).lines) << qPrintable(text);
    const naive::SearchRules model(text, catalogue);
    const CheckReport report = ErrorChecking(text, catalogue);
    EXPECT_EQ(report.lines, model.lines) << qPrintable(text);
    QList<std::pair<qsizetype, bool>> moves;
    for (const CaretMove &move : report.caretMoves)
        moves.append({move.position, move.focus});
    EXPECT_EQ(moves, model.caretMoves) << qPrintable(text);
}

TEST(Checks, AgreeWithTheirModelsOnRandomText)
{
    for (quint32 seed = 0; seed < 1500 && !testing::Test::HasFailure(); ++seed) {
        CompareWithModels(RandomText(CharacterPieces, 30, seed), OddCatalogue);
        CompareWithModels(RandomText(RulePieces, 40, seed), OddCatalogue);
        CompareWithModels(RandomText(FontPieces, 10, seed), {});
    }
}

TEST(Checks, AgreeWithTheirModelsOnPages)
{
    for (const QString &page : RealPages())
        CompareWithModels(page, TagsOfDialect(AllHtmlTitle));
}

// The plain form of each needs hours for one of these.
TEST(Checks, EndOnHostileText)
{
    for (const QString &piece : u"<|</|<font|<font>|<img|<b>|</br>Å|<b></b><"_s.split(u'|')) {
        const QString text = piece.repeated(100'000);
        const CheckReport character = ErrorCheck(text, u"-"_s);
        EXPECT_EQ(character.lines.constLast(), u"Total Errors: %1"_s.arg(character.errors));
        for (const QString &end : {u""_s, u"</font><x>"_s}) {
            const CheckReport report = ErrorChecking(text + end, TagsOfDialect(AllHtmlTitle));
            EXPECT_LE(report.errors, 32767);
            EXPECT_EQ(report.lines.constLast(), u"Totally %1 warnings"_s.arg(report.warnings));
        }
    }
}

TEST(Checks, StopWhenTold)
{
    const auto stop = [] { return false; };
    EXPECT_EQ(ErrorCheck(u"<<<script>"_s, u"-"_s, stop).lines.size(), 5);
    EXPECT_EQ(ErrorCheck(u"Å"_s, u"-"_s, stop).errors, 1);
    EXPECT_EQ(ErrorChecking(u"<<"_s, OddCatalogue, stop).lines.size(), 3);

    // A stop at any later moment leaves no totals behind.
    const QString page = u"<font x><b>å</b><b>"_s.repeated(100'000);
    for (int asked = 2; asked < 6; ++asked) {
        int left = asked;
        const QStringList lines = ErrorChecking(page, {}, [&left] { return --left > 0; }).lines;
        EXPECT_EQ(lines.constLast().startsWith(u"Totally"), left > 0);
    }
}

TEST(ReportLine, LeadsToAPlace)
{
    const struct
    {
        const char *name;
        QString line;
        int place; // the line * 1000 + the column; -1 for none
    } rows[] = {
        {"as Tidy writes them", u"line 12 column 7 - Warning: <p>"_s, 11006},
        {"first place", u"line 1 column 1 - Error"_s, 0},
        {"no number at the column", u"line 3 column x"_s, 2000},
        {"no column", u"line 3 and 4"_s, 2000},
        {"column 0", u"line 2 column 0 - x"_s, 1000},
        {"the word before the number", u"column 4 line 5 "_s, -1},
        {"line 0", u"line 0 column 0 - x"_s, -1},
        {"no blank behind the number", u"line 3"_s, -1},
        {"too large a number", u"line 99999999999 column 1 - x"_s, -1},
        {"other form", u"Warnings: 3"_s, -1},
        {"short", u"li"_s, -1},
        {"empty", u""_s, -1},
    };
    for (const auto &row : rows) {
        const auto place = PlaceOfReportLine(row.line);
        EXPECT_EQ(place ? place->line * 1000 + place->column : -1, row.place) << row.name;
    }
}

} // namespace
