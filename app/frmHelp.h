#pragma once

#include "help/HelpIndex.h"

#include <QMainWindow>

class QLineEdit;
class QListWidget;
class QTabWidget;
class QTextBrowser;
class QTreeWidget;
class QTreeWidgetItem;
class QUrl;

namespace brenix {

class FilteredTree;

/// The help: topics at the right; contents, search and an index of keywords at the left. A normal
/// window that stays above its owner. Links between topics are followed; any other address is only
/// told in the status bar, and nothing is ever fetched.
class frmHelp : public QMainWindow
{
public:
    /// The topics are those of a folder; without any, the window says so.
    frmHelp(const QString &folder, QWidget *owner);

    /// Each brings the window to the front. A keyword without a topic gives false and changes
    /// nothing.
    bool ShowKeyword(const QString &keyword);
    void ShowContents();
    void ShowSearch();

    /// The window goes over to another owner, and stays as it is.
    void SetOwner(QWidget *owner);

protected:
    void changeEvent(QEvent *event) override;

private:
    void BuildToolbar();
    void BuildTopic();
    QWidget *BuildContents();
    QWidget *BuildSearch();
    QWidget *BuildIndex();
    void ShowFile(const QString &file);
    void ShowRow(const QTreeWidgetItem *row);
    QString FileOf(const QUrl &source) const;
    void FollowLink(const QUrl &link);
    void FollowTopic(const QUrl &source);
    void Search(const QString &words);
    void ShowHit(int row);
    void Zoom(int steps);
    void ApplyPalette();
    void Present();

    HelpIndex m_index;
    QTabWidget *m_tabs;
    QTreeWidget *m_contents = nullptr;
    QLineEdit *m_words = nullptr;
    QListWidget *m_hits = nullptr;
    FilteredTree *m_keywords = nullptr;
    QTextBrowser *m_topic;
    int m_zoom = 0; // steps from the normal size
};

} // namespace brenix
