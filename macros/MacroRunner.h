#pragma once

#include "macros/MacroFiles.h"

#include <QObject>
#include <QTimer>

#include <functional>

namespace brenix {

class DocumentModel;

/// What the running of macros needs of the main window.
struct MacroWindow
{
    std::function<DocumentModel *()> activePage; ///< null when none is open
    std::function<bool(const DocumentModel *page)> isOpen; ///< the page may be gone already
    std::function<void(const QString &menuName)> command;
    std::function<void()> newHtml; ///< the new page becomes the active one
    std::function<void(const QString &text)> setSearchText;
    std::function<void()> end; ///< ends the program, and asks for nothing
    std::function<void()> edit; ///< opens the dialog of the macros
    std::function<void()> finished; ///< the page is as the macro has left it
};

/// Runs macros on the active page while the window stays usable. Esc ends all that run; closing a
/// page those that work on it. A macro that is started while another waits runs inside it.
class MacroRunner : public QObject
{
public:
    explicit MacroRunner(MacroWindow window, QObject *parent = nullptr);

    /// Runs the macro of that name as soon as events are next run, so that no handler of a key of
    /// the page is under way. A failure is told, and the dialog of the macros offered.
    void Start(const QString &name);
    /// Asks whether the author wants to make the first macro.
    void OfferFirst();

protected:
    /// Watches for Esc.
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    class Host;

    void Run(const QString &name);
    void RunOn(DocumentModel &page, const QString &macro);
    void TellFailure(const MacroError &error);
    bool Wait(qint64 milliseconds, const std::function<bool()> &goOn);

    MacroWindow m_window;
    QTimer m_wait;
    bool m_waitDone = false; // shared by all that run
    bool m_isStopped = false;
    bool m_pressesKeys = false; // an Esc is the macro's own
    int m_running = 0; // one inside the other
};

} // namespace brenix
