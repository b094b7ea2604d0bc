#include "checks/Compressor.h"

#include "tests/checks/LiteralSteps.h"

using namespace brenix;
using namespace Qt::StringLiterals;

namespace {

struct Row
{
    const char *name;
    CompressOptions options;
    QString before;
    QString after;
};

class CompressorTest : public testing::TestWithParam<Row>
{
};

const CompressOptions Spaces{.spaces = true};
const CompressOptions Simplify{.simplify = true};
const CompressOptions Unused{.unused = true};

// clang-format off
const Row Rows[] = {
    {"no options, tabs become blanks", {}, u"a\tb\r\n<em>  </br>"_s, u"a b\r\n<em>  </br>"_s},
    {"line breaks", {.lineBreaks = true}, u"// a\r\nb\rc\n\r\n\nd"_s, u"// a b c   d"_s},
    {"blanks beside tags", Spaces, u"<b>one</b> two < i >"_s, u"<b>one</b>two<i>"_s},
    {"runs of blanks", Spaces, u"a        b         c"_s, u"a b c"_s},
    {"a run of seventeen", Spaces, u"a                 b"_s, u"a  b"_s},
    {"blanks in an end tag", Spaces, u"< / b>"_s, u"</b>"_s},
    {"simplify", Simplify, u"<STRONG class=a>x</Strong><em>y</EM><strike>z</strike>"_s,
     u"<b class=a>x</b><i>y</i><s>z</s>"_s},
    {"an end tag with a blank", Simplify, u"</em ></strong ></strike >"_s, u"</em ></strong ></s >"_s},
    {"longer names", Simplify, u"<EMBED><strongest>"_s, u"<iBED><best>"_s},
    {"unused tags in their order", Unused, u"<i><b></b></i><b><i></i></b>"_s, u"<b></b>"_s},
    {"unused tags torn by others", Unused, u"<i<b></b>></I>x"_s, u"x"_s},
    {"unused tags once", Unused, u"<b><b></b></b>"_s, u"<b></b>"_s},
    {"a blank between", Unused, u"<b> </b>"_s, u"<b> </b>"_s},
    {"a blank between, with spaces", {.spaces = true, .unused = true}, u"a <b> </b> a"_s, u"aa"_s},
    {"unnecessary tags", {.unnecessary = true}, u"</BASE>a</br></img ></im</br>g>"_s, u"a</img >"_s},
    {"blanks that a deletion joins", {.spaces = true, .unnecessary = true},
     u"a                 </br>                 b"_s, u"a b"_s},
};
// clang-format on

TEST_P(CompressorTest, Replaces)
{
    EXPECT_EQ(Compress(GetParam().before, GetParam().options), GetParam().after);
}

INSTANTIATE_TEST_SUITE_P(Rows, CompressorTest, testing::ValuesIn(Rows), [](const auto &info) {
    return QString::fromLatin1(info.param.name).remove(u',').replace(u' ', u'_').toStdString();
});

/// All passes over the whole text, one after the other.
QString Model(QString text, const CompressOptions &options)
{
    const auto pass = [&text](const QString &find, const QString &with) {
        text = Replaced(text, find, with, Case::DoesNotCount);
    };
    if (options.lineBreaks) {
        for (const auto &end : {u"\r\n"_s, u"\n"_s, u"\r"_s})
            pass(end, u" "_s);
    }
    if (options.simplify) {
        pass(u"<strong"_s, u"<b"_s);
        pass(u"</strong>"_s, u"</b>"_s);
        pass(u"<em"_s, u"<i"_s);
        pass(u"<strike"_s, u"<s"_s);
        pass(u"</strike"_s, u"</s"_s);
        pass(u"</em>"_s, u"</i>"_s);
    }
    pass(u"\t"_s, u" "_s);
    for (int round = 0; options.spaces && round < 3; ++round) {
        pass(u"  "_s, u" "_s);
        for (const auto &tag : {u"< "_s, u" >"_s, u"> "_s, u" <"_s, u"</ "_s})
            pass(tag, QString(tag).remove(u' '));
    }
    if (options.unused) {
        for (const auto &name : {u"b"_s,
                                 u"i"_s,
                                 u"blockquote"_s,
                                 u"u"_s,
                                 u"ol"_s,
                                 u"p"_s,
                                 u"pre"_s,
                                 u"html"_s,
                                 u"title"_s,
                                 u"s"_s,
                                 u"strike"_s,
                                 u"nobr"_s})
            pass(u"<%1></%1>"_s.arg(name), QString());
    }
    if (options.unnecessary) {
        for (const auto &tag : {u"</base>"_s, u"</br>"_s, u"</img>"_s})
            pass(tag, QString());
    }
    if (options.spaces)
        pass(u"  "_s, u" "_s);
    return text;
}

CompressOptions OptionsOf(int bits)
{
    return {.lineBreaks = (bits & 1) != 0,
            .spaces = (bits & 2) != 0,
            .simplify = (bits & 4) != 0,
            .unnecessary = (bits & 8) != 0,
            .unused = (bits & 16) != 0};
}

TEST(Compressor, IsTheChainOfItsPasses)
{
    const QStringList pieces{
        u"<"_s,         u">"_s,         u"/"_s,     u"</"_s,        u"></"_s,   u" "_s,
        u" "_s,         u"  "_s,        u"     "_s, u"\t"_s,        u"\r\n"_s,  u"\r"_s,
        u"\n"_s,        u"b"_s,         u"I"_s,     u"<b>"_s,       u"</B>"_s,  u"<b></b>"_s,
        u"<i></i>"_s,   u"<s"_s,        u"trong"_s, u"<em"_s,       u"</em>"_s, u"<stri\u212Ae"_s,
        u"</strike>"_s, u"</strong>"_s, u"<p"_s,    u"re></pre>"_s, u"</br>"_s, u"</im"_s,
        u"g>"_s,        u"<u></"_s,     u"u>"_s,    u"text"_s};
    for (quint32 seed = 0; seed < 20000; ++seed) {
        const QString text = RandomText(pieces, 60, seed);
        const CompressOptions options = OptionsOf(int(seed % 32));
        ASSERT_EQ(Compress(text, options), Model(text, options))
            << "seed " << seed << ": " << qPrintable(text);
    }
    for (const QString &page : RealPages()) {
        for (const int bits : {0, 2, 24, 31})
            ASSERT_EQ(Compress(page, OptionsOf(bits)), Model(page, OptionsOf(bits)));
    }
}

TEST(Compressor, TellsTheSizeAndStops)
{
    const QString text = u"<em> a </em>"_s.repeated(10000);
    std::vector<qsizetype> lengths;
    const auto tell = [&lengths](std::size_t most) {
        return [&lengths, most](qsizetype length) {
            lengths.push_back(length);
            return lengths.size() < most;
        };
    };
    const QString compressed = Compress(text, OptionsOf(31), tell(1000));
    EXPECT_TRUE(std::is_sorted(lengths.rbegin(), lengths.rend()));
    EXPECT_EQ(lengths.back(), compressed.size());
    constexpr std::size_t Pieces = 5; // of the work, at the least
    for (std::size_t most = 1; most <= Pieces; ++most) {
        lengths.clear();
        EXPECT_EQ(Compress(text, OptionsOf(31), tell(most)), text);
        EXPECT_EQ(lengths.size(), most) << "asked again after it was stopped";
    }
}

TEST(Compressor, SizeAsAPercentage)
{
    EXPECT_EQ(SizePercent(1, 8), 12);
    EXPECT_EQ(SizePercent(3, 8), 38);
    EXPECT_EQ(SizePercent(5, 5), 100);
    EXPECT_EQ(SizePercent(0, 0), std::nullopt);
}

} // namespace
