#pragma once

#include <QHash>
#include <QToolBar>

namespace brenix {

class DesignView;

/// The buttons of the design view: character format, alignment, lists, and what is shown of the
/// page's skeleton.
class DesignTools : public QToolBar
{
    Q_OBJECT

public:
    explicit DesignTools(QWidget *parent = nullptr);

    /// The buttons act on this view from now on; null for none.
    void SetView(DesignView *view);
    /// Presses the buttons that hold for the selection.
    void Follow();

private:
    void AddView(const char16_t *icon,
                 const QString &tip,
                 bool (DesignView::*shown)() const,
                 void (DesignView::*show)(bool));
    void ChooseTextColour();

    DesignView *m_view = nullptr;
    QHash<int, QAction *> m_commands;
    QHash<QAction *, bool (DesignView::*)() const> m_shows;
};

} // namespace brenix
