#include "insert/frmTable.h"
#include "support/AuthorFile.h"
#include "support/Paths.h"
#include "tests/app/MainWindowFixture.h"

#include <QApplication>
#include <QDialog>
#include <QImage>
#include <QListWidget>
#include <QMenu>
#include <QPushButton>
#include <QTimer>
#include <QTreeWidget>

using namespace brenix;
using namespace Qt::StringLiterals;

namespace {

class InsertCommands : public MainWindowFixture
{
protected:
    /// A page with a selected word, in source view.
    void StartWithSelection()
    {
        Start();
        window->LoadNewDoc();
        Active().Status = u"HTML"_s;
        Active().Source().SetText(u"a word"_s);
        Active().Source().SetSelStart(2);
        Active().Source().SetSelLength(4);
    }
};

TEST_F(InsertCommands, ItemsWrapTheSelection)
{
    Start();
    Find<QMenu>(u"mnuFont"_s).popup({});
    Find<QMenu>(u"mnuFont"_s).close();
    const QString font = Find<QAction>(u"mnuFontName"_s).text();
    ASSERT_FALSE(font.isEmpty());
    Stop();

    const std::pair<QString, QString> cases[]
        = {{u"mnuFontName"_s, u"a <font face=\"%1\">word</font>"_s.arg(font).toLower()},
           {u"h3"_s, u"a <h3>word</h3>"_s},
           {u"mnuPreformat"_s, u"a <pre>word</pre>"_s},
           {u"mnuNormal"_s, u"a <p>word</p>"_s}};
    for (const auto &[item, text] : cases) {
        SCOPED_TRACE(qPrintable(item));
        StartWithSelection();
        for (const QString &menu : {u"mnuFont"_s, u"mnuStyle"_s}) {
            Find<QMenu>(menu).popup({});
            Find<QMenu>(menu).close();
        }
        Trigger(item);
        EXPECT_EQ(Active().Source().Text(), text);
        EXPECT_EQ(Active().Modyfied(), u"1"_s);
        Stop();
    }
}

TEST_F(InsertCommands, ViewKeys)
{
    Start();
    window->LoadNewDoc();
    Active().Status = u"HTML"_s;
    const auto press = [this](const QString &key) {
        for (QAction *action : window->actions()) {
            if (action->shortcut() == QKeySequence(key))
                action->trigger();
        }
        return Active().Status();
    };
    Active().Status = u"Split"_s;
    EXPECT_EQ(press(u"Shift+F6"_s), u"Preview"_s);
    EXPECT_EQ(press(u"Shift+F6"_s), u"HTML"_s);
}

TEST_F(InsertCommands, GridIsPointedOutByKeysOrMouse)
{
    std::pair<int, int> got;
    const auto grid = [&] {
        auto *picker = new frmTable;
        QObject::connect(picker, &frmTable::Chosen, picker, [&](int rows, int columns) {
            got = {rows, columns};
        });
        picker->show();
        return picker;
    };
    frmTable *picker = grid();
    for (const int key : {Qt::Key_Down, Qt::Key_Down, Qt::Key_Right, Qt::Key_Right, Qt::Key_Up})
        Press(*picker, key);
    Press(*picker, Qt::Key_Return);
    EXPECT_EQ(got, std::pair(1, 3));

    picker = grid();
    auto &cells = *picker->findChild<QWidget *>(u"Picture1"_s);
    Mouse(cells, QEvent::MouseMove, {5000, 5000});
    Mouse(cells, QEvent::MouseButtonRelease, {5000, 5000});
    EXPECT_EQ(got, std::pair(9, 9)) << "single digits";
    Settle();
}

TEST_F(InsertCommands, AReferenceIsOneWindowThatInsertsAtTheCaret)
{
    QDir().mkpath(AppPath(u"Reference"));
    ASSERT_EQ(WriteAuthorFile(AppPath(u"Reference/functions.txt"),
                              "Strings||Group|Are cut.\nStrings|Mid|Function|Cuts.\n"),
              QString());
    Start();
    window->LoadNewDoc()->StartWith(u"xy"_s, 1);
    for (int turn = 0; turn < 2; ++turn) {
        Trigger(u"mnuFunctions"_s);
        Trigger(u"mnuFunctions"_s);
        const auto windows = window->findChildren<QDialog *>(u"Form32"_s);
        ASSERT_EQ(windows.size(), 1);
        auto &tree = *windows[0]->findChild<QTreeWidget *>();
        emit tree.itemDoubleClicked(tree.topLevelItem(0)->child(0), 0);
        EXPECT_EQ(Active().Source().Text(), u"x"_s + u"Mid"_s.repeated(turn + 1) + u"y"_s);
        Press(*windows[0], Qt::Key_Escape);
        Settle();
    }
}

TEST_F(InsertCommands, BackgroundIsCopiedBesideThePage)
{
    const QString page = Write(u"page.html"_s, "<body>");
    QDir().mkpath(AppPath(u"Backgrounds"));
    ASSERT_TRUE(QImage(8, 8, QImage::Format_RGB32).save(AppPath(u"Backgrounds/dots.png")));
    Start({page});
    boxes.answer = Answer::Yes;
    const auto choose = [this] {
        QTimer::singleShot(0, window.get(), [] {
            auto *gallery = QApplication::activeModalWidget();
            gallery->findChild<QListWidget *>(u"List1"_s)->setCurrentRow(0);
            gallery->findChild<QPushButton *>(u"Command1"_s)->click();
        });
        Trigger(u"mnuBackground"_s);
        return Active().Source().Text();
    };
    EXPECT_EQ(choose(), u"<body background=\"dots.png\">"_s);
    EXPECT_TRUE(QFile::exists(folder.filePath(u"dots.png"_s)));
    EXPECT_EQ(choose(), u"<body background=\"dots.png\">"_s) << "it is there already";
    EXPECT_EQ(boxes.asked.size(), 1);
    Write(u"dots.png"_s, "another picture of the author's");
    EXPECT_EQ(choose(), u"<body background=\"dots2.png\">"_s);
    EXPECT_EQ(Read(folder.filePath(u"dots.png"_s)), "another picture of the author's");
}

} // namespace
