#include "support/BrowserView.h"
#include "support/WebModule.h"
#include "tests/support/PrintQt.h"
#include "tests/support/WaitFor.h"

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QLineEdit>
#include <QMouseEvent>
#include <QPointer>
#include <QTcpServer>
#include <QTcpSocket>
#include <QTemporaryDir>
#include <QTimer>
#include <QVBoxLayout>
#include <QWebEngineDownloadRequest>
#include <QWebEngineHistory>
#include <QWebEngineProfile>
#include <QWebEngineScript>
#include <QWebEngineView>

#include <csignal>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <memory>
#include <optional>

using namespace Qt::StringLiterals;
using namespace brenix;
using testing::ElementsAre;

namespace {

// The engine chooses what to draw with before any application object exists.
[[maybe_unused]] const bool isPrepared = (PrepareForWebModule(), true);

// Closes every message box that appears.
class BoxCloser
{
public:
    BoxCloser()
    {
        m_pulse.callOnTimeout([this] {
            if (QWidget *box = QApplication::activeModalWidget()) {
                ++m_count;
                box->close();
            }
        });
        m_pulse.start(5);
    }
    int Count() const { return m_count; }

private:
    QTimer m_pulse;
    int m_count = 0;
};

class WebEngine : public testing::Test
{
protected:
    void SetUp() override
    {
        WebModule *module = LoadWebModule();
        ASSERT_TRUE(module) << WebModuleError().toStdString();
        m_window.resize(600, 400);
        m_window.show();
        m_layout.addWidget(&m_edit);
        m_view = module->CreateBrowserView(&m_window);
        m_engine = qobject_cast<QWebEngineView *>(m_view->Widget());
        ASSERT_TRUE(m_engine);
        m_layout.addWidget(m_engine, 1);
        m_view->NavigateComplete = [this](const QString &address) { m_completed.append(address); };
    }

    QString Write(const QString &name, const QString &html)
    {
        const QString path = m_folder.filePath(name);
        QFile file(path);
        EXPECT_TRUE(file.open(QIODevice::WriteOnly) && file.write(html.toUtf8()) >= 0)
            << name.toStdString();
        return path;
    }

    void Show(const QString &address)
    {
        m_completed.clear();
        m_view->Navigate(address);
        EXPECT_TRUE(WaitFor([this] { return !m_completed.isEmpty(); })) << address.toStdString();
    }
    void ShowFile(const QString &path) { Show(u"file://"_s + path); }

    QVariant Run(const QString &script, quint32 world = QWebEngineScript::ApplicationWorld)
    {
        const auto answer = std::make_shared<std::optional<QVariant>>();
        m_engine->page()->runJavaScript(
            script, world, [answer](const QVariant &value) { *answer = value; });
        EXPECT_TRUE(WaitFor([&] { return answer->has_value(); })) << script.toStdString();
        return answer->value_or(QVariant());
    }
    QString Text() { return Run(u"document.body.innerText"_s).toString().trimmed(); }
    QPointF Place() { return {Run(u"scrollX"_s).toDouble(), Run(u"scrollY"_s).toDouble()}; }

    QTemporaryDir m_folder;
    QWidget m_window;
    QVBoxLayout m_layout{&m_window};
    QLineEdit m_edit;
    BrowserView *m_view = nullptr;
    QWebEngineView *m_engine = nullptr;
    QStringList m_completed;
};

QString TallPage(const QString &text, int height)
{
    return u"<body style='margin:0'><div style='width:3000px;height:%1px'>%2</div>"_s.arg(height)
        .arg(text);
}

TEST_F(WebEngine, SameFileShowsItsNewTextAtTheSamePlace)
{
    const QString path = Write(u"page.html"_s, TallPage(u"old"_s, 5000));
    ShowFile(path);
    Run(u"scrollTo(250, 2000)"_s);
    ASSERT_TRUE(WaitFor([&] { return m_engine->page()->scrollPosition().y() >= 2000; }));

    Write(u"page.html"_s, TallPage(u"new"_s, 5000));
    ShowFile(path);
    EXPECT_EQ(Text(), u"new"_s);
    EXPECT_EQ(Place(), QPointF(250, 2000));
    EXPECT_FALSE(m_engine->history()->canGoBack());

    Write(u"page.html"_s, TallPage(u"short"_s, 1000));
    ShowFile(path);
    EXPECT_EQ(Text(), u"short"_s);
    EXPECT_EQ(Place().x(), 250);
    EXPECT_LT(Place().y(), 1000);

    Write(u"page.html"_s, TallPage(u"tall again"_s, 5000));
    ShowFile(path);
    EXPECT_EQ(Place(), QPointF(250, 2000));

    ShowFile(Write(u"other.html"_s, TallPage(u"other"_s, 5000)));
    EXPECT_EQ(Place(), QPointF(0, 0));
}

TEST_F(WebEngine, SameFileShowsItsChangedStyleSheet)
{
    const QString path = Write(u"page.html"_s, u"<link rel=stylesheet href=s.css><p>text"_s);
    for (const QString &colour : {u"rgb(255, 0, 0)"_s, u"rgb(0, 0, 255)"_s}) {
        Write(u"s.css"_s, u"p { color: %1 }"_s.arg(colour));
        ShowFile(path);
        EXPECT_EQ(Run(u"getComputedStyle(document.querySelector('p')).color"_s).toString(), colour);
    }
}

TEST_F(WebEngine, LastOfASeriesWins)
{
    const QString a = Write(u"a.html"_s, u"a"_s);
    const QString b = Write(u"b.html"_s, u"b"_s);
    for (const QString &path : {a, b, a, b})
        m_view->Navigate(u"file://"_s + path);
    ASSERT_TRUE(WaitFor([&] { return !m_completed.isEmpty(); }));
    EXPECT_THAT(m_completed, ElementsAre(u"file://"_s + b));

    m_completed.clear();
    for (const QString &text : {u"1"_s, u"2"_s, u"3"_s}) {
        m_view->Navigate(u"file://"_s + Write(u"b.html"_s, text));
        QCoreApplication::processEvents();
    }
    ASSERT_TRUE(WaitFor([&] { return !m_completed.isEmpty(); }));
    EXPECT_EQ(Text(), u"3"_s);
}

struct FileName
{
    const char *row;
    QString name;
};

class LiteralName : public WebEngine, public testing::WithParamInterface<FileName>
{
};

TEST_P(LiteralName, IsShown)
{
    const QString path = Write(GetParam().name, u"<meta charset=utf-8>shown"_s);
    ShowFile(path);
    EXPECT_THAT(m_completed, ElementsAre(u"file://"_s + path));
    EXPECT_EQ(Text(), u"shown"_s);
    // Reached by a link the address is put together again from the engine's.
    m_view->Navigate(u"about:blank"_s);
    ASSERT_TRUE(WaitFor([&] { return m_completed.size() == 2; }));
    m_view->GoBack();
    ASSERT_TRUE(WaitFor([&] { return m_completed.size() == 3; }));
    EXPECT_EQ(m_completed.last(), u"file://"_s + path);
}

INSTANTIATE_TEST_SUITE_P(Names,
                         LiteralName,
                         testing::Values(FileName{"hash", u"a#b.html"_s},
                                         FileName{"percent", u"100%.html"_s},
                                         FileName{"percentEscape", u"a%20b%2Fc.html"_s},
                                         FileName{"question", u"a?b=c.html"_s},
                                         FileName{"blank", u"a b .html"_s},
                                         FileName{"nonAscii", u"žluťoučký 漢字 😀.html"_s},
                                         FileName{"quotes", u"a\"b'c`d.html"_s},
                                         FileName{"markup", u"<b>&amp;.html"_s},
                                         FileName{"brackets", u"[a]{b}^|;:@.html"_s},
                                         FileName{"backslash", u"a\\b.html"_s},
                                         FileName{"preview", u"page_.html"_s}),
                         [](const auto &info) { return std::string(info.param.row); });

TEST_F(WebEngine, LocalPageReadsItsOwnFolderAlone)
{
    for (const char *folder : {"site", "site/sub", "site2"})
        ASSERT_TRUE(QDir(m_folder.path()).mkpath(QLatin1StringView(folder)));
    for (const char *name :
         {"site/in.txt", "site/sub/in.txt", "site2/out.txt", "out.txt", "site/..in.txt"})
        Write(QLatin1StringView(name), u"read"_s);
    QFile::link(m_folder.filePath(u"out.txt"_s), m_folder.filePath(u"site/link.txt"_s));
    QFile::link(m_folder.filePath(u"site2"_s), m_folder.filePath(u"site/linked"_s));
    QFile::link(m_folder.filePath(u"site/in.txt"_s), m_folder.filePath(u"site/inner.txt"_s));
    // the page itself is reached by a link, from a folder that it does not lie in
    const QString real = Write(u"real.html"_s, u"<p>page"_s);
    QFile::link(real, m_folder.filePath(u"site/page.html"_s));
    ShowFile(m_folder.filePath(u"site/page.html"_s));

    struct Case
    {
        const char *row;
        QString address;
        bool isRead;
    };
    const Case cases[] = {
        {"beside the page", u"in.txt"_s, true},
        {"in a folder below", u"sub/in.txt"_s, true},
        {"name that begins with two points", u"..in.txt"_s, true},
        {"up and down again", u"../site/in.txt"_s, true},
        {"link that stays inside", u"inner.txt"_s, true},
        {"the page itself", u"page.html"_s, true},
        {"above", u"../out.txt"_s, false},
        {"above, escaped", u"%2e%2e/out.txt"_s, false},
        {"folder with a longer name", u"../site2/out.txt"_s, false},
        {"link to a file outside", u"link.txt"_s, false},
        {"link to a folder outside", u"linked/out.txt"_s, false},
        {"absolute", u"file:///etc/hostname"_s, false},
        {"another host", u"file://host/etc/hostname"_s, false},
    };
    for (const Case &row : cases) {
        const QString script = uR"((() => {
            try {
                const request = new XMLHttpRequest();
                request.open('GET', '%1', false);
                request.send();
                return request.responseText.length > 0;
            } catch (error) {
                return false;
            }
        })())"_s.arg(row.address);
        EXPECT_EQ(Run(script, QWebEngineScript::MainWorld).toBool(), row.isRead) << row.row;
    }
}

TEST_F(WebEngine, WorkersOfALocalPageReadNothingOutside)
{
    // Each tries the file outside and answers the page with what it got.
    const QString read = uR"(
        function read() {
            try {
                const request = new XMLHttpRequest();
                request.open('GET', 'file:///etc/hostname', false);
                request.send();
                return request.responseText;
            } catch (error) {
                return '';
            }
        })"_s;
    Write(u"worker.js"_s, read + u"postMessage(read() ? 'READ' : 'refused');"_s);
    Write(u"shared.js"_s,
          read
              + u"onconnect = event => event.ports[0].postMessage(read() ? 'READ' : 'refused');"_s);
    ShowFile(Write(u"page.html"_s, uR"(<body><script>
        const say = text => document.body.append(text + ' ');
        new Worker('worker.js').onmessage = event => say('worker ' + event.data);
        try {
            new SharedWorker('shared.js').port.onmessage = event => say('shared ' + event.data);
        } catch (error) {
            say('shared refused');
        }</script>)"_s));
    EXPECT_TRUE(
        WaitFor([&] { return Text().count(u"shared"_s) + Text().count(u"worker"_s) == 2; }));
    EXPECT_EQ(Text().count(u"refused"_s), 2);
}

TEST_F(WebEngine, PageCannotReadWhereItIsAboutToGo)
{
    ASSERT_TRUE(QDir(m_folder.path()).mkpath(u"site"_s));
    Write(u"secret.txt"_s, u"secret"_s);
    Write(u"next.html"_s, u"<p>next"_s);
    ShowFile(Write(u"site/page.html"_s, uR"(<script>
        function go() {
            const request = new XMLHttpRequest();
            location = '../next.html';
            request.open('GET', '../secret.txt', false);
            try { request.send(); } catch (error) {}
            return request.responseText;
        }</script>)"_s));
    EXPECT_EQ(Run(u"go()"_s, QWebEngineScript::MainWorld).toString(), QString());
    EXPECT_TRUE(WaitFor([&] { return m_completed.size() == 2; }));
    EXPECT_EQ(Text(), u"next"_s);
}

TEST_F(WebEngine, AboutTextIsShownAsItIs)
{
    const QString text = u"<b>5 % &amp; \"more\"</b> #1 ? žluť %1"_s;
    Show(u"about:"_s + text);
    EXPECT_THAT(m_completed, ElementsAre(u"about:"_s + text));
    EXPECT_EQ(Text(), text);
    EXPECT_EQ(Run(u"document.querySelectorAll('b').length"_s).toInt(), 0);
}

TEST_F(WebEngine, PageOpensNoWindowAndSavesNoFile)
{
    ShowFile(Write(u"page.html"_s, u"<a href=page.html download=x.html>save</a>"_s));
    const auto windows = QApplication::topLevelWidgets().size();
    EXPECT_TRUE(
        Run(u"window.open('about:blank') === null"_s, QWebEngineScript::MainWorld).toBool());
    EXPECT_EQ(QApplication::topLevelWidgets().size(), windows);

    bool isAsked = false;
    QPointer<QWebEngineDownloadRequest> download;
    QObject::connect(m_engine->page()->profile(),
                     &QWebEngineProfile::downloadRequested,
                     &m_window,
                     [&](QWebEngineDownloadRequest *request) {
                         isAsked = true;
                         download = request;
                     });
    Run(u"document.querySelector('a').click()"_s, QWebEngineScript::MainWorld);
    ASSERT_TRUE(WaitFor([&] { return isAsked; }));
    // one that is accepted lives on when it has ended
    EXPECT_TRUE(WaitFor([&] { return !download; }));
}

TEST_F(WebEngine, MessageBoxesAreLimitedEvenWhenThePageLoadsItselfAgain)
{
    const BoxCloser boxes;
    const QString path = Write(u"page.html"_s, uR"(<body><script>
        alert(1); confirm(2); alert(3); alert(4);
        if (!location.search) location = '?again'; else document.body.append('end');
        </script>)"_s);
    m_view->Navigate(u"file://"_s + path);
    ASSERT_TRUE(WaitFor([&] { return !m_completed.isEmpty() && Text() == u"end"_s; }));
    EXPECT_EQ(boxes.Count(), 3);
}

TEST_F(WebEngine, PageIsLeftWithoutAsking)
{
    ShowFile(Write(u"page.html"_s, uR"(<body style='height:9999px'>page<script>
        onbeforeunload = event => { event.preventDefault(); return event.returnValue = 'stay'; };
        onclick = () => document.title = 'clicked';</script>)"_s));
    // it may ask only when the user has used it
    const QPointF point(50, 50);
    QWidget *target = m_engine->focusProxy();
    for (const auto type : {QEvent::MouseButtonPress, QEvent::MouseButtonRelease}) {
        QMouseEvent event(
            type, point, target->mapToGlobal(point), Qt::LeftButton, Qt::LeftButton, {});
        QApplication::sendEvent(target, &event);
    }
    ASSERT_TRUE(WaitFor([&] { return m_engine->title() == u"clicked"_s; }));
    const BoxCloser boxes;
    ShowFile(Write(u"other.html"_s, u"other"_s));
    EXPECT_EQ(Text(), u"other"_s);
    EXPECT_EQ(boxes.Count(), 0);
}

TEST_F(WebEngine, PageDoesNotTakeTheFocus)
{
    m_window.activateWindow();
    m_edit.setFocus();
    ASSERT_TRUE(WaitFor([&] { return m_edit.hasFocus(); }));
    const QString path = Write(u"page.html"_s, uR"(<input autofocus><script>
        window.focus(); document.querySelector('input').focus();</script>)"_s);
    ShowFile(path);
    ShowFile(path);
    EXPECT_TRUE(m_edit.hasFocus());
}

TEST_F(WebEngine, DeadRendererIsReplacedButNotForEver)
{
    ShowFile(Write(u"page.html"_s, u"page"_s));
    for (const QString &text : {u"page"_s, u"page"_s, u"cannot be shown"_s}) {
        m_completed.clear();
        ASSERT_EQ(kill(static_cast<pid_t>(m_engine->page()->renderProcessPid()), SIGKILL), 0);
        ASSERT_TRUE(WaitFor([&] { return !m_completed.isEmpty(); }));
        EXPECT_TRUE(Text().contains(text));
    }
    ShowFile(m_folder.filePath(u"page.html"_s));
    EXPECT_EQ(Text(), u"page"_s);
}

TEST_F(WebEngine, PageThatNeverAnswersIsReplaced)
{
    const QString path
        = Write(u"page.html"_s, u"<script>setTimeout(() => { for (;;); })</script>"_s);
    ShowFile(path);
    const auto stuck = static_cast<pid_t>(m_engine->page()->renderProcessPid());
    Write(u"page.html"_s, u"mended"_s);
    ShowFile(path);
    EXPECT_EQ(Text(), u"mended"_s);
    EXPECT_TRUE(WaitFor([&] { return kill(stuck, 0) != 0; })) << "the old renderer still runs";
}

// Answers every request with the same page; the first lines of the requests are kept in `asked`.
void Serve(QTcpServer &server, const QByteArray &status, const QByteArray &page, QString &asked)
{
    QObject::connect(&server, &QTcpServer::newConnection, &server, [=, &server, &asked] {
        QTcpSocket *socket = server.nextPendingConnection();
        QObject::connect(socket, &QTcpSocket::readyRead, socket, [=, &asked] {
            asked += QString::fromLatin1(socket->readLine());
            socket->write("HTTP/1.0 " + status + "\r\nContent-Type: text/html\r\n\r\n" + page);
            socket->disconnectFromHost();
        });
    });
}

TEST_F(WebEngine, FailureIsToldAndTriedAgain)
{
    QTcpServer server;
    ASSERT_TRUE(server.listen(QHostAddress::LocalHost));
    const quint16 port = server.serverPort();
    server.close();
    const QString address = u"http://127.0.0.1:%1/page"_s.arg(port);
    Show(address);
    EXPECT_THAT(m_completed, ElementsAre(address));
    EXPECT_TRUE(Text().startsWith(address + u" cannot be shown: "_s)) << Text().toStdString();

    QString asked;
    Serve(server, "404 Not Found", "<p>the server's own words", asked);
    ASSERT_TRUE(server.listen(QHostAddress::LocalHost, port));
    m_completed.clear();
    m_view->Refresh();
    ASSERT_TRUE(WaitFor([this] { return !m_completed.isEmpty(); }));
    EXPECT_EQ(Text(), u"the server's own words"_s);
}

TEST_F(WebEngine, WebPageRunsNoScriptsAndNothingIsFetchedOffline)
{
    QTcpServer server;
    ASSERT_TRUE(server.listen(QHostAddress::LocalHost));
    QString asked;
    Serve(
        server, "200 OK", "<p>plain<script>document.body.textContent = 'scripted'</script>", asked);
    const QString host = u"127.0.0.1:%1"_s.arg(server.serverPort());
    Show(host);
    EXPECT_THAT(m_completed, ElementsAre(u"http://%1/"_s.arg(host)));
    EXPECT_EQ(Text(), u"plain"_s);

    const QString page
        = u"<body><img src='http://%1/picture%2'><iframe src='http://%1/frame%2'></iframe>"
          "<script>document.body.append('scripted')</script>"_s;
    ShowFile(Write(u"page.html"_s, page.arg(host, u"1"_s)));
    EXPECT_TRUE(asked.contains(u"/picture1"_s) && asked.contains(u"/frame1"_s));
    EXPECT_EQ(Text(), u"scripted"_s);

    m_view->SetOffline(true);
    ShowFile(Write(u"page.html"_s, page.arg(host, u"2"_s)));
    EXPECT_FALSE(asked.contains(u"/picture2"_s) || asked.contains(u"/frame2"_s));
}

} // namespace
