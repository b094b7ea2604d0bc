#include "tags/Entities.h"

using namespace brenix;
using namespace Qt::StringLiterals;

namespace {

TEST(Entities, TheMapHas91RowsInTheOrderOfTheirCharacters)
{
    const QStringList rows = CharacterMapRows();
    ASSERT_EQ(rows.size(), 91);
    EXPECT_EQ(rows.first(), u"\u00A1 - &iexcl;"_s);
    EXPECT_EQ(rows.last(), u"\u00FF - &yuml;"_s);
    EXPECT_TRUE(rows.contains(u"\u00D7 - &times;"_s));
    QChar previous = u'\u00A0';
    for (const QString &row : rows) {
        SCOPED_TRACE(row.toStdString());
        EXPECT_GT(row[0], previous);
        previous = row[0];
        EXPECT_EQ(row.mid(1, 3), u" - "_s);
        EXPECT_EQ(CharacterOfEntity(row.mid(4)), row.first(1));
    }
}

TEST(Entities, CharactersAreFoundByName)
{
    const std::tuple<QString, QStringList> cases[] = {
        {u"dash"_s, {u"\u2013 - &ndash;"_s, u"\u2014 - &mdash;"_s}},
        {u" &DASH; "_s, {u"\u2013 - &ndash;"_s, u"\u2014 - &mdash;"_s}},
        {u"\u2013"_s, {u"\u2013 - &ndash;"_s}},
        {u"arin"_s, {u"\u00C5 - &Aring;"_s, u"\u00E5 - &aring;"_s}},
        {u"uml"_s.repeated(2), {}},
        {u"<"_s, {u"< - &lt;"_s}},
    };
    for (const auto &[wanted, rows] : cases)
        EXPECT_EQ(CharacterMapRows(wanted), rows) << qPrintable(wanted);
    const QStringList quotes = CharacterMapRows(u"quo");
    EXPECT_EQ(quotes.first(), u"\u00AB - &laquo;"_s) << "those of the map come first";
    EXPECT_TRUE(quotes.contains(u"\u201C - &ldquo;"_s));
    EXPECT_EQ(CharacterMapRows(u"&;"), CharacterMapRows());
}

struct EntityCase
{
    const char *name;
    QString entity;
    QString character;
};

class EntityTest : public testing::TestWithParam<EntityCase>
{
};

const EntityCase Cases[] = {
    {"quotation_mark", u"&quot;"_s, u"\""_s},
    {"no_break_space", u"&nbsp;"_s, u"\u00A0"_s},
    {"not_in_the_map", u"&shy;"_s, u"\u00AD"_s},
    {"greek_capital", u"&Alpha;"_s, u"\u0391"_s},
    {"greek_small", u"&alpha;"_s, u"\u03B1"_s},
    {"bracket", u"&lang;"_s, u"\u2329"_s},
    {"euro", u"&euro;"_s, u"\u20AC"_s},
    {"last", u"&diams;"_s, u"\u2666"_s},
    {"wrong_case", u"&EURO;"_s, u""_s},
    {"no_ampersand", u"euro;"_s, u""_s},
    {"no_semicolon", u"&euro"_s, u""_s},
    {"text_behind", u"&euro; "_s, u""_s},
    {"number", u"&#160;"_s, u""_s},
    {"nothing_between", u"&;"_s, u""_s},
    {"nothing", u""_s, u""_s},
};

TEST_P(EntityTest, GivesItsCharacter)
{
    EXPECT_EQ(CharacterOfEntity(GetParam().entity), GetParam().character);
}

INSTANTIATE_TEST_SUITE_P(Names, EntityTest, testing::ValuesIn(Cases), [](const auto &info) {
    return info.param.name;
});

} // namespace
