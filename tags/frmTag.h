#pragma once

#include "support/FormDialog.h"

namespace brenix {

class DocumentModel;

/// "Insert Tag": one of 111 tags, with its end tag when that is ticked.
class frmTag : public FormDialog
{
public:
    explicit frmTag(DocumentModel &page, QWidget *parent = nullptr);

protected:
    bool Accepted() override;

private:
    DocumentModel &m_page;
    QString m_name;
    bool m_withEndTag = false;
};

} // namespace brenix
