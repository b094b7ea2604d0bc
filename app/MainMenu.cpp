#include "app/MainMenu.h"

#include <QAction>
#include <QActionGroup>
#include <QMenu>
#include <QMenuBar>

using namespace Qt::StringLiterals;

namespace brenix {

namespace {

    enum class Kind { Command, Tick, Choice };

    struct Row
    {
        int level;
        const char16_t *name;
        const char16_t
            *caption; // "-" is a separator; a row with rows of the next level below it is a menu
        const char16_t *shortcut = u"";
        Kind kind = Kind::Command;
    };

    // clang-format off
    constexpr Row Tree[] = {
        {0, u"mnuFile",                   u"&File"},
        {1, u"mnuFileNew",                u"&New",                 u"Ctrl+N"},
        {1, u"mnuFileOpen",               u"&Open...",             u"Ctrl+O"},
        {1, u"mnuFileClose",              u"&Close",               u"Ctrl+F4"},
        {1, u"mnuFileBar0",               u"-"},
        {1, u"mnuFileSave",               u"&Save",                u"Ctrl+S"},
        {1, u"mnuFileSaveAs",             u"Save &As..."},
        {1, u"mnuSaveAsTemplate",         u"Save As &Template"},
        {1, u"mnuFileBar2",               u"-"},
        {1, u"mnuFileExit",               u"E&xit",                u"Ctrl+Q"},
        {0, u"mnuEdit",                   u"&Edit"},
        {1, u"mnuEditUndo",               u"&Undo",                u"Ctrl+Z"},
        {1, u"mnuEditmnuEditRedo",        u"&Redo",                u"Ctrl+Y"},
        {1, u"mnuEditBar0",               u"-"},
        {1, u"mnuEditCut",                u"Cu&t",                 u"Ctrl+X"},
        {1, u"mnuEditCopy",               u"&Copy",                u"Ctrl+C"},
        {1, u"mnuEditPaste",              u"&Paste",               u"Ctrl+V"},
        {1, u"mnuDelete",                 u"Delete Selected Text", u"Del"},
        {1, u"fdgfg",                     u"-"},
        {1, u"mnuSelectAll",              u"Select &all",          u"Ctrl+A"},
        {0, u"mnuView",                   u"&View"},
        {1, u"mnuViewToolbar",            u"&Toolbar",             u"",   Kind::Tick},
        {1, u"mnuViewStatusBar",          u"Status &Bar",          u"",   Kind::Tick},
        {1, u"mnuToolboxs",               u"Tool&Box",             u"F2", Kind::Tick},
        {1, u"mnuTabs",                   u"&Document Bar",        u"",   Kind::Tick},
        {1, u"mnuViewMode",               u"View &Mode"},
        {2, u"mnuSplitMode",              u"&Split",               u"F6", Kind::Choice},
        {2, u"mnuHtmlMode",               u"&HTML Source",         u"F7", Kind::Choice},
        {2, u"mnuPreviewMode",            u"&Preview",             u"F8", Kind::Choice},
        {1, u"mnuViewBar0",               u"-"},
        {1, u"mnuViewRefresh",            u"&Refresh Browser",     u"F5"},
        {0, u"mnuTools",                  u"&Tools"},
        {1, u"mnuSplit",                  u"Split"},
        {2, u"mnuSplitH",                 u"&Split Horizontal",    u"",   Kind::Choice},
        {2, u"mnuSplitV",                 u"&Split Vertical",      u"",   Kind::Choice},
        {0, u"mnuWindow",                 u"&Window"},
        {1, u"mnuWindowNewWindow",        u"&New Window"},
        {1, u"mnuWindowBar0",             u"-"},
        {1, u"mnuWindowCascade",          u"&Cascade"},
        {1, u"mnuWindowTileHorizontal",   u"Tile &Horizontal"},
        {1, u"mnuWindowTileVertical",     u"Tile &Vertical"},
        {1, u"mnuWindowArrangeIcons",     u"&Arrange Icons"},
        {0, u"mnuHelp",                   u"&Help"},
        {1, u"mnuHelpTip",                u"&Tip of the day"},
    };
    // clang-format on

} // namespace

MainMenu::MainMenu(QMenuBar *bar, const Commands &commands)
{
    QMenu *parents[3] = {};
    QActionGroup *choices = nullptr;
    for (std::size_t i = 0; i < std::size(Tree); ++i) {
        const Row &row = Tree[i];
        const QString name = QString::fromUtf16(row.name);
        const QString caption = QString::fromUtf16(row.caption);
        QMenu *parent = row.level > 0 ? parents[row.level - 1] : nullptr;
        const bool isMenu = i + 1 < std::size(Tree) && Tree[i + 1].level > row.level;
        if (isMenu) {
            QMenu *menu = parent ? parent->addMenu(caption) : bar->addMenu(caption);
            menu->setObjectName(name);
            parents[row.level] = menu;
            m_menus.insert(name, menu);
            choices = new QActionGroup(menu);
            continue;
        }
        QAction *action = caption == u"-" ? parent->addSeparator() : parent->addAction(caption);
        action->setObjectName(name);
        m_actions.insert(name, action);
        action->setShortcut(QKeySequence(QString::fromUtf16(row.shortcut)));
        action->setCheckable(row.kind != Kind::Command);
        if (row.kind == Kind::Choice)
            choices->addAction(action);
        if (const Command command = commands.value(name))
            QObject::connect(action, &QAction::triggered, bar, command);
    }
}

void MainMenu::SetCaption(const QString &name, const QString &caption)
{
    if (QMenu *menu = m_menus.value(name))
        menu->setTitle(caption);
    else if (QAction *action = m_actions.value(name))
        action->setText(caption);
}

} // namespace brenix
