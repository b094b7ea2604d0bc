#pragma once

#include "support/FormDialog.h"

namespace brenix {

/// What changed in each version, the newest first.
class frmHistory : public FormDialog
{
public:
    explicit frmHistory(QWidget *parent = nullptr);
};

} // namespace brenix
