#pragma once

#include <QHash>
#include <QWidget>

class QLabel;
class QStackedWidget;

namespace brenix {

class NewDocumentPane;

/// The panel at the right side of the main window: a title bar with a close button, and one of its
/// panes.
class Toolbox : public QWidget
{
    Q_OBJECT

public:
    explicit Toolbox(QWidget *parent = nullptr);

    /// Adds a pane under its object name and title; the first one is shown.
    void AddPane(QWidget *pane, const QString &title);
    void ShowPane(QWidget *pane);

signals:
    void CloseClicked();

private:
    QLabel *m_title; // Label1
    QStackedWidget *m_panes;
    QHash<QWidget *, QString> m_titles;
};

} // namespace brenix
