#include "app/Toolbox.h"

#include "app/SkinIcons.h"

#include <QBoxLayout>
#include <QLabel>
#include <QStackedWidget>
#include <QToolButton>

using namespace Qt::StringLiterals;

namespace brenix {

Toolbox::Toolbox(QWidget *parent)
    : QWidget(parent)
    , m_title(new QLabel(this))
    , m_panes(new QStackedWidget(this))
{
    setObjectName(u"Toolbox"_s);
    m_title->setObjectName(u"Label1"_s);

    auto *close = new QToolButton(this);
    close->setObjectName(u"Image2"_s);
    close->setAutoRaise(true);
    close->setIcon(ProgramIcon(u"Close"));
    close->setToolTip(u"Hide the ToolBox (F2)"_s);
    close->setAccessibleName(u"Close"_s);
    connect(close, &QToolButton::clicked, this, &Toolbox::CloseClicked);

    auto *titleBar = new QHBoxLayout;
    titleBar->setContentsMargins(6, 2, 2, 2);
    titleBar->addWidget(m_title, 1);
    titleBar->addWidget(close);
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addLayout(titleBar);
    layout->addWidget(m_panes, 1);
}

void Toolbox::AddPane(QWidget *pane, const QString &title)
{
    m_titles.insert(pane, title);
    m_panes->addWidget(pane);
    if (m_panes->count() == 1)
        ShowPane(pane);
}

void Toolbox::ShowPane(QWidget *pane)
{
    m_panes->setCurrentWidget(pane);
    m_title->setText(m_titles.value(pane));
}

} // namespace brenix
