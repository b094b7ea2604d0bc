#include "support/FormDialog.h"

#include <QDialogButtonBox>
#include <QPushButton>
#include <QShortcut>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace brenix {

namespace {

    QPushButton *AddButton(QDialogButtonBox &row,
                           QDialogButtonBox::StandardButton kind,
                           const QString &caption,
                           const char16_t *name)
    {
        QPushButton *button = row.addButton(kind);
        button->setText(caption);
        button->setObjectName(QString::fromUtf16(name));
        return button;
    }

} // namespace

FormDialog::FormDialog(const char16_t *name, const QString &title, QWidget *parent)
    : QDialog(parent)
    , m_page(new QWidget(this))
    , m_form(m_page)
{
    setObjectName(QString::fromUtf16(name));
    setWindowTitle(title);
    auto *layout = new QVBoxLayout(this);
    layout->addWidget(m_page, 1);
    m_page->layout()->setContentsMargins(0, 0, 0, 0);
}

QDialogButtonBox *FormDialog::AddButtonRow()
{
    auto *row = new QDialogButtonBox(this);
    layout()->addWidget(row);
    return row;
}

void FormDialog::AddHelp(QDialogButtonBox &row,
                         const char16_t *name,
                         const std::function<void()> &help)
{
    AddButton(row, QDialogButtonBox::Help, u"&Help"_s, name);
    connect(&row, &QDialogButtonBox::helpRequested, this, help);
    auto *key = new QShortcut(QKeySequence::HelpContents, this);
    connect(key, &QShortcut::activated, this, help);
}

void FormDialog::AddButtons(const ButtonNames &names, std::function<void()> help)
{
    QDialogButtonBox *row = AddButtonRow();
    AddButton(*row, QDialogButtonBox::Ok, names.okCaption, names.ok)->setDefault(true);
    connect(row, &QDialogButtonBox::accepted, this, &QDialog::accept);
    if (names.cancel) {
        AddButton(*row, QDialogButtonBox::Cancel, names.cancelCaption, names.cancel);
        connect(row, &QDialogButtonBox::rejected, this, &QDialog::reject);
    }
    if (names.help && help)
        AddHelp(*row, names.help, help);
}

void FormDialog::accept()
{
    m_form.Store();
    if (Accepted())
        QDialog::accept();
}

} // namespace brenix
