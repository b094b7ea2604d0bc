#include "app/frmDocument.h"
#include "app/frmMain.h"
#include "support/BrowserView.h"
#include "support/SettingsStore.h"

#include <QAction>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QStatusBar>
#include <QToolBar>

using namespace Qt::StringLiterals;

namespace brenix {

namespace {

    constexpr int ForcedRefresh = 50; // ms

    // The middle of a view's menu name.
    QString NextView(const QString &status)
    {
        if (status == u"Design")
            return u"Split"_s;
        if (status == u"Split")
            return u"Preview"_s;
        return status == u"Preview" ? u"Html"_s : u"Design"_s;
    }

    QString DesignToggle(const QString &status)
    {
        return status == u"Design" ? u"Html"_s : u"Design"_s;
    }

} // namespace

void frmMain::AddViewCommands(MainMenu::Commands &commands)
{
    commands[u"mnuViewToolbar"_s] = [this] {
        const bool shown = m_menu->ActionOf(u"mnuViewToolbar"_s)->isChecked();
        m_toolbar1->setVisible(shown);
        ForActive([this](frmDocument &document) { ShowBarsFor(document.Status()); });
    };
    commands[u"mnuViewStatusBar"_s]
        = [this] { statusBar()->setVisible(m_menu->ActionOf(u"mnuViewStatusBar"_s)->isChecked()); };
    commands[u"mnuToolboxs"_s]
        = [this] { ShowToolbox(m_menu->ActionOf(u"mnuToolboxs"_s)->isChecked()); };
    commands[u"mnuTabs"_s] = [this] {
        const bool shown = m_menu->ActionOf(u"mnuTabs"_s)->isChecked();
        m_picture4->setVisible(shown);
        SaveSetting(u"Settings", u"Tabs", shown ? u"1"_s : u"0"_s);
    };
    const std::pair<QString, QString> views[] = {{u"mnuSplitMode"_s, u"Split"_s},
                                                 {u"mnuHtmlMode"_s, u"HTML"_s},
                                                 {u"mnuPreviewMode"_s, u"Preview"_s},
                                                 {u"mnuDesignMode"_s, u"Design"_s}};
    for (const auto &[name, status] : views) {
        commands[name] = [this, status = status] {
            ForActive([&](frmDocument &document) { document.ShowView(status); });
        };
    }
    commands[u"mnuViewRefresh"_s] = [this] {
        ForActive([this](frmDocument &document) {
            const bool showsServer = document.Status() == u"Preview" && !IsLocalMode();
            if (BrowserView *browser = document.WebBrowser1(); browser && showsServer)
                browser->Refresh();
            else
                document.RefreshPreview(ForcedRefresh);
        });
    };
    commands[u"mnuSplitH"_s]
        = [this] { ForActive([](frmDocument &document) { document.SplitHV = u"0"_s; }); };
    commands[u"mnuSplitV"_s]
        = [this] { ForActive([](frmDocument &document) { document.SplitHV = u"1"_s; }); };
}

// Two commands without an item in the menu: through the views in turn, and to the design view and
// back.
void frmMain::BuildViewKeys()
{
    const std::pair<QKeySequence, QString (*)(const QString &)> keys[] = {
        {QKeySequence(u"Shift+F6"_s), NextView},
        {QKeySequence(u"Shift+F9"_s), DesignToggle},
    };
    for (const auto &[key, next] : keys) {
        auto *action = new QAction(this);
        action->setShortcut(key);
        addAction(action);
        connect(action, &QAction::triggered, this, [this, next = next] {
            ForActive([&](frmDocument &document) {
                m_commands.value(u"mnu"_s + next(document.Status()) + u"Mode"_s)();
            });
        });
    }
}

void frmMain::TickViewMenu()
{
    const QString status = ActiveForm() ? ActiveForm()->Status() : QString();
    m_menu->ActionOf(u"mnuSplitMode"_s)->setChecked(status == u"Split");
    m_menu->ActionOf(u"mnuHtmlMode"_s)->setChecked(status == u"HTML");
    m_menu->ActionOf(u"mnuPreviewMode"_s)->setChecked(status == u"Preview");
    m_menu->ActionOf(u"mnuDesignMode"_s)->setChecked(status == u"Design");
}

// Rows one above the other, or columns side by side.
void frmMain::TileWindows(Qt::Orientation orientation)
{
    QList<QMdiSubWindow *> windows = m_area->subWindowList();
    windows.removeIf([](const QMdiSubWindow *window) { return window->isMinimized(); });
    const int count = int(windows.size());
    const QSize whole = m_area->viewport()->size();
    for (int i = 0; i < count; ++i) {
        windows[i]->showNormal();
        if (orientation == Qt::Horizontal)
            windows[i]->setGeometry(
                0, whole.height() * i / count, whole.width(), whole.height() / count);
        else
            windows[i]->setGeometry(
                whole.width() * i / count, 0, whole.width() / count, whole.height());
    }
}

// Minimised windows in a row at the lower edge.
void frmMain::ArrangeIcons()
{
    int left = 0;
    for (QMdiSubWindow *window : m_area->subWindowList()) {
        if (!window->isMinimized())
            continue;
        window->move(left, m_area->viewport()->height() - window->height());
        left += window->width();
    }
}

// A toolbar that would be cut off begins a row of its own.
void frmMain::BreakToolbars()
{
    int used = 0;
    for (QToolBar *bar : findChildren<QToolBar *>(Qt::FindDirectChildrenOnly)) {
        if (bar->isHidden())
            continue;
        const int needed = bar->sizeHint().width();
        const bool breaks = used > 0 && used + needed > width();
        if (breaks && !toolBarBreak(bar))
            insertToolBarBreak(bar);
        else if (!breaks && toolBarBreak(bar))
            removeToolBarBreak(bar);
        used = breaks ? needed : used + needed;
    }
}

void frmMain::resizeEvent(QResizeEvent *event)
{
    QMainWindow::resizeEvent(event);
    BreakToolbars();
}

void frmMain::ResizeToScreen(const QString &screen)
{
    QMdiSubWindow *window = m_area->currentSubWindow();
    frmDocument *document = ActiveForm();
    if (!window || !document)
        return;
    if (!screen.contains(u'x')) {
        window->showMaximized();
        return;
    }
    const int width = screen.section(u'x', 0, 0).toInt();
    const int height = screen.section(u'x', 1, 1).toInt();
    window->showNormal();
    const QSize frame = window->size() - window->contentsRect().size();
    window->resize(QSize(width, height + document->ViewBarHeight()) + frame);
}

} // namespace brenix
