#pragma once

#include "app/ActivePage.h"
#include "checks/CheckReport.h"
#include "checks/Pulse.h"

#include <QWidget>

class QListWidget;
class QPushButton;

namespace brenix {

/// The report of a check: a click or Enter on a line leads the caret to its place, and brings the
/// source up where another view is shown.
class ErrorCheckerPane : public QWidget
{
    Q_OBJECT

public:
    explicit ErrorCheckerPane(ActivePage activePage, QWidget *parent = nullptr);

    /// What "Check!" does; without it the button can't be pressed.
    void SetCheck(std::function<void()> check);
    /// A check within the program, offered by the list's menu. It gets the text and the caption of
    /// the page. While it runs "Check!" is "Stop", which ends it. A report that no one would read
    /// to its end is shown without its middle.
    using Checker
        = std::function<CheckReport(const QString &text, const QString &caption, const GoOn &goOn)>;
    void AddChecker(const char16_t *name, const QString &caption, Checker checker);
    QPushButton &CheckButton() { return *m_button; }
    void Clear();
    void AddLine(const QString &line);
    /// In one step, however many there are.
    void AddLines(const QStringList &lines);

signals:
    /// Another check begins.
    void Cleared();

private:
    void Press();
    void Run(Checker checker);
    bool IsRunning() const;
    void JumpTo(const QString &line);

    ActivePage m_activePage;
    std::function<void()> m_check;
    QListWidget *m_report; // List5
    QPushButton *m_button; // Command3
};

} // namespace brenix
