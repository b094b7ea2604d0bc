#pragma once

#include "support/FormDialog.h"

namespace brenix {

struct BrowserProgram;

/// Asks on which drive a browser lies, where the system has drives.
class frmDrive : public FormDialog
{
public:
    explicit frmDrive(const BrowserProgram &program, QWidget *parent = nullptr);

    /// The root of the chosen drive.
    QString Root() const { return m_root; }

private:
    QString m_root;
};

} // namespace brenix
