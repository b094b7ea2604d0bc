#include "checks/FindReplace.h"

#include "tests/checks/LiteralSteps.h"
#include "tests/support/MemoryDocument.h"

using namespace brenix;
using namespace Qt::StringLiterals;

namespace {

// The selection is marked by brackets.
void Show(MemorySource &source, QString marked)
{
    const int start = int(marked.indexOf(u'['));
    const int end = int(marked.indexOf(u']')) - 1;
    source.SetText(marked.remove(u'[').remove(u']'));
    source.SetSelStart(start);
    source.SetSelLength(end - start);
}

QString Marked(const MemorySource &source)
{
    QString text = source.Text();
    text.insert(source.SelStart() + source.SelLength(), u']');
    return text.insert(source.SelStart(), u'[');
}

TEST(FindReplace, MovesTheSelection)
{
    using Step = bool (*)(SourceView &, const QString &);
    const Step find = [](SourceView &page, const QString &text) { return Find(page, text, false); };
    const Step top = [](SourceView &page, const QString &text) { return Find(page, text, true); };
    const Step replace = [](SourceView &page, const QString &text) {
        return ReplaceNext(page, text, u"2"_s, false);
    };
    const Step replaceTop = [](SourceView &page, const QString &text) {
        return ReplaceNext(page, text, u"2"_s, true);
    };
    const Step live = [](SourceView &page, const QString &text) {
        LiveSearch(page, text);
        return true;
    };
    struct Case
    {
        const char *row;
        Step step;
        QString before;
        QString text;
        QString after;
        bool found = true;
    };
    const Case cases[] = {
        {"find begins behind the caret", find, u"[]one one"_s, u"one"_s, u"one [one]"_s},
        {"find begins behind the selection", find, u"[on]eoneone"_s, u"ONE"_s, u"one[one]one"_s},
        {"find steps over its own hit", find, u"[aa]aaaa"_s, u"aa"_s, u"aaa[aa]a"_s},
        {"find, none left but selected", find, u"one [One]"_s, u"one"_s, u"one [One]"_s},
        {"find, none left", find, u"one []two"_s, u"one"_s, u"one []two"_s, false},
        {"find, no text", find, u"[]one"_s, {}, u"[]one"_s, false},
        {"from the top", top, u"one o[]ne"_s, u"one"_s, u"[one] one"_s},
        {"from the top, as far as is selected", top, u"one [one]"_s, u"one"_s, u"one [one]"_s},
        {"next", FindNext, u"[one]one one"_s, u"one"_s, u"one[one] one"_s},
        {"next, first", FindNext, u"[]one one"_s, u"one"_s, u"[one] one"_s},
        {"next, last", FindNext, u"one [one]"_s, u"one"_s, u"one one[]"_s, false},
        {"next, last in another case", FindNext, u"one [ONE]"_s, u"one"_s, u"one [ONE]"_s},
        {"replace", replace, u"[]one one"_s, u"one"_s, u"one 2[]"_s},
        {"replace the selected one at last", replace, u"one [one]"_s, u"one"_s, u"one 2[]"_s},
        {"replace none", replace, u"[]x"_s, u"one"_s, u"[]x"_s, false},
        {"replace from the top", replaceTop, u"one o[]ne"_s, u"one"_s, u"2[] one"_s},
        {"live, first key", live, u"[]xab ab"_s, u"a"_s, u"x[a]b ab"_s},
        {"live, next key", live, u"x[a]b ab"_s, u"ab"_s, u"x[ab] ab"_s},
        {"live, the last one grows", live, u"x x[a]b"_s, u"ab"_s, u"x x[ab]"_s},
        {"live, another case", live, u"ab []AB"_s, u"ab"_s, u"ab [AB]"_s},
        {"live, not there", live, u"[]xab"_s, u"y"_s, u"[]xab"_s},
    };
    for (const Case &row : cases) {
        SCOPED_TRACE(row.row);
        MemorySource page;
        Show(page, row.before);
        EXPECT_EQ(row.step(page, row.text), row.found);
        EXPECT_EQ(Marked(page), row.after);
    }
}

TEST(FindReplace, ReplaceAllIsOneStepToUndo)
{
    MemorySource page;
    Show(page, u"aAa a[]x"_s);
    ReplaceAll(page, u"aa"_s, u"a\u00A0b"_s, {});
    EXPECT_EQ(Marked(page), u"a\u00A0ba []ax"_s);
    page.Undo();
    EXPECT_EQ(page.Text(), u"aAa ax"_s);
}

TEST(FindReplace, OnePassFindsEverything)
{
    const QStringList pieces{u"a"_s,
                             u"A"_s,
                             u"b"_s,
                             u"\u00E9"_s,
                             u"\u00C9"_s,
                             u"\u212A"_s,
                             u"k"_s,
                             u"\u017F"_s,
                             u"s"_s,
                             u"\r\n"_s};
    for (quint32 seed = 0; seed < 3000; ++seed) {
        // Now and then a page that is gone through in several pieces.
        const QString room(seed % 500 ? 0 : 1'000'000 + int(seed), u'a');
        const QString page = room + RandomText(pieces.mid(0, 2 + seed % 9), 60, seed);
        const QString text
            = pieces[seed % 10] + RandomText(pieces.mid(0, 2 + seed % 4), 4, seed + 1);
        SCOPED_TRACE((page.right(200) + u" / "_s + text).toStdString());
        const QString lowerPage = LowerCased(page);
        const QString lowerText = LowerCased(text);
        std::vector<int> expected;
        for (qsizetype at = -1; (at = lowerPage.indexOf(lowerText, at + 1)) >= 0;)
            expected.push_back(int(at));
        ASSERT_EQ(Occurrences(page, text), expected);
        ASSERT_EQ(WithReplacements(page, text, u"a-"),
                  Replaced(page, text, u"a-"_s, Case::DoesNotCount));
    }
    EXPECT_EQ(Occurrences(u"abc", u""), std::vector<int>());
}

TEST(FindReplace, EndsOnTextThatRepeatsItself)
{
    const QString page(1'000'000, u'a');
    EXPECT_EQ(Occurrences(page, QString(30'000, u'A')).size(), 970'001U);
    EXPECT_EQ(WithReplacements(page, QString(1'000'000, u'A'), u"b"), u"b"_s);
}

} // namespace
