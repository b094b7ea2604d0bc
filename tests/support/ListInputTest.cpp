#include "support/ListInput.h"

#include <QStringList>

using namespace brenix;
using namespace Qt::StringLiterals;

namespace {

struct ListInputCase
{
    const char *name;
    QString text;
    QStringList fields;
};

class ListInputTest : public testing::TestWithParam<ListInputCase>
{
};

const ListInputCase Cases[] = {
    {"nothing", u""_s, {}},
    {"lines", u"&File\r\n&New\n&Open\rE&xit"_s, {u"&File"_s, u"&New"_s, u"&Open"_s, u"E&xit"_s}},
    {"commas", u"a,b"_s, {u"a"_s, u"b"_s}},
    {"empty_fields", u",,\r\n\r\n"_s, {u""_s, u""_s, u""_s, u""_s}},
    {"line_end_at_the_end", u"a\r\n"_s, {u"a"_s}},
    {"quoted_separators", u"\"a,b\r\nc\",d"_s, {u"a,b\r\nc"_s, u"d"_s}},
    {"quote_inside_a_field", u"a\"b,c\"d"_s, {u"a\"b"_s, u"c\"d"_s}},
    {"rest_behind_a_closing_quote", u"\"a\"b c,d"_s, {u"a"_s, u"d"_s}},
    {"quote_left_open", u"\"a,b"_s, {u"a,b"_s}},
    {"blanks_stay", u" a , b "_s, {u" a "_s, u" b "_s}},
};

TEST_P(ListInputTest, GivesTheFieldsInOrder)
{
    ListInput input(GetParam().text);
    QStringList fields;
    while (const auto field = input.Next())
        fields.append(*field);
    EXPECT_EQ(fields, GetParam().fields);
}

INSTANTIATE_TEST_SUITE_P(Fields, ListInputTest, testing::ValuesIn(Cases), [](const auto &info) {
    return info.param.name;
});

} // namespace
