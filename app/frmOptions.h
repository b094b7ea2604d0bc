#pragma once

#include "app/Options.h"
#include "support/FormDialog.h"

#include <QTimer>

class QStackedWidget;
class QTreeWidget;
class QTreeWidgetItem;

namespace brenix {

/// The Options dialog: a tree of pages and the page that is chosen in it. OK stores all pages,
/// those never shown included, and tells so; Cancel stores nothing.
class frmOptions : public FormDialog
{
public:
    explicit frmOptions(QWidget *parent = nullptr);

    /// The options were stored.
    std::function<void(const Options &options)> Applied;
    /// The recent files were forgotten; that happens at once, not at OK.
    std::function<void()> RecentCleared;
    /// Where browsers are searched.
    BrowserFinder Finder;

protected:
    bool Accepted() override;

private:
    struct Page;
    static const Page Pages[];

    void BuildPages();
    void ShowPage(const QTreeWidgetItem *item);
    void LoadForms();
    void StoreForms();

    void BuildStartup(Form &form);
    void BuildColors(Form &form);
    void BuildFont(Form &form);
    void BuildSyntaxLanguage(Form &form);
    void BuildIntegratedBrowser(Form &form);
    void BuildBrowserlist(Form &form);
    void BuildColorPicker(Form &form);
    void BuildReset(Form &form);

    void BuildClosingTag(Form &form);
    void BuildAutocomplete(Form &form);
    void BuildWordWrap(Form &form);
    void BuildAutoSave(Form &form);
    void BuildTagCase(Form &form);
    void BuildDesign(Form &form);

    void ListFonts();
    void Search();
    void Reset();

    Options m_options;
    QString m_fontSize; // the list's text for the number
    QTreeWidget *m_tree;
    QStackedWidget *m_stack;
    QLabel *m_title;
    QListWidget *m_fonts = nullptr;
    QPushButton *m_search = nullptr;
    QTimer m_searchDone; // Timer2
};

} // namespace brenix
