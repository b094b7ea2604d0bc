#pragma once

#include <QWebEngineUrlRequestInterceptor>

namespace brenix {

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
