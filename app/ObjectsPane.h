#pragma once

#include <QList>
#include <QWidget>

class QAction;
class QListWidget;

namespace brenix {

/// The objects that can be put into a page, each a command of the menu: a double click or Enter
/// runs it. A row has the caption of its command, and can be chosen when the command can be run.
class ObjectsPane : public QWidget
{
public:
    explicit ObjectsPane(const QList<QAction *> &commands, QWidget *parent = nullptr);

private:
    void Follow(int row);

    QList<QAction *> m_commands;
    QListWidget *m_objects; // Objects1
};

} // namespace brenix
