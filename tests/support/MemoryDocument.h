#pragma once

#include "support/BrowserView.h"
#include "support/DesignView.h"
#include "support/DocumentModel.h"
#include "support/SourceView.h"
#include "support/TextSearch.h"

#include <QMap>
#include <QStringList>

#include <algorithm>
#include <vector>

/// A document, its views and the bars of the main window that live in memory alone. `log` keeps
/// what was done to them, in order.

class MemorySource : public brenix::SourceView
{
public:
    bool IsReadOnlyPage() const override { return isReadOnlyPage; }
    bool isReadOnlyPage = false;

    QString Text() const override { return m_text; }
    void SetText(const QString &text) override
    {
        m_text = text;
        SetSelStart(m_start);
    }
    int TextLength() const override { return int(m_text.size()); }
    QString TextAt(int start, int length) const override
    {
        const int first = std::max(0, start);
        return m_text.mid(first, std::max(0, start + length - first));
    }
    int LineIndex() const override { return int(m_text.left(m_start).count(u'\r')); }
    void SetLineIndex(int line) override
    {
        const QStringList lines = m_text.split(QStringLiteral("\r\n"));
        const bool exists = line >= 0 && line < lines.size();
        SetSelStart(exists ? int(lines.mid(0, line).join(QStringLiteral("\r\n")).size())
                            + (line > 0 ? 2 : 0)
                           : 1);
    }

    int SelStart() const override { return m_start; }
    void SetSelStart(int position) override
    {
        m_start = std::clamp(position, 0, TextLength());
        m_length = 0;
    }
    int SelLength() const override { return m_length; }
    void SetSelLength(int length) override
    {
        m_length = std::clamp(length, 0, TextLength() - m_start);
    }
    QString SelText() const override { return m_text.mid(m_start, m_length); }
    void SetSelText(const QString &text) override
    {
        m_text.replace(m_start, m_length, text);
        SetSelStart(m_start + int(text.size()));
    }

    bool LoadFile(const QString &path) override
    {
        SetText(files.value(path));
        SetSelStart(0);
        return files.contains(path);
    }
    bool SaveFile(const QString &path) override
    {
        if (failsToSave)
            return false;
        files[path] = m_text;
        return true;
    }

    void AddUndo() override
    {
        m_snapshots.resize(m_current);
        m_snapshots.push_back({m_text, m_start});
        ++m_current;
    }
    void Undo() override { GoTo(m_current - 1); }
    void Redo() override { GoTo(m_current + 1); }
    int UndoCount() const { return int(m_snapshots.size()); }

    bool Search(const QString &text, int start) override
    {
        const qsizetype found = brenix::FindWithoutCase(m_text, text, std::max(0, start));
        if (found < 0)
            return false;
        SetSelStart(int(found));
        SetSelLength(int(text.size()));
        return true;
    }
    void SetFocus() override { hasFocus = true; }

    QMap<QString, QString> files; ///< by path
    bool failsToSave = false;
    bool hasFocus = false;

private:
    struct Snapshot
    {
        QString text;
        int caret;
    };

    void GoTo(std::size_t number)
    {
        if (number < 1 || number > m_snapshots.size())
            return;
        m_current = number;
        SetText(m_snapshots[number - 1].text);
        SetSelStart(m_snapshots[number - 1].caret);
    }

    QString m_text;
    int m_start = 0;
    int m_length = 0;
    std::vector<Snapshot> m_snapshots;
    std::size_t m_current = 0; // how many snapshots lie up to the one that is shown
};

class MemoryBrowser : public brenix::BrowserView
{
public:
    explicit MemoryBrowser(QStringList &log)
        : m_log(log)
    {
    }

    QWidget *Widget() override { return nullptr; }
    void Navigate(const QString &address) override
    {
        m_log.append(QStringLiteral("navigate ") + address);
    }
    void Refresh() override { m_log.append(QStringLiteral("refresh")); }
    void GoBack() override { m_log.append(QStringLiteral("back")); }
    void GoForward() override { m_log.append(QStringLiteral("forward")); }
    void AskElements(std::function<void(const QList<brenix::PageElement> &elements)> got) override
    {
        got(elements);
    }
    QList<brenix::PageElement> elements;
    void SetOffline(bool offline) override
    {
        m_log.append(offline ? QStringLiteral("offline") : QStringLiteral("online"));
    }

private:
    QStringList &m_log;
};

/// A design view that holds what it was loaded with, or what a test puts in its place.
class MemoryDesign : public brenix::DesignView
{
public:
    QWidget *Widget() override { return nullptr; }
    bool LoadDocument(const QString &) override { return true; }
    bool SaveDocument(const QString &) override { return true; }
    std::optional<QString> DocumentHTML() override { return html; }
    bool IsDirty() override { return dirty; }
    void Refresh() override { }
    QString DocumentTitle() const override { return {}; }
    QString ActiveElement() const override { return {}; }
    void PasteHTML(const QString &markup) override { html = markup; }
    QString ExecCommand(int, const QString &) override { return {}; }
    int QueryStatus(int) override { return brenix::Decmdf::Enabled; }
    bool ShowBorders() const override { return false; }
    void SetShowBorders(bool) override { }
    bool ShowDetails() const override { return false; }
    void SetShowDetails(bool) override { }
    void SetFocus() override { }

    std::optional<QString> html; ///< nothing: the page does not answer
    bool dirty = false;
};

class MemoryBars : public brenix::MainWindowBars
{
public:
    explicit MemoryBars(QStringList &log)
        : m_log(log)
    {
    }

    void ShowBarsFor(const QString &status) override
    {
        m_log.append(QStringLiteral("bars ") + status);
    }
    void ShowModified(const QString &text) override { panel = text; }
    QString ModifiedPanel() const override { return panel; }
    QString Address() const override { return address; }
    void SetAddress(const QString &text) override { address = text; }
    bool IsLocalMode() const override { return isLocal; }
    QString Dialect() const override { return dialect; }

    QString panel;
    QString address;
    bool isLocal = true;
    QString dialect = QStringLiteral("All HTML");

private:
    QStringList &m_log;
};

class MemoryDocument : public brenix::DocumentModel
{
public:
    MemoryDocument()
    {
        Modyfied.OnAssign([this](const QString &value) {
            bars.ShowModified(value == u"1" ? QStringLiteral("Modified") : QString());
        });
    }

    MemorySource &rtfText() override { return source; }
    MemoryBrowser *WebBrowser1() override { return hasBrowser ? &browser : nullptr; }
    brenix::DesignView *Design() override { return &design; }
    void WritePreview() override { log.append(QStringLiteral("write")); }
    bool LoadDesign() override
    {
        log.append(QStringLiteral("load"));
        design.html = source.Text();
        return designLoads;
    }
    void DropDesignInput() override { log.append(QStringLiteral("drop")); }
    void ArmRefresher(int milliseconds) override
    {
        log.append(QStringLiteral("arm %1").arg(milliseconds));
    }
    void RunLayout() override { log.append(QStringLiteral("layout")); }
    void RemoveLists() override { log.append(QStringLiteral("lists")); }

    QStringList log;
    MemorySource source;
    MemoryBrowser browser{log};
    MemoryBars bars{log};
    MemoryDesign design;
    bool hasBrowser = true;
    bool designLoads = true;
};
