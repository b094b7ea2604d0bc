#pragma once

#include "checks/Pulse.h"
#include "support/FormDialog.h"

class QListWidget;

namespace brenix {

/// A dialog that goes through much at once while its window stays usable. Closing it ends the walk.
class WalkDialog : public FormDialog
{
public:
    using FormDialog::FormDialog;

    void done(int result) override;

protected:
    /// Lets the events run; false once the dialog was closed or is gone.
    GoOn LetEventsRun();
    /// Does the work when the dialog has opened.
    void StartWhenShown(std::function<void()> work);
    /// Adds lines to a list whose rows are all of one size, which becomes that of the longest line:
    /// the list can be scrolled to its end.
    static void AddLines(QListWidget &list, const QStringList &lines);
    void showEvent(QShowEvent *event) override;

private:
    bool m_isClosed = false;
    std::function<void()> m_work;
};

} // namespace brenix
