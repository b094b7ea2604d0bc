#include "app/Encodings.h"
#include "app/FilteredTree.h"
#include "app/Form31.h"
#include "app/Form32.h"
#include "app/ReferenceTable.h"
#include "app/frmAbout.h"
#include "app/frmBackground.h"
#include "app/frmEncoding.h"
#include "app/frmHistory.h"
#include "app/frmTip.h"
#include "support/AuthorFile.h"
#include "support/Paths.h"
#include "tests/support/FreshHome.h"
#include "tests/support/Input.h"
#include "tests/support/ScriptedBoxes.h"

#include <QAbstractButton>
#include <QApplication>
#include <QDir>
#include <QImage>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QSet>
#include <QTextBrowser>
#include <QTimer>
#include <QTreeWidget>
#include <QTreeWidgetItemIterator>

using namespace brenix;
using namespace Qt::StringLiterals;

namespace {

/// The data that the build has put beside the program.
QString BuiltData(QStringView name)
{
    return QCoreApplication::applicationDirPath() + u"/../"_s + name.toString();
}

class SmallWindowsTest : public testing::Test
{
protected:
    SmallWindowsTest() { qputenv("BRENIX_APPDIR", QDir::cleanPath(BuiltData(u".")).toLocal8Bit()); }

    const FreshHome m_home;
    const ScriptedBoxes m_boxes;
    QStringList m_got;
    const std::function<void(const QString &)> m_take
        = [this](const QString &text) { m_got += text; };
};

QTreeWidgetItem *Row(const QTreeWidget &tree, const QString &name)
{
    return tree.findItems(name, Qt::MatchExactly | Qt::MatchRecursive).value(0);
}

template <typename Control> Control &Find(const QWidget &window, const QString &name)
{
    auto *control = window.findChild<Control *>(name);
    if (!control) {
        ADD_FAILURE() << "no control " << qPrintable(name);
        std::abort();
    }
    return *control;
}

void Click(const QWidget &window, const QString &name)
{
    Find<QAbstractButton>(window, name).click();
}

/// Writes a data file of the program's over, in a directory of the test's own.
void WriteData(const QTemporaryDir &folder, const QString &name, const QByteArray &bytes)
{
    qputenv("BRENIX_APPDIR", folder.path().toLocal8Bit());
    QDir(folder.path()).mkpath(QFileInfo(name).path());
    ASSERT_EQ(WriteAuthorFile(folder.filePath(name), bytes), QString());
}

TEST_F(SmallWindowsTest, ReferencesAreCompleteTables)
{
    struct Case
    {
        QStringView file;
        QStringList groups;
        int atLeast;
        QString sample;
    };
    const Case cases[] = {
        {u"Reference/ado.txt",
         {u"Connection"_s,
          u"Command"_s,
          u"Recordset"_s,
          u"Fields"_s,
          u"Field"_s,
          u"Parameters"_s,
          u"Parameter"_s,
          u"Errors"_s,
          u"Error"_s,
          u"Properties"_s,
          u"Property"_s,
          u"Record"_s,
          u"Stream"_s},
         200,
         u"MoveNext"_s},
        {u"Reference/functions.txt",
         {u"Strings"_s,
          u"Dates and times"_s,
          u"Conversion"_s,
          u"Mathematics"_s,
          u"Arrays"_s,
          u"Type tests"_s,
          u"Formatting"_s,
          u"Input and output"_s,
          u"Objects and code"_s,
          u"Request"_s,
          u"Response"_s,
          u"Server"_s,
          u"Session"_s,
          u"Application"_s},
         150,
         u"Response.Write"_s},
    };
    for (const Case &row : cases) {
        SCOPED_TRACE(qPrintable(row.file.toString()));
        const ReferenceTable table = ReadReference(BuiltData(row.file));
        EXPECT_EQ(table.error, QString());
        EXPECT_GE(table.entries.size(), row.atLeast);
        QStringList groups;
        QSet<std::pair<QString, QString>> seen;
        for (const ReferenceEntry &entry : table.entries) {
            SCOPED_TRACE(qPrintable(entry.group + u'.' + entry.member));
            EXPECT_FALSE(seen.contains({entry.group, entry.member}));
            seen.insert({entry.group, entry.member});
            EXPECT_TRUE(entry.meaning.endsWith(u'.'));
            EXPECT_EQ(entry.member.trimmed(), entry.member);
            // The row of a group comes first, and its members stand together.
            if (entry.member.isEmpty())
                groups += entry.group;
            EXPECT_EQ(groups.constLast(), entry.group);
        }
        EXPECT_EQ(groups, row.groups);
        EXPECT_TRUE(std::any_of(table.entries.begin(), table.entries.end(), [&](const auto &entry) {
            return entry.member == row.sample;
        }));
    }
}

TEST_F(SmallWindowsTest, DamagedReferencesAreEmptyAndSaySo)
{
    const std::pair<const char *, QByteArray> cases[] = {
        {"empty", "\r\n\r\n"},
        {"too few fields", "A|B|Method|Does.\nA|C|Method\n"},
        {"too many fields", "A|B|Method|This | that.\n"},
        {"no meaning", "A|B|Method|\n"},
        {"no group", "|B|Method|Does.\n"},
        {"not UTF-8", "A|B|Method|Does \xFF.\n"},
    };
    const QTemporaryDir folder;
    for (const auto &[name, bytes] : cases) {
        SCOPED_TRACE(name);
        WriteData(folder, u"Reference/ado.txt"_s, bytes);
        const Form31 window(m_take);
        EXPECT_EQ(Find<QTreeWidget>(window, u"TreeView"_s).topLevelItemCount(), 0);
        EXPECT_TRUE(Find<QLabel>(window, u"Label1"_s).text().contains(u"cannot be used"));
        EXPECT_FALSE(Find<QAbstractButton>(window, u"Command1"_s).isEnabled());
    }
    const Form32 missing(m_take);
    EXPECT_TRUE(Find<QLabel>(missing, u"Label1"_s).text().contains(u"cannot be used"));

    WriteData(folder, u"Reference/ado.txt"_s, "A||Object|Is.\r\n\r\nA|B|Method|Does <b>.\r\n");
    const Form31 whole(m_take);
    auto &tree = Find<QTreeWidget>(whole, u"TreeView"_s);
    tree.setCurrentItem(Row(tree, u"B"_s));
    EXPECT_EQ(Find<QLabel>(whole, u"Label1"_s).text(), u"<b>B</b><br>Does &lt;b&gt;."_s);
}

TEST_F(SmallWindowsTest, OnlyMembersAreInserted)
{
    Form32 window(m_take);
    auto &tree = Find<QTreeWidget>(window, u"TreeView"_s);
    emit tree.itemDoubleClicked(Row(tree, u"Response"_s), 0);
    EXPECT_EQ(m_got, QStringList());
    emit tree.itemDoubleClicked(Row(tree, u"Response.Write"_s), 0);
    tree.setCurrentItem(Row(tree, u"Mid"_s));
    Press(tree, Qt::Key_Return);
    Click(window, u"Command1"_s);
    const QStringList inserted{u"Response.Write"_s, u"Mid"_s, u"Mid"_s};
    EXPECT_EQ(m_got, inserted);
    window.show();
    EXPECT_FALSE(window.isModal());
    Press(window, Qt::Key_Escape);
    EXPECT_FALSE(window.isVisible());
}

TEST_F(SmallWindowsTest, FilterFindsTheBestRow)
{
    struct Case
    {
        const char *name;
        QString typed;
        QString current;
        bool isOnly;
    };
    const Case cases[] = {
        {"beginning before middle", u"open"_s, u"Open"_s, false},
        {"group and member", u"recordset movel"_s, u"MoveLast"_s, true},
        {"without regard to case", u"SQLSTATE"_s, u"SQLState"_s, true},
        {"words of the meaning", u"five characters databases"_s, u"SQLState"_s, true},
        {"nothing", u"no such member"_s, QString(), false},
    };
    Form31 window(m_take);
    auto &tree = Find<QTreeWidget>(window, u"TreeView"_s);
    auto &filter = Find<QLineEdit>(window, u"Filter"_s);
    for (const Case &row : cases) {
        SCOPED_TRACE(row.name);
        filter.setText(row.typed);
        EXPECT_EQ(tree.currentItem() ? tree.currentItem()->text(0) : QString(), row.current);
        int shown = 0;
        for (QTreeWidgetItemIterator rows(&tree, QTreeWidgetItemIterator::NotHidden); *rows; ++rows)
            shown += (*rows)->childCount() == 0;
        EXPECT_EQ(shown == 1, row.isOnly);
    }
    filter.setText(u"recordset move"_s);
    tree.setCurrentItem(Row(tree, u"MoveFirst"_s));
    Press(filter, Qt::Key_Down);
    Press(filter, Qt::Key_Return);
    EXPECT_EQ(m_got, QStringList{u"MoveLast"_s});
}

TEST_F(SmallWindowsTest, EncodingsAreThoseOfThisMachine)
{
    QSet<QString> names;
    for (const NamedEncoding &encoding : Encodings()) {
        EXPECT_TRUE(IsDecodable(encoding.name)) << qPrintable(encoding.name);
        EXPECT_FALSE(encoding.description.isEmpty());
        names += encoding.name.toLower();
    }
    EXPECT_EQ(names.size(), Encodings().size());
    for (const QString &name : {u"utf-8"_s, u"windows-1250"_s, u"iso-8859-2"_s, u"shift_jis"_s})
        EXPECT_TRUE(names.contains(name)) << qPrintable(name);
    EXPECT_FALSE(IsDecodable(QString()));
    EXPECT_FALSE(IsDecodable(u"no-such-encoding"_s));
}

TEST_F(SmallWindowsTest, EncodingIsStoredByOk)
{
    struct Case
    {
        const char *name;
        QString stored;
        QString shown;
        QString typed;
        QString button;
        QString storedThen;
    };
    const QString ok = u"Command1"_s;
    const Case cases[] = {
        {"kept", u"KOI8-R"_s, u"KOI8-R"_s, {}, ok, u"KOI8-R"_s},
        {"case", u"utf-8"_s, u"UTF-8"_s, {}, ok, u"UTF-8"_s},
        {"alias", u"latin1"_s, u"latin1"_s, {}, ok, u"latin1"_s},
        {"chosen", u"UTF-8"_s, u"UTF-8"_s, u"hebrew win"_s, ok, u"windows-1255"_s},
        {"cancel", u"UTF-8"_s, u"UTF-8"_s, u"hebrew win"_s, u"Command2"_s, u"UTF-8"_s},
        {"unknown", u"?"_s, QString(), {}, ok, u"?"_s},
    };
    for (const Case &row : cases) {
        SCOPED_TRACE(row.name);
        SaveSetting(u"Editor", u"Encoding", row.stored);
        frmEncoding dialog;
        const auto &tree = Find<QTreeWidget>(dialog, u"TreeView"_s);
        EXPECT_EQ(tree.currentItem() ? tree.currentItem()->text(0) : QString(), row.shown);
        if (!row.typed.isEmpty())
            Find<QLineEdit>(dialog, u"Filter"_s).setText(row.typed);
        Click(dialog, row.button);
        EXPECT_EQ(GetSetting(u"Editor", u"Encoding"), row.storedThen);
    }
}

/// The greatest mean difference of neighbouring columns inside the picture, and that of the last
/// column to the first, which stand side by side on the page.
std::pair<double, double> Jumps(const QImage &picture)
{
    const auto difference = [&picture](int a, int b) {
        int sum = 0;
        for (int y = 0; y < picture.height(); ++y)
            sum += std::abs(qGray(picture.pixel(a, y)) - qGray(picture.pixel(b, y)));
        return double(sum) / picture.height();
    };
    double inside = 0;
    for (int x = 1; x < picture.width(); ++x)
        inside = std::max(inside, difference(x - 1, x));
    return {inside, difference(picture.width() - 1, 0)};
}

TEST_F(SmallWindowsTest, BackgroundsAreSeamless)
{
    const QFileInfoList files = QDir(BuiltData(u"Backgrounds")).entryInfoList(QDir::Files);
    EXPECT_EQ(files.size(), 12);
    for (const QFileInfo &file : files) {
        SCOPED_TRACE(qPrintable(file.fileName()));
        const QImage picture(file.filePath());
        ASSERT_EQ(picture.size(), QSize(64, 64));
        for (const QImage &turned : {picture, picture.transformed(QTransform(0, 1, 1, 0, 0, 0))}) {
            const auto [inside, edge] = Jumps(turned);
            EXPECT_LE(edge, inside + 1);
        }
    }
}

TEST_F(SmallWindowsTest, BackgroundIsChosenFromGalleryOrFolder)
{
    const QTemporaryDir folder;
    QImage(8, 8, QImage::Format_RGB32).save(folder.filePath(u"own.png"_s));
    ASSERT_EQ(WriteAuthorFile(folder.filePath(u"torn.jpg"_s), "no picture"), QString());
    ASSERT_EQ(WriteAuthorFile(folder.filePath(u"page.html"_s), "<html>"), QString());

    frmBackground dialog(m_take);
    auto &gallery = Find<QListWidget>(dialog, u"List1"_s);
    EXPECT_EQ(gallery.count(), 12);
    gallery.setCurrentItem(gallery.findItems(u"Linen"_s, Qt::MatchExactly).value(0));
    Click(dialog, u"Command1"_s);

    Scripted().chooseFolder = [](const QString &) { return QString(); };
    Click(dialog, u"Command3"_s);
    EXPECT_EQ(gallery.count(), 12);
    Scripted().chooseFolder = [&folder](const QString &) { return folder.path(); };
    Click(dialog, u"Command3"_s);
    ASSERT_EQ(gallery.count(), 2);
    auto *timer = dialog.findChild<QTimer *>();
    for (int i = 0; i < 3; ++i)
        QMetaObject::invokeMethod(timer, "timeout");
    EXPECT_FALSE(timer->isActive());
    EXPECT_TRUE(gallery.item(1)->toolTip().contains(u"cannot be read"));
    emit gallery.itemDoubleClicked(gallery.item(0));

    const QTemporaryDir empty;
    Scripted().chooseFolder = [&empty](const QString &) { return empty.path(); };
    Click(dialog, u"Command3"_s);
    EXPECT_FALSE(Find<QAbstractButton>(dialog, u"Command1"_s).isEnabled());
    Click(dialog, u"Command4"_s);
    EXPECT_EQ(gallery.count(), 12);

    const QStringList chosen{QDir::toNativeSeparators(AppPath(u"Backgrounds/linen.png")),
                             QDir::toNativeSeparators(folder.filePath(u"own.png"_s))};
    EXPECT_EQ(m_got, chosen);
}

TEST_F(SmallWindowsTest, TipsComeInTurnAndAsTheyAre)
{
    const QTemporaryDir folder;
    WriteData(folder, u"TIPS.TXT"_s, "Write <b>&lt;</b>.\r\n\r\nSecond.\r\n");
    frmTip dialog;
    const auto &tip = Find<QLabel>(dialog, u"Label1"_s);
    EXPECT_EQ(tip.text(), u"Write <b>&lt;</b>."_s);
    EXPECT_EQ(tip.textFormat(), Qt::PlainText);
    Click(dialog, u"Command2"_s);
    EXPECT_EQ(tip.text(), u"Second."_s);
    Click(dialog, u"Command2"_s);
    EXPECT_EQ(tip.text(), u"Write <b>&lt;</b>."_s);
    Click(dialog, u"Check1"_s);
    EXPECT_FALSE(frmTip::IsWanted());
}

TEST_F(SmallWindowsTest, AboutAndHistoryTellTheVersion)
{
    const QString before = QCoreApplication::applicationVersion();
    QCoreApplication::setApplicationVersion(u"2.0.7"_s);
    const frmAbout about;
    EXPECT_EQ(Find<QLabel>(about, u"lblVersion"_s).text(), u"Version 2.0  built 7"_s);
    QCoreApplication::setApplicationVersion(before);
    const frmHistory history;
    EXPECT_TRUE(Find<QTextBrowser>(history, u"Text1"_s).toPlainText().contains(u"Version 2.0.0"));
}

} // namespace
