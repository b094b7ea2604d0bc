#include "support/DesignText.h"

#include "tests/support/PrintQt.h"

#include <QRegularExpression>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using namespace brenix;

namespace {

// What the page becomes for the engine; <0c> stands for a token, its number and its place.
struct Case
{
    const char *row;
    QString page;
    QString root;
};

QString Readable(QString html)
{
    static const QRegularExpression token(u"(?:<!--)?brenixkept\\d+x(\\d+[cbt])(?:-->)?"_s);
    return html.replace(token, u"<\\1>"_s);
}

class Protected : public testing::TestWithParam<Case>
{
};

TEST_P(Protected, TravelsWithTokens)
{
    const DesignText text(GetParam().page);
    EXPECT_EQ(Readable(text.Root()), GetParam().root);
}

TEST_P(Protected, ComesBackWhole)
{
    const QString &page = GetParam().page;
    const DesignText whole(page);
    EXPECT_EQ(whole.Page(whole.Root()), whole.Original());
    for (qsizetype length = 0; length < page.size(); ++length) {
        const DesignText text(page.first(length));
        EXPECT_EQ(text.Page(text.Root()), text.Original()) << "cut at " << length;
        DesignText other;
        EXPECT_EQ(other.Restore(other.Protect(page.mid(length))), page.mid(length))
            << "from " << length;
    }
}

INSTANTIATE_TEST_SUITE_P(
    Pages,
    Protected,
    testing::Values(
        Case{"plain",
             u"<html><p>a &nbsp; <!-- c --></html>"_s,
             u"<html><p>a &nbsp; <!-- c --></html>"_s},
        Case{
            "outsideTheRoot",
            u"<?xml version='1.0'?>\r\n<!-- a --><!DOCTYPE html>\r\n<?php b ?><html></html>\r\n<!-- c --><p>"_s,
            u"<html></html>"_s},
        Case{
            "conditionalRoot",
            u"<!--[if IE]><html class=ie><![endif]--><!--[if !IE]><!--><html><!--<![endif]--><p>"_s,
            u"<html><!--<![endif]--><p>"_s},
        Case{"codeInText", u"<p>a<?= $b > 1 ?>c<% d %>e</p>"_s, u"<p>a<0c>c<1c>e</p>"_s},
        Case{"codeInValue",
             u"<a href=\"<?= \"x\" ?>.html\" id='<% y %>' class=<?= z ?>>"_s,
             u"<a href=\"<0t>.html\" id='<1t>' class=<2t>>"_s},
        Case{"codeInTag",
             u"<option <?php if ($a) { ?>selected<?php } ?> value=1>"_s,
             u"<option <0t>selected<1b> value=1>"_s},
        Case{"codeAsNameWithValue", u"<p <?= a ?> <?= a ?>=\"\">"_s, u"<p <0b> <1t>=\"\">"_s},
        Case{"codeAsTagName",
             u"<p><<?= t ?> a=1>x</<?= t ?>><h<%= n %>>y</h<%= n %>>"_s,
             u"<p><<0t> a=1>x</<0t>><h<1t>>y</h<1t>>"_s},
        Case{"codeInRawText",
             u"<title><?= a ?></title><script>if (a<b) '<?= '</script>' ?>';</script><p>"_s,
             u"<title><0t></title><script>if (a<b) '<1t>';</script><p>"_s},
        Case{"codeInComment", u"<p><!-- <?= a ?> --><p>"_s, u"<p><!-- <?= a ?> --><p>"_s},
        Case{"markupInScript",
             u"<script>'<p <% a'</script><b>"_s,
             u"<script>'<p <% a'</script><b>"_s},
        Case{"openCode", u"<p>a<?php echo '<b>'; "_s, u"<p>a<0c>"_s},
        Case{"openAspCode", u"<p>a <% b <i>"_s, u"<p>a <% b <i>"_s},
        Case{"aspComment", u"<p><%-- a %> b --%>c"_s, u"<p><0c>c"_s},
        Case{"declaration", u"<p><![if !IE]>a<![endif]>"_s, u"<p><0c>a<1c>"_s},
        Case{"noscript", u"<head><noscript><img src=a></noscript><p>"_s, u"<head><0c><p>"_s},
        Case{
            "blanksBetweenParts",
            u"<html>\r\n<head>\r\n</head>\r\n<body>\r\n<p>\r\n</body>\r\n <!-- c -->\r\n</html>\r\n"_s,
            u"<html><0c><head>\r\n</head>\r\n<body>\r\n<p>\r\n</body><1c><!-- c --><2c></html>"_s},
        Case{"secondEndOfRoot", u"<html>a</html><p>b</html>c"_s, u"<html>a</html><p>b</html>"_s},
        Case{"lineEnds", u"<p>a\nb\rc\r\nd<?php\n?>"_s, u"<p>a\r\nb\r\nc\r\nd<0c>"_s},
        Case{"tokenOfItsOwn",
             u"<p>BRENIXKEPT0x9c brenixkept1x<? a ?>"_s,
             u"<p>BRENIXKEPT0x9c brenixkept1x<0c>"_s},
        Case{"looseSigns", u"<p>1 < 2 </ <> <1 </>"_s, u"<p>1 < 2 </ <> <1 </>"_s}),
    [](const auto &info) { return std::string(info.param.row); });

TEST(DesignText, TakesTokensAsTheEngineWritesThem)
{
    DesignText text(u"<p <?php a ?> title=\"<?= b ?>\">c<?php d ?>"_s);
    QString engine = text.Root();
    // as an attribute without a value is written, twice since the paragraph was copied
    engine.replace(u"b title"_s, u"b=\"\" title"_s);
    engine = u"<html>"_s + engine + u"</p>\n"_s + engine + u"</html>"_s;
    const QString paragraph = u"<p <?php a ?> title=\"<?= b ?>\">c<?php d ?>"_s;
    EXPECT_EQ(text.Page(engine), u"<html>%1</p>\r\n%1</html>"_s.arg(paragraph));
    EXPECT_EQ(text.Restore(text.Protect(u"<% e %>")), u"<% e %>"_s);
}

TEST(DesignText, ManyOpeningsAreReadOnce)
{
    for (const QString &opening :
         {u"<%"_s, u"<!"_s, u"<!--"_s, u"<noscript "_s, u"</html>"_s, u"<a b=\""_s}) {
        const DesignText text(u"<p>"_s + opening.repeated(200'000));
        EXPECT_EQ(text.Page(text.Root()), text.Original());
    }
}

} // namespace
