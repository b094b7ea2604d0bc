#pragma once

#include <QWebEngineUrlRequestInterceptor>

namespace brenix {

/// Whether a file is the page itself or lies somewhere under the page's folder. False when either
/// does not exist.
bool LiesUnderFolderOf(const QString &page, const QString &path);

/// Judges every request of a page: a page on the disk reads the files under its own folder and no
/// others, a page from the web reads none, and nothing is fetched from the network while offline.
class LocalFileGuard final : public QWebEngineUrlRequestInterceptor
{
public:
    using QWebEngineUrlRequestInterceptor::QWebEngineUrlRequestInterceptor;

    void SetOffline(bool offline) { m_offline = offline; }
    void interceptRequest(QWebEngineUrlRequestInfo &request) override;

private:
    bool m_offline = false;
};

} // namespace brenix
