#pragma once

#include "support/BrowserView.h"

#include <QPointF>
#include <QTimer>
#include <QUrl>
#include <QWebEnginePage>
#include <QWebEngineView>

#include <memory>
#include <optional>

class QWebEngineLoadingInfo;
class QWebEngineProfile;

namespace brenix {

class PreviewPage;

/// A preview over the web engine. Of several addresses asked for in a row the last one wins; one
/// that is loading already is loaded again when it is done, so that a page which changes faster
/// than it loads is still seen.
class WebEngineView final : public QWebEngineView, public BrowserView
{
public:
    WebEngineView(std::shared_ptr<QWebEngineProfile> profile, QWidget *parent);
    ~WebEngineView() override;

    QWidget *Widget() override { return this; }
    void Navigate(const QString &address) override;
    void Refresh() override;
    void GoBack() override;
    void GoForward() override;
    void AskElements(std::function<void(const QList<PageElement> &elements)> got) override;
    void SetOffline(bool offline) override;

protected:
    void contextMenuEvent(QContextMenuEvent *event) override;
    void childEvent(QChildEvent *event) override;
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    struct Target
    {
        QString address;
        QUrl url;
    };

    static Target TargetOf(const QString &address);
    static Target TextTarget(const QString &address, const QString &text);
    QString ShownAddress() const;

    void MakePage();
    void StartWanted();
    void Load(const Target &target);
    void LoadingChanged(const QWebEngineLoadingInfo &info);
    void ShowFailure(const QWebEngineLoadingInfo &info);
    void PatienceEnded();
    void RendererDied();
    QPointF PlaceToKeep() const;

    std::shared_ptr<QWebEngineProfile> m_profile;
    PreviewPage *m_page = nullptr;
    // What the page tells is for this object: without it, a page that goes is not listened to.
    std::unique_ptr<QObject> m_listener;
    std::optional<Target> m_wanted;
    Target m_target;
    QUrl m_shown;
    // in pixels of the screen, as the engine counts
    QPointF m_place;
    QTimer m_start;
    QTimer m_patience;
    bool m_offline = false;
    bool m_loading = false;
    bool m_touched = false;
    int m_progress = 0;
    int m_restarts = 0;
};

} // namespace brenix
