#include "checks/Keywords.h"

#include "checks/CommonWords.h"
#include "tests/checks/LiteralSteps.h"
#include "tests/support/MemoryDocument.h"

using namespace brenix;
using namespace Qt::StringLiterals;

namespace {

struct Row
{
    const char *name;
    QString page;
    QStringList words;
};

class KeywordsTest : public testing::TestWithParam<Row>
{
};

// clang-format off
const Row Rows[] = {
    {"nothing", u" \r\n<br> "_s, {}},
    {"words in order", u"<P>Garden tools, Apple\r\ntrees</P>"_s, {u"apple"_s, u"garden"_s, u"tools"_s, u"trees"_s}},
    {"endings", u"tile tiles tiling tilings wall wallflower"_s, {u"tile"_s, u"tiling"_s, u"wall"_s, u"wallflower"_s}},
    {"the word before was skipped itself", u"page paged pages"_s, {u"page"_s, u"pages"_s}},
    {"one character", u"\u03B1 \u03B2 1 \u03B3\u03B1"_s, {u"\u03B1"_s, u"\u03B3\u03B1"_s}},
    {"common words", u"garden and the apple or then hedge"_s, {u"apple"_s, u"garden"_s, u"hedge"_s}},
    {"common words at the edges", u"the garden the"_s, {u"garden"_s, u"the"_s}},
    {"two words in one", u"garden search engines hedge"_s, {u"garden"_s, u"hedge"_s}},
    {"don't", u"garden don't hedge isn't it"_s, {u"garden"_s, u"hedge"_s, u"isn't"_s, u"it"_s}},
    {"scripts and style", u"<script>lawn</SCRIPT>tree{wall}hedge"_s, {u"hedge"_s, u"tree"_s}},
    {"left open", u"garden {hedge <script"_s, {u"garden"_s, u"hedge"_s, u"script"_s}},
    {"ends before their starts", u"lawn}>roof </script>tree{hedge}<script>wall</script>"_s,
     {u"lawn"_s, u"roof"_s, u"tree"_s}},
    {"entities", u"tree w&aring;y wall&nbsp;lawn&NBSP;hedge"_s,
     {u"aring"_s, u"hedge"_s, u"lawn"_s, u"nbsp"_s, u"tree"_s, u"wall"_s}},
    {"code points", u"\uFF21 z\U0001F600 z\uFF21 ends"_s, {u"ends"_s, u"z\uFF41"_s, u"z\U0001F600"_s}},
};
// clang-format on

TEST_P(KeywordsTest, Lists)
{
    EXPECT_EQ(Keywords(GetParam().page), GetParam().words);
}

INSTANTIATE_TEST_SUITE_P(Rows, KeywordsTest, testing::ValuesIn(Rows), [](const auto &info) {
    return QString::fromLatin1(info.param.name).remove(u'\'').replace(u' ', u'_').toStdString();
});

void RemoveCommonWords(QString &text)
{
    text = Replaced(Replaced(text, u"&nbsp;"_s, u" "_s), u"&nbsp"_s, u" "_s);
    int count = 0;
    for (const QStringView word : CommonWordList()) {
        text = Replaced(text, u' ' + word.toString() + u' ', u" "_s, Case::DoesNotCount);
        if (++count % 16 == 0)
            text = Replaced(text, u"  "_s, u" "_s);
    }
}

/// The words before they are sorted.
QStringList WordsModel(const QString &page)
{
    QString text = BlankedOut(page, u"<script"_s, u"</script>"_s);
    text = BlankedOut(BlankedOut(text, u"<"_s, u">"_s), u"{"_s, u"}"_s);
    for (const auto &end : {u"\r\n"_s, u"\r"_s, u"\n"_s})
        text = Replaced(text, end, u" "_s);
    for (int round = 0; round < 3; ++round) {
        RemoveCommonWords(text);
        for (const QChar sign : u"1234567890.,:/\\*-_;)(}{=?+\"#%"_s)
            text = Replaced(text, sign, u" "_s);
        text = Replaced(Replaced(text, u"&aring;"_s, u"å"_s), u"&Oslash;"_s, u"Ø"_s);
        text = Replaced(text, u"&nbsp;"_s, u" "_s, Case::DoesNotCount);
        for (const QChar sign : u"&<>\t"_s)
            text = Replaced(text, sign, u" "_s);
    }
    while (text.contains(u"  "))
        text = Replaced(text, u"  "_s, u" "_s);
    return LowerCased(Replaced(text, u" "_s, u", "_s)).split(u',');
}

QStringList Model(const QString &page)
{
    QStringList sorted;
    for (const QString &piece : WordsModel(page)) {
        const QString word = Replaced(piece, u" "_s, u""_s);
        if (!word.isEmpty())
            sorted += word;
    }
    std::sort(sorted.begin(), sorted.end(), [](const QString &left, const QString &right) {
        return left.toUcs4() < right.toUcs4();
    });
    QStringList listed = sorted.mid(0, 1);
    for (qsizetype i = 1; i < sorted.size(); ++i) {
        const QString word = sorted[i];
        const QString &previous = sorted[i - 1];
        bool isNear = previous == word.chopped(1);
        for (qsizetype ending = 2; ending <= 4; ++ending)
            isNear = isNear || (word.size() > ending && previous == word.chopped(ending));
        if (!isNear && word != previous && word.size() >= 2)
            listed += word;
    }
    return listed;
}

TEST(Keywords, AreThoseOfTheChainOfSteps)
{
    EXPECT_EQ(CommonWordList().size(), 328U);
    const QStringList pieces{u" "_s,
                             u" "_s,
                             u" "_s,
                             u" "_s,
                             u"  "_s,
                             u"         "_s,
                             u"the"_s,
                             u" the "_s,
                             u"any "_s,
                             u"search"_s,
                             u" search engine"_s,
                             u" engines "_s,
                             u"A "_s,
                             u" å"_s,
                             u"garden"_s,
                             u"s"_s,
                             u"ing "_s,
                             u"\r\n"_s,
                             u"\t"_s,
                             u"&nbsp;"_s,
                             u"&nbsp"_s,
                             u"&NBSP;"_s,
                             u"&aring;"_s,
                             u"-"_s,
                             u"1"_s,
                             u"<b>"_s,
                             u"<script"_s,
                             u"</Script>"_s,
                             u"{"_s,
                             u"}"_s,
                             u">"_s,
                             u"loo\u212A"_s,
                             u" don't "_s,
                             u"it's"_s,
                             u"should "_s,
                             u" HI "_s};
    for (quint32 seed = 0; seed < 1500; ++seed) {
        const QString text = RandomText(pieces, 60, seed);
        ASSERT_EQ(Keywords(text), Model(text)) << "seed " << seed << ": " << qPrintable(text);
    }
    for (const QString &page : RealPages())
        ASSERT_EQ(Keywords(page), Model(page));
}

TEST(Keywords, WriteTheirTag)
{
    struct TagRow
    {
        QString before; ///< the caret at "|"
        QString after;
        QStringList words{u"one"_s, u"two"_s};
    };
    const QString tag = u"<meta name=\"keywords\" content=\"one,two\">"_s;
    const TagRow rows[] = {
        {u"a|b"_s, u"a"_s + tag + u"b"_s},
        {u"<HEAD x><title>|"_s, u"<HEAD x>\r\n"_s + tag + u"<title>"_s},
        {u"<head|"_s, u"<head"_s + tag},
        {u"|<head><META a><Meta name=KeyWords b>c"_s, u"<head><META a>"_s + tag + u"c"_s},
        {u"|<meta <meta keyword"_s, tag + u"<meta <meta keyword"_s},
        {u"|"_s, u"<meta name=\"keywords\" content=\">"_s, {}},
    };
    for (const TagRow &row : rows) {
        MemoryDocument page;
        page.source.SetText(QString(row.before).remove(u'|'));
        page.source.SetSelStart(int(row.before.indexOf(u'|')));
        WriteKeywords(page, row.words);
        EXPECT_EQ(page.source.Text(), row.after);
        EXPECT_EQ(page.source.UndoCount(), 1);
    }
}

} // namespace
