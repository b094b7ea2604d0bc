#include "tags/RelativePath.h"

#include "support/UntitledPages.h"
#include "tests/support/FreshHome.h"
#include "tests/support/MemoryDocument.h"

using namespace brenix;
using namespace Qt::StringLiterals;

namespace {

struct PathCase
{
    const char *name;
    QString base;
    QString target;
    std::optional<QString> path; // after the caller's cut
    QString link = {}; // where it is another
};

const PathCase Paths[] = {
    {"base_without_separator", u"C:\\web"_s, u"C:\\web\\a.htm"_s, u"a.htm"_s},
    {"folder_below", u"C:\\web\\"_s, u"C:\\web\\images\\a.gif"_s, u"images/a.gif"_s},
    {"folder_above", u"C:\\web\\sub\\"_s, u"C:\\web\\a.htm"_s, u"../a.htm"_s},
    {"two_above", u"C:\\web\\sub\\"_s, u"C:\\other\\x.gif"_s, u"../../other/x.gif"_s},
    {"beside", u"C:\\web\\sub\\deep\\"_s, u"C:\\web\\x\\a.gif"_s, u"../../x/a.gif"_s},
    {"root", u"C:\\"_s, u"C:\\a.htm"_s, u"a.htm"_s},
    {"name_that_goes_on", u"C:\\web\\"_s, u"C:\\webs\\a.htm"_s, u"a.htm"_s},
    {"another_case", u"C:\\Web\\"_s, u"C:\\web\\a.htm"_s, u"../web/a.htm"_s},
    {"another_drive", u"C:\\web\\"_s, u"D:\\pics\\a.gif"_s, u"D:\\pics\\a.gi"_s},
    {"drive_in_another_case", u"c:\\web\\"_s, u"C:\\web\\a.gif"_s, u"C:\\web\\a.gi"_s},
    {"file_beside_the_folder", u"C:\\a\\"_s, u"C:\\ab.txt"_s, {}, u"file://C:\\ab.txt"_s},
    {"the_folder_itself", u"C:\\web\\"_s, u"C:\\web"_s, {}, u"file://C:\\web"_s},
    {"no_target", u"C:\\web\\"_s, u""_s, u""_s},
    {"no_base", u""_s, u"C:\\web\\a.gif"_s, u"C:\\web\\a.gi"_s},
};

class RelativePaths : public testing::TestWithParam<PathCase>
{
};

TEST_P(RelativePaths, LeadToTheFile)
{
    QString base = GetParam().base;
    std::optional<QString> path = RelativePath(GetParam().target, base);
    if (path)
        path->chop(1);
    EXPECT_EQ(path, GetParam().path);
    EXPECT_TRUE(base.endsWith(u'\\'));
    EXPECT_EQ(LinkPath(GetParam().target, GetParam().base),
              GetParam().path.value_or(GetParam().link));
}

INSTANTIATE_TEST_SUITE_P(Paths, RelativePaths, testing::ValuesIn(Paths), [](const auto &info) {
    return info.param.name;
});

TEST(LinkAddress, WorksInAPage)
{
    const FreshHome home;
    ChooseTempDir();
    const QString page = u"/web/sub/page.html"_s;
    struct Case
    {
        const char *row;
        QString caption;
        QString path;
        QString address;
    };
    const Case cases[] = {
        {"beside the page", page, u"/web/sub/a.gif"_s, u"a.gif"_s},
        {"above", page, u"/web/a.gif"_s, u"../a.gif"_s},
        {"folder that goes on", page, u"/web/subs/a.gif"_s, u"../subs/a.gif"_s},
        {"file that goes on", page, u"/web/sub.html"_s, u"../sub.html"_s},
        {"letters stay", page, u"/web/sub/žluťoučký 🐎.gif"_s, u"žluťoučký%20🐎.gif"_s},
        {"what a link cannot hold",
         page,
         u"/web/sub/\"a\" & <b>#50%?\n.gif"_s,
         u"%22a%22%20%26%20%3Cb%3E%2350%25%3F%0A.gif"_s},
        {"no scheme and no folder", page, u"/web/sub/a:b\\c.gif"_s, u"a%3Ab%5Cc.gif"_s},
        {"unsaved", UntitledCaption(1), u"/web/a b.gif"_s, u"file:///web/a%20b.gif"_s},
        {"unsaved, other system", UntitledCaption(1), u"C:\\a#.gif"_s, u"file://C:\\a%23.gif"_s},
    };
    for (const Case &row : cases) {
        MemoryDocument document;
        document.Caption = row.caption;
        EXPECT_EQ(LinkAddress(document, row.path), row.address) << row.row;
    }
}

} // namespace
