#pragma once

#include <QWidget>

#include <functional>

class QLineEdit;
class QTreeWidget;
class QTreeWidgetItem;

namespace brenix {

/// A tree with a box above it in which the user types what he looks for. A row stays when every
/// word of the box stands somewhere in its columns, in its search text or in the rows above it; the
/// current row goes to the best of those that stay. The arrow keys move through the tree from
/// either place.
class FilteredTree : public QWidget
{
public:
    /// What a row is found by besides its columns.
    static constexpr int SearchTextRole = Qt::UserRole;

    explicit FilteredTree(const QStringList &columns, QWidget *parent = nullptr);

    QTreeWidget *Tree() const { return m_tree; }
    QLineEdit *Filter() const { return m_filter; }
    /// To be called when the rows are there: each column but the last gets the width of its
    /// contents, the tree a width in which all of them are seen.
    void FitColumns();

    /// Enter or a double click on a row.
    std::function<void(QTreeWidgetItem *row)> Activated;

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void ApplyFilter();
    bool KeyPressed(QObject *watched, int key) const;

    QLineEdit *m_filter;
    QTreeWidget *m_tree;
};

} // namespace brenix
