#include "checks/frmCheckLinks.h"

#include "checks/QuotedValues.h"
#include "checks/RowBuffer.h"
#include "support/DocumentModel.h"
#include "support/MessageBoxes.h"
#include "support/Modules.h"
#include "support/SourceView.h"

#include <QHeaderView>
#include <QPushButton>
#include <QStyle>
#include <QTreeWidget>

using namespace Qt::StringLiterals;

namespace brenix {

namespace {

    constexpr int CharactersWide = 90;
    constexpr int RowsHigh = 20;
    constexpr int StatusCharacters = 14;
    constexpr int StatusColumn = 0;
    constexpr int LinkColumn = 1;

    QStyle::StandardPixmap PictureOf(LinkStatus status)
    {
        switch (status) {
        case LinkStatus::Ok:
            return QStyle::SP_DialogApplyButton;
        case LinkStatus::Broken:
            return QStyle::SP_MessageBoxCritical;
        case LinkStatus::Url:
            return QStyle::SP_DriveNetIcon;
        case LinkStatus::Inside:
            return QStyle::SP_FileLinkIcon;
        case LinkStatus::Ftp:
            return QStyle::SP_DirLinkIcon;
        case LinkStatus::Mail:
            return QStyle::SP_FileDialogContentsView;
        }
        return QStyle::SP_FileIcon;
    }

} // namespace

std::unique_ptr<LinkTester> MakeLinkTester()
{
    static const LoadedModule loaded = LoadModule(u"brenix-network"_s);
    auto *module = qobject_cast<NetworkModule *>(loaded.root);
    if (module)
        return module->CreateLinkTester();
    MsgBox(u"Can't use the network.\n\n"_s + loaded.error, Buttons::Ok, Icon::Critical);
    return nullptr;
}

frmCheckLinks::frmCheckLinks(DocumentModel &page, QWidget *parent, Maker makeTester)
    : WalkDialog(u"frmCheckLinks", u"Check Links"_s, parent)
    , m_page(page)
    , m_list(new QTreeWidget(this))
    , m_makeTester(std::move(makeTester))
{
    m_list->setObjectName(u"LI"_s);
    m_list->setAccessibleName(u"Links"_s);
    m_list->setHeaderLabels({u"Status"_s, u"Filename"_s});
    m_list->setRootIsDecorated(false);
    m_list->setUniformRowHeights(true);
    m_list->header()->resizeSection(StatusColumn,
                                    fontMetrics().averageCharWidth() * StatusCharacters);
    m_list->setMinimumSize(fontMetrics().averageCharWidth() * CharactersWide,
                           fontMetrics().lineSpacing() * RowsHigh);
    Rows().Add(m_list, 1);
    m_try = Rows().Button(u"Command2", u"&Try the links to the web"_s, [this] { TryWebLinks(); });
    m_try->setEnabled(false);
    AddButtons({.ok = u"Command1", .cancel = nullptr, .okCaption = u"&Close"_s});
    StartWhenShown([this] { Check(); });
}

void frmCheckLinks::Check()
{
    const QString text = m_page.rtfText().Text();
    const QString folder = m_page.Folder();
    const QString projectFolder = LinkFolder(folder);
    QuotedValues links(text, u"href");
    Pulse pulse(LetEventsRun());
    RowBuffer<CheckedLink> rows([this](const QList<CheckedLink> &links) { AddRows(links); });
    while (const std::optional<QString> link = links.Next()) {
        rows.Add(CheckLink(*link, projectFolder, folder));
        // The dialog may be gone then.
        if (!pulse.LongStep())
            return;
    }
    rows.Flush();
}

void frmCheckLinks::AddRows(const QList<CheckedLink> &links)
{
    QList<QTreeWidgetItem *> rows;
    for (const CheckedLink &link : links) {
        rows += new QTreeWidgetItem({QString(), link.link});
        ShowStatus(rows.constLast(), link.status);
        if (link.status == LinkStatus::Url)
            m_try->setEnabled(true);
    }
    m_list->addTopLevelItems(rows);
}

// A style makes its icons anew each time.
QIcon frmCheckLinks::IconOf(LinkStatus status)
{
    QIcon &icon = m_icons[int(status)];
    if (icon.isNull())
        icon = style()->standardIcon(PictureOf(status));
    return icon;
}

void frmCheckLinks::ShowStatus(QTreeWidgetItem *row, LinkStatus status)
{
    const bool isBroken = status == LinkStatus::Broken;
    QFont font = m_list->font();
    font.setBold(isBroken);
    row->setText(StatusColumn, StatusWord(status));
    row->setIcon(StatusColumn, IconOf(status));
    for (const int column : {StatusColumn, LinkColumn}) {
        row->setFont(column, font);
        row->setForeground(column, isBroken ? QBrush(Qt::red) : QBrush());
    }
}

void frmCheckLinks::TryWebLinks()
{
    if (!m_tester)
        m_tester = m_makeTester();
    if (!m_tester)
        return;
    m_try->setEnabled(false);
    for (int i = 0; i < m_list->topLevelItemCount(); ++i) {
        QTreeWidgetItem *row = m_list->topLevelItem(i);
        if (row->text(StatusColumn) != StatusWord(LinkStatus::Url))
            continue;
        m_tester->Try(row->text(LinkColumn), [this, row](bool isThere) {
            ShowStatus(row, isThere ? LinkStatus::Ok : LinkStatus::Broken);
        });
    }
}

} // namespace brenix
