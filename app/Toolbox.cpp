#include "app/Toolbox.h"

#include "app/SkinIcons.h"

#include <QActionGroup>
#include <QBoxLayout>
#include <QLabel>
#include <QMenu>
#include <QStackedWidget>
#include <QToolButton>

using namespace Qt::StringLiterals;

namespace brenix {

namespace {

    constexpr int BlinkTime = 700; // ms
    constexpr QSize ArrowSize(10, 10); // leaves room for the longest title

} // namespace

Toolbox::Toolbox(QWidget *parent)
    : QWidget(parent)
    , m_title(new QLabel(this))
    , m_arrow(new QToolButton(this))
    , m_menu(new QMenu(u"Toolbox"_s, this))
    , m_commands(new QActionGroup(this))
    , m_stack(new QStackedWidget(this))
{
    setObjectName(u"Toolbox"_s);
    m_title->setObjectName(u"Label1"_s);
    m_menu->setObjectName(u"mnuToolbox"_s);
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    BuildTitleBar();
    layout->addWidget(m_stack, 1);
    m_blink.setObjectName(u"Blink"_s);
    m_blink.setSingleShot(true);
    m_blink.setInterval(BlinkTime);
    connect(&m_blink, &QTimer::timeout, this, [this] {
        m_title->setAutoFillBackground(false);
        m_title->setPalette(palette());
    });
}

void Toolbox::BuildTitleBar()
{
    m_arrow->setObjectName(u"Image1"_s);
    m_arrow->setAutoRaise(true);
    m_arrow->setArrowType(Qt::DownArrow);
    m_arrow->setIconSize(ArrowSize);
    m_arrow->setToolTip(u"Choose what the ToolBox shows"_s);
    m_arrow->setAccessibleName(u"Panes"_s);
    // A press while the menu is open closes it, and must not open it again.
    m_menu->setAttribute(Qt::WA_NoMouseReplay);
    connect(m_arrow, &QToolButton::pressed, this, [this] {
        m_menu->popup(m_arrow->mapToGlobal(QPoint(0, m_arrow->height())));
        m_arrow->setDown(true);
    });
    connect(m_menu, &QMenu::aboutToHide, this, [this] { m_arrow->setDown(false); });

    auto *close = new QToolButton(this);
    close->setObjectName(u"Image2"_s);
    close->setAutoRaise(true);
    close->setIcon(ProgramIcon(u"Close"));
    close->setToolTip(u"Hide the ToolBox (F2)"_s);
    close->setAccessibleName(u"Close"_s);
    connect(close, &QToolButton::clicked, this, &Toolbox::CloseClicked);

    auto *titleBar = new QHBoxLayout;
    titleBar->setContentsMargins(6, 2, 2, 2);
    titleBar->setSpacing(0);
    titleBar->addWidget(m_title, 1);
    titleBar->addWidget(m_arrow);
    titleBar->addWidget(close);
    static_cast<QVBoxLayout *>(layout())->addLayout(titleBar);
}

void Toolbox::AddPane(const Pane &pane)
{
    m_panes.insert(pane.command, pane);
    QAction *action = m_menu->addAction(pane.caption);
    action->setObjectName(pane.command);
    action->setCheckable(true);
    m_commands->addAction(action);
    connect(action, &QAction::triggered, this, [this, command = pane.command] {
        ShowPane(command);
        FocusPane();
    });
}

void Toolbox::StartWith(const QString &command)
{
    m_first = command;
    m_title->setText(m_panes[command].title);
}

// The window comes first.
void Toolbox::showEvent(QShowEvent *event)
{
    QWidget::showEvent(event);
    QTimer::singleShot(0, this, [this] {
        if (!m_commands->checkedAction())
            ShowPane(m_first);
    });
}

QAction *Toolbox::ActionOf(const QString &command) const
{
    return m_menu->findChild<QAction *>(command, Qt::FindDirectChildrenOnly);
}

QWidget *Toolbox::Made(const QString &command)
{
    QWidget *&pane = m_made[command];
    if (!pane) {
        pane = m_panes[command].make();
        m_stack->addWidget(pane);
    }
    return pane;
}

void Toolbox::ShowPane(const QString &command)
{
    if (!m_panes.contains(command))
        return;
    m_title->setText(m_panes[command].title);
    ActionOf(command)->setChecked(true);
    m_stack->setCurrentWidget(Made(command));
}

void Toolbox::MakePane(const QString &command)
{
    if (m_panes.contains(command))
        Made(command);
}

void Toolbox::FocusPane()
{
    if (QWidget *pane = m_stack->currentWidget())
        pane->setFocus();
}

void Toolbox::BlinkTitle()
{
    QPalette contrast = palette();
    contrast.setBrush(QPalette::Window, contrast.highlight());
    contrast.setBrush(QPalette::WindowText, contrast.highlightedText());
    m_title->setPalette(contrast);
    m_title->setAutoFillBackground(true);
    m_blink.start();
}

void Toolbox::SetCaption(const QString &command, const QString &caption)
{
    if (QAction *action = ActionOf(command))
        action->setText(caption);
}

} // namespace brenix
