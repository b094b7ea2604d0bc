#include "support/LocalFileGuard.h"

#include <QFileInfo>
#include <QUrl>

namespace brenix {

using namespace Qt::StringLiterals;

namespace {

    // Both paths are compared as they really are: a symbolic link must not lead out of the folder.
    bool LiesUnderFolderOf(const QUrl &page, const QUrl &url)
    {
        const QFileInfo pageFile(page.toLocalFile());
        const QString file = QFileInfo(url.toLocalFile()).canonicalFilePath();
        QString folder = QFileInfo(pageFile.absolutePath()).canonicalFilePath();
        if (file.isEmpty() || folder.isEmpty())
            return false;
        if (file == pageFile.canonicalFilePath())
            return true;
        if (!folder.endsWith(u'/'))
            folder += u'/';
        return file.startsWith(folder);
    }

    bool MayRead(const QWebEngineUrlRequestInfo &request)
    {
        const QUrl initiator = request.initiator();
        if (request.resourceType() == QWebEngineUrlRequestInfo::ResourceTypeMainFrame)
            return initiator.isEmpty() || initiator.isLocalFile();
        const QUrl page = request.firstPartyUrl();
        return page.isLocalFile() && LiesUnderFolderOf(page, request.requestUrl());
    }

    bool NeedsNetwork(const QUrl &url)
    {
        return !QStringList{u"about"_s, u"blob"_s, u"data"_s, u"file"_s}.contains(url.scheme());
    }

} // namespace

void LocalFileGuard::interceptRequest(QWebEngineUrlRequestInfo &request)
{
    const QUrl url = request.requestUrl();
    if (url.isLocalFile() ? !MayRead(request) : m_offline && NeedsNetwork(url))
        request.block(true);
}

} // namespace brenix
