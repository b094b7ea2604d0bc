#pragma once

#include "support/FormDialog.h"
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
    Form &AddPage(const char16_t *name);
    void BuildAddressPage();
    void BuildAnchorPage();
    void BuildMailPage();
    void ShowKind();
    QString ChooseTarget();
    void CompleteAddress(const QString &typed);

    DocumentModel &m_page;
    const Mode m_mode;
    Hyperlink m_link;
    RecentLinks m_recent;
    QTreeWidget *m_kinds; // TW
    QStackedWidget *m_pages;
    QComboBox *m_address = nullptr; // AutoComplete1
    QListWidget *m_anchors = nullptr; // List1
};

} // namespace brenix
