#include "app/frmHelp.h"

#include "app/SkinIcons.h"

#include <QAction>
#include <QDir>
#include <QEvent>
#include <QLineEdit>
#include <QScreen>
#include <QScrollBar>
#include <QSplitter>
#include <QStatusBar>
#include <QTabBar>
#include <QTabWidget>
#include <QTextBrowser>
#include <QToolBar>
#include <QTreeWidget>

using namespace Qt::StringLiterals;

namespace brenix {

namespace {

    constexpr int TopicColumns = 100; // characters of the normal font
    constexpr int TopicLines = 44;
    constexpr int ListColumns = 44;
    constexpr int MostZoom = 10;
    constexpr int Margin = 14;

    // A colour between the two, so that it fits a light palette and a dark one.
    QString Blend(const QColor &a, const QColor &b, double share)
    {
        const auto mix = [share](int from, int to) { return int(from + (to - from) * share); };
        return QColor(mix(a.red(), b.red()), mix(a.green(), b.green()), mix(a.blue(), b.blue()))
            .name();
    }

    QString StyleSheet(const QPalette &palette)
    {
        const QColor base = palette.color(QPalette::Base);
        const QColor text = palette.color(QPalette::Text);
        return u"h1 { font-size: xx-large; margin: 0 0 10px 0 }"
               "h2 { font-size: large; margin: 18px 0 6px 0 }"
               "p { margin-bottom: 6px }"
               "ul, ol { margin: 0 0 8px 0; -qt-list-indent: 0 }"
               "li { margin: 0 0 4px 20px }"
               "table { border-collapse: collapse; margin-bottom: 8px }"
               "th { text-align: left; background-color: %1 }"
               "th, td { padding: 3px 9px; border: 1px solid %2 }"
               "code, kbd { background-color: %1 }"
               "pre { background-color: %1; margin: 4px 0 8px 0 }"_s.arg(Blend(base, text, 0.07),
                                                                         Blend(base, text, 0.22));
    }

} // namespace

frmHelp::frmHelp(const QString &folder, QWidget *owner)
    : QMainWindow(owner, Qt::Window)
    , m_index(folder)
    , m_tabs(new QTabWidget(this))
    , m_topic(new QTextBrowser(this))
{
    setObjectName(u"frmHelp"_s);
    setWindowTitle(u"Help on Brenix"_s);
    BuildTopic();
    BuildToolbar();
    m_tabs->setObjectName(u"Tabs"_s);
    m_tabs->addTab(BuildContents(), u"&Contents"_s);
    m_tabs->addTab(BuildSearch(), u"&Search"_s);
    m_tabs->addTab(BuildIndex(), u"&Index"_s);
    connect(m_tabs, &QTabWidget::currentChanged, this, [this] {
        // Who goes along the tabs by arrow keys stays there.
        if (!m_tabs->tabBar()->hasFocus())
            m_tabs->currentWidget()->setFocus();
    });
    auto *halves = new QSplitter(this);
    halves->addWidget(m_tabs);
    halves->addWidget(m_topic);
    halves->setStretchFactor(1, 1);
    halves->setChildrenCollapsible(false);
    setCentralWidget(halves);
    statusBar();

    const int character = fontMetrics().averageCharWidth();
    halves->setSizes({ListColumns * character, TopicColumns * character});
    const QSize size((ListColumns + TopicColumns) * character,
                     TopicLines * fontMetrics().lineSpacing());
    resize(size.boundedTo(screen()->availableSize()));
    if (m_index.Topics().isEmpty())
        m_topic->setPlainText(
            u"There are no topics in the folder \"%1\"."_s.arg(QDir::toNativeSeparators(folder)));
    else
        ShowFile(HelpIndex::ContentsFile.toString());
}

void frmHelp::BuildTopic()
{
    m_topic->setObjectName(u"Topic"_s);
    m_topic->setAccessibleName(u"Topic"_s);
    m_topic->setOpenLinks(false);
    ApplyPalette();
    connect(m_topic, &QTextBrowser::anchorClicked, this, &frmHelp::FollowLink);
    connect(m_topic, &QTextBrowser::sourceChanged, this, &frmHelp::FollowTopic);
}

void frmHelp::BuildToolbar()
{
    auto *bar = addToolBar(u"Help"_s);
    bar->setMovable(false);
    setContextMenuPolicy(Qt::NoContextMenu);
    const auto add = [this, bar](const QString &name, const QString &text, const QString &keys) {
        QAction *action = bar->addAction(text);
        action->setObjectName(name);
        action->setShortcut(QKeySequence(keys));
        action->setToolTip(
            u"%1 (%2)"_s.arg(text, QKeySequence(keys).toString(QKeySequence::NativeText)));
        return action;
    };
    QAction *back = add(u"Back"_s, u"Back"_s, u"Alt+Left"_s);
    QAction *forward = add(u"Forward"_s, u"Forward"_s, u"Alt+Right"_s);
    QAction *home = add(u"Home"_s, u"Contents"_s, u"Alt+Home"_s);
    for (QAction *step : {back, forward, home})
        step->setIcon(ProgramIcon(step->objectName()));
    bar->addSeparator();
    QAction *larger = add(u"Larger"_s, u"Larger letters"_s, u"Ctrl++"_s);
    QAction *smaller = add(u"Smaller"_s, u"Smaller letters"_s, u"Ctrl+-"_s);
    QAction *normal = add(u"Normal"_s, u"Normal letters"_s, u"Ctrl+0"_s);
    larger->setIconText(u"A+"_s);
    smaller->setIconText(u"A\u2212"_s);
    normal->setIconText(u"A"_s);
    for (QAction *step : {back, forward})
        step->setEnabled(false);
    connect(m_topic, &QTextBrowser::backwardAvailable, back, &QAction::setEnabled);
    connect(m_topic, &QTextBrowser::forwardAvailable, forward, &QAction::setEnabled);
    connect(back, &QAction::triggered, m_topic, &QTextBrowser::backward);
    connect(forward, &QAction::triggered, m_topic, &QTextBrowser::forward);
    connect(home, &QAction::triggered, this, &frmHelp::ShowContents);
    connect(larger, &QAction::triggered, this, [this] { Zoom(1); });
    connect(smaller, &QAction::triggered, this, [this] { Zoom(-1); });
    connect(normal, &QAction::triggered, this, [this] { Zoom(-m_zoom); });

    auto *close = new QAction(this);
    close->setShortcut(QKeySequence(Qt::Key_Escape));
    addAction(close);
    connect(close, &QAction::triggered, this, &QWidget::close);
}

void frmHelp::ShowFile(const QString &file)
{
    m_topic->setSource(QUrl::fromLocalFile(QDir(m_index.Folder()).absoluteFilePath(file)));
}

QString frmHelp::FileOf(const QUrl &source) const
{
    return QDir(m_index.Folder()).relativeFilePath(QDir::cleanPath(source.toLocalFile()));
}

void frmHelp::FollowLink(const QUrl &link)
{
    if (link.isLocalFile() && m_index.TopicOfFile(FileOf(link)))
        m_topic->setSource(link);
    else
        statusBar()->showMessage(u"Not opened: "_s + link.toDisplayString());
}

void frmHelp::Zoom(int steps)
{
    const int zoom = qBound(-MostZoom / 2, m_zoom + steps, MostZoom);
    m_topic->zoomIn(zoom - m_zoom);
    m_zoom = zoom;
}

void frmHelp::ApplyPalette()
{
    m_topic->document()->setDocumentMargin(Margin);
    m_topic->document()->setDefaultStyleSheet(StyleSheet(palette()));
}

void frmHelp::changeEvent(QEvent *event)
{
    QMainWindow::changeEvent(event);
    if (event->type() != QEvent::PaletteChange || m_topic->source().isEmpty())
        return;
    const int place = m_topic->verticalScrollBar()->value();
    ApplyPalette();
    m_topic->reload();
    m_topic->verticalScrollBar()->setValue(place);
}

void frmHelp::SetOwner(QWidget *owner)
{
    const bool shown = isVisible();
    setParent(owner, windowFlags());
    setVisible(shown);
}

void frmHelp::Present()
{
    show();
    raise();
    activateWindow();
}

bool frmHelp::ShowKeyword(const QString &keyword)
{
    const HelpTopic *topic = m_index.TopicOfKeyword(keyword);
    if (!topic)
        return false;
    ShowFile(topic->file);
    Present();
    m_topic->setFocus();
    return true;
}

void frmHelp::ShowContents()
{
    if (!m_index.Topics().isEmpty())
        ShowFile(HelpIndex::ContentsFile.toString());
    m_tabs->setCurrentWidget(m_contents);
    Present();
    m_contents->setFocus();
}

void frmHelp::ShowSearch()
{
    m_tabs->setCurrentIndex(1);
    Present();
    m_words->setFocus();
    m_words->selectAll();
}

} // namespace brenix
