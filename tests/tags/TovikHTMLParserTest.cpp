#include "tags/TovikHTMLParser.h"

#include <QStringList>

using namespace brenix;
using namespace Qt::StringLiterals;

namespace {

/// Every event as one row: its name, and its arguments with "|" before each.
QStringList EventsOf(QString html)
{
    QStringList events;
    TovikHTMLParser parser;
    parser.HTMLTagBegin = [&](const QString &name) { events.append(u"Begin|"_s + name); };
    parser.HTMLProperty = [&](const QString &name, const QString &value) {
        events.append(u"Property|"_s + name + u'|' + value);
        html.clear(); // what a function does to the input is not seen
    };
    parser.HTMLTagEnd = [&](const QString &name) { events.append(u"End|"_s + name); };
    parser.HTMLTagClose = [&](const QString &name) { events.append(u"Close|"_s + name); };
    parser.HTMLText = [&](const QString &text) { events.append(u"Text|"_s + text); };
    parser.ParseHTML(html);
    return events;
}

struct Case
{
    const char *name;
    QString html;
    QStringList events;
};

const Case Cases[] = {
    {"attributes",
     u"<A HREF=\"x.htm\" TARGET=\"_top\">"_s,
     {u"Begin|A"_s, u"Property|HREF|x.htm"_s, u"Property|TARGET|_top"_s, u"End|A"_s}},
    {"two_tags", u"<B><I>"_s, {u"Begin|B"_s, u"End|B"_s, u"Begin|I"_s, u"End|I"_s}},
    {"text_and_end_tag",
     u"<B> a  b </B>"_s,
     {u"Begin|B"_s, u"End|B"_s, u"Text|a  b"_s, u"Close|B"_s}},
    {"text_at_the_end", u"<B>abc"_s, {u"Begin|B"_s, u"End|B"_s}},
    {"blanks_between_tags",
     u"<B>  <I>x</I>"_s,
     {u"Begin|B"_s, u"End|B"_s, u"Begin|I"_s, u"End|I"_s, u"Text|x"_s, u"Close|I"_s}},
    {"no_break_space_is_text", u"\u00A0<B>"_s, {u"Text|\u00A0"_s, u"Begin|B"_s, u"End|B"_s}},
    {"two_blanks", u"<A  HREF=\"x\">"_s, {u"Begin|A"_s, u"Property|HREF|x"_s, u"End|A"_s}},
    {"empty_value", u"<IMG ALT=\"\">"_s, {u"Begin|IMG"_s, u"Property|ALT|"_s, u"End|IMG"_s}},
    {"blanks_in_a_value", u"<A B=\" x y \">"_s, {u"Begin|A"_s, u"Property|B|x y"_s, u"End|A"_s}},
    {"brackets_in_a_value", u"<A B=\"<x>\">"_s, {u"Begin|A"_s, u"Property|B|<x>"_s, u"End|A"_s}},
    {"line_ends",
     u"<A\r\nB=\"x\rz\"\nC=\"y\">"_s,
     {u"Begin|A"_s, u"Property|B|x z"_s, u"Property|C|y"_s, u"End|A"_s}},
    {"tab", u"<A\tHREF=\"x\">"_s, {u"Begin|AHREF=\"x\""_s, u"End|AHREF=\"x\""_s}},
    {"no_blank_between",
     u"<A B=\"x\"C=\"y\">"_s,
     {u"Begin|A"_s, u"Property|B|x"_s, u"End|AC=\"y\""_s}},
    {"unquoted_value", u"<TD WIDTH=5>"_s, {u"Begin|TD"_s}},
    {"unquoted_value_swallows_tags",
     u"<TD WIDTH=5><B C=\"x\">"_s,
     {u"Begin|TD"_s, u"Property|WIDTH=5><B C|x"_s, u"End|TD"_s}},
    {"bare_attribute", u"<HR NOSHADE>"_s, {u"Begin|HR"_s}},
    {"blank_before_the_end", u"<A HREF=\"x\" >"_s, {u"Begin|A"_s, u"Property|HREF|x"_s}},
    {"self_closing", u"<BR />"_s, {u"Begin|BR"_s}},
    {"single_quotes", u"<A HREF='x'>"_s, {u"Begin|A"_s}},
    {"blanks_round_the_sign",
     u"<A HREF = \"x\">"_s,
     {u"Begin|A"_s, u"Property|HREF |x"_s, u"End|A"_s}},
    {"bare_before_quoted",
     u"<INPUT CHECKED NAME=\"a\">"_s,
     {u"Begin|INPUT"_s, u"Property|CHECKED NAME|a"_s, u"End|INPUT"_s}},
    {"no_sign",
     u"<!DOCTYPE HTML PUBLIC \"-//W3C\">"_s,
     {u"Begin|!DOCTYPE"_s, u"Property|HTML PUBLI|-//W3C"_s, u"End|!DOCTYPE"_s}},
    {"nothing_before_the_quote",
     u"<A \"x\" B=\"y\">"_s,
     {u"Begin|A"_s, u"Property|B|y"_s, u"End|A"_s}},
    {"sign_alone", u"<A =\"x\">"_s, {u"Begin|A"_s, u"Property||x"_s, u"End|A"_s}},
    {"comment_with_blanks", u"<!-- a -->"_s, {u"Begin|!--"_s}},
    {"comment_without_blanks", u"<!--a-->"_s, {u"Begin|!--a--"_s, u"End|!--a--"_s}},
    {"tag_in_a_tag", u"<A<B>"_s, {u"Begin|A<B"_s, u"End|A<B"_s}},
    {"end_outside_a_tag", u"a > b<I>"_s, {u"Text|a > b"_s, u"Begin|I"_s, u"End|I"_s}},
    {"comparison", u"x < y"_s, {u"Text|x"_s, u"Begin|"_s}},
    {"empty_tag", u"<>"_s, {u"Begin|"_s, u"End|"_s}},
    {"empty_end_tag", u"</>"_s, {u"Close|"_s}},
    {"end_tag_with_a_blank", u"</A B>"_s, {u"Begin|/A"_s}},
    {"end_tag_with_an_attribute",
     u"</A B=\"x\">"_s,
     {u"Begin|/A"_s, u"Property|B|x"_s, u"Close|A"_s}},
    {"missing_end_quote", u"<A HREF=\"x>"_s, {u"Begin|A"_s}},
    {"nothing", {}, {}},
};

class Parser : public testing::TestWithParam<Case>
{
};

TEST_P(Parser, RaisesTheEvents)
{
    EXPECT_EQ(EventsOf(GetParam().html), GetParam().events);
}

// What a prefix reports is what the whole reports first: nothing is reported too early.
TEST_P(Parser, ReportsAPrefixAsTheBeginningOfTheWhole)
{
    for (qsizetype length = 0; length < GetParam().html.size(); ++length) {
        const QStringList events = EventsOf(GetParam().html.left(length));
        EXPECT_EQ(events, GetParam().events.mid(0, events.size()));
    }
}

INSTANTIATE_TEST_SUITE_P(Texts, Parser, testing::ValuesIn(Cases), [](const auto &info) {
    return info.param.name;
});

TEST(ParserInput, IsNormalisedInPlaceAndNeedsNoHandlers)
{
    QString html = u"a\r\nb\rc\n\rd\te <b c=\"d\">x</b>"_s;
    TovikHTMLParser().ParseHTML(html);
    EXPECT_EQ(html, u"a b c  de <b c=\"d\">x</b>"_s);
}

} // namespace
