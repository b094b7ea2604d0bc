#include "support/Paths.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QProcess>
#include <QTemporaryDir>

using namespace brenix;
using namespace Qt::StringLiterals;

namespace {

void Put(const QString &path, const QByteArray &content)
{
    QDir().mkpath(QFileInfo(path).path());
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(content);
}

QByteArray Content(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("missing");
}

/// What a copy of this program in another place says.
QString AppDirectoryOf(const QString &program, const QString &dataHome, const QString &given = {})
{
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(u"XDG_DATA_HOME"_s, dataHome);
    environment.insert(u"BRENIX_APPDIR"_s, given);
    QProcess process;
    process.setProcessEnvironment(environment);
    process.start(program, {u"--app-directory"_s});
    process.waitForFinished();
    return QString::fromLocal8Bit(process.readAllStandardOutput()).trimmed();
}

} // namespace

TEST(Paths, CutsAtBothSeparators)
{
    struct Case
    {
        QString path, folder, name, copy;
    };
    const Case cases[] = {
        {u"C:\\x\\page.html"_s, u"C:\\x\\"_s, u"page.html"_s, u"C:\\x\\page_.html"_s},
        {u"/x/page.html"_s, u"/x/"_s, u"page.html"_s, u"/x/page_.html"_s},
        {u"C:\\x/y\\z"_s, u"C:\\x/y\\"_s, u"z"_s, {}},
        {u"page.min.js"_s, {}, u"page.min.js"_s, u"page.min_.js"_s},
        {u"/x.y/page"_s, u"/x.y/"_s, u"page"_s, u"/x_.y/page"_s},
        {u"/x/"_s, u"/x/"_s, {}, {}},
        {u".htaccess"_s, {}, u".htaccess"_s, u"_.htaccess"_s},
        {{}, {}, {}, {}},
    };
    for (const Case &row : cases) {
        EXPECT_EQ(FolderOf(row.path), row.folder) << row.path.toStdString();
        EXPECT_EQ(FileNameOf(row.path), row.name) << row.path.toStdString();
        EXPECT_EQ(PreviewCopyName(row.path), row.copy) << row.path.toStdString();
    }
}

TEST(Paths, ExchangeRootsArePrivateAndGoAway)
{
    const QString c = ExchangeRoot(u'C');
    const QString d = ExchangeRoot(u'd');
    EXPECT_NE(c, d);
    EXPECT_EQ(ExchangeRoot(u'c'), c);
    EXPECT_EQ(ExchangeRoot(u'/'), QString());
    const auto ownerOnly = QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner;
    for (const QString &root : {c, d}) {
        EXPECT_EQ(QFile::permissions(root) & ~(QFile::ReadUser | QFile::WriteUser | QFile::ExeUser),
                  ownerOnly);
        EXPECT_FALSE(root.endsWith(QDir::separator()));
    }
    Put(c + u"/sub/file.html"_s, "x");
    RemoveExchangeRoots();
    EXPECT_FALSE(QFile::exists(c));
    EXPECT_FALSE(QFile::exists(d));
    EXPECT_TRUE(QFileInfo(ExchangeRoot(u'C')).isDir());
    RemoveExchangeRoots();
}

TEST(Paths, ACopyThatCanBeWrittenIsItsOwnAppDirectory)
{
    const QTemporaryDir root;
    const QString program = root.filePath(u"portable/brenix"_s);
    QDir().mkpath(root.filePath(u"portable"_s));
    ASSERT_TRUE(QFile::copy(QCoreApplication::applicationFilePath(), program));
    EXPECT_EQ(AppDirectoryOf(program, root.path()), root.filePath(u"portable"_s));
    EXPECT_EQ(AppDirectoryOf(program, root.path(), root.filePath(u"given/"_s)),
              root.filePath(u"given"_s));
}

TEST(Paths, AnInstallationFillsTheUsersDirectory)
{
    const QTemporaryDir root;
    const QString program = root.filePath(u"usr/bin/brenix"_s);
    const QString own = root.filePath(u"home/Brenix"_s);
    QDir().mkpath(root.filePath(u"usr/bin"_s));
    ASSERT_TRUE(QFile::copy(QCoreApplication::applicationFilePath(), program));
    Put(root.filePath(u"usr/share/brenix/TIPS.TXT"_s), "tips");
    Put(root.filePath(u"usr/share/brenix/Templates/Price list.html"_s), "installed");
    Put(root.filePath(u"usr/share/brenix/Templates/Letter.html"_s), "installed");
    QDir().mkpath(root.filePath(u"usr/share/brenix/Macro"_s));
    QFile::setPermissions(root.filePath(u"usr/share/brenix/TIPS.TXT"_s), QFile::ReadOwner);
    Put(own + u"/Templates/Letter.html"_s, "the author's");

    EXPECT_EQ(AppDirectoryOf(program, root.filePath(u"home"_s)), own);
    EXPECT_EQ(Content(own + u"/TIPS.TXT"_s), "tips");
    EXPECT_TRUE(QFile::permissions(own + u"/TIPS.TXT"_s) & QFile::WriteOwner);
    EXPECT_EQ(Content(own + u"/Templates/Price list.html"_s), "installed");
    EXPECT_EQ(Content(own + u"/Templates/Letter.html"_s), "the author's");
    EXPECT_TRUE(QFileInfo(own + u"/Macro"_s).isDir());
}
