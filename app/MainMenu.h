#pragma once

#include <QHash>
#include <QSet>
#include <QString>

#include <functional>

class QAction;
class QMenu;
class QMenuBar;

namespace brenix {

/// The menu tree of the main window, built from one table of names, captions and shortcuts. An
/// action's object name is its menu name. A command that has nothing to run is in the tree, but can
/// never be chosen.
class MainMenu
{
public:
    using Command = std::function<void()>;
    using Commands = QHash<QString, Command>;

    MainMenu(QMenuBar *bar, const Commands &commands);

    /// Enables or disables an item, or a menu with all its items; what has nothing to run stays
    /// disabled.
    void Enable(const QString &name, bool enabled);
    /// Gives an item or a menu another caption; a name that the tree lacks is passed over.
    void SetCaption(const QString &name, const QString &caption);
    /// The action of a menu name; null when the tree has none.
    QAction *ActionOf(const QString &name) const { return m_actions.value(name); }
    QMenu *MenuOf(const QString &name) const { return m_menus.value(name); }

private:
    QHash<QString, QAction *> m_actions;
    QHash<QString, QMenu *> m_menus;
    QSet<QString> m_working; // items that have something to run
};

} // namespace brenix
