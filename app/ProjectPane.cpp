#include "app/ProjectPane.h"

#include "app/PaneList.h"
#include "app/ProjectFiles.h"
#include "app/SkinIcons.h"
#include "support/DocumentModel.h"
#include "support/Paths.h"
#include "support/SourceView.h"

#include <QDir>

using namespace Qt::StringLiterals;

namespace brenix {

namespace {

    // A program that writes many files changes the folder with each of them.
    constexpr int RefreshDelay = 300; // ms

    QIcon IconOf(FileKind kind)
    {
        switch (kind) {
        case FileKind::Page:
            return ProgramIcon(u"FilePage");
        case FileKind::Picture:
            return ProgramIcon(u"FilePicture");
        case FileKind::Style:
            return ProgramIcon(u"FileStyle");
        case FileKind::Script:
            return ProgramIcon(u"FileScript");
        case FileKind::Other:
            break;
        }
        return ProgramIcon(u"FileOther");
    }

} // namespace

ProjectPane::ProjectPane(ActivePage activePage, QWidget *parent)
    : QWidget(parent)
    , m_activePage(std::move(activePage))
    , m_files(NewPaneList(u"listView1"_s, u"Files"_s, this))
{
    setObjectName(u"Project"_s);
    m_files->setToolTip(u"Doubbleclick to insert image/link"_s);
    connect(m_files, &QListWidget::itemActivated, this, [this](QListWidgetItem *item) {
        Insert(item->text());
    });
    NewPaneLayout(this)->addWidget(m_files, 1);
    setFocusProxy(m_files);
    m_refresh.setSingleShot(true);
    m_refresh.setInterval(RefreshDelay);
    connect(&m_refresh, &QTimer::timeout, this, &ProjectPane::Refresh);
    connect(&m_watcher, &QFileSystemWatcher::directoryChanged, this, [this] {
        if (!m_refresh.isActive())
            m_refresh.start();
    });
}

void ProjectPane::Follow()
{
    if (!isVisible())
        return;
    const DocumentModel *page = m_activePage();
    const QString folder = page ? page->Folder() : QString();
    if (folder == m_folder)
        return;
    m_folder = folder;
    Watch(folder);
    Refresh();
}

void ProjectPane::showEvent(QShowEvent *event)
{
    QWidget::showEvent(event);
    m_folder.clear();
    Follow();
}

void ProjectPane::hideEvent(QHideEvent *event)
{
    QWidget::hideEvent(event);
    m_refresh.stop();
    Watch({});
}

void ProjectPane::Watch(const QString &folder)
{
    if (!m_watcher.directories().isEmpty())
        m_watcher.removePaths(m_watcher.directories());
    if (!folder.isEmpty())
        m_watcher.addPath(folder);
}

void ProjectPane::Refresh()
{
    QStringList names;
    const DocumentModel *page = m_activePage();
    if (page && !m_folder.isEmpty()) {
        names = QDir(m_folder).entryList(QDir::Files, QDir::Name | QDir::IgnoreCase);
        // The preview copy is none of the author's files.
        names.removeOne(FileNameOf(page->Banen()));
    }
    if (names == m_names)
        return;
    m_names = names;
    QHash<FileKind, QIcon> icons;
    SetRows(*m_files, names);
    for (int row = 0; row < m_files->count(); ++row) {
        const FileKind kind = KindOf(names[row]);
        if (!icons.contains(kind))
            icons.insert(kind, IconOf(kind));
        m_files->item(row)->setIcon(icons.value(kind));
    }
}

void ProjectPane::Insert(const QString &fileName)
{
    if (const DocumentModel *page = m_activePage()) {
        const bool isDesign = page->Status() == u"Design";
        const QString selection = isDesign ? fileName : m_activePage()->rtfText().SelText();
        InsertIntoPage(m_activePage, ProjectMarkup(fileName, selection));
    }
}

} // namespace brenix
