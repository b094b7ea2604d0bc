#include "app/NewDocumentPane.h"
#include "app/Toolbox.h"
#include "app/ToolboxPanes.h"
#include "app/frmDocument.h"
#include "app/frmMain.h"
#include "support/Paths.h"

#include <QAction>
#include <QDir>
#include <QTabBar>

using namespace Qt::StringLiterals;

namespace brenix {

void frmMain::BuildToolbox()
{
    m_toolbox = new Toolbox(this);
    connect(m_toolbox, &Toolbox::CloseClicked, this, [this] { ShowToolbox(false); });
    const auto captions = [this] {
        QStringList all;
        for (const frmDocument *document : Documents())
            all.append(document->Caption());
        return all;
    };
    const auto commands = [this](const QStringList &names) {
        QList<QAction *> actions;
        for (const QString &name : names) {
            if (m_commands.contains(name))
                actions.append(m_menu->ActionOf(name));
        }
        return actions;
    };
    m_panes = new ToolboxPanes(*m_toolbox,
                               {.activePage = [this] { return ActiveForm(); },
                                .captions = captions,
                                .activeTab = [this] { return m_tabStrip->currentIndex(); },
                                .activateTab = [this](int tab) { ActivateTab(tab); },
                                .commands = commands,
                                .newDocument = [this] { return NewNewDocumentPane(); }},
                               this);
    m_toolbox->StartWith(PaneCommand::NewDocument.toString());
}

QWidget *frmMain::NewNewDocumentPane()
{
    m_newDocumentPane = new NewDocumentPane(m_toolbox);
    m_newDocumentPane->RebuildOpenList();
    m_newDocumentPane->SetTemplates(QDir(AppPath(u"Templates")).entryList(QDir::Files, QDir::Name));
    connect(m_newDocumentPane, &NewDocumentPane::KindChosen, this, &frmMain::NewDocument);
    connect(m_newDocumentPane, &NewDocumentPane::OpenRowChosen, this, &frmMain::OpenListRow);
    connect(m_newDocumentPane, &NewDocumentPane::TemplateChosen, this, &frmMain::OpenTemplate);
    connect(
        m_newDocumentPane, &NewDocumentPane::TemplateDeletionAsked, this, &frmMain::DeleteTemplate);
    return m_newDocumentPane;
}

void frmMain::AddToolboxCommands(MainMenu::Commands &commands)
{
    const QStringView panes[] = {u"mnuActiveDoc",
                                 u"mnuCharacter",
                                 u"mnuClipboard",
                                 u"mnuToolBoxErrorChecker",
                                 u"mnuToolBoxNewDocument",
                                 u"mnuObjects",
                                 u"mnuToolBoxProject",
                                 u"mnuToolBoxSearch",
                                 u"mnuToolBoxTagList"};
    for (const QStringView name : panes)
        commands[name.toString()] = [this, name] { ShowPane(name); };
    commands[u"mnuActiveDocumentsList"_s] = [this] { ShowPane(PaneCommand::ActiveDocuments); };
    commands[u"mnuEditmnuEditSearch"_s] = [this] {
        ShowToolbox(true);
        m_panes->OpenSearch();
    };
    commands[u"mnuSearchNext"_s] = [this] {
        if (!m_panes->SearchNext())
            m_commands.value(u"mnuEditmnuEditSearch"_s)();
    };
}

void frmMain::ShowPane(QStringView command)
{
    ShowToolbox(true);
    m_toolbox->ShowPane(command.toString());
    m_toolbox->FocusPane();
}

void frmMain::ShowToolbox(bool shown)
{
    m_toolbox->setVisible(shown);
    m_menu->ActionOf(u"mnuToolboxs"_s)->setChecked(shown);
}

QString frmMain::Dialect() const
{
    return m_panes->Dialect();
}

} // namespace brenix
