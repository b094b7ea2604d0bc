#include "app/frmDocument.h"

#include "app/CloseProtocol.h"
#include "app/Documents.h"
#include "app/ViewSwitch.h"
#include "editor/CodeHighlight.h"
#include "support/BrowserView.h"
#include "support/MessageBoxes.h"
#include "support/Paths.h"
#include "support/PreviewCopies.h"
#include "support/SettingsStore.h"

#include <QCloseEvent>
#include <QLabel>

using namespace Qt::StringLiterals;

namespace brenix {

namespace {

    constexpr int AutoSaveInterval = 60000;
    // The copy follows the typing at a distance that nobody sees: at most ten whole-page writes a
    // second.
    constexpr int CopyDelay = 100;
    constexpr int DefaultRefresh = 500;

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
    BuildSplitters();
    BuildViewBar();
    for (QTimer *timer : {&m_refresher, &m_copyWriter, &m_previewStart})
        timer->setSingleShot(true);
    m_autoSave.setParent(this);
    m_autoSave.setObjectName(u"AutoSave"_s);
    ConnectFields();
    ConfigureSource();
    Caption = caption;
    Status = GetSetting(u"Settings", u"Mode", u"Split"_s);
}

frmDocument::~frmDocument()
{
    delete m_browser;
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
    connect(m_source, &CodeHighlight::Restored, this, [this] { KeyDone = true; });
    connect(m_source, &CodeHighlight::KeyPress, this, [this] { KeyDone = true; });
    connect(m_source, &CodeHighlight::ContextMenu, this, &frmDocument::ContextMenu);
    connect(&m_refresher, &QTimer::timeout, this, &frmDocument::OnRefresher);
    connect(&m_copyWriter, &QTimer::timeout, this, &frmDocument::WritePreview);
    connect(&m_previewStart, &QTimer::timeout, this, &frmDocument::CreatePreview);
    connect(&m_autoSave, &QTimer::timeout, this, [this] {
        if (!IsSettingOn(u"Auto", u"Save", false))
            m_autoSave.stop();
        else if (!IsUntitled(Caption()) && Modyfied() == u"1")
            m_source->SaveFile(Caption());
    });
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
    m_source->SetMargin(GetNumberSetting(u"Editor", u"WordWrap", 0) == 0 ? 250000 : 0);
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

bool frmDocument::Save()
{
    if (IsUntitled(Caption()))
        return SaveAs(u"Save"_s);
    if (!m_source->SaveFile(Caption()))
        return false;
    Modyfied = u"0"_s;
    return true;
}

bool frmDocument::SaveAs(const QString &title)
{
    const QString start = IsUntitled(Caption()) ? u"*.html"_s : Caption();
    const QString path = SaveFileName({.title = title,
                                       .filter = QString::fromUtf16(SaveFilter),
                                       .name = start,
                                       .defaultSuffix = u"html"_s});
    if (path.isEmpty() || !m_source->SaveFile(path))
        return false;
    Caption = path;
    Modyfied = u"0"_s;
    Form_Activate();
    emit CaptionChanged();
    return true;
}

void frmDocument::Form_Activate()
{
    Modyfied = QString(Modyfied());
    RemoveLists();
    m_bars.SetAddress(lblAddress());
    m_source->CharCode(GetSetting(u"Editor", u"Encoding", u"windows-1250"_s));
    m_source->SetMargin(GetNumberSetting(u"Editor", u"WordWrap", 0) == 0 ? 250000 : 0);
    m_bars.ShowBarsFor(Status());
    if (IsSettingOn(u"Auto", u"Save", false))
        m_autoSave.start(AutoSaveInterval);
    else
        m_autoSave.stop();
    emit Activated();
}

void frmDocument::FollowCaption()
{
    setWindowTitle(Caption() + u"[*]"_s);
    m_copyStale = true;
    RefreshPreview(0);
}

// The preview copy and, in Split view, the preview follow the source.
void frmDocument::OnSourceChange()
{
    if (!m_loading) {
        Modyfied = u"1"_s;
        KeyDone = true;
    }
    RemoveLists();
    m_copyStale = true;
    if (Status() != u"Split")
        return;
    if (!m_copyWriter.isActive())
        m_copyWriter.start(CopyDelay);
    if (IsSettingOn(u"Auto", u"Refresh", true))
        m_refresher.start(
            GetNumberSetting(u"Auto", u"RefreshNumber", DefaultRefresh).value_or(DefaultRefresh));
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
    // A copy that cannot be written leaves the preview with the one before.
    if (std::exchange(m_copyStale, false) || !QFile::exists(path))
        WritePreviewCopy(path, m_source->FileBytes());
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
    m_browser->Navigate(Banen().isEmpty() ? u"about:blank"_s : u"file://"_s + Banen());
    emit FilesChanged();
}

void frmDocument::closeEvent(QCloseEvent *event)
{
    // The prompt goes by the status bar, which shows the active document.
    Form_Activate();
    if (!CloseDocument(*this, m_bars, Caption())) {
        event->ignore();
        return;
    }
    event->accept();
}

} // namespace brenix
