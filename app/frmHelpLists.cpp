#include "app/FilteredTree.h"
#include "app/frmHelp.h"

#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QStatusBar>
#include <QTextBrowser>
#include <QTreeWidget>
#include <QTreeWidgetItemIterator>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace brenix {

namespace {

    constexpr int FileRole = Qt::UserRole; // of a row: the topic that it leads to

    QTreeWidgetItem *AddRow(QTreeWidgetItem *parent, const HelpTopic &topic)
    {
        auto *row = new QTreeWidgetItem(parent, {topic.title});
        row->setData(0, FileRole, topic.file);
        return row;
    }

} // namespace

QWidget *frmHelp::BuildContents()
{
    m_contents = new QTreeWidget(this);
    m_contents->setObjectName(u"Contents"_s);
    m_contents->setAccessibleName(u"Contents"_s);
    m_contents->setHeaderHidden(true);
    m_contents->setUniformRowHeights(true);
    for (const HelpChapter &chapter : m_index.Chapters()) {
        auto *group = new QTreeWidgetItem(m_contents, {chapter.title});
        for (const QString &file : chapter.files) {
            if (const HelpTopic *topic = m_index.TopicOfFile(file))
                AddRow(group, *topic);
        }
        // The topics that no page of contents lists are many.
        group->setExpanded(&chapter != &m_index.Chapters().constLast());
    }
    connect(m_contents, &QTreeWidget::itemClicked, this, &frmHelp::ShowRow);
    connect(m_contents, &QTreeWidget::itemActivated, this, &frmHelp::ShowRow);
    return m_contents;
}

QWidget *frmHelp::BuildSearch()
{
    auto *page = new QWidget(this);
    m_words = new QLineEdit(page);
    m_words->setObjectName(u"Words"_s);
    m_words->setClearButtonEnabled(true);
    auto *label = new QLabel(u"&Words to search for:"_s, page);
    label->setBuddy(m_words);
    m_hits = new QListWidget(page);
    m_hits->setObjectName(u"Hits"_s);
    m_hits->setAccessibleName(u"Topics found"_s);
    auto *layout = new QVBoxLayout(page);
    layout->addWidget(label);
    layout->addWidget(m_words);
    layout->addWidget(m_hits, 1);
    page->setFocusProxy(m_words);
    connect(m_words, &QLineEdit::textChanged, this, &frmHelp::Search);
    connect(m_words, &QLineEdit::returnPressed, this, [this] { ShowHit(0); });
    const auto show = [this](QListWidgetItem *hit) { ShowHit(m_hits->row(hit)); };
    connect(m_hits, &QListWidget::itemClicked, this, show);
    connect(m_hits, &QListWidget::itemActivated, this, show);
    return page;
}

QWidget *frmHelp::BuildIndex()
{
    m_keywords = new FilteredTree({u"Keyword"_s, u"Topic"_s}, this);
    m_keywords->setObjectName(u"Keywords"_s);
    QTreeWidget *tree = m_keywords->Tree();
    tree->setRootIsDecorated(false);
    for (const HelpTopic &topic : m_index.Topics()) {
        for (const QString &keyword : topic.keywords) {
            auto *row = new QTreeWidgetItem(tree, {keyword, topic.title});
            row->setData(0, FileRole, topic.file);
        }
    }
    tree->sortItems(0, Qt::AscendingOrder);
    tree->header()->setSectionResizeMode(0, QHeaderView::ResizeToContents);
    connect(tree, &QTreeWidget::itemClicked, this, &frmHelp::ShowRow);
    m_keywords->Activated = [this](const QTreeWidgetItem *row) { ShowRow(row); };
    return m_keywords;
}

void frmHelp::ShowRow(const QTreeWidgetItem *row)
{
    const QString file = row->data(0, FileRole).toString();
    if (!file.isEmpty())
        ShowFile(file);
}

// The contents show where the topic belongs. The view still tells the topic before it.
void frmHelp::FollowTopic(const QUrl &source)
{
    statusBar()->clearMessage();
    const QString file = FileOf(source);
    for (QTreeWidgetItemIterator rows(m_contents); *rows; ++rows) {
        if ((*rows)->data(0, FileRole) != file)
            continue;
        m_contents->setCurrentItem(*rows);
        m_contents->scrollToItem(*rows);
        return;
    }
    m_contents->setCurrentItem(nullptr);
    m_contents->scrollToTop();
}

void frmHelp::Search(const QString &words)
{
    m_hits->clear();
    for (const HelpTopic *topic : m_index.Search(words)) {
        auto *hit = new QListWidgetItem(topic->title, m_hits);
        hit->setData(FileRole, topic->file);
    }
    statusBar()->showMessage(
        words.trimmed().isEmpty() ? QString() : u"Topics found: %1"_s.arg(m_hits->count()));
}

void frmHelp::ShowHit(int row)
{
    const QListWidgetItem *hit = m_hits->item(row);
    if (!hit)
        return;
    ShowFile(hit->data(FileRole).toString());
    m_topic->find(m_words->text().simplified().section(u' ', 0, 0));
}

} // namespace brenix
