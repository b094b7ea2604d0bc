#include "app/ViewSwitch.h"

#include "support/BrowserView.h"
#include "support/Paths.h"
#include "support/SettingsStore.h"
#include "support/SourceView.h"

using namespace Qt::StringLiterals;

namespace brenix {

namespace {

    constexpr int RefreshAtOnce = 1; // ms

    void ShowServerPage(DocumentModel &document, const MainWindowBars &bars)
    {
        BrowserView *browser = document.WebBrowser1();
        if (!browser)
            return;
        const QString address = bars.Address().trimmed();
        browser->Navigate(address.isEmpty()
                              ? u"about:You have to write an address in the address field"_s
                              : address);
    }

    void EnterPreview(DocumentModel &document, const MainWindowBars &bars)
    {
        if (!bars.IsLocalMode()) {
            ShowServerPage(document, bars);
            return;
        }
        document.WritePreview();
        document.KeyDone = true;
        document.ArmRefresher(RefreshAtOnce);
    }

} // namespace

void RunViewSwitch(DocumentModel &document, MainWindowBars &bars)
{
    const QString status = document.Status();
    document.RunLayout();
    if (status == u"HTML" || status == u"Split")
        SaveSetting(u"Settings", u"Mode", status);
    document.RemoveLists();
    bars.ShowBarsFor(status);
    if (status == u"Preview") {
        if (BrowserView *browser = document.WebBrowser1())
            browser->SetOffline(false);
        document.lblAddress = ServerAddress(document.Caption());
        bars.SetAddress(document.lblAddress());
    }
    if (document.Load() == u"1") {
        document.Load = u"0"_s;
        return;
    }
    if (status == u"Preview")
        EnterPreview(document, bars);
    if (document.Des() == u"0")
        document.rtfText().SetSelStart(document.Sted);
}

QString ServerAddress(const QString &caption)
{
    return GetSetting(u"Settings", u"LocalHost", u"http://localhost/"_s) + FileNameOf(caption);
}

} // namespace brenix
