#pragma once

#include "app/ActivePage.h"

#include <QPointer>
#include <QWidget>

class QCheckBox;
class QLineEdit;
class QPushButton;

namespace brenix {

class frmSearchResults;

/// The Search pane: the panel `Search` with its fields, and the list of hits, which takes the
/// panel's place when it is opened.
class SearchPane : public QWidget
{
public:
    explicit SearchPane(ActivePage activePage, QWidget *parent = nullptr);

    /// Shows the fields, with `text` to be searched for unless it is empty.
    void Open(const QString &text);
    QString SearchText() const;
    void SetSearchText(const QString &text);
    void SearchNext();
    bool IsLiveSearch() const;

private:
    void BuildFields();
    QLineEdit *AddField(const QString &name, const QString &caption, const QString &tip);
    QPushButton *AddButton(const QString &name, const QString &caption, void (SearchPane::*)());
    QCheckBox *AddCheck(const QString &name, const QString &caption, const QString &tip);
    DocumentModel *SourcePage() const;
    void FindInPage();
    void ReplaceInPage();
    void Live();
    void ListHits();
    void OpenResults();
    void GoToHit(int position);
    void SayNotFound(const QString &text);

    ActivePage m_activePage;
    QWidget *m_fields; // Search
    QLineEdit *m_text; // Text1
    QLineEdit *m_replacement; // Text2
    QPushButton *m_find; // Command1
    QPushButton *m_replace; // Command2
    QCheckBox *m_all; // Check1
    QCheckBox *m_fromTop; // Check2
    QCheckBox *m_live; // Check3
    QPointer<frmSearchResults> m_results;
};

} // namespace brenix
