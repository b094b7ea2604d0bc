#include "support/DesignScheme.h"

#include "support/LocalFileGuard.h"

#include <QBuffer>
#include <QFile>
#include <QFileInfo>
#include <QMimeDatabase>
#include <QWebEngineUrlRequestJob>
#include <QWebEngineUrlScheme>

#include <memory>

namespace brenix {

using namespace Qt::StringLiterals;

namespace {

    const QString fileScheme = u"file"_s;

    QUrl WithScheme(QUrl url, const QString &scheme, const QString &host)
    {
        url.setScheme(scheme);
        url.setHost(host);
        return url;
    }

    QString FileOf(const QUrl &url)
    {
        return WithScheme(url, fileScheme, {}).toLocalFile();
    }

} // namespace

QByteArray DesignScheme::Name()
{
    return "brenix-design"_ba;
}

void DesignScheme::Register()
{
    QWebEngineUrlScheme scheme(Name());
    scheme.setSyntax(QWebEngineUrlScheme::Syntax::Host);
    scheme.setFlags(QWebEngineUrlScheme::CorsEnabled);
    QWebEngineUrlScheme::registerScheme(scheme);
}

QUrl DesignScheme::SetPage(const QString &path, const QString &html)
{
    m_path = QFileInfo(path).absoluteFilePath();
    // the mark outweighs any encoding that the page itself names
    m_html = "\xEF\xBB\xBF"_ba + html.toUtf8();
    const QString host = u"page%1"_s.arg(++m_number);
    return WithScheme(QUrl::fromLocalFile(m_path), QString::fromLatin1(Name()), host);
}

QString DesignScheme::AuthorAddress(const QString &address)
{
    const QUrl url(address);
    const bool isOurs = url.scheme().toLatin1() == Name();
    return isOurs ? WithScheme(url, fileScheme, {}).toString() : address;
}

void DesignScheme::requestStarted(QWebEngineUrlRequestJob *job)
{
    const QString path = FileOf(job->requestUrl());
    if (path == m_path) {
        auto *page = new QBuffer(job);
        page->setData(m_html);
        job->reply("text/html"_ba, page);
        return;
    }
    auto file = std::make_unique<QFile>(path);
    if (!LiesUnderFolderOf(m_path, path) || !QFileInfo(path).isFile()
        || !file->open(QIODevice::ReadOnly)) {
        job->fail(QWebEngineUrlRequestJob::UrlNotFound);
        return;
    }
    const QString type = QMimeDatabase().mimeTypeForFile(path).name();
    file->setParent(job);
    job->reply(type.toLatin1(), file.release());
}

} // namespace brenix
