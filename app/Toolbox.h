#pragma once

#include <QHash>
#include <QTimer>
#include <QWidget>

#include <functional>

class QAction;
class QActionGroup;
class QLabel;
class QMenu;
class QStackedWidget;
class QToolButton;

namespace brenix {

/// The panel at the right side of the main window: a title bar with a menu of the panes and a close
/// button, and one of its panes. A pane is made when it is first shown.
class Toolbox : public QWidget
{
    Q_OBJECT

public:
    explicit Toolbox(QWidget *parent = nullptr);

    /// A pane and its command in the pop-up menu.
    struct Pane
    {
        QString command;
        QString caption;
        QString title;
        std::function<QWidget *()> make;
    };
    void AddPane(const Pane &pane);
    /// The pane that is shown as soon as the toolbox itself is.
    void StartWith(const QString &command);
    /// Shows the pane of a command, and makes it at need; an unknown name changes nothing.
    void ShowPane(const QString &command);
    /// Makes the pane at need, without showing it.
    void MakePane(const QString &command);
    void FocusPane();
    /// Draws the eye to the title for a moment.
    void BlinkTitle();
    /// Gives a command of the pop-up menu another caption; an unknown name is passed over.
    void SetCaption(const QString &command, const QString &caption);

signals:
    void CloseClicked();

protected:
    void showEvent(QShowEvent *event) override;

private:
    void BuildTitleBar();
    QAction *ActionOf(const QString &command) const;
    QWidget *Made(const QString &command);

    QLabel *m_title; // Label1
    QToolButton *m_arrow; // Image1
    QMenu *m_menu; // mnuToolbox
    QActionGroup *m_commands;
    QStackedWidget *m_stack;
    QHash<QString, Pane> m_panes; // by command
    QHash<QString, QWidget *> m_made;
    QString m_first;
    QTimer m_blink;
};

} // namespace brenix
