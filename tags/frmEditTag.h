#pragma once

#include "support/FormDialog.h"

class QTreeWidget;

namespace brenix {

class DocumentModel;

/// The attributes of the selected start tag as a grid of names and values. OK writes the tag over
/// the selection.
class frmEditTag : public FormDialog
{
public:
    /// The page's selection is the tag.
    explicit frmEditTag(DocumentModel &page, QWidget *parent = nullptr);

    /// Says why, and shows nothing, when the selection is no start tag; the same holds for OK, when
    /// it is none any more.
    int exec() override;
    void accept() override;

protected:
    bool Accepted() override;

private:
    bool IsRefused() const;
    void BuildGrid();
    void BuildFields();
    void AddAttribute(const QString &name, const QString &value);
    void NewAttribute();
    void ShowCurrent();
    void SetCurrent(int column, const QString &text);

    DocumentModel &m_page;
    QString m_tagName; // TagName
    QTreeWidget *m_grid; // LI
    QComboBox *m_name; // Combo1
    QLineEdit *m_value; // Text2
};

} // namespace brenix
