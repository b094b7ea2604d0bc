#include "app/MainMenu.h"

#include <QAction>
#include <QActionGroup>
#include <QMenu>
#include <QMenuBar>

using namespace Qt::StringLiterals;

namespace brenix {

namespace {

    // A slot is where the window adds items of its own: fonts, browsers, presets.
    enum class Kind { Command, Tick, Choice, Slot };

    struct Row
    {
        int level;
        const char16_t *name;
        // "-" is a separator; a row with rows of the next level below it is a menu.
        const char16_t *caption;
        const char16_t *shortcut = u"";
        Kind kind = Kind::Command;
    };

    // clang-format off
    constexpr Row Tree[] = {
        {0, u"mnuFile",                 u"&File"},
        {1, u"mnuFileNew",              u"&New",                       u"Ctrl+N"},
        {1, u"mnuFileOpen",             u"&Open...",                   u"Ctrl+O"},
        {1, u"mnuOpenFromWeb",          u"Open from &Web"},
        {1, u"mnuFileClose",            u"&Close",                     u"Ctrl+F4"},
        {1, u"mnuFileBar0",             u"-"},
        {1, u"mnuFileSave",             u"&Save",                      u"Ctrl+S"},
        {1, u"mnuFileSaveAs",           u"Save &As..."},
        {1, u"mnuSaveAsTemplate",       u"Save As &Template"},
        {1, u"mnuFileSaveAll",          u"Save Copy As a &RTF File"},
        {1, u"mnuFileBar1",             u"-"},
        {1, u"mnuFilePageSetup",        u"Page Set&up..."},
        {1, u"mnuFilePrint",            u"&Print..."},
        {1, u"mnuFileBar2",             u"-"},
        {1, u"mnuFileExit",             u"E&xit",                      u"Ctrl+Q"},
        {0, u"mnuEdit",                 u"&Edit"},
        {1, u"mnuEditTag",              u"Edit &Tag"},
        {1, u"frmmm",                   u"-"},
        {1, u"mnuEditUndo",             u"&Undo",                      u"Ctrl+Z"},
        {1, u"mnuEditmnuEditRedo",      u"&Redo",                      u"Ctrl+Y"},
        {1, u"mnuEditBar0",             u"-"},
        {1, u"mnuEditCut",              u"Cu&t",                       u"Ctrl+X"},
        {1, u"mnuEditCopy",             u"&Copy",                      u"Ctrl+C"},
        {1, u"mnuEditPaste",            u"&Paste",                     u"Ctrl+V"},
        {1, u"mnuDelete",               u"Delete Selected Text",       u"Del"},
        {1, u"mnuPasteHTML",            u"&Paste as HTML"},
        {1, u"mnf",                     u"-"},
        {1, u"mnuFormat",               u"Format HTML"},
        {2, u"mnuFormatHiachal",        u"Hierchal"},
        {2, u"mnuCompact",              u"Compact"},
        {2, u"mnuSimple",               u"Simple"},
        {1, u"mnuCase",                 u"&Case"},
        {2, u"mnuLowercase",            u"&Lowercase"},
        {2, u"mnuUpper",                u"&Uppercase"},
        {1, u"fdgfg",                   u"-"},
        {1, u"mnuSearcher",             u"&Search"},
        {2, u"mnuEditSearchandReplace", u"Global Search and Replace"},
        {2, u"mnuSearchNext",           u"Search &Next",               u"F3"},
        {2, u"mnuEditmnuEditSearch",    u"&Search in document",        u"Ctrl+F"},
        {1, u"mnuGoto",                 u"G&oto..."},
        {1, u"mnuSelectAll",            u"Select &all",                u"Ctrl+A"},
        {0, u"mnuView",                 u"&View"},
        {1, u"mnuViewToolbar",          u"&Toolbar",                   u"", Kind::Tick},
        {1, u"mnuViewStatusBar",        u"Status &Bar",                u"", Kind::Tick},
        {1, u"mnuToolboxs",             u"Tool&Box",                   u"F2", Kind::Tick},
        {1, u"mnuTabs",                 u"&Document Bar",              u"", Kind::Tick},
        {1, u"mnuViewMode",             u"View &Mode"},
        {2, u"mnuSplitMode",            u"&Split",                     u"F6", Kind::Choice},
        {2, u"mnuHtmlMode",             u"&HTML Source",               u"F7", Kind::Choice},
        {2, u"mnuPreviewMode",          u"&Preview",                   u"F8", Kind::Choice},
        {2, u"mnuDesignMode",           u"&Design",                    u"F9", Kind::Choice},
        {1, u"mnuViewBar0",             u"-"},
        {1, u"mnuViewRefresh",          u"&Refresh Browser",           u"F5"},
        {0, u"mnuInsert",               u"&Insert"},
        {1, u"mnuStartTag",             u"Start Tag <>",               u"Ctrl+F1"},
        {1, u"mnuEndTag",               u"End Tag </>",                u"Ctrl+F2"},
        {1, u"mnuInsertComment",        u"&Comment",                   u"Ctrl+M"},
        {1, u"mnuSplitter",             u"-"},
        {1, u"mnuFont",                 u"&Font"},
        {2, u"mnuFontDialog",           u"Font &Dialog",               u"Ctrl+D"},
        {2, u"mnuFontSplit",            u"-"},
        {2, u"mnuFontName",             u"",                           u"", Kind::Slot},
        {1, u"mnuActiveX",              u"Active&X"},
        {1, u"mnuBackground",           u"&Background"},
        {1, u"mnuHR",                   u"Horizontal &Ruler",          u"Ctrl+H"},
        {1, u"mnuInsertHyperlink",      u"&Hyperlink",                 u"Ctrl+K"},
        {1, u"mnuInsertImage",          u"&Image",                     u"Ctrl+P"},
        {1, u"mnuFlash",                u"&Flash/Shockwave File"},
        {1, u"mnuJava",                 u"&Java Applet"},
        {1, u"mnuMarquee",              u"&Marquee"},
        {1, u"mnuSound",                u"&Sound"},
        {1, u"mnuSplitass",             u"-"},
        {1, u"mnuForm",                 u"&Form"},
        {1, u"mnuInsertframe",          u"F&rame"},
        {1, u"mnuInsertLayer",          u"La&yer"},
        {1, u"mnuInsertList",           u"&List"},
        {1, u"mnuTable",                u"&Table",                     u"Ctrl+T"},
        {1, u"dfhfghdfgh",              u"-"},
        {1, u"mnuMeta",                 u"Meta Information"},
        {1, u"mnuKeywords",             u"&Keywords"},
        {1, u"mnuInsertColor",          u"&Color"},
        {1, u"mnuDateTime",             u"Date/Time"},
        {1, u"mnuTextFormat",           u"Text Art"},
        {2, u"mnuFadedText",            u"Faded Text"},
        {2, u"mnuWave",                 u"Wave effect"},
        {0, u"mnuTools",                u"&Tools"},
        {1, u"mnuViewInBrowser",        u"View page in browser"},
        {2, u"mnuBrowser",              u"",                           u"", Kind::Slot},
        {1, u"mnuSplit",                u"Split"},
        {2, u"mnuSplitH",               u"&Split Horizontal",          u"", Kind::Choice},
        {2, u"mnuSplitV",               u"&Split Vertical",            u"", Kind::Choice},
        {1, u"mnuTidy",                 u"Tidy Tools"},
        {2, u"mnuTidyTools",            u"Tidy Tool Script Editor"},
        {2, u"TidySplitter",            u"-"},
        {2, u"mnuTidyPreset",           u"",                           u"", Kind::Slot},
        {1, u"mnuASP",                  u"ASP"},
        {2, u"mnuASPobjects",           u"ADO objects",                u"Ctrl+Shift+F1"},
        {2, u"mnuFunctions",            u"Functions",                  u"Ctrl+Shift+F2"},
        {1, u"mnuMacro",                u"&Macro"},
        {2, u"mnuEditMacro",            u"&Edit Macros"},
        {2, u"mnuList",                 u"List Macros",                u"F11"},
        {1, u"fg2",                     u"-"},
        {1, u"mnuInsertBookmark",       u"&Insert Bookmark",           u"Ctrl+G"},
        {1, u"mnuCheckLinks",           u"&Check Links"},
        {1, u"mnuPageOverview",         u"&Page Overview"},
        {1, u"mnuEstimated",            u"&Estimated Download Time"},
        {1, u"mnuSelectTag",            u"&Select Tag"},
        {1, u"fg4",                     u"-"},
        {1, u"mnuFTP",                  u""},
        {1, u"fg1",                     u"-"},
        {1, u"mnuTagDesigner",          u"Tag Designer"},
        {1, u"mnuStripTags",            u"&Convert to plain text"},
        {1, u"mnuRTF2HTML",             u"Convert RTF to HTML"},
        {1, u"mnuCompressSource",       u"&Compress Source"},
        {1, u"fg3",                     u"-"},
        {1, u"mnuToolsOptions",         u"&Options..."},
        {0, u"mnuWindow",               u"&Window"},
        {1, u"mnuWindowNewWindow",      u"&New Window"},
        {1, u"mnuActiveDocumentsList",  u"Active Documents List"},
        {1, u"mnuWindowBar0",           u"-"},
        {1, u"mnuWindowCascade",        u"&Cascade"},
        {1, u"mnuWindowTileHorizontal", u"Tile &Horizontal"},
        {1, u"mnuWindowTileVertical",   u"Tile &Vertical"},
        {1, u"mnuWindowArrangeIcons",   u"&Arrange Icons"},
        {0, u"mnuHelp",                 u"&Help"},
        {1, u"mnuHelpContents",         u"&Contents",                  u"Shift+F1"},
        {1, u"mnuHelpSearchForHelpOn",  u"&Search For Help On..."},
        {1, u"mnuHelpTag",              u"&Help for current tag",      u"F1"},
        {1, u"mnuHTMLreference",        u"HTML 4 &Reference"},
        {1, u"mnuHelpTip",              u"&Tip of the day"},
        {1, u"ghj",                     u"-"},
        {1, u"mnuForum",                u"&Online Forum"},
        {1, u"mnuHelpBar0",             u"-"},
        {1, u"mnuHistory",              u"H&istory"},
        {1, u"mnuCheckforUpdates",      u"Ch&eck for updates"},
        {1, u"jhkhjk",                  u"-"},
        {1, u"mnuHelpAbout",            u"&About "},
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
        if (row.kind == Kind::Slot)
            continue;
        // Complete before the menu gets it: a menu looks again at each change of an item.
        auto *action = new QAction(caption == u"-" ? QString() : caption, parent);
        action->setSeparator(caption == u"-");
        action->setObjectName(name);
        m_actions.insert(name, action);
        if (*row.shortcut != u'\0')
            action->setShortcut(QKeySequence(QString::fromUtf16(row.shortcut)));
        if (row.kind != Kind::Command)
            action->setCheckable(true);
        if (row.kind == Kind::Choice)
            choices->addAction(action);
        if (const Command command = commands.value(name)) {
            QObject::connect(action, &QAction::triggered, bar, command);
            m_working.insert(name);
        }
        action->setEnabled(action->isSeparator() || m_working.contains(name));
        parent->addAction(action);
    }
}

void MainMenu::Enable(const QString &name, bool enabled)
{
    if (QMenu *menu = m_menus.value(name)) {
        menu->menuAction()->setEnabled(enabled);
        // A disabled menu does not stop the shortcuts of its items.
        for (const QAction *item : menu->actions())
            Enable(item->menu() ? item->menu()->objectName() : item->objectName(), enabled);
        return;
    }
    QAction *action = m_actions.value(name);
    if (action && !action->isSeparator())
        action->setEnabled(enabled && m_working.contains(name));
}

void MainMenu::SetCaption(const QString &name, const QString &caption)
{
    if (QMenu *menu = m_menus.value(name))
        menu->setTitle(caption);
    else if (QAction *action = m_actions.value(name))
        action->setText(caption);
}

} // namespace brenix
