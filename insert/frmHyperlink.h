#pragma once

#include "support/Form.h"
#include "tags/HyperlinkMarkup.h"
#include "tags/LinkFiles.h"

class QStackedWidget;
class QTreeWidget;

namespace brenix {

class DocumentModel;

/// "Insert HyperLink": to an address, to a place inside the page, or to a mail address. In edit
/// mode the page's selection is the start tag, which OK writes anew.
class frmHyperlink : public FormDialog
{
public:
    enum class Mode { Insert, Edit };
    frmHyperlink(DocumentModel &page, Mode mode, QWidget *parent = nullptr);

protected:
    bool Accepted() override;
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void BuildKinds();
    QWidget *AddressPage();
    QWidget *AnchorPage();
    QWidget *MailPage();
    void ShowKind();
    void ChooseTarget();
    void CompleteAddress(const QString &typed);

    DocumentModel &m_page;
    const Mode m_mode;
    Hyperlink m_link;
    RecentLinks m_recent;
    QTreeWidget *m_kinds; // TW
    QStackedWidget *m_pages;
    QComboBox *m_address = nullptr; // AutoComplete1
    QListWidget *m_anchors = nullptr; // List1
    std::vector<std::unique_ptr<Form>> m_forms; // of the pages
};

} // namespace brenix
