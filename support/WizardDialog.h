#pragma once

#include "support/FormDialog.h"

class QStackedWidget;

namespace brenix {

/// A dialog that asks in steps, each a form with a title and a hint above it. "&Next" takes the
/// fields and leads on; at the last step it reads "&Finish" and is the dialog's OK. "&Back" changes
/// nothing but the step.
class WizardDialog : public FormDialog
{
protected:
    struct LabelNames
    {
        const char16_t *title;
        const char16_t *hint;
    };
    WizardDialog(const char16_t *name,
                 const QString &title,
                 const LabelNames &labels,
                 QWidget *parent = nullptr);

    /// A step behind those that are there, on a page of that name.
    Form &AddStep(const char16_t *name, const QString &title, const QString &hint);
    struct WizardButtonNames
    {
        const char16_t *back;
        const char16_t *next;
        const char16_t *cancel;
        const char16_t *help = nullptr;
    };
    /// To be called last; the first step is shown then.
    void AddButtons(const WizardButtonNames &names, const std::function<void()> &help = {});

    int Step() const; ///< from 0
    /// What "&Next" does.
    void GoOn();
    /// Whether the author may go on from the step that is shown.
    void AllowNext(bool allowed);
    /// "&Next" leads to a step, and the fields are taken: what it shows can be made to fit them.
    virtual void Enter(int step) { Q_UNUSED(step) }

private:
    void ShowStep(int step);

    struct Heading
    {
        QString title;
        QString hint;
    };
    QList<Heading> m_headings;
    QLabel *m_title;
    QLabel *m_hint;
    QStackedWidget *m_steps;
    QPushButton *m_back = nullptr;
    QPushButton *m_next = nullptr;
};

} // namespace brenix
