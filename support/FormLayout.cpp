#include "support/Form.h"

#include <QComboBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

using namespace Qt::StringLiterals;

namespace brenix {

namespace {

    constexpr int ControlColumn = 1;
    constexpr int ButtonColumn = 2;
    constexpr int WholeRow = 3;
    constexpr qsizetype LongCaption = 40;

    QString PlainCaption(const QString &caption)
    {
        QString plain = caption;
        plain.remove(u'&');
        return plain.endsWith(u':') ? plain.chopped(1) : plain;
    }

    void Name(QWidget *control, const char16_t *name, const QString &caption)
    {
        control->setObjectName(QString::fromUtf16(name));
        control->setAccessibleName(PlainCaption(caption));
    }

} // namespace

Form::Form(QWidget *page)
    : m_page(page)
    , m_grid(new QGridLayout(page))
{
    m_grid->setColumnStretch(ControlColumn, 1);
}

void Form::Row(const char16_t *name, const QString &caption, QWidget *control)
{
    Name(control, name, caption);
    auto *label = new QLabel(caption, m_page);
    label->setBuddy(control);
    int row = m_grid->rowCount();
    if (caption.size() < LongCaption) {
        m_grid->addWidget(label, row, 0);
        m_grid->addWidget(control, row, ControlColumn);
    } else {
        label->setWordWrap(true);
        m_grid->addWidget(label, row++, 0, 1, WholeRow);
        m_grid->addWidget(control, row, 0, 1, ButtonColumn);
    }
}

void Form::Below(const char16_t *name, const QString &caption, QWidget *control)
{
    Name(control, name, caption);
    if (!caption.isEmpty()) {
        auto *label = new QLabel(caption, m_page);
        label->setWordWrap(true);
        label->setBuddy(control);
        Add(label);
    }
    Add(control, 1);
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
    m_grid->addWidget(button, m_grid->rowCount(), 0, 1, WholeRow, Qt::AlignLeft);
    return button;
}

QPushButton *Form::ButtonBeside(const char16_t *name,
                                const QString &caption,
                                std::function<void()> clicked)
{
    QPushButton *button = NewButton(name, caption, std::move(clicked));
    const int row = m_grid->rowCount() - 1;
    QLayoutItem *cell = m_grid->itemAtPosition(row, ButtonColumn);
    if (QWidget *whole = cell ? cell->widget() : nullptr) {
        m_grid->removeWidget(whole);
        m_grid->addWidget(whole, row, 0, 1, ButtonColumn);
        cell = nullptr;
    }
    auto *buttons = cell ? static_cast<QHBoxLayout *>(cell->layout()) : new QHBoxLayout;
    if (!cell)
        m_grid->addLayout(buttons, row, ButtonColumn);
    buttons->addWidget(button);
    return button;
}

QPushButton *Form::ChooserBeside(const char16_t *name,
                                 const QString &caption,
                                 std::function<QString(const QString &text)> choose)
{
    const int row = m_grid->rowCount() - 1;
    QLayoutItem *cell = m_grid->itemAtPosition(row, ControlColumn);
    QWidget *control = cell->widget();
    auto *combo = qobject_cast<QComboBox *>(control);
    auto *box = combo ? combo->lineEdit() : qobject_cast<QLineEdit *>(control);
    Q_ASSERT(box);
    return ButtonBeside(name, caption, [box, choose = std::move(choose)] {
        const QString chosen = choose(box->text());
        if (!chosen.isEmpty())
            box->setText(chosen);
    });
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
    m_grid->addWidget(control, row, 0, 1, WholeRow);
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

Form &Form::Inside(QWidget *page)
{
    Form &form = *m_inner.emplace_back(std::make_unique<Form>(page));
    form.m_parent = this;
    form.m_grid->setContentsMargins(0, 0, 0, 0);
    return form;
}

Form &Form::Group(const char16_t *name, const QString &title)
{
    auto *frame = new QGroupBox(title, m_page);
    frame->setObjectName(QString::fromUtf16(name));
    Add(frame);
    Form &form = Inside(frame);
    form.m_grid->unsetContentsMargins();
    return form;
}

QList<Form *> Form::Columns(const QList<int> &shares, int stretch)
{
    auto *row = new QWidget(m_page);
    auto *layout = new QHBoxLayout(row);
    layout->setContentsMargins(0, 0, 0, 0);
    QList<Form *> columns;
    for (const int share : shares) {
        auto *page = new QWidget(row);
        layout->addWidget(page, share);
        columns.append(&Inside(page));
    }
    Add(row, stretch);
    return columns;
}

} // namespace brenix
