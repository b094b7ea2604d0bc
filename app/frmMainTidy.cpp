#include "app/ErrorCheckerPane.h"
#include "app/TakeDesign.h"
#include "app/TidyCheck.h"
#include "app/ToolboxPanes.h"
#include "app/frmDocument.h"
#include "app/frmMain.h"
#include "checks/TidyPresets.h"
#include "checks/TidyRun.h"
#include "checks/TidyScript.h"
#include "editor/CodeHighlight.h"
#include "support/Paths.h"

#include <QAction>
#include <QApplication>
#include <QMenu>
#include <QStatusBar>

using namespace Qt::StringLiterals;

namespace brenix {

namespace {

    constexpr int NoteTime = 10'000; // ms
    const QString PresetItem = u"mnuTidyPreset"_s;

    TidyPresets Presets()
    {
        return TidyPresets(AppPath(u"Tidy/Presets"));
    }

} // namespace

void frmMain::AddTidyCommands(MainMenu::Commands &commands)
{
    commands[u"mnuTidyTools"_s] = [this] { ShowTidyScript(); };
    m_panes->SetCheck([this](ErrorCheckerPane &pane) {
        if (!m_tidyCheck)
            m_tidyCheck = new TidyCheck(
                pane, [this](const QString &note) { statusBar()->showMessage(note, NoteTime); });
        ForActive([this](frmDocument &page) {
            page.WithNewestText([&] { m_tidyCheck->Start(page.Source().Text(), page); });
        });
    });
}

// Filled when it is first opened; presets that are made later wait for the next start.
void frmMain::FillTidyMenu()
{
    QMenu *menu = m_menu->MenuOf(u"mnuTidy"_s);
    if (!menu->findChild<QAction *>(PresetItem)) {
        for (const QString &name : Presets().Names()) {
            QAction *item = menu->addAction(QString(name).replace(u'&', u"&&"_s));
            item->setObjectName(PresetItem);
            connect(item, &QAction::triggered, this, [this, name] { RunTidyPreset(name); });
        }
    }
    for (QAction *item : menu->findChildren<QAction *>(PresetItem))
        item->setEnabled(ActiveForm() != nullptr);
}

void frmMain::ShowTidyScript()
{
    if (!m_tidyScript) {
        const auto run
            = [this](const QString &script) { RunTidy(script, TidyScriptPlace::Editor); };
        m_tidyScript = new TidyScript(Presets(), run, this);
        m_tidyScript->setAttribute(Qt::WA_DeleteOnClose);
    }
    m_tidyScript->show();
    m_tidyScript->activateWindow();
    m_tidyScript->raise();
}

void frmMain::RunTidyPreset(const QString &name)
{
    const TidyPresets::Script script = Presets().Load(name);
    if (script.error.isEmpty())
        RunTidy(script.text, TidyScriptPlace::Preset);
    else
        TellTidyFailure();
}

void frmMain::RunTidy(const QString &script, TidyScriptPlace place)
{
    const QPointer<frmDocument> page(ActiveForm());
    if (!page || page->Source().IsReadOnlyPage()) {
        TellTidyFailure();
        return;
    }
    if (!TakeNewestText(*page))
        return;
    if (place == TidyScriptPlace::Preset)
        page->Source().AddUndo();
    const TidyResult result
        = RunTidyScript(script, page->Source().Text(), place, QApplication::activeWindow());
    if (!page || !result.page)
        return;
    page->Source().SetText(*result.page);
    if (place == TidyScriptPlace::Preset)
        page->Source().AddUndo();
    ShowNewText(*page);
    if (result.isLeft)
        statusBar()->showMessage(
            u"The page has errors that Tidy does not correct; it is as it was"_s, NoteTime);
}

} // namespace brenix
