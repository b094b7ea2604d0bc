#include "app/frmDocument.h"
#include "editor/CodeHighlight.h"
#include "support/BrowserView.h"
#include "support/DesignView.h"
#include "support/Paths.h"
#include "support/PreviewCopies.h"
#include "support/SettingsStore.h"

#include <QFile>

using namespace Qt::StringLiterals;

// The preview copy beside the page, and the way of the text into it.

namespace brenix {

namespace {

    // The copy follows the typing at a distance that nobody sees: at most ten whole-page writes a
    // second.
    constexpr int CopyDelay = 100;
    constexpr int DefaultRefresh = 500;

} // namespace

// The preview copy and, in Split view, the preview follow the source.
void frmDocument::OnSourceChange()
{
    if (!m_loading) {
        Modyfied = u"1"_s;
        KeyDone = true;
    }
    m_copyStamp.clear();
    if (Status() != u"Split")
        return;
    if (!m_copyWriter.isActive())
        m_copyWriter.start(CopyDelay);
    if (!IsSettingOn(u"Auto", u"Refresh", true))
        return;
    const int delay
        = GetNumberSetting(u"Auto", u"RefreshNumber", DefaultRefresh).value_or(DefaultRefresh);
    m_refresher.start(delay >= 0 ? delay : DefaultRefresh);
}

void frmDocument::WritePreview()
{
    m_copyWriter.stop();
    const QString wanted = PreviewCopyName(Caption());
    if (wanted.isEmpty()) {
        DropPreviewCopy(Banen());
        Banen = QString();
        return;
    }
    const QString path = ClaimPreviewCopy(wanted);
    if (!Banen().isEmpty() && Banen() != path)
        DropPreviewCopy(Banen());
    Banen = path;
    // Another window on the same page may have written it since.
    if (PreviewCopyStamp(path) == m_copyStamp)
        return;
    const bool isWritten = WritePreviewCopy(path, m_source->FileBytes());
    m_copyStamp = isWritten ? PreviewCopyStamp(path) : QByteArray();
}

// A copy that cannot be written leaves the preview with the one before, which is the page's own
// file where there never was one.
QString frmDocument::ShownFile() const
{
    if (Banen().isEmpty() || QFile::exists(Banen()))
        return Banen();
    return QFile::exists(Caption()) ? Caption() : QString();
}

QString frmDocument::WriteBrowserCopy()
{
    WritePreview();
    if (!Banen().isEmpty() && HoldsDesignText()) {
        m_copyStamp.clear(); // the source does not hold this text
        if (!m_design->SaveDocument(Banen()))
            return {};
    }
    return ShownFile();
}

void frmDocument::RefreshPreview(int milliseconds)
{
    if (Status() != u"Split" && Status() != u"Preview")
        return;
    KeyDone = true;
    ArmRefresher(milliseconds);
}

void frmDocument::ArmRefresher(int milliseconds)
{
    m_refresher.start(milliseconds);
}

void frmDocument::OnRefresher()
{
    const bool shown = Status() == u"Split" || (Status() == u"Preview" && m_bars.IsLocalMode());
    if (!KeyDone || !m_browser || !shown)
        return;
    KeyDone = false;
    WritePreview();
    const QString file = ShownFile();
    m_browser->Navigate(file.isEmpty() ? u"about:blank"_s : u"file://"_s + file);
}

} // namespace brenix
