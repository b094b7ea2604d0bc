#include "app/AddressBar.h"
#include "app/ExternalBrowser.h"
#include "app/Form31.h"
#include "app/Form32.h"
#include "app/NewDocumentPane.h"
#include "app/PrintSource.h"
#include "app/ToolboxPanes.h"
#include "app/frmAbout.h"
#include "app/frmDocument.h"
#include "app/frmHistory.h"
#include "app/frmMain.h"
#include "app/frmOptions.h"
#include "app/frmTip.h"
#include "editor/CodeHighlight.h"
#include "support/DesignView.h"
#include "support/MessageBoxes.h"
#include "support/SettingsStore.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QMenu>
#include <QStatusBar>
#include <QTabBar>
#include <QToolBar>

using namespace Qt::StringLiterals;

namespace brenix {

namespace {

    // What needs a document: items, and whole menus. The font menu's other items have nothing to do
    // without one either.
    // clang-format off
    constexpr const char16_t *DocumentItems[] = {
        u"mnuFileClose", u"mnuFileSaveAs", u"mnuFileSave", u"mnuSaveAsTemplate", u"mnuFileSaveAll",
        u"mnuFilePrint", u"mnuFilePageSetup", u"mnuEdit", u"mnuInsert", u"mnuView", u"mnuWindow",
        u"mnuViewInBrowser", u"mnuSplit", u"mnuCheckLinks", u"mnuPageOverview", u"mnuEstimated", u"mnuSelectTag",
        u"mnuTagDesigner", u"mnuList", u"mnuStripTags", u"mnuRTF2HTML", u"mnuCompressSource", u"mnuHelpTag",
    };
    // clang-format on

    void Copy(const CodeHighlight &source)
    {
        if (source.SelLength() > 0)
            QGuiApplication::clipboard()->setText(source.SelText().replace(u"\r\n"_s, u"\n"_s));
    }

} // namespace

MainMenu::Commands frmMain::Commands()
{
    MainMenu::Commands commands;
    AddFileCommands(commands);
    AddEditCommands(commands);
    AddViewCommands(commands);
    AddWindowCommands(commands);
    AddInsertCommands(commands);
    AddHelpCommands(commands);
    AddToolboxCommands(commands);
    AddTidyCommands(commands);
    AddToolCommands(commands);
    AddMacroCommands(commands);
    return commands;
}

void frmMain::AddFileCommands(MainMenu::Commands &commands)
{
    commands[u"NewHtmlDocument"_s] = [this] { NewDocument(u"HTML Document"_s); };
    commands[u"OpenDocument"_s] = [this] { OpenDoc(); };
    commands[u"mnuFileNew"_s] = [this] {
        ShowNewDocumentPane(u"Brenix 2 does not make new documents the standard way. If you click "
                            u"on 'New' from the "
                            "file menu, the toolbox will be opened and the 'New document' layer "
                            "will be visible. From "
                            "this box you can make a new document (from the lists)."_s);
        m_newDocumentPane->PointToKinds();
    };
    commands[u"mnuFileOpen"_s] = [this] {
        ShowNewDocumentPane(u"Brenix 2 does not open documents the standard way. If you click on "
                            u"open from the file "
                            "menu, the toolbox will be opened and the 'New document' layer will be "
                            "visible. From this "
                            "box you can open documents (from the lists)."_s);
        m_newDocumentPane->PointToOpenList();
    };
    commands[u"mnuFileClose"_s] = [this] {
        if (QMdiSubWindow *window = m_area->currentSubWindow())
            window->close();
    };
    commands[u"mnuFileSave"_s]
        = [this] { ForActive([](frmDocument &document) { document.Save(); }); };
    commands[u"mnuFileSaveAs"_s]
        = [this] { ForActive([](frmDocument &document) { document.SaveAs(u"Save As"_s); }); };
    commands[u"mnuSaveAsTemplate"_s] = [this] { SaveAsTemplate(); };
    commands[u"mnuFilePageSetup"_s] = [this] { PageSetup(this); };
    commands[u"mnuFilePrint"_s] = [this] {
        ForActive([this](frmDocument &document) {
            document.WithNewestText([&] { PrintSource(document.Source(), this); });
        });
    };
    commands[u"mnuFileExit"_s] = [this] { close(); };
}

// Each command goes to the design view while that is shown, else to the source.
void frmMain::AddEditCommands(MainMenu::Commands &commands)
{
    const auto onView = [this](int designCommand, auto command) {
        return [this, designCommand, command] {
            ForActive([&](frmDocument &document) {
                if (document.Status() == u"Design" && document.Design())
                    document.Design()->ExecCommand(designCommand);
                else
                    command(document, document.Source());
            });
        };
    };
    commands[u"mnuEditUndo"_s]
        = onView(Decmd::Undo, [](frmDocument &, CodeHighlight &source) { source.Undo(); });
    commands[u"mnuEditmnuEditRedo"_s]
        = onView(Decmd::Redo, [](frmDocument &, CodeHighlight &source) { source.Redo(); });
    commands[u"mnuEditCopy"_s]
        = onView(Decmd::Copy, [](frmDocument &, CodeHighlight &source) { Copy(source); });
    commands[u"mnuEditCut"_s]
        = onView(Decmd::Cut, [](frmDocument &document, CodeHighlight &source) {
              Copy(source);
              if (source.SelLength() == 0 || source.isReadOnly())
                  return;
              source.SetSelText({});
              source.AddUndo();
              document.KeyDone = true;
          });
    commands[u"mnuEditPaste"_s]
        = onView(Decmd::Paste, [](frmDocument &document, CodeHighlight &source) {
              const QString text = QGuiApplication::clipboard()->text();
              if (text.isEmpty() || source.isReadOnly())
                  return;
              source.SetSelText(text);
              source.ensureCursorVisible();
              source.AddUndo();
              document.KeyDone = true;
          });
    commands[u"mnuDelete"_s] = onView(Decmd::Delete, [](frmDocument &, CodeHighlight &source) {
        if (!source.isReadOnly())
            source.SetSelText({});
    });
    commands[u"mnuSelectAll"_s]
        = onView(Decmd::SelectAll, [](frmDocument &, CodeHighlight &source) {
              source.SetSelStart(0);
              source.SetSelLength(source.TextLength());
          });
}

void frmMain::AddWindowCommands(MainMenu::Commands &commands)
{
    commands[u"mnuWindowNewWindow"_s] = [this] { m_area->activateNextSubWindow(); };
    commands[u"mnuWindowCascade"_s] = [this] { m_area->cascadeSubWindows(); };
    commands[u"mnuWindowTileHorizontal"_s] = [this] { TileWindows(Qt::Horizontal); };
    commands[u"mnuWindowTileVertical"_s] = [this] { TileWindows(Qt::Vertical); };
    commands[u"mnuWindowArrangeIcons"_s] = [this] { ArrangeIcons(); };
    commands[u"mnuHelpAbout"_s] = [this] { frmAbout(this).exec(); };
    commands[u"mnuHistory"_s] = [this] { frmHistory(this).exec(); };
    commands[u"mnuASPobjects"_s] = [this] { ShowReference<Form31>(); };
    commands[u"mnuFunctions"_s] = [this] { ShowReference<Form32>(); };
    commands[u"mnuToolsOptions"_s] = [this] { ShowOptions(); };
    commands[u"mnuHelpTip"_s] = [this] {
        SaveSetting(u"Options", u"Show Tips at Startup", u"1"_s);
        frmTip(this).exec();
    };
}

// A reference stays open beside the page; the name that is chosen in it goes to the caret.
template <typename Reference> void frmMain::ShowReference()
{
    for (QObject *child : children()) {
        if (auto *open = dynamic_cast<Reference *>(child)) {
            open->show();
            open->activateWindow();
            return;
        }
    }
    const auto insert = [this](const QString &name) {
        ForActive([&](frmDocument &document) {
            if (document.Source().isReadOnly())
                return;
            if (document.Status() == u"Design" && document.Design()) {
                document.Design()->PasteHTML(name.toHtmlEscaped());
                return;
            }
            document.Source().AddUndo();
            document.Source().SetSelText(name);
        });
    };
    auto *window = new Reference(insert, this);
    window->setAttribute(Qt::WA_DeleteOnClose);
    window->show();
}

void frmMain::ShowOptions()
{
    frmOptions dialog(this);
    dialog.Applied = [this](const Options &options) {
        for (frmDocument *document : Documents()) {
            document->ConfigureSource();
            document->Source().SetGiveCorrectCase(options.giveCorrectCase);
            document->Source().Recolour();
        }
        ForActive([](frmDocument &document) { document.Form_Activate(); });
        FillBrowserMenu();
    };
    dialog.RecentCleared = [this] {
        if (m_newDocumentPane)
            m_newDocumentPane->RebuildOpenList();
    };
    dialog.exec();
}

// Captions from the options; an entry without a program can't be chosen.
void frmMain::FillBrowserMenu()
{
    QMenu *menu = m_menu->MenuOf(u"mnuViewInBrowser"_s);
    menu->clear();
    for (int number = 1; number <= BrowserCount; ++number) {
        const ExternalBrowser browser = BrowserAt(number);
        QAction *item = menu->addAction(QString(browser.name).replace(u'&', u"&&"_s));
        item->setObjectName(u"mnuBrowser"_s + QString::number(number));
        item->setEnabled(!browser.path.isEmpty());
        connect(item, &QAction::triggered, this, [this, number] {
            ForActive([&](frmDocument &document) {
                const QString file = document.WriteBrowserCopy();
                if (!file.isEmpty())
                    StartBrowser(BrowserAt(number), file);
            });
        });
    }
}

void frmMain::ShowNewDocumentPane(const QString &notice)
{
    ShowPane(PaneCommand::NewDocument);
    if (GetNumberSetting(u"ShowOnlyOnce", u"Open", 0) != 0)
        return;
    SaveSetting(u"ShowOnlyOnce", u"Open", u"1"_s);
    MsgBox(notice + u"\n\nThis dialog will not showed again"_s, Buttons::Ok, Icon::Information);
}

void frmMain::EnableDocumentCommands(bool enabled)
{
    for (const char16_t *name : DocumentItems)
        m_menu->Enable(QString::fromUtf16(name), enabled);
    if (!m_noWindows)
        return;
    m_noWindows->setVisible(!enabled);
    m_toolbar1->setVisible(enabled && m_menu->ActionOf(u"mnuViewToolbar"_s)->isChecked());
    if (!enabled)
        m_addressBar->hide();
}

} // namespace brenix
