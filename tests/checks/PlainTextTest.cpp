#include "checks/PlainText.h"

#include "tests/checks/LiteralSteps.h"

using namespace brenix;
using namespace Qt::StringLiterals;

namespace {

struct Row
{
    const char *name;
    QString before;
    QString after;
};

class PlainTextTest : public testing::TestWithParam<Row>
{
};

const Row Rows[] = {
    {"each tag a blank", u"a<b>c</b>\r\n<br>d"_s, u"a c \r\n d"_s},
    {"entities", u"a&NBSP;b&nbsp;&aring;&Aring;&AMP;&auml;"_s, u"a b åå&AMP;&auml;"_s},
    {"end before the first tag", u"a > b <i>c> d"_s, u"a > b  c> d"_s},
    {"tag left open", u"a<i>b<u c&nbsp;d"_s, u"a b<u c d"_s},
    {"tag within a tag", u"a<b<i>c>d"_s, u"a c>d"_s},
    {"entity torn by a tag", u"&nb<i>sp;"_s, u"&nb sp;"_s},
    {"nothing", u""_s, u""_s},
};

TEST_P(PlainTextTest, StripsTags)
{
    EXPECT_EQ(StripTags(GetParam().before), GetParam().after);
}

INSTANTIATE_TEST_SUITE_P(Rows, PlainTextTest, testing::ValuesIn(Rows), [](const auto &info) {
    return QString::fromLatin1(info.param.name).replace(u' ', u'_').toStdString();
});

TEST(PlainText, IsTheChainOfItsSteps)
{
    const QStringList pieces{u"<"_s,
                             u">"_s,
                             u"a"_s,
                             u"&nbsp;"_s,
                             u"&NB"_s,
                             u"sp;"_s,
                             u"&"_s,
                             u"&ARING;"_s,
                             u"aring;"_s,
                             u" "_s,
                             u"<b>"_s};
    for (quint32 seed = 0; seed < 5000; ++seed) {
        const QString text = RandomText(pieces, 30, seed);
        QString model = BlankedOut(text, u"<"_s, u">"_s);
        model = Replaced(model, u"&nbsp;"_s, u" "_s, Case::DoesNotCount);
        model = Replaced(model, u"&aring;"_s, u"å"_s, Case::DoesNotCount);
        ASSERT_EQ(StripTags(text), model) << qPrintable(text);
    }
}

} // namespace
