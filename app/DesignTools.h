#pragma once

#include <QHash>
#include <QToolBar>

#include <functional>

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

signals:
    /// A table is wanted; `place` is the lower left corner of the button, on the screen.
    void TableClicked(const QPoint &place);

private:
    void AddCommand(QToolBar &bar, const char16_t *icon, const char16_t *tip, int command);
    void AddTextFormat();
    QAction *AddView(const char16_t *icon,
                     const QString &tip,
                     const std::function<void(bool)> &show);
    void ChooseTextColour();

    DesignView *m_view = nullptr;
    QHash<int, QAction *> m_commands;
    QAction *m_borders;
    QAction *m_details;
};

} // namespace brenix
