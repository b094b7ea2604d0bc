#include "tags/frmTagDesigner.h"

#include "editor/InsertMarkup.h"
#include "support/ColourText.h"
#include "support/DocumentModel.h"
#include "tags/AttributeCatalogue.h"
#include "tags/ChooseLink.h"
#include "tags/LinkFiles.h"
#include "tags/TagDesignerText.h"
#include "tags/TagNameList.h"

#include <QBoxLayout>
#include <QDialogButtonBox>
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

    enum Step { TagStepNumber, AttributeStepNumber };
    enum Panel { Drop, Colour, Hyper, NoOption, Default };

    Panel PanelNumber(DesignerPanel panel)
    {
        switch (panel) {
        case DesignerPanel::FontDrop:
        case DesignerPanel::Drop:
            return Drop;
        case DesignerPanel::Color:
            return Colour;
        case DesignerPanel::Hyper:
            return Hyper;
        case DesignerPanel::NoOption:
            return NoOption;
        default:
            return Default;
        }
    }

    template <typename Control> Control *Named(const QString &name, Control *control)
    {
        control->setObjectName(name);
        return control;
    }

    // A panel of controls in a row, or below each other.
    QWidget *Page(const QString &name, QBoxLayout::Direction direction, const QWidgetList &controls)
    {
        auto *page = Named(name, new QWidget);
        auto *layout = new QBoxLayout(direction, page);
        layout->setContentsMargins(0, 0, 0, 0);
        for (QWidget *control : controls)
            layout->addWidget(control);
        if (direction == QBoxLayout::LeftToRight)
            layout->setAlignment(Qt::AlignTop);
        return page;
    }

    QPushButton *ChooserButton(const QString &name)
    {
        auto *button = Named(name, new QPushButton(u"..."_s));
        button->setAutoDefault(false);
        return button;
    }

} // namespace

frmTagDesigner::frmTagDesigner(DocumentModel &page, QWidget *parent)
    : QDialog(parent)
    , m_page(page)
    , m_title(Named(u"Label1"_s, new QLabel(this)))
    , m_hint(Named(u"Label4"_s, new QLabel(this)))
    , m_steps(new QStackedWidget(this))
{
    setObjectName(u"frmTagDesigner"_s);
    setWindowTitle(u"Tag Designer"_s);
    QFont heading = font();
    heading.setBold(true);
    m_title->setFont(heading);
    m_steps->addWidget(TagStep());
    m_steps->addWidget(AttributeStep());
    auto *layout = new QVBoxLayout(this);
    layout->addWidget(m_title);
    layout->addWidget(m_hint);
    layout->addWidget(m_steps, 1);
    BuildButtons();
    ShowStep(TagStepNumber);
    m_find->setFocus();
}

QWidget *frmTagDesigner::TagStep()
{
    m_find = Named(u"Text2"_s, new QLineEdit);
    m_find->setAccessibleName(u"Find a tag"_s);
    m_find->setPlaceholderText(u"Type to find a tag"_s);
    m_tags = Named(u"List1"_s, new QListWidget);
    m_tags->setAccessibleName(u"Tags"_s);
    m_tags->addItems(InsertTagNames());
    connect(m_find, &QLineEdit::textChanged, this, [this](const QString &start) {
        m_tags->setCurrentRow(FindTagName(start));
    });
    connect(m_tags, &QListWidget::currentRowChanged, this, [this](int row) {
        m_forward->setEnabled(row >= 0);
    });
    connect(m_tags, &QListWidget::itemActivated, this, &frmTagDesigner::Forward);
    connect(m_find, &QLineEdit::returnPressed, this, &frmTagDesigner::Forward);
    return Page(u"Wiz1"_s, QBoxLayout::TopToBottom, {m_find, m_tags});
}

QWidget *frmTagDesigner::AttributeStep()
{
    auto *help = Named(
        u"Label3"_s,
        new QLabel(
            u"Select the properties you want to add for this tag. Remember that the property "
            "list is dynamicly, so the properties listed is just the one that is allowed. "
            "Press the Finish button to insert the tag + properties into your code."_s));
    help->setWordWrap(true);
    m_attributes = Named(u"List2"_s, new QListWidget);
    m_attributes->setAccessibleName(u"Attributes"_s);
    connect(m_attributes, &QListWidget::currentRowChanged, this, &frmTagDesigner::ShowPanel);
    m_options = Named(u"Label7"_s, new QLabel);
    m_code = Named(u"Code"_s, new QLineEdit);
    m_code->setAccessibleName(u"Attributes of the tag"_s);
    QWidget *right = Page({}, QBoxLayout::TopToBottom, {m_options, ValuePanels()});
    QWidget *columns = Page({}, QBoxLayout::LeftToRight, {m_attributes, right});
    columns->layout()->setAlignment({});
    static_cast<QBoxLayout *>(columns->layout())->setStretch(1, 1);
    return Page(u"Wiz2"_s, QBoxLayout::TopToBottom, {help, columns, m_code});
}

QWidget *frmTagDesigner::ValuePanels()
{
    m_panels = new QStackedWidget;
    // In the order of the panel numbers.
    for (QWidget *panel :
         {DropPanel(), ColourPanel(), HyperPanel(), NoOptionPanel(), DefaultPanel()})
        m_panels->addWidget(panel);
    return m_panels;
}

QPushButton *frmTagDesigner::InsertButton(const QString &name, std::function<QString()> value)
{
    auto *button = Named(name, new QPushButton(u"&Insert"_s));
    button->setAutoDefault(false);
    connect(button, &QPushButton::clicked, this, [this, value = std::move(value)] {
        m_code->setText(
            m_code->text()
            + (value ? DesignedAttribute(Attribute(), value()) : DesignedAttribute(Attribute())));
    });
    return button;
}

QWidget *frmTagDesigner::DropPanel()
{
    m_drop = Named(u"FontList"_s, new QListWidget);
    m_drop->setAccessibleName(u"Values"_s);
    QPushButton *insert = InsertButton(u"Command4"_s, [this] {
        return m_drop->currentItem() ? m_drop->currentItem()->text() : QString();
    });
    connect(m_drop, &QListWidget::itemActivated, insert, &QPushButton::click);
    return Page(u"Drop"_s, QBoxLayout::TopToBottom, {m_drop, insert});
}

QWidget *frmTagDesigner::ColourPanel()
{
    m_colour = Named(u"Text3"_s, new QLineEdit);
    m_colour->setAccessibleName(u"Color"_s);
    m_colour->setValidator(
        new QRegularExpressionValidator(QRegularExpression(u"[0-9A-Fa-f#]*"_s), m_colour));
    QPushButton *choose = ChooserButton(u"FButton1"_s);
    choose->setAccessibleName(u"Choose a color"_s);
    connect(choose, &QPushButton::clicked, this, [this] {
        if (const std::optional<quint32> colour = ChooseColour(0))
            m_colour->setText(ColourText(*colour));
    });
    QPushButton *insert = InsertButton(u"Command7"_s, [this] { return m_colour->text(); });
    connect(m_colour, &QLineEdit::returnPressed, insert, &QPushButton::click);
    return Page(u"Color"_s, QBoxLayout::LeftToRight, {m_colour, choose, insert});
}

QWidget *frmTagDesigner::HyperPanel()
{
    m_hyper = Named(u"Text4"_s, new QLineEdit(u"http://"_s));
    m_hyper->setAccessibleName(u"Address"_s);
    QPushButton *insert = InsertButton(u"Command8"_s, [this] { return m_hyper->text(); });
    connect(m_hyper, &QLineEdit::returnPressed, insert, &QPushButton::click);
    QPushButton *choose = ChooserButton(u"FButton2"_s);
    choose->setAccessibleName(u"Choose a file"_s);
    connect(choose, &QPushButton::clicked, this, &frmTagDesigner::ChooseTarget);
    return Page(u"Hyper"_s, QBoxLayout::LeftToRight, {m_hyper, choose, insert});
}

QWidget *frmTagDesigner::NoOptionPanel()
{
    return Page(u"NoOption"_s,
                QBoxLayout::LeftToRight,
                {Named(u"Label8"_s, new QLabel(u"This attribute has no options."_s)),
                 InsertButton(u"Command6"_s, {})});
}

QWidget *frmTagDesigner::DefaultPanel()
{
    m_default = Named(u"Text1"_s, new QLineEdit);
    m_default->setAccessibleName(u"Value"_s);
    QPushButton *insert = InsertButton(u"Command5"_s, [this] { return m_default->text(); });
    connect(m_default, &QLineEdit::returnPressed, insert, &QPushButton::click);
    return Page(u"Default"_s, QBoxLayout::LeftToRight, {m_default, insert});
}

void frmTagDesigner::BuildButtons()
{
    auto *row = new QDialogButtonBox(this);
    m_back = Named(u"Command2"_s, row->addButton(u"&Back"_s, QDialogButtonBox::ActionRole));
    m_forward = Named(u"Command1"_s, row->addButton(u"&Next"_s, QDialogButtonBox::ActionRole));
    Named(u"Command3"_s, row->addButton(u"&Cancel"_s, QDialogButtonBox::RejectRole));
    // Enter belongs to the boxes of the values.
    for (QAbstractButton *button : row->buttons())
        static_cast<QPushButton *>(button)->setAutoDefault(false);
    m_forward->setEnabled(false);
    connect(m_back, &QPushButton::clicked, this, [this] { ShowStep(TagStepNumber); });
    connect(m_forward, &QPushButton::clicked, this, &frmTagDesigner::Forward);
    connect(row, &QDialogButtonBox::rejected, this, &QDialog::reject);
    layout()->addWidget(row);
}

void frmTagDesigner::ShowStep(int step)
{
    const bool isFirst = step == TagStepNumber;
    m_steps->setCurrentIndex(step);
    m_title->setText(isFirst ? u"Select Tag"_s : u"Select Attributes"_s);
    m_hint->setText(isFirst ? u"Select the tag you want to use"_s
                            : u"Add the attribute you want for this tag"_s);
    m_forward->setText(isFirst ? u"&Next"_s : u"&Finish"_s);
    m_back->setEnabled(!isFirst);
}

void frmTagDesigner::Forward()
{
    const QListWidgetItem *tag = m_tags->currentItem();
    if (!tag)
        return;
    if (m_steps->currentIndex() == AttributeStepNumber) {
        InsertMarkup(m_page, DesignedTag(tag->text(), m_code->text()));
        accept();
        return;
    }
    m_code->clear();
    m_attributes->clear();
    m_attributes->addItems(DialogAttributesOfTag(tag->text()));
    ShowStep(AttributeStepNumber);
    ShowPanel(); // also for a tag without attributes
    m_attributes->setCurrentRow(0);
    m_attributes->setFocus();
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
    m_panels->setCurrentIndex(PanelNumber(panel));
    m_drop->clear();
    m_drop->addItems(panel == DesignerPanel::FontDrop ? QFontDatabase::families()
                                                      : DropValues(attribute));
    m_drop->setCurrentRow(0);
}

void frmTagDesigner::ChooseTarget()
{
    const QString path = OpenFileName(LinkTargets());
    if (path.isEmpty())
        return;
    if (!path.endsWith(u"url")) {
        m_hyper->setText(LinkTo(m_page, path));
        return;
    }
    if (const std::optional<QString> line = ShortcutLine(path))
        m_hyper->setText(DesignerShortcutAddress(*line));
}

} // namespace brenix
