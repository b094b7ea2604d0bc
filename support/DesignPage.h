#pragma once

#include <QVariant>
#include <QWebEnginePage>

#include <chrono>
#include <optional>

class QEventLoop;

namespace brenix {

/// A page under edit: its own scripts do not run, its links are not followed, and the editing
/// script stands beside it as `brenix`.
class DesignPage final : public QWebEnginePage
{
    Q_OBJECT

public:
    DesignPage(QWebEngineProfile *profile, QObject *parent);

    /// Goes to this address; the page itself goes nowhere else.
    void Open(const QUrl &url);

    /// What an expression of the editing script gives; nothing when that takes longer than the
    /// limit or the page ends meanwhile. Runs the events of the program but the user's input, so
    /// the caller may be gone afterwards.
    std::optional<QVariant> Ask(const QString &expression,
                                std::chrono::milliseconds limit = std::chrono::seconds(2));
    /// Runs the loop until it is left, the renderer dies, the page goes or the time is over.
    void Wait(QEventLoop &loop, std::chrono::milliseconds limit);
    void Tell(const QString &expression);

signals:
    /// What the editing script says by itself.
    void Told(const QVariantMap &message);

protected:
    bool acceptNavigationRequest(const QUrl &url, NavigationType type, bool isMainFrame) override;
    void javaScriptAlert(const QUrl &, const QString &) override { }
    void javaScriptConsoleMessage(JavaScriptConsoleMessageLevel level,
                                  const QString &message,
                                  int line,
                                  const QString &source) override;

private:
    QUrl m_wanted;
};

} // namespace brenix
