#include "tests/app/MainWindowFixture.h"

#include <QApplication>
#include <QClipboard>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QMdiArea>
#include <QMenu>
#include <QMenuBar>
#include <QStatusBar>
#include <QToolBar>

using namespace brenix;
using namespace Qt::StringLiterals;
using testing::ElementsAre;
using testing::ElementsAreArray;

namespace {

class MainWindow : public MainWindowFixture
{
protected:
    QMdiArea &Area() { return Find<QMdiArea>(u"MDIForm"_s); }
    QTabBar &Tabs() { return Find<QTabBar>(u"TabStrip1"_s); }
    QStringList TabTexts()
    {
        QStringList texts;
        for (int i = 0; i < Tabs().count(); ++i)
            texts.append(Tabs().tabText(i));
        return texts;
    }
    void OpenPages(const QStringList &names)
    {
        for (const QString &name : names) {
            QDir(folder.path()).mkpath(QFileInfo(folder.filePath(name)).path());
            window->OpenPath(Write(name, "text"));
        }
    }
    void TypeInto(int document, const QString &text)
    {
        Type(Documents()[document]->Source(), text);
    }
    QString Picture(); // what an author could see, in words

    QStringList m_opened; // dialogs that came up
};

TEST_F(MainWindow, WithoutADocument)
{
    const QString commands[] = {u"mnuFileClose"_s,
                                u"mnuFileSave"_s,
                                u"mnuFileSaveAs"_s,
                                u"mnuSaveAsTemplate"_s,
                                u"mnuEditPaste"_s,
                                u"mnuViewRefresh"_s,
                                u"mnuHtmlMode"_s,
                                u"mnuSplitV"_s,
                                u"mnuWindowCascade"_s};
    const auto reachable = [this](const QString &name) {
        for (const QObject *at = &Find<QAction>(name); at; at = at->parent()) {
            const auto *menu = qobject_cast<const QMenu *>(at);
            const auto *action = menu ? menu->menuAction() : qobject_cast<const QAction *>(at);
            if (action && !action->isEnabled())
                return false;
        }
        return true;
    };
    const auto check = [&](bool open) {
        for (const QString &name : commands)
            EXPECT_EQ(reachable(name), open) << name.toStdString();
        for (const QString &name : {u"mnuFileNew"_s, u"mnuFileOpen"_s, u"mnuFileExit"_s})
            EXPECT_TRUE(reachable(name)) << name.toStdString();
        EXPECT_EQ(Find<QToolBar>(u"NoWindows"_s).isVisible(), !open);
        EXPECT_EQ(Find<QToolBar>(u"Toolbar1"_s).isVisible(), open);
        EXPECT_EQ(Find<QToolBar>(u"Picture1"_s).isVisible(), open);
        EXPECT_EQ(Tabs().count(), open ? 1 : 0);
    };
    QGuiApplication::clipboard()->setText(u"clip"_s);
    Start();
    check(false);
    Find<QToolBar>(u"NoWindows"_s).actions().first()->trigger();
    check(true);
    TypeInto(0, u"x"_s);
    boxes.answer = Answer::No;
    Trigger(u"mnuFileClose"_s);
    EXPECT_EQ(window->ActiveForm(), nullptr);
    EXPECT_EQ(window->ModifiedPanel(), QString());
    EXPECT_EQ(window->windowTitle(), u"Brenix"_s);
    check(false);
    window->LoadNewDoc();
    EXPECT_TRUE(Active().Caption().endsWith(u"Document2.html"_s)) << "numbers are not used again";
}

// Captions that are given as they are may clash; a clash that is not known is a slip.
TEST_F(MainWindow, AccessKeysAreUnique)
{
    const QStringList known{u"mnuEdit T"_s,
                            u"mnuEdit P"_s,
                            u"mnuEdit C"_s,
                            u"mnuView B"_s,
                            u"mnuInsert F"_s,
                            u"mnuInsert R"_s,
                            u"mnuInsert C"_s,
                            u"mnuTools C"_s,
                            u"mnuSplit S"_s};
    Start();
    const auto check = [&](const QString &name, const QList<QAction *> &actions) {
        QString keys;
        for (const QAction *action : actions) {
            const QKeySequence key = QKeySequence::mnemonic(action->text());
            if (key.isEmpty())
                continue;
            const QChar letter = QChar(char16_t(key[0].key()));
            if (keys.contains(letter) && !known.contains(name + u' ' + letter))
                ADD_FAILURE() << name.toStdString() << ": " << action->text().toStdString();
            keys.append(letter);
        }
    };
    check(u"the bar"_s, window->menuBar()->actions());
    for (const QMenu *menu : window->menuBar()->findChildren<QMenu *>())
        check(menu->objectName(), menu->actions());
}

QString MainWindow::Picture()
{
    QStringList words = boxes.asked + boxes.dialogs + m_opened;
    for (frmDocument *document : Documents()) {
        const CodeHighlight &source = document->Source();
        const QWidget *frame = document->parentWidget();
        const QRect place = frame->geometry();
        words += {
            document->Caption(),
            source.Text(),
            document->Status(),
            document->SplitHV(),
            document->Modyfied(),
            u"%1 %2 %3"_s.arg(source.SelStart()).arg(source.SelLength()).arg(document->KeyDone),
            u"%1 %2 %3 %4"_s.arg(place.x()).arg(place.y()).arg(place.width()).arg(place.height())};
    }
    for (const QString &part : {u"Toolbar1"_s, u"Toolbox"_s, u"Picture4"_s})
        words += Find<QWidget>(part).isVisible() ? u"shown"_s : u"hidden"_s;
    words += window->statusBar()->isVisible() ? u"shown"_s : u"hidden"_s;
    words += Active().Caption();
    words += QGuiApplication::clipboard()->text();
    words += window->focusWidget() ? window->focusWidget()->objectName() : QString();
    return words.join(u'\n');
}

TEST_F(MainWindow, CommandsDoSomething)
{
    const QStringList commands
        = QString(u"mnuFileNew mnuFileOpen mnuFileClose mnuFileSave mnuFileSaveAs "
                  "mnuSaveAsTemplate mnuEditUndo mnuEditCut mnuEditmnuEditRedo mnuEditCopy "
                  "mnuEditPaste mnuDelete mnuSelectAll mnuViewToolbar mnuViewStatusBar "
                  "mnuToolboxs mnuTabs mnuHtmlMode mnuPreviewMode mnuSplitMode mnuViewRefresh "
                  "mnuSplitV mnuSplitH mnuWindowNewWindow mnuWindowTileVertical "
                  "mnuWindowTileHorizontal mnuWindowCascade mnuWindowArrangeIcons mnuHelpTip"_s)
              .split(u' ');
    Start();
    OpenPages({u"a.html"_s, u"b.html"_s, u"c.html"_s});
    boxes.answer = Answer::Cancel;
    QTimer closer;
    closer.callOnTimeout([this] {
        if (QWidget *dialog = QApplication::activeModalWidget()) {
            m_opened.append(dialog->objectName());
            dialog->close();
        }
    });
    closer.start(1);
    for (const QString &command : commands) {
        SCOPED_TRACE(command.toStdString());
        // Something to undo, to redo, to cut and to save.
        CodeHighlight &source = Active().Source();
        for (const QString &text : {u"one"_s, u"two"_s, u"three"_s}) {
            source.SetText(text);
            source.AddUndo();
        }
        source.Undo();
        source.SetSelStart(0);
        source.SetSelLength(1);
        QGuiApplication::clipboard()->setText(u"clip"_s);
        if (command == u"mnuWindowArrangeIcons") {
            Documents()[1]->parentWidget()->showMinimized();
            Documents()[1]->parentWidget()->move(50, 50);
        }
        if (command == u"mnuViewRefresh")
            Active().KeyDone = false;
        source.setFocus();
        const QString before = Picture();
        EXPECT_TRUE(Find<QAction>(command).isEnabled());
        Trigger(command);
        EXPECT_NE(Picture(), before);
    }
}

TEST_F(MainWindow, EditCommands)
{
    struct Case
    {
        const char *row;
        QString command;
        QString text; // with the selection in brackets, as below
        QString clipboard;
        QString modified;
    };
    const Case cases[] = {{"cut", u"mnuEditCut"_s, u"one[]three"_s, u" two "_s, u"1"_s},
                          {"copy", u"mnuEditCopy"_s, u"one[ two ]three"_s, u" two "_s, u"0"_s},
                          {"paste", u"mnuEditPaste"_s, u"onea\r\nb[]three"_s, u"a\nb"_s, u"1"_s},
                          {"delete", u"mnuDelete"_s, u"one[]three"_s, u"a\nb"_s, u"1"_s},
                          {"all", u"mnuSelectAll"_s, u"[one two three]"_s, u"a\nb"_s, u"0"_s}};
    Start();
    window->LoadNewDoc();
    for (const Case &row : cases) {
        SCOPED_TRACE(row.row);
        CodeHighlight &source = Active().Source();
        Active().StartWith(u"one two three"_s, 3);
        source.AddUndo();
        source.SetSelLength(5);
        Active().Modyfied = u"0"_s;
        QGuiApplication::clipboard()->setText(u"a\nb"_s);
        Trigger(row.command);
        QString text = source.Text();
        text.insert(source.SelStart() + source.SelLength(), u']');
        text.insert(source.SelStart(), u'[');
        EXPECT_EQ(text, row.text);
        EXPECT_EQ(QGuiApplication::clipboard()->text(), row.clipboard);
        EXPECT_EQ(Active().Modyfied(), row.modified);
        if (row.command == u"mnuEditCut" || row.command == u"mnuEditPaste") {
            const QString after = source.Text();
            Trigger(u"mnuEditUndo"_s);
            EXPECT_EQ(source.Text(), u"one two three"_s) << "the change is one undo step";
            Trigger(u"mnuEditmnuEditRedo"_s);
            EXPECT_EQ(source.Text(), after);
        }
    }
}

TEST_F(MainWindow, BarsFollowTheView)
{
    Start();
    OpenPages({u"a.html"_s});
    struct Case
    {
        QString command;
        bool source;
        bool preview;
    };
    const Case cases[] = {{u"mnuHtmlMode"_s, true, false},
                          {u"mnuPreviewMode"_s, false, true},
                          {u"mnuSplitMode"_s, true, false}};
    for (const Case &row : cases) {
        SCOPED_TRACE(row.command.toStdString());
        Trigger(row.command);
        EXPECT_EQ(Find<QWidget>(u"sbStatusBar"_s).isVisible(), row.source);
        EXPECT_EQ(Find<QWidget>(u"SB2"_s).isVisible(), row.preview);
        EXPECT_EQ(Find<QWidget>(u"Picture1"_s).isVisible(), row.source);
        emit Find<QMenu>(u"mnuView"_s).aboutToShow();
        for (const Case &other : cases)
            EXPECT_EQ(Find<QAction>(other.command).isChecked(), other.command == row.command);
    }
    EXPECT_EQ(Get(u"Settings/Mode"), u"Split"_s);
}

TEST_F(MainWindow, CaretAndChangeAreShown)
{
    Start();
    window->LoadNewDoc()->StartWith(u"one\r\ntwo"_s, 6);
    Settle();
    auto &bar = Find<QWidget>(u"sbStatusBar"_s);
    const auto panel
        = [&bar](const QString &name) { return bar.findChild<QLabel *>(name)->text(); };
    EXPECT_EQ(panel(u"Panel1"_s), u"Line: 2"_s);
    EXPECT_EQ(panel(u"Panel2"_s), u"Character: 6"_s);
    EXPECT_EQ(panel(u"Panel3"_s), QString());
    TypeInto(0, u"x"_s);
    EXPECT_EQ(panel(u"Panel2"_s), u"Character: 7"_s);
    EXPECT_EQ(panel(u"Panel3"_s), u"Modified"_s);
    window->LoadNewDoc();
    EXPECT_EQ(panel(u"Panel3"_s), QString());
    Area().setActiveSubWindow(Area().subWindowList().first());
    EXPECT_EQ(panel(u"Panel3"_s), u"Modified"_s);
}

TEST_F(MainWindow, TabsFollowTheDocuments)
{
    Set(u"Settings/Tabs", u"1");
    Start();
    EXPECT_TRUE(Find<QAction>(u"mnuTabs"_s).isChecked());
    OpenPages({u"a/page.html"_s, u"b/other.html"_s, u"c/page.html"_s});
    Settle();
    EXPECT_THAT(TabTexts(), ElementsAre(u"page.html"_s, u"other.html"_s, u"page.html"_s));
    struct Case
    {
        int clicked;
        int active;
    };
    for (const Case &row : {Case{1, 1}, Case{0, 0}, Case{1, 1}, Case{2, 0}, Case{2, 0}}) {
        Click(Tabs(), Tabs().tabRect(row.clicked).center());
        Settle();
        EXPECT_EQ(window->ActiveForm(), Documents()[row.active]) << row.clicked;
        EXPECT_EQ(Tabs().currentIndex(), row.active) << "the tab of the active document";
    }
    Trigger(u"mnuFileClose"_s);
    EXPECT_THAT(TabTexts(), ElementsAre(u"other.html"_s, u"page.html"_s));
    EXPECT_EQ(Tabs().currentIndex(), Documents().indexOf(window->ActiveForm()));
    Trigger(u"mnuTabs"_s);
    EXPECT_FALSE(Find<QWidget>(u"Picture4"_s).isVisible());
    EXPECT_EQ(Get(u"Settings/Tabs"), u"0"_s);
}

TEST_F(MainWindow, TabShowsAnAmpersand)
{
    Start();
    OpenPages({u"a & b.html"_s});
    EXPECT_EQ(Tabs().tabText(0), u"a && b.html"_s);
}

TEST_F(MainWindow, WindowMenuListsTheDocuments)
{
    Start();
    OpenPages({u"a & b.html"_s, u"c.html"_s});
    auto &menu = Find<QMenu>(u"mnuWindow"_s);
    emit menu.aboutToShow();
    emit menu.aboutToShow(); // the list is not doubled
    const QList<QAction *> items = menu.actions().last(2);
    EXPECT_EQ(items[0]->text(), u"&1 "_s + folder.filePath(u"a && b.html"_s));
    EXPECT_EQ(items[1]->text(), u"&2 "_s + folder.filePath(u"c.html"_s));
    EXPECT_TRUE(menu.actions().at(menu.actions().size() - 3)->isSeparator());
    EXPECT_FALSE(items[0]->isChecked());
    EXPECT_TRUE(items[1]->isChecked());
    items[0]->trigger();
    EXPECT_EQ(Active().Caption(), folder.filePath(u"a & b.html"_s));
}

TEST_F(MainWindow, WindowsAreTiled)
{
    Start();
    OpenPages({u"a.html"_s, u"b.html"_s, u"c.html"_s});
    const auto places = [this] {
        QList<QRect> rects;
        for (const frmDocument *document : Documents())
            rects.append(document->parentWidget()->geometry());
        return rects;
    };
    const QSize whole = Area().viewport()->size();
    Trigger(u"mnuWindowTileHorizontal"_s);
    QRect covered;
    for (const QRect &place : places()) {
        EXPECT_EQ(place.width(), whole.width());
        EXPECT_FALSE(covered.intersects(place));
        covered |= place;
    }
    Trigger(u"mnuWindowTileVertical"_s);
    covered = {};
    for (const QRect &place : places()) {
        EXPECT_EQ(place.height(), whole.height());
        EXPECT_FALSE(covered.intersects(place));
        covered |= place;
    }
    EXPECT_TRUE(Area().viewport()->rect().contains(covered));
}

TEST_F(MainWindow, ScreenSizes)
{
    Start();
    OpenPages({u"a.html"_s});
    auto &screens = Find<QComboBox>(u"Combo1"_s);
    const std::pair<QString, QSize> cases[] = {{u"544x378"_s, {544, 378}},
                                               {u"1280x1024"_s, {1280, 1024}},
                                               {u"Fit Screen"_s, {}},
                                               {u"640x480"_s, {640, 480}}};
    for (const auto &[screen, size] : cases) {
        emit screens.textActivated(screen);
        const bool fits = size.isEmpty();
        EXPECT_EQ(Active().parentWidget()->isMaximized(), fits) << screen.toStdString();
        if (!fits) {
            EXPECT_EQ(Active().size(), size + QSize(0, Active().ViewBarHeight()));
        }
    }
}

TEST_F(MainWindow, AddressBelongsToTheDocument)
{
    Start();
    OpenPages({u"a.html"_s, u"b.html"_s});
    auto &address = Find<QComboBox>(u"Combo2"_s);
    EXPECT_FALSE(address.isEnabled()) << "local at first";
    for (QAction *action : Find<QToolBar>(u"Toolbar3"_s).actions()) {
        if (action->text() == u"Server")
            action->trigger();
    }
    EXPECT_TRUE(address.isEnabled());
    EXPECT_EQ(Active().Status(), u"Preview"_s);
    EXPECT_EQ(address.currentText(), u"http://localhost/b.html"_s);
    EXPECT_EQ(Active().lblAddress(), u"http://localhost/b.html"_s)
        << "what the box shows is kept for the page";

    Trigger(u"mnuHtmlMode"_s);
    address.setEditText({});
    Type(*address.lineEdit(), u"x/y"_s);
    EXPECT_EQ(Active().lblAddress(), u"x/y"_s);
    Area().setActiveSubWindow(Area().subWindowList().first());
    EXPECT_EQ(address.currentText(), QString());
    Area().setActiveSubWindow(Area().subWindowList().last());
    EXPECT_EQ(address.currentText(), u"x/y"_s);
}

TEST_F(MainWindow, ControlWCloses)
{
    Start();
    OpenPages({u"a.html"_s, u"b.html"_s});
    Press(Active().Source(), Qt::Key_W, Qt::ControlModifier | Qt::ShiftModifier);
    EXPECT_EQ(Documents().size(), 2) << "those are the keys of a macro";
    boxes.asked.clear();
    Press(Active().Source(), Qt::Key_W, Qt::ControlModifier, u"\x17"_s);
    Settle();
    EXPECT_TRUE(boxes.asked.isEmpty()) << "the key is no typing";
    EXPECT_THAT(Captions(), ElementsAre(folder.filePath(u"a.html"_s)));
    TypeInto(0, u"x"_s);
    boxes.answer = Answer::Cancel;
    Press(Active(), Qt::Key_W, Qt::ControlModifier); // from another view
    Settle();
    EXPECT_EQ(Documents().size(), 1);
    EXPECT_THAT(boxes.asked,
                ElementsAre(u"Do you want save "_s + folder.filePath(u"a.html"_s) + u"?"_s));
}

TEST_F(MainWindow, ExitAsksEveryDocument)
{
    struct Case
    {
        const char *row;
        QList<Answer> answers; // in turn
        bool ends;
        QStringList left;
    };
    const Case cases[] = {
        {"no to all", {Answer::No, Answer::No}, true, {}},
        {"yes to all", {Answer::Yes, Answer::Yes}, true, {}},
        {"cancel at once", {Answer::Cancel}, false, {u"a.html"_s, u"b.html"_s}},
        {"cancel later", {Answer::No, Answer::Cancel}, false, {u"a.html"_s, u"b.html"_s}},
    };
    for (const Case &row : cases) {
        SCOPED_TRACE(row.row);
        Start();
        OpenPages({u"a.html"_s, u"b.html"_s});
        TypeInto(0, u"x"_s);
        TypeInto(1, u"x"_s);
        bool ended = false;
        QObject::connect(window.get(), &frmMain::Closed, window.get(), [&ended] { ended = true; });
        QList<Answer> answers = row.answers;
        QStringList asked;
        const auto before
            = std::exchange(Scripted().msgBox, [&](const QString &text, Buttons, Icon) {
                  asked.append(text);
                  return answers.isEmpty() ? Answer::Ok : answers.takeFirst();
              });
        Trigger(u"mnuFileExit"_s);
        Settle();
        EXPECT_EQ(ended, row.ends);
        EXPECT_EQ(window->isVisible(), !row.ends);
        EXPECT_EQ(asked.size(), row.answers.size());
        QStringList left;
        for (const QString &caption : Captions())
            left.append(QFileInfo(caption).fileName());
        EXPECT_THAT(left, ElementsAreArray(row.left));
        EXPECT_EQ(Read(folder.filePath(u"a.html"_s)),
                  row.answers.first() == Answer::Yes ? "xtext" : "text");
        Scripted().msgBox = before;
        Stop();
    }
}

TEST_F(MainWindow, CancelledExitKeepsEverythingOpen)
{
    Start();
    OpenPages({u"a.html"_s, u"b.html"_s});
    TypeInto(1, u"x"_s);
    boxes.answer = Answer::Cancel;
    Trigger(u"mnuFileExit"_s);
    EXPECT_EQ(Documents().size(), 2);
}

} // namespace
