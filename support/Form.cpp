#include "support/Form.h"

#include "support/ColourButton.h"

#include <QAbstractButton>
#include <QButtonGroup>
#include <QCheckBox>
#include <QComboBox>
#include <QCompleter>
#include <QDialogButtonBox>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QSpinBox>
#include <QTextBlock>
#include <QVBoxLayout>

namespace brenix {

namespace {

    constexpr int ControlColumn = 1;
    constexpr int ButtonColumn = 2;
    constexpr int Columns = 3;
    constexpr qsizetype LongCaption = 40;
    constexpr int LeastLines = 4;
    constexpr int LeastLetters = 16; // of a combo box

    QString PlainCaption(const QString &caption)
    {
        QString plain = caption;
        plain.remove(u'&');
        return plain.endsWith(u':') ? plain.chopped(1) : plain;
    }

} // namespace

Form::Form(QWidget *page)
    : m_page(page)
    , m_grid(new QGridLayout(page))
{
    m_grid->setColumnStretch(ControlColumn, 1);
}

template <typename Control>
Control *Form::AddRow(const char16_t *name, const QString &caption, Control *control)
{
    control->setObjectName(QString::fromUtf16(name));
    control->setAccessibleName(PlainCaption(caption));
    auto *label = new QLabel(caption, m_page);
    label->setBuddy(control);
    int row = m_grid->rowCount();
    if (caption.size() < LongCaption) {
        m_grid->addWidget(label, row, 0);
        m_grid->addWidget(control, row, ControlColumn);
    } else {
        label->setWordWrap(true);
        m_grid->addWidget(label, row++, 0, 1, Columns);
        m_grid->addWidget(control, row, 0, 1, ButtonColumn);
    }
    return control;
}

/// A control that takes what height there is, its caption above it.
template <typename Control>
Control *Form::AddBelow(const char16_t *name, const QString &caption, Control *control)
{
    control->setObjectName(QString::fromUtf16(name));
    control->setAccessibleName(PlainCaption(caption));
    if (!caption.isEmpty()) {
        auto *label = new QLabel(caption, m_page);
        label->setWordWrap(true);
        label->setBuddy(control);
        Add(label);
    }
    Add(control, 1);
    return control;
}

void Form::Bind(std::function<void()> load, std::function<void()> store)
{
    load();
    m_bindings.push_back({std::move(load), std::move(store)});
}

QLineEdit *Form::Text(const char16_t *name, const QString &caption, QString &field)
{
    auto *box = AddRow(name, caption, new QLineEdit(m_page));
    Bind([box, &field] { box->setText(field); }, [box, &field] { field = box->text(); });
    return box;
}

QCheckBox *Form::Check(const char16_t *name, const QString &caption, bool &field)
{
    auto *box = new QCheckBox(caption, m_page);
    box->setObjectName(QString::fromUtf16(name));
    Add(box);
    Bind([box, &field] { box->setChecked(field); }, [box, &field] { field = box->isChecked(); });
    return box;
}

QComboBox *Form::Choice(const char16_t *name,
                        const QString &caption,
                        const QStringList &items,
                        QString &field)
{
    auto *box = AddRow(name, caption, new QComboBox(m_page));
    box->addItems(items);
    Bind([box, &field] { box->setCurrentText(field); },
         [box, &field] { field = box->currentText(); });
    return box;
}

QComboBox *Form::Combo(const char16_t *name,
                       const QString &caption,
                       const QStringList &items,
                       QString &field)
{
    auto *box = AddRow(name, caption, new QComboBox(m_page));
    box->setEditable(true);
    // One long item must not make the dialog wider than the screen.
    box->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    box->setMinimumContentsLength(LeastLetters);
    box->addItems(items);
    box->setInsertPolicy(QComboBox::NoInsert);
    box->completer()->setCaseSensitivity(Qt::CaseSensitive);
    Bind([box, &field] { box->setEditText(field); }, [box, &field] { field = box->currentText(); });
    return box;
}

QSpinBox *Form::Number(
    const char16_t *name, const QString &caption, int least, int most, int &field)
{
    auto *box = AddRow(name, caption, new QSpinBox(m_page));
    box->setRange(least, most);
    m_grid->setAlignment(box, Qt::AlignLeft);
    Bind([box, &field] { box->setValue(field); }, [box, &field] { field = box->value(); });
    return box;
}

QListWidget *Form::List(const char16_t *name,
                        const QString &caption,
                        const QStringList &items,
                        QString &field)
{
    auto *list = AddBelow(name, caption, new QListWidget(m_page));
    list->addItems(items);
    Bind(
        [list, &field] {
            const QList<QListWidgetItem *> found = list->findItems(field, Qt::MatchFixedString);
            list->setCurrentItem(found.value(0));
        },
        [list, &field] {
            if (const QListWidgetItem *item = list->currentItem())
                field = item->text();
        });
    return list;
}

QPlainTextEdit *Form::Lines(const char16_t *name, const QString &caption, QStringList &field)
{
    auto *box = AddBelow(name, caption, new QPlainTextEdit(m_page));
    box->setLineWrapMode(QPlainTextEdit::NoWrap);
    box->setTabChangesFocus(true);
    box->setMinimumHeight(LeastLines * box->fontMetrics().lineSpacing());
    Bind([box, &field] { box->setPlainText(field.join(u'\n')); },
         [box, &field] {
             field.clear();
             // Block by block: the whole text would come with other blanks than were typed.
             for (QTextBlock block = box->document()->begin(); block.isValid();
                  block = block.next())
                 field += block.text();
             while (!field.isEmpty() && field.constLast().isEmpty())
                 field.removeLast();
         });
    return box;
}

ColourButton *Form::Colour(const char16_t *name, const QString &caption, quint32 &field)
{
    auto *button = AddRow(name, caption, new ColourButton(m_page));
    Bind([button, &field] { button->SetColour(field); },
         [button, &field] { field = button->Colour(); });
    return button;
}

void Form::Options(const QList<Option> &options, int &field)
{
    auto *group = new QButtonGroup(m_page);
    for (const Option &option : options) {
        auto *button = new QRadioButton(option.caption, m_page);
        button->setObjectName(QString::fromUtf16(option.name));
        group->addButton(button, option.value);
        Add(button);
    }
    Bind(
        [group, &field] {
            if (QAbstractButton *button = group->button(field))
                button->setChecked(true);
        },
        [group, &field] {
            if (group->checkedId() >= 0)
                field = group->checkedId();
        });
}

QPushButton *Form::NewButton(const char16_t *name,
                             const QString &caption,
                             std::function<void()> clicked)
{
    auto *button = new QPushButton(caption, m_page);
    button->setObjectName(QString::fromUtf16(name));
    button->setAutoDefault(false);
    QObject::connect(button, &QPushButton::clicked, button, std::move(clicked));
    return button;
}

QPushButton *Form::Button(const char16_t *name,
                          const QString &caption,
                          std::function<void()> clicked)
{
    QPushButton *button = NewButton(name, caption, std::move(clicked));
    m_grid->addWidget(button, m_grid->rowCount(), 0, 1, Columns, Qt::AlignLeft);
    return button;
}

QPushButton *Form::ButtonBeside(const char16_t *name,
                                const QString &caption,
                                std::function<void()> clicked)
{
    QPushButton *button = NewButton(name, caption, std::move(clicked));
    const int row = m_grid->rowCount() - 1;
    QLayoutItem *cell = m_grid->itemAtPosition(row, ButtonColumn);
    auto *buttons = cell ? static_cast<QHBoxLayout *>(cell->layout()) : new QHBoxLayout;
    if (!cell)
        m_grid->addLayout(buttons, row, ButtonColumn);
    buttons->addWidget(button);
    return button;
}

QLabel *Form::Note(const QString &text)
{
    auto *label = new QLabel(text, m_page);
    label->setWordWrap(true);
    label->setTextFormat(Qt::PlainText);
    Add(label);
    return label;
}

void Form::Add(QWidget *control, int stretch)
{
    const int row = m_grid->rowCount();
    m_grid->addWidget(control, row, 0, 1, Columns);
    m_grid->setRowStretch(row, stretch);
}

void Form::AddStretch()
{
    for (int row = 0; row < m_grid->rowCount(); ++row) {
        if (m_grid->rowStretch(row) > 0)
            return;
    }
    m_grid->setRowStretch(m_grid->rowCount(), 1);
}

void Form::Load() const
{
    for (const Binding &binding : m_bindings)
        binding.load();
}

void Form::Store() const
{
    for (const Binding &binding : m_bindings)
        binding.store();
}

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

void FormDialog::AddButtons(const ButtonNames &names, std::function<void()> help)
{
    auto *row = new QDialogButtonBox(this);
    const auto add =
        [row](QDialogButtonBox::StandardButton kind, const QString &caption, const char16_t *name) {
            QPushButton *button = row->addButton(kind);
            button->setText(caption);
            button->setObjectName(QString::fromUtf16(name));
            return button;
        };
    add(QDialogButtonBox::Ok, QStringLiteral("&OK"), names.ok)->setDefault(true);
    connect(row, &QDialogButtonBox::accepted, this, &QDialog::accept);
    if (names.cancel) {
        add(QDialogButtonBox::Cancel, QStringLiteral("&Cancel"), names.cancel);
        connect(row, &QDialogButtonBox::rejected, this, &QDialog::reject);
    }
    if (names.help && help) {
        add(QDialogButtonBox::Help, QStringLiteral("&Help"), names.help);
        connect(row, &QDialogButtonBox::helpRequested, this, std::move(help));
    }
    layout()->addWidget(row);
}

void FormDialog::accept()
{
    m_form.Store();
    if (Accepted())
        QDialog::accept();
}

} // namespace brenix
