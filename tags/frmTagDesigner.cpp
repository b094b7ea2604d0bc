#include "tags/frmTagDesigner.h"

#include "support/DocumentModel.h"
#include "tags/AttributeCatalogue.h"
#include "tags/ChooseLink.h"
#include "tags/InsertMarkup.h"
#include "tags/LinkFiles.h"
#include "tags/TagDesignerText.h"
#include "tags/TagNameList.h"

#include <QFontDatabase>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QRegularExpressionValidator>
#include <QStackedWidget>

using namespace Qt::StringLiterals;

namespace brenix {

namespace {

    QString PanelName(DesignerPanel panel)
    {
        switch (panel) {
        case DesignerPanel::FontDrop:
        case DesignerPanel::Drop:
            return u"Drop"_s;
        case DesignerPanel::Color:
            return u"Color"_s;
        case DesignerPanel::Hyper:
            return u"Hyper"_s;
        case DesignerPanel::NoOption:
            return u"NoOption"_s;
        case DesignerPanel::Default:
            break;
        }
        return u"Default"_s;
    }

    QLineEdit *AddBox(Form &panel, const char16_t *name, const QString &caption)
    {
        auto *box = new QLineEdit;
        panel.Row(name, caption, box);
        return box;
    }

} // namespace

frmTagDesigner::frmTagDesigner(DocumentModel &page, QWidget *parent)
    : WizardDialog(
        u"frmTagDesigner", u"Tag Designer"_s, {.title = u"Label1", .hint = u"Label4"}, parent)
    , m_page(page)
{
    BuildTagStep();
    BuildAttributeStep();
    AddButtons({.back = u"Command2", .next = u"Command1", .cancel = u"Command3"});
    AllowNext(false);
    // Enter belongs to the boxes of the values.
    for (QPushButton *button : findChildren<QPushButton *>()) {
        button->setDefault(false);
        button->setAutoDefault(false);
    }
}

void frmTagDesigner::BuildTagStep()
{
    Form &step = AddStep(u"Wiz1", u"Select Tag"_s, u"Select the tag you want to use"_s);
    QLineEdit *find = AddBox(step, u"Text2", u"&Find:"_s);
    QListWidget *tags = step.List(u"List1", u"&Tags:"_s, InsertTagNames(), m_tag);
    connect(find, &QLineEdit::textChanged, tags, [tags](const QString &start) {
        tags->setCurrentRow(FindTagName(start));
    });
    connect(tags, &QListWidget::currentRowChanged, this, [this](int row) { AllowNext(row >= 0); });
    connect(tags, &QListWidget::itemActivated, this, &frmTagDesigner::GoOn);
    connect(find, &QLineEdit::returnPressed, this, &frmTagDesigner::GoOn);
    find->setFocus();
}

void frmTagDesigner::BuildAttributeStep()
{
    Form &step
        = AddStep(u"Wiz2", u"Select Attributes"_s, u"Add the attribute you want for this tag"_s);
    step.Note(u"Select the properties you want to add for this tag. Remember that the property "
              "list is dynamicly, so the properties listed is just the one that is allowed. "
              "Press the Finish button to insert the tag + properties into your code."_s)
        ->setObjectName(u"Label3"_s);
    const QList<Form *> columns = step.Columns({0, 1}, 1);
    m_attributes = new QListWidget;
    columns[0]->Below(u"List2", u"&Attributes:"_s, m_attributes);
    connect(m_attributes, &QListWidget::currentRowChanged, this, &frmTagDesigner::ShowPanel);
    m_options = columns[1]->Note({});
    m_options->setObjectName(u"Label7"_s);
    m_panels = new QStackedWidget;
    columns[1]->Add(m_panels, 1);
    BuildPanels();
    m_code = step.Text(u"Code", u"Attributes &of the tag:"_s, m_collected);
}

void frmTagDesigner::BuildPanels()
{
    Form &drop = AddPanel(u"Drop");
    m_drop = new QListWidget;
    drop.Below(u"FontList", u"&Values:"_s, m_drop);
    QPushButton *insert = AddInsert(drop, u"Command4", [this] {
        const QListWidgetItem *value = m_drop->currentItem();
        return DesignedAttribute(Attribute(), value ? value->text() : QString());
    });
    connect(m_drop, &QListWidget::itemActivated, insert, &QPushButton::click);

    Form &colour = AddPanel(u"Color");
    QLineEdit *digits = AddBox(colour, u"Text3", u"Co&lor:"_s);
    digits->setValidator(
        new QRegularExpressionValidator(QRegularExpression(u"[0-9A-Fa-f#]*"_s), digits));
    colour.ChooserBeside(u"FButton1", u"C&hoose..."_s, ChooseColourText);
    AddInsert(colour, u"Command7", digits);

    Form &hyper = AddPanel(u"Hyper");
    QLineEdit *address = AddBox(hyper, u"Text4", u"A&ddress:"_s);
    address->setText(u"http://"_s);
    hyper.ChooserBeside(
        u"FButton2", u"C&hoose..."_s, [this](const QString &) { return ChooseTarget(); });
    AddInsert(hyper, u"Command8", address);

    Form &none = AddPanel(u"NoOption");
    none.Note(u"This attribute has no options."_s)->setObjectName(u"Label8"_s);
    AddInsert(none, u"Command6", [this] { return DesignedAttribute(Attribute()); });

    Form &other = AddPanel(u"Default");
    AddInsert(other, u"Command5", AddBox(other, u"Text1", u"&Value:"_s));
}

Form &frmTagDesigner::AddPanel(const char16_t *name)
{
    auto *panel = new QWidget;
    panel->setObjectName(QString::fromUtf16(name));
    m_panels->addWidget(panel);
    return Rows().Inside(panel);
}

QPushButton *frmTagDesigner::AddInsert(Form &panel,
                                       const char16_t *name,
                                       std::function<QString()> attribute)
{
    QPushButton *button
        = panel.Button(name, u"&Insert"_s, [this, attribute = std::move(attribute)] {
              m_code->setText(m_code->text() + attribute());
          });
    panel.AddStretch();
    return button;
}

void frmTagDesigner::AddInsert(Form &panel, const char16_t *name, QLineEdit *value)
{
    QPushButton *button = AddInsert(
        panel, name, [this, value] { return DesignedAttribute(Attribute(), value->text()); });
    connect(value, &QLineEdit::returnPressed, button, &QPushButton::click);
}

void frmTagDesigner::Enter(int)
{
    m_code->clear();
    m_attributes->clear();
    m_attributes->addItems(DialogAttributesOfTag(m_tag));
    ShowPanel(); // also for a tag without attributes
    m_attributes->setCurrentRow(0);
    m_attributes->setFocus();
}

bool frmTagDesigner::Accepted()
{
    InsertMarkup(m_page, DesignedTag(m_tag, m_collected));
    return true;
}

QString frmTagDesigner::Attribute() const
{
    return m_attributes->currentItem() ? m_attributes->currentItem()->text() : QString();
}

void frmTagDesigner::ShowPanel()
{
    const QString attribute = Attribute();
    m_panels->setVisible(!attribute.isEmpty());
    m_options->setText(attribute.isEmpty() ? QString() : u"Options for "_s + attribute);
    const DesignerPanel panel = PanelOfAttribute(attribute);
    m_panels->setCurrentWidget(m_panels->findChild<QWidget *>(PanelName(panel)));
    m_drop->clear();
    m_drop->addItems(panel == DesignerPanel::FontDrop ? QFontDatabase::families()
                                                      : DropValues(attribute));
    m_drop->setCurrentRow(0);
}

QString frmTagDesigner::ChooseTarget()
{
    const QString path = OpenFileName(LinkTargets(m_page));
    if (path.endsWith(u"url"))
        return DesignerShortcutAddress(ShortcutLine(path).value_or(QString()));
    return path.isEmpty() ? path : LinkTo(m_page, path);
}

} // namespace brenix
