#include "app/RecentFiles.h"

#include "support/SettingsStore.h"
#include "tests/support/FreshHome.h"

using namespace brenix;
using namespace Qt::StringLiterals;
using testing::ElementsAreArray;

namespace {

// A letter is a file; "-" an empty place.
QString PathOf(QChar letter)
{
    return letter == u'-' ? QString() : u"/pages/%1.html"_s.arg(letter);
}

void SetRecent(const QStringList &paths)
{
    for (int i = 0; i < paths.size(); ++i)
        SaveSetting(u"Recent", u"Recent%1"_s.arg(i + 1), paths[i]);
}

TEST(RecentFiles, MoveOnlyAsFarAsTheyMust)
{
    struct Case
    {
        const char *row;
        QString before;
        QChar added;
        QString after;
    };
    const Case cases[] = {
        {"the first of all", u"----"_s, u'a', u"a---"_s},
        {"a second one", u"a---"_s, u'b', u"ba--"_s},
        {"the newest again", u"abcd"_s, u'a', u"abcd"_s},
        {"the second", u"abcd"_s, u'b', u"bacd"_s},
        {"the third", u"abcd"_s, u'c', u"cabd"_s},
        {"the fourth", u"abcd"_s, u'd', u"dabc"_s},
        {"a fifth pushes out the oldest", u"abcd"_s, u'e', u"eabc"_s},
        {"case counts", u"abcd"_s, u'A', u"Aabc"_s},
        {"over a gap", u"a-c-"_s, u'c', u"ca--"_s},
    };
    for (const Case &row : cases) {
        SCOPED_TRACE(row.row);
        const FreshHome home;
        for (int i = 0; i < RecentCount; ++i)
            SaveSetting(u"Recent", u"Recent%1"_s.arg(i + 1), PathOf(row.before[i]));
        AddRecentFile(PathOf(row.added));
        for (int i = 0; i < RecentCount; ++i)
            EXPECT_EQ(RecentFile(i + 1), PathOf(row.after[i])) << "place " << i + 1;
    }
}

TEST(OpenList, ShowsShortForms)
{
    struct Case
    {
        const char *row;
        QStringList recent;
        QStringList rows;
    };
    const Case cases[] = {
        {"nothing yet", {}, {}},
        {"backslashes", {u"C:\\long\\way\\page.html"_s}, {u"C:\\...\\page.html"_s}},
        {"slashes", {u"/home/me/page.html"_s}, {u"/ho...\\page.html"_s}},
        {"in the root", {u"/a.html"_s}, {u"/a....\\a.html"_s}},
        {"no folder, no row", {u"page.html"_s, u"/x/b.html"_s}, {u"/x/...\\b.html"_s}},
        {"an empty place, no row", {u""_s, u"/x/b.html"_s}, {u"/x/...\\b.html"_s}},
    };
    for (const Case &row : cases) {
        SCOPED_TRACE(row.row);
        const FreshHome home;
        SetRecent(row.recent);
        EXPECT_THAT(OpenListRows(),
                    ElementsAreArray(
                        QStringList{u"Open Document"_s, u"Open from Web..."_s, u"------------"_s}
                        + row.rows));
        for (int place = -1; place < 3; ++place)
            EXPECT_EQ(RecentFileOfRow(place), QString());
        for (int place = 0; place < row.rows.size(); ++place)
            EXPECT_TRUE(RecentFileOfRow(3 + place).endsWith(row.rows[place].section(u'\\', -1)))
                << "a row opens what it shows";
        EXPECT_EQ(RecentFileOfRow(3 + int(row.rows.size())), QString());
    }
}

} // namespace
