#pragma once

#include "app/ActivePage.h"
#include "app/ClipboardRecord.h"

class QAction;

namespace brenix {

class ActiveDocumentsPane;
class ErrorCheckerPane;
class ProjectPane;
class SearchPane;
class Toolbox;

/// The menu names of commands that show a pane.
namespace PaneCommand {
    inline constexpr QStringView NewDocument = u"mnuToolBoxNewDocument";
    inline constexpr QStringView Search = u"mnuToolBoxSearch";
    inline constexpr QStringView ActiveDocuments = u"mnuActiveDoc";
} // namespace PaneCommand

/// What the panes need of the main window.
struct ToolboxHost
{
    ActivePage activePage;
    std::function<QStringList()> captions; ///< of the open documents, in the order of the tabs
    std::function<int()> activeTab; ///< from 0, -1 for none
    std::function<void(int tab)> activateTab;
    /// The commands of the menu with these names; those that nothing runs are left out.
    std::function<QList<QAction *>(const QStringList &names)> commands;
    std::function<QWidget *()> newDocument; ///< makes the pane that pages are started from
};

/// Makes the panes of the toolbox, and keeps what outlives them or is there before they
/// are made: the dialect and the copied texts.
class ToolboxPanes : public QObject
{
    Q_OBJECT

public:
    ToolboxPanes(Toolbox &toolbox, ToolboxHost host, QObject *parent = nullptr);

    /// The dialect whose tags are offered, by its title.
    QString Dialect() const { return m_dialect; }
    /// What "Check!" of the error checker does; it gets the pane for its report.
    void SetCheck(std::function<void(ErrorCheckerPane &)> check);
    /// Looks which documents are open, and which is active.
    void Follow();
    /// Opens the search, with the selected text of the page if there is one.
    void OpenSearch();
    /// False when there is no text to search for yet.
    bool SearchNext();
    /// What is searched for next; makes the search pane the one that is shown if it was not yet
    /// made.
    void SetSearchText(const QString &text);
    bool IsLiveSearch() const;

private:
    void AddPanes();
    QWidget *NewTagList();
    QWidget *NewProject();
    QWidget *NewActiveDocuments();
    QWidget *NewErrorChecker();
    QWidget *NewSearch();
    QWidget *NewObjects();
    void HandOverCheck();
    void SendDesign(int command);

    Toolbox &m_toolbox;
    ToolboxHost m_host;
    QString m_dialect;
    ClipboardRecord m_clipboard;
    std::function<void(ErrorCheckerPane &)> m_check;
    ProjectPane *m_project = nullptr;
    ActiveDocumentsPane *m_documents = nullptr;
    ErrorCheckerPane *m_errorChecker = nullptr;
    SearchPane *m_search = nullptr;
    QList<QAction *> m_designObjects; // table rows and columns
};

} // namespace brenix
