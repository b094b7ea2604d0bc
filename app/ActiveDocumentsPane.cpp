#include "app/ActiveDocumentsPane.h"

#include "app/PaneList.h"
#include "support/Paths.h"

using namespace Qt::StringLiterals;

namespace brenix {

ActiveDocumentsPane::ActiveDocumentsPane(QWidget *parent)
    : QWidget(parent)
    , m_documents(NewPaneList(u"List9"_s, u"Active Documents"_s, this))
{
    setObjectName(u"ADocuments"_s);
    NewPaneLayout(this)->addWidget(m_documents, 1);
    setFocusProxy(m_documents);
    const auto choose = [this](QListWidgetItem *item) { emit Chosen(m_documents->row(item)); };
    connect(m_documents, &QListWidget::itemClicked, this, choose);
    connect(m_documents, &QListWidget::itemActivated, this, choose);
}

void ActiveDocumentsPane::ShowDocuments(const QStringList &captions, int active)
{
    while (m_documents->count() > captions.size())
        delete m_documents->takeItem(m_documents->count() - 1);
    while (m_documents->count() < captions.size())
        m_documents->addItem(QString());
    for (int row = 0; row < m_documents->count(); ++row) {
        m_documents->item(row)->setText(FileNameOf(captions[row]));
        m_documents->item(row)->setToolTip(PlainTip(captions[row]));
    }
    m_documents->setCurrentRow(active);
}

} // namespace brenix
