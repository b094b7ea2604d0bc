#include "support/LocalFileGuard.h"

#include <QFileInfo>
#include <QUrl>

namespace brenix {

using namespace Qt::StringLiterals;

namespace {

    bool MayRead(const QWebEngineUrlRequestInfo &request)
    {
        const QUrl initiator = request.initiator();
        if (request.resourceType() == QWebEngineUrlRequestInfo::ResourceTypeMainFrame)
            return initiator.isEmpty() || initiator.isLocalFile();
        const QUrl page = request.firstPartyUrl();
        return page.isLocalFile()
            && LiesUnderFolderOf(page.toLocalFile(), request.requestUrl().toLocalFile());
    }

    bool NeedsNetwork(const QUrl &url)
    {
        return !QStringList{u"about"_s, u"blob"_s, u"data"_s, u"file"_s}.contains(url.scheme());
    }

} // namespace

// Both paths are compared as they really are: a symbolic link must not lead out of the folder.
bool LiesUnderFolderOf(const QString &page, const QString &path)
{
    const QFileInfo pageFile(page);
    const QString file = QFileInfo(path).canonicalFilePath();
    QString folder = QFileInfo(pageFile.absolutePath()).canonicalFilePath();
    if (file.isEmpty() || folder.isEmpty())
        return false;
    if (file == pageFile.canonicalFilePath())
        return true;
    if (!folder.endsWith(u'/'))
        folder += u'/';
    return file.startsWith(folder);
}

void LocalFileGuard::interceptRequest(QWebEngineUrlRequestInfo &request)
{
    const QUrl url = request.requestUrl();
    if (url.isLocalFile() ? !MayRead(request) : m_offline && NeedsNetwork(url))
        request.block(true);
}

} // namespace brenix
