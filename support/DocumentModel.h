#pragma once

#include "support/Observable.h"
#include "support/Paths.h"

#include <QString>

namespace brenix {

class BrowserView;
class DesignView;
class SourceView;

/// One open document: a bag of named fields, and assigning certain of them is how commands are sent
/// to it. Windows and commands reach the page they work on through this interface; tests hand them
/// one that lives in memory.
class DocumentModel
{
public:
    virtual ~DocumentModel() = default;

    /// Full path of the file; of a page that was never saved, a name in the directory for unsaved
    /// documents.
    Observable<QString> Caption;
    /// "HTML", "Preview", "Design" or "Split". Assigning it switches the view, the same view again
    /// included.
    Observable<QString> Status;
    /// "1" when there are unsaved changes, else "0".
    Observable<QString> Modyfied{QStringLiteral("0")};
    /// "1" until the first view change, which only sets it to "0" and moves no text.
    Observable<QString> Load{QStringLiteral("1")};
    /// Path of the preview copy; empty when the page has none.
    Observable<QString> Banen;
    /// "1" while the design view is newer than the source view.
    Observable<QString> Des;
    /// "0" preview above source, "1" source left of preview.
    Observable<QString> SplitHV{QStringLiteral("0")};
    /// Address that the address box shows for this page.
    Observable<QString> lblAddress;
    /// A preview refresh is due.
    bool KeyDone = false;
    /// The file of this name exists but could not be read: what the window shows must not be
    /// written over it.
    bool Unread = false;
    /// Source caret, kept while the design view is shown.
    int Sted = 0;

    /// The folder of the page's file, which the links of the page start from: the path of the
    /// Project pane. With the separator at its end.
    QString Folder() const { return FolderOf(Caption()); }

    virtual SourceView &rtfText() = 0;
    /// The preview; null while the web engine is not up or not there.
    virtual BrowserView *WebBrowser1() = 0;
    /// The design view, made when it is first asked for; null where there is no web engine.
    virtual DesignView *Design() = 0;

    /// Writes the source text to the preview copy now.
    virtual void WritePreview() = 0;
    /// Writes the source text to the design view's input and shows it there; false when that
    /// failed.
    virtual bool LoadDesign() = 0;
    /// Deletes the file that the design view was loaded from.
    virtual void DropDesignInput() = 0;
    /// Shows the preview copy after `milliseconds`, unless armed anew before.
    virtual void ArmRefresher(int milliseconds) = 0;
    /// Places the views for `Status` and `SplitHV`.
    virtual void RunLayout() = 0;
    /// Closes all completion lists.
    virtual void RemoveLists() = 0;
};

/// What a document needs of the main window, so that its logic does not know the window.
class MainWindowBars
{
public:
    virtual ~MainWindowBars() = default;

    /// Shows the bars that belong to a view.
    virtual void ShowBarsFor(const QString &status) = 0;
    virtual void ShowModified(const QString &text) = 0;
    /// What the closing prompt goes by: the third panel of the source status bar.
    virtual QString ModifiedPanel() const = 0;
    virtual QString Address() const = 0;
    virtual void SetAddress(const QString &address) = 0;
    /// The preview shows the page itself, not what a server makes of it.
    virtual bool IsLocalMode() const = 0;
    /// Title of the dialect whose tags are offered.
    virtual QString Dialect() const = 0;
};

} // namespace brenix
