#pragma once

#include "support/WizardDialog.h"

class QStackedWidget;

namespace brenix {

class DocumentModel;

/// "Tag Designer": a wizard that picks a tag and then collects attributes for it, each with a way
/// to give its value that fits it.
class frmTagDesigner : public WizardDialog
{
public:
    explicit frmTagDesigner(DocumentModel &page, QWidget *parent = nullptr);

protected:
    void Enter(int step) override;
    bool Accepted() override;

private:
    void BuildTagStep();
    void BuildAttributeStep();
    void BuildPanels();
    Form &AddPanel(const char16_t *name);
    /// A button that appends an attribute to those collected.
    QPushButton *AddInsert(Form &panel, const char16_t *name, std::function<QString()> attribute);
    void AddInsert(Form &panel, const char16_t *name, QLineEdit *value);
    void ShowPanel();
    QString Attribute() const;
    QString ChooseTarget();

    DocumentModel &m_page;
    QString m_tag; // List1
    QString m_collected; // Code
    QListWidget *m_attributes = nullptr; // List2
    QLineEdit *m_code = nullptr; // Code
    QLabel *m_options = nullptr; // Label7
    QStackedWidget *m_panels = nullptr;
    QListWidget *m_drop = nullptr; // FontList
};

} // namespace brenix
