#include "tags/EditTag.h"

#include "tags/SelectTag.h"
#include "tests/support/MemoryDocument.h"

using namespace brenix;
using namespace Qt::StringLiterals;

namespace {

TEST(SelectTag, SelectsTheTagAtTheCaret)
{
    const QString a199(199, u'a');
    struct Case
    {
        const char *row;
        QString before; // the caret
        QString behind;
        QString selected;
    };
    const Case cases[] = {
        {"within", u"x<b c"_s, u"=d>y"_s, u"<b c=d>"_s},
        {"behind the bracket", u"x<"_s, u"b>y"_s, u"<b>"_s},
        {"before the end", u"<b"_s, u">"_s, u"<b>"_s},
        {"behind the tag", u"<b>"_s, u"x<i>"_s, {}},
        {"before the tag", u"x"_s, u"<b>"_s, {}},
        {"start of the text", {}, u"<b>"_s, {}},
        {"no end", u"<b"_s, u" c"_s, {}},
        {"200 before", u'<' + a199 + u'a', u">"_s, u'<' + a199 + u"a>"_s},
        {"201 before", u'<' + a199 + u"aa"_s, u">"_s, {}},
        {"200 behind", u"x<"_s, a199 + u'>', u'<' + a199 + u'>'},
        {"201 behind", u"x<"_s, a199 + u"a>"_s, {}},
        {"far inside a page", a199 + a199 + u"<b"_s, u">"_s + a199 + a199, u"<b>"_s},
        {"empty page", {}, {}, {}},
    };
    for (const Case &row : cases) {
        MemorySource source;
        source.SetText(row.before + row.behind);
        source.SetSelStart(int(row.before.size()));
        SelectTagAtCaret(source);
        EXPECT_EQ(source.SelText(), row.selected) << row.row;
        const qsizetype start
            = row.selected.isEmpty() ? row.before.size() : row.before.lastIndexOf(u'<');
        EXPECT_EQ(source.SelStart(), start) << row.row;
    }
}

TEST(EditTag, GoesByTheFirstLetters)
{
    using enum EditTagTarget;
    struct Case
    {
        QString selected;
        EditTagTarget target;
    };
    const Case cases[] = {
        {u""_s, Nothing},
        {u"b>"_s, Nothing},
        {u"<!-- x -->"_s, CommentMessage},
        {u"<COMMENT>"_s, CommentMessage},
        {u"</b>"_s, EndTagMessage},
        {u"<META NAME=\"x\">"_s, Meta},
        {u"<script>"_s, Script},
        {u"<A HREF=\"x\">"_s, Hyperlink},
        {u"<address>"_s, Hyperlink},
        {u"<A NAME=\"x\">"_s, General},
        {u"<a name = \"x\">"_s, General},
        {u"<a href=\"?name=x\">"_s, Hyperlink},
        {u"<a\r\nname=\"x\">"_s, Hyperlink},
        {u"<img src=\"x\" name=\"y\">"_s, Image},
        {u"<title>"_s, Title},
        {u"<html>"_s, Html},
        {u"<Body>"_s, Body},
        {u"<td>"_s, General},
        {u"<>"_s, General},
    };
    for (const Case &row : cases)
        EXPECT_EQ(EditTagTargetOf(row.selected), row.target) << row.selected.toStdString();
}

TEST(EditTag, SelectsTheTextOfATitle)
{
    for (const auto &[page, title] : {std::pair{u"x<title>a b</TITLE></title>"_s, u"a b"_s},
                                      std::pair{u"x<title></title>"_s, u""_s},
                                      std::pair{u"x<title>no end"_s, u""_s}}) {
        MemorySource source;
        source.SetText(page);
        source.SetSelStart(1);
        source.SetSelLength(7);
        SelectTitleText(source);
        EXPECT_EQ(source.SelStart(), 8);
        EXPECT_EQ(source.SelText(), title);
    }
}

TEST(EditTag, WritesBackWhatItRead)
{
    struct Case
    {
        const char *row;
        QString tag;
        QString written;
    };
    const Case cases[] = {
        {"lower case", u"<TABLE Border=\"1\">"_s, u"<table Border=\"1\">"_s},
        {"order", u"<p z=\"1\" a=\"2\">"_s, u"<p z=\"1\" a=\"2\">"_s},
        {"unquoted attributes are lost", u"<td width=5 nowrap>"_s, u"<td>"_s},
        {"bare one before a quoted",
         u"<input checked name=\"x\">"_s,
         u"<input checked name=\"x\">"_s},
        {"empty value", u"<img alt=\"\">"_s, u"<img alt>"_s},
        {"line ends", u"<p\r\na=\"1\">"_s, u"<p a=\"1\">"_s},
    };
    for (const Case &row : cases)
        EXPECT_EQ(TagText(ReadTag(row.tag)), row.written) << row.row;

    EditedTag tag = ReadTag(u"<td>"_s);
    EXPECT_EQ(tag.name, u"TD"_s);
    tag.attributes = {{u"Attribute"_s, u"Value"_s}, {u"title"_s, u"a \"b\""_s}};
    EXPECT_EQ(TagText(tag), u"<td Attribute=\"Value\" title=\"a &quot;b&quot;\">"_s);
}

TEST(EditTag, RefusesCommentsAndEndTags)
{
    EXPECT_TRUE(IsCommentTag(ReadTag(u"<! x>"_s).name));
    EXPECT_TRUE(IsCommentTag(ReadTag(u"<comment>"_s).name));
    EXPECT_FALSE(IsCommentTag(ReadTag(u"<!--x-->"_s).name));
    EXPECT_TRUE(IsEditable(u"<b>"));
    EXPECT_FALSE(IsEditable(u"</b>"));
    EXPECT_FALSE(IsEditable(u""));
}

} // namespace
