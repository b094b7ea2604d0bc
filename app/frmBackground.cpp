#include "app/frmBackground.h"

#include "app/PaneList.h"
#include "app/TiledPreview.h"
#include "support/MessageBoxes.h"
#include "support/Paths.h"

#include <QBoxLayout>
#include <QDir>
#include <QImageReader>
#include <QLabel>
#include <QListWidget>
#include <QPainter>
#include <QPushButton>
#include <QScrollBar>

using namespace Qt::StringLiterals;

namespace brenix {

namespace {

    constexpr int PathRole = Qt::UserRole;
    constexpr int ColumnsShown = 4;
    constexpr int RowsShown = 3;
    constexpr QSize Thumbnail(96, 64);
    constexpr int Spacing = 5;
    constexpr int NameLength = 11; // in characters, that is shown whole

    QSize CellSize(const QFontMetrics &metrics)
    {
        const int width = std::max(Thumbnail.width(), metrics.averageCharWidth() * NameLength);
        return {width + 8, Thumbnail.height() + metrics.lineSpacing() + 8};
    }

    QString GalleryFolder()
    {
        return AppPath(u"Backgrounds");
    }

    /// "night-sky.png" of the gallery is called "Night sky".
    QString GalleryName(const QFileInfo &file)
    {
        QString name = file.completeBaseName().replace(u'-', u' ');
        return name.isEmpty() ? name : name[0].toUpper() + name.mid(1);
    }

    /// A small picture as it is; one that is larger than needed fills the room just so.
    QPixmap ReadPicture(const QString &path, QSize room, qreal pixelRatio)
    {
        QImageReader reader(path);
        const QSize size = reader.size();
        const QSize needed = room * pixelRatio;
        const bool isLarge = size.width() > needed.width() && size.height() > needed.height();
        if (isLarge)
            reader.setScaledSize(size.scaled(needed, Qt::KeepAspectRatioByExpanding));
        QPixmap picture = QPixmap::fromImage(reader.read());
        picture.setDevicePixelRatio(isLarge ? pixelRatio : 1);
        return picture;
    }

    /// What a page with this background looks like from afar; empty when it cannot be read.
    QIcon ThumbnailOf(const QString &path, qreal pixelRatio)
    {
        const QPixmap picture = ReadPicture(path, Thumbnail, pixelRatio);
        if (picture.isNull())
            return {};
        QPixmap thumbnail(Thumbnail * pixelRatio);
        thumbnail.setDevicePixelRatio(pixelRatio);
        thumbnail.fill(Qt::white);
        QPainter painter(&thumbnail);
        const QRect room(QPoint(), Thumbnail);
        painter.drawTiledPixmap(room, picture);
        painter.setPen(Qt::gray);
        painter.drawRect(room.adjusted(0, 0, -1, -1));
        painter.end();
        // The usual tint of a selected icon would show another colour than the page gets.
        QIcon icon(thumbnail);
        icon.addPixmap(thumbnail, QIcon::Selected);
        return icon;
    }

} // namespace

frmBackground::frmBackground(std::function<void(const QString &)> chosen, QWidget *parent)
    : FormDialog(u"frmBackground", u"Background"_s, parent)
    , m_chosen(std::move(chosen))
    , m_gallery(new QListWidget(this))
    , m_preview(new TiledPreview(this))
    , m_place(new QLabel(this))
{
    m_gallery->setObjectName(u"List1"_s);
    m_gallery->setAccessibleName(u"Backgrounds"_s);
    m_gallery->setViewMode(QListView::IconMode);
    m_gallery->setMovement(QListView::Static);
    m_gallery->setResizeMode(QListView::Adjust);
    m_gallery->setUniformItemSizes(true);
    m_gallery->setTextElideMode(Qt::ElideMiddle);
    m_gallery->setIconSize(Thumbnail);
    m_gallery->setSpacing(Spacing);
    const QSize cell = CellSize(fontMetrics()) + QSize(Spacing, Spacing);
    const int edges = 2 * m_gallery->frameWidth() + 2 * Spacing;
    m_gallery->setMinimumSize(ColumnsShown * cell.width() + edges
                                  + m_gallery->verticalScrollBar()->sizeHint().width(),
                              RowsShown * cell.height() + edges);
    connect(m_gallery, &QListWidget::currentItemChanged, this, &frmBackground::ShowCurrent);
    connect(m_gallery, &QListWidget::itemDoubleClicked, this, &frmBackground::accept);
    m_preview->setObjectName(u"Picture1"_s);
    m_preview->setAccessibleName(u"Preview"_s);

    auto *body = new QWidget(this);
    auto *columns = new QHBoxLayout(body);
    columns->setContentsMargins(0, 0, 0, 0);
    columns->addWidget(m_gallery, 3);
    columns->addWidget(m_preview, 2);
    Rows().Add(body, 1);
    Rows().Add(FolderRow());
    AddButtons({.ok = u"Command1", .cancel = u"Command2"});

    m_thumbnails.setParent(this);
    connect(&m_thumbnails, &QTimer::timeout, this, &frmBackground::DrawNextThumbnail);
    ListFolder(GalleryFolder());
    m_gallery->setFocus();
}

QWidget *frmBackground::FolderRow()
{
    auto *row = new QWidget(this);
    auto *layout = new QHBoxLayout(row);
    layout->setContentsMargins(0, 0, 0, 0);
    m_place->setObjectName(u"Label1"_s);
    m_place->setTextFormat(Qt::PlainText);
    m_place->setWordWrap(true);
    layout->addWidget(m_place, 1);
    m_own = new QPushButton(u"&Gallery"_s, row);
    m_own->setObjectName(u"Command4"_s);
    m_own->setAutoDefault(false);
    connect(m_own, &QPushButton::clicked, this, [this] { ListFolder(GalleryFolder()); });
    layout->addWidget(m_own);
    auto *folder = new QPushButton(u"&Folder..."_s, row);
    folder->setObjectName(u"Command3"_s);
    folder->setAutoDefault(false);
    connect(folder, &QPushButton::clicked, this, &frmBackground::AskFolder);
    layout->addWidget(folder);
    return row;
}

void frmBackground::AskFolder()
{
    const QString folder = ChooseFolder(u"Folder of background pictures"_s);
    if (!folder.isEmpty())
        ListFolder(folder);
}

void frmBackground::ListFolder(const QString &folder)
{
    const bool isOwn = folder == GalleryFolder();
    QPixmap blank(Thumbnail);
    blank.fill(Qt::transparent);
    m_gallery->clear();
    const QStringList patterns{
        u"*.png"_s, u"*.gif"_s, u"*.jpg"_s, u"*.jpeg"_s, u"*.bmp"_s, u"*.webp"_s};
    const QFileInfoList files = QDir(folder).entryInfoList(
        patterns, QDir::Files | QDir::Readable, QDir::Name | QDir::IgnoreCase);
    for (const QFileInfo &file : files) {
        const QString name = isOwn ? GalleryName(file) : file.fileName();
        auto *item = new QListWidgetItem(QIcon(blank), name, m_gallery);
        item->setToolTip(PlainTip(name));
        item->setSizeHint(CellSize(fontMetrics()));
        item->setData(PathRole, QDir::toNativeSeparators(file.absoluteFilePath()));
    }
    m_own->setEnabled(!isOwn);
    const QString place = isOwn ? u"The gallery of Brenix"_s : QDir::toNativeSeparators(folder);
    m_place->setText(files.isEmpty() ? u"There are no pictures in: "_s + place : place);
    m_gallery->setCurrentRow(0);
    ShowCurrent();
    m_nextThumbnail = 0;
    m_thumbnails.start(0);
}

void frmBackground::DrawNextThumbnail()
{
    QListWidgetItem *item = m_gallery->item(m_nextThumbnail++);
    if (!item) {
        m_thumbnails.stop();
        return;
    }
    const QIcon thumbnail
        = ThumbnailOf(item->data(PathRole).toString(), m_gallery->devicePixelRatioF());
    if (thumbnail.isNull())
        item->setToolTip(PlainTip(u"This picture cannot be read: "_s + item->text()));
    else
        item->setIcon(thumbnail);
}

void frmBackground::ShowCurrent()
{
    const QString path = CurrentPath();
    m_preview->SetPicture(path.isEmpty() ? QPixmap() : QPixmap(path));
    // The first folder is listed after the buttons were made.
    findChild<QPushButton *>(u"Command1"_s)->setEnabled(!path.isEmpty());
}

QString frmBackground::CurrentPath() const
{
    const QListWidgetItem *item = m_gallery->currentItem();
    return item ? item->data(PathRole).toString() : QString();
}

bool frmBackground::Accepted()
{
    const QString path = CurrentPath();
    if (path.isEmpty())
        return false;
    if (m_chosen)
        m_chosen(path);
    return true;
}

} // namespace brenix
