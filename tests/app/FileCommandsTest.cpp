#include "app/RecentFiles.h"
#include "app/StandardPages.h"
#include "support/Paths.h"
#include "support/UntitledPages.h"
#include "tests/app/MainWindowFixture.h"

#include <QAbstractButton>
#include <QListWidget>

#include <unistd.h>

using namespace brenix;
using namespace Qt::StringLiterals;
using testing::ElementsAre;
using testing::ElementsAreArray;
using testing::IsEmpty;

namespace {

class FileCommands : public MainWindowFixture
{
protected:
    /// As with a double click or the Enter key.
    void Choose(const QString &list, const QString &row)
    {
        auto &box = Find<QListWidget>(list);
        const QList<QListWidgetItem *> found = box.findItems(row, Qt::MatchExactly);
        ASSERT_FALSE(found.isEmpty()) << row.toStdString();
        box.setCurrentItem(found.first());
        Press(box, Qt::Key_Return);
        Settle();
    }
    QStringList Rows(const QString &list)
    {
        QStringList rows;
        for (int i = 0; i < Find<QListWidget>(list).count(); ++i)
            rows.append(Find<QListWidget>(list).item(i)->text());
        return rows;
    }
    void Drop(const QList<QUrl> &urls)
    {
        EXPECT_TRUE(DropFiles(*window, urls));
        Settle();
    }
};

TEST_F(FileCommands, DocumentKinds)
{
    const QDate today = QDate::currentDate();
    struct Case
    {
        QString kind;
        QString text;
        int caret;
    };
    const Case cases[] = {{u"HTML Document"_s, HtmlPage(today), 192},
                          {u"Simple HTML Document"_s, SimpleHtmlPage(today), 83},
                          {u"Empty Document"_s, {}, 0},
                          {u"XHTML Document"_s, XhtmlPage(), XhtmlPageCaret()}};
    Start();
    QStringList captions;
    for (const Case &row : cases) {
        SCOPED_TRACE(row.kind.toStdString());
        Choose(u"List2"_s, row.kind);
        captions.append(
            QDir::cleanPath(AppPath(QString(u"Temp/Document%1.html"_s.arg(captions.size() + 1)))));
        EXPECT_EQ(Active().Caption(), captions.last());
        EXPECT_EQ(Active().Source().Text(), row.text);
        EXPECT_EQ(Active().Source().SelStart(), row.caret);
        EXPECT_EQ(Active().Modyfied(), u"0"_s);
        Active().Source().SetSelText(u"x"_s);
        Active().Source().AddUndo();
        Active().Source().Undo();
        // The history cannot go back to an empty page.
        EXPECT_EQ(Active().Source().Text(), row.text.isEmpty() ? u"x"_s : row.text)
            << "one undo step was recorded";
    }
    EXPECT_THAT(Captions(), ElementsAreArray(captions));
    Stop();
    EXPECT_THAT(QDir(AppPath(u"Temp")).entryList(QDir::Files), IsEmpty());
}

TEST_F(FileCommands, OpenListRows)
{
    const QString first = Write(u"first.html"_s, "1");
    const QString second = Write(u"second.html"_s, "2");
    Set(u"Recent/Recent1", first);
    Set(u"Recent/Recent2", second);
    Start();
    auto &list = Find<QListWidget>(u"List1"_s);
    ASSERT_EQ(list.count(), 5);
    EXPECT_EQ(list.item(4)->toolTip(), second);
    Choose(u"List1"_s, list.item(4)->text());
    EXPECT_EQ(Active().Source().Text(), u"2"_s);
    EXPECT_EQ(RecentFile(1), second);
    EXPECT_EQ(RecentFile(2), first);
    EXPECT_EQ(list.item(3)->toolTip(), second) << "rebuilt";

    for (const int row : {1, 2}) {
        emit list.itemActivated(list.item(row));
        EXPECT_EQ(Documents().size(), 1) << "row " << row;
    }
    boxes.file = first;
    Choose(u"List1"_s, u"Open Document"_s);
    EXPECT_THAT(Captions(), ElementsAre(second, first));
    EXPECT_THAT(boxes.dialogs, ElementsAre(u"Open"_s));
    boxes.file.clear();
    Choose(u"List1"_s, u"Open Document"_s);
    EXPECT_EQ(Documents().size(), 2);
}

TEST_F(FileCommands, WhatCannotBeReadIsSaid)
{
    const QString forbidden = Write(u"forbidden.html"_s, "secret");
    QFile::setPermissions(forbidden, {});
    Start();
    for (const QString &path : {folder.filePath(u"gone.html"_s), folder.path(), forbidden}) {
        SCOPED_TRACE(path.toStdString());
        boxes.asked.clear();
        // The administrator may read everything.
        const bool isAdministrator = geteuid() == 0;
        if (isAdministrator && seteuid(65534) != 0)
            FAIL();
        window->OpenPath(path);
        if (isAdministrator && seteuid(0) != 0)
            FAIL();
        Settle();
        ASSERT_EQ(boxes.asked.size(), 1);
        EXPECT_THAT(boxes.asked[0].toStdString(), testing::StartsWith("Can't open '"));
        EXPECT_EQ(Active().Caption(), path);
        EXPECT_EQ(Active().Source().Text(), QString());
        EXPECT_EQ(Active().Modyfied(), u"0"_s);
    }
}

// The empty page that stands for it must not take its place by a mere Save.
TEST_F(FileCommands, WhatCouldNotBeReadIsNotOverwrittenBySave)
{
    const QString path = folder.filePath(u"huge.html"_s);
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly) && file.resize(qint64(1100) << 20));
    file.close();
    Start();
    window->OpenPath(path);
    boxes.answer = Answer::No;
    Trigger(u"mnuFileSave"_s);
    EXPECT_EQ(QFileInfo(path).size(), qint64(1100) << 20);
}

TEST_F(FileCommands, Save)
{
    const QString page = Write(u"page.html"_s, "old");
    const QString chosen = folder.filePath(u"chosen.html"_s);
    struct Case
    {
        const char *row;
        QString command;
        bool untitled;
        QString file; // from the dialog
        QString dialog; // its title
        QString proposed;
        QString caption; // afterwards; empty: as before
        bool saved;
        qsizetype messages = 0;
    };
    const QString save = u"mnuFileSave"_s;
    const QString saveAs = u"mnuFileSaveAs"_s;
    const Case cases[] = {
        {"named", save, false, {}, {}, {}, page, true},
        {"untitled", save, true, chosen, u"Save"_s, u"*.html"_s, chosen, true},
        {"untitled, cancelled", save, true, {}, u"Save"_s, u"*.html"_s, {}, false},
        {"untitled, to a directory", save, true, u"/"_s, u"Save"_s, u"*.html"_s, {}, false, 1},
        {"as", saveAs, false, chosen, u"Save As"_s, page, chosen, true},
        {"untitled as", saveAs, true, chosen, u"Save As"_s, u"*.html"_s, chosen, true},
        {"as, cancelled", saveAs, false, {}, u"Save As"_s, page, page, false},
        {"as, to a directory", saveAs, false, u"/"_s, u"Save As"_s, page, page, false, 1},
        {"as, under the same name", saveAs, false, page, u"Save As"_s, page, page, true},
    };
    Start();
    for (const Case &row : cases) {
        SCOPED_TRACE(row.row);
        Write(u"page.html"_s, "old");
        QFile::remove(chosen);
        boxes.asked.clear();
        boxes.dialogs.clear();
        boxes.file = row.file;
        row.untitled ? void(window->LoadNewDoc()) : window->OpenPath(page);
        const QString before = Active().Caption();
        const QString recent = RecentFile(1);
        Type(Active().Source(), u"x"_s);
        Trigger(row.command);
        const QString caption = row.caption.isEmpty() ? before : row.caption;
        EXPECT_EQ(Active().Caption(), caption);
        EXPECT_EQ(Active().Modyfied(), row.saved ? u"0"_s : u"1"_s);
        EXPECT_EQ(window->ModifiedPanel(), row.saved ? QString() : u"Modified"_s);
        if (row.saved) {
            EXPECT_EQ(Read(caption), row.untitled ? "x" : "xold");
        }
        EXPECT_EQ(Find<QTabBar>(u"TabStrip1"_s).tabText(int(Documents().size()) - 1),
                  FileNameOf(caption));
        EXPECT_THAT(
            boxes.dialogs,
            ElementsAreArray(row.dialog.isEmpty() ? QStringList() : QStringList(row.dialog)));
        if (!row.dialog.isEmpty()) {
            EXPECT_EQ(boxes.proposed, row.proposed);
        }
        EXPECT_EQ(boxes.asked.size(), row.messages);
        EXPECT_EQ(RecentFile(1), recent) << "saving leaves the recent list alone";
    }
}

TEST_F(FileCommands, SaveInAnotherEncodingIsShown)
{
    Start();
    window->OpenPath(Write(u"page.html"_s, "caf\xe9"));
    const auto &panel = Find<QAbstractButton>(u"Encoding"_s);
    EXPECT_EQ(panel.text(), u"windows-1250"_s);
    Active().Source().SetSelText(u"\u4e2d"_s);
    Scripted().chooseBox = [](const QString &, const QStringList &) { return 0; };
    Trigger(u"mnuFileSave"_s);
    EXPECT_EQ(panel.text(), u"UTF-8"_s);
}

TEST_F(FileCommands, SaveAsTemplate)
{
    struct Case
    {
        const char *row;
        QString caption;
        QString proposed;
        QString input;
        QString saved; // in the folder of templates
        qsizetype asked = 1; // the input box, and perhaps a message
    };
    const Case cases[] = {
        {"capitalised", u"/x/my PAGE.v2.html"_s, u"My page"_s, u"A page"_s, u"A page"_s},
        {"trimmed", u"/x/index.HTML"_s, u"Home"_s, u"  Home "_s, u"Home"_s},
        {"cancelled", u"C:\\x\\INDEX"_s, u"Home"_s, {}, {}},
        {"blanks alone", u"/x/.htm"_s, {}, u"  "_s, {}},
        {"a path", u"/x/indexes.htm"_s, u"Indexes"_s, u"../out"_s, {}, 2},
        {"a backslash", u"/x/a.htm"_s, u"A"_s, u"a\\b"_s, {}, 2},
        {"the folder above", u"/x/a.htm"_s, u"A"_s, u".."_s, {}, 2},
    };
    Start();
    window->LoadNewDoc()->StartWith(u"text"_s, 0);
    QStringList rows;
    for (const Case &row : cases) {
        SCOPED_TRACE(row.row);
        boxes.asked.clear();
        boxes.input = row.input;
        Active().Caption = row.caption;
        Trigger(u"mnuSaveAsTemplate"_s);
        EXPECT_EQ(boxes.proposed, row.proposed);
        EXPECT_EQ(boxes.asked.size(), row.asked);
        if (!row.saved.isEmpty()) {
            rows.append(row.saved);
            EXPECT_EQ(Read(AppPath(QString(u"Templates/"_s + row.saved))), "text");
        }
        EXPECT_THAT(Rows(u"List3"_s), ElementsAreArray(rows));
        EXPECT_EQ(QDir(AppPath(u"Templates")).entryList(QDir::Files), rows);
        EXPECT_FALSE(QFile::exists(AppPath(u"out")));
    }
}

TEST_F(FileCommands, TemplatesStartUnsavedPagesAndAreDeleted)
{
    Start();
    window->LoadNewDoc()->StartWith(u"text"_s, 0);
    boxes.input = u"Mine"_s;
    Trigger(u"mnuSaveAsTemplate"_s);
    Choose(u"List3"_s, u"Mine"_s);
    EXPECT_EQ(Active().Source().Text(), u"text"_s);
    EXPECT_EQ(Active().Modyfied(), u"0"_s);
    EXPECT_TRUE(IsUntitled(Active().Caption()));

    auto &list = Find<QListWidget>(u"List3"_s);
    const QPoint place = list.visualItemRect(list.item(0)).center();
    boxes.asked.clear();
    for (const Answer answer : {Answer::No, Answer::Yes}) {
        boxes.answer = answer;
        emit list.customContextMenuRequested(place);
        EXPECT_EQ(list.count(), answer == Answer::No ? 1 : 0);
        EXPECT_EQ(QFile::exists(AppPath(u"Templates/Mine")), answer == Answer::No);
    }
    EXPECT_EQ(boxes.asked[0], u"Do you want to delete the template 'Mine'?"_s);
    emit list.customContextMenuRequested(place);
    EXPECT_EQ(boxes.asked.size(), 2) << "nothing is asked beside the rows";
}

TEST_F(FileCommands, DroppedFilesAreOpened)
{
    const QString a = Write(u"a.html"_s, "a");
    const QString b = Write(u"b & c.html"_s, "b");
    QDir(folder.path()).mkdir(u"inner"_s);
    const QString link = folder.filePath(u"page.LNK"_s);
    ASSERT_TRUE(QFile::link(b, link));
    const auto url = [](const QString &path) { return QUrl::fromLocalFile(path); };
    Start();
    Drop({url(a),
          url(folder.filePath(u"inner"_s)),
          url(folder.filePath(u"gone.html"_s)),
          QUrl(u"http://x/y.html"_s),
          url(link)});
    EXPECT_THAT(Captions(), ElementsAre(a, b));
    EXPECT_EQ(boxes.proposed, folder.filePath(u"inner/"_s)) << "a folder asks for a file of it";
    for (const frmDocument *document : Documents())
        EXPECT_EQ(document->Modyfied(), u"0"_s);
    EXPECT_EQ(RecentFile(1), QString()) << "dropping leaves the recent list alone";
    EXPECT_FALSE(DropFiles(*window, {QUrl(u"http://x/y.html"_s)})) << "nothing to open";
}

// A file manager that is told of a move removes the file.
TEST_F(FileCommands, DroppedFilesAreNeverMoved)
{
    QMimeData data;
    data.setUrls({QUrl::fromLocalFile(Write(u"a.html"_s, "a"))});
    Start();
    const Qt::DropActions actions = Qt::MoveAction | Qt::CopyAction;
    QDragEnterEvent enter({5, 5}, actions, &data, Qt::LeftButton, Qt::ShiftModifier);
    EXPECT_EQ(enter.proposedAction(), Qt::MoveAction);
    QCoreApplication::sendEvent(window.get(), &enter);
    QDropEvent drop({5, 5}, actions, &data, Qt::LeftButton, Qt::ShiftModifier);
    QCoreApplication::sendEvent(window.get(), &drop);
    EXPECT_EQ(drop.dropAction(), Qt::CopyAction);
    Settle();
    EXPECT_EQ(Active().Source().Text(), u"a"_s);
}

TEST_F(FileCommands, NewAndOpenPointToTheirLists)
{
    Set(u"ShowOnlyOnce/Open", u"0");
    Start();
    window->LoadNewDoc();
    Trigger(u"mnuToolboxs"_s);
    ASSERT_FALSE(Find<QWidget>(u"Toolbox"_s).isVisible());
    const std::pair<QString, QString> cases[]
        = {{u"mnuFileOpen"_s, u"List1"_s}, {u"mnuFileNew"_s, u"List2"_s}};
    for (const auto &[command, list] : cases) {
        Trigger(command);
        EXPECT_TRUE(Find<QWidget>(u"Toolbox"_s).isVisible());
        EXPECT_TRUE(Find<QAction>(u"mnuToolboxs"_s).isChecked());
        EXPECT_EQ(window->focusWidget()->objectName(), list);
        const QPalette plain = Find<QWidget>(u"NewDocument"_s).palette();
        const auto base
            = [&, list = list] { return Find<QListWidget>(list).palette().color(QPalette::Base); };
        EXPECT_NE(base(), plain.color(QPalette::Base)) << "stands out";
        EXPECT_TRUE(WaitFor([&] { return base() == plain.color(QPalette::Base); }));
    }
    ASSERT_EQ(boxes.asked.size(), 1) << "the notice is shown once for both";
    EXPECT_EQ(boxes.asked[0],
              u"Brenix 2 does not open documents the standard way. If you click on open from the "
              "file menu, the toolbox will be opened and the 'New document' layer will be visible. "
              "From this box you can open documents (from the lists).\n\n"
              "This dialog will not showed again"_s);
    EXPECT_EQ(Get(u"ShowOnlyOnce/Open"), u"1"_s);
}

} // namespace
