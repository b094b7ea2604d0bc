#include "app/frmEncoding.h"

#include "app/Encodings.h"
#include "app/FilteredTree.h"
#include "support/SettingsStore.h"

#include <QPushButton>
#include <QTreeWidget>

using namespace Qt::StringLiterals;

namespace brenix {

frmEncoding::frmEncoding(QWidget *parent)
    : FormDialog(u"frmEncoding", u"Encoding"_s, parent)
    , m_encodings(new FilteredTree({u"Encoding"_s, u"Languages"_s}, this))
{
    const QString current = GetSetting(u"Editor", u"Encoding", u"windows-1250"_s);
    QTreeWidget *tree = m_encodings->Tree();
    tree->setRootIsDecorated(false);
    for (const NamedEncoding &encoding : Encodings()) {
        auto *row = new QTreeWidgetItem(tree, {encoding.name, encoding.description});
        if (encoding.name.compare(current, Qt::CaseInsensitive) == 0)
            tree->setCurrentItem(row);
    }
    // Set by hand, or an alias: OK must not change it unasked.
    if (!tree->currentItem() && IsDecodable(current)) {
        auto *row = new QTreeWidgetItem({current, u"The present setting"_s});
        tree->insertTopLevelItem(0, row);
        tree->setCurrentItem(row);
    }
    m_encodings->FitColumns();
    m_encodings->Activated = [this](QTreeWidgetItem *) { accept(); };

    Rows().Note(u"The encoding of the pages that do not tell theirs by a byte order mark and are "
                "no UTF-8. It is used for the pages that you open from now on."_s);
    Rows().Add(m_encodings, 1);
    AddButtons({.ok = u"Command1", .cancel = u"Command2"});
    const auto allowOk = [this, tree] {
        findChild<QPushButton *>(u"Command1"_s)->setEnabled(tree->currentItem() != nullptr);
    };
    connect(tree, &QTreeWidget::currentItemChanged, this, allowOk);
    allowOk();
    resize(sizeHint().expandedTo({0, fontMetrics().lineSpacing() * 26}));
    m_encodings->setFocus();
}

bool frmEncoding::Accepted()
{
    const QTreeWidgetItem *row = m_encodings->Tree()->currentItem();
    if (!row)
        return false;
    SaveSetting(u"Editor", u"Encoding", row->text(0));
    return true;
}

} // namespace brenix
