#include "app/Options.h"

#include "app/RecentFiles.h"
#include "editor/LargeFile.h"
#include "support/AuthorFile.h"
#include "support/Paths.h"
#include "support/SettingsStore.h"
#include "tests/support/FreshHome.h"

#include <QDir>

#include <optional>

using namespace brenix;
using namespace Qt::StringLiterals;

namespace {

struct Key
{
    QString section;
    QString key;
    QString shown; ///< where nothing is stored
    QString other;
    QString afterReset;
};

QString Kept()
{
    return {}; // no value that Reset writes
}

QList<Key> Keys()
{
    QList<Key> keys{
        {u"Settings"_s, u"Startup"_s, u"3"_s, u"6"_s, u"3"_s},
        {u"Colors"_s, u"Background"_s, u"16777215"_s, u"255"_s, u"16777215"_s},
        {u"Colors"_s, u"Tag"_s, u"8388608"_s, u"1"_s, u"8388608"_s},
        {u"Colors"_s, u"Comment"_s, u"32768"_s, u"2"_s, u"32768"_s},
        {u"Colors"_s, u"Table"_s, u"32896"_s, u"3"_s, u"32896"_s},
        {u"Colors"_s, u"Special"_s, u"8421504"_s, u"4"_s, u"8421504"_s},
        {u"Editor"_s, u"FontName"_s, u"Courier New"_s, u"A, \"B\" æ"_s, u"Courier New"_s},
        {u"Editor"_s, u"Fontsize"_s, u"10"_s, u"20"_s, u"10"_s},
        {u"Language"_s, u"Syntax"_s, u"1"_s, u"4"_s, u"1"_s},
        {u"Language"_s, u"GiveCorrectCase"_s, u"1"_s, u"0"_s, u"1"_s},
        {u"Settings"_s, u"LargeFile"_s, u"20000"_s, u"0"_s, Kept()},
        {u"Auto"_s, u"Refresh"_s, u"1"_s, u"0"_s, u"1"_s},
        {u"Auto"_s, u"RefreshNumber"_s, u"1000"_s, u"7"_s, u"1000"_s},
        {u"Settings"_s, u"LocalHost"_s, u"http://localhost/"_s, u"x"_s, u"http://localhost"_s},
        {u"Settings"_s, u"Color"_s, u"1"_s, u"3"_s, Kept()},
        {u"Auto"_s, u"Closetag"_s, u"1"_s, u"0"_s, u"1"_s},
        {u"Auto"_s, u"ClosetagVersion"_s, u"2"_s, u"1"_s, u"2"_s},
        {u"Auto"_s, u"Tag"_s, u"1"_s, u"0"_s, u"1"_s},
        {u"Auto"_s, u"TagDuration"_s, u"1"_s, u"8"_s, u"1"_s},
        {u"Auto"_s, u"Attribute"_s, u"1"_s, u"0"_s, u"1"_s},
        {u"Auto"_s, u"AttributeDuration"_s, u"1000"_s, u"9"_s, u"1000"_s},
        {u"Settings"_s, u"DoValue"_s, u"1"_s, u"0"_s, Kept()},
        {u"Settings"_s, u"Value"_s, u"500"_s, u"10"_s, Kept()},
        {u"Auto"_s, u"TagInsertGT"_s, u"0"_s, u"1"_s, u"0"_s},
        {u"Editor"_s, u"WordWrap"_s, u"0"_s, u"1"_s, u"0"_s},
        {u"Auto"_s, u"Save"_s, u"0"_s, u"1"_s, u"0"_s},
        {u"Editor"_s, u"TagCase"_s, u"1"_s, u"0"_s, u"1"_s},
    };
    for (int number = 1; number <= 4; ++number) {
        const QString section = u"Browser%1"_s.arg(number);
        keys += {section, u"Name"_s, u"No browser"_s, u""_s, u"No browser"_s};
        keys += {section, u"Path"_s, u""_s, u"/bin/%1"_s.arg(number), u""_s};
    }
    return keys;
}

TEST(Options, EveryKeyIsReadAndWritten)
{
    for (const Key &row : Keys()) {
        SCOPED_TRACE(qPrintable(row.section + u'/' + row.key));
        Options options;
        {
            const FreshHome home;
            WriteOptions(ReadOptions());
            EXPECT_EQ(GetSetting(row.section, row.key, u"missing"_s), row.shown);
            SaveSetting(row.section, row.key, row.other);
            options = ReadOptions();
        }
        const FreshHome home;
        EXPECT_EQ(WriteOptions(options), QString());
        EXPECT_EQ(GetSetting(row.section, row.key, u"missing"_s), row.other);
        for (const Key &another : Keys()) {
            if (another.section == row.section && another.key == row.key)
                continue;
            EXPECT_EQ(GetSetting(another.section, another.key), another.shown)
                << qPrintable(another.section + u'/' + another.key);
        }
    }
}

TEST(Options, WhatMakesNoSenseShowsTheDefault)
{
    struct Case
    {
        const char *row;
        QString section;
        QString key;
        QString stored;
        QString shown;
    };
    const Case cases[] = {
        {"a text", u"Auto"_s, u"RefreshNumber"_s, u"soon"_s, u"1000"_s},
        {"nothing", u"Auto"_s, u"RefreshNumber"_s, u""_s, u"1000"_s},
        {"negative", u"Auto"_s, u"TagDuration"_s, u"-1"_s, u"1"_s},
        {"more than a number holds", u"Settings"_s, u"LargeFile"_s, u"99999999999"_s, u"20000"_s},
        {"more than can be opened", u"Settings"_s, u"LargeFile"_s, u"2000000000"_s, u"20000"_s},
        {"no such start", u"Settings"_s, u"Startup"_s, u"7"_s, u"3"_s},
        {"no such version", u"Auto"_s, u"ClosetagVersion"_s, u"0"_s, u"2"_s},
        {"a font size not listed", u"Editor"_s, u"FontSize"_s, u"21"_s, u"10"_s},
        {"a system colour", u"Colors"_s, u"Background"_s, u"-2147483643"_s, u"16777215"_s},
        {"a colour of more than 24 bits", u"Colors"_s, u"Tag"_s, u"16777216"_s, u"8388608"_s},
        {"a text for yes", u"Auto"_s, u"Closetag"_s, u"yes"_s, u"1"_s},
        {"a number for yes", u"Auto"_s, u"Closetag"_s, u"5"_s, u"1"_s},
        {"the word of a conversion", u"Auto"_s, u"Closetag"_s, u"False"_s, u"0"_s},
        {"the number of a conversion", u"Auto"_s, u"TagInsertGT"_s, u"-1"_s, u"1"_s},
        {"any number wraps", u"Editor"_s, u"WordWrap"_s, u"5"_s, u"1"_s},
        {"a text does not wrap", u"Editor"_s, u"WordWrap"_s, u"yes"_s, u"0"_s},
    };
    for (const Case &row : cases) {
        SCOPED_TRACE(row.row);
        const FreshHome home;
        SaveSetting(row.section, row.key, row.stored);
        const Options options = ReadOptions();
        EXPECT_EQ(GetSetting(row.section, row.key), row.stored);
        WriteOptions(options);
        EXPECT_EQ(GetSetting(row.section, row.key), row.shown);
    }
}

TEST(Options, ResetWritesAllButAFewKeys)
{
    const FreshHome home;
    Options shown;
    shown.colourPicker = 2;
    shown.value = false;
    shown.valueDuration = 3;
    shown.largeFile = 4;
    shown.words = {u"word"_s};
    for (const Key &row : Keys())
        SaveSetting(row.section, row.key, row.other);
    const Options reset = ResetOptions(shown);
    for (const Key &row : Keys())
        EXPECT_EQ(GetSetting(row.section, row.key),
                  row.afterReset.isNull() ? row.other : row.afterReset)
            << qPrintable(row.section + u'/' + row.key);
    EXPECT_FALSE(QFile::exists(AppPath(u"Auto.dat")));

    WriteOptions(reset);
    EXPECT_EQ(GetSetting(u"Settings", u"LocalHost"), u"http://localhost"_s);
    EXPECT_EQ(GetSetting(u"Settings", u"Color"), u"2"_s);
    EXPECT_EQ(GetSetting(u"Settings", u"DoValue"), u"0"_s);
    EXPECT_EQ(GetSetting(u"Settings", u"Value"), u"3"_s);
    EXPECT_EQ(GetSetting(u"Settings", u"LargeFile"), u"4"_s);
    EXPECT_EQ(ReadOptions().words, QStringList{u"word"_s});
}

TEST(Options, LimitOfLargePagesTakesEffectAtOnce)
{
    const FreshHome home;
    const int before = LargeFile();
    Options options;
    options.largeFile = 123;
    WriteOptions(options);
    EXPECT_EQ(LargeFile(), 123);
    SetLargeFile(before);
}

TEST(Options, WordsAreLinesOfAFile)
{
    struct Case
    {
        const char *row;
        QByteArray before;
        QStringList words;
        QByteArray after;
    };
    const Case cases[] = {
        {"an empty file", "", {}, ""},
        {"line ends of any kind",
         "a\nb\r\nc\rd",
         {u"a"_s, u"b"_s, u"c"_s, u"d"_s},
         "a\r\nb\r\nc\r\nd\r\n"},
        {"an empty line between", "a\r\n\r\nb\r\n", {u"a"_s, u""_s, u"b"_s}, "a\r\n\r\nb\r\n"},
        {"blanks belong to the word", " a b \r\n", {u" a b "_s}, " a b \r\n"},
        {"a page of Windows becomes UTF-8", "caf\xE9\r\n", {u"café"_s}, "caf\xC3\xA9\r\n"},
        {"a byte order mark is no word",
         "\xEF\xBB\xBF"
         "a\r\n",
         {u"a"_s},
         "a\r\n"},
    };
    const FreshHome home;
    EXPECT_TRUE(ReadOptions().words.isEmpty());
    const QString path = AppPath(u"Auto.dat");
    for (const Case &row : cases) {
        SCOPED_TRACE(row.row);
        ASSERT_EQ(WriteAuthorFile(path, row.before), QString());
        const Options options = ReadOptions();
        EXPECT_EQ(options.words, row.words);
        EXPECT_EQ(WriteOptions(options), QString());
        EXPECT_EQ(ReadAuthorFile(path).bytes, row.after);
        EXPECT_EQ(ReadOptions().words, row.words);
    }
}

TEST(Options, KeysAreStoredThoughTheWordsCannotBe)
{
    const FreshHome home;
    ASSERT_TRUE(QDir().mkdir(AppPath(u"Auto.dat")));
    Options options = ReadOptions();
    options.startup = 6;
    EXPECT_NE(WriteOptions(options), QString());
    EXPECT_EQ(GetSetting(u"Settings", u"Startup"), u"6"_s);
}

TEST(ColourPresets, AreAsSet)
{
    const struct
    {
        QString name;
        ColourSet colours;
    } presets[] = {
        {u"Visual Basic"_s, {0xFFFFFF, 0x8000, 0x800000, 0, 0}},
        {u"Hot Dog"_s, {0xFFFFFF, 0xFF0000, 0x80, 0xFF0000, 0}},
        {u"HoTMetaL PRO"_s, {0xFFFFFF, 0xFF, 0, 0xFF, 0}},
        {u"GoLive"_s, {0xFFFFFF, 0, 0x80, 0, 0}},
        {u"Visual Studio.net"_s, {0xFFFFFF, 0x80, 0, 0x80, 0xFF}},
        {u"FrontPage"_s, {0xFFFFFF, 0, 0x80, 0, 0}},
        {u"Dreamweaver"_s, {0xFFFFFF, 0, 0x80, 0, 0}},
        {u"Brenix HTML"_s, {0xFFFFFF, 0x800000, 0x8000, 0x8080, 0x404040}},
    };
    QStringList names;
    for (const auto &preset : presets) {
        names += preset.name;
        EXPECT_TRUE(ColourPreset(preset.name) == preset.colours) << qPrintable(preset.name);
    }
    EXPECT_EQ(ColourPresetNames(), names);
    EXPECT_FALSE(ColourPreset(u"golive"));
}

TEST(Options, RecentFilesAndFileListCanBeForgotten)
{
    const FreshHome home;
    for (const QString &path : {u"/a.html"_s, u"/b.html"_s, u"/c.html"_s, u"/d.html"_s})
        AddRecentFile(path);
    ClearRecentFiles();
    for (int number = 1; number <= RecentCount; ++number)
        EXPECT_EQ(RecentFile(number), QString());

    EXPECT_FALSE(DeleteFileList());
    ASSERT_EQ(WriteAuthorFile(AppPath(u"files.dat"), "x"), QString());
    EXPECT_TRUE(DeleteFileList());
    EXPECT_FALSE(QFile::exists(AppPath(u"files.dat")));
}

} // namespace
