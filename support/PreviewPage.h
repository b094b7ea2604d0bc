#pragma once

#include "support/LocalFileGuard.h"

#include <QWebEnginePage>

class QPointF;

namespace brenix {

/// A page with the freedoms that a preview leaves it: no windows, no downloads, few message boxes,
/// scripts only when it comes from the disk.
class PreviewPage final : public QWebEnginePage
{
public:
    PreviewPage(QWebEngineProfile *profile, QObject *parent);

    LocalFileGuard &Guard() { return m_guard; }

    /// Gives the page its message boxes back: to be called when the user or the program starts a
    /// load. A page that loads itself again gets no more of them.
    void AllowBoxes();

    /// The next load begins at this place (in CSS pixels), or where the page ends before it.
    void BeginAt(QPointF position);
    void BeginAnywhere();

protected:
    bool acceptNavigationRequest(const QUrl &url, NavigationType type, bool isMainFrame) override;
    void javaScriptAlert(const QUrl &origin, const QString &message) override;
    bool javaScriptConfirm(const QUrl &origin, const QString &message) override;
    bool javaScriptPrompt(const QUrl &origin,
                          const QString &message,
                          const QString &defaultValue,
                          QString *result) override;
    void javaScriptConsoleMessage(JavaScriptConsoleMessageLevel level,
                                  const QString &message,
                                  int line,
                                  const QString &source) override;

private:
    void AllowScriptsFor(const QUrl &url);
    bool TakeBox();

    LocalFileGuard m_guard;
    int m_boxesLeft = 0;
};

} // namespace brenix
