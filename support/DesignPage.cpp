#include "support/DesignPage.h"

#include "support/PageSetup.h"

#include <QEventLoop>
#include <QFile>
#include <QJsonDocument>
#include <QJsonObject>
#include <QPointer>
#include <QTimer>
#include <QWebEngineScript>
#include <QWebEngineScriptCollection>
#include <QWebEngineSettings>

#include <memory>

namespace brenix {

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

    constexpr QStringView messagePrefix = u"brenix-design ";

    // A page from a scheme of the program's comes in small pieces, and laying out each of them
    // makes a page of 4 MB take 9 s instead of 0.4. The editing script takes the sheet away.
    constexpr QStringView hideWhileParsed = uR"({
    const sheet = new CSSStyleSheet();
    sheet.replaceSync('html { display: none !important; }');
    document.adoptedStyleSheets = [sheet];
})";

    QString EditingScript()
    {
        QString script = u"var brenix = (() => { 'use strict';\n"_s;
        for (const char *name : {"History", "Edit", "Tables", "Marks", ""}) {
            QFile file(u":/design%1.js"_s.arg(QLatin1StringView(name)));
            if (file.open(QIODevice::ReadOnly))
                script += QString::fromUtf8(file.readAll());
        }
        return u"if (location.protocol === 'brenix-design:') "_s + script + u"})();"_s;
    }

} // namespace

DesignPage::DesignPage(QWebEngineProfile *profile, QObject *parent)
    : QWebEnginePage(profile, parent)
{
    RestrictPage(*this);
    settings()->setAttribute(QWebEngineSettings::JavascriptEnabled, false);
    settings()->setAttribute(QWebEngineSettings::FocusOnNavigationEnabled, true);
    scripts().insert(
        OwnScript(u"hide"_s, hideWhileParsed.toString(), QWebEngineScript::DocumentCreation));
    scripts().insert(OwnScript(u"design"_s, EditingScript(), QWebEngineScript::DocumentReady));
}

void DesignPage::Open(const QUrl &url)
{
    m_wanted = url;
    load(url);
}

std::optional<QVariant> DesignPage::Ask(const QString &expression, std::chrono::milliseconds limit)
{
    // The answer may come when this call is long over.
    const auto answer = std::make_shared<std::optional<QVariant>>();
    QEventLoop loop;
    const QPointer<QEventLoop> waiting(&loop);
    runJavaScript(
        expression, QWebEngineScript::ApplicationWorld, [answer, waiting](const QVariant &value) {
            *answer = value;
            if (waiting)
                waiting->quit();
        });
    if (!*answer)
        Wait(loop, limit);
    return *answer;
}

void DesignPage::Wait(QEventLoop &loop, std::chrono::milliseconds limit)
{
    connect(this, &QObject::destroyed, &loop, &QEventLoop::quit);
    connect(this, &QWebEnginePage::renderProcessTerminated, &loop, &QEventLoop::quit);
    QTimer::singleShot(limit, &loop, &QEventLoop::quit);
    loop.exec(QEventLoop::ExcludeUserInputEvents);
}

void DesignPage::Tell(const QString &expression)
{
    runJavaScript(expression, QWebEngineScript::ApplicationWorld);
}

bool DesignPage::acceptNavigationRequest(const QUrl &url, NavigationType type, bool isMainFrame)
{
    return isMainFrame ? url == m_wanted : type != NavigationTypeLinkClicked;
}

// The lightest way from a script to the program: it needs no object in the page and no question.
// With the page's own scripts off nobody else can write such a line.
void DesignPage::javaScriptConsoleMessage(JavaScriptConsoleMessageLevel,
                                          const QString &message,
                                          int,
                                          const QString &)
{
    if (!message.startsWith(messagePrefix))
        return;
    const QStringView json = QStringView(message).mid(messagePrefix.size());
    const QVariantMap map = QJsonDocument::fromJson(json.toUtf8()).object().toVariantMap();
    // Later: the engine is in the middle of its own work, and a listener may close the view.
    QMetaObject::invokeMethod(
        this, [this, map] { emit Told(map); }, Qt::QueuedConnection);
}

} // namespace brenix
