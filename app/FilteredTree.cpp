#include "app/FilteredTree.h"

#include <QCoreApplication>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QScrollBar>
#include <QTreeWidget>
#include <QTreeWidgetItemIterator>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace brenix {

namespace {

    bool HasAll(const QString &text, const QStringList &words)
    {
        return std::all_of(words.begin(), words.end(), [&text](const QString &word) {
            return text.contains(word, Qt::CaseInsensitive);
        });
    }

    /// Hides what the words do not find; true when the row or one below it stays.
    bool ShowFound(QTreeWidgetItem *row, const QString &above, const QStringList &words)
    {
        QString text = above;
        for (int column = 0; column < row->columnCount(); ++column)
            text += row->text(column) + u'\n';
        bool stays = row->childCount() == 0
            && HasAll(text + row->data(0, FilteredTree::SearchTextRole).toString(), words);
        for (int i = 0; i < row->childCount(); ++i)
            stays |= ShowFound(row->child(i), text, words);
        row->setHidden(!stays);
        return stays;
    }

    /// Of the rows that are shown: one whose name begins with the typed text, else one that has it
    /// in its name, else the first that is no group.
    QTreeWidgetItem *BestRow(QTreeWidget *tree, const QString &typed)
    {
        QTreeWidgetItem *best = nullptr;
        int bestRank = 0;
        for (QTreeWidgetItemIterator rows(tree, QTreeWidgetItemIterator::NotHidden); *rows;
             ++rows) {
            const QString name = (*rows)->text(0);
            int rank = 1;
            if (name.startsWith(typed, Qt::CaseInsensitive))
                rank = 3;
            else if (name.contains(typed, Qt::CaseInsensitive))
                rank = 2;
            if ((*rows)->childCount() == 0 && rank > bestRank) {
                best = *rows;
                bestRank = rank;
            }
        }
        return best;
    }

} // namespace

FilteredTree::FilteredTree(const QStringList &columns, QWidget *parent)
    : QWidget(parent)
    , m_filter(new QLineEdit(this))
    , m_tree(new QTreeWidget(this))
{
    auto *label = new QLabel(u"&Find:"_s, this);
    label->setBuddy(m_filter);
    m_filter->setObjectName(u"Filter"_s);
    m_filter->setAccessibleName(u"Find"_s);
    m_filter->setClearButtonEnabled(true);
    m_tree->setObjectName(u"TreeView"_s);
    m_tree->setAccessibleName(columns.value(0));
    m_tree->setHeaderLabels(columns);
    m_tree->setUniformRowHeights(true);
    m_tree->setAllColumnsShowFocus(true);

    auto *layout = new QGridLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(label, 0, 0);
    layout->addWidget(m_filter, 0, 1);
    layout->addWidget(m_tree, 1, 0, 1, 2);
    setFocusProxy(m_filter);

    connect(m_filter, &QLineEdit::textChanged, this, &FilteredTree::ApplyFilter);
    connect(m_tree, &QTreeWidget::itemDoubleClicked, this, [this](QTreeWidgetItem *row) {
        if (Activated)
            Activated(row);
    });
    m_filter->installEventFilter(this);
    m_tree->installEventFilter(this);
}

void FilteredTree::FitColumns()
{
    // Collapsed rows are not measured.
    m_tree->expandAll();
    int width = 2 * m_tree->frameWidth() + m_tree->verticalScrollBar()->sizeHint().width();
    for (int column = 0; column < m_tree->columnCount(); ++column) {
        m_tree->resizeColumnToContents(column);
        width += m_tree->columnWidth(column);
    }
    m_tree->collapseAll();
    m_tree->setMinimumWidth(width);
}

void FilteredTree::ApplyFilter()
{
    const QString typed = m_filter->text().simplified();
    const QStringList words = typed.split(u' ', Qt::SkipEmptyParts);
    for (int i = 0; i < m_tree->topLevelItemCount(); ++i)
        ShowFound(m_tree->topLevelItem(i), {}, words);
    if (words.isEmpty()) {
        m_tree->collapseAll();
    } else {
        m_tree->expandAll();
        m_tree->setCurrentItem(BestRow(m_tree, typed));
    }
    if (QTreeWidgetItem *row = m_tree->currentItem())
        m_tree->scrollToItem(row);
}

bool FilteredTree::KeyPressed(QObject *watched, int key) const
{
    switch (key) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
        if (!Activated || !m_tree->currentItem())
            return false;
        Activated(m_tree->currentItem());
        return true;
    default:
        return false;
    case Qt::Key_Up:
    case Qt::Key_Down:
    case Qt::Key_PageUp:
    case Qt::Key_PageDown:
        return watched == m_filter;
    }
}

bool FilteredTree::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() != QEvent::KeyPress)
        return QWidget::eventFilter(watched, event);
    const int key = static_cast<QKeyEvent *>(event)->key();
    if (!KeyPressed(watched, key))
        return QWidget::eventFilter(watched, event);
    if (key != Qt::Key_Return && key != Qt::Key_Enter)
        QCoreApplication::sendEvent(m_tree, event);
    return true;
}

} // namespace brenix
