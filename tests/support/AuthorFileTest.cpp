#include "support/AuthorFile.h"

#include "support/Paths.h"
#include "support/RedoRecord.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>

#include <csignal>
#include <fcntl.h>
#include <sched.h>
#include <sys/mount.h>
#include <sys/resource.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/un.h>
#include <sys/xattr.h>
#include <unistd.h>

using namespace brenix;
using namespace Qt::StringLiterals;

namespace {

constexpr uid_t nobody = 65534;

struct stat Status(const QString &path)
{
    struct stat status = {};
    ::stat(QFile::encodeName(path).constData(), &status);
    return status;
}

/// The tests as a user without privileges, who owns the directory of the test and that of the data.
/// As an administrator no folder is closed and every owner can be given.
class AsUser
{
public:
    explicit AsUser(const QString &folder)
    {
        if (::geteuid() != 0)
            return;
        m_wasAdministrator = true;
        for (const QString &path : {folder, AppDirectory(), AppPath(u"Recovery")})
            m_isReady &= !QFile::exists(path)
                || ::chown(QFile::encodeName(path).constData(), nobody, nobody) == 0;
        m_isReady &= ::setegid(nobody) == 0 && ::seteuid(nobody) == 0;
    }
    ~AsUser()
    {
        if (m_wasAdministrator && (::seteuid(0) != 0 || ::setegid(0) != 0))
            std::abort();
    }
    bool IsReady() const { return m_isReady; }

private:
    bool m_wasAdministrator = false;
    bool m_isReady = true;
};

/// No file may grow past this many bytes: writing then fails in the middle, as on a full disk.
class FileSizeLimit
{
public:
    explicit FileSizeLimit(rlim_t limit)
    {
        std::signal(SIGXFSZ, SIG_IGN);
        ::getrlimit(RLIMIT_FSIZE, &m_old);
        const rlimit smaller = {limit, m_old.rlim_max};
        ::setrlimit(RLIMIT_FSIZE, &smaller);
    }
    ~FileSizeLimit() { ::setrlimit(RLIMIT_FSIZE, &m_old); }

private:
    rlimit m_old = {};
};

class AuthorFile : public testing::Test
{
protected:
    QString Path(const QString &name) const { return m_folder.filePath(name); }
    QByteArray Name(const QString &name) const { return QFile::encodeName(Path(name)); }
    void Put(const QString &name, const QByteArray &content, int mode = 0644) const
    {
        QFile file(Path(name));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(content);
        file.close();
        ASSERT_EQ(::chmod(Name(name).constData(), mode_t(mode)), 0);
    }
    QByteArray Content(const QString &name) const { return ReadAuthorFile(Path(name)).bytes; }
    /// Nothing but the files of the author remains, and no record.
    void ExpectOnly(QStringList names) const
    {
        names.sort();
        EXPECT_EQ(
            QDir(m_folder.path())
                .entryList(QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot,
                           QDir::Name),
            names);
        EXPECT_EQ(Records(), QStringList());
    }
    static QStringList Records()
    {
        return QDir(AppPath(u"Recovery")).entryList({u"*.redo"_s}, QDir::Files);
    }

    const QTemporaryDir m_folder;
};

const QByteArray newContent = QByteArray("new \0 content", 13);

} // namespace

TEST_F(AuthorFile, ANewFileGetsTheUsualMode)
{
    const mode_t mask = ::umask(0027);
    EXPECT_EQ(WriteAuthorFile(Path(u"a.html"_s), newContent), QString());
    ::umask(mask);
    EXPECT_EQ(Content(u"a.html"_s), newContent);
    EXPECT_EQ(Status(Path(u"a.html"_s)).st_mode & 07777, 0640u);
    ExpectOnly({u"a.html"_s});
}

TEST_F(AuthorFile, TheLongestNameCanBeWritten)
{
    const QString name = QString(250, u'x') + u".html"_s;
    EXPECT_EQ(WriteAuthorFile(Path(name), "one"), QString());
    EXPECT_EQ(WriteAuthorFile(Path(name), newContent), QString());
    EXPECT_EQ(Content(name), newContent);
}

TEST_F(AuthorFile, ModeAndOwnerStay)
{
    const auto expectTheyStay = [this](mode_t mode) {
        ASSERT_EQ(::chmod(Name(u"a.html"_s).constData(), mode), 0);
        const struct stat before = Status(Path(u"a.html"_s));
        EXPECT_EQ(before.st_mode & 07777, mode);
        EXPECT_EQ(WriteAuthorFile(Path(u"a.html"_s), newContent), QString());
        const struct stat after = Status(Path(u"a.html"_s));
        EXPECT_EQ(after.st_mode, before.st_mode);
        EXPECT_EQ(after.st_uid, before.st_uid);
        EXPECT_EQ(after.st_gid, before.st_gid);
        // By rename, so that the old content is whole until the new one is.
        EXPECT_NE(after.st_ino, before.st_ino);
        EXPECT_EQ(Content(u"a.html"_s), newContent);
    };
    const mode_t modes[] = {0600, 0644, 0755, 02770, 04711};
    for (const mode_t mode : modes) {
        Put(u"a.html"_s, "old");
        if (::geteuid() == 0) {
            ASSERT_EQ(::chown(Name(u"a.html"_s).constData(), nobody, 33), 0);
        }
        expectTheyStay(mode);
        QFile::remove(Path(u"a.html"_s));
    }
    const AsUser user(m_folder.path());
    ASSERT_TRUE(user.IsReady());
    for (const mode_t mode : modes) {
        Put(u"a.html"_s, "old");
        expectTheyStay(mode);
        QFile::remove(Path(u"a.html"_s));
    }
    ExpectOnly({});
}

TEST_F(AuthorFile, SymbolicLinksAreFollowed)
{
    QDir(m_folder.path()).mkdir(u"sub"_s);
    Put(u"sub/a.html"_s, "old");
    ASSERT_EQ(::symlink("sub/a.html", Name(u"link"_s).constData()), 0);
    ASSERT_EQ(::symlink("link", Name(u"second"_s).constData()), 0);
    ASSERT_EQ(::symlink("sub/new.html", Name(u"dangling"_s).constData()), 0);
    ASSERT_EQ(::symlink("loop", Name(u"loop"_s).constData()), 0);
    EXPECT_EQ(WriteAuthorFile(Path(u"second"_s), newContent), QString());
    EXPECT_EQ(WriteAuthorFile(Path(u"dangling"_s), newContent), QString());
    EXPECT_NE(WriteAuthorFile(Path(u"loop"_s), newContent), QString());
    EXPECT_EQ(Content(u"sub/a.html"_s), newContent);
    EXPECT_EQ(Content(u"sub/new.html"_s), newContent);
    EXPECT_EQ(Content(u"second"_s), newContent);
    for (const QString &link : {u"link"_s, u"second"_s, u"dangling"_s, u"loop"_s})
        EXPECT_TRUE(QFileInfo(Path(link)).isSymLink());
}

TEST_F(AuthorFile, HardLinksStayTogether)
{
    for (const QByteArray &old : {QByteArray("old"), QByteArray(100000, 'o')}) {
        Put(u"a.html"_s, old, 0604);
        ASSERT_EQ(::link(Name(u"a.html"_s).constData(), Name(u"b.html"_s).constData()), 0);
        EXPECT_EQ(WriteAuthorFile(Path(u"a.html"_s), newContent), QString());
        EXPECT_EQ(Content(u"b.html"_s), newContent);
        EXPECT_EQ(Status(Path(u"a.html"_s)).st_nlink, 2u);
        ExpectOnly({u"a.html"_s, u"b.html"_s});
        QFile::remove(Path(u"b.html"_s));
    }
}

TEST_F(AuthorFile, AttributesAndAccessListsStay)
{
    // Owner and one more user may write, the others read.
    const QByteArray list
        = QByteArray::fromHex("02000000010006 00ffffffff 02000600e8030000 04000400ffffffff"
                              "10000600ffffffff 20000400ffffffff");
    const std::pair<const char *, QByteArray> attributes[]
        = {{"user.origin", "typed"}, {"system.posix_acl_access", list}};
    for (const auto &[attribute, value] : attributes) {
        Put(u"a.html"_s, "old");
        const QByteArray name = Name(u"a.html"_s);
        if (::setxattr(name.constData(), attribute, value.constData(), size_t(value.size()), 0) < 0)
            GTEST_SKIP() << "no extended attributes here";
        EXPECT_EQ(WriteAuthorFile(Path(u"a.html"_s), newContent), QString());
        EXPECT_EQ(Content(u"a.html"_s), newContent);
        QByteArray kept(200, Qt::Uninitialized);
        const auto size = ::getxattr(name.constData(), attribute, kept.data(), size_t(kept.size()));
        EXPECT_EQ(kept.left(size), value) << attribute;
        ExpectOnly({u"a.html"_s});
        QFile::remove(Path(u"a.html"_s));
    }
}

TEST_F(AuthorFile, ABatchPutsAllInPlaceOrNothing)
{
    using Purpose = AuthorFileBatch::Purpose;
    for (const Purpose purpose : {Purpose::Save, Purpose::ReplaceMany}) {
        for (const bool isFinished : {false, true}) {
            Put(u"a.html"_s, "old", 0604);
            Put(u"b.html"_s, "old");
            Put(u"b.html.tmp"_s, "the author's");
            AuthorFileBatch batch(purpose);
            for (const QString &name : {u"a.html"_s, u"none/a.html"_s, u"b.html"_s, u"new.html"_s})
                batch.Add(Path(name), newContent);
            EXPECT_EQ(Content(u"a.html"_s), "old");
            if (!isFinished)
                continue;
            const QStringList errors = batch.PutInPlace();
            EXPECT_EQ(errors, QStringList({{}, SystemError(ENOENT), {}, {}}));
            for (const QString &name : {u"a.html"_s, u"b.html"_s, u"new.html"_s})
                EXPECT_EQ(Content(name), newContent);
            EXPECT_EQ(Content(u"b.html.tmp"_s), "the author's");
            EXPECT_EQ(Status(Path(u"a.html"_s)).st_mode & 07777, 0604u);
        }
        ExpectOnly({u"a.html"_s, u"b.html"_s, u"b.html.tmp"_s, u"new.html"_s});
        QFile::remove(Path(u"new.html"_s));
    }
}

TEST_F(AuthorFile, WhatIsNoFileIsNeitherReadNorReplaced)
{
    QDir(m_folder.path()).mkdir(u"folder"_s);
    ASSERT_EQ(::mkfifo(Name(u"pipe"_s).constData(), 0644), 0);
    ASSERT_EQ(::symlink("/dev/full", Name(u"device"_s).constData()), 0);
    for (const QString &name : {u"folder"_s, u"pipe"_s, u"device"_s, u"folder/"_s, u""_s}) {
        EXPECT_NE(ReadAuthorFile(Path(name)).error, QString()) << name.toStdString();
        EXPECT_NE(WriteAuthorFile(Path(name), newContent), QString()) << name.toStdString();
    }
    for (const QString &path : {u""_s, Path(u"a\0b"_s), Path(u"none/a"_s), Path(u"pipe/a"_s)}) {
        EXPECT_NE(ReadAuthorFile(path).error, QString());
        EXPECT_NE(WriteAuthorFile(path, newContent), QString());
    }
    EXPECT_TRUE(S_ISFIFO(Status(Path(u"pipe"_s)).st_mode));
    ExpectOnly({u"device"_s, u"folder"_s, u"pipe"_s});
}

TEST_F(AuthorFile, FilesOfUnknownOrAbsurdSize)
{
    const FileContent kernel = ReadAuthorFile(u"/proc/self/maps"_s);
    EXPECT_EQ(kernel.error, QString());
    EXPECT_GT(kernel.bytes.size(), 4096);
    Put(u"sparse"_s, {});
    ASSERT_EQ(::truncate(Name(u"sparse"_s).constData(), off_t(1) << 40), 0);
    EXPECT_NE(ReadAuthorFile(Path(u"sparse"_s)).error, QString());
}

TEST_F(AuthorFile, AReadOnlyFileStays)
{
    Put(u"a.html"_s, "old", 0444);
    const AsUser user(m_folder.path());
    ASSERT_TRUE(user.IsReady());
    EXPECT_NE(WriteAuthorFile(Path(u"a.html"_s), newContent), QString());
    EXPECT_EQ(Content(u"a.html"_s), "old");
    ExpectOnly({u"a.html"_s});
}

TEST_F(AuthorFile, AFileInAClosedFolderIsWrittenInPlace)
{
    Put(u"a.html"_s, "old", 0666);
    const AsUser user(m_folder.path());
    ASSERT_TRUE(user.IsReady());
    ASSERT_EQ(::chmod(Name({}).constData(), 0555), 0);
    EXPECT_EQ(WriteAuthorFile(Path(u"a.html"_s), newContent), QString());
    EXPECT_NE(WriteAuthorFile(Path(u"new.html"_s), newContent), QString());
    ASSERT_EQ(::chmod(Name({}).constData(), 0755), 0);
    EXPECT_EQ(Content(u"a.html"_s), newContent);
    ExpectOnly({u"a.html"_s});
}

TEST_F(AuthorFile, AForeignOwnerStays)
{
    if (::geteuid() != 0)
        GTEST_SKIP() << "only an administrator can make such a file";
    Put(u"a.html"_s, "old", 0666);
    const AsUser user(m_folder.path());
    ASSERT_TRUE(user.IsReady());
    EXPECT_EQ(WriteAuthorFile(Path(u"a.html"_s), newContent), QString());
    EXPECT_EQ(Content(u"a.html"_s), newContent);
    EXPECT_EQ(Status(Path(u"a.html"_s)).st_uid, 0u);
    ExpectOnly({u"a.html"_s});
}

TEST_F(AuthorFile, AFullDiskLeavesTheOldFile)
{
    const QByteArray old(3000, 'o');
    for (const bool isLinked : {false, true}) {
        Put(u"a.html"_s, old);
        if (isLinked) {
            ASSERT_EQ(::link(Name(u"a.html"_s).constData(), Name(u"b.html"_s).constData()), 0);
        }
        QString error;
        {
            const FileSizeLimit limit(10000);
            error = WriteAuthorFile(Path(u"a.html"_s), QByteArray(50000, 'n'));
        }
        EXPECT_EQ(error, SystemError(EFBIG));
        EXPECT_EQ(Content(u"a.html"_s), old);
    }
    ExpectOnly({u"a.html"_s, u"b.html"_s});
}

TEST_F(AuthorFile, AFullFileSystemLeavesTheOldFile)
{
    // In a mount space of this process alone; without the right to that, the test above must do.
    if (::unshare(CLONE_NEWNS) < 0
        || ::mount("none", "/", nullptr, MS_REC | MS_PRIVATE, nullptr) < 0
        || ::mount("tmpfs", Name({}).constData(), "tmpfs", 0, "size=64k") < 0)
        GTEST_SKIP() << "no right to mount";
    const QByteArray old(20000, 'o');
    Put(u"a.html"_s, old);
    EXPECT_EQ(WriteAuthorFile(Path(u"a.html"_s), QByteArray(90000, 'n')), SystemError(ENOSPC));
    EXPECT_EQ(Content(u"a.html"_s), old);
    ASSERT_EQ(::link(Name(u"a.html"_s).constData(), Name(u"b.html"_s).constData()), 0);
    EXPECT_EQ(WriteAuthorFile(Path(u"a.html"_s), QByteArray(90000, 'n')), SystemError(ENOSPC));
    EXPECT_EQ(Content(u"b.html"_s), old);
    // What failed gave its space back.
    EXPECT_EQ(WriteAuthorFile(Path(u"c.html"_s), QByteArray(30000, 'n')), QString());
    ExpectOnly({u"a.html"_s, u"b.html"_s, u"c.html"_s});
    ::umount(Name({}).constData());
}

struct InterruptedCase
{
    const char *name;
    QByteArray before;
    QByteArray found;
    QByteArray after;
    QByteArray finished;
};

class InterruptedWrite : public AuthorFile, public testing::WithParamInterface<InterruptedCase>
{
};

TEST_P(InterruptedWrite, IsFinishedAtTheNextStart)
{
    const InterruptedCase &row = GetParam();
    Put(u"a.html"_s, row.found, 0604);
    const InPlaceWrite write{Name(u"a.html"_s), row.before, row.after};
    {
        RedoRecord record;
        ASSERT_EQ(record.Store(write), QString());
        // Still locked: the writer is at work.
        FinishInterruptedWrites();
        EXPECT_EQ(Content(u"a.html"_s), row.found);
        EXPECT_EQ(Records().size(), 1);
    }
    FinishInterruptedWrites();
    EXPECT_EQ(Content(u"a.html"_s), row.finished);
    EXPECT_EQ(Status(Path(u"a.html"_s)).st_mode & 07777, 0604u);
    ExpectOnly({u"a.html"_s});
}

// clang-format off
const InterruptedCase interruptedCases[] = {
    {"NotBegun",          "old text", "old text",                      "new longer text", "new longer text"},
    {"HalfWay",           "old text", "new lext",                      "new longer text", "new longer text"},
    {"Grown",             "old text", QByteArray("new long\0\0\0", 11), "new longer text", "new longer text"},
    {"NotYetShortened",   "old text", "newtext",                       "new",             "newtext"},
    {"WrittenNotCut",     "old text", "new text",                      "new",             "new"},
    {"Complete",          "old text", "new",                           "new",             "new"},
    {"ToNothing",         "old text", "old text",                      "",                ""},
    {"LaterVersion",      "old text", "oldest text",                   "new longer text", "oldest text"},
    {"LaterShorter",      "old text", "old",                           "new longer text", "old"},
    {"LaterWithZeros",    "old text", QByteArray("\0\0d text", 8),     "new longer text", QByteArray("\0\0d text", 8)},
};
// clang-format on

INSTANTIATE_TEST_SUITE_P(,
                         InterruptedWrite,
                         testing::ValuesIn(interruptedCases),
                         [](const auto &row) { return std::string(row.param.name); });

TEST_F(AuthorFile, RecordsThatLeadNowhere)
{
    const auto store = [](const QByteArray &target) {
        RedoRecord record;
        EXPECT_EQ(record.Store({target, "old", "new"}), QString());
    };
    // Deleted by the author.
    store(Name(u"deleted.html"_s));
    // A link or a pipe has taken the place of the file.
    Put(u"other.html"_s, "old");
    ASSERT_EQ(::symlink("other.html", Name(u"link.html"_s).constData()), 0);
    ASSERT_EQ(::mkfifo(Name(u"pipe"_s).constData(), 0644), 0);
    store(Name(u"pipe"_s));
    FinishInterruptedWrites();
    EXPECT_EQ(Records(), QStringList());
    EXPECT_FALSE(QFile::exists(Path(u"deleted.html"_s)));

    // Never completed.
    QFile torn(AppPath(u"Recovery/00000000.redo"));
    ASSERT_TRUE(torn.open(QIODevice::WriteOnly));
    torn.write("torn");
    torn.close();
    FinishInterruptedWrites();
    EXPECT_EQ(Records(), QStringList());

    // On a disk that is not there now.
    store(Name(u"disk/a.html"_s));
    FinishInterruptedWrites();
    EXPECT_EQ(Records().size(), 1);
    QDir(m_folder.path()).mkdir(u"disk"_s);
    Put(u"disk/a.html"_s, "ned");
    FinishInterruptedWrites();
    EXPECT_EQ(Content(u"disk/a.html"_s), "new");
    EXPECT_EQ(Records(), QStringList());
}

TEST_F(AuthorFile, WithoutARecordNothingIsWrittenInPlace)
{
    Put(u"a.html"_s, "old");
    ASSERT_EQ(::link(Name(u"a.html"_s).constData(), Name(u"b.html"_s).constData()), 0);
    const QByteArray appDirectory = qgetenv("BRENIX_APPDIR");
    qputenv("BRENIX_APPDIR", Name(u"a.html/below"_s));
    EXPECT_NE(WriteAuthorFile(Path(u"a.html"_s), newContent), QString());
    qputenv("BRENIX_APPDIR", appDirectory);
    EXPECT_EQ(Content(u"b.html"_s), "old");
}
