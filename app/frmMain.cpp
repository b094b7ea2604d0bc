#include "app/frmMain.h"

#include "app/AddressBar.h"
#include "app/DesignBar.h"
#include "app/DesignTools.h"
#include "app/SkinIcons.h"
#include "app/Toolbox.h"
#include "app/frmDocument.h"
#include "app/frmEncoding.h"
#include "editor/CodeHighlight.h"
#include "support/BrowserView.h"
#include "support/DesignView.h"
#include "support/Paths.h"

#include <QBoxLayout>
#include <QLabel>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QMenu>
#include <QMenuBar>
#include <QSplitter>
#include <QStatusBar>
#include <QTabBar>
#include <QToolBar>
#include <QToolButton>

using namespace Qt::StringLiterals;

namespace brenix {

namespace {

    struct ToolButton
    {
        const char16_t *icon; // empty for a separator
        const char16_t *tip;
        const char16_t *command;
        const char16_t *menuName = u""; // a caption of the language file for it is the tip as well
    };
    constexpr ToolButton StandardButtons[] = {
        {u"New", u"New", u"NewHtmlDocument", u"mnuFileNew"},
        {u"Open", u"Open", u"OpenDocument", u"mnuFileOpen"},
        {u"Save", u"Save", u"mnuFileSave", u"mnuFileSave"},
        {u"", u"", u""},
        {u"Undo", u"Undo", u"mnuEditUndo", u"mnuEditUndo"},
        {u"Redo", u"Redo", u"mnuEditmnuEditRedo", u"mnuEditmnuEditRedo"},
        {u"", u"", u""},
        {u"Cut", u"Cut", u"mnuEditCut", u"mnuEditCut"},
        {u"Copy", u"Copy", u"mnuEditCopy", u"mnuEditCopy"},
        {u"Paste", u"Paste", u"mnuEditPaste", u"mnuEditPaste"},
    };
    constexpr int StartButtons = 2; // of the bar that shows when no document is open

    // Not all of them stand in a menu as well.
    void LetTabReachButtons(const QToolBar *bar)
    {
        for (QToolButton *button : bar->findChildren<QToolButton *>())
            button->setFocusPolicy(Qt::TabFocus);
    }

} // namespace

frmMain::frmMain()
{
    setObjectName(u"frmMain"_s);
    setAcceptDrops(true);
    setContextMenuPolicy(Qt::NoContextMenu);
    BuildCentre();
    BuildMenu();
    BuildStatusBars();
    FollowClipboard();
    setWindowTitle(u"Brenix"_s); // a maximised document adds its own name
}

frmMain::~frmMain() = default;

void frmMain::BuildCentre()
{
    m_area = new QMdiArea(this);
    m_area->setObjectName(u"MDIForm"_s);
    m_area->setBackground(palette().mid());
    connect(m_area, &QMdiArea::subWindowActivated, this, &frmMain::OnWindowActivated);

    m_picture4 = new QWidget(this);
    m_picture4->setObjectName(u"Picture4"_s);
    m_tabStrip = new QTabBar(m_picture4);
    m_tabStrip->setObjectName(u"TabStrip1"_s);
    m_tabStrip->setExpanding(false);
    m_tabStrip->setDocumentMode(true);
    m_tabStrip->setDrawBase(false);
    auto *strip = new QHBoxLayout(m_picture4);
    strip->setContentsMargins(0, 0, 0, 0);
    strip->addWidget(m_tabStrip);
    strip->addStretch();
    m_tabStrip->setFocusPolicy(Qt::NoFocus);
    // Queued: the strip selects the clicked tab after it has told of the click.
    connect(m_tabStrip, &QTabBar::tabBarClicked, this, &frmMain::ActivateTab, Qt::QueuedConnection);
    m_tabStrip->setContextMenuPolicy(Qt::CustomContextMenu);
    connect(m_tabStrip, &QWidget::customContextMenuRequested, this, [this](const QPoint &place) {
        m_menu->MenuOf(u"mnuFile"_s)->popup(m_tabStrip->mapToGlobal(place));
    });

    BuildToolbox();
    auto *documents = new QWidget(this);
    auto *layout = new QVBoxLayout(documents);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addWidget(m_picture4);
    layout->addWidget(m_area, 1);
    m_splitter = new QSplitter(this);
    m_splitter->setObjectName(u"Image3"_s);
    m_splitter->addWidget(documents);
    m_splitter->addWidget(m_toolbox);
    m_splitter->setStretchFactor(0, 1);
    m_splitter->setCollapsible(0, false);
    m_splitter->setCollapsible(1, false);
    setCentralWidget(m_splitter);
}

void frmMain::BuildMenu()
{
    m_commands = Commands();
    m_menu = std::make_unique<MainMenu>(menuBar(), m_commands);
    for (const QString &ticked : {u"mnuViewToolbar"_s, u"mnuViewStatusBar"_s, u"mnuSplitH"_s})
        m_menu->ActionOf(ticked)->setChecked(true);
    connect(m_menu->MenuOf(u"mnuView"_s), &QMenu::aboutToShow, this, &frmMain::TickViewMenu);
    connect(m_menu->MenuOf(u"mnuWindow"_s), &QMenu::aboutToShow, this, &frmMain::RebuildWindowMenu);
    connect(m_menu->MenuOf(u"mnuFont"_s), &QMenu::aboutToShow, this, &frmMain::FillFontMenu);
    connect(m_menu->MenuOf(u"mnuTidy"_s), &QMenu::aboutToShow, this, &frmMain::FillTidyMenu);
    BuildViewKeys();
}

// Made in the start-up step of its own, when the skin is known.
void frmMain::BuildToolbars()
{
    const auto fill = [this](QToolBar *bar, int count) {
        bar->setMovable(false);
        for (int i = 0; i < count; ++i) {
            const ToolButton &button = StandardButtons[i];
            if (*button.icon == u'\0') {
                bar->addSeparator();
                continue;
            }
            const QString tip = m_toolTips.value(QString::fromUtf16(button.menuName),
                                                 QString::fromUtf16(button.tip));
            QAction *action = bar->addAction(SkinIcon(button.icon), tip);
            connect(action,
                    &QAction::triggered,
                    this,
                    m_commands.value(QString::fromUtf16(button.command)));
        }
    };
    m_toolbar1 = addToolBar(u"Standard"_s);
    m_toolbar1->setObjectName(u"Toolbar1"_s);
    fill(m_toolbar1, int(std::size(StandardButtons)));
    m_toolbar1->addSeparator();
    auto *style = new QToolButton(m_toolbar1);
    style->setIcon(SkinIcon(u"Style"));
    style->setToolTip(u"Style"_s);
    style->setAccessibleName(u"Style"_s);
    style->setMenu(BuildStyleMenu());
    style->setPopupMode(QToolButton::InstantPopup);
    m_toolbar1->addWidget(style);
    LetTabReachButtons(m_toolbar1);
    m_noWindows = addToolBar(u"Start"_s);
    m_noWindows->setObjectName(u"NoWindows"_s);
    fill(m_noWindows, StartButtons);

    m_addressBar = new AddressBar(this);
    addToolBar(m_addressBar);
    LetTabReachButtons(m_addressBar);
    const auto browse = [this](void (BrowserView::*action)()) {
        return [this, action] {
            if (frmDocument *document = ActiveForm(); document && document->WebBrowser1())
                (document->WebBrowser1()->*action)();
        };
    };
    connect(m_addressBar, &AddressBar::Back, this, browse(&BrowserView::GoBack));
    connect(m_addressBar, &AddressBar::Forward, this, browse(&BrowserView::GoForward));
    connect(m_addressBar, &AddressBar::RefreshClicked, this, browse(&BrowserView::Refresh));
    connect(m_addressBar, &AddressBar::AddressEdited, this, [this](const QString &address) {
        ForActive([&](frmDocument &document) { document.lblAddress = address; });
    });
    connect(m_addressBar, &AddressBar::AddressEntered, this, [this](const QString &address) {
        ForActive([&](frmDocument &document) {
            document.lblAddress = address;
            if (BrowserView *browser = document.WebBrowser1()) {
                browser->SetOffline(false);
                browser->Navigate(address);
            }
        });
    });
    // The first assignment matches no view; it makes the second one a switch into the preview.
    connect(m_addressBar, &AddressBar::ModeChanged, this, [this] {
        ForActive([](frmDocument &document) {
            document.Status = u"PreviewW"_s;
            document.ShowView(u"Preview"_s);
        });
    });
    connect(m_addressBar, &AddressBar::ScreenChosen, this, &frmMain::ResizeToScreen);

    EnableDocumentCommands(ActiveForm() != nullptr);
}

void frmMain::BuildStatusBars()
{
    const auto addPanel = [](QWidget *bar, const QString &name, int stretch) {
        auto *panel = new QLabel(bar);
        panel->setObjectName(name);
        panel->setMinimumWidth(140);
        static_cast<QHBoxLayout *>(bar->layout())->addWidget(panel, stretch);
        return panel;
    };
    const auto addBar = [this](const QString &name) {
        auto *bar = new QWidget(this);
        bar->setObjectName(name);
        auto *layout = new QHBoxLayout(bar);
        layout->setContentsMargins(6, 1, 6, 1);
        statusBar()->addWidget(bar, 1);
        return bar;
    };
    m_sourceBar = addBar(u"sbStatusBar"_s);
    m_linePanel = addPanel(m_sourceBar, u"Panel1"_s, 0);
    m_characterPanel = addPanel(m_sourceBar, u"Panel2"_s, 0);
    m_modifiedPanel = addPanel(m_sourceBar, u"Panel3"_s, 1);
    m_encodingPanel = new QToolButton(m_sourceBar);
    m_encodingPanel->setObjectName(u"Encoding"_s);
    m_encodingPanel->setAutoRaise(true);
    m_encodingPanel->setToolTip(
        u"Encoding of this page. A click chooses that of pages that do not tell theirs."_s);
    m_sourceBar->layout()->addWidget(m_encodingPanel);
    connect(m_encodingPanel, &QToolButton::clicked, this, [this] { frmEncoding(this).exec(); });
    m_previewBar = addBar(u"SB2"_s);
    m_previewText = addPanel(m_previewBar, u"Panel1"_s, 1);
    m_previewBar->hide();
    m_designStatus = addBar(u"Sta"_s);
    m_titlePanel = addPanel(m_designStatus, u"Panel1"_s, 1);
    m_elementPanel = addPanel(m_designStatus, u"Panel2"_s, 0);
    m_designStatus->hide();
}

frmDocument *frmMain::ActiveForm() const
{
    const QMdiSubWindow *window = m_area->activeSubWindow();
    if (!window)
        window = m_area->currentSubWindow();
    return window ? qobject_cast<frmDocument *>(window->widget()) : nullptr;
}

QList<frmDocument *> frmMain::Documents() const
{
    QList<frmDocument *> documents;
    for (const QMdiSubWindow *window : m_area->subWindowList()) {
        if (auto *document = qobject_cast<frmDocument *>(window->widget()))
            documents.append(document);
    }
    return documents;
}

void frmMain::ForActive(const std::function<void(frmDocument &)> &command)
{
    if (frmDocument *document = ActiveForm())
        command(*document);
}

void frmMain::ShowBarsFor(const QString &status)
{
    const bool sourceSide = status == u"HTML" || status == u"Split";
    m_menu->Enable(u"mnuEditTag"_s, sourceSide);
    m_menu->Enable(u"mnuPasteHTML"_s, status == u"Design");
    m_sourceBar->setVisible(sourceSide);
    m_previewBar->setVisible(status == u"Preview");
    m_designStatus->setVisible(status == u"Design");
    EnableSelectionCommands();
    const bool toolbars = m_menu->ActionOf(u"mnuViewToolbar"_s)->isChecked();
    if (m_addressBar)
        m_addressBar->setVisible(sourceSide && toolbars);
    ShowDesignBars(status == u"Design" && toolbars);
    BreakToolbars();
    FollowDesign();
}

// Made when a page is first shown in the design view: reading all fonts takes time.
void frmMain::ShowDesignBars(bool shown)
{
    if (shown && !m_designBar) {
        m_designTools = new DesignTools(this);
        addToolBar(m_designTools);
        LetTabReachButtons(m_designTools);
        connect(m_designTools, &DesignTools::TableClicked, this, &frmMain::PickTable);
        m_designBar = new DesignBar(this);
        addToolBar(m_designBar);
    }
    if (!m_designBar)
        return;
    frmDocument *document = ActiveForm();
    DesignView *view = shown && document ? document->Design() : nullptr;
    m_designTools->SetView(view);
    m_designBar->SetView(view);
    m_designTools->setVisible(shown);
    m_designBar->setVisible(shown);
}

void frmMain::FollowDesign()
{
    frmDocument *document = ActiveForm();
    const DesignView *view
        = document && document->Status() == u"Design" ? document->Design() : nullptr;
    if (!view)
        return;
    if (m_designBar) {
        m_designTools->Follow();
        m_designBar->Follow();
    }
    m_titlePanel->setText(view->DocumentTitle());
    m_elementPanel->setText(view->ActiveElement());
}

void frmMain::ShowModified(const QString &text)
{
    m_modifiedPanel->setText(text);
}

QString frmMain::ModifiedPanel() const
{
    return m_modifiedPanel->text();
}

QString frmMain::Address() const
{
    return m_addressBar->Address();
}

void frmMain::SetAddress(const QString &address)
{
    if (m_addressBar)
        m_addressBar->SetAddress(address);
}

bool frmMain::IsLocalMode() const
{
    return !m_addressBar || m_addressBar->IsLocalMode();
}

} // namespace brenix
