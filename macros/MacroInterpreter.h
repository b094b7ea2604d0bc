#pragma once

#include "macros/MacroFiles.h"
#include "macros/SendKeys.h"

#include <QString>

namespace brenix {

class DocumentModel;

/// What a running macro needs of the program around its page. Everything may take a while and let
/// events run, so that the page may be gone afterwards.
class MacroHost
{
public:
    virtual ~MacroHost() = default;

    /// The page that the macro works on; null when it was closed, or is in a view in which its
    /// source must not be changed. The macro then ends.
    virtual DocumentModel *Page() = 0;
    /// Lets events run; false when the author wants the macro to end.
    virtual bool LetEventsRun() = 0;
    /// Lets events run for that long; false as above.
    virtual bool Wait(qint64 milliseconds) = 0;
    /// Does what a command of the menu does; nothing where the command is missing or disabled.
    virtual void Command(const QString &menuName) = 0;
    /// Opens a page from the standard template, which the macro works on from then on.
    virtual void NewHtml() = 0;
    /// Ends the program at once: no page is saved, and nothing asked.
    virtual void End() = 0;
    virtual void Beep() = 0;
    virtual QString ClipboardText() = 0;
    virtual void SetClipboardText(const QString &text) = 0;
    /// What is searched for next.
    virtual void SetSearchText(const QString &text) = 0;
    virtual void PressKeys(const QList<KeyStroke> &keys) = 0;
    /// Starts a program, and does not wait for its end; false when that cannot be done.
    virtual bool StartProgram(const QString &program, const QStringList &arguments) = 0;
};

/// Runs a macro. What stands in square brackets is a command, in any case; one that is not known is
/// typed as it is, in lower case, like all text between the commands. Text before the first command
/// is not typed, unless there is no command at all. Ends at the first failure, which is returned;
/// what was typed stays. Ends without a failure when the page is gone or the author wants it.
MacroError RunMacro(const QString &macro, MacroHost &host);

} // namespace brenix
