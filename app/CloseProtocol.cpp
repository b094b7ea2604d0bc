#include "app/CloseProtocol.h"

#include "app/Documents.h"
#include "support/MessageBoxes.h"
#include "support/PreviewCopies.h"
#include "support/SourceView.h"

using namespace Qt::StringLiterals;

namespace brenix {

namespace {

    // False when the page could not be written and must stay open.
    bool SaveBeforeClosing(DocumentModel &document)
    {
        QString path = document.Caption();
        if (IsUntitled(path)) {
            path = SaveFileName({.title = u"Save"_s,
                                 .filter = u"All Files (*.*)|*.*"_s,
                                 .name = {},
                                 .defaultSuffix = {}});
            if (path.isEmpty())
                return false;
        }
        return document.rtfText().SaveFile(path);
    }

} // namespace

bool CloseDocument(DocumentModel &document,
                   const MainWindowBars &bars,
                   const QString &activeCaption)
{
    if (bars.ModifiedPanel() == u"Modified") {
        const Answer answer = MsgBox(u"Do you want save "_s + activeCaption + u"?"_s,
                                     Buttons::YesNoCancel,
                                     Icon::Question,
                                     Answer::Cancel);
        if (answer == Answer::Cancel || (answer == Answer::Yes && !SaveBeforeClosing(document)))
            return false;
    }
    DropPreviewCopy(document.Banen());
    return true;
}

} // namespace brenix
