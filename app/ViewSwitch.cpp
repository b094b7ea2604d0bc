#include "app/ViewSwitch.h"

#include "app/TakeDesign.h"
#include "support/BrowserView.h"
#include "support/DesignView.h"
#include "support/MessageBoxes.h"
#include "support/Paths.h"
#include "support/SettingsStore.h"
#include "support/SourceView.h"

using namespace Qt::StringLiterals;

namespace brenix {

namespace {

    constexpr int RefreshAtOnce = 1; // ms

    const QString FrameWarning = u"It seems like your webpage contains frames. The design part of "
                                 u"Brenix does not support frames (just "
                                 "floating frame). However, the rest of Brenix supports frames "
                                 "perfectly. Continuing can destroy your webpage "
                                 "if you not have saved it. Do you want to continue?"_s;
    const QString NoDesign = u"The page can't be shown in the design view."_s;
    const QString NoAnswer
        = u"The design view does not answer. The source is as it was before the design view was "
          "opened."_s;

    const QString ReadOnly = u"This page can be read, but not changed."_s;

    void ShowServerPage(DocumentModel &document,
                        const MainWindowBars &bars,
                        const QString &whenEmpty)
    {
        BrowserView *browser = document.WebBrowser1();
        if (!browser)
            return;
        const QString address = bars.Address().trimmed();
        browser->Navigate(address.isEmpty() ? u"about:"_s + whenEmpty : address);
    }

    void ShowPreviewCopy(DocumentModel &document)
    {
        document.WritePreview();
        document.KeyDone = true;
        document.ArmRefresher(RefreshAtOnce);
    }

    QString LastSourceSideView()
    {
        return GetSetting(u"Settings", u"Mode") == u"HTML" ? u"HTML"_s : u"Split"_s;
    }

    // The view to show instead when the author stays out of the design view, or it could not be
    // shown; empty when it is.
    QString EnterDesign(DocumentModel &document)
    {
        if (document.rtfText().IsReadOnlyPage()) {
            MsgBox(ReadOnly, Buttons::Ok, Icon::Information);
            return LastSourceSideView();
        }
        if (document.rtfText().Text().contains(u"<frame"_s, Qt::CaseInsensitive)
            && MsgBox(FrameWarning, Buttons::YesNo, Icon::Information) == Answer::No)
            return u"Split"_s;
        document.WritePreview();
        if (!document.Design() || !document.LoadDesign()) {
            MsgBox(NoDesign, Buttons::Ok, Icon::Warning);
            return LastSourceSideView();
        }
        document.Des = u"1"_s;
        return {};
    }

    // The source takes the text back. The design edit is undone as a whole, and done again: its own
    // history ends here.
    void LeaveDesign(DocumentModel &document, bool cleaned)
    {
        SourceView &source = document.rtfText();
        const QString before = source.Text();
        source.AddUndo();
        if (!TakeDesignText(document, cleaned))
            MsgBox(NoAnswer, Buttons::Ok, Icon::Warning);
        else if (source.Text() != before)
            source.AddUndo();
        document.Des = u"0"_s;
        ShowPreviewCopy(document);
    }

    // The two wordings for an empty address differ.
    void EnterPreview(DocumentModel &document, const MainWindowBars &bars)
    {
        const bool fromDesign = document.Des() == u"1";
        if (!bars.IsLocalMode()) {
            ShowServerPage(document,
                           bars,
                           fromDesign ? u"you have to write an address in the address field"_s
                                      : u"You have to write an address in the address field"_s);
        } else if (fromDesign) {
            LeaveDesign(document, false);
            document.DropDesignInput();
        } else {
            ShowPreviewCopy(document);
        }
    }

    void PrepareBars(DocumentModel &document, MainWindowBars &bars, const QString &status)
    {
        document.RunLayout();
        if (status == u"HTML" || status == u"Split")
            SaveSetting(u"Settings", u"Mode", status);
        document.RemoveLists();
        bars.ShowBarsFor(status);
        if (status != u"Preview")
            return;
        if (BrowserView *browser = document.WebBrowser1())
            browser->SetOffline(false);
        document.lblAddress = ServerAddress(document.Caption());
        bars.SetAddress(document.lblAddress());
    }

} // namespace

void RunViewSwitch(DocumentModel &document, MainWindowBars &bars)
{
    const QString status = document.Status();
    PrepareBars(document, bars, status);
    if (document.Load() == u"1") {
        document.Load = u"0"_s;
        return;
    }
    if (status == u"Design") {
        // Assigned again while the design view is shown, it holds the newest text already.
        const QString instead = document.Des() != u"1" ? EnterDesign(document) : QString();
        if (!instead.isEmpty()) {
            document.Status = instead;
            return;
        }
    } else if (status == u"Preview") {
        EnterPreview(document, bars);
    } else if (status != u"HTML" && status != u"Split") {
        return;
    } else if (document.Des() == u"1") {
        LeaveDesign(document, true);
    }
    if (document.Des() == u"0")
        document.rtfText().SetSelStart(document.Sted);
}

QString ServerAddress(const QString &caption)
{
    return GetSetting(u"Settings", u"LocalHost", u"http://localhost/"_s) + FileNameOf(caption);
}

} // namespace brenix
