#include "app/CloseProtocol.h"

#include "support/MessageBoxes.h"
#include "support/PreviewCopies.h"
#include "support/SourceView.h"
#include "support/UntitledPages.h"

#include <QFile>

using namespace Qt::StringLiterals;

namespace brenix {

namespace {

    // False when the page could not be written and must stay open.
    bool SaveBeforeClosing(DocumentModel &document)
    {
        QString path = document.Caption();
        if (IsUntitled(path) || (document.Unread && QFile::exists(path))) {
            path = SaveFileName({.title = u"Save"_s,
                                 .filter = u"All Files (*.*)|*.*"_s,
                                 .name = {},
                                 .defaultSuffix = {}});
            if (path.isEmpty())
                return false;
        }
        if (!document.rtfText().SaveFile(path))
            return false;
        // Another page may still keep the program from ending.
        document.Unread = false;
        document.Caption = path;
        document.Modyfied = u"0"_s;
        return true;
    }

} // namespace

bool MayClose(DocumentModel &document, const MainWindowBars &bars, const QString &activeCaption)
{
    if (bars.ModifiedPanel() != u"Modified")
        return true;
    const Answer answer = MsgBox(u"Do you want save "_s + activeCaption + u"?"_s,
                                 Buttons::YesNoCancel,
                                 Icon::Question,
                                 Answer::Cancel);
    return answer == Answer::No || (answer == Answer::Yes && SaveBeforeClosing(document));
}

bool CloseDocument(DocumentModel &document,
                   const MainWindowBars &bars,
                   const QString &activeCaption)
{
    if (!MayClose(document, bars, activeCaption))
        return false;
    DropPreviewCopy(document.Banen());
    return true;
}

} // namespace brenix
