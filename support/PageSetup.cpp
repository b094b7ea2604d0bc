#include "support/PageSetup.h"

#include <QWebEnginePage>
#include <QWebEngineSettings>

namespace brenix {

void RestrictPage(QWebEnginePage &page)
{
    QWebEngineSettings *options = page.settings();
    options->setAttribute(QWebEngineSettings::JavascriptCanOpenWindows, false);
    options->setUnknownUrlSchemePolicy(QWebEngineSettings::DisallowUnknownUrlSchemes);
}

QWebEngineScript OwnScript(const QString &name,
                           const QString &code,
                           QWebEngineScript::InjectionPoint point)
{
    QWebEngineScript script;
    script.setName(name);
    script.setSourceCode(code);
    script.setInjectionPoint(point);
    script.setWorldId(QWebEngineScript::ApplicationWorld);
    return script;
}

} // namespace brenix
