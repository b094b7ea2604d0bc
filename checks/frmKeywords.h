#pragma once

#include "checks/WalkDialog.h"

#include <QStyle>

class QLabel;
class QListWidget;

namespace brenix {

class DocumentModel;

/// Proposes keywords for a page in two steps: an analysis of its text, then a list to tick words
/// in. They go into a meta tag of the page.
class frmKeywords : public WalkDialog
{
public:
    explicit frmKeywords(DocumentModel &page, QWidget *parent = nullptr);

protected:
    bool Accepted() override;

private:
    void ShowStep(QStyle::StandardPixmap picture, const QString &title, const QString &text);
    void Analyze();
    QStringList Ticked() const;

    DocumentModel &m_page;
    bool m_isAnalyzed = false; // Label7
    QLabel *m_picture; // Picture1
    QLabel *m_title; // Label1
    QLabel *m_text; // Label4
    QListWidget *m_words; // List2
};

} // namespace brenix
