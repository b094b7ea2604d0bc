#include "checks/TidyScript.h"

#include "checks/TidyOptions.h"
#include "editor/CodeHighlight.h"
#include "support/Help.h"
#include "support/SettingsStore.h"

#include <QAction>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QMenuBar>
#include <QStyle>
#include <QToolBar>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace brenix {

namespace {

    constexpr int TidyLanguage = 4;
    constexpr int CharactersWide = 84;
    constexpr int LinesHigh = 28;

    CodeHighlight *NewCode(QWidget *window)
    {
        auto *code = new CodeHighlight(window);
        code->setObjectName(u"Code"_s);
        code->setAccessibleName(u"Script"_s);
        code->SetFont(GetSetting(u"Editor", u"FontName", u"Courier New"_s),
                      GetNumberSetting(u"Editor", u"Fontsize", 10).value_or(10));
        code->SetColours({});
        code->SetLanguage(TidyLanguage);
        return code;
    }

    QComboBox *NewPreset(QWidget *window)
    {
        auto *preset = new QComboBox(window);
        preset->setObjectName(u"Preset"_s);
        preset->setEditable(true);
        preset->setInsertPolicy(QComboBox::NoInsert);
        preset->setCompleter(nullptr); // a name that is typed is not turned into that of another
        return preset;
    }

} // namespace

TidyScript::TidyScript(const TidyPresets &presets,
                       std::function<void(const QString &)> run,
                       QWidget *parent)
    : QMainWindow(parent, Qt::Window)
    , m_presets(presets)
    , m_run(std::move(run))
    , m_preset(NewPreset(this))
    , m_code(NewCode(this))
{
    setObjectName(u"TidyScript"_s);
    setWindowTitle(u"Tidy Tool Script Editor[*]"_s);
    BuildMenus();
    BuildToolbar();
    AddHistoryKeys();
    auto *centre = new QWidget(this);
    auto *layout = new QVBoxLayout(centre);
    auto *caption = new QLabel(u"&Preset"_s, centre);
    caption->setBuddy(m_preset);
    auto *row = new QHBoxLayout;
    row->addWidget(caption);
    row->addWidget(m_preset, 1);
    layout->addLayout(row);
    layout->addWidget(m_code, 1);
    setCentralWidget(centre);
    resize(m_code->fontMetrics().averageCharWidth() * CharactersWide,
           m_code->fontMetrics().lineSpacing() * LinesHigh);
    if (parent)
        move(parent->frameGeometry().center() - rect().center());

    connect(m_code, &CodeHighlight::Change, this, [this] { setWindowModified(true); });
    connect(m_preset->lineEdit(), &QLineEdit::textEdited, this, [this](const QString &text) {
        m_name = text;
    });
    connect(m_preset, &QComboBox::textActivated, this, &TidyScript::ChoosePreset);
    Refill();
    LoadFirst();
    m_code->setFocus();
}

void TidyScript::BuildMenus()
{
    QMenu *file = menuBar()->addMenu(u"&File"_s);
    AddAction(
        file, u"mnuNew", u"&New"_s, [this] { New(); }, QKeySequence::New);
    AddAction(
        file, u"Save", u"&Save Preset"_s, [this] { Save(); }, QKeySequence::Save);
    AddAction(file, u"saveas", u"Save &Preset as..."_s, [this] { SaveAs(); });
    AddAction(file, u"mnuDel", u"&Delete Preset"_s, [this] { Delete(); });
    file->addSeparator();
    AddAction(file, u"mnuImport", u"&Import Presetfile"_s, [this] { Import(); });
    AddAction(file, u"mnuExportPreset", u"&Export Presetfile"_s, [this] { Export(); });
    file->addSeparator();
    AddAction(file, u"mnuExit", u"&Exit"_s, [this] { close(); });

    QMenu *edit = menuBar()->addMenu(u"&Edit"_s);
    const auto paste = [this] { m_code->paste(); };
    AddAction(
        edit, u"mnuCopy", u"&Copy"_s, [this] { m_code->copy(); }, QKeySequence::Copy);
    AddAction(
        edit, u"mnuCut", u"&Cut"_s, [this] { Cut(); }, QKeySequence::Cut);
    AddAction(edit, u"mnuPaste", u"&Paste"_s, paste, QKeySequence::Paste);
    connect(m_code, &CodeHighlight::ContextMenu, edit, [edit](const QPoint &place) {
        edit->popup(place);
    });

    menuBar()->addMenu(AddCommandsMenu());

    const auto saveAndRun = [this] {
        if (Save())
            Run();
    };
    QMenu *run = menuBar()->addMenu(u"&Run"_s);
    AddAction(
        run, u"mnuRunn", u"Run"_s, [this] { Run(); }, QKeySequence(Qt::Key_F5));
    AddAction(run, u"mnuSaveRun", u"Save and run"_s, saveAndRun);

    QMenu *help = menuBar()->addMenu(u"&Help"_s);
    AddAction(help, u"mnuReference", u"Reference"_s, [] { ShowHelp(u"tidy reference"_s); });
    AddAction(
        help, u"mnuTidy", u"Tidy"_s, [] { ShowHelp(u"tidy"_s); }, QKeySequence::HelpContents);
}

QMenu *TidyScript::AddCommandsMenu()
{
    auto *menu = new QMenu(u"&Commands"_s, this);
    menu->setObjectName(u"Commands"_s);
    for (const QString &name : TidyOptionNames()) {
        connect(menu->addAction(name), &QAction::triggered, this, [this, name] {
            m_code->AddUndo();
            m_code->SetSelText(name + u": "_s);
            m_code->setFocus();
        });
    }
    return menu;
}

QAction *TidyScript::AddAction(QMenu *menu,
                               const char16_t *name,
                               const QString &caption,
                               std::function<void()> command,
                               const QKeySequence &shortcut)
{
    QAction *action = menu->addAction(caption, this, std::move(command));
    action->setObjectName(QString::fromUtf16(name));
    action->setShortcut(shortcut);
    return action;
}

void TidyScript::BuildToolbar()
{
    QToolBar *bar = addToolBar(u"Presets"_s);
    bar->setObjectName(u"Toolbar1"_s);
    bar->setMovable(false);
    const auto add = [this, bar](const QString &name, QStyle::StandardPixmap icon) {
        auto *action = findChild<QAction *>(name);
        action->setIcon(style()->standardIcon(icon));
        bar->addAction(action);
    };
    add(u"mnuNew"_s, QStyle::SP_FileIcon);
    add(u"Save"_s, QStyle::SP_DialogSaveButton);
    bar->addSeparator();
    add(u"mnuDel"_s, QStyle::SP_TrashIcon);
}

// The keys that every editor has; there is no menu entry for them.
void TidyScript::AddHistoryKeys()
{
    const auto add = [this](QKeySequence::StandardKey keys, void (CodeHighlight::*command)()) {
        auto *action = new QAction(this);
        action->setShortcuts(keys);
        connect(action, &QAction::triggered, m_code, command);
        m_code->addAction(action);
    };
    add(QKeySequence::Undo, &CodeHighlight::Undo);
    add(QKeySequence::Redo, &CodeHighlight::Redo);
}

} // namespace brenix
