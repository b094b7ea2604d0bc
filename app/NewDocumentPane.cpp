#include "app/NewDocumentPane.h"

#include "app/PaneList.h"
#include "app/RecentFiles.h"

#include <QBoxLayout>
#include <QLabel>
#include <QListWidget>

using namespace Qt::StringLiterals;

namespace brenix {

namespace {
    constexpr int BlinkTime = 600; // ms
    constexpr int ShortestList = 30; // pixels
    constexpr int FirstKindRow = 2; // the wizards above have nothing to run yet
} // namespace

NewDocumentPane::NewDocumentPane(QWidget *parent)
    : QWidget(parent)
{
    setObjectName(u"NewDocument"_s);
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(6, 2, 6, 6);
    m_kinds = AddList(u"List2"_s, u"&New"_s, 2);
    m_openList = AddList(u"List1"_s, u"O&pen"_s, 3);
    m_templates = AddList(u"List3"_s, u"Te&mplates"_s, 3);
    m_kinds->addItems({u"New Page Wizard"_s,
                       u"New Site Wizard"_s,
                       u"HTML Document"_s,
                       u"Simple HTML Document"_s,
                       u"Empty Document"_s,
                       u"XHTML Document"_s});
    setFocusProxy(m_kinds);
    for (int kind = 0; kind < m_kinds->count(); ++kind)
        m_kinds->item(kind)->setToolTip(m_kinds->item(kind)->text());
    for (int wizard = 0; wizard < FirstKindRow; ++wizard)
        m_kinds->item(wizard)->setFlags(Qt::NoItemFlags);

    connect(m_kinds, &QListWidget::itemActivated, this, [this](QListWidgetItem *item) {
        emit KindChosen(item->text());
    });
    connect(m_openList, &QListWidget::itemActivated, this, [this](QListWidgetItem *item) {
        emit OpenRowChosen(m_openList->row(item));
    });
    connect(m_templates, &QListWidget::itemActivated, this, [this](QListWidgetItem *item) {
        emit TemplateChosen(item->text());
    });
    m_templates->setContextMenuPolicy(Qt::CustomContextMenu);
    connect(m_templates, &QWidget::customContextMenuRequested, this, [this](const QPoint &place) {
        if (const QListWidgetItem *item = m_templates->itemAt(place))
            emit TemplateDeletionAsked(item->text());
    });

    m_blink.setObjectName(u"Blink"_s);
    m_blink.setSingleShot(true);
    m_blink.setInterval(BlinkTime);
    connect(&m_blink, &QTimer::timeout, this, [this] {
        for (QListWidget *list : {m_kinds, m_openList})
            list->setPalette(palette());
    });
}

QListWidget *NewDocumentPane::AddList(const QString &name, const QString &caption, int stretch)
{
    auto *label = new QLabel(caption, this);
    auto *list = new QListWidget(this);
    list->setObjectName(name);
    list->setMinimumHeight(ShortestList);
    list->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    list->setAccessibleName(QString(caption).remove(u'&'));
    label->setBuddy(list);
    auto *box = static_cast<QVBoxLayout *>(layout());
    box->addWidget(label);
    box->addWidget(list, stretch);
    return list;
}

void NewDocumentPane::RebuildOpenList()
{
    m_openList->clear();
    const QStringList rows = OpenListRows();
    for (int row = 0; row < rows.size(); ++row) {
        auto *item = new QListWidgetItem(rows[row], m_openList);
        const QString path = RecentFileOfRow(row);
        item->setToolTip(PlainTip(path.isEmpty() ? rows[row] : path));
        if (row > 0 && path.isEmpty())
            item->setFlags(Qt::NoItemFlags);
    }
}

void NewDocumentPane::SetTemplates(const QStringList &names)
{
    m_templates->clear();
    for (const QString &name : names)
        AddTemplate(name);
}

void NewDocumentPane::AddTemplate(const QString &name)
{
    // The pane may be narrower than the name.
    (new QListWidgetItem(name, m_templates))->setToolTip(PlainTip(name));
}

void NewDocumentPane::RemoveTemplate(const QString &name)
{
    for (QListWidgetItem *item : m_templates->findItems(name, Qt::MatchExactly))
        delete item;
}

void NewDocumentPane::PointToKinds()
{
    PointTo(m_kinds);
}

void NewDocumentPane::PointToOpenList()
{
    PointTo(m_openList);
}

void NewDocumentPane::PointTo(QListWidget *list)
{
    QPalette contrast = list->palette();
    contrast.setBrush(QPalette::Base, contrast.highlight());
    contrast.setBrush(QPalette::Text, contrast.highlightedText());
    list->setPalette(contrast);
    list->setFocus();
    if (!list->currentItem())
        list->setCurrentRow(list == m_kinds ? FirstKindRow : 0);
    m_blink.start();
}

} // namespace brenix
