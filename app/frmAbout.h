#pragma once

#include "support/FormDialog.h"

namespace brenix {

/// What the program is, its version and its licence.
class frmAbout : public FormDialog
{
public:
    explicit frmAbout(QWidget *parent = nullptr);

private:
    QWidget *Title();
};

} // namespace brenix
