#include "app/ClipboardPane.h"

#include "app/ClipboardFile.h"
#include "app/ClipboardRecord.h"
#include "app/PaneList.h"
#include "app/SkinIcons.h"
#include "support/AuthorFile.h"
#include "support/DocumentModel.h"
#include "support/MessageBoxes.h"
#include "support/SettingsStore.h"
#include "support/SourceView.h"
#include "support/TextCodec.h"
#include "tags/InsertMarkup.h"

#include <QBoxLayout>
#include <QMenu>
#include <QToolButton>

using namespace Qt::StringLiterals;

namespace brenix {

namespace {

    const QString FileFilter = u"Clipboard Files (*.clp)|*.clp"_s;

}

ClipboardPane::ClipboardPane(ClipboardRecord &record, ActivePage activePage, QWidget *parent)
    : QWidget(parent)
    , m_record(record)
    , m_activePage(std::move(activePage))
    , m_list(new MLListBox(record.Elements(), this))
    , m_menu(new QMenu(u"Load"_s, this))
{
    setObjectName(u"Board"_s);
    m_list->setObjectName(u"List8"_s);
    m_list->setAccessibleName(u"Clipboard"_s);
    m_record.Elements().SetIcon(ProgramIcon(u"Copied"));
    connect(m_list, &QListView::clicked, this, &ClipboardPane::CopySelected);
    connect(
        m_list, &QListView::activated, this, [this](const QModelIndex &row) { Paste(row.row()); });
    connect(m_list, &MLListBox::RemoveAsked, this, &ClipboardPane::RemoveSelected);
    BuildMenu();

    QVBoxLayout *layout = NewPaneLayout(this);
    layout->addWidget(m_list, 1);
    auto *buttons = new QHBoxLayout;
    layout->addLayout(buttons);
    const auto add = [&](int index, const QIcon &icon, const QString &tip, auto clicked) {
        buttons->addWidget(AddButton(index, icon, tip, clicked));
    };
    add(0, ProgramIcon(u"RemoveAll"), u"Remove all elements"_s, &ClipboardPane::RemoveAll);
    add(1,
        ProgramIcon(u"Remove"),
        u"Remove the selected element"_s,
        &ClipboardPane::RemoveSelected);
    add(2, ProgramIcon(u"LoadSave"), u"Save or load the elements"_s, &ClipboardPane::ShowMenu);
    add(3, ProgramIcon(u"CopyBack"), u"Copy the selected element"_s, &ClipboardPane::CopySelected);
    buttons->addStretch();
    setFocusProxy(m_list);
    m_record.Look();
}

QToolButton *ClipboardPane::AddButton(int index,
                                      const QIcon &icon,
                                      const QString &tip,
                                      void (ClipboardPane::*clicked)())
{
    auto *button = new QToolButton(this);
    button->setObjectName(u"Button1_%1"_s.arg(index));
    button->setIcon(icon);
    button->setToolTip(tip);
    button->setAccessibleName(tip);
    button->setAutoRaise(true);
    connect(button, &QToolButton::clicked, this, clicked);
    return button;
}

void ClipboardPane::BuildMenu()
{
    m_menu->setObjectName(u"loadsave"_s);
    m_menu->addAction(u"&Save Clipboard"_s, this, &ClipboardPane::Save)
        ->setObjectName(u"SaveClipboard"_s);
    m_menu->addAction(u"&Load Clipboard"_s, this, &ClipboardPane::Load)
        ->setObjectName(u"LoadClipboard"_s);
}

void ClipboardPane::ShowMenu()
{
    const auto *button = findChild<QToolButton *>(u"Button1_2"_s);
    m_menu->popup(button->mapToGlobal(QPoint(0, button->height())));
}

void ClipboardPane::CopySelected()
{
    m_record.CopyBack(m_list->ListIndex());
}

void ClipboardPane::RemoveSelected()
{
    m_record.Elements().RemoveItem(m_list->ListIndex());
}

void ClipboardPane::RemoveAll()
{
    if (MsgBox(u"Are you sure you want to completly clear the clipboard?"_s,
               Buttons::YesNo,
               Icon::Question)
        == Answer::Yes)
        m_record.Elements().Clear();
}

void ClipboardPane::Paste(int index)
{
    DocumentModel *page = m_activePage();
    const QString text = m_record.Elements().Item(index);
    if (!page || text.isEmpty())
        return;
    if (page->Status() == u"Design")
        InsertMarkup(*page, text);
    else if (!page->rtfText().IsReadOnlyPage())
        page->rtfText().SetSelText(text);
    page->rtfText().AddUndo();
    FocusPage(*page);
}

void ClipboardPane::Save()
{
    const QString path = SaveFileName({.title = u"Save Clipboard"_s,
                                       .filter = FileFilter,
                                       .name = {},
                                       .defaultSuffix = u"clp"_s});
    if (path.isEmpty())
        return;
    QStringList elements;
    for (int i = 0; i < m_record.Elements().ListCount(); ++i)
        elements.append(m_record.Elements().Item(i));
    const QString error = WriteAuthorFile(path, ClipboardFileText(elements).toUtf8());
    if (!error.isEmpty())
        MsgBox(u"Can't save '"_s + path + u"'\n\n"_s + error, Buttons::Ok, Icon::Critical);
}

void ClipboardPane::Load()
{
    const QString path = OpenFileName({.title = u"Load Clipboard"_s,
                                       .filter = FileFilter,
                                       .name = {},
                                       .defaultSuffix = u"clp"_s});
    if (path.isEmpty())
        return;
    const FileContent file = ReadAuthorFile(path);
    if (!file.error.isEmpty()) {
        MsgBox(u"Can't open '"_s + path + u"'\n\n"_s + file.error, Buttons::Ok, Icon::Critical);
        return;
    }
    const QByteArray codec = GetSetting(u"Editor", u"Encoding").toLatin1();
    const DecodedPage text = DecodePage(file.bytes, codec);
    m_record.Elements().AddAtTop(ClipboardElements(text.text, MLItems::MostItems, LetEventsRun));
}

} // namespace brenix
