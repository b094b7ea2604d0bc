#pragma once

#include "support/WebModule.h"

#include <QObject>

#include <memory>

class QWebEngineProfile;

namespace brenix {

/// The root object of the module. Its previews share one profile that leaves nothing on the disk;
/// it goes with the last of them, since the engine must not lose a profile while a page of it
/// lives.
class WebEngineModule final : public QObject, public WebModule
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID BrenixWebModuleId)
    Q_INTERFACES(brenix::WebModule)

public:
    WebEngineModule();
    BrowserView *CreateBrowserView(QWidget *parent) override;
    DesignView *CreateDesignView(QWidget *parent) override;

private:
    std::weak_ptr<QWebEngineProfile> m_profile;
};

} // namespace brenix
