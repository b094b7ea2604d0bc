#include "support/SettingsStore.h"

#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>
#include <QSettings>
#include <QTemporaryDir>

using namespace brenix;
using namespace Qt::StringLiterals;

namespace {

class Settings : public testing::Test
{
protected:
    Settings()
        : m_programDirectory(QFileInfo(SettingsFile()).path())
    {
        UseSettingsDirectory(m_directory.path());
    }
    ~Settings() override { UseSettingsDirectory(m_programDirectory); }

    void Restart() { UseSettingsDirectory(m_directory.path()); }
    void WriteFile(const QByteArray &content)
    {
        UseSettingsDirectory({});
        QFile file(m_directory.filePath(u"Brenix.ini"_s));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(content);
        file.close();
        Restart();
    }

    QTemporaryDir m_directory;

private:
    const QString m_programDirectory;
};

} // namespace

TEST_F(Settings, EveryTextSurvivesARestart)
{
    const QString texts[] = {u""_s,
                             u"a, b,c"_s,
                             u"\"quoted\" 'x'"_s,
                             u"  blanks around \t"_s,
                             u"line\r\nline\n"_s,
                             u"\u010Desk\u00FD \U0001F600"_s,
                             u"\u010D1\u010Df"_s,
                             u"@Variant(x)"_s,
                             u"@@"_s,
                             u"C:\\x\\y;z=%20 #"_s,
                             u"a\0b"_s,
                             u"True"_s,
                             u"[Editor]"_s};
    const auto keyOf = [](const QString &text) {
        return u"Key "_s + QString::fromLatin1(text.toUtf8().toHex());
    };
    for (const QString &text : texts)
        SaveSetting(u"Sec tion", keyOf(text), text);
    for (const bool isRestarted : {false, true}) {
        for (const QString &text : texts) {
            const QString read = GetSetting(u"Sec tion", keyOf(text), u"missing"_s);
            EXPECT_EQ(read, text) << isRestarted;
        }
        Restart();
    }
    EXPECT_EQ(GetSetting(u"Sec tion", u"Other", u"missing"_s), u"missing"_s);
}

TEST_F(Settings, CaseIsIgnoredAndTheFirstSpellingStays)
{
    SaveSetting(u"Settings", u"WindowState", u"1"_s);
    SaveSetting(u"SETTINGS", u"Windowstate", u"2"_s);
    EXPECT_EQ(GetSetting(u"settings", u"windowstate"), u"2"_s);
    Restart();
    SaveSetting(u"settings", u"WINDOWSTATE", u"3"_s);
    EXPECT_EQ(GetSetting(u"Settings", u"WindowState"), u"3"_s);
    UseSettingsDirectory({});
    const QSettings file(m_directory.filePath(u"Brenix.ini"_s), QSettings::IniFormat);
    EXPECT_EQ(file.allKeys(), QStringList{u"Settings/WindowState"_s});
}

TEST_F(Settings, NamesAreNotTakenForLevels)
{
    SaveSetting(u"A/B", u"C", u"1"_s);
    SaveSetting(u"A", u"/C//D\\", u"2"_s);
    SaveSetting({}, u"Alone", u"3"_s);
    SaveSetting(u"General", u"Alone", u"4"_s);
    SaveSetting(u"A", {}, u"5"_s);
    Restart();
    EXPECT_EQ(GetSetting(u"A/B", u"C"), u"1"_s);
    EXPECT_EQ(GetSetting(u"A", u"/C//D\\"), u"2"_s);
    EXPECT_EQ(GetSetting({}, u"Alone"), u"3"_s);
    EXPECT_EQ(GetSetting(u"General", u"Alone"), u"4"_s);
    EXPECT_EQ(GetSetting(u"A", {}, u"none"_s), u"none"_s);
}

TEST_F(Settings, NumbersAndSwitches)
{
    struct Case
    {
        const char *text;
        std::optional<int> number;
        bool isOn;
    };
    const Case cases[] = {{"1", 1, true},
                          {" 1 ", 1, true},
                          {"-1", -1, true},
                          {"true", {}, true},
                          {"0", 0, false},
                          {"2", 2, false},
                          {"False", {}, false},
                          {"", {}, false},
                          {"1.5", {}, false},
                          {"99999999999", {}, false}};
    for (const Case &row : cases) {
        SaveSetting(u"S", u"K", QString::fromLatin1(row.text));
        EXPECT_EQ(GetNumberSetting(u"S", u"K", 7), row.number) << row.text;
        EXPECT_EQ(IsSettingOn(u"S", u"K", true), row.isOn) << row.text;
    }
    EXPECT_EQ(GetNumberSetting(u"S", u"Missing", 7), 7);
    EXPECT_TRUE(IsSettingOn(u"S", u"Missing", true));
    EXPECT_FALSE(IsSettingOn(u"S", u"Missing", false));
}

TEST_F(Settings, ADamagedFileIsReadAsFarAsItGoes)
{
    const QByteArray files[]
        = {"[Editor]\nFontName=Fine\n[Colo",
           "[Editor]\nFontName=Fine\n===\n\\\\\\\n[[[\n=",
           QByteArray("\0\xff\n[Editor]\nFontName=Fine\nX=@Variant(\\0\\x7f", 41),
           "[Editor]\nFontName=Fine\nX=\"unfinished\n@Invalid()=@Rect(1"};
    for (const QByteArray &content : files) {
        WriteFile(content);
        EXPECT_EQ(GetSetting(u"Editor", u"FontName"), u"Fine"_s);
        GetSetting(u"Editor", u"X");
        SaveSetting(u"Editor", u"FontSize", u"12"_s);
        Restart();
        EXPECT_EQ(GetSetting(u"Editor", u"FontName"), u"Fine"_s);
        EXPECT_EQ(GetSetting(u"Editor", u"FontSize"), u"12"_s);
    }
}

TEST_F(Settings, ALineWrittenByHandNeedsNoQuotes)
{
    WriteFile("[Editor]\nFontName=Arial, Helvetica\n");
    EXPECT_EQ(GetSetting(u"Editor", u"FontName"), u"Arial, Helvetica"_s);
}

TEST_F(Settings, AnotherProgramsKeysStay)
{
    SaveSetting(u"Editor", u"Mine", u"1"_s);
    {
        QFile file(m_directory.filePath(u"Brenix.ini"_s));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write("[Editor]\nTheirs=2\n");
    }
    QCoreApplication::sendPostedEvents();
    EXPECT_EQ(GetSetting(u"editor", u"theirs"), u"2"_s);
    Restart();
    EXPECT_EQ(GetSetting(u"Editor", u"Mine"), u"1"_s);
    EXPECT_EQ(GetSetting(u"editor", u"theirs"), u"2"_s);
}

TEST_F(Settings, WhatCannotBeWrittenIsKept)
{
    WriteFile("");
    UseSettingsDirectory(m_directory.filePath(u"Brenix.ini/below"_s));
    SaveSetting(u"Editor", u"FontName", u"kept"_s);
    EXPECT_EQ(GetSetting(u"Editor", u"FontName"), u"kept"_s);
}
