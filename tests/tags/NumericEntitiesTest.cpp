#include "tags/NumericEntities.h"

#include "tests/support/PrintQt.h"

using namespace brenix;
using namespace Qt::StringLiterals;

namespace {

TEST(NumericEntities, EveryCharacter)
{
    const std::tuple<const char *, QString, QString> cases[] = {
        {"letters", u"Hi"_s, u"&#72;&#105;"_s},
        {"blank and line end", u" \r\n"_s, u"&#32;&#13;&#10;"_s},
        {"Unicode, not a code page", u"\u20AC\u0161"_s, u"&#8364;&#353;"_s},
        {"two surrogates are one", u"\U0001F600"_s, u"&#128512;"_s},
        {"markup", u"<&"_s, u"&#60;&#38;"_s},
        {"nothing", {}, {}},
    };
    for (const auto &[row, text, entities] : cases)
        EXPECT_EQ(NumericEntities(text), entities) << row;
}

} // namespace
