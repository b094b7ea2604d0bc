#include "macros/MacroFiles.h"

#include "support/Paths.h"
#include "tests/support/FreshHome.h"

#include <QDir>

using namespace brenix;
using namespace Qt::StringLiterals;

namespace {

class MacroFiles : public testing::Test
{
protected:
    MacroFiles() { QDir().mkpath(AppPath(u"Macro")); }

    static QByteArray Bytes(const QString &name)
    {
        QFile file(AppPath(QString(u"Macro/"_s + name + u".mac"_s)));
        return file.open(QIODevice::ReadOnly) ? file.readAll() : "(missing)";
    }

    const FreshHome m_home;
};

TEST_F(MacroFiles, LiveInTheirFolder)
{
    for (const QString &name : {u"b"_s, u"C"_s, u"a.mac"_s, u".hidden"_s})
        EXPECT_FALSE(CreateMacroFile(name)) << name.toStdString();
    QDir(AppPath(u"Macro")).mkdir(u"folder.mac"_s);
    QFile(AppPath(u"Macro/other.txt")).open(QIODevice::WriteOnly);
    EXPECT_EQ(MacroNames(), (QStringList{u".hidden"_s, u"a.mac"_s, u"b"_s, u"C"_s}));
    EXPECT_EQ(Bytes(u"b"_s), "\r\n");

    EXPECT_FALSE(
        WriteMacroFile(u"b"_s, u"[beep]\u0151"_s, {.codec = "ISO-8859-1", .byteOrderMark = {}}));
    EXPECT_EQ(Bytes(u"b"_s), "[beep]\u0151");
    EXPECT_FALSE(CreateMacroFile(u"b"_s)) << "it is there";
    EXPECT_EQ(ReadMacroFile(u"b"_s).page.text, u"[beep]\u0151"_s);

    EXPECT_FALSE(DeleteMacroFile(u"b"_s));
    EXPECT_FALSE(DeleteMacroFile(u"b"_s)) << "it is gone already";
    EXPECT_EQ(ReadMacroFile(u"b"_s).error.number, MacroError::FileNotFound);
    EXPECT_EQ(DeleteMacroFile(u"folder"_s).number, MacroError::PathAccess);
}

TEST_F(MacroFiles, NoNameLeadsOutOfTheFolder)
{
    for (const QString &name : {u""_s, u"a/b"_s, u"..\\b"_s, u"/b"_s, u"a\0b"_s}) {
        EXPECT_EQ(CreateMacroFile(name).number, MacroError::InvalidCall) << name.toStdString();
        EXPECT_EQ(ReadMacroFile(name).error.number, MacroError::InvalidCall);
        EXPECT_EQ(DeleteMacroFile(name).number, MacroError::InvalidCall);
    }
    EXPECT_TRUE(MacroNames().isEmpty());
}

TEST_F(MacroFiles, LettersEndWithZ)
{
    EXPECT_EQ(MacroLetter(0) + MacroLetter(25) + MacroLetter(26) + MacroLetter(-1), u"AZ"_s);
}

} // namespace
