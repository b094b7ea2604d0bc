#include "editor/ColourRuns.h"

#include "editor/PageText.h"
#include "tests/editor/NaiveScan.h"
#include "tests/support/SourceTree.h"

#include <QFile>

using namespace brenix;
using namespace Qt::StringLiterals;

namespace {

// Adds what `runs` paint on the units from `shift` on; checks that runs are in order, in bounds,
// not empty, and of other than default look.
void Paint(std::vector<ColourRun> &looks,
           const std::vector<ColourRun> &runs,
           qsizetype shift,
           qsizetype upTo)
{
    qsizetype behind = shift;
    for (ColourRun run : runs) {
        const qsizetype start = run.start + shift;
        const qsizetype finish = start + run.length;
        ASSERT_TRUE(start >= behind && run.length > 0 && finish <= upTo);
        ASSERT_NE(run.colour, RunColour::Default);
        behind = finish;
        run.start = run.length = 0;
        std::fill(looks.begin() + start, looks.begin() + finish, run);
    }
}

std::vector<ColourRun> LooksOfWhole(const QString &text, const SyntaxTables &tables)
{
    std::vector<ColourRun> looks(std::size_t(text.size()));
    Paint(looks, ColourRuns(text, tables), 0, text.size());
    return looks;
}

// As a view does it: the states at the line ends first, then each line by itself.
std::vector<ColourRun> LooksByLine(const QString &text, const SyntaxTables &tables)
{
    std::vector<int> places;
    for (qsizetype i = text.indexOf(u"\r\n"); i >= 0; i = text.indexOf(u"\r\n", i + 2))
        places.push_back(int(i) + 2);
    const std::vector<ScanState> states = StatesAt(text, tables, places);
    places.push_back(int(text.size()));
    std::vector<ColourRun> looks(std::size_t(text.size()));
    ScanState state;
    for (std::size_t i = 0; i < places.size(); ++i) {
        const int start = i == 0 ? 0 : places[i - 1];
        std::optional<BlockPaint> openPaint;
        if (i < states.size() && states[i].rule >= 0)
            openPaint = states[i].paint;
        const QString line = text.sliced(start, places[i] - start);
        Paint(looks, ColourRuns(line, tables, state, openPaint), start, places[i]);
        if (i < states.size()) {
            EXPECT_EQ(state.rule, states[i].rule);
            ScanState alone = i == 0 ? ScanState{} : states[i - 1];
            ColourRuns(QStringView(line).chopped(2), tables, alone);
            EXPECT_EQ(AfterLineEnd(alone, tables).rule, states[i].rule);
            state = states[i];
        }
    }
    return looks;
}

} // namespace

TEST(ColourRuns, AgreeWithTheStreamAndLineByLine)
{
    QRandomGenerator random(7);
    for (const int language : {1, 2, 3, 4}) {
        const SyntaxTables tables = TablesWithExtraWords(language);
        NaiveScan naive(language, ExtraWords());
        for (int i = 0; i < 4000; ++i) {
            const QString text = RandomSource(random, 1 + random.bounded(80));
            const QByteArray shown = text.toUtf8().toPercentEncoding();
            naive.Run(text);
            ASSERT_EQ(LooksOfWhole(text, tables), naive.looks) << language << ": " << shown.data();
            ASSERT_EQ(LooksByLine(text, tables), naive.looks) << language << ": " << shown.data();
        }
    }
}

TEST(ColourRuns, NothingWithoutALanguage)
{
    const SyntaxTables tables;
    EXPECT_TRUE(ColourRuns(u"<b>\"x\"", tables).empty());
    EXPECT_EQ(StatesAt(u"<b", tables, {1, 2}), std::vector<ScanState>(2));
}

TEST(ColourRuns, EveryPrefixOfAPage)
{
    QFile file(SourceFile("docs/sample.html"));
    ASSERT_TRUE(file.open(QFile::ReadOnly));
    const QString page = TextOf(TextRope(HeldText(QString::fromUtf8(file.readAll()))));
    for (const int language : {1, 2, 3, 4}) {
        SyntaxTables tables;
        tables.SetLanguage(language);
        const int step = language == SyntaxTables::Html ? 1 : 7;
        for (qsizetype length = 0; length <= page.size(); length += step) {
            const QString prefix = page.left(length);
            ASSERT_EQ(LooksByLine(prefix, tables), LooksOfWhole(prefix, tables)) << length;
            ASSERT_GE(HighlightBlock(prefix, tables, {}).size(), length);
        }
    }
}

TEST(ColourRuns, NormalisedCase)
{
    const struct
    {
        const char *name;
        int language;
        QString text;
        QString expected;
    } rows[] = {
        {"words alone", 1, u"dim A as string 'dim"_s, u"Dim A As String 'dim"_s},
        {"not in a string", 1, u"PRINT \"print\"print"_s, u"Print \"print\"Print"_s},
        {"a table that keeps case", 2, u"IF if"_s, u"IF if"_s},
        {"a letter that is only like a k", 1, u"loc\u212A"_s, u"loc\u212A"_s},
        {"a letter that is only like an i", 1, u"\u0130f"_s, u"\u0130f"_s},
    };
    for (const auto &row : rows) {
        SyntaxTables tables;
        tables.SetLanguage(row.language);
        EXPECT_EQ(WithNormalisedCase(row.text, tables), row.expected) << row.name;
    }
}
