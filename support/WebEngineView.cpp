#include "support/WebEngineView.h"

#include "support/PreviewPage.h"

#include <QContextMenuEvent>
#include <QDir>
#include <QMenu>
#include <QWebEngineContextMenuRequest>
#include <QWebEngineHistory>
#include <QWebEngineLoadingInfo>
#include <QWebEngineProfile>
#include <QWebEngineScript>

#include <chrono>
#include <utility>

namespace brenix {

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

    constexpr QStringView filePrefix = u"file://";
    constexpr QStringView textPrefix = u"about:";
    constexpr int restartLimit = 2;
    // What the engine reports before the renderer has begun to read the page.
    constexpr int progressBeforePage = 10;

    // A flat list of names and numbers: nested ones would end where the page is nested too deep. Of
    // a page without end the first part is enough to look at.
    const QString elementsScript = uR"((() => {
        const all = Array.from(document.getElementsByTagName('*')).slice(0, 50000);
        const numbers = new Map(all.map((element, number) => [element, number]));
        return all.flatMap(element => [element.tagName, numbers.get(element.parentElement) ?? -1]);
    })())"_s;

    QList<PageElement> ElementsOf(const QVariantList &flat)
    {
        QList<PageElement> elements;
        elements.reserve(flat.size() / 2);
        for (qsizetype i = 0; i + 1 < flat.size(); i += 2)
            elements += {flat[i].toString(), flat[i + 1].toInt(), {}};
        return elements;
    }

    QUrl WithoutFragment(const QUrl &url)
    {
        return url.adjusted(QUrl::RemoveFragment);
    }

    bool HasScheme(const QString &address, QStringView scheme)
    {
        return address.startsWith(scheme, Qt::CaseInsensitive);
    }

} // namespace

WebEngineView::WebEngineView(std::shared_ptr<QWebEngineProfile> profile, QWidget *parent)
    : QWebEngineView(parent)
    , m_profile(std::move(profile))
{
    MakePage();
    // The engine would show what is dropped; the window opens it.
    setAcceptDrops(false);
    m_start.setSingleShot(true);
    m_start.callOnTimeout(this, &WebEngineView::StartWanted);
    m_patience.setSingleShot(true);
    m_patience.setInterval(3s);
    m_patience.callOnTimeout(this, &WebEngineView::PatienceEnded);
    connect(this, &QWebEngineView::titleChanged, this, [this](const QString &title) {
        if (TitleChange)
            TitleChange(title);
    });
}

WebEngineView::~WebEngineView()
{
    // before the profile; it still speaks while it goes
    m_listener.reset();
    delete m_page;
}

void WebEngineView::Navigate(const QString &address)
{
    m_wanted = TargetOf(address);
    m_restarts = 0;
    m_start.start(0);
}

void WebEngineView::Refresh()
{
    if (!m_wanted && m_loading)
        m_wanted = m_target;
    else if (!m_wanted && !m_shown.isEmpty()) // what failed is tried again
        m_wanted = m_shown == m_target.url ? TargetOf(m_target.address)
                                           : Target{ShownAddress(), m_shown};
    m_restarts = 0;
    m_start.start(0);
}

void WebEngineView::GoBack()
{
    m_page->AllowBoxes();
    back();
}

void WebEngineView::GoForward()
{
    m_page->AllowBoxes();
    forward();
}

void WebEngineView::AskElements(std::function<void(const QList<PageElement> &)> got)
{
    // In a world of its own, where no script of the page has changed what the names mean.
    m_page->runJavaScript(elementsScript,
                          QWebEngineScript::ApplicationWorld,
                          [got](const QVariant &answer) { got(ElementsOf(answer.toList())); });
}

void WebEngineView::SetOffline(bool offline)
{
    m_offline = offline;
    m_page->Guard().SetOffline(offline);
}

void WebEngineView::contextMenuEvent(QContextMenuEvent *event)
{
    auto *menu = new QMenu(this);
    menu->setAttribute(Qt::WA_DeleteOnClose);
    if (history()->canGoBack())
        menu->addAction(tr("&Back"), this, &WebEngineView::GoBack);
    if (history()->canGoForward())
        menu->addAction(tr("&Forward"), this, &WebEngineView::GoForward);
    if (!m_shown.isEmpty())
        menu->addAction(tr("&Reload"), this, &WebEngineView::Refresh);
    const QWebEngineContextMenuRequest *request = lastContextMenuRequest();
    if (request && !request->selectedText().isEmpty())
        menu->addAction(tr("&Copy"), this, [this] { m_page->triggerAction(QWebEnginePage::Copy); });
    menu->popup(event->globalPos());
}

void WebEngineView::childEvent(QChildEvent *event)
{
    QWebEngineView::childEvent(event);
    if (event->added())
        event->child()->installEventFilter(this);
}

bool WebEngineView::eventFilter(QObject *watched, QEvent *event)
{
    const auto type = event->type();
    if (type == QEvent::Wheel || type == QEvent::KeyPress || type == QEvent::MouseButtonPress)
        m_touched = true;
    return QWebEngineView::eventFilter(watched, event);
}

WebEngineView::Target WebEngineView::TargetOf(const QString &address)
{
    if (HasScheme(address, filePrefix)) {
        const QString path = address.mid(filePrefix.size());
        return {address, QUrl::fromLocalFile(QDir::fromNativeSeparators(path))};
    }
    if (HasScheme(address, textPrefix)) {
        const QString text = address.mid(textPrefix.size());
        return text == "blank"_L1 ? Target{address, QUrl(address)} : TextTarget(address, text);
    }
    const bool complete = HasScheme(address, u"http://") || HasScheme(address, u"https://");
    return {address, QUrl(complete ? address : u"http://"_s + address)};
}

WebEngineView::Target WebEngineView::TextTarget(const QString &address, const QString &text)
{
    const QString html = u"<!DOCTYPE html><title>%1</title><body>%1"_s.arg(text.toHtmlEscaped());
    const QByteArray encoded = "data:text/html;charset=utf-8," + html.toUtf8().toPercentEncoding();
    return {address, QUrl::fromEncoded(encoded)};
}

QString WebEngineView::ShownAddress() const
{
    if (m_shown == m_target.url)
        return m_target.address;
    const QUrl url = m_page->url();
    return url.isLocalFile() ? u"file://"_s + QDir::toNativeSeparators(url.toLocalFile())
                             : url.toString();
}

void WebEngineView::MakePage()
{
    auto *page = new PreviewPage(m_profile.get(), this);
    page->Guard().SetOffline(m_offline);
    m_listener = std::make_unique<QObject>();
    QObject *listener = m_listener.get();
    connect(page, &QWebEnginePage::loadingChanged, listener, [this](const auto &info) {
        LoadingChanged(info);
    });
    connect(page, &QWebEnginePage::loadProgress, listener, [this](int percent) {
        m_progress = percent;
    });
    connect(page, &QWebEnginePage::urlChanged, listener, [this](const QUrl &url) {
        m_shown = WithoutFragment(url);
    });
    connect(page, &QWebEnginePage::linkHovered, listener, [this](const QString &link) {
        if (StatusTextChange)
            StatusTextChange(link);
    });
    // Queued: the engine is still inside the loss of the renderer.
    const auto died = [this] { RendererDied(); };
    connect(page, &QWebEnginePage::renderProcessTerminated, listener, died, Qt::QueuedConnection);
    setPage(page);
    delete std::exchange(m_page, page);
}

void WebEngineView::StartWanted()
{
    if (!m_wanted)
        return;
    if (!m_loading || m_wanted->url != m_target.url)
        Load(*std::exchange(m_wanted, {}));
    else if (!m_patience.isActive())
        m_patience.start();
}

void WebEngineView::Load(const Target &target)
{
    const bool again = target.url == m_shown;
    m_place = again ? PlaceToKeep() : QPointF();
    m_target = target;
    m_loading = true;
    m_progress = 0;
    m_touched = false;
    if (m_place.isNull())
        m_page->BeginAnywhere();
    else
        m_page->BeginAt(m_place / (devicePixelRatioF() * zoomFactor()));
    m_page->AllowBoxes();
    if (target.url.isLocalFile())
        m_patience.start();
    // A reload adds no step to the history, and the engine puts the page in place before it is
    // first painted.
    if (again && !m_page->url().isEmpty())
        m_page->triggerAction(QWebEnginePage::Reload);
    else
        m_page->load(target.url);
}

void WebEngineView::LoadingChanged(const QWebEngineLoadingInfo &info)
{
    const auto status = info.status();
    const bool ofOlderLoad
        = status == QWebEngineLoadingInfo::LoadStoppedStatus && info.url() != m_target.url;
    if (status == QWebEngineLoadingInfo::LoadStartedStatus || ofOlderLoad)
        return;
    m_loading = false;
    m_patience.stop();
    m_page->BeginAnywhere();
    // A page that a server sends with an error status is a page all the same.
    const bool isShown = status == QWebEngineLoadingInfo::LoadSucceededStatus
        || info.errorDomain() == QWebEngineLoadingInfo::HttpStatusCodeDomain;
    if (m_wanted)
        StartWanted();
    else if (isShown && NavigateComplete)
        NavigateComplete(ShownAddress());
    else if (status == QWebEngineLoadingInfo::LoadFailedStatus && !isShown)
        ShowFailure(info);
}

// The engine's own page for it would be blank: scripts are off there.
void WebEngineView::ShowFailure(const QWebEngineLoadingInfo &info)
{
    const QString address = info.url() == m_target.url ? m_target.address : info.url().toString();
    const QString text = u"%1 cannot be shown: %2"_s.arg(address, info.errorString());
    Load(TextTarget(address, text));
}

// A script of the page may run without end; its renderer then neither loads nor answers, and is
// given up.
void WebEngineView::PatienceEnded()
{
    const bool stands = m_loading && (m_wanted || m_progress <= progressBeforePage);
    if (!stands || ++m_restarts > restartLimit)
        return;
    MakePage();
    Load(m_wanted ? *std::exchange(m_wanted, {}) : Target(m_target));
}

void WebEngineView::RendererDied()
{
    const Target current = m_loading ? m_target : Target{ShownAddress(), m_shown};
    m_loading = false;
    if (++m_restarts <= restartLimit)
        Load(current);
    else if (m_restarts == restartLimit + 1)
        Load(TextTarget(current.address, u"The page cannot be shown: it stops the web engine."_s));
}

// A page that ended before the old place was put at its end, and a new one stands at its beginning
// until it is drawn: neither is where the user left it.
QPointF WebEngineView::PlaceToKeep() const
{
    QPointF place = m_page->scrollPosition();
    if (m_touched)
        return place;
    const auto isPutThere = [](qreal now, qreal kept, qreal room) {
        return now < kept && (now == 0 || now >= room - 1);
    };
    const QSizeF room = m_page->contentsSize() - QSizeF(size()) * devicePixelRatioF();
    if (isPutThere(place.x(), m_place.x(), room.width()))
        place.setX(m_place.x());
    if (isPutThere(place.y(), m_place.y(), room.height()))
        place.setY(m_place.y());
    return place;
}

} // namespace brenix
