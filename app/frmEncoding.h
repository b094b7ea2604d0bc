#pragma once

#include "support/FormDialog.h"

namespace brenix {

class FilteredTree;

/// The encoding of pages that do not tell theirs, chosen from a list. OK stores it as the setting
/// `Editor`/`Encoding`.
class frmEncoding : public FormDialog
{
public:
    explicit frmEncoding(QWidget *parent = nullptr);

protected:
    bool Accepted() override;

private:
    FilteredTree *m_encodings;
};

} // namespace brenix
