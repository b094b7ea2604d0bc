#include "app/frmDocument.h"
#include "app/frmMain.h"
#include "editor/CodeHighlight.h"

#include <QAction>
#include <QClipboard>
#include <QGuiApplication>
#include <QLabel>
#include <QMimeData>
#include <QToolBar>

using namespace Qt::StringLiterals;

namespace brenix {

namespace {

    constexpr int CutButton = 8; // of the standard toolbar, from 1, separators counted
    constexpr int CopyButton = 9;

    bool ClipboardHoldsText()
    {
        const QMimeData *data = QGuiApplication::clipboard()->mimeData();
        return data && data->hasText();
    }

} // namespace

void frmMain::FollowSelection(frmDocument &document)
{
    const CodeHighlight &source = document.Source();
    connect(&source, &CodeHighlight::SelChange, this, &frmMain::ShowCaret);
    // After a command of a pane the author goes on in the page.
    connect(&source, &CodeHighlight::Change, this, [this, &document] {
        if (&document == ActiveForm() && document.Source().isVisible())
            document.Source().SetFocus();
    });
}

void frmMain::ShowCaret()
{
    frmDocument *active = ActiveForm();
    const CodeHighlight *source = active ? &active->Source() : nullptr;
    m_linePanel->setText(source ? u"Line: "_s + QString::number(source->LineIndex() + 1)
                                : QString());
    m_characterPanel->setText(source ? u"Character: "_s + QString::number(source->SelStart())
                                     : QString());
    EnableSelectionCommands();
}

// What the design view has selected is its own affair: there the commands that it knows stay
// enabled.
void frmMain::EnableSelectionCommands()
{
    frmDocument *document = ActiveForm();
    if (!document)
        return;
    const bool design = document->Status() == u"Design";
    const bool selected = document->Source().SelLength() != 0;
    for (const QString &name : {u"mnuEditCopy"_s, u"mnuEditCut"_s, u"mnuDelete"_s})
        m_menu->Enable(name, selected || design);
    for (const QString &name : {u"mnuCase"_s, u"mnuFormat"_s})
        m_menu->Enable(name, selected && !design);
    // Asked once for each content: the answer may come from another program.
    if (!m_clipboardHoldsText)
        m_clipboardHoldsText = ClipboardHoldsText();
    m_menu->Enable(u"mnuEditPaste"_s, *m_clipboardHoldsText || design);
    if (!m_toolbar1)
        return;
    const QList<QAction *> buttons = m_toolbar1->actions();
    for (const int number : {CutButton, CopyButton})
        buttons[number - 1]->setEnabled(selected || design);
}

void frmMain::FollowClipboard()
{
    connect(QGuiApplication::clipboard(), &QClipboard::dataChanged, this, [this] {
        m_clipboardHoldsText.reset();
        EnableSelectionCommands();
    });
}

} // namespace brenix
