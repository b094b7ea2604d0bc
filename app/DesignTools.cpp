#include "app/DesignTools.h"

#include "app/InnerToolBar.h"
#include "app/SkinIcons.h"
#include "support/ColourText.h"
#include "support/DesignView.h"
#include "support/MessageBoxes.h"

using namespace Qt::StringLiterals;

namespace brenix {

namespace {

    struct ToolButton
    {
        const char16_t *icon; // empty for a separator
        const char16_t *tip;
        int command;
    };
    constexpr ToolButton ToolButtons[] = {
        {u"Bold", u"Bold", Decmd::Bold},
        {u"Italic", u"Italic", Decmd::Italic},
        {u"Underline", u"Underline", Decmd::Underline},
        {u"", u"", 0},
        {u"Left", u"Align left", Decmd::JustifyLeft},
        {u"Center", u"Center", Decmd::JustifyCenter},
        {u"Right", u"Align right", Decmd::JustifyRight},
        {u"", u"", 0},
        {u"list", u"Bulleted list", Decmd::UnorderList},
        {u"numberlist", u"Numbered list", Decmd::OrderList},
        {u"outdent", u"Outdent", Decmd::Outdent},
        {u"indent", u"Indent", Decmd::Indent},
        {u"", u"", 0},
    };

} // namespace

DesignTools::DesignTools(QWidget *parent)
    : QToolBar(u"Design tools"_s, parent)
{
    setObjectName(u"Picture3"_s);
    setMovable(false);
    for (const ToolButton &button : ToolButtons) {
        if (*button.icon == u'\0') {
            addSeparator();
            continue;
        }
        AddCommand(*this, button.icon, button.tip, button.command);
    }
    QAction *table = addAction(SkinIcon(u"Table"), u"Insert table"_s);
    connect(table, &QAction::triggered, this, [this, table] {
        const QWidget *button = widgetForAction(table);
        emit TableClicked(button->mapToGlobal(button->rect().bottomLeft()));
    });
    addSeparator();
    m_borders = AddView(
        u"Tableborder", u"Show borders"_s, [this](bool on) { m_view->SetShowBorders(on); });
    m_details
        = AddView(u"Detail", u"Show details"_s, [this](bool on) { m_view->SetShowDetails(on); });
    addSeparator();
    AddTextFormat();
}

void DesignTools::AddCommand(QToolBar &bar, const char16_t *icon, const char16_t *tip, int command)
{
    QAction *action = bar.addAction(SkinIcon(icon), QString::fromUtf16(tip));
    action->setCheckable(command != Decmd::Outdent && command != Decmd::Indent
                         && command != Decmd::RemoveFormat);
    m_commands.insert(command, action);
    connect(action, &QAction::triggered, this, [this, command] {
        if (m_view)
            m_view->ExecCommand(command);
    });
}

void DesignTools::AddTextFormat()
{
    QToolBar *bar = NewInnerToolBar(u"Toolbar2"_s, *this);
    AddCommand(*bar, u"Fontremove", u"Remove format", Decmd::RemoveFormat);
    const QAction *colour = bar->addAction(SkinIcon(u"Color"), u"Text color"_s);
    connect(colour, &QAction::triggered, this, &DesignTools::ChooseTextColour);
}

QAction *DesignTools::AddView(const char16_t *icon,
                              const QString &tip,
                              const std::function<void(bool)> &show)
{
    QAction *action = addAction(SkinIcon(icon), tip);
    action->setCheckable(true);
    connect(action, &QAction::triggered, this, [this, show](bool on) {
        if (m_view)
            show(on);
    });
    return action;
}

void DesignTools::ChooseTextColour()
{
    const std::optional<quint32> colour = m_view ? ChooseColour(0) : std::nullopt;
    if (colour)
        m_view->ExecCommand(Decmd::SetForeColor, ColourText(*colour));
}

void DesignTools::SetView(DesignView *view)
{
    m_view = view;
    setEnabled(view != nullptr);
    Follow();
}

void DesignTools::Follow()
{
    if (!m_view)
        return;
    for (auto command = m_commands.begin(); command != m_commands.end(); ++command)
        command.value()->setChecked(m_view->QueryStatus(command.key()) == Decmdf::Latched);
    m_borders->setChecked(m_view->ShowBorders());
    m_details->setChecked(m_view->ShowDetails());
}

} // namespace brenix
