#pragma once

#include <QByteArray>
#include <QString>
#include <QUrl>
#include <QWebEngineUrlSchemeHandler>

namespace brenix {

/// The addresses "brenix-design://NUMBER/PATH": the page that is edited, from memory and always as
/// HTML, and beside it the files of its folder. A page has a number of its own each time it is
/// shown, so nothing comes from a cache.
class DesignScheme final : public QWebEngineUrlSchemeHandler
{
public:
    /// To be called before the engine is used for the first time.
    static void Register();
    /// The name by which a profile is to install the handler.
    static QByteArray Name();

    /// Takes the page of this path from `html`. Its address is given back.
    QUrl SetPage(const QString &path, const QString &html);
    /// An address as the author knows it: files as "file:///...", any other unchanged.
    static QString AuthorAddress(const QString &address);

    void requestStarted(QWebEngineUrlRequestJob *job) override;

private:
    QString m_path;
    QByteArray m_html;
    int m_number = 0;
};

} // namespace brenix
