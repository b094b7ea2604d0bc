#include "app/ReferenceWindow.h"

#include "app/FilteredTree.h"
#include "app/ReferenceTable.h"
#include "support/Paths.h"

#include <QDialogButtonBox>
#include <QHash>
#include <QLabel>
#include <QPushButton>
#include <QTreeWidget>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace brenix {

namespace {

    constexpr int MeaningRole = FilteredTree::SearchTextRole;
    constexpr int MeaningLines = 4;
    constexpr int TreeLines = 20;

    bool IsMember(const QTreeWidgetItem *row)
    {
        return row && row->parent();
    }

} // namespace

ReferenceWindow::ReferenceWindow(const About &about,
                                 std::function<void(const QString &)> insert,
                                 QWidget *parent)
    : QDialog(parent)
    , m_insert(std::move(insert))
    , m_tree(new FilteredTree({u"Name"_s, u"Kind"_s}, this))
    , m_meaning(new QLabel(this))
{
    setObjectName(QString::fromUtf16(about.name));
    setWindowTitle(about.title);
    const int line = fontMetrics().lineSpacing();
    m_meaning->setObjectName(u"Label1"_s);
    m_meaning->setAccessibleName(u"Meaning"_s);
    m_meaning->setWordWrap(true);
    m_meaning->setTextFormat(Qt::RichText);
    m_meaning->setAlignment(Qt::AlignTop | Qt::AlignLeft);
    m_meaning->setTextInteractionFlags(Qt::TextSelectableByMouse);
    m_meaning->setFrameShape(QFrame::StyledPanel);
    m_meaning->setMargin(line / 3);
    m_meaning->setMinimumHeight(MeaningLines * line + line);

    auto *buttons = new QDialogButtonBox(this);
    m_insertButton = buttons->addButton(u"&Insert"_s, QDialogButtonBox::ActionRole);
    m_insertButton->setObjectName(u"Command1"_s);
    QPushButton *close = buttons->addButton(QDialogButtonBox::Close);
    close->setObjectName(u"Command2"_s);
    // Enter belongs to the tree, also where there is nothing to insert.
    m_insertButton->setAutoDefault(false);
    close->setAutoDefault(false);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    connect(m_insertButton, &QPushButton::clicked, this, [this] {
        InsertRow(m_tree->Tree()->currentItem());
    });

    auto *layout = new QVBoxLayout(this);
    layout->addWidget(m_tree, 1);
    layout->addWidget(m_meaning);
    layout->addWidget(buttons);

    connect(m_tree->Tree(),
            &QTreeWidget::currentItemChanged,
            this,
            [this](const QTreeWidgetItem *row) { ShowMeaning(row); });
    m_tree->Activated = [this](QTreeWidgetItem *row) { InsertRow(row); };
    ShowMeaning(nullptr);
    const ReferenceTable table = ReadReference(AppPath(about.file));
    Fill(table);
    if (!table.error.isEmpty())
        m_meaning->setText(u"The file \"%1\" cannot be used: %2."_s.arg(
            about.file.toHtmlEscaped(), table.error.toHtmlEscaped()));
    resize(sizeHint().expandedTo({0, (TreeLines + MeaningLines) * line * 4 / 3}));
    m_tree->setFocus();
}

void ReferenceWindow::Fill(const ReferenceTable &table)
{
    QHash<QString, QTreeWidgetItem *> groups;
    for (const ReferenceEntry &entry : table.entries) {
        QTreeWidgetItem *&group = groups[entry.group];
        if (!group)
            group = new QTreeWidgetItem(m_tree->Tree(), {entry.group});
        QTreeWidgetItem *row = group;
        if (entry.member.isEmpty())
            row->setText(1, entry.kind);
        else
            row = new QTreeWidgetItem(group, {entry.member, entry.kind});
        row->setData(0, MeaningRole, entry.meaning);
    }
    m_tree->FitColumns();
    m_tree->Tree()->setCurrentItem(m_tree->Tree()->topLevelItem(0));
}

void ReferenceWindow::ShowMeaning(const QTreeWidgetItem *row)
{
    m_insertButton->setEnabled(IsMember(row));
    m_meaning->setText(
        row ? u"<b>%1</b><br>%2"_s.arg(row->text(0).toHtmlEscaped(),
                                       row->data(0, MeaningRole).toString().toHtmlEscaped())
            : QString());
}

void ReferenceWindow::InsertRow(const QTreeWidgetItem *row)
{
    if (IsMember(row) && m_insert)
        m_insert(row->text(0));
}

} // namespace brenix
