#include "checks/PageFile.h"

#include "support/DocumentModel.h"

#include <QFileInfo>

namespace brenix {

QString FileOfPage(const DocumentModel &page)
{
    for (const QString &file : {page.Caption(), page.Banen()}) {
        if (QFileInfo(file).isFile())
            return file;
    }
    return {};
}

} // namespace brenix
