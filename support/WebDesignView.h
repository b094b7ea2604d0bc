#pragma once

#include "support/DesignScheme.h"
#include "support/DesignText.h"
#include "support/DesignView.h"
#include "support/TextCodec.h"

#include <QTimer>
#include <QVariantMap>
#include <QWebEngineProfile>
#include <QWebEngineView>

class QMimeData;

namespace brenix {

class DesignPage;

/// A design view over the web engine. The editing itself is in `design.js`. A renderer that dies is
/// replaced and shows the page as it was at most a second before.
class WebDesignView final : public QWebEngineView, public DesignView
{
public:
    explicit WebDesignView(QWidget *parent);
    ~WebDesignView() override;

    QWidget *Widget() override { return this; }
    bool LoadDocument(const QString &path) override;
    bool SaveDocument(const QString &path) override;
    std::optional<QString> DocumentHTML() override;
    bool IsDirty() override;
    void Refresh() override;
    QString DocumentTitle() const override;
    QString ActiveElement() const override;
    void PasteHTML(const QString &markup) override;
    QString ExecCommand(int command, const QString &value) override;
    int QueryStatus(int command) override;
    bool ShowBorders() const override { return m_showsBorders; }
    void SetShowBorders(bool shown) override;
    bool ShowDetails() const override { return m_showsDetails; }
    void SetShowDetails(bool shown) override;
    void SetFocus() override;

protected:
    void contextMenuEvent(QContextMenuEvent *event) override;
    void childEvent(QChildEvent *event) override;
    void dragEnterEvent(QDragEnterEvent *event) override;
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    bool Show(const QString &text);
    void ShowAgain();
    void Told(const QVariantMap &message);
    void TakeState(const QVariantMap &state);
    void Announce();
    void KeepText();
    bool Change(const QString &expression);
    bool Copy();
    void Paste();
    QString TextOfPage(const QVariantMap &page) const;
    void ApplyMarks();

    DesignScheme m_scheme;
    QWebEngineProfile m_profile;
    DesignPage *m_page;
    QString m_path;
    PageEncoding m_encoding;
    DesignText m_text;
    QVariantMap m_state;
    // the page as last heard of, for the case that its renderer dies
    std::optional<QString> m_lastText;
    QTimer m_announce;
    QTimer m_keep;
    QString m_openedHost;
    // of the page that the editing script stands beside; empty while there is none
    QString m_shownHost;
    int m_restarts = 0;
    bool m_isRecovered = false;
    bool m_isEdited = false;
    bool m_showsBorders = false;
    bool m_showsDetails = false;
};

} // namespace brenix
