#include "support/WizardDialog.h"

#include <QDialogButtonBox>
#include <QLabel>
#include <QPushButton>
#include <QStackedWidget>

using namespace Qt::StringLiterals;

namespace brenix {

WizardDialog::WizardDialog(const char16_t *name,
                           const QString &title,
                           const LabelNames &labels,
                           QWidget *parent)
    : FormDialog(name, title, parent)
    , m_title(Rows().Note({}))
    , m_hint(Rows().Note({}))
    , m_steps(new QStackedWidget(this))
{
    m_title->setObjectName(QString::fromUtf16(labels.title));
    m_hint->setObjectName(QString::fromUtf16(labels.hint));
    QFont heading = m_title->font();
    heading.setBold(true);
    m_title->setFont(heading);
    Rows().Add(m_steps, 1);
}

Form &WizardDialog::AddStep(const char16_t *name, const QString &title, const QString &hint)
{
    auto *page = new QWidget;
    page->setObjectName(QString::fromUtf16(name));
    m_steps->addWidget(page);
    m_headings.append({title, hint});
    return Rows().Inside(page);
}

void WizardDialog::AddButtons(const WizardButtonNames &names, const std::function<void()> &help)
{
    QDialogButtonBox *row = AddButtonRow();
    const auto add = [row](const QString &caption, const char16_t *name, auto role) {
        QPushButton *button = row->addButton(caption, role);
        button->setObjectName(QString::fromUtf16(name));
        return button;
    };
    m_back = add(u"&Back"_s, names.back, QDialogButtonBox::ActionRole);
    m_next = add(u"&Next"_s, names.next, QDialogButtonBox::ActionRole);
    m_next->setDefault(true);
    add(u"&Cancel"_s, names.cancel, QDialogButtonBox::RejectRole);
    connect(m_back, &QPushButton::clicked, this, [this] { ShowStep(Step() - 1); });
    connect(m_next, &QPushButton::clicked, this, &WizardDialog::GoOn);
    connect(row, &QDialogButtonBox::rejected, this, &QDialog::reject);
    if (names.help && help)
        AddHelp(*row, names.help, help);
    ShowStep(0);
}

int WizardDialog::Step() const
{
    return m_steps->currentIndex();
}

void WizardDialog::GoOn()
{
    if (!m_next->isEnabled())
        return;
    if (Step() == m_steps->count() - 1)
        return accept();
    Rows().Store();
    const int next = Step() + 1;
    ShowStep(next);
    Enter(next);
}

void WizardDialog::AllowNext(bool allowed)
{
    m_next->setEnabled(allowed);
}

void WizardDialog::ShowStep(int step)
{
    m_steps->setCurrentIndex(step);
    m_title->setText(m_headings[step].title);
    m_hint->setText(m_headings[step].hint);
    m_next->setText(step == m_steps->count() - 1 ? u"&Finish"_s : u"&Next"_s);
    m_next->setEnabled(true);
    m_back->setEnabled(step > 0);
}

} // namespace brenix
