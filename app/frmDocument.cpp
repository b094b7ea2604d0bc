#include "app/frmDocument.h"

#include "app/CaretStatus.h"
#include "app/CloseProtocol.h"
#include "app/TakeDesign.h"
#include "app/ViewSwitch.h"
#include "editor/CodeHighlight.h"
#include "support/BrowserView.h"
#include "support/DesignView.h"
#include "support/MessageBoxes.h"
#include "support/PreviewCopies.h"
#include "support/SettingsStore.h"
#include "support/UntitledPages.h"

#include <QCloseEvent>
#include <QFile>
#include <QLabel>
#include <QPointer>

using namespace Qt::StringLiterals;

namespace brenix {

namespace {

    constexpr int AutoSaveInterval = 60000;

    constexpr char16_t SaveFilter[]
        = u"All Files (*.*)|*.*|HTML file (*.html;*.htm)|*.html|Cascading Stylesheet (*.css)|*.css|"
          u"JavaScript file (*.js)|*.js|ColdFusion Markup-file (*.cfm)|*.cfm|ASP file "
          u"(*.asp)|*.asp|"
          u"PHP file (*.php)|*.php|Text file (*.txt;*.asc;*.me)|*.txt|SQL files (*.sql)|*.sql|"
          u"Java (*.java)|*.java|Perl (*.pl)|*.pl||XML Document (*.xml)|*.xml|"
          u"Extensible HTML File (*.xhtml)|*.xml|CGI (*.cgi)|*.cgi|SHTML (*.shtml)|*.shtml";

    // The Options dialog counts the languages in the order of its buttons.
    int LanguageOfSetting(int setting)
    {
        constexpr int Languages[] = {3, 1, 2, 0};
        return setting >= 1 && setting <= 4 ? Languages[setting - 1] : -1;
    }

    bool WrapsWords()
    {
        return GetNumberSetting(u"Editor", u"WordWrap", 0).value_or(0) != 0;
    }

    bool SavesByItself()
    {
        return GetNumberSetting(u"Auto", u"Save", 0).value_or(0) != 0;
    }

    // Only these two are stored; anything else was written by hand.
    QString FirstView()
    {
        return GetSetting(u"Settings", u"Mode", u"Split"_s) == u"HTML" ? u"HTML"_s : u"Split"_s;
    }

} // namespace

frmDocument::frmDocument(MainWindowBars &bars, const QString &caption, QWidget *parent)
    : QWidget(parent)
    , m_bars(bars)
    , m_source(new CodeHighlight(this))
    , m_previewPlace(new QLabel(this))
{
    setObjectName(u"frmDocument"_s);
    m_source->setObjectName(u"rtfText"_s);
    m_source->setAccessibleName(u"Source"_s);
    m_previewPlace->setObjectName(u"WebBrowser1"_s);
    m_previewPlace->setAlignment(Qt::AlignCenter);
    m_previewPlace->setAutoFillBackground(true);
    m_previewPlace->setBackgroundRole(QPalette::Base);
    m_previewPlace->setWordWrap(true);
    m_caretStatus = std::make_unique<CaretStatus>(*m_source, *this);
    BuildSplitters();
    BuildViewBar();
    BuildTyping();
    for (QTimer *timer : {&m_refresher, &m_copyWriter, &m_previewStart})
        timer->setSingleShot(true);
    m_autoSave.setParent(this);
    m_autoSave.setObjectName(u"AutoSave"_s);
    ConnectFields();
    ConfigureSource();
    Caption = caption;
    Status = FirstView();
}

frmDocument::~frmDocument()
{
    delete m_browser;
    delete m_design;
}

void frmDocument::ConnectFields()
{
    Caption.OnAssign([this](const QString &) { FollowCaption(); });
    Status.OnAssign([this](const QString &) { RunViewSwitch(*this, m_bars); });
    Modyfied.OnAssign([this](const QString &value) {
        setWindowModified(value == u"1");
        m_bars.ShowModified(value == u"1" ? u"Modified"_s : QString());
    });
    SplitHV.OnAssign([this](const QString &) { RunLayout(); });

    connect(m_source, &CodeHighlight::Change, this, &frmDocument::OnSourceChange);
    // Before the source counts the key as typing.
    connect(m_source, &CodeHighlight::KeyDown, this, [this](int &keyCode, int &shift) {
        if (TakeKey(keyCode, shift))
            keyCode = 0;
    });
    connect(m_source, &CodeHighlight::SelChange, m_caretStatus.get(), [this] {
        m_caretStatus->Follow(Folder());
    });
    connect(m_source, &CodeHighlight::Restored, this, [this] { KeyDone = true; });
    connect(m_source, &CodeHighlight::ContextMenu, this, &frmDocument::ContextMenu);
    connect(&m_refresher, &QTimer::timeout, this, &frmDocument::OnRefresher);
    connect(&m_copyWriter, &QTimer::timeout, this, &frmDocument::WritePreview);
    connect(&m_previewStart, &QTimer::timeout, this, &frmDocument::CreatePreview);
    connect(&m_autoSave, &QTimer::timeout, this, &frmDocument::SaveByItself);
}

// A failure is told once, not every minute; a page that its encoding cannot hold waits for the
// author's own save.
void frmDocument::SaveByItself()
{
    if (!SavesByItself()) {
        m_autoSave.stop();
        return;
    }
    // Who answered No keeps the file as it is while other pages are still asked for.
    if (IsUntitled(Caption()) || Unread || Modyfied() != u"1" || m_autoSaveFailed || m_mayClose)
        return;
    if (HoldsDesignText() && !TakeDesignText(*this, m_design->IsDirty()))
        return;
    if (m_source->NeedsOtherEncoding())
        return;
    m_autoSaveFailed = true; // while a message stands
    m_autoSaveFailed = !m_source->SaveFile(Caption());
}

void frmDocument::ConfigureSource()
{
    const int language = LanguageOfSetting(GetNumberSetting(u"Language", u"Syntax", 1).value_or(0));
    const auto colour = [](QStringView key, quint32 value) {
        return quint32(GetNumberSetting(u"Colors", key, int(value)).value_or(int(value)));
    };
    const SyntaxColours defaults;
    m_source->SetColours({.keyword = colour(u"Comment", defaults.keyword),
                          .op = colour(u"Table", defaults.op),
                          .function = colour(u"Special", defaults.function),
                          .delimiter = colour(u"Tag", defaults.delimiter)});
    m_source->SetBackColor(colour(u"Background", 0xFFFFFF));
    m_source->SetFont(GetSetting(u"Editor", u"FontName", u"Courier New"_s),
                      GetNumberSetting(u"Editor", u"Fontsize", 10).value_or(10));
    m_source->CharCode(GetSetting(u"Editor", u"Encoding", u"windows-1250"_s));
    m_source->SetMargin(WrapsWords() ? 0 : 250000);
    if (language >= 0)
        m_source->SetLanguage(language);
}

SourceView &frmDocument::rtfText()
{
    return *m_source;
}

bool frmDocument::OpenFile(const QString &path)
{
    const bool loaded = LoadText(path);
    Caption = path;
    emit CaptionChanged();
    return loaded;
}

bool frmDocument::LoadText(const QString &path)
{
    m_loading = true;
    const bool loaded = m_source->LoadFile(path);
    m_loading = false;
    Unread = !loaded;
    if (!loaded && !path.isEmpty())
        MsgBox(u"Can't open '"_s + path + u"'\n\n"_s + m_source->LoadError(),
               Buttons::Ok,
               Icon::Critical);
    RefreshPreview(0);
    return loaded;
}

void frmDocument::StartWith(const QString &text, int caret)
{
    m_loading = true;
    m_source->SetText(text);
    m_source->SetSelStart(caret);
    m_loading = false;
    RefreshPreview(0);
}

// A file that could not be read is not written over by what the window shows in its place.
bool frmDocument::Save()
{
    if (!BringDesignToSource())
        return false;
    if (IsUntitled(Caption()) || (Unread && QFile::exists(Caption())))
        return SaveAs(u"Save"_s);
    if (!m_source->SaveFile(Caption()))
        return false;
    Modyfied = u"0"_s;
    Form_Activate();
    return true;
}

bool frmDocument::SaveAs(const QString &title)
{
    if (!BringDesignToSource())
        return false;
    const QString start = IsUntitled(Caption()) ? u"*.html"_s : Caption();
    const QString path = SaveFileName({.title = title,
                                       .filter = QString::fromUtf16(SaveFilter),
                                       .name = start,
                                       .defaultSuffix = u"html"_s});
    if (path.isEmpty() || !m_source->SaveFile(path))
        return false;
    Unread = false;
    Caption = path;
    Modyfied = u"0"_s;
    Form_Activate();
    emit CaptionChanged();
    return true;
}

bool frmDocument::SaveCopy(const QString &path)
{
    return BringDesignToSource() && m_source->SaveFile(path);
}

void frmDocument::Form_Activate()
{
    Modyfied = QString(Modyfied());
    RemoveLists();
    m_bars.SetAddress(lblAddress());
    m_source->CharCode(GetSetting(u"Editor", u"Encoding", u"windows-1250"_s));
    m_source->SetMargin(WrapsWords() ? 0 : 250000);
    m_autoSaveFailed = false;
    m_bars.ShowBarsFor(Status());
    // The minute goes on when the author changes windows.
    if (!SavesByItself())
        m_autoSave.stop();
    else if (!m_autoSave.isActive())
        m_autoSave.start(AutoSaveInterval);
    emit Activated();
}

void frmDocument::FollowCaption()
{
    ShowTitle();
    m_copyStamp.clear();
    RefreshPreview(0);
}

void frmDocument::ShowTitle()
{
    setWindowTitle({});
    setWindowTitle(QString(Caption()).replace(u"[*]"_s, u"[*][*]"_s) + u"[*]"_s);
}

// Saving leaves the design view as it is. False, after a message, when its text cannot be had: then
// nothing is saved.
bool frmDocument::BringDesignToSource()
{
    if (!HoldsDesignText() || TakeDesignText(*this, m_design->IsDirty()))
        return true;
    MsgBox(
        u"The design view does not answer. Nothing has been saved."_s, Buttons::Ok, Icon::Warning);
    return false;
}

// Where the command has changed nothing, the view keeps its place and its history.
void frmDocument::WithNewestText(const std::function<void()> &command)
{
    if (!TakeNewestText(*this))
        return;
    const QString before = m_source->Text();
    const QPointer self(this); // a dialog of the command may outlive the page
    command();
    if (self && m_source->Text() != before)
        ShowNewText(*this);
}

// Also when all edits were undone: the source may have been given them by a save in between.
bool frmDocument::HoldsDesignText()
{
    return m_design && Des() == u"1";
}

bool frmDocument::AgreeToClose()
{
    if (HoldsDesignText() && m_design->IsDirty())
        Status = u"HTML"_s;
    else if (HoldsDesignText())
        TakeDesignText(*this, false);
    // The question goes by the status bar, which shows the active document.
    Form_Activate();
    m_mayClose = MayClose(*this, m_bars, Caption());
    return m_mayClose;
}

void frmDocument::closeEvent(QCloseEvent *event)
{
    if (!m_mayClose && !AgreeToClose()) {
        event->ignore();
        return;
    }
    DropOwnFiles();
    event->accept();
}

void frmDocument::DropOwnFiles()
{
    for (QTimer *timer : {&m_refresher, &m_copyWriter, &m_autoSave, &m_previewStart})
        timer->stop();
    DropDesignInput();
    DropPreviewCopy(Banen());
}

} // namespace brenix
