#pragma once

#include "support/Form.h"

#include <QDialog>

class QDialogButtonBox;

namespace brenix {

/// A modal dialog that is a form and a row of buttons. OK takes the controls' values into the
/// fields and then runs `Accepted`, which may refuse; Cancel leaves the fields as they were. No
/// dialog knows the main window.
class FormDialog : public QDialog
{
public:
    FormDialog(const char16_t *name, const QString &title, QWidget *parent = nullptr);

    void accept() override;

protected:
    Form &Rows() { return m_form; }
    /// The button row, to be made last. An empty name leaves a button out; `help` is what the help
    /// button and F1 do.
    struct ButtonNames
    {
        const char16_t *ok;
        const char16_t *cancel;
        const char16_t *help = nullptr;
        QString okCaption = QStringLiteral("&OK");
        QString cancelCaption = QStringLiteral("&Cancel");
    };
    void AddButtons(const ButtonNames &names, std::function<void()> help = {});
    /// What OK does with the fields; false keeps the dialog open.
    virtual bool Accepted() { return true; }

    /// A button row of another make: empty, below the form; and the help button for it.
    QDialogButtonBox *AddButtonRow();
    void AddHelp(QDialogButtonBox &row, const char16_t *name, const std::function<void()> &help);

private:
    QWidget *m_page;
    Form m_form;
};

} // namespace brenix
