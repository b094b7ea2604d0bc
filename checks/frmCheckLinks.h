#pragma once

#include "checks/Links.h"
#include "checks/WalkDialog.h"
#include "support/NetworkModule.h"

#include <QHash>
#include <QIcon>

class QPushButton;
class QTreeWidget;
class QTreeWidgetItem;

namespace brenix {

class DocumentModel;

/// The network module's tester; null, after a message, where the module is not there.
std::unique_ptr<LinkTester> MakeLinkTester();

/// "Check Links": lists the links of a page and tells which of its files are missing. Links to the
/// web are told by their kind; only when the author asks for it are they tried, and then they turn
/// into "OK!" or "Broken" as well.
class frmCheckLinks : public WalkDialog
{
public:
    using Maker = std::function<std::unique_ptr<LinkTester>()>;
    explicit frmCheckLinks(DocumentModel &page,
                           QWidget *parent = nullptr,
                           Maker makeTester = MakeLinkTester);

private:
    void Check();
    void AddRows(const QList<CheckedLink> &links);
    QIcon IconOf(LinkStatus status);
    void ShowStatus(QTreeWidgetItem *row, LinkStatus status);
    void TryWebLinks();

    DocumentModel &m_page;
    QTreeWidget *m_list;
    QPushButton *m_try = nullptr;
    QHash<int, QIcon> m_icons; // by status
    Maker m_makeTester;
    std::unique_ptr<LinkTester> m_tester;
};

} // namespace brenix
