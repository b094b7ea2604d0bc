#pragma once

#include "support/DocumentModel.h"

#include <QTimer>
#include <QWidget>

#include <functional>

class QLabel;
class QToolBar;

namespace brenix {

class CaretStatus;
class CodeHighlight;
class SourceTyping;
class SplitBar;

/// The window of one document: source view, preview, the bars between them and the view bar below.
/// It is the document: commands reach its state by the fields of DocumentModel.
class frmDocument : public QWidget, public DocumentModel
{
    Q_OBJECT

public:
    frmDocument(MainWindowBars &bars, const QString &caption, QWidget *parent = nullptr);
    ~frmDocument() override;

    SourceView &rtfText() override;
    BrowserView *WebBrowser1() override { return m_browser; }
    DesignView *Design() override;
    void WritePreview() override;
    bool LoadDesign() override;
    void DropDesignInput() override;
    void ArmRefresher(int milliseconds) override;
    void RunLayout() override;
    void RemoveLists() override;

    CodeHighlight &Source() { return *m_source; }
    SourceTyping &Typing() { return *m_typing; }
    /// Loads a file that becomes the document's own, or a template, whose text starts an unsaved
    /// document. A file that cannot be read leaves the page empty, after a message; false then.
    bool OpenFile(const QString &path);
    bool LoadText(const QString &path);
    /// Gives the page its text without counting it as a change of the author's.
    void StartWith(const QString &text, int caret);
    /// Writes the page to its file; asks for a name when there is none. False when nothing was
    /// saved.
    bool Save();
    bool SaveAs(const QString &title);
    /// Writes the page, as its view has it, to a file that does not become its own.
    bool SaveCopy(const QString &path);
    /// Brings the preview copy up to what the current view shows, and gives the file that a browser
    /// shows for it; empty when there is none.
    QString WriteBrowserCopy();
    /// Runs a command on the source, whatever the view: it works on the newest text, and what it
    /// makes of that is shown. A design view that does not answer is told of, and nothing runs.
    void WithNewestText(const std::function<void()> &command);
    /// Renews the preview soon, as the view bar and F5 do.
    void RefreshPreview(int milliseconds);
    /// What the main window must know again when this window becomes active or gets another name.
    void Form_Activate();
    int ViewBarHeight() const;
    /// Shows a view because the author asks for it: gives it the focus, and keeps the source's
    /// caret for the way back from the design view.
    void ShowView(const QString &status);
    /// Asks what closing must ask, and saves where the author wants it. False when the page is to
    /// stay; after true, closing asks nothing, until `StayOpen`.
    bool AgreeToClose();
    void StayOpen() { m_mayClose = false; }
    /// Deletes the copies that lie beside the page for the other views: nothing is shown any more.
    void DropOwnFiles();
    /// Sets font, colours, language and wrapping from the settings.
    void ConfigureSource();

signals:
    /// The window became active or was renamed.
    void Activated();
    void CaptionChanged();
    /// The preview has shown the page.
    void PreviewPainted();
    void PreviewStatus(const QString &text);
    /// The selection of the design view, or what it shows, has changed.
    void DesignChanged();
    void ContextMenu(const QPoint &globalPosition);
    /// Ctrl+Shift and a letter: A is 0, as is the first macro.
    void MacroKey(int place);

protected:
    void closeEvent(QCloseEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void showEvent(QShowEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;

private:
    void BuildViewBar();
    void BuildSplitters();
    void BuildTyping();
    void ConnectFields();
    void FocusView();
    void CloseWindow();
    bool TakeKey(int keyCode, int shift);
    void PlaceSplit();
    void DragSplit(int position, bool finished);
    int SplitPosition() const;
    void OnSourceChange();
    void OnRefresher();
    QString ShownFile() const;
    void FollowCaption();
    void ShowTitle();
    void SaveByItself();
    bool BringDesignToSource();
    bool HoldsDesignText();
    void NeedPreview();
    void CreatePreview();
    QRect ViewArea() const;

    MainWindowBars &m_bars;
    CodeHighlight *m_source;
    SourceTyping *m_typing = nullptr;
    std::unique_ptr<CaretStatus> m_caretStatus;
    BrowserView *m_browser = nullptr;
    DesignView *m_design = nullptr;
    QLabel *m_previewPlace; // stands where the preview will be until the web engine is up
    SplitBar *m_splitH;
    SplitBar *m_splitV;
    QToolBar *m_viewBar;
    QString m_designInput; // the file that the design view was loaded from
    QTimer m_refresher;
    QTimer m_copyWriter;
    QTimer m_autoSave;
    QTimer m_previewStart;
    double m_splitShare = 0.5; // of the window, for the part before the bar
    bool m_loading = false;
    QByteArray m_copyStamp; // of the preview copy with the text of the source; empty without one
    bool m_mayClose = false; // the author has been asked
    bool m_autoSaveFailed = false; // and was told
};

} // namespace brenix
