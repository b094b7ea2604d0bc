#include "macros/frmMacro.h"

#include "support/Help.h"
#include "support/MessageBoxes.h"

#include <QBoxLayout>
#include <QComboBox>
#include <QFormLayout>
#include <QLabel>
#include <QListWidget>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QScopedValueRollback>
#include <QSignalBlocker>
#include <QTextBlock>

using namespace Qt::StringLiterals;

namespace brenix {

namespace {

    constexpr int SaveDelay = 100; // ms
    constexpr int ListWidth = 26; // characters
    constexpr int TextWidth = 60;
    constexpr int TextHeight = 16; // lines

    const QStringList SystemCommands{
        u"Beep"_s,
        u"Copy"_s,
        u"Cut"_s,
        u"End"_s,
        u"Find Next"_s,
        u"Insert Tag=''"_s,
        u"Move Cursor=''"_s,
        u"New Doc"_s,
        u"New HTML"_s,
        u"Paste"_s,
        u"Refresh Browser"_s,
        u"Replace all '' with ''"_s,
        u"Search for ''"_s,
        u"Select All"_s,
        u"Select Tag"_s,
        u"Selection Length=''"_s,
        u"Send Key=''"_s,
        u"Show/Hide Toolbox"_s,
        u"Table Wizard"_s,
        u"Wait ''"_s,
    };

    // Block by block: the whole text would come with other blanks than were typed.
    QString TextOf(const QPlainTextEdit &box, const QString &lineEnd)
    {
        QStringList lines;
        for (QTextBlock line = box.document()->begin(); line.isValid(); line = line.next())
            lines.append(WithoutStandIns(line.text()));
        return lines.join(lineEnd);
    }

    QLabel *NewCaption(const QString &text, QWidget *control, QWidget *parent)
    {
        auto *label = new QLabel(text, parent);
        label->setBuddy(control);
        control->setAccessibleName(QString(text).remove(u'&'));
        return label;
    }

    bool TellUnknown(const MacroError &error)
    {
        if (error)
            MsgBox(u"Unknown error. Please report:\nError #"_s + QString::number(error.number),
                   Buttons::Ok,
                   Icon::Critical);
        return bool(error);
    }

} // namespace

frmMacro::frmMacro(QWidget *parent)
    : FormDialog(u"frmMacro", u"Macro"_s, parent)
    , m_list(new QListWidget(this))
    , m_text(new QPlainTextEdit(this))
    , m_commands(new QComboBox(this))
    , m_shortcut(new QLabel(this))
{
    auto *body = new QWidget(this);
    auto *columns = new QHBoxLayout(body);
    columns->setContentsMargins(0, 0, 0, 0);
    columns->addWidget(ListColumn());
    columns->addWidget(TextColumn(), 1);
    Rows().Add(body, 1);
    AddButtons({.ok = u"Command1", .cancel = nullptr, .help = u"Command4"},
               [] { ShowHelp(u"MACRO"_s); });
    auto *close = findChild<QPushButton *>(u"Command1"_s);
    close->setText(u"&Close"_s);
    close->setIcon({});

    m_saver.setSingleShot(true);
    m_saver.setInterval(SaveDelay);
    connect(&m_saver, &QTimer::timeout, this, &frmMacro::Save);
    connect(m_list, &QListWidget::itemSelectionChanged, this, &frmMacro::ShowSelected);
    connect(m_text, &QPlainTextEdit::textChanged, this, &frmMacro::OnEdit);
    connect(m_commands, &QComboBox::textActivated, this, &frmMacro::InsertCommand);
    Refill({});
}

QWidget *frmMacro::ListColumn()
{
    auto *column = new QWidget(this);
    auto *layout = new QVBoxLayout(column);
    layout->setContentsMargins(0, 0, 0, 0);
    m_list->setObjectName(u"List1"_s);
    m_list->setMinimumWidth(fontMetrics().averageCharWidth() * ListWidth);
    layout->addWidget(NewCaption(u"&Availeble macros"_s, m_list, column));
    layout->addWidget(m_list, 1);
    auto *buttons = new QHBoxLayout;
    const auto add = [&](const QString &name, const QString &caption, void (frmMacro::*clicked)()) {
        auto *button = new QPushButton(caption, column);
        button->setObjectName(name);
        button->setAutoDefault(false);
        connect(button, &QPushButton::clicked, this, clicked);
        buttons->addWidget(button);
    };
    add(u"Command2"_s, u"&New"_s, &frmMacro::New);
    add(u"Command3"_s, u"&Delete"_s, &frmMacro::Delete);
    layout->addLayout(buttons);
    return column;
}

QWidget *frmMacro::TextColumn()
{
    auto *column = new QWidget(this);
    auto *layout = new QVBoxLayout(column);
    layout->setContentsMargins(0, 0, 0, 0);
    m_text->setObjectName(u"Text1"_s);
    m_text->setPlaceholderText(u"Select a macro, or make a new one."_s);
    m_text->setMinimumSize(fontMetrics().averageCharWidth() * TextWidth,
                           fontMetrics().lineSpacing() * TextHeight);
    layout->addWidget(NewCaption(u"&Macro content"_s, m_text, column));
    layout->addWidget(m_text, 1);
    m_commands->setObjectName(u"Combo1"_s);
    m_commands->addItems(SystemCommands);
    m_commands->setMaxVisibleItems(int(SystemCommands.size()));
    m_commands->setCurrentIndex(-1);
    m_shortcut->setObjectName(u"Label5"_s);
    auto *rows = new QFormLayout;
    rows->addRow(NewCaption(u"&System Commandos"_s, m_commands, column), m_commands);
    rows->addRow(u"ShortCut"_s, m_shortcut);
    layout->addLayout(rows);
    return column;
}

void frmMacro::Refill(const QString &selected)
{
    const QStringList names = MacroNames();
    {
        const QSignalBlocker blocker(m_list);
        m_list->clear();
        m_list->addItems(names);
        m_list->setCurrentRow(int(names.indexOf(selected)));
    }
    ShowSelected();
}

void frmMacro::ShowSelected()
{
    Save();
    // Not the current one: that is the first as soon as the list has the focus.
    const QListWidgetItem *item = m_list->selectedItems().value(0);
    m_name = item ? item->text() : QString();
    m_isEdited = false;
    m_saveFailed = false;
    MacroFile file;
    if (item)
        file = ReadMacroFile(m_name);
    m_encoding = file.page.encoding;
    const bool isUnixText = file.page.text.contains(u'\n') && !file.page.text.contains(u"\r\n");
    m_lineEnd = isUnixText ? u"\n"_s : u"\r\n"_s;
    {
        const QSignalBlocker blocker(m_text);
        m_text->setPlainText(WithStandIns(file.page.text));
    }
    const bool canEdit = item && !file.error;
    m_text->setEnabled(canEdit);
    m_text->setReadOnly(!file.page.faithful || HoldsStandIns(file.page.text));
    m_commands->setEnabled(canEdit && !m_text->isReadOnly());
    const QString letter = MacroLetter(item ? m_list->row(item) : -1);
    m_shortcut->setText(letter.isEmpty() ? QString() : u"Ctrl + Shift + "_s + letter);
    TellUnknown(file.error);
}

void frmMacro::OnEdit()
{
    m_isEdited = true;
    if (!m_saver.isActive())
        m_saver.start();
}

bool frmMacro::Save()
{
    m_saver.stop();
    if (!m_isEdited || m_name.isEmpty())
        return true;
    const MacroError error = WriteMacroFile(m_name, TextOf(*m_text, m_lineEnd), m_encoding);
    m_isEdited = bool(error);
    if (error && !std::exchange(m_saveFailed, true))
        MsgBox(u"Can't save '"_s + m_name + u"'\n\n"_s + error.text, Buttons::Ok, Icon::Critical);
    return !error;
}

void frmMacro::InsertCommand(const QString &command)
{
    m_text->insertPlainText(u'[' + command + u']');
    m_text->setFocus();
}

void frmMacro::New()
{
    const QString name = InputBox(u"Type the name"_s, u"My Macro"_s).trimmed();
    if (name.isEmpty())
        return;
    if (!IsMacroName(name)) {
        MsgBox(u"Can't save '"_s + name + u"'\n\nA name cannot hold \"/\" or \"\\\"."_s,
               Buttons::Ok,
               Icon::Critical);
        return;
    }
    Save();
    if (TellUnknown(CreateMacroFile(name)))
        return;
    Refill(name);
    m_text->setFocus();
}

void frmMacro::Delete()
{
    if (m_name.isEmpty()) {
        MsgBox(u"Please select a file before you try to delete it"_s);
        return;
    }
    if (TellUnknown(DeleteMacroFile(m_name)))
        return;
    m_isEdited = false;
    Refill({});
}

void frmMacro::done(int result)
{
    if (!Save()
        && MsgBox(u"'"_s + m_name + u"' is not saved. Do you want to close the window?"_s,
                  Buttons::YesNo,
                  Icon::Warning,
                  Answer::No)
            != Answer::Yes)
        return;
    FormDialog::done(result);
}

} // namespace brenix
