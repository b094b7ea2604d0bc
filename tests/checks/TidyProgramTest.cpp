#include "checks/TidyProgram.h"

#include "checks/TidyExchange.h"
#include "tests/support/FakeTidy.h"
#include "tests/support/FreshHome.h"
#include "tests/support/WaitFor.h"
#include "tests/support/WithFolder.h"

using namespace brenix;
using namespace Qt::StringLiterals;
using End = TidyProgram::End;

namespace {

class TidyProgramTest : public testing::Test, protected WithFolder
{
protected:
    ~TidyProgramTest() override { qputenv("PATH", m_path); }

    void Start(const QStringList &arguments = {})
    {
        end.reset();
        tidy.Start(arguments, [this](End how, int exitStatus) {
            end = how;
            status = exitStatus;
        });
        EXPECT_FALSE(end) << "not before Start has returned";
    }

    const FreshHome home;
    TidyProgram tidy;
    std::optional<End> end;
    int status = -1;

private:
    const QByteArray m_path = qgetenv("PATH");
};

TEST_F(TidyProgramTest, EveryEndIsTold)
{
    const struct
    {
        const char *name;
        const char *script;
        End end;
        int status = 0;
    } rows[] = {
        {"right", "exit 0", End::Finished, 0},
        {"errors", "exit 2", End::Finished, 2},
        {"killed", "kill -9 $$", End::Broken},
        {"reads its input", "cat; exit 1", End::Finished, 1},
        {"much output", "head -c 100000000 /dev/zero; exit 0", End::Finished, 0},
        {"much into a file", "exec head -c 100000000 /dev/zero >\"$1\"", End::Broken},
        {"speaks English", "test \"$LC_ALL\" = C", End::Finished, 0},
        {"arguments reach no shell", "test \"$2\" = '$(x) \"y\" *'", End::Finished, 0},
    };
    const QString file = folder.filePath(u"report"_s);
    for (const auto &row : rows) {
        SCOPED_TRACE(row.name);
        UseFakeTidy(row.script);
        Start({file, u"$(x) \"y\" *"_s});
        EXPECT_TRUE(WaitFor([this] { return end.has_value(); }));
        EXPECT_EQ(end, row.end);
        EXPECT_EQ(status, row.end == End::Finished ? row.status : status);
        EXPECT_FALSE(tidy.IsRunning());
    }
    EXPECT_LE(QFileInfo(file).size(), TidyProgram::LargestFile);
}

TEST_F(TidyProgramTest, MissingIsTold)
{
    qputenv("PATH", folder.path().toLocal8Bit());
    EXPECT_EQ(TidyProgram::Path(), u""_s);
    Start();
    EXPECT_TRUE(WaitFor([this] { return end == End::Missing; }));
    UseFakeTidy("exit 0");
    QFile::setPermissions(AppPath(u"Tidy/tidydbg"), QFile::ReadOwner);
    EXPECT_EQ(TidyProgram::Path(), u""_s) << "no program";
    const QString other = Write(u"tidy"_s, "no program, and no script");
    QFile::setPermissions(other, QFile::ReadOwner | QFile::ExeOwner);
    EXPECT_EQ(TidyProgram::Path(), other);
    Start();
    EXPECT_TRUE(WaitFor([this] { return end == End::Missing; }));
}

// The state of a process as the system shows it; a killed one may wait for its parent as "Z".
bool IsAlive(const QByteArray &process)
{
    QFile file(u"/proc/"_s + QString::fromLatin1(process) + u"/stat"_s);
    return file.open(QIODevice::ReadOnly) && !file.readAll().contains(") Z ");
}

TEST_F(TidyProgramTest, StopReachesWhatItHasStarted)
{
    const QString file = folder.filePath(u"process"_s);
    UseFakeTidy("sleep 60 &\necho $! > \"$1.new\"; mv \"$1.new\" \"$1\"; wait");
    Start({file});
    ASSERT_TRUE(WaitFor([&] { return QFile::exists(file); }));
    const QByteArray child = Read(file).trimmed();
    EXPECT_TRUE(IsAlive(child));
    UseFakeTidy("exit 1");
    Start(); // stops the first
    EXPECT_TRUE(WaitFor([&] { return !IsAlive(child); }));
    EXPECT_TRUE(WaitFor([this] { return end.has_value(); }));
    EXPECT_EQ(status, 1);
    Start();
    tidy.Stop();
    EXPECT_FALSE(tidy.IsRunning());
    Settle();
    EXPECT_FALSE(end) << "nobody is told of a stopped run";
}

TEST(TidyExchange, ScriptsNameNoFiles)
{
    EXPECT_EQ(TidyConfiguration(u"wrap: 0\r\n Error-File : /x\r\noutput-file:/y\nwrite-back: no\r"
                                "// error-file\rnew-inline-tags: é\n\n"_s),
              QByteArray("wrap: 0\n// error-file\nnew-inline-tags: é\n\n"));
}

TEST(TidyExchange, EntitiesWhereTheScriptAsksForAscii)
{
    const std::pair<QString, bool> rows[] = {
        {u"wrap: 0"_s, false},
        {u"wrap: 0\r\nChar-Encoding: ASCII \r\n"_s, true},
        {u"output-encoding:ascii"_s, true},
        {u"char-encoding: ascii\nchar-encoding: latin1"_s, false},
        {u"// char-encoding: ascii"_s, false},
    };
    for (const auto &[script, isAscii] : rows) {
        const QStringList arguments = TidyRunArguments(script, u"c"_s, u"r"_s, u"p"_s);
        EXPECT_TRUE(arguments.contains(u"-utf8"_s));
        EXPECT_EQ(arguments.contains(u"ascii"_s), isAscii) << script.toStdString();
        EXPECT_EQ(arguments.last(), u"p"_s);
    }
}

TEST(TidyExchange, ThePageKeepsItsCharset)
{
    const struct
    {
        const char *name;
        QString before;
        QString result;
        QString page;
    } rows[] = {
        // clang-format off
        {"attribute", u"<meta charset=windows-1250>"_s,
         u"<META CHARSET=\"utf-8\">x"_s, u"<META CHARSET=\"windows-1250\">x"_s},
        {"content", u"<META http-equiv='Content-Type'\ncontent='text/html; charset=ISO-8859-2'>"_s,
         u"<meta name=x><meta content=\"text/html; charset=utf-8\" />"_s,
         u"<meta name=x><meta content=\"text/html; charset=ISO-8859-2\" />"_s},
        {"none before", u"<p>charset=x"_s, u"<meta charset=\"utf-8\">"_s, u"<meta charset=\"utf-8\">"_s},
        {"none after", u"<meta charset=x>"_s, u"<p>charset=utf-8"_s, u"<p>charset=utf-8"_s},
        {"a mark before the page", u"ž"_s, u"\uFEFFž"_s, u"ž"_s},
        // clang-format on
    };
    for (const auto &row : rows)
        EXPECT_EQ(TidiedPage(row.result.toUtf8(), row.before), row.page) << row.name;
}

} // namespace
