#include "checks/Formats.h"

#include "tests/checks/LiteralSteps.h"

using namespace brenix;
using namespace Qt::StringLiterals;

namespace {

struct Row
{
    const char *name;
    Format format;
    QString before;
    QString after;
};

class FormatsTest : public testing::TestWithParam<Row>
{
};

// clang-format off
const Row Rows[] = {
    {"nothing", Format::Hierarchical, u""_s, u""_s},
    {"levels", Format::Hierarchical, u"<html>\r\n    <b>x</b>\r\n</html>"_s, u"\n<html>\r\n <b>x\r\n </b>\r\n</html>"_s},
    {"names without content", Format::Hierarchical, u"<BR><img src=a><!-- x --><!DOCTYPE y><i>"_s,
     u"\n<BR>\r\n<img src=a>\r\n<!-- x -->\r\n<!DOCTYPE y>\r\n<i>"_s},
    {"name that only begins so", Format::Hierarchical, u"<params><i>"_s, u"\n<params>\r\n <i>"_s},
    {"closed more than opened", Format::Hierarchical, u"<html><p>x</p></html>"_s, u"\n<html>\r\n <p>x\r\n</p>"_s},
    {"below the edge and back", Format::Hierarchical, u"</b>x<i>y<u>z"_s, u"\n<u>z"_s},
    {"text alone loses its first character", Format::Hierarchical, u"text > x"_s, u"ext> x"_s},
    {"text before the first tag", Format::Hierarchical, u"ab<i>"_s, u"b<\r\n<i>"_s},
    {"tags left open", Format::Hierarchical, u"<i<u"_s, u"\n<i\r\n <u"_s},
    {"a lone <", Format::Hierarchical, u"<"_s, u"\n<"_s},
    {"runs of four blanks", Format::Hierarchical, u"<i>a        b     c"_s, u"\n<i>ab c"_s},
    {"tabs stay", Format::Hierarchical, u"<i>\ta"_s, u"\n<i>\ta"_s},
    {"line ends that removing joins", Format::Compact, u"a\r\r\n\nb"_s, u"a\r\nb"_s},
    {"compact", Format::Compact, u"<b>\r\n\tx     y </b> <i >"_s, u"<b> x y </b><i>"_s},
    {"compact runs", Format::Compact, u"a       b"_s, u"a b"_s},
    {"compact long runs", Format::Compact, u"a"_s + QString(200, u' ') + u"b"_s, u"a  b"_s},
    {"simple", Format::Simple, u"<b><i>x</i> </b>"_s, u"<b>\r\n<i>x</i>\r\n</b>"_s},
};
// clang-format on

TEST_P(FormatsTest, LaysOut)
{
    EXPECT_EQ(FormatMarkup(GetParam().before, GetParam().format), GetParam().after);
}

INSTANTIATE_TEST_SUITE_P(Rows, FormatsTest, testing::ValuesIn(Rows), [](const auto &info) {
    return QString::fromLatin1(info.param.name)
        .replace(u' ', u'_')
        .replace(u'<', u'L')
        .toStdString();
});

QString CleanTagSpaces(const QString &text)
{
    const QString closed = Replaced(Replaced(text, u" >"_s, u">"_s), u"< "_s, u"<"_s);
    return Replaced(closed, u"> <"_s, u"><"_s);
}

QString CompactModel(QString text)
{
    text = Replaced(Replaced(text, u"\r\n"_s, u""_s), u"\t"_s, u" "_s);
    for (const int blanks : {5, 4, 3, 2})
        text = Replaced(text, QString(blanks, u' '), u" "_s);
    return CleanTagSpaces(text);
}

QString NameOf(const QString &tag)
{
    if (tag.mid(1, 3) == u"!--")
        return u"!--"_s;
    const qsizetype blank = tag.indexOf(u' ');
    const qsizetype end = blank < 0 ? tag.indexOf(u'>') : blank;
    return LowerCased(tag.mid(1, end < 0 ? -1 : end - 1));
}

QString HierarchicalModel(QString text)
{
    const QStringList without{u"br"_s,
                              u"hr"_s,
                              u"img"_s,
                              u"meta"_s,
                              u"applet"_s,
                              u"p"_s,
                              u"!--"_s,
                              u"input"_s,
                              u"!doctype"_s,
                              u"area"_s,
                              u"link"_s,
                              u"param"_s};
    text = Replaced(Replaced(text, u"\r\n"_s, u""_s), u"    "_s, u""_s);
    QString result;
    if (!text.startsWith(u'<'))
        result = text.left(text.contains(u'<') ? text.indexOf(u'<') + 1 : text.size());
    int level = 0;
    for (qsizetype at = text.indexOf(u'<'); at >= 0; at = text.indexOf(u'<', at + 1)) {
        const qsizetype next = text.indexOf(u'<', at + 1);
        const QString line = text.mid(at, next < 0 ? -1 : next - at);
        const qsizetype end = text.indexOf(u'>', at);
        const QString name = NameOf(text.mid(at, end < 0 ? -1 : end + 1 - at));
        const bool closes = line.startsWith(u"</");
        level -= closes;
        if (level >= 0)
            result += u"\r\n"_s + QString(level, u' ') + line;
        level += !closes && !without.contains(name) && !name.startsWith(u'!');
    }
    return CleanTagSpaces(result).mid(1);
}

void CompareWithModels(const QString &text)
{
    const QString compact = CompactModel(text);
    ASSERT_EQ(FormatMarkup(text, Format::Compact), compact);
    ASSERT_EQ(FormatMarkup(text, Format::Simple), Replaced(compact, u"><"_s, u">\r\n<"_s));
    ASSERT_EQ(FormatMarkup(text, Format::Hierarchical), HierarchicalModel(text));
}

TEST(Formats, AreTheChainsOfTheirSteps)
{
    const QStringList pieces{u"<"_s,           u">"_s,        u"/"_s,       u"</"_s,  u"><"_s,
                             u" "_s,           u"  "_s,       u"     "_s,   u"\t"_s,  u"\r\n"_s,
                             u"\r"_s,          u"\n"_s,       u"<b>"_s,     u"<b>"_s, u"</b>"_s,
                             u"<p>"_s,         u"</p>"_s,     u"<IMG a>"_s, u"<!"_s,  u"--"_s,
                             u"<lin\u212A>"_s, u"<params>"_s, u"br"_s,      u"x"_s};
    for (quint32 seed = 0; seed < 5000; ++seed)
        CompareWithModels(RandomText(pieces, 40, seed));
    for (const QString &page : RealPages())
        CompareWithModels(page);
}

TEST(Formats, DeepNestingEnds)
{
    const QString nested = u"<i>"_s.repeated(200'000);
    const QString text = FormatMarkup(nested, Format::Hierarchical);
    EXPECT_EQ(text.count(u"<i>"), 200'000);
    EXPECT_TRUE(text.endsWith(u"\n<i>"));
    EXPECT_LT(text.size(), 70'000'000);
}

TEST(Formats, LeaveTheTextAsItWasWhenStopped)
{
    const QString text = u"<b> x </b>\r\n"_s;
    for (const Format format : {Format::Hierarchical, Format::Compact, Format::Simple})
        EXPECT_EQ(FormatMarkup(text, format, [] { return false; }), text);
}

} // namespace
