#include "support/WebEngineModule.h"

#include "support/DesignScheme.h"
#include "support/WebDesignView.h"
#include "support/WebEngineView.h"

#include <QLoggingCategory>
#include <QWebEngineProfile>

namespace brenix {

using namespace Qt::StringLiterals;

namespace {

    constexpr char engineOptions[] = "QTWEBENGINE_CHROMIUM_FLAGS";

} // namespace

WebEngineModule::WebEngineModule()
{
    DesignScheme::Register();
    // The requests of a shared worker pass by the guard: it could read any file.
    const QByteArray options = qgetenv(engineOptions);
    qputenv(engineOptions, options + " --disable-shared-workers");
    // thirty lines on the terminal at every start of the engine
    QLoggingCategory::setFilterRules(u"qt.webenginecontext.info=false"_s);
}

BrowserView *WebEngineModule::CreateBrowserView(QWidget *parent)
{
    std::shared_ptr<QWebEngineProfile> profile = m_profile.lock();
    if (!profile) {
        // Without a storage name a profile is off the record. Nobody answers its download requests,
        // so there are none.
        profile = std::make_shared<QWebEngineProfile>();
        m_profile = profile;
    }
    return new WebEngineView(std::move(profile), parent);
}

DesignView *WebEngineModule::CreateDesignView(QWidget *parent)
{
    return new WebDesignView(parent);
}

} // namespace brenix
