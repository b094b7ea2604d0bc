#include "macros/MacroFiles.h"
#include "macros/frmMacro.h"
#include "support/Paths.h"
#include "tests/app/MainWindowFixture.h"

#include <QApplication>
#include <QClipboard>
#include <QComboBox>
#include <QFocusEvent>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTimer>

using namespace brenix;
using namespace Qt::StringLiterals;

namespace {

class MacroCommands : public MainWindowFixture
{
protected:
    /// An empty page; the macros "A", "B" and so on have these texts.
    void StartWith(const QStringList &macros)
    {
        Start();
        QApplication::setActiveWindow(window.get());
        window->LoadNewDoc();
        Active().Status = u"HTML"_s;
        Settle();
        for (int i = 0; i < macros.size(); ++i)
            WriteMacroFile(MacroLetter(i), macros[i], {});
    }
    void PressLetter(Qt::Key key)
    {
        Press(Active().Source(), key, Qt::ControlModifier | Qt::ShiftModifier, u"\x1"_s);
    }
    /// Runs the macro "A", and what happens while it waits.
    void RunAnd(const std::function<void()> &meanwhile)
    {
        PressLetter(Qt::Key_A);
        QTimer::singleShot(0, window.get(), meanwhile);
        Settle();
    }
    QString Text() { return Active().Source().Text(); }

    const QString year = u"[wait '31536000000']"_s;
};

TEST_F(MacroCommands, ALetterRunsTheMacroOfItsPlace)
{
    StartWith({u"one"_s, u"[insert tag='<b></b>']two"_s});
    PressLetter(Qt::Key_B);
    EXPECT_EQ(Active().Modyfied(), u"0"_s) << "the key itself enters nothing";
    Settle();
    EXPECT_EQ(Text(), u"<b>two</b>"_s);
    PressLetter(Qt::Key_C);
    Settle();
    EXPECT_EQ(Text(), u"<b>two</b>"_s);
    EXPECT_EQ(boxes.asked, QStringList());
}

TEST_F(MacroCommands, F11ListsThem)
{
    StartWith({u"one"_s, u"two"_s});
    Trigger(u"mnuList"_s);
    auto &list = Find<QListWidget>(u"List4"_s);
    EXPECT_TRUE(list.isVisible());
    for (const int key : {Qt::Key_Down, Qt::Key_Down, Qt::Key_Return})
        Press(Active().Source(), key);
    Settle();
    EXPECT_EQ(Text(), u"two"_s);
    EXPECT_FALSE(list.isVisible());
}

TEST_F(MacroCommands, FailuresAreTold)
{
    StartWith({});
    boxes.answer = Answer::No;
    Trigger(u"mnuList"_s);
    PressLetter(Qt::Key_A);
    WriteMacroFile(u"A"_s, u"[beep]a[wait '"_s, {});
    PressLetter(Qt::Key_A);
    Settle();
    const QString none = u"You haven't made any macros yet! Do you want to add one now?"_s;
    ASSERT_EQ(boxes.asked.mid(0, 2), (QStringList{none, none}));
    const QString failure = boxes.asked.value(2);
    EXPECT_TRUE(failure.startsWith(
        u"There is an error in the macro. Please check your code!\n\nError message: "_s));
    EXPECT_TRUE(failure.endsWith(u"\nError number: 5\n Do you want to try to fix the problem?"_s));
    EXPECT_EQ(Text(), u"a"_s);
}

TEST_F(MacroCommands, EscEndsAWait)
{
    StartWith({u"[beep]a"_s + year + u"b"_s});
    RunAnd([this] { Press(Active().Source(), Qt::Key_Escape); });
    EXPECT_EQ(Text(), u"a"_s);
    WriteMacroFile(u"A"_s, u"[wait '1'][send key='{esc}']c"_s, {});
    PressLetter(Qt::Key_A);
    Settle();
    EXPECT_EQ(Text(), u"ac"_s) << "neither an Esc before nor one of its own";
}

TEST_F(MacroCommands, ClosingThePageEndsAWait)
{
    StartWith({u"[beep]a"_s + year + u"b"_s});
    boxes.answer = Answer::No;
    window->LoadNewDoc()->Status = u"HTML"_s;
    RunAnd([this] { Active().parentWidget()->close(); });
    EXPECT_EQ(Documents().size(), 1);
    EXPECT_EQ(Text(), QString());
}

TEST_F(MacroCommands, EndAsksForNothing)
{
    StartWith({u"[beep]a[end]b"_s});
    Active().WritePreview();
    const QString copy = Active().Banen();
    ASSERT_TRUE(QFile::exists(copy));
    bool hasEnded = false;
    QObject::connect(window.get(), &frmMain::Ended, window.get(), [&] { hasEnded = true; });
    PressLetter(Qt::Key_A);
    Settle();
    EXPECT_TRUE(hasEnded);
    EXPECT_EQ(boxes.asked, QStringList());
    EXPECT_EQ(Text(), u"a"_s);
    EXPECT_FALSE(QFile::exists(copy)) << "our own files go";
}

TEST_F(MacroCommands, ANewPageIsTheOneToWriteTo)
{
    StartWith({u"[new html]text"_s});
    RunAnd([] {});
    ASSERT_EQ(Documents().size(), 2);
    EXPECT_EQ(Text().mid(190, 8), u"\r\ntext\r\n"_s);
    EXPECT_EQ(Documents().constFirst()->Source().Text(), QString());
}

TEST_F(MacroCommands, WordsReachTheWindow)
{
    StartWith({u"[search for 'b'][find next][copy][show/hide toolbox]"_s});
    Active().Source().SetText(u"abcB"_s);
    const bool shown = Find<QAction>(u"mnuToolboxs"_s).isChecked();
    RunAnd([] {});
    EXPECT_EQ(Active().Source().SelStart(), 3);
    EXPECT_EQ(QGuiApplication::clipboard()->text(), u"B"_s);
    EXPECT_FALSE(Find<QWidget>(u"Search"_s).isVisible()) << "the pane stays where it is";
    EXPECT_NE(Find<QAction>(u"mnuToolboxs"_s).isChecked(), shown);
}

TEST_F(MacroCommands, KeysGoWhereTheFocusIs)
{
    StartWith({u"[send key='xy{enter}z^a^x{v 2}{left}+({home}){del}']"_s});
    RunAnd([] {});
    EXPECT_EQ(Text(), u"v"_s);
    EXPECT_EQ(QGuiApplication::clipboard()->text(), u"xy\nz"_s);
}

TEST_F(MacroCommands, AMacroThatStartsItselfEnds)
{
    StartWith({u"[beep]a[send key='^+a']"_s});
    RunAnd([] {});
    EXPECT_EQ(Text(), QString(8, u'a'));
}

TEST_F(MacroCommands, TheDialogEditsTheFiles)
{
    StartWith({u"one\ntwo"_s});
    frmMacro dialog;
    auto &list = *dialog.findChild<QListWidget *>(u"List1"_s);
    auto &text = *dialog.findChild<QPlainTextEdit *>(u"Text1"_s);
    const auto click
        = [&dialog](const QString &name) { dialog.findChild<QPushButton *>(name)->click(); };
    QFocusEvent focus(QEvent::FocusIn, Qt::TabFocusReason);
    QCoreApplication::sendEvent(&list, &focus);
    click(u"Command3"_s);
    EXPECT_EQ(boxes.asked, QStringList{u"Please select a file before you try to delete it"_s});
    EXPECT_FALSE(text.isEnabled());

    for (const QString &name : {u"a/b"_s, u"..\\c"_s, u"B\u00E9"_s}) {
        boxes.input = name;
        click(u"Command2"_s);
    }
    EXPECT_EQ(boxes.proposed, u"My Macro"_s);
    EXPECT_EQ(MacroNames(), (QStringList{u"A"_s, u"B\u00E9"_s}));
    EXPECT_EQ(list.currentRow(), 1);
    EXPECT_EQ(dialog.findChild<QLabel *>(u"Label5"_s)->text(), u"Ctrl + Shift + B"_s);

    auto &commands = *dialog.findChild<QComboBox *>(u"Combo1"_s);
    EXPECT_EQ(commands.count(), 20);
    emit commands.textActivated(commands.itemText(5));
    text.insertPlainText(u"\u00A0x"_s);
    list.setCurrentRow(0);
    EXPECT_EQ(ReadMacroFile(u"B\u00E9"_s).page.text, u"[Insert Tag='']\u00A0x\r\n"_s);
    EXPECT_TRUE(WaitFor([&] {
        text.selectAll();
        text.insertPlainText(u"1\n2"_s);
        return ReadMacroFile(u"A"_s).page.text == u"1\n2"_s;
    })) << "saved by itself, with the line ends that it had";

    click(u"Command3"_s);
    EXPECT_EQ(MacroNames(), QStringList{u"B\u00E9"_s});
    EXPECT_EQ(list.currentRow(), -1);
    dialog.done(0);
    EXPECT_EQ(MacroNames(), QStringList{u"B\u00E9"_s});
}

} // namespace
