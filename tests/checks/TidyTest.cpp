#include "checks/TidyOptions.h"
#include "checks/TidyPresets.h"
#include "checks/TidyReport.h"
#include "support/AuthorFile.h"
#include "tests/support/SourceTree.h"

#include <QSet>
#include <QTemporaryDir>

using namespace brenix;
using namespace Qt::StringLiterals;

namespace {

TEST(TidyReport, ListsEachLineOnceAndCounts)
{
    const QString report = u"C:\\ChkDoc.txt:line 1 column 1 - Warning: errors, in line 2\r\n"
                           "\r\n"
                           "  line 4 column 2 - Error: x \r\n"
                           "line 4 column 2 - Error: x\r\n"
                           "\"line 5, quoted\"rest\r\n"
                           "no place, no word\r\n"_s;
    EXPECT_EQ(TidyReportLines(report, u"c:\\chkdoc.txt"),
              (QStringList{u"line 1 column 1 - Warning: errors"_s,
                           u"in line 2"_s,
                           u"line 4 column 2 - Error: x"_s,
                           u"line 5, quoted"_s,
                           u""_s,
                           u"Warnings: 1"_s,
                           u"Errors: 2"_s}));
    EXPECT_EQ(TidyReportLines(u"", u"x"), (QStringList{u""_s, u"Warnings: 0"_s, u"Errors: 0"_s}));
}

TEST(TidyOptions, AreAllThereAndEachOnce)
{
    const QStringList names = TidyOptionNames();
    EXPECT_EQ(names.size(), 51);
    EXPECT_EQ(QSet<QString>(names.begin(), names.end()).size(), 51);
}

class Presets : public testing::Test
{
protected:
    QTemporaryDir folder;
    TidyPresets presets{folder.filePath(u"Presets"_s)};
    QString file = folder.filePath(u"all.tps"_s);

    QString ImportText(const QString &text)
    {
        QFile preset(file);
        EXPECT_TRUE(preset.open(QIODevice::WriteOnly));
        preset.write(text.toUtf8());
        preset.close();
        return presets.Import(file);
    }
};

const QString Head = u"// Brenix Tidy Script Preset File (Version 1.1)\r\n"_s;
const QString NameMessage = u"Description can not include special signs like \\ or /"_s;
const QString DamageMessage
    = u"This Tidy-presetfile is damaged or made by a newer version of Brenix"_s;

TEST_F(Presets, KeepScriptsUnderTheirNames)
{
    EXPECT_EQ(presets.Names(), QStringList());
    EXPECT_EQ(presets.Save(u"b ø"_s, u"wrap: 0\r\n"_s), u""_s);
    EXPECT_EQ(presets.Save(u".A"_s, u""_s), u""_s);
    EXPECT_EQ(presets.Save(u"b ø"_s, u"wrap: ž"_s), u""_s);
    EXPECT_EQ(presets.Names(), (QStringList{u".A"_s, u"b ø"_s}));
    EXPECT_EQ(presets.Load(u"b ø"_s).text, u"wrap: ž"_s);
    EXPECT_EQ(presets.Remove(u".A"_s), u""_s);
    EXPECT_EQ(presets.Names(), QStringList{u"b ø"_s});
    EXPECT_NE(presets.Load(u".A"_s).error, u""_s);
    EXPECT_NE(presets.Remove(u".A"_s), u""_s);
    for (const QString &name : {u"../x"_s, u"C:\\x"_s, u""_s, u".."_s, u"."_s}) {
        EXPECT_EQ(presets.Save(name, u""_s), NameMessage);
        EXPECT_EQ(presets.Load(name).error, NameMessage);
        EXPECT_EQ(presets.Remove(name), NameMessage);
    }
}

TEST_F(Presets, ExportAndImport)
{
    EXPECT_EQ(presets.Export(file), u""_s);
    EXPECT_EQ(ReadAuthorFile(file).bytes, (Head + u"Total files:0\r\n---------\r\n"_s).toUtf8());
    EXPECT_EQ(presets.Import(file), u""_s);

    presets.Save(u"One"_s, u"wrap: 0\r\nnew-inline-tags: a,b\r\n\r\n\"x: 1\""_s);
    presets.Save(u"two"_s, u""_s);
    EXPECT_EQ(presets.Export(file), u""_s);
    EXPECT_EQ(ReadAuthorFile(file).bytes,
              (Head
               + u"Total files:2\r\n---------\r\n"
                 "FileName:One\r\nContent:\r\n"
                 "wrap: 0\r\nnew-inline-tags: a\r\nb\r\n\r\nx: 1\r\n---------\r\n"
                 "FileName:two\r\nContent:\r\n---------\r\n"_s)
                  .toUtf8());
    presets.Remove(u"One"_s);
    presets.Save(u"two"_s, u"old"_s);
    EXPECT_EQ(presets.Import(file), u""_s);
    EXPECT_EQ(presets.Load(u"One"_s).text, u"wrap: 0\r\nnew-inline-tags: a\r\nb\r\n\r\nx: 1\r\n"_s);
    EXPECT_EQ(presets.Load(u"two"_s).text, u""_s);
}

// A comma in one of their comments would be torn apart.
TEST_F(Presets, ThoseThatAreShippedComeBackWhole)
{
    const TidyPresets shipped(SourceFile("data/Tidy/Presets"));
    EXPECT_GE(shipped.Names().size(), 6);
    EXPECT_EQ(shipped.Export(file), u""_s);
    EXPECT_EQ(presets.Import(file), u""_s);
    for (const QString &name : shipped.Names())
        EXPECT_EQ(presets.Load(name).text.remove(u'\r'), shipped.Load(name).text)
            << qPrintable(name);
}

TEST_F(Presets, ExportTellsOfAFileThatCannotBeRead)
{
    presets.Save(u"x"_s, u""_s);
    QFile::link(u"/proc/self/mem"_s, presets.PathOf(u"y"_s)); // is there, and fails to be read
    EXPECT_TRUE(presets.Export(file).startsWith(
        u"It looks like you have delete one or more presetfiles. Brenix can't export the "
        "presetfiles.\r\nError:"_s));
    EXPECT_FALSE(QFile::exists(file));
}

TEST_F(Presets, ImportAllOrNothing)
{
    const QString preset = u"FileName:new\r\nContent:\r\nwrap: 0\r\n---------\r\n"_s;
    const QString whole = Head + u"Total files:1\r\n---------\r\n"_s + preset;
    const struct
    {
        const char *name;
        QString text;
        QString error;
    } rows[] = {
        {"later version", QString(whole).replace(u"1.1)"_s, u"2.0)"_s), DamageMessage},
        {"two digits", QString(whole).replace(u"1.1)"_s, u"1.12)"_s), DamageMessage},
        {"count below 0", QString(whole).replace(u":1\r"_s, u":-1\r"_s), DamageMessage},
        {"count too large", QString(whole).replace(u":1\r"_s, u":999999999\r"_s), DamageMessage},
        {"count is no number", QString(whole).replace(u":1\r"_s, u":x\r"_s), DamageMessage},
        {"folder above",
         whole.left(whole.size() - preset.size()).replace(u":1"_s, u":2"_s) + preset
             + QString(preset).replace(u"new"_s, u"../x"_s),
         NameMessage},
        {"other drive", QString(whole).replace(u"new"_s, u"C:\\x"_s), NameMessage},
        {"no name", QString(whole).replace(u"new"_s, u""_s), NameMessage},
        {"a line that ends the script early",
         QString(whole).replace(u":1\r"_s, u":2\r"_s).replace(u"wrap: 0"_s, u"---------\r\nx"_s),
         DamageMessage},
        {"empty", u""_s, DamageMessage},
    };
    for (const auto &row : rows) {
        EXPECT_EQ(ImportText(row.text), row.error) << row.name;
        EXPECT_EQ(presets.Names(), QStringList()) << row.name;
    }
    for (qsizetype length = 0; length < whole.size() - 2; ++length) {
        EXPECT_EQ(ImportText(whole.left(length)), DamageMessage) << length;
        EXPECT_EQ(presets.Names(), QStringList()) << length;
    }
    EXPECT_EQ(ImportText(QString(whole).replace(u"1.1)"_s, u"1.9)"_s).remove(u'\r')), u""_s);
    EXPECT_EQ(presets.Load(u"new"_s).text, u"wrap: 0\r\n"_s);
    EXPECT_NE(presets.Import(folder.path()), u""_s);
}

} // namespace
