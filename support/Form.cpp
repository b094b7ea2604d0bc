#include "support/Form.h"

#include "support/ColourButton.h"
#include "support/TextCodec.h"

#include <QAbstractButton>
#include <QButtonGroup>
#include <QCheckBox>
#include <QComboBox>
#include <QCompleter>
#include <QGridLayout>
#include <QLineEdit>
#include <QListWidget>
#include <QPlainTextEdit>
#include <QRadioButton>
#include <QScopedValueRollback>
#include <QSpinBox>
#include <QTextBlock>

using namespace Qt::StringLiterals;

namespace brenix {

namespace {

    constexpr int LeastLines = 4;
    constexpr int LeastLetters = 16; // of a combo box

    // Block by block: the whole text would come with other blanks than were typed.
    QStringList LinesOf(const QPlainTextEdit &box)
    {
        QStringList lines;
        for (QTextBlock block = box.document()->begin(); block.isValid(); block = block.next())
            lines += WithoutStandIns(block.text());
        return lines;
    }

} // namespace

template <typename Control, typename Signal>
void Form::Bind(Control *control,
                Signal changed,
                std::function<void()> load,
                std::function<void()> store)
{
    load();
    m_bindings.push_back({std::move(load), std::move(store)});
    QObject::connect(control, changed, &m_context, [this] { TellChange(); });
}

void Form::TellChange()
{
    if (m_isLoading)
        return;
    if (m_changed) {
        Store();
        m_changed();
    }
    if (m_parent)
        m_parent->TellChange();
}

QLineEdit *Form::Text(const char16_t *name, const QString &caption, QString &field)
{
    auto *box = new QLineEdit(m_page);
    Row(name, caption, box);
    Bind(
        box,
        &QLineEdit::textChanged,
        [box, &field] { box->setText(field); },
        [box, &field] { field = box->text(); });
    return box;
}

QCheckBox *Form::Check(const char16_t *name, const QString &caption, bool &field)
{
    auto *box = new QCheckBox(caption, m_page);
    box->setObjectName(QString::fromUtf16(name));
    Add(box);
    Bind(
        box,
        &QCheckBox::toggled,
        [box, &field] { box->setChecked(field); },
        [box, &field] { field = box->isChecked(); });
    return box;
}

QComboBox *Form::Choice(const char16_t *name,
                        const QString &caption,
                        const QStringList &items,
                        QString &field)
{
    auto *box = new QComboBox(m_page);
    Row(name, caption, box);
    box->addItems(items);
    Bind(
        box,
        &QComboBox::currentTextChanged,
        [box, &field] {
            if (!field.isEmpty() && box->findText(field) < 0)
                box->addItem(field);
            box->setCurrentText(field);
        },
        [box, &field] { field = box->currentText(); });
    return box;
}

QComboBox *Form::Combo(const char16_t *name,
                       const QString &caption,
                       const QStringList &items,
                       QString &field)
{
    auto *box = new QComboBox(m_page);
    Row(name, caption, box);
    box->setEditable(true);
    // One long item must not make the dialog wider than the screen.
    box->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    box->setMinimumContentsLength(LeastLetters);
    box->addItems(items);
    box->setInsertPolicy(QComboBox::NoInsert);
    box->completer()->setCaseSensitivity(Qt::CaseSensitive);
    Bind(
        box,
        &QComboBox::editTextChanged,
        [box, &field] { box->setEditText(field); },
        [box, &field] { field = box->currentText(); });
    return box;
}

QSpinBox *Form::Number(
    const char16_t *name, const QString &caption, int least, int most, int &field)
{
    auto *box = new QSpinBox(m_page);
    Row(name, caption, box);
    box->setRange(least, most);
    m_grid->setAlignment(box, Qt::AlignLeft);
    Bind(
        box,
        &QSpinBox::valueChanged,
        [box, &field] { box->setValue(field); },
        [box, &field] { field = box->value(); });
    return box;
}

QListWidget *Form::List(const char16_t *name,
                        const QString &caption,
                        const QStringList &items,
                        QString &field)
{
    auto *list = new QListWidget(m_page);
    Below(name, caption, list);
    list->addItems(items);
    Bind(
        list,
        &QListWidget::currentRowChanged,
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

QPlainTextEdit *Form::AddTextBox(const char16_t *name, const QString &caption)
{
    auto *box = new QPlainTextEdit(m_page);
    Below(name, caption, box);
    box->setTabChangesFocus(true);
    box->setMinimumHeight(LeastLines * box->fontMetrics().lineSpacing());
    return box;
}

QPlainTextEdit *Form::LongText(const char16_t *name, const QString &caption, QString &field)
{
    QPlainTextEdit *box = AddTextBox(name, caption);
    Bind(
        box,
        &QPlainTextEdit::textChanged,
        [box, &field] { box->setPlainText(WithStandIns(field)); },
        [box, &field] { field = LinesOf(*box).join(u"\r\n"_s); });
    return box;
}

QPlainTextEdit *Form::Lines(const char16_t *name, const QString &caption, QStringList &field)
{
    QPlainTextEdit *box = AddTextBox(name, caption);
    box->setLineWrapMode(QPlainTextEdit::NoWrap);
    Bind(
        box,
        &QPlainTextEdit::textChanged,
        [box, &field] { box->setPlainText(WithStandIns(field.join(u'\n'))); },
        [box, &field] {
            field = LinesOf(*box);
            while (!field.isEmpty() && field.constLast().isEmpty())
                field.removeLast();
        });
    return box;
}

ColourButton *Form::Colour(const char16_t *name, const QString &caption, quint32 &field)
{
    auto *button = new ColourButton(m_page);
    Row(name, caption, button);
    Bind(
        button,
        &ColourButton::ColourChanged,
        [button, &field] { button->SetColour(field); },
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
        group,
        &QButtonGroup::idToggled,
        [group, &field] {
            if (QAbstractButton *button = group->button(field))
                button->setChecked(true);
        },
        [group, &field] {
            if (group->checkedId() >= 0)
                field = group->checkedId();
        });
}

void Form::Load()
{
    const QScopedValueRollback loading(m_isLoading, true);
    for (const Binding &binding : m_bindings)
        binding.load();
    for (const std::unique_ptr<Form> &form : m_inner)
        form->Load();
}

void Form::Store() const
{
    for (const Binding &binding : m_bindings)
        binding.store();
    for (const std::unique_ptr<Form> &form : m_inner)
        form->Store();
}

} // namespace brenix
