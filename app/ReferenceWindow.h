#pragma once

#include <QDialog>

#include <functional>

class QLabel;
class QPushButton;
class QTreeWidgetItem;

namespace brenix {

class FilteredTree;
struct ReferenceEntry;
struct ReferenceTable;

/// A window beside the page that is written: a tree of groups and their members from a file of the
/// application directory, with the meaning of the current one below it. Enter, a double click or
/// the button hands a member to `Insert`; the window stays open. Esc closes it.
class ReferenceWindow : public QDialog
{
protected:
    struct About
    {
        const char16_t *name; ///< of the window
        QString title;
        QString file; ///< below the application directory
    };
    ReferenceWindow(const About &about,
                    std::function<void(const QString &member)> insert,
                    QWidget *parent);

private:
    void Fill(const ReferenceTable &table);
    void ShowMeaning(const QTreeWidgetItem *row);
    void InsertRow(const QTreeWidgetItem *row);

    std::function<void(const QString &)> m_insert;
    FilteredTree *m_tree;
    QLabel *m_meaning;
    QPushButton *m_insertButton;
};

} // namespace brenix
