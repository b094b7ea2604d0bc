#pragma once

#include "app/ActivePage.h"

#include <QFileSystemWatcher>
#include <QTimer>
#include <QWidget>

class QListWidget;

namespace brenix {

/// The files of the folder that the page lies in: a double click or Enter inserts a picture or a
/// link. While it is shown it follows the folder.
class ProjectPane : public QWidget
{
public:
    explicit ProjectPane(ActivePage activePage, QWidget *parent = nullptr);

    /// Looks which folder the active page is in.
    void Follow();

protected:
    void showEvent(QShowEvent *event) override;
    void hideEvent(QHideEvent *event) override;

private:
    void Watch(const QString &folder);
    void Refresh();
    void Insert(const QString &fileName);

    ActivePage m_activePage;
    QListWidget *m_files; // listView1
    QString m_folder; // the one that is shown
    QStringList m_names;
    QFileSystemWatcher m_watcher;
    QTimer m_refresh;
};

} // namespace brenix
