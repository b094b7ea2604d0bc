#include "app/ErrorCheckerPane.h"
#include "app/TidyCheck.h"
#include "checks/TidyPresets.h"
#include "tests/app/MainWindowFixture.h"
#include "tests/support/FakeTidy.h"
#include "tests/support/MemoryDocument.h"

#include <QGuiApplication>
#include <QListWidget>
#include <QMenu>
#include <QPushButton>
#include <QStatusBar>

using namespace brenix;
using namespace Qt::StringLiterals;
using testing::ElementsAre;

namespace {

class ErrorChecks : public testing::Test
{
protected:
    ErrorChecks()
    {
        page.source.SetText(u"one\r\ntwo three"_s);
        pane.SetCheck([this] { check->Start(page.source.Text(), *window); });
        pane.show();
    }
    QStringList Lines()
    {
        QStringList lines;
        for (int row = 0; row < report.count(); ++row)
            lines.append(report.item(row)->text());
        return lines;
    }

    const FreshHome home;
    MemoryDocument page;
    ErrorCheckerPane pane{[this] { return &page; }};
    QListWidget &report = *pane.findChild<QListWidget *>(u"List5"_s);
    QString note;
    TidyCheck *check = new TidyCheck(pane, [this](const QString &text) { note = text; });
    std::unique_ptr<QObject> window = std::make_unique<QObject>(); // of the page
};

TEST_F(ErrorChecks, TidysReportIsListed)
{
    UseFakeTidy("for page; do :; done; while [ \"$1\" != -f ]; do shift; done\n"
                "for i in 1 2; do echo \"line 2 column 5 - Warning: $(wc -c <\"$page\"), x\";"
                " done >\"$2\"; exit 1");
    pane.CheckButton().click();
    EXPECT_THAT(Lines(), ElementsAre(u"Checking document..."_s, u""_s));
    pane.CheckButton().click(); // starts over
    EXPECT_TRUE(WaitFor([this] { return report.count() > 2; }));
    EXPECT_THAT(Lines(),
                ElementsAre(u"Checking document..."_s,
                            u""_s,
                            u"line 2 column 5 - Warning: 14"_s,
                            u""_s,
                            u"Warnings: 1"_s,
                            u"Errors: 0"_s));
    page.Status = u"Preview"_s;
    emit report.itemClicked(report.item(2));
    EXPECT_EQ(page.Status(), u"HTML"_s);
    EXPECT_EQ(page.source.SelStart(), 9);
    EXPECT_TRUE(page.source.hasFocus);
}

TEST_F(ErrorChecks, WithoutAReportThereIsANote)
{
    for (const char *script : {"exit 0", "kill -9 $$"}) {
        UseFakeTidy(script);
        note.clear();
        pane.CheckButton().click();
        EXPECT_TRUE(WaitFor([this] { return !note.isEmpty(); })) << script;
        EXPECT_THAT(Lines(), ElementsAre(u"Checking document..."_s, u""_s));
    }
}

TEST_F(ErrorChecks, EndWithThePageOrAnotherCheck)
{
    UseFakeTidy("exec sleep 60");
    pane.CheckButton().click();
    EXPECT_TRUE(check->IsRunning());
    pane.Clear();
    EXPECT_FALSE(check->IsRunning());
    pane.CheckButton().click();
    window.reset();
    EXPECT_FALSE(check->IsRunning());
}

TEST_F(ErrorChecks, ABuiltInCheckCanBeStopped)
{
    QString captions;
    const auto checker = [&](const QString &text, const QString &, const GoOn &goOn) {
        captions += pane.CheckButton().text() + text.left(1);
        EXPECT_TRUE(QGuiApplication::overrideCursor());
        EXPECT_TRUE(goOn());
        pane.CheckButton().click();
        EXPECT_FALSE(goOn());
        return CheckReport{{u"found (Char: 6)..."_s}, 1, 0, {{3, true}}};
    };
    pane.AddChecker(u"x", u"Check"_s, checker);
    pane.findChild<QAction *>(u"x"_s)->trigger();
    EXPECT_FALSE(QGuiApplication::overrideCursor());
    EXPECT_EQ(captions, u"Stopo"_s);
    EXPECT_EQ(pane.CheckButton().text(), u"Check!"_s);
    EXPECT_THAT(Lines(), ElementsAre(u"found (Char: 6)..."_s));
    EXPECT_EQ(page.source.SelStart(), 3);
    emit report.itemClicked(report.item(0));
    EXPECT_EQ(page.source.SelStart(), 6);
}

TEST_F(ErrorChecks, AnEndlessReportIsShownWithoutItsMiddle)
{
    CheckReport endless;
    endless.lines = QStringList(200'000, u"x"_s) + QStringList(u"Totally 0 warnings"_s);
    pane.AddChecker(u"x", u"Check"_s, [&](auto &&...) { return endless; });
    pane.findChild<QAction *>(u"x"_s)->trigger();
    EXPECT_LT(report.count(), 110'000);
    EXPECT_EQ(Lines().constLast(), endless.lines.constLast());
    EXPECT_EQ(Lines().filter(u"more"_s), QStringList(u"... (99997 lines more)"_s));
}

class TidyCommands : public MainWindowFixture
{
protected:
    /// Runs the only preset.
    void RunPreset()
    {
        emit Find<QMenu>(u"mnuTidy"_s).aboutToShow();
        Trigger(u"mnuTidyPreset"_s);
    }
};

TEST_F(TidyCommands, APresetRewritesThePage)
{
    TidyPresets(AppPath(u"Tidy/Presets")).Save(u"x & y"_s, u"wrap: 0"_s);
    UseFakeTidy("for page; do :; done; cat \"$2\" >>\"$page\"");
    Start();
    RunPreset();
    EXPECT_FALSE(Find<QAction>(u"mnuTidyPreset"_s).isEnabled()) << "there is no page";
    const QString path = Write(u"page.html"_s, "old \x9E\r\n");
    window->OpenPath(path);
    RunPreset();
    EXPECT_EQ(Active().Source().Text(), u"old ž\r\nwrap: 0"_s);
    Trigger(u"mnuFileSave"_s);
    EXPECT_EQ(Read(path), "old \x9E\r\nwrap: 0") << "in the page's own encoding";
    Trigger(u"mnuEditUndo"_s);
    EXPECT_EQ(Active().Source().Text(), u"old ž\r\n"_s);

    UseFakeTidy("exit 2");
    RunPreset();
    EXPECT_NE(window->statusBar()->currentMessage(), u""_s);
    TidyPresets(AppPath(u"Tidy/Presets")).Remove(u"x & y"_s);
    RunPreset();
    EXPECT_THAT(boxes.asked,
                ElementsAre(u"Script completed!"_s,
                            u"Script completed!"_s,
                            u"Could not execute script!"_s));
}

TEST_F(TidyCommands, TheEditorsScriptRunsOnThePage)
{
    UseFakeTidy("for page; do :; done; cat \"$2\" >>\"$page\"");
    Start();
    Trigger(u"mnuTidyTools"_s);
    auto &code = Find<CodeHighlight>(u"Code"_s);
    code.SetText(u"script"_s);
    Trigger(u"mnuRunn"_s);
    EXPECT_THAT(boxes.asked, ElementsAre(u"Could not execute script!"_s)) << "there is no page";
    window->LoadNewDoc()->StartWith(u"page "_s, 0);
    Trigger(u"mnuRunn"_s);
    EXPECT_EQ(Active().Source().Text(), u"page script"_s);
    boxes.answer = Answer::Cancel;
    EXPECT_FALSE(window->close()) << "the script is not saved";
    EXPECT_TRUE(code.isVisible());
}

} // namespace
