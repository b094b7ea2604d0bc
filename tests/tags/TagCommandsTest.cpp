#include "tags/EndTag.h"
#include "tags/TagDesignerText.h"
#include "tags/TagHelp.h"
#include "tags/TagNameList.h"

#include <QSet>

using namespace brenix;
using namespace Qt::StringLiterals;

namespace {

// "|" is the caret.
struct EndTagCase
{
    QString page;
    std::optional<QString> endTag;
};

const EndTagCase EndTags[] = {
    {u"<b>word|"_s, u"</b>"_s},
    {u"<a href=\"x\">word|"_s, u"</a>"_s},
    {u"<p>one<b>two</b>three|"_s, u"</p>"_s},
    {u"<b>one</b>two|"_s, {}},
    {u"<ul><li>one</li><li>two</li>|"_s, u"</ul>"_s},
    {u"<b><i>x</i></b>|"_s, u"</b>"_s},
    {u"<div><div>x</div>|"_s, {}},
    {u"<A>x</a>|"_s, u"</A>"_s},
    {u"<br>word|"_s, {}},
    {u"<BR>word|"_s, u"</BR>"_s},
    {u"<colgroup><basefont><hr><!-- x --><isindex><area><img>|"_s, {}},
    {u"<!-- <b> -->|"_s, u"</b>"_s},
    {u"<b>x</b >|"_s, u"</b>"_s},
    {u"<b\r\nc>x|"_s, u"</b\r\nc>"_s},
    {u"<>|"_s, u"</>"_s},
    {u"<></>|"_s, {}},
    {u"<<b>|"_s, u"</b>"_s},
    {u"<b|"_s, {}}, // no ">"
    {u"<i><b|"_s, {}},
    {u"<i></b|"_s, {}},
    {u"<b|>"_s, u"</b>"_s}, // the ">" may stand behind the caret
    {u"<i><|b>"_s, u"</i>"_s}, // a "<" just before the caret is not seen
    {u"<i>x</|i>"_s, {}},
    {u"<|b>"_s, {}},
    {u"|<b>"_s, {}},
    {u"|"_s, {}},
};

TEST(EndTag, ClosesTheNearestOpenElement)
{
    for (const EndTagCase &row : EndTags) {
        const qsizetype caret = row.page.indexOf(u'|');
        EXPECT_EQ(EndTagAt(QString(row.page).remove(caret, 1), caret), row.endTag)
            << row.page.toStdString();
    }
    EXPECT_EQ(EndTagAt(u"<b>", 1000), u"</b>"_s);
}

TEST(TagHelp, LooksUpTheName)
{
    const QHash<QString, QString> keywords{
        {u"<TABLE BORDER=1>"_s, u"table"_s},
        {u"</table>"_s, u"table"_s},
        {u"<\\Table>"_s, u"table"_s},
        {u"<!DocType HTML>"_s, u"doctype"_s},
        {u"<!DOCTYPE>"_s, u"doctype"_s},
        {u"<!-- doctype -->"_s, u""_s},
        {u"<!--doctype-->"_s, u"doctype"_s},
        {u"<br/>"_s, u"br/"_s},
        {u"<>"_s, u""_s},
        {u"<"_s, u""_s},
        {u""_s, u""_s},
    };
    for (auto row = keywords.begin(); row != keywords.end(); ++row)
        EXPECT_EQ(TagHelpKeyword(row.key()), row.value()) << row.key().toStdString();
}

TEST(TagNames, AreTheOnesOffered)
{
    const QStringList &names = InsertTagNames();
    EXPECT_EQ(names.size(), 111);
    EXPECT_EQ(QSet<QString>(names.begin(), names.end()).size(), 111);
    EXPECT_TRUE(std::is_sorted(names.begin(), names.end()));
    EXPECT_EQ(names.value(FindTagName(u"ta")), u"TABLE"_s);
    EXPECT_EQ(FindTagName(u"A"), 0);
    EXPECT_EQ(FindTagName(u"tablex"), -1);
    EXPECT_EQ(InsertTagMarkup(u"B"_s, true), u"<B></B>"_s);
    EXPECT_EQ(InsertTagMarkup(u"B"_s, false), u"<B>"_s);
}

TEST(TagDesigner, AsksForAValueAsItFits)
{
    using enum DesignerPanel;
    struct Case
    {
        QString attribute;
        DesignerPanel panel;
        QStringList values = {};
    };
    const Case cases[] = {
        {u"face"_s, FontDrop},
        {u"FACE"_s, Default},
        {u"bgcolor"_s, Color},
        {u"href"_s, Hyper},
        {u"noshade"_s, NoOption},
        {u"nowrap"_s, Default},
        {u"language"_s, Drop, {u"JavaScript"_s, u"JScript"_s, u"VBScript"_s}},
        {u"align"_s, Drop, {u"Center"_s, u"Left"_s, u"Right"_s}},
        {u"valign"_s, Drop, {u"Baseline"_s, u"Bottom"_s, u"Middle"_s, u"Top"_s}},
        {u"target"_s, Drop, {u"_self"_s, u"_top"_s, u"_blank"_s, u"_parent"_s}},
        {u""_s, Default},
    };
    for (const Case &row : cases) {
        EXPECT_EQ(PanelOfAttribute(row.attribute), row.panel) << row.attribute.toStdString();
        EXPECT_EQ(DropValues(row.attribute), row.values) << row.attribute.toStdString();
    }
}

TEST(TagDesigner, WritesTheTagAsItWasCollected)
{
    struct Case
    {
        QString name;
        QString code;
        QString tag;
    };
    const Case cases[] = {
        {u"BR"_s, {}, u"<BR>"_s},
        {u"B"_s, {}, u"<B></B>"_s},
        {u"IMG"_s, DesignedAttribute(u"src"_s, u"a.gif"_s), u"<IMG src=\"a.gif\" >"_s},
        {u"HR"_s, DesignedAttribute(u"noshade"_s), u"<HR noshade >"_s},
        {u"P"_s, u"x"_s, u"<P x></P>"_s},
        {u"P"_s, u"  "_s, u"<P  ></P>"_s},
        {u"P"_s, u" x"_s, u"<P  ></P>"_s},
        {u"LI"_s, u"x"_s, u"<LI x>"_s},
    };
    for (const Case &row : cases)
        EXPECT_EQ(DesignedTag(row.name, row.code), row.tag);
}

} // namespace
