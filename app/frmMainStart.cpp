#include "app/CommandLine.h"
#include "app/LanguageFile.h"
#include "app/RecentFiles.h"
#include "app/Toolbox.h"
#include "app/ToolboxPanes.h"
#include "app/frmDocument.h"
#include "app/frmMain.h"
#include "app/frmSplash.h"
#include "app/frmTip.h"
#include "checks/TidyScript.h"
#include "editor/LargeFile.h"
#include "support/AuthorFile.h"
#include "support/Paths.h"
#include "support/SettingsStore.h"
#include "support/SourceView.h"
#include "support/TextCodec.h"
#include "support/UntitledPages.h"

#include <QCloseEvent>
#include <QDir>
#include <QGuiApplication>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QScreen>
#include <QSplitter>
#include <QStyle>
#include <QTimer>

using namespace Qt::StringLiterals;

namespace brenix {

namespace {

    constexpr int TwipsPerPixel = 15;
    constexpr int MaximisedState = 2;
    // So that a damaged setting leaves something to grasp, with the toolbox in it.
    constexpr QSize SmallestWindow(340, 300);
    constexpr int DefaultLargeFile = 20000;

    std::optional<int> PixelSetting(QStringView key, int defaultTwips)
    {
        const std::optional<int> twips = GetNumberSetting(u"Settings", key, defaultTwips);
        return twips ? std::optional(*twips / TwipsPerPixel) : std::nullopt;
    }

    void SaveNumber(QStringView key, int value)
    {
        SaveSetting(u"Settings", key, QString::number(value));
    }

} // namespace

// Each step relies on what the ones before it did; one that fails does nothing, and the next one
// runs.
void frmMain::LoadSteps(frmSplash &splash, const CommandLine &commandLine)
{
    splash.Say(u"Reading Language..."_s);
    ReadLanguageFile();
    if (commandLine.startFirst && GetSetting(u"Settings", u"Coolbar1", u"Hei"_s) != u"Hei")
        SaveSetting(u"Settings", u"Coolbar1", u"Hei"_s);
    splash.Say(u"Reading version..."_s);
    SaveNumber(u"Version Major", VersionMajor());
    SaveNumber(u"Version Minor", VersionMinor());
    SaveNumber(u"Version Build", VersionBuild());
    splash.Say(u"Building toolbars..."_s);
    BuildToolbars();
    ReadTabs();
    splash.Say(u"Checking directories..."_s);
    CheckDirectories();
    FinishInterruptedWrites();
    splash.Say(u"Finding temporary directory..."_s);
    SaveSetting(u"Settings", u"Dir", AppDirectory());
    ChooseTempDir();
    if (!GetSetting(u"Settings", u"TemporaryDirectory").isEmpty())
        splash.Say(u"Setting temporary directory to "_s + TempDir());
    ReadLargeFile();
    // The New Document pane reads both when it is made.
    splash.Say(u"Loading recentfiles list..."_s);
    splash.Say(u"Getting Templates information..."_s);
    splash.Say(u"Loading browserlist..."_s);
    FillBrowserMenu();
    // The design bar, which holds sizes, fonts and styles, fills its lists when the first page is
    // shown in it.
    splash.Say(u"Loading and sorting fonts..."_s);
    splash.Say(u"Preparing user interface..."_s);
    ShowFtpCommand();
    RestoreWindow();
    splash.Say(u"Loading taglist..."_s);
    splash.Say(u"Loading TidyTools presets..."_s);
    splash.Say(u"Loading styles..."_s);
    splash.Say(u"Finished!"_s);
    // The desktop brings the window up while the page is made; nothing is drawn before both are.
    show();
    OpenAtStart(splash, commandLine);
    splash.Say(u"Loading tips..."_s);
    ShowTips();
    m_isLoaded = true;
    FinishStart();
}

void frmMain::ReadLanguageFile()
{
    const FileContent file = ReadAuthorFile(AppPath(u"language.lng"));
    const QString text = DecodePage(file.bytes, {}).text;
    if (text.contains(QChar::Null)) // a file of another kind
        return;
    ReadLanguage(text, [this](const QString &name, const QString &caption) {
        m_menu->SetCaption(name, caption);
        m_toolbox->SetCaption(name, caption);
        m_toolTips.insert(name, QString(caption).remove(u'&').remove(u"..."_s));
    });
}

void frmMain::ReadTabs()
{
    const bool shown = GetSetting(u"Settings", u"Tabs", u"0"_s) != u"0";
    m_picture4->setVisible(shown);
    m_menu->ActionOf(u"mnuTabs"_s)->setChecked(shown);
}

void frmMain::CheckDirectories()
{
    for (const QStringView name : {u"Macro", u"Templates", u"Temp"})
        QDir().mkpath(AppPath(name));
}

void frmMain::ReadLargeFile()
{
    if (GetSetting(u"Settings", u"LargeFile").isEmpty())
        SaveNumber(u"LargeFile", DefaultLargeFile);
    const int limit
        = GetNumberSetting(u"Settings", u"LargeFile", DefaultLargeFile).value_or(DefaultLargeFile);
    SetLargeFile(limit >= 0 ? limit : DefaultLargeFile);
}

void frmMain::ShowFtpCommand()
{
    const QString name = GetSetting(u"Settings", u"FTPName");
    m_menu->SetCaption(u"mnuFTP"_s, name);
    for (const QString &item : {u"mnuFTP"_s, u"fg4"_s})
        m_menu->ActionOf(item)->setVisible(!name.isEmpty());
}

void frmMain::RestoreWindow()
{
    SaveSetting(u"Settings",
                u"Version",
                u"%1.%2.%3"_s.arg(VersionMajor()).arg(VersionMinor()).arg(VersionBuild()));
    const QRect design(0, 0, 900, 650);
    QRect place(PixelSetting(u"MainLeft", 1000).value_or(design.left()),
                PixelSetting(u"MainTop", 1000).value_or(design.top()),
                PixelSetting(u"MainWidth", 6500).value_or(design.width()),
                PixelSetting(u"MainHeight", 6500).value_or(design.height()));
    // A window that lies off every screen, or is larger than its screen, is brought back onto one,
    // with the title that it is moved by.
    const QScreen *screen = QGuiApplication::screenAt(place.center());
    const QRect whole = (screen ? screen : QGuiApplication::primaryScreen())
                            ->availableGeometry()
                            .adjusted(0, style()->pixelMetric(QStyle::PM_TitleBarHeight), 0, 0);
    place.setSize(place.size()
                      .expandedTo(SmallestWindow)
                      .expandedTo(minimumSizeHint())
                      .boundedTo(whole.size()));
    place.moveLeft(std::clamp(place.left(), whole.left(), whole.right() + 1 - place.width()));
    place.moveTop(std::clamp(place.top(), whole.top(), whole.bottom() + 1 - place.height()));
    setGeometry(place);
    if (GetNumberSetting(u"Settings", u"WindowState", MaximisedState) == MaximisedState)
        setWindowState(Qt::WindowMaximized);
    const int toolboxWidth = std::clamp(
        PixelSetting(u"ToolBoxWidth", 2430).value_or(162), 80, std::max(80, whole.width() / 2));
    m_splitter->setSizes({whole.width() - toolboxWidth, toolboxWidth});
    ShowToolbox(IsSettingOn(u"Settings", u"ToolBoxView", true));
}

void frmMain::OpenAtStart(frmSplash &splash, const CommandLine &commandLine)
{
    if (!commandLine.path.isEmpty()) {
        splash.Say(u"Loading "_s + commandLine.path + u"..."_s);
        OpenPath(QDir::toNativeSeparators(QFileInfo(commandLine.path).absoluteFilePath()));
        return;
    }
    splash.Say(u"Loading startup files..."_s);
    switch (GetNumberSetting(u"Settings", u"Startup", 3).value_or(0)) {
    case 1:
        m_openWhenShown = true;
        break;
    case 2:
        OpenLastEdited();
        break;
    case 3:
        NewDocument(u"HTML Document"_s);
        break;
    case 4:
        NewDocument(u"Simple HTML Document"_s);
        break;
    case 5:
        LoadNewDoc();
        break;
    default:
        break;
    }
}

// Without a recent file there is an empty page, and nothing is said.
void frmMain::OpenLastEdited()
{
    frmDocument *document = LoadNewDoc();
    const QString path = RecentFile(1);
    if (path.isEmpty())
        return;
    document->OpenFile(path);
    document->rtfText().AddUndo();
    document->Modyfied = u"0"_s;
}

// The tip and the Open dialog stand over the main window, so they wait until it does.
void frmMain::ShowTips()
{
    m_tipWhenShown = frmTip::IsWanted();
}

void frmMain::paintEvent(QPaintEvent *event)
{
    QMainWindow::paintEvent(event);
    if (!std::exchange(m_isDrawn, true))
        FinishStart();
}

// What the first picture of the window does not need; and what stands over the window, which has
// its place on the screen by then.
void frmMain::FinishStart()
{
    if (!m_isLoaded || !m_isDrawn)
        return;
    QTimer::singleShot(0, this, [this] {
        setWindowIcon(QIcon(AppPath(u"brenix.ico")));
        for (QMdiSubWindow *window : m_area->subWindowList())
            window->setWindowIcon(windowIcon());
        if (std::exchange(m_openWhenShown, false))
            OpenDoc();
        if (std::exchange(m_tipWhenShown, false))
            frmTip(this).exec();
    });
}

// Every page is asked for before the first one goes: Cancel keeps them all.
void frmMain::closeEvent(QCloseEvent *event)
{
    if (m_tidyScript && !m_tidyScript->close()) {
        event->ignore();
        return;
    }
    for (frmDocument *document : Documents()) {
        m_area->setActiveSubWindow(qobject_cast<QMdiSubWindow *>(document->parentWidget()));
        if (!document->AgreeToClose()) {
            for (frmDocument *open : Documents())
                open->StayOpen();
            event->ignore();
            return;
        }
    }
    m_area->closeAllSubWindows();
    StoreWindow();
    event->accept();
    emit Closed();
}

void frmMain::StoreWindow()
{
    if (isMinimized())
        return;
    const QRect place = isMaximized() ? normalGeometry() : geometry();
    SaveNumber(u"MainLeft", place.left() * TwipsPerPixel);
    SaveNumber(u"MainTop", place.top() * TwipsPerPixel);
    SaveNumber(u"MainWidth", place.width() * TwipsPerPixel);
    SaveNumber(u"MainHeight", place.height() * TwipsPerPixel);
    SaveNumber(u"Windowstate", isMaximized() ? MaximisedState : 0);
    SaveSetting(u"Settings", u"ToolBoxView", m_toolbox->isHidden() ? u"False"_s : u"True"_s);
    if (!m_toolbox->isHidden())
        SaveNumber(u"ToolBoxWidth", m_toolbox->width() * TwipsPerPixel);
    SaveNumber(u"LiveSearch", m_panes->IsLiveSearch() ? 1 : 0);
}

} // namespace brenix
