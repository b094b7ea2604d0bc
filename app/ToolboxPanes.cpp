#include "app/ToolboxPanes.h"

#include "app/ActiveDocumentsPane.h"
#include "app/CharacterPane.h"
#include "app/ClipboardPane.h"
#include "app/ErrorCheckerPane.h"
#include "app/ObjectsPane.h"
#include "app/ProjectPane.h"
#include "app/SearchPane.h"
#include "app/TagListPane.h"
#include "app/Toolbox.h"
#include "checks/ErrorCheck.h"
#include "checks/ErrorChecking.h"
#include "support/DesignView.h"
#include "support/DocumentModel.h"
#include "support/SettingsStore.h"
#include "support/SourceView.h"
#include "tags/TagCatalogue.h"

#include <QAction>

using namespace Qt::StringLiterals;

namespace brenix {

namespace {

    constexpr int LongestSearchText = 32'767; // what a text box holds

    // What the Objects pane offers, in its order.
    // clang-format off
    const QStringList ObjectCommands{
        u"mnuInsertHyperlink"_s, u"mnuInsertImage"_s, u"mnuTable"_s, u"mnuInsertframe"_s, u"mnuForm"_s,
        u"mnuInsertList"_s, u"mnuInsertLayer"_s, u"mnuHR"_s, u"mnuMarquee"_s, u"mnuSound"_s, u"mnuFlash"_s,
        u"mnuJava"_s, u"mnuActiveX"_s, u"mnuBackground"_s, u"mnuInsertColor"_s, u"mnuInsertBookmark"_s,
        u"mnuInsertComment"_s, u"mnuMeta"_s, u"mnuKeywords"_s, u"mnuDateTime"_s, u"mnuFadedText"_s, u"mnuWave"_s,
        u"mnuTagDesigner"_s,
    };
    // clang-format on

} // namespace

ToolboxPanes::ToolboxPanes(Toolbox &toolbox, ToolboxHost host, QObject *parent)
    : QObject(parent)
    , m_toolbox(toolbox)
    , m_host(std::move(host))
    , m_dialect(AllHtmlTitle.toString())
{
    AddPanes();
}

QWidget *ToolboxPanes::NewTagList()
{
    auto *pane = new TagListPane(m_dialect, m_host.activePage, &m_toolbox);
    connect(pane, &TagListPane::DialectChosen, this, [this](const QString &dialect) {
        m_dialect = dialect;
    });
    return pane;
}

QWidget *ToolboxPanes::NewProject()
{
    m_project = new ProjectPane(m_host.activePage, &m_toolbox);
    return m_project;
}

QWidget *ToolboxPanes::NewActiveDocuments()
{
    m_documents = new ActiveDocumentsPane(&m_toolbox);
    connect(m_documents, &ActiveDocumentsPane::Chosen, this, m_host.activateTab);
    Follow();
    return m_documents;
}

QWidget *ToolboxPanes::NewErrorChecker()
{
    m_errorChecker = new ErrorCheckerPane(m_host.activePage, &m_toolbox);
    m_errorChecker->AddChecker(u"mnuCheckRules",
                               u"Check with built-in rules"_s,
                               [this](const QString &text, const QString &, const GoOn &goOn) {
                                   return ErrorChecking(text, TagsOfDialect(m_dialect), goOn);
                               });
    m_errorChecker->AddChecker(u"mnuCheckCharacters", u"Check characters"_s, ErrorCheck);
    HandOverCheck();
    return m_errorChecker;
}

QWidget *ToolboxPanes::NewSearch()
{
    m_search = new SearchPane(m_host.activePage, &m_toolbox);
    return m_search;
}

QWidget *ToolboxPanes::NewObjects()
{
    const std::pair<QString, int> design[]
        = {{u"Table row"_s, Decmd::InsertRow}, {u"Table column"_s, Decmd::InsertCol}};
    for (const auto &[caption, command] : design) {
        auto *action = new QAction(caption, this);
        connect(
            action, &QAction::triggered, this, [this, command = command] { SendDesign(command); });
        m_designObjects.append(action);
    }
    Follow();
    return new ObjectsPane(m_host.commands(ObjectCommands) + m_designObjects, &m_toolbox);
}

// In the order of the pop-up menu.
void ToolboxPanes::AddPanes()
{
    const auto add = [this](QStringView command,
                            const QString &caption,
                            const QString &title,
                            std::function<QWidget *()> make) {
        m_toolbox.AddPane({command.toString(), caption, title, std::move(make)});
    };
    add(PaneCommand::ActiveDocuments, u"&Active Documents"_s, u"Active Documents"_s, [this] {
        return NewActiveDocuments();
    });
    add(u"mnuCharacter", u"&Character map"_s, u"Character Map"_s, [this] {
        return new CharacterPane(m_host.activePage, &m_toolbox);
    });
    add(u"mnuClipboard", u"&Clipboard"_s, u"Clipboard"_s, [this] {
        return new ClipboardPane(m_clipboard, m_host.activePage, &m_toolbox);
    });
    add(u"mnuToolBoxErrorChecker", u"&Error Checker"_s, u"Error Checker"_s, [this] {
        return NewErrorChecker();
    });
    add(PaneCommand::NewDocument, u"&New Document"_s, u"New Document"_s, m_host.newDocument);
    add(u"mnuObjects", u"&Objects"_s, u"Objects"_s, [this] { return NewObjects(); });
    add(u"mnuToolBoxProject", u"&Project"_s, u"Project"_s, [this] { return NewProject(); });
    add(PaneCommand::Search, u"&Search"_s, u"Search"_s, [this] { return NewSearch(); });
    add(u"mnuToolBoxTagList", u"&Taglist"_s, u"Tag List"_s, [this] { return NewTagList(); });
}

void ToolboxPanes::SetCheck(std::function<void(ErrorCheckerPane &)> check)
{
    m_check = std::move(check);
    HandOverCheck();
}

void ToolboxPanes::HandOverCheck()
{
    if (m_errorChecker && m_check)
        m_errorChecker->SetCheck([this] { m_check(*m_errorChecker); });
}

void ToolboxPanes::Follow()
{
    if (m_project)
        m_project->Follow();
    if (m_documents)
        m_documents->ShowDocuments(m_host.captions(), m_host.activeTab());
    const DocumentModel *page = m_host.activePage();
    for (QAction *action : m_designObjects)
        action->setEnabled(page && page->Status() == u"Design");
}

void ToolboxPanes::SendDesign(int command)
{
    DocumentModel *page = m_host.activePage();
    if (page && page->Status() == u"Design" && page->Design())
        page->Design()->ExecCommand(command);
}

void ToolboxPanes::OpenSearch()
{
    m_toolbox.ShowPane(PaneCommand::Search.toString());
    m_toolbox.BlinkTitle();
    QString selected;
    if (DocumentModel *page = m_host.activePage()) {
        const SourceView &source = page->rtfText();
        selected
            = source.TextAt(source.SelStart(), std::min(source.SelLength(), LongestSearchText));
    }
    m_search->Open(selected);
}

bool ToolboxPanes::SearchNext()
{
    if (!m_search || m_search->SearchText().isEmpty())
        return false;
    m_search->SearchNext();
    return true;
}

void ToolboxPanes::SetSearchText(const QString &text)
{
    m_toolbox.MakePane(PaneCommand::Search.toString());
    m_search->SetSearchText(text);
}

bool ToolboxPanes::IsLiveSearch() const
{
    return m_search ? m_search->IsLiveSearch() : IsSettingOn(u"Settings", u"LiveSearch", true);
}

} // namespace brenix
