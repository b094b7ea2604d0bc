#include "checks/TidyRun.h"
#include "checks/TidyScript.h"
#include "editor/CodeHighlight.h"
#include "tests/support/FakeTidy.h"
#include "tests/support/FreshHome.h"
#include "tests/support/Input.h"
#include "tests/support/ScriptedBoxes.h"
#include "tests/support/WithFolder.h"

#include <QAction>
#include <QApplication>
#include <QComboBox>
#include <QLineEdit>
#include <QMenu>
#include <QProgressDialog>
#include <QTimer>

using namespace brenix;
using namespace Qt::StringLiterals;
using testing::ElementsAre;

namespace {

const QString Completed = u"Script completed!"_s;
const QString NotExecuted = u"Could not execute script!"_s;

class TidyWindows : public testing::Test, protected WithFolder
{
protected:
    const FreshHome home;
    ScriptedBoxes boxes;
};

// ---- running a script ----

// The page is the last argument; the configuration follows the first one, "-config".
const QByteArray Prologue = "for page; do :; done; name=${page##*/}\n";

TEST_F(TidyWindows, RunsAScriptInThreeAttempts)
{
    const auto preset = TidyScriptPlace::Preset;
    const auto editor = TidyScriptPlace::Editor;
    const struct
    {
        const char *name;
        QByteArray tidy;
        TidyScriptPlace place;
        std::optional<QString> page;
        bool isLeft = false;
    } rows[] = {
        // clang-format off
        {"rewritten", "printf 'new ž' >\"$page\"; exit 1", preset, u"new ž"_s},
        {"errors", "exit 2", preset, u"old ž"_s, true},
        {"errors, and rewritten", "printf 'new ž' >\"$page\"; exit 2", preset, u"new ž"_s},
        {"empty result", ": >\"$page\"", preset, std::nullopt},
        {"no result", "rm \"$page\"", preset, std::nullopt},
        {"killed half way", "printf half >\"$page\"; kill -9 $$", preset, std::nullopt},
        {"no status of Tidy's", "printf half >\"$page\"; exit 3", preset, std::nullopt},
        {"edited script", "cp \"$2\" \"$page\"", editor, u"script"_s},
        {"second attempt", "test $name = TMP.html && exit 9; cp \"$2\" \"$page\"", preset, u"script"_s},
        {"second attempt of the editor names another file",
         "test $name = TMP.html && exit 9; test -e \"$2\" || printf \"${2##*/}\" >\"$page\"", editor, u"Brenix.dat"_s},
        {"third attempt", "case $page in */brenix-C*) exit 9;; esac; cp \"$2\" \"$page\"", editor, u"script"_s},
        // clang-format on
    };
    for (const auto &row : rows) {
        SCOPED_TRACE(row.name);
        UseFakeTidy(Prologue + row.tidy);
        boxes.asked.clear();
        const TidyResult result = RunTidyScript(u"script"_s, u"old ž"_s, row.place, nullptr);
        EXPECT_EQ(result.page, row.page);
        EXPECT_EQ(result.isLeft, row.isLeft);
        EXPECT_THAT(boxes.asked, ElementsAre(row.page ? Completed : NotExecuted));
    }
}

TEST_F(TidyWindows, ARunCanBeGivenUp)
{
    UseFakeTidy("sleep 60");
    QTimer user;
    user.callOnTimeout(&user, [] {
        if (auto *progress = qobject_cast<QProgressDialog *>(QApplication::activeModalWidget()))
            progress->close();
    });
    user.start(5);
    EXPECT_FALSE(RunTidyScript(u"x"_s, u"page"_s, TidyScriptPlace::Preset, nullptr).page);
    EXPECT_THAT(boxes.asked, testing::IsEmpty());
}

// ---- the script editor ----

class ScriptEditor : public TidyWindows
{
protected:
    ScriptEditor()
    {
        presets.Save(u"a"_s, u"wrap: 0"_s);
        presets.Save(u"b"_s, u"indent: yes"_s);
        editor = std::make_unique<TidyScript>(
            presets, [this](const QString &script) { runs.append(script); });
        editor->show();
    }
    CodeHighlight &Code() { return *editor->findChild<CodeHighlight *>(u"Code"_s); }
    QComboBox &List() { return *editor->findChild<QComboBox *>(u"Preset"_s); }
    void Trigger(const QString &name) { editor->findChild<QAction *>(name)->trigger(); }
    void Choose(const QString &name)
    {
        List().setCurrentText(name);
        emit List().textActivated(name);
    }
    QString Saved(const QString &name) { return presets.Load(name).text; }

    TidyPresets presets{folder.filePath(u"Presets"_s)};
    std::unique_ptr<TidyScript> editor;
    QStringList runs;
};

TEST_F(ScriptEditor, KeepsPresets)
{
    EXPECT_EQ(List().currentText(), u"a"_s);
    EXPECT_EQ(Code().Text(), u"wrap: 0"_s);
    Choose(u"b"_s);
    EXPECT_EQ(Code().Text(), u"indent: yes"_s);
    boxes.input = u"c"_s;
    Trigger(u"mnuNew"_s);
    EXPECT_EQ(boxes.proposed, u"My Scriptfile"_s);
    EXPECT_EQ(Code().Text(), u""_s);
    editor->findChild<QMenu *>(u"Commands"_s)->actions().at(2)->trigger();
    EXPECT_EQ(Code().Text(), u"wrap: "_s);
    EXPECT_EQ(presets.Names().size(), 2);
    Trigger(u"mnuSaveRun"_s);
    EXPECT_EQ(Saved(u"c"_s), u"wrap: "_s);
    EXPECT_THAT(runs, ElementsAre(u"wrap: "_s));
    EXPECT_EQ(List().currentText(), u"c"_s);
    boxes.input = u"x/y"_s;
    Trigger(u"saveas"_s);
    EXPECT_EQ(boxes.asked.last(), u"Description can not include special signs like \\ or /"_s);
    EXPECT_EQ(List().currentText(), u"c"_s);
    boxes.file = folder.filePath(u"all.tps"_s);
    Trigger(u"mnuExportPreset"_s);
    boxes.answer = Answer::Yes;
    Trigger(u"mnuDel"_s);
    EXPECT_EQ(boxes.asked.last(), u"Are you sure you want to delete c?"_s);
    EXPECT_EQ(presets.Names(), (QStringList{u"a"_s, u"b"_s}));
    EXPECT_EQ(Code().Text(), u"wrap: 0"_s);
    Trigger(u"mnuImport"_s);
    EXPECT_EQ(presets.Names().size(), 3);
}

TEST_F(ScriptEditor, AChangedScriptIsNotDroppedUnasked)
{
    const QString begin = u"The script has been changed. Do you want to save before you "_s;
    const struct
    {
        QString end;
        std::function<void()> leave;
    } rows[] = {
        {u"make a new script?"_s, [this] { Trigger(u"mnuNew"_s); }},
        {u"open a new scriptfile?"_s, [this] { Choose(u"b"_s); }},
        {u"open a new scriptfile?"_s, [this] { Trigger(u"mnuImport"_s); }},
        {u"quit?"_s, [this] { Trigger(u"mnuExit"_s); }},
        {u"quit?"_s, [this] { editor->close(); }},
    };
    for (const auto &row : rows) {
        SCOPED_TRACE(row.end.toStdString());
        editor->show();
        Choose(u"a"_s);
        Type(Code(), u"X"_s);
        boxes.answer = Answer::Cancel;
        row.leave();
        EXPECT_EQ(boxes.asked.last(), begin + row.end);
        EXPECT_EQ(Code().Text(), u"Xwrap: 0"_s);
        EXPECT_EQ(List().currentText(), u"a"_s);
        EXPECT_TRUE(editor->isVisible());
        boxes.answer = Answer::No;
        row.leave();
        EXPECT_EQ(Saved(u"a"_s), u"wrap: 0"_s);
    }
    editor->show();
    Choose(u"a"_s);
    Type(Code(), u"X"_s);
    Type(*List().lineEdit(), u"/"_s);
    boxes.answer = Answer::Yes;
    EXPECT_FALSE(editor->close()) << "the name was refused";
    Press(*List().lineEdit(), Qt::Key_Backspace);
    EXPECT_TRUE(editor->close());
    EXPECT_EQ(Saved(u"a"_s), u"Xwrap: 0"_s);
}

TEST_F(ScriptEditor, ATypedNameChoosesItsPreset)
{
    Type(Code(), u"X"_s);
    List().lineEdit()->selectAll();
    Type(*List().lineEdit(), u"b"_s);
    boxes.answer = Answer::Yes;
    Press(*List().lineEdit(), Qt::Key_Return);
    EXPECT_EQ(Saved(u"a"_s), u"Xwrap: 0"_s);
    EXPECT_EQ(Saved(u"b"_s), u"indent: yes"_s) << "not the script of the other";
    EXPECT_EQ(Code().Text(), u"indent: yes"_s);
}

} // namespace
