#include "app/frmDocument.h"
#include "app/frmHelp.h"
#include "app/frmMain.h"
#include "support/DesignView.h"
#include "support/Help.h"
#include "support/MessageBoxes.h"
#include "support/Paths.h"
#include "support/SourceView.h"
#include "tags/SelectTag.h"
#include "tags/TagHelp.h"

#include <QApplication>
#include <QDialog>
#include <QDir>

using namespace Qt::StringLiterals;

namespace brenix {

namespace {

    // The help belongs to the program and not to the author, whose copy of the data would stay as
    // old as it is.
    QString HelpFolder()
    {
        const QDir installed(QCoreApplication::applicationDirPath() + u"/../share/brenix/Help"_s);
        const bool isGiven = qEnvironmentVariableIsSet("BRENIX_APPDIR");
        return !isGiven && installed.exists() ? QDir::cleanPath(installed.path())
                                              : AppPath(u"Help");
    }

} // namespace

void frmMain::AddHelpCommands(MainMenu::Commands &commands)
{
    SetHelpHandler([window = QPointer(this)](HelpPlace place, const QString &keyword) {
        if (window)
            window->OpenHelp(place, keyword);
    });
    commands[u"mnuHelpContents"_s] = [] { ShowHelpContents(); };
    commands[u"mnuHelpSearchForHelpOn"_s] = [] { ShowHelpSearch(); };
    commands[u"mnuHTMLreference"_s] = [] { ShowHelp(u"html reference"_s); };
    commands[u"mnuHelpTag"_s] = [this] {
        ForActive([](frmDocument &page) {
            const DesignView *design = page.Status() == u"Design" ? page.Design() : nullptr;
            if (!design)
                SelectTagAtCaret(page.rtfText());
            ShowHelp(TagHelpKeyword(design ? u'<' + design->ActiveElement() + u'>'
                                           : page.rtfText().SelText()));
        });
    };
}

// A window that a modal dialog does not own could not be used beside it.
frmHelp &frmMain::HelpWindow()
{
    QWidget *dialog = QApplication::activeModalWidget();
    QWidget *owner = dialog ? dialog : this;
    if (!m_help)
        m_help = new frmHelp(HelpFolder(), owner);
    else if (m_help->parentWidget() != owner)
        m_help->SetOwner(owner);
    else
        return *m_help;
    if (auto *modal = qobject_cast<QDialog *>(dialog))
        connect(modal, &QDialog::finished, m_help, [this] { m_help->SetOwner(this); });
    return *m_help;
}

void frmMain::OpenHelp(HelpPlace place, const QString &keyword)
{
    frmHelp &help = HelpWindow();
    if (place == HelpPlace::Contents)
        help.ShowContents();
    else if (place == HelpPlace::Search)
        help.ShowSearch();
    else if (!help.ShowKeyword(keyword))
        MsgBox(u"Keyword not found!"_s, Buttons::Ok, Icon::Information);
}

} // namespace brenix
