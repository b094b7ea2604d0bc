#include "app/ToolboxPanes.h"
#include "app/frmDocument.h"
#include "app/frmMain.h"
#include "editor/CodeHighlight.h"
#include "editor/SourceTyping.h"
#include "macros/MacroRunner.h"
#include "macros/frmMacro.h"

#include <QAction>

using namespace Qt::StringLiterals;

namespace brenix {

void frmMain::AddMacroCommands(MainMenu::Commands &commands)
{
    const auto isOpen = [this](const DocumentModel *page) {
        const QList<frmDocument *> documents = Documents();
        return std::ranges::any_of(documents,
                                   [page](const DocumentModel *open) { return open == page; });
    };
    const auto trigger = [this](const QString &menuName) {
        if (QAction *action = m_menu->ActionOf(menuName))
            action->trigger();
    };
    m_macros = new MacroRunner(
        {.activePage = [this] { return ActiveForm(); },
         .isOpen = isOpen,
         .command = trigger,
         .newHtml =
             [this] {
                 LoadNewDoc();
                 HTMLdoc();
             },
         .setSearchText = [this](const QString &text) { m_panes->SetSearchText(text); },
         .end = [this] { EndAtOnce(); },
         .edit = [this] { EditMacros(); },
         .finished =
             [this] {
                 ForActive([](frmDocument &document) { document.Source().ensureCursorVisible(); });
                 ShowCaret();
             }},
        this);
    commands[u"mnuEditMacro"_s] = [this] { EditMacros(); };
    commands[u"mnuList"_s]
        = [this] { ForActive([this](frmDocument &document) { ListMacros(document); }); };
}

// No page is saved, and nothing is asked.
void frmMain::EndAtOnce()
{
    for (frmDocument *document : Documents())
        document->DropOwnFiles();
    emit Ended();
}

void frmMain::EditMacros()
{
    frmMacro(this).exec();
}

// Where the source is not shown there is no caret to list them at.
void frmMain::ListMacros(frmDocument &document)
{
    const QStringList names = MacroNames();
    if (names.isEmpty()) {
        m_macros->OfferFirst();
        return;
    }
    if (document.Source().isHidden())
        document.ShowView(u"HTML"_s);
    document.Source().SetFocus();
    document.Typing().ShowMacros(names);
}

// Ctrl+Shift and a letter; one that no macro has does nothing.
void frmMain::FollowMacroKeys(frmDocument &document)
{
    document.Typing().RunMacro = [this](const QString &name) { m_macros->Start(name); };
    connect(&document, &frmDocument::MacroKey, this, [this](int place) {
        const QStringList names = MacroNames();
        if (names.isEmpty())
            m_macros->OfferFirst();
        else if (place < names.size())
            m_macros->Start(names[place]);
    });
}

} // namespace brenix
