#include "app/ObjectsPane.h"

#include "app/PaneList.h"

#include <QAction>

using namespace Qt::StringLiterals;

namespace brenix {

namespace {

    QString PlainCaption(const QAction &command)
    {
        return command.text().remove(u'&').remove(u"..."_s).trimmed();
    }

} // namespace

ObjectsPane::ObjectsPane(const QList<QAction *> &commands, QWidget *parent)
    : QWidget(parent)
    , m_commands(commands)
    , m_objects(NewPaneList(u"Objects1"_s, u"Objects"_s, this))
{
    setObjectName(u"Objects"_s);
    for (int row = 0; row < m_commands.size(); ++row) {
        m_objects->addItem(QString());
        connect(m_commands[row], &QAction::changed, this, [this, row] { Follow(row); });
        Follow(row);
    }
    // Queued: a command may open a dialog, and the list is still in its mouse event.
    connect(
        m_objects,
        &QListWidget::itemActivated,
        this,
        [this](QListWidgetItem *item) { m_commands[m_objects->row(item)]->trigger(); },
        Qt::QueuedConnection);
    NewPaneLayout(this)->addWidget(m_objects, 1);
    setFocusProxy(m_objects);
}

void ObjectsPane::Follow(int row)
{
    const QAction &command = *m_commands[row];
    QListWidgetItem *item = m_objects->item(row);
    item->setText(PlainCaption(command));
    item->setFlags(command.isEnabled() ? Qt::ItemIsEnabled | Qt::ItemIsSelectable
                                       : Qt::NoItemFlags);
}

} // namespace brenix
