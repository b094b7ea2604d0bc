#pragma once

#include "support/FormDialog.h"

namespace brenix {

class DocumentModel;

/// Asks for a text and puts its characters into the page as numeric entities.
class frmTagCode : public FormDialog
{
public:
    explicit frmTagCode(DocumentModel &page, QWidget *parent = nullptr);

protected:
    bool Accepted() override;

private:
    DocumentModel &m_page;
    QString m_text; // Text1
};

} // namespace brenix
