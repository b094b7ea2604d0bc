#include "tags/ChooseLink.h"

#include "support/DocumentModel.h"
#include "support/UntitledPages.h"
#include "tags/RelativePath.h"

using namespace Qt::StringLiterals;

namespace brenix {

namespace {

    // A page that was never saved lies in the directory for such pages, where nothing else is.
    QString StartFolder(const DocumentModel &page)
    {
        return IsUntitled(page.Caption()) ? QString() : page.Folder();
    }

} // namespace

QString LinkTo(const DocumentModel &page, const QString &path)
{
    if (IsUntitled(page.Caption()))
        MsgBox(u"You should save your document before using this feature. Brenix cannot calculate "
               "the relative path, and will insert the absolute path."_s,
               Buttons::Ok,
               Icon::Information);
    return LinkAddress(page, path);
}

FileDialog LinkTargets(const DocumentModel &page)
{
    return {.title = u"Link to file"_s,
            .filter = u"All Files (*.*)|*.*|HyperText files (*.html;*.htm)|*.html;*.htm|"
                      "URL Files (*.url)|*.url|"
                      "Webfiles (*.xml;*.asp;*.pl;*.gif;*.jpg;*.jpeg;*.html;*.htm)|"
                      "*.xml;*.asp;*.pl;*.gif;*.jpg;*.jpeg;*.html;*.htm"_s,
            .name = StartFolder(page),
            .filterIndex = 2};
}

QString ChooseLink(const DocumentModel &page, FileDialog dialog)
{
    dialog.name = StartFolder(page);
    const QString path = OpenFileName(dialog);
    return path.isEmpty() ? path : LinkTo(page, path);
}

} // namespace brenix
