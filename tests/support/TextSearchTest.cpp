#include "support/TextSearch.h"

#include <QRandomGenerator>

using namespace brenix;
using namespace Qt::StringLiterals;

namespace {

TEST(TextSearch, PairsLettersOneToOne)
{
    const struct
    {
        const char *name;
        QString left;
        QString right;
        bool equal;
    } rows[] = {
        {"letters", u"ÄÅz"_s, u"äåZ"_s, true},
        {"signs beside the letters", u"@["_s, u"`{"_s, false},
        {"kelvin sign", u"\u212A"_s, u"K"_s, true},
        {"sharp s", u"ß"_s, u"ss"_s, false},
        {"dotted capital", u"\u0130"_s, u"i"_s, false},
        {"long s", u"\u017F"_s, u"S"_s, false},
        {"longer", u"ab"_s, u"a"_s, false},
        {"empty", u""_s, u""_s, true},
    };
    for (const auto &row : rows)
        EXPECT_EQ(EqualWithoutCase(row.left, row.right), row.equal) << row.name;
    EXPECT_EQ(UpperCased(u"straße\u0131"), u"STRAßEI"_s);
}

TEST(TextSearch, FindsWhatALookAtEachPlaceFinds)
{
    QRandomGenerator random(7);
    const auto randomText = [&random](int length, const QString &alphabet) {
        QString text;
        for (; length > 0; --length)
            text += alphabet[random.bounded(int(alphabet.size()))];
        return text;
    };
    for (int round = 0; round < 600; ++round) {
        const QString alphabet = round % 2 ? u"aAbB<"_s : u"kK\u212AäÄ."_s;
        const int room = round % 7 ? 0 : 600; // without a place of a first unit
        const QString text
            = randomText(20, alphabet) + QString(room, u' ') + randomText(40, alphabet);
        const QString sought = randomText(random.bounded(1, 6), alphabet);
        const TextSearch exact(sought, Qt::CaseSensitive);
        const TextSearch anyCase(sought);
        for (qsizetype from = 0; from <= text.size(); ++from) {
            EXPECT_EQ(exact.FindIn(text, from), text.indexOf(sought, from));
            EXPECT_EQ(anyCase.FindIn(text, from),
                      LowerCased(text).indexOf(LowerCased(sought), from));
        }
        EXPECT_EQ(ReplaceAll(text, exact, u"<>"), QString(text).replace(sought, u"<>"_s));
    }
}

TEST(TextSearch, EndsOnHostileTextAndFindsNoEmptyOne)
{
    const QString letters(1'000'000, u'a');
    EXPECT_EQ(FindWithoutCase(letters, QString(500'000, u'A') + u'b'), -1);
    EXPECT_EQ(ReplaceAll(letters, TextSearch(u"A"), u""), u""_s);
    EXPECT_EQ(FindWithoutCase(letters, u""), -1);
    EXPECT_EQ(FindWithoutCase(u"a", u"a", 2), -1);
    EXPECT_EQ(FindWithoutCase(u"a", u"a", -1), -1);
}

} // namespace
