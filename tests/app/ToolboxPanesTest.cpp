#include "app/ErrorCheckerPane.h"
#include "app/MLListBox.h"
#include "checks/frmSearchResults.h"
#include "tests/app/MainWindowFixture.h"
#include "tests/support/MemoryDocument.h"

#include <QApplication>
#include <QCheckBox>
#include <QClipboard>
#include <QComboBox>
#include <QImage>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMenu>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTextDocument>
#include <QToolButton>

using namespace brenix;
using namespace Qt::StringLiterals;
using testing::ElementsAre;

namespace {

const std::tuple<QString, QString, QString> Panes[] = {
    {u"mnuActiveDoc"_s, u"ADocuments"_s, u"Active Documents"_s},
    {u"mnuCharacter"_s, u"Chars"_s, u"Character Map"_s},
    {u"mnuClipboard"_s, u"Board"_s, u"Clipboard"_s},
    {u"mnuToolBoxErrorChecker"_s, u"ErrorChecker"_s, u"Error Checker"_s},
    {u"mnuToolBoxNewDocument"_s, u"NewDocument"_s, u"New Document"_s},
    {u"mnuObjects"_s, u"Objects"_s, u"Objects"_s},
    {u"mnuToolBoxProject"_s, u"Project"_s, u"Project"_s},
    {u"mnuToolBoxSearch"_s, u"Search"_s, u"Search"_s},
    {u"mnuToolBoxTagList"_s, u"Taglist"_s, u"Tag List"_s},
};

class ToolboxPanesTest : public MainWindowFixture
{
protected:
    ToolboxPanesTest() { QGuiApplication::clipboard()->clear(); }

    void StartWith(const QString &text)
    {
        Start();
        window->LoadNewDoc()->StartWith(text, 0);
        Settle();
    }
    QWidget *Pane(const QString &name) { return window->findChild<QWidget *>(name); }
    QWidget &Show(const QString &command)
    {
        Trigger(command);
        for (const auto &[pane, name, title] : Panes) {
            if (pane == command)
                return *Pane(name);
        }
        qFatal("no such pane");
    }
    template <typename Type> static Type &In(QWidget &pane, const QString &name)
    {
        auto *found = pane.findChild<Type *>(name);
        if (!found)
            qFatal("no %s", qPrintable(name));
        return *found;
    }
    static QStringList Rows(QAbstractItemView &list)
    {
        QStringList rows;
        for (int row = 0; row < list.model()->rowCount(); ++row)
            rows.append(list.model()->index(row, 0).data().toString());
        return rows;
    }
    static void Enter(QAbstractItemView &list, int row)
    {
        list.setCurrentIndex(list.model()->index(row, 0));
        Press(list, Qt::Key_Return);
        Settle();
    }
    /// For the next dialog that comes up.
    void AnswerDialog(std::function<void(QWidget &)> answer)
    {
        m_dialogs.callOnTimeout(&m_dialogs, [this, answer] {
            if (QWidget *dialog = QApplication::activeModalWidget()) {
                m_dialogs.stop();
                answer(*dialog);
            }
        });
        m_dialogs.start(1);
    }
    void Copy(const QString &text)
    {
        QGuiApplication::clipboard()->setText(text);
        Settle();
    }
    void LoadClipboard(const QByteArray &bytes)
    {
        boxes.file = Write(u"x.clp"_s, bytes);
        Trigger(u"LoadClipboard"_s);
    }

private:
    QTimer m_dialogs;
};

TEST_F(ToolboxPanesTest, AreMadeWhenFirstShown)
{
    Start();
    Trigger(u"mnuToolboxs"_s);
    for (const auto &[command, name, title] : Panes) {
        SCOPED_TRACE(command.toStdString());
        EXPECT_EQ(Pane(name) != nullptr, name == u"NewDocument");
        Trigger(command);
        Find<QAction>(u"mnuToolboxs"_s).trigger();
        Find<QAction>(u"mnuToolboxs"_s).trigger();
        for (const auto &[otherCommand, other, otherTitle] : Panes) {
            EXPECT_EQ(Pane(other) && Pane(other)->isVisible(), other == name);
            EXPECT_EQ(Find<QAction>(otherCommand).isChecked(), other == name);
        }
        EXPECT_EQ(In<QLabel>(Find<QWidget>(u"Toolbox"_s), u"Label1"_s).text(), title);
    }
}

TEST_F(ToolboxPanesTest, ListsInsertIntoThePage)
{
    struct Case
    {
        QString command;
        QString list;
        int row;
        QString rowText;
        QString page;
    };
    const Case cases[] = {
        {u"mnuToolBoxTagList"_s, u"List4"_s, 4, u"<A></A>"_s, u"<a>x</a>y"_s},
        {u"mnuToolBoxTagList"_s, u"List4"_s, 20, u"<BR>"_s, u"<br>y"_s},
        {u"mnuCharacter"_s, u"List7"_s, 0, u"\u00A1 - &iexcl;"_s, u"&iexcl;y"_s},
    };
    StartWith(u"xy"_s);
    for (const Case &row : cases) {
        SCOPED_TRACE(row.rowText.toStdString());
        Active().StartWith(u"xy"_s, 0);
        Active().Source().SetSelLength(1);
        auto &list = In<QListWidget>(Show(row.command), row.list);
        EXPECT_EQ(Rows(list).value(row.row), row.rowText);
        Enter(list, row.row);
        EXPECT_EQ(Active().Source().Text(), row.page);
        EXPECT_TRUE(Active().Source().hasFocus()) << "to type on in what was inserted";
    }
    Stop();
    Start();
    for (const Case &row : cases)
        Enter(In<QListWidget>(Show(row.command), row.list), row.row);
    EXPECT_EQ(Documents().size(), 0) << "and nothing else happened";
}

TEST_F(ToolboxPanesTest, CharactersAreFound)
{
    StartWith({});
    QWidget &pane = Show(u"mnuCharacter"_s);
    auto &find = In<QLineEdit>(pane, u"Find"_s);
    find.setText(u"mdash"_s);
    EXPECT_THAT(Rows(In<QListWidget>(pane, u"List7"_s)), ElementsAre(u"\u2014 - &mdash;"_s));
    Press(find, Qt::Key_Return);
    EXPECT_EQ(Active().Source().Text(), u"&mdash;"_s);
    find.setText(u"no such"_s);
    Press(find, Qt::Key_Return);
    EXPECT_EQ(Active().Source().Text(), u"&mdash;"_s);
    find.clear();
    EXPECT_EQ(Rows(In<QListWidget>(pane, u"List7"_s)).size(), 91);
}

TEST_F(ToolboxPanesTest, TipsShowTagsAsTheyAre)
{
    Start();
    const auto shown = [](const QListWidgetItem &item) {
        QTextDocument tip;
        Qt::mightBeRichText(item.toolTip()) ? tip.setHtml(item.toolTip())
                                            : tip.setPlainText(item.toolTip());
        return tip.toPlainText();
    };
    const auto &tags = In<QListWidget>(Show(u"mnuToolBoxTagList"_s), u"List4"_s);
    for (int row = 0; row < tags.count(); ++row)
        EXPECT_EQ(shown(*tags.item(row)), tags.item(row)->text());
    const QString line = u"line 1 column 2 - Warning: <img> lacks \"alt\" attribute"_s;
    auto &report = In<QListWidget>(Show(u"mnuToolBoxErrorChecker"_s), u"List5"_s);
    static_cast<ErrorCheckerPane *>(Pane(u"ErrorChecker"_s))->AddLine(line);
    EXPECT_EQ(shown(*report.item(0)), line);
}

TEST_F(ToolboxPanesTest, TheDialectIsTheWindows)
{
    Start();
    EXPECT_EQ(window->Dialect(), u"All HTML"_s);
    QWidget &pane = Show(u"mnuToolBoxTagList"_s);
    EXPECT_EQ(Rows(In<QListWidget>(pane, u"List4"_s)).size(), 111);
    In<QComboBox>(pane, u"Filter"_s).setCurrentText(u"Cold Fusion"_s);
    EXPECT_EQ(Rows(In<QListWidget>(pane, u"List4"_s)).size(), 45);
    EXPECT_EQ(window->Dialect(), u"Cold Fusion"_s);
}

TEST_F(ToolboxPanesTest, TextsAreTranslatedIntoCharcode)
{
    StartWith({});
    AnswerDialog([](QWidget &dialog) {
        In<QPlainTextEdit>(dialog, u"Text1"_s).setPlainText(u"a\u00A0\nb"_s);
        In<QPushButton>(dialog, u"Command1"_s).click();
    });
    In<QToolButton>(Show(u"mnuCharacter"_s), u"Button1_4"_s).click();
    EXPECT_EQ(Active().Source().Text(), u"&#97;&#160;&#13;&#10;&#98;"_s);
}

TEST_F(ToolboxPanesTest, TheClipboardIsRecorded)
{
    StartWith(u"x"_s);
    Active().Source().AddUndo();
    Copy(u"one"_s);
    Copy(u"two\n\tlines"_s);
    Copy(u"two\n\tlines"_s);
    QGuiApplication::clipboard()->setImage(QImage(2, 2, QImage::Format_RGB32));
    Settle();
    auto &list = In<MLListBox>(Show(u"mnuClipboard"_s), u"List8"_s);
    EXPECT_THAT(Rows(list), ElementsAre(u"two\n lines"_s, u"one"_s));

    Click(*list.viewport(), list.visualRect(list.model()->index(1, 0)).center());
    EXPECT_EQ(QGuiApplication::clipboard()->text(), u"one"_s);
    EXPECT_EQ(Rows(list).size(), 2) << "a double click would meet another row";
    EXPECT_TRUE(WaitFor([&] { return Rows(list).size() == 3; }));
    Enter(list, 1);
    EXPECT_EQ(Active().Source().Text(), u"two\r\n\tlinesx"_s)
        << "the whole text, not what is shown";
    Trigger(u"mnuEditUndo"_s);
    EXPECT_EQ(Active().Source().Text(), u"x"_s);

    Press(list, Qt::Key_Delete);
    In<QToolButton>(*Pane(u"Board"_s), u"Button1_1"_s).click();
    EXPECT_EQ(Rows(list).size(), 1);
    auto &clear = In<QToolButton>(*Pane(u"Board"_s), u"Button1_0"_s);
    for (const Answer answer : {Answer::No, Answer::Yes}) {
        boxes.answer = answer;
        clear.click();
        EXPECT_EQ(Rows(list).size(), answer == Answer::No ? 1 : 0);
    }
    EXPECT_EQ(boxes.asked.constLast(),
              u"Are you sure you want to completly clear the clipboard?"_s);
}

TEST_F(ToolboxPanesTest, ClipboardFiles)
{
    Start();
    Copy(u"a,b"_s);
    Copy(u"\u0159"_s);
    auto &list = In<MLListBox>(Show(u"mnuClipboard"_s), u"List8"_s);
    boxes.file = folder.filePath(u"saved.clp"_s);
    Trigger(u"SaveClipboard"_s);
    EXPECT_EQ(Read(boxes.file), QByteArray("\u0159\r\na,b\r\n"));
    Trigger(u"LoadClipboard"_s);
    EXPECT_THAT(Rows(list), ElementsAre(u"b"_s, u"a"_s, u"\u0159"_s, u"\u0159"_s, u"a,b"_s));
    for (const QByteArray &bytes : {QByteArray(), QByteArray("\0\xFF\r\n\"", 5)})
        LoadClipboard(bytes);
    LoadClipboard(QByteArray(10'000'000, 'x') + "\r\nlast");
    EXPECT_EQ(Rows(list).first(), u"last"_s);
    EXPECT_LT(Rows(list).value(1).size(), 1000);
    LoadClipboard(QByteArray("1,").repeated(2 * MLItems::MostItems));
    EXPECT_EQ(Rows(list).size(), MLItems::MostItems);
    EXPECT_EQ(boxes.asked, QStringList());
    boxes.file = folder.path();
    Trigger(u"LoadClipboard"_s);
    Trigger(u"SaveClipboard"_s);
    EXPECT_EQ(boxes.asked.size(), 2) << "a folder is no file";
}

TEST_F(ToolboxPanesTest, ProjectFollowsPageAndFolder)
{
    Start();
    const auto open = [this](const QString &name) {
        QDir(folder.path()).mkpath(QFileInfo(folder.filePath(name)).path());
        window->OpenPath(Write(name, "text"));
        Settle();
    };
    open(u"a/one.html"_s);
    auto &files = In<QListWidget>(Show(u"mnuToolBoxProject"_s), u"listView1"_s);
    EXPECT_THAT(Rows(files), ElementsAre(u"one.html"_s));
    Write(u"a/Logo.PNG"_s, {});
    EXPECT_TRUE(WaitFor([&] { return Rows(files).size() == 2; }));
    Enter(files, 0);
    EXPECT_EQ(Active().Source().Text(), u"<img src = \"logo.png\">text"_s);
    Show(u"mnuToolBoxSearch"_s);
    open(u"b/two.html"_s);
    Show(u"mnuToolBoxProject"_s);
    EXPECT_THAT(Rows(files), ElementsAre(u"two.html"_s));
    boxes.answer = Answer::No;
    Trigger(u"mnuFileClose"_s);
    Trigger(u"mnuFileClose"_s);
    EXPECT_EQ(Rows(files), QStringList());
}

TEST_F(ToolboxPanesTest, ActiveDocumentsAreListed)
{
    StartWith({});
    window->LoadNewDoc();
    auto &list = In<QListWidget>(Show(u"mnuActiveDoc"_s), u"List9"_s);
    window->LoadNewDoc();
    Settle();
    EXPECT_THAT(Rows(list),
                ElementsAre(u"Document1.html"_s, u"Document2.html"_s, u"Document3.html"_s));
    EXPECT_EQ(list.currentRow(), 2);
    Click(*list.viewport(), list.visualItemRect(list.item(1)).center());
    EXPECT_EQ(window->ActiveForm(), Documents()[1]);
    Enter(list, 0);
    EXPECT_EQ(window->ActiveForm(), Documents()[0]);
}

TEST_F(ToolboxPanesTest, SearchFindsAndLists)
{
    StartWith(u"one two one"_s);
    CodeHighlight &source = Active().Source();
    Trigger(u"mnuSearchNext"_s);
    QWidget &pane = *Pane(u"Search"_s);
    ASSERT_TRUE(pane.isVisible()) << "nothing to search for yet";
    auto &text = In<QLineEdit>(pane, u"Text1"_s);
    EXPECT_FALSE(In<QPushButton>(pane, u"Command1"_s).isEnabled());
    Type(text, u"on"_s);
    EXPECT_EQ(source.SelText(), u"on"_s);
    EXPECT_EQ(source.SelStart(), 0);
    EXPECT_TRUE(text.hasFocus());
    Type(text, u"e"_s);

    In<QPushButton>(pane, u"Command4"_s).click();
    EXPECT_FALSE(pane.isVisible());
    QPointer<frmSearchResults> results = window->findChild<frmSearchResults *>();
    auto &hits = In<QListView>(*results, u"List1"_s);
    EXPECT_THAT(Rows(hits), ElementsAre(u"Char: 0"_s, u"Char: 8"_s));
    Enter(hits, 1);
    EXPECT_EQ(source.SelStart(), 8);

    Trigger(u"mnuEditmnuEditSearch"_s);
    EXPECT_EQ(text.text(), u"one"_s);
    text.setText(u"o"_s);
    In<QPushButton>(pane, u"Command1"_s).click();
    EXPECT_THAT(Rows(hits), ElementsAre(u"Char: 0"_s, u"Char: 6"_s, u"Char: 8"_s));
    Trigger(u"mnuSearchNext"_s);
    EXPECT_THAT(boxes.asked, ElementsAre(u"Can't find \"o\""_s, u"Can't find 'o'"_s));
    Active().Status = u"Preview"_s;
    Enter(hits, 0);
    EXPECT_EQ(Active().Status(), u"HTML"_s) << "what is found is to be seen";
    results->close();
    Settle();
    EXPECT_FALSE(results);
    EXPECT_TRUE(pane.isVisible());
}

TEST_F(ToolboxPanesTest, PastedLinesAreFoundAndReplaced)
{
    StartWith(u"a\r\nb\r\na\r\nb"_s);
    QWidget &pane = Show(u"mnuToolBoxSearch"_s);
    Copy(u"a\nb"_s);
    In<QLineEdit>(pane, u"Text1"_s).paste();
    EXPECT_EQ(Active().Source().SelLength(), 4);
    Copy(u"c\nd"_s);
    In<QLineEdit>(pane, u"Text2"_s).paste();
    In<QCheckBox>(pane, u"Check1"_s).setChecked(true);
    In<QPushButton>(pane, u"Command2"_s).click();
    EXPECT_EQ(Active().Source().Text(), u"c\r\nd\r\nc\r\nd"_s);
}

TEST_F(ToolboxPanesTest, LiveSearchIsKept)
{
    for (const QString &stored : {u"1"_s, u"0"_s}) {
        Start();
        auto &live = In<QCheckBox>(Show(u"mnuToolBoxSearch"_s), u"Check3"_s);
        EXPECT_EQ(live.isChecked(), stored == u"1");
        live.setChecked(false);
        Stop();
        EXPECT_EQ(Get(u"Settings/LiveSearch"), u"0"_s);
    }
}

TEST_F(ToolboxPanesTest, ObjectsRunTheirCommands)
{
    StartWith({});
    auto &objects = In<QListWidget>(Show(u"mnuObjects"_s), u"Objects1"_s);
    const auto enabled = [&](const QString &caption) {
        return bool(objects.findItems(caption, Qt::MatchExactly).value(0)->flags()
                    & Qt::ItemIsEnabled);
    };
    EXPECT_TRUE(enabled(u"Background"_s));
    EXPECT_FALSE(enabled(u"Table row"_s)) << "the design view is not shown";
    QString opened;
    AnswerDialog([&opened](QWidget &dialog) {
        opened = dialog.objectName();
        dialog.close();
    });
    Enter(objects, int(Rows(objects).indexOf(u"Background"_s)));
    EXPECT_TRUE(WaitFor([&] { return opened == u"frmBackground"; }));
    Trigger(u"mnuFileClose"_s);
    EXPECT_FALSE(enabled(u"Background"_s));
}

TEST(ErrorCheckerPane, LinesLeadToTheirPlaces)
{
    MemoryDocument page;
    page.source.SetText(u"one\r\ntwo\r\nthree"_s);
    MemoryDocument *active = nullptr;
    ErrorCheckerPane pane([&] { return active; });
    EXPECT_FALSE(pane.CheckButton().isEnabled());
    pane.SetCheck([&] { pane.AddLine(u"line 3 column 2 - Warning: x"_s); });
    pane.CheckButton().click();
    auto &report = *pane.findChild<QListWidget *>(u"List5"_s);
    emit report.itemClicked(report.item(0));
    active = &page;
    emit report.itemClicked(report.item(0));
    EXPECT_EQ(page.source.SelStart(), 11);
    EXPECT_TRUE(page.source.hasFocus);
}

} // namespace
