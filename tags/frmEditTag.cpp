#include "tags/frmEditTag.h"

#include "support/ColourText.h"
#include "support/DocumentModel.h"
#include "support/SourceView.h"
#include "tags/AttributeCatalogue.h"
#include "tags/ChooseLink.h"
#include "tags/EditTag.h"

#include <QBoxLayout>
#include <QComboBox>
#include <QCompleter>
#include <QDialogButtonBox>
#include <QFormLayout>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTreeWidget>

using namespace Qt::StringLiterals;

namespace brenix {

namespace {

    enum Column { NameColumn, ValueColumn };

    QPushButton *NewButton(const QString &name, const QString &caption)
    {
        auto *button = new QPushButton(caption);
        button->setObjectName(name);
        button->setAutoDefault(false);
        return button;
    }

} // namespace

frmEditTag::frmEditTag(DocumentModel &page, QWidget *parent)
    : QDialog(parent)
    , m_page(page)
    , m_grid(new QTreeWidget(this))
    , m_name(new QComboBox(this))
    , m_value(new QLineEdit(this))
{
    setObjectName(u"frmEditTag"_s);
    setWindowTitle(u"Edit Tag"_s);
    new QVBoxLayout(this);
    BuildGrid();
    BuildFields();
    BuildButtons();

    const EditedTag tag = ReadTag(page.rtfText().SelText());
    m_tagName = tag.name;
    m_name->addItems(DialogAttributesOfTag(m_tagName));
    m_name->setEditText({});
    for (const EditedTag::Attribute &attribute : tag.attributes)
        AddAttribute(attribute.name, attribute.value);
    m_grid->setCurrentItem(m_grid->topLevelItem(0));
    ShowCurrent();
    m_grid->setFocus();
}

void frmEditTag::BuildGrid()
{
    m_grid->setObjectName(u"LI"_s);
    m_grid->setAccessibleName(u"Attributes"_s);
    m_grid->setHeaderLabels({u"Attribute"_s, u"Value"_s});
    m_grid->setRootIsDecorated(false);
    m_grid->setUniformRowHeights(true);
    m_grid->header()->setDefaultSectionSize(fontMetrics().averageCharWidth() * 22);
    m_grid->setMinimumWidth(fontMetrics().averageCharWidth() * 64);
    connect(m_grid, &QTreeWidget::currentItemChanged, this, &frmEditTag::ShowCurrent);

    auto *row = new QHBoxLayout;
    auto *side = new QVBoxLayout;
    QPushButton *add = NewButton(u"Command3"_s, u"&New Attribute"_s);
    QPushButton *remove = NewButton(u"Command4"_s, u"&Remove Attribute"_s);
    connect(add, &QPushButton::clicked, this, &frmEditTag::NewAttribute);
    connect(remove, &QPushButton::clicked, this, &frmEditTag::RemoveAttribute);
    side->addWidget(add);
    side->addWidget(remove);
    side->addStretch();
    row->addWidget(m_grid, 1);
    row->addLayout(side);
    static_cast<QVBoxLayout *>(layout())->addLayout(row, 1);
}

void frmEditTag::BuildFields()
{
    m_name->setObjectName(u"Combo1"_s);
    m_name->setEditable(true);
    m_name->setInsertPolicy(QComboBox::NoInsert);
    m_name->completer()->setCaseSensitivity(Qt::CaseSensitive); // names keep the case they have
    m_value->setObjectName(u"Text2"_s);
    connect(m_name, &QComboBox::editTextChanged, this, [this](const QString &text) {
        SetCurrent(NameColumn, text);
    });
    connect(m_value, &QLineEdit::textChanged, this, [this](const QString &text) {
        SetCurrent(ValueColumn, text);
    });
    QPushButton *file = NewButton(u"FButton1"_s, u"&File..."_s);
    QPushButton *colour = NewButton(u"FButton2"_s, u"Co&lor..."_s);
    connect(file, &QPushButton::clicked, this, &frmEditTag::ChooseFile);
    connect(colour, &QPushButton::clicked, this, &frmEditTag::PickColour);
    auto *values = new QHBoxLayout;
    values->addWidget(m_value, 1);
    values->addWidget(file);
    values->addWidget(colour);
    auto *fields = new QFormLayout;
    fields->addRow(u"&Attribute"_s, m_name);
    fields->addRow(u"&Value"_s, values);
    static_cast<QLabel *>(fields->labelForField(values))->setBuddy(m_value);
    m_value->setAccessibleName(u"Value"_s);
    static_cast<QVBoxLayout *>(layout())->addLayout(fields);
}

void frmEditTag::BuildButtons()
{
    auto *row = new QDialogButtonBox(this);
    QPushButton *ok = row->addButton(u"&OK"_s, QDialogButtonBox::AcceptRole);
    ok->setObjectName(u"Command1"_s);
    ok->setDefault(true);
    row->addButton(u"&Cancel"_s, QDialogButtonBox::RejectRole)->setObjectName(u"Command2"_s);
    connect(row, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(row, &QDialogButtonBox::rejected, this, &QDialog::reject);
    layout()->addWidget(row);
}

void frmEditTag::AddAttribute(const QString &name, const QString &value)
{
    new QTreeWidgetItem(m_grid, {name, value});
}

void frmEditTag::NewAttribute()
{
    AddAttribute(u"Attribute"_s, u"Value"_s);
    m_grid->setCurrentItem(m_grid->topLevelItem(m_grid->topLevelItemCount() - 1));
    m_name->setFocus();
    m_name->lineEdit()->selectAll();
}

void frmEditTag::RemoveAttribute()
{
    delete m_grid->currentItem();
}

void frmEditTag::ChooseFile()
{
    const QString link
        = ChooseLink(m_page, {.title = u"Open"_s, .filter = u"All Files (*.*)|*.*"_s});
    if (!link.isEmpty())
        m_value->setText(link);
}

void frmEditTag::PickColour()
{
    if (const std::optional<quint32> colour = ChooseColour(0))
        m_value->setText(ColourText(*colour));
}

void frmEditTag::ShowCurrent()
{
    const QTreeWidgetItem *item = m_grid->currentItem();
    // The texts of one row must not reach the row before.
    const QSignalBlocker quietName(m_name);
    const QSignalBlocker quietValue(m_value);
    m_name->setEditText(item ? item->text(NameColumn) : QString());
    m_value->setText(item ? item->text(ValueColumn) : QString());
    for (const QString &name :
         {u"Combo1"_s, u"Text2"_s, u"FButton1"_s, u"FButton2"_s, u"Command4"_s})
        findChild<QWidget *>(name)->setEnabled(item != nullptr);
}

void frmEditTag::SetCurrent(int column, const QString &text)
{
    if (QTreeWidgetItem *item = m_grid->currentItem())
        item->setText(column, text);
}

bool frmEditTag::IsRefused() const
{
    QString reason;
    if (IsCommentTag(m_tagName))
        reason = u"Cannot edit comment tags"_s;
    else if (!IsEditable(m_page.rtfText().SelText()))
        reason = u"You must place the cursor inside a starttag (Eg. <BODY>)"_s;
    else
        return false;
    MsgBox(reason, Buttons::Ok, Icon::Information);
    return true;
}

int frmEditTag::exec()
{
    return IsRefused() ? Rejected : QDialog::exec();
}

void frmEditTag::accept()
{
    if (IsRefused())
        return reject();
    EditedTag tag{.name = m_tagName, .attributes = {}};
    for (int i = 0; i < m_grid->topLevelItemCount(); ++i) {
        const QTreeWidgetItem *item = m_grid->topLevelItem(i);
        tag.attributes.append({item->text(NameColumn), item->text(ValueColumn)});
    }
    m_page.rtfText().AddUndo();
    m_page.rtfText().SetSelText(TagText(tag));
    QDialog::accept();
}

} // namespace brenix
