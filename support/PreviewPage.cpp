#include "support/PreviewPage.h"

#include "support/PageSetup.h"

#include <QPointF>
#include <QWebEngineNewWindowRequest>
#include <QWebEngineScript>
#include <QWebEngineScriptCollection>
#include <QWebEngineSettings>

#include <utility>

namespace brenix {

using namespace Qt::StringLiterals;

namespace {

    constexpr int boxesPerLoad = 3;

    // A page that asks before it is left would ask at every refresh, and a "no" would keep the old
    // text on show.
    constexpr QStringView leaveWithoutAsking = uR"(
    addEventListener('beforeunload', event => event.stopImmediatePropagation(), true);
)";

    // Pictures may give the page its height only when they have arrived, so it is placed twice,
    // unless the user has moved it between. The engine keeps the place of a page by itself, but a
    // page that was too short for it never gets it back.
    constexpr QStringView placePage = uR"((() => {
    const engineKeepsPlace = history.scrollRestoration;
    history.scrollRestoration = 'manual';
    let moved = false;
    for (const kind of ['wheel', 'keydown', 'mousedown', 'touchstart'])
        addEventListener(kind, () => moved = true, {once: true, capture: true, passive: true});
    const place = () => moved || scrollTo({left: %1, top: %2, behavior: 'instant'});
    place();
    addEventListener('load', () => {
        place();
        setTimeout(() => history.scrollRestoration = engineKeepsPlace);
    });
})())";

    const QString placeName = u"place"_s;

} // namespace

PreviewPage::PreviewPage(QWebEngineProfile *profile, QObject *parent)
    : QWebEnginePage(profile, parent)
{
    setUrlRequestInterceptor(&m_guard);
    RestrictPage(*this);
    settings()->setAttribute(QWebEngineSettings::ErrorPageEnabled, false);
    settings()->setAttribute(QWebEngineSettings::FocusOnNavigationEnabled, false);
    settings()->setAttribute(QWebEngineSettings::LocalContentCanAccessRemoteUrls, true);
    scripts().insert(
        OwnScript(u"leave"_s, leaveWithoutAsking.toString(), QWebEngineScript::DocumentCreation));

    // A load that came to nothing leaves the old page on show.
    connect(this, &QWebEnginePage::loadFinished, this, [this] { AllowScriptsFor(url()); });
    // A link that asks for a window of its own is followed in this one.
    connect(this, &QWebEnginePage::newWindowRequested, this, [this](auto &request) {
        const QUrl target = request.requestedUrl();
        const bool fromWeb = !url().isLocalFile();
        if (request.isUserInitiated() && !(fromWeb && target.isLocalFile()))
            load(target);
    });
}

void PreviewPage::AllowBoxes()
{
    m_boxesLeft = boxesPerLoad;
}

void PreviewPage::BeginAt(QPointF position)
{
    BeginAnywhere();
    const QString code
        = placePage.toString().arg(position.x(), 0, 'f', 2).arg(position.y(), 0, 'f', 2);
    scripts().insert(OwnScript(placeName, code, QWebEngineScript::DocumentReady));
}

void PreviewPage::BeginAnywhere()
{
    for (const QWebEngineScript &script : scripts().find(placeName))
        scripts().remove(script);
}

bool PreviewPage::acceptNavigationRequest(const QUrl &url, NavigationType, bool isMainFrame)
{
    if (!isMainFrame)
        return true;
    if (!QStringList{u"about"_s, u"data"_s, u"file"_s, u"http"_s, u"https"_s}.contains(
            url.scheme()))
        return false;
    AllowScriptsFor(url);
    return true;
}

void PreviewPage::javaScriptAlert(const QUrl &origin, const QString &message)
{
    if (TakeBox())
        QWebEnginePage::javaScriptAlert(origin, message);
}

bool PreviewPage::javaScriptConfirm(const QUrl &origin, const QString &message)
{
    return TakeBox() && QWebEnginePage::javaScriptConfirm(origin, message);
}

bool PreviewPage::javaScriptPrompt(const QUrl &origin,
                                   const QString &message,
                                   const QString &defaultValue,
                                   QString *result)
{
    return TakeBox() && QWebEnginePage::javaScriptPrompt(origin, message, defaultValue, result);
}

void PreviewPage::javaScriptConsoleMessage(JavaScriptConsoleMessageLevel,
                                           const QString &,
                                           int,
                                           const QString &)
{
    // Meant for the author of the page's scripts; on the terminal it would only pass for a fault of
    // the program.
}

void PreviewPage::AllowScriptsFor(const QUrl &url)
{
    settings()->setAttribute(QWebEngineSettings::JavascriptEnabled, url.isLocalFile());
}

bool PreviewPage::TakeBox()
{
    return m_boxesLeft > 0 && m_boxesLeft-- > 0;
}

} // namespace brenix
