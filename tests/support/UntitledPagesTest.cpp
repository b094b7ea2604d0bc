#include "support/UntitledPages.h"

#include "support/Paths.h"
#include "support/SettingsStore.h"
#include "tests/support/FreshHome.h"

#include <QDir>

using namespace brenix;
using namespace Qt::StringLiterals;

namespace {

TEST(TempDir, FollowsTheSetting)
{
    struct Case
    {
        const char *row;
        std::optional<QString> setting;
        QString expected; // empty: the application's own
    };
    const Case cases[] = {
        {"not set", {}, {}},
        {"empty", u""_s, {}},
        {"a directory", u"/var/Pages"_s, u"/var/Pages"_s},
        {"with a slash at its end", u"/var/Pages/"_s, u"/var/Pages"_s},
        {"with a backslash at its end", u"C:\\Pages\\"_s, u"C:\\Pages"_s},
        {"one separator goes", u"/var/Pages//"_s, u"/var/Pages/"_s},
    };
    for (const Case &row : cases) {
        SCOPED_TRACE(row.row);
        const FreshHome home;
        if (row.setting)
            SaveSetting(u"Settings", u"TemporaryDirectory", *row.setting);
        const QString expected = row.expected.isEmpty() ? AppPath(u"Temp") : row.expected;
        EXPECT_EQ(ChooseTempDir(), expected);
        EXPECT_EQ(TempDir(), expected);
        EXPECT_EQ(GetSetting(u"Settings", u"TemporaryDirectory", u"missing"_s),
                  row.setting.value_or(QString()));
    }
}

TEST(Untitled, IsToldByTheName)
{
    const FreshHome home;
    SaveSetting(u"Settings", u"TemporaryDirectory", u"/tmp/Pages"_s);
    ChooseTempDir();
    EXPECT_EQ(UntitledCaption(1), QDir::toNativeSeparators(u"/tmp/Pages/Document1.html"_s));

    struct Case
    {
        const char *row;
        QString caption;
        bool untitled;
    };
    const Case cases[] = {
        {"a new page", UntitledCaption(17), true},
        {"a name of the author's that begins so", u"/tmp/Pages/Documentation.txt"_s, true},
        {"the bare name", u"/tmp/Pages/Document"_s, true},
        {"another name there", u"/tmp/Pages/page.html"_s, false},
        {"another case", u"/tmp/Pages/document1.html"_s, false},
        {"another case of the directory", u"/tmp/pages/Document1.html"_s, false},
        {"another directory", u"/home/Document1.html"_s, false},
        {"nothing", {}, false},
    };
    for (const Case &row : cases)
        EXPECT_EQ(IsUntitled(QDir::toNativeSeparators(row.caption)), row.untitled) << row.row;
}

} // namespace
