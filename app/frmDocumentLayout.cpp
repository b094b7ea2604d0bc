#include "app/SplitBar.h"
#include "app/TakeDesign.h"
#include "app/frmDocument.h"
#include "editor/CodeHighlight.h"
#include "editor/VirtualKeys.h"
#include "support/BrowserView.h"
#include "support/DesignView.h"
#include "support/PreviewCopies.h"
#include "support/SettingsStore.h"
#include "support/WebModule.h"

#include <QAction>
#include <QActionGroup>
#include <QKeyEvent>
#include <QLabel>
#include <QToolBar>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace brenix {

namespace {

    constexpr int TwipsPerPixel = 15;
    constexpr int BarLimit = 600 / TwipsPerPixel; // how near an edge a bar comes
    constexpr int Shut = 700 / TwipsPerPixel; // a view smaller than this has been dragged shut
    constexpr int ButtonRefresh = 5; // ms
    // The web engine takes the window's thread for a while: the source is drawn first.
    constexpr int PreviewStart = 50; // ms

    struct ViewButton
    {
        const char16_t *caption;
        const char16_t *status;
        const char16_t *tip;
    };
    constexpr ViewButton ViewButtons[] = {
        {u"Split", u"Split", u"Source and preview (F6)"},
        {u"HTML", u"HTML", u"Source (F7)"},
        {u"Preview", u"Preview", u"The page as a browser shows it (F8)"},
        {u"Design", u"Design", u"The page as it looks, to be edited (F9)"},
    };

} // namespace

void frmDocument::BuildViewBar()
{
    m_viewBar = new QToolBar(this);
    m_viewBar->setObjectName(u"Toolbar1"_s);
    m_viewBar->setMovable(false);
    auto *group = new QActionGroup(this);
    for (const ViewButton &button : ViewButtons) {
        QAction *action = m_viewBar->addAction(QString::fromUtf16(button.caption));
        const QString status = QString::fromUtf16(button.status);
        action->setToolTip(QString::fromUtf16(button.tip));
        action->setCheckable(true);
        group->addAction(action);
        connect(action, &QAction::triggered, this, [this, status] { ShowView(status); });
        Status.OnAssign(
            [action, status](const QString &now) { action->setChecked(now == status); });
    }
}

void frmDocument::BuildSplitters()
{
    m_splitH = new SplitBar(Qt::Horizontal, this);
    m_splitH->setObjectName(u"SplitH"_s);
    m_splitV = new SplitBar(Qt::Vertical, this);
    m_splitV->setObjectName(u"SplitV"_s);
    for (SplitBar *bar : {m_splitH, m_splitV})
        bar->Dragged = [this](int position, bool finished) { DragSplit(position, finished); };
}

int frmDocument::ViewBarHeight() const
{
    return m_viewBar->sizeHint().height();
}

QRect frmDocument::ViewArea() const
{
    return rect().adjusted(0, 0, 0, -ViewBarHeight());
}

void frmDocument::RunLayout()
{
    const QString status = Status();
    const QRect area = ViewArea();
    const bool split = status == u"Split";
    const bool vertical = SplitHV() == u"1";
    const bool previewShown = split || status == u"Preview";
    if (previewShown)
        NeedPreview();
    QWidget *preview = m_browser ? m_browser->Widget() : m_previewPlace;
    const bool design = status == u"Design" && m_design;
    const QWidget *focused = window()->focusWidget();

    m_viewBar->setGeometry(0, area.height(), width(), height() - area.height());
    if (split)
        PlaceSplit();
    else if (design)
        m_design->Widget()->setGeometry(area);
    else
        (previewShown ? preview : m_source)->setGeometry(area);
    if (m_design)
        m_design->Widget()->setVisible(design);
    m_splitH->setVisible(split && !vertical);
    m_splitV->setVisible(split && vertical);
    m_source->setVisible(status != u"Preview" && status != u"Design");
    m_previewPlace->setVisible(previewShown && !m_browser);
    if (m_browser)
        preview->setVisible(previewShown);
    // Keys never go to a view that cannot be seen.
    if (focused && isAncestorOf(focused) && !focused->isVisibleTo(this))
        FocusView();
}

// The preview stands above the source, or to the right of it.
void frmDocument::PlaceSplit()
{
    const QRect area = ViewArea();
    QWidget *preview = m_browser ? m_browser->Widget() : m_previewPlace;
    const int bar = SplitPosition();
    const int behind = bar + SplitBar::Thickness;
    if (SplitHV() == u"1") {
        m_source->setGeometry(0, 0, bar, area.height());
        m_splitV->setGeometry(bar, 0, SplitBar::Thickness, area.height());
        preview->setGeometry(behind, 0, std::max(0, area.width() - behind), area.height());
    } else {
        preview->setGeometry(0, 0, area.width(), bar);
        m_splitH->setGeometry(0, bar, area.width(), SplitBar::Thickness);
        m_source->setGeometry(0, behind, area.width(), std::max(0, area.height() - behind));
    }
}

int frmDocument::SplitPosition() const
{
    const QRect area = ViewArea();
    const int whole = SplitHV() == u"1" ? area.width() : area.height();
    return std::max(0, qRound(whole * m_splitShare) - SplitBar::Thickness / 2);
}

void frmDocument::DragSplit(int position, bool finished)
{
    const bool vertical = SplitHV() == u"1";
    const int whole = std::max(1, vertical ? ViewArea().width() : ViewArea().height());
    const int edge = std::clamp(position, BarLimit, std::max(BarLimit, whole - BarLimit));
    m_splitShare = double(edge + SplitBar::Thickness / 2) / whole;
    PlaceSplit();
    if (!finished || vertical)
        return;
    const bool sourceShut = m_source->height() < Shut;
    if (!sourceShut && edge >= Shut)
        return;
    m_splitShare = 0.5;
    ShowView(sourceShut ? u"Preview"_s : u"HTML"_s);
}

void frmDocument::resizeEvent(QResizeEvent *)
{
    RunLayout();
}

void frmDocument::showEvent(QShowEvent *event)
{
    QWidget::showEvent(event);
    if (Status() == u"Split" || Status() == u"Preview")
        NeedPreview();
}

void frmDocument::keyPressEvent(QKeyEvent *event)
{
    const auto bit = [event](Qt::KeyboardModifier modifier, int bit) {
        return event->modifiers().testFlag(modifier) ? bit : 0;
    };
    const int shift = bit(Qt::ShiftModifier, ShiftBit::Shift)
        | bit(Qt::ControlModifier, ShiftBit::Control) | bit(Qt::AltModifier, ShiftBit::Alt);
    if (!TakeKey(event->key(), shift))
        QWidget::keyPressEvent(event);
}

// The keys of the window, whichever of its views they come from.
bool frmDocument::TakeKey(int keyCode, int shift)
{
    const bool isLetter = keyCode >= 'A' && keyCode <= 'Z';
    if (keyCode == 'W' && shift == ShiftBit::Control)
        CloseWindow();
    else if (isLetter && shift == (ShiftBit::Control | ShiftBit::Shift))
        emit MacroKey(keyCode - 'A');
    else
        return false;
    return true;
}

// The host asks this window in turn whether it may close; later, for a view is in its key event.
void frmDocument::CloseWindow()
{
    if (parentWidget())
        QMetaObject::invokeMethod(parentWidget(), &QWidget::close, Qt::QueuedConnection);
}

void frmDocument::ShowView(const QString &status)
{
    if (Status() != u"Design")
        Sted = m_source->SelStart();
    Status = status;
    RefreshPreview(ButtonRefresh);
    FocusView();
}

// In the split view keys belong to the source.
void frmDocument::FocusView()
{
    if (Status() == u"Design" && m_design)
        m_design->SetFocus();
    else if (Status() != u"Preview")
        m_source->SetFocus();
    else if (m_browser)
        m_browser->Widget()->setFocus();
    else
        m_previewPlace->setFocus();
}

DesignView *frmDocument::Design()
{
    WebModule *module = m_design ? nullptr : LoadWebModule();
    if (!module)
        return m_design;
    m_design = module->CreateDesignView(this);
    m_design->Widget()->setObjectName(u"Design"_s);
    m_design->Widget()->setAccessibleName(u"Design"_s);
    m_design->DisplayChanged = [this] { emit DesignChanged(); };
    m_design->LinkHovered = [this](const QString &address) {
        m_design->Widget()->setToolTip(address.isEmpty() ? QString() : u"Link to : "_s + address);
    };
    m_design->Edited = [this] {
        if (Modyfied() != u"1")
            Modyfied = u"1"_s;
    };
    RunLayout();
    return m_design;
}

bool frmDocument::LoadDesign()
{
    if (!Design() || Banen().isEmpty())
        return false;
    DropDesignInput();
    m_designInput = ClaimPreviewCopy(Banen() + u'_');
    m_design->CharCode = GetSetting(u"Editor", u"Encoding", u"windows-1250"_s).toLatin1();
    return WritePreviewCopy(m_designInput, m_source->FileBytes())
        && m_design->LoadDocument(m_designInput);
}

void frmDocument::DropDesignInput()
{
    DropPreviewCopy(m_designInput);
    m_designInput.clear();
}

void frmDocument::NeedPreview()
{
    if (!m_browser && isVisible() && !m_previewStart.isActive())
        m_previewStart.start(PreviewStart);
}

void frmDocument::CreatePreview()
{
    WebModule *module = m_browser ? nullptr : LoadWebModule();
    if (!m_browser && !module)
        m_previewPlace->setText(u"The preview is not available.\n\n"_s + WebModuleError());
    if (!module)
        return;
    m_browser = module->CreateBrowserView(this);
    m_browser->NavigateComplete = [this](const QString &) { emit PreviewPainted(); };
    m_browser->StatusTextChange = [this](const QString &text) { emit PreviewStatus(text); };
    m_browser->Widget()->setObjectName(u"WebBrowser1"_s);
    m_browser->Widget()->setAccessibleName(u"Preview"_s);
    RunLayout();
    RefreshPreview(0);
}

} // namespace brenix
