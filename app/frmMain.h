#pragma once

#include "app/MainMenu.h"
#include "support/DocumentModel.h"

#include <QMainWindow>
#include <QPointer>

class QAction;
class QLabel;
class QMdiArea;
class QMdiSubWindow;
class QMenu;
class QSplitter;
class QTabBar;
class QToolBar;
class QToolButton;

namespace brenix {

class AddressBar;
class DesignBar;
class DesignTools;
class frmDocument;
class frmHelp;
class frmSplash;
class MacroRunner;
class NewDocumentPane;
class TidyCheck;
class TidyScript;
class Toolbox;
class ToolboxPanes;
struct CommandLine;
enum class HelpPlace;
enum class TidyScriptPlace;

/// The multiple-document main window: menus, toolbars, the bars below, the toolbox, and the
/// document windows. Almost every command acts on the active document.
class frmMain : public QMainWindow, public MainWindowBars
{
    Q_OBJECT

public:
    frmMain();
    ~frmMain() override;

    /// The start-up steps, in their order; each says what it does on the splash. The window is
    /// shown before the last ones, which open what there is to open.
    void LoadSteps(frmSplash &splash, const CommandLine &commandLine);

    /// Null when no document is open.
    frmDocument *ActiveForm() const;
    /// A new, empty document window, which becomes the active one.
    frmDocument *LoadNewDoc();
    void OpenDoc();
    void OpenPath(const QString &path);
    /// Both fill the active document with a standard page.
    void HTMLdoc();
    void sHTMLdoc();

    void ShowBarsFor(const QString &status) override;
    void ShowModified(const QString &text) override;
    QString ModifiedPanel() const override;
    QString Address() const override;
    void SetAddress(const QString &address) override;
    bool IsLocalMode() const override;
    QString Dialect() const override;

signals:
    void PreviewPainted();
    /// All documents are closed and the window is gone.
    void Closed();
    /// The program is to end at once, whatever is open.
    void Ended();

protected:
    void closeEvent(QCloseEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
    void dragEnterEvent(QDragEnterEvent *event) override;
    void dropEvent(QDropEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;

private:
    // building
    void BuildCentre();
    void BuildMenu();
    void BuildToolbars();
    void BuildStatusBars();
    void BuildToolbox();
    QWidget *NewNewDocumentPane();
    MainMenu::Commands Commands();
    void AddFileCommands(MainMenu::Commands &commands);
    void AddEditCommands(MainMenu::Commands &commands);
    void AddViewCommands(MainMenu::Commands &commands);
    void AddWindowCommands(MainMenu::Commands &commands);
    void AddInsertCommands(MainMenu::Commands &commands);
    void AddToolCommands(MainMenu::Commands &commands);
    void AddHelpCommands(MainMenu::Commands &commands);
    void AddToolboxCommands(MainMenu::Commands &commands);
    void AddTidyCommands(MainMenu::Commands &commands);
    void AddMacroCommands(MainMenu::Commands &commands);

    // start and end
    void ReadLanguageFile();
    void ReadTabs();
    void CheckDirectories();
    void ReadLargeFile();
    void ShowFtpCommand();
    void RestoreWindow();
    void OpenAtStart(frmSplash &splash, const CommandLine &commandLine);
    void OpenLastEdited();
    void ShowTips();
    void FinishStart();
    void StoreWindow();
    void EndAtOnce();

    // documents
    void FillActive(const QString &page, int caret);
    void NewDocument(const QString &kind);
    void OpenListRow(int row);
    void OpenTemplate(const QString &name);
    void DeleteTemplate(const QString &name);
    void SaveAsTemplate();
    void OpenDropped(const QStringList &names);
    void OpenFrom(const QString &folder);
    QList<frmDocument *> Documents() const;
    void ForActive(const std::function<void(frmDocument &)> &command);

    // the window follows its documents
    void OnWindowActivated(QMdiSubWindow *window);
    void OnDocumentActivated();
    void EnableDocumentCommands(bool enabled);
    void RebuildTabs();
    void ActivateTab(int tab);
    void RebuildWindowMenu();
    void TickViewMenu();
    void FollowSelection(frmDocument &document);
    void FollowMacroKeys(frmDocument &document);
    void EditMacros();
    void ListMacros(frmDocument &document);
    void FollowClipboard();
    void ShowCaret();
    void EnableSelectionCommands();
    void ShowDesignBars(bool shown);
    void BreakToolbars();
    void FollowDesign();
    void ShowToolbox(bool shown);
    void ShowPane(QStringView command);
    void ShowNewDocumentPane(const QString &notice);
    void FillBrowserMenu();
    void FillFontMenu();
    void FillTidyMenu();
    void ShowTidyScript();
    void RunTidyPreset(const QString &name);
    void RunTidy(const QString &script, TidyScriptPlace place);
    QMenu *BuildStyleMenu();
    void FillStyleMenu(QMenu &menu);
    void WrapInFont(frmDocument &page, const QString &font);
    void ChooseBackground();
    void EditTag(frmDocument &page);
    void PickTable(const QPoint &place);
    void BuildViewKeys();
    template <typename Reference> void ShowReference();
    frmHelp &HelpWindow();
    void OpenHelp(HelpPlace place, const QString &keyword);
    void ShowOptions();
    void TileWindows(Qt::Orientation orientation);
    void ArrangeIcons();
    void ResizeToScreen(const QString &screen);

    QMdiArea *m_area = nullptr;
    QTabBar *m_tabStrip = nullptr; // TabStrip1
    QWidget *m_picture4 = nullptr; // its host
    QSplitter *m_splitter = nullptr; // Image3
    Toolbox *m_toolbox = nullptr;
    ToolboxPanes *m_panes = nullptr;
    NewDocumentPane *m_newDocumentPane = nullptr; // null until it is shown
    QToolBar *m_toolbar1 = nullptr;
    QToolBar *m_noWindows = nullptr;
    AddressBar *m_addressBar = nullptr; // Picture1
    DesignBar *m_designBar = nullptr; // Picture2
    DesignTools *m_designTools = nullptr; // Picture3
    QWidget *m_sourceBar = nullptr; // sbStatusBar
    QWidget *m_previewBar = nullptr; // SB2
    QWidget *m_designStatus = nullptr; // Sta
    QLabel *m_titlePanel = nullptr;
    QLabel *m_elementPanel = nullptr;
    QLabel *m_linePanel = nullptr;
    QLabel *m_characterPanel = nullptr;
    QLabel *m_modifiedPanel = nullptr;
    QToolButton *m_encodingPanel = nullptr;
    QLabel *m_previewText = nullptr;
    MacroRunner *m_macros = nullptr;
    QPointer<frmHelp> m_help; // made when it is first asked for
    QPointer<TidyCheck> m_tidyCheck; // goes with the pane of its report
    QPointer<TidyScript> m_tidyScript; // while it is open
    MainMenu::Commands m_commands;
    QHash<QString, QString> m_toolTips; // by menu name, from the language file
    std::unique_ptr<MainMenu> m_menu;
    QList<QAction *> m_windowItems;
    int m_documentCounter = 0;
    std::optional<bool> m_clipboardHoldsText; // unknown: not asked since it changed
    bool m_isLoaded = false; // all steps are done
    bool m_isDrawn = false;
    bool m_openWhenShown = false;
    bool m_tipWhenShown = false;
};

} // namespace brenix
