#include "tags/AttributeCatalogue.h"
#include "tags/TagCatalogue.h"
#include "tags/ValueCatalogue.h"

#include <QRegularExpression>

using namespace brenix;
using namespace Qt::StringLiterals;

namespace {

// ---- Dialects

struct DialectCase
{
    QString title;
    int rows;
    QString first;
    QString last;
    QString base = {}; // a dialect whose rows stand in this one, in their order
    int baseAt = 0;
};

const DialectCase Dialects[] = {
    {u"All HTML"_s, 111, u"<!-- -->"_s, u"<XML></XML>"_s},
    {u"HTML 2.0"_s, 48, u"<A></A>"_s, u"<XMP></XMP>"_s},
    {u"HTML 3.2"_s, 68, u"<!DOCTYPE HTML PUBLIC>"_s, u"<VAR></VAR>"_s},
    {u"HTML 4.0"_s, 89, u"<!DOCTYPE HTML PUBLIC>"_s, u"<VAR></VAR>"_s},
    {u"Netscape 1.0"_s, 55, u"<A></A>"_s, u"<XMP></XMP>"_s},
    {u"Netscape 1.1"_s, 63, u"<A></A>"_s, u"<WBR></WBR>"_s, u"Netscape 1.0"_s},
    {u"Netscape 2.0"_s, 70, u"<A></A>"_s, u"<SUP></SUP>"_s, u"Netscape 1.1"_s},
    {u"Netscape 3.0"_s, 75, u"<A></A>"_s, u"<U></U>"_s, u"Netscape 2.0"_s},
    {u"Netscape 4.0"_s, 81, u"<A></A>"_s, u"<STYLE></STYLE>"_s, u"Netscape 3.0"_s},
    {u"Internet Explorer 1.0"_s, 57, u"<A></A>"_s, u"<FORM></FORM>"_s},
    {u"Internet Explorer 2.0"_s,
     64,
     u"<CAPTION></CAPTION>"_s,
     u"<FORM></FORM>"_s,
     u"Internet Explorer 1.0"_s,
     7},
    {u"Internet Explorer 3.0"_s,
     89,
     u"<CAPTION></CAPTION>"_s,
     u"<TFOOT></TFOOT>"_s,
     u"Internet Explorer 2.0"_s},
    {u"Internet Explorer 4.0"_s,
     97,
     u"<CAPTION></CAPTION>"_s,
     u"<Q>"_s,
     u"Internet Explorer 3.0"_s},
    {u"Cold Fusion"_s, 45, u"<!DOCTYPE HTML PUBLIC >"_s, u"<CFUPDATE>"_s},
    {u"Web TV"_s, 23, u"<A></A>"_s, u"<TR></TR>"_s},
    {u"HTML 5"_s, 117, u"<!-- -->"_s, u"<WBR>"_s},
};

TEST(TagCatalogue, HoldsTheDialectsInOrder)
{
    QStringList titles;
    for (const DialectCase &row : Dialects) {
        SCOPED_TRACE(row.title.toStdString());
        titles.append(row.title);
        const QStringList &tags = TagsOfDialect(row.title);
        ASSERT_EQ(tags.size(), row.rows);
        EXPECT_EQ(tags.first(), row.first);
        EXPECT_EQ(tags.last(), row.last);
        const QStringList &base = TagsOfDialect(row.base);
        EXPECT_EQ(tags.mid(row.baseAt, base.size()), base);
    }
    EXPECT_EQ(DialectNames(), titles);
    EXPECT_EQ(TagsOfDialect(u"all html"), QStringList());
}

TEST(TagCatalogue, KeepsTheSlipsOfItsLists)
{
    const QStringList &tags = TagsOfDialect(u"Internet Explorer 4.0");
    EXPECT_EQ(tags.count(u"<INPUT>"_s), 2);
    EXPECT_TRUE(tags.contains(u"<NOFRAMES></NOFRAME>"_s));
    EXPECT_TRUE(tags.contains(u"<BUTTON><BUTTON>"_s));
}

TEST(TagCatalogue, NamesEachTagOnce)
{
    static const QRegularExpression name(u"^(!--[^ >]*|!?[A-Z][A-Z0-9]*)$"_s);
    for (const QString &title : DialectNames()) {
        SCOPED_TRACE(title.toStdString());
        QStringList rows = TagsOfDialect(title);
        const QStringList names = TagNames(title);
        for (const QString &each : names) {
            EXPECT_TRUE(name.match(each).hasMatch()) << each.toStdString();
            EXPECT_GT(rows.removeIf([&](const QString &row) {
                return row.startsWith(u'<' + each + u'>') || row.startsWith(u'<' + each + u' ');
            }),
                      0);
        }
        EXPECT_EQ(rows, QStringList());
    }
    EXPECT_EQ(TagNames(u"All HTML").first(5).join(u' '),
              u"!-- !--[DOWNLEVEL-HIDDENBLOCK] !--[DOWNLEVEL-REVEALEDBLOCK] !DOCTYPE A"_s);
}

// ---- Attributes

TEST(AttributeCatalogue, HoldsAllRows)
{
    QStringList names;
    for (const QString &title : DialectNames())
        names += TagNames(title);
    names.removeDuplicates();
    const auto sizes = [&](QStringList (*lookUp)(QStringView, QStringView)) {
        int keys = 0;
        int entries = 0;
        for (const QString &name : names) {
            keys += lookUp(name, {}).isEmpty() ? 0 : 1;
            entries += int(lookUp(name, {}).size());
        }
        return std::pair(keys, entries);
    };
    EXPECT_EQ(sizes(AttributesOfTag), std::pair(99, 1005));
    EXPECT_EQ(sizes(DialogAttributesOfTag), std::pair(98, 985));
    EXPECT_EQ(AttributesOfTag(u"A").size(), 34);
    EXPECT_EQ(DialogAttributesOfTag(u"A").size(), 23);
}

struct AttributeCase
{
    const char *name;
    QString tag;
    QString completion;
    QString dialog;
};

class TagAttributes : public testing::TestWithParam<AttributeCase>
{
};

const AttributeCase AttributeCases[] = {
    {"rows_keep_their_order",
     u"P"_s,
     u"align= class= id= lang= style= title= dir= language="_s,
     u"align class id lang style title dir language"_s},
    {"any_case", u"kEyGen"_s, u"challange= name="_s, u"challange name"_s},
    {"a_row_of_completion_alone", u"PRE"_s, u"cols= width= wrap"_s, u""_s},
    {"an_entry_of_completion_alone", u"BASE"_s, u"href= target= id="_s, u"href target"_s},
    {"the_first_of_two_equal_entries_is_of_completion_alone",
     u"INPUT"_s,
     u"accesskey= accept= align= alt= checked class= disabled id= lang= maxlength= name= readonly "
     "size= src= style= tabindex= title= type= usemap= value= accept= dir= dynsrc= lowsrc="_s,
     u"accesskey align alt checked class disabled id lang maxlength name readonly size src style "
     "tabindex title type usemap value accept dir dynsrc lowsrc"_s},
    {"a_shared_row",
     u"h6"_s,
     u"title= align= class= id= lang= style= dir= language="_s,
     u"title align class id lang style dir language"_s},
    {"declaration", u"!DOCTYPE"_s, u""_s, u""_s},
    {"comment", u"!--"_s, u""_s, u""_s},
    {"end_tag", u"/a"_s, u""_s, u""_s},
    {"no_name", u""_s, u""_s, u""_s},
    {"a_tag_of_html5_alone", u"video"_s, u""_s, u""_s},
};

TEST_P(TagAttributes, AreListed)
{
    EXPECT_EQ(AttributesOfTag(GetParam().tag).join(u' '), GetParam().completion);
    EXPECT_EQ(DialogAttributesOfTag(GetParam().tag).join(u' '), GetParam().dialog);
}

INSTANTIATE_TEST_SUITE_P(Catalogue,
                         TagAttributes,
                         testing::ValuesIn(AttributeCases),
                         [](const auto &info) { return info.param.name; });

TEST(AttributeCatalogue, Html5KnowsEachOfItsElements)
{
    static const QRegularExpression entry(u"^[a-zA-Z-]+=?$"_s);
    for (const QString &tag : TagNames(Html5Title)) {
        SCOPED_TRACE(tag.toStdString());
        const QStringList attributes = AttributesOfTag(tag, Html5Title);
        EXPECT_EQ(attributes.contains(u"aria-label="_s), !tag.startsWith(u'!'));
        EXPECT_EQ(QSet(attributes.begin(), attributes.end()).size(), attributes.size());
        for (const QString &attribute : attributes)
            EXPECT_TRUE(entry.match(attribute).hasMatch()) << attribute.toStdString();
    }
    EXPECT_EQ(AttributesOfTag(u"base", Html5Title).first(3).join(u' '),
              u"href= target= accesskey="_s);
    EXPECT_TRUE(AttributesOfTag(u"input", Html5Title).contains(u"required"_s));
    EXPECT_TRUE(DialogAttributesOfTag(u"input", Html5Title).contains(u"pattern"_s));
    EXPECT_EQ(AttributesOfTag(u"center", Html5Title), QStringList());
}

// ---- Values

struct ValueCase
{
    const char *name;
    QString attribute;
    QString values;
    QString inHtml5;
};

class AttributeValues : public testing::TestWithParam<ValueCase>
{
};

const ValueCase ValueCases[] = {
    {"colour", u"text"_s, u"(color)"_s, u"(color)"_s},
    {"file", u"href"_s, u"(file)"_s, u"(file)"_s},
    {"ten_numbers", u"tabindex"_s, u"0 1 2 3 4 5 6 7 8 9"_s, u"0 1 2 3 4 5 6 7 8 9"_s},
    {"eight_numbers", u"size"_s, u"0 1 2 3 4 5 6 7"_s, u"0 1 2 3 4 5 6 7"_s},
    {"html5_has_its_own_row", u"method"_s, u"get post"_s, u"get post dialog"_s},
    {"html5_alone", u"loading"_s, u""_s, u"eager lazy"_s},
    {"several_names_share_a_row",
     u"formenctype"_s,
     u""_s,
     u"application/x-www-form-urlencoded multipart/form-data text/plain"_s},
    {"a_value_is_no_name", u"justify"_s, u""_s, u""_s},
    {"no_row", u"width"_s, u""_s, u""_s},
    {"upper_case_is_another_name", u"HREF"_s, u""_s, u""_s},
    {"no_name", u""_s, u""_s, u""_s},
};

QStringList NoFontsWanted()
{
    ADD_FAILURE() << "fonts were asked for";
    return {};
}

TEST_P(AttributeValues, AreListed)
{
    const ValueCase &row = GetParam();
    EXPECT_EQ(ValuesOfAttribute(row.attribute, NoFontsWanted).join(u' '), row.values);
    EXPECT_EQ(ValuesOfAttribute(row.attribute, NoFontsWanted, Html5Title).join(u' '), row.inHtml5);
}

INSTANTIATE_TEST_SUITE_P(Catalogue,
                         AttributeValues,
                         testing::ValuesIn(ValueCases),
                         [](const auto &info) { return info.param.name; });

TEST(ValueCatalogue, KeepsRepeatsAndDatedCodes)
{
    EXPECT_EQ(ValuesOfAttribute(u"language", {}).count(u"JavaScript1.3"_s), 2);
    const QStringList languages = ValuesOfAttribute(u"lang", {});
    EXPECT_EQ(languages.size(), 116);
    EXPECT_EQ(languages.first() + languages.last(), u"afzu"_s);
    EXPECT_TRUE(languages.contains(u"ru-mo"_s));
}

TEST(ValueCatalogue, FacesAreTheSystemsFontsInItsOrder)
{
    const auto fonts = [] { return QStringList{u"Zapf"_s, u"DejaVu Sans"_s}; };
    EXPECT_EQ(ValuesOfAttribute(u"face", fonts), (QStringList{u"zapf"_s, u"dejavu sans"_s}));
    EXPECT_EQ(ValuesOfAttribute(u"face", {}), QStringList());
}

} // namespace
