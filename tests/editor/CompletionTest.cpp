#include "editor/Completion.h"

#include "tests/editor/MarkedSource.h"

using namespace brenix;
using namespace Qt::StringLiterals;

namespace {

const QString Far(300, u'x');

TEST(Completion, TagAtTheCaret)
{
    using enum TagSearch::Result;
    // clang-format off
    const struct
    {
        const char *name;
        QString text;
        TagSearch::Result result;
        QString tag;
    } rows[] = {
        {"in a closed tag", u"<p><IMG |>"_s, Found, u"IMG"_s},
        {"between attributes", u"<a href=x |class=y>"_s, Found, u"a"_s},
        {"on a later line", u"<a\nb |>"_s, Found, u"a\r\nb"_s},
        {"in an open tag", u"<a href |x"_s, Nothing, {}},
        {"closed by another tag's end", u"<a |<b>"_s, Found, u"a"_s},
        {"open tag with a closed one before it", u"<a <b |>"_s, Found, u"b"_s},
        {"behind a tag", u"<a b> |"_s, Outside, {}},
        {"in an end tag", u"</a |>"_s, NoName, {}},
        {"no blank in the tag", u"<img|>"_s, NoName, {}},
        {"no tag", u"abc |"_s, Nothing, {}},
        {"empty text", u"|"_s, Nothing, {}},
        {"caret at the start", u"|<a >"_s, Nothing, {}},
        {"caret right behind the sign", u"<| a>"_s, Nothing, {}},
        {"long tag", u"<a "_s + Far.first(96) + u"|>"_s, Found, u"a"_s},
        {"tag too long", u"<a "_s + Far.first(97) + u"|>"_s, Nothing, {}},
        {"nothing near", u"<a >"_s + Far + u" |"_s, NoName, {}},
    };
    // clang-format on
    for (const auto &row : rows) {
        const TagSearch search = FindTagAtCaret(MarkedSource(row.text));
        EXPECT_EQ(int(search.result), int(row.result)) << row.name;
        EXPECT_EQ(search.name, row.tag) << row.name;
    }
}

TEST(Completion, AttributeAtTheCaret)
{
    // clang-format off
    const struct
    {
        const char *name;
        QString text;
        QString attribute;
    } rows[] = {
        {"typed quote", u"<a HREF=\"|>"_s, u"href"_s},
        {"inserted quotes", u"<a href=\"|\">"_s, u"href"_s},
        {"blanks round the sign", u"<a href = \"|"_s, u"href"_s},
        {"second attribute", u"<a href=\"x\" target=\"|"_s, u"target"_s},
        {"closing quote", u"<a href=\"x\"|"_s, {}},
        {"no sign", u"<a href\"|"_s, {}},
        {"sign in another tag", u"<a href=><b \"|"_s, {}},
        {"no blank before the name", u"href=\"|"_s, {}},
        {"start of the text", u"|=\""_s, {}},
        {"sign at the start", u"=\"|"_s, {}},
        {"empty text", u"|"_s, {}},
        {"longest name", u" "_s + Far.first(98) + u"=\"|"_s, Far.first(98)},
        {"name too long", u" "_s + Far.first(100) + u"=\"|"_s, {}},
    };
    // clang-format on
    for (const auto &row : rows)
        EXPECT_EQ(FindAttributeAtCaret(MarkedSource(row.text)), row.attribute) << row.name;
}

} // namespace
