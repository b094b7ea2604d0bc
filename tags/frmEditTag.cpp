#include "tags/frmEditTag.h"

#include "support/DocumentModel.h"
#include "support/MessageBoxes.h"
#include "support/SourceView.h"
#include "tags/AttributeCatalogue.h"
#include "tags/ChooseLink.h"
#include "tags/EditTag.h"

#include <QComboBox>
#include <QCompleter>
#include <QHeaderView>
#include <QLayout>
#include <QLineEdit>
#include <QPushButton>
#include <QTreeWidget>

using namespace Qt::StringLiterals;

namespace brenix {

namespace {

    enum Column { NameColumn, ValueColumn };

}

frmEditTag::frmEditTag(DocumentModel &page, QWidget *parent)
    : FormDialog(u"frmEditTag", u"Edit Tag"_s, parent)
    , m_page(page)
    , m_grid(new QTreeWidget(this))
    , m_name(new QComboBox(this))
    , m_value(new QLineEdit(this))
{
    const EditedTag tag = ReadTag(page.rtfText().SelText());
    m_tagName = tag.name;
    BuildGrid();
    BuildFields();
    AddButtons({.ok = u"Command1", .cancel = u"Command2"});

    for (const EditedTag::Attribute &attribute : tag.attributes)
        AddAttribute(attribute.name, attribute.value);
    m_grid->setCurrentItem(m_grid->topLevelItem(0));
    ShowCurrent();
    m_grid->setFocus();
}

void frmEditTag::BuildGrid()
{
    m_grid->setHeaderLabels({u"Attribute"_s, u"Value"_s});
    m_grid->setRootIsDecorated(false);
    m_grid->setUniformRowHeights(true);
    m_grid->header()->setDefaultSectionSize(fontMetrics().averageCharWidth() * 22);
    m_grid->setMinimumWidth(fontMetrics().averageCharWidth() * 64);
    connect(m_grid, &QTreeWidget::currentItemChanged, this, &frmEditTag::ShowCurrent);

    const QList<Form *> columns = Rows().Columns({1, 0}, 1);
    columns[0]->Below(u"LI", {}, m_grid);
    m_grid->setAccessibleName(u"Attributes"_s);
    QPushButton *add
        = columns[1]->Button(u"Command3", u"&New Attribute"_s, [this] { NewAttribute(); });
    QPushButton *remove = columns[1]->Button(
        u"Command4", u"&Remove Attribute"_s, [this] { delete m_grid->currentItem(); });
    for (QPushButton *button : {add, remove})
        button->parentWidget()->layout()->setAlignment(button, {}); // both of one width
    columns[1]->AddStretch();
}

void frmEditTag::BuildFields()
{
    m_name->setEditable(true);
    m_name->setInsertPolicy(QComboBox::NoInsert);
    m_name->addItems(DialogAttributesOfTag(m_tagName));
    m_name->completer()->setCaseSensitivity(Qt::CaseSensitive); // names keep the case they have
    connect(m_name, &QComboBox::editTextChanged, this, [this](const QString &text) {
        SetCurrent(NameColumn, text);
    });
    connect(m_value, &QLineEdit::textChanged, this, [this](const QString &text) {
        SetCurrent(ValueColumn, text);
    });
    Rows().Row(u"Combo1", u"&Attribute"_s, m_name);
    Rows().Row(u"Text2", u"&Value"_s, m_value);
    Rows().ChooserBeside(u"FButton1", u"&File..."_s, [this](const QString &) {
        return ChooseLink(m_page, {.title = u"Open"_s, .filter = u"All Files (*.*)|*.*"_s});
    });
    Rows().ChooserBeside(u"FButton2", u"Co&lor..."_s, ChooseColourText);
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
        reject();
    else
        FormDialog::accept();
}

bool frmEditTag::Accepted()
{
    EditedTag tag{.name = m_tagName, .attributes = {}};
    for (int i = 0; i < m_grid->topLevelItemCount(); ++i) {
        const QTreeWidgetItem *item = m_grid->topLevelItem(i);
        tag.attributes.append({item->text(NameColumn), item->text(ValueColumn)});
    }
    ReplaceTag(m_page.rtfText(), TagText(tag));
    return true;
}

} // namespace brenix
